#include "host/design/naming.h"

#include <gtest/gtest.h>

namespace host {
namespace {

using Texts = std::vector<std::string>;

TEST(ComponentNames, FreeNameIsTakenAsItIs) {
    ComponentNames names;

    EXPECT_EQ(names.claim("Bolt"), "Bolt");
    EXPECT_EQ(names.claim("bolt"), "bolt");
}

TEST(ComponentNames, TakenNameGetsTheLowestFreeNumber) {
    ComponentNames names;
    names.claim("Bolt");
    names.claim("Bolt (2)");

    EXPECT_EQ(names.claim("Bolt"), "Bolt (1)");
    EXPECT_EQ(names.claim("Bolt"), "Bolt (3)");
    EXPECT_EQ(names.claim("Bolt (2)"), "Bolt (2) (1)");
}

TEST(ComponentNames, ReleasedNumberIsTheLowestFreeOneAgain) {
    ComponentNames names;
    names.claim("Bolt");
    names.claim("Bolt");
    names.claim("Bolt");
    names.claim("Bolt");
    names.release("Bolt (2)");

    EXPECT_EQ(names.claim("Bolt"), "Bolt (2)");
    EXPECT_EQ(names.claim("Bolt"), "Bolt (4)");
}

TEST(ComponentNames, ReleasedNameIsFreeWithoutANumber) {
    ComponentNames names;
    names.claim("Bolt");
    names.claim("Bolt");
    names.release("Bolt");

    EXPECT_EQ(names.claim("Bolt"), "Bolt");
}

DesignData withNames(const Texts& names) {
    DesignData data;
    for (const std::string& name : names) {
        ComponentData& component = data.components.emplace_back();
        component.name = name;
        component.partNumber = name;
    }
    return data;
}

Texts namesOf(const DesignData& data) {
    Texts names;
    for (const ComponentData& component : data.components) {
        names.push_back(component.name);
    }
    return names;
}

TEST(MakeNamesUnique, FirstKeepsItsNameAndLaterOnesAreNumbered) {
    DesignData data = withNames({"Design", "Document", "Document", "Bolt", "Document"});

    makeNamesUnique(data);

    EXPECT_EQ(namesOf(data), (Texts{"Design", "Document", "Document (1)", "Bolt", "Document (2)"}));
}

TEST(MakeNamesUnique, RootComponentTakesNoPart) {
    DesignData data = withNames({"Bolt", "Bolt"});

    makeNamesUnique(data);

    EXPECT_EQ(namesOf(data), (Texts{"Bolt", "Bolt"}));
}

TEST(MakeNamesUnique, CarriesAnUntouchedPartNumberAlongAndNoOther) {
    DesignData data = withNames({"Design", "Bolt", "Bolt", "Bolt", "Bolt"});
    data.components[3].partNumber = "M8";
    data.components[4].hasExplicitPartNumber = true;

    makeNamesUnique(data);

    EXPECT_EQ(data.components[2].partNumber, "Bolt (1)");
    EXPECT_EQ(data.components[3].partNumber, "M8");
    EXPECT_EQ(data.components[4].partNumber, "Bolt");
}

TEST(NumberInstances, CountsUsesOverTheWholeDesignAndSharedChildrenOnce) {
    DesignData data = withNames({"Design", "Asm", "Bolt"});
    data.components[0].children = {{.component = 1, .instance = 0},
                                   {.component = 2, .instance = 0},
                                   {.component = 1, .instance = 0},
                                   {.component = 2, .instance = 0}};
    data.components[1].children = {{.component = 2, .instance = 0},
                                   {.component = 2, .instance = 0, .absent = true}};

    numberInstances(data);

    EXPECT_EQ(data.components[0].children[0].instance, 1);
    EXPECT_EQ(data.components[1].children[0].instance, 1);
    EXPECT_EQ(data.components[0].children[1].instance, 2);
    EXPECT_EQ(data.components[0].children[2].instance, 2);
    EXPECT_EQ(data.components[0].children[3].instance, 3);
}

}  // namespace
}  // namespace host
