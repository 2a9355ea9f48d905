// Message maps: the tables, the handler shapes and the macros that fill the tables.
//
//     class CMyWnd : public CWnd {
//     protected:
//         afx_msg void OnPaint();
//         afx_msg void OnApply();
//         DECLARE_MESSAGE_MAP()
//     };
//     BEGIN_MESSAGE_MAP(CMyWnd, CWnd)
//         ON_WM_PAINT()
//         ON_BN_CLICKED(IDC_APPLY, &CMyWnd::OnApply)
//     END_MESSAGE_MAP()
//
// Every macro checks the handler's type at compile time. One table serves all objects of a class; a message
// that a class's table does not hold is looked for in the table of its base class.
#pragma once

#include "ControlNotifications.h"
#include "Object.h"
#include "WindowMessages.h"

class CCmdTarget;
class CWnd;

typedef void (CCmdTarget::*AFX_PMSG)();
typedef void (CWnd::*AFX_PMSGW)();

struct AFX_MSGMAP_ENTRY {
    UINT nMessage; // message number; 0xC000: registered message, its number is at nSig
    UINT nCode;    // control code or notification code, 0 for others
    UINT nID;      // control or command id (first of a range), 0 for others
    UINT nLastID;  // last id of a range
    UINT_PTR nSig; // AfxSig_*: how the handler is called; or the address of a registered message's number
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;          // ends with an entry of AfxSig_end
};

// Added to a message that a parent sends back to the control that caused it.
constexpr UINT WM_REFLECT_BASE = 0xBC00;
// The number all WM_CTLCOLOR* messages have in message maps.
constexpr UINT WM_CTLCOLOR = 0x0019;
// The message-map number of registered messages.
constexpr UINT kAfxRegisteredMessage = 0xC000;
// The control code of commands (menu, accelerator), also that of a button's click.
constexpr int CN_COMMAND = 0;

// What a notification handler gets through OnCmdMsg.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Handler shapes: result, then arguments. w, l: the parameters; lo, hi: their halves; p: a point.
enum AfxSig : UINT_PTR {
    AfxSig_end = 0,
    // commands and notifications
    AfxSigCmd_v,        // void ()
    AfxSigCmd_b,        // BOOL (), FALSE: look further
    AfxSigCmd_RANGE,    // void (UINT id)
    AfxSigCmd_EX,       // BOOL (UINT id), FALSE: look further
    AfxSigNotify_v,     // void (NMHDR*, LRESULT*)
    AfxSigNotify_b,     // BOOL (NMHDR*, LRESULT*), FALSE: look further
    AfxSigNotify_RANGE, // void (UINT id, NMHDR*, LRESULT*)
    AfxSigNotify_EX,    // BOOL (UINT id, NMHDR*, LRESULT*), FALSE: look further
    // window messages
    AfxSig_firstWnd,
    AfxSig_l_wl = AfxSig_firstWnd, // LRESULT (WPARAM, LPARAM)
    AfxSig_v_v,                    // void ()
    AfxSig_b_v,                    // BOOL ()
    AfxSig_u_v,                    // UINT ()
    AfxSig_l_v,                    // LRESULT ()
    AfxSig_cursor_v,               // HCURSOR ()
    AfxSig_i_create,               // int (CREATESTRUCT*)
    AfxSig_b_create,               // BOOL (CREATESTRUCT*)
    AfxSig_b_D,                    // BOOL (CDC*)
    AfxSig_brush_DWu,              // HBRUSH (CDC*, CWnd*, UINT kind)
    AfxSig_brush_Du,               // HBRUSH (CDC*, UINT kind), reflected
    AfxSig_v_uii,                  // void (UINT w, int lo, int hi)
    AfxSig_v_ii,                   // void (int lo, int hi)
    AfxSig_v_uR,                   // void (UINT w, RECT*)
    AfxSig_v_minmax,               // void (MINMAXINFO*)
    AfxSig_v_pos,                  // void (WINDOWPOS*)
    AfxSig_v_bu,                   // void (BOOL w, UINT l)
    AfxSig_v_uWb,                  // void (UINT lo w, CWnd* l, BOOL hi w)
    AfxSig_v_bdw,                  // void (BOOL w, DWORD l)
    AfxSig_i_Wuu,                  // int (CWnd* w, UINT lo l, UINT hi l)
    AfxSig_b_Wuu,                  // BOOL (CWnd* w, UINT lo l, UINT hi l), FALSE: default processing
    AfxSig_b_b,                    // BOOL (BOOL w)
    AfxSig_v_b,                    // void (BOOL w)
    AfxSig_v_ncsize,               // void (BOOL w, NCCALCSIZE_PARAMS*)
    AfxSig_l_p,                    // LRESULT (CPoint l)
    AfxSig_v_up,                   // void (UINT w, CPoint l)
    AfxSig_b_wheel,                // BOOL (UINT lo w, short hi w, CPoint l), FALSE: default processing
    AfxSig_v_wheel,                // void (UINT lo w, short hi w, CPoint l)
    AfxSig_v_Ww,                   // void (CWnd* w)
    AfxSig_v_Wl,                   // void (CWnd* l)
    AfxSig_v_uuu,                  // void (UINT w, UINT lo l, UINT hi l)
    AfxSig_v_scroll,               // void (UINT lo w, UINT hi w, CScrollBar* l)
    AfxSig_v_scroll_reflect,       // void (UINT lo w, UINT hi w)
    AfxSig_v_timer,                // void (UINT_PTR w)
    AfxSig_v_Wp,                   // void (CWnd* w, CPoint l)
    AfxSig_b_help,                 // BOOL (HELPINFO*)
    AfxSig_v_idraw,                // void (int w, DRAWITEMSTRUCT*)
    AfxSig_v_imeasure,             // void (int w, MEASUREITEMSTRUCT*)
    AfxSig_v_idelete,              // void (int w, DELETEITEMSTRUCT*)
    AfxSig_i_icompare,             // int (int w, COMPAREITEMSTRUCT*)
    AfxSig_v_draw,                 // void (DRAWITEMSTRUCT*), reflected
    AfxSig_v_measure,              // void (MEASUREITEMSTRUCT*), reflected
    AfxSig_v_delete,               // void (DELETEITEMSTRUCT*), reflected
    AfxSig_i_compare,              // int (COMPAREITEMSTRUCT*), reflected
    AfxSig_v_ul,                   // void (UINT w, LPARAM)
    AfxSig_v_us,                   // void (UINT w, const wchar_t* l)
    AfxSig_v_Mub,                  // void (CMenu* w, UINT lo l, BOOL hi l)
    AfxSig_v_M,                    // void (CMenu* w)
    AfxSig_v_uuMenu,               // void (UINT lo w, UINT hi w, HMENU l)
    AfxSig_v_drop,                 // void (HDROP w)
    AfxSig_v_uW,                   // void (UINT w, CWnd* l)
    AfxSig_i_uLu,                  // int (UINT lo w, CListBox* l, UINT hi w)
    AfxSig_v_istyle,               // void (int w, STYLESTRUCT*)
    AfxSig_b_Wcopy,                // BOOL (CWnd* w, COPYDATASTRUCT*)
    AfxSig_count
};

