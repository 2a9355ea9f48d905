#include "layers/SystemLegacyDecoder.h"
#include "psd/LegacyName.h"
#include <gtest/gtest.h>
#include <windows.h>

namespace psdtest {

namespace {

using _qv_commonclass::SystemLegacyDecoder;
using _qv_commonclass::psd::LegacyCodePage;

std::span<const std::uint8_t> bytesOf(const std::string& text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

struct Coded {
    LegacyCodePage codePage;
    std::string bytes;
    std::u16string expected;
};

TEST(SystemLegacyDecoder, DecodesChineseAndJapanese) {
    const Coded table[] = {
        {LegacyCodePage::Gbk, "\xB1\xB3\xBE\xB0\xCD\xBC\xB2\xE3", u"\u80CC\u666F\u56FE\u5C42"},
        {LegacyCodePage::Gbk, "Logo \xD7\xD6\xC4\xBB", u"Logo \u5B57\u5E55"},
        {LegacyCodePage::ShiftJis, "\x83\x5E\x83\x43\x83\x67\x83\x8B", u"\u30BF\u30A4\u30C8\u30EB"},
        {LegacyCodePage::ShiftJis, "\x95\x5C\x8E\xA6", u"\u8868\u793A"}, // 0x5C as a second byte
    };
    for (const Coded& coded : table) {
        std::u16string text;
        EXPECT_TRUE(SystemLegacyDecoder().decode(coded.codePage, bytesOf(coded.bytes), text));
        EXPECT_EQ(text, coded.expected);
    }
}

TEST(SystemLegacyDecoder, RefusesWhatIsNotValid) {
    std::u16string text;
    EXPECT_FALSE(SystemLegacyDecoder().decode(LegacyCodePage::Gbk, bytesOf("\xB1\xB3\xBE"), text));
    EXPECT_FALSE(SystemLegacyDecoder().decode(LegacyCodePage::ShiftJis, bytesOf("\x83"), text));
    EXPECT_FALSE(SystemLegacyDecoder().decode(LegacyCodePage::ShiftJis, bytesOf("\xFF\xFF"), text));
}

TEST(SystemLegacyDecoder, LossyGivesSomethingForAnything) {
    for (int byte = 1; byte < 256; ++byte) {
        std::u16string text;
        SystemLegacyDecoder().decodeLossy(bytesOf(std::string(3, static_cast<char>(byte))), text);
        EXPECT_FALSE(text.empty()) << byte;
    }
}

// The system's own code page decides what a name means before any guess, but for kana on a Chinese system.
TEST(SystemLegacyDecoder, GuessesBehindTheSystemCodePage) {
    constexpr UINT chinese = 936;
    const std::string japanese = "\x83\x5E\x83\x43\x83\x67\x83\x8B";
    const SystemLegacyDecoder decoder;
    std::u16string bySystem;
    std::u16string text;
    const bool isValid = decoder.decode(LegacyCodePage::System, bytesOf(japanese), bySystem);
    EXPECT_EQ(decoder.isSystem(LegacyCodePage::Gbk), GetACP() == chinese);
    _qv_commonclass::psd::decodeLegacyName(decoder, bytesOf(japanese), text);
    EXPECT_EQ(text, isValid && GetACP() != chinese ? bySystem : u"\u30BF\u30A4\u30C8\u30EB")
        << "code page " << GetACP();
}

} // namespace

} // namespace psdtest
