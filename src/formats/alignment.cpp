#include "formats/alignment.h"

#include <boost/make_shared.hpp>

#include "formats/value_table.h"
#include "writers/base_text_box_writer.h"
#include "writers/paragraph_writer.h"
#include "writers/table_entry_writer.h"
#include "writers/xml_names.h"

namespace deckforge {
namespace ppt {

namespace {

xml::Name const kAlgn{u"algn"};
xml::Name const kAnchor{u"anchor"};
xml::Name const kAnchorCtr{u"anchorCtr"};

ValueTable const& hAlignTable() {
    static ValueTable const table({{u"left", {u"left", u"l"}},
                                   {u"right", {u"right", u"r"}},
                                   {u"center", {u"center", u"ctr"}},
                                   {u"justified", {u"justified", u"just"}},
                                   {u"justifiedlow", {u"justifiedLow", u"justLow"}},
                                   {u"distributed", {u"distributed", u"dist"}},
                                   {u"thaidistributed", {u"thaiDistributed", u"thaiDist"}}});
    return table;
}

ValueTable const& vAlignTable() {
    static ValueTable const table({{u"top", {u"top", u"t"}},
                                   {u"middle", {u"middle", u"ctr"}},
                                   {u"bottom", {u"bottom", u"b"}},
                                   {u"topcentered", {u"topCentered", u"t"}},
                                   {u"middlecentered", {u"middleCentered", u"ctr"}},
                                   {u"bottomcentered", {u"bottomCentered", u"b"}}});
    return table;
}

}  // namespace

HAlignImpl::HAlignImpl(u16string const& value) {
    setValue(value);
}
char const* HAlignImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.HAlign";
}
boost::shared_ptr<Format> HAlignImpl::makeInterface() {
    return boost::make_shared<HAlign>(this);
}
FormatType HAlignImpl::getFormatType() const {
    return FormatTypeHAlign;
}
void HAlignImpl::setValue(u16string const& value) {
    mValue = hAlignTable().canonicalName(value);
}
void HAlignImpl::applyToParagraph(ParagraphWriter& writer) const {
    writer.setParagraphAttribute(kAlgn, hAlignTable().markup(mValue).c_str());
}
boost::shared_ptr<Format> HAlignImpl::clone() const {
    return (new HAlignImpl(*this))->makeInterface();
}

HAlign::HAlign() : Format(new HAlignImpl()) {}
HAlign::HAlign(u16string const& value) : Format(new HAlignImpl(value)) {}
boost::shared_ptr<HAlign> HAlign::clone() const {
    return boost::static_pointer_cast<HAlign>(getImplAs<HAlignImpl>()->clone());
}

VAlignImpl::VAlignImpl(u16string const& value) {
    setValue(value);
}
char const* VAlignImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.VAlign";
}
boost::shared_ptr<Format> VAlignImpl::makeInterface() {
    return boost::make_shared<VAlign>(this);
}
FormatType VAlignImpl::getFormatType() const {
    return FormatTypeVAlign;
}
void VAlignImpl::setValue(u16string const& value) {
    mValue = vAlignTable().canonicalName(value);
}
u16string const& VAlignImpl::getAnchor() const {
    return vAlignTable().markup(mValue);
}
bool VAlignImpl::isCentered() const {
    return mValue.find(u"Centered") != u16string::npos;
}
void VAlignImpl::applyToBaseTextBox(BaseTextBoxWriter& writer) const {
    writer.setBodyAttribute(kAnchor, getAnchor().c_str());
    writer.setBodyAttribute(kAnchorCtr, isCentered());
}
void VAlignImpl::applyToTableEntry(TableEntryWriter& writer) const {
    writer.setCellAttribute(kAnchor, getAnchor().c_str());
    writer.setCellAttribute(kAnchorCtr, isCentered());
}
boost::shared_ptr<Format> VAlignImpl::clone() const {
    return (new VAlignImpl(*this))->makeInterface();
}

VAlign::VAlign() : Format(new VAlignImpl()) {}
VAlign::VAlign(u16string const& value) : Format(new VAlignImpl(value)) {}
boost::shared_ptr<VAlign> VAlign::clone() const {
    return boost::static_pointer_cast<VAlign>(getImplAs<VAlignImpl>()->clone());
}

}  // namespace ppt
}  // namespace deckforge
