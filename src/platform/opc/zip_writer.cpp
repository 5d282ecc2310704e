#include "platform/opc/zip_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unordered_map>

#include <zip.h>
#include <zlib.h>

#include "platform/opc/deflate.h"

#include "platform/opc/exception.h"

namespace opc {
namespace zippackage {

namespace {

// A 16- or 32-bit field at its maximum means "look in the zip64 record", so
// the largest value we may write is one less.
constexpr std::uint64_t kMax16 = 0xFFFE;
constexpr std::uint64_t kMax32 = 0xFFFFFFFE;

constexpr std::size_t kLocalHeaderSize = 30;
constexpr std::size_t kCentralHeaderSize = 46;
constexpr std::size_t kBufferSize = std::size_t(1) << 18;

constexpr std::uint16_t kUtf8NameFlag = 1 << 11;
constexpr std::uint16_t kStored = 0;
constexpr std::uint16_t kDeflated = 8;
// As libzip wrote new entries, so that the output stays as it was: the
// flag that says the strongest deflate level was used (it was), made by
// version 6.3 of the format.
constexpr std::uint16_t kMaximumDeflateFlag = 1 << 1;
constexpr std::uint8_t kMadeByVersion = 63;

void le16(std::string& out, std::uint64_t v) {
    out.push_back(static_cast<char>(v & 0xFF));
    out.push_back(static_cast<char>((v >> 8) & 0xFF));
}

void le32(std::string& out, std::uint64_t v) {
    le16(out, v & 0xFFFF);
    le16(out, (v >> 16) & 0xFFFF);
}

// The lowest version of the format that can extract an entry.
std::uint16_t versionNeeded(std::uint16_t method, std::string const& name) {
    switch (method) {
        case kStored:
            return !name.empty() && name.back() == '/' ? 20 : 10;
        case kDeflated:
            return 20;
        case 9:
            return 21;  // deflate64
        case 12:
            return 46;  // bzip2
        default:
            return 63;
    }
}

bool isAscii(std::string const& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string quoted(std::string const& name) {
    return "\"" + name + "\"";
}

}  // namespace

namespace {
DosTime fromBrokenDown(std::tm const& tm) {
    DosTime dos;
    if (tm.tm_year < 80) return dos;
    if (tm.tm_year > 207) return DosTime{(23 << 11) | (59 << 5) | 29, (127 << 9) | (12 << 5) | 31};
    dos.time = static_cast<std::uint16_t>((tm.tm_hour << 11) | (tm.tm_min << 5) | (tm.tm_sec / 2));
    dos.date = static_cast<std::uint16_t>(((tm.tm_year - 80) << 9) | ((tm.tm_mon + 1) << 5) | tm.tm_mday);
    return dos;
}
}  // namespace

std::optional<std::time_t> sourceDateEpoch() {
    char const* text = std::getenv("SOURCE_DATE_EPOCH");
    if (!text || !*text) return std::nullopt;
    char* end = nullptr;
    errno = 0;
    long long const seconds = std::strtoll(text, &end, 10);
    if (errno != 0 || *end != '\0' || seconds < 0) return std::nullopt;
    return static_cast<std::time_t>(seconds);
}

DosTime toDosTime(std::time_t t) {
    std::tm tm{};
    if (!localtime_r(&t, &tm)) return DosTime();
    return fromBrokenDown(tm);
}

DosTime toUtcDosTime(std::time_t t) {
    std::tm tm{};
    if (!gmtime_r(&t, &tm)) return DosTime();
    return fromBrokenDown(tm);
}

ZipWriter::ZipWriter(OutputStream& out) : out_(out) {
    buffer_.reserve(kBufferSize);
}

ZipWriter::~ZipWriter() = default;

void ZipWriter::addEntry(std::string const& name, std::string const& bytes, bool compress, DosTime time,
                         FileAttributes attributes) {
    if (bytes.size() > kMax32)
        throw Exception("cannot write the zip entry " + quoted(name) + ": it holds " +
                        std::to_string(bytes.size()) + " bytes, and 4 GiB or more would need zip64");
    if (compress) {
        addDeflatedEntry(name, deflater_.deflate(bytes.data(), bytes.size(), "the zip entry " + quoted(name)),
                         time, attributes);
        return;
    }
    auto const* in = reinterpret_cast<unsigned char const*>(bytes.data());
    auto const crc = static_cast<std::uint32_t>(crc32_z(crc32_z(0, nullptr, 0), in, bytes.size()));
    writeHeaders(Header{&name, 0, kStored, crc, bytes.size(), bytes.size(), time, attributes});
    put(bytes.data(), bytes.size());
}

void ZipWriter::addDeflatedEntry(std::string const& name, DeflatedContent const& content, DosTime time,
                                 FileAttributes attributes) {
    if (content.size > kMax32)
        throw Exception("cannot write the zip entry " + quoted(name) + ": it holds " +
                        std::to_string(content.size) + " bytes, and 4 GiB or more would need zip64");
    writeHeaders(Header{&name, kMaximumDeflateFlag, kDeflated, content.crc, content.bytes.size(),
                        content.size, time, attributes});
    put(content.bytes.data(), content.bytes.size());
}

void ZipWriter::beginCopy(CopiedEntry const& entry) {
    if (copying_)
        throw Exception("cannot copy the zip entry " + quoted(entry.name) + ": a copy is under way");
    writeHeaders(Header{&entry.name, 0, entry.method, entry.crc, entry.compressedSize, entry.size, entry.time,
                        entry.attributes});
    copyName_ = entry.name;
    copyLeft_ = entry.compressedSize;
    copying_ = true;
}

void ZipWriter::copyData(void const* data, std::size_t count) {
    if (!copying_ || count > copyLeft_)
        throw Exception("cannot copy the zip entry " + quoted(copyName_) +
                        ": it holds more bytes than its header declares");
    put(data, count);
    copyLeft_ -= count;
}

void ZipWriter::endCopy() {
    if (!copying_ || copyLeft_ != 0)
        throw Exception("cannot copy the zip entry " + quoted(copyName_) +
                        ": it holds fewer bytes than its header declares");
    copying_ = false;
}

void ZipWriter::writeHeaders(Header const& h) {
    std::string const& name = *h.name;
    if (finished_)
        throw Exception("cannot write the zip entry " + quoted(name) + ": the archive is finished");
    if (name.empty() || name.size() > kMax16)
        throw Exception("cannot write the zip entry " + quoted(name) + ": its name is empty or too long");
    if (entries_ + 1 > kMax16)
        throw Exception("cannot write the zip entry " + quoted(name) + ": more than " +
                        std::to_string(kMax16) + " entries would need zip64");
    if (h.compressedSize > kMax32 || h.size > kMax32 ||
        offset_ + kLocalHeaderSize + name.size() + h.compressedSize > kMax32)
        throw Exception("cannot write the zip entry " + quoted(name) +
                        ": an entry or an archive of 4 GiB or more would need zip64");
    std::uint16_t const flags = h.flags | (isAscii(name) ? 0 : kUtf8NameFlag);
    std::uint16_t const needed = versionNeeded(h.method, name);

    std::string local;
    local.reserve(kLocalHeaderSize + name.size());
    le32(local, 0x04034b50);
    le16(local, needed);
    le16(local, flags);
    le16(local, h.method);
    le16(local, h.time.time);
    le16(local, h.time.date);
    le32(local, h.crc);
    le32(local, h.compressedSize);
    le32(local, h.size);
    le16(local, name.size());
    le16(local, 0);  // no extra field
    local += name;

    central_.reserve(central_.size() + kCentralHeaderSize + name.size());
    le32(central_, 0x02014b50);
    le16(central_, (std::uint16_t(h.attributes.system) << 8) | kMadeByVersion);
    central_.append(local, 4, 26);  // from the version needed to the extra field's length, as above
    le16(central_, 0);              // no comment
    le16(central_, 0);              // disk 0
    le16(central_, 0);              // no internal attributes
    le32(central_, h.attributes.external);
    le32(central_, offset_);
    central_ += name;

    put(local.data(), local.size());
    ++entries_;
}

void ZipWriter::finish(std::string const& comment) {
    if (finished_) throw Exception("the zip archive is finished already");
    if (copying_)
        throw Exception("cannot finish the zip archive: the entry " + quoted(copyName_) + " is unfinished");
    if (offset_ + central_.size() > kMax32)
        throw Exception("cannot finish the zip archive: an archive of 4 GiB or more would need zip64");
    std::uint64_t const directoryOffset = offset_;
    std::string end;
    le32(end, 0x06054b50);
    le16(end, 0);  // this disk
    le16(end, 0);  // the disk of the central directory
    le16(end, entries_);
    le16(end, entries_);
    le32(end, central_.size());
    le32(end, directoryOffset);
    std::size_t const commentSize = std::min<std::size_t>(comment.size(), 0xFFFF);
    le16(end, commentSize);
    end.append(comment, 0, commentSize);
    put(central_.data(), central_.size());
    put(end.data(), end.size());
    flush();
    finished_ = true;
    out_.close();
}

void ZipWriter::put(void const* data, std::size_t count) {
    offset_ += count;
    if (buffer_.size() + count <= kBufferSize) {
        buffer_.append(static_cast<char const*>(data), count);
        return;
    }
    flush();
    if (count < kBufferSize)
        buffer_.append(static_cast<char const*>(data), count);
    else
        out_.write(data, count);
}

void ZipWriter::flush() {
    if (buffer_.empty()) return;
    out_.write(buffer_.data(), buffer_.size());
    buffer_.clear();
}

namespace {

FileAttributes attributesOf(zip* source, zip_uint64_t index) {
    zip_uint8_t system = 0;
    zip_uint32_t external = 0;
    if (zip_file_get_external_attributes(source, index, 0, &system, &external) != 0) return FileAttributes();
    return FileAttributes{system, external};
}

struct ZipFileCloser {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

// Copies entry `index` of the source as it is stored there: no inflating,
// no deflating.
void copyEntry(zip* source, zip_uint64_t index, zip_stat_t const& st, ZipWriter& writer,
               std::vector<char>& buffer, DosTime const* time) {
    std::string const name = st.name;
    auto fail = [&](std::string const& reason) {
        return Exception("cannot copy the zip entry " + quoted(name) + ": " + reason);
    };
    zip_uint64_t const needed = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
    if ((st.valid & needed) != needed) throw fail("its sizes, CRC or method are unknown");
    if ((st.valid & ZIP_STAT_ENCRYPTION_METHOD) && st.encryption_method != ZIP_EM_NONE)
        throw fail("it is encrypted");
    std::unique_ptr<zip_file_t, ZipFileCloser> file(zip_fopen_index(source, index, ZIP_FL_COMPRESSED));
    if (!file) throw fail(zip_strerror(source));

    ZipWriter::CopiedEntry entry;
    entry.name = name;
    entry.method = st.comp_method;
    entry.crc = st.crc;
    entry.compressedSize = st.comp_size;
    entry.size = st.size;
    if (time)
        entry.time = *time;
    else if (st.valid & ZIP_STAT_MTIME)
        entry.time = toDosTime(st.mtime);
    entry.attributes = attributesOf(source, index);
    if (st.size == 0) {
        // An empty entry may be stored deflated as an empty deflate stream
        // (2 bytes); some libzip releases hand back none of those bytes.
        // Stored plainly it holds the same nothing.
        entry.method = ZIP_CM_STORE;
        entry.crc = 0;
        entry.compressedSize = 0;
        writer.beginCopy(entry);
        writer.endCopy();
        return;
    }
    writer.beginCopy(entry);
    for (;;) {
        zip_int64_t n = zip_fread(file.get(), buffer.data(), buffer.size());
        if (n < 0) throw fail(zip_error_strerror(zip_file_get_error(file.get())));
        if (n == 0) break;
        writer.copyData(buffer.data(), static_cast<std::size_t>(n));
    }
    writer.endCopy();
}

// The file descriptor of a new file, written unbuffered: ZipWriter
// buffers already.
class DescriptorStream : public OutputStream {
public:
    DescriptorStream(int fd, std::string const& path) : fd_(fd), path_(path) {}
    void write(void const* data, std::size_t count) override {
        auto const* p = static_cast<char const*>(data);
        while (count > 0) {
            ssize_t n = ::write(fd_, p, count);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) throw Exception("cannot write " + path_ + ": " + std::strerror(errno));
            p += n;
            count -= static_cast<std::size_t>(n);
        }
    }
    void close() override {}

private:
    int fd_;
    std::string path_;
};

// A new file beside the target that replaces it on commit and is removed
// if it never does.
class ReplacementFile {
public:
    explicit ReplacementFile(std::string const& target) : target_(target) {
        auto const seed = static_cast<unsigned long long>(
            std::chrono::steady_clock::now().time_since_epoch().count() ^ (std::uint64_t(getpid()) << 32));
        for (unsigned attempt = 0; attempt < 100; ++attempt) {
            char suffix[24];
            std::snprintf(suffix, sizeof suffix, ".%06llx", (seed + attempt * 7919u) & 0xFFFFFFu);
            path_ = target + suffix;
            // 0666 less the umask, as any new file; a replaced one keeps its mode below.
            fd_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (fd_ >= 0 || errno != EEXIST) break;
        }
        if (fd_ < 0)
            throw Exception("cannot create a temporary file beside " + target + ": " + std::strerror(errno));
        struct stat existing {};
        if (::stat(target.c_str(), &existing) == 0 && S_ISREG(existing.st_mode))
            (void)::fchmod(fd_, existing.st_mode & 07777);
    }
    ~ReplacementFile() {
        if (fd_ >= 0) ::close(fd_);
        if (!committed_) ::unlink(path_.c_str());
    }
    ReplacementFile(ReplacementFile const&) = delete;
    ReplacementFile& operator=(ReplacementFile const&) = delete;