#define DECLARE_MESSAGE_MAP()                                                                                \
  protected:                                                                                                 \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    const AFX_MSGMAP* GetMessageMap() const override;

// Handlers are kept as pointers of one common type and cast back to their checked type before each call.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wcast-function-type\"")                \
        const AFX_MSGMAP*                                                                                    \
        theClass::GetMessageMap() const {                                                                    \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                 \
        typedef theClass ThisClass [[maybe_unused]];                                                         \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                                      \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }                                                                                                        \
    _Pragma("GCC diagnostic pop")

// One table row of a window message whose handler has the given result and arguments.
#define AFX_ON_WND_(message, sig, result, args, handler)                                                     \
    {message, 0, 0, 0, sig, (AFX_PMSG)(static_cast<result(CWnd::*) args>(handler))},
#define AFX_ON_CMD_(message, code, first, last, sig, result, args, handler)                                  \
    {message,       (UINT)(WORD)(int)(code),                                                                 \
     (UINT)(first), (UINT)(last),                                                                            \
     sig,           (AFX_PMSG)(static_cast<result(CCmdTarget::*) args>(handler))},
#define AFX_ON_NOTIFY_(message, code, first, last, sig, result, args, handler)                               \
    {message,       (UINT)(int)(code),                                                                       \
     (UINT)(first), (UINT)(last),                                                                            \
     sig,           (AFX_PMSG)(static_cast<result(CCmdTarget::*) args>(handler))},

#define ON_MESSAGE(message, memberFxn) AFX_ON_WND_(message, AfxSig_l_wl, LRESULT, (WPARAM, LPARAM), memberFxn)
// nMessageVariable: a static UINT that holds the number RegisterWindowMessage gave.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    {kAfxRegisteredMessage,                                                                                  \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     (UINT_PTR)(&nMessageVariable),                                                                          \
     (AFX_PMSG)(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},

#define ON_COMMAND(id, memberFxn)                                                                            \
    AFX_ON_CMD_(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void, (), memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                                         \
    AFX_ON_CMD_(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_EX, BOOL, (UINT), memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    AFX_ON_CMD_(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, void, (UINT), memberFxn)
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    AFX_ON_CMD_(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, void, (), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    AFX_ON_CMD_(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_RANGE, void, (UINT), memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    AFX_ON_CMD_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigCmd_v, void, (), memberFxn)
// The handler answers FALSE to let the parent see the notification as well.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    AFX_ON_CMD_(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigCmd_b, BOOL, (), memberFxn)

#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    AFX_ON_NOTIFY_(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, void, (NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                             \
    AFX_ON_NOTIFY_(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_EX, BOOL, (UINT, NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    AFX_ON_NOTIFY_(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_RANGE, void, (UINT, NMHDR*, LRESULT*),   \
                   memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    AFX_ON_NOTIFY_(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_EX, BOOL, (UINT, NMHDR*, LRESULT*),      \
                   memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    AFX_ON_NOTIFY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigNotify_v, void, (NMHDR*, LRESULT*), \
                   memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    AFX_ON_NOTIFY_(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigNotify_b, BOOL, (NMHDR*, LRESULT*), \
                   memberFxn)
