// MediaCheck.h: real work for a progress window: reads files on a thread of its own and sums up their bytes.
#pragma once

#include "media/FolderFiles.h"

#include <cstdint>

class CMediaCheck {
  public:
    explicit CMediaCheck(std::vector<FolderFile> files);

    static constexpr int kRange = 1000; // of the progress bar

    // Reads block by block, reporting to the progress window after each, until all files are read or the user has
    // cancelled; then ends the window. On the worker's thread.
    void Run();

    int Checked() const { return m_checked; } // files that were read whole
    LONGLONG Bytes() const { return m_done; }
    std::uint32_t Sum() const { return m_sum; }

  private:
    bool Read(const FolderFile& file);
    void ReportPosition() const;

    std::vector<FolderFile> m_files;
    LONGLONG m_total = 0; // bytes
    LONGLONG m_done = 0;
    std::uint32_t m_sum = 0;
    std::vector<std::uint8_t> m_block;
    int m_checked = 0;
};
