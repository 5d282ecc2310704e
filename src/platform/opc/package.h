// The package model: parts with content types and relationships, over a
// physical package (a zip file or a folder).
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "platform/opc/names.h"
#include "platform/opc/physical_package.h"
#include "platform/opc/streams.h"

namespace opc {
namespace model {

namespace detail {
struct PackageCore;
struct PartEntry;
struct RelationshipSet;
}  // namespace detail

enum TargetMode { TargetModeInternal = 0, TargetModeExternal = 1 };

// One relationship, as a value.
class Relationship {
public:
    Relationship() = default;
    std::u16string const& getID() const { return id_; }
    std::u16string const& getType() const { return type_; }
    // The target as written in the relationship part: relative to the source
    // for an internal relationship.
    std::u16string const& getTarget() const { return target_; }
    // Internal: the absolute URI of the target part, as "/ppt/slides/slide1.xml".
    // External: the target as written.
    URI const& getTargetURI() const { return targetUri_; }
    TargetMode getTargetMode() const { return mode_; }

private:
    friend struct detail::RelationshipSet;
    std::u16string id_, type_, target_;
    URI targetUri_;
    TargetMode mode_ = TargetModeInternal;
};

// The package and each part hold relationships. Copies of a source share
// them. Relationship parts are read when first asked for and written at the
// package's close if they changed.
class RelationshipSource {
public:
    virtual ~RelationshipSource() = default;

    // In document order.
    std::vector<Relationship> getRelationships() const;
    // Raises opc::Exception if there is no such id.
    Relationship getRelationshipByID(std::u16string const& id) const;
    // With an empty id, allocates a new one ("rId7"); a given id must not be
    // in use. A relative target is taken relative to this source.
    Relationship createInternalRelationship(std::u16string const& type, URI const& target,
                                            std::u16string const& id);
    Relationship createExternalRelationship(std::u16string const& type, std::u16string const& target,
                                            std::u16string const& id);
    void deleteRelationship(std::u16string const& id);

protected:
    RelationshipSource() = default;
    RelationshipSource(std::shared_ptr<detail::PackageCore> core, detail::RelationshipSet* relationships);
    detail::RelationshipSet& relationships() const;

    std::shared_ptr<detail::PackageCore> core_;
    detail::RelationshipSet* relationships_ = nullptr;
};

// A handle on a part of an open package; copies refer to the same part.
class Part : public RelationshipSource {
public:
    Part() = default;
    PartName const& getName() const;
    ContentType const& getContentType() const;
    boost::shared_ptr<InputStream> getInputStream() const;
    // A stream whose bytes replace the part's content when it is closed.
    boost::shared_ptr<OutputStream> getOutputStream();

private:
    friend class Package;
    Part(std::shared_ptr<detail::PackageCore> core, detail::PartEntry* entry);
    detail::PartEntry& entry() const;
    detail::PartEntry* entry_ = nullptr;
};

class Package : public RelationshipSource {
public:
    enum OpenMode { OpenRead = 0, OpenWrite = 1, OpenReadWrite = 2 };

    // The physical package must outlive this object.
    explicit Package(interfaces::IPhysicalPackage& physical);
    ~Package() override;
    Package(Package const&) = delete;
    Package& operator=(Package const&) = delete;

    // 0 reads, 1 writes a new package, 2 updates. Raises opc::Exception if the
    // physical package doesn't allow the mode or isn't a valid package.
    void open(int mode);
    // Writes what changed, unless `revert`: the new and replaced parts, the
    // relationship parts that changed and the content types; then completes
    // the physical package. A closed package stays closed; closing it again,
    // or one never opened, does nothing.
    void close(bool revert);
    bool isOpen() const;

    bool hasPart(PartName const& name) const;
    // Raises opc::Exception if there is no such part.
    Part getPart(PartName const& name) const;
    // Stored parts in stored order, then created ones in order of creation.
    std::vector<PartName> getPartNames() const;
    // Raises opc::Exception if the part exists or the name isn't valid.
    Part createPart(PartName const& name, ContentType const& type,
                    StandardPartInfo const& info = StandardPartInfo());
    // Drops the part, its relationships and its content type override at
    // close. Relationships that point at it are left to the caller. Handles
    // on the part are void afterwards. Raises opc::Exception if there is no
    // such part.
    void deletePart(PartName const& name);
};

}  // namespace model
}  // namespace opc
