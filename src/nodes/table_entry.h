// One cell of a table row: paragraphs, and the number of grid columns the
// cell spans. An entry with no paragraph is legal; the writer gives it an
// empty one.
#pragma once

#include <cstdint>

#include "engine/ppt_node.h"
#include "nodes/paragraph.h"
#include "formats/element_style.h"

namespace deckforge {
namespace ppt {

class TableEntryImpl : public ElementImpl {
public:
    TableEntryImpl();
    // Clones the paragraphs; keeps the span and where the text came from.
    TableEntryImpl(TableEntryImpl const& other);
    ~TableEntryImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    std::int32_t getColSpan() const { return mColSpan; }
    // Above 0, or invalidPropertyValue with the value; the span stays then.
    void setColSpan(std::int32_t span);

    // Whether the entry's text came from a number of a host table; such
    // entries are right-aligned unless a format says otherwise.
    bool isFromNumber() const { return mFromNumber; }
    void setFromNumber(bool fromNumber) { mFromNumber = fromNumber; }

private:
    std::int32_t mColSpan = 1;
    bool mFromNumber = false;
};

// The constructor and append that take a Paragraph adopt that very object;
// one that has a parent raises failedToAppendChild.
class TableEntry : public Element,
                   public FontStyle<TableEntry>,
                   public ParagraphStyle<TableEntry>,
                   public BoxStyle<TableEntry> {
public:
    TableEntry();
    explicit TableEntry(u16string const& text);
    explicit TableEntry(Paragraph const& paragraph);
    explicit TableEntry(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<TableEntry> cast(PPTNodePtr const& node) { return castNode<TableEntry>(node); }

    Paragraph append(Paragraph const& paragraph);
    Paragraph append(u16string const& text);

    int getColSpan() const { return tableEntryImpl()->getColSpan(); }
    void setColSpan(int span) { tableEntryImpl()->setColSpan(span); }

    TableEntryImpl* tableEntryImpl() const { return getImplAs<TableEntryImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
