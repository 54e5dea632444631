#include "workbench/cli/common_options.h"

#include "workbench/cli/exit_code.h"

namespace workbench {
namespace {

/// An option that takes a whole number, whatever `limit` counts in.
template <class T>
CLI::Option* addNumber(CLI::App& command, const std::string& name, T& limit,
                       const std::string& description) {
    return command
        .add_option_function<int>(
            name, [&limit](int value) { limit = static_cast<T>(value); }, description)
        ->default_str(std::to_string(static_cast<int>(limit)));
}

/// "NAME=DENSITY", in kg/m3.
host::MaterialData parseMaterial(const std::string& value) {
    constexpr double kCubicCentimetres = 1e6;  // in a cubic metre
    constexpr double kDensest = 25'000;
    const std::size_t mark = value.rfind('=');
    double density = 0;
    if (mark == std::string::npos || mark == 0 ||
        !CLI::detail::lexical_cast(value.substr(mark + 1), density) ||
        !(density >= 1 && density <= kDensest)) {
        refuse("--material " + value +
               ": expected NAME=DENSITY, with a density of 1 to 25000 kg/m3");
    }
    host::MaterialData material;
    material.name = value.substr(0, mark);
    material.density = density / kCubicCentimetres;
    return material;
}

}  // namespace

void addFile(CLI::App& command, std::string& file) {
    command
        .add_option("FILE", file, "A STEP file (.step, .stp, .p21), an IGES file, or a design file")
        ->required();
}

void addReading(CLI::App& command, ReadingOptions& reading) {
    host::ReadingLimits& limits = reading.limits;
    addNumber(command, "--max-seconds", limits.seconds, "Time limit for reading")
        ->type_name("SECONDS")
        ->check(CLI::Range(1, 86400));
    addNumber(command, "--max-memory", limits.megabytes, "Memory limit for reading")
        ->type_name("MB")
        ->check(CLI::Range(16, 1 << 20));
    addNumber(command, "--max-occurrences", limits.occurrences,
              "Refuse a design with more occurrences; those in a sub-assembly count each\n"
              "time it is used")
        ->type_name("COUNT")
        ->check(CLI::Range(1, static_cast<int>(host::kMaximumOccurrences)));
    command
        .add_option_function<std::string>(
            "--material",
            [&reading](const std::string& value) { reading.material = parseMaterial(value); },
            "The material of parts for which FILE names none, with its density in kg/m3, as in\n"
            "'Aluminium 6061=2700'")
        ->type_name("NAME=DENSITY");
    command.add_flag(
        "--strict", reading.strict,
        "End with status 1 where reading the design gives a warning, and write nothing");
    command.add_flag("--no-cache", reading.noCache,
                     "Read a STEP file again even if it is unchanged, and keep nothing of it; see\n"
                     "tarnix-workbench cache --help");
}

void addAddin(CLI::App& command, AddinChoice& choice) {
    command.add_option("--addin,--add-in", choice.addin, "Use the add-in in this folder")
        ->type_name("DIR");
    command
        .add_option("--data-home", choice.dataHome,
                    "Use the settings in this folder instead of this user's")
        ->type_name("DIR");
}

void addFormat(CLI::App& command, std::string& format, const std::vector<std::string>& names) {
    command.add_option("--format", format, "How to print it")
        ->check(CLI::IsMember(names))
        ->capture_default_str();
}

void addSave(CLI::App& command, std::optional<std::string>& file, const std::string& description) {
    command
        .add_option_function<std::string>(
            "--save", [&file](const std::string& named) { file = named; }, description)
        ->type_name("[FILE]")
        ->expected(0, 1)
        ->run_callback_for_default()
        ->default_str("");
}

}  // namespace workbench
