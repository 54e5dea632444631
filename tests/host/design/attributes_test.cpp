#include "host/base/last_error.h"
#include "tests/host/design/design_fixture.h"

using namespace adsk::core;

namespace host {
namespace {

class AttributesOfComponent : public DesignTest {
protected:
    AttributesOfComponent() { open("Bolt"); }

    Ptr<Attributes> attributes() { return component("Bolt:1")->attributes(); }

    Strings valuesOf(const std::string& group) {
        Strings values;
        for (const Ptr<Attribute>& each : attributes()->itemsByGroup(group)) {
            values.push_back(each->name() + "=" + each->value());
        }
        return values;
    }
};

TEST_F(AttributesOfComponent, ComeInTheOrderTheyWereMade) {
    attributes()->add("G", "z", "1");
    attributes()->add("G", "a", "2");
    attributes()->add("Other", "m", "3");
    attributes()->add("G", "b", "4");

    EXPECT_EQ(valuesOf("G"), (Strings{"z=1", "a=2", "b=4"}));
    EXPECT_EQ(attributes()->count(), 4u);
    EXPECT_EQ(attributes()->item(2)->name(), "m");
    EXPECT_EQ(attributes()->item(4), nullptr);
    EXPECT_EQ(attributes()->groupNames(), (Strings{"G", "Other"}));
}

TEST_F(AttributesOfComponent, AddingAnExistingOneSetsItsValueAndReturnsIt) {
    const Ptr<Attribute> first = attributes()->add("G", "a", "1");
    attributes()->add("G", "b", "2");

    const Ptr<Attribute> second = attributes()->add("G", "a", "3");

    EXPECT_EQ(second, first);
    EXPECT_EQ(valuesOf("G"), (Strings{"a=3", "b=2"}));
}

TEST_F(AttributesOfComponent, NamesThatDifferInCaseAreDistinct) {
    attributes()->add("G", "Buy", "1");
    attributes()->add("G", "buy", "0");
    attributes()->add("g", "Buy", "");

    EXPECT_EQ(valuesOf("G"), (Strings{"Buy=1", "buy=0"}));
    EXPECT_EQ(valuesOf("g"), (Strings{"Buy="}));
}

TEST_F(AttributesOfComponent, UnknownGroupAndNameReturnNothing) {
    attributes()->add("G", "a", "1");

    EXPECT_EQ(valuesOf("H"), Strings());
    EXPECT_EQ(attributes()->itemByName("G", "b"), nullptr);
    EXPECT_EQ(attributes()->itemByName("H", "a"), nullptr);
    EXPECT_EQ(attributes()->itemByName("G", "a")->value(), "1");
}

TEST_F(AttributesOfComponent, GroupAndNameAreComparedSeparately) {
    attributes()->add("G", "aa", "1");
    attributes()->add("Ga", "a", "2");

    EXPECT_EQ(attributes()->itemByName("G", "aa")->value(), "1");
    EXPECT_EQ(attributes()->itemByName("Ga", "a")->value(), "2");
}

TEST_F(AttributesOfComponent, EmptyGroupOrNameIsRefused) {
    EXPECT_EQ(attributes()->add("", "a", "1"), nullptr);
    EXPECT_EQ(attributes()->add("G", "", "1"), nullptr);

    EXPECT_EQ(attributes()->count(), 0u);
    EXPECT_EQ(lastError().code, adsk::core::BadApiCallError);
}

TEST_F(AttributesOfComponent, ValueOfMoreThanTwoMegabytesIsRefusedAndTheOldOneKept) {
    const std::string longest(std::size_t{2} * 1024 * 1024, 'x');
    const Ptr<Attribute> attribute = attributes()->add("G", "a", longest);

    EXPECT_EQ(attributes()->add("G", "a", longest + "x"), nullptr);
    EXPECT_EQ(attributes()->add("G", "b", longest + "x"), nullptr);
    EXPECT_FALSE(attribute->value(longest + "x"));

    EXPECT_EQ(attribute->value(), longest);
    EXPECT_EQ(attributes()->count(), 1u);
}

TEST_F(AttributesOfComponent, DeletedOneIsGoneAndItsHandleInvalid) {
    const Ptr<Attribute> deleted = attributes()->add("G", "a", "1");
    attributes()->add("G", "b", "2");

    EXPECT_TRUE(deleted->deleteMe());

    EXPECT_FALSE(deleted->isValid());
    EXPECT_EQ(deleted->value(), "");
    EXPECT_FALSE(deleted->value("3"));
    EXPECT_FALSE(deleted->deleteMe());
    EXPECT_EQ(lastError().code, adsk::core::UnderlyingObjectDeletedError);
    EXPECT_EQ(valuesOf("G"), (Strings{"b=2"}));
    EXPECT_EQ(misused(), "Attribute::value Attribute::value Attribute::deleteMe");
}

TEST_F(AttributesOfComponent, ManyAreFoundByNameAlsoAfterMostAreDeleted) {
    for (int number = 0; number < 100; ++number) {
        attributes()->add("G", "n" + std::to_string(number), std::to_string(number));
    }
    for (int number = 0; number < 97; ++number) {
        attributes()->itemByName("G", "n" + std::to_string(number))->deleteMe();
    }
    attributes()->add("G", "n5", "again");

    EXPECT_EQ(valuesOf("G"), (Strings{"n97=97", "n98=98", "n99=99", "n5=again"}));
    EXPECT_EQ(attributes()->itemByName("G", "n5")->value(), "again");
    EXPECT_EQ(attributes()->itemByName("G", "n98")->value(), "98");
    EXPECT_EQ(attributes()->itemByName("G", "n6"), nullptr);
}

TEST_F(AttributesOfComponent, AreSharedByTheUsesOfTheComponent) {
    open(R"(
        Bolt
        Bolt)");
    const Ptr<Attribute> attribute = component("Bolt:1")->attributes()->add("G", "a", "1");

    EXPECT_EQ(attribute->parent(), component("Bolt:2"));
    EXPECT_EQ(component("Bolt:2")->attributes()->itemByName("G", "a"), attribute);
    EXPECT_EQ(component("Bolt:2")->attributes(), component("Bolt:1")->attributes());
}

TEST_F(AttributesOfComponent, DesignHasItsOwn) {
    const Ptr<adsk::fusion::Design> design = designOf(document);
    design->attributes()->add("G", "whole", "1");

    EXPECT_EQ(root()->attributes()->count(), 0u);
    EXPECT_EQ(design->attributes()->itemByName("G", "whole")->parent(), design);
    EXPECT_EQ(snapshot(document).attributes, (std::vector<AttributeData>{{"G", "whole", "1"}}));
}

}  // namespace
}  // namespace host
