#include "media/SoundFile.h"

#include "WavBytes.h"

#include "TempFolder.h"

#include <gtest/gtest.h>

// The samples that the sample host plays on its meters.
namespace {

class SoundFiles : public testing::Test {
  protected:
    bool load(const std::string& bytes) {
        return LoadSoundFile(m_folder.file(L"sound.wav", bytes).c_str(), sound);
    }

    SoundFile sound;

  private:
    qvtest::TempFolder m_folder;
};

} // namespace

TEST_F(SoundFiles, PeaksOfEachChannel) {
    std::string data;
    for (const std::uint32_t left : {0x1000u, 0xC000u, 0x2000u}) {
        append(data, left, 2);
        append(data, 0x0800, 2);
    }
    ASSERT_TRUE(load(soundFile({.channels = 2}, data)));
    EXPECT_EQ(2, sound.channels);
    EXPECT_EQ(1000, sound.samplesPerSecond);
    EXPECT_EQ(3u, sound.Frames());
    EXPECT_FLOAT_EQ(0.125f, sound.Peak(0, 0, 1));
    EXPECT_FLOAT_EQ(0.5f, sound.Peak(0, 0, 3));
    EXPECT_FLOAT_EQ(0.25f, sound.Peak(0, 2, 100));
    EXPECT_FLOAT_EQ(0.0625f, sound.Peak(1, 0, 3));
    EXPECT_FLOAT_EQ(0.0f, sound.Peak(0, 3, 1)) << "past the end";
}

TEST_F(SoundFiles, CutFileEndsWithItsLastWholeFrame) {
    std::string file = soundFile({.channels = 2}, std::string(40, '\x20'));
    file.resize(file.size() - 3);
    ASSERT_TRUE(load(file));
    EXPECT_EQ(9u, sound.Frames());
}

TEST_F(SoundFiles, RefusedFilesLeaveTheSoundAlone) {
    sound.channels = 7;
    EXPECT_FALSE(load(soundFile({.tag = 2}, std::string(40, '\x20')))) << "packed";
    EXPECT_FALSE(load(soundFile({.sampleBytes = 5}, std::string(40, '\x20'))));
    EXPECT_FALSE(load(soundFile({}, ""))) << "no frame";
    EXPECT_FALSE(load("RIFF"));
    EXPECT_FALSE(LoadSoundFile(L"Z:\\there is no such file.wav", sound));
    EXPECT_EQ(7, sound.channels);
}
