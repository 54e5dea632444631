#include "tarnix/properties/property_store.h"

#include "host/base/host_state.h"
#include "host/design/document.h"
#include "host/design/outline.h"
#include "tests/support/outline.h"

#include <gtest/gtest.h>

#include <string>
#include <typeinfo>
#include <vector>

namespace tarnix {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

using Entries = std::vector<PropertyEntry>;

class PropertyStoreTest : public testing::Test {
protected:
    ~PropertyStoreTest() override { host::endDocument(document_); }

    /// Opens an outline; its first line is the component.
    void open(const std::string& outline) {
        document_ = host::makeDocument(host::parseOutline(test_support::addinOutline(outline)));
        component = root()->occurrences()->item(0)->component();
    }

    [[nodiscard]] Ptr<Component> root() const { return host::designOf(document_)->rootComponent(); }
    [[nodiscard]] Entries read() const { return readComponentProperties(component).entries; }
    void write(const Entries& entries) const { writeComponentProperties({entries, component}); }

    /// The same with one host call refused.
    void writeWithout(const std::string& call, const Entries& entries) const {
        host::gate::reset();
        host::gate::refuse(call, 1);
        const host::gate::Module module;
        write(entries);
    }

    Ptr<Component> component;

private:
    host::HostState host_;
    Ptr<Document> document_;
};

template <class Action>
bool raisesAPlainException(Action action) {
    try {
        action();
    } catch (const std::exception& exception) {
        return typeid(exception) == typeid(std::exception);
    }
    return false;
}

TEST_F(PropertyStoreTest, AComponentThatWasNeverEditedHasTheThreeModelKeys) {
    open("Bolt  number=B-1 description=long");
    EXPECT_EQ(read(), (Entries{{"QEMA_Part Number", "B-1"},
                               {"QEMA_Part Name", "Bolt"},
                               {"QEMA_Description", "long"}}));
    EXPECT_EQ(readComponentProperties(component).component, component);
}

TEST_F(PropertyStoreTest, AttributesOfTheGroupFollowInTheHostsOrder) {
    open("Bolt  number=B-1 property=Size/M8 structure=Buy property=Colour/ attribute=Other/Name/x");
    EXPECT_EQ(read(), (Entries{{"QEMA_Part Number", "B-1"},
                               {"QEMA_Part Name", "Bolt"},
                               {"QEMA_Description", ""},
                               {"QEMA_Size", "M8"},
                               {"Produce", "0"},
                               {"Buy", "1"},
                               {"AsPart", "0"},
                               {"Divided", "0"},
                               {"Reference", "0"},
                               {"QEMA_Colour", ""}}));
}

TEST_F(PropertyStoreTest, AnAttributeUnderAModelKeyIsSkipped) {
    open("Bolt  number=B-1 description=long property=Description/short");
    EXPECT_EQ(read().size(), 3U);
    EXPECT_EQ(findProperty(readComponentProperties(component), "QEMA_Description"), "long");
}

TEST_F(PropertyStoreTest, AModelKeyInAnotherCaseIsAnOrdinaryAttribute) {
    open("Bolt");
    write({{"QEMA_part number", "B-2"}});
    EXPECT_EQ(component->partNumber(), "Bolt");
    EXPECT_EQ(read().at(3), (PropertyEntry{.name = "QEMA_part number", .value = "B-2"}));
}

TEST_F(PropertyStoreTest, TheRootComponentHasASetLikeAnyOther) {
    open("Bolt");
    writeComponentProperties({{{"QEMA_Colour", "red"}}, root()});
    EXPECT_EQ(findProperty(readComponentProperties(root()), "QEMA_Colour"), "red");
    EXPECT_EQ(read().size(), 3U);
}

TEST_F(PropertyStoreTest, WritingGoesToTheModelAndToTheAttributes) {
    open("Bolt");
    const Entries entries = {{"QEMA_Part Number", "B-1"},
                             {"QEMA_Part Name", "Screw"},
                             {"QEMA_Description", "long"},
                             {"Buy", "1"},
                             {"QEMA_Colour", ""}};
    write(entries);
    EXPECT_EQ(read(), entries);
}

TEST_F(PropertyStoreTest, WritingANameWithoutANumberBeforeLeavesTheNumberEmpty) {
    open("Bolt  number=B-1");
    write({{"QEMA_Part Name", "Screw"}});
    EXPECT_EQ(component->name(), "Screw");
    EXPECT_EQ(component->partNumber(), "");
}

TEST_F(PropertyStoreTest, WritingANameSetsTheNumberBeforeItAgain) {
    open("Bolt");
    write({{"QEMA_Part Number", "B-1"}, {"QEMA_Part Name", "Screw"}, {"QEMA_Part Number", "B-2"}});
    EXPECT_EQ(component->partNumber(), "B-2");
}

TEST_F(PropertyStoreTest, WritingACustomPropertyTwiceUpdatesIt) {
    open("Bolt");
    write({{"QEMA_Colour", "red"}});
    write({{"QEMA_Colour", "blue"}});
    EXPECT_EQ(read().size(), 4U);
    EXPECT_EQ(read().at(3), (PropertyEntry{.name = "QEMA_Colour", .value = "blue"}));
}

TEST_F(PropertyStoreTest, WritingLeavesWhatHasNoEntry) {
    open("Bolt  number=B-1 description=long property=Colour/red");
    write({{"QEMA_Description", ""}});
    EXPECT_EQ(read(), (Entries{{"QEMA_Part Number", "B-1"},
                               {"QEMA_Part Name", "Bolt"},
                               {"QEMA_Description", ""},
                               {"QEMA_Colour", "red"}}));
}

TEST_F(PropertyStoreTest, WritingGoesOnAfterARefusedSetter) {
    open("Bolt  number=B-1");
    writeWithout("Component::description", {{"QEMA_Description", "long"}, {"QEMA_Colour", "red"}});
    EXPECT_EQ(host::gate::refusedCall(), "Component::description");
    EXPECT_EQ(component->description(), "");
    EXPECT_EQ(read().at(3), (PropertyEntry{.name = "QEMA_Colour", .value = "red"}));
}

TEST_F(PropertyStoreTest, AComponentWithoutAttributeCollectionReadsAsEmpty) {
    open("Bolt");
    host::gate::reset();
    host::gate::refuse("Component::attributes", 1);
    const host::gate::Module module;
    EXPECT_TRUE(read().empty());
}

TEST_F(PropertyStoreTest, AComponentWithoutAttributeCollectionTakesNothing) {
    open("Bolt  number=B-1");
    writeWithout("Component::attributes", {{"QEMA_Part Number", "B-2"}, {"QEMA_Colour", "red"}});
    EXPECT_EQ(component->partNumber(), "B-1");
    EXPECT_EQ(read().size(), 3U);
}

TEST_F(PropertyStoreTest, ANullComponentThrowsAPlainException) {
    EXPECT_TRUE(raisesAPlainException([] { readComponentProperties(nullptr); }));
    EXPECT_TRUE(raisesAPlainException([] { writeComponentProperties({}); }));
}

TEST(FindProperty, ReturnsTheFirstEntryOfTheKey) {
    const ComponentProperties properties{{{"Colour", "red"}, {"Colour", "blue"}}, nullptr};
    EXPECT_EQ(findProperty(properties, "Colour"), "red");
}

TEST(FindProperty, ReturnsAnEmptyStringForAnUnknownKey) {
    EXPECT_EQ(findProperty({{{"Colour", "red"}}, nullptr}, "colour"), "");
}

}  // namespace
}  // namespace tarnix
