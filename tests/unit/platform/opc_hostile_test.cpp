#include <gtest/gtest.h>

#include <fstream>

#include <xercesc/util/XMLUni.hpp>

#include "platform/opc_test_util.h"
#include "support/test_support.h"

using namespace opc;
using namespace opc::model;
using namespace opc_test;
using deckforge::test::readFile;
using deckforge::test::ScratchDir;
using deckforge::test::writeFile;

namespace {

std::string const kTypes =
    "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
    "<Default Extension=\"xml\" ContentType=\"application/xml\"/></Types>";

// Opens the file as the system does and reads every part; the text of the
// failure, or empty text.
std::string openAndReadAll(std::filesystem::path const& path) {
    try {
        std::ifstream file(path, std::ios::binary);
        StdIStreamAdaptor in(file);
        zippackage::ZipPhysicalPackage zip(in);
        for (auto const& name : zip.getItemNames()) zip.readItem(name);
        Package package(zip);
        package.open(Package::OpenRead);
        return "";
    } catch (opc::Exception const& e) {
        return e.what();
    }
}

// Sets the uncompressed size of the first entry, in its local header and in
// the central directory, as a crafted file would.
void patchDeclaredSize(std::filesystem::path const& path, std::uint32_t size) {
    std::string bytes = readFile(path);
    auto put = [&](std::size_t at) {
        for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>((size >> (8 * i)) & 0xff);
    };
    put(bytes.find("PK\x03\x04") + 22);
    put(bytes.find("PK\x01\x02") + 24);
    writeFile(path, bytes);
}

struct Parser {
    Parser() : parser(XercesHelper::createParser()) {}
    ~Parser() { parser->release(); }
    // The text content of the document's root.
    std::u16string parse(std::string const& xml) {
        MemoryInputStream in(std::make_shared<std::string const>(xml));
        std::u16string errors, warnings;
        auto* document = XercesHelper::readDocumentFromStream(parser, in, false, errors, warnings);
        return XercesString(document->getDocumentElement()->getTextContent());
    }
    xercesc::DOMLSParser* parser;
};

}  // namespace

TEST(OpcHostile, RefusesEntryNamesThatLeaveThePackage) {
    ScratchDir dir;
    for (std::string name :
         {"../evil.xml", "ppt/../../evil.xml", "/etc/evil.xml", "C:/evil.xml", "ppt\\..\\..\\x"}) {
        makeZip(dir / "slip.pptx", {{"[Content_Types].xml", kTypes}, {name, "<x/>"}});
        EXPECT_NE(openAndReadAll(dir / "slip.pptx").find("is not allowed"), std::string::npos) << name;
    }
}

TEST(OpcHostile, RefusesNamesEqualButForCase) {
    ScratchDir dir;
    makeZip(dir / "case.pptx",
            {{"[Content_Types].xml", kTypes}, {"ppt/a.xml", "<a/>"}, {"PPT/A.xml", "<b/>"}});
    EXPECT_NE(openAndReadAll(dir / "case.pptx").find("equal but for case"), std::string::npos);
}

TEST(OpcHostile, RefusesEmptyForeignAndTruncatedFiles) {
    ScratchDir dir;
    writeFile(dir / "empty.pptx", "");
    EXPECT_NE(openAndReadAll(dir / "empty.pptx").find("empty"), std::string::npos);
    writeFile(dir / "text.pptx", "this is no zip at all");
    EXPECT_NE(openAndReadAll(dir / "text.pptx"), "");
    makeZip(dir / "whole.pptx", {{"[Content_Types].xml", kTypes}, {"a.xml", std::string(50000, 'a')}});
    std::string whole = readFile(dir / "whole.pptx");
    writeFile(dir / "cut.pptx", whole.substr(0, whole.size() - 30));
    EXPECT_NE(openAndReadAll(dir / "cut.pptx"), "");
    makeZip(dir / "bare.pptx", {{"a.xml", "<a/>"}});
    EXPECT_NE(openAndReadAll(dir / "bare.pptx").find("Content_Types"), std::string::npos);
}

TEST(OpcHostile, RefusesSizesBeyondTheLimitOrTheDeclaration) {
    ScratchDir dir;
    makeZip(dir / "huge.pptx", {{"a.xml", std::string(100000, 'a')}, {"[Content_Types].xml", kTypes}});
    patchDeclaredSize(dir / "huge.pptx", 0xC0000000u);  // 3 GiB
    EXPECT_NE(openAndReadAll(dir / "huge.pptx").find("declares"), std::string::npos);
    patchDeclaredSize(dir / "huge.pptx", 10);  // inflates to 100000
    EXPECT_NE(openAndReadAll(dir / "huge.pptx").find("inflates"), std::string::npos);
}

TEST(OpcXml, NeverLoadsExternalEntitiesOrDtds) {
    ScratchDir dir;
    writeFile(dir / "secret.txt", "SECRET");
    writeFile(dir / "evil.dtd", "<!ENTITY leak SYSTEM \"file://" + (dir / "secret.txt").string() + "\">");
    std::string const documents[] = {
        "<!DOCTYPE x [<!ENTITY xxe SYSTEM \"file://" + (dir / "secret.txt").string() + "\">]><x>&xxe;</x>",
        "<!DOCTYPE x SYSTEM \"file://" + (dir / "evil.dtd").string() + "\"><x>&leak;</x>",
        "<!DOCTYPE x [<!ENTITY % p SYSTEM \"file://" + (dir / "evil.dtd").string() + "\"> %p;]><x>&leak;</x>",
    };
    for (bool wellFormednessScanner : {false, true}) {
        Parser p;
        if (wellFormednessScanner)
            p.parser->getDomConfig()->setParameter(xercesc::XMLUni::fgXercesScannerName,
                                                   xercesc::XMLUni::fgWFXMLScanner);
        for (auto const& xml : documents) {
            try {
                EXPECT_EQ(p.parse(xml).find(u"SECRET"), std::u16string::npos) << xml;
            } catch (opc::Exception const&) {
                // refusing the document is as good as not loading the entity
            }
        }
        // A DTD that can't be had doesn't stop an ordinary part.
        EXPECT_EQ(p.parse("<!DOCTYPE x SYSTEM \"http://127.0.0.1:9/x.dtd\"><x>ok</x>"), u"ok");
    }
}

