#include "tests/tarnix/bom/behaviour/written_design.h"
#include "tests/tarnix/bom/model/random_design.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

/// The write-back of edited tables against the reference, on designs whose items are hard to tell
/// apart.
namespace test_support {
namespace {

constexpr int kDesigns = 75;
constexpr int kWrittenColumns = 6;

class RandomWriteBack : public WrittenDesign {
protected:
    void SetUp() override {
        WrittenDesign::SetUp();
        configure({"QEMA_Part Name;Name", "QEMA_Description;Text", "QEMA_Quantity;Qty",
                   "QEMA_Mass;Mass", "QEMA_Colour;Colour", "QEMA_Supplier;From"});
    }

    /// Types into some cells of a column, and leaves the others as they are.
    void editSome(int column, const std::vector<std::string>& texts) {
        for (const std::string& id : cellIds(column)) {
            if (random() % 4 == 0) session->paste(id, texts[random() % texts.size()]);
        }
    }

    /// Chooses a structure for some rows. On the tab "Structure" that may hide others.
    void chooseSome() {
        const std::array<const char*, 5> structures = {"Produce", "Buy", "AsPart", "Divided",
                                                       "Reference"};
        for (const std::string& id : cellIds(4)) {
            if (random() % 4 == 0 && session->input(id)->isVisible()) {
                session->choose(id, structures[random() % structures.size()]);
            }
        }
    }

    void edit() {
        editSome(3, {"1", "", "new", "P", "nan"});
        editSome(5, {"A", "Renamed", "A+B", "inf"});
        editSome(6,
                 {"", "short", "***different***", "***different***long", "a longer description"});
        editSome(7, {"9"});
        editSome(8, {"0x1A", "0.500"});
        editSome(9, {"red", ""});
        editSome(10, {"Acme; Ltd", "\xC3\xA4"});
        chooseSome();
    }

    std::mt19937 random{7};
};

TEST_F(RandomWriteBack, OfTheModelTableIsLikeTheReference) {
    for (int i = 0; i < kDesigns && !HasFailure(); ++i) {
        SCOPED_TRACE("design " + std::to_string(i));
        session->openDesign(randomDesign(random));
        showModel();
        unfold(/*atMost=*/100);
        edit();

        expectWrittenLikeTheReference(reference::Tab::Model, kWrittenColumns);
        expectKeptInItsFile();
    }
}

TEST_F(RandomWriteBack, OfTheStructureTableIsLikeTheReference) {
    for (int i = 0; i < kDesigns && !HasFailure(); ++i) {
        SCOPED_TRACE("design " + std::to_string(i));
        session->openDesign(randomDesign(random));
        showStructure();
        edit();

        expectWrittenLikeTheReference(reference::Tab::Structure, kWrittenColumns);
        expectKeptInItsFile();
    }
}

}  // namespace
}  // namespace test_support
