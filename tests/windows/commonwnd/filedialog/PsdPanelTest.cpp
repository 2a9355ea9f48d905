// The panel of the layers: its controls, what it reads, what it answers.
#include "PanelFixture.h"

namespace panels_test {

namespace {

CString TextOfEntry(CComboBox& combo, int index) {
    CString text;
    combo.GetLBText(index, text);
    return text;
}

} // namespace

TEST_F(Panels, HasItsControls) {
    TestPsdPanel panel;
    Create(panel);
    for (const int label : {kImportTypeLabel, kLayerLabel}) {
        const HWND wnd = ::GetDlgItem(panel, label);
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(wnd, GWL_STYLE));
        constexpr DWORD wanted = WS_CHILD | WS_VISIBLE | SS_NOTIFY | SS_CENTERIMAGE;
        EXPECT_EQ(wanted, style & (wanted | SS_TYPEMASK));
        EXPECT_EQ(QV_GetSysFont(QVFONT_UI)->GetSafeHandle(),
                  reinterpret_cast<HGDIOBJ>(::SendMessageW(wnd, WM_GETFONT, 0, 0)));
    }
    for (CComboBox* combo :
         {static_cast<CComboBox*>(&panel.m_cmbImportType), static_cast<CComboBox*>(&panel.m_cmbLayer)}) {
        constexpr DWORD kinds = 3;
        EXPECT_EQ(static_cast<DWORD>(CBS_DROPDOWNLIST | WS_VISIBLE | WS_CHILD),
                  combo->GetStyle() & (kinds | WS_VISIBLE | WS_CHILD));
    }
    EXPECT_EQ(QV_LoadSysString(L"IDS_FILEDLG_IMPORTTYPE"),
              qvtest::textOf(::GetDlgItem(panel, kImportTypeLabel)).c_str());
    EXPECT_EQ(QV_LoadSysString(L"IDS_FILEDLG_LAYER"),
              qvtest::textOf(::GetDlgItem(panel, kLayerLabel)).c_str());
    ASSERT_EQ(2, panel.m_cmbImportType.GetCount());
    EXPECT_EQ(QV_LoadSysString(L"IDS_FILEDLG_RENDERIMP"), TextOfEntry(panel.m_cmbImportType, kRender));
    EXPECT_EQ(QV_LoadSysString(L"IDS_FILEDLG_LAYERIMP"), TextOfEntry(panel.m_cmbImportType, kByLayers));
    EXPECT_EQ(kRender, panel.m_cmbImportType.GetCurSel());
    EXPECT_TRUE(panel.IsCompileImportType());
    EXPECT_TRUE(panel.Enabled(kImportTypeCombo));
    EXPECT_FALSE(panel.Enabled(kLayerCombo));
    EXPECT_EQ(60u, panel.GetMinHeight());
}

// Two rows of 20 pixels with a gap of 10; the label 69 wide at 99, the combo box 247 wide behind a gap of 24.
TEST_F(Panels, StandsInTwoRows) {
    TestPsdPanel panel;
    Create(panel);
    const auto expectRows = [&panel] {
        EXPECT_EQ(CRect(99, 0, 168, 20), panel.Item(kImportTypeLabel));
        EXPECT_EQ(CRect(192, 0, 439, 20), panel.Item(kImportTypeCombo));
        EXPECT_EQ(CRect(99, 30, 168, 50), panel.Item(kLayerLabel));
        EXPECT_EQ(CRect(192, 30, 439, 50), panel.Item(kLayerCombo));
    };
    expectRows();
    panel.MoveWindow(0, 0, 300, 20);
    expectRows(); // whatever the panel's size
    panel.MoveWindow(0, 0, 0, 0);
    expectRows();
    QV_SetSkinPath(SkinFolder(L"light"));
    expectRows(); // a new skin's font changes no row
}

TEST_F(Panels, DroppedListIsAsHighAsItsFigure) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"many.psd", std::vector<std::u16string>(60, u"layer")).c_str());
    for (CComboBox* combo :
         {static_cast<CComboBox*>(&panel.m_cmbImportType), static_cast<CComboBox*>(&panel.m_cmbLayer)}) {
        CRect dropped;
        combo->GetDroppedControlRect(&dropped);
        EXPECT_LE(dropped.Height(), 20 + 160 + 2);
        EXPECT_EQ(247, dropped.Width());
    }
}

TEST_F(Panels, ListsTheTopLayerFirst) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    EXPECT_EQ((Names{L"C", L"B", L"A"}), panel.Entries());
    EXPECT_EQ(0, panel.m_cmbLayer.GetCurSel());
    EXPECT_EQ((Names{L"A", L"B", L"C"}), panel.LayerNames());
    EXPECT_EQ((Checks{1, 1, 1}), panel.LayerInfo());
    EXPECT_EQ((Checks{1, 1, 1}), panel.m_vecLayerCheck);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(1, panel.m_cmbLayer.GetCheck(i));
}

