#include "ShellListSkin.h"

#include "QVFileDialogDefs.h"
#include "QVListView.h"
#include "support/Handles.h"

#include <QVReplaceWnd.h>
#include <QVSkin.h>

#include <cstdint>

namespace _qv_commonwnd {

using namespace _qv_commonctrl;

namespace {

constexpr DWORD kSkinnedListVersion = 6;
constexpr std::uint32_t kOpaque = 0xFF000000;

DWORD SystemMajorVersion() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    return ::GetVersionExW(&version) ? version.dwMajorVersion : 0;
}

int SelectedCount(HWND list) {
    return list ? static_cast<int>(::SendMessageW(list, LVM_GETSELECTEDCOUNT, 0, 0)) : 0;
}

// The sunken edge, which the system draws in its own colours.
void DropEdge(HWND list) {
    const LONG_PTR style = ::GetWindowLongPtrW(list, GWL_EXSTYLE);
    if (!(style & WS_EX_CLIENTEDGE))
        return;
    ::SetWindowLongPtrW(list, GWL_EXSTYLE, style & ~static_cast<LONG_PTR>(WS_EX_CLIENTEDGE));
    ::SetWindowPos(list, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

std::uint32_t PixelOf(COLORREF color) {
    return kOpaque | static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

OwnedBitmap OnePixel(COLORREF color) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = -1; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const std::uint32_t pixel = PixelOf(color);
    const WindowDC screen(nullptr);
    return OwnedBitmap(
        ::CreateDIBitmap(screen.Get(), &info.bmiHeader, CBM_INIT, &pixel, &info, DIB_RGB_COLORS));
}

// A background picture of one colour: a shell that paints a ground of its own uses it instead.
void SetPlainGround(HWND list, COLORREF color) {
    OwnedBitmap pixel = OnePixel(color);
    if (!pixel)
        return;
    LVBKIMAGEW image = {};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP;
    image.hbm = pixel.release(); // the list's, if it takes it
    if (!::SendMessageW(list, LVM_SETBKIMAGEW, 0, reinterpret_cast<LPARAM>(&image)))
        pixel.reset(image.hbm);
}

void SetColors(HWND list) {
    const auto ground = static_cast<LPARAM>(QV_GetSysColor(QVCLR_GROUND));
    ::SendMessageW(list, LVM_SETBKCOLOR, 0, ground);
    ::SendMessageW(list, LVM_SETTEXTBKCOLOR, 0, ground);
    ::SendMessageW(list, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(QV_GetSysColor(QVCLR_TEXT_WINDOW)));
}

} // namespace

bool SkinsShellList(DWORD majorVersion) {
    return majorVersion >= kSkinnedListVersion;
}

CShellListSkin::CShellListSkin(CQVListView& list, CQVHeaderCtrl& header) : m_list(list), m_header(header) {
    m_list.SetAnswers(&m_view.Answers());
    m_list.SetHeaderObject(&m_header);
    m_list.SetSelectionAction([this] { OnSelectionSettled(); });
}

HWND CShellListSkin::List() const {
    return m_list.m_hWnd;
}

void CShellListSkin::TakeOver(HWND view) {
    if (!SkinsShellList(SystemMajorVersion()))
        return;
    CWnd::ModifyStyle(view, 0, WS_CLIPCHILDREN, 0);
    const HWND list = ShellListIn(view);
    if (!list || list == List())
        return;
    GiveBack();
    Wear(view, list);
    ::RedrawWindow(view, nullptr, nullptr, RDW_INVALIDATE | RDW_NOERASE);
}

void CShellListSkin::Wear(HWND view, HWND list) {
    CWnd::ModifyStyle(list, 0, WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0);
    CWnd::ModifyStyle(view, 0, WS_CLIPSIBLINGS, 0);
    DropEdge(list);
    m_list.SetListProcedure(reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(list, GWLP_WNDPROC)));
    QV_ReplaceWnd(list);
    QV_SetReplaceCorner(list, QVCLR_LIST);
    m_told = 0;
    m_folderShown = false;
    if (const auto header = reinterpret_cast<HWND>(::SendMessageW(list, LVM_GETHEADER, 0, 0)))
        m_header.SubclassWindow(header);
    m_view.SubclassWindow(view);
    m_list.SubclassWindow(list);
    ApplyLook();
}

void CShellListSkin::ApplyLook() {
    SetPlainGround(List(), QV_GetSysColor(QVCLR_GROUND));
    SetColors(List());
    ::PostMessageW(List(), WM_QV_LISTSKIN, 0, 0);
}

bool CShellListSkin::OnFolderShown(HWND view) {
    const HWND list = ShellListIn(view);
    if (!SkinsShellList(SystemMajorVersion()))
        return false;
    if (!list)
        GiveBack();
    if (!list || (list == List() && m_folderShown))
        return !list;
    if (list == List())
        ApplyLook();
    else
        TakeOver(view);
    m_folderShown = true;
    return true;
}

void CShellListSkin::GiveBack() {
    if (m_header.m_hWnd)
        m_header.UnsubclassWindow();
    if (const HWND list = m_list.UnsubclassWindow())
        QV_UnReplaceWnd(list); // it came before the object, so it goes after it
    if (m_view.m_hWnd)
        m_view.UnsubclassWindow();
}

int CShellListSkin::TellSelected(HWND list) {
    m_told = SelectedCount(list);
    return m_told;
}

void CShellListSkin::OnSelectionSettled() {
    if (SelectedCount(List()) != m_told && m_selectionAction)
        m_selectionAction();
}

} // namespace _qv_commonwnd
