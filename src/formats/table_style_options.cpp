#include "formats/table_style_options.h"

#include <boost/make_shared.hpp>

#include "writers/table_writer.h"

namespace deckforge {
namespace ppt {

TableStyleOptionsImpl::TableStyleOptionsImpl() : mOptions(boost::make_shared<TemplateTableStyleOptions>()) {}

TableStyleOptionsImpl::TableStyleOptionsImpl(TableStyleOptionsImpl const& other)
    : FormatImpl(other), mOptions(boost::make_shared<TemplateTableStyleOptions>(*other.mOptions)) {}

char const* TableStyleOptionsImpl::getFullyQualifiedHobjTypeName() const {
    return "deckforge.ppt.TableStyleOptions";
}
boost::shared_ptr<Format> TableStyleOptionsImpl::makeInterface() {
    return boost::make_shared<TableStyleOptions>(this);
}
FormatType TableStyleOptionsImpl::getFormatType() const {
    return FormatTypeTableStyleOptions;
}
void TableStyleOptionsImpl::applyToTable(TableWriter& writer) const {
    writer.setTableStyleOptions(mOptions);
}
boost::shared_ptr<Format> TableStyleOptionsImpl::clone() const {
    return (new TableStyleOptionsImpl(*this))->makeInterface();
}

TableStyleOptions::TableStyleOptions() : Format(new TableStyleOptionsImpl()) {}
boost::shared_ptr<TableStyleOptions> TableStyleOptions::clone() const {
    return boost::static_pointer_cast<TableStyleOptions>(getImplAs<TableStyleOptionsImpl>()->clone());
}

}  // namespace ppt
}  // namespace deckforge