TEST_F(Panels, AnswersWhatIsCheckedWhenTheListCloses) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abcde.psd", {u"A", u"B", u"C", u"D", u"E"}).c_str());
    panel.Choose(kByLayers);
    EXPECT_FALSE(panel.IsCompileImportType());
    EXPECT_TRUE(panel.Enabled(kLayerCombo));
    EXPECT_EQ((Checks{1, 1, 1, 1, 1}), panel.LayerInfo());
    panel.m_cmbLayer.SetCheck(3, FALSE); // B
    EXPECT_EQ((Checks{1, 1, 1, 1, 1}), panel.LayerInfo()) << "the list is still open";
    panel.CloseListWith("01101");
    EXPECT_EQ((Checks{1, 0, 1, 1, 0}), panel.LayerInfo());
    EXPECT_EQ((Names{L"A", L"B", L"C", L"D", L"E"}), panel.LayerNames());
}

TEST_F(Panels, LayerInfoIsAppended) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.Choose(kByLayers);
    panel.CloseListWith("101");
    Checks checks = {7};
    panel.GetImportLayerInfo(checks);
    panel.GetImportLayerInfo(checks);
    EXPECT_EQ((Checks{7, 1, 0, 1, 1, 0, 1}), checks);
}

TEST_F(Panels, RenderingTakesEveryLayerAndKeepsTheMarks) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.Choose(kByLayers);
    panel.CloseListWith("001");
    panel.Choose(kRender);
    EXPECT_TRUE(panel.IsCompileImportType());
    EXPECT_FALSE(panel.Enabled(kLayerCombo));
    EXPECT_EQ((Checks{1, 1, 1}), panel.LayerInfo());
    EXPECT_EQ(0, panel.m_cmbLayer.GetCheck(0));
    EXPECT_EQ(1, panel.m_cmbLayer.GetCheck(2));
    panel.Choose(kByLayers);
    EXPECT_EQ((Checks{1, 0, 0}), panel.LayerInfo());
}

TEST_F(Panels, NextDocumentStartsCheckedAndKeepsTheKindOfImport) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.Choose(kByLayers);
    panel.CloseListWith("000");
    panel.ReadPsdFile(Document(L"de.psd", {u"D", u"E"}).c_str());
    EXPECT_EQ((Names{L"E", L"D"}), panel.Entries());
    EXPECT_EQ((Checks{1, 1}), panel.LayerInfo());
    EXPECT_FALSE(panel.IsCompileImportType());
    EXPECT_TRUE(panel.Enabled(kLayerCombo));
}

TEST_F(Panels, UnreadableDocumentLeavesTheListAsItWas) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.Choose(kByLayers);
    panel.CloseListWith("110");
    for (const std::wstring& path :
         {m_folder.file(L"broken.psd", "8BPS and nothing else"), m_folder.path(L"missing.psd"),
          m_folder.folder(L"folder.psd"), std::wstring()}) {
        panel.ReadPsdFile(path.c_str());
        EXPECT_TRUE(panel.LayerNames().empty());
        EXPECT_EQ((Names{L"C", L"B", L"A"}), panel.Entries());
        EXPECT_EQ((Checks{0, 1, 1}), panel.LayerInfo());
    }
}

TEST_F(Panels, DocumentWithoutLayersEmptiesTheList) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.ReadPsdFile(Document(L"flat.psd", {}).c_str());
    EXPECT_TRUE(panel.Entries().empty());
    EXPECT_TRUE(panel.LayerNames().empty());
    EXPECT_TRUE(panel.LayerInfo().empty());
    EXPECT_EQ(CB_ERR, panel.m_cmbLayer.GetCurSel());
}

TEST_F(Panels, LayerListNeedsLeaveAndImportByLayers) {
    TestPsdPanel panel;
    Create(panel);
    const struct {
        BOOL leave;
        int importType;
        bool enabled;
    } table[] = {{TRUE, kRender, false},  {TRUE, kByLayers, true},   {FALSE, kByLayers, false},
                 {FALSE, kRender, false}, {FALSE, kByLayers, false}, {TRUE, kByLayers, true}};
    for (const auto& row : table) {
        panel.EnableLayerInfo(row.leave);
        panel.Choose(row.importType);
        EXPECT_EQ(row.enabled, panel.Enabled(kLayerCombo));
        panel.MoveWindow(0, 0, 400 + row.importType, 60); // sizing says the same
        EXPECT_EQ(row.enabled, panel.Enabled(kLayerCombo));
    }
    panel.EnableLayerInfo(FALSE);
    EXPECT_FALSE(panel.Enabled(kLayerCombo)) << "at once";
    panel.EnableLayerInfo(TRUE);
    EXPECT_TRUE(panel.Enabled(kLayerCombo));
}

