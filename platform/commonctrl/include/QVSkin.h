// QVSkin.h: the colours, fonts, brushes, pens and images of the current skin, by index.
//
//     CBrush ground(_qv_commonctrl::QV_GetSysColor(_qv_commonctrl::QVCLR_WINDOW));
//     dc.SelectObject(_qv_commonctrl::QV_GetSysFont(_qv_commonctrl::QVFONT_UI));
//
// A skin is a folder: `skin.txt` (index, role name, value) and PNG images below it. All functions run on the
// user-interface thread. Nothing here fails visibly: an index, file or image that the skin lacks is answered
// from the default skin that is built into the DLL, and one line in the debugger output names it once.
#pragma once

#include "QVDpi.h"

namespace _qv_commonctrl {

// Colour indexes that the library's windows use. Indexes that share a line share a role.
enum QVSkinColor : int {
    QVCLR_TEXT = 8,               // text on panels and meters
    QVCLR_TEXT_WINDOW = 9,        // text on the window background, captions
    QVCLR_TEXT_LIST = 10,         // second text: list rows
    QVCLR_TEXT_DISABLED = 12,     // text of disabled controls
    QVCLR_TEXT_SELECTED = 13,     // text on the selection
    QVCLR_GROUND = 15,            // ground of the chooser and of shell lists
    QVCLR_TREE = 16,              // ground of trees
    QVCLR_WINDOW = 18,            // ground of dialogs
    QVCLR_CAPTION = 19,           // caption band
    QVCLR_CAPTION_LINE = 23,      // hairline under the caption band
    QVCLR_FRAME_OUTER = 25,       // outer frame of windows
    QVCLR_FRAME_INNER = 27,       // inner frame of windows
    QVCLR_CLOSE_INACTIVE = 59,    // close button, inactive frame: 59 normal, 60 hot, 61 pressed, 62 disabled
    QVCLR_CLOSE_ACTIVE = 64,      // close button, active frame: 64 normal, 65 hot, 66 pressed, 67 disabled
    QVCLR_LIST = 122,             // ground of lists and edits
    QVCLR_COMBO_LIST = 159,       // ground of drop-down lists
    QVCLR_SELECTION = 160,        // selection
    QVCLR_EDIT_FRAME_OUTER = 220, // edit frame, outer line
    QVCLR_EDIT_FRAME_INNER = 221, // edit frame, inner line
    QVCLR_TREE_FRAME = 222,       // frame round trees
    QVCLR_LIST_FRAME = 233,       // frame round lists
    QVCLR_PANEL = 525,            // ground of meter panels
    QVCLR_TEXT_TREE = 536,        // text of trees and of the chooser's caption
    QVCLR_TEXT_TITLE = 705,       // group titles
    QVCLR_METER_SAFE = 740,       // meter strip below the alignment range
    QVCLR_METER_HIGH = 741,       // meter strip in the high range
    QVCLR_METER_OVER = 742,       // meter strip near full scale, clip mark
    QVCLR_METER_WELL = 743,       // unlit meter
    QVCLR_METER_PEAK = 744,       // peak hold mark
    QVCLR_PANEL_RAISED = 730,     // raised rounded panels
    QVCLR_CTRL_NORMAL = 800,      // push buttons, combo arrows: normal
    QVCLR_CTRL_HOT = 801,         // the same under the mouse
    QVCLR_CTRL_PRESSED = 802,     // the same pressed
    QVCLR_CTRL_DISABLED = 803,    // the same disabled
    QVCLR_CTRL_BORDER = 804,      // hairline round controls
    QVCLR_ACCENT = 805,           // focus ring, check marks, progress, default button
    QVCLR_SCROLL_TRACK = 806,     // trough of scroll bars
    QVCLR_HEADER = 807,           // list header cells
    QVCLR_GRID = 808,             // grid lines, separators
    QVCLR_SCROLL_THUMB = 809,     // thumb of scroll bars: 809 normal, 810 under the mouse, 811 dragged
    QVCLR_SCROLL_THUMB_HOT = 810,
    QVCLR_SCROLL_THUMB_PRESSED = 811,
    QVCLR_ICON = 820,              // lines of icons
    QVCLR_ICON_FOLDER = 821,       // back of a folder icon
    QVCLR_ICON_FOLDER_FRONT = 822, // its front
    QVCLR_ICON_FILE = 823,         // lines of file and drive icons
};

// Font indexes. The faces differ per script: see QV_GetFontIndex.
enum QVSkinFont : int {
    QVFONT_UI = 13,       // texts of controls (face chosen for the current language)
    QVFONT_TITLE = 14,    // group titles, semibold
    QVFONT_UI_LATIN = 15, // texts in Latin, Greek and Cyrillic scripts
    QVFONT_UI_CJK = 16,   // texts with Chinese, Japanese or Korean characters
    QVFONT_MONO = 17,     // timecodes and figures (digits of equal width)
};

// Pen ids for QV_LoadPen.
enum QVSkinPen : int {
    QVPEN_SCALE_TICK = 532,   // tick of a dB scale
    QVPEN_SCALE_SHADOW = 533, // the line above it
};

// Brush indexes for QV_GetSysBrush.
enum QVSkinBrush : int {
    QVBRUSH_WINDOW = 0, // ground of windows (colour 18)
    QVBRUSH_CHILD = 1,  // ground behind child controls of the file dialog and trees (colour 18 / 16)
    QVBRUSH_LIST = 2,   // ground of lists and of the edit fields in them (colour 122)
};

// Text styles, as SetTextStyle of a static text takes them.
enum QVTextStyle : int {
    QVTEXT_LABEL = 18, // label on the window ground
};

// Kinds of image for QV_LoadImageEx: how many state frames of equal width lie side by side.
enum QVImageType : int {
    QVIMAGE_SINGLE = 1,  // one picture
    QVIMAGE_STATES = 11, // four frames: normal, hot, pressed, disabled
};

// Which states a strip of frames holds (the count argument of CQVButton::SetImageList), from left to right.
enum QVImageStates : int {
    QVIMAGE_HAS_NORMAL = 1,
    QVIMAGE_HAS_HOT = 2,
    QVIMAGE_HAS_PRESSED = 4,
    QVIMAGE_HAS_DISABLED = 8,
    QVIMAGE_HAS_ALL = 15,
};

// An image of the skin: 32-bit pixels with premultiplied alpha, cut into frames of equal width.
class CQVSkinImage;

// Chooses a skin. `folder` is the full path of a folder with a skin.txt, without a trailing backslash; null
// or empty goes back to the folder `skin\dark` beside the DLL's own folder. Every open skinned window gets
// OnSkinChange and repaints before the call returns. FALSE (and the built-in default skin) when the folder or
// its data file cannot be read at all.
QVCOMMONCTRL_API BOOL QV_SetSkinPath(LPCWSTR folder);

// The current skin's folder, without a trailing backslash. Never empty.
QVCOMMONCTRL_API CString QV_GetSkinPath();

// Counts up with every change of skin; a cache of drawn pixels keeps it in its key.
QVCOMMONCTRL_API UINT QV_GetSkinGeneration();

// The colour of an index. An index that no skin knows is magenta, so that it is seen.
QVCOMMONCTRL_API COLORREF QV_GetSysColor(int index);

// The font of an index at the given DPI (0: 96). Owned by the skin, valid until the skin or language changes;
// never null. An unknown index gives QVFONT_UI.
QVCOMMONCTRL_API CFont* QV_GetSysFont(int index, UINT dpi = 0);

// The index of the UI font that suits a text's script: QVFONT_UI_CJK when it holds a CJK character, else
// QVFONT_UI_LATIN; null or empty gives QVFONT_UI.
QVCOMMONCTRL_API int QV_GetFontIndex(LPCWSTR text);

// A solid brush owned by the skin, valid until the skin changes; suits as result of WM_CTLCOLOR.
QVCOMMONCTRL_API HBRUSH QV_GetSysBrush(int index);

// A pen by id: the caller releases it with QV_ReleaseCommonRes. Never null.
QVCOMMONCTRL_API CPen* QV_LoadPen(int id);

// Loads a PNG with the system's codecs. `type` is a QVImageType; `cx` and `cy` are the wanted frame size in
// pixels, 0 keeps the image's own. The same file is decoded once and shared; the caller releases each result
// with QV_ReleaseCommonRes. A path inside the current skin folder that is missing or broken is answered with
// the built-in default skin's image of the same relative path; null when there is none either.
QVCOMMONCTRL_API CQVSkinImage* QV_LoadImageEx(LPCWSTR path, int type, int cx, int cy);

// Gives back what QV_LoadPen or QV_LoadImageEx returned and clears the caller's pointer. Null does nothing.
QVCOMMONCTRL_API void QV_ReleaseCommonRes(CPen*& pen);
QVCOMMONCTRL_API void QV_ReleaseCommonRes(CQVSkinImage*& image);

// Size in pixels of one frame of an image; (0, 0) for null.
QVCOMMONCTRL_API CSize QV_GetImageSize(const CQVSkinImage* image);

// Draws frame `frame` (0-based; bounded to the last one) with its alpha at (x, y). Null draws nothing.
QVCOMMONCTRL_API void QV_DrawImage(CDC* dc, const CQVSkinImage* image, int frame, int x, int y);

// A lighter shade for borders: d = 30 * max(255-R, 255-G, 255-B) / 255 (integer division), every channel
// raised by d and capped at 255.
QVCOMMONCTRL_API COLORREF QV_LightenColor(COLORREF color);

} // namespace _qv_commonctrl
