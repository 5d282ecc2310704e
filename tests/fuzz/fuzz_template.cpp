// A template from hostile bytes: the input becomes a template file (see
// support/package_input.h), which a presentation opens (zip, content types,
// relationships, every part the model reads, the template's slides as nodes),
// gets one slide from its first layout, and closes.
//
// Refusing the template with a message id, or with the package library's or
// Xerces' exception, which pass through by design, is a fine outcome. Any
// other exception, a crash or a sanitizer report is a finding; so is a
// changed template file or a file left behind in the temporary folder.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <xercesc/dom/DOMException.hpp>

#include "common/file_utils.h"
#include "engine/presentation.h"
#include "platform/except.h"
#include "platform/opc/exception.h"
#include "support/package_input.h"

namespace fs = std::filesystem;
using deckforge::ppt::Presentation;

namespace {

fs::path& workDir() {
    static fs::path dir;
    return dir;
}

std::string readBack(fs::path const& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void openAddClose(std::u16string const& templatePath, std::u16string const& outputPath) {
    Presentation presentation(outputPath, templatePath);
    if (!presentation.open()) return;
    auto const& masters = presentation.getMasterNames();
    if (!masters.empty()) {
        auto const& layouts = presentation.getLayoutNames(masters.front());
        if (!layouts.empty()) presentation.add(layouts.front(), masters.front());
    }
    presentation.close();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // Temporary copies go to a folder of this process, in memory when the
    // system offers it, so that a leftover can be told apart and runs are fast.
    fs::path base = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    workDir() = base / ("deckforge-fuzz-" + std::to_string(::getpid()));
    fs::create_directories(workDir() / "tmp");
    ::setenv("TMPDIR", (workDir() / "tmp").c_str(), 1);
    std::atexit([] {
        std::error_code ec;
        fs::remove_all(workDir(), ec);
    });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const bytes = deckforge::fuzz::packageBytes(data, size);
    fs::path const templateFile = workDir() / "template.pptx";
    fs::path const outputFile = workDir() / "output.pptx";
    std::ofstream(templateFile, std::ios::binary | std::ios::trunc) << bytes;

    try {
        openAddClose(templateFile.u16string(), outputFile.u16string());
    } catch (foundation::core::except::IMsgIDException const&) {
    } catch (opc::Exception const&) {
    } catch (deckforge::Exception const&) {
    } catch (xercesc::DOMException const&) {
    }

    if (readBack(templateFile) != bytes) std::abort();   // the template is only ever read
    if (!fs::is_empty(workDir() / "tmp")) std::abort();  // temporary copies are removed
    std::error_code ec;
    fs::remove(outputFile, ec);
    return 0;
}
