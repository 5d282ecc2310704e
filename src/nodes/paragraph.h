// An ordered list of runs (Text and ExternalLink children) with an outline
// level and paragraph-wide formats. Text boxes and table entries hold
// paragraphs.
#pragma once

#include "engine/ppt_node.h"
#include "formats/attribute.h"
#include "formats/element_style.h"
#include "nodes/external_link.h"
#include "nodes/text.h"

namespace deckforge {
namespace ppt {

class ParagraphImpl : public ElementImpl {
public:
    ParagraphImpl();
    // Clones the runs; keeps the level when it is set.
    ParagraphImpl(ParagraphImpl const& other);
    ~ParagraphImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;

    // Stored as given, with no range check; level 1 is the outermost, and
    // 0 counts as no level when written.
    BaseAttribute<unsigned int> const& getLevel() const { return mLevel; }
    void setLevel(unsigned int level) { mLevel.setValue(level); }
    void unsetLevel() { mLevel.unsetValue(); }

private:
    BaseAttribute<unsigned int> mLevel;
};

// The constructors that take a Text adopt that very object, not a copy; one
// that already has a parent raises failedToAppendChild and no paragraph is
// made. Paragraph(3u) has a level and no run, Paragraph(3.0) one run.
class Paragraph : public Element,
                  public CharacterStyle<Paragraph>,
                  public ParagraphStyle<Paragraph> {
public:
    Paragraph();
    explicit Paragraph(u16string const& text);
    explicit Paragraph(double value);
    explicit Paragraph(Text const& text);
    explicit Paragraph(unsigned int level);
    Paragraph(u16string const& text, unsigned int level);
    Paragraph(double value, unsigned int level);
    Paragraph(Text const& text, unsigned int level);
    explicit Paragraph(PPTObjectImpl* impl) : Element(impl) {}

    static boost::shared_ptr<Paragraph> cast(PPTNodePtr const& node) { return castNode<Paragraph>(node); }

    BaseAttribute<unsigned int> const& getLevel() const { return paragraphImpl()->getLevel(); }
    void setLevel(unsigned int level) { paragraphImpl()->setLevel(level); }
    void unsetLevel() { paragraphImpl()->unsetLevel(); }

    // Each appends and returns the run itself, so a change made through the
    // result shows in the paragraph. A run with a parent is refused
    // (failedToAppendChild) and the paragraph keeps its runs.
    Text append(u16string const& text);
    Text append(Text const& text);
    ExternalLink append(ExternalLink const& link);

    ParagraphImpl* paragraphImpl() const { return getImplAs<ParagraphImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
