#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "engine/ppt_node.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosNode : public CosPPTObjectClassInfo {
public:
    CosNode() : CosPPTObjectClassInfo("Node") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "para = deckforge.ppt.Paragraph('Hello ');\n"
            "para.append(deckforge.ppt.Text('world'));\n"
            "kids = para.Children;\n"
            "isa(kids{1}, 'deckforge.ppt.Node')");
        cls.setHelp("A node of a presentation's tree.");
        cls.addSuperclass("deckforge.ppt.Object");
        cls.addProperty("Children", "array of deckforge.ppt.Node", getter(&PPTNode::getChildren), nullptr,
                        "The child nodes, as a cell row; [] if none.");
        cls.addProperty("Parent", "deckforge.ppt.Node", getter(&PPTNode::getParent), nullptr,
                        "The parent node, or [] for a free node.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosNode() {
    return std::make_unique<CosNode>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
