// Alignment: HAlign aligns a paragraph, VAlign anchors the text of a box or
// a table cell. Both hold the canonical name of a word of their vocabulary,
// looked up in any letter case; the markup values themselves ("ctr",
// "just") are no words and are refused with invalidPropertyValue.
#pragma once

#include "formats/format.h"

namespace deckforge {
namespace ppt {

class HAlignImpl : public FormatImpl {
public:
    explicit HAlignImpl(u16string const& value = u"left");
    HAlignImpl(HAlignImpl const& other) = default;

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // "algn" on a:pPr.
    void applyToParagraph(ParagraphWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    u16string const& getValue() const { return mValue; }
    void setValue(u16string const& value);

private:
    u16string mValue;
};

class HAlign : public Format {
public:
    HAlign();
    explicit HAlign(u16string const& value);
    explicit HAlign(FormatImpl* impl) : Format(impl) {}
    u16string const& getValue() const { return getImplAs<HAlignImpl>()->getValue(); }
    void setValue(u16string const& value) { getImplAs<HAlignImpl>()->setValue(value); }
    boost::shared_ptr<HAlign> clone() const;
};

class VAlignImpl : public FormatImpl {
public:
    explicit VAlignImpl(u16string const& value = u"top");
    VAlignImpl(VAlignImpl const& other) = default;

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // "anchor" and then "anchorCtr" on a:bodyPr, both always.
    void applyToBaseTextBox(BaseTextBoxWriter& writer) const override;
    // The same on the cell's a:tcPr.
    void applyToTableEntry(TableEntryWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    u16string const& getValue() const { return mValue; }
    void setValue(u16string const& value);
    // The "anchor" value, and whether the text block is centred across.
    u16string const& getAnchor() const;
    bool isCentered() const;

private:
    u16string mValue;
};

class VAlign : public Format {
public:
    VAlign();
    explicit VAlign(u16string const& value);
    explicit VAlign(FormatImpl* impl) : Format(impl) {}
    u16string const& getValue() const { return getImplAs<VAlignImpl>()->getValue(); }
    void setValue(u16string const& value) { getImplAs<VAlignImpl>()->setValue(value); }
    boost::shared_ptr<VAlign> clone() const;
};

}  // namespace ppt
}  // namespace deckforge
