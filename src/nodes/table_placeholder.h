// A table placeholder: a body that also lets a Table take its place.
#pragma once

#include "nodes/body_placeholder.h"
#include "nodes/table.h"

namespace deckforge {
namespace ppt {

class TablePlaceholderImpl : public BodyPlaceholderImpl {
public:
    TablePlaceholderImpl();
    explicit TablePlaceholderImpl(u16string const& name);
    TablePlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    TablePlaceholderImpl(u16string const& name, u16string const& templateUid,
                         u16string const& placeholderType);
    TablePlaceholderImpl(TablePlaceholderImpl const& other);
    ~TablePlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

    // A copy of the table takes this placeholder's place on the slide and
    // is returned; see yieldPlaceTo.
    virtual Table replace(Table const& table);
    using BodyPlaceholderImpl::replace;
};

class TablePlaceholder : public BodyPlaceholder {
public:
    TablePlaceholder();
    explicit TablePlaceholder(PPTObjectImpl* impl) : BodyPlaceholder(impl) {}

    static boost::shared_ptr<TablePlaceholder> cast(PPTNodePtr const& node) {
        return castNode<TablePlaceholder>(node);
    }

    Table replace(Table const& table) { return tablePlaceholderImpl()->replace(table); }
    using BodyPlaceholder::replace;

    TablePlaceholderImpl* tablePlaceholderImpl() const { return getImplAs<TablePlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
