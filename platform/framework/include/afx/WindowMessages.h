// Message-map macros for window messages; part of MessageMap.h. Each names its handler: ON_WM_PAINT() means
// ThisClass::OnPaint, of the type given here.
#pragma once

#define ON_WM_CREATE() AFX_ON_WND_(WM_CREATE, AfxSig_i_create, int, (LPCREATESTRUCT), &ThisClass::OnCreate)
#define ON_WM_NCCREATE()                                                                                     \
    AFX_ON_WND_(WM_NCCREATE, AfxSig_b_create, BOOL, (LPCREATESTRUCT), &ThisClass::OnNcCreate)
#define ON_WM_DESTROY() AFX_ON_WND_(WM_DESTROY, AfxSig_v_v, void, (), &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_ON_WND_(WM_NCDESTROY, AfxSig_v_v, void, (), &ThisClass::OnNcDestroy)
#define ON_WM_CLOSE() AFX_ON_WND_(WM_CLOSE, AfxSig_v_v, void, (), &ThisClass::OnClose)
#define ON_WM_QUERYENDSESSION()                                                                              \
    AFX_ON_WND_(WM_QUERYENDSESSION, AfxSig_b_v, BOOL, (), &ThisClass::OnQueryEndSession)
#define ON_WM_ENDSESSION() AFX_ON_WND_(WM_ENDSESSION, AfxSig_v_b, void, (BOOL), &ThisClass::OnEndSession)
#define ON_WM_PAINT() AFX_ON_WND_(WM_PAINT, AfxSig_v_v, void, (), &ThisClass::OnPaint)
#define ON_WM_ERASEBKGND() AFX_ON_WND_(WM_ERASEBKGND, AfxSig_b_D, BOOL, (CDC*), &ThisClass::OnEraseBkgnd)
#define ON_WM_CTLCOLOR()                                                                                     \
    AFX_ON_WND_(WM_CTLCOLOR, AfxSig_brush_DWu, HBRUSH, (CDC*, CWnd*, UINT), &ThisClass::OnCtlColor)
#define ON_WM_NCPAINT() AFX_ON_WND_(WM_NCPAINT, AfxSig_v_v, void, (), &ThisClass::OnNcPaint)
#define ON_WM_NCCALCSIZE()                                                                                   \
    AFX_ON_WND_(WM_NCCALCSIZE, AfxSig_v_ncsize, void, (BOOL, NCCALCSIZE_PARAMS*), &ThisClass::OnNcCalcSize)
