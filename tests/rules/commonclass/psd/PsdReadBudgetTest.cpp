#include "PsdReading.h"
#include "documents/SparseSource.h"
#include "psd/ReadWindow.h"
#include <gtest/gtest.h>

// What is read of a document: the records and little more, whatever lies around them.
namespace psdtest {

namespace {

using _qv_commonclass::psd::ReadWindow;

constexpr std::uint64_t kAllowanceBytes = 128 * 1024;

std::uint64_t recordBytes(const PsdImage& image) {
    return image.offsetOf("recordsEnd") - image.offsetOf("count");
}

Document manyLayers(int count, std::size_t extraBytes) {
    constexpr int distinct = 20;
    Document document;
    for (int i = 0; i < distinct; ++i) {
        Layer one = layer(u"Layer " + std::u16string(1, static_cast<char16_t>(u'A' + i)));
        one.times = count / distinct;
        if (extraBytes > 0)
            one.blocksBefore.push_back({"lfx2", Bytes(extraBytes, 1)});
        document.layers.push_back(one);
    }
    return document;
}

TEST(PsdReadBudget, RecordsAndAnAllowance) {
    for (const std::size_t extraBytes : {0, 100, 3000, 12'000, 30'000, 200'000}) {
        SCOPED_TRACE(extraBytes);
        const Document document = manyLayers(100, extraBytes);
        const PsdImage image = build(document);
        const Reading reading = readBytes(image.bytes);
        EXPECT_EQ(reading.names.size(), 100u);
        EXPECT_LE(reading.bytesRead, recordBytes(image) + kAllowanceBytes);
    }
}

TEST(PsdReadBudget, LargeExtraDataIsSkippedNotRead) {
    const Document document = manyLayers(500, 30'000);
    const PsdImage image = build(document);
    const Reading reading = readBytes(image.bytes);
    EXPECT_LE(reading.bytesRead, recordBytes(image) / 3);
}

TEST(PsdReadBudget, SmallRecordsTakeFewReads) {
    const PsdImage image = build(manyLayers(8000, 0));
    const Reading reading = readBytes(image.bytes);
    EXPECT_EQ(reading.names.size(), 8000u);
    EXPECT_LE(reading.reads, image.bytes.size() / ReadWindow::kWideBytes + 10);
}

// The layers' pixels and the resources before them take gigabytes; only their lengths are looked at.
TEST(PsdReadBudget, GigabytesAroundTheRecords) {
    for (const bool isPsb : {false, true}) {
        Document document = manyLayers(20, 0);
        document.isPsb = isPsb;
        PsdImage image = build(document);
        const std::uint64_t resourceBytes = 0x60000000;
        const std::uint64_t pixelBytes = isPsb ? 0x200000000 : 0x60000000;
        image.patch("resources", resourceBytes);
        image.patch("section", image.valueOf("section") + pixelBytes);
        image.patch("info", image.valueOf("info") + pixelBytes);
        const std::size_t split = image.offsetOf("section");
        SparseSource source(image.bytes.size() + resourceBytes + pixelBytes);
        source.put(0, Bytes(image.bytes.begin(), image.bytes.begin() + static_cast<std::ptrdiff_t>(split)));
        source.put(split + resourceBytes,
                   Bytes(image.bytes.begin() + static_cast<std::ptrdiff_t>(split), image.bytes.end()));
        const Reading reading = readFrom(source);
        EXPECT_EQ(reading.result, ReadResult::Done);
        EXPECT_EQ(reading.names.size(), 20u);
        EXPECT_LE(source.bytesRead, recordBytes(image) + kAllowanceBytes);
    }
}

} // namespace

} // namespace psdtest
