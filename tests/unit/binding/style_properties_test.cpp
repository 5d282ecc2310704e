// The format properties that node classes register: values in and out,
// [] to unset, and refused values leaving the node alone.
#include <gtest/gtest.h>

#include "binding/style_properties.h"
#include "nodes/text_box.h"

namespace deckforge {
namespace ppt {
namespace mi {
namespace {

PropertyInfo const& property(ClassDescription const& cls, std::string const& name) {
    PropertyInfo const* info = cls.ownProperty(name);
    if (!info) throw std::runtime_error("no property " + name);
    return *info;
}

TEST(StyleProperties, ReadValuesWriteFormatsAndEmptyUnsets) {
    ClassDescription cls("deckforge.ppt", "TextBox");
    addCharacterStyleProperties<BaseTextBox>(cls);
    addBoxStyleProperties<BaseTextBox>(cls);
    std::vector<std::string> names;
    for (auto const& p : cls.properties()) names.push_back(p.name);
    EXPECT_EQ((std::vector<std::string>{"Bold", "Font", "ComplexScriptFont", "FontColor", "FontSize",
                                        "Italic", "Strike", "Subscript", "Superscript", "Underline",
                                        "BackgroundColor", "VAlign"}),
              names);

    TextBox box(u"b");
    PPTObject const& self = box;
    EXPECT_TRUE(property(cls, "Bold").get(self).isEmpty());
    property(cls, "Bold").set(self, Value::logical(false));
    ASSERT_TRUE(box.getBold());
    EXPECT_FALSE(box.getBold()->getValue());
    EXPECT_FALSE(property(cls, "Bold").get(self).isEmpty());
    property(cls, "Bold").set(self, Value());
    EXPECT_FALSE(box.getBold());

    property(cls, "FontColor").set(self, Value::text(u" Red "));
    EXPECT_EQ(u"red", box.getFontColor()->getValue());
    EXPECT_THROW(property(cls, "FontColor").set(self, Value::text(u"#12345")), std::exception);
    EXPECT_EQ(u"red", box.getFontColor()->getValue());
    EXPECT_THROW(property(cls, "FontSize").set(self, Value::text(u"0pt")), std::exception);
    EXPECT_FALSE(box.getFontSize());

    property(cls, "Font").set(self, Value::text(u"Arial"));
    property(cls, "ComplexScriptFont").set(self, Value::text(u"Mangal"));
    property(cls, "Font").set(self, Value());
    EXPECT_EQ(u"Mangal", box.getFontFamily()->getComplexScriptFont());
    EXPECT_TRUE(property(cls, "Font").get(self).isEmpty());
    property(cls, "VAlign").set(self, Value::text(u"MiddleCentered"));
    EXPECT_EQ(u"middleCentered", box.getVAlign()->getValue());
}

}  // namespace
}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
