#pragma once

#include <Core/Enums.h>

#include <string>
#include <vector>

namespace host {

/// A line that a module has written to the log.
struct LogLine {
    std::string text;
    adsk::core::LogLevels level = adsk::core::InfoLogLevel;
    adsk::core::LogTypes type = adsk::core::FileLogType;

    bool operator==(const LogLine&) const = default;
};

/// The log of a host, a part of its state; oldest line first.
struct Log {
    std::vector<LogLine> lines;
};

}  // namespace host
