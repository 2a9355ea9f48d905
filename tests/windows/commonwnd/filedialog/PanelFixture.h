// What the tests of the file dialog's panels share: a frame for a panel to stand in, documents with layers.
#pragma once

#include "QVCommonWnd.h"
#include "documents/PsdBuilder.h"

#include "LeakGuard.h"
#include "ModalScript.h"
#include "SkinnedTest.h"
#include "TempFolder.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace panels_test {

using namespace _qv_commonctrl;
using namespace _qv_commonwnd;
using qvtest::Driver;
using qvtest::ModalScript;
using qvtest::Picture;
using qvtest::TempFolder;

inline constexpr int kImportTypeLabel = 10000;
inline constexpr int kLayerLabel = 10001;
inline constexpr int kImportTypeCombo = 20001;
inline constexpr int kLayerCombo = 20002;
inline constexpr int kImportButton = 1001;

inline constexpr int kRender = 0;
inline constexpr int kByLayers = 1;

using Names = std::vector<std::wstring>;
using Checks = std::vector<int>;

// The panel with its protected members open to the tests.
class TestPsdPanel : public CQVPsdOptionWnd {
  public:
    using CQVPsdOptionWnd::m_arrLayerName;
    using CQVPsdOptionWnd::m_bCompileImport;
    using CQVPsdOptionWnd::m_bEnableImportType;
    using CQVPsdOptionWnd::m_bEnableLayer;
    using CQVPsdOptionWnd::m_cmbImportType;
    using CQVPsdOptionWnd::m_cmbLayer;
    using CQVPsdOptionWnd::m_vecLayerCheck;

    Names LayerNames();
    Checks LayerInfo();
    // The combo box's entries from the first to the last.
    Names Entries();
    CRect Item(int id); // client co-ordinates
    bool Enabled(int id) { return ::IsWindowEnabled(::GetDlgItem(m_hWnd, id)) != FALSE; }
    // Chooses the kind of import as a user does: the selection and its notification.
    void Choose(int importType);
    // Checks and unchecks entries in the list, then closes it: "101" from the first entry to the last.
    void CloseListWith(const std::string& marks);
};

// A modal dialog without a template of its own: its frame carries the panels.
class PanelFrame : public CWnd {
  public:
    PanelFrame();
    ~PanelFrame() override;
    void Run(); // a message loop, until Stop
    void Stop();
};

class Panels : public qvtest::SkinnedTest {
  protected:
    void SetUp() override;

    // Makes the panel's window in the frame, 60 pixels high.
    void Create(TestPsdPanel& panel);
    // A document with these layers, the bottom one first; answers its path.
    std::wstring Document(const std::wstring& name, const std::vector<std::u16string>& layers) const;
    static void Pump() { qvtest::pumpMessages(); }
    // Without a message loop of the framework, nobody else drops the temporary objects that it makes on the way. The
    // heap is not looked at: the system's own combo box leaves blocks behind here.
    static void expectNoLeak(const std::function<void()>& action);

    TempFolder m_folder;
    PanelFrame m_frame;
};

} // namespace panels_test

// As the tests' messages show them.
inline void PrintTo(const CRect& rect, std::ostream* out) {
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}
inline void PrintTo(const CSize& size, std::ostream* out) {
    *out << size.cx << " x " << size.cy;
}
