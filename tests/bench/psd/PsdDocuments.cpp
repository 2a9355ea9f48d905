#include "PsdDocuments.h"
#include "builder/PsdBuilder.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <windows.h>

namespace {

using namespace psdtest;

struct Recipe {
    const char* title;
    const char* file;
    bool isPsb;
    int layers;
    std::size_t channelBytes;
    std::uint64_t holeBytes;
    double goalToRegistryPeer;
};

constexpr const wchar_t* kListName = L"\\documents.txt";

constexpr std::uint64_t kMiB = 1024 * 1024;

constexpr Recipe kRecipes[] = {
    {"43 MB", "43mb.psd", false, 60, 43 * kMiB / 60, 0, 1.0 / 50},
    {"1,000 layers", "1000.psd", false, 1000, 200, 0, 1.0 / 15},
    {"8,000 layers", "8000.psd", false, 8000, 200, 0, 1.0 / 15},
    {"1.5 GB", "large.psd", false, 40, 2, 1500 * kMiB, 1.0 / 500},
    {"3.2 GB", "larger.psb", true, 40, 2, 3200 * kMiB, 1.0 / 2000},
};

// What the format's own program writes beside the names, in sizes as they are.
Layer realisticLayer(int index) {
    Layer made =
        layer(u"\u56FE\u5C42 " + std::u16string(1, static_cast<char16_t>(u'A' + index % 26)) + u" copy");
    made.legacyName = "Layer copy " + std::to_string(index);
    made.mask = Bytes(index % 4 == 0 ? 20 : 0, 0);
    made.ranges = Bytes(40, 0xFF);
    if (index % 5 == 0)
        made.blocksBefore.push_back({"lfx2", Bytes(220, 1)});
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

// The bytes up to split, a hole, and the rest.
bool writeFile(const std::wstring& path, const Bytes& bytes, std::size_t split, std::uint64_t holeBytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER hole{};
    hole.QuadPart = static_cast<LONGLONG>(holeBytes);
    const bool isWritten = writeAll(file, bytes.data(), split) &&
                           SetFilePointerEx(file, hole, nullptr, FILE_CURRENT) &&
                           writeAll(file, bytes.data() + split, bytes.size() - split);
    CloseHandle(file);
    return isWritten;
}

std::wstring pathOf(const std::wstring& folder, const std::string& file) {
    return folder + L"\\" + std::wstring(file.begin(), file.end());
}

// Writes one document and its line of the list: title, file, layers, begin and end of the records, goal.
bool write(const Recipe& recipe, const std::wstring& folder, std::ostream& list) {
    Document document;
    document.isPsb = recipe.isPsb;
    document.channelDataBytes = recipe.channelBytes;
    document.resources = imageResource(30'000);
    for (int i = 0; i < recipe.layers; ++i)
        document.layers.push_back(realisticLayer(i));
    PsdImage image = build(document);

    const std::string last = "layer" + std::to_string(recipe.layers - 1);
    list << recipe.title << '\t' << recipe.file << '\t' << recipe.layers << '\t' << image.offsetOf("count")
         << '\t' << image.offsetOf(last + ".extra") + 4 + image.valueOf(last + ".extra") << '\t'
         << recipe.goalToRegistryPeer << '\n';
    // The hole belongs to the last channel of the last layer, which ends where the layer info does.
    const std::size_t split = image.offsetOf("info") + static_cast<std::size_t>(image.widthOf("info")) +
                              static_cast<std::size_t>(image.valueOf("info"));
    for (const std::string& field : {std::string("section"), std::string("info"), last + ".channel0.length"})
        image.patch(field, image.valueOf(field) + recipe.holeBytes);
    return writeFile(pathOf(folder, recipe.file), image.bytes, split, recipe.holeBytes);
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