TEST_F(Panels, KindOfImportCanBeFixed) {
    TestPsdPanel panel;
    panel.EnableCompileImportType(FALSE); // before the window exists
    Create(panel);
    EXPECT_FALSE(panel.Enabled(kImportTypeCombo));
    panel.EnableCompileImportType(TRUE);
    EXPECT_TRUE(panel.Enabled(kImportTypeCombo));
    panel.EnableCompileImportType(FALSE);
    panel.MoveWindow(0, 0, 400, 60);
    EXPECT_FALSE(panel.Enabled(kImportTypeCombo));
}

TEST_F(Panels, SelectionOfNothingCountsAsRendering) {
    TestPsdPanel panel;
    Create(panel);
    panel.Choose(kByLayers);
    panel.Choose(CB_ERR);
    EXPECT_TRUE(panel.IsCompileImportType());
    EXPECT_FALSE(panel.Enabled(kLayerCombo));
}

TEST_F(Panels, ForeignNotificationsChangeNothing) {
    TestPsdPanel panel;
    Create(panel);
    panel.Choose(kByLayers);
    panel.m_cmbImportType.SetCurSel(kRender);
    for (const WPARAM other :
         {MAKEWPARAM(kLayerCombo, CBN_SELCHANGE), MAKEWPARAM(kImportTypeCombo, CBN_SETFOCUS),
          MAKEWPARAM(kImportTypeLabel, STN_CLICKED)})
        panel.SendMessage(WM_COMMAND, other, 0);
    EXPECT_FALSE(panel.IsCompileImportType());
}

TEST_F(Panels, AnswersOutliveTheWindow) {
    TestPsdPanel panel;
    Create(panel);
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B", u"C"}).c_str());
    panel.Choose(kByLayers);
    panel.CloseListWith("101");
    panel.DestroyWindow();
    EXPECT_FALSE(panel.IsCompileImportType());
    EXPECT_EQ((Names{L"A", L"B", L"C"}), panel.LayerNames());
    EXPECT_EQ((Checks{1, 0, 1}), panel.LayerInfo());
}

TEST_F(Panels, NothingNeedsAWindow) {
    TestPsdPanel panel;
    panel.ReadPsdFile(Document(L"abc.psd", {u"A", u"B"}).c_str());
    panel.ReadPsdFile(CString());
    panel.EnableLayerInfo(TRUE);
    panel.EnableCompileImportType(FALSE);
    EXPECT_TRUE(panel.IsCompileImportType());
    EXPECT_TRUE(panel.LayerInfo().empty());
    EXPECT_EQ(60u, panel.GetMinHeight());
}

TEST_F(Panels, ManyLayers) {
    constexpr int count = 4000;
    TestPsdPanel panel;
    Create(panel);
    psdtest::Document document;
    document.channelDataBytes = 0;
    document.layers = {psdtest::layer(u"first"), psdtest::layer(u"n")};
    document.layers[1].times = count - 1;
    const psdtest::Bytes bytes = psdtest::build(document).bytes;
    panel.ReadPsdFile(m_folder.file(L"huge.psd", std::string(bytes.begin(), bytes.end())).c_str());
    EXPECT_EQ(count, panel.m_cmbLayer.GetCount());
    EXPECT_EQ(CString(L"n"), panel.m_cmbLayer.GetText(0));
    EXPECT_EQ(CString(L"first"), panel.m_cmbLayer.GetText(count - 1));
    EXPECT_EQ(Checks(count, 1), panel.LayerInfo());
    Shot(panel);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(panel.m_cmbLayer.GetComboBoxInfo(&info));
    EXPECT_FALSE(::IsWindowVisible(info.hwndList)) << "filling opens no list";
    panel.Choose(kByLayers);
    panel.m_cmbLayer.ShowDropDown(TRUE);
    Pump();
    EXPECT_TRUE(::IsWindowVisible(info.hwndList));
    SCROLLINFO scroll = {};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_ALL;
    ASSERT_TRUE(::GetScrollInfo(info.hwndList, SB_VERT, &scroll));
    EXPECT_EQ(count - 1, scroll.nMax) << "the bar knows of every entry";
    ::SendMessageW(info.hwndList, WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(count - static_cast<int>(scroll.nPage), ::SendMessageW(info.hwndList, LB_GETTOPINDEX, 0, 0));
    panel.m_cmbLayer.ShowDropDown(FALSE);
}

TEST_F(Panels, OpenAndCloseLeavesNothing) {
    const std::wstring path = Document(L"abc.psd", {u"A", u"B", u"C"});
    expectNoLeak([&] {
        TestPsdPanel panel;
        Create(panel);
        panel.ReadPsdFile(path.c_str());
        panel.Choose(kByLayers);
        panel.m_cmbLayer.ShowDropDown(TRUE);
        Pump();
        panel.DestroyWindow();
        Pump();
    });
}

} // namespace panels_test
