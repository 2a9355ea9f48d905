// SkinnedWindows.h: the list of all skinned windows, which are told when the skin changes.
#pragma once

namespace _qv_commonctrl {

class CQVBaseCtrl;

// Enters an object; one that is in the list already stays where it is.
void EnterSkinnedWindow(CQVBaseCtrl* control);
void LeaveSkinnedWindow(CQVBaseCtrl* control);

// Calls OnSkinChange of every object in the list and sends QV_GetSkinChangeMessage to its window. Objects
// that enter or leave meanwhile are harmless.
void BroadcastSkinChange();

} // namespace _qv_commonctrl
