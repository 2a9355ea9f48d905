#include "QVMeterRows.h"

#include <algorithm>

namespace _qv_extractrl {

namespace {

// Between two neighbouring edges all rows of a picture show the same.
constexpr int kEdgesOfPicture = 4;
using Edges = std::array<int, kEdgesOfPicture>;

Edges EdgesOf(const QVMeterPicture& picture) {
    return {picture.clipTo, picture.peakFrom, picture.peakTo, picture.litFrom};
}

// Calls action(from, to) for each stretch of rows between `from` and `to` that no edge divides.
template <size_t COUNT, class ACTION>
void ForEachStretch(std::array<int, COUNT> edges, int from, int to, ACTION action) {
    std::sort(edges.begin(), edges.end());
    for (const int edge : edges) {
        const int end = std::clamp(edge, from, to);
        if (end > from)
            action(from, end);
        from = end;
    }
    if (to > from)
        action(from, to);
}

} // namespace

void QVMeterRuns::Add(const QVMeterRun& run) {
    if (m_count > 0) {
        QVMeterRun& last = m_runs[static_cast<size_t>(m_count) - 1];
        if (last.to == run.from && last.state == run.state) {
            last.to = run.to;
            return;
        }
    }
    m_runs[static_cast<size_t>(m_count++)] = run;
}

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

QVMeterRuns QV_ChangedRuns(const QVMeterPicture& before, const QVMeterPicture& after) {
    if (before.height != after.height)
        return QV_MeterRuns(after, 0, after.height);
    std::array<int, 2 * kEdgesOfPicture> edges;
    std::ranges::copy(EdgesOf(after), std::ranges::copy(EdgesOf(before), edges.begin()).out);
    QVMeterRuns runs;
    ForEachStretch(edges, 0, after.height, [&](int from, int to) {
        if (const QVMeterRow state = after.RowAt(from); state != before.RowAt(from))
            runs.Add({from, to, state});
    });
    return runs;
}

QVMeterRuns QV_MeterRuns(const QVMeterPicture& picture, int from, int to) {
    QVMeterRuns runs;
    from = std::max(from, 0);
    to = std::min(to, picture.height);
    if (from >= to)
        return runs;
    ForEachStretch(EdgesOf(picture), from, to, [&](int first, int end) {
        runs.Add({first, end, picture.RowAt(first)});
    });
    return runs;
}

} // namespace _qv_extractrl
