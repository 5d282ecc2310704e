#include "platform/opc/package.h"

#include <algorithm>
#include <unordered_map>

#include "platform/opc/deflate.h"
#include "platform/opc/exception.h"
#include "platform/opc/text.h"
#include "platform/opc/xerces_helper.h"

using opc::detail::appendXmlAttribute;
using opc::detail::asciiLower;
using opc::detail::fromUtf8;
using opc::detail::partKey;
using opc::detail::toUtf8;

namespace opc {
namespace model {

namespace {

char16_t const kContentTypesItem[] = u"[Content_Types].xml";
char16_t const kRelationshipsType[] = u"application/vnd.openxmlformats-package.relationships+xml";
// Smaller parts wait as they are: deflating them saves little.
constexpr std::size_t kDeflateWhileWaitingFrom = 1024;
char const kXmlDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n";

std::u16string lastSegment(std::u16string const& name) {
    std::size_t slash = name.rfind(u'/');
    return slash == std::u16string::npos ? name : name.substr(slash + 1);
}

// The extension of a part name, lower-cased; empty if the last segment has none.
std::u16string extensionOf(std::u16string const& name) {
    std::u16string last = lastSegment(name);
    std::size_t dot = last.rfind(u'.');
    return dot == std::u16string::npos ? std::u16string() : asciiLower(last.substr(dot + 1));
}

// "ppt/slides/_rels/slide1.xml.rels" and "_rels/.rels" hold relationships,
// not content of their own.
bool isRelationshipItem(std::string const& key) {
    if (key.size() < 5 || key.compare(key.size() - 5, 5, ".rels") != 0) return false;
    std::size_t slash = key.rfind('/');
    if (slash == std::string::npos) return false;
    std::size_t folder = key.rfind('/', slash - 1);
    folder = folder == std::string::npos ? 0 : folder + 1;
    return key.compare(folder, slash - folder, "_rels") == 0;
}

// RFC 3986 dot-segment removal on an absolute path; ".." at the root stays at the root.
std::u16string removeDotSegments(std::u16string const& path) {
    std::vector<std::u16string> segments;
    std::size_t start = 1;
    while (start <= path.size()) {
        std::size_t end = path.find(u'/', start);
        if (end == std::u16string::npos) end = path.size();
        std::u16string segment = path.substr(start, end - start);
        bool last = end == path.size();
        if (segment == u"..") {
            if (!segments.empty()) segments.pop_back();
            if (last) segments.emplace_back();
        } else if (segment == u".") {
            if (last) segments.emplace_back();
        } else {
            segments.push_back(segment);
        }
        start = end + 1;
    }
    std::u16string out;
    for (auto const& segment : segments) out += u"/" + segment;
    return out.empty() ? u"/" : out;
}

bool hasScheme(std::u16string const& text) {
    std::size_t colon = text.find(u':');
    return colon != std::u16string::npos && colon > 0 && text.find_first_of(u"/?#") > colon;
}

// The absolute URI of `reference` taken relative to the part at `base`.
std::u16string resolveAgainst(std::u16string const& base, std::u16string const& reference) {
    if (hasScheme(reference)) return reference;
    if (reference.empty()) return base;
    std::size_t tail = reference.find_first_of(u"?#");
    std::u16string path = reference.substr(0, tail);
    std::u16string rest = tail == std::u16string::npos ? std::u16string() : reference.substr(tail);
    if (path.empty()) return base + rest;
    if (path[0] != u'/') path = base.substr(0, base.rfind(u'/') + 1) + path;
    return removeDotSegments(path) + rest;
}

// The shortest reference from the part at `base` to the absolute `target`:
// what PowerPoint writes into relationship parts.
std::u16string relativeTo(std::u16string const& base, std::u16string const& target) {
    auto split = [](std::u16string const& path) {
        std::vector<std::u16string> segments;
        std::size_t start = 1;
        while (start <= path.size()) {
            std::size_t end = path.find(u'/', start);
            if (end == std::u16string::npos) end = path.size();
            segments.push_back(path.substr(start, end - start));
            start = end + 1;
        }
        return segments;
    };
    auto from = split(base);
    from.pop_back();  // the folder of the source
    auto to = split(target);
    std::size_t common = 0;
    while (common < from.size() && common + 1 < to.size() && from[common] == to[common]) ++common;
    std::u16string out;
    for (std::size_t i = common; i < from.size(); ++i) out += u"../";
    for (std::size_t i = common; i < to.size(); ++i) out += (i > common ? u"/" : u"") + to[i];
    return out;
}

std::u16string localName(XMLCh const* qualified) {
    std::u16string name = XercesString(qualified);
    std::size_t colon = name.find(u':');
    return colon == std::u16string::npos ? name : name.substr(colon + 1);
}

std::u16string attribute(xercesc::DOMElement const* element, char16_t const* name) {
    return XercesString(element->getAttribute(name));
}

bool validId(std::u16string const& id) {
    auto nameStart = [](char16_t c) {
        return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c > 0x7f;
    };
    if (id.empty() || !nameStart(id[0])) return false;
    for (char16_t c : id)
        if (!nameStart(c) && !(c >= u'0' && c <= u'9') && c != u'-' && c != u'.') return false;
    return true;
}

}  // namespace

namespace detail {

struct ContentTypes {
    std::u16string itemName = kContentTypesItem;
    std::vector<std::pair<std::u16string, std::u16string>> defaults;   // extension as written, type
    std::unordered_map<std::u16string, std::size_t> defaultIndex;      // by lower-case extension
    std::vector<std::pair<std::u16string, std::u16string>> overrides;  // part name, type
    std::unordered_map<std::string, std::size_t> overrideIndex;        // by part key
    bool dirty = false;

