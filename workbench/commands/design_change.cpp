#include "workbench/commands/design_change.h"

#include "workbench/commands/design_reading.h"
#include "workbench/output/design_files.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <iostream>
#include <utility>

namespace workbench {

void addDesignChange(CLI::App& command, DesignChangeOptions& options) {
    addFile(command, options.file);
    addSave(command, options.saveFile,
            "The design file to save in: by default the one that was opened, else a new one\n"
            "beside FILE");
    addAddin(command, options.addin);
    addReading(command, options.reading);
}

void changeDesign(const DesignChangeOptions& options, const DesignChange& change) {
    const SaveTarget target = saveTarget(options.file, options.saveFile.value_or(""));
    host::DesignData design = readDesign(options.file, options.reading);
    DialogSession dialog(options.addin);
    dialog.session().openDesign(std::move(design), host::fromUtf8(options.file));
    const std::string done = change(dialog);
    StagedFiles files;
    files.addDesign(target.path, dialog.session().design(), target.before);
    files.check();
    std::cout << done << "\n";
    reportSaved(std::cout, target.name);
    flushOutput();
    files.commit();
}

}  // namespace workbench
