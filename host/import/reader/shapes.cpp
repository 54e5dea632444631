#include "host/import/reader/shapes.h"

#include "host/import/reader/declared_bodies.h"

#include <BRep_Builder.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

#include <algorithm>

namespace step {
namespace {

/// Gathers the bodies of a shape.
class BodyCollector {
public:
    explicit BodyCollector(const TopoDS_Shape& shape) {
        BRep_Builder().MakeCompound(all_);
        for (TopExp_Explorer solids(shape, TopAbs_SOLID); solids.More(); solids.Next()) {
            BRep_Builder().Add(all_, solids.Current());
            TopExp::MapShapes(solids.Current(), TopAbs_FACE, inSolids_);
            ++count_;
        }
        for (TopExp_Explorer shells(shape, TopAbs_SHELL, TopAbs_SOLID); shells.More();
             shells.Next()) {
            addFaces(TopExp_Explorer(shells.Current(), TopAbs_FACE), /*asOne=*/true);
        }
        // What a shell holds is avoided with it, what a solid holds is in its shells.
        addFaces(TopExp_Explorer(shape, TopAbs_FACE, TopAbs_SHELL), /*asOne=*/false);
    }

    /// A single one comes without a compound around it.
    [[nodiscard]] Bodies bodies() const {
        TopoDS_Iterator inside(all_);
        if (!inside.More()) {
            return {};
        }
        const TopoDS_Shape first = inside.Value();
        inside.Next();
        return {.shape = inside.More() ? all_ : first, .count = count_};
    }

private:
    void addFaces(TopExp_Explorer faces, bool asOne) {
        std::size_t added = 0;
        for (; faces.More(); faces.Next()) {
            // A surface that a file gives once more beside the solid is no second one.
            if (!inSolids_.Contains(faces.Current())) {
                BRep_Builder().Add(all_, faces.Current());
                ++added;
            }
        }
        count_ += asOne ? std::min<std::size_t>(added, 1) : added;
    }

    TopoDS_Compound all_;
    TopTools_IndexedMapOfShape inSolids_;
    std::size_t count_ = 0;
};

class ShapeBuilder {
public:
    explicit ShapeBuilder(Assembly& assembly) : assembly_(assembly) {}

    TopTools_IndexedMapOfShape build(const Message_ProgressRange& progress) {
        transfer(progress);
        for (Component& component : assembly_.components) {
            const TopoDS_Shape own =
                place(component, fileOf(component).shapeOf(component.definition));
            const Bodies bodies = own.IsNull() ? Bodies() : bodiesOf(own);
            component.shape = bodies.shape.IsNull() ? -1 : shapes_.Add(bodies.shape) - 1;
            component.bodyCount = bodies.count;
            keepCurves(component, own);
        }
        for (Component& component : assembly_.components) {
            for (auto from = component.content; from && component.shape < 0;
                 from = assembly_.components[*from].content) {
                component.shape = assembly_.components[*from].shape;
                component.bodyCount = assembly_.components[*from].bodyCount;
                component.curves = assembly_.components[*from].curves;
            }
        }
        if (unplaced_ > 0) {
            assembly_.warnings.push_back(
                {.code = "no-placement",
                 .text = "has no placement for " + std::to_string(unplaced_) +
                         (unplaced_ == 1 ? " usage; it is" : " usages; they are") +
                         " at the origin"});
        }
        if (const std::string complaint = complaintAboutBodies(assembly_); !complaint.empty()) {
            assembly_.warnings.push_back({.code = "incomplete-body", .text = complaint});
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

    void keepCurves(Component& component, const TopoDS_Shape& own) {
        if (component.shape >= 0 || own.IsNull()) {
            return;
        }
        if (const TopoDS_Shape curves = curvesOf(own); !curves.IsNull()) {
            component.curves = static_cast<int>(assembly_.curves.size());
            assembly_.curves.push_back(curves);
        }
    }

    /// Notes the placements of what hangs below the component; returns what is its own.
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
        return whole.IsNull() ? whole : without(whole, below);
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

TopoDS_Shape curvesOf(const TopoDS_Shape& shape) {
    TopoDS_Compound all;
    BRep_Builder().MakeCompound(all);
    bool isEmpty = true;
    for (TopExp_Explorer edges(shape, TopAbs_EDGE, TopAbs_FACE); edges.More(); edges.Next()) {
        BRep_Builder().Add(all, edges.Current());
        isEmpty = false;
    }
    return isEmpty ? TopoDS_Shape() : all;
}

Bodies bodiesOf(const TopoDS_Shape& shape) { return BodyCollector(shape).bodies(); }

TopTools_IndexedMapOfShape buildShapes(Assembly& assembly, const Message_ProgressRange& progress) {
    return ShapeBuilder(assembly).build(progress);
}

}  // namespace step
