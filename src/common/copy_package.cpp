// FileUtils::copyPackage: turning a template into a presentation means giving
// its main part another content type, which a byte copy can't do. The package
// is then rebuilt part by part, following relationships from the root, so
// that ids and targets stay exactly as they were.
#include <deque>
#include <set>
#include <utility>

#include "common/file_utils.h"
#include "platform/filesystem.h"
#include "platform/opc/opc.h"

namespace deckforge {

namespace {

namespace model = opc::model;

u16string const kOfficeDocument =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";

// The chain of objects a read package needs; members are destroyed in
// reverse, the package model first.
struct SourcePackage {
    explicit SourcePackage(u16string const& path) {
        if (fl::filesystem::is_directory(fl::filesystem::symlink_status(fl::filesystem::path(path)))) {
            physical.reset(new opc::fspackage::FileSystemPhysicalPackage(path));
        } else {
            stream = opc::LocalFileSystemOps().createInputStream(path, std::ios::in | std::ios::binary);
            adaptor.reset(new opc::StdIStreamAdaptor(*stream));
            physical.reset(new opc::zippackage::ZipPhysicalPackage(*adaptor));
        }
        package.reset(new model::Package(*physical));
        package->open(model::Package::OpenRead);
    }

    boost::shared_ptr<std::istream> stream;
    std::unique_ptr<opc::StdIStreamAdaptor> adaptor;
    std::unique_ptr<opc::interfaces::IPhysicalPackage> physical;
    std::unique_ptr<model::Package> package;
};

struct TargetPackage {
    explicit TargetPackage(u16string const& path)
        : physical(new opc::zippackage::ZipPhysicalPackage(path, false)),
          package(new model::Package(*physical)) {
        package->open(model::Package::OpenWrite);
    }

    std::unique_ptr<opc::interfaces::IPhysicalPackage> physical;
    std::unique_ptr<model::Package> package;
};

// The part named by an internal relationship, if the source has it.
bool targetPart(model::Package const& package, model::Relationship const& relationship, model::Part& part) {
    model::PartName const name(relationship.getTargetURI().getPath());
    if (!package.hasPart(name)) return false;
    part = package.getPart(name);
    return true;
}

class PackageCopier {
public:
    PackageCopier(model::Package const& source, model::Package& target, u16string mainPart,
                  u16string mainType)
        : source_(source), target_(target), mainPart_(std::move(mainPart)), mainType_(std::move(mainType)) {}

    void run() {
        copyRelationships(source_, target_);
        // Breadth first, so that deep chains of parts don't deepen the stack.
        while (!pending_.empty()) {
            auto parts = pending_.front();
            pending_.pop_front();
            copyRelationships(parts.first, parts.second);
        }
    }

private:
    void copyRelationships(model::RelationshipSource const& from, model::RelationshipSource& to) {
        for (auto const& relationship : from.getRelationships()) {
            if (relationship.getTargetMode() != model::TargetModeInternal) {
                to.createExternalRelationship(relationship.getType(), relationship.getTarget(),
                                              relationship.getID());
                continue;
            }
            to.createInternalRelationship(relationship.getType(), model::URI(relationship.getTarget()),
                                          relationship.getID());
            model::Part part;
            // A dangling relationship is kept as it was; there is nothing to copy.
            if (targetPart(source_, relationship, part)) copyPart(part);
        }
    }

    void copyPart(model::Part const& part) {
        u16string const& name = part.getName().toString();
        if (!done_.insert(name).second) return;
        model::ContentType const type = model::PartName(mainPart_) == part.getName()
                                            ? model::ContentType(mainType_)
                                            : part.getContentType();
        model::Part copy = target_.createPart(part.getName(), type, model::StandardPartInfo(1, 0));
        auto in = part.getInputStream();
        auto out = copy.getOutputStream();
        opc::StreamHelper::copyStreamToStream(*in, *out);
        out->close();
        pending_.emplace_back(part, copy);
    }

    model::Package const& source_;
    model::Package& target_;
    u16string const mainPart_;
    u16string const mainType_;
    std::set<u16string> done_;
    std::deque<std::pair<model::Part, model::Part>> pending_;
};

}  // namespace

void FileUtils::copyPackage(u16string const& source, u16string const& target, u16string const& contentType) {
    u16string mainPart;
    u16string mainType;
    {
        SourcePackage in(source);
        for (auto const& relationship : in.package->getRelationships()) {
            if (relationship.getType() != kOfficeDocument) continue;
            model::Part part;
            if (relationship.getTargetMode() == model::TargetModeInternal &&
                targetPart(*in.package, relationship, part)) {
                mainPart = part.getName().toString();
                mainType = part.getContentType().toString();
            }
            break;
        }
        if (mainType != contentType) {
            TargetPackage out(target);
            PackageCopier(*in.package, *out.package, mainPart, contentType).run();
            out.package->close(false);
            in.package->close(false);
            return;
        }
        in.package->close(false);
    }
    copyFile(source, target, false);
}

}  // namespace deckforge
