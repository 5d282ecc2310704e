// The base of the per-node writers. A writer is made on the stack by its
// node's acceptWriter, run once and dropped. It builds or changes its node's
// elements in the current slide's document, lets the node's formats apply
// themselves (the one place where formats reach markup), and hands its
// children the element they belong into.
#pragma once

#include <vector>

#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "engine/ppt_node.h"
#include "formats/format.h"
#include "formats/format_type.h"
#include "writers/ppt_writer.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace deckforge {
namespace ppt {

class ElementWriter : private boost::noncopyable {
public:
    ElementWriter(ElementImpl const* node, PPTWriter* writer, xercesc::DOMNode* parent);
    virtual ~ElementWriter();

    virtual void write();
    // Hands the writer to the format; the base accepts no format.
    virtual void applyFormat(FormatImpl const* format);
    // The node's own format of the type, or the nearest of its ancestors';
    // a table row also asks the column being written.
    virtual boost::shared_ptr<Format> findFormat(ElementImpl const* node, FormatType type) const;
    virtual bool acceptsFormat(Format const& format) const;
    // The types that the writer's element takes from ancestors when the node
    // has none of its own.
    virtual std::vector<FormatType> const& getInheritableFormatTypes() const;

    PPTWriter* getWriter() const { return writer; }
    ElementImpl const* getNode() const { return node; }
    xercesc::DOMNode* getParent() const { return parent; }

    xercesc::DOMElement* createElement(XMLCh const* name) const { return writer->createElement(name); }
    boost::shared_ptr<PresentationModel> const& getModel() const { return writer->getModel(); }
    boost::shared_ptr<PPTPartWriter> const& getPartWriter() const { return writer->getPartWriter(); }
    boost::shared_ptr<TemplateSlide> const& getCurrentSlide() const { return writer->getCurrentSlide(); }
    u16string getCurrentSlidePartName() const { return writer->getCurrentSlidePartName(); }
    xercesc::DOMElement* findSlideElement(u16string const& uid) const {
        return writer->findSlideElement(uid);
    }
    xercesc::DOMElement* findLayoutElement(u16string const& uid) const {
        return writer->findLayoutElement(uid);
    }

    // First the node's own formats in type order, then each inheritable type
    // that the node lacks, from findFormat: so no type is applied twice.
    void applyFormats(ElementImpl const* node, std::vector<FormatType> const& types);

    // The first child element of that name; null for a null element.
    static xercesc::DOMElement* findChildElement(xercesc::DOMElement const* element, XMLCh const* name);
    // Every child element of that name; collected first, so the live child
    // list isn't walked while it changes.
    static void removeChildElements(xercesc::DOMElement* element, XMLCh const* name);
    // A text body must hold a paragraph: gives the p:txBody (or a:txBody)
    // under `element` an a:p holding an a:endParaRPr when it has no a:p.
    void addEmptyParagraph(xercesc::DOMElement* element) const;

protected:
    // Calls acceptWriter of each child of the node with `childParent`.
    void writeChildren(xercesc::DOMNode* childParent);

private:
    ElementImpl const* node;
    PPTWriter* writer;
    xercesc::DOMNode* parent;
};

}  // namespace ppt
}  // namespace deckforge
