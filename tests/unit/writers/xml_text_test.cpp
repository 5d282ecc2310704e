// Text made safe for XML and targets made into URI references, without a
// deck around them.
#include <gtest/gtest.h>

#include "platform/opc/exception.h"
#include "platform/opc/streams.h"
#include "platform/opc/xerces_helper.h"
#include "writers/xml_text.h"

namespace deckforge {
namespace ppt {
namespace {

using namespace std::string_literals;
using Lines = std::vector<u16string>;

TEST(XmlText, RunLinesBreakAtEveryLineEnd) {
    EXPECT_EQ(Lines{u""}, runLines(u""));
    EXPECT_EQ((Lines{u"a", u"b", u"c", u"d", u""}), runLines(u"a\nb\r\nc\rd\v"));
    EXPECT_EQ((Lines{u"", u"", u"x"}), runLines(u"\n\r\nx"));
    // XML's own controls stay, the others go; lone or swapped surrogate
    // halves are marked, pairs pass.
    EXPECT_EQ((Lines{u"a\tb\u0080", u"c"}), runLines(u"\u0000a\u0001\tb\u000C\u0080\nc\uFFFE\uFFFF"s));
    EXPECT_EQ((Lines{u"\U0001F600\uFFFDx\uFFFD"}), runLines(u"\U0001F600" + u16string{0xDE00, u'x', 0xD83D}));
}

TEST(XmlText, UriReferencesEncodeWhatAUriCantHold) {
    EXPECT_EQ(u"https://example.com/a?b=c&d=e#f", uriReference(u"https://example.com/a?b=c&d=e#f"));
    // Existing escapes stay; a lone percent sign doesn't.
    EXPECT_EQ(u"http://x/%41%2f%25zz%25", uriReference(u"http://x/%41%2f%zz%"));
    EXPECT_EQ(u"http://x/%E4%B8%AD%F0%9F%98%80%EF%BF%BD",
              uriReference(u"http://x/\u4e2d\U0001F600" + u16string(1, 0xD800)));
    EXPECT_EQ(u"file:///C:%5CMy%20Docs%5Ca.pdf", uriReference(u"file:///C:\\My Docs\\a.pdf"));
    EXPECT_EQ(u"http://x/#a%23b%09%0A", uriReference(u"http://x/#a#b\t\n"));
}

// Why the writer cleans text at all: the serialiser refuses a document that
// holds a character XML forbids, so one such character would fail the close.
TEST(XmlText, SerialiserRefusesWhatXmlSafeTextRemoves) {
    struct Sink : opc::OutputStream {
        void write(void const*, std::size_t) override {}
        void close() override {}
    } sink;
    opc::model::XercesHelper::initialize();
    auto* implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
    for (u16string const& text : {u"a\u0001b"s, u16string{u'a', 0xD800}}) {
        xercesc::DOMDocument* document = implementation->createDocument(nullptr, u"t", nullptr);
        document->getDocumentElement()->setTextContent(text.c_str());
        EXPECT_THROW(opc::model::XercesHelper::writeDocumentToStream(document, sink),
                     opc::Exception);
        document->getDocumentElement()->setTextContent(xmlSafeText(text).c_str());
        EXPECT_NO_THROW(opc::model::XercesHelper::writeDocumentToStream(document, sink));
        document->release();
    }
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
