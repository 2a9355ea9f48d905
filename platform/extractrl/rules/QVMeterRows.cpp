#include "QVMeterRows.h"

#include <algorithm>

namespace _qv_extractrl {

namespace {

void Include(QVRowRange& range, int from, int to) {
    if (from >= to)
        return;
    if (range.IsEmpty()) {
        range = {from, to};
        return;
    }
    range.from = std::min(range.from, from);
    range.to = std::max(range.to, to);
}

} // namespace

QVMeterRow QVMeterPicture::RowAt(int row) const {
    if (row < clipTo)
        return QVMeterRow::ClipMark;
    if (row >= peakFrom && row < peakTo)
        return QVMeterRow::PeakMark;
    return row >= litFrom ? QVMeterRow::Lit : QVMeterRow::Unlit;
}

int QV_MeterRowOfLevel(int level, int height) {
    return height - (level * height + kMeterFull / 2) / kMeterFull;
}

QVMeterPicture QV_GetMeterPicture(const QVMeterBallistics& state, int height, const QVMeterMarks& marks) {
    QVMeterPicture picture;
    picture.height = std::max(height, 0);
    picture.litFrom = QV_MeterRowOfLevel(state.Level(), picture.height);
    // A peak that stands on the level is the top of the bar: a mark of its own would only flicker there.
    if (state.Peak() > state.Level()) {
        picture.peakFrom = QV_MeterRowOfLevel(state.Peak(), picture.height);
        picture.peakTo = std::min(picture.peakFrom + marks.peakHeight, picture.litFrom);
    }
    if (state.IsClipped())
        picture.clipTo = std::min(marks.clipHeight, picture.height);
    return picture;
}

QVRowRange QV_ChangedRows(const QVMeterPicture& before, const QVMeterPicture& after) {
    QVRowRange range;
    if (before.height != after.height) {
        range.to = after.height;
        return range;
    }
    Include(range, std::min(before.litFrom, after.litFrom), std::max(before.litFrom, after.litFrom));
    if (before.peakFrom != after.peakFrom || before.peakTo != after.peakTo) {
        Include(range, before.peakFrom, before.peakTo);
        Include(range, after.peakFrom, after.peakTo);
    }
    Include(range, std::min(before.clipTo, after.clipTo), std::max(before.clipTo, after.clipTo));
    return range;
}

} // namespace _qv_extractrl
