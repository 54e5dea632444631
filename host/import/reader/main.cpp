#include "host/import/reader/assembly.h"
#include "host/import/reader/colours.h"
#include "host/import/reader/declared_bodies.h"
#include "host/import/reader/iges.h"
#include "host/import/reader/instance_colours.h"
#include "host/import/reader/parallel_results.h"
#include "host/import/reader/process_limits.h"
#include "host/import/reader/protocol.h"
#include "host/import/reader/shapes.h"

#include <Message_ProgressIndicator.hxx>
#include <Standard_Failure.hxx>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

/// step-reader FILE FOLDER OCCURRENCES LEVELS SECONDS MEGABYTES THREADS [tree]
///
/// Reads a STEP file (or an IGES file), sends what it holds, and answers requests about its
/// shapes; see protocol.h. With "tree" it builds shapes of a lone part only. It is a program of its
/// own so that a file which makes Open CASCADE crash, hang or grow without end takes down nothing
/// but this.
namespace {

class Progress final : public Message_ProgressIndicator {
    DEFINE_STANDARD_RTTI_INLINE(Progress, Message_ProgressIndicator)

protected:
    void Show(const Message_ProgressScope& /*scope*/, Standard_Boolean /*force*/) override {
        const double position = GetPosition();
        if (position >= shown_ + 0.01) {
            shown_ = position;
            step::sendLine({{"progress", {{"stage", "Building"}, {"fraction", position}}}});
        }
    }

private:
    double shown_ = 0;
};

struct Task {
    std::string file;
    std::string folder;  ///< where the files are that it refers to
    host::ReadingLimits limits;
    bool treeOnly = false;
};

void runIges(const std::string& file) {
    TopTools_IndexedMapOfShape shapes;
    std::vector<TopoDS_Shape> curves;
    const nlohmann::json design = step::readIges(file, shapes, curves);
    if (shapes.IsEmpty()) {
        step::sendWarning({.code = "no-body", .text = "holds no body that can be built"});
    }
    step::sendLine({{"design", design}});
    step::answerRequests(std::cin, shapes,
                         {.paint = [] { return step::Paint(); },
                          .instances = [] { return nlohmann::json::object(); },
                          .curves = curves});
}

/// An assembly need not be built to know its tree; a lone part is all that its file holds.
bool isToBeBuilt(const step::Assembly& assembly, const Task& task) {
    return !task.treeOnly ||
           (assembly.roots.size() == 1 && assembly.components[assembly.roots.front()].uses.empty());
}

void run(const Task& task) {
    if (step::looksLikeIges(task.file)) {
        runIges(task.file);
        return;
    }
    step::Assembly assembly = step::readAssembly(task.file, task.folder, task.limits);
    if (!assembly.files.front()->faults.empty()) {
        step::sendLine({{"faults", assembly.files.front()->faults}});
    }
    TopTools_IndexedMapOfShape shapes;
    if (isToBeBuilt(assembly, task)) {
        const Handle(Progress) progress = new Progress;
        shapes = step::buildShapes(assembly, progress->Start());
        step::sendLine({{"progress", {{"stage", "Building"}, {"fraction", 1}}}});
    } else {
        step::countDeclaredBodies(assembly);
    }
    for (const step::Warning& warning : assembly.warnings) {
        step::sendWarning(warning);
    }
    step::sendLine({{"design", step::designOf(assembly)}});
    step::answerRequests(std::cin, shapes,
                         {.paint =
                              [&assembly] {
                                  return step::Paint{
                                      .colours = step::coloursOf(assembly),
                                      .bodies = step::instanceColoursOf(assembly).bodies};
                              },
                          .instances = [&assembly] { return step::instancesOf(assembly); },
                          .curves = assembly.curves});
}

int runOrReport(const Task& task) {
    try {
        run(task);
        return EXIT_SUCCESS;
    } catch (const step::TooManyOccurrences& error) {
        step::sendLine({{"error", error.what()}, {"limit", "occurrences"}});
    } catch (const step::ReadError& error) {
        step::sendLine({{"error", error.what()}});
    } catch (const std::bad_alloc&) {
        step::sendLine({{"error", "needs more memory than it may use"}});
    } catch (const Standard_Failure& failure) {
        step::sendLine({{"error", std::string("cannot be built: ") + failure.GetMessageString()}});
    } catch (const std::exception& error) {
        step::sendLine({{"error", std::string("cannot be read: ") + error.what()}});
    }
    return EXIT_FAILURE;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 8 && count != 9) {
        std::cerr << "usage: step-reader FILE FOLDER OCCURRENCES LEVELS SECONDS MEGABYTES THREADS "
                     "[tree]\n";
        return EXIT_FAILURE;
    }
    std::ios::sync_with_stdio(false);
    step::endWithStarter();
    const host::ReadingLimits limits = {.seconds = std::stod(arguments[5]),
                                        .megabytes = std::stoul(arguments[6]),
                                        .threads = std::stoul(arguments[7]),
                                        .occurrences = std::stoul(arguments[3]),
                                        .levels = std::stoul(arguments[4])};
    step::boundProcess(limits);
    step::useThreads(limits.threads);
    step::endProcess(runOrReport(
        {.file = arguments[1], .folder = arguments[2], .limits = limits, .treeOnly = count == 9}));
}
