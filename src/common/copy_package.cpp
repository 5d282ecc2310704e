// FileUtils::copyPackage: turning a template into a presentation means giving
// its main part another content type, which a byte copy can't do. The package
// is then rebuilt part by part, following relationships from the root, so
// that ids and targets stay exactly as they were. A Strict Open XML package is
// rebuilt the same way, its namespaces and relationship types made
// transitional on the way.
#include <deque>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "common/file_utils.h"
#include "common/strings.h"
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

u16string const kStrictRelationships = u"http://purl.oclc.org/ooxml/officeDocument/relationships/";
u16string const kTransitionalRelationships =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
std::string const kStrictRoot = "http://purl.oclc.org/ooxml/";

// Strict namespaces and their transitional equivalents. Strict names a few
// relationship types differently too; the rest keep their last segment.
std::vector<std::pair<std::string, std::string>> const kStrictNamespaces = {
    {"http://purl.oclc.org/ooxml/presentationml/main",
     "http://schemas.openxmlformats.org/presentationml/2006/main"},
    {"http://purl.oclc.org/ooxml/drawingml/main", "http://schemas.openxmlformats.org/drawingml/2006/main"},
    {"http://purl.oclc.org/ooxml/drawingml/chartDrawing",
     "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing"},
    {"http://purl.oclc.org/ooxml/drawingml/chart", "http://schemas.openxmlformats.org/drawingml/2006/chart"},
    {"http://purl.oclc.org/ooxml/drawingml/diagram",
     "http://schemas.openxmlformats.org/drawingml/2006/diagram"},
    {"http://purl.oclc.org/ooxml/drawingml/picture",
     "http://schemas.openxmlformats.org/drawingml/2006/picture"},
    {"http://purl.oclc.org/ooxml/drawingml/lockedCanvas",
     "http://schemas.openxmlformats.org/drawingml/2006/lockedCanvas"},
    {"http://purl.oclc.org/ooxml/drawingml/compatibility",
     "http://schemas.openxmlformats.org/drawingml/2006/compatibility"},
    {"http://purl.oclc.org/ooxml/drawingml/spreadsheetDrawing",
     "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing"},
    {"http://purl.oclc.org/ooxml/drawingml/wordprocessingDrawing",
     "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing"},
    {"http://purl.oclc.org/ooxml/officeDocument/relationships",
     "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
    {"http://purl.oclc.org/ooxml/officeDocument/docPropsVTypes",
     "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes"},
    {"http://purl.oclc.org/ooxml/officeDocument/extendedProperties",
     "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"},
    {"http://purl.oclc.org/ooxml/officeDocument/customProperties",
     "http://schemas.openxmlformats.org/officeDocument/2006/custom-properties"},
    {"http://purl.oclc.org/ooxml/officeDocument/sharedTypes",
     "http://schemas.openxmlformats.org/officeDocument/2006/sharedTypes"},
    {"http://purl.oclc.org/ooxml/officeDocument/customXml",
     "http://schemas.openxmlformats.org/officeDocument/2006/customXml"},
    {"http://purl.oclc.org/ooxml/officeDocument/bibliography",
     "http://schemas.openxmlformats.org/officeDocument/2006/bibliography"},
    {"http://purl.oclc.org/ooxml/officeDocument/math",
     "http://schemas.openxmlformats.org/officeDocument/2006/math"},
    {"http://purl.oclc.org/ooxml/spreadsheetml/main",
     "http://schemas.openxmlformats.org/spreadsheetml/2006/main"},
    {"http://purl.oclc.org/ooxml/wordprocessingml/main",
     "http://schemas.openxmlformats.org/wordprocessingml/2006/main"},
};

// A relationship type as Transitional names it, or empty text when Strict
// has no transitional equivalent for it.
u16string transitionalType(u16string const& type) {
    if (type.rfind(kStrictRelationships, 0) != 0) {
        return type.rfind(u"http://purl.oclc.org/ooxml/", 0) == 0 ? u16string() : type;
    }
    u16string const rest = type.substr(kStrictRelationships.size());
    if (rest == u"metadata/thumbnail")
        return u"http://schemas.openxmlformats.org/package/2006/relationships/metadata/thumbnail";
    if (rest == u"extendedProperties") return kTransitionalRelationships + u"extended-properties";
    if (rest == u"customProperties") return kTransitionalRelationships + u"custom-properties";
    if (rest.find(u'/') != u16string::npos) return u16string();
    return kTransitionalRelationships + rest;
}

// The part's XML with Strict namespaces made transitional; the names that
// only Strict knows are left for the caller to find. The conformance class
// goes: the deck written from it is transitional.
std::string transitionalXml(std::string xml) {
    for (auto const& [strict, transitional] : kStrictNamespaces) {
        for (std::size_t at = xml.find(strict); at != std::string::npos; at = xml.find(strict, at)) {
            // Whole URIs only: "chart" must not take the start of "chartDrawing".
            std::size_t const end = at + strict.size();
            if (end < xml.size() && xml[end] != '"' && xml[end] != '\'') {
                at = end;
                continue;
            }
            xml.replace(at, strict.size(), transitional);
            at += transitional.size();
        }
    }
    for (char const* quote : {" conformance=\"strict\"", " conformance='strict'"}) {
        std::size_t const at = xml.find(quote);
        if (at != std::string::npos) xml.erase(at, std::char_traits<char>::length(quote));
    }
    return xml;
}

bool isXmlType(u16string const& type) {
    return type.size() >= 3 && (type.compare(type.size() - 3, 3, u"xml") == 0);
}

class PackageCopier {
public:
    PackageCopier(model::Package const& source, model::Package& target, u16string mainPart,
                  u16string mainType, bool fromStrict = false)
        : source_(source),
          target_(target),
          mainPart_(std::move(mainPart)),
          mainType_(std::move(mainType)),
          fromStrict_(fromStrict) {}

    // What a Strict package held that has no transitional equivalent.
    u16string const& unmapped() const { return unmapped_; }

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
            u16string type = relationship.getType();
            if (fromStrict_) {
                type = transitionalType(type);
                if (type.empty()) {
                    if (unmapped_.empty()) unmapped_ = u"the relationship type " + relationship.getType();
                    type = relationship.getType();
                }
            }
            if (relationship.getTargetMode() != model::TargetModeInternal) {
                to.createExternalRelationship(type, relationship.getTarget(), relationship.getID());
                continue;
            }
            to.createInternalRelationship(type, model::URI(relationship.getTarget()), relationship.getID());
            model::Part part;
            // A dangling relationship is kept as it was; there is nothing to copy.
            if (targetPart(source_, relationship, part)) copyPart(part);
        }
    }

    void copyPart(model::Part const& part) {
        u16string const& name = part.getName().toString();
        if (!done_.insert(name).second) return;
        model::ContentType const type = !mainPart_.empty() && model::PartName(mainPart_) == part.getName()
                                            ? model::ContentType(mainType_)
                                            : part.getContentType();
        model::Part copy = target_.createPart(part.getName(), type, model::StandardPartInfo(1, 0));
        auto in = part.getInputStream();
        auto out = copy.getOutputStream();
        if (fromStrict_ && isXmlType(type.toString())) {
            std::string const xml = transitionalXml(
                opc::StreamHelper::readAll(*in, opc::interfaces::IPhysicalPackage::kMaxItemSize));
            std::size_t const left = xml.find(kStrictRoot);
            if (left != std::string::npos && unmapped_.empty()) {
                std::size_t const end = xml.find_first_of("\"' <>", left);
                unmapped_ = u"the namespace " + toString(xml.substr(left, end - left)) + u" in " + name;
            }
            out->write(xml.data(), xml.size());
        } else {
            opc::StreamHelper::copyStreamToStream(*in, *out);
        }
        out->close();
        pending_.emplace_back(part, copy);
    }

    model::Package const& source_;
    model::Package& target_;
    u16string const mainPart_;
    u16string const mainType_;
    bool const fromStrict_;
    u16string unmapped_;
    std::set<u16string> done_;
    std::deque<std::pair<model::Part, model::Part>> pending_;
};

}  // namespace

u16string FileUtils::convertStrictPackage(u16string const& source, u16string const& target) {
    SourcePackage in(source);
    u16string unmapped;
    {
        TargetPackage out(target);
        PackageCopier copier(*in.package, *out.package, u16string(), u16string(), true);
        copier.run();
        unmapped = copier.unmapped();
        out.package->close(false);
    }
    in.package->close(false);
    return unmapped;
}

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
