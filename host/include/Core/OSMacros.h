#pragma once

/// What differs between the systems that a module is built for: `XI_WIN` is defined on Windows, and
/// `XI_EXPORT` marks the two functions that a module exports, `run` and `stop`.
#ifdef _WIN32
#ifndef XI_WIN
#define XI_WIN
#endif
#define XI_EXPORT __declspec(dllexport)
#else
#define XI_EXPORT __attribute__((visibility("default")))
#endif
