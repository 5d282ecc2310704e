#include "platform/opc/zip_package.h"

#include <algorithm>
#include <ctime>
#include <filesystem>

#include <zip.h>

#include "platform/opc/exception.h"
#include "platform/opc/text.h"
#include "platform/opc/zip_writer.h"

namespace opc {
namespace zippackage {

namespace {

// A whole zip read from a stream is held in memory; beyond this it is
// surely not a presentation.
constexpr std::size_t kMaxArchiveSize = std::size_t(4) << 30;

// Parts of real presentations deflate at most some 40 to 1. An entry that
// claims far more, and is large, is a zip bomb: it is refused before anything
// is inflated. Small entries may compress as well as they like.
constexpr std::uint64_t kMaxInflationRatio = 100;
constexpr std::uint64_t kSmallEntrySize = std::uint64_t(16) << 20;

// What all entries together may inflate to: bounds the work of reading every
// part once, however many entries there are.
constexpr std::uint64_t kMaxTotalSize = std::uint64_t(4) << 30;

// As many entries as a zip holds without its 64-bit extension; presentations
// have some thousands at most. Each part that is read costs a DOM document,
// so this also bounds the memory that a package of tiny parts can take.
constexpr zip_int64_t kMaxEntries = 65535;

std::string libzipText(int code) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    std::string text = zip_error_strerror(&error);
    zip_error_fini(&error);
    return text;
}

std::string libzipText(zip_error_t* error) {
    return zip_error_strerror(error);
}

[[noreturn]] void refuseOpen(std::string const& reason) {
    throw Exception("not a readable zip archive: " + reason);
}

// Written entries all carry the same time, so that one input gives the same
// bytes every time. The earliest time a zip entry can hold.
std::time_t fixedEntryTime() {
    std::tm tm{};
    tm.tm_year = 80;
    tm.tm_mon = 0;
    tm.tm_mday = 1;
    tm.tm_isdst = -1;
    return std::mktime(&tm);
}

}  // namespace

ZipPhysicalPackage::ZipPhysicalPackage(InputStream& in) {
    try {
        input_ = StreamHelper::readAll(in, kMaxArchiveSize);
    } catch (Exception const& e) {
        refuseOpen(e.what());
    }
    // libzip takes an empty file for an empty archive; it is no package.
    if (input_.empty()) throw Exception("not a readable zip archive: the file is empty");
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(input_.data(), input_.size(), 0, &error);
    if (!source) refuseOpen(libzipText(&error));
    archive_ = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (!archive_) {
        zip_source_free(source);
        std::string reason = libzipText(&error);
        zip_error_fini(&error);
        refuseOpen(reason);
    }
    zip_error_fini(&error);
    readable_ = true;
    indexOrDiscard();
}

ZipPhysicalPackage::ZipPhysicalPackage(OutputStream& out, bool update) : output_(&out) {
    if (update) throw Exception("a zip package on a stream can only be written new, not updated");
    writable_ = true;
}

ZipPhysicalPackage::ZipPhysicalPackage(std::u16string const& path, bool update) {
    std::string native = detail::toUtf8(path);
    int code = 0;
    if (update) {
        std::error_code ec;
        if (!std::filesystem::is_regular_file(native, ec)) throw Exception("no such zip file: " + native);
        if (std::filesystem::file_size(native, ec) == 0)
            throw Exception("not a readable zip archive: the file is empty");
        archive_ = zip_open(native.c_str(), ZIP_CHECKCONS, &code);
        if (!archive_) refuseOpen(libzipText(code));
        readable_ = true;
        writable_ = true;
        indexOrDiscard();
    } else {
        writable_ = true;
    }
    path_ = native;
}

ZipPhysicalPackage::~ZipPhysicalPackage() {
    if (archive_) zip_discard(archive_);
}

// A refused archive throws from the constructor, where the destructor won't
// run: the archive must be let go here.
void ZipPhysicalPackage::indexOrDiscard() {
    try {
        indexEntries();
    } catch (...) {
        zip_discard(archive_);
        archive_ = nullptr;
        throw;
    }
}

void ZipPhysicalPackage::indexEntries() {
    zip_int64_t count = zip_get_num_entries(archive_, 0);
    if (count > kMaxEntries)
        refuseOpen("it has " + std::to_string(count) + " entries, more than the limit of " +
                   std::to_string(kMaxEntries));
    std::unordered_map<std::string, std::string> byKey;
    std::uint64_t total = 0;
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t st;
        zip_stat_init(&st);
        if (zip_stat_index(archive_, static_cast<zip_uint64_t>(i), 0, &st) != 0 ||
            !(st.valid & ZIP_STAT_NAME))
            refuseOpen("entry " + std::to_string(i) + " can't be read: " + zip_strerror(archive_));
        std::string name = st.name;
        if (!name.empty() && name.back() == '/') continue;  // a directory entry
        std::string problem = detail::itemNameProblem(name);
        if (!problem.empty()) refuseOpen("the entry name \"" + name + "\" is not allowed (" + problem + ")");
        if ((st.valid & ZIP_STAT_SIZE) && st.size > kMaxItemSize)
            refuseOpen("the entry \"" + name + "\" declares " + std::to_string(st.size) +
                       " bytes, more than the limit of " + std::to_string(kMaxItemSize));
        if ((st.valid & ZIP_STAT_SIZE) && (st.valid & ZIP_STAT_COMP_SIZE) && st.size > kSmallEntrySize &&
            st.size / kMaxInflationRatio > st.comp_size)
            refuseOpen("the entry \"" + name + "\" inflates from " + std::to_string(st.comp_size) + " to " +
                       std::to_string(st.size) + " bytes, more than " + std::to_string(kMaxInflationRatio) +
                       " times: a zip bomb");
        if (st.valid & ZIP_STAT_SIZE) total += st.size;
        if (total > kMaxTotalSize)
            refuseOpen("the entries declare more than " + std::to_string(kMaxTotalSize) + " bytes in all");
        std::u16string wide = detail::fromUtf8(name);
        auto inserted = byKey.emplace(detail::partKey(wide), name);
        if (!inserted.second)
            refuseOpen("the entry names \"" + inserted.first->second + "\" and \"" + name +
                       "\" are equal but for case");
        names_.push_back(wide);
        entries_.emplace(std::move(wide), static_cast<std::uint64_t>(i));
    }
}

