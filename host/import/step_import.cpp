#include "host/import/step_import.h"

#include "host/design/design_check.h"
#include "host/import/cached_reading.h"
#include "host/import/design_naming.h"
#include "host/import/file_check.h"
#include "host/import/reader_process.h"
#include "host/import/reader_program.h"
#include "host/import/step_geometry.h"
#include "host/import/step_source.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

namespace host {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// Waits for the design and passes on the progress and warnings before it.
class ResponseReader {
public:
    ResponseReader(ReaderConnection& reader, const std::string& path,
                   const ImportProgress& progress, std::vector<ReadingWarning>& warnings)
        : reader_(reader), path_(path), progress_(progress), warnings_(warnings) {}

    json design() {
        try {
            for (;;) {
                json line = json::parse(reader_.receive());
                if (line.contains("design")) {
                    return std::move(line["design"]);
                }
                handle(line);
            }
        } catch (const ReaderFailure& failure) {
            throw ImportError(path_ + ": " + failure.what() + " at the stage \"" + stage_ + "\"" +
                              (faults_.empty() ? "" : "; the file has " + faults_) +
                              "; export it again, or open a part of it");
        } catch (const json::exception&) {
            throw ImportError(
                path_ + ": the reader's response cannot be understood; export the file again");
        }
    }

private:
    void handle(const json& line) {
        if (line.contains("error")) {
            throw ImportError(path_ + ": " + line["error"].get<std::string>(), limitIn(line));
        }
        if (line.contains("warning")) {
            warnings_.push_back(warningOf(line["warning"]));
        }
        faults_ = line.value("faults", faults_);
        if (line.contains("progress")) {
            stage_ = line["progress"]["stage"];
            if (progress_) {
                progress_(stage_, line["progress"]["fraction"]);
            }
        }
    }

    static std::optional<ReadingLimit> limitIn(const json& line) {
        return line.contains("limit") ? std::optional(ReadingLimit::Occurrences) : std::nullopt;
    }

    [[nodiscard]] ReadingWarning warningOf(const json& from) const {
        ReadingWarning warning{.code = from.at("code"),
                               .file = path_,
                               .text = from.at("text"),
                               .component = from.value("component", ""),
                               .value = {},
                               .unit = from.value("unit", "")};
        if (from.contains("value")) {
            warning.value = from["value"].get<double>();
        }
        return warning;
    }

    ReaderConnection& reader_;
    const std::string& path_;
    const ImportProgress& progress_;
    std::vector<ReadingWarning>& warnings_;
    std::string stage_ = "Starting";
    std::string faults_;
};

/// Checks the file first.
std::vector<std::string> argumentsFor(const ReadableFile& source, const ReadingLimits& limits) {
    // The reader limits its own processor time as well; that is spent on measurements too, so it
    // gets some of it for these.
    const auto seconds = static_cast<std::size_t>(limits.seconds) * 10 + 10;
    return {checkStepFile(source.path, source.shown).string(),
            source.folder.string(),
            std::to_string(limits.occurrences),
            std::to_string(limits.levels),
            std::to_string(seconds),
            std::to_string(limits.megabytes),
            std::to_string(limits.threads)};
}

OccurrenceData occurrenceOf(const json& use) {
    OccurrenceData occurrence;
    occurrence.component = use.at("component");
    const json& cells = use.at("placement");
    for (std::size_t cell = 0; cell < 12; ++cell) {
        occurrence.transform.cells[cell] = cells.at(cell);
    }
    return occurrence;
}

/// Bodies of a design of which the tree alone was read.
class UnbuiltGeometry final : public Geometry {
public:
    explicit UnbuiltGeometry(std::size_t bodies) : bodies_(bodies) {}

    double area() override { refuse(); }
    double volume() override { refuse(); }
    std::size_t bodies() override { return bodies_; }
    std::optional<Box> box(const Transform& /*placement*/) override { refuse(); }

private:
    [[noreturn]] static void refuse() {
        throw std::runtime_error("the tree of the design was read without its shapes");
    }

    std::size_t bodies_;
};

/// Makes the components; the ones that share a shape share its geometry.
class Components {
public:
    Components(std::shared_ptr<ReaderConnection> reader, std::string path)
        : reader_(std::move(reader)), path_(std::move(path)) {}

