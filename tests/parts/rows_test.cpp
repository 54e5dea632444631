#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using parts::PartsList;
using parts::PartsRequest;
using parts::View;
using test_support::drawn;
using test_support::request;
using test_support::rowsOf;
using test_support::text;

namespace {

/// A plate of 20 g, a bolt of 5 g twice, a lid of 40 g, all at 0.01 kg/cm3.
constexpr const char* kBox = R"(
    Plate  number=M10 box=2x1x1 material=Sheet:0.01
    Bolt  number=M5 box=0.5x1x1 material=Steel:0.01
    Bolt
    Lid  number=M8 box=1x4x1 material=Sheet:0.01)";

PartsRequest filtered(const std::vector<std::string>& filters) {
    PartsRequest result = request(View::Parts, "Item,Part Name");
    for (const std::string& filter : filters) {
        result.filters.push_back(parts::parseFilter(filter, result.units));
    }
    return result;
}

PartsRequest sorted(const std::string& by, View view = View::Parts) {
    PartsRequest result = request(view, "Item,Part Name");
    result.sort = parts::parseSort(by);
    return result;
}

std::string cell(const std::string& outline, const std::string& column) {
    return rowsOf(outline, request(View::Parts, column));
}

/// What is in a file but cannot be built.
class Broken final : public host::Geometry {
public:
    double area() override { throw std::runtime_error("no closed shell"); }
    double volume() override { throw std::runtime_error("no closed shell"); }
    std::optional<host::Box> box(const host::Transform& /*placement*/) override {
        throw std::runtime_error("no closed shell");
    }
};

constexpr const char* kMeasured = "Part Number,Quantity,Mass,Total mass";

}  // namespace

TEST(Columns, ShowWhatAComponentMeasures) {
    const std::string slab = "Slab  box=10x30x2 material=Steel:0.00785";
    // 600 cm3; 2 x (300 + 60 + 20) cm2; 4.71 kg.
    EXPECT_EQ(cell(slab, "Volume,Area,Mass,Density,Material"), "600 | 760 | 4.71 | 7850 | Steel");
    EXPECT_EQ(cell(slab, "X,Y,Z,Size"), "100 | 300 | 20 | 300 x 100 x 20");
    EXPECT_EQ(cell(slab, "X[in]:3,Mass[lb]:4,Bodies"), "3.937 | 10.3838 | 1");
}

TEST(Columns, ShowWhatAComponentIs) {
    EXPECT_EQ(cell("Motor  number=M-1 description=\"Servo; fast\" structure=Buy document=Bought "
                   "property=Vendor/ACME",
                   "Part Number,Part Name,Description,BOM Structure,Document,Vendor"),
              "M-1 | Motor | Servo; fast | Buy | Bought | ACME");
}

TEST(Columns, ShowWhereAComponentIs) {
    EXPECT_EQ(rowsOf(R"(
        Frame
          Leg
            Foot
        Set  structure=Divided
          Foot)",
                     request(View::Parts, "Part Name,Level,Path,Used in,Quantity per parent")),
              // The highest place is below Divided, which is no level.
              "Foot | 1 | Frame:1+Leg:1+Foot:1 | Design (1); Leg (1) | 1");
}

TEST(Columns, NameParentsOfOneNumberOnceWithAllTheirQuantities) {
    EXPECT_EQ(rowsOf(R"(
        Left   number=Leg
          Foot
        Right  number=Leg
          Foot
          Foot)",
                     request(View::Parts, "Part Name,Used in")),
              "Foot | Leg (1, 2)");
}

TEST(Columns, OfAPartWithoutAShapeHaveNoMeasures) {
    const parts::PartsList list = parts::buildPartsList(
        drawn("Label\nPin  box=1x1x1 material=Steel:0.01"),
        request(View::Parts, "Part Name,Mass,Total mass,Volume,Area,Density,Size,Bodies"));

    EXPECT_EQ(rowsOf(list),
              "Label |  |  |  |  |  |  | 0\nPin | 0.01 | 0.01 | 1 | 6 | 10000 | 10 x 10 x 10 | 1");
    EXPECT_EQ(list.rows[0].mass, std::nullopt);
    EXPECT_FALSE(list.rows[0].isUnmeasured);
    EXPECT_EQ(list.totals.massKg, 0.01);
}

