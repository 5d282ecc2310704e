// Turns the template package of a presentation being opened into a filled
// model, and each slide that the template already holds into a Slide of the
// presentation. The model knows the parts; this class owns the policy of the
// whole load: what the presentation's state becomes and what is refused.
#pragma once

#include <boost/shared_ptr.hpp>

namespace deckforge {
namespace ppt {

class OPCPackage;
class PartDOMBuilder;
class PresentationImpl;
class PresentationModel;

class TemplateParser {
public:
    // `package` is the temporary copy of the template, kept open for the
    // parser's life; the presentation is not owned.
    TemplateParser(boost::shared_ptr<PartDOMBuilder> partBuilder, boost::shared_ptr<OPCPackage> package,
                   PresentationImpl* presentation);
    virtual ~TemplateParser();
    TemplateParser(TemplateParser const&) = delete;
    TemplateParser& operator=(TemplateParser const&) = delete;

    // Empties the presentation, reads the model and adds a slide for each
    // template slide. invalidTemplate (state ParseFailed) for a package
    // without a presentation part, and for a slide without a layout or
    // master, after the slides before it were added. Errors of reading
    // parts pass through and leave the state Parsing.
    boost::shared_ptr<PresentationModel> parse();

private:
    boost::shared_ptr<PartDOMBuilder> partBuilder;
    boost::shared_ptr<OPCPackage> package;
    PresentationImpl* presentation;
};

}  // namespace ppt
}  // namespace deckforge
