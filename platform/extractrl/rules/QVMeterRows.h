// Which pixel rows of a meter show what, and which rows differ between two states.
#pragma once

#include "QVMeterBallistics.h"

namespace _qv_extractrl {

// What a row shows. The scale colour itself comes from the row's place.
enum class QVMeterRow { Unlit, Lit, PeakMark, ClipMark };

// The picture of a meter as rows counted from the top (0) of a client area `height` rows high.
struct QVMeterPicture {
    int height = 0;
    int litFrom = 0;              // rows from here to the foot are lit; height: none
    int peakFrom = 0, peakTo = 0; // rows of the peak mark; empty when equal
    int clipTo = 0;               // rows 0..clipTo-1 show the clip mark

    QVMeterRow RowAt(int row) const;
    bool operator==(const QVMeterPicture&) const = default;
};

// Heights of the marks in pixels of the meter.
struct QVMeterMarks {
    int peakHeight;
    int clipHeight;
};

// The first lit row of a level: the foot is 0, the top is 100, halves go up.
int QV_MeterRowOfLevel(int level, int height);

QVMeterPicture QV_GetMeterPicture(const QVMeterBallistics& state, int height, const QVMeterMarks& marks);

// The rows [from, to) outside of which two pictures of the same height are the same. Empty (0, 0) when
// nothing differs; all rows when the heights differ.
struct QVRowRange {
    int from = 0;
    int to = 0;
    bool IsEmpty() const { return from >= to; }
};
QVRowRange QV_ChangedRows(const QVMeterPicture& before, const QVMeterPicture& after);

} // namespace _qv_extractrl
