#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "binding/style_properties.h"
#include "nodes/table_row.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTableRow : public CosPPTObjectClassInfo {
public:
    CosTableRow() : CosPPTObjectClassInfo("TableRow") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "r = deckforge.ppt.TableRow();\n"
            "r.append(deckforge.ppt.TableEntry('apples'));\n"
            "r.append(deckforge.ppt.TableEntry('120'));\n"
            "t = deckforge.ppt.Table(2);\n"
            "t.append(r);");
        cls.setHelp(
            "A row of a table: its entries in column order. All rows of a table share its Height.\n"
            "  r = deckforge.ppt.TableRow(); r.append(deckforge.ppt.TableEntry('a')); t.append(r);");
        cls.addSuperclass("deckforge.ppt.Element");
        cls.addConstructor(
            {}, [](Call&) { return TableRow(); }, "TableRow()");
        addFontProperties<TableRow>(cls);
        addBackgroundColorProperty<TableRow>(cls);
        cls.addMethod(
            "append", "deckforge.ppt.TableEntry", {"deckforge.ppt.TableEntry"},
            [](Call& c) {
                TableEntry entry = c.self<TableRow>().append(c.object<TableEntry>(0));
                return toScript(static_cast<PPTObject const&>(entry));
            },
            "append(entry): the entry itself as the last; a row in a table widens its NCols.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTableRow() {
    return std::make_unique<CosTableRow>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
