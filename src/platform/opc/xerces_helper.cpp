#include "platform/opc/xerces_helper.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdio>
#include <vector>

#include "platform/opc/exception.h"
#include "platform/opc/text.h"

using namespace xercesc;

namespace opc {
namespace model {

namespace {

// A document of a presentation is no larger than this; the limit keeps the
// whole text in memory for the parser.
constexpr std::size_t kMaxDocumentSize = std::size_t(1) << 30;

// Every external entity and DTD resolves to nothing, so that no document can
// make the parser open a file or a network connection.
class NoExternalResources : public DOMLSResourceResolver {
public:
    DOMLSInput* resolveResource(XMLCh const*, XMLCh const*, XMLCh const*, XMLCh const* systemId,
                                XMLCh const*) override {
        static XMLByte const nothing[1] = {0};
        auto* source = new MemBufInputSource(nothing, 0, systemId ? systemId : u"", false);
        return new Wrapper4InputSource(source, true);
    }
};

class CollectingErrorHandler : public DOMErrorHandler {
public:
    bool handleError(DOMError const& error) override {
        std::u16string text = XercesString(error.getMessage());
        if (DOMLocator* where = error.getLocation()) {
            text += u" (line " + detail::fromUtf8(std::to_string(where->getLineNumber())) + u", column " +
                    detail::fromUtf8(std::to_string(where->getColumnNumber())) + u")";
        }
        std::u16string& list = error.getSeverity() == DOMError::DOM_SEVERITY_WARNING ? warnings : errors;
        if (!list.empty()) list += u"\n";
        list += text;
        if (error.getSeverity() == DOMError::DOM_SEVERITY_FATAL_ERROR) {
            fatal = true;
            if (fatalText.empty()) fatalText = text;
            return false;
        }
        return true;
    }
    std::u16string errors, warnings, fatalText;
    bool fatal = false;
};

// True if `text`, in ASCII, UTF-16LE or UTF-16BE, occurs in the bytes.
bool contains(std::string const& bytes, std::string const& text) {
    if (bytes.find(text) != std::string::npos) return true;
    std::string little, big;
    for (char c : text) {
        little += std::string{c, '\0'};
        big += std::string{'\0', c};
    }
    return bytes.find(little) != std::string::npos || bytes.find(big) != std::string::npos;
}

// Parts of a package never declare entities. Refusing every document that
// does stops entity expansion bombs of all shapes, the quadratic kind too,
// which an expansion count alone lets through; a DOCTYPE that only names an
// external DTD, which is never loaded, stays acceptable.
bool declaresEntities(std::string const& bytes) {
    return contains(bytes, "<!DOCTYPE") && contains(bytes, "<!ENTITY");
}

// Xerces clones, serializes and reads text content by recursion, one call per
// level of nesting; so does the template reader for groups of shapes. Real
// parts nest a few dozen levels deep.
constexpr int kMaxElementDepth = 256;

// Whether elements nest deeper than the limit; walks without recursion.
bool nestsTooDeep(DOMDocument const* document) {
    int depth = 0;
    DOMNode const* node = document->getDocumentElement();
    while (node) {
        bool const element = node->getNodeType() == DOMNode::ELEMENT_NODE;
        if (element && ++depth > kMaxElementDepth) return true;
        if (element && node->getFirstChild()) {
            node = node->getFirstChild();
            continue;
        }
        if (element) --depth;
        // Up to the nearest element with a next sibling, leaving each one passed.
        while (!node->getNextSibling()) {
            node = node->getParentNode();
            if (!node || node->getNodeType() != DOMNode::ELEMENT_NODE) return false;
            --depth;
        }
        node = node->getNextSibling();
    }
    return false;
}

DOMImplementation* implementation() {
    static XMLCh const ls[] = u"LS";
    return DOMImplementationRegistry::getDOMImplementation(ls);
}

std::string xercesText(XMLCh const* message) {
    return detail::toUtf8(XercesString(message));
}

// Writes DOM nodes as UTF-8 markup. Xerces' own serializer goes through a
// transcoder and an escaping formatter a character at a time, and casts at
// every node; it took a seventh of the time to make a large deck. Documents
// here are parsed without namespace
// processing, so names are written as they stand and namespace declarations
// are ordinary attributes: nothing needs fixing up.
class MarkupWriter {
public:
    MarkupWriter(OutputStream& stream, XMLCh const* omitted) : stream_(stream), omitted_(omitted) {
        out_.reserve(kChunk + 1024);
    }

    void write(DOMNode const* top) {
        // Depth first without recursion: the stack holds the elements open.
        std::vector<DOMNode const*> open;
        DOMNode const* node = top;
        while (node) {
            DOMNode const* child = enter(node);
            if (child) {
                open.push_back(node);
                node = child;
                continue;
            }
            while (node != top && !node->getNextSibling()) {
                node = open.back();
                open.pop_back();
                leave(node);
            }
            node = node == top ? nullptr : node->getNextSibling();
        }
    }

