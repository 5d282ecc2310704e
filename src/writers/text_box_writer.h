// The writer of a free text box; it renders as every box does.
#pragma once

#include "nodes/text_box.h"
#include "writers/base_text_box_writer.h"

namespace deckforge {
namespace ppt {

class TextBoxWriter : public BaseTextBoxWriter {
public:
    TextBoxWriter(TextBoxImpl const* textBox, PPTWriter* writer, xercesc::DOMNode* parent)
        : BaseTextBoxWriter(textBox, writer, parent), textBox(textBox) {}

    TextBoxImpl const* getTextBox() const { return textBox; }

private:
    TextBoxImpl const* textBox;
};

}  // namespace ppt
}  // namespace deckforge
