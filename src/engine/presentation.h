// The root of one output file. A presentation reads its template at `open`,
// makes the output file right away as a copy of the template, lets script
// code fill its slides, and renders them into that file at `close`. The
// template file itself is only ever read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "engine/placeholder_roles.h"
#include "engine/ppt_node.h"
#include "engine/slide.h"

namespace deckforge {

class HvContent;

namespace ppt {

class Paragraph;
class PartDOMBuilder;
class PresentationModel;
class TemplateLayout;

// The life of a presentation. It only moves forward, except that a rejected
// template (ParseFailed) may be opened again.
enum class PresentationState : std::int32_t {
    Initial = 0,      // constructed, nothing read
    Parsing = 1,      // the template parser is running, or died unreported
    ParseFailed = 2,  // the parser rejected the template
    Parsed = 3,       // model and slides made; no output file yet
    Open = 4,         // the output file exists; the tree may be filled
    Closed = 5        // the output file has been written
};

// The two paths of a presentation.
class Report {
public:
    virtual ~Report();

    // Copied by clone; nothing else reads it.
    bool flag = true;
    u16string templatePath;
    u16string outputPath;
};

class PresentationImpl : public PPTNodeImpl {
public:
    // The default template under the host's root, no output path.
    PresentationImpl();
    explicit PresentationImpl(u16string const& outputPath);
    // The default template path isn't computed here.
    PresentationImpl(u16string const& outputPath, u16string const& templatePath);
    // Removes the temporary copy of the template. There is no implicit
    // close: a presentation dropped while open leaves the output as the
    // copy of the template.
    ~PresentationImpl() override;

    char const* getFullyQualifiedHobjTypeName() const override;
    PPTNodePtr makeInterface() override;
    // Clones the slides and the paths; the clone has no model, so it can't
    // be written.
    PPTNodePtr clone() const override;
    NodeType getNodeType() const override;
    // Opens first; appends only while Parsed or Open, and silently does
    // nothing in any other state.
    void appendChild(PPTNodePtr child) override;

    // Reads the template and creates the output file. False when the state
    // doesn't allow it (already opened, or dead after a failure).
    virtual bool open();
    // Renders the slides into the output file. False, and nothing done,
    // unless Open.
    virtual bool close();

    u16string const& getTemplatePath() const { return mReport->templatePath; }
    u16string const& getOutputPath() const { return mReport->outputPath; }
    // Normalise the path and check its directory. Once Open or Closed the
    // path stays and the caller gets a warning instead.
    void setTemplatePath(u16string const& path);
    void setOutputPath(u16string const& path);
    bool getFlag() const { return mReport->flag; }
    void setFlag(bool flag) { mReport->flag = flag; }

    // Each of these opens first; without a model they give shared empties.
    std::vector<u16string> const& getMasterNames();
    std::vector<u16string> const& getLayoutNames(u16string const& masterName);
    // (style name, style id) pairs, read from the model once.
    std::vector<std::pair<u16string, u16string>> const& getTableStyleNames();

    // Every layout of every master with its placeholders; opens first.
    std::vector<LayoutDescription> describe();

    // Nodes of that name on all slides; opens first. When no shape of the
    // deck bears the name, a role name gives each slide's placeholder of
    // that role (engine/placeholder_roles.h). The operations by name
    // (adding a paragraph, replacing content) go over these hits in order
    // and dispatch on each hit's NodeType.
    PPTNodeList find(u16string const& name);
    // Over find(name), on all slides (see engine/named_content.h). There is
    // no add(name, text): two texts name a layout and its master.
    void add(u16string const& name, Paragraph const& paragraph);
    void replace(u16string const& name, u16string const& text);
    void replace(u16string const& name, Paragraph const& paragraph);
    void replace(u16string const& name, boost::shared_ptr<HvContent> const& content);
    // A new slide from the first layout of that name (or that master's
    // layout of that name), at the end, at `index`, or before `before`.
    // An index at or past the end, or a `before` that is no child, appends.
    Slide addSlide(u16string const& layoutName);
    Slide addSlide(u16string const& layoutName, u16string const& masterName);
    Slide addSlide(u16string const& layoutName, std::size_t index);
    Slide addSlide(u16string const& layoutName, u16string const& masterName, std::size_t index);
    Slide addSlide(u16string const& layoutName, PPTNode const& before);
    Slide addSlide(u16string const& layoutName, u16string const& masterName, PPTNode const& before);

    // Deck editing (engine/slide_operations.cpp). Each opens first; a slide
    // that isn't one of this deck's raises slideNotInPresentation. Indexes
    // are zero-based and checked by the caller.
    void removeSlide(PPTNode const& slide);
    void moveSlide(PPTNode const& slide, std::size_t index);
    // A copy with its own part at close, right after the slide or at `index`.
    Slide duplicateSlide(PPTNode const& slide, std::size_t const* index);

    // The core properties as (field, text) in the fixed field order; a
    // field the template lacks is empty text. setProperty raises
    // unknownPropertiesField for a name that is no field, and
    // invalidPropertyValue for a date that isn't ISO 8601.
    std::vector<std::pair<u16string, u16string>> getProperties();
    void setProperty(u16string const& field, u16string const& value);

    PresentationState getState() const { return mState; }
    // For the template parser, which owns the Parsed and ParseFailed moves.
    void setState(PresentationState state) { mState = state; }
    boost::shared_ptr<PresentationModel> const& getModel() const { return mModel; }
    boost::shared_ptr<PartDOMBuilder> const& getDOMBuilder() const { return mDOMBuilder; }
    u16string const& getTempPackagePath() const { return mTempPackagePath; }

