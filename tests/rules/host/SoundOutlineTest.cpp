#include "media/SoundOutline.h"

#include "WavBytes.h"

#include "TempFolder.h"

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>

// The outline that the sample host draws of a sound: sample formats, stretches, broken files.
namespace {

class SoundOutlines : public testing::Test {
  protected:
    SoundOutline outlineOf(const std::string& bytes, int columns) {
        const std::wstring path = m_folder.file(L"sound.wav", bytes);
        SoundHeader header;
        isRead = ReadSoundHeader(path.c_str(), header);
        return ReadSoundOutline(path.c_str(), header, columns);
    }

    bool isRead = false;

  private:
    qvtest::TempFolder m_folder;
};

void expectRange(const SoundOutline& outline, size_t channel, size_t column, float low, float high) {
    ASSERT_LT(channel, outline.channels.size());
    ASSERT_LT(column, outline.channels[channel].size());
    EXPECT_FLOAT_EQ(low, outline.channels[channel][column].low) << channel << '/' << column;
    EXPECT_FLOAT_EQ(high, outline.channels[channel][column].high) << channel << '/' << column;
}

} // namespace

TEST_F(SoundOutlines, EverySampleFormat) {
    const struct {
        Format format;
        std::uint32_t half;
        std::uint32_t minusOne;
    } table[] = {
        {{.sampleBytes = 1}, 0xC0, 0x00},
        {{.sampleBytes = 2}, 0x4000, 0x8000},
        {{.sampleBytes = 3}, 0x400000, 0x800000},
        {{.sampleBytes = 4}, 0x40000000, 0x80000000},
        {{.tag = 3, .sampleBytes = 4},
         std::bit_cast<std::uint32_t>(0.5f),
         std::bit_cast<std::uint32_t>(-1.0f)},
        {{.tag = 0xFFFE, .sampleBytes = 2, .longTag = 1}, 0x4000, 0x8000},
        {{.tag = 0xFFFE, .sampleBytes = 4, .longTag = 3},
         std::bit_cast<std::uint32_t>(0.5f),
         std::bit_cast<std::uint32_t>(-1.0f)},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(std::to_string(row.format.tag) + ", bytes " + std::to_string(row.format.sampleBytes));
        std::string data;
        append(data, row.half, row.format.sampleBytes);
        append(data, row.minusOne, row.format.sampleBytes);
        const SoundOutline outline = outlineOf(soundFile(row.format, data), 1);
        EXPECT_TRUE(isRead);
        expectRange(outline, 0, 0, -1.0f, 0.5f);
    }
}

TEST_F(SoundOutlines, ColumnsAndChannelsKeepTheirPlaces) {
    std::string data; // left rises, right stays at a quarter
    for (const std::uint32_t left : {0x0000u, 0x1000u, 0x2000u, 0x3000u}) {
        append(data, left, 2);
        append(data, 0x2000, 2);
    }
    const SoundOutline outline = outlineOf(soundFile({.channels = 2}, data), 2);
    ASSERT_EQ(2u, outline.channels.size());
    expectRange(outline, 0, 0, 0.0f, 0.125f);
    expectRange(outline, 0, 1, 0.25f, 0.375f);
    expectRange(outline, 1, 0, 0.25f, 0.25f);
    expectRange(outline, 1, 1, 0.25f, 0.25f);
}

TEST_F(SoundOutlines, FewerFramesThanColumns) {
    std::string data;
    append(data, 0x4000, 2);
    append(data, 0xC000, 2);
    const SoundOutline outline = outlineOf(soundFile({}, data), 4);
    for (const size_t column : {0u, 1u})
        expectRange(outline, 0, column, 0.5f, 0.5f);
    for (const size_t column : {2u, 3u})
        expectRange(outline, 0, column, -0.5f, -0.5f);
}

TEST_F(SoundOutlines, CutFileEndsInSilence) {
    std::string data;
    for (int i = 0; i < 100; ++i)
        append(data, 0x4000, 2);
    std::string file = soundFile({}, data);
    file.resize(file.size() - 101); // half of the frames, and a half of one more
    const SoundOutline outline = outlineOf(file, 4);
    EXPECT_TRUE(isRead);
    expectRange(outline, 0, 0, 0.5f, 0.5f);
    expectRange(outline, 0, 3, 0.0f, 0.0f);
}

TEST_F(SoundOutlines, RealsOutOfRange) {
    std::string data;
    for (const std::uint32_t bits :
         {0x7FC00000u /* not a number */, 0x7F800000u /* infinite */, 0xC1200000u /* -10 */})
        append(data, bits, 4);
    expectRange(outlineOf(soundFile({.tag = 3, .sampleBytes = 4}, data), 1), 0, 0, -1.0f, 1.0f);
}

TEST_F(SoundOutlines, NothingToDraw) {
    const std::string data(64, '\x11');
    EXPECT_TRUE(outlineOf(soundFile({.tag = 2}, data), 8).IsEmpty()) << "packed";
    EXPECT_TRUE(isRead);
    EXPECT_TRUE(outlineOf(soundFile({.sampleBytes = 5}, data), 8).IsEmpty());
    EXPECT_TRUE(outlineOf(soundFile({.tag = 3, .sampleBytes = 8}, data), 8).IsEmpty());
    EXPECT_TRUE(outlineOf(soundFile({}, ""), 8).IsEmpty()) << "no frame";
    EXPECT_TRUE(outlineOf(soundFile({}, data), 0).IsEmpty());
    EXPECT_TRUE(outlineOf(soundFile({}, data), -1).IsEmpty());
    EXPECT_TRUE(outlineOf("RIFF", 8).IsEmpty());
    EXPECT_FALSE(isRead);
    SoundHeader header;
    EXPECT_FALSE(ReadSoundHeader(L"Z:\\there is no such file.wav", header));
}

TEST_F(SoundOutlines, OfManyChannelsTheFirst) {
    const std::string data(2 * 300 * 3, '\x20');
    const SoundOutline outline = outlineOf(soundFile({.channels = 300}, data), 3);
    EXPECT_EQ(static_cast<size_t>(SoundOutline::kMostChannels), outline.channels.size());
}

TEST_F(SoundOutlines, EveryCutIsHarmless) {
    const std::string file =
        soundFile({.tag = 0xFFFE, .channels = 2, .sampleBytes = 2, .longTag = 1}, std::string(32, '\x20'));
    const size_t head = file.size() - 32;
    for (size_t length = 0; length <= file.size(); ++length) {
        const SoundOutline outline = outlineOf(file.substr(0, length), 4);
        EXPECT_EQ(length >= head, isRead) << length;
        EXPECT_EQ(length >= head, !outline.IsEmpty()) << length;
    }
}
