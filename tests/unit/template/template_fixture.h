// Helpers for the template tests: small packages written with the package
// library, a loaded model over a package file, and a document writer.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <xercesc/dom/DOM.hpp>

#include "common/strings.h"
#include "package/opc_package.h"
#include "template/presentation_model.h"

namespace deckforge {
namespace test {

using ppt::OPCPackage;
using ppt::PartDOMBuilder;
using ppt::PresentationModel;

inline u16string const kRelBase = u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
inline u16string const kPresentationType =
    u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml";
inline std::string const kNamespaces =
    " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
    " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\""
    " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"";

// A package described part by part; relationship targets are absolute part
// names, a relationship with an empty source belongs to the package.
struct PackageRecipe {
    struct Part {
        u16string name, contentType;
        std::string xml;
    };
    struct Rel {
        u16string source, id, type, target;
    };
    std::vector<Part> parts;
    std::vector<Rel> rels;

    PackageRecipe& part(u16string name, std::string xml, u16string contentType = u"application/xml") {
        parts.push_back({std::move(name), std::move(contentType), std::move(xml)});
        return *this;
    }
    // `type` is the last segment of the relationship type, as "slideLayout".
    PackageRecipe& rel(u16string source, u16string id, u16string const& type, u16string target) {
        rels.push_back({std::move(source), std::move(id), kRelBase + type, std::move(target)});
        return *this;
    }
    void write(std::filesystem::path const& file) const;
};

// A template with a presentation part, one master per (part name, theme name)
// and layouts given by (part name, layout name, master part name).
struct Layout {
    u16string partName;
    std::string name;
    u16string masterPartName;
    std::string shapes;  // the p:spTree content after the group properties
};
struct Master {
    u16string partName;
    std::string themeName;
    std::vector<u16string> layoutPartNames;
};
PackageRecipe makeTemplate(std::vector<Master> const& masters, std::vector<Layout> const& layouts,
                           std::string const& presentationExtra = "");

std::string layoutXml(std::string const& name, std::string const& shapes,
                      std::string const& rootAttributes = "", std::string const& afterCSld = "");
std::string placeholderXml(std::string const& id, std::string const& name, std::string const& phAttributes);

// A model read from a package file; the objects live together.
struct LoadedModel {
    explicit LoadedModel(std::filesystem::path const& file);
    boost::shared_ptr<OPCPackage> package;
    boost::shared_ptr<PartDOMBuilder> builder;
    boost::shared_ptr<PresentationModel> model;
    bool loaded = false;
};

// Stores documents as the real part writer does.
class TestDocumentWriter : public ppt::PartDocumentWriter {
public:
    explicit TestDocumentWriter(boost::shared_ptr<OPCPackage> const& package);
    void writeDocument(u16string const& partName, xercesc::DOMDocument* document) override;
};

xercesc::DOMDocument* parseXml(xercesc::DOMLSParser* parser, std::string const& xml);
std::vector<u16string> childNames(xercesc::DOMElement const* element);
u16string attr(xercesc::DOMElement const* element, char16_t const* name);
std::string readPart(std::filesystem::path const& file, u16string const& partName);

}  // namespace test
}  // namespace deckforge
