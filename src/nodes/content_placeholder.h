// A content placeholder: a picture placeholder that also lets a Table take its place.
#pragma once

#include "nodes/chart.h"
#include "nodes/picture_placeholder.h"
#include "nodes/table.h"

namespace deckforge {
namespace ppt {

class ContentPlaceholderImpl : public PicturePlaceholderImpl {
public:
    ContentPlaceholderImpl();
    explicit ContentPlaceholderImpl(u16string const& name);
    ContentPlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    ContentPlaceholderImpl(u16string const& name, u16string const& templateUid,
                           u16string const& placeholderType);
    ContentPlaceholderImpl(ContentPlaceholderImpl const& other);
    ~ContentPlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

    // A copy of the table takes this placeholder's place on the slide and
    // is returned; see yieldPlaceTo.
    virtual Table replace(Table const& table);
    // The same for a chart, which takes the placeholder's box.
    virtual Chart replace(Chart const& chart);
    using PicturePlaceholderImpl::replace;
};

class ContentPlaceholder : public PicturePlaceholder {
public:
    ContentPlaceholder();
    explicit ContentPlaceholder(PPTObjectImpl* impl) : PicturePlaceholder(impl) {}

    static boost::shared_ptr<ContentPlaceholder> cast(PPTNodePtr const& node) {
        return castNode<ContentPlaceholder>(node);
    }

    Table replace(Table const& table) { return contentPlaceholderImpl()->replace(table); }
    Chart replace(Chart const& chart) { return contentPlaceholderImpl()->replace(chart); }
    using PicturePlaceholder::replace;

    ContentPlaceholderImpl* contentPlaceholderImpl() const { return getImplAs<ContentPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
