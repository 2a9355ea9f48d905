// Notices on the stack that a window object was deleted while somebody waited for it.
#pragma once

class CWnd;

class WndWatch {
  public:
    explicit WndWatch(CWnd* pWnd);
    ~WndWatch();
    WndWatch(const WndWatch&) = delete;
    WndWatch& operator=(const WndWatch&) = delete;
    bool IsAlive() const { return m_pWnd != nullptr; }
    static void OnDeleted(const CWnd* pWnd);

  private:
    CWnd* m_pWnd;
    WndWatch* m_pOuter;
};
