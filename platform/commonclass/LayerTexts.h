// The names of a document on their way to the caller's texts.
#pragma once

#include "psd/NameSink.h"

#include <afx.h>
#include <afxcoll.h>

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace _qv_commonclass {

// Each name goes straight into the text that the caller gets. Only the first kStraightUnits do: a damaged document may
// bring millions of characters before it turns out to be one, and thousands of long texts take the heap longer than
// everything else. Those that come later wait in pages until the whole document has been read.
class LayerTexts final : public psd::NameSink {
  public:
    static constexpr std::size_t kStraightUnits = 1 << 18; // 8,000 layers of 32 characters

    void expect(std::size_t atMost) override;
    void append(std::u16string_view name) override;

    // Replaces what is in `names`. May throw when memory runs out; then `names` is as before.
    void moveTo(CStringArray& names);

  private:
    static constexpr std::size_t kPageUnits = 1 << 16;

    struct Waiting {
        const wchar_t* text; // in a page
        int length;
    };

    void wait(std::u16string_view name);

    std::vector<CString> m_texts;
    std::size_t m_straightUnits = 0;
    std::vector<Waiting> m_waiting;
    std::deque<std::wstring> m_pages; // none grows beyond what was reserved for it
};

} // namespace _qv_commonclass
