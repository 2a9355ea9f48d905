// Every control in every state in one dialog, in both skins and languages: pictures to look at, and what must hold
// of each of them.
#include "ControlsFixture.h"

namespace controls_test {

namespace {

constexpr int kPatchPixels = 16; // single pixels of smooth lines may hit any colour

struct Text {
    int id;
    const wchar_t* english;
};

constexpr Text kEnglish[] = {
    {IDC_GROUP, L"Buttons"},     {IDOK, L"&OK"},
    {IDCANCEL, L"&Cancel"},      {IDC_OFF, L"Disabled"},
    {IDC_PRESSED, L"Pressed"},   {IDC_LATCHED, L"Latched"},
    {IDC_PUSH, L"Focus"},        {IDC_CHECK1, L"Do &not ask again"},
    {IDC_CHECK2, L"Checked"},    {IDC_CHECK3, L"Partly"},
    {IDC_CHECK4, L"Disabled"},   {IDC_RADIO1, L"Flattened"},
    {IDC_RADIO2, L"By layers"},  {IDC_RADIO3, L"Disabled"},
    {IDC_LABEL, L"&File name:"}, {IDC_LABEL_OFF, L"Disabled:"},
    {IDC_TITLE, L"O&pen"},
};

class GalleryDialog : public TestDialog {
  public:
    explicit GalleryDialog(bool chinese) : TestDialog(IDD_GALLERY), m_chinese(chinese) {}

    BOOL OnInitDialog() override {
        m_layers.SubclassDlgItem(IDC_CHECK_COMBO, this);
        CQVDialog::OnInitDialog();
        if (!m_chinese) {
            SetWindowText(L"Control gallery");
            for (const Text& text : kEnglish)
                SetDlgItemText(text.id, text.english);
        }
        Fill();
        return TRUE;
    }

    CQVCheckComboBox m_layers;

  private:
    void Fill() {
        ::SendMessageW(Item(IDC_PRESSED), BM_SETSTATE, TRUE, 0);
        ::SendMessageW(Item(IDC_LATCHED), BM_SETCHECK, BST_CHECKED, 0);
        ::SendMessageW(Item(IDC_CHECK2), BM_SETCHECK, BST_CHECKED, 0);
        ::SendMessageW(Item(IDC_CHECK3), BM_SETCHECK, BST_INDETERMINATE, 0);
        ::SendMessageW(Item(IDC_CHECK4), BM_SETCHECK, BST_CHECKED, 0);
        ::SendMessageW(Item(IDC_RADIO2), BM_SETCHECK, BST_CHECKED, 0);
        for (const int id : {IDC_EDIT, IDC_EDIT_READONLY, IDC_EDIT_OFF})
            SetDlgItemText(id, m_chinese ? L"航拍_0042.psd" : L"Aerial_0042.psd");
        CString lines;
        for (int line = 1; line <= 12; ++line) {
            CString text;
            text.Format(m_chinese ? L"第 %d 行：素材路径\r\n" : L"Line %d: path of the clip\r\n", line);
            lines += text;
        }
        SetDlgItemText(IDC_EDIT_LINES, lines);
        for (const int id : {IDC_LIST_COMBO, IDC_EDIT_COMBO, IDC_OFF_COMBO}) {
            for (const wchar_t* name : {L"*.psd; *.psb", L"*.wav", L"*.png; *.jpg", L"*.*"})
                ::SendMessageW(Item(id), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
            ::SendMessageW(Item(id), CB_SETCURSEL, 0, 0);
        }
        for (const wchar_t* name : {L"Title", L"Sky", L"Background"})
            m_layers.SetCheck(m_layers.AddString(name), name[0] != L'S');
        ::SendMessageW(Item(IDC_PROGRESS), PBM_SETPOS, 60, 0);
        auto* reset = dynamic_cast<CQVButton*>(CWnd::FromHandlePermanent(Item(IDC_ICON_BUTTON)));
        ASSERT_NE(nullptr, reset);
        EXPECT_TRUE(reset->SetImageList(QV_GetSkinPath() + L"\\OPAL\\Reset.png", QVIMAGE_HAS_ALL));
    }

    bool m_chinese;
};

} // namespace

class Gallery : public Controls,
                public ::testing::WithParamInterface<std::pair<const wchar_t*, const wchar_t*>> {};

static std::wstring PathOf(const wchar_t* what, const wchar_t* skin, const wchar_t* language) {
    return qvtest::picturePath(std::wstring(what) + skin + L"-" + language);
}

TEST_P(Gallery, Picture) {
    const auto [skin, language] = GetParam();
    const CString folder = SkinFolder(skin);
    ASSERT_TRUE(QV_SetSkinPath(folder));
    ASSERT_TRUE(QV_SetLanguage(language));
    GalleryDialog dialog(CString(language) == L"zh-CN");
    dialog.Open();
    ::SetFocus(dialog.Item(IDC_PUSH));
    ::SendMessageW(dialog, DM_SETDEFID, IDOK, 0);
    const Picture picture = WindowShot(dialog);
    picture.save(PathOf(L"controls-", skin, language));
    EXPECT_GT(picture.count(QV_GetSysColor(QVCLR_WINDOW)), picture.width() * picture.height() / 4);
    EXPECT_LT(picture.count(::GetSysColor(COLOR_BTNFACE)), kPatchPixels) << "a patch of the system's look";
    ::SendMessageW(dialog.m_layers, CB_SHOWDROPDOWN, TRUE, 0);
    Pump();
    Picture::ofScreen().save(PathOf(L"controls-drop-", skin, language));
    ::SendMessageW(dialog.m_layers, CB_SHOWDROPDOWN, FALSE, 0);
    dialog.DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Skins, Gallery,
                         ::testing::Values(std::pair(L"dark", L"zh-CN"), std::pair(L"dark", L"en-US"),
                                           std::pair(L"light", L"zh-CN"), std::pair(L"light", L"en-US")));

} // namespace controls_test
