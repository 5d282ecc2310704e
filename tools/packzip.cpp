// packzip OUTPUT SOURCE_DIR
//
// Zips every file below SOURCE_DIR into OUTPUT so that the bytes depend on the files'
// names and contents alone: entries in a fixed order, one fixed timestamp, fixed
// permissions, deflate at a fixed level. Used at build time to turn the default
// template's XML sources into a .pptx that is identical from one build to the next.
#include <zip.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Readers that sniff a package look at the first entry, so the content types go first.
char const* const kContentTypes = "[Content_Types].xml";

// 1980-01-01 00:00:00, the earliest moment a zip header can hold. Set as DOS fields
// directly: a time_t would be converted through the local time zone.
constexpr zip_uint16_t kDosTime = 0;
constexpr zip_uint16_t kDosDate = (0 << 9) | (1 << 5) | 1;

// Regular file, rw-r--r--, in the high half of the external attributes as Info-ZIP does.
constexpr zip_uint32_t kUnixFileMode = 0100644u << 16;

struct Entry {
    std::string name;  // path inside the zip, '/'-separated
    std::string data;
};

bool entryBefore(Entry const& a, Entry const& b) {
    bool const aFirst = a.name == kContentTypes;
    bool const bFirst = b.name == kContentTypes;
    if (aFirst != bFirst) {
        return aFirst;
    }
    return a.name < b.name;
}

bool readFile(fs::path const& path, std::string& out) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    out.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return !in.bad();
}

int fail(char const* what, std::string const& detail) {
    std::fprintf(stderr, "packzip: %s: %s\n", what, detail.c_str());
    return 1;
}

int failZip(char const* what, zip_t* archive) {
    int const status = fail(what, zip_strerror(archive));
    zip_discard(archive);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: packzip OUTPUT SOURCE_DIR\n");
        return 2;
    }
    fs::path const output = argv[1];
    fs::path const sourceDir = argv[2];

    // Contents are read up front: libzip reads its sources only in zip_close, and a
    // buffer source needs its bytes alive until then.
    std::vector<Entry> entries;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(sourceDir, ec), end; !ec && it != end; it.increment(ec)) {
        if (!it->is_regular_file()) {
            continue;
        }
        Entry entry;
        entry.name = it->path().lexically_relative(sourceDir).generic_string();
        if (!readFile(it->path(), entry.data)) {
            return fail("cannot read", it->path().string());
        }
        entries.push_back(std::move(entry));
    }
    if (ec) {
        return fail("cannot list", sourceDir.string() + ": " + ec.message());
    }
    if (entries.empty()) {
        return fail("no files in", sourceDir.string());
    }
    std::sort(entries.begin(), entries.end(), entryBefore);

    int error = 0;
    zip_t* archive = zip_open(output.string().c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (archive == nullptr) {
        zip_error_t zipError;
        zip_error_init_with_code(&zipError, error);
        std::string const message = zip_error_strerror(&zipError);
        zip_error_fini(&zipError);
        return fail("cannot create", output.string() + ": " + message);
    }
    for (Entry const& entry : entries) {
        zip_source_t* source = zip_source_buffer(archive, entry.data.data(), entry.data.size(), 0);
        if (source == nullptr) {
            return failZip("cannot add", archive);
        }
        zip_int64_t const index = zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            return failZip("cannot add", archive);
        }
        auto const i = static_cast<zip_uint64_t>(index);
        if (zip_set_file_compression(archive, i, ZIP_CM_DEFLATE, 9) != 0 ||
            zip_file_set_dostime(archive, i, kDosTime, kDosDate, 0) != 0 ||
            zip_file_set_external_attributes(archive, i, 0, ZIP_OPSYS_UNIX, kUnixFileMode) != 0) {
            return failZip("cannot set entry attributes", archive);
        }
    }
    if (zip_close(archive) != 0) {
        return failZip("cannot write", archive);
    }
    return 0;
}
