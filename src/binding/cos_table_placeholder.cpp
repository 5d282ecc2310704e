#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/table_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTablePlaceholder : public CosPPTObjectClassInfo {
public:
    CosTablePlaceholder() : CosPPTObjectClassInfo("TablePlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Table');\n"
            "ph = s.find('Table'){1};\n"
            "ph.replace(deckforge.ppt.Table({'fruit', 'boxes'; 'apples', 120}));\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A placeholder of a slide's layout for a table; until one takes its place it takes text.\n"
            "  s = p.add('Title and Table');\n"
            "  s.find('Table'){1}.replace(deckforge.ppt.Table({'a', 1; 'b', 2}));");
        cls.addSuperclass("deckforge.ppt.BodyPlaceholder");
        addBoxTextMethods(cls);
        addReplaceByTable<TablePlaceholder>(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTablePlaceholder() {
    return std::make_unique<CosTablePlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
