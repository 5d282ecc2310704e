// Placeholders by what they are for. Templates name their placeholders as
// their authors' tools did ("Shape 13", "Titel 1", "PlaceHolder 2"), so
// script code may also reach them by role: "Title", "Content 2". A role
// stands for the placeholder types of one purpose:
//   Title        title, ctrTitle
//   Subtitle     subTitle
//   Content      obj (a placeholder without a type), and the body
//                placeholders of a content slot (see bodyIsContent)
//   Text         the other body placeholders
//   Picture      pic, clipArt
//   Table, Chart, Date, Footer, SlideNumber, Diagram, Media, Header
// A body placeholder holds the content of its slide when the layout has no
// placeholder for content of its own, neither an object placeholder nor a
// picture, table, chart, diagram or media one (LibreOffice and Google Slides
// give their "Title, Content" layouts body placeholders; a caption beside a
// picture is text), unless the layout is a
// section header, whose body is a line of text under the heading, or the
// placeholder is a quarter-size one, which PowerPoint's layouts use for
// headings and captions beside content.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "engine/ppt_node.h"

namespace deckforge {
namespace ppt {

class PresentationModel;
class SlideImpl;

// One placeholder of a layout as a user sees it: its name, role, index and
// box (lengths as text with units, empty where neither the layout nor its
// master places it).
struct PlaceholderDescription {
    u16string name;
    u16string role;
    std::uint32_t index = 0;
    u16string x, y, width, height;
};

struct LayoutDescription {
    u16string master;
    u16string layout;
    std::vector<PlaceholderDescription> placeholders;
};

// Every layout of every master, masters and layouts in the template's order,
// placeholders in document order.
std::vector<LayoutDescription> describeLayouts(PresentationModel const& model);

// Splits "Content 2" into its role and 1-based ordinal; "Title" is ordinal 1.
// False when the name is no role.
bool parseRoleName(u16string const& name, u16string& role, std::size_t& ordinal);

// The placeholder of the role and ordinal on the slide, in the slide's order,
// appended to `result`; nothing when the slide has fewer of that role.
void findByRole(SlideImpl& slide, u16string const& role, std::size_t ordinal, PPTNodeList& result);

}  // namespace ppt
}  // namespace deckforge
