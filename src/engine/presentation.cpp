#include "engine/presentation.h"

#include <map>

#include "common/file_utils.h"
#include "engine/named_content.h"
#include "engine/placeholder_roles.h"
#include "engine/template_parser.h"
#include "messages/message.h"
#include "messages/message_dispatcher.h"
#include "package/opc_package.h"
#include "platform/hv.h"
#include "platform/msg_ids.h"
#include "platform/opc/zip_writer.h"
#include "template/core_properties.h"
#include "template/part_dom_builder.h"
#include "template/presentation_model.h"
#include "writers/core_properties_writer.h"
#include "writers/ppt_writer.h"

namespace deckforge {
namespace ppt {

namespace {

u16string const kOfficeDocumentRelationship =
    u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";
u16string const kStrictOfficeDocumentRelationship =
    u"http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument";

struct FileKind {
    u16string extension;
    u16string contentType;
    u16string outputExtension;
};

std::vector<FileKind> const& fileKinds() {
    static std::vector<FileKind> const kinds = {
        {u"pptx", u"application/vnd.openxmlformats-officedocument.presentationml.presentation.main+xml",
         u"pptx"},
        {u"pptm", u"application/vnd.ms-powerpoint.presentation.macroEnabled.main+xml", u"pptm"},
        {u"potx", u"application/vnd.openxmlformats-officedocument.presentationml.template.main+xml", u"pptx"},
        {u"potm", u"application/vnd.ms-powerpoint.template.macroEnabled.main+xml", u"pptm"},
        {u"ppsx", u"application/vnd.openxmlformats-officedocument.presentationml.slideshow.main+xml",
         u"ppsx"},
        {u"ppsm", u"application/vnd.ms-powerpoint.slideshow.macroEnabled.main+xml", u"ppsm"},
    };
    return kinds;
}

u16string const& lookUp(std::map<u16string, u16string> const& table, u16string const& key) {
    static u16string const empty;
    auto it = table.find(key);
    return it == table.end() ? empty : it->second;
}

MessageFilter dispatcherFilter() {
    return MessageDispatcher::getTheDispatcher().getMessageFilter();
}

// The main part's content type of the template, or empty text if the package
// names no main part; `strict` tells whether the package reaches its main
// part as Strict Open XML does. A file that is no package fails in the
// reader's constructor (cannotOpenFile of ppt_error); the lookups are guarded
// apart.
u16string readMainContentType(u16string const& templatePath, bool& strict) {
    OPCPartReader reader(templatePath);
    try {
        u16string mainPart = reader.getRelatedPartName(kOfficeDocumentRelationship);
        strict = false;
        if (mainPart.empty()) {
            mainPart = reader.getRelatedPartName(kStrictOfficeDocumentRelationship);
            strict = !mainPart.empty();
        }
        if (mainPart.empty() || !reader.hasPart(mainPart)) return u16string();
        return reader.getPart(mainPart).getContentType().toString();
    } catch (opc::Exception const& e) {
        raise<dom_error::cannotOpenFile>(toString(std::string(e.what())));
    } catch (deckforge::Exception const& e) {
        raise<dom_error::cannotOpenFile>(toString(std::string(e.what())));
    }
}

}  // namespace

Report::~Report() = default;

// ---- Construction

PresentationImpl::PresentationImpl() {
    initialise();
    setTemplatePath(FileUtils::appendPath(
        FileUtils::getQuorixroot(), u"toolbox/shared/deckforge/ppt/resources/templates/pptx/default.pptx"));
    reportCreated();
}

PresentationImpl::PresentationImpl(u16string const& outputPath) {
    initialise();
    setTemplatePath(FileUtils::appendPath(
        FileUtils::getQuorixroot(), u"toolbox/shared/deckforge/ppt/resources/templates/pptx/default.pptx"));
    setOutputPath(outputPath);
    reportCreated();
}

PresentationImpl::PresentationImpl(u16string const& outputPath, u16string const& templatePath) {
    initialise();
    setOutputPath(outputPath);
    setTemplatePath(templatePath);
    reportCreated();
}

PresentationImpl::PresentationImpl(PresentationImpl const& other)
    : PPTNodeImpl(other), mState(other.mState), mReport(boost::make_shared<Report>()) {
    mReport->flag = other.mReport->flag;
    mReport->templatePath = other.mReport->templatePath;
    mReport->outputPath = other.mReport->outputPath;
    reportCreated();
}

void PresentationImpl::initialise() {
    mState = PresentationState::Initial;
    mReport = boost::make_shared<Report>();
    mTempPackagePath.clear();
}

PresentationImpl::~PresentationImpl() {
    reportDestroyed();
    try {
        removeTempPackage();
        removeStrictCopy();
    } catch (...) {
        // A temporary file that can't be removed is not worth a crash.
    }
}

char const* PresentationImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.Presentation";
}

PPTNodePtr PresentationImpl::makeInterface() {
    return boost::make_shared<Presentation>(this);
}

PPTNodePtr PresentationImpl::clone() const {
    return (new PresentationImpl(*this))->makeInterface();
}

NodeType PresentationImpl::getNodeType() const {
    return NodeType::Presentation;
}

// ---- Paths

void PresentationImpl::setTemplatePath(u16string const& path) {
    if (mState == PresentationState::Open || mState == PresentationState::Closed) {
        if (canReport() && dispatcherFilter().getWarningMessagesPass())
            MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(
                resource_core::makeMsgID<ppt_warning::cannotChangeTemplatePath>(), Presentation(this)));
        hvWarningMsgId(resource_core::makeMsgID<ppt_warning::cannotChangeTemplatePath>());
        return;
    }
    u16string const normalized = FileUtils::normalizePath(path);
    checkDirectory(normalized);
    mReport->templatePath = normalized;
}

