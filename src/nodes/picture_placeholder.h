// A picture placeholder: a body that also lets a Picture take its place.
#pragma once

#include "nodes/body_placeholder.h"
#include "nodes/picture.h"

namespace deckforge {
namespace ppt {

class PicturePlaceholderImpl : public BodyPlaceholderImpl {
public:
    PicturePlaceholderImpl();
    explicit PicturePlaceholderImpl(u16string const& name);
    PicturePlaceholderImpl(u16string const& name, u16string const& templateUid);
    // The form that the slide uses.
    PicturePlaceholderImpl(u16string const& name, u16string const& templateUid,
                           u16string const& placeholderType);
    PicturePlaceholderImpl(PicturePlaceholderImpl const& other);
    ~PicturePlaceholderImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    bool isA(NodeType type) const override;

    // A copy of the picture takes this placeholder's place on the slide and
    // is returned; see yieldPlaceTo.
    virtual Picture replace(Picture const& picture);
    using BodyPlaceholderImpl::replace;
};

class PicturePlaceholder : public BodyPlaceholder {
public:
    PicturePlaceholder();
    explicit PicturePlaceholder(PPTObjectImpl* impl) : BodyPlaceholder(impl) {}

    static boost::shared_ptr<PicturePlaceholder> cast(PPTNodePtr const& node) {
        return castNode<PicturePlaceholder>(node);
    }

    Picture replace(Picture const& picture) { return picturePlaceholderImpl()->replace(picture); }
    using BodyPlaceholder::replace;

    PicturePlaceholderImpl* picturePlaceholderImpl() const { return getImplAs<PicturePlaceholderImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
