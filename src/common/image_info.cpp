#include "common/image_info.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "common/file_utils.h"
#include "platform/hv.h"

namespace deckforge {

namespace {

double const kDefaultSize = 300.0;
double const kDefaultPixelsPerInch = 96.0;
// Hundredths of a millimetre in an inch: the unit of an EMF frame.
double const kFrameUnitsPerInch = 2540.0;
// A picture's size is written in EMU, 9525 to the pixel, as a 32-bit number,
// which holds at most about 225,000 pixels. A header that claims more is
// taken for a lying one rather than written as a broken size.
double const kMaxPixels = 200000.0;

// The resolution the host gave, or -1 while it hasn't been asked.
double screenPixelsPerInch = -1.0;

using Bytes = unsigned char const*;

std::uint32_t be16(Bytes p) {
    return static_cast<std::uint32_t>(p[0]) << 8 | p[1];
}
std::uint32_t be32(Bytes p) {
    return be16(p) << 16 | be16(p + 2);
}
std::uint32_t le16(Bytes p) {
    return static_cast<std::uint32_t>(p[1]) << 8 | p[0];
}
std::uint32_t le32(Bytes p) {
    return le16(p + 2) << 16 | le16(p);
}
std::int32_t le32s(Bytes p) {
    return static_cast<std::int32_t>(le32(p));
}

bool plausible(double width, double height) {
    return std::isfinite(width) && std::isfinite(height) && width > 0.0 && height > 0.0 &&
           width <= kMaxPixels && height <= kMaxPixels;
}

std::ifstream openBinary(u16string const& path) {
    return std::ifstream(std::filesystem::path(path), std::ios::binary);
}

// Up to `count` bytes at `offset`; false unless all of them arrived.
bool readAt(std::istream& in, std::uint64_t offset, unsigned char* buffer, std::size_t count) {
    in.clear();
    in.seekg(static_cast<std::streamoff>(offset));
    if (!in) return false;
    in.read(reinterpret_cast<char*>(buffer), static_cast<std::streamsize>(count));
    return static_cast<std::size_t>(in.gcount()) == count;
}

// The frame size of a JPEG: the first start-of-frame segment, reached by
// walking the segment lengths. Every step moves forward, so the walk ends at
// the end of the file at the latest.
bool jpegSize(std::istream& in, double& width, double& height) {
    std::uint64_t offset = 2;  // past the start-of-image marker
    unsigned char marker[2];
    for (;;) {
        if (!readAt(in, offset, marker, 2) || marker[0] != 0xFF) return false;
        if (marker[1] == 0xFF) {  // fill byte before a marker
            ++offset;
            continue;
        }
        unsigned const code = marker[1];
        offset += 2;
        if (code == 0x01 || (code >= 0xD0 && code <= 0xD8)) continue;  // markers without a segment
        if (code == 0xD9 || code == 0xDA) return false;  // end of image or scan data before any frame
        unsigned char segment[7];
        if (!readAt(in, offset, segment, 2)) return false;
        std::uint32_t const length = be16(segment);
        if (length < 2) return false;
        bool const startOfFrame =
            code >= 0xC0 && code <= 0xCF && code != 0xC4 && code != 0xC8 && code != 0xCC;
        if (startOfFrame) {
            if (length < 7 || !readAt(in, offset, segment, 7)) return false;
            height = be16(segment + 3);
            width = be16(segment + 5);
            return true;
        }
        offset += length;
    }
}

// The size from the file's own header, told by its signature rather than by
// its extension, so that a file named for another type is still measured
// right and a file of no known type gives false.
bool headerSize(u16string const& path, double& width, double& height) {
    std::ifstream in = openBinary(path);
    if (!in) return false;
    std::array<unsigned char, 26> head{};
    in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
    std::size_t const n = static_cast<std::size_t>(in.gcount());
    Bytes const p = head.data();

    static unsigned char const png[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    if (n >= 24 && std::equal(png, png + 8, p) && std::equal(p + 12, p + 16, "IHDR")) {
        width = be32(p + 16);
        height = be32(p + 20);
        return true;
    }
    if (n >= 10 && (std::equal(p, p + 6, "GIF87a") || std::equal(p, p + 6, "GIF89a"))) {
        width = le16(p + 6);
        height = le16(p + 8);
        return true;
    }
    if (n >= 26 && p[0] == 'B' && p[1] == 'M') {
        std::uint32_t const headerSize = le32(p + 14);
        if (headerSize == 12) {  // the old OS/2 header with 16-bit sizes
            width = le16(p + 18);
            height = le16(p + 20);
            return true;
        }
        if (headerSize < 40) return false;
        std::int32_t const w = le32s(p + 18), h = le32s(p + 22);
        if (w == INT32_MIN || h == INT32_MIN) return false;
        width = w;
        height = std::abs(h);  // a negative height means rows stored top down
        return true;
    }
    if (n >= 3 && p[0] == 0xFF && p[1] == 0xD8 && p[2] == 0xFF) return jpegSize(in, width, height);
    return false;
}

ImageInfo const& plainInfo() {
    static ImageInfo const info(kDefaultSize, kDefaultSize);
    return info;
}

std::map<u16string, ImageInfo const*> const& infoByExtension() {
    static ImageInfoEMF const emf(kDefaultSize, kDefaultSize);
    static ImageInfoSVG const svg(kDefaultSize, kDefaultSize);
    static std::map<u16string, ImageInfo const*> const table = {{u"emf", &emf}, {u"svg", &svg}};
    return table;
}

}  // namespace

ImageInfo::~ImageInfo() = default;

ImageInfo ImageInfo::make(u16string const& path) const {
    double w = width, h = height;
    hv::ArrayPtr argument(hvCreateString_UTF16(path));
    hvArray* args[1] = {argument.get()};
    hvArray* results[1] = {nullptr};
    // An error raised by the script function passes through.
    int const status = hvCallHost("picmeta", 1, results, 1, args);
    hv::ArrayPtr result(results[0]);
    double hostWidth = 0.0, hostHeight = 0.0;
    if (status == 0 && result) {
        hostWidth = hvGetScalar(hvGetField(result.get(), 0, "Width"));
        hostHeight = hvGetScalar(hvGetField(result.get(), 0, "Height"));
    }
    double fileWidth = 0.0, fileHeight = 0.0;
    // A true answer too large for the output is no better than a lying one.
    if (plausible(hostWidth, hostHeight)) {
        w = hostWidth;
        h = hostHeight;
    } else if (headerSize(path, fileWidth, fileHeight) && plausible(fileWidth, fileHeight)) {
        w = fileWidth;
        h = fileHeight;
    }
    return ImageInfo(w, h);
}

ImageInfo ImageInfoEMF::make(u16string const& path) const {
    std::ifstream in = openBinary(path);
    // The header record EMR_HEADER: type 1, its frame (left, top, right,
    // bottom in 0.01 mm) at 24, and the signature " EMF" at 40.
    std::array<unsigned char, 44> head{};
    if (!in || !readAt(in, 0, head.data(), head.size())) return ImageInfo(width, height);
    Bytes const p = head.data();
    if (le32(p) != 1 || le32(p + 40) != 0x464D4520) return ImageInfo(width, height);
    std::int32_t const left = le32s(p + 24), top = le32s(p + 28), right = le32s(p + 32),
                       bottom = le32s(p + 36);
    if (right < left || bottom < top) return ImageInfo(width, height);
    double const ppi = InfoUtils::getScreenPixelsPerInch();
    double const w = (static_cast<double>(right) - left) / kFrameUnitsPerInch * ppi;
    double const h = (static_cast<double>(bottom) - top) / kFrameUnitsPerInch * ppi;
    if (!plausible(w, h)) return ImageInfo(width, height);
    return ImageInfo(w, h);
}

namespace {

// A CSS length in pixels (96 to the inch); false for a percentage, which
// depends on where the picture is put, and for anything unreadable.
bool cssPixels(std::string const& text, double& pixels) {
    char const* begin = text.c_str();
    char* end = nullptr;
    double const value = std::strtod(begin, &end);
    if (end == begin) return false;
    std::string unit(end);
    unit.erase(std::remove_if(unit.begin(), unit.end(),
                              [](char c) { return std::isspace(static_cast<unsigned char>(c)); }),
               unit.end());
    static std::map<std::string, double> const perUnit = {
        {"", 1.0},           {"px", 1.0},         {"pt", 96.0 / 72.0}, {"pc", 16.0}, {"in", 96.0},
        {"cm", 96.0 / 2.54}, {"mm", 96.0 / 25.4}, {"em", 16.0},        {"ex", 8.0}};
    auto const it = perUnit.find(unit);
    if (it == perUnit.end()) return false;
    pixels = value * it->second;
    return true;
}

// The value of attribute `name` in the start tag `tag`, if it is there.
bool attributeOf(std::string const& tag, char const* name, std::string& value) {
    std::string const key = name;
    for (std::size_t at = tag.find(key); at != std::string::npos; at = tag.find(key, at + 1)) {
        if (at == 0 || !std::isspace(static_cast<unsigned char>(tag[at - 1]))) continue;
        std::size_t i = at + key.size();
        while (i < tag.size() && std::isspace(static_cast<unsigned char>(tag[i]))) ++i;
        if (i >= tag.size() || tag[i] != '=') continue;
        ++i;
        while (i < tag.size() && std::isspace(static_cast<unsigned char>(tag[i]))) ++i;
        if (i >= tag.size() || (tag[i] != '"' && tag[i] != '\'')) continue;
        std::size_t const close = tag.find(tag[i], i + 1);
        if (close == std::string::npos) return false;
        value = tag.substr(i + 1, close - i - 1);
        return true;
    }
    return false;
}

// The start tag of the root svg element among the first bytes of the file,
// past the XML declaration, comments and a document type.
bool svgStartTag(u16string const& path, std::string& tag) {
    std::ifstream in = openBinary(path);
    if (!in) return false;
    std::string head(65536, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    for (std::size_t at = head.find("<svg"); at != std::string::npos; at = head.find("<svg", at + 1)) {
        // Inside a comment is no element.
        std::size_t const comment = head.rfind("<!--", at);
        if (comment != std::string::npos && head.find("-->", comment) > at) continue;
        char const next = at + 4 < head.size() ? head[at + 4] : '\0';
        if (!std::isspace(static_cast<unsigned char>(next)) && next != '>' && next != '/') continue;
        std::size_t const end = head.find('>', at);
        if (end == std::string::npos) return false;
        tag = head.substr(at, end - at);
        return true;
    }
    return false;
}

}  // namespace

ImageInfo ImageInfoSVG::make(u16string const& path) const {
    std::string tag;
    if (!svgStartTag(path, tag)) return ImageInfo(width, height);
    double boxW = 0.0, boxH = 0.0;
    std::string text;
    if (attributeOf(tag, "viewBox", text)) {
        std::replace(text.begin(), text.end(), ',', ' ');
        double x = 0.0, y = 0.0;
        if (std::sscanf(text.c_str(), "%lf %lf %lf %lf", &x, &y, &boxW, &boxH) != 4 || !plausible(boxW, boxH))
            boxW = boxH = 0.0;
    }
    double w = 0.0, h = 0.0;
    bool const hasW = attributeOf(tag, "width", text) && cssPixels(text, w) && w > 0.0;
    bool const hasH = attributeOf(tag, "height", text) && cssPixels(text, h) && h > 0.0;
    // A side that the file leaves open, or gives in percent, follows from
    // the other side and the view box's aspect, or is the view box's own.
    if (boxW > 0.0) {
        if (hasW && !hasH) h = w * boxH / boxW;
        if (hasH && !hasW) w = h * boxW / boxH;
        if (!hasW && !hasH) {
            w = boxW;
            h = boxH;
        }
    }
    if (!plausible(w, h)) return ImageInfo(width, height);
    return ImageInfo(w, h);
}

ImageInfo InfoUtils::getImageInfo(u16string const& path) {
    u16string const extension = toLowerString(FileUtils::getFileNameExtension(path));
    auto const& table = infoByExtension();
    auto const it = table.find(extension);
    return (it != table.end() ? *it->second : plainInfo()).make(path);
}

double InfoUtils::getScreenPixelsPerInch() {
    if (screenPixelsPerInch >= 0.0) return screenPixelsPerInch;
    hvArray* results[1] = {nullptr};
    int const status = hvCallHost("brieflet.utils.getScreenPixelsPerInch", 1, results, 0, nullptr);
    hv::ArrayPtr result(results[0]);
    if (status == 0 && result) screenPixelsPerInch = hvGetScalar(result.get());
    // A failed call is not repeated: its fallback is kept like an answer.
    if (!(screenPixelsPerInch > 0.0) || !std::isfinite(screenPixelsPerInch))
        screenPixelsPerInch = kDefaultPixelsPerInch;
    return screenPixelsPerInch;
}

namespace {

// Whether the file ends as its kind must: PNG with its IEND chunk, GIF with
// its trailer, JPEG with the end-of-image marker, BMP at the size its header
// declares. A cut file fails, so that the general reader can say what is
// wrong with it.
bool endsWhole(u16string const& path) {
    std::ifstream in = openBinary(path);
    if (!in) return false;
    unsigned char head[6] = {};
    in.read(reinterpret_cast<char*>(head), sizeof head);
    in.seekg(0, std::ios::end);
    std::streamoff const size = in.tellg();
    if (size < 12) return false;
    unsigned char tail[12] = {};
    if (!readAt(in, static_cast<std::uint64_t>(size) - sizeof tail, tail, sizeof tail)) return false;
    static unsigned char const iend[] = {0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82};
    switch (head[0]) {
        case 0x89:
            return std::equal(iend, iend + 12, tail);
        case 'G':
            return tail[11] == 0x3B;
        case 0xFF:
            return tail[10] == 0xFF && tail[11] == 0xD9;
        case 'B':
            return le32(head + 2) == static_cast<std::uint64_t>(size);
        default:
            return false;
    }
}

}  // namespace

bool InfoUtils::readHeaderSize(u16string const& path, double& width, double& height) {
    return headerSize(path, width, height) && plausible(width, height) && endsWhole(path);
}

void InfoUtils::forgetScreenPixelsPerInch() {
    screenPixelsPerInch = -1.0;
}

}  // namespace deckforge
