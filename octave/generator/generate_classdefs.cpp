// Writes the classdef files of "deckforge.ppt" from the library's class
// registry, so that the script classes can't drift from the native ones.
// Every member is one line into the gateway __deckforge_gw__; overloads are
// resolved natively. Once a class is in use, the glue puts native functions
// in place of these lines (octave/glue/native_members.h); they stay for help
// and for the first calls.
//
//   deckforge_classdefs <output folder +deckforge/+ppt>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "binding/module.h"
#include "binding/package.h"
#include "binding/script_members.h"

namespace fs = std::filesystem;
using namespace deckforge::ppt::mi;

namespace {

constexpr char const* kPackage = "deckforge.ppt";

// Octave help: each line as a comment.
void commentBlock(std::ostream& out, std::string const& text, std::string const& indent,
                  std::string const& lead = " ") {
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) out << indent << "%" << (line.empty() ? "" : lead + line) << "\n";
}

std::string quote(std::string const& s) {
    std::string q = "'";
    for (char c : s) q += (c == '\'') ? std::string("''") : std::string(1, c);
    return q + "'";
}

// A type as the registry words it, in the words of Octave's own help.
std::string octaveWords(std::string const& type) {
    static std::map<std::string, std::string> const words = {
        {words::String, "char row vector or string"},
        {words::Logical, "logical scalar"},
        {words::UInt32, "numeric scalar (whole)"},
        {words::UInt64, "numeric scalar (whole)"},
        {words::Double, "numeric scalar"},
        {words::Any, "any value"},
        {words::NodeVector, "cell array of deckforge.ppt.Node"},
        {"text", "char row vector or string"},
        {"text or empty", "char row vector, string or []"},
        {"dimension text or empty", "char row vector with a unit, such as '2in', or []"},
        {"logical", "logical scalar"},
        {"logical or empty", "logical scalar or []"},
        {"uint64", "uint64 scalar"},
        {"uint32 or empty", "numeric scalar (whole) or []"},
        {"host array", "any value"},
        {"array of deckforge.ppt.Node", "cell array of deckforge.ppt.Node"},
    };
    auto it = words.find(type);
    if (it != words.end()) return it->second;
    std::string const scalar = " scalar";
    if (type.size() > scalar.size() &&
        type.compare(type.size() - scalar.size(), scalar.size(), scalar) == 0 &&
        type.rfind("deckforge.", 0) == 0)
        return "a " + type.substr(0, type.size() - scalar.size()) + " object";
    return type;
}

std::string signatureLine(std::string const& name, MethodInfo const& m) {
    std::string s = name + "(";
    auto inputs = m.callerInputs();
    for (std::size_t i = 0; i < inputs.size(); ++i) s += (i ? ", " : "") + octaveWords(inputs[i]);
    s += ")";
    if (m.kind != MethodInfo::Kind::Constructor && m.signature.result != words::Void)
        s += " -> " + octaveWords(m.signature.result);
    return s;
}

void writeClassHelp(std::ostream& out, ClassDescription const& cls) {
    std::string base = scriptBase(cls);
    out << "%" << cls.getName() << "  " << (cls.help().empty() ? cls.fullName() : "") << "\n";
    commentBlock(out, cls.help(), "");
    out << "%\n%   Class " << cls.fullName();
    if (!base.empty()) out << ", a subclass of " << base;
    out << ".\n";
    if (!cls.constructors().empty()) {
        out << "%\n%   Constructors:\n";
        for (auto const& c : cls.constructors())
            out << "%     " << signatureLine(cls.fullName(), c) << (c.help.empty() ? "" : "   " + c.help)
                << "\n";
    } else {
        out << "%\n%   Objects of this class come from the library; it has no public constructor.\n";
    }
    if (!cls.properties().empty()) {
        out << "%\n%   Properties:\n";
        for (auto const& p : cls.properties())
            out << "%     " << p.name << " (" << octaveWords(p.type) << (p.isReadOnly() ? ", read only" : "")
                << ")" << (p.help.empty() ? "" : "  " + p.help) << "\n";
    }
    if (!cls.methods().empty()) {
        out << "%\n%   Methods:\n";
        for (auto const& m : cls.methods())
            out << "%     " << (m.kind == MethodInfo::Kind::Static ? "static " : "")
                << signatureLine(m.name, m) << (m.help.empty() ? "" : "   " + m.help) << "\n";
    }
    if (!cls.events().empty()) {
        out << "%\n%   Events (addlistener(obj, name, @(src, evt) ...)):\n";
        for (auto const& e : cls.events())
            out << "%     " << e.name << " with a " << e.dataClass << ": " << e.help << "\n";
    }
    if (!cls.example().empty()) {
        out << "%\n%   Example:\n";
        commentBlock(out, cls.example(), "", "     ");
    }
    out << "\n";
}

