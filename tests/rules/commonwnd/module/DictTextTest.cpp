// The tables that turn default texts into dictionary keys.
#include "module/DictText.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace _qv_commonwnd;

namespace {

struct KnownRow {
    const wchar_t* text;
    const wchar_t* key;
};

// Written down a second time, by hand: a slip in the product's table shows here.
constexpr KnownRow kKnown[41] = {
    {L"选择路径", L"IDS_COMMON_SELECTPATH"},
    {L"取消", L"IDS_COMMON_CANCEL"},
    {L"确定", L"IDS_COMMON_OK"},
    {L"打开文件", L"IDS_COMMON_OPENFILE"},
    {L"查找范围", L"IDS_COMMON_SEARCHFILE"},
    {L"文件名", L"IDS_COMMON_FILENAME"},
    {L"文件类型", L"IDS_COMMON_FILETYPE"},
    {L"对话框", L"IDS_COMMON_DIALOG"},
    {L"静态", L"IDS_COMMON_STATIC"},
    {L"请选择目录", L"IDS_COMMON_SELECTCATALOG"},
    {L"新建目录", L"IDS_COMMON_CREATECATALOG"},
    {L"目录名", L"PUBLIC_PROPERTY_NAME"},
    {L"创建目录失败", L"IDS_COMMON_CREATECATALOGFAIL"},
    {L"新建", L"IDS_COMMON_NEW"},
    {L"设置位置", L"IDS_COMMON_SETPOS"},
    {L"绝对值", L"IDS_COMMON_ABSVALUE"},
    {L"时码", L"IDS_COMMON_TIMECODE"},
    {L"帧数", L"IDS_COMMON_FRAME"},
    {L"图片起始位置", L"IDS_COMMON_PICPOS"},
    {L"另存为", L"IDS_COMMON_SAVEAS"},
    {L"打开", L"IDS_COMMON_OPEN"},
    {L"保存", L"IDS_COMMON_SAVE"},
    {L"轨道", L"IDS_COMMON_TRACK"},
    {L"输出", L"IDS_COMMON_OUTPUT"},
    {L"输入", L"IDS_COMMON_INPUT"},
    {L"向上", L"IDS_COMMON_UP"},
    {L"向前", L"IDS_COMMON_FORWARD"},
    {L"向后", L"IDS_COMMON_BACKWARD"},
    {L"显示", L"IDS_COMMON_VIEW"},
    {L"文件已经存在,是否需要替换它", L"IDS_COMMON_SAVEHINT"},
    {L"文件名太长", L"IDS_COMMON_FILENAME_TOOLEN"},
    {L"非法字符", L"IDS_CAPTURERENDER_INVALID_CHARACTER"},
    {L"缺省", L"IDS_COMMON_DEFAULT"},
    {L"资源目录", L"IDS_COMMON_RESPATH"},
    {L"文件目录", L"IDS_COMMON_FILEPATH"},
    {L"设置资源信息文件存放目录和视音频文件存放目录", L"IDS_COMMON_PATHSETINFO"},
    {L"静态", L"IDS_CLIPWND_INFOSETSTATIC"},
    {L"是", L"IDS_CLIPWND_INFOSETYES"},
    {L"取消", L"IDS_COMMON_CANCEL"},
    {L"否", L"IDS_CLIPWND_INFOSETNO"},
    {L"不再询问", L"IDS_CLIPWND_INFOSETNOASK"},
};

TEST(TemplateTable, HoldsTheKnownRowsInOrder) {
    const DictTable table = TemplateTextTable();
    ASSERT_EQ(std::size(kKnown), table.count);
    for (std::size_t i = 0; i < table.count; ++i) {
        EXPECT_EQ(kKnown[i].text, table.rows[i].defaultText) << "row " << i + 1;
        EXPECT_STREQ(kKnown[i].key, table.rows[i].key) << "row " << i + 1;
    }
}

TEST(TemplateTable, FirstEqualRowWins) {
    std::map<std::wstring, std::wstring> first;
    for (const KnownRow& row : kKnown)
        first.emplace(row.text, row.key);
    EXPECT_EQ(39u, first.size());
    for (const auto& [text, key] : first)
        EXPECT_EQ(key, FindDictKey(TemplateTextTable(), text));
    EXPECT_STREQ(L"IDS_COMMON_STATIC", FindDictKey(TemplateTextTable(), L"静态"));
}

TEST(TemplateTable, OtherTextsHaveNoKey) {
    for (const wchar_t* other :
         {L"", L"Static", L"静", L"静态 ", L" 静态", L"静态静态", L"文件已经存在，是否需要替换它"})
        EXPECT_EQ(nullptr, FindDictKey(TemplateTextTable(), other)) << testing::PrintToString(other);
}

TEST(Table, IgnoresLetterCase) {
    constexpr DictRow rows[] = {{L"Reset", L"FIRST"}, {L"RESET", L"SECOND"}, {L"Größe", L"THIRD"}};
    const DictTable table = {rows, std::size(rows)};
    EXPECT_STREQ(L"FIRST", FindDictKey(table, L"RESET"));
    EXPECT_STREQ(L"FIRST", FindDictKey(table, L"reset"));
    EXPECT_STREQ(L"THIRD", FindDictKey(table, L"GRÖßE"));
    EXPECT_EQ(nullptr, FindDictKey(table, L"rese"));
    EXPECT_EQ(nullptr, FindDictKey({nullptr, 0}, L"reset"));
}

TEST(ViewMenuTable, HoldsFourRows) {
    const DictTable table = ViewMenuTable();
    ASSERT_EQ(4u, table.count);
    EXPECT_STREQ(L"IDS_COMMON_ICON", FindDictKey(table, L"图标"));
    EXPECT_STREQ(L"IDS_COMMON_LIST", FindDictKey(table, L"列表"));
    EXPECT_STREQ(L"IDS_COMMON_REPORT", FindDictKey(table, L"详细信息"));
    EXPECT_STREQ(L"IDS_COMMON_IMAGE", FindDictKey(table, L"缩略图"));
}

TEST(CommonDictText, EmptyTextsComeBackAsTheyAre) {
    EXPECT_EQ(nullptr, QV_GetCommonDictText(nullptr));
    const wchar_t* empty = L"";
    EXPECT_EQ(empty, QV_GetCommonDictText(empty));
    EXPECT_TRUE(QV_GetCommonDictString(nullptr).IsEmpty());
    EXPECT_TRUE(QV_GetCommonDictString(empty).IsEmpty());
}

TEST(CommonDictText, UnknownTextsComeBackUnchangedInTheBuffer) {
    const wchar_t* unknown = L"Take 1";
    const wchar_t* answer = QV_GetCommonDictText(unknown);
    EXPECT_STREQ(unknown, answer);
    EXPECT_NE(unknown, answer);
    EXPECT_STREQ(unknown, QV_GetCommonDictText(answer)) << "the buffer itself as text";
    const std::wstring huge(260000, L'x');
    EXPECT_EQ(huge, QV_GetCommonDictText(huge.c_str()));
}

TEST(CommonDictText, EveryRowGivesTheDictionarysText) {
    for (const wchar_t* language : {L"zh-CN", L"en-US"}) {
        ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(language));
        for (const KnownRow& row : kKnown) {
            const wchar_t* key = FindDictKey(TemplateTextTable(), row.text);
            const CString expected = _qv_commonctrl::QV_LoadSysString(key);
            EXPECT_STREQ(expected, QV_GetCommonDictText(row.text));
            EXPECT_STRNE(key, expected) << "a key that the dictionary does not know";
            EXPECT_EQ(expected, QV_GetCommonDictString(row.text));
        }
    }
}

