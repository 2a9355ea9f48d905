#include "DirIcons.h"

#include "FolderEntries.h"
#include "skin/SkinPicture.h"

namespace _qv_commonctrl {

namespace {

constexpr int kIconPx = 16;

constexpr const wchar_t* kFiles[] = {
    L"CommonCtrl\\Icon\\folder.png",  L"CommonCtrl\\Icon\\folder_open.png", L"CommonCtrl\\Icon\\file.png",
    L"CommonCtrl\\Icon\\drive.png",   L"CommonCtrl\\Icon\\computer.png",    L"CommonCtrl\\Icon\\desktop.png",
    L"CommonCtrl\\Icon\\network.png", L"CommonCtrl\\Icon\\user.png",
};
static_assert(std::size(kFiles) == static_cast<std::size_t>(FolderIcon::User) + 1);

bool AddIcon(HIMAGELIST images, CDC& screen, const wchar_t* file, COLORREF ground, int side, UINT dpi) {
    CBitmap bitmap; // outlives what it is selected into
    CDC memory;
    if (!bitmap.CreateCompatibleBitmap(&screen, side, side) || !memory.CreateCompatibleDC(&screen))
        return false;
    {
        const DcSelection selection(memory, bitmap);
        memory.FillSolidRect(0, 0, side, side, ground);
        SkinPicture(file, QVIMAGE_SINGLE, dpi).Draw(&memory, 0, 0, 0);
    }
    return ImageList_Add(images, bitmap, nullptr) >= 0;
}

} // namespace

HIMAGELIST MakeDirIcons(int groundColorIndex, UINT dpi) {
    const int side = QV_ScaleForDpi(kIconPx, dpi);
    const HIMAGELIST images =
        ImageList_Create(side, side, ILC_COLOR24, static_cast<int>(std::size(kFiles)), 0);
    if (!images)
        return nullptr;
    CClientDC screen(nullptr);
    const COLORREF ground = QV_GetSysColor(groundColorIndex);
    for (const wchar_t* file : kFiles) {
        if (!AddIcon(images, screen, file, ground, side, dpi)) {
            ImageList_Destroy(images);
            return nullptr;
        }
    }
    return images;
}

} // namespace _qv_commonctrl
