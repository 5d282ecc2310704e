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

// A copy may also go behind the last slide.
std::size_t copyIndex(Call& c, std::size_t arg) {
    return c.index<ppt_error::badSlideSubscript>(arg, c.self<Presentation>().getNChildren() + 1);
}

Value propertiesResult(Presentation presentation) {
    hvArray properties(hvClassID::Struct, 1, 1);
    for (auto const& field : presentation.getProperties())
        properties.setField(0, toUtf8(field.first), Value::text(field.second).array());
    return Value(std::move(properties));
}

hvArray textArray(u16string const& text) {
    return Value::text(text).array();
}

// A struct row, one element per layout; each Placeholders a struct row too
// (an empty struct where the layout has none).
Value describeResult(std::vector<LayoutDescription> const& layouts) {
    hvArray result(hvClassID::Struct, layouts.empty() ? 0 : 1, layouts.size());
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        auto const& placeholders = layouts[i].placeholders;
        hvArray list(hvClassID::Struct, placeholders.empty() ? 0 : 1, placeholders.size());
        for (std::size_t k = 0; k < placeholders.size(); ++k) {
            auto const& ph = placeholders[k];
            list.setField(k, "Name", textArray(ph.name));
            list.setField(k, "Role", textArray(ph.role));
            list.setField(k, "Index", Value::number(ph.index).array());
            list.setField(k, "X", textArray(ph.x));
            list.setField(k, "Y", textArray(ph.y));
            list.setField(k, "Width", textArray(ph.width));
            list.setField(k, "Height", textArray(ph.height));
        }
        result.setField(i, "Master", textArray(layouts[i].master));
        result.setField(i, "Layout", textArray(layouts[i].layout));
        result.setField(i, "Placeholders", std::move(list));
    }
    return Value(std::move(result));
}

// Fields are checked before any is set, so a bad struct changes nothing.
void setProperties(PPTObject const& self, Value const& value) {
    if (!value.isArray() || value.array().classID() != hvClassID::Struct || value.numel() != 1)
        raise<ppt_error::invalidPropertiesValue>();
    hvArray const& properties = value.array();
    Presentation presentation(self.getImpl());
    auto const known = presentation.getProperties();
    for (auto const& name : properties.fieldNames()) {
        bool found = false;
        for (auto const& entry : known) found = found || entry.first == toString(name);
        if (!found) raise<ppt_error::unknownPropertiesField>(toString(name));
    }
    std::vector<std::pair<u16string, u16string>> fields;
    for (auto const& name : properties.fieldNames()) {
        hvArray const* field = properties.field(0, name);
        Value const fieldValue = field ? Value::fromHvArray(*field) : Value();
        // [] clears a field, as '' does.
        bool const empty = fieldValue.isArray() && fieldValue.isEmpty();
        fields.emplace_back(toString(name), empty ? u16string() : toText(fieldValue));
    }
    for (auto const& field : fields) presentation.setProperty(field.first, field.second);
}
}  // namespace

class CosPresentation : public CosPPTObjectClassInfo {
public:
    CosPresentation() : CosPPTObjectClassInfo("Presentation") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title Slide');\n"
            "s.replace('Title', 'Quarterly report');\n"
            "s.replace('Subtitle', 'made with deckforge');\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A presentation built on a template and written to OutputPath by close.\n"
            "  p = deckforge.ppt.Presentation('out.pptx');   % default template\n"
            "  s = p.add('Title Slide');\n"
            "  p.close();");
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
        cls.addProperty(
            "Properties", "struct",
            [](PPTObject const& self) { return propertiesResult(Presentation(self.getImpl())); },
            setProperties,
            "The document properties: a struct of Title, Subject, Author, Keywords, Description, "
            "Category, LastModifiedBy, Created and Modified (ISO 8601 text, as '2024-05-01T09:00:00Z'). "
            "Assigning a struct sets the fields it has:  p.Properties = struct('Title', 'Results'); "
            "With SOURCE_DATE_EPOCH set, Modified is that time unless assigned.");

        cls.addMethod(
            "open", words::Logical, {}, [](Call& c) { return toScript(c.self<Presentation>().open()); },
            "Reads the template; true if it opened now. The first add does it too.");
        cls.addMethod(
            "close", words::Logical, {}, [](Call& c) { return toScript(c.self<Presentation>().close()); },
            "Writes the output file.");
        cls.addMethod(
            "find", words::NodeVector, {words::String},
            [](Call& c) { return toScript(c.self<Presentation>().find(c.text(0))); },
            "The nodes of that name, as a cell row; [] if none. Where no shape of the deck bears the "
            "name, a role reaches each slide's placeholder of that role: Title, Subtitle, Content, "
            "Text, Picture, Table, Chart, Date, Footer, SlideNumber, and 'Content 2' the second one "
            "(see describe).");
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
        cls.addMethod(
            "remove", words::Void, {kSlide},
            [](Call& c) {
                c.self<Presentation>().remove(c.object<Slide>(0));
                return Value();
            },
            "remove(slide): the slide leaves the deck, a template slide too. At close its part, "
            "its notes and whatever only it used (pictures, charts) are left out of the file.");
        cls.addMethod(
            "move", words::Void, {kSlide, words::UInt64},
            [](Call& c) {
                std::size_t index = slideIndex(c, 1);
                c.self<Presentation>().move(c.object<Slide>(0), static_cast<unsigned long>(index));
                return Value();
            },
            "move(slide, index): the slide goes to the 1-based index among the deck's slides.");
        cls.addMethod(
            "duplicate", kSlide, {kSlide},
            [](Call& c) { return slideResult(c.self<Presentation>().duplicate(c.object<Slide>(0))); },
            "d = duplicate(slide): a full copy of the slide (shapes, text, tables, pictures, notes), "
            "right after it. Pictures are stored once for both.");
        cls.addMethod(
            "duplicate", kSlide, {kSlide, words::UInt64},
            [](Call& c) {
                Presentation presentation = c.self<Presentation>();
                Slide const original = c.object<Slide>(0);
                std::size_t index = copyIndex(c, 1);
                return slideResult(presentation.duplicate(original, static_cast<unsigned long>(index)));
            },
            "d = duplicate(slide, index): the copy at the 1-based index; one past the last appends.");
        // By name, on every slide. There is no add(name, text): two texts
        // name a layout and its master.
        addContentByNameMethods<Presentation>(cls);
        cls.addMethod(
            "describe", words::Any, {},
            [](Call& c) { return describeResult(c.self<Presentation>().describe()); },
            "d = describe(): what the template offers, a struct row with one element per layout of "
            "every master: Master, Layout and Placeholders, a struct row of Name, Role, Index (the "
            "placeholder's idx), X, Y, Width and Height (lengths as text, '2.54cm'; empty where "
            "neither layout nor master places it). Role is Title, Subtitle, Content, Text, Picture, "
            "Table, Chart, Date, Footer or SlideNumber: the names that find, replace and add take "
            "where no shape bears the name. Content covers object placeholders, and body "
            "placeholders of a layout without one, nor a picture, table or chart placeholder (other "
            "than a section header's, or a quarter-size caption). Opens the presentation as add does. "
            "deckforge.ppt.preview(template, out) writes a deck of every layout, labelled.");
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
                Presentation presentation = c.self<Presentation>();
                auto const& styles = presentation.getTableStyleNames();
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
