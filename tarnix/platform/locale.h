#pragma once

#include <string>

namespace tarnix::platform {

/// Makes the locale "Czech" (on Linux that is cs_CZ.UTF-8) the global one of the process, where it
/// stays. Throws a `std::runtime_error`, "bad locale name", where the system does not have it; the
/// locale is then as it was.
void useCzechLocale();

/// A string in the lower case of the process's locale: each byte by itself, as `char` is
/// classified.
std::string lowerCase(std::string text);

}  // namespace tarnix::platform
