// A picture takes its default size from its image, and a picture on a slide
// can give its place to another image, keeping its identity.
#include <gtest/gtest.h>

#include "engine/slide.h"
#include "nodes/group.h"
#include "nodes/picture_placeholder.h"
#include "platform/hv.h"
#include "platform/msg_ids.h"
#include "support/test_support.h"

namespace deckforge {
namespace ppt {
namespace {

using foundation::core::except::Exception;
using test::ScratchDir;

std::string be32(std::uint32_t v) {
    return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
}

u16string pngFile(ScratchDir const& dir, std::string const& name, std::uint32_t w, std::uint32_t h) {
    test::writeFile(dir / name, std::string("\x89PNG\r\n\x1a\n", 8) + be32(13) + "IHDR" + be32(w) + be32(h) +
                                    std::string("\x08\x02\0\0\0", 5) + be32(0));
    return (dir / name).u16string();
}

std::string size(Shape const& shape) {
    auto text = [](BaseAttribute<Dimension> const& a) {
        return a.isSet() ? toUtf8(a.getValue().getText()) : "-";
    };
    return text(shape.getX()) + "," + text(shape.getY()) + " " + text(shape.getWidth()) + "x" +
           text(shape.getHeight());
}

TEST(Picture, SizedToItsImageInPixelsUntilScriptCodeSaysOtherwise) {
    ScratchDir dir;
    Picture picture(pngFile(dir, "a.png", 640, 480));
    EXPECT_EQ("-,- 640pxx480px", size(picture));
    EXPECT_EQ(Dimension::Pixels, picture.getWidth().getValue().getUnits());
    picture.setWidth(u"2in");  // the height stays the image's: the aspect changes
    EXPECT_EQ("-,- 2inx480px", size(picture));
    picture.setPath(pngFile(dir, "b.png", 20, 10));  // a new image overwrites both
    EXPECT_EQ("-,- 20pxx10px", size(picture));

    test::writeFile(dir / "a.svg", "<svg width='1in' viewBox='0 0 4 2'/>");
    EXPECT_EQ("-,- 96pxx48px", size(Picture((dir / "a.svg").u16string())));
    EXPECT_TRUE(Picture().getPath().empty());
    EXPECT_FALSE(Picture().getWidth().isSet());
}

TEST(Picture, AFailedMeasureLeavesThePictureAsItWas) {
    class Failing : public hv::Host {
        bool call(std::string const&, std::vector<hvArray const*> const&, int,
                  std::vector<std::unique_ptr<hvArray>>&) override {
            throw std::runtime_error("imfinfo failed");
        }
        void warning(resource_core::BaseMsgID const&) override {}
    };
    ScratchDir dir;
    Picture picture(pngFile(dir, "a.png", 64, 48));
    auto previous = hv::setHost(std::make_shared<Failing>());
    EXPECT_THROW(picture.setPath(pngFile(dir, "b.png", 1, 1)), std::runtime_error);
    hv::setHost(previous);
    EXPECT_EQ((dir / "a.png").u16string(), picture.getPath());
    EXPECT_EQ("-,- 64pxx48px", size(picture));
}

TEST(Picture, ReplaceKeepsIdentityAndPlaceAndTakesTheImage) {
    using Refused = Exception<ppt_error::pictureCannotBeReplaced>;
    ScratchDir dir;
    EXPECT_THROW(Picture().replace(Picture()), Refused);

    Slide slide;
    PPTNodePtr old = (new PictureImpl(u"Logo", u"7"))->makeInterface();
    Picture::cast(old)->setX(u"1in");
    Picture::cast(old)->setWidth(u"3in");
    slide.slideImpl()->appendChild(Picture(u"").makeInterface());
    slide.slideImpl()->appendChild(old);
    slide.slideImpl()->appendChild(Picture().makeInterface());

    Picture given(pngFile(dir, "a.png", 100, 50));
    given.setY(u"2cm");
    given.setName(u"ignored");
    Picture placed = Picture::cast(old)->replace(given);
    EXPECT_EQ(placed.getImpl(), slide.getChildren().at(1)->getImpl());
    EXPECT_EQ(3u, slide.getNChildren());
    EXPECT_EQ(u"Logo", placed.getName());
    EXPECT_EQ(given.getPath(), placed.getPath());
    // The given picture's set size and position win; X stays the old one's.
    EXPECT_EQ("1in,2cm 100pxx50px", size(placed));
    EXPECT_EQ(u"7", placed.shapeImpl()->getTemplateUid());
    EXPECT_FALSE(given.nodeImpl()->getParent());  // only read
    EXPECT_THROW(Picture::cast(old)->replace(given), Refused);
    EXPECT_EQ((dir / "a.png").u16string(), placed.replace(Picture(pngFile(dir, "a.png", 1, 1))).getPath());

    // In a group nothing moves, and the argument comes back.
    Group group(u"Group");
    PPTNodePtr member = Picture().makeInterface();
    group.groupImpl()->appendChild(member);
    EXPECT_EQ(given.getImpl(), Picture::cast(member)->replace(given).getImpl());
    EXPECT_EQ(member->getImpl(), group.getChildren().at(0)->getImpl());
}

TEST(Picture, PlaceholderGivesItsPlaceToACopyWithThePath) {
    ScratchDir dir;
    Slide slide;
    PPTNodePtr holder = (new PicturePlaceholderImpl(u"Picture", u"3", u"pic"))->makeInterface();
    slide.slideImpl()->appendChild(holder);
    Picture given(pngFile(dir, "a.png", 64, 48));
    Picture placed = PicturePlaceholder::cast(holder)->replace(given);
    EXPECT_NE(given.getImpl(), placed.getImpl());
    EXPECT_EQ(given.getPath(), placed.getPath());
    EXPECT_EQ(u"Picture", placed.getName());
    EXPECT_EQ("-,- 64pxx48px", size(placed));
    EXPECT_EQ(placed.getImpl(), slide.getChildren().at(0)->getImpl());
}

}  // namespace
}  // namespace ppt
}  // namespace deckforge
