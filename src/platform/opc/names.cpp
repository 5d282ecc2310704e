#include "platform/opc/names.h"

#include "platform/opc/text.h"

namespace opc {
namespace model {

std::string PartName::validationProblem() const {
    std::string name = detail::toUtf8(name_);
    if (name.size() < 2 || name[0] != '/') return "a part name begins with \"/\"";
    if (name.back() == '/') return "a part name doesn't end with \"/\"";
    if (name.find("//") != std::string::npos) return "a part name has no empty segments";
    if (name.back() == '.') return "a part name doesn't end with \".\"";
    std::string problem = detail::itemNameProblem(name.substr(1));
    if (!problem.empty()) return "a part name has no " + problem;
    if (name.find('\\') != std::string::npos) return "a part name has no backslash";
    return {};
}

bool operator==(PartName const& a, PartName const& b) {
    return a.name_ == b.name_ || detail::partKey(a.name_) == detail::partKey(b.name_);
}

std::u16string URI::getPath() const {
    std::u16string path = text_;
    std::size_t end = path.find_first_of(u"?#");
    if (end != std::u16string::npos) path.resize(end);
    // A scheme is letters, digits, "+", "-", "." before the first ":", and
    // only if no "/" comes before it.
    std::size_t colon = path.find(u':');
    if (colon != std::u16string::npos && colon > 0 && path.find(u'/') > colon) {
        path.erase(0, colon + 1);
        if (path.compare(0, 2, u"//") == 0) {
            std::size_t slash = path.find(u'/', 2);
            path = slash == std::u16string::npos ? std::u16string() : path.substr(slash);
        }
    }
    return path;
}

}  // namespace model
}  // namespace opc
