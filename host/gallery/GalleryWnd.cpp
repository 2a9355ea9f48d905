#include "GalleryWnd.h"

#include "WindowPicture.h"

#include "res/resource.h"

#include <algorithm>

using namespace _qv_commonctrl;

namespace {

// The column of buttons, pixels at 96 DPI.
constexpr int kColumnLeftPx = 16;
constexpr int kColumnTopPx = 12;
constexpr int kColumnWidthPx = 226;
constexpr int kTitleHeightPx = 18;
constexpr int kButtonHeightPx = 24;
constexpr int kButtonGapPx = 4;
constexpr int kGroupGapPx = 12;

struct GroupTitle {
    GalleryGroup group;
    const wchar_t* key;
};
constexpr GroupTitle kGroups[] = {{GalleryGroup::Files, L"IDS_GALLERY_GROUP_FILES"},
                                  {GalleryGroup::Folders, L"IDS_GALLERY_GROUP_FOLDERS"},
                                  {GalleryGroup::Messages, L"IDS_GALLERY_GROUP_MESSAGES"},
                                  {GalleryGroup::Values, L"IDS_GALLERY_GROUP_VALUES"},
                                  {GalleryGroup::Meters, L"IDS_GALLERY_GROUP_METERS"}};

struct Choice {
    const wchar_t* value;
    const wchar_t* text; // shown as it stands
};
constexpr Choice kLanguages[] = {{L"zh-CN", L"简体中文"}, {L"en-US", L"English"}};
constexpr const wchar_t* kSkins[] = {L"dark", L"light"};
constexpr const wchar_t* kSkinKeys[] = {L"IDS_GALLERY_SKIN_DARK", L"IDS_GALLERY_SKIN_LIGHT"};

CString SkinFolder(LPCWSTR name) {
    const CString current = QV_GetSkinPath();
    const int cut = current.ReverseFind(L'\\');
    return (cut < 0 ? current : current.Left(cut + 1)) + name;
}

// Sent by a program that takes pictures of the gallery's windows: wParam the window, lParam a global atom with the
// picture's name. The answer is TRUE when the picture was written.
const UINT kSavePicture = ::RegisterWindowMessageW(L"QVGallery.SavePicture");
constexpr int kAtomChars = 256;

} // namespace

BEGIN_MESSAGE_MAP(CGalleryWnd, CQVDialog)
    ON_COMMAND_RANGE(IDC_GALLERY_FIRST_ITEM, IDC_GALLERY_LAST_ITEM, &CGalleryWnd::OnItem)
    ON_CBN_SELCHANGE(IDC_GALLERY_LANGUAGE, &CGalleryWnd::OnLanguage)
    ON_CBN_SELCHANGE(IDC_GALLERY_SKIN, &CGalleryWnd::OnSkin)
    ON_REGISTERED_MESSAGE(kSavePicture, &CGalleryWnd::OnSavePicture)
END_MESSAGE_MAP()

CGalleryWnd::CGalleryWnd(const GalleryOptions& options)
    : CQVDialog(IDD_GALLERY), m_options(options), m_log(options.log) {
}

CWnd* CGalleryWnd::MainWnd() {
    return this;
}

CString CGalleryWnd::SampleFolder() {
    return m_options.samples;
}

void CGalleryWnd::Report(LPCWSTR name, const CString& value) {
    m_log.Write(name, value);
    m_results.Add(name, value);
}

BOOL CGalleryWnd::OnInitDialog() {
    CreateItems();
    CQVDialog::OnInitDialog();
    m_results.Attach(::GetDlgItem(m_hWnd, IDC_GALLERY_RESULTS));
    FillLanguages();
    ShowTexts();
    LogButtons();
    return TRUE;
}

// Tells a program that watches the log which button stands for which entry: "id name".
void CGalleryWnd::LogButtons() {
    const auto& items = GalleryItems();
    for (size_t i = 0; i < items.size(); ++i) {
        CString line;
        line.Format(L"%u %s", IDC_GALLERY_FIRST_ITEM + static_cast<UINT>(i), items[i].name);
        m_log.Write(L"button", line);
    }
}

void CGalleryWnd::OnOK() {
}

// The buttons are made before the base initialises, so that it skins them as it does the template's controls. A group
// that does not fit below the others begins a second column.
void CGalleryWnd::CreateItems() {
    auto px = [this](int value) { return QV_ScalePx(m_hWnd, value); };
    CRect client;
    GetClientRect(&client);
    CPoint corner(px(kColumnLeftPx), px(kColumnTopPx));
    for (const auto& title : kGroups) {
        const int height = GroupHeight(title.group);
        if (height == 0)
            continue;
        if (corner.y + height > client.bottom && corner.y > px(kColumnTopPx))
            corner = CPoint(corner.x + px(kColumnWidthPx + kColumnLeftPx), px(kColumnTopPx));
        CreateGroup(title.group, corner);
        corner.y += height + px(kGroupGapPx);
    }
}

int CGalleryWnd::GroupHeight(GalleryGroup group) const {
    const auto& items = GalleryItems();
    const auto count = static_cast<int>(std::count_if(
        items.begin(), items.end(), [&](const GalleryItem& item) { return item.group == group; }));
    return count == 0 ? 0 : QV_ScalePx(m_hWnd, kTitleHeightPx + count * (kButtonGapPx + kButtonHeightPx));
}

