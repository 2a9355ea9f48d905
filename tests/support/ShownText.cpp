#include "ShownText.h"

#include "Picture.h"
#include "WindowQuery.h"

namespace qvtest {

int widthOfText(HWND control) {
    const std::wstring text = textOf(control);
    const HDC dc = ::GetDC(control);
    const HGDIOBJ former =
        ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0)));
    SIZE size = {};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, former);
    ::ReleaseDC(control, dc);
    return size.cx;
}

int widthOfInk(HWND control) {
    const Picture picture = Picture::ofClient(control);
    const COLORREF ground = picture.at(0, 0);
    int first = picture.width();
    int end = 0;
    for (int x = 0; x < picture.width(); ++x) {
        const RECT column = {x, 0, x + 1, picture.height()};
        if (picture.count(ground, column) == picture.height())
            continue;
        first = first < x ? first : x;
        end = x + 1;
    }
    return end > first ? end - first : 0;
}

} // namespace qvtest
