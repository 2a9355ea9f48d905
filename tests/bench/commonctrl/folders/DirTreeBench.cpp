// A folder with 10,000 subfolders opened in the directory tree, from the click to the painted rows: against the
// system's tree view that is given as many prepared items, opened and painted.
#include <InTurn.h>
#include <QVDirCtrl.h>
#include <QVSkin.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

using namespace _qv_commonctrl;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFolders = 10000;
constexpr int kRounds = 15;
constexpr double kGoalRatio = 2;
constexpr double kPatienceSeconds = 30;
constexpr DWORD kTreeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT;
const RECT kPlace = {20, 20, 380, 480};

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::wstring NameOf(int index) {
    return L"folder " + std::to_wstring(index);
}

void WorkOffMessages() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

class Host : public CWnd {
  public:
    Host() {
        CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 50, 50, 400,
                 500, nullptr, nullptr);
    }
    ~Host() override { DestroyWindow(); }
};

// Two folders: one to go to, and in it the one with the many.
class Folders {
  public:
    Folders()
        : m_top(std::filesystem::temp_directory_path() /
                (L"qvbench-" + std::to_wstring(::GetCurrentProcessId()))) {
        std::filesystem::create_directories(m_top / L"many");
        for (int i = 0; i < kFolders; ++i)
            std::filesystem::create_directory(m_top / L"many" / NameOf(i));
    }
    ~Folders() {
        std::error_code ignored;
        std::filesystem::remove_all(m_top, ignored);
    }
    Folders(const Folders&) = delete;
    Folders& operator=(const Folders&) = delete;

    std::wstring Top() const { return m_top.wstring(); }

  private:
    std::filesystem::path m_top;
};

bool IsOpen(const CTreeCtrl& tree, HTREEITEM item) {
    return (tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) && tree.GetChildItem(item);
}

bool WaitFor(const std::function<bool()>& condition) {
    for (const auto start = Clock::now(); SecondsSince(start) < kPatienceSeconds;) {
        WorkOffMessages();
        if (condition())
            return true;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return false;
}

// Zero when a folder does not open.
double Ours() {
    static const Folders folders;
    Host host;
    CQVComboDTBox tree;
    tree.Create(kTreeStyle, kPlace, &host, 1);
    tree.SetFont(QV_GetSysFont(QVFONT_UI));
    tree.SetTreeCtrl(1);
    if (!tree.SetDesktopFolder() || !tree.SetPathName(folders.Top().c_str()))
        return 0;
    const HTREEITEM top = tree.GetSelectedItem();
    if (!WaitFor([&] { return IsOpen(tree, top); }))
        return 0;
    tree.UpdateWindow();
    const HTREEITEM many = tree.GetChildItem(top);
    const UINT before = tree.GetCount();
    const auto start = Clock::now();
    tree.Expand(many, TVE_EXPAND);
    if (!WaitFor([&] { return IsOpen(tree, many) && tree.GetCount() == before + kFolders; }))
        return 0;
    tree.UpdateWindow();
    const double seconds = SecondsSince(start);
    tree.DestroyWindow();
    return seconds;
}

HTREEITEM InsertBare(HWND tree, HTREEITEM parent, std::wstring& text) {
    TVINSERTSTRUCTW node = {};
    node.hParent = parent;
    node.hInsertAfter = TVI_LAST;
    node.item.mask = TVIF_TEXT;
    node.item.pszText = text.data();
    return reinterpret_cast<HTREEITEM>(
        ::SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&node)));
}

const std::vector<std::wstring>& Texts() {
    static const std::vector<std::wstring> texts = [] {
        std::vector<std::wstring> made;
        for (int i = 0; i < kFolders; ++i)
            made.push_back(NameOf(i));
        return made;
    }();
    return texts;
}

double Bare() {
    Host host;
    const HWND tree = ::CreateWindowExW(0, WC_TREEVIEWW, L"", kTreeStyle, kPlace.left, kPlace.top,
                                        kPlace.right - kPlace.left, kPlace.bottom - kPlace.top, host, nullptr,
                                        nullptr, nullptr);
    ::SendMessageW(tree, WM_SETFONT, reinterpret_cast<WPARAM>(QV_GetSysFont(QVFONT_UI)->GetSafeHandle()),
                   TRUE);
    std::vector<std::wstring> texts = Texts();
    std::wstring name = L"many";
    const HTREEITEM root = InsertBare(tree, TVI_ROOT, name);
    ::UpdateWindow(tree);
    WorkOffMessages();
    const auto start = Clock::now();
    ::SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    for (std::wstring& text : texts)
        InsertBare(tree, root, text);
    ::SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(root));
    ::SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(tree, nullptr, TRUE);
    ::UpdateWindow(tree);
    const double seconds = SecondsSince(start);
    ::DestroyWindow(tree);
    return seconds;
}

[[maybe_unused]] const bool g_registered = registerInTurn(
    {"directory tree, 10,000 subfolders opened", "bare tree view, prepared items", kRounds, kGoalRatio}, Bare,
    Ours);

} // namespace
