#pragma once

/// What differs between the systems a module is built for: `XI_WIN` says that this is Windows, and
/// `XI_EXPORT` marks the two functions that a module shows to the host.
#ifdef _WIN32
#ifndef XI_WIN
#define XI_WIN
#endif
#define XI_EXPORT __declspec(dllexport)
#else
#define XI_EXPORT __attribute__((visibility("default")))
#endif
