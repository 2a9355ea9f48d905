#include "PanelFixture.h"

namespace panels_test {

namespace {

constexpr CRect kFrameRect(40, 40, 640, 240);
constexpr CRect kPanelRect(10, 10, 590, 70);

} // namespace

Names TestPsdPanel::LayerNames() {
    CStringArray stored;
    stored.Add(L"former");
    GetImportLayerName(stored);
    Names names;
    for (INT_PTR i = 0; i < stored.GetSize(); ++i)
        names.emplace_back(stored.GetAt(i).GetString());
    return names;
}

Checks TestPsdPanel::LayerInfo() {
    Checks checks;
    GetImportLayerInfo(checks);
    return checks;
}

Names TestPsdPanel::Entries() {
    Names entries;
    for (int i = 0; i < m_cmbLayer.GetCount(); ++i)
        entries.emplace_back(m_cmbLayer.GetText(i).GetString());
    return entries;
}

CRect TestPsdPanel::Item(int id) {
    CRect rect;
    ::GetWindowRect(::GetDlgItem(m_hWnd, id), rect);
    ScreenToClient(rect);
    return rect;
}

void TestPsdPanel::Choose(int importType) {
    m_cmbImportType.SetCurSel(importType);
    SendMessage(WM_COMMAND, MAKEWPARAM(kImportTypeCombo, CBN_SELCHANGE),
                reinterpret_cast<LPARAM>(m_cmbImportType.GetSafeHwnd()));
}

void TestPsdPanel::CloseListWith(const std::string& marks) {
    for (size_t i = 0; i < marks.size(); ++i)
        m_cmbLayer.SetCheck(static_cast<int>(i), marks[i] == '1');
    SendMessage(WM_QV_CHECKCOMBO_CLOSEUP, kLayerCombo, reinterpret_cast<LPARAM>(m_cmbLayer.GetSafeHwnd()));
}

PanelFrame::PanelFrame() {
    CreateEx(0, AfxRegisterWndClass(0), L"Panels", WS_POPUP | WS_VISIBLE, kFrameRect, nullptr, 0);
}

PanelFrame::~PanelFrame() {
    DestroyWindow();
}

void PanelFrame::Run() {
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

void PanelFrame::Stop() {
    ::PostQuitMessage(0);
}

void Panels::SetUp() {
    SkinnedTest::SetUp();
    ASSERT_NE(nullptr, m_frame.GetSafeHwnd());
}

void Panels::Create(TestPsdPanel& panel) {
    ASSERT_TRUE(panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, kPanelRect, &m_frame, kLayerLabel));
    Pump();
}

std::wstring Panels::Document(const std::wstring& name, const std::vector<std::u16string>& layers) const {
    psdtest::Document document;
    for (const std::u16string& each : layers)
        document.layers.push_back(psdtest::layer(each));
    const psdtest::Bytes bytes = psdtest::build(document).bytes;
    return m_folder.file(name, std::string(bytes.begin(), bytes.end()));
}

void Panels::expectNoLeak(const std::function<void()>& action) {
    constexpr int warmUpRuns = 10;
    constexpr int watchedRuns = 50;
    const auto once = [&] {
        action();
        CWnd::DeleteTempMap();
    };
    for (int i = 0; i < warmUpRuns; ++i)
        once();
    const qvtest::LeakGuard guard;
    for (int i = 0; i < watchedRuns; ++i)
        once();
    guard.expectNothingLeft();
}

} // namespace panels_test
