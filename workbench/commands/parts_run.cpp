#include "workbench/commands/parts_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/quiet.h"
#include "workbench/commands/design_reading.h"
#include "workbench/commands/part_shapes.h"
#include "workbench/commands/parts_model.h"
#include "workbench/commands/parts_page.h"
#include "workbench/output/display_text.h"
#include "workbench/output/output_names.h"
#include "workbench/output/remarks.h"
#include "workbench/output/reports.h"
#include "workbench/output/staged_files.h"

#include "host/base/utf8_path.h"
#include "host/import/content_hash.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <iostream>
#include <mutex>
#include <optional>
#include <sstream>
#include <thread>
#include <utility>

namespace workbench {
namespace {

/// What became of a design.
struct FileOutcome {
    std::vector<std::string> contents;  ///< one for each task
    std::vector<host::ReadingWarning> warnings;
    Remarks remarks;
    std::optional<Failure> failure;
};

bool isSeveral(const PartsRun& run) { return run.files.size() > 1; }

/// Whether the lists of all designs go into one file.
bool isJoined(const PartsRun& run, const ListTask& task) {
    return isSeveral(run) && canBeJoined(task.format.kind) && !hasPlaceholder(task.output);
}

bool isPrinted(const ListTask& task) { return task.output.empty(); }

bool needsShapes(const ListTask& task) {
    return task.comparesShapes || parts::needsShapes(task.request);
}

ReadingDepth depthOf(const PartsRun& run) {
    const bool needsBodies = std::ranges::any_of(run.tasks, [](const ListTask& task) {
        return parts::needsBodies(task.request) || needsShapes(task) ||
               task.format.kind == PartsFormatKind::Model ||
               task.format.kind == PartsFormatKind::Page;
    });
    return needsBodies ? ReadingDepth::Whole : ReadingDepth::Tree;
}

/// A lone design is read with its progress on the terminal.
host::DesignData readOne(const PartsRun& run, const std::string& file, FileOutcome& outcome) {
    if (isSeveral(run)) {
        return readSilently(file, run.reading, depthOf(run), outcome.warnings);
    }
    return depthOf(run) == ReadingDepth::Whole ? readDesign(file, run.reading)
                                               : readTree(file, run.reading);
}

/// What the lists of a design need to know of its shapes, read once for all of them.
parts::PartShapes shapesFor(const PartsRun& run, const host::DesignData& design, Remarks& remarks) {
    parts::PartsRequest request;
    bool isNeeded = false;
    for (const ListTask& task : run.tasks) {
        isNeeded = isNeeded || needsShapes(task);
        // Pictures are made where a column asks for them.
        request.columns.insert(request.columns.end(), task.request.columns.begin(),
                               task.request.columns.end());
    }
    return isNeeded ? readPartShapes(design, request, remarks) : parts::PartShapes();
}

/// Whether a format says where its list comes from.
bool namesSource(PartsFormatKind kind) {
    return kind == PartsFormatKind::Json || kind == PartsFormatKind::JsonLines ||
           kind == PartsFormatKind::Page;
}

/// Where a design comes from, with the hash of the file's content as far as it can be read again.
/// It takes a while for large files: they are hashed once, and only where a list shows it.
parts::ListSource sourceOf(const PartsRun& run, const std::string& file) {
    const bool isShown = std::ranges::any_of(
        run.tasks, [](const ListTask& task) { return namesSource(task.format.kind); });
    const std::string hash = isShown ? host::sha256OfFile(host::fromUtf8(file)) : "";
    return {.file = file, .hash = hash.empty() ? "" : "sha256:" + hash};
}

/// A model alone says nothing of masses.
ShapeMeasures measuresFor(const PartsRun& run) {
    const bool isNeeded = std::ranges::any_of(
        run.tasks, [](const ListTask& task) { return task.format.kind != PartsFormatKind::Model; });
    return isNeeded ? ShapeMeasures::Needed : ShapeMeasures::NotNeeded;
}

/// The meshes of a design, read again only where another output wants others.
class DesignMeshes {
public:
    DesignMeshes(const host::DesignData& design, ShapeMeasures measures, Remarks& remarks)
        : design_(design), measures_(measures), remarks_(remarks) {}

