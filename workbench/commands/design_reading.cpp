#include "workbench/commands/design_reading.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"
#include "workbench/output/progress_line.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"
#include "host/design/reading_error.h"
#include "host/import/read_design.h"
#include "host/import/read_tree.h"
#include "host/session/environment.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <functional>
#include <utility>

namespace workbench {
namespace {

using Warnings = std::vector<host::ReadingWarning>;

using Read = decltype(host::readTree);

/// The option that increases a limit.
const char* optionOf(host::ReadingLimit limit) {
    switch (limit) {
        case host::ReadingLimit::Seconds:
            return "--max-seconds";
        case host::ReadingLimit::Megabytes:
            return "--max-memory";
        case host::ReadingLimit::Occurrences:
            break;
    }
    return "--max-occurrences";
}

/// The message of a failed reading, with the option that increases the limit it was refused for.
std::string namingOption(const host::ReadingError& error) {
    const std::string message = error.what();
    return error.limit() ? message + " (" + optionOf(*error.limit()) + ")" : message;
}

host::DesignData readFile(Read& read, const std::string& file, const ReadingOptions& reading,
                          const host::ImportProgress& progress, Warnings& warnings) {
    try {
        return read(host::fromUtf8(file), reading.limits, progress, warnings,
                    reading.noCache ? host::ReadingCache() : readingCache());
    } catch (const host::ReadingError& error) {
        throw Failure(ExitCode::BadInput, namingOption(error));
    } catch (const std::exception& error) {
        throw Failure(ExitCode::BadInput, error.what());
    }
}

host::DesignData readWithProgress(Read& read, const std::string& file,
                                  const ReadingOptions& reading, Warnings& warnings) {
    ProgressLine line;
    constexpr double kPercent = 100;
    const auto progress = [&](const std::string& stage, double fraction) {
        line.show(printable(stage) + " " + printable(file) + " " +
                  std::to_string(static_cast<int>(fraction * kPercent)) + " %");
    };
    host::DesignData design = readFile(read, file, reading, progress, warnings);
    line.show("");
    return design;
}

/// Puts the user's choice in the place of what is assumed.
void useMaterial(host::DesignData& design, const host::MaterialData& chosen) {
    for (host::ComponentData& component : design.components) {
        if (!component.material) {
            continue;
        }
        const host::MaterialData& own = *component.material;
        if (own.densityAssumed && (own.nameAssumed || own.name == chosen.name)) {
            component.material = chosen;
        }
    }
}

/// Warns of what is assumed of so many of all parts with a material.
void warnOf(const std::string& file, const host::DesignData& design, const std::string& code,
            const std::string& text,
            const std::function<bool(const host::MaterialData&)>& isAssumed, Warnings& warnings) {
    std::size_t parts = 0;
    std::size_t assumed = 0;
    for (const host::ComponentData& component : design.components) {
        if (component.geometry != nullptr && component.material) {
            ++parts;
            assumed += isAssumed(*component.material) ? 1U : 0U;
        }
    }
    if (assumed > 0) {
        host::ReadingWarning warning;
        warning.code = code;
        warning.file = file;
        warning.text = std::to_string(assumed) + " of " + std::to_string(parts) +
                       (parts == 1 ? " part " : " parts ") + (assumed == 1 ? "has " : "have ") +
                       text;
        warnings.push_back(std::move(warning));
    }
}

void warnOfAssumed(const std::string& file, const host::DesignData& design, Warnings& warnings) {
    const std::string change = " assumed (--material NAME=DENSITY to change)";
    warnOf(
        file, design, "material-assumed", "no material: " + host::defaultMaterial().name + change,
        [](const host::MaterialData& each) { return each.nameAssumed; }, warnings);
    warnOf(
        file, design, "density-assumed",
        "a material without density: that of " + host::defaultMaterial().name + change,
        [](const host::MaterialData& each) { return each.densityAssumed && !each.nameAssumed; },
        warnings);
}

void refuseWarnings(const std::string& file, std::size_t count) {
    if (count > 0) {
        throw Failure(ExitCode::BadInput,
                      file + ": " + std::to_string(count) +
                          (count == 1 ? " warning, which --strict makes a failure"
                                      : " warnings, which --strict makes a failure"));
    }
}

/// What the user chose to be in the place of what the file lacks, and what was assumed.
void applyMaterial(const std::string& file, const ReadingOptions& reading, host::DesignData& design,
                   Warnings& warnings) {
    if (reading.material) {
        useMaterial(design, *reading.material);
    }
    warnOfAssumed(file, design, warnings);
}

host::DesignData readBy(Read& read, const std::string& file, const ReadingOptions& reading,
                        Warnings& warnings) {
    host::DesignData design = readWithProgress(read, file, reading, warnings);
    applyMaterial(file, reading, design, warnings);
    reportWarnings(warnings);
    if (reading.strict) {
        refuseWarnings(file, warnings.size());
    }
    return design;
}

}  // namespace

host::ReadingCache readingCache() {
    host::ReadingCache cache;
    if (const std::filesystem::path folder = host::environment::userCacheFolder();
        !folder.empty()) {
        cache.folder = folder / "tarnix-workbench" / "readings";
    }
    return cache;
}

host::DesignData readDesign(const std::string& file, const ReadingOptions& reading,
                            Warnings* warnings) {
    Warnings all;
    host::DesignData design = readBy(host::readDesign, file, reading, all);
    if (warnings != nullptr) {
        *warnings = std::move(all);
    }
    return design;
}

host::DesignData readReporting(const std::string& file, const ReadingOptions& reading,
                               const host::ImportProgress& progress, Warnings& warnings) {
    host::DesignData design = readFile(host::readDesign, file, reading, progress, warnings);
    applyMaterial(file, reading, design, warnings);
    return design;
}

host::DesignData readSilently(const std::string& file, const ReadingOptions& reading,
                              ReadingDepth depth, Warnings& warnings) {
    Read& read = depth == ReadingDepth::Whole ? host::readDesign : host::readTree;
    host::DesignData design = readFile(read, file, reading, {}, warnings);
    applyMaterial(file, reading, design, warnings);
    if (reading.strict) {
        refuseWarnings(file, warnings.size());
    }
    return design;
}

host::DesignData readTree(const std::string& file, const ReadingOptions& reading) {
    Warnings warnings;
    return readBy(host::readTree, file, reading, warnings);
}

}  // namespace workbench
