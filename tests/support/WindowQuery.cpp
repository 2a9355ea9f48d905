#include "WindowQuery.h"

namespace qvtest {
namespace {

constexpr UINT kAnswerTimeoutMs = 2000;
constexpr int kMaxClassChars = 256;

bool equalIgnoringCase(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool matches(HWND window, const WindowQuery& query) {
    DWORD process = 0;
    const DWORD thread = GetWindowThreadProcessId(window, &process);
    if (query.process != 0 && query.process != process)
        return false;
    if (query.thread != 0 && query.thread != thread)
        return false;
    if (query.visible && !IsWindowVisible(window))
        return false;
    if (query.owner && GetWindow(window, GW_OWNER) != query.owner)
        return false;
    if (!query.className.empty() && !equalIgnoringCase(classOf(window), query.className))
        return false;
    if (query.control != 0 && !GetDlgItem(window, query.control))
        return false;
    if (query.title.empty() && query.titlePart.empty())
        return true;
    const std::wstring title = textOf(window);
    return (query.title.empty() || title == query.title) && title.find(query.titlePart) != std::wstring::npos;
}

// Children come back in the order of the system's enumeration: each before its own children.
std::vector<HWND> allDescendants(HWND parent) {
    std::vector<HWND> found;
    auto collect = [](HWND window, LPARAM list) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    EnumChildWindows(parent, collect, reinterpret_cast<LPARAM>(&found));
    return found;
}

int depthBelow(HWND top, HWND window) {
    int depth = 0;
    while (window && window != top) {
        window = GetAncestor(window, GA_PARENT);
        ++depth;
    }
    return depth;
}

} // namespace

std::vector<HWND> findWindows(const WindowQuery& query) {
    struct Search {
        const WindowQuery& query;
        std::vector<HWND> found;
    } search{query, {}};
    auto test = [](HWND window, LPARAM param) -> BOOL {
        auto* it = reinterpret_cast<Search*>(param);
        if (matches(window, it->query))
            it->found.push_back(window);
        return TRUE;
    };
    EnumWindows(test, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND findWindow(const WindowQuery& query) {
    const auto found = findWindows(query);
    return found.empty() ? nullptr : found.front();
}

std::vector<HWND> findDescendants(HWND parent, const std::wstring& className) {
    std::vector<HWND> found;
    for (HWND window : allDescendants(parent)) {
        if (className.empty() || equalIgnoringCase(classOf(window), className))
            found.push_back(window);
    }
    return found;
}

HWND findDescendant(HWND parent, const std::wstring& className, int id) {
    for (HWND window : findDescendants(parent, className)) {
        if (id < 0 || GetDlgCtrlID(window) == id)
            return window;
    }
    return nullptr;
}

HWND findControl(HWND parent, int id) {
    if (HWND direct = GetDlgItem(parent, id))
        return direct;
    for (HWND window : allDescendants(parent)) {
        if (GetDlgCtrlID(window) == id)
            return window;
    }
    return nullptr;
}

std::wstring classOf(HWND window) {
    wchar_t name[kMaxClassChars] = {};
    GetClassNameW(window, name, kMaxClassChars);
    return name;
}

std::wstring textOf(HWND window) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, kAnswerTimeoutMs, &length))
        return {};
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                             SMTO_ABORTIFHUNG, kAnswerTimeoutMs, &copied))
        return {};
    text.resize(copied);
    return text;
}

std::string describeWindow(HWND window) {
    if (!IsWindow(window))
        return "(no window)";
    RECT rect = {};
    GetWindowRect(window, &rect);
    const std::string place = "(" + std::to_string(rect.left) + "," + std::to_string(rect.top) + ")-(" +
                              std::to_string(rect.right) + "," + std::to_string(rect.bottom) + ")";
    return toUtf8(classOf(window)) + " '" + toUtf8(textOf(window)) + "' id " +
           std::to_string(GetDlgCtrlID(window)) + " " + place +
           (IsWindowVisible(window) ? " visible" : " hidden") + (IsWindowEnabled(window) ? "" : " disabled");
}

std::string describeTree(HWND window) {
    std::string text = describeWindow(window) + "\n";
    for (HWND child : allDescendants(window))
        text += std::string(2 * static_cast<size_t>(depthBelow(window, child)), ' ') + describeWindow(child) +
                "\n";
    return text;
}

std::string toUtf8(const std::wstring& text) {
    if (text.empty())
        return {};
    const int chars = static_cast<int>(text.size());
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), chars, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), chars, utf8.data(), bytes, nullptr, nullptr);
    return utf8;
}

std::wstring toWide(const std::string& utf8) {
    if (utf8.empty())
        return {};
    const int bytes = static_cast<int>(utf8.size());
    const int chars = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring text(static_cast<size_t>(chars), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), chars);
    return text;
}

} // namespace qvtest