void PresentationImpl::setOutputPath(u16string const& path) {
    if (mState == PresentationState::Open || mState == PresentationState::Closed) {
        if (canReport() && dispatcherFilter().getWarningMessagesPass())
            MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(
                resource_core::makeMsgID<ppt_warning::cannotChangeOutputPath>(), Presentation(this)));
        hvWarningMsgId(resource_core::makeMsgID<ppt_warning::cannotChangeOutputPath>());
        return;
    }
    u16string const normalized = FileUtils::normalizePath(path);
    checkDirectory(normalized);
    mReport->outputPath = normalized;
}

void PresentationImpl::checkDirectory(u16string const& path) {
    // Only the directory must exist: the file may come later, and a bare
    // file name is taken as it is.
    u16string const directory = FileUtils::extractPath(path, false);
    if (directory.empty()) return;
    try {
        FileUtils::resolvePath(directory);
    } catch (PathNotFound const& e) {
        raise<ppt_error::pathNotFound>(e.path().empty() ? directory : e.path());
    } catch (FileSystem const&) {
        raise<dom_error::invalidFilePath>(directory);
    } catch (deckforge::Exception const&) {
        raise<dom_error::failedToDetermineFilename>();
    }
}

u16string PresentationImpl::withDefaultExtension(u16string const& path, u16string const& extension) {
    if (!FileUtils::getFileNameExtension(path).empty()) return path;
    return FileUtils::appendPath(FileUtils::extractPath(path, true),
                                 FileUtils::extractFilename(path) + u"." + extension);
}

// ---- The table of file kinds

u16string const& PresentationImpl::getExtensionOfContentType(u16string const& contentType) {
    static std::map<u16string, u16string> const table = [] {
        std::map<u16string, u16string> t;
        for (auto const& kind : fileKinds()) t.emplace(kind.contentType, kind.extension);
        return t;
    }();
    return lookUp(table, contentType);
}