void CGalleryWnd::CreateGroup(GalleryGroup group, CPoint corner) {
    auto px = [this](int value) { return QV_ScalePx(m_hWnd, value); };
    CreateControl(L"STATIC", SS_LEFT | SS_CENTERIMAGE,
                  CRect(corner, CSize(px(kColumnWidthPx), px(kTitleHeightPx))),
                  IDC_GALLERY_FIRST_GROUP + static_cast<UINT>(group));
    corner.y += px(kTitleHeightPx + kButtonGapPx);
    const auto& items = GalleryItems();
    for (size_t i = 0; i < items.size(); ++i) {
        if (items[i].group != group)
            continue;
        CreateControl(L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP,
                      CRect(corner, CSize(px(kColumnWidthPx), px(kButtonHeightPx))),
                      IDC_GALLERY_FIRST_ITEM + static_cast<UINT>(i));
        corner.y += px(kButtonHeightPx + kButtonGapPx);
    }
}

void CGalleryWnd::CreateControl(const wchar_t* windowClass, DWORD style, const CRect& rect, UINT id) {
    ::CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | style, rect.left, rect.top, rect.Width(),
                      rect.Height(), m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                      AfxGetInstanceHandle(), nullptr);
}

void CGalleryWnd::FillLanguages() {
    const CString language = QV_GetLanguage();
    for (const auto& choice : kLanguages) {
        const LRESULT index =
            SendDlgItemMessage(IDC_GALLERY_LANGUAGE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.text));
        if (language.CompareNoCase(choice.value) == 0)
            SendDlgItemMessage(IDC_GALLERY_LANGUAGE, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

// All texts come from the dictionary, so a change of language shows at once.
void CGalleryWnd::ShowTexts() {
    SetWindowText(QV_LoadSysString(L"IDS_GALLERY_TITLE"));
    SetDlgItemText(IDC_GALLERY_LANGUAGE_LABEL, QV_LoadSysString(L"IDS_GALLERY_LANGUAGE"));
    SetDlgItemText(IDC_GALLERY_SKIN_LABEL, QV_LoadSysString(L"IDS_GALLERY_SKIN"));
    SetDlgItemText(IDC_GALLERY_RESULTS_LABEL, QV_LoadSysString(L"IDS_GALLERY_RESULTS"));
    for (const auto& title : kGroups)
        SetDlgItemText(IDC_GALLERY_FIRST_GROUP + static_cast<int>(title.group), QV_LoadSysString(title.key));
    const auto& items = GalleryItems();
    for (size_t i = 0; i < items.size(); ++i)
        SetDlgItemText(IDC_GALLERY_FIRST_ITEM + static_cast<int>(i), QV_LoadSysString(items[i].titleKey));
    m_results.ShowTexts();
    ShowSkins();
}

void CGalleryWnd::ShowSkins() {
    const CString current = QV_GetSkinPath();
    SendDlgItemMessage(IDC_GALLERY_SKIN, CB_RESETCONTENT, 0, 0);
    for (size_t i = 0; i < std::size(kSkins); ++i) {
        const CString text = QV_LoadSysString(kSkinKeys[i]);
        SendDlgItemMessage(IDC_GALLERY_SKIN, CB_ADDSTRING, 0,
                           reinterpret_cast<LPARAM>(static_cast<LPCWSTR>(text)));
        if (current.CompareNoCase(SkinFolder(kSkins[i])) == 0)
            SendDlgItemMessage(IDC_GALLERY_SKIN, CB_SETCURSEL, i, 0);
    }
}

void CGalleryWnd::OnItem(UINT id) {
    const size_t index = id - IDC_GALLERY_FIRST_ITEM;
    if (index < GalleryItems().size() && !m_bRunning)
        RunItem(GalleryItems()[index]);
}

void CGalleryWnd::RunItem(const GalleryItem& item) {
    m_bRunning = true;
    m_log.Write(L"open", item.name);
    item.run(*this);
    m_log.Write(L"closed", item.name);
    m_bRunning = false;
}

void CGalleryWnd::OnLanguage() {
    const LRESULT index = SendDlgItemMessage(IDC_GALLERY_LANGUAGE, CB_GETCURSEL, 0, 0);
    if (index >= 0 && QV_SetLanguage(kLanguages[index].value))
        ShowTexts();
}

void CGalleryWnd::OnSkin() {
    const LRESULT index = SendDlgItemMessage(IDC_GALLERY_SKIN, CB_GETCURSEL, 0, 0);
    if (index >= 0)
        QV_SetSkinPath(SkinFolder(kSkins[index]));
}

LRESULT CGalleryWnd::OnSavePicture(WPARAM window, LPARAM name) {
    wchar_t text[kAtomChars] = {};
    if (m_options.pictures.IsEmpty() || !::GlobalGetAtomNameW(static_cast<ATOM>(name), text, kAtomChars))
        return FALSE;
    return SaveWindowPicture(reinterpret_cast<HWND>(window), m_options.pictures + L"\\" + text + L".png");
}
