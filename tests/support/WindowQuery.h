// Looking for windows of this or another process, without waiting.
//
//   HWND box = findWindow({.title = L"Question"});
//   HWND list = findDescendant(box, L"SysListView32");
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qvtest {

// What a top-level window must be. Empty and zero members do not matter.
struct WindowQuery {
    std::wstring className{};              // exact, case ignored
    std::wstring title{};                  // exact
    std::wstring titlePart{};              // stands anywhere in the title
    HWND owner = nullptr;                  // GW_OWNER
    DWORD process = GetCurrentProcessId(); // 0: any
    DWORD thread = 0;                      // 0: any
    bool visible = true;                   // false: hidden ones match as well
    int control = 0;                       // it has a child of its own with this id; 0: any
};

// The topmost top-level window that matches, nullptr when there is none.
HWND findWindow(const WindowQuery& query);

// Every top-level window that matches, topmost first.
std::vector<HWND> findWindows(const WindowQuery& query);

// The first child at any depth with this class (case ignored) and, when not negative, this control id.
HWND findDescendant(HWND parent, const std::wstring& className, int id = -1);

// All children at any depth with this class; empty class name: all children.
std::vector<HWND> findDescendants(HWND parent, const std::wstring& className);

// The child with this id: a direct one first, then one at any depth; nullptr when there is none.
HWND findControl(HWND parent, int id);

std::wstring classOf(HWND window);

// The window's text, also of a control of another thread or process; empty when it does not answer within 2
// s.
std::wstring textOf(HWND window);

// "class 'title' id 1 (10,20)-(110,60) visible": for messages.
std::string describeWindow(HWND window);

// describeWindow of a window and of all below it, one a line, indented by depth.
std::string describeTree(HWND window);

std::string toUtf8(const std::wstring& text);
std::wstring toWide(const std::string& utf8);

} // namespace qvtest
