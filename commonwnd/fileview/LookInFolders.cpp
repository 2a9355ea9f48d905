#include "LookInFolders.h"

#include "ShellItems.h"

#include <algorithm>

namespace _qv_commonwnd {

namespace {

// The desktop's and the computer's folders are listed; others lie on the way to the one in view.
constexpr int kDeepestListed = 1;
constexpr DWORD kFolders = SHCONTF_FOLDERS | SHCONTF_INCLUDEHIDDEN;

int CALLBACK NoteTextLeft(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) {
    if (record->iType != EMR_EXTTEXTOUTW && record->iType != EMR_EXTTEXTOUTA)
        return TRUE;
    // Both records begin alike; only the place and the number of characters are read.
    const auto* text = reinterpret_cast<const EMREXTTEXTOUTW*>(record);
    if (text->emrtext.nChars == 0) // the ground is filled
        return TRUE;
    *reinterpret_cast<int*>(data) = text->emrtext.ptlReference.x;
    return FALSE;
}

} // namespace

std::vector<int> DepthsOf(const std::vector<int>& textLefts) {
    std::vector<int> steps(textLefts);
    std::sort(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    std::vector<int> depths;
    depths.reserve(textLefts.size());
    for (const int left : textLefts)
        depths.push_back(
            static_cast<int>(std::lower_bound(steps.begin(), steps.end(), left) - steps.begin()));
    return depths;
}

void CLookInFolders::SetWindows(HWND combo, HWND frame) {
    m_combo = combo;
    m_frame = frame;
    m_known = false;
    m_rows.clear();
    m_inView.reset();
    m_inViewIcon = nullptr;
}

int CLookInFolders::RowCount() const {
    const LRESULT count = m_combo ? ::SendMessageW(m_combo, CB_GETCOUNT, 0, 0) : 0;
    return count > 0 ? static_cast<int>(count) : 0;
}

CString CLookInFolders::Text(int row) const {
    CString text;
    const LRESULT length =
        row < 0 || !m_combo ? CB_ERR : ::SendMessageW(m_combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length <= 0)
        return text;
    wchar_t* const buffer = text.GetBuffer(static_cast<int>(length) + 1);
    const LRESULT stored =
        ::SendMessageW(m_combo, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer(stored < 0 ? 0 : static_cast<int>(stored));
    return text;
}

// Lets the dialog draw a row into a record of drawing orders.
int CLookInFolders::TextLeft(int row) const {
    constexpr RECT kPlace = {0, 0, 400, 20};
    int left = 0;
    const HDC record = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    if (!record)
        return left;
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_COMBOBOX;
    draw.CtlID = static_cast<UINT>(::GetDlgCtrlID(m_combo));
    draw.itemID = static_cast<UINT>(row);
    draw.itemAction = ODA_DRAWENTIRE;
    draw.hwndItem = m_combo;
    draw.hDC = record;
    draw.rcItem = kPlace;
    draw.itemData =
        static_cast<ULONG_PTR>(::SendMessageW(m_combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
    ::SendMessageW(m_frame, WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
    if (const HENHMETAFILE orders = ::CloseEnhMetaFile(record)) {
        ::EnumEnhMetaFile(nullptr, orders, NoteTextLeft, &left, nullptr);
        ::DeleteEnhMetaFile(orders);
    }
    return left;
}

void CLookInFolders::Know() {
    if (m_known)
        return;
    m_known = true;
    m_rows.clear();
    const int count = RowCount();
    std::vector<int> lefts;
    lefts.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row)
        lefts.push_back(TextLeft(row));
    const std::vector<int> depths = DepthsOf(lefts);
    const bool isIndented = std::any_of(depths.begin(), depths.end(), [](int depth) { return depth > 0; });
    const OwnedItemId inView = FolderInView(m_frame);
    for (std::size_t row = 0; row < depths.size(); ++row) {
        m_rows.push_back(isIndented ? RowAt(row, depths[row], inView.get())
                                    : RowByItsPlace(row, inView.get()));
        m_rows.back().icon = m_icons.Of(m_rows.back().id.get());
    }
}

CLookInFolders::Row CLookInFolders::RowAt(std::size_t row, int depth, const ITEMIDLIST* inView) const {
    Row found;
    found.depth = depth;
    found.id = FindItem(row, depth, inView);
    return found;
}

// A dialog that draws all rows at one place does not show how deep they stand: a row lies in the nearest one above that
// has such a folder.
CLookInFolders::Row CLookInFolders::RowByItsPlace(std::size_t row, const ITEMIDLIST* inView) const {
    const int deepest = row == 0 ? 0 : m_rows[row - 1].depth + 1;
    for (int depth = deepest; depth > 0; --depth) {
        Row found = RowAt(row, depth, inView);
        if (found.id)
            return found;
    }
    return RowAt(row, row == 0 ? 0 : 1, inView);
}

const CLookInFolders::Row* CLookInFolders::ParentOf(std::size_t row, int depth) const {
    for (std::size_t above = row; above-- > 0;)
        if (m_rows[above].depth == depth - 1)
            return &m_rows[above];
    return nullptr;
}

OwnedItemId CLookInFolders::FindItem(std::size_t row, int depth, const ITEMIDLIST* inView) const {
    if (depth == 0)
        return DesktopItem();
    const Row* const parent = ParentOf(row, depth);
    if (!parent || !parent->id)
        return nullptr;
    const CString name = Text(static_cast<int>(row));
    OwnedItemId onTheWay = AncestorAt(inView, depth);
    if (onTheWay && HasName(onTheWay.get(), name))
        return onTheWay;
    return parent->depth <= kDeepestListed ? ChildNamed(parent->id.get(), name, kFolders) : nullptr;
}

int CLookInFolders::Depth(int row) {
    Know();
    return row < 0 || static_cast<std::size_t>(row) >= m_rows.size()
               ? 0
               : m_rows[static_cast<std::size_t>(row)].depth;
}

HICON CLookInFolders::Icon(int row) {
    Know();
    return row < 0 || static_cast<std::size_t>(row) >= m_rows.size()
               ? nullptr
               : m_rows[static_cast<std::size_t>(row)].icon;
}

HICON CLookInFolders::IconOfFolderInView() {
    OwnedItemId id = FolderInView(m_frame);
    if (!m_inViewIcon || !SameItem(id.get(), m_inView.get())) {
        m_inViewIcon = m_icons.Of(id.get());
        m_inView = std::move(id);
    }
    return m_inViewIcon;
}

} // namespace _qv_commonwnd
