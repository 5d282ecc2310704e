#include "binding/package.h"

#include <stdexcept>
#include <unordered_map>

namespace deckforge {
namespace ppt {
namespace mi {

namespace {
std::vector<std::unique_ptr<Package>>& topLevel() {
    // Never destroyed: descriptions hold invokers that may be asked for late.
    static auto* packages = new std::vector<std::unique_ptr<Package>>();
    return *packages;
}

// Classes found by full name. Every script call looks its class up, and
// isA walks the superclasses by name: a walk down the tree each time costs
// more than the rest of a short call. Descriptions stay where they are
// until the tree changes.
std::unordered_map<std::string, ClassDescription const*>& foundClasses() {
    static auto* found = new std::unordered_map<std::string, ClassDescription const*>();
    return *found;
}
}  // namespace

Package::Package(std::string fullName, std::unique_ptr<COSPackageInfo> info)
    : mFullName(std::move(fullName)), mInfo(std::move(info)) {}

void Package::ensurePopulated() {
    if (mPopulated) return;
    mPopulated = true;
    if (mInfo) mInfo->populate(*this);
}

void Package::addSubPackage(std::unique_ptr<COSPackageInfo> info) {
    std::string name = mFullName + "." + info->getName();
    mSubPackages.push_back(std::make_unique<Package>(name, std::move(info)));
}

void Package::addClass(std::unique_ptr<CosPPTObjectClassInfo> cls) {
    mClasses.push_back(ClassEntry{std::move(cls), nullptr});
}

Package* Package::findSubPackage(std::string const& name) {
    ensurePopulated();
    for (auto& p : mSubPackages)
        if (p->fullName() == mFullName + "." + name) return p.get();
    return nullptr;
}

ClassDescription const* Package::findClass(std::string const& name) {
    ensurePopulated();
    for (auto& entry : mClasses) {
        if (name != entry.info->getName()) continue;
        if (!entry.description) {
            auto description = std::make_unique<ClassDescription>(mFullName, name);
            entry.info->initializeClass(*description);
            entry.description = std::move(description);
        }
        return entry.description.get();
    }
    return nullptr;
}

std::vector<std::string> Package::classNames() {
    ensurePopulated();
    std::vector<std::string> names;
    for (auto const& entry : mClasses) names.push_back(entry.info->getName());
    return names;
}

Package* PackageTree::getPackage(std::string const& fullName) {
    std::string::size_type dot = fullName.find('.');
    std::string first = fullName.substr(0, dot);
    Package* package = nullptr;
    for (auto& p : topLevel())
        if (p->fullName() == first) package = p.get();
    while (package && dot != std::string::npos) {
        std::string::size_type next = fullName.find('.', dot + 1);
        package = package->findSubPackage(fullName.substr(dot + 1, next - dot - 1));
        dot = next;
    }
    return package;
}

void PackageTree::addPackage(std::unique_ptr<COSPackageInfo> info) {
    std::string name = info->getName();
    topLevel().push_back(std::make_unique<Package>(name, std::move(info)));
    foundClasses().clear();
}

ClassDescription const* PackageTree::findClass(std::string const& fullName) {
    auto found = foundClasses().find(fullName);
    if (found != foundClasses().end()) return found->second;
    std::string::size_type dot = fullName.rfind('.');
    if (dot == std::string::npos) return nullptr;
    Package* package = getPackage(fullName.substr(0, dot));
    ClassDescription const* cls = package ? package->findClass(fullName.substr(dot + 1)) : nullptr;
    if (cls) foundClasses().emplace(fullName, cls);
    return cls;
}

bool PackageTree::isA(std::string const& cls, std::string const& base) {
    if (cls == base) return true;
    ClassDescription const* description = findClass(cls);
    if (!description) return false;
    for (auto const& super : description->superclasses())
        if (isA(super, base)) return true;
    return false;
}

void PackageTree::clear() {
    foundClasses().clear();
    topLevel().clear();
}

void deckforgePackage::populate(Package& package) const {
    package.addSubPackage(std::make_unique<pptPackage>());
}

void pptPackage::populate(Package& package) const {
    addClasses(package);
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
