// The layer over the package library: one package opened in one of three
// modes, and the reading and writing operations that the template reader and
// the part writers use.
#pragma once

#include <istream>
#include <ostream>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>

#include "common/strings.h"
#include "platform/opc/opc.h"

namespace deckforge {
namespace ppt {

// Owns the chain of objects that the package library needs: the library
// takes references, so each object must outlive the next. Any failure to open
// raises cannotOpenFile.
class OPCPackage : private boost::noncopyable {
public:
    explicit OPCPackage(u16string const& path);  // opens nothing
    // Closes the package, which completes a package being written.
    virtual ~OPCPackage();

    // A folder is read as an unpacked package if `allowFolder`.
    void openForRead(bool allowFolder);
    void openForUpdate(bool allowFolder);
    void openForWrite(bool asFolder);
    // Writes what is outstanding. Harmless on a package never opened, and twice.
    void close();

    // Any file, not only the package, opened for binary reading.
    boost::shared_ptr<std::istream> createInputStream(u16string const& file);

    u16string const& getPath() const { return mPath; }
    boost::shared_ptr<opc::model::Package> const& getPackage() const { return mPackage; }

private:
    void makeFileSystem();
    void openModel(int mode);

    boost::shared_ptr<std::istream> mInputStream;
    boost::shared_ptr<std::ostream> mOutputStream;
    boost::shared_ptr<opc::LocalFileSystemOps> mFileSystem;
    boost::shared_ptr<opc::StdIStreamAdaptor> mInputAdaptor;
    boost::shared_ptr<opc::StdOStreamAdaptor> mOutputAdaptor;
    boost::shared_ptr<opc::interfaces::IPhysicalPackage> mPhysicalPackage;
    boost::shared_ptr<opc::model::Package> mPackage;
    u16string mPath;
};

// Reading parts and following relationships. Failures of the library pass
// through as opc::Exception.
class OPCPartReader {
public:
    OPCPartReader() = default;
    // Shares an open package; doesn't own it.
    explicit OPCPartReader(boost::shared_ptr<OPCPackage> const& package);
    // Opens the file, or an unpacked folder, for reading and owns it.
    explicit OPCPartReader(u16string const& path);
    virtual ~OPCPartReader() = default;

    u16string const& getPath() const { return mPath; }
    boost::shared_ptr<opc::model::Package> const& getPackage() const { return mPackage; }

    bool hasPart(u16string const& name) const;
    opc::model::Part getPart(u16string const& name) const;
    opc::model::Part getPart(opc::model::Relationship const& relationship) const;
    // The package's own relationships.
    std::vector<opc::model::Relationship> getRelationships() const;

    // The target URI of the first relationship of the package of that type;
    // empty text if there is none.
    u16string getRelatedPartName(u16string const& type) const;
    // The same for the first of the types that has a relationship.
    u16string getRelatedPartName(std::vector<u16string> const& types) const;
    u16string getRelatedPartName(opc::model::RelationshipSource const& source, u16string const& type) const;
    std::vector<opc::model::Relationship> getRelatedParts(opc::model::RelationshipSource const& source,
                                                          u16string const& type) const;
    std::vector<opc::model::Relationship> getRelatedParts(opc::model::RelationshipSource const& source,
                                                          std::vector<u16string> const& types) const;
    // Points the first relationship of the type at `target`, keeping its id.
    void setRelatedPartName(opc::model::RelationshipSource& source, u16string const& type,
                            u16string const& target);
    // The target path of the relationship `id` of the part.
    u16string getRelationshipTargetPath(u16string const& partName, u16string const& id) const;

protected:
    boost::shared_ptr<opc::model::Package> mPackage;
    boost::shared_ptr<OPCPackage> mOwnPackage;
    u16string mPath;
};

// Creating parts and package relationships.
class OPCPartWriter {
public:
    OPCPartWriter() = default;
    // Shares a package that is already open.
    explicit OPCPartWriter(boost::shared_ptr<OPCPackage> const& package);
    // Creates a new package at the path, a zip file or a folder.
    OPCPartWriter(u16string const& path, bool asFolder);
    virtual ~OPCPartWriter() = default;

    u16string const& getPath() const { return mPath; }
    boost::shared_ptr<opc::model::Package> const& getPackage() const { return mPackage; }

    bool hasPart(u16string const& name) const;
    opc::model::Part getPart(u16string const& name) const;
    // Compressed as usual, without size hint.
    opc::model::Part createPart(u16string const& name, u16string const& contentType);
    void deletePart(u16string const& name);
    // Deletes every part that no chain of internal relationships reaches
    // from the package's own relationships, and gives their names. A part
    // that only dropped parts point at goes with them.
    std::vector<u16string> deleteUnreachableParts();
    opc::model::Part createPart(opc::model::PartName const& name, opc::model::ContentType const& contentType,
                                opc::model::StandardPartInfo const& info);
    // An internal relationship of the package; an empty id gets a new one.
    opc::model::Relationship createRelationship(u16string const& type, u16string const& target,
                                                u16string const& id);
    boost::shared_ptr<std::istream> createInputStream(u16string const& file);

protected:
    boost::shared_ptr<opc::model::Package> mPackage;
    boost::shared_ptr<OPCPackage> mOwnPackage;
    u16string mPath;
};

}  // namespace ppt
}  // namespace deckforge