TEST(Columns, HaveTheUnitsOfTheListInTheirCaptions) {
    PartsRequest asked = request(View::Parts, "Mass,Mass=Weight[t],Size,Quantity,Density");
    asked.units.choose("g");
    asked.units.choose("in");

    const PartsList list = parts::buildPartsList(drawn("Bolt"), asked);

    std::string captions;
    for (const parts::ListColumn& column : list.columns) {
        captions += column.key + "=" + column.caption + "; ";
    }
    EXPECT_EQ(captions,
              "mass=Mass [g]; mass 2=Weight [t]; size=Size [in]; quantity=Quantity; "
              "density=Density [kg/m³]; ");
}

TEST(Columns, OneThatNoComponentHasIsRefused) {
    EXPECT_THROW(rowsOf("Bolt", request(View::Parts, "Vendor")), parts::UnknownColumn);
    EXPECT_EQ(rowsOf("Bolt", request(View::Parts, "Part Name,property:Vendor")), "Bolt | ");
}

TEST(Filters, AllHaveToHold) {
    EXPECT_EQ(rowsOf(kBox, filtered({"Material=Sheet"})), "1 | Plate\n3 | Lid");
    EXPECT_EQ(rowsOf(kBox, filtered({"Material=Sheet", "Mass>20 g"})), "3 | Lid");
    EXPECT_EQ(rowsOf(kBox, filtered({"Mass=5g"})), "2 | Bolt");
    EXPECT_EQ(rowsOf(kBox, filtered({"Quantity>=2"})), "2 | Bolt");
    EXPECT_EQ(rowsOf(kBox, filtered({"Part Name~L"})), "1 | Plate\n2 | Bolt\n3 | Lid");
    EXPECT_EQ(rowsOf(kBox, filtered({"Part Number<M9"})), "2 | Bolt\n3 | Lid");
    EXPECT_EQ(rowsOf(kBox, filtered({"Description="})), "1 | Plate\n2 | Bolt\n3 | Lid");
}

TEST(Filters, LookAtMeasuresAsTheyAreShown) {
    // 100 x 20 x 5 mm and 30 x 20 x 5 mm.
    const std::string outline = "Long  box=10x2x0.5\nShort  box=3x2x0.5";
    PartsRequest asked = request(View::Parts, "Part Name,Size");
    const auto rows = [&](const std::string& filter) {
        asked.filters = {parts::parseFilter(filter, asked.units)};
        return rowsOf(outline, asked);
    };

    EXPECT_EQ(rows("Size~100"), "Long | 100 x 20 x 5");
    EXPECT_EQ(rows("Size!=100 x 20 x 5"), "Short | 30 x 20 x 5");
    EXPECT_EQ(rows("X~30"), "Short | 30 x 20 x 5");
    asked.columns = parts::parseColumns("Part Name,Size[cm]");
    EXPECT_EQ(rows("Size=10 x 2 x 0.5"), "Long | 10 x 2 x 0.5");
    EXPECT_EQ(rows("Size[mm]=30 x 20 x 5"), "Short | 3 x 2 x 0.5");
}

TEST(Filters, LeaveTheItemNumbersAsTheyAre) {
    EXPECT_EQ(rowsOf(kBox, filtered({"Material!=Sheet"})), "2 | Bolt");
}

TEST(Filters, KeepWhatAMatchIsIn) {
    PartsRequest asked = request(View::Indented, "Item,Part Name");
    asked.filters = {parts::parseFilter("Part Name=Pin", {})};
    const PartsList list = parts::buildPartsList(drawn(R"(
        Hinge
          Leaf  box=1x1x1 material=S:0.01
          Pin  box=1x1x1 material=S:0.01
        Lid)"),
                                                 asked);

    EXPECT_EQ(rowsOf(list), "1 | Hinge\n1.2 | Pin");
    EXPECT_EQ(list.rows[1].parent, 0U);
    EXPECT_EQ(list.totals.quantity, 1);
}

TEST(Filters, TotalsAreOfWhatIsShown) {
    PartsRequest asked = request(View::Parts, kMeasured);
    asked.filters = {parts::parseFilter("Material=Sheet", {})};
    const PartsList list = parts::buildPartsList(drawn(kBox), asked);

    EXPECT_EQ(list.totals.quantity, 2);
    EXPECT_DOUBLE_EQ(*list.totals.massKg, 0.06);
}