TEST(CommonDictText, KeptStringsSurviveTheNextCall) {
    ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(L"en-US"));
    const CString yes = QV_GetCommonDictString(L"是");
    QV_GetCommonDictText(L"否");
    EXPECT_STREQ(yes, QV_GetCommonDictText(L"是"));
    EXPECT_STRNE(yes, QV_GetCommonDictText(L"否"));
}

TEST(ViewMenu, NullDoesNothing) {
    QV_TranslateViewMenu(nullptr);
}

TEST(ViewMenu, TranslatesItsFourTextsAndKeepsTheRest) {
    ASSERT_TRUE(_qv_commonctrl::QV_SetLanguage(L"en-US"));
    _qv_commonctrl::CQVMenuEx menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    const HMENU popup = CreatePopupMenu();
    AppendMenuW(popup, MF_STRING, 7, L"图标");
    AppendMenuW(menu.m_hMenu, MF_STRING, 31039, L"图标");
    AppendMenuW(menu.m_hMenu, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu.m_hMenu, MF_STRING, 31041, L"列表");
    AppendMenuW(menu.m_hMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"详细信息");
    AppendMenuW(menu.m_hMenu, MF_STRING, 5, L"Sort");
    AppendMenuW(menu.m_hMenu, MF_STRING, 6, L"");
    AppendMenuW(menu.m_hMenu, MF_STRING | MF_CHECKED, 31038, L"缩略图");
    QV_TranslateViewMenu(&menu);

    const wchar_t* const keys[] = {L"IDS_COMMON_ICON", nullptr, L"IDS_COMMON_LIST", L"IDS_COMMON_REPORT"};
    const auto textAt = [&](UINT position) {
        CString text;
        menu.GetMenuStringW(position, text, MF_BYPOSITION);
        return text;
    };
    for (UINT i = 0; i < std::size(keys); ++i)
        EXPECT_EQ(keys[i] ? _qv_commonctrl::QV_LoadSysString(keys[i]) : CString(), textAt(i)) << i;
    EXPECT_STREQ(L"Sort", textAt(4));
    EXPECT_STREQ(L"", textAt(5));
    EXPECT_EQ(_qv_commonctrl::QV_LoadSysString(L"IDS_COMMON_IMAGE"), textAt(6));

    EXPECT_EQ(31039u, menu.GetMenuItemID(0));
    EXPECT_TRUE(GetMenuState(menu.m_hMenu, 1, MF_BYPOSITION) & MF_SEPARATOR);
    EXPECT_EQ(popup, GetSubMenu(menu.m_hMenu, 3)) << "a pop-up keeps its menu";
    EXPECT_EQ(31038u, menu.GetMenuItemID(6));
}

} // namespace
