#include "skin/SkinParse.h"

#include <gtest/gtest.h>

using namespace _qv_commonctrl;

namespace {

TEST(SkinParse, ReadsEveryKindOfEntry) {
    std::vector<SkinFault> faults;
    const SkinData skin = ParseSkin("name \"My Skin\"\n"
                                    "# a comment\n"
                                    "\n"
                                    "color 18 window #26282C\n"
                                    "pen 532 tick 2 #8A909C\n"
                                    "brush 0 window 18\n"
                                    "font 13 ui latin 12 400 \"Segoe UI\" \"Arial\"\n"
                                    "font 13 ui cjk 13 700 \"\xE5\xAE\x8B\xE4\xBD\x93\"\n",
                                    faults);
    EXPECT_TRUE(faults.empty());
    EXPECT_EQ(0x26282Cu, skin.colors.at(18));
    EXPECT_EQ(2, skin.pens.at(532).widthPx);
    EXPECT_EQ(0x8A909Cu, skin.pens.at(532).rgb);
    EXPECT_EQ(18, skin.brushes.at(0));
    const SkinFont& latin = skin.fonts.at({13, "latin"});
    EXPECT_EQ(12, latin.heightPx);
    EXPECT_EQ(400, latin.weight);
    EXPECT_EQ((std::vector<std::string>{"Segoe UI", "Arial"}), latin.faces);
    EXPECT_EQ("\xE5\xAE\x8B\xE4\xBD\x93", skin.fonts.at({13, "cjk"}).faces.at(0));
}

TEST(SkinParse, ByteOrderMarkTabsAndCrLf) {
    std::vector<SkinFault> faults;
    const SkinData skin = ParseSkin("\xEF\xBB\xBF"
                                    "color\t8  text\t#FFFFFF\r\ncolor 9 text #000000",
                                    faults);
    EXPECT_TRUE(faults.empty());
    EXPECT_EQ(0xFFFFFFu, skin.colors.at(8));
    EXPECT_EQ(0u, skin.colors.at(9));
}

TEST(SkinParse, LaterLineWins) {
    std::vector<SkinFault> faults;
    EXPECT_EQ(0x222222u, ParseSkin("color 8 a #111111\ncolor 8 b #222222\n", faults).colors.at(8));
}

TEST(SkinParse, EmptyIsEmpty) {
    std::vector<SkinFault> faults;
    EXPECT_TRUE(ParseSkin("", faults).IsEmpty());
    EXPECT_TRUE(ParseSkin("\n\n# nothing\n", faults).IsEmpty());
    EXPECT_TRUE(faults.empty());
}

class BadSkinLine : public testing::TestWithParam<const char*> {};

TEST_P(BadSkinLine, IsNamedAndLeftOut) {
    std::vector<SkinFault> faults;
    const SkinData skin =
        ParseSkin(std::string("color 8 text #FFFFFF\n") + GetParam() + "\ncolor 9 text #000000\n", faults);
    ASSERT_EQ(1u, faults.size());
    EXPECT_EQ(2, faults[0].line);
    EXPECT_FALSE(faults[0].reason.empty());
    EXPECT_EQ(2u, skin.colors.size()); // the lines round it count
    EXPECT_TRUE(skin.pens.empty() && skin.brushes.empty() && skin.fonts.empty());
}

INSTANTIATE_TEST_SUITE_P(
    All, BadSkinLine,
    testing::Values("colour 8 text #FFFFFF", "color", "color x text #FFFFFF", "color -1 text #FFFFFF",
                    "color 65536 text #FFFFFF", "color 99999999999 text #FFFFFF", "color 10 text",
                    "color 10 text FFFFFF", "color 10 text #FFF", "color 10 text #GGGGGG",
                    "color 10 text #FFFFFFFF", "color 10 text #-FFFFF", "pen 1 tick #FFFFFF",
                    "pen 1 tick 65 #FFFFFF", "pen 1 tick -1 #FFFFFF", "brush 1 window", "brush 1 window x",
                    "font 13 ui latin 12 400", "font 13 ui latin 12 400 Arial",
                    "font 13 ui latin 0 400 \"Arial\"", "font 13 ui latin 513 400 \"Arial\"",
                    "font 13 ui latin 12 1001 \"Arial\"", "font 13 ui latin 12 400 \"Arial",
                    "font 13 ui latin 12 400 \"\"", "font 13 ui", "name", "name Dark", "\x01\x02\xFF"));

TEST(SkinParse, FaceLongerThanTheSystemTakesIsLeftOut) {
    std::vector<SkinFault> faults;
    const std::string face(kMaxSkinFaceBytes + 1, 'x');
    const SkinData skin = ParseSkin("font 13 ui latin 12 400 \"" + face + "\" \"Arial\"\n", faults);
    EXPECT_EQ((std::vector<std::string>{"Arial"}), skin.fonts.at({13, "latin"}).faces);
}

TEST(SkinParse, FaultsAreBounded) {
    std::vector<SkinFault> faults;
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "rubbish\n";
    EXPECT_TRUE(ParseSkin(text, faults).IsEmpty());
    EXPECT_EQ(kMaxSkinFaults, faults.size());
}

TEST(SkinParse, AnyBytesAreHarmless) {
    std::string text;
    for (int i = 0; i < 65536; ++i)
        text.push_back(static_cast<char>(i * 2654435761u >> 13));
    std::vector<SkinFault> faults;
    ParseSkin(text, faults);
    for (const char* start : {"color 8 t ", "font 13 ui latin 12 400 \"", "pen ", "brush 1 "}) {
        for (std::size_t at = 0; at < 2000; at += 7)
            ParseSkin(start + text.substr(at, 40), faults);
    }
}

} // namespace
