#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

class Values : public HostTest {
protected:
    static std::string lastText() {
        std::string text;
        adsk::core::Application::get()->getLastError(&text);
        return text;
    }
};

// ValueInput_createByString and its like: a value has the type that it was created from.
TEST_F(Values, HaveTheTypeThatTheyWereCreatedFrom) {
    EXPECT_EQ(ValueInput::createByString("2 in")->stringValue(), "2 in");
    EXPECT_EQ(ValueInput::createByString("2 in")->valueType(), StringValueType);
    EXPECT_EQ(ValueInput::createByReal(2.5)->realValue(), 2.5);
    EXPECT_EQ(ValueInput::createByReal(2.5)->valueType(), RealValueType);
    EXPECT_EQ(ValueInput::createByObject(ui())->objectValue(), ui());
    EXPECT_EQ(ValueInput::createByObject(ui())->valueType(), ObjectValueType);
    EXPECT_TRUE(ValueInput::createByBoolean(true)->booleanValue());
    EXPECT_EQ(ValueInput::createByBoolean(true)->valueType(), BooleanValueType);
}

TEST_F(Values, OfAnotherTypeAreRefused) {
    EXPECT_EQ(ValueInput::createByReal(2)->stringValue(), "");
    EXPECT_EQ(lastText(), "ValueInput::stringValue: the value is of another type");
    EXPECT_EQ(ValueInput::createByString("2")->realValue(), 0);
    EXPECT_EQ(ValueInput::createByString("2")->objectValue(), nullptr);
    EXPECT_FALSE(ValueInput::createByString("true")->booleanValue());
    EXPECT_EQ(ValueInput::createByObject(nullptr), nullptr);
}

// NamedValues_setValue, NamedValues_value.
TEST_F(Values, AreFoundByTheirName) {
    const Ptr<NamedValues> values = NamedValues::create();
    const Ptr<ValueInput> width = ValueInput::createByReal(2);
    const Ptr<ValueInput> height = ValueInput::createByString("3 mm");

    EXPECT_TRUE(values->setValue("width", width));
    EXPECT_TRUE(values->setValue("width", height));

    EXPECT_EQ(values->value("width"), height);
    EXPECT_EQ(values->value("depth"), nullptr);
    EXPECT_FALSE(values->setValue("", width));
    EXPECT_FALSE(values->setValue("depth", nullptr));
    EXPECT_EQ(lastText(), "NamedValues::setValue: the value of depth is null");
}

TEST_F(Values, AreRefusedWhereTheCallIs) {
    enterModule("test", "", [] {
        gate::refuse("NamedValues::create", 1);
        EXPECT_EQ(NamedValues::create(), nullptr);
        gate::refuse("ValueInput::createByReal", 1);
        EXPECT_EQ(ValueInput::createByReal(1), nullptr);
    });
}

}  // namespace
}  // namespace host
