#include "tests/tarnix/bom/behaviour/written_design.h"

#include <filesystem>
#include <functional>
#include <limits>
#include <sstream>
#include <typeinfo>

namespace test_support {

using namespace adsk::core;

namespace {

void describeUse(std::ostream& out, const host::OccurrenceData& child) {
    if (child.absent) {
        out << "  > absent\n";
        return;
    }
    out << "  > " << child.component << ":" << child.instance
        << (child.grounded ? " grounded" : "");
    for (const double cell : child.transform.cells) out << " " << cell;
    out << "\n";
}

void describeSketch(std::ostream& out, const host::SketchData& sketch) {
    out << "  sketch " << sketch.name;
    for (const host::SketchCurveData& curve : sketch.curves) {
        out << " " << curve.reference << curve.construction;
    }
    out << "\n";
}

void describeComponent(std::ostream& out, const host::ComponentData& component) {
    out << component.name << " | " << component.partNumber << " | " << component.description
        << " | " << component.document << "\n";
    if (component.material) {
        out << "  of " << component.material->name << " " << component.material->density << "\n";
    }
    for (const host::AttributeData& attribute : component.attributes) {
        out << "  " << attribute.group << "/" << attribute.name << "=" << attribute.value << "\n";
    }
    for (const host::SketchData& sketch : component.sketches) describeSketch(out, sketch);
    for (const host::OccurrenceData& child : component.children) describeUse(out, child);
}

/// What `act` throws as the host reports it: a null handle's exception has no message.
std::string thrownBy(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::exception& error) {
        return typeid(error) == typeid(std::exception) ? "thrown: "
                                                       : std::string("thrown: ") + error.what();
    }
    return "";
}

}  // namespace

std::string WrittenDesign::describe(const host::DesignData& design) {
    std::ostringstream out;
    out.precision(std::numeric_limits<double>::max_digits10);
    for (const host::ComponentData& component : design.components) {
        describeComponent(out, component);
    }
    return out.str();
}

std::vector<std::string> WrittenDesign::cellIds(int column) const {
    std::vector<std::string> ids;
    const Ptr<TableCommandInput> table = shownTableInput();
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount; ++row) {
        const Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
        if (cell->isVisible()) ids.push_back(cell->id());
    }
    return ids;
}

void WrittenDesign::unfold(int atMost) {
    const Ptr<TableCommandInput> table = shownTableInput();
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount && atMost > 0; ++row) {
        const Ptr<BoolValueCommandInput> toggle = table->getInputAtPosition(row, 0);
        const bool isAssembly = toggle->resourceFolder().find("Asm") != std::string::npos;
        if (isAssembly && toggle->isVisible() && !toggle->value()) {
            session->click(toggle->id());
            --atMost;
        }
    }
}

std::string WrittenDesign::accept() {
    faults.forgetExceptions();
    session->ok();
    const std::vector<host::UncaughtException> thrown = faults.exceptions();
    faults.forgetExceptions();
    return thrown.empty() ? "" : "thrown: " + thrown.front().text;
}

void WrittenDesign::expectWrittenLikeTheReference(reference::Tab tab, int configuredColumns) {
    const reference::Table table = reference::capture(shownTableInput());
    const host::DesignData before = session->design();
    const std::string thrownByProduct = accept();
    const std::string product = describe(session->design());

    session->openDesign(before);
    const std::string thrownByReference =
        thrownBy([&] { reference::writeBack(root(), table, tab, configuredColumns); });

    EXPECT_EQ(product, describe(session->design()));
    EXPECT_EQ(thrownByProduct, thrownByReference);
}

void WrittenDesign::expectKeptInItsFile() {
    const std::string before = describe(session->design());
    const std::filesystem::path file = session->folder() / "written.design.json";
    session->save(file);
    session->open(file);

    EXPECT_EQ(describe(session->design()), before);
}

}  // namespace test_support
