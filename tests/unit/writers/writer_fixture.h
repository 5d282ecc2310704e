// Helpers for the writer tests: a small template with one layout and one
// slide of its own, a rendering pass over slides built from it, and reads of
// the output.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "engine/slide.h"
#include "support/test_support.h"
#include "template/template_fixture.h"

namespace deckforge {
namespace test {

using ppt::PPTNodePtr;

inline u16string const kSlideType = u"application/vnd.openxmlformats-officedocument.presentationml.slide+xml";
inline u16string const kMaster = u"/ppt/slideMasters/slideMaster1.xml";
inline u16string const kLayout = u"/ppt/slideLayouts/slideLayout1.xml";

// A master, one layout "Title and Content" (title with geometry and prompt
// text, a body placeholder, a fixed picture-free text shape, a footer, a
// connector) whose root says type, preserve and showMasterSp, and, unless
// `withoutSlides`, a slide of the template with sldId 300.
PackageRecipe deckTemplate(bool withoutSlides = false);

// Loads the template, copies it to the output, lets `build` make the slides
// to write from the model, renders them with a PPTWriter and closes.
struct RenderedDeck {
    using Builder = std::function<std::vector<PPTNodePtr>(ppt::PresentationModel& model)>;
    RenderedDeck(std::filesystem::path const& templateFile, std::filesystem::path const& outFile,
                 Builder const& build);
    std::filesystem::path out;
};

// A slide of the layout of that name, with its placeholder nodes.
PPTNodePtr newSlide(ppt::PresentationModel& model, u16string const& layoutName);
// The template's own slide `index` with nodes for its shapes.
PPTNodePtr templateSlide(ppt::PresentationModel& model, std::size_t index);

// The entry names of a zip file.
std::vector<std::string> zipEntries(std::filesystem::path const& file);
// The schema validator's report on a package. The package must also pass the
// compatibility checker (compared with its template, when one is named): a
// failure of it is added to the test.
std::string validate(std::filesystem::path const& file, std::string const& options = "",
                     std::filesystem::path const& templateFile = {});
// The schema validator's report alone, for templates, whose flaws are their own.
std::string schemaReport(std::filesystem::path const& file, std::string const& options = "");
std::size_t countOf(std::string const& text, std::string const& needle);

}  // namespace test
}  // namespace deckforge
