// The owner-draw messages of controls as calls of their virtual functions.
#pragma once

#include <windows.h>

// Hands a reflected WM_DRAWITEM to the control's virtual function. FALSE when the message is another one.
template <class Control> BOOL DispatchDrawItem(Control& control, UINT message, LPARAM lParam) {
    if (message != WM_DRAWITEM)
        return FALSE;
    control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// Hands a reflected owner-draw message of a list or combo box to the control's virtual function. False when
// it is none; `result` is what the message answers.
template <class Control>
bool DispatchItemMessage(Control& control, UINT message, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        result = control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return DispatchDrawItem(control, message, lParam) != FALSE;
    }
}
