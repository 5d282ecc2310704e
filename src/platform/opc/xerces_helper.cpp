#include "platform/opc/xerces_helper.h"

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

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

// Hands the serializer's bytes to an opc::OutputStream. Xerces ends the XML
// declaration with " ?>"; PowerPoint and most tools write "?>", so the
// declaration is held back until it is complete and tidied.
class StreamFormatTarget : public XMLFormatTarget {
public:
    explicit StreamFormatTarget(OutputStream& stream) : stream_(stream) {}
    void writeChars(XMLByte const* toWrite, XMLSize_t count, XMLFormatter*) override {
        if (headerDone_) {
            stream_.write(toWrite, count);
            return;
        }
        header_.append(reinterpret_cast<char const*>(toWrite), count);
        std::size_t end = header_.find("?>");
        if (end == std::string::npos && header_.size() < 256) return;
        if (header_.compare(0, 5, "<?xml") == 0 && end != std::string::npos && end > 0 &&
            header_[end - 1] == ' ')
            header_.erase(end - 1, 1);
        flush();
    }
    void flush() override {
        if (!headerDone_ && !header_.empty()) stream_.write(header_.data(), header_.size());
        headerDone_ = true;
        header_.clear();
    }

private:
    OutputStream& stream_;
    std::string header_;
    bool headerDone_ = false;
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

DOMLSSerializer* XercesHelper::createWriter() {
    initialize();
    DOMLSSerializer* serializer = implementation()->createLSSerializer();
    DOMConfiguration* config = serializer->getDomConfig();
    config->setParameter(XMLUni::fgDOMXMLDeclaration, true);
    config->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, false);
    // Namespace fixup can't be turned off here, but it adds nothing: documents
    // parsed without namespace processing carry their declarations as plain
    // attributes, and those are written as they stand.
    config->setParameter(XMLUni::fgDOMWRTDiscardDefaultContent, false);
    config->setParameter(XMLUni::fgDOMWRTBOM, false);
    return serializer;
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

void XercesHelper::writeDocumentToStream(DOMLSSerializer* serializer, DOMNode* document,
                                         OutputStream& stream) {
    initialize();
    if (!serializer || !document) throw Exception("nothing to serialize");
    if (document->getNodeType() == DOMNode::DOCUMENT_NODE)
        static_cast<DOMDocument*>(document)->setXmlStandalone(true);
    StreamFormatTarget target(stream);
    DOMLSOutput* output = implementation()->createLSOutput();
    output->setEncoding(u"UTF-8");
    output->setByteStream(&target);
    bool written = false;
    std::string failure;
    try {
        written = serializer->write(document, output);
        target.flush();
    } catch (XMLException const& e) {
        failure = xercesText(e.getMessage());
    } catch (DOMException const& e) {
        failure = xercesText(e.getMessage());
    } catch (...) {
        output->release();
        throw;
    }
    output->release();
    if (!failure.empty() || !written)
        throw Exception("cannot serialize the document: " + (failure.empty() ? "failed" : failure));
}

}  // namespace model
}  // namespace opc
