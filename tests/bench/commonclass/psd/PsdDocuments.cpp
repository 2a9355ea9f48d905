#include "PsdDocuments.h"
#include "documents/PsdBuilder.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <windows.h>

namespace {

using namespace psdtest;

// Layers of three channels, each as large as the document, and the merged picture; all pixels are black.
struct Recipe {
    const char* title;
    const char* file;
    bool isPsb;
    int layers;
    std::uint32_t sidePx; // width and height; even, so that every stretch ends where the format wants it to
    double goalToRegistryPeer;
};

constexpr const wchar_t* kListName = L"\\documents.txt";
constexpr int kChannels = 3;
constexpr std::uint64_t kCompressionBytes = 2;

constexpr Recipe kRecipes[] = {
    {"43 MB", "43mb.psd", false, 60, 496, 1.0 / 50},
    {"1,000 layers", "1000.psd", false, 1000, 8, 1.0 / 15},
    {"8,000 layers", "8000.psd", false, 8000, 8, 1.0 / 15},
    {"1.5 GB", "large.psd", false, 40, 3576, 1.0 / 500},
    {"3.2 GB", "larger.psb", true, 40, 5224, 1.0 / 2000},
};

constexpr std::uint64_t pixelBytes(const Recipe& recipe) {
    return std::uint64_t{recipe.sidePx} * recipe.sidePx;
}

// What a layer's effects are stored as: a record of named values, here the master switch and the scale.
Bytes effects() {
    PsdImage made;
    made.number(0, 4);  // version of the block
    made.number(16, 4); // and of the record
    made.number(1, 4);  // the record's title: nothing but its end
    made.number(0, 2);
    const auto key = [&made](std::string_view name) {
        made.number(name.size() == 4 ? 0 : name.size(), 4); // four letters have no length of their own
        made.text(name);
    };
    key("null");
    made.number(2, 4); // values
    key("Scl ");
    made.text("UntF#Prc");
    made.number(0x4059000000000000, 8); // 100.0
    key("masterFXSwitch");
    made.text("bool");
    made.number(1, 1);
    made.zeros((4 - made.bytes.size() % 4) % 4);
    return made.bytes;
}

// What the format's own program writes beside the names, in sizes as they are.
Layer realisticLayer(int index, std::uint32_t sidePx) {
    Layer made =
        layer(u"\u56FE\u5C42 " + std::u16string(1, static_cast<char16_t>(u'A' + index % 26)) + u" copy");
    made.legacyName = "Layer copy " + std::to_string(index);
    made.channels = kChannels;
    made.heightPx = made.widthPx = sidePx;
    made.ranges = Bytes(8 * (1 + kChannels), 0xFF);
    if (index % 5 == 0)
        made.blocksBefore.push_back({"lfx2", effects()});
    for (const char* key : {"lnsr", "lyid", "clbl", "infx", "knko", "lspf"})
        made.blocksAfter.push_back({key, Bytes(4, 0)});
    made.blocksAfter.push_back({"lclr", Bytes(8, 0)});
    made.blocksAfter.push_back({"fxrp", Bytes(16, 0)});
    return made;
}

// One image resource of an id that no program gives a meaning to.
Bytes imageResource(std::uint32_t dataBytes) {
    constexpr int unassignedId = 4900;
    PsdImage resource;
    resource.text("8BIM");
    resource.number(unassignedId, 2);
    resource.number(0, 2); // no name
    resource.number(dataBytes, 4);
    resource.zeros(dataBytes);
    return resource.bytes;
}

bool writeAll(HANDLE file, const std::uint8_t* bytes, std::size_t count) {
    DWORD written = 0;
    return WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) && written == count;
}

