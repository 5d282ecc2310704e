// A body placeholder of a layout: it takes text only.
#pragma once

#include "nodes/text_box_placeholder.h"

namespace deckforge {
namespace ppt {

class BodyPlaceholderImpl : public TextBoxPlaceholderImpl {
public:
    BodyPlaceholderImpl();
    explicit BodyPlaceholderImpl(u16string const& name);
    BodyPlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    BodyPlaceholderImpl(u16string const& name, u16string const& templateUid,
                        u16string const& placeholderType);
    BodyPlaceholderImpl(BodyPlaceholderImpl const& other);
    ~BodyPlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;
};

class BodyPlaceholder : public TextBoxPlaceholder {
public:
    BodyPlaceholder();
    explicit BodyPlaceholder(PPTObjectImpl* impl) : TextBoxPlaceholder(impl) {}

    static boost::shared_ptr<BodyPlaceholder> cast(PPTNodePtr const& node) {
        return castNode<BodyPlaceholder>(node);
    }

    BodyPlaceholderImpl* bodyPlaceholderImpl() const { return getImplAs<BodyPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
