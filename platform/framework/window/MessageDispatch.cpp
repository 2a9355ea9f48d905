// Calls the handlers of window messages: one small function a handler shape takes the parameters apart.
#include "MessageCache.h"
#include "afxctl_list.h"
#include "afxctl_std.h"
#include "afxwnd_.h"

#include <array>
#include <type_traits>

// Handlers are stored under one common type; the row's shape names the type they are called by.
#pragma GCC diagnostic ignored "-Wcast-function-type"

namespace {

struct Call {
    CWnd* wnd;
    AFX_PMSG pfn;
    WPARAM w;
    LPARAM l;
    BOOL handled;
};
using Caller = LRESULT (*)(Call&);

// ---- Where an argument comes from.
template <class T> T W(const Call& call) {
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(call.w);
    else
        return static_cast<T>(call.w);
}
template <class T> T L(const Call& call) {
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(call.l);
    else
        return static_cast<T>(call.l);
}
template <class T> T LoW(const Call& call) {
    return static_cast<T>(LOWORD(call.w));
}
template <class T> T HiW(const Call& call) {
    return static_cast<T>(HIWORD(call.w));
}
template <class T> T LoL(const Call& call) {
    return static_cast<T>(LOWORD(call.l));
}
template <class T> T HiL(const Call& call) {
    return static_cast<T>(HIWORD(call.l));
}
int SignedLoL(const Call& call) {
    return static_cast<short>(LOWORD(call.l));
}
int SignedHiL(const Call& call) {
    return static_cast<short>(HIWORD(call.l));
}
CPoint PointL(const Call& call) {
    return CPoint(SignedLoL(call), SignedHiL(call));
}
CWnd* WndW(const Call& call) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(call.w));
}
CWnd* WndL(const Call& call) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(call.l));
}
CMenu* MenuW(const Call& call) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(call.w));
}
CScrollBar* BarL(const Call& call) {
    return static_cast<CScrollBar*>(WndL(call));
}
CListBox* ListL(const Call& call) {
    return static_cast<CListBox*>(WndL(call));
}

template <class R> LRESULT AsResult(R value) {
    if constexpr (std::is_pointer_v<R>)
        return reinterpret_cast<LRESULT>(value);
    else
        return static_cast<LRESULT>(value);
}

template <class R, class... A> LRESULT CallAs(const Call& call, A... arguments) {
    const auto handler = reinterpret_cast<R (CWnd::*)(A...)>(reinterpret_cast<AFX_PMSGW>(call.pfn));
    if constexpr (std::is_void_v<R>) {
        (call.wnd->*handler)(arguments...);
        return 0;
    } else {
        return AsResult((call.wnd->*handler)(arguments...));
    }
}

template <class R, auto... Get> LRESULT Unpack(Call& call) {
    return CallAs<R>(call, Get(call)...);
}

// A handler that answers FALSE leaves the message to default processing.
template <class R, auto... Get> LRESULT UnpackOrDefault(Call& call) {
    const LRESULT result = CallAs<R>(call, Get(call)...);
    call.handled = result != 0;
    return result;
}

// Lends the system's device context to an object for the length of a call, without owning it. An object that
// somebody attached to the context already is used as it is.
class LentDC {
  public:
    explicit LentDC(WPARAM hDC) : m_pKnown(CDC::FromHandlePermanent(reinterpret_cast<HDC>(hDC))) {
        if (!m_pKnown)
            m_dc.Attach(reinterpret_cast<HDC>(hDC));
    }
    ~LentDC() {
        if (!m_pKnown)
            m_dc.Detach();
    }
    LentDC(const LentDC&) = delete;
    LentDC& operator=(const LentDC&) = delete;
    CDC* Get() { return m_pKnown ? m_pKnown : &m_dc; }

  private:
    CDC* m_pKnown;
    CDC m_dc;
};

LRESULT UnpackErase(Call& call) {
    LentDC dc(call.w);
    return CallAs<BOOL>(call, dc.Get());
}

UINT ColourKind() {
    return CWnd::GetCurrentMessage()->message - WM_CTLCOLORMSGBOX;
}

LRESULT UnpackColour(Call& call) {
    LentDC dc(call.w);
    const LRESULT brush = CallAs<HBRUSH>(call, dc.Get(), WndL(call), ColourKind());
    call.handled = brush != 0;
    return brush;
}

LRESULT UnpackReflectedColour(Call& call) {
    LentDC dc(call.w);
    const LRESULT brush = CallAs<HBRUSH>(call, dc.Get(), ColourKind());
    call.handled = brush != 0;
    return brush;
}

using Table = std::array<Caller, AfxSig_count>;

