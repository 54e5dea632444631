#include "host/import/reader/work_library.h"

#include <Interface_InterfaceModel.hxx>
#include <StepSelect_WorkLibrary.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_HArray1OfStyleContextSelect.hxx>
#include <XSControl_WorkSession.hxx>

namespace step {
namespace {

class WorkLibrary final : public StepSelect_WorkLibrary {
    DEFINE_STANDARD_RTTI_INLINE(WorkLibrary, StepSelect_WorkLibrary)

public:
    WorkLibrary() : StepSelect_WorkLibrary(/*copymode=*/Standard_False) {}

    Standard_Integer ReadFile(const Standard_CString name, Handle(Interface_InterfaceModel) & model,
                              const Handle(Interface_Protocol) & protocol) const override {
        const Standard_Integer status = StepSelect_WorkLibrary::ReadFile(name, model, protocol);
        for (int number = 1; !model.IsNull() && number <= model->NbEntities(); ++number) {
            complete(model->Value(number));
        }
        return status;
    }

private:
    static void complete(const Handle(Standard_Transient) & entity) {
        const auto style =
            Handle(StepVisual_ContextDependentOverRidingStyledItem)::DownCast(entity);
        if (!style.IsNull() && style->StyleContext().IsNull()) {
            style->SetStyleContext(new StepVisual_HArray1OfStyleContextSelect());
        }
    }
};

}  // namespace

void completeModels(STEPControl_Reader& reader) { reader.WS()->SetLibrary(new WorkLibrary); }

}  // namespace step
