#include <unistd.h>

#include "engine/presentation.h"
#include "engine/presentation_fixture.h"
#include "template/presentation_model.h"

namespace deckforge {
namespace test {
namespace {

using ppt::Presentation;
using ppt::PresentationState;
namespace fs = std::filesystem;

u16string const kPresentationType =
    u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
u16string const kTemplateType =
    u"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml";
fs::path const kRealTemplate = realTemplates() / "ppt2010_presentation.potx";  // three slides

PresentationState stateOf(Presentation const& p) {
    return p.presentationImpl()->getState();
}

TEST_F(PresentationTest, RunsFromInitialToClosedAndLeavesTheTemplateAlone) {
    std::string const templateBytes = readFile(defaultTemplate());
    Presentation p(out("deck.pptx"));
    EXPECT_EQ(p.getTemplatePath(), defaultTemplate().generic_u16string());
    EXPECT_FALSE(p.close());
    EXPECT_FALSE(fs::exists(out("deck.pptx")));

    ASSERT_TRUE(p.open());
    EXPECT_EQ(stateOf(p), PresentationState::Open);
    EXPECT_TRUE(p.presentationImpl()->getTempPackagePath().empty());
    EXPECT_FALSE(p.open());
    EXPECT_EQ(dispatched().size(), 1u);  // reading the template; it has no slides

    p.add(u"Title Slide");
    p.add(u"Title and Content");
    ASSERT_TRUE(p.close());
    EXPECT_FALSE(p.close());
    EXPECT_EQ(slideIdCount(out("deck.pptx")), 2);

    // Added after close: kept in the tree, never written, and a listener hears so.
    std::string const written = readFile(out("deck.pptx"));
    std::size_t const heard = dispatched().size();
    p.add(u"Title Slide");
    EXPECT_EQ(p.getNChildren(), 3u);
    ASSERT_EQ(dispatched().size(), heard + 1);
    EXPECT_EQ(dispatched().back().rfind("deckforge.ppt.WarningMessage ", 0), 0u) << dispatched().back();
    EXPECT_NE(dispatched().back().find("will not be written"), std::string::npos) << dispatched().back();
    EXPECT_EQ(host->warnings.back(), "deckforge:ppt_warning:slideAddedAfterClose");
    EXPECT_EQ(readFile(out("deck.pptx")), written);
    EXPECT_EQ(readFile(defaultTemplate()), templateBytes);
}

TEST_F(PresentationTest, PathsCannotChangeOnceOpen) {
    Presentation p(out("a.pptx"));
    p.setOutputPath(out("b.pptx"));
    p.open();
    p.setOutputPath(out("c.pptx"));
    dispatcher().getMessageFilter().setWarningMessagesPass(false);
    p.setTemplatePath(out("t.pptx"));
    dispatcher().getMessageFilter().setWarningMessagesPass(true);

    EXPECT_EQ(p.getOutputPath(), out("b.pptx"));
    EXPECT_EQ(p.getTemplatePath(), defaultTemplate().generic_u16string());
    EXPECT_EQ(host->warnings, (std::vector<std::string>{"deckforge:ppt_warning:cannotChangeOutputPath",
                                                        "deckforge:ppt_warning:cannotChangeTemplatePath"}));
    EXPECT_EQ(dispatched().back().rfind("deckforge.ppt.WarningMessage", 0), 0u);
    EXPECT_EQ(dispatched().size(), 2u);  // reading the template, and one warning
}

TEST_F(PresentationTest, DefaultNamesAndExtensions) {
    Presentation untitled;
    EXPECT_EQ(untitled.getOutputPath(), u"");
    untitled.open();
    EXPECT_EQ(untitled.getOutputPath(), out("untitled.pptx"));
    EXPECT_TRUE(fs::exists(out("untitled.pptx")));

    // A template gives a presentation, unless the output's name asks otherwise.
    Presentation fromTemplate(u"fromTemplate", kRealTemplate.u16string());
    fromTemplate.open();
    EXPECT_EQ(mainContentType(out("fromTemplate.pptx")), kPresentationType);
    Presentation again(out("again.POTX"), kRealTemplate.u16string());
    again.open();
    EXPECT_EQ(mainContentType(out("again.POTX")), kTemplateType);

    fs::copy_file(defaultTemplate(), out("plain.pptx"));
    Presentation named(out("named"), out("plain"));
    named.open();
    EXPECT_EQ(named.getTemplatePath(), out("plain.pptx"));
}

TEST_F(PresentationTest, FailuresBeforeTheTemplateIsRead) {
    EXPECT_EQ(errorOf([&] { Presentation(out("no/such/dir/x.pptx")); }), "deckforge:ppt_error:pathNotFound");

    Presentation missing(out("x.pptx"), out("missing.pptx"));
    EXPECT_EQ(errorOf([&] { missing.open(); }), "deckforge:ppt_error:cannotOpenFile");
    EXPECT_EQ(stateOf(missing), PresentationState::Initial);

    // The content decides: a document named ".pptx" is no template.
    editPackage(defaultTemplate(), out("word.pptx"), [](ppt::OPCPartWriter& w) {
        w.createPart(u"/word/document.xml",
                     u"application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml");
        for (auto const& r : w.getPackage()->getRelationships())
            w.getPackage()->deleteRelationship(r.getID());
        w.createRelationship(kOfficeDocument, u"/word/document.xml", u"");
    });
    Presentation word(out("y.pptx"), out("word.pptx"));
    EXPECT_EQ(errorOf([&] { word.open(); }), "deckforge:ppt_error:invalidFileExtension");

    Presentation docx(out("z.docx"));
    EXPECT_EQ(errorOf([&] { docx.open(); }), "deckforge:ppt_error:invalidFileExtension");
    EXPECT_TRUE(docx.presentationImpl()->getTempPackagePath().empty());
    EXPECT_FALSE(fs::exists(out("z.docx")));
    EXPECT_EQ(stateOf(docx), PresentationState::Initial);
}

TEST_F(PresentationTest, StrictTemplateOpensUnlessItHoldsWhatHasNoTransitionalName) {
    fs::path const strict = fs::path(DECKFORGE_SHARED_DIR) / "strict-templates" / "strict_bg-photo.pptx";
    if (!fs::exists(strict)) GTEST_SKIP() << "strict template missing";
    {
        Presentation p(out("strict.pptx"), strict.u16string());
        ASSERT_TRUE(p.open());
        EXPECT_EQ(p.getChildren().size(), 1u);
        EXPECT_EQ(p.getTemplatePath(), strict.generic_u16string());
        ASSERT_TRUE(p.close());
    }
    EXPECT_EQ(mainContentType(out("strict.pptx")), kPresentationType);
    std::string const presentation = readPart(out("strict.pptx"), u"/ppt/presentation.xml");
    EXPECT_NE(std::string::npos,
              presentation.find("http://schemas.openxmlformats.org/presentationml/2006/main"));

    // A namespace under the Strict root that has no transitional twin.
    editPackage(strict, out("odd.pptx"), [](ppt::OPCPartWriter& w) {
        std::string const xml =
            "<p:presentationPr xmlns:p=\"http://purl.oclc.org/ooxml/presentationml/main\" "
            "xmlns:x=\"http://purl.oclc.org/ooxml/somethingNew\"/>";
        auto stream = w.getPart(u"/ppt/presProps.xml").getOutputStream();
        stream->write(xml.data(), xml.size());
        stream->close();
    });
    Presentation odd(out("odd-deck.pptx"), out("odd.pptx"));
    EXPECT_EQ(errorOf([&] { odd.open(); }), "deckforge:ppt_error:strictTemplateUnsupported");
    EXPECT_EQ(stateOf(odd), PresentationState::Initial);
}

TEST_F(PresentationTest, AnOutputThatCannotBeWrittenLeavesItDead) {
    // A directory that not even root can create files in.
    Presentation p(u"/proc/deckforge-output.pptx");
    EXPECT_EQ(errorOf([&] { p.open(); }), "deckforge:ppt_error:cannotOpenFile");
    EXPECT_EQ(stateOf(p), PresentationState::Parsed);
    EXPECT_FALSE(p.open());
    EXPECT_FALSE(p.close());

    if (::geteuid() == 0) return;  // permissions don't bind root
    fs::create_directory(out("locked"));
    fs::permissions(out("locked"), fs::perms::owner_read | fs::perms::owner_exec);
    Presentation locked(out("locked/x.pptx"));
    EXPECT_EQ(errorOf([&] { locked.open(); }), "deckforge:ppt_error:cannotOpenFile");
}

TEST_F(PresentationTest, ARejectedTemplateCanBeReplacedAndOpenedAgain) {
    // The second of three slides names no layout.
    editPackage(kRealTemplate, out("broken.potx"), [](ppt::OPCPartWriter& w) {
        auto slide = w.getPart(u"/ppt/slides/slide2.xml");
        for (auto const& r : slide.getRelationships()) slide.deleteRelationship(r.getID());
    });
    std::string const bytes = readFile(out("broken.potx"));
    u16string temp;
    {
        Presentation p(out("x.pptx"), out("broken.potx"));
        EXPECT_EQ(errorOf([&] { p.open(); }), "deckforge:ppt_error:invalidTemplate");
        EXPECT_EQ(stateOf(p), PresentationState::ParseFailed);
        EXPECT_EQ(p.getNChildren(), 1u);  // the slide before the broken one
        temp = p.presentationImpl()->getTempPackagePath();
        EXPECT_TRUE(fs::exists(temp));
        EXPECT_FALSE(fs::exists(out("x.pptx")));

        EXPECT_EQ(errorOf([&] { p.open(); }), "deckforge:ppt_error:invalidTemplate");
        EXPECT_FALSE(fs::exists(temp));
        temp = p.presentationImpl()->getTempPackagePath();
        p.setTemplatePath(kRealTemplate.u16string());
        EXPECT_TRUE(p.open());
        EXPECT_EQ(p.getNChildren(), 3u);
        EXPECT_FALSE(fs::exists(temp));

        Presentation dropped(out("y.pptx"), out("broken.potx"));
        errorOf([&] { dropped.open(); });
        temp = dropped.presentationImpl()->getTempPackagePath();
    }
    EXPECT_FALSE(fs::exists(temp));  // the destructor removes it
    EXPECT_EQ(readFile(out("broken.potx")), bytes);
}

TEST_F(PresentationTest, TemplateSlidesComeFirstInTheirOrder) {
    Presentation p(out("deck.pptx"), kRealTemplate.u16string());
    ASSERT_TRUE(p.open());
    auto const& records = *p.presentationImpl()->getModel()->getSlides();
    ASSERT_EQ(p.getNChildren(), 3u);
    for (std::size_t i = 0; i < records.size(); ++i) {
        auto slide = ppt::Slide::cast(p.getChildren()[i]);
        EXPECT_EQ(slide->slideImpl()->getTemplateSlide(), records[i]);
        EXPECT_EQ(slide->getLayoutName(), records[i]->layout->name);
        EXPECT_EQ(slide->getSlideMasterName(), p.getMasterNames().front());
    }
    EXPECT_EQ(dispatched().size(), 4u);  // reading the template, then one for each slide

    ppt::Slide added = p.add(p.getLayoutNames(p.getMasterNames().front()).front());
    EXPECT_EQ(p.getChildren().back()->getImpl(), added.getImpl());
    EXPECT_EQ(dispatched().size(), 4u);
}

TEST_F(PresentationTest, NamesComeFromTheModelAndOpenFirst) {
    Presentation p(out("deck.pptx"));
    EXPECT_EQ(p.getMasterNames(), std::vector<u16string>{u"Deckforge"});
    EXPECT_TRUE(fs::exists(out("deck.pptx")));
    EXPECT_EQ(p.getLayoutNames(u"Deckforge").size(), 11u);
    EXPECT_TRUE(p.getLayoutNames(u"No such master").empty());
    EXPECT_EQ(&p.getTableStyleNames(), &p.getTableStyleNames());

    // A clone has the paths and copies of the slides, but no model.
    p.add(u"Title Slide");
    auto copy = Presentation::cast(p.clone());
    EXPECT_EQ(copy->getOutputPath(), p.getOutputPath());
    ASSERT_EQ(copy->getNChildren(), 1u);
    EXPECT_NE(copy->getChildren()[0]->getImpl(), p.getChildren()[0]->getImpl());
    EXPECT_TRUE(copy->getMasterNames().empty());
}

}  // namespace
}  // namespace test
}  // namespace deckforge