TEST(Sorting, IsNaturalAndNumbersTheRows) {
    EXPECT_EQ(rowsOf(kBox, sorted("Part Number")), "1 | Bolt\n2 | Lid\n3 | Plate");
    EXPECT_EQ(rowsOf(kBox, sorted("Mass:desc")), "1 | Lid\n2 | Plate\n3 | Bolt");
}

TEST(Sorting, ByTheNextColumnWhereTheFirstIsEqual) {
    EXPECT_EQ(rowsOf(kBox, sorted("Material:desc,Part Number")), "1 | Bolt\n2 | Lid\n3 | Plate");
    EXPECT_EQ(rowsOf(kBox, sorted("Material,Part Name")), "1 | Lid\n2 | Plate\n3 | Bolt");
}

TEST(Sorting, PutsWhatHasNoValueLast) {
    const std::string outline = R"(
        A
        B  description=b
        C  description=c)";

    EXPECT_EQ(rowsOf(outline, sorted("Description")), "1 | B\n2 | C\n3 | A");
    EXPECT_EQ(rowsOf(outline, sorted("Description:desc")), "1 | C\n2 | B\n3 | A");
}

TEST(Sorting, OfTheTreeIsAmongWhatIsInOneRow) {
    EXPECT_EQ(rowsOf(R"(
        Frame
          Screw
          Nut
        Arm
          Pin)",
                     sorted("Part Name", View::Indented)),
              text(R"(
        1 | Arm
        1.1 | Pin
        2 | Frame
        2.1 | Nut
        2.2 | Screw)"));
}

TEST(Multiply, ChangesTotalsAndNotWhatIsInAParent) {
    PartsRequest asked = request(View::Indented,
                                 "Part Name,Quantity per parent,Quantity,Mass[g],"
                                 "Total mass[g]");
    asked.multiply = 10;
    const PartsList list = parts::buildPartsList(drawn(R"(
        Hinge
          Pin  box=1x1x1 material=S:0.01
          Pin
        Hinge)"),
                                                 asked);

    EXPECT_EQ(rowsOf(list), "Hinge | 2 | 20 | 20 | 400\nPin | 2 | 40 | 10 | 400");
    EXPECT_EQ(list.totals.quantity, 40);
    EXPECT_DOUBLE_EQ(*list.totals.massKg, 0.4);
}

TEST(OwnBodies, OfAnOpenedAssemblyAreAnItem) {
    const std::string outline = R"(
        Weldment  box=1x1x1 material=S:0.01
          Rib  box=2x1x1 material=S:0.01
        Weldment)";

    // As an assembly its mass is that of all in it.
    EXPECT_EQ(rowsOf(outline, request(View::Parts, kMeasured)),
              "Weldment | 2 | 0.01 | 0.02\nRib | 2 | 0.02 | 0.04");
    EXPECT_EQ(rowsOf(outline, request(View::Indented, kMeasured)),
              "Weldment | 2 | 0.03 | 0.06\nWeldment | 2 | 0.01 | 0.02\nRib | 2 | 0.02 | 0.04");
    EXPECT_EQ(rowsOf(outline, request(View::All, kMeasured)),
              "Weldment | 2 | 0.03 | 0.06\nWeldment | 2 | 0.01 | 0.02\nRib | 2 | 0.02 | 0.04");
    EXPECT_EQ(rowsOf(outline, request(View::Top, kMeasured)), "Weldment | 2 | 0.03 | 0.06");
}

TEST(OwnBodies, AreTheFirstRowBelowTheirAssembly) {
    const std::string outline = R"(
        Cart
          Weldment  box=1x1x1
            Rib)";

    EXPECT_EQ(rowsOf(outline, request(View::Indented, "Item,Part Name,Level,Path")),
              "1 | Cart | 1 | Cart:1\n"
              "1.1 | Weldment | 2 | Cart:1+Weldment:1\n"
              "1.1.1 | Weldment | 3 | Cart:1+Weldment:1\n"
              "1.1.2 | Rib | 3 | Cart:1+Weldment:1+Rib:1");
}

TEST(OwnBodies, TellAssembliesApartThatAreEqualOtherwise) {
    EXPECT_EQ(rowsOf(R"(
        Left  number=W box=1x1x1
          Rib
        Right  number=W
          Rib)",
                     request(View::Indented, "Part Name,Quantity")),
              "Left | 1\nLeft | 1\nRib | 1\nRight | 1\nRib | 1");
}