u16string const& PresentationImpl::getContentTypeOfExtension(u16string const& extension) {
    static std::map<u16string, u16string> const table = [] {
        std::map<u16string, u16string> t;
        for (auto const& kind : fileKinds()) t.emplace(kind.extension, kind.contentType);
        return t;
    }();
    return lookUp(table, toLowerString(extension));
}

u16string const& PresentationImpl::getOutputExtension(u16string const& extension) {
    static std::map<u16string, u16string> const table = [] {
        std::map<u16string, u16string> t;
        for (auto const& kind : fileKinds()) t.emplace(kind.extension, kind.outputExtension);
        return t;
    }();
    return lookUp(table, toLowerString(extension));
}

// ---- open

bool PresentationImpl::open() {
    if (mState != PresentationState::Initial && mState != PresentationState::ParseFailed) return false;

    // The report keeps an empty output path until the open has succeeded.
    u16string const outputName = mReport->outputPath.empty() ? u16string(u"untitled") : mReport->outputPath;
    FileUtils::validateFileName(outputName);

    u16string const templatePath = withDefaultExtension(mReport->templatePath, u"pptx");
    // The content decides, not the name: a template called ".pptx" whose main
    // part is a document is refused, and any name with a presentation inside
    // is accepted.
    removeStrictCopy();
    bool strict = false;
    u16string const templateType = readMainContentType(templatePath, strict);
    // A Strict Open XML template is read through a transitional copy of it,
    // so that the deck written from it is transitional throughout.
    u16string const readPath = strict ? transitionalCopy(templatePath) : templatePath;
    u16string const& templateExtension = getExtensionOfContentType(templateType);
    if (templateExtension.empty()) raise<ppt_error::invalidFileExtension>(templatePath);

    u16string const outputPath = withDefaultExtension(outputName, getOutputExtension(templateExtension));
    u16string const outputType = getContentTypeOfExtension(FileUtils::getFileNameExtension(outputPath));
    if (outputType.empty() || getExtensionOfContentType(outputType).empty())
        raise<ppt_error::invalidFileExtension>(outputPath);

    try {
        loadTemplate(readPath);
    } catch (deckforge::Exception const& e) {
        removeStrictCopy();
        raise<ppt_error::cannotOpenTemplate>(toString(std::string(e.what())));
    }
    removeStrictCopy();

    // Parsed now, so the setters take the final paths.
    setTemplatePath(templatePath);
    setOutputPath(outputPath);

    try {
        FileUtils::copyPackage(mTempPackagePath, mReport->outputPath, outputType);
        mState = PresentationState::Open;
        removeTempPackage();
    } catch (...) {
        raise<ppt_error::cannotOpenFile>(mReport->outputPath);
    }
    return true;
}

u16string PresentationImpl::transitionalCopy(u16string const& templatePath) {
    mStrictCopyPath = FileUtils::getTempName() + u"." + FileUtils::getFileNameExtension(templatePath);
    u16string unmapped;
    try {
        unmapped = FileUtils::convertStrictPackage(templatePath, mStrictCopyPath);
    } catch (deckforge::Exception const& e) {
        removeStrictCopy();
        raise<ppt_error::cannotOpenTemplate>(toString(std::string(e.what())));
    }
    if (!unmapped.empty()) {
        removeStrictCopy();
        raise<ppt_error::strictTemplateUnsupported>(templatePath, unmapped);
    }
    return mStrictCopyPath;
}

void PresentationImpl::removeStrictCopy() {
    if (mStrictCopyPath.empty()) return;
    FileUtils::removeFile(mStrictCopyPath);
    mStrictCopyPath.clear();
}

