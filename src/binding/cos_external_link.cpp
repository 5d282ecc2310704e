#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/external_link.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosExternalLink : public CosPPTObjectClassInfo {
public:
    CosExternalLink() : CosPPTObjectClassInfo("ExternalLink") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "para = deckforge.ppt.Paragraph('The standard: ');\n"
            "para.append(deckforge.ppt.ExternalLink('https://ecma-international.org', 'ECMA-376'));");
        cls.setHelp(
            "A run of text that is a hyperlink.\n"
            "  p.append(deckforge.ppt.ExternalLink('https://example.com', 'our site'));");
        cls.addSuperclass("deckforge.ppt.Text");
        cls.addConstructor(
            {}, [](Call&) { return ExternalLink(); }, "ExternalLink()");
        cls.addConstructor(
            {words::String, words::String}, [](Call& c) { return ExternalLink(c.text(0), c.text(1)); },
            "ExternalLink(target, text)");
        cls.addProperty("Target", "text", getter(&ExternalLink::getTarget),
                        textSetter(&ExternalLink::setTarget), "Where the link leads, as given.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosExternalLink() {
    return std::make_unique<CosExternalLink>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
