// The pixels of a meter in each of its states, drawn once for all meters of the same size.
#pragma once

#include "rules/QVMeterRows.h"

#include <afxwin.h>

#include <memory>
#include <vector>

namespace _qv_extractrl {

// Everything that changes the picture.
struct QVMeterStripKey {
    int width;
    int height;
    UINT dpi;
    UINT skinGeneration;
    bool operator==(const QVMeterStripKey&) const = default;
};

class CQVMeterStrip {
  public:
    explicit CQVMeterStrip(const QVMeterStripKey& key);

    const QVMeterStripKey& Key() const { return m_key; }
    const QVMeterMarks& Marks() const { return m_marks; }

    // Copies rows [range.from, range.to) of a meter's picture to the same rows of a device context. Rows
    // outside the picture are left out.
    void Draw(HDC dc, const QVMeterPicture& picture, QVRowRange range) const;

    // The strip of a key; kept as long as a meter uses it.
    static std::shared_ptr<const CQVMeterStrip> Get(const QVMeterStripKey& key);

  private:
    using Pixels = std::vector<DWORD>;

    void FillScale();
    const DWORD* RowPixels(QVMeterRow state, int row) const;

    QVMeterStripKey m_key;
    QVMeterMarks m_marks;
    Pixels m_lit;
    Pixels m_unlit;
    Pixels m_peak; // one row
    Pixels m_clip; // one row
};

} // namespace _qv_extractrl
