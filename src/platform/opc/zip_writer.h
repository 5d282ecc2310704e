// Writing zip archives: the format itself, front to back onto a stream, and
// the rewrite of a package's zip at commit.
//
// We write the archive ourselves instead of letting libzip do it because
// libzip sets up and tears down a deflate state (some 300 KB) for every
// entry; with thousands of small parts that churn costs more than the
// compression. Here one deflate state serves all entries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/opc/deflate.h"
#include "platform/opc/streams.h"

struct zip;

namespace opc {
namespace zippackage {

// Time and date of an entry as the zip format holds them, in local time, to
// two seconds. Times before 1980 can't be held and become 1980-01-01.
struct DosTime {
    std::uint16_t time = 0;
    std::uint16_t date = (1 << 5) | 1;
};
DosTime toDosTime(std::time_t t);
// The same in UTC, for times that must not depend on the machine's zone.
DosTime toUtcDosTime(std::time_t t);

// The system an entry comes from and its attributes there; by default a
// Unix file that all may read and write.
struct FileAttributes {
    std::uint8_t system = 3;
    std::uint32_t external = 0100666u << 16;
};

// Writes a zip archive without zip64 or data descriptors. Every entry's
// sizes and CRC are known before its local header is written. Whatever
// would need zip64 (an entry or the archive of 4 GiB or more, or 65,535
// entries or more) is refused with opc::Exception before it is written.
// Names are UTF-8; a name that isn't plain ASCII carries the UTF-8 flag.
class ZipWriter {
public:
    explicit ZipWriter(OutputStream& out);
    ~ZipWriter();
    ZipWriter(ZipWriter const&) = delete;
    ZipWriter& operator=(ZipWriter const&) = delete;

    // Deflates the bytes into a new entry, or stores them if `compress` is false.
    void addEntry(std::string const& name, std::string const& bytes, bool compress, DosTime time,
                  FileAttributes attributes = FileAttributes());
    // A new entry from bytes deflated earlier.
    void addDeflatedEntry(std::string const& name, DeflatedContent const& content, DosTime time,
                          FileAttributes attributes = FileAttributes());

    // An entry whose data is already in its stored form, as copied from
    // another archive: the header from these fields, then exactly
    // `compressedSize` bytes through copyData, then endCopy.
    struct CopiedEntry {
        std::string name;
        std::uint16_t method = 0;
        std::uint32_t crc = 0;
        std::uint64_t compressedSize = 0;
        std::uint64_t size = 0;
        DosTime time;
        FileAttributes attributes;
    };
    void beginCopy(CopiedEntry const& entry);
    void copyData(void const* data, std::size_t count);
    void endCopy();

    // Writes the central directory and its end record, then closes the stream.
    void finish(std::string const& comment = std::string());

    std::size_t entryCount() const { return entries_; }

private:
    struct Header {
        std::string const* name;
        std::uint16_t flags, method;
        std::uint32_t crc;
        std::uint64_t compressedSize, size;
        DosTime time;
        FileAttributes attributes;
    };
    void writeHeaders(Header const& header);
    void put(void const* data, std::size_t count);
    void flush();

    OutputStream& out_;
    Deflater deflater_;
    std::string buffer_;                   // bytes not yet handed to out_
    std::string central_;                  // the central directory, built as entries go
    std::uint64_t offset_ = 0;             // bytes written so far
    std::size_t entries_ = 0;
    std::string copyName_;        // the entry being copied
    std::uint64_t copyLeft_ = 0;  // bytes it still owes
    bool copying_ = false;
    bool finished_ = false;
};

// An item with new content, for writeZipArchive: its bytes, or if
// `deflated` is set, those bytes deflated. A `removed` item is an entry of
// the source that is left out.
struct NewItem {
    std::string name;  // UTF-8
    std::shared_ptr<std::string const> content;
    bool compress;
    std::shared_ptr<DeflatedContent const> deflated;
    bool removed;
};

// When entry times are given (the reproducible-builds convention of
// SOURCE_DATE_EPOCH), every entry carries that time, copied ones too, taken
// as UTC; otherwise new entries carry the archive's time and copied ones
// keep theirs.
struct EntryTimes {
    std::time_t time = 0;
    bool everyEntry = false;
};

// SOURCE_DATE_EPOCH, if it is set to a whole number of seconds; empty
// otherwise (unset, empty, or not a number).
std::optional<std::time_t> sourceDateEpoch();

// Writes the package's zip onto `out` and finishes it. With a `source`
// archive, its entries come first in their order, each copied in its
// compressed form unless an item of the same name replaces it in place
// (with the attributes of the entry it replaces); the other items follow in
// their given order. New and replaced entries carry `times.time`.
void writeZipArchive(zip* source, std::vector<NewItem> const& items, EntryTimes times, OutputStream& out);

// The same into the file at `path`, through a temporary file beside it that
// takes the file's place only when the archive is complete. On failure the
// file at `path` is as it was and the temporary file is gone. A replaced
// file keeps its permissions.
void writeZipFile(std::string const& path, zip* source, std::vector<NewItem> const& items, EntryTimes times);

}  // namespace zippackage
}  // namespace opc