TEST(OwnBodies, AreReported) {
    const PartsList list = parts::buildPartsList(drawn(R"(
        Weldment  box=1x1x1
          Rib)"),
                                                 request(View::Parts, "Item"));

    EXPECT_EQ(list.warnings, (std::vector<parts::ListWarning>{
                                 {.code = "own-bodies",
                                  .text = "has bodies of its own, which are a line of that name",
                                  .component = "Weldment"}}));
}

TEST(OwnBodies, AreReportedOnceForAll) {
    const auto textOf = [](const std::string& outline) {
        return parts::buildPartsList(drawn(outline), request(View::Parts, "Item"))
            .warnings.at(0)
            .text;
    };

    EXPECT_EQ(textOf("A  box=1x1x1\n  Rib\nB  box=1x1x1\n  Rib"),
              "has bodies of its own, which are a line of that name; so has 1 other assembly");
    EXPECT_EQ(textOf("A  box=1x1x1\n  Rib\nB  box=1x1x1\n  Rib\nC  box=1x1x1\n  Rib"),
              "has bodies of its own, which are a line of that name; so have 2 other assemblies");
}

TEST(OwnBodies, ALonePartIsTheOneItemOfItsDesign) {
    host::DesignData design = drawn("Plate  number=P-1 box=10x5x2 material=Brass:0.0085");
    design.components[0] = design.components[1];
    design.components.resize(1);

    for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
        const PartsList list = parts::buildPartsList(design, request(view, kMeasured));
        EXPECT_EQ(rowsOf(list), "P-1 | 1 | 0.85 | 0.85");
        EXPECT_DOUBLE_EQ(*list.totals.massKg, 0.85);
    }
}

TEST(OwnBodies, HaveTheShapeAndThePictureOfTheirComponent) {
    const host::DesignData design = drawn("Weldment  box=1x1x1\n  Rib  box=2x1x1");
    parts::PartShapes shapes{.classOf = {std::nullopt, 7, 5}};
    shapes.pictures[7] = std::make_shared<const std::string>("PNG");

    for (const View view : {View::Indented, View::All}) {
        const PartsList list =
            parts::buildPartsList(design, request(view, "Part Name,Thumbnail"), shapes);
        ASSERT_EQ(list.rows.size(), 3U);
        // An assembly's shape is not only that of its own bodies.
        EXPECT_EQ(list.rows[0].shape, std::nullopt);
        EXPECT_EQ(list.rows[1].kind, parts::RowKind::OwnBodies);
        EXPECT_EQ(list.rows[1].shape, 7);
        EXPECT_EQ(std::get<parts::Picture>(list.rows[1].cells[1]).shape, 7);
        EXPECT_EQ(list.rows[2].shape, 5);
    }
}

TEST(OwnBodies, OfALonePartHaveItsShape) {
    host::DesignData design = drawn("Plate  box=1x1x1");
    design.components[0] = design.components[1];
    design.components.resize(1);
    const parts::PartShapes shapes{.classOf = {3}};

    for (const View view : {View::Parts, View::Indented, View::Top, View::All}) {
        const PartsList list = parts::buildPartsList(design, request(view, "Item"), shapes);
        ASSERT_EQ(list.rows.size(), 1U);
        EXPECT_EQ(list.rows[0].shape, 3);
    }
}

TEST(Divided, BodiesOfItsOwnAreInNoLineAndReported) {
    const PartsList list = parts::buildPartsList(drawn(R"(
        Set  box=1x1x1 structure=Divided
          Bolt  box=1x1x1 material=S:0.01)"),
                                                 request(View::Parts, kMeasured));

    EXPECT_EQ(rowsOf(list), "Bolt | 1 | 0.01 | 0.01");
    ASSERT_EQ(list.warnings.size(), 1U);
    EXPECT_EQ(list.warnings[0].code, "divided-bodies");
    EXPECT_EQ(list.warnings[0].component, "Set");
}

