#include "platform/opc/fs_package.h"

#include <filesystem>
#include <fstream>

#include "platform/opc/exception.h"
#include "platform/opc/text.h"

namespace fs = std::filesystem;

namespace opc {
namespace fspackage {

namespace {
std::string checkedName(std::u16string const& name) {
    std::string utf8 = detail::toUtf8(name);
    std::string problem = detail::itemNameProblem(utf8);
    if (!problem.empty()) throw Exception("the item name \"" + utf8 + "\" is not allowed (" + problem + ")");
    return utf8;
}
}  // namespace

FileSystemPhysicalPackage::FileSystemPhysicalPackage(std::u16string const& folder)
    : folder_(detail::toUtf8(folder)) {}

std::vector<std::u16string> FileSystemPhysicalPackage::getItemNames() {
    std::vector<std::u16string> names;
    std::error_code ec;
    if (!fs::is_directory(fs::symlink_status(folder_, ec))) {
        if (fs::exists(folder_, ec)) throw Exception("not a folder: " + folder_);
        return names;  // a package yet to be written
    }
    fs::recursive_directory_iterator it(folder_, fs::directory_options::none, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        if (!it->is_regular_file(ec) || it->is_symlink(ec)) continue;
        names.push_back(detail::fromUtf8(it->path().lexically_relative(folder_).generic_string()));
    }
    if (ec) throw Exception("cannot list the folder " + folder_ + ": " + ec.message());
    return names;
}

std::shared_ptr<std::string const> FileSystemPhysicalPackage::readItem(std::u16string const& name) {
    fs::path file = fs::path(folder_) / checkedName(name);
    std::error_code ec;
    auto status = fs::symlink_status(file, ec);
    if (!fs::is_regular_file(status)) throw Exception("no item " + file.string());
    auto size = fs::file_size(file, ec);
    if (ec || size > kMaxItemSize)
        throw Exception("the item " + file.string() + " is too large or unreadable");
    std::ifstream in(file, std::ios::binary);
    auto bytes = std::make_shared<std::string>(static_cast<std::size_t>(size), '\0');
    if (!in.read(&(*bytes)[0], static_cast<std::streamsize>(size)))
        throw Exception("cannot read " + file.string());
    return bytes;
}

void FileSystemPhysicalPackage::writeItem(std::u16string const& name,
                                          std::shared_ptr<std::string const> content, bool) {
    checkedName(name);
    auto found = pendingIndex_.find(name);
    if (found != pendingIndex_.end()) {
        pending_[found->second].second = std::move(content);
        return;
    }
    pendingIndex_.emplace(name, pending_.size());
    pending_.emplace_back(name, std::move(content));
}

// A deleted item waits as an item without content.
void FileSystemPhysicalPackage::deleteItem(std::u16string const& name) {
    writeItem(name, nullptr, false);
}

void FileSystemPhysicalPackage::commit() {
    for (auto const& item : pending_) {
        fs::path file = fs::path(folder_) / checkedName(item.first);
        std::error_code ec;
        if (!item.second) {
            fs::remove(file, ec);
            continue;
        }
        fs::create_directories(file.parent_path(), ec);
        if (ec)
            throw Exception("cannot create the folder " + file.parent_path().string() + ": " + ec.message());
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(item.second->data(), static_cast<std::streamsize>(item.second->size()));
        out.close();
        if (!out) throw Exception("cannot write " + file.string());
    }
    pending_.clear();
    pendingIndex_.clear();
}

}  // namespace fspackage
}  // namespace opc
