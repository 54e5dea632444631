#pragma once

#include <Core/Application/Application.h>

#include <string>
#include <vector>

/// The ways in which sources written for the vendor's host use handles.
///
/// The source is compiled once for each standard, into a namespace of its own: a program links them
/// all.
namespace idioms_cpp17 {

/// Uses each idiom on the active design, whose root has two occurrences, and returns the names of
/// those that came out wrong.
std::vector<std::string> wrongIdioms(const adsk::core::Ptr<adsk::core::Application>& application);

}  // namespace idioms_cpp17

namespace idioms_cpp20 {

/// The same.
std::vector<std::string> wrongIdioms(const adsk::core::Ptr<adsk::core::Application>& application);

}  // namespace idioms_cpp20
