#include "BoundedReading.h"
#include <gtest/gtest.h>

// Documents that are broken on purpose. Whatever the answer is, it comes at once, without much memory, and
// the names of a document that fails are none.
namespace psdtest {

namespace {

struct Spoiled {
    const char* field;
    std::uint64_t value;
    ReadResult expected;
};

void PrintTo(const Spoiled& spoiled, std::ostream* out) {
    *out << spoiled.field << " = " << spoiled.value;
}

constexpr std::uint64_t kAllOnes32 = 0xFFFFFFFF;

const Spoiled kSpoiled[] = {
    {"signature", 0x38425054, ReadResult::NotPhotoshop},
    {"version", 0, ReadResult::NotPhotoshop},
    {"version", 3, ReadResult::NotPhotoshop},
    {"version", 2, ReadResult::Damaged}, // its lengths are of the small kind
    {"channels", 0, ReadResult::NotPhotoshop},
    {"channels", 57, ReadResult::NotPhotoshop},
    {"height", 0, ReadResult::NotPhotoshop},
    {"height", 30001, ReadResult::NotPhotoshop},
    {"width", 0, ReadResult::NotPhotoshop},
    {"width", kAllOnes32, ReadResult::NotPhotoshop},
    {"depth", 0, ReadResult::NotPhotoshop},
    {"depth", 24, ReadResult::NotPhotoshop},
    {"mode", 10, ReadResult::NotPhotoshop},
    {"colourMode", kAllOnes32, ReadResult::Damaged},
    {"resources", kAllOnes32, ReadResult::Damaged},
    {"resources", 0x80000000, ReadResult::Damaged},
    {"section", kAllOnes32, ReadResult::Damaged},
    {"section", 0x7FFFFFFF, ReadResult::Damaged},
    {"section", 1, ReadResult::Damaged},
    {"info", kAllOnes32, ReadResult::Damaged},
    {"info", 1, ReadResult::Damaged},
    {"info", 40, ReadResult::Damaged},
    {"count", 9, ReadResult::Damaged},
    {"count", 0x7FFF, ReadResult::Damaged},
    {"count", 0x8000, ReadResult::Damaged},
    {"count", 0x8001, ReadResult::Damaged},
    {"count", 0xFFF7, ReadResult::Damaged}, // 9 with the sign
    {"count", 0xFFFF, ReadResult::Done},    // 1 with the sign
    {"layer0.channels", 0, ReadResult::Damaged},
    {"layer0.channels", 5, ReadResult::Damaged},
    {"layer0.channels", 0xFFFF, ReadResult::Damaged},
    {"layer0.channel0.length", kAllOnes32, ReadResult::Done}, // pixels are never looked at
    {"layer0.blendSignature", 0, ReadResult::Damaged},
    {"layer0.extra", kAllOnes32, ReadResult::Damaged},
    {"layer0.extra", 1, ReadResult::Damaged},
    {"layer0.extra", 0, ReadResult::Damaged}, // the next record begins in the middle of this one
    {"layer0.mask", kAllOnes32, ReadResult::Damaged},
    {"layer0.mask", 0x7FFFFFFF, ReadResult::Damaged},
    {"layer0.ranges", kAllOnes32, ReadResult::Damaged},
    {"layer0.lfx2.length", kAllOnes32, ReadResult::Done}, // the legacy name stands in
    {"layer0.luni.length", kAllOnes32, ReadResult::Done},
    {"layer0.luni.length", 3, ReadResult::Done},
    {"layer0.luni.count", kAllOnes32, ReadResult::Done},
    {"layer0.luni.count", 0x80000003, ReadResult::Done},
    {"layer0.luni.count", 6, ReadResult::Done},
    {"layer1.lsct.length", kAllOnes32, ReadResult::Done},
    {"globalMask", kAllOnes32, ReadResult::Done}, // behind the layers, never reached
};

class PsdSpoiledField : public testing::TestWithParam<Spoiled> {};

TEST_P(PsdSpoiledField, IsHarmless) {
    PsdImage image = build(everything());
    image.patch(GetParam().field, GetParam().value);
    EXPECT_EQ(readBounded(image.bytes).result, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Fields, PsdSpoiledField, testing::ValuesIn(kSpoiled));

const Spoiled kSpoiledLarge[] = {
    {"section", 0x7FFFFFFFFFFFFFFF, ReadResult::Damaged},
    {"section", 0x8000000000000000, ReadResult::Damaged},
    {"section", ~std::uint64_t{0}, ReadResult::Damaged},
    {"info", ~std::uint64_t{0}, ReadResult::Damaged},
    {"info", 0x8000000000000000, ReadResult::Damaged},
    {"info", ~std::uint64_t{0} - 7, ReadResult::Damaged},
    {"layer0.channel0.length", ~std::uint64_t{0}, ReadResult::Done},
};

class PsdSpoiledLargeField : public testing::TestWithParam<Spoiled> {};

TEST_P(PsdSpoiledLargeField, IsHarmless) {
    Document document = everything();
    document.isPsb = true;
    PsdImage image = build(document);
    image.patch(GetParam().field, GetParam().value);
    EXPECT_EQ(readBounded(image.bytes).result, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Fields, PsdSpoiledLargeField, testing::ValuesIn(kSpoiledLarge));

// Every field takes every value near a limit of its width, and near its right one.
TEST(PsdHostile, EveryFieldWithEveryEdgeValue) {
    for (const bool isPsb : {false, true}) {
        for (const Placement placement : {Placement::LayerInfo, Placement::Lr16}) {
            Document document = everything();
            document.isPsb = isPsb;
            document.placement = placement;
            PsdImage image = build(document);
            for (const std::string& field : image.fieldNames()) {
                const std::uint64_t right = image.valueOf(field);
                for (const std::uint64_t value :
                     {std::uint64_t{0}, std::uint64_t{1}, right - 1, right + 1, right + 2, right * 2,
                      std::uint64_t{0x7F}, std::uint64_t{0x7FFF}, std::uint64_t{0x8000},
                      std::uint64_t{0xFFFF}, std::uint64_t{0x7FFFFFFF}, std::uint64_t{0x80000000},
                      std::uint64_t{0xFFFFFFFF}, std::uint64_t{0x7FFFFFFFFFFFFFFF}, ~std::uint64_t{0} - 15,
                      ~std::uint64_t{0}}) {
                    SCOPED_TRACE(field + " = " + std::to_string(value));
                    image.patch(field, value);
                    readBounded(image.bytes, Memory::Unwatched);
                }
                image.patch(field, right);
            }
        }
    }
}

// Up to the end of the layer section a cut is a failure. The merged picture behind it is not looked at; only
// that there is one.
TEST(PsdHostile, TruncationAtEveryByte) {
    for (const bool isPsb : {false, true}) {
        for (const Placement placement :
             {Placement::LayerInfo, Placement::Lr16, Placement::Lr32, Placement::Layr}) {
            Document document = everything();
            document.isPsb = isPsb;
            document.placement = placement;
            const Bytes whole = build(document).bytes;
            const std::size_t pictureBytes = 3;
            for (std::size_t length = 0; length <= whole.size(); ++length) {
                SCOPED_TRACE("cut to " + std::to_string(length) + " of " + std::to_string(whole.size()));
                const Reading reading =
                    readBounded(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)),
                                Memory::Unwatched);
                ASSERT_EQ(reading.result == ReadResult::Done, length >= whole.size() - pictureBytes);
            }
        }
    }
}

TEST(PsdHostile, EveryByteFlipped) {
    const Bytes whole = build(everything()).bytes;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        SCOPED_TRACE("byte " + std::to_string(at));
        for (const std::uint8_t mask : {0x01, 0x80, 0xFF}) {
            Bytes spoiled = whole;
            spoiled[at] ^= mask;
            readBounded(spoiled, Memory::Unwatched);
        }
    }
}

// One layer whose record holds that many blocks without data.
Bytes documentWithEmptyBlocks(int count) {
    Layer one = layer(u"A");
    one.blocksAfter.push_back({"null", {}});
    Document document;
    document.layers = {one};
    PsdImage image = build(document);
    PsdImage blocks;
    for (int i = 1; i < count; ++i) {
        blocks.text("8BIMnull");
        blocks.number(0, 4);
    }
    const std::size_t at = image.offsetOf("layer0.null.length") + 4;
    image.bytes.insert(image.bytes.begin() + static_cast<std::ptrdiff_t>(at), blocks.bytes.begin(),
                       blocks.bytes.end());
    for (const char* field : {"layer0.extra", "info", "section"})
        image.patch(field, image.valueOf(field) + blocks.bytes.size());
    return image.bytes;
}

TEST(PsdHostile, MillionEmptyBlocksInOneRecord) {
    const Reading reading = readBounded(documentWithEmptyBlocks(1'000'000));
    EXPECT_EQ(reading.result, ReadResult::Done);
    EXPECT_EQ(reading.names, (Names{u"A"}));
}

TEST(PsdHostile, MoreBlocksThanAnyDocumentHas) {
    EXPECT_EQ(readBounded(documentWithEmptyBlocks(1'100'000)).result, ReadResult::TooLarge);
}

TEST(PsdHostile, MillionCharacterName) {
    Document document;
    document.layers = {layer(std::u16string(1'000'000, u'n')), layer(u"B")};
    const Reading reading = readBounded(build(document).bytes);
    EXPECT_EQ(reading.names, (Names{std::u16string(4096, u'n'), u"B"}));
}

Layer repeated(Layer one, int times) {
    one.times = times;
    return one;
}

TEST(PsdHostile, MostLayersADocumentCanHave) {
    for (const bool isNegative : {false, true}) {
        Document document;
        document.channelDataBytes = 0;
        document.negativeCount = isNegative;
        document.layers = {repeated(layer(u"n"), isNegative ? 32768 : 32767)};
        EXPECT_EQ(readBounded(build(document).bytes).names.size(), recordCount(document));
    }
}

TEST(PsdHostile, DeepGroups) {
    Document document;
    document.layers = {repeated(groupEnd(), 16000), layer(u"deep"), repeated(groupHeader(u"G"), 16000)};
    EXPECT_EQ(readBounded(build(document).bytes).names, (Names{u"deep"}));
}

TEST(PsdHostile, MoreTextThanNamesCanBe) {
    Document document;
    document.channelDataBytes = 0;
    document.layers = {repeated(layer(std::u16string(4096, u'n')), 2100)};
    EXPECT_EQ(readBounded(build(document).bytes).result, ReadResult::TooLarge);
}

TEST(PsdHostile, LegacyNameOf255Bytes) {
    Document document;
    document.layers = {legacyLayer(std::string(255, 'n')), legacyLayer(std::string("a\0b", 3)),
                       legacyLayer("a\x01\x1F")};
    EXPECT_EQ(readBounded(build(document).bytes).names,
              (Names{std::u16string(255, u'n'), u"a", u"a\x01\x1F"}));
}

TEST(PsdHostile, BlocksWithForeignSignatureEndTheWalk) {
    Layer one = layer(u"unseen");
    one.legacyName = "seen";
    one.blocksBefore.push_back({"null", Bytes(8, 0), "8BIX"});
    Document document;
    document.layers = {one, layer(u"B")};
    EXPECT_EQ(readBounded(build(document).bytes).names, (Names{u"seen", u"B"}));
}

// A file that another program cuts while it is read: the size promised is not there any more.
TEST(PsdHostile, FileThatShrinksWhileItIsRead) {
    const Bytes whole = build(everything()).bytes;
    class Shrunk final : public _qv_commonclass::psd::ByteSource {
      public:
        explicit Shrunk(const Bytes& bytes, std::size_t left) : m_source(bytes), m_left(left) {}
        std::uint64_t size() const noexcept override { return m_source.size(); }
        std::size_t readAt(std::uint64_t offset, void* to, std::size_t count) noexcept override {
            const std::size_t reach = offset < m_left ? static_cast<std::size_t>(m_left - offset) : 0;
            return m_source.readAt(offset, to, std::min(count, reach));
        }

      private:
        MemorySource m_source;
        std::size_t m_left;
    };
    const std::size_t lastRecord = build(everything()).offsetOf("layer7.luni.count") + 8;
    for (std::size_t left = 0; left < lastRecord; ++left) {
        Shrunk source(whole, left);
        const Reading reading = readFrom(source);
        EXPECT_NE(reading.result, ReadResult::Done) << left;
        EXPECT_TRUE(reading.names.empty());
    }
}

} // namespace

} // namespace psdtest
