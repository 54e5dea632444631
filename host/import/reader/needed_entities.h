#pragma once

#include <Interface_Graph.hxx>
#include <StepData_StepModel.hxx>

#include <vector>

namespace step {

/// The entities of a file that its tree, its shapes and its materials are made of. Dimensions,
/// annotations, views and properties that only validate are none of these.
class NeededEntities {
public:
    NeededEntities(const Handle(StepData_StepModel) & model, const Interface_Graph& graph);

    [[nodiscard]] bool contains(int number) const {
        return needed_[static_cast<std::size_t>(number)];
    }

private:
    void need(const Handle(Standard_Transient) & entity);

    const Interface_Graph& graph_;
    std::vector<bool> needed_;  ///< by the number of the entity in the model
    std::vector<int> open_;     ///< needed, and not yet followed
};

}  // namespace step