    void setDefault(std::u16string const& extension, std::u16string const& type) {
        auto key = asciiLower(extension);
        auto found = defaultIndex.find(key);
        if (found != defaultIndex.end()) {
            defaults[found->second].second = type;
        } else {
            defaultIndex.emplace(key, defaults.size());
            defaults.emplace_back(extension, type);
        }
        dirty = true;
    }
    void setOverride(std::u16string const& partName, std::u16string const& type) {
        auto key = partKey(partName);
        auto found = overrideIndex.find(key);
        if (found != overrideIndex.end()) {
            overrides[found->second].second = type;
        } else {
            overrideIndex.emplace(key, overrides.size());
            overrides.emplace_back(partName, type);
        }
        dirty = true;
    }
    void removeOverride(std::u16string const& partName) {
        auto found = overrideIndex.find(partKey(partName));
        if (found == overrideIndex.end()) return;
        overrides.erase(overrides.begin() + static_cast<std::ptrdiff_t>(found->second));
        overrideIndex.clear();
        for (std::size_t i = 0; i < overrides.size(); ++i) overrideIndex.emplace(partKey(overrides[i].first), i);
        dirty = true;
    }
    std::u16string typeOf(std::u16string const& partName) const {
        auto over = overrideIndex.find(partKey(partName));
        if (over != overrideIndex.end()) return overrides[over->second].second;
        auto def = defaultIndex.find(extensionOf(partName));
        return def != defaultIndex.end() ? defaults[def->second].second : std::u16string();
    }
    std::string serialize() const {
        std::string xml = kXmlDeclaration;
        xml += "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">";
        for (auto const& d : defaults) {
            xml += "<Default Extension=\"";
            appendXmlAttribute(xml, d.first);
            xml += "\" ContentType=\"";
            appendXmlAttribute(xml, d.second);
            xml += "\"/>";
        }
        for (auto const& o : overrides) {
            xml += "<Override PartName=\"";
            appendXmlAttribute(xml, o.first);
            xml += "\" ContentType=\"";
            appendXmlAttribute(xml, o.second);
            xml += "\"/>";
        }
        return xml + "</Types>";
    }
};

struct RelationshipSet {
    PackageCore* core = nullptr;
    std::u16string source;    // "/" for the package, else the part name
    std::u16string itemName;  // the relationship part's item
    bool loaded = false;
    bool dirty = false;
    bool stored = false;  // the item exists in the physical package
    std::vector<Relationship> list;
    std::unordered_map<std::u16string, std::size_t> index;
    unsigned long nextNumber = 1;

