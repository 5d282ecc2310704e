// The benchmark deck of bench/workload_deck.m built through the engine
// alone, for comparison with the same deck built from Octave:
//
//   bench_workload N out.pptx
//
// bench/run_workload measures the process from outside.
#include <zlib.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "engine/presentation.h"
#include "engine/slide.h"
#include "nodes/content_placeholder.h"
#include "nodes/external_link.h"
#include "nodes/paragraph.h"
#include "nodes/picture.h"
#include "nodes/table.h"
#include "nodes/table_entry.h"
#include "nodes/table_row.h"
#include "nodes/text.h"
#include "platform/host_services.h"

namespace {

using namespace deckforge;
using namespace deckforge::ppt;

u16string u(std::string const& text) {
    return u16string(text.begin(), text.end());
}

void put32(std::string& out, std::uint32_t v) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<char>((v >> shift) & 0xFF));
}

void chunk(std::string& out, char const* type, std::string const& data) {
    put32(out, static_cast<std::uint32_t>(data.size()));
    std::string body = std::string(type, 4) + data;
    out += body;
    put32(out,
          static_cast<std::uint32_t>(crc32(0, reinterpret_cast<Bytef const*>(body.data()), body.size())));
}

// A 640 x 480 greyscale PNG of stripes.
void writePng(std::filesystem::path const& path) {
    unsigned const width = 640, height = 480;
    std::string raw;
    for (unsigned y = 0; y < height; ++y) {
        raw.push_back(0);
        for (unsigned x = 0; x < width; ++x) raw.push_back(static_cast<char>((x / 80 + y / 60) * 16));
    }
    uLongf size = compressBound(raw.size());
    std::string packed(size, '\0');
    compress2(reinterpret_cast<Bytef*>(&packed[0]), &size, reinterpret_cast<Bytef const*>(raw.data()),
              raw.size(), 6);
    packed.resize(size);
    std::string header;
    put32(header, width);
    put32(header, height);
    header += std::string("\x08\x00\x00\x00\x00", 5);
    std::string png = "\x89PNG\r\n\x1a\n";
    chunk(png, "IHDR", header);
    chunk(png, "IDAT", packed);
    chunk(png, "IEND", "");
    std::ofstream(path, std::ios::binary) << png;
}

Paragraph run(Text const& text) {
    Paragraph paragraph;
    paragraph.append(text);
    return paragraph;
}

void build(unsigned long n, std::filesystem::path const& out, std::filesystem::path const& png) {
    Presentation presentation(out.u16string());
    presentation.open();
    Slide first = presentation.add(u"Title Slide");
    first.replace(u"Title", u"Benchmark deck");
    first.replace(u"Subtitle", u(std::to_string(n) + " slides"));

    std::mt19937 random(1);
    std::uniform_int_distribution<int> hundredths(0, 100);
    for (unsigned long i = 2; i <= n; ++i) {
        std::string const number = std::to_string(i);
        Slide slide = presentation.add(u"Title and Content");
        slide.replace(u"Title", u("Slide " + number));

        Paragraph mixed;
        Text bold(u"Bold run");
        bold.setBold(true);
        mixed.append(bold);
        mixed.append(u" and ");
        Text italic(u"italic run");
        italic.setItalic(true);
        mixed.append(italic);
        Text coloured(u"Coloured run at 20pt");
        coloured.setFontColor(u"#1F77B4");
        coloured.setFontSize(u"20pt");
        Paragraph link;
        link.append(ExternalLink(u("https://example.com/" + number), u("Link to example.com/" + number)));
        Paragraph level2(u"Second outline level", 2);

        for (PPTNodePtr const& node : slide.find(u"Content")) {
            auto content = ContentPlaceholder::cast(node);
            if (!content) continue;
            content->replace(Paragraph(u("Plain paragraph on slide " + number + ".")));
            content->add(mixed);
            content->add(run(coloured));
            content->add(link);
            content->add(level2);
        }

        if (i % 5 == 0) {
            Table table;
            TableRow header;
            for (int c = 1; c <= 6; ++c) {
                Paragraph name(u("Col " + std::to_string(c)));
                name.setBold(true);
                header.append(TableEntry(name));
            }
            table.append(header);
            for (int r = 0; r < 9; ++r) {
                TableRow row;
                for (int c = 0; c < 6; ++c) {
                    char text[16];
                    std::snprintf(text, sizeof text, "%.2f", hundredths(random) / 100.0);
                    row.append(TableEntry(u(text)));
                }
                table.append(row);
            }
            table.setX(u"0.5in");
            table.setY(u"3.5in");
            table.setWidth(u"9in");
            table.setHeight(u"3.5in");
            slide.add(table);
        }
        if (i % 10 == 0) {
            Picture picture(png.u16string());
            picture.setX(u"6in");
            picture.setY(u"1.5in");
            picture.setWidth(u"3.2in");
            picture.setHeight(u"2.4in");
            slide.add(picture);
        }
    }
    presentation.close();
}

}  // namespace

// With a picture.png given, the deck uses it; without, the program makes
// one of its own (bench/run_workload makes it once, before any timing, and
// hands the same file to the Octave script).
int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: bench_workload N out.pptx [picture.png]\n");
        return 2;
    }
    char const* root = std::getenv("DECKFORGE_ROOT");
    host::setQuorixRoot(toString(std::string(root ? root : DECKFORGE_BINARY_DIR)));
    std::filesystem::path const out = std::filesystem::absolute(argv[2]);
    bool const ownPng = argc == 3;
    std::filesystem::path const png =
        ownPng ? std::filesystem::path(out.string() + ".png") : std::filesystem::absolute(argv[3]);
    if (ownPng) writePng(png);
    int status = 0;
    try {
        build(std::strtoul(argv[1], nullptr, 10), out, png);
    } catch (std::exception const& e) {
        std::fprintf(stderr, "bench_workload: %s\n", e.what());
        status = 1;
    }
    if (ownPng) std::filesystem::remove(png);
    return status;
}
