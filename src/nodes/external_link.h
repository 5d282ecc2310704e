// A run that is also a hyperlink. The target is kept exactly as given; the
// writer makes it fit for a relationship part.
#pragma once

#include "nodes/text.h"

namespace deckforge {
namespace ppt {

class ExternalLinkImpl : public TextImpl {
public:
    ExternalLinkImpl();
    ExternalLinkImpl(u16string const& target, u16string const& text);
    ExternalLinkImpl(ExternalLinkImpl const& other);
    ~ExternalLinkImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    void acceptWriter(PPTWriter* writer, XERCES_CPP_NAMESPACE::DOMNode* parent) const override;
    PPTNodePtr makeInterface() override;
    PPTNodePtr clone() const override;
    // Only its own type: a link doesn't answer to NodeType::Text.
    NodeType getNodeType() const override;

    u16string const& getTarget() const { return mTarget; }
    void setTarget(u16string const& target) { mTarget = target; }

private:
    u16string mTarget;
};

class ExternalLink : public Text {
public:
    ExternalLink();
    // The target first, the visible text second.
    ExternalLink(u16string const& target, u16string const& text);
    explicit ExternalLink(PPTObjectImpl* impl) : Text(impl) {}

    static boost::shared_ptr<ExternalLink> cast(PPTNodePtr const& node) {
        return castNode<ExternalLink>(node);
    }

    u16string const& getTarget() const { return externalLinkImpl()->getTarget(); }
    void setTarget(u16string const& target) { externalLinkImpl()->setTarget(target); }

    ExternalLinkImpl* externalLinkImpl() const { return getImplAs<ExternalLinkImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
