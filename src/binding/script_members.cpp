#include "binding/script_members.h"

#include <set>

#include "binding/package.h"

namespace deckforge {
namespace ppt {
namespace mi {

std::string scriptBase(ClassDescription const& cls) {
    for (auto const& super : cls.superclasses())
        if (PackageTree::findClass(super)) return super;
    return {};
}

ScriptMembers scriptMembers(ClassDescription const& cls) {
    ScriptMembers members;
    members.lineage.push_back(&cls);
    for (std::string base = scriptBase(cls); !base.empty(); base = scriptBase(*members.lineage.back()))
        members.lineage.push_back(PackageTree::findClass(base));

    std::set<std::string> seen;
    for (auto const* c : members.lineage)
        for (auto const& p : c->properties())
            if (seen.insert(p.name).second)
                (p.isReadOnly() ? members.readOnly : members.readWrite).push_back({c, &p});

    std::set<std::string> written;
    for (auto const* c : members.lineage)
        for (auto const& m : c->methods())
            if (m.kind != MethodInfo::Kind::Static && written.insert(m.name).second)
                members.methods.push_back({c, &m.name});

    std::set<std::string> writtenStatic;
    for (auto const& m : cls.methods())
        if (m.kind == MethodInfo::Kind::Static && writtenStatic.insert(m.name).second)
            members.statics.push_back(&m);

    for (auto const* c : members.lineage)
        if (!c->events().empty()) {
            members.eventOwner = c;
            break;
        }
    return members;
}

}  // namespace mi
}  // namespace ppt
}  // namespace deckforge
