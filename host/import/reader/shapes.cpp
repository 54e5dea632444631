#include "host/import/reader/shapes.h"

#include "host/import/reader/declared_bodies.h"

#include <BRep_Builder.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

namespace step {
namespace {

void addAll(TopoDS_Compound& bodies, TopExp_Explorer explorer) {
    for (; explorer.More(); explorer.Next()) {
        BRep_Builder().Add(bodies, explorer.Current());
    }
}

class ShapeBuilder {
public:
    explicit ShapeBuilder(Assembly& assembly) : assembly_(assembly) {}

    TopTools_IndexedMapOfShape build(const Message_ProgressRange& progress) {
        transfer(progress);
        for (Component& component : assembly_.components) {
            const TopoDS_Shape bodies =
                place(component, fileOf(component).shapeOf(component.definition));
            component.shape = bodies.IsNull() ? -1 : shapes_.Add(bodies) - 1;
        }
        for (Component& component : assembly_.components) {
            for (auto from = component.content; from && component.shape < 0;
                 from = assembly_.components[*from].content) {
                component.shape = assembly_.components[*from].shape;
            }
        }
        if (unplaced_ > 0) {
            assembly_.warnings.push_back("has no placement for " + std::to_string(unplaced_) +
                                         (unplaced_ == 1 ? " usage; it is" : " usages; they are") +
                                         " at the origin");
        }
        if (const std::string complaint = complaintAboutBodies(assembly_); !complaint.empty()) {
            assembly_.warnings.push_back(complaint);
        }
        return shapes_;
    }

private:
    StepFile& fileOf(const Component& component) { return *assembly_.files[component.file]; }

    void transfer(const Message_ProgressRange& progress) {
        Message_ProgressScope scope(progress, nullptr,
                                    static_cast<double>(assembly_.components.size()));
        for (const Component& component : assembly_.components) {
            const Message_ProgressRange range = scope.Next();
            StepFile& file = fileOf(component);
            // The transfer of an assembly takes along what hangs below it: most come here done.
            if (file.shapeOf(component.definition).IsNull()) {
                file.reader.TransferEntity(component.definition, range);
            }
        }
    }

    /// Notes the placements of what hangs below the component; returns its own bodies.
    TopoDS_Shape place(Component& component, const TopoDS_Shape& whole) {
        TopTools_MapOfShape below;
        for (Use& use : component.uses) {
            if (use.usage.IsNull()) {
                continue;
            }
            StepFile& file = *assembly_.files[assembly_.components[use.component].file];
            const TopoDS_Shape used = file.shapeOf(use.usage);
            if (used.IsNull()) {
                ++unplaced_;
                continue;
            }
            below.Add(used);
            const TopoDS_Shape plain = file.shapeOf(assembly_.components[use.component].definition);
            const TopLoc_Location own = plain.IsNull() ? TopLoc_Location() : plain.Location();
            use.placement = (used.Location() * own.Inverted()).Transformation();
        }
        return whole.IsNull() ? whole : bodiesOf(without(whole, below));
    }

    static TopoDS_Shape without(const TopoDS_Shape& whole, const TopTools_MapOfShape& below) {
        if (below.IsEmpty()) {
            return whole;
        }
        TopoDS_Compound own;
        BRep_Builder().MakeCompound(own);
        if (whole.ShapeType() == TopAbs_COMPOUND && !below.Contains(whole)) {
            for (TopoDS_Iterator inside(whole); inside.More(); inside.Next()) {
                if (!below.Contains(inside.Value())) {
                    BRep_Builder().Add(own, inside.Value());
                }
            }
        }
        return own;
    }

    Assembly& assembly_;
    TopTools_IndexedMapOfShape shapes_;
    std::size_t unplaced_ = 0;
};

}  // namespace

TopoDS_Shape bodiesOf(const TopoDS_Shape& shape) {
    TopoDS_Compound bodies;
    BRep_Builder().MakeCompound(bodies);
    if (TopExp_Explorer(shape, TopAbs_SOLID).More()) {
        addAll(bodies, TopExp_Explorer(shape, TopAbs_SOLID));
    } else {
        addAll(bodies, TopExp_Explorer(shape, TopAbs_FACE));
    }
    TopoDS_Iterator inside(bodies);
    if (!inside.More()) {
        return {};
    }
    const TopoDS_Shape first = inside.Value();
    inside.Next();
    return inside.More() ? bodies : first;
}

TopTools_IndexedMapOfShape buildShapes(Assembly& assembly, const Message_ProgressRange& progress) {
    return ShapeBuilder(assembly).build(progress);
}

}  // namespace step
