// Image sizes: headers of each kind written byte by byte, files that are cut
// short, empty or named for another kind, and the host's answers winning
// over the headers when it gives them.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

#include "common/image_info.h"
#include "platform/hv.h"
#include "support/test_support.h"

using namespace deckforge;
using deckforge::test::ScratchDir;
using deckforge::test::writeFile;

namespace {

std::string be32(std::uint32_t v) {
    return {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
}
std::string be16(std::uint32_t v) {
    return {char(v >> 8), char(v)};
}
std::string le16(std::uint32_t v) {
    return {char(v), char(v >> 8)};
}
std::string le32(std::uint32_t v) {
    return le16(v & 0xFFFF) + le16(v >> 16);
}

std::string png(std::uint32_t w, std::uint32_t h) {
    return std::string("\x89PNG\r\n\x1a\n", 8) + be32(13) + "IHDR" + be32(w) + be32(h) +
           std::string("\x08\x02\0\0\0", 5) + be32(0);
}
std::string gif(std::uint32_t w, std::uint32_t h) {
    return "GIF89a" + le16(w) + le16(h) + std::string("\0\0\0", 3);
}
std::string bmp(std::int32_t w, std::int32_t h) {
    return "BM" + le32(70) + le32(0) + le32(54) + le32(40) + le32(std::uint32_t(w)) + le32(std::uint32_t(h)) +
           le16(1) + le16(24) + std::string(24, '\0');
}
// A JPEG whose frame comes after an APP0 segment and a fill byte.
std::string jpeg(std::uint32_t w, std::uint32_t h) {
    std::string app0 = std::string("\xFF\xE0", 2) + be16(16) + "JFIF" + std::string(10, '\0');
    std::string sof = std::string("\xFF\xFF\xC2\0\x11\x08", 6) + be16(h) + be16(w) + std::string(12, '\0');
    return std::string("\xFF\xD8", 2) + app0 + sof + std::string("\xFF\xD9", 2);
}
std::string emf(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    return le32(1) + le32(108) + std::string(16, '\0') + le32(left) + le32(top) + le32(right) + le32(bottom) +
           " EMF" + std::string(64, '\0');
}

struct Size {
    double w, h;
};

Size measure(ScratchDir const& dir, std::string const& name, std::string const& bytes) {
    writeFile(dir / name, bytes);
    ImageInfo const info = InfoUtils::getImageInfo((dir / name).u16string());
    return {info.width, info.height};
}

#define EXPECT_SIZE(w_, h_, size)     \
    do {                              \
        Size const s_ = (size);       \
        EXPECT_DOUBLE_EQ((w_), s_.w); \
        EXPECT_DOUBLE_EQ((h_), s_.h); \
    } while (0)

// Answers "picmeta" and the resolution as set; `fail` makes every call fail.
class ImageHost : public hv::Host {
public:
    bool call(std::string const& fn, std::vector<hvArray const*> const& args, int,
              std::vector<std::unique_ptr<hvArray>>& results) override {
        calls.push_back(fn);
        if (fn == "picmeta") {
            if (args.size() != 1 || pictureWidth < 0) return false;
            std::unique_ptr<hvArray> s(hvCreateStructMatrix(1, 1, {"Width", "Height"}));
            hvSetField(s.get(), 0, "Width", hvCreateDoubleScalar(pictureWidth));
            hvSetField(s.get(), 0, "Height", hvCreateDoubleScalar(pictureHeight));
            results.push_back(std::move(s));
            return true;
        }
        if (fn == "brieflet.utils.getScreenPixelsPerInch") {
            results.emplace_back(hvCreateDoubleScalar(ppi));
            return true;
        }
        return false;
    }
    void warning(resource_core::BaseMsgID const&) override {}

    double pictureWidth = -1, pictureHeight = -1, ppi = 96;
    std::vector<std::string> calls;
};

struct HostGuard {
    explicit HostGuard(std::shared_ptr<hv::Host> host) : previous(hv::setHost(std::move(host))) {
        InfoUtils::forgetScreenPixelsPerInch();
    }
    ~HostGuard() {
        hv::setHost(previous);
        InfoUtils::forgetScreenPixelsPerInch();
    }
    std::shared_ptr<hv::Host> previous;
};

}  // namespace

TEST(ImageInfo, RasterHeadersReadWithoutHost) {
    ScratchDir dir;
    EXPECT_SIZE(640, 480, measure(dir, "a.png", png(640, 480)));
    EXPECT_SIZE(17, 3, measure(dir, "a.GIF", gif(17, 3)));
    EXPECT_SIZE(300, 200, measure(dir, "a.bmp", bmp(300, 200)));
    EXPECT_SIZE(300, 200, measure(dir, "top-down.bmp", bmp(300, -200)));
    EXPECT_SIZE(1024, 768, measure(dir, "a.jpg", jpeg(1024, 768)));
    // The signature decides, not the name.
    EXPECT_SIZE(640, 480, measure(dir, "png-named.jpg", png(640, 480)));
    EXPECT_SIZE(12, 34, measure(dir, "no-extension", gif(12, 34)));
}

TEST(ImageInfo, HeaderSizesOnlyForFilesThatEndWhole) {
    ScratchDir dir;
    std::string const iend = be32(0) + "IEND" + std::string("\xAE\x42\x60\x82", 4);
    auto size = [&](char const* name, std::string const& bytes) {
        writeFile(dir / name, bytes);
        double w = 0, h = 0;
        return InfoUtils::readHeaderSize((dir / name).u16string(), w, h) ? std::to_string(int(w)) + "x" +
                                                                             std::to_string(int(h))
                                                                       : std::string("none");
    };
    EXPECT_EQ("640x480", size("whole.png", png(640, 480) + iend));
    EXPECT_EQ("none", size("cut.png", png(640, 480)));
    EXPECT_EQ("17x3", size("whole.gif", gif(17, 3) + ";"));
    EXPECT_EQ("none", size("cut.gif", gif(17, 3)));
    EXPECT_EQ("none", size("cut.bmp", bmp(300, 200).substr(0, 60)));
    EXPECT_EQ("1024x768", size("whole.jpg", jpeg(1024, 768) + "\xFF\xD9"));
    EXPECT_EQ("none", size("huge.png", png(0x7FFFFFFF, 480) + iend));
}

TEST(ImageInfo, BadFilesGiveTheDefaultSize) {
    ScratchDir dir;
    EXPECT_SIZE(300, 300, measure(dir, "empty.png", ""));
    EXPECT_SIZE(300, 300, measure(dir, "text.png", "not an image at all, just words"));
    EXPECT_SIZE(300, 300, measure(dir, "short.png", png(640, 480).substr(0, 20)));
    EXPECT_SIZE(300, 300, measure(dir, "short.gif", gif(5, 5).substr(0, 8)));
    EXPECT_SIZE(300, 300, measure(dir, "short.bmp", bmp(5, 5).substr(0, 20)));
    // A JPEG cut inside its frame header, one whose segment length points past
    // the end, one with scan data before any frame, and one with a zero length.
    std::string const j = jpeg(1024, 768);
    EXPECT_SIZE(300, 300, measure(dir, "short.jpg", j.substr(0, j.size() - 16)));
    EXPECT_SIZE(300, 300, measure(dir, "far.jpg", std::string("\xFF\xD8\xFF\xE0\xFF\xF0", 6)));
    EXPECT_SIZE(300, 300, measure(dir, "scan.jpg", std::string("\xFF\xD8\xFF\xDA\0\x02", 6)));
    EXPECT_SIZE(300, 300, measure(dir, "zero.jpg", std::string("\xFF\xD8\xFF\xE0\0\0", 6)));
    // Sizes that no picture could be written with: zero, or beyond 32-bit EMU.
    EXPECT_SIZE(300, 300, measure(dir, "zero.png", png(0, 480)));
    EXPECT_SIZE(300, 300, measure(dir, "huge.png", png(0x7FFFFFFF, 480)));
    EXPECT_SIZE(300, 300, measure(dir, "min.bmp", bmp(INT32_MIN, 5)));
    ImageInfo const missing = InfoUtils::getImageInfo((dir / "missing.png").u16string());
    EXPECT_SIZE(300, 300, (Size{missing.width, missing.height}));
}

TEST(ImageInfo, EmfFrameAtScreenResolution) {
    ScratchDir dir;
    HostGuard guard(std::make_shared<ImageHost>());  // resolution 96
    EXPECT_SIZE(96, 192, measure(dir, "a.EMF", emf(0, 0, 2540, 5080)));
    EXPECT_SIZE(48, 96, measure(dir, "offset.emf", emf(1270, 2540, 2540, 5080)));
    EXPECT_SIZE(300, 300, measure(dir, "short.emf", emf(0, 0, 2540, 5080).substr(0, 40)));
    EXPECT_SIZE(300, 300, measure(dir, "backwards.emf", emf(2540, 0, 0, 5080)));
    EXPECT_SIZE(300, 300, measure(dir, "png.emf", png(10, 10)));
    for (auto path : {u"/nowhere/a.svg", u"/nowhere/a.emf"}) {
        ImageInfo const info = InfoUtils::getImageInfo(path);
        EXPECT_SIZE(300, 300, (Size{info.width, info.height}));
    }
}

TEST(ImageInfo, HostAnswersWinAndResolutionIsAskedOnce) {
    ScratchDir dir;
    auto host = std::make_shared<ImageHost>();
    HostGuard guard(host);
    host->pictureWidth = 33;
    host->pictureHeight = 44;
    EXPECT_SIZE(33, 44, measure(dir, "a.png", png(640, 480)));
    // A useless answer falls back to the header, and so does one beyond what
    // a picture's size can hold.
    host->pictureWidth = 0;
    EXPECT_SIZE(640, 480, measure(dir, "a.png", png(640, 480)));
    host->pictureWidth = 300000;
    EXPECT_SIZE(640, 480, measure(dir, "a.png", png(640, 480)));
    EXPECT_SIZE(300, 300, measure(dir, "wide.png", png(300000, 2)));

    host->ppi = 120;
    EXPECT_DOUBLE_EQ(120, InfoUtils::getScreenPixelsPerInch());
    host->ppi = 200;
    EXPECT_DOUBLE_EQ(120, InfoUtils::getScreenPixelsPerInch());
    EXPECT_SIZE(120, 240, measure(dir, "a.emf", emf(0, 0, 2540, 5080)));

    InfoUtils::forgetScreenPixelsPerInch();
    host->ppi = 0;
    EXPECT_DOUBLE_EQ(96, InfoUtils::getScreenPixelsPerInch());
    host->ppi = 150;
    EXPECT_DOUBLE_EQ(96, InfoUtils::getScreenPixelsPerInch());  // the fallback is kept
    std::size_t asked = 0;
    for (auto const& c : host->calls) asked += c == "brieflet.utils.getScreenPixelsPerInch";
    EXPECT_EQ(2u, asked);
}

TEST(ImageInfo, HostErrorsPassThrough) {
    class Throwing : public ImageHost {
        bool call(std::string const&, std::vector<hvArray const*> const&, int,
                  std::vector<std::unique_ptr<hvArray>>&) override {
            throw std::runtime_error("imfinfo: file not found");
        }
    };
    HostGuard guard(std::make_shared<Throwing>());
    EXPECT_THROW(InfoUtils::getImageInfo(u"/nowhere/a.png"), std::runtime_error);
}

// An SVG measures by its root's width and height in CSS pixels; a side that
// is missing or in percent follows from the viewBox, and a file that gives
// neither, or no svg root at all, has the default size.
TEST(ImageInfo, SvgByWidthHeightAndViewBox) {
    ScratchDir dir;
    std::string const head = "<?xml version='1.0'?>\n<!-- <svg width='1'> -->\n";
    EXPECT_SIZE(120, 80, measure(dir, "a.svg", head + "<svg xmlns='x' width=\"120\" height=\"80\"/>"));
    EXPECT_SIZE(96, 48, measure(dir, "in.SVG", "<svg width='1in' height = '36pt'/>"));
    EXPECT_SIZE(418, 314, measure(dir, "box.svg", "<svg\n viewBox=\"0 0 418 314\"\n>"));
    EXPECT_SIZE(200, 50, measure(dir, "w.svg", "<svg width='200' viewBox='0,0,400,100'>"));
    EXPECT_SIZE(25, 100, measure(dir, "h.svg", "<svg height='100' width='50%' viewBox='0 0 1 4'>"));
    EXPECT_SIZE(300, 300, measure(dir, "none.svg", "<svg width='10'/>"));
    EXPECT_SIZE(300, 300, measure(dir, "flat.svg", "<svg viewBox='0 0 10 0'/>"));
    EXPECT_SIZE(300, 300, measure(dir, "html.svg", "<html><svgx width='5' height='5'/></html>"));
}
