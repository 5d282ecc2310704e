#include "binding/accessors.h"
#include "binding/box_content.h"
#include "binding/ppt_classes.h"
#include "nodes/chart_placeholder.h"

namespace deckforge {
namespace ppt {
namespace mi {

class CosChartPlaceholder : public CosPPTObjectClassInfo {
public:
    CosChartPlaceholder() : CosPPTObjectClassInfo("ChartPlaceholder") {}
    void initializeClass(ClassDescription& cls) const override {
        cls.setExample(
            "f = [tempname() '.pptx'];\n"
            "p = deckforge.ppt.Presentation(f);\n"
            "s = p.add('Title and Content');\n"
            "c = deckforge.ppt.Chart('pie', [3; 4; 5]);\n"
            "ph = s.find('Chart');  % the default template has no chart placeholder\n"
            "if isempty(ph), s.replace('Content', c); else ph{1}.replace(c); end\n"
            "p.close();\n"
            "delete(f);");
        cls.setHelp(
            "A placeholder of a slide's layout for a chart; until one takes its place it takes text.\n"
            "  s.replace('Chart', deckforge.ppt.Chart('pie', [3; 4; 5]));\n"
            "  s.find('Chart'){1}.replace(c);      % the chart takes the placeholder's box");
        cls.addSuperclass("deckforge.ppt.BodyPlaceholder");
        addBoxTextMethods(cls);
        constexpr char const* kChart = "deckforge.ppt.Chart";
        cls.addMethod(
            "replace", kChart, {kChart},
            [](Call& c) {
                Chart const chart = c.self<ChartPlaceholder>().replace(c.object<Chart>(0));
                return toScript(static_cast<PPTObject const&>(chart));
            },
            "replace(chart): a copy of the chart stands where the placeholder stood, in its box; returns "
            "it.");
    }
};

std::unique_ptr<CosPPTObjectClassInfo> makeCosChartPlaceholder() {
    return std::make_unique<CosChartPlaceholder>();
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