constexpr void AddPlainShapes(Table& t) {
    t[AfxSig_l_wl] = &Unpack<LRESULT, W<WPARAM>, L<LPARAM>>;
    t[AfxSig_v_v] = &Unpack<void>;
    t[AfxSig_b_v] = &Unpack<BOOL>;
    t[AfxSig_u_v] = &Unpack<UINT>;
    t[AfxSig_l_v] = &Unpack<LRESULT>;
    t[AfxSig_cursor_v] = &Unpack<HCURSOR>;
    t[AfxSig_b_b] = &Unpack<BOOL, W<BOOL>>;
    t[AfxSig_v_b] = &Unpack<void, W<BOOL>>;
    t[AfxSig_v_bu] = &Unpack<void, W<BOOL>, L<UINT>>;
    t[AfxSig_v_bdw] = &Unpack<void, W<BOOL>, L<DWORD>>;
    t[AfxSig_v_uii] = &Unpack<void, W<UINT>, LoL<int>, HiL<int>>;
    t[AfxSig_v_ii] = &Unpack<void, SignedLoL, SignedHiL>;
    t[AfxSig_l_p] = &Unpack<LRESULT, PointL>;
    t[AfxSig_v_up] = &Unpack<void, W<UINT>, PointL>;
    t[AfxSig_b_wheel] = &UnpackOrDefault<BOOL, LoW<UINT>, HiW<short>, PointL>;
    t[AfxSig_v_wheel] = &Unpack<void, LoW<UINT>, HiW<short>, PointL>;
    t[AfxSig_v_uuu] = &Unpack<void, W<UINT>, LoL<UINT>, HiL<UINT>>;
    t[AfxSig_v_scroll_reflect] = &Unpack<void, LoW<UINT>, HiW<UINT>>;
    t[AfxSig_v_timer] = &Unpack<void, W<UINT_PTR>>;
    t[AfxSig_v_ul] = &Unpack<void, W<UINT>, L<LPARAM>>;
    t[AfxSig_v_drop] = &Unpack<void, W<HDROP>>;
}

constexpr void AddRecordShapes(Table& t) {
    t[AfxSig_i_create] = &Unpack<int, L<LPCREATESTRUCT>>;
    t[AfxSig_b_create] = &Unpack<BOOL, L<LPCREATESTRUCT>>;
    t[AfxSig_v_uR] = &Unpack<void, W<UINT>, L<LPRECT>>;
    t[AfxSig_v_minmax] = &Unpack<void, L<MINMAXINFO*>>;
    t[AfxSig_v_pos] = &Unpack<void, L<WINDOWPOS*>>;
    t[AfxSig_v_ncsize] = &Unpack<void, W<BOOL>, L<NCCALCSIZE_PARAMS*>>;
    t[AfxSig_b_help] = &Unpack<BOOL, L<HELPINFO*>>;
    t[AfxSig_v_idraw] = &Unpack<void, W<int>, L<LPDRAWITEMSTRUCT>>;
    t[AfxSig_v_imeasure] = &Unpack<void, W<int>, L<LPMEASUREITEMSTRUCT>>;
    t[AfxSig_v_idelete] = &Unpack<void, W<int>, L<LPDELETEITEMSTRUCT>>;
    t[AfxSig_i_icompare] = &Unpack<int, W<int>, L<LPCOMPAREITEMSTRUCT>>;
    t[AfxSig_v_draw] = &Unpack<void, L<LPDRAWITEMSTRUCT>>;
    t[AfxSig_v_measure] = &Unpack<void, L<LPMEASUREITEMSTRUCT>>;
    t[AfxSig_v_delete] = &Unpack<void, L<LPDELETEITEMSTRUCT>>;
    t[AfxSig_i_compare] = &Unpack<int, L<LPCOMPAREITEMSTRUCT>>;
    t[AfxSig_v_us] = &Unpack<void, W<UINT>, L<LPCTSTR>>;
    t[AfxSig_v_istyle] = &Unpack<void, W<int>, L<LPSTYLESTRUCT>>;
}

constexpr void AddObjectShapes(Table& t) {
    t[AfxSig_b_D] = &UnpackErase;
    t[AfxSig_brush_DWu] = &UnpackColour;
    t[AfxSig_brush_Du] = &UnpackReflectedColour;
    t[AfxSig_v_uWb] = &Unpack<void, LoW<UINT>, WndL, HiW<BOOL>>;
    t[AfxSig_i_Wuu] = &Unpack<int, WndW, LoL<UINT>, HiL<UINT>>;
    t[AfxSig_b_Wuu] = &Unpack<BOOL, WndW, LoL<UINT>, HiL<UINT>>;
    t[AfxSig_v_Ww] = &Unpack<void, WndW>;
    t[AfxSig_v_Wl] = &Unpack<void, WndL>;
    t[AfxSig_v_scroll] = &Unpack<void, LoW<UINT>, HiW<UINT>, BarL>;
    t[AfxSig_v_Wp] = &Unpack<void, WndW, PointL>;
    t[AfxSig_v_Mub] = &Unpack<void, MenuW, LoL<UINT>, HiL<BOOL>>;
    t[AfxSig_v_M] = &Unpack<void, MenuW>;
    t[AfxSig_v_uuMenu] = &Unpack<void, LoW<UINT>, HiW<UINT>, L<HMENU>>;
    t[AfxSig_v_uW] = &Unpack<void, W<UINT>, WndL>;
    t[AfxSig_i_uLu] = &Unpack<int, LoW<UINT>, ListL, HiW<UINT>>;
    t[AfxSig_b_Wcopy] = &Unpack<BOOL, WndW, L<COPYDATASTRUCT*>>;
}

constexpr Table MakeTable() {
    Table table{};
    AddPlainShapes(table);
    AddRecordShapes(table);
    AddObjectShapes(table);
    return table;
}

constexpr Table kCallers = MakeTable();

constexpr bool IsComplete(const Table& table) {
    for (size_t sig = AfxSig_firstWnd; sig < AfxSig_count; ++sig)
        if (!table[sig])
            return false;
    return true;
}
static_assert(IsComplete(kCallers), "a handler shape has no caller");

} // namespace

BOOL AfxDispatchMessage(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam,
                        LRESULT* pResult) {
    Call call = {pWnd, entry.pfn, wParam, lParam, TRUE};
    const bool isRegistered = entry.nMessage == kAfxRegisteredMessage;
    *pResult = kCallers[isRegistered ? static_cast<size_t>(AfxSig_l_wl) : entry.nSig](call);
    return call.handled;
}
