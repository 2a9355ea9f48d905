// Calls the handlers of window messages: one small function a handler shape takes the parameters apart.
#include "Dispatch.h"
#include "afx/ListBox.h"
#include "afx/ScrollBar.h"

#include <algorithm>
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

// The callers by handler shape. Which shapes have one is kept beside them: not every compiler option leaves
// the address of a function a constant.
class Table {
  public:
    constexpr void Add(AfxSig sig, Caller caller) {
        m_callers[sig] = caller;
        m_isKnown[sig] = true;
    }
    constexpr bool IsComplete() const {
        return std::all_of(m_isKnown.begin() + AfxSig_firstWnd, m_isKnown.end(),
                           [](bool isKnown) { return isKnown; });
    }
    Caller operator[](size_t sig) const { return m_callers[sig]; }

  private:
    std::array<Caller, AfxSig_count> m_callers{};
    std::array<bool, AfxSig_count> m_isKnown{};
};

constexpr void AddPlainShapes(Table& t) {
    t.Add(AfxSig_l_wl, &Unpack<LRESULT, W<WPARAM>, L<LPARAM>>);
    t.Add(AfxSig_v_v, &Unpack<void>);
    t.Add(AfxSig_b_v, &Unpack<BOOL>);
    t.Add(AfxSig_u_v, &Unpack<UINT>);
    t.Add(AfxSig_l_v, &Unpack<LRESULT>);
    t.Add(AfxSig_cursor_v, &Unpack<HCURSOR>);
    t.Add(AfxSig_b_b, &Unpack<BOOL, W<BOOL>>);
    t.Add(AfxSig_v_b, &Unpack<void, W<BOOL>>);
    t.Add(AfxSig_v_bu, &Unpack<void, W<BOOL>, L<UINT>>);
    t.Add(AfxSig_v_bdw, &Unpack<void, W<BOOL>, L<DWORD>>);
    t.Add(AfxSig_v_uii, &Unpack<void, W<UINT>, LoL<int>, HiL<int>>);
    t.Add(AfxSig_v_ii, &Unpack<void, SignedLoL, SignedHiL>);
    t.Add(AfxSig_l_p, &Unpack<LRESULT, PointL>);
    t.Add(AfxSig_v_up, &Unpack<void, W<UINT>, PointL>);
    t.Add(AfxSig_b_wheel, &UnpackOrDefault<BOOL, LoW<UINT>, HiW<short>, PointL>);
    t.Add(AfxSig_v_wheel, &Unpack<void, LoW<UINT>, HiW<short>, PointL>);
    t.Add(AfxSig_v_uuu, &Unpack<void, W<UINT>, LoL<UINT>, HiL<UINT>>);
    t.Add(AfxSig_v_scroll_reflect, &Unpack<void, LoW<UINT>, HiW<UINT>>);
    t.Add(AfxSig_v_timer, &Unpack<void, W<UINT_PTR>>);
    t.Add(AfxSig_v_ul, &Unpack<void, W<UINT>, L<LPARAM>>);
    t.Add(AfxSig_v_drop, &Unpack<void, W<HDROP>>);
}

constexpr void AddRecordShapes(Table& t) {
    t.Add(AfxSig_i_create, &Unpack<int, L<LPCREATESTRUCT>>);
    t.Add(AfxSig_b_create, &Unpack<BOOL, L<LPCREATESTRUCT>>);
    t.Add(AfxSig_v_uR, &Unpack<void, W<UINT>, L<LPRECT>>);
    t.Add(AfxSig_v_minmax, &Unpack<void, L<MINMAXINFO*>>);
    t.Add(AfxSig_v_pos, &Unpack<void, L<WINDOWPOS*>>);
    t.Add(AfxSig_v_ncsize, &Unpack<void, W<BOOL>, L<NCCALCSIZE_PARAMS*>>);
    t.Add(AfxSig_b_help, &Unpack<BOOL, L<HELPINFO*>>);
    t.Add(AfxSig_v_idraw, &Unpack<void, W<int>, L<LPDRAWITEMSTRUCT>>);
    t.Add(AfxSig_v_imeasure, &Unpack<void, W<int>, L<LPMEASUREITEMSTRUCT>>);
    t.Add(AfxSig_v_idelete, &Unpack<void, W<int>, L<LPDELETEITEMSTRUCT>>);
    t.Add(AfxSig_i_icompare, &Unpack<int, W<int>, L<LPCOMPAREITEMSTRUCT>>);
    t.Add(AfxSig_v_draw, &Unpack<void, L<LPDRAWITEMSTRUCT>>);
    t.Add(AfxSig_v_measure, &Unpack<void, L<LPMEASUREITEMSTRUCT>>);
    t.Add(AfxSig_v_delete, &Unpack<void, L<LPDELETEITEMSTRUCT>>);
    t.Add(AfxSig_i_compare, &Unpack<int, L<LPCOMPAREITEMSTRUCT>>);
    t.Add(AfxSig_v_us, &Unpack<void, W<UINT>, L<LPCTSTR>>);
    t.Add(AfxSig_v_istyle, &Unpack<void, W<int>, L<LPSTYLESTRUCT>>);
}

constexpr void AddObjectShapes(Table& t) {
    t.Add(AfxSig_b_D, &UnpackErase);
    t.Add(AfxSig_brush_DWu, &UnpackColour);
    t.Add(AfxSig_brush_Du, &UnpackReflectedColour);
    t.Add(AfxSig_v_uWb, &Unpack<void, LoW<UINT>, WndL, HiW<BOOL>>);
    t.Add(AfxSig_i_Wuu, &Unpack<int, WndW, LoL<UINT>, HiL<UINT>>);
    t.Add(AfxSig_b_Wuu, &Unpack<BOOL, WndW, LoL<UINT>, HiL<UINT>>);
    t.Add(AfxSig_v_Ww, &Unpack<void, WndW>);
    t.Add(AfxSig_v_Wl, &Unpack<void, WndL>);
    t.Add(AfxSig_v_scroll, &Unpack<void, LoW<UINT>, HiW<UINT>, BarL>);
    t.Add(AfxSig_v_Wp, &Unpack<void, WndW, PointL>);
    t.Add(AfxSig_v_Mub, &Unpack<void, MenuW, LoL<UINT>, HiL<BOOL>>);
    t.Add(AfxSig_v_M, &Unpack<void, MenuW>);
    t.Add(AfxSig_v_uuMenu, &Unpack<void, LoW<UINT>, HiW<UINT>, L<HMENU>>);
    t.Add(AfxSig_v_uW, &Unpack<void, W<UINT>, WndL>);
    t.Add(AfxSig_i_uLu, &Unpack<int, LoW<UINT>, ListL, HiW<UINT>>);
    t.Add(AfxSig_b_Wcopy, &Unpack<BOOL, WndW, L<COPYDATASTRUCT*>>);
}

constexpr Table MakeTable() {
    Table table{};
    AddPlainShapes(table);
    AddRecordShapes(table);
    AddObjectShapes(table);
    return table;
}

constexpr Table kCallers = MakeTable();

static_assert(kCallers.IsComplete(), "a handler shape has no caller");

} // namespace

BOOL AfxDispatchMessage(CWnd* pWnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam,
                        LRESULT* pResult) {
    Call call = {pWnd, entry.pfn, wParam, lParam, TRUE};
    const bool isRegistered = entry.nMessage == kAfxRegisteredMessage;
    *pResult = kCallers[isRegistered ? static_cast<size_t>(AfxSig_l_wl) : entry.nSig](call);
    return call.handled;
}