#define ON_WM_NCHITTEST() AFX_ON_WND_(WM_NCHITTEST, AfxSig_l_p, LRESULT, (CPoint), &ThisClass::OnNcHitTest)
#define ON_WM_NCACTIVATE() AFX_ON_WND_(WM_NCACTIVATE, AfxSig_b_b, BOOL, (BOOL), &ThisClass::OnNcActivate)
#define ON_WM_NCLBUTTONDOWN()                                                                                \
    AFX_ON_WND_(WM_NCLBUTTONDOWN, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP()                                                                                  \
    AFX_ON_WND_(WM_NCLBUTTONUP, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK()                                                                              \
    AFX_ON_WND_(WM_NCLBUTTONDBLCLK, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN()                                                                                \
    AFX_ON_WND_(WM_NCRBUTTONDOWN, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP()                                                                                  \
    AFX_ON_WND_(WM_NCRBUTTONUP, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcRButtonUp)
#define ON_WM_NCMOUSEMOVE()                                                                                  \
    AFX_ON_WND_(WM_NCMOUSEMOVE, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnNcMouseMove)
#define ON_WM_NCMOUSELEAVE() AFX_ON_WND_(WM_NCMOUSELEAVE, AfxSig_v_v, void, (), &ThisClass::OnNcMouseLeave)
#define ON_WM_SIZE() AFX_ON_WND_(WM_SIZE, AfxSig_v_uii, void, (UINT, int, int), &ThisClass::OnSize)
#define ON_WM_SIZING() AFX_ON_WND_(WM_SIZING, AfxSig_v_uR, void, (UINT, LPRECT), &ThisClass::OnSizing)
#define ON_WM_MOVE() AFX_ON_WND_(WM_MOVE, AfxSig_v_ii, void, (int, int), &ThisClass::OnMove)
#define ON_WM_MOVING() AFX_ON_WND_(WM_MOVING, AfxSig_v_uR, void, (UINT, LPRECT), &ThisClass::OnMoving)
#define ON_WM_GETMINMAXINFO()                                                                                \
    AFX_ON_WND_(WM_GETMINMAXINFO, AfxSig_v_minmax, void, (MINMAXINFO*), &ThisClass::OnGetMinMaxInfo)
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_ON_WND_(WM_WINDOWPOSCHANGING, AfxSig_v_pos, void, (WINDOWPOS*), &ThisClass::OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    AFX_ON_WND_(WM_WINDOWPOSCHANGED, AfxSig_v_pos, void, (WINDOWPOS*), &ThisClass::OnWindowPosChanged)
#define ON_WM_ENTERSIZEMOVE() AFX_ON_WND_(WM_ENTERSIZEMOVE, AfxSig_v_v, void, (), &ThisClass::OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_ON_WND_(WM_EXITSIZEMOVE, AfxSig_v_v, void, (), &ThisClass::OnExitSizeMove)
#define ON_WM_SHOWWINDOW()                                                                                   \
    AFX_ON_WND_(WM_SHOWWINDOW, AfxSig_v_bu, void, (BOOL, UINT), &ThisClass::OnShowWindow)
#define ON_WM_ACTIVATE()                                                                                     \
    AFX_ON_WND_(WM_ACTIVATE, AfxSig_v_uWb, void, (UINT, CWnd*, BOOL), &ThisClass::OnActivate)
#define ON_WM_ACTIVATEAPP()                                                                                  \
    AFX_ON_WND_(WM_ACTIVATEAPP, AfxSig_v_bdw, void, (BOOL, DWORD), &ThisClass::OnActivateApp)
#define ON_WM_MOUSEACTIVATE()                                                                                \
    AFX_ON_WND_(WM_MOUSEACTIVATE, AfxSig_i_Wuu, int, (CWnd*, UINT, UINT), &ThisClass::OnMouseActivate)
#define ON_WM_SETFOCUS() AFX_ON_WND_(WM_SETFOCUS, AfxSig_v_Ww, void, (CWnd*), &ThisClass::OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_ON_WND_(WM_KILLFOCUS, AfxSig_v_Ww, void, (CWnd*), &ThisClass::OnKillFocus)
#define ON_WM_CAPTURECHANGED()                                                                               \
    AFX_ON_WND_(WM_CAPTURECHANGED, AfxSig_v_Wl, void, (CWnd*), &ThisClass::OnCaptureChanged)
#define ON_WM_CANCELMODE() AFX_ON_WND_(WM_CANCELMODE, AfxSig_v_v, void, (), &ThisClass::OnCancelMode)
#define ON_WM_ENABLE() AFX_ON_WND_(WM_ENABLE, AfxSig_v_b, void, (BOOL), &ThisClass::OnEnable)
#define ON_WM_ENTERIDLE() AFX_ON_WND_(WM_ENTERIDLE, AfxSig_v_uW, void, (UINT, CWnd*), &ThisClass::OnEnterIdle)
#define ON_WM_GETDLGCODE() AFX_ON_WND_(WM_GETDLGCODE, AfxSig_u_v, UINT, (), &ThisClass::OnGetDlgCode)
#define ON_WM_KEYDOWN() AFX_ON_WND_(WM_KEYDOWN, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnKeyDown)
#define ON_WM_KEYUP() AFX_ON_WND_(WM_KEYUP, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnKeyUp)
#define ON_WM_CHAR() AFX_ON_WND_(WM_CHAR, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnChar)
#define ON_WM_DEADCHAR()                                                                                     \
    AFX_ON_WND_(WM_DEADCHAR, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnDeadChar)
#define ON_WM_SYSKEYDOWN()                                                                                   \
    AFX_ON_WND_(WM_SYSKEYDOWN, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnSysKeyDown)
#define ON_WM_SYSKEYUP()                                                                                     \
    AFX_ON_WND_(WM_SYSKEYUP, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_ON_WND_(WM_SYSCHAR, AfxSig_v_uuu, void, (UINT, UINT, UINT), &ThisClass::OnSysChar)
#define ON_WM_MOUSEMOVE()                                                                                    \
    AFX_ON_WND_(WM_MOUSEMOVE, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnMouseMove)
#define ON_WM_LBUTTONDOWN()                                                                                  \
    AFX_ON_WND_(WM_LBUTTONDOWN, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnLButtonDown)
#define ON_WM_LBUTTONUP()                                                                                    \
    AFX_ON_WND_(WM_LBUTTONUP, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK()                                                                                \
    AFX_ON_WND_(WM_LBUTTONDBLCLK, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnLButtonDblClk)
#define ON_WM_MBUTTONDOWN()                                                                                  \
    AFX_ON_WND_(WM_MBUTTONDOWN, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnMButtonDown)
#define ON_WM_MBUTTONUP()                                                                                    \
    AFX_ON_WND_(WM_MBUTTONUP, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK()                                                                                \
    AFX_ON_WND_(WM_MBUTTONDBLCLK, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnMButtonDblClk)
#define ON_WM_RBUTTONDOWN()                                                                                  \
    AFX_ON_WND_(WM_RBUTTONDOWN, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnRButtonDown)
#define ON_WM_RBUTTONUP()                                                                                    \
    AFX_ON_WND_(WM_RBUTTONUP, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK()                                                                                \
    AFX_ON_WND_(WM_RBUTTONDBLCLK, AfxSig_v_up, void, (UINT, CPoint), &ThisClass::OnRButtonDblClk)
#define ON_WM_MOUSEWHEEL()                                                                                   \
    AFX_ON_WND_(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL, (UINT, short, CPoint), &ThisClass::OnMouseWheel)
#define ON_WM_MOUSEHWHEEL()                                                                                  \
    AFX_ON_WND_(WM_MOUSEHWHEEL, AfxSig_v_wheel, void, (UINT, short, CPoint), &ThisClass::OnMouseHWheel)
#define ON_WM_MOUSELEAVE() AFX_ON_WND_(WM_MOUSELEAVE, AfxSig_v_v, void, (), &ThisClass::OnMouseLeave)
#define ON_WM_SETCURSOR()                                                                                    \
    AFX_ON_WND_(WM_SETCURSOR, AfxSig_b_Wuu, BOOL, (CWnd*, UINT, UINT), &ThisClass::OnSetCursor)
#define ON_WM_HSCROLL()                                                                                      \
    AFX_ON_WND_(WM_HSCROLL, AfxSig_v_scroll, void, (UINT, UINT, CScrollBar*), &ThisClass::OnHScroll)
#define ON_WM_VSCROLL()                                                                                      \
    AFX_ON_WND_(WM_VSCROLL, AfxSig_v_scroll, void, (UINT, UINT, CScrollBar*), &ThisClass::OnVScroll)
#define ON_WM_TIMER() AFX_ON_WND_(WM_TIMER, AfxSig_v_timer, void, (UINT_PTR), &ThisClass::OnTimer)
#define ON_WM_CONTEXTMENU()                                                                                  \
    AFX_ON_WND_(WM_CONTEXTMENU, AfxSig_v_Wp, void, (CWnd*, CPoint), &ThisClass::OnContextMenu)
#define ON_WM_DRAWITEM()                                                                                     \
    AFX_ON_WND_(WM_DRAWITEM, AfxSig_v_idraw, void, (int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_ON_WND_(WM_MEASUREITEM, AfxSig_v_imeasure, void, (int, LPMEASUREITEMSTRUCT),                         \
                &ThisClass::OnMeasureItem)
#define ON_WM_DELETEITEM()                                                                                   \
    AFX_ON_WND_(WM_DELETEITEM, AfxSig_v_idelete, void, (int, LPDELETEITEMSTRUCT), &ThisClass::OnDeleteItem)
#define ON_WM_COMPAREITEM()                                                                                  \
    AFX_ON_WND_(WM_COMPAREITEM, AfxSig_i_icompare, int, (int, LPCOMPAREITEMSTRUCT), &ThisClass::OnCompareItem)
#define ON_WM_CHARTOITEM()                                                                                   \
    AFX_ON_WND_(WM_CHARTOITEM, AfxSig_i_uLu, int, (UINT, CListBox*, UINT), &ThisClass::OnCharToItem)
#define ON_WM_VKEYTOITEM()                                                                                   \
    AFX_ON_WND_(WM_VKEYTOITEM, AfxSig_i_uLu, int, (UINT, CListBox*, UINT), &ThisClass::OnVKeyToItem)
#define ON_WM_SYSCOMMAND()                                                                                   \
    AFX_ON_WND_(WM_SYSCOMMAND, AfxSig_v_ul, void, (UINT, LPARAM), &ThisClass::OnSysCommand)
#define ON_WM_PARENTNOTIFY()                                                                                 \
    AFX_ON_WND_(WM_PARENTNOTIFY, AfxSig_v_ul, void, (UINT, LPARAM), &ThisClass::OnParentNotify)
#define ON_WM_SETTINGCHANGE()                                                                                \
    AFX_ON_WND_(WM_SETTINGCHANGE, AfxSig_v_us, void, (UINT, LPCTSTR), &ThisClass::OnSettingChange)
#define ON_WM_SYSCOLORCHANGE()                                                                               \
    AFX_ON_WND_(WM_SYSCOLORCHANGE, AfxSig_v_v, void, (), &ThisClass::OnSysColorChange)
#define ON_WM_THEMECHANGED() AFX_ON_WND_(WM_THEMECHANGED, AfxSig_l_v, LRESULT, (), &ThisClass::OnThemeChanged)
#define ON_WM_STYLECHANGED()                                                                                 \
    AFX_ON_WND_(WM_STYLECHANGED, AfxSig_v_istyle, void, (int, LPSTYLESTRUCT), &ThisClass::OnStyleChanged)
#define ON_WM_STYLECHANGING()                                                                                \
    AFX_ON_WND_(WM_STYLECHANGING, AfxSig_v_istyle, void, (int, LPSTYLESTRUCT), &ThisClass::OnStyleChanging)
#define ON_WM_INITMENU() AFX_ON_WND_(WM_INITMENU, AfxSig_v_M, void, (CMenu*), &ThisClass::OnInitMenu)
#define ON_WM_INITMENUPOPUP()                                                                                \
    AFX_ON_WND_(WM_INITMENUPOPUP, AfxSig_v_Mub, void, (CMenu*, UINT, BOOL), &ThisClass::OnInitMenuPopup)
#define ON_WM_MENUSELECT()                                                                                   \
    AFX_ON_WND_(WM_MENUSELECT, AfxSig_v_uuMenu, void, (UINT, UINT, HMENU), &ThisClass::OnMenuSelect)
#define ON_WM_DROPFILES() AFX_ON_WND_(WM_DROPFILES, AfxSig_v_drop, void, (HDROP), &ThisClass::OnDropFiles)
#define ON_WM_COPYDATA()                                                                                     \
    AFX_ON_WND_(WM_COPYDATA, AfxSig_b_Wcopy, BOOL, (CWnd*, COPYDATASTRUCT*), &ThisClass::OnCopyData)
#define ON_WM_QUERYDRAGICON()                                                                                \
    AFX_ON_WND_(WM_QUERYDRAGICON, AfxSig_cursor_v, HCURSOR, (), &ThisClass::OnQueryDragIcon)
#define ON_WM_HELPINFO() AFX_ON_WND_(WM_HELP, AfxSig_b_help, BOOL, (HELPINFO*), &ThisClass::OnHelpInfo)

// The same messages as the control gets them back from its parent.
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_ON_WND_(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_brush_Du, HBRUSH, (CDC*, UINT), &ThisClass::CtlColor)
#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    AFX_ON_WND_(WM_DRAWITEM + WM_REFLECT_BASE, AfxSig_v_draw, void, (LPDRAWITEMSTRUCT), &ThisClass::DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_ON_WND_(WM_MEASUREITEM + WM_REFLECT_BASE, AfxSig_v_measure, void, (LPMEASUREITEMSTRUCT),             \
                &ThisClass::MeasureItem)
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    AFX_ON_WND_(WM_DELETEITEM + WM_REFLECT_BASE, AfxSig_v_delete, void, (LPDELETEITEMSTRUCT),                \
                &ThisClass::DeleteItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    AFX_ON_WND_(WM_COMPAREITEM + WM_REFLECT_BASE, AfxSig_i_compare, int, (LPCOMPAREITEMSTRUCT),              \
                &ThisClass::CompareItem)
#define ON_WM_HSCROLL_REFLECT()                                                                              \
    AFX_ON_WND_(WM_HSCROLL + WM_REFLECT_BASE, AfxSig_v_scroll_reflect, void, (UINT, UINT),                   \
                &ThisClass::HScroll)
#define ON_WM_VSCROLL_REFLECT()                                                                              \
    AFX_ON_WND_(WM_VSCROLL + WM_REFLECT_BASE, AfxSig_v_scroll_reflect, void, (UINT, UINT),                   \
                &ThisClass::VScroll)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    AFX_ON_WND_(WM_PARENTNOTIFY + WM_REFLECT_BASE, AfxSig_v_ul, void, (UINT, LPARAM),                        \
                &ThisClass::ParentNotify)
