// Which pixel rows of a meter show what, and which rows differ between two states.
#pragma once

#include "QVMeterBallistics.h"

#include <array>

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

// Rows [from, to) that show the same.
struct QVMeterRun {
    int from = 0;
    int to = 0;
    QVMeterRow state = QVMeterRow::Unlit;
};

// A few runs, from the top downwards, none overlapping another.
class QVMeterRuns {
  public:
    void Add(const QVMeterRun& run); // joins the last one when it goes on with the same state
    bool IsEmpty() const { return m_count == 0; }
    const QVMeterRun* begin() const { return m_runs.data(); }
    const QVMeterRun* end() const { return m_runs.data() + m_count; }

  private:
    static constexpr int kMost = 9; // between the edges of two pictures
    std::array<QVMeterRun, kMost> m_runs;
    int m_count = 0;
};

// The rows of the second picture that look different from those of the first: all of them when the heights
// differ.
QVMeterRuns QV_ChangedRuns(const QVMeterPicture& before, const QVMeterPicture& after);

// The rows [from, to) of a picture; rows outside it are left out.
QVMeterRuns QV_MeterRuns(const QVMeterPicture& picture, int from, int to);

} // namespace _qv_extractrl
