#include "QVDBScale.h"

namespace _qv_extractrl {

namespace {

// One straight piece of the scale: from dB (included) upwards.
struct ScalePiece {
    double fromDB;
    double fromPercent;
    double percentPerDB;
};

constexpr ScalePiece kPieces[] = {
    {-20.0, 50.0, 2.5}, {-30.0, 30.0, 2.0}, {-40.0, 15.0, 1.5},
    {-50.0, 7.5, 0.75}, {-60.0, 2.5, 0.5},  {-70.0, 0.0, 0.25},
};

} // namespace

double QVX_DBToPos(double dB) {
    if (dB >= 0.0)
        return 100.0;
    for (const ScalePiece& piece : kPieces) {
        if (dB >= piece.fromDB)
            return (dB - piece.fromDB) * piece.percentPerDB + piece.fromPercent;
    }
    return 0.0;
}

} // namespace _qv_extractrl
