#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"
#include "host/session/dialog_view.h"
#include "host/ui/inputs/slider_state.h"

namespace host {
namespace {

using namespace adsk::core;
using ui::SliderKnob;

/// A slider of each kind; those between limits have one knob, those of a list two.
class Sliders : public HostTest {
protected:
    Sliders() {
        all = openWith([](const Ptr<CommandInputs>& inputs) {
            inputs->addFloatSliderCommandInput("length", "Length", "mm", 1, 10);
            inputs->addIntegerSliderCommandInput("count", "Count", -3, 5);
            inputs->addFloatSliderListCommandInput("sizes", "Sizes", "mm", {0.5, 1, 2.54}, true);
            inputs->addIntegerSliderListCommandInput("teeth", "Teeth", {8, 12, 20, 40}, true);
        });
        length = all->itemById("length");
        count = all->itemById("count");
        sizes = all->itemById("sizes");
        teeth = all->itemById("teeth");
    }

    Ptr<CommandInputs> all;
    Ptr<FloatSliderCommandInput> length;
    Ptr<IntegerSliderCommandInput> count;
    Ptr<FloatSliderCommandInput> sizes;
    Ptr<IntegerSliderCommandInput> teeth;
};

// CommandInputs_addFloatSliderCommandInput and its like.
TEST_F(Sliders, BeginAtTheirEnds) {
    EXPECT_EQ(length->valueOne(), 1);
    EXPECT_EQ(length->expressionOne(), "10.000 mm");
    EXPECT_EQ(length->unitType(), "mm");
    EXPECT_EQ(length->minimumValue(), 1);
    EXPECT_EQ(length->maximumValue(), 10);
    EXPECT_FALSE(length->hasTwoSliders());
    EXPECT_EQ(count->valueOne(), -3);
    EXPECT_EQ(count->expressionOne(), "-3");
    EXPECT_TRUE(sizes->hasTwoSliders());
    EXPECT_EQ(sizes->valueTwo(), 2.54);
    EXPECT_EQ(sizes->expressionTwo(), "25.400 mm");
    EXPECT_EQ(teeth->valueOne(), 8);
    EXPECT_EQ(teeth->valueTwo(), 40);
    EXPECT_EQ(readDialog().inputs[3].value, "8 to 40");
}

// FloatSliderCommandInput_valueTwo: there is one knob alone.
TEST_F(Sliders, HaveNoSecondValueWithOneKnob) {
    EXPECT_EQ(length->valueTwo(), 0);
    EXPECT_FALSE(length->valueTwo(2));
    EXPECT_EQ(length->expressionTwo(), "");
    EXPECT_FALSE(length->expressionTwo("20"));
    EXPECT_EQ(lastError().description, "the slider \"length\" has one knob");
    EXPECT_EQ(misuseOf([this] { slide(length, 2, SliderKnob::Second); }),
              "cannot slide \"length\": it has one knob");
}

// IntegerSliderCommandInput_valueOne and its like.
TEST_F(Sliders, TakeTheValuesThatTheyHave) {
    EXPECT_TRUE(length->valueOne(2.5));
    EXPECT_EQ(length->expressionOne(), "25.000 mm");
    EXPECT_FALSE(length->valueOne(10.5));
    EXPECT_EQ(length->valueOne(), 2.5);
    EXPECT_TRUE(teeth->valueTwo(20));
    EXPECT_FALSE(teeth->valueTwo(21));
    EXPECT_EQ(lastError().description, "the slider \"teeth\" does not have the value 21.000000");
    EXPECT_EQ(teeth->valueTwo(), 20);
    EXPECT_EQ(noted(), "");
}

TEST_F(Sliders, AreDraggedToTheNearestValue) {
    slide(length, 3.25);
    slide(count, 2.6);
    slide(sizes, 0.8);
    slide(teeth, 25, SliderKnob::Second);
    EXPECT_EQ(noted(), "length count sizes teeth");

    EXPECT_EQ(length->valueOne(), 3.25);
    EXPECT_EQ(count->valueOne(), 3);
    EXPECT_EQ(sizes->valueOne(), 1);
    EXPECT_EQ(teeth->valueTwo(), 20);

    slide(length, 100);
    slide(teeth, 40);
    slide(teeth, 1, SliderKnob::Second);
    EXPECT_EQ(length->valueOne(), 10);
    EXPECT_EQ(teeth->valueOne(), 20);
    EXPECT_EQ(teeth->valueTwo(), 20);
    EXPECT_EQ(
        misuseOf([] { slide(openDialog()->commandInputs()->addStringValueInput("text", ""), 1); }),
        "cannot slide \"text\": it is no slider");
}

TEST_F(Sliders, AreCountedUpAndDownByTheArrowsOfTheirFirstField) {
    spin(length, 3);
    EXPECT_DOUBLE_EQ(length->valueOne(), 1.3);
    spin(count, -1);
    EXPECT_EQ(count->valueOne(), -3);
    spin(teeth, 2);
    EXPECT_EQ(teeth->valueOne(), 20);
    spin(teeth, 5);
    EXPECT_EQ(teeth->valueOne(), 40);
    teeth->valueTwo(12);
    spin(teeth, -2);
    EXPECT_EQ(teeth->valueOne(), 12);
}

// FloatSliderCommandInput_expressionOne: what is typed is evaluated; OK waits for a value that the
// slider has.
TEST_F(Sliders, TakeExpressionsFromTheirFields) {
    pasteText(length, "1 in + 4");
    EXPECT_DOUBLE_EQ(length->valueOne(), 2.94);

    pasteText(sizes, "10 to 1 in");
    EXPECT_EQ(sizes->valueOne(), 1);
    EXPECT_EQ(sizes->valueTwo(), 2.54);
    EXPECT_EQ(misuseOf(pressOk), "");
}

TEST_F(Sliders, OkIsRefusedForAValueThatTheSliderDoesNotHave) {
    pasteText(teeth, "12 to 13");

    EXPECT_EQ(teeth->valueTwo(), 0);
    EXPECT_EQ(misuseOf(pressOk),
              "cannot press OK: the slider \"teeth\" does not have the value 13");
    EXPECT_TRUE(teeth->expressionTwo("20"));
    EXPECT_TRUE(length->expressionOne("1 deg"));
    EXPECT_EQ(misuseOf(pressOk),
              "cannot press OK: the slider \"length\" does not have the value 1 deg");
    EXPECT_TRUE(length->valueOne(2));
    EXPECT_EQ(misuseOf(pressOk), "");
}

// FloatSliderCommandInput_spinStep, IntegerSliderCommandInput_setText.
TEST_F(Sliders, KeepTheirStepAndTexts) {
    EXPECT_EQ(length->spinStep(), 1);
    EXPECT_TRUE(length->spinStep(0.5));
    EXPECT_EQ(length->spinStep(), 0.5);
    EXPECT_FALSE(count->spinStep(0));
    EXPECT_EQ(lastError().description, "the step of \"count\" has to be above 0");
    EXPECT_TRUE(count->setText("few", "many"));
    EXPECT_EQ(ui::sliderOf(ui::InputState::of(count)).rightText, "many");
}

TEST_F(Sliders, AreRefusedWithoutAnythingToSlide) {
    const std::size_t before = all->count();

    EXPECT_FALSE(all->addIntegerSliderCommandInput("a", "", 5, 5));
    EXPECT_EQ(lastError().description,
              "CommandInputs::addIntegerSliderCommandInput: the minimum has to be below the "
              "maximum");
    EXPECT_FALSE(all->addFloatSliderCommandInput("a", "", "furlong", 1, 5));
    EXPECT_FALSE(all->addIntegerSliderListCommandInput("a", "", {}));
    EXPECT_FALSE(all->addIntegerSliderListCommandInput("a", "", {7}));
    EXPECT_FALSE(all->addFloatSliderListCommandInput("a", "", "mm", {1, 3, 2, 4}));
    EXPECT_EQ(lastError().description,
              "CommandInputs::addFloatSliderListCommandInput: the values have to ascend, from one "
              "to another");

    EXPECT_EQ(all->count(), before);
}

}  // namespace
}  // namespace host
