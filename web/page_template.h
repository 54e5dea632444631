#pragma once

#include <string>

namespace web {

/// The offline page with two marks in place of its data, which docs/page.md describes.
std::string pageTemplate();

}  // namespace web
