#include "platform/opc/zip_package.h"

#include <ctime>
#include <filesystem>

#include <zip.h>

#include "platform/opc/exception.h"
#include "platform/opc/text.h"

namespace opc {
namespace zippackage {

namespace {

// A whole zip read from a stream is held in memory; beyond this it is
// surely not a presentation.
constexpr std::size_t kMaxArchiveSize = std::size_t(4) << 30;

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
    zip_error_t error;
    zip_error_init(&error);
    memoryZip_ = zip_source_buffer_create(nullptr, 0, 0, &error);
    if (!memoryZip_) throw Exception("cannot create a zip archive: " + libzipText(&error));
    archive_ = zip_open_from_source(memoryZip_, ZIP_TRUNCATE, &error);
    if (!archive_) {
        zip_source_free(memoryZip_);
        memoryZip_ = nullptr;
        std::string reason = libzipText(&error);
        zip_error_fini(&error);
        throw Exception("cannot create a zip archive: " + reason);
    }
    zip_error_fini(&error);
    // The archive frees its source at close; we still need it to copy the bytes out.
    zip_source_keep(memoryZip_);
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
        archive_ = zip_open(native.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code);
        if (!archive_) throw Exception("cannot create the zip file " + native + ": " + libzipText(code));
        writable_ = true;
    }
}

ZipPhysicalPackage::~ZipPhysicalPackage() {
    if (archive_) zip_discard(archive_);
    if (memoryZip_) zip_source_free(memoryZip_);
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
    std::unordered_map<std::string, std::string> byKey;
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
    bytes->reserve(limit);
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
    if (!writable_ || !archive_) throw Exception("the zip package is not open for writing");
    std::string problem = detail::itemNameProblem(detail::toUtf8(name));
    if (!problem.empty())
        throw Exception("cannot write the zip entry \"" + detail::toUtf8(name) + "\": " + problem);
    auto found = pendingIndex_.find(name);
    if (found != pendingIndex_.end()) {
        pending_[found->second].content = std::move(content);
        pending_[found->second].compress = compress;
        return;
    }
    pendingIndex_.emplace(name, pending_.size());
    pending_.push_back(Pending{name, std::move(content), compress});
}

void ZipPhysicalPackage::commit() {
    if (!writable_ || !archive_) throw Exception("the zip package is not open for writing");
    static std::time_t const entryTime = fixedEntryTime();
    for (auto const& item : pending_) {
        std::string name = detail::toUtf8(item.name);
        zip_source_t* source = zip_source_buffer(archive_, item.content->data(), item.content->size(), 0);
        if (!source) throw Exception("cannot add the zip entry \"" + name + "\": " + zip_strerror(archive_));
        zip_int64_t index = zip_file_add(archive_, name.c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            throw Exception("cannot add the zip entry \"" + name + "\": " + zip_strerror(archive_));
        }
        auto at = static_cast<zip_uint64_t>(index);
        if (zip_set_file_compression(archive_, at, item.compress ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0) != 0 ||
            zip_file_set_mtime(archive_, at, entryTime, 0) != 0)
            throw Exception("cannot add the zip entry \"" + name + "\": " + zip_strerror(archive_));
    }
    zip* archive = archive_;
    archive_ = nullptr;
    if (zip_close(archive) != 0) {
        std::string reason = zip_strerror(archive);
        zip_discard(archive);
        throw Exception("cannot write the zip archive: " + reason);
    }
    pending_.clear();
    pendingIndex_.clear();
    if (output_) {
        if (zip_source_open(memoryZip_) != 0)
            throw Exception("cannot write the zip archive: " +
                            std::string(zip_error_strerror(zip_source_error(memoryZip_))));
        char buffer[64 * 1024];
        zip_int64_t n;
        while ((n = zip_source_read(memoryZip_, buffer, sizeof buffer)) > 0)
            output_->write(buffer, static_cast<std::size_t>(n));
        zip_source_close(memoryZip_);
        if (n < 0) throw Exception("cannot write the zip archive: reading the built archive failed");
        output_->close();
    }
}

}  // namespace zippackage
}  // namespace opc
