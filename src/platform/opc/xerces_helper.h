// The link between parts and Xerces DOM documents, and the holder of DOM text.
#pragma once

#include <string>
#include <type_traits>

#include <xercesc/dom/DOM.hpp>

#include "platform/opc/streams.h"

namespace opc {
namespace model {

static_assert(std::is_same<XMLCh, char16_t>::value, "Xerces must be built with XMLCh as char16_t");

// DOM text. Since XMLCh is char16_t, this is a UTF-16 string that also
// passes as the XMLCh pointer that Xerces calls take, so element names can be
// held in static objects and handed over without conversion.
class XercesString : public std::u16string {
public:
    XercesString() = default;
    XercesString(std::u16string text) : std::u16string(std::move(text)) {}
    XercesString(XMLCh const* text) : std::u16string(text ? text : u"") {}
    XercesString(XMLCh const* text, std::size_t length) : std::u16string(text, length) {}

    operator XMLCh const*() const { return c_str(); }
    std::u16string const& toString() const { return *this; }
};

class XercesHelper {
public:
    // Initialises Xerces once for the process; every other call here does it
    // too, so callers need this only before making DOM objects on their own.
    static void initialize();

    // A parser that checks only well-formedness: no namespace processing (names
    // stay qualified, as "p:sld"), no validation, whitespace kept. It never
    // loads a DTD or an external entity, whatever the document asks for, and
    // stops entity expansion bombs. The caller releases it with release().
    static xercesc::DOMLSParser* createParser();

    // Parses the whole stream. The document belongs to the parser unless
    // adoptDocument is true. Raises opc::Exception if the text isn't well
    // formed; warnings and recoverable errors are reported in the two texts.
    static xercesc::DOMDocument* readDocumentFromStream(xercesc::DOMLSParser* parser, InputStream& stream,
                                                        bool adoptDocument, std::u16string& errors,
                                                        std::u16string& warnings);

    // Writes a document (or node) to the stream as UTF-8, with no added
    // whitespace and names and namespace declarations as they stand in the
    // DOM. A document gets an XML declaration that marks it standalone, as
    // PowerPoint writes its parts. An attribute named `omitted` is left out
    // wherever it stands. Raises opc::Exception if the text holds a
    // character XML can't. Does not close the stream.
    static void writeDocumentToStream(xercesc::DOMNode const* document, OutputStream& stream,
                                      XMLCh const* omitted = nullptr);
};

}  // namespace model
}  // namespace opc
