#pragma once

/// These headers are written in C++17, and so is what includes them, or in a later standard. This
/// is the one place that says so; the vendor's headers do with C++11.
#if defined(_MSVC_LANG)
#if _MSVC_LANG < 201703L
#error "the headers of this host need C++17 or later: /std:c++17"
#endif
#elif __cplusplus < 201703L
#error "the headers of this host need C++17 or later: -std=c++17"
#endif