// What only the root classes carry: the native pointer, identity and
// deletion. Octave has no == on handles and its isequal would recurse into
// properties, so both compare native objects.
void writeRootMembers(std::ostream& out) {
    out << "  properties (Access = private, Hidden)\n"
           "    NativePtr_ = uint64(0);\n"
           "  end\n\n";
    out << "  methods\n"
           "    function delete(obj)\n"
           "      __deckforge_gw__('delete', obj);\n"
           "    end\n"
           "    function tf = eq(a, b)\n"
           "      tf = __deckforge_gw__('eq', a, b);\n"
           "    end\n"
           "    function tf = ne(a, b)\n"
           "      tf = ~__deckforge_gw__('eq', a, b);\n"
           "    end\n"
           "    function tf = isequal(a, varargin)\n"
           "      tf = true;\n"
           "      for k = 1:numel(varargin)\n"
           "        tf = tf && __deckforge_gw__('eq', a, varargin{k});\n"
           "      end\n"
           "    end\n"
           "    function tf = isvalid(obj)\n"
           "      tf = __deckforge_gw__('isvalid', obj);\n"
           "    end\n"
           "    function disp(obj)\n"
           "      if ~__deckforge_gw__('isvalid', obj)\n"
           "        printf('  deleted %s object\\n', class(obj));\n"
           "        return;\n"
           "      end\n"
           "      printf('  %s object with properties:\\n\\n', class(obj));\n"
           "      names = properties(obj);\n"
           "      for k = 1:numel(names)\n"
           "        try\n"
           "          v = obj.(names{k});\n"
           "        catch\n"
           "          v = '<unavailable>';\n"
           "        end\n"
           "        if ischar(v)\n"
           "          text = ['''' v ''''];\n"
           "        elseif (isnumeric(v) || islogical(v)) && isscalar(v)\n"
           "          text = num2str(v);\n"
           "        elseif isobject(v)\n"
           "          text = ['[' class(v) ']'];\n"
           "        else\n"
           "          text = sprintf('[%s %s]', strjoin(arrayfun(@num2str, size(v), 'UniformOutput', false), "
           "'x'), class(v));\n"
           "        end\n"
           "        printf('    %20s: %s\\n', names{k}, text);\n"
           "      end\n"
           "    end\n"
           "  end\n\n";
}