    int descriptor() const { return fd_; }
    std::string const& path() const { return path_; }

    void commit() {
        int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) throw Exception("cannot write " + path_ + ": " + std::strerror(errno));
        if (::rename(path_.c_str(), target_.c_str()) != 0)
            throw Exception("cannot replace " + target_ + ": " + std::strerror(errno));
        committed_ = true;
    }

private:
    std::string target_;
    std::string path_;
    int fd_ = -1;
    bool committed_ = false;
};

}  // namespace

void writeZipArchive(zip* source, std::vector<NewItem> const& items, EntryTimes times, OutputStream& out) {
    ZipWriter writer(out);
    DosTime const newTime = times.everyEntry ? toUtcDosTime(times.time) : toDosTime(times.time);
    std::unordered_map<std::string, std::size_t> byName;
    for (std::size_t i = 0; i < items.size(); ++i) byName.emplace(items[i].name, i);
    std::vector<bool> written(items.size(), false);
    auto add = [&](std::size_t i, FileAttributes attributes) {
        static std::string const empty;
        written[i] = true;
        if (items[i].removed) return;
        if (items[i].deflated)
            writer.addDeflatedEntry(items[i].name, *items[i].deflated, newTime, attributes);
        else
            writer.addEntry(items[i].name, items[i].content ? *items[i].content : empty, items[i].compress,
                            newTime, attributes);
    };

    std::string comment;
    if (source) {
        std::vector<char> buffer(std::size_t(64) << 10);
        zip_int64_t const count = zip_get_num_entries(source, 0);
        for (zip_int64_t i = 0; i < count; ++i) {
            auto const index = static_cast<zip_uint64_t>(i);
            zip_stat_t st;
            zip_stat_init(&st);
            if (zip_stat_index(source, index, 0, &st) != 0 || !(st.valid & ZIP_STAT_NAME))
                throw Exception("cannot copy zip entry " + std::to_string(i) + ": " + zip_strerror(source));
            auto found = byName.find(st.name);
            if (found != byName.end())
                add(found->second, attributesOf(source, index));
            else
                copyEntry(source, index, st, writer, buffer, times.everyEntry ? &newTime : nullptr);
        }
        int length = 0;
        if (char const* text = zip_get_archive_comment(source, &length, ZIP_FL_ENC_RAW))
            comment.assign(text, static_cast<std::size_t>(std::max(length, 0)));
    }
    for (std::size_t i = 0; i < items.size(); ++i)
        if (!written[i]) add(i, FileAttributes());
    writer.finish(comment);
}

void writeZipFile(std::string const& path, zip* source, std::vector<NewItem> const& items, EntryTimes times) {
    ReplacementFile file(path);
    DescriptorStream out(file.descriptor(), file.path());
    writeZipArchive(source, items, times, out);
    file.commit();
}

}  // namespace zippackage
}  // namespace opc
