#include "QVControlClass.h"

#include <QVBaseCtrl.h>

#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <vector>

extern "C" IMAGE_DOS_HEADER __ImageBase; // supplied by the linker: where this module is loaded

namespace _qv_extractrl {

namespace {

HINSTANCE ThisModule() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

// The objects made for windows of templates. Windows of several threads may be among them.
class TemplateObjects {
  public:
    void Add(CWnd* object) {
        const std::lock_guard lock(m_mutex);
        m_objects.insert(object);
    }

    bool Remove(CWnd* object) {
        const std::lock_guard lock(m_mutex);
        return m_objects.erase(object) != 0;
    }

    // An object that made room may still be on the call stack, so it lives as long as its former window.
    void Retire(HWND wnd, std::unique_ptr<CWnd> object) {
        const std::lock_guard lock(m_mutex);
        m_retired[wnd].push_back(std::move(object));
    }

    void FreeRetired(HWND wnd) {
        std::vector<std::unique_ptr<CWnd>> freed;
        const std::lock_guard lock(m_mutex);
        const auto found = m_retired.find(wnd);
        if (found == m_retired.end())
            return;
        freed = std::move(found->second);
        m_retired.erase(found);
    }

  private:
    std::mutex m_mutex;
    std::set<CWnd*> m_objects;
    std::map<HWND, std::vector<std::unique_ptr<CWnd>>> m_retired;
};

TemplateObjects& Objects() {
    static TemplateObjects objects;
    return objects;
}

// The template's object leaves the window to another one. TRUE when there is none in the way any more.
bool MakeRoom(HWND wnd) {
    CWnd* const object = CWnd::FromHandlePermanent(wnd);
    if (!object || !Objects().Remove(object))
        return false;
    if (auto* const skinned = dynamic_cast<_qv_commonctrl::CQVBaseCtrl*>(object))
        skinned->DetachSkin();
    object->UnsubclassWindow();
    Objects().Retire(wnd, std::unique_ptr<CWnd>(object));
    return true;
}

} // namespace

CQVControlClass::CQVControlClass(const wchar_t* name, const wchar_t* base, UINT style, DWORD windowStyle,
                                 WNDPROC proc, CWnd* (*make)())
    : m_name(name), m_windowStyle(windowStyle), m_proc(proc), m_make(make) {
    WNDCLASSW description = {};
    if (base) {
        if (!::GetClassInfoW(nullptr, base, &description))
            return;
        m_baseProc = description.lpfnWndProc;
    } else {
        description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    }
    // Global, so that a template of any module finds the class.
    description.style = (description.style | style | CS_GLOBALCLASS) & ~static_cast<UINT>(CS_PARENTDC);
    description.lpfnWndProc = proc;
    description.hInstance = ThisModule();
    description.lpszMenuName = nullptr;
    description.lpszClassName = name;
    m_registered = ::RegisterClassW(&description) != 0;
}

CQVControlClass::~CQVControlClass() {
    if (m_registered)
        ::UnregisterClassW(m_name, ThisModule());
}

bool CQVControlClass::ConnectObject(HWND wnd) const {
    try {
        std::unique_ptr<CWnd> object(m_make());
        Objects().Add(object.get());
        if (object->SubclassWindow(wnd)) {
            static_cast<void>(
                object.release()); // from here on it is the window's, see QV_DeleteTemplateObject
            return true;
        }
        Objects().Remove(object.get());
    } catch (...) {
        // No memory: the window is refused, as the system refuses one it has no memory for.
    }
    return false;
}

LRESULT CQVControlClass::Process(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const create = reinterpret_cast<CREATESTRUCTW*>(lParam);
        create->style |= static_cast<LONG>(m_windowStyle);
        ::SetWindowLongPtrW(wnd, GWL_STYLE, ::GetWindowLongPtrW(wnd, GWL_STYLE) | m_windowStyle);
        if (!CWnd::FromHandlePermanent(wnd) && !ConnectObject(wnd))
            return FALSE;
    } else if (message == WM_AFXMAKEROOM) {
        return MakeRoom(wnd);
    }
    const LRESULT result = ::CallWindowProcW(m_baseProc, wnd, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        Objects().FreeRetired(wnd);
    return result;
}

void QV_DeleteTemplateObject(CWnd* object) {
    if (Objects().Remove(object))
        delete object;
}

} // namespace _qv_extractrl
