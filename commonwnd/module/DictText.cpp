#include "DictText.h"

#include "support/TextCase.h"
#include "support/TextView.h"

#include <iterator>

namespace _qv_commonwnd {

namespace {

// Two default texts occur twice; their first rows win. The doubles are kept because the rows are numbered
// from outside.
constexpr DictRow kTemplateTexts[] = {
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

constexpr DictRow kViewMenuTexts[] = {
    {L"图标", L"IDS_COMMON_ICON"},
    {L"列表", L"IDS_COMMON_LIST"},
    {L"详细信息", L"IDS_COMMON_REPORT"},
    {L"缩略图", L"IDS_COMMON_IMAGE"},
};

CString g_strTranslation;

} // namespace

DictTable TemplateTextTable() {
    return {kTemplateTexts, std::size(kTemplateTexts)};
}

DictTable ViewMenuTable() {
    return {kViewMenuTexts, std::size(kViewMenuTexts)};
}

const wchar_t* FindDictKey(const DictTable& table, std::wstring_view text) {
    for (std::size_t i = 0; i < table.count; ++i)
        if (EqualNoCase(table.rows[i].defaultText, text))
            return table.rows[i].key;
    return nullptr;
}

const wchar_t* QV_GetCommonDictText(const wchar_t* text) {
    if (!text || !*text)
        return text;
    const std::wstring_view view(text);
    // The text may be the buffer itself: it is not touched before the look-up.
    if (const wchar_t* key = FindDictKey(TemplateTextTable(), view))
        g_strTranslation = _qv_commonctrl::QV_LoadSysString(key);
    else if (text != g_strTranslation.GetString())
        g_strTranslation.SetString(text, static_cast<int>(view.size()));
    return g_strTranslation;
}

CString QV_GetCommonDictString(const wchar_t* text) {
    return CString(QV_GetCommonDictText(text));
}

void QV_TranslateViewMenu(_qv_commonctrl::CQVMenuEx* menu) {
    if (!menu)
        return;
    constexpr UINT kSeparatorId = 0;
    for (int position = static_cast<int>(menu->GetMenuItemCount()) - 1; position >= 0; --position) {
        const UINT id = menu->GetMenuItemID(position);
        CString text;
        if (id == kSeparatorId || menu->GetMenuStringW(position, text, MF_BYPOSITION) == 0 || text.IsEmpty())
            continue;
        if (const wchar_t* key = FindDictKey(ViewMenuTable(), ViewOf(text)))
            menu->ModifyMenuW(position, MF_BYPOSITION, id, _qv_commonctrl::QV_LoadSysString(key));
    }
}

} // namespace _qv_commonwnd
