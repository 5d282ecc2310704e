#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "engine/ppt_node.h"
#include "formats/attribute.h"

using namespace deckforge;
using namespace deckforge::ppt;

namespace {

// A format of any kind, with the makeInterface a concrete format has.
class KindFormatImpl : public FormatImpl {
public:
    explicit KindFormatImpl(FormatType type) : mType(type) {}
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override { return mType; }

private:
    FormatType mType;
};
class KindFormat : public Format {
public:
    explicit KindFormat(FormatImpl* impl) : Format(impl) {}
};
boost::shared_ptr<Format> KindFormatImpl::makeInterface() {
    return boost::make_shared<KindFormat>(this);
}

boost::shared_ptr<Format> make(FormatType type) {
    return boost::make_shared<KindFormat>(new KindFormatImpl(type));
}

std::vector<FormatType> keys(Formats const& formats) {
    std::vector<FormatType> out;
    for (auto const& entry : formats.getMap()) out.push_back(entry.first);
    return out;
}

class BoxImpl : public ElementImpl {
public:
    PPTNodePtr makeInterface() override { return boost::make_shared<Element>(this); }
    PPTNodePtr clone() const override { return (new BoxImpl(*this))->makeInterface(); }
    NodeType getNodeType() const override { return NodeType::TextBox; }
};

TEST(FormatsTest, OneFormatPerKindInTypeOrder) {
    Formats formats;
    auto secondBold = make(FormatTypeBold);
    for (auto f : {make(FormatTypeVAlign), make(FormatTypeFontSize), make(FormatTypeBold),
                   boost::shared_ptr<Format>(), make(FormatTypeHAlign), secondBold})
        formats.appendFormat(f);
    EXPECT_EQ(keys(formats), (std::vector<FormatType>{FormatTypeBold, FormatTypeHAlign, FormatTypeFontSize,
                                                      FormatTypeVAlign}));
    EXPECT_EQ(formats.getFormat(FormatTypeBold), secondBold);  // the later one wins
    EXPECT_FALSE(formats.getFormat(FormatTypeItalic) || formats.getFormat(FormatTypeNone));

    formats.unsetFormat(FormatTypeItalic);  // absent: nothing happens
    formats.unsetFormat(FormatTypeHAlign);
    formats.appendFormat(boost::make_shared<Format>());  // a plain format is kind 0
    EXPECT_EQ(keys(formats), (std::vector<FormatType>{FormatTypeNone, FormatTypeBold, FormatTypeFontSize,
                                                      FormatTypeVAlign}));
}

TEST(FormatsTest, CopiesShareFormatObjectsAcrossElementsAndClones) {
    Element box(new BoxImpl());
    auto size = make(FormatTypeFontSize);
    box.elementImpl()->appendFormat(size);
    box.elementImpl()->appendFormat(make(FormatTypeBold));
    auto copy = boost::dynamic_pointer_cast<Element>(box.clone());
    EXPECT_EQ(copy->elementImpl()->getFormat(FormatTypeFontSize), size);

    Formats italic;
    italic.appendFormat(make(FormatTypeItalic));
    box.setStyle(italic);  // replaces the whole collection
    box.setStyle(box.getStyle());
    EXPECT_EQ(keys(box.getStyle()), std::vector<FormatType>{FormatTypeItalic});
    EXPECT_EQ(keys(copy->getStyle()), (std::vector<FormatType>{FormatTypeBold, FormatTypeFontSize}));
    EXPECT_EQ(italic.getFormat(FormatTypeItalic), box.elementImpl()->getFormat(FormatTypeItalic));
}

// An attribute holding an object keeps one reference, to the latest value only.
TEST(AttributeTest, ObjectValuesHoldOneReference) {
    PPTObject first, second;
    BaseAttribute<PPTObject> object;
    object.setValue(first);
    object.setValue(second);
    EXPECT_EQ(first.getImpl()->getRefCount(), 1u);
    EXPECT_EQ(second.getImpl()->getRefCount(), 2u);
    object.unsetValue();
    EXPECT_EQ(second.getImpl()->getRefCount(), 1u);
}

}  // namespace
