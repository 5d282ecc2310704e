// A chart placeholder: a body that also lets a Chart take its place and box.
#pragma once

#include "nodes/body_placeholder.h"
#include "nodes/chart.h"

namespace deckforge {
namespace ppt {

class ChartPlaceholderImpl : public BodyPlaceholderImpl {
public:
    ChartPlaceholderImpl();
    explicit ChartPlaceholderImpl(u16string const& name);
    ChartPlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    ChartPlaceholderImpl(u16string const& name, u16string const& templateUid,
                         u16string const& placeholderType);
    ChartPlaceholderImpl(ChartPlaceholderImpl const& other);
    ~ChartPlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

    // A copy of the chart takes this placeholder's place on the slide and
    // is returned; see yieldPlaceTo.
    virtual Chart replace(Chart const& chart);
    using BodyPlaceholderImpl::replace;
};

class ChartPlaceholder : public BodyPlaceholder {
public:
    ChartPlaceholder();
    explicit ChartPlaceholder(PPTObjectImpl* impl) : BodyPlaceholder(impl) {}

    static boost::shared_ptr<ChartPlaceholder> cast(PPTNodePtr const& node) {
        return castNode<ChartPlaceholder>(node);
    }

    Chart replace(Chart const& chart) { return chartPlaceholderImpl()->replace(chart); }
    using BodyPlaceholder::replace;

    ChartPlaceholderImpl* chartPlaceholderImpl() const { return getImplAs<ChartPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
