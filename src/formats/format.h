// The base of all formats. A format is a small styling object that a node
// holds in its Formats; at rendering the node's writer hands itself to each
// format (applyToX) and the format calls back the writer's element helpers,
// so formats know no markup and writers know no format values. A format
// ignores every writer whose apply operation it doesn't override.
#pragma once

#include <boost/shared_ptr.hpp>

#include "engine/ppt_object.h"
#include "formats/format_type.h"

namespace deckforge {
namespace ppt {

class Format;
class BaseTextBoxWriter;
class ParagraphWriter;
class TableWriter;
class TableEntryWriter;
class TextWriter;

class FormatImpl : public PPTObjectImpl {
public:
    FormatImpl() = default;
    FormatImpl(FormatImpl const& other) = default;

    // Each concrete format overrides these three.
    char const* getFullyQualifiedHobjTypeName() const override;
    virtual boost::shared_ptr<Format> makeInterface();
    virtual FormatType getFormatType() const;

    virtual void applyToBaseTextBox(BaseTextBoxWriter& writer) const;
    virtual void applyToParagraph(ParagraphWriter& writer) const;
    virtual void applyToTable(TableWriter& writer) const;
    virtual void applyToTableEntry(TableEntryWriter& writer) const;
    virtual void applyToText(TextWriter& writer) const;

    // A handle over a copy; empty for the kinds that can't be copied.
    virtual boost::shared_ptr<Format> clone() const;
};

class Format : public PPTObject {
public:
    // A plain format of type FormatTypeNone.
    Format();
    explicit Format(FormatImpl* impl) : PPTObject(impl) {}

    boost::shared_ptr<Format> makeInterface() const { return formatImpl()->makeInterface(); }
    // FormatTypeNone for a handle without a concrete implementation. Inline,
    // so that Formats stays usable without linking this library.
    FormatType getFormatType() const {
        FormatImpl* p = formatImpl();
        return p ? p->getFormatType() : FormatTypeNone;
    }

    FormatImpl* formatImpl() const { return getImplAs<FormatImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
