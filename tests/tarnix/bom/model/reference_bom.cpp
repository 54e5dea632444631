#include "tests/tarnix/bom/model/reference_bom.h"

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/bom/model/walk.h"

namespace reference {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;
using tarnix::BomModel;
using tarnix::BomRow;
using tarnix::PropertyEntry;

const std::string kDifferent = "***different***";
const std::size_t kNowhere = std::string::npos;

int findBomRow(const std::vector<BomRow>& rows, const Ptr<Occurrence>& occurrence) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].component->partNumber() != occurrence->component()->partNumber()) {
            continue;
        }
        const std::string first = rows[i].occurrence->fullPathName();
        const std::string second = occurrence->fullPathName();
        const std::size_t firstPlus = first.rfind('+');
        const std::size_t secondPlus = second.rfind('+');
        if (first.substr(0, firstPlus) == second.substr(0, secondPlus)) {
            return static_cast<int>(i);
        }
        if (firstPlus == kNowhere && secondPlus == kNowhere) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

std::string cutAtColon(const std::string& path) { return path.substr(0, path.rfind(':')); }

void mergeProperties(BomRow& target, const BomRow& current) {
    const std::size_t length = target.properties.size();
    for (std::size_t j = 0; j < length; ++j) {
        if (j < current.properties.size()) {
            if (current.properties[j].value != target.properties[j].value) {
                target.properties[j].value = kDifferent;
            }
        } else if (!target.properties[j].value.empty()) {
            target.properties[j].value = kDifferent;
        }
    }
    for (std::size_t j = length; j < current.properties.size(); ++j) {
        if (!current.properties[j].value.empty()) {
            target.properties.push_back(
                PropertyEntry{.name = current.properties[j].name, .value = kDifferent});
        }
    }
}

void merge(BomRow& target, const BomRow& current) {
    target.quantity = target.quantity + 1;
    if (cutAtColon(target.occurrence->fullPathName()) !=
        cutAtColon(current.occurrence->fullPathName())) {
        target.combined = true;
    }
    const auto targetComponent = target.occurrence->component();
    const auto currentComponent = current.occurrence->component();
    if (currentComponent->description() != targetComponent->description() &&
        targetComponent->description().find(kDifferent) == kNowhere) {
        targetComponent->description(kDifferent + targetComponent->description());
    }
    mergeProperties(target, current);
}

/// What the merged walk adds to the rows of the model.
void addMergedRows(BomModel& model, const Ptr<OccurrenceList>& occurrences, int level) {
    for (std::size_t i = 0; i < occurrences->count(); ++i) {
        const Ptr<Occurrence> occurrence = occurrences->item(i);
        if (!occurrence) {
            continue;
        }
        BomRow row;
        if (level >= 2) {
            row.relativePosition = "." + std::to_string(i + 1);
        }
        row.component = occurrence->component();
        row.occurrence = occurrence;
        row.childCount = occurrence->childOccurrences()->count();
        row.pathName = occurrence->fullPathName();
        row.level = level;
        row.properties = tarnix::readComponentProperties(occurrence->component()).entries;
        tarnix::collectUserPropertyNames(model, row.properties);
        const int m = findBomRow(model.rows, occurrence);
        if (m >= 0) {
            merge(model.rows[static_cast<std::size_t>(m)], row);
        }
        model.rows.push_back(row);
        if (occurrence->childOccurrences()->count() > 0) {
            addMergedRows(model, occurrence->childOccurrences(), level + 1);
            model.rows.back().pathName = "-1";
        }
    }
}

}  // namespace

std::vector<BomRow> walkOccurrencesMerged(BomModel& model, Ptr<OccurrenceList> occurrences,
                                          int level) {
    addMergedRows(model, occurrences, level);
    return model.rows;
}

std::vector<ShownRow> shownRows(const std::vector<BomRow>& rows) {
    std::string referencePath = "empty";
    std::string dividedPath = "empty";
    std::string lastAssemblyStem = "empty";
    int dividedLevel = 1;
    int lastShownLevel = 0;
    std::vector<BomRow> seen;
    std::vector<ShownRow> shown;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const BomRow& row = rows[i];
        const BomRow previous = i == 0 ? BomRow() : rows[i - 1];
        const std::string path = row.occurrence->fullPathName();
        if (path.find(dividedPath) == kNowhere && dividedPath != "empty") {
            dividedPath = "empty";
        }
        const bool underDivided = dividedPath != "empty";
        const std::string structure = tarnix::firstSetProperty(row);
        if (structure == "Reference") {
            if (referencePath == "empty" || path.find(referencePath) == kNowhere) {
                referencePath = path;
            }
            continue;
        }
        if (path.find(referencePath) != kNowhere) {
            continue;
        }
        if (structure == "Divided") {
            dividedLevel = row.level;
            dividedPath = path;
            continue;
        }
        if (row.level > 1 && dividedPath != "empty" &&
            static_cast<unsigned>(row.level - dividedLevel) > 1 &&
            path.find(dividedPath) != kNowhere) {
            continue;
        }
        if (lastAssemblyStem != "empty" && !(row.level < previous.level) &&
            path.find(lastAssemblyStem) != kNowhere) {
            continue;
        }
        if (previous.pathName == "-1" && row.level > lastShownLevel && lastShownLevel != 0) {
            continue;
        }
        if (findBomRow(seen, row.occurrence) >= 0) {
            continue;
        }
        seen.push_back(row);
        shown.push_back({.r = static_cast<int>(i) + 1, .underDivided = underDivided});
        const bool isAssembly = row.occurrence->childOccurrences()->count() > 0;
        if (isAssembly && path.find(lastAssemblyStem) == kNowhere && lastAssemblyStem != "empty") {
            lastAssemblyStem = "empty";
        }
        lastShownLevel = row.level;
        if (isAssembly) {
            lastAssemblyStem = path.substr(0, path.rfind(':'));
        }
    }
    return shown;
}

}  // namespace reference
