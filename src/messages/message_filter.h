// Decides which messages reach script code. A set source filter stops every
// message about another object; a set global filter then decides alone
// ("pass" lets all through, anything else none); otherwise each kind has its
// switch, all on but debug.
#pragma once

#include "engine/ppt_object.h"
#include "formats/attribute.h"

namespace deckforge {
namespace ppt {

class MessageImpl;

class MessageFilterImpl : public PPTObjectImpl {
public:
    char const* getFullyQualifiedHobjTypeName() const override;

    // The common test of the four kinds; `kindPasses` is the kind's switch.
    bool passes(MessageImpl const& message, bool kindPasses) const;

    BaseAttribute<u16string> globalFilter;
    BaseAttribute<PPTObject> sourceFilter;
    bool errorsPass = true;
    bool warningsPass = true;
    bool progressPass = true;
    bool debugPass = false;
};

class MessageFilter : public PPTObject {
public:
    MessageFilter();
    explicit MessageFilter(PPTObjectImpl* impl) : PPTObject(impl) {}

    void setGlobalFilter(u16string const& filter) { filterImpl()->globalFilter.setValue(filter); }
    void unsetGlobalFilter() { filterImpl()->globalFilter.unsetValue(); }
    BaseAttribute<u16string> const& getGlobalFilter() const { return filterImpl()->globalFilter; }

    void setSourceFilter(PPTObject const& source) { filterImpl()->sourceFilter.setValue(source); }
    void unsetSourceFilter() { filterImpl()->sourceFilter.unsetValue(); }
    BaseAttribute<PPTObject> const& getSourceFilter() const { return filterImpl()->sourceFilter; }

    bool getErrorMessagesPass() const { return filterImpl()->errorsPass; }
    void setErrorMessagesPass(bool pass) { filterImpl()->errorsPass = pass; }
    bool getWarningMessagesPass() const { return filterImpl()->warningsPass; }
    void setWarningMessagesPass(bool pass) { filterImpl()->warningsPass = pass; }
    bool getProgressMessagesPass() const { return filterImpl()->progressPass; }
    void setProgressMessagesPass(bool pass) { filterImpl()->progressPass = pass; }
    bool getDebugMessagesPass() const { return filterImpl()->debugPass; }
    void setDebugMessagesPass(bool pass) { filterImpl()->debugPass = pass; }

    MessageFilterImpl* filterImpl() const { return getImplAs<MessageFilterImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
