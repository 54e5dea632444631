#include "workbench/serve/addin_pictures.h"
#include "workbench/serve/changes.h"
#include "workbench/serve/design_digest.h"
#include "workbench/serve/pages.h"
#include "workbench/serve/rate_limit.h"
#include "workbench/serve/request_guard.h"

#include "host/design/outline.h"

#include <gtest/gtest.h>

namespace workbench::serve {
namespace {

State stateOf(const Json& document) {
    State state;
    for (const auto& [name, value] : document.items()) {
        state.sections[name] = std::make_shared<const Json>(value);
    }
    return state;
}

/// The patch between two documents, which has to lead from one to the other.
Json patchFrom(const Json& before, const Json& after) {
    Json patch = patchBetween(stateOf(before), stateOf(after));
    EXPECT_EQ(before.patch(patch), after);
    return patch;
}

TEST(Changes, AreThePlacesThatDiffer) {
    EXPECT_EQ(patchFrom({{"dialog", {{"title", "A"}, {"ok", true}}}, {"busy", nullptr}},
                        {{"dialog", {{"title", "A"}, {"ok", false}}}, {"busy", nullptr}}),
              Json::parse(R"([{"op": "replace", "path": "/dialog/ok", "value": false}])"));
}

TEST(Changes, ReplaceWhatIsShorterAsAWhole) {
    const Json before = {{"selection", {"a", "b", "c", "d", "e", "f"}}};

    EXPECT_EQ(patchFrom(before, {{"selection", Json::array()}}),
              Json::parse(R"([{"op": "replace", "path": "/selection", "value": []}])"));
}

TEST(Changes, ReplaceWhatIsOfAnotherKind) {
    EXPECT_EQ(patchFrom({{"dialog", nullptr}}, {{"dialog", {{"width", 5}}}}),
              Json::parse(R"([{"op": "replace", "path": "/dialog", "value": {"width": 5}}])"));
}

TEST(Changes, EscapeNamesAsJsonPointersDo) {
    EXPECT_EQ(patchFrom({{"rows", {{"a/b~c", 1}, {"other", 1}}}},
                        {{"rows", {{"a/b~c", 2}, {"other", 1}}}}),
              Json::parse(R"([{"op": "replace", "path": "/rows/a~1b~0c", "value": 2}])"));
}

TEST(Changes, KeepSectionsThatAreEqual) {
    Sections sections;
    EXPECT_TRUE(update(sections, {{"tree", {1, 2}}, {"busy", nullptr}}));
    const Json* const tree = sections["tree"].get();

    EXPECT_FALSE(update(sections, {{"tree", {1, 2}}}));
    EXPECT_TRUE(update(sections, {{"tree", {1, 2}}, {"busy", "Reading"}}));

    EXPECT_EQ(sections["tree"].get(), tree);
}

TEST(RateLimit, TakesABurstAndThenSoManyASecond) {
    RateLimit limit(/*perSecond=*/10, /*burst=*/3);
    const RateLimit::Clock::time_point start{std::chrono::seconds(1000)};
    const auto taken = [&limit](RateLimit::Clock::time_point now) {
        int count = 0;
        while (limit.take(now)) ++count;
        return count;
    };

    EXPECT_EQ(taken(start), 3);
    EXPECT_EQ(taken(start + std::chrono::milliseconds(250)), 2);
    EXPECT_EQ(taken(start + std::chrono::seconds(100)), 3);
}

TEST(RequestGuard, FindsItsCookieAmongOthers) {
    const RequestGuard guard({.token = "token", .cookie = "secret", .key = "key"}, 8000);

    EXPECT_TRUE(guard.hasCookie("workbench-8000=secret"));
    EXPECT_TRUE(guard.hasCookie("a=b; workbench-8000=secret; c"));
    for (const char* const cookie :
         {"", ";", "workbench-8000", "workbench-8000=", "workbench-8000=secret2",
          "workbench-8001=secret", "xworkbench-8000=secret", "workbench-8000=Secret"}) {
        EXPECT_FALSE(guard.hasCookie(cookie)) << cookie;
    }
}

TEST(RequestGuard, TokensAreLongAndDiffer) {
    const std::string token = randomToken();

    EXPECT_EQ(token.size(), 64U);
    EXPECT_EQ(token.find_first_not_of("0123456789abcdef"), std::string::npos);
    EXPECT_NE(token, randomToken());
}

TEST(OpenPages, ReaderFindsTheNewestStateAlone) {
    Pages pages;
    const std::shared_ptr<Page> page = pages.open();
    for (const std::uint64_t revision : {1U, 2U, 3U}) {
        page->show(std::make_shared<State>(State{.revision = revision, .sections = {}}));
    }

    EXPECT_EQ(page->next(0)->revision, 3U);
    pages.closeAll();
    EXPECT_EQ(page->next(3), nullptr);
    EXPECT_TRUE(page->isClosed());
    EXPECT_EQ(pages.open(), nullptr);
}

TEST(DesignDigest, DependsOnNamesAndPlacesAndOnNothingElse) {
    const host::DesignData before = host::parseOutline("Bolt\nNut");
    host::DesignData numbered = before;
    numbered.components[1].partNumber = "P-1";
    numbered.components[0].children[0].grounded = true;
    host::DesignData moved = before;
    moved.components[0].children[1].transform.cells[3] = 1;
    host::DesignData renamed = before;
    renamed.components[2].name = "Screw";

    EXPECT_EQ(digestOf(numbered), digestOf(before));
    EXPECT_NE(digestOf(moved), digestOf(before));
    EXPECT_NE(digestOf(renamed), digestOf(before));
}

TEST(Addresses, HaveSignsOfTheirOwnEncoded) {
    EXPECT_EQ(encoded("Resources/a b#\xC3\xA9.png"), "Resources/a%20b%23%C3%A9.png");
}

}  // namespace
}  // namespace workbench::serve