    void flush() {
        if (!out_.empty()) stream_.write(out_.data(), out_.size());
        out_.clear();
    }

private:
    static constexpr std::size_t kChunk = 64 * 1024;

    // Writes what comes before a node's children; returns the first child if
    // the node has children to write.
    DOMNode const* enter(DOMNode const* node) {
        switch (node->getNodeType()) {
            case DOMNode::DOCUMENT_NODE: {
                auto const* document = static_cast<DOMDocument const*>(node);
                XMLCh const* version = document->getXmlVersion();
                out_ += "<?xml version=\"";
                if (version && *version)
                    text(version, Escape::Attribute);
                else
                    out_ += "1.0";
                // Parts are standalone, as PowerPoint writes them.
                out_ += "\" encoding=\"UTF-8\" standalone=\"yes\"?>";
                return node->getFirstChild();
            }
            case DOMNode::ELEMENT_NODE: {
                out_ += '<';
                name(static_cast<DOMElement const*>(node)->getTagName());
                if (DOMNamedNodeMap const* attributes = node->getAttributes()) {
                    for (XMLSize_t i = 0, n = attributes->getLength(); i < n; ++i) {
                        auto const* attr = static_cast<DOMAttr const*>(attributes->item(i));
                        if (omitted_ && XMLString::equals(attr->getName(), omitted_)) continue;
                        out_ += ' ';
                        name(attr->getName());
                        out_ += "=\"";
                        text(attr->getValue(), Escape::Attribute);
                        out_ += '"';
                    }
                }
                DOMNode const* child = node->getFirstChild();
                out_ += child ? ">" : "/>";
                return child;
            }
            case DOMNode::TEXT_NODE:
                text(node->getNodeValue(), Escape::Text);
                break;
            case DOMNode::CDATA_SECTION_NODE:
                out_ += "<![CDATA[";
                text(node->getNodeValue(), Escape::CData);
                out_ += "]]>";
                break;
            case DOMNode::COMMENT_NODE:
                out_ += "<!--";
                text(node->getNodeValue(), Escape::None);
                out_ += "-->";
                break;
            case DOMNode::PROCESSING_INSTRUCTION_NODE: {
                auto const* instruction = static_cast<DOMProcessingInstruction const*>(node);
                out_ += "<?";
                name(instruction->getTarget());
                XMLCh const* data = instruction->getData();
                if (data && *data) {
                    out_ += ' ';
                    text(data, Escape::None);
                }
                out_ += "?>";
                break;
            }
            case DOMNode::ENTITY_REFERENCE_NODE:
            case DOMNode::DOCUMENT_FRAGMENT_NODE:
                return node->getFirstChild();
            default:
                // A document type declaration has no place in a part, and the
                // parser never loads what it points at; it is left out.
                break;
        }
        if (out_.size() >= kChunk) flush();
        return nullptr;
    }

    void leave(DOMNode const* node) {
        if (node->getNodeType() != DOMNode::ELEMENT_NODE) return;
        out_ += "</";
        name(static_cast<DOMElement const*>(node)->getTagName());
        out_ += '>';
        if (out_.size() >= kChunk) flush();
    }

    void name(XMLCh const* value) { text(value, Escape::None); }

    enum class Escape { None, Text, Attribute, CData };

    // Appends UTF-16 text as UTF-8 with the escapes its place needs. A
    // character XML can't hold makes the document unwritable: the writers
    // clean what they put into it, so such a character is a fault upstream.
    void text(XMLCh const* value, Escape escape) {
        if (!value) return;
        for (XMLCh const* p = value; *p; ++p) {
            char32_t c = *p;
            if (c < 0x80) {
                if (c < 0x20 && c != '\t' && c != '\n' && c != '\r') refuse(c);
                if (escape == Escape::Text || escape == Escape::Attribute) {
                    switch (c) {
                        case '&':
                            out_ += "&amp;";
                            continue;
                        case '<':
                            out_ += "&lt;";
                            continue;
                        case '\r':
                            out_ += "&#xD;";
                            continue;
                        default:
                            break;
                    }
                    if (escape == Escape::Text && c == '>') {
                        out_ += "&gt;";
                        continue;
                    }
                    // Raw tabs and line breaks in an attribute would come
                    // back as spaces.
                    if (escape == Escape::Attribute && (c == '"' || c == '\t' || c == '\n')) {
                        out_ += c == '"' ? "&quot;" : c == '\t' ? "&#x9;" : "&#xA;";
                        continue;
                    }
                } else if (escape == Escape::CData && c == ']' && p[1] == ']' && p[2] == '>') {
                    // "]]>" ends a section: split it across two.
                    out_ += "]]]]><![CDATA[>";
                    p += 2;
                    continue;
                }
                out_ += static_cast<char>(c);
                continue;
            }
            if (c >= 0xD800 && c <= 0xDFFF) {
                if (c > 0xDBFF || p[1] < 0xDC00 || p[1] > 0xDFFF) refuse(c);
                c = 0x10000 + ((c - 0xD800) << 10) + (p[1] - 0xDC00);
                ++p;
            } else if (c == 0xFFFE || c == 0xFFFF) {
                refuse(c);
            }
            if (c < 0x800) {
                out_ += static_cast<char>(0xC0 | (c >> 6));
            } else if (c < 0x10000) {
                out_ += static_cast<char>(0xE0 | (c >> 12));
                out_ += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            } else {
                out_ += static_cast<char>(0xF0 | (c >> 18));
                out_ += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
                out_ += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            }
            out_ += static_cast<char>(0x80 | (c & 0x3F));
        }
    }

