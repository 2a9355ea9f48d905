// The pixels of a meter in each of its states, drawn once for all meters of the same size.
#pragma once

#include "QVMeterRows.h"
#include "support/QVGuards.h"

#include <afxwin.h>

#include <memory>
#include <optional>

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
    CQVMeterStrip(const CQVMeterStrip&) = delete;
    CQVMeterStrip& operator=(const CQVMeterStrip&) = delete;

    const QVMeterStripKey& Key() const { return m_key; }
    const QVMeterMarks& Marks() const { return m_marks; }

    // Copies rows of a meter whose top-left corner is at a point of the device context.
    void Draw(HDC dc, POINT at, const QVMeterRuns& runs) const;

    // The strip of a key; kept as long as a meter uses it.
    static std::shared_ptr<const CQVMeterStrip> Get(const QVMeterStripKey& key);

  private:
    void Fill(DWORD* pixels) const;

    QVMeterStripKey m_key;
    QVMeterMarks m_marks;
    // A column as wide as a meter for each state of a row; any row of any meter is a row of it.
    QVOwnedBitmap m_columns;
    std::optional<QVBitmapDC> m_source; // of the columns
};

} // namespace _qv_extractrl
