#include "package/opc_package.h"

#include <set>

#include "platform/filesystem.h"
#include "platform/msg_ids.h"

namespace deckforge {
namespace ppt {

namespace {
std::ios_base::openmode const kBinaryIn = std::ios_base::in | std::ios_base::binary;
std::ios_base::openmode const kBinaryOut = std::ios_base::out | std::ios_base::binary;

[[noreturn]] void raiseCannotOpen(u16string const& path, char const* reason) {
    if (reason) raise<ppt_error::cannotOpenFile>(toString(std::string(reason)) + u" " + path);
    raise<ppt_error::cannotOpenFile>(path);
}

// The three opens share one shape, and one guard around all their steps.
template <class Steps>
void guarded(u16string const& path, Steps steps) {
    try {
        steps();
    } catch (opc::Exception const& e) {
        raiseCannotOpen(path, e.what());
    } catch (std::exception const& e) {
        raiseCannotOpen(path, e.what());
    } catch (...) {
        raiseCannotOpen(path, nullptr);
    }
}

bool isFolder(u16string const& path) {
    return fl::filesystem::is_directory(fl::filesystem::symlink_status(fl::filesystem::path(path)));
}
}  // namespace

// ---- OPCPackage

OPCPackage::OPCPackage(u16string const& path) : mPath(path) {}

OPCPackage::~OPCPackage() {
    try {
        close();
    } catch (...) {
        // A destructor can't report; whoever needs to know closes explicitly first.
    }
    // Each object of the chain refers to the one before it: release in reverse.
    mPackage.reset();
    mPhysicalPackage.reset();
    mOutputAdaptor.reset();
    mInputAdaptor.reset();
    mFileSystem.reset();
    mOutputStream.reset();
    mInputStream.reset();
}

void OPCPackage::makeFileSystem() {
    if (!mFileSystem) mFileSystem = boost::shared_ptr<opc::LocalFileSystemOps>(new opc::LocalFileSystemOps);
}

void OPCPackage::openModel(int mode) {
    mPackage = boost::shared_ptr<opc::model::Package>(new opc::model::Package(*mPhysicalPackage));
    mPackage->open(mode);
}

void OPCPackage::openForRead(bool allowFolder) {
    guarded(mPath, [&] {
        if (allowFolder && isFolder(mPath)) {
            mPhysicalPackage.reset(new opc::fspackage::FileSystemPhysicalPackage(mPath));
        } else {
            makeFileSystem();
            mInputStream = mFileSystem->createInputStream(mPath, kBinaryIn);
            mInputAdaptor.reset(new opc::StdIStreamAdaptor(*mInputStream));
            mPhysicalPackage.reset(new opc::zippackage::ZipPhysicalPackage(*mInputAdaptor));
        }
        openModel(opc::model::Package::OpenRead);
    });
}

void OPCPackage::openForUpdate(bool allowFolder) {
    guarded(mPath, [&] {
        if (allowFolder && isFolder(mPath))
            mPhysicalPackage.reset(new opc::fspackage::FileSystemPhysicalPackage(mPath));
        else
            mPhysicalPackage.reset(new opc::zippackage::ZipPhysicalPackage(mPath, true));
        openModel(opc::model::Package::OpenReadWrite);
    });
}

void OPCPackage::openForWrite(bool asFolder) {
    guarded(mPath, [&] {
        if (asFolder) {
            mPhysicalPackage.reset(new opc::fspackage::FileSystemPhysicalPackage(mPath));
        } else {
            makeFileSystem();
            mOutputStream = mFileSystem->createOutputStream(mPath, kBinaryOut);
            mOutputAdaptor.reset(new opc::StdOStreamAdaptor(*mOutputStream));
            mPhysicalPackage.reset(new opc::zippackage::ZipPhysicalPackage(*mOutputAdaptor, false));
        }
        openModel(opc::model::Package::OpenWrite);
    });
}

void OPCPackage::close() {
    if (mPackage) mPackage->close(false);
}

boost::shared_ptr<std::istream> OPCPackage::createInputStream(u16string const& file) {
    makeFileSystem();
    return mFileSystem->createInputStream(file, kBinaryIn);
}

// ---- OPCPartReader

OPCPartReader::OPCPartReader(boost::shared_ptr<OPCPackage> const& package)
    : mPackage(package->getPackage()), mPath(package->getPath()) {}

OPCPartReader::OPCPartReader(u16string const& path) : mOwnPackage(new OPCPackage(path)), mPath(path) {
    mOwnPackage->openForRead(true);
    mPackage = mOwnPackage->getPackage();
}

bool OPCPartReader::hasPart(u16string const& name) const {
    return mPackage->hasPart(opc::model::PartName(name));
}

opc::model::Part OPCPartReader::getPart(u16string const& name) const {
    return mPackage->getPart(opc::model::PartName(name));
}

opc::model::Part OPCPartReader::getPart(opc::model::Relationship const& relationship) const {
    return getPart(relationship.getTargetURI().toString());
}

std::vector<opc::model::Relationship> OPCPartReader::getRelationships() const {
    return mPackage->getRelationships();
}

u16string OPCPartReader::getRelatedPartName(u16string const& type) const {
    return getRelatedPartName(*mPackage, type);
}

u16string OPCPartReader::getRelatedPartName(std::vector<u16string> const& types) const {
    for (auto const& type : types) {
        u16string name = getRelatedPartName(type);
        if (!name.empty()) return name;
    }
    return u16string();
}

u16string OPCPartReader::getRelatedPartName(opc::model::RelationshipSource const& source,
                                            u16string const& type) const {
    for (auto const& relationship : source.getRelationships())
        if (relationship.getType() == type) return relationship.getTargetURI().toString();
    return u16string();
}

std::vector<opc::model::Relationship> OPCPartReader::getRelatedParts(
    opc::model::RelationshipSource const& source, u16string const& type) const {
    std::vector<opc::model::Relationship> found;
    for (auto const& relationship : source.getRelationships())
        if (relationship.getType() == type) found.push_back(relationship);
    return found;
}

std::vector<opc::model::Relationship> OPCPartReader::getRelatedParts(
    opc::model::RelationshipSource const& source, std::vector<u16string> const& types) const {
    std::vector<opc::model::Relationship> found;
    for (auto const& relationship : source.getRelationships())
        for (auto const& type : types)
            if (relationship.getType() == type) {
                found.push_back(relationship);
                break;
            }
    return found;
}

void OPCPartReader::setRelatedPartName(opc::model::RelationshipSource& source, u16string const& type,
                                       u16string const& target) {
    for (auto const& relationship : source.getRelationships()) {
        if (relationship.getType() != type) continue;
        u16string id = relationship.getID();
        source.deleteRelationship(id);
        source.createInternalRelationship(type, opc::model::URI(target), id);
        return;
    }
}

u16string OPCPartReader::getRelationshipTargetPath(u16string const& partName, u16string const& id) const {
    return getPart(partName).getRelationshipByID(id).getTargetURI().getPath();
}

// ---- OPCPartWriter

OPCPartWriter::OPCPartWriter(boost::shared_ptr<OPCPackage> const& package)
    : mPackage(package->getPackage()), mOwnPackage(package), mPath(package->getPath()) {}

OPCPartWriter::OPCPartWriter(u16string const& path, bool asFolder)
    : mOwnPackage(new OPCPackage(path)), mPath(path) {
    mOwnPackage->openForWrite(asFolder);
    mPackage = mOwnPackage->getPackage();
}

bool OPCPartWriter::hasPart(u16string const& name) const {
    return mPackage->hasPart(opc::model::PartName(name));
}

opc::model::Part OPCPartWriter::getPart(u16string const& name) const {
    return mPackage->getPart(opc::model::PartName(name));
}

opc::model::Part OPCPartWriter::createPart(u16string const& name, u16string const& contentType) {
    return createPart(opc::model::PartName(name), opc::model::ContentType(contentType),
                      opc::model::StandardPartInfo(1, 0));
}

opc::model::Part OPCPartWriter::createPart(opc::model::PartName const& name,
                                           opc::model::ContentType const& contentType,
                                           opc::model::StandardPartInfo const& info) {
    return mPackage->createPart(name, contentType, info);
}

void OPCPartWriter::deletePart(u16string const& name) {
    mPackage->deletePart(opc::model::PartName(name));
}

std::vector<u16string> OPCPartWriter::deleteUnreachableParts() {
    // Part names are equal but for ASCII case, as the package compares them.
    auto key = [](u16string name) {
        for (auto& c : name)
            if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
        return name;
    };
    std::set<u16string> reached;
    std::vector<u16string> pending;
    auto follow = [&](opc::model::RelationshipSource const& source) {
        for (auto const& relationship : source.getRelationships()) {
            if (relationship.getTargetMode() != opc::model::TargetModeInternal) continue;
            u16string const target = relationship.getTargetURI().getPath();
            if (mPackage->hasPart(opc::model::PartName(target)) && reached.insert(key(target)).second)
                pending.push_back(target);
        }
    };
    follow(*mPackage);
    while (!pending.empty()) {
        u16string const name = pending.back();
        pending.pop_back();
        follow(mPackage->getPart(opc::model::PartName(name)));
    }
    std::vector<u16string> dropped;
    for (auto const& name : mPackage->getPartNames())
        if (!reached.count(key(name.toString()))) dropped.push_back(name.toString());
    for (auto const& name : dropped) mPackage->deletePart(opc::model::PartName(name));
    return dropped;
}

opc::model::Relationship OPCPartWriter::createRelationship(u16string const& type, u16string const& target,
                                                           u16string const& id) {
    return mPackage->createInternalRelationship(type, opc::model::URI(target), id);
}

boost::shared_ptr<std::istream> OPCPartWriter::createInputStream(u16string const& file) {
    if (mOwnPackage) return mOwnPackage->createInputStream(file);
    return opc::LocalFileSystemOps().createInputStream(file, kBinaryIn);
}

}  // namespace ppt
}  // namespace deckforge