// The bytes, and a hole behind them, which reads as black pixels.
bool writeFile(const std::wstring& path, const Bytes& bytes, std::uint64_t holeBytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER hole{};
    hole.QuadPart = static_cast<LONGLONG>(holeBytes);
    const bool isWritten = writeAll(file, bytes.data(), bytes.size()) &&
                           SetFilePointerEx(file, hole, nullptr, FILE_CURRENT) && SetEndOfFile(file);
    CloseHandle(file);
    return isWritten;
}

std::wstring pathOf(const std::wstring& folder, const std::string& file) {
    return folder + L"\\" + std::wstring(file.begin(), file.end());
}

// Everything before the pixels, with the lengths that the pixels will have.
PsdImage buildHead(const Recipe& recipe) {
    Document document;
    document.isPsb = recipe.isPsb;
    document.channelDataBytes = 0;
    document.resources = imageResource(30'000);
    for (int i = 0; i < recipe.layers; ++i)
        document.layers.push_back(realisticLayer(i, recipe.sidePx));
    PsdImage image = build(document);
    const std::uint64_t channelBytes = kCompressionBytes + pixelBytes(recipe);
    for (int i = 0; i < recipe.layers; ++i)
        for (int channel = 0; channel < kChannels; ++channel)
            image.patch("layer" + std::to_string(i) + ".channel" + std::to_string(channel) + ".length",
                        channelBytes);
    std::uint64_t layersBytes = channelBytes * kChannels * static_cast<std::uint64_t>(recipe.layers);
    // The format asks for an even length; its own program makes it a multiple of four, and @webtoon/psd needs that.
    while ((image.valueOf("info") + layersBytes) % 4 != 0)
        ++layersBytes;
    for (const char* stretch : {"section", "info"})
        image.patch(stretch, image.valueOf(stretch) + layersBytes);
    for (const char* side : {"height", "width"})
        image.patch(side, recipe.sidePx);
    return image;
}

// Writes one document and its line of the list: title, file, layers, begin and end of the records, goal.
bool write(const Recipe& recipe, const std::wstring& folder, std::ostream& list) {
    const PsdImage image = buildHead(recipe);
    const std::size_t recordsEnd = image.offsetOf("recordsEnd");
    list << recipe.title << '\t' << recipe.file << '\t' << recipe.layers << '\t' << image.offsetOf("count")
         << '\t' << recordsEnd << '\t' << recipe.goalToRegistryPeer << '\n';
    // Behind the records stands nothing that is not zero: raw pixels, no global mask, raw pixels.
    const std::uint64_t infoEnd =
        image.offsetOf("info") + static_cast<std::uint64_t>(image.widthOf("info")) + image.valueOf("info");
    constexpr std::uint64_t globalMaskBytes = 4;
    const std::uint64_t end = infoEnd + globalMaskBytes + kCompressionBytes + kChannels * pixelBytes(recipe);
    const Bytes head(image.bytes.begin(), image.bytes.begin() + static_cast<std::ptrdiff_t>(recordsEnd));
    return writeFile(pathOf(folder, recipe.file), head, end - recordsEnd);
}

} // namespace

bool writeBenchDocuments(const std::wstring& folder) {
    CreateDirectoryW(folder.c_str(), nullptr);
    std::ofstream list(std::filesystem::path(folder + kListName), std::ios::binary);
    for (const Recipe& recipe : kRecipes)
        if (!write(recipe, folder, list))
            return false;
    list.close();
    return list.good();
}

std::vector<BenchDocument> listBenchDocuments(const std::wstring& folder) {
    std::ifstream list(std::filesystem::path(folder + kListName), std::ios::binary);
    std::vector<BenchDocument> documents;
    for (std::string line; std::getline(list, line);) {
        std::istringstream fields(line);
        BenchDocument document;
        std::string file;
        std::getline(fields, document.title, '\t');
        std::getline(fields, file, '\t');
        fields >> document.layers >> document.recordsBegin >> document.recordsEnd >>
            document.goalToRegistryPeer;
        document.path = pathOf(folder, file);
        documents.push_back(document);
    }
    return documents;
}
