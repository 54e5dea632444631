#pragma once

#include <string>

/// What a program does that is up to the system.
namespace stub_reader {

/// Lines end with one byte on every system.
void useBinaryStreams();

/// Reads what is at no address.
void crash();

[[noreturn]] void endAtOnce(int status);

std::string processId();

/// The numbers of the open files; on Windows "open" or "closed", of the handle of that number.
std::string openFiles(const std::string& which);

}  // namespace stub_reader
