#include "PaintWatch.h"

#include <commctrl.h>

namespace {

constexpr UINT_PTR kSubclassId = 0x51;

BOOL CALLBACK FindUnpainted(HWND child, LPARAM found) {
    if (IsWindowVisible(child) && GetUpdateRect(child, nullptr, FALSE)) {
        *reinterpret_cast<bool*>(found) = true;
        return FALSE;
    }
    return TRUE;
}

bool IsPainted(HWND dialog) {
    bool unpainted = GetUpdateRect(dialog, nullptr, FALSE) != FALSE;
    if (!unpainted)
        EnumChildWindows(dialog, FindUnpainted, reinterpret_cast<LPARAM>(&unpainted));
    return !unpainted;
}

} // namespace

PaintWatch* PaintWatch::s_current = nullptr;

PaintWatch::PaintWatch(int closeCommand)
    : m_hook(SetWindowsHookExW(WH_CBT, OnActivate, nullptr, GetCurrentThreadId())),
      m_closeCommand(closeCommand) {
    s_current = this;
}

PaintWatch::~PaintWatch() {
    s_current = nullptr;
    UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK PaintWatch::OnActivate(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && s_current && !s_current->m_dialog)
        s_current->Watch(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void PaintWatch::Watch(HWND dialog) {
    m_dialog = dialog;
    SetWindowSubclass(dialog, OnMessage, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
    EnumChildWindows(
        dialog,
        [](HWND child, LPARAM watch) -> BOOL {
            SetWindowSubclass(child, OnMessage, kSubclassId, static_cast<DWORD_PTR>(watch));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
}

LRESULT CALLBACK PaintWatch::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR watch) {
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_PAINT)
        reinterpret_cast<PaintWatch*>(watch)->PartPainted();
    if (message == WM_NCDESTROY)
        RemoveWindowSubclass(window, OnMessage, id);
    return result;
}

void PaintWatch::PartPainted() {
    if (m_seconds > 0 || !IsWindowVisible(m_dialog) || !IsPainted(m_dialog))
        return;
    m_seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
    PostMessageW(m_dialog, WM_COMMAND, MAKEWPARAM(m_closeCommand, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(m_dialog, m_closeCommand)));
}
