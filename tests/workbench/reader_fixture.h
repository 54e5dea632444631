#pragma once

#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <filesystem>
#include <string>

namespace test_support {

/// The built program with a shell script in the place of the program that reads STEP files.
class WorkbenchWithReader : public Workbench {
protected:
    /// The reader is looked for beside the host's library, so that is copied as well.
    void readerIs(const std::string& script) {
        namespace fs = std::filesystem;
        const fs::path place = folder.path() / "reader";
        const fs::path library = host::environment::programFolder() / TEST_HOST_LIBRARY;
        fs::create_directory(place);
        fs::copy_file(library, place / TEST_HOST_LIBRARY);
        writeFile(place / "step-reader", "#!/bin/sh\n" + script + "\n");
        fs::permissions(place / "step-reader", fs::perms::owner_all);
        variables.set("LD_LIBRARY_PATH", place);
    }

    /// A file that only its first line makes a STEP file.
    [[nodiscard]] std::string anyStep() const {
        const std::filesystem::path file = folder.path() / "a.step";
        writeFile(file, "ISO-10303-21;");
        return host::toUtf8(file);
    }
};

}  // namespace test_support
