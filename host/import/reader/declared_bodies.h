#pragma once

#include "host/import/reader/step_file.h"

#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationItem.hxx>

#include <string>
#include <unordered_map>
#include <vector>

namespace step {

/// The bodies that a file declares, whether or not they can be built.
class DeclaredBodies {
public:
    explicit DeclaredBodies(const StepFile& file);

    /// The solids and surfaces in a representation, and in those that the file relates to it as the
    /// same shape. None for null.
    [[nodiscard]] std::vector<Handle(StepRepr_RepresentationItem)> in(
        const Handle(StepRepr_Representation) & representation) const;

private:
    using Representation = const StepRepr_Representation*;

    std::unordered_map<Representation, std::vector<Representation>> same_;
};

struct Assembly;

/// Counts the declared bodies of each component into `bodyCount`, where none are to be built.
void countDeclaredBodies(Assembly& assembly);

/// Reports bodies that were not built, or not with every face; call it once shapes are built. One
/// line, empty when there are none.
std::string complaintAboutBodies(const Assembly& assembly);

}  // namespace step
