#include "documents/TableDecoder.h"
#include "psd/LegacyName.h"
#include <gtest/gtest.h>

namespace psdtest {

namespace {

using _qv_commonclass::psd::LegacyCodePage;

std::span<const std::uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

std::u16string decode(const TableDecoder& decoder, const std::string& bytes) {
    std::u16string text;
    _qv_commonclass::psd::decodeLegacyName(decoder, bytesOf(bytes), text);
    return text;
}

const std::string kGbkText = "\xB1\xB3\xBE\xB0"; // background, GBK; half-width katakana in Shift-JIS
const std::string kShiftJisText = "\x83\x5C\x81\x5B\x83\x58"; // source, with 0x5C as a second byte

TEST(LegacyName, AsciiNeedsNoCodePage) {
    EXPECT_EQ(decode(TableDecoder(), "Layer 1"), u"Layer 1");
    EXPECT_EQ(decode(TableDecoder(), ""), u"");
}

TEST(LegacyName, SystemCodePageComesFirst) {
    TableDecoder decoder;
    decoder.valid(LegacyCodePage::System, kGbkText, u"system");
    decoder.valid(LegacyCodePage::Gbk, kGbkText, u"gbk");
    decoder.valid(LegacyCodePage::ShiftJis, kGbkText, u"japanese");
    EXPECT_EQ(decode(decoder, kGbkText), u"system");
}

TEST(LegacyName, KanaOnAChineseSystem) {
    TableDecoder decoder;
    for (const std::string& text : {kGbkText, kShiftJisText}) {
        decoder.valid(LegacyCodePage::System, text, u"system");
        decoder.valid(LegacyCodePage::ShiftJis, text, u"japanese");
    }
    EXPECT_EQ(decode(decoder, kShiftJisText), u"system");
    decoder.system = LegacyCodePage::Gbk;
    EXPECT_EQ(decode(decoder, kShiftJisText), u"japanese");
    EXPECT_EQ(decode(decoder, kGbkText), u"system");
    decoder.system = LegacyCodePage::ShiftJis;
    EXPECT_EQ(decode(decoder, kShiftJisText), u"system");
}

TEST(LegacyName, WhatReadsAsKana) {
    const auto reads = [](const std::string& bytes) {
        return _qv_commonclass::psd::readsAsKana(bytesOf(bytes));
    };
    EXPECT_TRUE(reads(kShiftJisText));
    EXPECT_TRUE(reads("\x83\x8C\x83\x43\x83\x84\x81\x5B\x95\x5C\x8E\xA6")); // with kanji
    EXPECT_TRUE(reads("BGM \x82\xD0\x82\xE7"));
    EXPECT_FALSE(reads("\x83\x5C"));         // one alone may be a rare Chinese character
    EXPECT_FALSE(reads("\x83\x5C\x83"));     // cut
    EXPECT_FALSE(reads("\xDA\xB2\xD4\xB0")); // half-width katakana, or Chinese
    EXPECT_FALSE(reads(kGbkText));
    EXPECT_FALSE(reads("Layer"));
    EXPECT_FALSE(reads(""));
}

TEST(LegacyName, TheOnlyValidGuessIsTaken) {
    TableDecoder gbk;
    gbk.valid(LegacyCodePage::Gbk, kShiftJisText, u"gbk");
    EXPECT_EQ(decode(gbk, kShiftJisText), u"gbk");
    TableDecoder japanese;
    japanese.valid(LegacyCodePage::ShiftJis, kGbkText, u"japanese");
    EXPECT_EQ(decode(japanese, kGbkText), u"japanese");
}

TEST(LegacyName, TheBetterFittingGuessIsTaken) {
    TableDecoder decoder;
    for (const std::string& text : {kGbkText, kShiftJisText}) {
        decoder.valid(LegacyCodePage::Gbk, text, u"gbk");
        decoder.valid(LegacyCodePage::ShiftJis, text, u"japanese");
    }
    EXPECT_EQ(decode(decoder, kGbkText), u"gbk");
    EXPECT_EQ(decode(decoder, kShiftJisText), u"japanese");
}

TEST(LegacyName, ACharacterCutAtTheEndIsDropped) {
    TableDecoder decoder;
    decoder.valid(LegacyCodePage::Gbk, kGbkText, u"gbk");
    EXPECT_EQ(decode(decoder, kGbkText + "\xCD"), u"gbk");
}

TEST(LegacyName, WhatNothingCanDecodeIsReplaced) {
    EXPECT_EQ(decode(TableDecoder(), "\xFF\xFE"), u"??");
    EXPECT_EQ(decode(TableDecoder(), "\xFF"), u"?"); // a lone first byte is not dropped: a name is left
}

TEST(LegacyName, EndsAtItsFirstNul) {
    EXPECT_EQ(decode(TableDecoder(), std::string("ab\0\xFF", 4)), u"ab");
    EXPECT_EQ(decode(TableDecoder(), std::string("\0ab", 3)), u"");
}

} // namespace

} // namespace psdtest