    // The table of main content types. The lookups by extension fold it to
    // lower case; a content type must match exactly. Unknown keys give "".
    static u16string const& getExtensionOfContentType(u16string const& contentType);
    static u16string const& getContentTypeOfExtension(u16string const& extension);
    // The extension of a presentation made from a file of this extension:
    // a template gives a presentation, a show stays a show.
    static u16string const& getOutputExtension(u16string const& extension);

    // The path unchanged if it names an extension, else with ".<extension>"
    // appended to its resolved form.
    static u16string withDefaultExtension(u16string const& path, u16string const& extension);

private:
    PresentationImpl(PresentationImpl const& other);
    void initialise();
    // The directory of a path must exist; the file need not.
    static void checkDirectory(u16string const& path);

    // Reads the template into a model through a temporary copy.
    void loadTemplate(u16string const& templatePath);
    void removeTempPackage();
    // A transitional copy of a Strict Open XML template to read it from,
    // removed once the template is read.
    u16string transitionalCopy(u16string const& templatePath);
    void removeStrictCopy();
    // Whether script code can be told: a handle can only be made once one exists.
    bool canReport() const { return getRefCount() != 0; }
    Slide insertSlide(boost::shared_ptr<TemplateLayout> const& layout, std::size_t const* index,
                      PPTNode const* before);
    boost::shared_ptr<TemplateLayout> findLayout(u16string const& layoutName, u16string const* masterName);

    PresentationState mState = PresentationState::Initial;
    boost::shared_ptr<Report> mReport;
    u16string mTempPackagePath;
    u16string mStrictCopyPath;
    boost::shared_ptr<PartDOMBuilder> mDOMBuilder;
    boost::shared_ptr<PresentationModel> mModel;
    std::vector<std::pair<u16string, u16string>> mTableStyleNames;
    std::map<u16string, u16string> mCoreProperties;      // as the template has them
    std::map<u16string, u16string> mAssignedProperties;  // set by script code, written at close
};

class Presentation : public PPTNode {
public:
    Presentation();
    explicit Presentation(u16string const& outputPath);
    Presentation(u16string const& outputPath, u16string const& templatePath);
    explicit Presentation(PPTObjectImpl* impl) : PPTNode(impl) {}

    static boost::shared_ptr<Presentation> cast(PPTNodePtr const& node) {
        return castNode<Presentation>(node);
    }

    bool open() { return presentationImpl()->open(); }
    bool close() { return presentationImpl()->close(); }

    u16string const& getTemplatePath() const { return presentationImpl()->getTemplatePath(); }
    u16string const& getOutputPath() const { return presentationImpl()->getOutputPath(); }
    void setTemplatePath(u16string const& path) { presentationImpl()->setTemplatePath(path); }
    void setOutputPath(u16string const& path) { presentationImpl()->setOutputPath(path); }

    std::vector<u16string> const& getMasterNames() { return presentationImpl()->getMasterNames(); }
    std::vector<u16string> const& getLayoutNames(u16string const& masterName) {
        return presentationImpl()->getLayoutNames(masterName);
    }
    std::vector<std::pair<u16string, u16string>> const& getTableStyleNames() {
        return presentationImpl()->getTableStyleNames();
    }

    PPTNodeList find(u16string const& name) { return presentationImpl()->find(name); }
    std::vector<LayoutDescription> describe() { return presentationImpl()->describe(); }
    void add(u16string const& name, Paragraph const& paragraph) { presentationImpl()->add(name, paragraph); }
    void replace(u16string const& name, u16string const& text) { presentationImpl()->replace(name, text); }
    void replace(u16string const& name, Paragraph const& paragraph) {
        presentationImpl()->replace(name, paragraph);
    }
    void replace(u16string const& name, boost::shared_ptr<HvContent> const& content) {
        presentationImpl()->replace(name, content);
    }
    Slide add(u16string const& layoutName) { return presentationImpl()->addSlide(layoutName); }
    Slide add(u16string const& layoutName, u16string const& masterName) {
        return presentationImpl()->addSlide(layoutName, masterName);
    }
    // `index` is zero-based; the script layer checks its one-based subscript.
    Slide add(u16string const& layoutName, unsigned long index) {
        return presentationImpl()->addSlide(layoutName, static_cast<std::size_t>(index));
    }
    Slide add(u16string const& layoutName, u16string const& masterName, unsigned long index) {
        return presentationImpl()->addSlide(layoutName, masterName, static_cast<std::size_t>(index));
    }
    Slide add(u16string const& layoutName, Slide const& before) {
        return presentationImpl()->addSlide(layoutName, before);
    }
    Slide add(u16string const& layoutName, u16string const& masterName, Slide const& before) {
        return presentationImpl()->addSlide(layoutName, masterName, before);
    }

    void remove(Slide const& slide) { presentationImpl()->removeSlide(slide); }
    void move(Slide const& slide, unsigned long index) {
        presentationImpl()->moveSlide(slide, static_cast<std::size_t>(index));
    }
    Slide duplicate(Slide const& slide) { return presentationImpl()->duplicateSlide(slide, nullptr); }
    Slide duplicate(Slide const& slide, unsigned long index) {
        std::size_t const at = index;
        return presentationImpl()->duplicateSlide(slide, &at);
    }
    std::vector<std::pair<u16string, u16string>> getProperties() { return presentationImpl()->getProperties(); }
    void setProperty(u16string const& field, u16string const& value) {
        presentationImpl()->setProperty(field, value);
    }

    PresentationImpl* presentationImpl() const { return getImplAs<PresentationImpl>(); }
};

}  // namespace ppt
}  // namespace deckforge
