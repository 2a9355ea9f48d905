// What the framework keeps for each thread: its windows' objects, the message in work, the look-up cache.
#pragma once

#include "MessageCache.h"
#include "WndMap.h"

#include "afxstat_.h"
#include "afxwnd_.h"

#include <memory>
#include <unordered_map>
#include <vector>

class CFileDialog;
class CWinThread;

// The temporary objects of windows that have no object of their own. Each has a serial number, so that a
// nested loop removes only what was made since it began.
class TemporaryWindows {
  public:
    TemporaryWindows() = default;
    ~TemporaryWindows() { RemoveSince(0); }
    TemporaryWindows(const TemporaryWindows&) = delete;
    TemporaryWindows& operator=(const TemporaryWindows&) = delete;

    CWnd* FindOrMake(HWND hWnd);
    // The object of a handle that Detach takes away lives on until it is removed with the others.
    void Retire(HWND hWnd, const CWnd* pWnd);
    unsigned long long NextSerial() const { return m_nextSerial; }
    void RemoveSince(unsigned long long serial);
    // Those whose window is gone. Programs that run a loop of their own have no other clean-up.
    void RemoveDead();
    size_t Count() const { return m_windows.size() + m_retired.size(); }

  private:
    struct Temporary {
        std::unique_ptr<CWnd> wnd;
        unsigned long long serial = 0;
    };
    std::unordered_map<HWND, Temporary> m_windows;
    std::vector<Temporary> m_retired;
    unsigned long long m_nextSerial = 0;
};

// Notices on the stack that a window object was deleted while somebody waited for it.
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

struct AfxThreadState {
    WndMap permanentWindows;
    TemporaryWindows temporaryWindows;
    // Former procedures of windows that were unsubclassed while somebody else stood between: our procedure is
    // still in their chain and passes on.
    std::unordered_map<HWND, WNDPROC> orphanProcedures;
    MessageCache messageCache;
    MSG currentMessage = {};
    int callDepth = 0; // handlers on the stack
    MSG pumpedMessage = {};
    POINT lastMousePos = {};
    UINT lastPumpedMessage = 0;
    CWnd* creatingWnd = nullptr;
    HHOOK creationHook = nullptr;
    WndWatch* watches = nullptr;
    CFileDialog* startingFileDialog = nullptr; // the system is about to make its hook's window
    CWinThread* thread = nullptr;
    AFX_MODULE_STATE* moduleState = nullptr;
    wchar_t className[96] = {};

    // The calling thread's, made at the first call; it goes with the thread or with the framework.
    static AfxThreadState& Get();
    // Null while the thread has none; in destructors, which must not bring it back.
    static AfxThreadState* GetExisting();
};

// The temporary objects of all kinds that the calling thread has made since this object was made. Callers further
// out may hold older ones.
class TemporaryScope {
  public:
    TemporaryScope();
    void Remove() const;

  private:
    unsigned long long m_firstWindow;
    unsigned long long m_firstOther;
};

// The private ends of CWnd that the window procedure and the modal loop work on.
struct AfxWndAccess {
    static std::unique_ptr<CWnd> MakeTemporary(HWND hWnd) { return std::unique_ptr<CWnd>(new CWnd(hWnd)); }
    static LRESULT Call(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        return pWnd->WindowProc(message, wParam, lParam);
    }
};

// Delivers a message to an object: keeps the message in work, lets no exception out.
LRESULT AfxCallWndProc(AfxThreadState& state, CWnd* pWnd, HWND hWnd, UINT message, WPARAM wParam,
                       LPARAM lParam);
// The next window that the thread creates becomes pWnd's.
bool AfxHookWindowCreate(CWnd* pWnd);
// Ends that; false when no window was created meanwhile.
bool AfxUnhookWindowCreate();
// The calling thread's temporary objects of all kinds.
void AfxDeleteTempObjects();
// Makes the common controls' classes known, once.
void AfxInitControls();
// Takes the classes of a module (null: all) back from the system.
void AfxUnregisterClasses(HINSTANCE hInstance);
bool AfxIsIdleMessage(const MSG& message);