// Each class derives from handle directly and carries its bases' members
// itself: Octave builds an object of a five-level classdef chain in some
// 60 us, a flat one in 10, and scripts make many small objects. Every member
// still calls the gateway with the class that declares it, and `isa`
// answers for the bases as a subclass would.
void writeClass(fs::path const& folder, ClassDescription const& cls) {
    std::ostringstream out;
    std::string full = quote(cls.fullName());
    ScriptMembers const members = scriptMembers(cls);
    // The class help inside the classdef block, where every Octave release
    // looks for it (only newer ones look above the block as well).
    out << "classdef " << cls.getName() << " < handle\n";
    writeClassHelp(out, cls);

    if (!members.readWrite.empty()) {
        out << "  properties (Dependent)\n";
        for (auto const& m : members.readWrite)
            out << "    " << m.info->name << "  % " << octaveWords(m.info->type) << "\n";
        out << "  end\n\n";
    }
    if (!members.readOnly.empty()) {
        out << "  properties (Dependent, SetAccess = private)\n";
        for (auto const& m : members.readOnly)
            out << "    " << m.info->name << "  % " << octaveWords(m.info->type) << ", read only\n";
        out << "  end\n\n";
    }
    writeRootMembers(out);

    out << "  methods\n";
    out << "    function obj = " << cls.getName() << "(varargin)\n"
        << "      __deckforge_gw__('new', obj, " << full << ", varargin{:});\n"
        << "    end\n";
    out << "    function tf = isa(obj, name)\n"
        << "      % True for this class, its bases in the package, and handle.\n"
        << "      names = {";
    for (auto const* c : members.lineage) out << quote(c->fullName()) << ", ";
    out << "'handle'};\n"
        << "      if ischar(name)\n"
        << "        tf = any(strcmp(name, names));\n"
        << "      elseif iscellstr(name)\n"
        << "        tf = cellfun(@(n) any(strcmp(n, names)), name);\n"
        << "      else\n"
        << "        error('Octave:invalid-input-type', 'isa: CLASSNAME must be a string or cell array of "
           "strings');\n"
        << "      end\n"
        << "    end\n";
    for (auto const& m : members.readWrite) {
        std::string const owner = quote(m.owner->fullName()), name = quote(m.info->name);
        out << "    function value = get." << m.info->name << "(obj)\n"
            << "      value = __deckforge_gw__('get', obj, " << owner << ", " << name << ");\n"
            << "    end\n"
            << "    function set." << m.info->name << "(obj, value)\n"
            << "      __deckforge_gw__('set', obj, " << owner << ", " << name << ", value);\n"
            << "    end\n";
    }
    for (auto const& m : members.readOnly) {
        out << "    function value = get." << m.info->name << "(obj)\n"
            << "      value = __deckforge_gw__('get', obj, " << quote(m.owner->fullName()) << ", "
            << quote(m.info->name) << ");\n"
            << "    end\n";
    }
    for (auto const& m : members.methods) {
        std::string const& name = *m.name;
        out << "    function varargout = " << name << "(obj, varargin)\n";
        for (auto const* o : m.owner->methodOverloads(name))
            out << "      % " << signatureLine(name, *o) << (o->help.empty() ? "" : "   " + o->help) << "\n";
        out << "      varargout = __deckforge_gw__('call', obj, " << quote(m.owner->fullName()) << ", "
            << quote(name) << ", varargin{:});\n"
            << "    end\n";
    }
    if (members.eventOwner) {
        out << "    function listener = addlistener(obj, eventName, callback)\n"
            << "      % listener = addlistener(obj, eventName, @(src, evt) ...): callback runs at each "
               "event\n"
            << "      % until delete(listener) or listener.Enabled = false.\n"
            << "      listener = __deckforge_gw__('addlistener', obj, "
            << quote(members.eventOwner->fullName()) << ", eventName, callback);\n"
            << "    end\n";
    }
    out << "  end\n";
    if (!members.statics.empty()) {
        out << "\n  methods (Static)\n";
        for (auto const* m : members.statics) {
            out << "    function varargout = " << m->name << "(varargin)\n"
                << "      % " << signatureLine(m->name, *m) << (m->help.empty() ? "" : "   " + m->help)
                << "\n"
                << "      varargout = __deckforge_gw__('static', " << full << ", " << quote(m->name)
                << ", varargin{:});\n"
                << "    end\n";
        }
        out << "  end\n";
    }
    out << "end\n";
    // The example again as a test block, which `pkg test deckforge` runs.
    if (!cls.example().empty()) {
        out << "\n%!test\n";
        commentBlock(out, cls.example(), "", "! ");
    }

    // Unchanged files keep their time stamps, so Octave doesn't reload them.
    fs::path file = folder / (cls.getName() + ".m");
    std::string text = out.str();
    std::ifstream existing(file, std::ios::binary);
    std::string old((std::istreambuf_iterator<char>(existing)), std::istreambuf_iterator<char>());
    if (old == text) return;
    std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: deckforge_classdefs <folder +deckforge/+ppt>\n";
        return 2;
    }
    try {
        fs::path folder = argv[1];
        fs::create_directories(folder);
        registerPackages();
        Package* package = PackageTree::getPackage(kPackage);
        if (!package) throw std::runtime_error("package deckforge.ppt is not registered");
        std::set<std::string> files;
        for (auto const& name : package->classNames()) {
            ClassDescription const* cls = package->findClass(name);
            writeClass(folder, *cls);
            files.insert(name + ".m");
        }
        // A class that left the registry leaves the folder too.
        for (auto const& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".m" && !files.count(entry.path().filename().string()))
                fs::remove(entry.path());
    } catch (std::exception const& e) {
        std::cerr << "deckforge_classdefs: " << e.what() << "\n";
        return 1;
    }
    return 0;
}
