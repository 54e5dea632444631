#pragma once

#include <string>

/// The pages that palettes show, as far as the program has them.
namespace workbench::serve {

/// The address on this server of a page that a palette asks for, such as "/site/units/page.htm"; an
/// empty string for one that is elsewhere.
std::string localPage(const std::string& address);

/// The content of a page by its path below "/site"; null where there is none.
const std::string* pageContent(const std::string& path);

}  // namespace workbench::serve
