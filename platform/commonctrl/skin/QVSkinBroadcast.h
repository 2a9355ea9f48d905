// QVSkinBroadcast.h: tells every skinned window that the skin has changed.
#pragma once

namespace _qv_commonctrl {

// Calls OnSkinChange of every attached CQVBaseCtrl and sends QV_GetSkinChangeMessage to its window. Objects
// that attach or leave meanwhile are harmless.
void QV_BroadcastSkinChange();

} // namespace _qv_commonctrl
