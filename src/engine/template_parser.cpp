#include "engine/template_parser.h"

#include "engine/presentation.h"
#include "engine/slide.h"
#include "platform/msg_ids.h"
#include "template/presentation_model.h"

namespace deckforge {
namespace ppt {

TemplateParser::TemplateParser(boost::shared_ptr<PartDOMBuilder> partBuilder_,
                               boost::shared_ptr<OPCPackage> package_, PresentationImpl* presentation_)
    : partBuilder(std::move(partBuilder_)), package(std::move(package_)), presentation(presentation_) {}

TemplateParser::~TemplateParser() = default;

boost::shared_ptr<PresentationModel> TemplateParser::parse() {
    // A repeated open starts without the slides of the failed one.
    presentation->clearChildren();

    auto model = boost::make_shared<PresentationModel>(partBuilder);
    auto reject = [this] {
        presentation->setState(PresentationState::ParseFailed);
        raise<ppt_error::invalidTemplate>(partBuilder->getPath());
    };
    if (!model->load()) reject();
    presentation->setState(PresentationState::Parsed);

    // A copy: appending runs code of the presentation, which must not see
    // the model's list change under it.
    TemplateSlideList const slides = *model->getSlides();
    for (auto const& record : slides) {
        if (!record || !record->layout || !record->layout->master) reject();

        auto* impl = new SlideImpl();
        PPTNodePtr slide = impl->makeInterface();
        impl->setLayoutName(record->layout->name);
        impl->setSlideMasterName(record->layout->master->name);
        impl->setName(record->name);
        impl->setTemplateSlide(record);
        // Through the virtual append, so that each slide is reported.
        presentation->appendChild(slide);
        impl->makeChildNodes();
    }
    return model;
}

}  // namespace ppt
}  // namespace deckforge