void PresentationImpl::loadTemplate(u16string const& templatePath) {
    if (canReport() && dispatcherFilter().getProgressMessagesPass())
        MessageDispatcher::getTheDispatcher().dispatch(ProgressMessage(
            resource_core::makeMsgID<ppt_progress::docParsingTemplateMsg>(mReport->templatePath),
            Presentation(this)));

    // A second attempt after a failed one starts clean.
    removeTempPackage();
    // All later work reads the copy; the template itself is never opened for
    // writing.
    u16string const tempPath =
        FileUtils::getTempName() + u"." + FileUtils::getFileNameExtension(templatePath);
    FileUtils::copyFile(templatePath, tempPath, true);
    mTempPackagePath = tempPath;

    auto templatePackage = boost::make_shared<OPCPackage>(templatePath);
    templatePackage->openForRead(false);
    mDOMBuilder = boost::make_shared<PartDOMBuilder>(templatePackage);

    auto tempPackage = boost::make_shared<OPCPackage>(mTempPackagePath);
    tempPackage->openForUpdate(false);

    TemplateParser parser(mDOMBuilder, tempPackage, this);
    mState = PresentationState::Parsing;
    mModel = parser.parse();
    mState = PresentationState::Parsed;
    mCoreProperties = readCoreProperties(*mDOMBuilder);

    templatePackage->close();
    tempPackage->close();
}

void PresentationImpl::removeTempPackage() {
    if (mTempPackagePath.empty()) return;
    FileUtils::removeFile(mTempPackagePath);
    mTempPackagePath.clear();
}

// ---- close

bool PresentationImpl::close() {
    if (mState != PresentationState::Open) return false;

    auto package = boost::make_shared<OPCPackage>(mReport->outputPath);
    package->openForUpdate(false);
    {
        // On the stack rather than behind a smart pointer, whose release may
        // not throw: the writer's end stores presentation.xml, and a failure
        // there must reach the caller.
        PPTWriter writer(this, package);
        // A copy, so that a writer's change of the tree can't shift the walk.
        PPTNodeList const slides = getChildren();
        for (auto const& slide : slides) writer.write(slide);
        mState = PresentationState::Closed;
    }
    writeCoreProperties(package, mAssignedProperties, opc::zippackage::sourceDateEpoch());
    // Explicitly, so that a failure of the final zip write reaches the
    // caller instead of dying in the package's destructor.
    package->close();
    return true;
}

// ---- The tree

void PresentationImpl::appendChild(PPTNodePtr child) {
    open();
    if (mState != PresentationState::Parsed && mState != PresentationState::Open) return;
    PPTNodeImpl::appendChild(child);
    if (canReport() && dispatcherFilter().getProgressMessagesPass())
        MessageDispatcher::getTheDispatcher().dispatch(ProgressMessage(
            resource_core::makeMsgID<ppt_progress::appendChildMsg>(child ? child->getTag() : u16string()),
            Presentation(this)));
}

std::vector<u16string> const& PresentationImpl::getMasterNames() {
    static std::vector<u16string> const empty;
    open();
    return mModel ? mModel->getMasterNames() : empty;
}

std::vector<u16string> const& PresentationImpl::getLayoutNames(u16string const& masterName) {
    static std::vector<u16string> const empty;
    open();
    return mModel ? mModel->getLayoutNames(masterName) : empty;
}

std::vector<std::pair<u16string, u16string>> const& PresentationImpl::getTableStyleNames() {
    open();
    if (mModel && mTableStyleNames.empty()) mModel->getTableStyleNames(mTableStyleNames);
    return mTableStyleNames;
}

PPTNodeList PresentationImpl::find(u16string const& name) {
    open();
    PPTNodeList result;
    findNodes(name, makeInterface(), result);
    if (!result.empty()) return result;
    // No shape of the deck bears the name: a role name reaches its
    // placeholder on each slide.
    for (auto const& child : getChildren()) {
        if (auto slide = Slide::cast(child)) slide->slideImpl()->findRole(name, result);
    }
    return result;
}

std::vector<LayoutDescription> PresentationImpl::describe() {
    open();
    return mModel ? describeLayouts(*mModel) : std::vector<LayoutDescription>();
}

