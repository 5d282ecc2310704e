#include "support/test_support.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

#include <unistd.h>

namespace deckforge { namespace test {

ScratchDir::ScratchDir() {
    static std::atomic<unsigned> counter{0};
    std::random_device rd;
    auto name = "deckforge-test-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) +
                "-" + std::to_string(rd());
    path_ = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path_);
}

ScratchDir::~ScratchDir() {
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
}

std::filesystem::path sourceDir() { return DECKFORGE_SOURCE_DIR; }
std::filesystem::path binaryDir() { return DECKFORGE_BINARY_DIR; }
std::filesystem::path realTemplates() { return std::filesystem::path(DECKFORGE_SHARED_DIR) / "real-templates"; }
std::filesystem::path schemaValidator() {
    return std::filesystem::path(DECKFORGE_SHARED_DIR) / "ooxml-schemas" / "validate-pptx";
}

std::filesystem::path compatibilityChecker() {
    return sourceDir() / "tests" / "tools" / "check-pptx";
}

std::string checkCompatibility(std::filesystem::path const& deck, std::filesystem::path const& templateFile) {
    return checkCompatibility({{deck, templateFile}});
}

std::string checkCompatibility(std::vector<std::pair<std::filesystem::path, std::filesystem::path>> const& decks) {
    std::string command = "python3 '" + compatibilityChecker().string() + "'";
    for (auto const& [deck, templateFile] : decks) {
        if (!templateFile.empty()) command += " --template '" + templateFile.string() + "'";
        command += " '" + deck.string() + "'";
    }
    command += " 2>&1";
    std::string report;
    FILE* pipe = ::popen(command.c_str(), "r");
    if (!pipe) return report;
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) report.append(buffer, n);
    ::pclose(pipe);
    return report;
}

bool officeToolsAvailable() {
    if (std::getenv("DECKFORGE_NO_OFFICE")) return false;
    return std::system("command -v soffice >/dev/null 2>&1 && command -v pdfinfo >/dev/null 2>&1 && "
                       "command -v pdftotext >/dev/null 2>&1") == 0;
}

std::string readFile(std::filesystem::path const& p) {
    std::ifstream in(p, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + p.string());
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void writeFile(std::filesystem::path const& p, std::string const& bytes) {
    std::ofstream out(p, std::ios::binary);
    if (!out) throw std::runtime_error("cannot write " + p.string());
    out << bytes;
}

}}  // namespace deckforge::test
