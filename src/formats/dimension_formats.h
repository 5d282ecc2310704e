// Formats whose value is a length: the column width of a table and the size
// of a run's characters. The text is checked when it is set: a bare number,
// which a Dimension alone would read as pixels, is refused here.
#pragma once

#include "common/dimension.h"
#include "formats/format.h"

namespace deckforge {
namespace ppt {

class BaseDimensionImpl : public FormatImpl {
public:
    // "0px".
    BaseDimensionImpl() = default;
    explicit BaseDimensionImpl(u16string const& value);
    BaseDimensionImpl(BaseDimensionImpl const& other) = default;

    // The normalised text of the length.
    u16string const& getValue() const { return mDimension.getText(); }
    // invalidPropertyValue with the text as given for a text that isn't a
    // length with a unit; a sign without a number raises the Dimension's own
    // invalidDimensionSign. The value stays on failure.
    virtual void setValue(u16string const& value);
    Dimension const& getDimension() const { return mDimension; }

protected:
    // The parsed length, after the common checks; a subclass may refuse it.
    virtual void check(Dimension const& dimension, u16string const& value) const;

private:
    Dimension mDimension;
};

class BaseDimension : public Format {
public:
    BaseDimension();
    explicit BaseDimension(u16string const& value);
    explicit BaseDimension(FormatImpl* impl) : Format(impl) {}

    u16string const& getValue() const { return dimensionImpl()->getValue(); }
    void setValue(u16string const& value) { dimensionImpl()->setValue(value); }
    Dimension const& getDimension() const { return dimensionImpl()->getDimension(); }

    BaseDimensionImpl* dimensionImpl() const { return getImplAs<BaseDimensionImpl>(); }
};

// The width of a table column. Its effect joins with the table writers: the
// widest width among the entries of a column wins.
class ColWidthImpl : public BaseDimensionImpl {
public:
    explicit ColWidthImpl(u16string const& value = u"0.25in");
    ColWidthImpl(ColWidthImpl const& other) = default;

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    // No markup: the column of the entry becomes at least this wide.
    void applyToTableEntry(TableEntryWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;
};

class ColWidth : public BaseDimension {
public:
    ColWidth();
    explicit ColWidth(u16string const& value);
    explicit ColWidth(FormatImpl* impl) : BaseDimension(impl) {}
    boost::shared_ptr<ColWidth> clone() const;
};

// The size of a run's characters, written as "sz" in hundredths of a point.
class FontSizeImpl : public BaseDimensionImpl {
public:
    explicit FontSizeImpl(u16string const& value = u"12pt");
    FontSizeImpl(FontSizeImpl const& other) = default;

    char const* getFullyQualifiedHobjTypeName() const override;
    boost::shared_ptr<Format> makeInterface() override;
    FormatType getFormatType() const override;
    void applyToText(TextWriter& writer) const override;
    boost::shared_ptr<Format> clone() const override;

    // What "sz" holds for a length: its points times 100, truncated.
    static std::int32_t hundredthsOfPoint(Dimension const& dimension);

protected:
    // A size that "sz" can't hold (below 1pt, above 4000pt, or no size at
    // all, as a percentage) raises invalidPropertyValue, so that the stored
    // size always gives a deck that readers accept.
    void check(Dimension const& dimension, u16string const& value) const override;
};

class FontSize : public BaseDimension {
public:
    FontSize();
    explicit FontSize(u16string const& value);
    explicit FontSize(FormatImpl* impl) : BaseDimension(impl) {}
    boost::shared_ptr<FontSize> clone() const;
};

}  // namespace ppt
}  // namespace deckforge
