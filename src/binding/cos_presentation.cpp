#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "engine/presentation.h"
#include "engine/slide.h"
#include "nodes/paragraph.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
constexpr char const* kSlide = "deckforge.ppt.Slide";

Value slideResult(Slide const& slide) {
    return toScript(static_cast<PPTObject const&>(slide));
}

// Script indexes are 1-based; the library's 0-based. An index can't put a
// slide behind the last.
std::size_t slideIndex(Call& c, std::size_t arg) {
    return c.index<ppt_error::badSlideSubscript>(arg, c.self<Presentation>().getNChildren());
}
}  // namespace

class CosPresentation : public CosPPTObjectClassInfo {
public:
    CosPresentation() : CosPPTObjectClassInfo("Presentation") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp(
            "A presentation built on a template and written to OutputPath by close.\n"
            "  p = deckforge.ppt.Presentation('out.pptx');   % default template\n"
            "  s = p.add('Title Slide'); p.close();");
        cls.addSuperclass("deckforge.ppt.Node");
        cls.addConstructor(
            {}, [](Call&) { return Presentation(); }, "Presentation()");
        cls.addConstructor(
            {words::String}, [](Call& c) { return Presentation(c.text(0)); }, "Presentation(outputPath)");
        cls.addConstructor(
            {words::String, words::String}, [](Call& c) { return Presentation(c.text(0), c.text(1)); },
            "Presentation(outputPath, templatePath)");

        cls.addProperty("TemplatePath", "text", getter(&Presentation::getTemplatePath),
                        textSetter(&Presentation::setTemplatePath),
                        "The template; fixed once the presentation is open.");
        cls.addProperty("OutputPath", "text", getter(&Presentation::getOutputPath),
                        textSetter(&Presentation::setOutputPath),
                        "The file that close writes; fixed once the presentation is open.");

        cls.addMethod(
            "open", words::Logical, {}, [](Call& c) { return toScript(c.self<Presentation>().open()); },
            "Reads the template; true if it opened now. The first add does it too.");
        cls.addMethod(
            "close", words::Logical, {}, [](Call& c) { return toScript(c.self<Presentation>().close()); },
            "Writes the output file.");
        cls.addMethod(
            "find", words::NodeVector, {words::String},
            [](Call& c) { return toScript(c.self<Presentation>().find(c.text(0))); },
            "The nodes of that name, as a cell row; [] if none.");
        cls.addMethod(
            "add", kSlide, {words::String},
            [](Call& c) { return slideResult(c.self<Presentation>().add(c.text(0))); },
            "add(layout): a new slide of the layout at the end.");
        cls.addMethod(
            "add", kSlide, {words::String, words::String},
            [](Call& c) { return slideResult(c.self<Presentation>().add(c.text(0), c.text(1))); },
            "add(layout, master): a new slide of the master's layout at the end.");
        cls.addMethod(
            "add", kSlide, {words::String, kSlide},
            [](Call& c) { return slideResult(c.self<Presentation>().add(c.text(0), c.object<Slide>(1))); },
            "add(layout, slide): a new slide before the given one.");
        cls.addMethod(
            "add", kSlide, {words::String, words::String, kSlide},
            [](Call& c) {
                return slideResult(c.self<Presentation>().add(c.text(0), c.text(1), c.object<Slide>(2)));
            },
            "add(layout, master, slide): a new slide before the given one.");
        cls.addMethod(
            "add", kSlide, {words::String, words::UInt64},
            [](Call& c) {
                std::size_t index = slideIndex(c, 1);
                return slideResult(c.self<Presentation>().add(c.text(0), static_cast<unsigned long>(index)));
            },
            "add(layout, index): a new slide at the 1-based index.");
        cls.addMethod(
            "add", kSlide, {words::String, words::String, words::UInt64},
            [](Call& c) {
                std::size_t index = slideIndex(c, 2);
                return slideResult(
                    c.self<Presentation>().add(c.text(0), c.text(1), static_cast<unsigned long>(index)));
            },
            "add(layout, master, index): a new slide at the 1-based index.");
        // By name, on every slide. There is no add(name, text): two texts
        // name a layout and its master.
        addContentByNameMethods<Presentation>(cls);
        cls.addMethod(
            "getMasterNames", words::Any, {},
            [](Call& c) { return toScript(c.self<Presentation>().getMasterNames()); },
            "The slide masters' names, as a cell row.");
        cls.addMethod(
            "getLayoutNames", words::Any, {words::Any},
            [](Call& c) { return toScript(c.self<Presentation>().getLayoutNames(toText(c.raw(0)))); },
            "getLayoutNames(master): the master's layout names, as a cell row.");
        cls.addMethod(
            "getTableStyleNames", words::Any, {},
            [](Call& c) {
                auto const& styles = c.self<Presentation>().getTableStyleNames();
                std::vector<Value> cells(styles.size() * 2);
                for (std::size_t i = 0; i < styles.size(); ++i) {
                    cells[i] = Value::text(styles[i].first);
                    cells[styles.size() + i] = Value::text(styles[i].second);
                }
                return Value::cell(styles.size(), 2, std::move(cells));
            },
            "The table styles as an n-by-2 cell: name and id in each row.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosPresentation() {
    return std::make_unique<CosPresentation>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
