#include "host/design/naming.h"

#include <gtest/gtest.h>

namespace host {
namespace {

using Strings = std::vector<std::string>;

/// What each of the wanted names becomes, one after the other.
Strings claimAll(ComponentNames& names, const Strings& wanted) {
    Strings claimed;
    for (const std::string& name : wanted) {
        claimed.push_back(names.claim(name));
    }
    return claimed;
}

TEST(ComponentNames, FreeNameIsTakenAsItIs) {
    ComponentNames names;

    EXPECT_EQ(claimAll(names, {"Bolt", "bolt"}), (Strings{"Bolt", "bolt"}));
}

TEST(ComponentNames, TakenNameGetsTheLowestFreeNumber) {
    ComponentNames names;
    claimAll(names, {"Bolt", "Bolt (2)"});

    EXPECT_EQ(claimAll(names, {"Bolt", "Bolt", "Bolt (2)"}),
              (Strings{"Bolt (1)", "Bolt (3)", "Bolt (2) (1)"}));
}

TEST(ComponentNames, ReleasedNumberIsTheLowestFreeOneAgain) {
    ComponentNames names;
    claimAll(names, {"Bolt", "Bolt", "Bolt", "Bolt"});

    names.release("Bolt (2)");

    EXPECT_EQ(claimAll(names, {"Bolt", "Bolt"}), (Strings{"Bolt (2)", "Bolt (4)"}));
}

TEST(ComponentNames, ReleasedNameIsFreeWithoutANumber) {
    ComponentNames names;
    claimAll(names, {"Bolt", "Bolt"});

    names.release("Bolt");

    EXPECT_EQ(names.claim("Bolt"), "Bolt");
}

DesignData withNames(const Strings& names) {
    DesignData data;
    for (const std::string& name : names) {
        ComponentData& component = data.components.emplace_back();
        component.name = name;
        component.partNumber = name;
    }
    return data;
}

Strings namesOf(const DesignData& data) {
    Strings names;
    for (const ComponentData& component : data.components) {
        names.push_back(component.name);
    }
    return names;
}

TEST(MakeNamesUnique, FirstKeepsItsNameAndLaterOnesAreNumbered) {
    DesignData data = withNames({"Design", "Document", "Document", "Bolt", "Document"});

    makeNamesUnique(data);

    EXPECT_EQ(namesOf(data),
              (Strings{"Design", "Document", "Document (1)", "Bolt", "Document (2)"}));
}

TEST(MakeNamesUnique, RootComponentTakesNoPart) {
    DesignData data = withNames({"Bolt", "Bolt"});

    makeNamesUnique(data);

    EXPECT_EQ(namesOf(data), (Strings{"Bolt", "Bolt"}));
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