TEST(Divided, BodiesOfItsOwnAreInTheMassOfNoParent) {
    const host::DesignData design = drawn(R"(
        Frame
          Set  box=5x1x1 material=S:0.01 structure=Divided
            Bolt  box=1x1x1 material=S:0.01
        Motor  structure=Buy
          Kit  box=7x1x1 material=S:0.01 structure=Divided
            Rotor  box=2x1x1 material=S:0.01)");

    const std::string columns = "Part Name,Total mass,Bodies,X";
    const PartsList top = parts::buildPartsList(design, request(View::Top, columns));
    EXPECT_EQ(rowsOf(top), "Frame | 0.01 | 1 | 10\nMotor | 0.02 | 1 | 20");
    ASSERT_EQ(top.warnings.size(), 2U);
    EXPECT_EQ(top.warnings[0].component, "Set");
    EXPECT_EQ(top.warnings[1].component, "Kit");
    EXPECT_EQ(rowsOf(parts::buildPartsList(design, request(View::Parts, columns))),
              "Bolt | 0.01 | 1 | 10\nMotor | 0.02 | 1 | 20");
}

TEST(Reference, InABoughtAssemblyIsNotInItsMass) {
    EXPECT_EQ(rowsOf(R"(
        Motor  structure=Buy
          Rotor  box=1x1x1 material=S:0.01
          Test rig  box=9x9x9 material=S:0.01 structure=Reference)",
                     request(View::Parts, kMeasured)),
              "Motor | 1 | 0.01 | 0.01");
}

TEST(Unmeasured, BodiesLeaveTheirCellsEmptyAndTheTotalsSaySo) {
    host::DesignData design = drawn(R"(
        Good  box=1x1x1 material=S:0.01
        Bad  box=1x1x1)");
    design.components[2].geometry = std::make_shared<Broken>();

    const PartsList list = parts::buildPartsList(design, request(View::Parts, kMeasured));

    EXPECT_EQ(rowsOf(list), "Good | 1 | 0.01 | 0.01\nBad | 1 |  | ");
    EXPECT_TRUE(list.rows[1].isUnmeasured);
    EXPECT_TRUE(list.totals.isUnmeasured);
    EXPECT_DOUBLE_EQ(*list.totals.massKg, 0.01);
    EXPECT_EQ(list.warnings,
              (std::vector<parts::ListWarning>{{.code = "unmeasured",
                                                .text = "no closed shell; its mass is in no sum",
                                                .component = "Bad"}}));
}

TEST(Unmeasured, BodiesLeaveTheExtentsOfWhatTheyAreInEmpty) {
    host::DesignData design = drawn(R"(
        Motor  structure=Buy
          Good  box=1x2x3
          Bad  box=1x1x1)");
    design.components[3].geometry = std::make_shared<Broken>();

    EXPECT_EQ(rowsOf(parts::buildPartsList(design, request(View::Parts, "Part Name,X,Y,Z,Size"))),
              "Motor |  |  |  | ");
}

TEST(Unmeasured, BodiesAreNotAskedWhereNoColumnNeedsThem) {
    host::DesignData design = drawn("Bad  box=1x1x1");
    design.components[1].geometry = std::make_shared<Broken>();

    const PartsList list =
        parts::buildPartsList(design, request(View::Parts, "Part Number,Quantity"));

    EXPECT_EQ(rowsOf(list), "Bad | 1");
    EXPECT_TRUE(list.warnings.empty());
    EXPECT_EQ(list.totals.massKg, std::nullopt);
}

TEST(Assumed, AMaterialMarksTheAssemblyToo) {
    host::DesignData design = drawn(R"(
        Hinge
          Pin  box=1x1x1
        Lid  box=1x1x1)");
    design.components[2].material->nameAssumed = true;

    const PartsList list = parts::buildPartsList(design, request(View::Indented, "Part Name"));

    EXPECT_EQ(rowsOf(list), "Hinge\nPin\nLid");
    EXPECT_TRUE(list.rows[0].isAssumed);
    EXPECT_TRUE(list.rows[1].isAssumed);
    EXPECT_FALSE(list.rows[2].isAssumed);
    EXPECT_TRUE(list.totals.isAssumed);
}

TEST(Structure, ThatDoesNotCountIsReported) {
    const PartsList list = parts::buildPartsList(
        drawn("Motor  property=Spare/1 structure=Reference"), request(View::Parts, "Part Name"));

    EXPECT_EQ(rowsOf(list), "Motor");
    ASSERT_EQ(list.warnings.size(), 1U);
    EXPECT_EQ(list.warnings[0].code, "structure-hidden");
}