    const host::ShapeData& like(const ModelRequest& request) {
        if (!meshes_ || request.detail != request_.detail ||
            request.maximumTriangles != request_.maximumTriangles) {
            meshes_ = readMeshes(design_, request, measures_, remarks_);
            request_ = request;
        }
        return *meshes_;
    }

private:
    const host::DesignData& design_;
    ShapeMeasures measures_;
    Remarks& remarks_;
    std::optional<host::ShapeData> meshes_;
    ModelRequest request_;
};

std::string modelFile(const ListTask& task, const host::DesignData& design,
                      const host::ShapeData& meshes, const std::string& file,
                      FileOutcome& outcome) {
    if (meshes.shapes.empty()) {
        throw Failure(ExitCode::BadInput,
                      file + ": has no shapes to make a model of; open a STEP or IGES file");
    }
    Model model = modelOf(design, meshes, task.format.model, parts::GlbExtras::All);
    outcome.remarks.push_back(model.size);
    return std::move(model.bytes);
}

/// A page has all views, whatever the view of the request is.
std::string pageOf(const ListTask& task, const host::DesignData& design,
                   const host::ShapeData& meshes, const parts::ListSource& source,
                   const parts::PartShapes& shapes, FileOutcome& outcome) {
    std::vector<parts::PartsList> lists;
    parts::PartsRequest request = task.request;
    for (const parts::View view : pageViews()) {
        request.view = view;
        lists.push_back(listOf(design, request, shapes));
        lists.back().source = source;
        addWarnings(outcome.remarks, lists.back().warnings);
    }
    if (std::ranges::all_of(lists,
                            [](const parts::PartsList& list) { return list.rows.empty(); })) {
        addEmptyFilter(outcome.remarks, lists.front());
    }
    Model model;
    if (isDrawn(meshes)) {
        model = modelOf(design, meshes, task.format.model, parts::GlbExtras::PathAlone);
        outcome.remarks.push_back(model.size);
    }
    std::string page = pageFrom(design, lists, model.bytes);
    outcome.remarks.push_back({.kind = "page", .text = sizeText(page.size())});
    return page;
}

void makeLists(const PartsRun& run, const std::string& file, FileOutcome& outcome) {
    const host::DesignData design = readOne(run, file, outcome);
    const parts::PartShapes shapes = shapesFor(run, design, outcome.remarks);
    const parts::PartShapes none;
    const parts::ListSource source = sourceOf(run, file);
    DesignMeshes meshes(design, measuresFor(run), outcome.remarks);
    for (const ListTask& task : run.tasks) {
        if (task.format.kind == PartsFormatKind::Model) {
            outcome.contents.push_back(
                modelFile(task, design, meshes.like(task.format.model), file, outcome));
            continue;
        }
        const parts::PartShapes& known = needsShapes(task) ? shapes : none;
        if (task.format.kind == PartsFormatKind::Page) {
            outcome.contents.push_back(
                pageOf(task, design, meshes.like(task.format.model), source, known, outcome));
            continue;
        }
        parts::PartsList list = listOf(design, task.request, known);
        list.source = source;
        std::ostringstream content;
        writeParts(list, task.format, content);
        outcome.contents.push_back(std::move(content).str());
        addWarnings(outcome.remarks, list.warnings);
        addEmptyFilter(outcome.remarks, list);
    }
}

FileOutcome outcomeOf(const PartsRun& run, const std::string& file) {
    FileOutcome outcome;
    try {
        makeLists(run, file, outcome);
    } catch (const Failure& failure) {
        outcome.failure = failure;
    } catch (const std::exception& error) {
        outcome.failure = Failure(ExitCode::BadInput, file + ": " + error.what());
    }
    return outcome;
}

/// Works on the designs in their order, several at a time.
class Workers {
public:
    explicit Workers(const PartsRun& run) : run_(run), outcomes_(run.files.size()) {
        const std::size_t count = std::min(run.jobs, run.files.size());
        for (std::size_t number = 0; number < count; ++number) {
            threads_.emplace_back([this] { work(); });
        }
    }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    ~Workers() {
        {
            const std::scoped_lock lock(mutex_);
            next_ = outcomes_.size();
        }
        taken_.notify_all();
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }

    /// Waits for what became of a design.
    FileOutcome take(std::size_t file) {
        std::unique_lock lock(mutex_);
        done_.wait(lock, [&] { return outcomes_[file].has_value(); });
        wanted_ = file + 1;
        taken_.notify_all();
        return *std::exchange(outcomes_[file], std::nullopt);
    }

private:
    void work() {
        for (;;) {
            std::size_t file = 0;
            {
                std::unique_lock lock(mutex_);
                taken_.wait(lock, [&] { return next_ < wanted_ + ahead() || isOver(); });
                if (isOver()) {
                    return;
                }
                file = next_++;
            }
            FileOutcome outcome = outcomeOf(run_, run_.files[file]);
            const std::scoped_lock lock(mutex_);
            outcomes_[file] = std::move(outcome);
            done_.notify_all();
        }
    }

    [[nodiscard]] bool isOver() const { return next_ == outcomes_.size(); }

    /// How many lists may wait for that of a large design before them: they are kept in memory.
    [[nodiscard]] std::size_t ahead() const {
        constexpr std::size_t kForEachJob = 4;
        return kForEachJob * run_.jobs;
    }

    const PartsRun& run_;
    std::mutex mutex_;  ///< guards what follows
    std::condition_variable done_;
    std::condition_variable taken_;
    std::size_t next_ = 0;
    std::size_t wanted_ = 0;  ///< by the caller of `take`, in their order
    std::vector<std::optional<FileOutcome>> outcomes_;
    std::vector<std::thread> threads_;
};

/// Writes the lists, and keeps count.
class Delivery {
public:
    explicit Delivery(const PartsRun& run) : run_(run), joined_(run.tasks.size()) {}

