#include "tests/support/run_program.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include "host/session/environment.h"

namespace test_support {

ProgramResult runProgram(const std::string& name, const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    const std::filesystem::path output = folder.path() / "output";
    const std::filesystem::path errors = folder.path() / "errors";
    const std::filesystem::path program =
        host::environment::programFolder() / (name + TEST_PROGRAM_ENDING);
    ProgramResult result;
    result.status = runRedirected(program, arguments, output, errors);
    result.output = readFile(output);
    result.errors = readFile(errors);
    return result;
}

}  // namespace test_support
