// The host's package tree, as far as this library uses it, and the two
// packages of the library. A package is registered with a description whose
// population runs on first use; a class is described on its first use.
// Nothing runs at library load.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "binding/class_info.h"

namespace deckforge {
namespace ppt {
namespace mi {

class Package;

// What a module hands to the host for one package.
class COSPackageInfo {
public:
    explicit COSPackageInfo(std::string name) : mName(std::move(name)) {}
    virtual ~COSPackageInfo() = default;
    std::string const& getName() const { return mName; }
    // Adds the package's sub-packages and classes.
    virtual void populate(Package& package) const = 0;

private:
    std::string mName;
};

class Package {
public:
    Package(std::string fullName, std::unique_ptr<COSPackageInfo> info);

    std::string const& fullName() const { return mFullName; }
    bool isPopulated() const { return mPopulated; }

    void addSubPackage(std::unique_ptr<COSPackageInfo> info);
    void addClass(std::unique_ptr<CosPPTObjectClassInfo> cls);

    // These populate the package first.
    Package* findSubPackage(std::string const& name);
    // The class, initialised on first use; null if unknown.
    ClassDescription const* findClass(std::string const& name);
    std::vector<std::string> classNames();

private:
    struct ClassEntry {
        std::unique_ptr<CosPPTObjectClassInfo> info;
        std::unique_ptr<ClassDescription> description;
    };
    void ensurePopulated();

    std::string mFullName;
    std::unique_ptr<COSPackageInfo> mInfo;
    bool mPopulated = false;
    std::vector<std::unique_ptr<Package>> mSubPackages;
    std::vector<ClassEntry> mClasses;
};

// The host's process-wide tree of top-level packages.
class PackageTree {
public:
    // Null if no such package is registered; "a.b" finds sub-packages.
    static Package* getPackage(std::string const& fullName);
    static void addPackage(std::unique_ptr<COSPackageInfo> info);
    // A class by full name, such as "deckforge.ppt.Slide"; null if unknown.
    static ClassDescription const* findClass(std::string const& fullName);
    // Whether class `cls` is `base` or derives from it.
    static bool isA(std::string const& cls, std::string const& base);
    // Forgets every package; for tests.
    static void clear();
};

// "deckforge": its population adds "ppt".
class deckforgePackage : public COSPackageInfo {
public:
    deckforgePackage() : COSPackageInfo("deckforge") {}
    void populate(Package& package) const override;
};

// "deckforge.ppt": its population adds every class in the package's order.
class pptPackage : public COSPackageInfo {
public:
    pptPackage() : COSPackageInfo("ppt") {}
    void populate(Package& package) const override;
    static void addClasses(Package& package);
};

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
