#pragma once

#include "workbench/cli/common_options.h"
#include "workbench/output/parts_format.h"

#include "parts/parts_list.h"
#include "parts/parts_request.h"

#include <cstdint>
#include <string>
#include <vector>

/// The options of `parts`, as words of the command line or of a profile, and what they ask for.
namespace workbench {

/// They are words until they are a request, since some depend on others.
struct PartsOptions {
    using Words = std::vector<std::string>;

    ReadingOptions reading;
    std::string view = "parts";
    std::string mergeBy = "part-number";
    Words columns;
    Words filters;
    std::string sort;
    std::string units;
    std::int64_t multiply = 1;
    bool comparesShapes = false;
    std::string format;  ///< empty: by the ending of the output
    std::string detail = "normal";
    bool rawTexts = false;  ///< texts that a spreadsheet would run are not marked
    PartsFormat writing;
};

void addPartsOptions(CLI::App& command, PartsOptions& options);

/// "--view", one of the names, and "--merge-by", which are among them.
void addView(CLI::App& command, PartsOptions& options, const std::string& description);
void addMerging(CLI::App& command, PartsOptions& options, const std::string& description);

/// What is to be listed. Throws a `Failure` with the name of the option that makes no sense.
parts::PartsRequest requestOf(const PartsOptions& options);

/// How it is to be written into a file of this name; empty for stdout.
PartsFormat formatOf(const PartsOptions& options, const std::string& output);

/// The list that a request asks for. Throws a `Failure` for a column that the design has not.
parts::PartsList listOf(const host::DesignData& design, const parts::PartsRequest& request,
                        const parts::PartShapes& shapes = {});

/// The names of all columns, for the end of `--help`.
std::string columnsHelp();

}  // namespace workbench
