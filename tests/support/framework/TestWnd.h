// A window that counts what happens to it.
#pragma once

#include "afxcmn.h"

class TestWnd : public CWnd {
  public:
    int m_nPostNcDestroy = 0;
    int m_nPreSubclass = 0;

    BOOL CreateTop() {
        return CreateEx(0, AfxRegisterWndClass(0), L"test", WS_POPUP, 20, 20, 200, 100, nullptr, nullptr);
    }
    BOOL CreateChild(CWnd& parent, UINT id) {
        return Create(AfxRegisterWndClass(0), L"child", WS_VISIBLE, CRect(0, 0, 50, 20), &parent, id);
    }
    void PostNcDestroy() override { ++m_nPostNcDestroy; }
    void PreSubclassWindow() override { ++m_nPreSubclass; }
};
