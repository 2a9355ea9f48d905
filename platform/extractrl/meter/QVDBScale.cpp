#include "QVDBScale.h"

namespace _qv_extractrl {

namespace {

struct ScalePoint {
    double dB;
    double percent;
};

// Straight in between.
constexpr ScalePoint kPoints[] = {{0.0, 100.0},  {-3.0, 92.0},  {-6.0, 84.0},  {-12.0, 70.0}, {-20.0, 54.0},
                                  {-30.0, 38.0}, {-40.0, 25.0}, {-60.0, 11.0}, {-120.0, 0.0}};

} // namespace

double QVX_DBToPos(double dB) {
    const ScalePoint* above = kPoints;
    if (dB >= above->dB)
        return above->percent;
    for (const ScalePoint& point : kPoints) {
        if (dB >= point.dB)
            return point.percent +
                   (dB - point.dB) * (above->percent - point.percent) / (above->dB - point.dB);
        above = &point;
    }
    return 0.0;
}

} // namespace _qv_extractrl
