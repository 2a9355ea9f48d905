// CStatic: a text or a picture.
//
// All control classes are thin: each function is the control message of the same meaning, with the system's
// units and answers (indexes from 0, -1 for none). Create makes the control as a child; DDX_Control and
// SubclassDlgItem connect an object to one of a template.
#pragma once

#include "Wnd.h"

class AFXFRAME_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
  public:
    CStatic() = default;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff) {
        return CWnd::Create(L"STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
    }
    // The image setters return the former image, which the caller owns again.
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(
            SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETICON)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {} // for SS_OWNERDRAW

  protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