    void load();
    void requireWritable() const;
    Relationship const& add(std::u16string const& id, std::u16string const& type,
                            std::u16string const& target, TargetMode mode, bool fromFile);
    std::string serialize() const;
    std::string where() const { return source == u"/" ? std::string("the package") : toUtf8(source); }
};

struct PartEntry {
    PartName name;
    std::u16string itemName;
    ContentType type;
    std::shared_ptr<std::string const> content;       // set once new or replaced
    std::shared_ptr<DeflatedContent const> deflated;  // or this instead
    bool dirty = false;
    bool compress = true;
    std::size_t sizeHint = 0;
    std::unique_ptr<RelationshipSet> relationships;
};

struct PackageCore {
    enum State { Created, Open, Closed };

    explicit PackageCore(interfaces::IPhysicalPackage& p) : physical(&p) {
        packageRelationships.core = this;
        packageRelationships.source = u"/";
        packageRelationships.itemName = u"_rels/.rels";
    }
    ~PackageCore() {
        if (parser) parser->release();
    }

    interfaces::IPhysicalPackage* physical;
    State state = Created;
    int mode = -1;
    std::unordered_map<std::string, std::unique_ptr<PartEntry>> parts;  // by part key
    std::vector<PartEntry*> order;                                      // stored, then created
    std::unordered_map<std::string, std::u16string> items;              // every stored item, by key
    std::vector<std::u16string> deletedItems;                           // stored items to drop at close
    std::vector<std::unique_ptr<PartEntry>> deletedParts;  // kept so that stale handles stay harmless
    ContentTypes types;
    RelationshipSet packageRelationships;
    xercesc::DOMLSParser* parser = nullptr;
    Deflater deflater;  // for parts that wait deflated

