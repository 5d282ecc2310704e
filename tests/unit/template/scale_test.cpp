// Decks of many slides: each new slide costs the same, whatever came before.
#include <chrono>

#include <gtest/gtest.h>

#include "support/test_support.h"
#include "template_fixture.h"

namespace deckforge {
namespace test {
namespace {

TEST(Scale, TenThousandSlidesAreCreatedAndListed) {
    ScratchDir dir;
    std::filesystem::path const source = realTemplates() / "pythonpptx_default-generated.pptx";
    std::filesystem::copy_file(source, dir / "out.pptx");
    LoadedModel m(source);
    ASSERT_TRUE(m.loaded);
    auto layout = m.model->findLayout(u"Title and Content");
    ASSERT_TRUE(layout);

    auto start = std::chrono::steady_clock::now();
    ppt::TemplateSlideList slides;
    for (int i = 0; i < 10000; ++i) {
        slides.push_back(m.model->createSlide(layout));
        slides.back()->partName = u"/ppt/slides/new" + num2str(i) + u".xml";
    }
    auto package = boost::make_shared<OPCPackage>((dir / "out.pptx").u16string());
    package->openForUpdate(false);
    {
        TestDocumentWriter writer(package);
        m.model->writePresentationPart(writer, slides);
    }
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_EQ(m.model->getPresentationDocument()->getElementsByTagName(u"p:sldId")->getLength(), 10000u);
    EXPECT_EQ(slides.back()->shapeElementsByUid.size(), layout->shapeElementsByUid.size());
    EXPECT_LT(seconds, 30.0);
}

}  // namespace
}  // namespace test
}  // namespace deckforge