TEST(OpcXml, StopsEntityExpansionBombs) {
    // A billion "lol"s from a few hundred bytes.
    std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE lolz [<!ENTITY lol0 \"lol\">";
    for (int level = 1; level <= 9; ++level) {
        bomb += "<!ENTITY lol" + std::to_string(level) + " \"";
        for (int i = 0; i < 10; ++i) bomb += "&lol" + std::to_string(level - 1) + ";";
        bomb += "\">";
    }
    bomb += "]><lolz>&lol9;</lolz>";
    // Few expansions of one large entity: 5 GB from 250 kB.
    std::string quadratic = "<!DOCTYPE q [<!ENTITY a \"" + std::string(100000, 'a') + "\">]><q>";
    for (int i = 0; i < 50000; ++i) quadratic += "&a;";
    quadratic += "</q>";
    std::string utf16 = "\xFF\xFE";
    for (char c : bomb) utf16 += std::string{c, '\0'};
    for (bool wellFormednessScanner : {false, true}) {
        Parser p;
        if (wellFormednessScanner)
            p.parser->getDomConfig()->setParameter(xercesc::XMLUni::fgXercesScannerName,
                                                   xercesc::XMLUni::fgWFXMLScanner);
        for (auto const& xml : {bomb, quadratic, utf16}) EXPECT_THROW(p.parse(xml), opc::Exception);
    }
}

TEST(OpcXml, KeepsQualifiedNamesAndWhitespaceAndWritesStandaloneUtf8) {
    Parser p;
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<p:sld xmlns:p=\"urn:p\" xmlns:a=\"urn:a\"><a:t "
        "xml:space=\"preserve\">  \xC3\xA9 &amp; &lt; </a:t>\n  <a:br/></p:sld>"
        "<!-- c --><?pi some data?>";
    MemoryInputStream in(std::make_shared<std::string const>(xml));
    std::u16string errors, warnings;
    auto* document = XercesHelper::readDocumentFromStream(p.parser, in, true, errors, warnings);
    auto* root = document->getDocumentElement();
    EXPECT_EQ(XercesString(root->getTagName()), u"p:sld");
    EXPECT_EQ(XercesString(root->getFirstElementChild()->getTextContent()), u"  \u00e9 & < ");
    EXPECT_EQ(root->getElementsByTagName(XercesString(u"a:br"))->getLength(), 1u);

    std::ostringstream out;
    StdOStreamAdaptor adaptor(out);
    XercesHelper::writeDocumentToStream(document, adaptor);
    std::string written = out.str();
    EXPECT_EQ(written.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>", 0), 0u)
        << written;
    EXPECT_NE(written.find("xmlns:p=\"urn:p\""), std::string::npos) << written;
    EXPECT_NE(written.find("\"><a:t xml:space=\"preserve\">  \xC3\xA9 &amp; &lt; </a:t>\n  <a:br/></p:sld>"
                           "<!-- c --><?pi some data?>"),
              std::string::npos)
        << written;

    // What the markup escapes comes back from it unchanged.
    std::u16string const tricky = u"a\"b\tc\nd\re<f>g&h]]>\U0001F600";
    root->setAttribute(u"v", tricky.c_str());
    root->appendChild(document->createTextNode(tricky.c_str()));
    root->appendChild(document->createCDATASection(u"x]]>y"));
    std::ostringstream again;
    StdOStreamAdaptor againAdaptor(again);
    XercesHelper::writeDocumentToStream(document, againAdaptor);
    MemoryInputStream againIn(std::make_shared<std::string const>(again.str()));
    auto* reread = XercesHelper::readDocumentFromStream(p.parser, againIn, true, errors, warnings);
    auto* rereadRoot = reread->getDocumentElement();
    EXPECT_EQ(XercesString(rereadRoot->getAttribute(u"v")), tricky);
    EXPECT_EQ(XercesString(rereadRoot->getTextContent()), u"  \u00e9 & < \n  " + tricky + u"x]]>y");
    reread->release();
    document->release();
    EXPECT_THROW(p.parse("<a><b></a>"), opc::Exception);
}

TEST(OpcXml, RefusesElementsNestedDeeperThanAnyPart) {
    auto nested = [](int depth) {
        std::string xml;
        for (int i = 0; i < depth; ++i) xml += "<g>";
        xml += "text<!-- c -->";
        for (int i = 0; i < depth; ++i) xml += "</g>";
        return xml + "<!-- after the root -->";
    };
    Parser p;
    EXPECT_EQ(p.parse("<a><b/><c><d/></c>x</a>"), u"x");
    EXPECT_EQ(p.parse(nested(256)), u"text");
    EXPECT_THROW(p.parse(nested(257)), opc::Exception);
    // Deep once, then shallow again for long: only the depth counts.
    EXPECT_EQ(p.parse("<r>" + nested(200) + nested(200) + "</r>"), u"texttext");
}