    void requireOpen() const {
        if (state == Created) throw Exception("the package is not open");
        if (state == Closed) throw Exception("the package is closed");
    }
    void requireWritable() const {
        requireOpen();
        if (mode == Package::OpenRead) throw Exception("the package is open for reading only");
    }
    PartEntry* find(PartName const& name) const {
        auto found = parts.find(partKey(name.toString()));
        return found == parts.end() ? nullptr : found->second.get();
    }
    RelationshipSet& relationshipsOf(PartEntry& entry) {
        if (!entry.relationships) {
            auto set = std::make_unique<RelationshipSet>();
            set->core = this;
            set->source = entry.name.toString();
            std::u16string const& item = entry.itemName;
            std::size_t slash = item.rfind(u'/');
            std::u16string folder =
                slash == std::u16string::npos ? std::u16string() : item.substr(0, slash + 1);
            set->itemName = folder + u"_rels/" + item.substr(folder.size()) + u".rels";
            entry.relationships = std::move(set);
        }
        return *entry.relationships;
    }
    // Parses stored XML and hands the root element to `visit`.
    template <class Visit>
    void parseItem(std::u16string const& item, Visit visit) {
        if (!parser) parser = XercesHelper::createParser();
        MemoryInputStream in(physical->readItem(item));
        std::u16string errors, warnings;
        try {
            auto* document = XercesHelper::readDocumentFromStream(parser, in, false, errors, warnings);
            if (document->getDocumentElement()) visit(document->getDocumentElement());
        } catch (Exception const& e) {
            parser->resetDocumentPool();
            throw Exception("cannot read " + toUtf8(item) + ": " + e.what());
        }
        parser->resetDocumentPool();
    }
    void readContentTypes();
};

void PackageCore::readContentTypes() {
    auto found = items.find(partKey(kContentTypesItem));
    if (found == items.end()) throw Exception("not a package: it has no [Content_Types].xml");
    types.itemName = found->second;
    parseItem(types.itemName, [this](xercesc::DOMElement* root) {
        if (localName(root->getTagName()) != u"Types") throw Exception("the root element is not Types");
        for (auto* e = root->getFirstElementChild(); e; e = e->getNextElementSibling()) {
            std::u16string name = localName(e->getTagName());
            if (name == u"Default")
                types.setDefault(attribute(e, u"Extension"), attribute(e, u"ContentType"));
            else if (name == u"Override")
                types.setOverride(attribute(e, u"PartName"), attribute(e, u"ContentType"));
        }
    });
    types.dirty = false;
}

void RelationshipSet::load() {
    if (loaded) return;
    core->requireOpen();
    loaded = true;
    auto found = core->items.find(partKey(itemName));
    if (found == core->items.end()) return;
    itemName = found->second;
    stored = true;
    try {
        core->parseItem(itemName, [this](xercesc::DOMElement* root) {
            if (localName(root->getTagName()) != u"Relationships")
                throw Exception("the root element is not Relationships");
            for (auto* e = root->getFirstElementChild(); e; e = e->getNextElementSibling()) {
                if (localName(e->getTagName()) != u"Relationship") continue;
                std::u16string id = attribute(e, u"Id");
                // A relationship without id can't be referred to, and a
                // repeated id is ambiguous: the first one counts.
                if (id.empty() || index.count(id)) continue;
                bool external = attribute(e, u"TargetMode") == u"External";
                add(id, attribute(e, u"Type"), attribute(e, u"Target"),
                    external ? TargetModeExternal : TargetModeInternal, true);
            }
        });
    } catch (...) {
        list.clear();
        index.clear();
        loaded = false;
        throw;
    }
}

void RelationshipSet::requireWritable() const {
    core->requireWritable();
}

Relationship const& RelationshipSet::add(std::u16string const& id, std::u16string const& type,
                                         std::u16string const& target, TargetMode mode, bool fromFile) {
    Relationship r;
    r.id_ = id;
    r.type_ = type;
    r.mode_ = mode;
    if (mode == TargetModeExternal) {
        r.target_ = target;
        r.targetUri_ = URI(target);
    } else if (fromFile) {
        r.target_ = target;
        r.targetUri_ = URI(resolveAgainst(source, target));
    } else {
        std::u16string absolute = resolveAgainst(source, target);
        r.targetUri_ = URI(absolute);
        r.target_ = hasScheme(absolute) ? absolute : relativeTo(source, absolute);
    }
    index.emplace(id, list.size());
    list.push_back(std::move(r));
    return list.back();
}

std::string RelationshipSet::serialize() const {
    std::string xml = kXmlDeclaration;
    xml += "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    for (auto const& r : list) {
        xml += "<Relationship Id=\"";
        appendXmlAttribute(xml, r.getID());
        xml += "\" Type=\"";
        appendXmlAttribute(xml, r.getType());
        xml += "\" Target=\"";
        appendXmlAttribute(xml, r.getTarget());
        xml += r.getTargetMode() == TargetModeExternal ? "\" TargetMode=\"External\"/>" : "\"/>";
    }
    return xml + "</Relationships>";
}

}  // namespace detail

// ---- RelationshipSource

RelationshipSource::RelationshipSource(std::shared_ptr<detail::PackageCore> core,
                                       detail::RelationshipSet* set)
    : core_(std::move(core)), relationships_(set) {}

detail::RelationshipSet& RelationshipSource::relationships() const {
    if (!relationships_) throw Exception("no relationship source: the part or package is empty");
    relationships_->load();
    return *relationships_;
}

std::vector<Relationship> RelationshipSource::getRelationships() const {
    return relationships().list;
}

Relationship RelationshipSource::getRelationshipByID(std::u16string const& id) const {
    auto& set = relationships();
    auto found = set.index.find(id);
    if (found == set.index.end())
        throw Exception("no relationship with the id \"" + toUtf8(id) + "\" in " + set.where());
    return set.list[found->second];
}

namespace {
std::u16string checkedNewId(detail::RelationshipSet& set, std::u16string const& type,
                            std::u16string const& id) {
    set.requireWritable();
    if (type.empty()) throw Exception("a relationship needs a type");
    if (id.empty()) {
        std::u16string fresh;
        do fresh = u"rId" + fromUtf8(std::to_string(set.nextNumber++));
        while (set.index.count(fresh));
        return fresh;
    }
    if (!validId(id)) throw Exception("\"" + toUtf8(id) + "\" is not a valid relationship id");
    if (set.index.count(id))
        throw Exception("the relationship id \"" + toUtf8(id) + "\" is already used in " + set.where());
    return id;
}
}  // namespace

Relationship RelationshipSource::createInternalRelationship(std::u16string const& type, URI const& target,
                                                            std::u16string const& id) {
    auto& set = relationships();
    std::u16string newId = checkedNewId(set, type, id);
    Relationship const& r = set.add(newId, type, target.toString(), TargetModeInternal, false);
    set.dirty = true;
    return r;
}

Relationship RelationshipSource::createExternalRelationship(std::u16string const& type,
                                                            std::u16string const& target,
                                                            std::u16string const& id) {
    auto& set = relationships();
    std::u16string newId = checkedNewId(set, type, id);
    Relationship const& r = set.add(newId, type, target, TargetModeExternal, false);
    set.dirty = true;
    return r;
}

void RelationshipSource::deleteRelationship(std::u16string const& id) {
    auto& set = relationships();
    set.requireWritable();
    auto found = set.index.find(id);
    if (found == set.index.end())
        throw Exception("no relationship with the id \"" + toUtf8(id) + "\" in " + set.where());
    set.list.erase(set.list.begin() + static_cast<std::ptrdiff_t>(found->second));
    set.index.clear();
    for (std::size_t i = 0; i < set.list.size(); ++i) set.index.emplace(set.list[i].getID(), i);
    set.dirty = true;
}

// ---- Part

namespace {
class PartOutputStream : public OutputStream {
public:
    PartOutputStream(std::shared_ptr<detail::PackageCore> core, detail::PartEntry* entry, std::size_t hint)
        : core_(std::move(core)), entry_(entry) {
        bytes_.reserve(hint);
    }
    void write(void const* buffer, std::size_t count) override {
        if (closed_) throw Exception("the stream of " + toUtf8(entry_->name.toString()) + " is closed");
        bytes_.append(static_cast<char const*>(buffer), count);
    }
    void close() override {
        if (closed_) return;
        core_->requireWritable();
        closed_ = true;
        // Parts wait in memory until the package closes. A large one waits
        // deflated, as it will be stored: a deck of thousands of slides
        // would otherwise hold all their markup at once.
        if (entry_->compress && bytes_.size() >= kDeflateWhileWaitingFrom &&
            core_->physical->keepsItemsDeflated()) {
            entry_->deflated = std::make_shared<DeflatedContent const>(core_->deflater.deflate(
                bytes_.data(), bytes_.size(), "the part " + toUtf8(entry_->name.toString())));
            entry_->content.reset();
        } else {
            entry_->content = std::make_shared<std::string const>(std::move(bytes_));
            entry_->deflated.reset();
        }
        entry_->dirty = true;
    }

private:
    std::shared_ptr<detail::PackageCore> core_;
    detail::PartEntry* entry_;
    std::string bytes_;
    bool closed_ = false;
};
}  // namespace

Part::Part(std::shared_ptr<detail::PackageCore> core, detail::PartEntry* entry)
    : RelationshipSource(core, &core->relationshipsOf(*entry)), entry_(entry) {}

detail::PartEntry& Part::entry() const {
    if (!entry_) throw Exception("no part: the part handle is empty");
    return *entry_;
}

PartName const& Part::getName() const {
    return entry().name;
}

ContentType const& Part::getContentType() const {
    return entry().type;
}

boost::shared_ptr<InputStream> Part::getInputStream() const {
    auto& e = entry();
    core_->requireOpen();
    if (e.deflated)
        return boost::shared_ptr<InputStream>(new MemoryInputStream(std::make_shared<std::string const>(
            inflate(*e.deflated, "the part " + toUtf8(e.name.toString())))));
    if (e.content || e.dirty) return boost::shared_ptr<InputStream>(new MemoryInputStream(e.content));
    return boost::shared_ptr<InputStream>(new MemoryInputStream(core_->physical->readItem(e.itemName)));
}

boost::shared_ptr<OutputStream> Part::getOutputStream() {
    auto& e = entry();
    core_->requireWritable();
    return boost::shared_ptr<OutputStream>(new PartOutputStream(core_, &e, e.sizeHint));
}

// ---- Package

Package::Package(interfaces::IPhysicalPackage& physical) {
    auto core = std::make_shared<detail::PackageCore>(physical);
    relationships_ = &core->packageRelationships;
    core_ = std::move(core);
}

Package::~Package() {
    // Parts may outlive the package, but not the physical package behind it.
    if (core_->state == detail::PackageCore::Open) core_->state = detail::PackageCore::Closed;
}

bool Package::isOpen() const {
    return core_->state == detail::PackageCore::Open;
}

void Package::open(int mode) {
    auto& core = *core_;
    if (core.state != detail::PackageCore::Created) throw Exception("the package was opened before");
    if (mode < OpenRead || mode > OpenReadWrite) throw Exception("no open mode " + std::to_string(mode));
    auto& physical = *core.physical;
    if (mode != OpenWrite && !physical.isReadable()) throw Exception("the package can't be read");
    if (mode != OpenRead && !physical.isWritable()) throw Exception("the package can't be written");
    core.mode = mode;
    if (mode == OpenWrite) {
        core.types.setDefault(u"rels", kRelationshipsType);
        core.types.setDefault(u"xml", u"application/xml");
        core.packageRelationships.loaded = true;
        core.state = detail::PackageCore::Open;
        return;
    }
    std::vector<std::u16string> names = physical.getItemNames();
    std::vector<std::u16string> partItems;
    for (auto const& name : names) {
        std::string key = partKey(name);
        if (!core.items.emplace(key, name).second)
            throw Exception("the item names \"" + toUtf8(core.items[key]) + "\" and \"" + toUtf8(name) +
                            "\" are equal but for case");
        if (key != partKey(kContentTypesItem) && !isRelationshipItem(key)) partItems.push_back(name);
    }
    core.state = detail::PackageCore::Open;  // lets readContentTypes parse
    try {
        core.readContentTypes();
    } catch (...) {
        core.state = detail::PackageCore::Closed;
        throw;
    }
    core.parts.reserve(partItems.size());
    for (auto const& item : partItems) {
        auto entry = std::make_unique<detail::PartEntry>();
        entry->name = PartName(u"/" + item);
        entry->itemName = item;
        entry->type = ContentType(core.types.typeOf(entry->name.toString()));
        core.order.push_back(entry.get());
        core.parts.emplace(partKey(entry->name.toString()), std::move(entry));
    }
}

void Package::close(bool revert) {
    auto& core = *core_;
    if (core.state != detail::PackageCore::Open) {
        core.state = detail::PackageCore::Closed;
        return;
    }
    // Closed before writing: a failed write is not tried again by a second close.
    core.state = detail::PackageCore::Closed;
    if (core.mode == OpenRead || revert) return;

    std::vector<std::pair<std::u16string, std::string>> relationshipItems;
    auto collect = [&](detail::RelationshipSet& set) {
        if (set.dirty && (set.stored || !set.list.empty()))
            relationshipItems.emplace_back(set.itemName, set.serialize());
    };
    collect(core.packageRelationships);
    for (auto* entry : core.order)
        if (entry->relationships) collect(*entry->relationships);
    if (!relationshipItems.empty() && !core.types.defaultIndex.count(u"rels"))
        core.types.setDefault(u"rels", kRelationshipsType);

    auto& physical = *core.physical;
    if (core.types.dirty || core.mode == OpenWrite)
        physical.writeItem(core.types.itemName, std::make_shared<std::string const>(core.types.serialize()),
                           true);
    for (auto* entry : core.order) {
        if (!entry->dirty) continue;
        if (entry->deflated) {
            physical.writeDeflatedItem(entry->itemName, entry->deflated);
            continue;
        }
        auto content = entry->content ? entry->content : std::make_shared<std::string const>();
        physical.writeItem(entry->itemName, content, entry->compress);
    }
    for (auto& item : relationshipItems)
        physical.writeItem(item.first, std::make_shared<std::string const>(std::move(item.second)), true);
    // A part made again under a deleted name has been written just above.
    for (auto const& item : core.deletedItems)
        if (!core.parts.count(partKey(item))) physical.deleteItem(item);
    physical.commit();
}

void Package::deletePart(PartName const& name) {
    auto& core = *core_;
    core.requireWritable();
    auto found = core.parts.find(partKey(name.toString()));
    if (found == core.parts.end()) throw Exception("no part " + toUtf8(name.toString()) + " in the package");
    detail::PartEntry* entry = found->second.get();
    core.order.erase(std::remove(core.order.begin(), core.order.end(), entry), core.order.end());
    auto drop = [&core](std::u16string const& item) {
        auto stored = core.items.find(partKey(item));
        if (stored == core.items.end()) return;
        core.deletedItems.push_back(stored->second);
        core.items.erase(stored);
    };
    std::u16string const relationshipsItem = core.relationshipsOf(*entry).itemName;
    drop(entry->itemName);
    drop(relationshipsItem);
    core.types.removeOverride(name.toString());
    // Some producers give relationship parts an Override of their own; one
    // left behind names a missing part, which strict readers repair.
    core.types.removeOverride(u"/" + relationshipsItem);
    core.deletedParts.push_back(std::move(found->second));
    core.parts.erase(found);
}

std::vector<PartName> Package::getPartNames() const {
    core_->requireOpen();
    std::vector<PartName> names;
    names.reserve(core_->order.size());
    for (auto const* entry : core_->order) names.push_back(entry->name);
    return names;
}

bool Package::hasPart(PartName const& name) const {
    core_->requireOpen();
    return core_->find(name) != nullptr;
}

Part Package::getPart(PartName const& name) const {
    core_->requireOpen();
    auto* entry = core_->find(name);
    if (!entry) throw Exception("no part " + toUtf8(name.toString()) + " in the package");
    return Part(core_, entry);
}

Part Package::createPart(PartName const& name, ContentType const& type, StandardPartInfo const& info) {
    auto& core = *core_;
    core.requireWritable();
    std::string problem = name.validationProblem();
    std::string key = partKey(name.toString());
    if (problem.empty() && (key == partKey(u"/[Content_Types].xml") || isRelationshipItem(key)))
        problem = "the name is reserved for the package's own items";
    if (!problem.empty())
        throw Exception("cannot create the part " + toUtf8(name.toString()) + ": " + problem);
    if (core.parts.count(key)) throw Exception("the part " + toUtf8(name.toString()) + " exists already");
    if (type.toString().empty())
        throw Exception("the part " + toUtf8(name.toString()) + " needs a content type");

    auto entry = std::make_unique<detail::PartEntry>();
    entry->name = name;
    entry->itemName = name.toString().substr(1);
    entry->type = type;
    entry->dirty = true;
    entry->compress = info.getCompressionType() != 0;
    entry->sizeHint = std::min<std::size_t>(info.getSizeHint(), std::size_t(1) << 26);
    // Like PowerPoint: media get a Default by extension, everything else an
    // Override. A new Default can't change the type of a stored part, since a
    // part of that extension without Override had no type at all.
    if (core.types.typeOf(name.toString()) != type.toString()) {
        std::u16string extension = extensionOf(name.toString());
        std::u16string last = lastSegment(name.toString());
        if (!extension.empty() && extension != u"xml" && extension != u"rels" &&
            !core.types.defaultIndex.count(extension))
            core.types.setDefault(last.substr(last.rfind(u'.') + 1), type.toString());
        else
            core.types.setOverride(name.toString(), type.toString());
    }
    auto* raw = entry.get();
    core.order.push_back(raw);
    core.parts.emplace(key, std::move(entry));
    return Part(core_, raw);
}

}  // namespace model
}  // namespace opc
