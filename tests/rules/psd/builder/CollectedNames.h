#pragma once

#include "psd/NameSink.h"
#include <string>
#include <vector>

namespace psdtest {

// The names that a reading has given so far.
class CollectedNames final : public _qv_commonclass::psd::NameSink {
  public:
    void expect(std::size_t atMost) override { names.reserve(atMost); }
    void append(std::u16string_view name) override {
        names.emplace_back(name);
        totalUnits += name.size();
    }

    std::vector<std::u16string> names;
    std::size_t totalUnits = 0;
};

} // namespace psdtest
