// Speaker notes at close: a notes slide part for each slide whose notes were
// set, and the notes master that those parts need, which a template without
// one gets (with a theme of its own, as the format wants every master to
// have one).
#pragma once

#include "common/strings.h"
#include "template/template_records.h"

namespace deckforge {
namespace ppt {

class PPTWriter;

class NotesWriter {
public:
    explicit NotesWriter(PPTWriter* writer) : writer(writer) {}

    // After the slide's own part exists: drops the slide's relationship to
    // notes it had, and relates it to a new notes part unless the notes are
    // now empty. Does nothing for a slide whose notes weren't changed.
    void write(TemplateSlide const& slide);

    // The notes slide markup of the paragraphs: a slide image placeholder
    // and a body placeholder that holds them.
    static std::string notesSlideXml(NotesParagraphs const& paragraphs);
    // The slide image keeps the slide's proportions (cx by cy).
    static std::string notesMasterXml(long slideWidth, long slideHeight);

private:
    // The presentation's notes master part, made if it has none.
    u16string notesMaster();

    PPTWriter* writer;
};

}  // namespace ppt
}  // namespace deckforge
