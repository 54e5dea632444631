#pragma once

#include "host/design/design_data.h"
#include "host/design/reading_error.h"
#include "host/design/reading_limits.h"
#include "host/design/reading_warning.h"

#include <functional>
#include <string>
#include <vector>

/// STEP in: a file of AP203, AP214 or AP242 becomes a design.
///
/// The file is read by a program of its own, `step-reader`, which is beside the host's library
/// or the running program. It is watched: one that crashes, takes too long or grows too large is an
/// error line here and nothing else. It stays alive as long as a geometry of the design does, since
/// shapes are measured on demand: each shape once, however many components share it.
///
/// - A product definition becomes a component, a usage an occurrence. A single root product is the
///   root component; several are below a root component that bears the file's name.
/// - Names are the products' names, made unique: a second "Document" is "Document (1)".
/// - Part numbers are the products' ids, else the component names. Products that share both id and
///   name with others are not identified by them; their part numbers are their component names.
/// - A product without material is of the host's default material, one without density as dense.
/// - An IGES file, recognised by its first line, is one component with all its bodies, named like
///   the file.
/// - What the file does not say is marked in `MaterialData`.
/// - Instance numbers count the uses of a component from the top of the opened tree to its end.
namespace host {

/// A file that cannot be opened: one line that names it, what is wrong, and what would be right.
class ImportError : public ReadingError {
public:
    using ReadingError::ReadingError;
};

/// Reports how far an import is: a stage ("Reading", "Resolving", "Building") and the part of it
/// that is done.
using ImportProgress = std::function<void(const std::string& stage, double fraction)>;

/// The material of components that have none of their own; both its members are marked as assumed.
MaterialData defaultMaterial();

/// Reads a STEP file. The path may be relative; an empty `progress` is not called. What the user
/// should know although the design could be read is appended to `warnings`. Throws `ImportError`.
///
/// The codes of warnings: "missing-reference" (to an entity of the file), "faulty-entity",
/// "missing-product", "missing-file", "unreadable-file", "no-placement", "incomplete-body",
/// "no-body", "density-unit" (what is stated is no density; the default one is taken),
/// "density-range" (it is no material's, and taken all the same).
///
/// A measurement that fails later (the reader crashed, or took more than the limits allow) throws a
/// `std::runtime_error`. A reader that crashed or was ended measures nothing any more.
DesignData importStep(const std::string& path, const ReadingLimits& limits,
                      const ImportProgress& progress, std::vector<ReadingWarning>& warnings);

}  // namespace host
