#include "BoundedReading.h"
#include <gtest/gtest.h>

// Documents broken in more than one field at a time, or by what stands beside the records.
namespace psdtest {

namespace {

constexpr std::uint64_t kWrapping64[] = {0x8000000000000000, 0x7FFFFFFFFFFFFFFF, ~std::uint64_t{0},
                                         ~std::uint64_t{0} - 11};

// So long that a record is not looked at as a whole.
constexpr std::size_t kLongBytes = 20'000;

Document inBlock(Document document) {
    document.placement = Placement::Lr16;
    return document;
}

TEST(PsdHostileShapes, EveryChannelCount) {
    const Document two = [] {
        Document document;
        document.layers = {layer(u"A"), layer(u"B")};
        return document;
    }();
    PsdImage image = build(two);
    for (std::uint64_t channels = 0; channels <= 0xFFFF; ++channels) {
        image.patch("layer0.channels", channels);
        const Reading reading = readBounded(image.bytes, Memory::Unwatched);
        ASSERT_EQ(reading.result == ReadResult::Done, channels == 1) << channels;
    }
}

TEST(PsdHostileShapes, ChannelLengthsWhoseSumWraps) {
    for (const bool isPsb : {false, true}) {
        Document document;
        document.isPsb = isPsb;
        document.layers = {layer(u"A"), layer(u"B")};
        for (Layer& each : document.layers)
            each.channels = 4;
        PsdImage image = build(document);
        for (const std::string owner : {"layer0", "layer1"})
            for (int channel = 0; channel < 4; ++channel)
                image.patch(owner + ".channel" + std::to_string(channel) + ".length",
                            isPsb ? 0x4000000000000000 : 0x40000000);
        EXPECT_EQ(readBounded(image.bytes).names, (Names{u"A", u"B"})); // pixels are never looked at
    }
}

TEST(PsdHostileShapes, LayerInfoOfEveryLength) {
    const PsdImage whole = build(everything()); // of length 0, the records are taken for what follows them
    const std::uint64_t right = whole.valueOf("info");
    const std::uint64_t records = whole.offsetOf("recordsEnd") - whole.offsetOf("count");
    for (std::uint64_t length = 0; length <= right + 8; ++length) {
        SCOPED_TRACE(length);
        PsdImage image = whole;
        image.patch("info", length);
        const Reading reading = readBounded(image.bytes, Memory::Unwatched);
        EXPECT_EQ(reading.result, length >= records ? ReadResult::Done : ReadResult::Damaged);
    }
}

TEST(PsdHostileShapes, LengthsOfWideBlocks) {
    Layer one = layer(u"unseen");
    one.legacyName = "seen";
    one.blocksBefore.push_back({"FEid", Bytes(4, 1)});
    Document document;
    document.isPsb = true;
    document.layers = {one, layer(u"B")};
    PsdImage image = build(document);
    for (const std::uint64_t length : kWrapping64) {
        image.patch("layer0.FEid.length", length);
        EXPECT_EQ(readBounded(image.bytes).names, (Names{u"seen", u"B"})) << length;
    }
    PsdImage block = build(inBlock(document));
    for (const std::uint64_t length : kWrapping64) {
        block.patch("layerBlock.length", length);
        EXPECT_TRUE(readBounded(block.bytes).names.empty()) << length;
    }
}

TEST(PsdHostileShapes, JunkForAGlobalMask) {
    Document document = inBlock(everything());
    PsdImage image = build(document);
    for (const std::uint64_t length : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu, 0xFFFFFFF0u}) {
        image.patch("globalMask", length);
        EXPECT_EQ(readBounded(image.bytes).result, ReadResult::Damaged) << length;
    }
    document.globalMask = Bytes(3000, 0xA5);
    EXPECT_EQ(readBounded(build(document).bytes).names.size(), 4u);
    document.globalMask = Bytes{'8', 'B', 'I', 'M', 'L', 'r', '1', '6', 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(readBounded(build(document).bytes).names.size(), 4u); // looks like a block, and is none
}

TEST(PsdHostileShapes, ManyGroupMarksWithoutTheirOther) {
    for (const bool areEnds : {false, true}) {
        Layer marks = areEnds ? groupEnd() : groupHeader(u"G");
        marks.times = 16000;
        Document document;
        document.layers = {layer(u"A"), marks, layer(u"B")};
        EXPECT_EQ(readBounded(build(document).bytes).names, (Names{u"A", u"B"}));
    }
}

Document withLongExtraData() {
    Layer before = layer(u"before");
    before.blocksAfter.push_back({"lfx2", Bytes(kLongBytes, 1)});
    Layer after = layer(u"after");
    after.blocksBefore.push_back({"lfx2", Bytes(kLongBytes, 1)});
    Layer mark = groupHeader(u"G");
    mark.blocksBefore.push_back({"lfx2", Bytes(kLongBytes, 1)});
    Document document;
    document.layers = {before, layer(u"short"), after, mark};
    return document;
}

TEST(PsdHostileShapes, LongExtraData) {
    for (const bool isPsb : {false, true}) {
        Document document = withLongExtraData();
        document.isPsb = isPsb;
        EXPECT_EQ(readBounded(build(document).bytes).names, (Names{u"before", u"short", u"after"}));
        EXPECT_EQ(readBounded(build(inBlock(document)).bytes).names, (Names{u"before", u"short", u"after"}));
    }
}

// The fields of short records are spoiled beside the other tests of this folder; those of long ones take another way.
TEST(PsdHostileShapes, EveryFieldOfLongRecords) {
    for (const bool isPsb : {false, true}) {
        Document document = withLongExtraData();
        document.isPsb = isPsb;
        PsdImage image = build(document);
        for (const std::string& field : image.fieldNames()) {
            const std::uint64_t right = image.valueOf(field);
            for (const std::uint64_t value :
                 {std::uint64_t{0}, std::uint64_t{1}, right - 1, right + 1, std::uint64_t{0x7FFF},
                  std::uint64_t{0xFFFF}, std::uint64_t{0x80000000}, std::uint64_t{0xFFFFFFFF},
                  std::uint64_t{0x7FFFFFFFFFFFFFFF}, ~std::uint64_t{0}}) {
                SCOPED_TRACE(field + " = " + std::to_string(value));
                image.patch(field, value);
                readBounded(image.bytes, Memory::Unwatched);
            }
            image.patch(field, right);
        }
    }
}

TEST(PsdHostileShapes, TruncationOfLongRecords) {
    const PsdImage whole = build(withLongExtraData());
    const std::size_t recordsEnd = whole.offsetOf("recordsEnd");
    constexpr std::size_t step = 7; // coprime to every padding
    for (std::size_t length = 0; length < recordsEnd; length += step) {
        const Bytes cut(whole.bytes.begin(), whole.bytes.begin() + static_cast<std::ptrdiff_t>(length));
        ASSERT_NE(readBounded(cut, Memory::Unwatched).result, ReadResult::Done) << length;
    }
}

// Another program writes over the file meanwhile: from some read on every byte is another one.
class ChangingSource final : public _qv_commonclass::psd::ByteSource {
  public:
    ChangingSource(const Bytes& before, const Bytes& after, int readsBefore)
        : m_before(before), m_after(after), m_readsBefore(readsBefore) {}

    std::uint64_t size() const noexcept override { return m_before.size(); }
    std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override {
        return m_readsBefore-- > 0 ? m_before.readAt(offset, to, count) : m_after.readAt(offset, to, count);
    }

  private:
    MemorySource m_before;
    MemorySource m_after;
    int m_readsBefore;
};

TEST(PsdHostileShapes, FileThatChangesWhileItIsRead) {
    const Bytes before = build(withLongExtraData()).bytes;
    for (const std::uint8_t filler : {0x00, 0x38, 0x7F, 0xFF}) {
        const Bytes after(before.size(), filler);
        bool wasBroken = false;
        for (int reads = 0; reads < 12; ++reads) {
            ChangingSource source(before, after, reads);
            const Reading reading = readFrom(source);
            wasBroken |= reading.result != ReadResult::Done;
            EXPECT_TRUE(reading.result == ReadResult::Done || reading.names.empty());
            EXPECT_LE(reading.names.size(), 4u);
        }
        EXPECT_TRUE(wasBroken);
    }
}

} // namespace

} // namespace psdtest