// find() opens, so none of these needs an open presentation.
void PresentationImpl::add(u16string const& name, Paragraph const& paragraph) {
    addParagraphToEach(find(name), paragraph);
}

void PresentationImpl::replace(u16string const& name, u16string const& text) {
    replaceTextInEach(find(name), text);
}

void PresentationImpl::replace(u16string const& name, Paragraph const& paragraph) {
    replaceParagraphInEach(find(name), paragraph);
}

void PresentationImpl::replace(u16string const& name, boost::shared_ptr<HvContent> const& content) {
    replaceContentInEach(find(name), content);
}

// ---- Adding slides

boost::shared_ptr<TemplateLayout> PresentationImpl::findLayout(u16string const& layoutName,
                                                               u16string const* masterName) {
    open();
    boost::shared_ptr<TemplateLayout> layout;
    // A presentation without a model (a clone, or one whose parser died)
    // has no layouts to offer.
    if (mModel)
        layout = masterName ? mModel->findLayout(layoutName, *masterName) : mModel->findLayout(layoutName);
    if (!layout || !layout->shapes) {
        if (masterName) raise<ppt_error::invalidLayoutOrSlideMasterName>(layoutName, *masterName);
        raise<ppt_error::invalidLayoutName>(layoutName);
    }
    return layout;
}

Slide PresentationImpl::insertSlide(boost::shared_ptr<TemplateLayout> const& layout, std::size_t const* index,
                                    PPTNode const* before) {
    // The file is written: a slide added now stays in the tree but never
    // reaches it, which its author should hear of.
    if (mState == PresentationState::Closed) {
        auto const id = resource_core::makeMsgID<ppt_warning::slideAddedAfterClose>(mReport->outputPath);
        if (canReport() && dispatcherFilter().getWarningMessagesPass())
            MessageDispatcher::getTheDispatcher().dispatch(WarningMessage(id, Presentation(this)));
        hvWarningMsgId(id);
    }
    boost::shared_ptr<Slide> slide = SlideImpl::createFromLayout(*mModel, layout);
    // Not through the presentation's own append: a new slide needs no state
    // test and makes no message.
    if (index)
        PPTNodeImpl::insertChild(slide, *index);
    else if (before)
        PPTNodeImpl::insertChild(slide, *before);
    else
        PPTNodeImpl::appendChild(slide);
    return *slide;
}

Slide PresentationImpl::addSlide(u16string const& layoutName) {
    return insertSlide(findLayout(layoutName, nullptr), nullptr, nullptr);
}

Slide PresentationImpl::addSlide(u16string const& layoutName, u16string const& masterName) {
    return insertSlide(findLayout(layoutName, &masterName), nullptr, nullptr);
}

Slide PresentationImpl::addSlide(u16string const& layoutName, std::size_t index) {
    return insertSlide(findLayout(layoutName, nullptr), &index, nullptr);
}

Slide PresentationImpl::addSlide(u16string const& layoutName, u16string const& masterName,
                                 std::size_t index) {
    return insertSlide(findLayout(layoutName, &masterName), &index, nullptr);
}

Slide PresentationImpl::addSlide(u16string const& layoutName, PPTNode const& before) {
    return insertSlide(findLayout(layoutName, nullptr), nullptr, &before);
}

Slide PresentationImpl::addSlide(u16string const& layoutName, u16string const& masterName,
                                 PPTNode const& before) {
    return insertSlide(findLayout(layoutName, &masterName), nullptr, &before);
}

// ---- Handles

Presentation::Presentation() : PPTNode(new PresentationImpl()) {}

Presentation::Presentation(u16string const& outputPath) : PPTNode(new PresentationImpl(outputPath)) {}

Presentation::Presentation(u16string const& outputPath, u16string const& templatePath)
    : PPTNode(new PresentationImpl(outputPath, templatePath)) {}

}  // namespace ppt
}  // namespace deckforge
