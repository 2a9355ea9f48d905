// Writes the documents that the fuzzing of the layer-name reader starts from: every structure the reader knows.
//   psd_seeds FOLDER
#include "documents/Everything.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using namespace psdtest;

class SeedFolder {
  public:
    explicit SeedFolder(std::filesystem::path folder) : m_folder(std::move(folder)) {
        std::filesystem::create_directories(m_folder);
    }

    // In both widths, and with the layers in each place that they can have.
    void add(const std::string& name, Document document) {
        for (const bool isPsb : {false, true}) {
            document.isPsb = isPsb;
            for (const Placement placement : {Placement::LayerInfo, Placement::Lr16, Placement::Lr32}) {
                document.placement = placement;
                write(name + (isPsb ? "-large-" : "-") + std::to_string(static_cast<int>(placement)),
                      build(document).bytes);
            }
        }
    }

  private:
    void write(const std::string& name, const Bytes& bytes) {
        std::ofstream file(m_folder / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }

    std::filesystem::path m_folder;
};

Document of(std::vector<Layer> layers) {
    Document document;
    document.layers = std::move(layers);
    return document;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: psd_seeds FOLDER\n";
        return 2;
    }
    SeedFolder seeds(arguments[1]);
    seeds.add("everything", everything());
    seeds.add("none", of({}));
    seeds.add("one", of({layer(u"A")}));
    seeds.add("legacy", of({legacyLayer("\xB1\xB3\xBE\xB0"), legacyLayer("\x83\x5C\x81\x5B\x83\x58"),
                            legacyLayer("\xFF")}));
    seeds.add("pairs",
              of({layer(u"\U0001F3AC"), layer(std::u16string{0xD83C}), layer(std::u16string{0xDFAC})}));
    seeds.add("long", of({layer(std::u16string(4100, u'n'))}));
    Layer heavy = layer(u"heavy"); // too long to be looked at as a whole
    heavy.blocksBefore = {{"lfx2", Bytes(12'500, 1)}};
    seeds.add("heavy", of({heavy, layer(u"A")}));
    Layer wide = layer(u"wide");
    wide.blocksBefore = {{"cinf", Bytes(6, 1), "8B64", 1}, {"Lr16", Bytes(4, 1), "8BIM", 4}};
    seeds.add("wide", of({wide}));
    Document negative = of({layer(u"A"), layer(u"B")});
    negative.negativeCount = true;
    negative.globalMask.reset();
    seeds.add("negative", negative);
    return 0;
}
