#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/content_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosContentPlaceholder : public CosPPTObjectClassInfo {
public:
    CosContentPlaceholder() : CosPPTObjectClassInfo("ContentPlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Content');\n"
            "c = s.find('Content'){1};\n"
            "c.add('first point');\n"
            "c.add('second point');\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A placeholder of a slide's layout for any content: text, lists, a picture or a table.\n"
            "  s = p.add('Title and Content');\n"
            "  s.replace('Content', {'Point', {'detail'}});   % by name, on the slide\n"
            "A Table, or a struct array or dataframe made into one, takes its place:\n"
            "  s.find('Content'){1}.replace(struct('Item', {'a', 'b'}, 'Count', {1, 2}));\n"
            "A cell array stays a list of paragraphs; make a Table of it to get a table.");
        cls.addSuperclass("deckforge.ppt.PicturePlaceholder");
        addBoxTextMethods(cls);
        // Before the "any" forms, which would take a picture or a table as a value.
        addReplaceByPicture(cls);
        addReplaceByTable<ContentPlaceholder>(cls);
        addBoxValueMethods(cls);
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosContentPlaceholder() {
    return std::make_unique<CosContentPlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