    void deliver(const std::string& file, const FileOutcome& outcome) {
        reportWarnings(outcome.warnings);
        reportRemarks(outcome.remarks, isSeveral(run_) ? file : "");
        try {
            if (outcome.failure) {
                throw Failure(*outcome.failure);
            }
            write(file, outcome.contents);
            ++listed_;
        } catch (const Failure& failure) {
            if (!isSeveral(run_)) {
                throw;
            }
            const std::string line = failure.what();
            reportFailures({line.find(file) == std::string::npos ? file + ": " + line : line});
            worst_ = std::max(worst_, failure.code());
        }
    }

    void finish() {
        StagedFiles files;
        for (std::size_t task = 0; task < run_.tasks.size(); ++task) {
            if (isJoined(run_, run_.tasks[task]) && !isPrinted(run_.tasks[task])) {
                files.add(host::fromUtf8(run_.tasks[task].output), joined_[task]);
            }
        }
        flushOutput();
        files.commit();
        reportSummary();
    }

private:
    void write(const std::string& file, const std::vector<std::string>& contents) {
        StagedFiles files;
        for (std::size_t task = 0; task < run_.tasks.size(); ++task) {
            const ListTask& each = run_.tasks[task];
            if (!isPrinted(each) && !isJoined(run_, each)) {
                files.add(host::fromUtf8(outputName(each.output, file)), contents[task]);
            }
        }
        // Only now nothing can be missing of what is printed or joined.
        for (std::size_t task = 0; task < run_.tasks.size(); ++task) {
            if (isPrinted(run_.tasks[task])) {
                print(file, run_.tasks[task].format.kind, contents[task]);
            } else if (isJoined(run_, run_.tasks[task])) {
                joined_[task] += contents[task];
            }
        }
        flushOutput();
        files.commit();
    }

    void print(const std::string& file, PartsFormatKind kind, const std::string& content) const {
        if (isSeveral(run_) && kind == PartsFormatKind::Table) {
            std::cout << (listed_ == 0 ? "" : "\n") << printable(file) << "\n\n";
        } else if (isSeveral(run_) && kind == PartsFormatKind::Markdown) {
            std::cout << (listed_ == 0 ? "" : "\n") << "## " << printable(file) << "\n\n";
        }
        std::cout << content;
    }

    void reportSummary() const {
        const std::size_t count = run_.files.size();
        const std::size_t folders = run_.unreadable.size();
        std::string missing;
        if (listed_ < count) {
            missing = std::to_string(count - listed_) + " of " + std::to_string(count) +
                      " files could not be listed";
        }
        if (folders > 0) {
            missing += (missing.empty() ? "" : ", ") + std::to_string(folders) +
                       (folders == 1 ? " folder" : " folders") + " could not be read";
        }
        if (!missing.empty()) {
            throw Failure(std::max(worst_, ExitCode::BadInput), missing);
        }
        if (isSeveral(run_) && !isQuiet()) {
            std::cerr << count << " files listed\n";
        }
    }

    const PartsRun& run_;
    std::vector<std::string> joined_;  ///< for each task
    std::size_t listed_ = 0;
    ExitCode worst_ = ExitCode::Success;
};

/// What can only be written into a file of its own for each design.
void checkStdout(const PartsRun& run, const ListTask& task) {
    const PartsFormatKind kind = task.format.kind;
    if (kind == PartsFormatKind::Xlsx) {
        refuse("--format xlsx: requires --output, as in {stem}-parts.xlsx");
    }
    const bool isForPeople = kind == PartsFormatKind::Table || kind == PartsFormatKind::Markdown;
    if (isSeveral(run) && !isForPeople && !canBeJoined(kind)) {
        refuse(
            "several files need a file each, as in --output '{stem}-parts.csv', or --format "
            "jsonl, a line each");
    }
}

}  // namespace

void checkOutputs(const PartsRun& run) {
    std::vector<std::string> names;
    std::vector<std::string> sources;
    for (const ListTask& task : run.tasks) {
        if (isPrinted(task)) {
            checkStdout(run, task);
            continue;
        }
        if (isJoined(run, task)) {
            names.push_back(task.output);
            sources.emplace_back("all files");
            continue;
        }
        for (const std::string& file : run.files) {
            names.push_back(outputName(task.output, file));
            sources.push_back(file);
        }
    }
    checkOutputNames(names, sources, run.files);
}

void listParts(const PartsRun& run) {
    Delivery delivery(run);
    reportFailures(run.unreadable);
    if (isSeveral(run)) {
        Workers workers(run);
        for (std::size_t file = 0; file < run.files.size(); ++file) {
            delivery.deliver(run.files[file], workers.take(file));
        }
    } else {
        delivery.deliver(run.files.front(), outcomeOf(run, run.files.front()));
    }
    delivery.finish();
}

}  // namespace workbench
