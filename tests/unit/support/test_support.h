// Helpers shared by the unit tests: scratch directories and paths to fixtures.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace deckforge { namespace test {

// A fresh directory under the system temp dir, removed with the object.
class ScratchDir {
public:
    ScratchDir();
    ~ScratchDir();
    ScratchDir(ScratchDir const&) = delete;
    ScratchDir& operator=(ScratchDir const&) = delete;
    std::filesystem::path const& path() const { return path_; }
    std::filesystem::path operator/(std::string const& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

std::filesystem::path sourceDir();      // the repository
std::filesystem::path binaryDir();      // the build tree
std::filesystem::path realTemplates();  // ../shared/real-templates
std::filesystem::path schemaValidator();  // ../shared/ooxml-schemas/validate-pptx
std::filesystem::path compatibilityChecker();  // tests/tools/check-pptx

// The compatibility checker's report on a deck, ending in "N parts checked, M
// problems". With a template, only what the deck adds to the template's own
// problems counts.
std::string checkCompatibility(std::filesystem::path const& deck,
                               std::filesystem::path const& templateFile = {});
// The same for several decks, each with its template (or none), in one run.
std::string checkCompatibility(std::vector<std::pair<std::filesystem::path, std::filesystem::path>> const& decks);

// Whether LibreOffice and poppler's tools are there for a round trip through
// a real reader. The sanitizer run sets DECKFORGE_NO_OFFICE: those round trips
// exercise the office suite, not our code, and the plain build has run them.
bool officeToolsAvailable();

std::string readFile(std::filesystem::path const& p);
void writeFile(std::filesystem::path const& p, std::string const& bytes);

}}  // namespace deckforge::test
