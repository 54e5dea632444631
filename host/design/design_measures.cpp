#include "host/design/design_measures.h"

#include "host/design/transform.h"

#include <exception>
#include <utility>

namespace host {
namespace {

struct Sums {
    double area = 0;
    double volume = 0;
    double mass = 0;
    std::size_t bodies = 0;
};

class Measurer {
public:
    explicit Measurer(const DesignData& design)
        : design_(design),
          sums_(design.components.size()),
          boxes_(design.components.size()),
          failed_(design.components.size()) {}

    DesignMeasures measure() {
        const Sums all = sumsOf(0);
        DesignMeasures result{.area = all.area,
                              .volume = all.volume,
                              .mass = all.mass,
                              .box = boxOf(0),
                              .bodies = all.bodies,
                              .unmeasured = {}};
        result.unmeasured = std::move(unmeasured_);
        return result;
    }

private:
    Sums sumsOf(std::size_t index) {
        if (sums_[index]) {
            return *sums_[index];
        }
        Sums sums = ownSums(index);
        for (const OccurrenceData& child : design_.components[index].children) {
            if (!child.absent) {
                const Sums below = sumsOf(child.component);
                sums.area += below.area;
                sums.volume += below.volume;
                sums.mass += below.mass;
                sums.bodies += below.bodies;
            }
        }
        sums_[index] = sums;
        return sums;
    }

    Sums ownSums(std::size_t index) {
        const ComponentData& component = design_.components[index];
        return asked<Sums>(index, [&](Geometry& geometry) {
            const double volume = geometry.volume();
            return Sums{.area = geometry.area(),
                        .volume = volume,
                        .mass = component.material ? volume * component.material->density : 0,
                        .bodies = geometry.bodies()};
        });
    }

    std::optional<Box> boxOf(std::size_t index) {
        if (!boxes_[index]) {
            boxes_[index] = boxAround(index, {});
        }
        return *boxes_[index];
    }

    /// The box around a placed component.
    std::optional<Box> placedBox(std::size_t index, const Transform& placement) {
        if (!keepsAxes(placement)) {
            return boxAround(index, placement);
        }
        const std::optional<Box> box = boxOf(index);
        return box ? std::optional(placed(*box, placement)) : std::nullopt;
    }

    std::optional<Box> boxAround(std::size_t index, const Transform& placement) {
        std::optional<Box> sum = asked<std::optional<Box>>(
            index, [&](Geometry& geometry) { return geometry.box(placement); });
        for (const OccurrenceData& child : design_.components[index].children) {
            if (!child.absent) {
                include(sum, placedBox(child.component, placement * child.transform));
            }
        }
        return sum;
    }

    template <class Result, class Ask>
    Result asked(std::size_t index, Ask ask) {
        const ComponentData& component = design_.components[index];
        if (component.geometry == nullptr) {
            return {};
        }
        try {
            return ask(*component.geometry);
        } catch (const std::exception& error) {
            if (std::exchange(failed_[index], 1) == 0) {
                unmeasured_.push_back({.component = component.name, .reason = error.what()});
            }
            return {};
        }
    }

    const DesignData& design_;
    std::vector<std::optional<Sums>> sums_;
    std::vector<std::optional<std::optional<Box>>> boxes_;
    std::vector<char> failed_;
    std::vector<Unmeasured> unmeasured_;
};

}  // namespace

DesignMeasures measureDesign(const DesignData& design) { return Measurer(design).measure(); }

}  // namespace host
