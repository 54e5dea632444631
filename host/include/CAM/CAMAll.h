#pragma once

#include <Core/LanguageLevel.h>

/// The whole of `adsk::cam`, of which this host has nothing: sources that include it and use none
/// of it compile.
namespace adsk::cam {}
