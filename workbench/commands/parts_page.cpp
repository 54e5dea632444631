#include "workbench/commands/parts_page.h"

#include "parts/page_writer.h"
#include "web/page_template.h"

#include <sstream>
#include <utility>

namespace workbench {

std::vector<parts::View> pageViews() {
    return {parts::View::Parts, parts::View::Indented, parts::View::Top, parts::View::All};
}

std::string pageFrom(const host::DesignData& design, const std::vector<parts::PartsList>& lists,
                     std::string_view model) {
    std::ostringstream page;
    parts::writePage(web::pageTemplate(), design, lists, model, page);
    return std::move(page).str();
}

}  // namespace workbench
