// make_seeds <corpus dir> <package>...: the first corpus of a fuzz target
// that reads packages. Each package goes in twice: as the zip it is, and as
// the item list of package_input.h with its XML items only (media aren't read
// when a template is opened, and only make the inputs longer).
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "support/package_input.h"

namespace fs = std::filesystem;

namespace {

bool isMarkup(std::string const& name) {
    auto endsWith = [&](std::string const& tail) {
        return name.size() >= tail.size() && name.compare(name.size() - tail.size(), tail.size(), tail) == 0;
    };
    return endsWith(".xml") || endsWith(".rels");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: make_seeds <corpus dir> <package>...\n";
        return 2;
    }
    fs::path const out = argv[1];
    fs::create_directories(out);
    for (int i = 2; i < argc; ++i) {
        fs::path const package = argv[i];
        std::ifstream in(package, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        if (!in) {
            std::cerr << "make_seeds: cannot read " << package << "\n";
            return 1;
        }
        std::string const zip = bytes.str();
        deckforge::fuzz::Items markup;
        for (auto& item : deckforge::fuzz::unzipItems(zip))
            if (isMarkup(item.first)) markup.push_back(std::move(item));
        std::string const stem = package.filename().string();
        std::ofstream(out / (stem + ".zip"), std::ios::binary) << zip;
        std::ofstream(out / (stem + ".items"), std::ios::binary) << deckforge::fuzz::joinItems(markup);
    }
    return 0;
}
