#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace psdtest {

using Bytes = std::vector<std::uint8_t>;

// A document in memory, with the places of its length and count fields by name, so that a test can spoil one
// of them: image.patch("layer0.extra", 0xFFFFFFFF).
class PsdImage {
  public:
    Bytes bytes;

    // Appends a big-endian number of 1, 2, 4 or 8 bytes; a name remembers its place.
    void number(std::uint64_t value, int width, const std::string& name = {});
    void text(std::string_view letters);
    void append(const Bytes& more);
    void zeros(std::size_t count);

    // Overwrites a named field in its own width. Throws std::out_of_range for a name that does not exist.
    void patch(const std::string& name, std::uint64_t value);
    std::uint64_t valueOf(const std::string& name) const;
    std::size_t offsetOf(const std::string& name) const { return m_fields.at(name).offset; }
    int widthOf(const std::string& name) const { return m_fields.at(name).width; }
    bool has(const std::string& name) const { return m_fields.contains(name); }
    std::vector<std::string> fieldNames() const;

  private:
    struct Field {
        std::size_t offset;
        int width;
    };
    std::map<std::string, Field> m_fields;
};

} // namespace psdtest