    ComponentData make(const json& from) {
        ComponentData component;
        component.name = from.at("name");
        component.partNumber = from.at("id");
        component.description = from.at("description");
        component.material = materialOf(from);
        for (const json& use : from.at("uses")) {
            component.children.push_back(occurrenceOf(use));
        }
        component.geometry = geometryOf(from.at("shape"), from);
        if (from.contains("curves")) {
            component.curves = std::make_shared<StepCurves>(reader_, from["curves"].get<int>());
        }
        return component;
    }

private:
    std::shared_ptr<Geometry> geometryOf(int shape, const json& from) {
        const std::size_t bodies = from.value("bodies", std::size_t{0});
        if (shape < 0) {
            return bodies == 0 ? nullptr : std::make_shared<UnbuiltGeometry>(bodies);
        }
        std::shared_ptr<Geometry>& geometry = geometries_[shape];
        if (geometry == nullptr) {
            geometry = std::make_shared<StepGeometry>(reader_, shape, path_, bodies);
        }
        return geometry;
    }

    static MaterialData materialOf(const json& from) {
        MaterialData material = defaultMaterial();
        if (const std::string name = from.value("material", ""); !name.empty()) {
            material.name = name;
            material.nameAssumed = false;
        }
        if (from.contains("density")) {
            material.density = from["density"];
            material.densityAssumed = false;
        }
        return material;
    }

    std::shared_ptr<ReaderConnection> reader_;
    std::string path_;
    std::map<int, std::shared_ptr<Geometry>> geometries_;
};

/// Puts a root component of the file's name above several roots.
void joinRoots(DesignData& design, const json& roots) {
    if (roots.size() == 1) {
        return;
    }
    ComponentData top;
    top.name = design.name;
    top.material = defaultMaterial();
    for (ComponentData& component : design.components) {
        for (OccurrenceData& child : component.children) {
            ++child.component;
        }
    }
    for (const json& root : roots) {
        top.children.push_back({.component = root.get<std::size_t>() + 1});
    }
    design.components.insert(design.components.begin(), std::move(top));
}

/// The files that a design was read from. An entry of the cache may have the path that the first
/// one had when it was read.
std::vector<fs::path> filesOf(const json& read, const std::string& first) {
    std::vector<fs::path> files;
    for (const json& name : read.at("files")) {
        files.emplace_back(files.empty() ? first : name.get<std::string>());
    }
    return files;
}

bool refersToMissing(const std::vector<ReadingWarning>& warnings) {
    return std::ranges::any_of(warnings, [](const ReadingWarning& warning) {
        return warning.code == "missing-file" || warning.code == "unreadable-file";
    });
}

DesignData designFrom(const json& read, const std::vector<fs::path>& files,
                      const ReadableFile& source, const std::shared_ptr<ReaderConnection>& reader) {
    DesignData design;
    design.name = source.path.stem().string();
    design.unit = read.at("unit");
    Components maker(reader, source.shown);
    for (const json& component : read.at("components")) {
        design.components.push_back(maker.make(component));
    }
    joinRoots(design, read.at("roots"));
    assignNamesAndNumbers(design);
    if (!source.again.empty()) {
        design.source =
            SourceFile{.path = source.again.string(), .fingerprint = fingerprintOf(files)};
    }
    return design;
}

DesignData importWith(const std::vector<std::string>& arguments, const ReadableFile& source,
                      const ReadingLimits& limits, const ReadingCache& cache,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    std::shared_ptr<RememberedReader> reader;
    const CachedReading reading(cache, findStepReader(), arguments, limits);
    try {
        reader = reading.open();
    } catch (const ReaderFailure& failure) {
        throw ImportError(source.shown + ": " + failure.what());
    }
    json read = ResponseReader(*reader, source.shown, progress, warnings).design();
    try {
        const std::vector<fs::path> files = filesOf(read, arguments.front());
        reading.allowKeeping(*reader, files, refersToMissing(warnings));
        return designFrom(read, files, source, reader);
    } catch (const json::exception&) {
        throw ImportError(source.shown +
                          ": the reader's response cannot be understood; export the file again");
    }
}

}  // namespace

MaterialData defaultMaterial() {
    return {.name = "Steel", .density = 0.00785, .nameAssumed = true, .densityAssumed = true};
}

DesignData importStep(const std::string& path, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings) {
    const fs::path file = checkStepFile(path);
    return importStepFrom(
        {.path = path, .shown = path, .again = file, .folder = file.parent_path(), .copy = nullptr},
        limits, /*cache=*/{}, progress, warnings);
}

DesignData importStepFrom(const ReadableFile& source, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings) {
    return importWith(argumentsFor(source, limits), source, limits, cache, progress, warnings);
}

DesignData importTreeFrom(const ReadableFile& source, const ReadingLimits& limits,
                          const ReadingCache& cache, const ImportProgress& progress,
                          std::vector<ReadingWarning>& warnings) {
    std::vector<std::string> arguments = argumentsFor(source, limits);
    arguments.emplace_back("tree");
    return importWith(arguments, source, limits, cache, progress, warnings);
}

}  // namespace host
