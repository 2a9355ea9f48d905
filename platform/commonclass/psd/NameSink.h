// NameSink: takes the names of a document while it is read.
#pragma once

#include <cstddef>
#include <string_view>

namespace _qv_commonclass::psd {

// Takes the names of a document one by one while it is read.
class NameSink {
  public:
    virtual ~NameSink() = default;

    // Comes before the names of a layer list: there will be at most so many. May throw std::bad_alloc.
    virtual void expect(std::size_t atMost) = 0;

    // name is valid during the call. May throw std::bad_alloc.
    virtual void append(std::u16string_view name) = 0;
};

} // namespace _qv_commonclass::psd
