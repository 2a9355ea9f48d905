#include "PsdReading.h"
#include <gtest/gtest.h>

// Well-formed documents of every shape: what the reader answers for each.
namespace psdtest {

namespace {

struct Shape {
    const char* title;
    Document document;
    Names expected;
};

void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.title;
}

Document with(std::vector<Layer> layers) {
    Document document;
    document.layers = std::move(layers);
    return document;
}

template <class Change> Document changed(Document document, Change change) {
    change(document);
    return document;
}

Layer withSection(std::uint32_t type, const std::string& key = "lsct") {
    Layer made = layer(u"marked");
    made.blocksAfter.push_back(sectionBlock(type, key));
    return made;
}

Layer adjustment() {
    Layer made = layer(u"Curves");
    made.channels = 0;
    made.blocksBefore.push_back({"curv", Bytes(21, 1)});
    return made;
}

Layer bare() {
    Layer made;
    made.bare = true;
    return made;
}

Layer padded(int bytes) {
    Layer made = layer(u"padded");
    made.blocksBefore.push_back({"cust", Bytes(5, 1), "8BIM", bytes});
    made.blocksAfter.push_back({"shmd", Bytes(3, 1), "8BIM", bytes});
    made.blocksAfter.push_back(sectionBlock(0));
    return made;
}

Layer named(const std::u16string& unicode, const std::string& legacy) {
    Layer made = layer(unicode);
    made.legacyName = legacy;
    return made;
}

Layer twiceNamed() {
    Layer made = layer(u"first");
    made.blocksAfter.push_back(unicodeNameBlock(u"second"));
    return made;
}

Layer emptyThenNamed() {
    Layer made = layer(u"");
    made.blocksAfter.push_back(unicodeNameBlock(u"second"));
    return made;
}

// A wide-signature block in a large document has a length of eight bytes whatever its key is.
Layer wideBlock() {
    Layer made = layer(u"after a wide block");
    made.blocksBefore.push_back({"cinf", Bytes(6, 1), "8B64", 2});
    made.blocksBefore.push_back({"FEid", Bytes(4, 1)});
    return made;
}

std::vector<Shape> shapes() {
    const auto two = with({layer(u"A"), layer(u"B")});
    const auto psb = [](Document& document) { document.isPsb = true; };
    const auto place = [&](Placement placement, std::uint16_t depthBits) {
        return changed(two, [=](Document& document) {
            document.placement = placement;
            document.depthBits = depthBits;
        });
    };
    return {
        {"no layer section", changed({}, [](Document& d) { d.hasLayerSection = false; }), {}},
        {"no layer section, large",
         changed({}, [](Document& d) { d.hasLayerSection = false, d.isPsb = true; }),
         {}},
        {"empty layer info", changed({}, [](Document& d) { d.placement = Placement::Lr16; }), {}},
        {"count 0", with({}), {}},
        {"bottom first", two, {u"A", u"B"}},
        {"negative count", changed(two, [](Document& d) { d.negativeCount = true; }), {u"A", u"B"}},
        {"large document", changed(two, psb), {u"A", u"B"}},
        {"Layr block", place(Placement::Layr, 8), {u"A", u"B"}},
        {"16 bits", place(Placement::Lr16, 16), {u"A", u"B"}},
        {"32 bits", place(Placement::Lr32, 32), {u"A", u"B"}},
        {"16 bits, large", changed(place(Placement::Lr16, 16), psb), {u"A", u"B"}},
        {"32 bits, large", changed(place(Placement::Lr32, 32), psb), {u"A", u"B"}},
        {"16 bits, layers in the layer info", place(Placement::LayerInfo, 16), {u"A", u"B"}},
        {"16 bits behind other blocks",
         changed(place(Placement::Lr16, 16),
                 [](Document& d) {
                     d.globalBlocks = {{"Patt", Bytes(7, 1), "8BIM", 4}, {"Txt2", Bytes(5, 1), "8BIM", 1}};
                 }),
         {u"A", u"B"}},
        {"no global mask field",
         changed(place(Placement::Lr16, 16), [](Document& d) { d.globalMask.reset(); }),
         {u"A", u"B"}},
        {"section ends at the layer info",
         changed(two, [](Document& d) { d.globalMask.reset(); }),
         {u"A", u"B"}},
        {"everything", everything(), {u"Photo", u"Deep", u"In outer", u"\u66F2\u7EBF"}},
        {"everything, large", changed(everything(), psb), {u"Photo", u"Deep", u"In outer", u"\u66F2\u7EBF"}},
        {"adjustment layer", with({adjustment()}), {u"Curves"}},
        {"only a group", with({groupEnd(), groupHeader(u"G")}), {}},
        {"unbalanced ends", with({groupEnd(), groupEnd(), layer(u"A")}), {u"A"}},
        {"section type 0 is a layer", with({withSection(0)}), {u"marked"}},
        {"section type 1", with({withSection(1)}), {}},
        {"section type 2", with({withSection(2)}), {}},
        {"section type 3", with({withSection(3)}), {}},
        {"section type 4 is a layer", with({withSection(4)}), {u"marked"}},
        {"nested section key", with({withSection(1, "lsdk")}), {}},
        {"bare record", with({bare(), layer(u"A")}), {u"", u"A"}},
        {"blocks padded to 1", with({padded(1), layer(u"A")}), {u"padded", u"A"}},
        {"blocks padded to 2", with({padded(2), layer(u"A")}), {u"padded", u"A"}},
        {"blocks padded to 4", with({padded(4), layer(u"A")}), {u"padded", u"A"}},
        {"Unicode before legacy", with({named(u"\u540D", "name")}), {u"\u540D"}},
        {"empty Unicode name", with({named(u"", "name")}), {u"name"}},
        {"both empty", with({named(u"", "")}), {u""}},
        {"legacy only", with({legacyLayer("Layer 1")}), {u"Layer 1"}},
        {"first Unicode name of two", with({twiceNamed()}), {u"first"}},
        {"empty Unicode name, then another", with({emptyThenNamed()}), {u"second"}},
        {"wide block in a large document", changed(with({wideBlock()}), psb), {u"after a wide block"}},
        {"NUL at the end", with({layer(std::u16string(u"end\0", 4))}), {u"end"}},
        {"NUL inside", with({layer(std::u16string(u"a\0b", 3))}), {u"a"}},
        {"control characters stay", with({layer(u"a\tb\x7F")}), {u"a\tb\x7F"}},
        {"surrogate pair", with({layer(u"\U0001F3AC")}), {u"\U0001F3AC"}},
        {"lone high surrogate", with({layer(std::u16string{u'a', 0xD83C})}), {u"a\uFFFD"}},
        {"lone low surrogate", with({layer(std::u16string{0xDFAC, u'a'})}), {u"\uFFFDa"}},
        {"surrogates the wrong way round", with({layer(std::u16string{0xDFAC, 0xD83C})}), {u"\uFFFD\uFFFD"}},
        {"cut at the limit", with({layer(std::u16string(5000, u'x'))}), {std::u16string(4096, u'x')}},
        {"cut through a pair",
         with({layer(std::u16string(4095, u'x') + u"\U0001F3AC")}),
         {std::u16string(4095, u'x')}},
        {"widest side of a small document",
         changed(two, [](Document& d) { d.widthPx = 30000; }),
         {u"A", u"B"}},
    };
}

class PsdStructure : public testing::TestWithParam<Shape> {};

TEST_P(PsdStructure, GivesNames) {
    const Reading reading = readDocument(GetParam().document);
    EXPECT_EQ(reading.result, ReadResult::Done);
    EXPECT_EQ(reading.names, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Shapes, PsdStructure, testing::ValuesIn(shapes()));

TEST(PsdStructure, TakesTheFirstOfTwoLayerBlocks) {
    Document document;
    document.layers = {layer(u"A")};
    document.placement = Placement::Lr16;
    const PsdImage first = build(document);
    const std::size_t begin = first.offsetOf("layerBlock.length") + 4;
    const Bytes block(first.bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                      first.bytes.begin() +
                          static_cast<std::ptrdiff_t>(begin + first.valueOf("layerBlock.length")));
    document.layers = {layer(u"other"), layer(u"names")};
    document.globalBlocks = {{"Lr16", block, "8BIM", 4}};
    EXPECT_EQ(readDocument(document).names, (Names{u"A"}));
    document.placement = Placement::LayerInfo;
    EXPECT_EQ(readDocument(document).names, (Names{u"other", u"names"}));
}

} // namespace

} // namespace psdtest
