#include "PsdImage.h"

namespace psdtest {

void PsdImage::number(std::uint64_t value, int width, const std::string& name) {
    if (!name.empty())
        m_fields[name] = Field{bytes.size(), width};
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

void PsdImage::text(std::string_view letters) {
    bytes.insert(bytes.end(), letters.begin(), letters.end());
}

void PsdImage::append(const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void PsdImage::zeros(std::size_t count) {
    bytes.insert(bytes.end(), count, std::uint8_t{0});
}

void PsdImage::patch(const std::string& name, std::uint64_t value) {
    const Field field = m_fields.at(name);
    for (int i = 0; i < field.width; ++i)
        bytes.at(field.offset + static_cast<std::size_t>(i)) =
            static_cast<std::uint8_t>(value >> ((field.width - 1 - i) * 8));
}

std::uint64_t PsdImage::valueOf(const std::string& name) const {
    const Field field = m_fields.at(name);
    std::uint64_t value = 0;
    for (int i = 0; i < field.width; ++i)
        value = value << 8 | bytes.at(field.offset + static_cast<std::size_t>(i));
    return value;
}

std::vector<std::string> PsdImage::fieldNames() const {
    std::vector<std::string> names;
    for (const auto& [name, field] : m_fields)
        names.push_back(name);
    return names;
}

} // namespace psdtest
