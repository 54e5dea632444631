#pragma once

/// `_com_error`, which a failing call of the XML document throws: the system's own class where
/// there is one, else one with the same name and the same use. It is not a `std::exception`.
#ifdef _WIN32
#include <comdef.h>
#else
#include "tarnix/platform/posix/com_error.h"
#endif