    [[noreturn]] static void refuse(char32_t c) {
        char code[16];
        std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(c));
        throw Exception(std::string("cannot serialize the document: it holds ") + code +
                        ", which XML can't hold");
    }

    OutputStream& stream_;
    XMLCh const* omitted_;
    std::string out_;
};

}  // namespace

void XercesHelper::initialize() {
    static bool const done = [] {
        XMLPlatformUtils::Initialize();
        return true;
    }();
    (void)done;
}

DOMLSParser* XercesHelper::createParser() {
    initialize();
    static NoExternalResources resolver;
    // A second line against entity bombs, for encodings that the check for
    // entity declarations can't read.
    static SecurityManager security;
    security.setEntityExpansionLimit(10000);
    DOMLSParser* parser = implementation()->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr);
    DOMConfiguration* config = parser->getDomConfig();
    config->setParameter(XMLUni::fgDOMNamespaces, false);
    config->setParameter(XMLUni::fgDOMValidate, false);
    config->setParameter(XMLUni::fgXercesSchema, false);
    config->setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    config->setParameter(XMLUni::fgXercesLoadSchema, false);
    config->setParameter(XMLUni::fgXercesLoadExternalDTD, false);
    config->setParameter(XMLUni::fgXercesDisableDefaultEntityResolution, true);
    config->setParameter(XMLUni::fgDOMResourceResolver, static_cast<DOMLSResourceResolver*>(&resolver));
    config->setParameter(XMLUni::fgXercesSecurityManager, &security);
    config->setParameter(XMLUni::fgDOMEntities, false);  // expand entity references into text
    config->setParameter(XMLUni::fgDOMElementContentWhitespace, true);
    config->setParameter(XMLUni::fgDOMComments, true);
    config->setParameter(XMLUni::fgDOMCDATASections, true);
    return parser;
}

DOMDocument* XercesHelper::readDocumentFromStream(DOMLSParser* parser, InputStream& stream,
                                                  bool adoptDocument, std::u16string& errors,
                                                  std::u16string& warnings) {
    initialize();
    if (!parser) throw Exception("no XML parser");
    std::string bytes = StreamHelper::readAll(stream, kMaxDocumentSize);
    if (declaresEntities(bytes))
        throw Exception("XML error: the document declares entities, which are not accepted");
    MemBufInputSource source(reinterpret_cast<XMLByte const*>(bytes.data()), bytes.size(), u"part", false);
    Wrapper4InputSource input(&source, false);

    DOMConfiguration* config = parser->getDomConfig();
    CollectingErrorHandler handler;
    config->setParameter(XMLUni::fgDOMErrorHandler, static_cast<DOMErrorHandler*>(&handler));
    config->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, adoptDocument);
    DOMDocument* document = nullptr;
    std::string failure;
    try {
        document = parser->parse(&input);
    } catch (XMLException const& e) {
        failure = xercesText(e.getMessage());
    } catch (DOMException const& e) {
        failure = xercesText(e.getMessage());
    } catch (SAXException const& e) {
        failure = xercesText(e.getMessage());
    } catch (...) {
        config->setParameter(XMLUni::fgDOMErrorHandler, static_cast<DOMErrorHandler*>(nullptr));
        throw;
    }
    config->setParameter(XMLUni::fgDOMErrorHandler, static_cast<DOMErrorHandler*>(nullptr));
    config->setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, false);
    errors = handler.errors;
    warnings = handler.warnings;
    if (failure.empty() && handler.fatal) failure = detail::toUtf8(handler.fatalText);
    if (failure.empty() && !document) failure = "no document";
    if (failure.empty() && nestsTooDeep(document))
        failure = "elements nest more than " + std::to_string(kMaxElementDepth) + " levels deep";
    if (!failure.empty()) {
        if (document && adoptDocument) document->release();
        throw Exception("XML error: " + failure);
    }
    return document;
}

void XercesHelper::writeDocumentToStream(DOMNode const* node, OutputStream& stream, XMLCh const* omitted) {
    if (!node) throw Exception("nothing to serialize");
    MarkupWriter writer(stream, omitted);
    writer.write(node);
    writer.flush();
}

}  // namespace model
}  // namespace opc
