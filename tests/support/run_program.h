#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace test_support {

/// How a program ended, and what it wrote.
struct ProgramResult {
    int status = -1;  ///< its exit status; -1 where a signal ended it
    std::string output;
    std::string errors;
};

/// Runs a program of the build by its name, without a terminal, and waits until it ends. Arguments
/// are UTF-8; environment and working directory are those of the caller.
ProgramResult runProgram(const std::string& name, const std::vector<std::string>& arguments);

/// Runs a program with its two streams redirected to files; returns its exit status. For
/// `runProgram`.
int runRedirected(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                  const std::filesystem::path& output, const std::filesystem::path& errors);

}  // namespace test_support
