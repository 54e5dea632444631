#include "tarnix/bom/model/walk.h"

#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/model/merging.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/numbers.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace tarnix {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

std::string relativePosition(int level, std::size_t index) {
    return level < 2 ? std::string() : "." + std::to_string(index + 1);
}

BomRow makeRow(BomModel& model, const Ptr<Occurrence>& occurrence,
               const Ptr<OccurrenceList>& children, int level, std::size_t index) {
    BomRow row;
    row.component = occurrence->component();
    row.occurrence = occurrence;
    row.relativePosition = relativePosition(level, index);
    row.childCount = children->count();
    row.pathName = occurrence->fullPathName();
    row.level = level;
    row.properties = readComponentProperties(row.component).entries;
    collectUserPropertyNames(model, row.properties);
    return row;
}

void dropUnlessKept(BomRow& row, RowProperties properties) {
    if (properties == RowProperties::Dropped) {
        dropProperties(row);
    }
}

/// The walk itself; `append` puts a row into the model.
template <class Append>
void walk(BomModel& model, const Ptr<OccurrenceList>& occurrences, int level, Append& append) {
    for (std::size_t index = 0; index < occurrences->count(); ++index) {
        const Ptr<Occurrence> occurrence = occurrences->item(index);
        if (!occurrence) {
            continue;
        }
        const Ptr<OccurrenceList> children = occurrence->childOccurrences();
        BomRow row = makeRow(model, occurrence, children, level, index);
        const bool isAssembly = row.childCount > 0;
        append(std::move(row));
        if (isAssembly) {
            walk(model, children, level + 1, append);
            at(model.rows, model.rows.size() - 1).pathName = kSubtreeEnd;
        }
    }
}

/// Appends rows to a model and merges those of one item.
///
/// A walk changes descriptions, never a part number or a path, so both can be indexed for its
/// length.
class MergingAppender {
public:
    MergingAppender(BomModel& model, std::size_t expected, RowProperties properties)
        : model_(model), properties_(properties) {
        index_.reserve(model.rows.size() + expected);
        for (const BomRow& row : model.rows) {
            index_.add(row.component->partNumber(), row.occurrence->fullPathName());
        }
    }

    void operator()(BomRow row) {
        dropUnlessKept(row, properties_);
        const std::string partNumber = row.component->partNumber();
        if (const std::optional<std::size_t> target = index_.add(partNumber, row.pathName)) {
            mergeInto(at(model_.rows, *target), row);
        }
        model_.rows.push_back(std::move(row));
    }

private:
    BomModel& model_;
    RowProperties properties_;
    ItemIndex index_;
};

bool isReserved(const std::string& key) {
    return key == kPartNameKey || key == kPartNumberKey || key == kDescriptionKey ||
           std::find(kBomStructures.begin(), kBomStructures.end(), key) != kBomStructures.end();
}

}  // namespace

const std::vector<BomRow>& walkOccurrences(BomModel& model, Ptr<OccurrenceList> occurrences,
                                           int level, RowProperties properties) {
    if (occurrences) {
        auto append = [&model, properties](BomRow row) {
            dropUnlessKept(row, properties);
            model.rows.push_back(std::move(row));
        };
        walk(model, occurrences, level, append);
    }
    return model.rows;
}

const std::vector<BomRow>& walkOccurrencesMerged(BomModel& model, Ptr<OccurrenceList> occurrences,
                                                 int level, RowProperties properties) {
    MergingAppender append(model, occurrences->count(), properties);
    walk(model, occurrences, level, append);
    return model.rows;
}

void collectUserPropertyNames(BomModel& model, const std::vector<PropertyEntry>& properties) {
    auto& names = model.userPropertyNames;
    for (const auto& entry : properties) {
        if (isReserved(entry.name)) {
            continue;
        }
        std::string name = withoutPrefix(entry.name);
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(std::move(name));
        }
    }
}

}  // namespace tarnix
