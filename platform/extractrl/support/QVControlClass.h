// The window class of a control: registered while the DLL is loaded, so that dialog templates can name it.
//
// A window made by its class name alone (a template's control) gets a C++ object of its own before its first
// message is handled. The object is the window's: GetDlgItem returns it, it dies with the window, and it
// makes room when a program connects an object itself (SubclassDlgItem, DDX_Control).
#pragma once

#include <afxwin.h>

namespace _qv_extractrl {

class CQVControlClass {
  public:
    // name: of the class. base: a system class whose behaviour it has, null for none. proc: ControlProc of
    // the control's C++ class. make: a new, unconnected object. All strings are literals.
    CQVControlClass(const wchar_t* name, const wchar_t* base, UINT style, DWORD windowStyle, WNDPROC proc,
                    CWnd* (*make)());
    CQVControlClass(const CQVControlClass&) = delete;
    CQVControlClass& operator=(const CQVControlClass&) = delete;
    ~CQVControlClass();

    // The procedure body: connects an object at the window's creation, then does what the base class does.
    LRESULT Process(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);

    const wchar_t* Name() const { return m_name; }

  private:
    bool ConnectObject(HWND wnd) const;

    const wchar_t* m_name;
    DWORD m_windowStyle; // style bits that every window of the class needs
    WNDPROC m_proc;
    WNDPROC m_baseProc = ::DefWindowProcW;
    CWnd* (*m_make)();
    bool m_registered = false;
};

// The window procedure of the C++ class T, which has a static CQVControlClass& ControlClass().
template <class T> LRESULT CALLBACK ControlProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return T::ControlClass().Process(wnd, message, wParam, lParam);
}

// To be called from PostNcDestroy: deletes the object when it was made for a template's window.
void QV_DeleteTemplateObject(CWnd* object);

} // namespace _qv_extractrl