std::shared_ptr<std::string const> ZipPhysicalPackage::readItem(std::u16string const& name) {
    std::string utf8 = detail::toUtf8(name);
    auto found = entries_.find(name);
    if (!readable_ || !archive_ || found == entries_.end()) throw Exception("no zip entry \"" + utf8 + "\"");
    zip_stat_t st;
    zip_stat_init(&st);
    if (zip_stat_index(archive_, found->second, 0, &st) != 0)
        throw Exception("cannot read the zip entry \"" + utf8 + "\": " + zip_strerror(archive_));
    std::size_t limit = (st.valid & ZIP_STAT_SIZE) ? static_cast<std::size_t>(st.size) : kMaxItemSize;
    zip_file_t* file = zip_fopen_index(archive_, found->second, 0);
    if (!file) throw Exception("cannot read the zip entry \"" + utf8 + "\": " + zip_strerror(archive_));
    auto bytes = std::make_shared<std::string>();
    // The declared size is only a claim; growing past the first chunk of it
    // costs little, reserving a crafted gigabyte up front would not.
    bytes->reserve(std::min<std::size_t>(limit, std::size_t(64) << 20));
    char buffer[64 * 1024];
    for (;;) {
        zip_int64_t n = zip_fread(file, buffer, sizeof buffer);
        if (n < 0) {
            std::string reason = zip_error_strerror(zip_file_get_error(file));
            zip_fclose(file);
            throw Exception("cannot read the zip entry \"" + utf8 + "\": " + reason);
        }
        if (n == 0) break;
        // Don't trust the inflater to stop at the declared size.
        if (static_cast<std::size_t>(n) > limit - bytes->size()) {
            zip_fclose(file);
            throw Exception("the zip entry \"" + utf8 + "\" inflates to more than its declared " +
                            std::to_string(limit) + " bytes");
        }
        bytes->append(buffer, static_cast<std::size_t>(n));
    }
    zip_fclose(file);
    return bytes;
}

void ZipPhysicalPackage::writeItem(std::u16string const& name, std::shared_ptr<std::string const> content,
                                   bool compress) {
    pend(Pending{name, std::move(content), compress, nullptr, false});
}

void ZipPhysicalPackage::writeDeflatedItem(std::u16string const& name,
                                           std::shared_ptr<DeflatedContent const> content) {
    pend(Pending{name, nullptr, true, std::move(content), false});
}

void ZipPhysicalPackage::deleteItem(std::u16string const& name) {
    pend(Pending{name, nullptr, false, nullptr, true});
}

void ZipPhysicalPackage::pend(Pending item) {
    if (!writable_ || committed_) throw Exception("the zip package is not open for writing");
    std::string problem = detail::itemNameProblem(detail::toUtf8(item.name));
    if (!problem.empty())
        throw Exception("cannot write the zip entry \"" + detail::toUtf8(item.name) + "\": " + problem);
    auto found = pendingIndex_.find(item.name);
    if (found != pendingIndex_.end()) {
        pending_[found->second] = std::move(item);
        return;
    }
    pendingIndex_.emplace(item.name, pending_.size());
    pending_.push_back(std::move(item));
}

void ZipPhysicalPackage::commit() {
    if (!writable_ || committed_) throw Exception("the zip package is not open for writing");
    committed_ = true;
    // An update that changes nothing leaves the file alone.
    if (!(archive_ && pending_.empty())) {
        static std::time_t const fixedTime = fixedEntryTime();
        EntryTimes times;
        times.time = fixedTime;
        if (auto const epoch = sourceDateEpoch()) {
            times.time = *epoch;
            times.everyEntry = true;
        }
        std::vector<NewItem> items;
        items.reserve(pending_.size());
        for (auto const& item : pending_)
            items.push_back(
                NewItem{detail::toUtf8(item.name), item.content, item.compress, item.deflated, item.removed});
        if (output_)
            writeZipArchive(nullptr, items, times, *output_);
        else
            writeZipFile(path_, archive_, items, times);
    }
    pending_.clear();
    pendingIndex_.clear();
    if (archive_) zip_discard(archive_);
    archive_ = nullptr;
}

}  // namespace zippackage
}  // namespace opc
