// ItemMessages.h: the owner-draw messages that list boxes and combo boxes have in common.
#pragma once

#include "afxwin.h"

// Hands a reflected owner-draw message to the control's virtual function. False when it is none; `result` is
// what the message answers.
template <class Control>
bool DispatchItemMessage(Control& control, UINT message, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
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
        return false;
    }
}
