#include "binding/accessors.h"
#include "binding/ppt_classes.h"
#include "nodes/table.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosTable : public CosPPTObjectClassInfo {
public:
    CosTable() : CosPPTObjectClassInfo("Table") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setHelp("A table on a slide.");
        cls.addSuperclass("deckforge.ppt.Shape");
        cls.addConstructor(
            {}, [](Call&) { return Table(); }, "Table()");
        cls.addConstructor(
            {words::UInt32}, [](Call& c) { return Table(static_cast<std::uint64_t>(c.uint32(0))); },
            "Table(nCols)");
        cls.addProperty("NCols", "uint64", getter(&Table::getNCols), nullptr, "The number of columns.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosTable() {
    return std::make_unique<CosTable>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
