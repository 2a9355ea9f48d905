// Feeds the layer-name reader with any bytes, once from a source that keeps its promise and once from one that
// shrinks meanwhile.
#include "documents/CollectedNames.h"
#include "documents/MemorySource.h"
#include "psd/LayerNames.h"

#include <cstdlib>
#include <ctime>

namespace {

using namespace _qv_commonclass::psd;

// Valid and invalid in turn, so that every way through the guesses is taken.
class AnyDecoder final : public LegacyDecoder {
  public:
    bool decode(LegacyCodePage codePage, std::span<const std::uint8_t> bytes,
                std::u16string& text) const override {
        if (bytes.empty() || (bytes.front() >> static_cast<int>(codePage)) % 2 != 0)
            return false;
        text.assign(bytes.begin(), bytes.end());
        return true;
    }
    bool isSystem(LegacyCodePage codePage) const override { return codePage != LegacyCodePage::ShiftJis; }
    void decodeLossy(std::span<const std::uint8_t> bytes, std::u16string& text) const override {
        text.assign(bytes.size(), u'?');
    }
};

// Ends sooner than its size says.
class ShrinkingSource final : public ByteSource {
  public:
    ShrinkingSource(ByteSource& source, std::uint64_t left) : m_source(source), m_left(left) {}
    std::uint64_t size() const noexcept override { return m_source.size(); }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override {
        const std::uint64_t reach = offset < m_left ? m_left - offset : 0;
        return m_source.readAt(offset, to, static_cast<std::size_t>(std::min<std::uint64_t>(count, reach)));
    }

  private:
    ByteSource& m_source;
    std::uint64_t m_left;
};

void check(bool isRight) {
    if (!isRight)
        std::abort();
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

bool isWellFormed(std::u16string_view name) {
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isHigh = (name[i] & 0xFC00) == 0xD800;
        const bool isLow = (name[i] & 0xFC00) == 0xDC00;
        if (name[i] == 0 || isLow)
            return false;
        if (isHigh && (++i == name.size() || (name[i] & 0xFC00) != 0xDC00))
            return false;
    }
    return true;
}

void readAndCheck(ByteSource& source) {
    // The sanitizers take about ten times the product's own time.
    constexpr double longestSeconds = 1.0;
    const double begin = processorSeconds();
    psdtest::CollectedNames collected;
    readLayerNames(source, AnyDecoder(), collected);
    check(processorSeconds() - begin < longestSeconds);
    check(collected.views().size() <= 32768 && collected.totalUnits() <= kMaxNameUnitsTotal);
    for (const std::u16string_view name : collected.views())
        check(name.size() <= kMaxNameUnits && isWellFormed(name));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const psdtest::Bytes bytes(data, data + size);
    psdtest::MemorySource source(bytes);
    readAndCheck(source);
    check(source.bytesRead <= size); // nothing is read twice
    ShrinkingSource shrinking(source, size - size / 3);
    readAndCheck(shrinking);
    return 0;
}
