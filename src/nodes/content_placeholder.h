// A content placeholder: a picture placeholder that also lets a Table take its place.
#pragma once

#include "nodes/picture_placeholder.h"

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
};

class ContentPlaceholder : public PicturePlaceholder {
public:
    ContentPlaceholder();
    explicit ContentPlaceholder(PPTObjectImpl* impl) : PicturePlaceholder(impl) {}

    static boost::shared_ptr<ContentPlaceholder> cast(PPTNodePtr const& node) {
        return castNode<ContentPlaceholder>(node);
    }

    ContentPlaceholderImpl* contentPlaceholderImpl() const { return getImplAs<ContentPlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
