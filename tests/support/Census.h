// Counts what this process holds of the system: windows, menus, icons, accelerators, GDI objects by kind,
// kernel handles, threads and heap blocks. One census takes about 0.1 s.
//
//   Census before = Census::take();
//   useTheWindow();
//   EXPECT_EQ("", Census::take().moreThan(before));
//
// What is loaded or cached at first use counts as well: run the code under test once before the first census.
// LeakGuard.h does that.
#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace qvtest {

class Census {
  public:
    // Counts this moment.
    static Census take();

    // The platform's heap, with its checks on, takes freed blocks back only after a thousand later ones, and counts
    // them until then. Fills that queue, so that code which frees all it takes leaves the count as it was. Call it
    // once before the first of two censuses that compare heap blocks.
    static void fillQueueOfFreedBlocks();

    // By kind: "window", "menu", "icon", "accelerator", "pen", "brush", "bitmap", "font", "region",
    // "palette", "memory dc", "window dc", "metafile", "kernel handle", "thread", "heap block". 0 for none.
    long count(const std::string& kind) const;

    long long heapBytes() const { return m_heapBytes; }

    // Kinds of which this census has more (or fewer) than the other, as "bitmap +1, window -2"; empty when
    // all are equal. Heap blocks are compared only when heapTolerance is not negative, and may then differ by
    // that many.
    std::string moreThan(const Census& before, long heapTolerance = -1) const;

    // This census and what was added from one other to a later one.
    Census plusGrowth(const Census& from, const Census& to) const;

  private:
    void countGdi();
    void countUser();
    void countKernel();
    void countThreads();
    void countHeaps();

    std::map<std::string, long> m_counts;
    long long m_heapBytes = 0;
};

} // namespace qvtest
