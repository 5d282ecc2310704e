// A table placeholder: a body that also lets a Table take its place.
#pragma once

#include "nodes/body_placeholder.h"

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
};

class TablePlaceholder : public BodyPlaceholder {
public:
    TablePlaceholder();
    explicit TablePlaceholder(PPTObjectImpl* impl) : BodyPlaceholder(impl) {}

    static boost::shared_ptr<TablePlaceholder> cast(PPTNodePtr const& node) {
        return castNode<TablePlaceholder>(node);
    }

    TablePlaceholderImpl* tablePlaceholderImpl() const { return getImplAs<TablePlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
