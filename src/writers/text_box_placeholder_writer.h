// The writer of every placeholder class that still stands on its slide: it
// changes the placeholder's element in place, as for a text box. An unfilled
// placeholder comes out with one empty paragraph and inherits the rest from
// its layout.
#pragma once

#include "nodes/text_box_placeholder.h"
#include "writers/base_text_box_writer.h"

namespace deckforge {
namespace ppt {

class TextBoxPlaceholderWriter : public BaseTextBoxWriter {
public:
    TextBoxPlaceholderWriter(TextBoxPlaceholderImpl const* placeholder, PPTWriter* writer,
                             xercesc::DOMNode* parent)
        : BaseTextBoxWriter(placeholder, writer, parent), placeholder(placeholder) {}

    TextBoxPlaceholderImpl const* getPlaceholder() const { return placeholder; }

private:
    TextBoxPlaceholderImpl const* placeholder;
};

}  // namespace ppt
}  // namespace deckforge
