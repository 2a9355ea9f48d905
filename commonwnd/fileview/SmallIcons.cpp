#include "SmallIcons.h"

#include <commctrl.h>
#include <shellapi.h>

namespace _qv_commonwnd {

namespace {

constexpr UINT kSmallPicture = SHGFI_SYSICONINDEX | SHGFI_SMALLICON;

HIMAGELIST PictureOf(LPCWSTR what, DWORD attributes, UINT flags, int& index) {
    SHFILEINFOW info = {};
    const DWORD_PTR images = ::SHGetFileInfoW(what, attributes, &info, sizeof info, kSmallPicture | flags);
    index = info.iIcon;
    return reinterpret_cast<HIMAGELIST>(images);
}

} // namespace

HICON CSmallIcons::Of(const ITEMIDLIST* id) {
    int index = 0;
    if (id) {
        const HIMAGELIST images = PictureOf(reinterpret_cast<LPCWSTR>(id), 0, SHGFI_PIDL, index);
        if (const HICON icon = At(images, index))
            return icon;
    }
    const HIMAGELIST images = PictureOf(L"folder", FILE_ATTRIBUTE_DIRECTORY, SHGFI_USEFILEATTRIBUTES, index);
    return At(images, index);
}

HICON CSmallIcons::At(HIMAGELIST images, int index) {
    if (!images || index < 0)
        return nullptr;
    OwnedIcon& icon = m_icons[index];
    if (!icon)
        icon.reset(::ImageList_GetIcon(images, index, ILD_TRANSPARENT));
    return icon.get();
}

} // namespace _qv_commonwnd
