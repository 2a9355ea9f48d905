// Setting up the controls of the safe-colour dialog: their texts, edits and choices.
#pragma once

#include <QVExtraCtrl.h>

namespace _qv_commonwnd {

// The caption and the texts of all controls, from the dictionary.
void ShowSafeColorTexts(CWnd& dialog);

// A number edit in the place of a hidden edit of the template, and behind it in the tab order. The caller
// owns it.
_qv_extractrl::CQVNumberEditEx* CreateNumberEdit(CWnd& dialog, int placeholder, UINT id);

// Destroys window and object of an edit and clears the pointer.
void DestroyNumberEdit(_qv_extractrl::CQVNumberEditEx*& edit);

// Fills a unit combo with the names of the units (QVSafeColorUnit is the index) and selects one.
void FillUnits(CWnd& combo, int selection);

} // namespace _qv_commonwnd
