#include "tarnix/properties/full_path.h"

#include "tarnix/platform/cursor.h"
#include "tarnix/properties/property_inputs.h"

#include <Fusion/FusionAll.h>

#include <cstddef>
#include <map>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

using FilesById = std::map<std::string, Ptr<DataFile>>;

constexpr const char* kSeparator = R"(<b><span style="color: blue"> // </span></b>)";
constexpr const char* kThisDocument = R"(<b><span style="color: blue">ThisDoc: </span></b>)";
constexpr const char* kReferencedDocument = R"(<b><span style="color: blue">RefDoc: </span></b>)";

/// A file, and whether it is that of a referenced document.
struct Found {
    Ptr<DataFile> file;
    bool isReferenced = false;
};

/// All files below a folder. The host looks up what it has not met yet while they are read.
FilesById walkProjectFiles(const Ptr<DataFolder>& folder) {
    FilesById found;
    const Ptr<DataFolders> folders = folder ? folder->dataFolders() : nullptr;
    const std::size_t folderCount = folders ? folders->count() : 0;
    for (std::size_t i = 0; i < folderCount; ++i) {
        found.merge(walkProjectFiles(folders->item(i)));
    }
    const Ptr<DataFiles> files = folder ? folder->dataFiles() : nullptr;
    const std::size_t fileCount = files ? files->count() : 0;
    for (std::size_t i = 0; i < fileCount; ++i) {
        if (const Ptr<DataFile> file = files->item(i)) {
            found[file->id()] = file;
        }
    }
    return found;
}

Ptr<DataFile> fileOf(const Ptr<Document>& document) {
    return document ? document->dataFile() : nullptr;
}

/// Makes the host look up the files of the active project: one that was never shown may be unknown
/// to it. What the walk finds is of no use here.
void meetProjectFiles(const Ptr<Application>& application) {
    const platform::WaitCursor cursor;
    const Ptr<Data> data = application->data();
    const Ptr<DataProject> project = data ? data->activeProject() : nullptr;
    static_cast<void>(walkProjectFiles(project ? project->rootFolder() : nullptr));
}

Found fileOfReference(const Ptr<Application>& application, const Ptr<Occurrence>& occurrence) {
    const Ptr<Component> component = occurrence->component();
    const Ptr<Design> design = component ? component->parentDesign() : nullptr;
    const Ptr<Document> document = design ? design->parentDocument() : nullptr;
    if (!document) {
        return {};
    }
    Ptr<DataFile> file = document->dataFile();
    if (!file) {
        meetProjectFiles(application);
        file = document->dataFile();
    }
    return {.file = file, .isReferenced = true};
}

/// Whether an entity brings its own document in: an occurrence of a referenced component, and not
/// the root component of the design in work.
bool isReference(const Ptr<Design>& design, const Ptr<Base>& entity) {
    const Ptr<Component> component = entity;
    if (component && design && component == design->rootComponent()) {
        return false;
    }
    const Ptr<Occurrence> occurrence = entity;
    return occurrence && occurrence->isReferencedComponent();
}

Found fileOfActive(const Ptr<Application>& application) {
    return {.file = fileOf(application->activeDocument())};
}

/// The file of what is selected where that is one entity and it is picked for the dialog, else that
/// of the active document. No file where the host does not report what is selected.
Found fileOfSelected(const Ptr<Application>& application, const Ptr<Selections>& selections,
                     const Ptr<SelectionCommandInput>& input) {
    if (!selections) {
        return {};
    }
    if (selections->count() != 1 || input->selectionCount() != 1) {
        return fileOfActive(application);
    }
    const Ptr<Selection> selection = selections->item(0);
    if (!selection) {
        return {};
    }
    const Ptr<Base> entity = selection->entity();
    return isReference(application->activeProduct(), entity) ? fileOfReference(application, entity)
                                                             : fileOfActive(application);
}

Found findFile(const Ptr<CommandInputs>& inputs) {
    const Ptr<Application> application = Application::get();
    if (!application) {
        return {};
    }
    const Ptr<SelectionCommandInput> input =
        inputs ? inputs->itemById(property_inputs::kSelection) : nullptr;
    const Ptr<UserInterface> userInterface = application->userInterface();
    const Ptr<Workspace> workspace = userInterface ? userInterface->activeWorkspace() : nullptr;
    if (!input || !workspace) {
        return {};
    }
    if (workspace->id() == "FusionDocumentationEnvironment") {
        return fileOfActive(application);
    }
    return fileOfSelected(application, userInterface->activeSelections(), input);
}

/// The folders of a file from the outermost to the innermost, each after a separator. The root
/// folder of the project is left out.
std::string folderPath(const Ptr<DataFile>& file) {
    Ptr<DataFolder> folder = file->parentFolder();
    if (!folder) {
        return kSeparator;
    }
    std::string path;
    while (!folder->isRoot()) {
        path.insert(0, kSeparator + folder->name());
        folder = folder->parentFolder();
    }
    return path;
}

}  // namespace

std::string formatFullPath(Ptr<CommandInputs> inputs) {
    const Found found = findFile(inputs);
    if (!found.file) {
        return "";
    }
    const std::string folders = folderPath(found.file);
    return (found.isReferenced ? kReferencedDocument : kThisDocument) +
           found.file->parentProject()->name() + folders + kSeparator + found.file->name();
}

}  // namespace tarnix
