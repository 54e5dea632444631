#include "tests/support/allocations.h"
#include "tests/tarnix/settings/settings_fixture.h"

#include <stdexcept>

namespace tarnix {
namespace {

class ReplacedItems : public Settings {
protected:
    static Items bomItems() { return readCategoryItems("category", "bomItems"); }
};

TEST_F(ReplacedItems, AreWrittenInTheirOrder) {
    replaceItems("bomItems", {"QEMA_Mass;Weight", "QEMA_Area;Surface"});
    EXPECT_EQ(stored(),
              "<configuration nameOfApplication=\"Tarnix\">"
              "<category name=\"httpHelpdesk\"><www>http://helpdesk.tarnix.example/</www>"
              "</category>"
              "<category name=\"iProperty\"/>"
              "<category name=\"bomItems\">"
              "<item_bomItems id=\"QEMA_Mass\"><displayName>Weight</displayName></item_bomItems>"
              "<item_bomItems id=\"QEMA_Area\"><displayName>Surface</displayName></item_bomItems>"
              "</category>"
              "</configuration>");
}

TEST_F(ReplacedItems, AreNamedAfterTheirCategory) {
    writeSettings("<category name=\"iProperty\"/>");
    replaceItems("iProperty", {"QEMA_Color;Color"});
    EXPECT_EQ(stored(),
              "<configuration nameOfApplication=\"Tarnix\"><category name=\"iProperty\">"
              "<item_iProperty id=\"QEMA_Color\"><displayName>Color</displayName></item_iProperty>"
              "</category></configuration>");
}

TEST_F(ReplacedItems, TakeThePlaceOfAllThatTheCategoryHeld) {
    writeSettings(
        "<category name=\"bomItems\"><!--note-->text<i id=\"a\"><d>1</d></i><i/></category>"
        "<category name=\"iProperty\"><i id=\"b\"><d>2</d></i></category>");
    replaceItems("bomItems", {"c;3"});
    EXPECT_EQ(bomItems(), Items{"c;3"});
    EXPECT_EQ(readCategoryItems("category", "iProperty"), Items{"b;2"});
}

TEST_F(ReplacedItems, MayBeNone) {
    writeSettings("<category name=\"bomItems\"><i id=\"a\"><d>1</d></i></category>");
    replaceItems("bomItems", {});
    EXPECT_EQ(stored(),
              "<configuration nameOfApplication=\"Tarnix\"><category name=\"bomItems\"/>"
              "</configuration>");
}

TEST_F(ReplacedItems, MissingCategoryIsAddedAfterTheOthers) {
    writeSettings("<other/>");
    replaceItems("bomItems", {"a;1"});
    EXPECT_EQ(stored(),
              "<configuration nameOfApplication=\"Tarnix\"><other/><category name=\"bomItems\">"
              "<item_bomItems id=\"a\"><displayName>1</displayName></item_bomItems></category>"
              "</configuration>");
}

TEST_F(ReplacedItems, MissingCategoryIsLeftOutOnRequest) {
    writeSettings("<other/>");
    replaceItems("bomItems", {"a;1"}, MissingCategory::LeaveOut);
    EXPECT_EQ(stored(), "<configuration nameOfApplication=\"Tarnix\"><other/></configuration>");
}

TEST_F(ReplacedItems, EachCategoryOfTheNameGetsThem) {
    writeSettings(
        "<category name=\"bomItems\"><i id=\"a\"><d>1</d></i></category>"
        "<category name=\"bomItems\"><i id=\"b\"><d>2</d></i></category>");
    replaceItems("bomItems", {"c;3"});
    EXPECT_EQ(bomItems(), (Items{"c;3", "c;3"}));
}

TEST_F(ReplacedItems, AreCutAtTheirFirstSemicolon) {
    replaceItems("bomItems", {"QEMA_Mass;Weight; in kg"});
    EXPECT_EQ(bomItems(), Items{"QEMA_Mass;Weight; in kg"});
    EXPECT_NE(stored().find("<item_bomItems id=\"QEMA_Mass\"><displayName>Weight; in kg<"),
              std::string::npos);
}

TEST_F(ReplacedItems, EmptyValueReadsBackAsMissing) {
    replaceItems("bomItems", {"QEMA_Mass;"});
    EXPECT_EQ(bomItems(), Items{"QEMA_Mass;missing"});
}

TEST_F(ReplacedItems, WithSpecialCharactersReadBackAsTheyWere) {
    const Items items = {"QEMA_A&B<c>\"d\"'e';A & B <c> \"d\" 'e' &amp; ]]>",
                         "QEMA_\xC4\x8D\xE6\xBC\xA2;\xF0\x9F\x98\x80"};
    replaceItems("bomItems", items);
    EXPECT_EQ(bomItems(), items);
}

TEST_F(ReplacedItems, ControlCharactersDoNotSpoilTheFile) {
    replaceItems("bomItems", {"QEMA_a\x01;b\x02"});
    EXPECT_EQ(bomItems(), Items{"QEMA_a;b"});
}

TEST_F(ReplacedItems, WrittenTwiceLeaveTheSameFile) {
    replaceItems("bomItems", {"QEMA_Mass;Weight", "QEMA_Area;"});
    const std::string once = folder.read(kFile);
    replaceItems("bomItems", {"QEMA_Mass;Weight", "QEMA_Area;"});
    EXPECT_EQ(folder.read(kFile), once);
}

TEST_F(ReplacedItems, ManualEditsElsewhereStay) {
    folder.write(kFile,
                 "<!-- mine -->\n<configuration b=\"1\" a=\"2\">\n  <!-- note -->\n"
                 "  <extra><x y=\"z\"/></extra>\n  <category name=\"bomItems\"/>\n"
                 "</configuration>");
    replaceItems("bomItems", {"a;1"});
    EXPECT_NE(folder.read(kFile).find("<!-- mine -->"), std::string::npos);
    EXPECT_EQ(stored(),
              "<configuration b=\"1\" a=\"2\"><!-- note --><extra><x y=\"z\"/></extra>"
              "<category name=\"bomItems\"><item_bomItems id=\"a\"><displayName>1</displayName>"
              "</item_bomItems></category></configuration>");
}

TEST_F(ReplacedItems, FileKeepsItsContentWhenACategoryThrows) {
    writeSettings("<category name=\"bomItems\"><i id=\"a\"><d>1</d></i></category><category/>");
    const std::string before = folder.read(kFile);
    EXPECT_EQ(comError([] { replaceItems("bomItems", {"b;2"}); }), E_POINTER);
    EXPECT_EQ(folder.read(kFile), before);
}

TEST_F(ReplacedItems, AreAskedForAfterTheOpeningOfTheDocument) {
    const auto readItems = []() -> Items { throw std::runtime_error("no items"); };
    EXPECT_THROW(replaceCategoryItems("bomItems", readItems), std::runtime_error);
    EXPECT_EQ(stored(),
              "<configuration nameOfApplication=\"Tarnix\">"
              "<category name=\"httpHelpdesk\"><www>http://helpdesk.tarnix.example/</www>"
              "</category><category name=\"iProperty\"/><category name=\"bomItems\"/>"
              "</configuration>");
}

TEST_F(ReplacedItems, AreNotAskedForOfACategoryThatIsLeftOut) {
    writeSettings("<other/>");
    const auto readItems = []() -> Items { throw std::runtime_error("no items"); };
    EXPECT_NO_THROW(replaceCategoryItems("bomItems", readItems, MissingCategory::LeaveOut));
}

TEST_F(ReplacedItems, StayAsTheyAreWhenAskingForOthersThrows) {
    writeSettings("<category name=\"bomItems\"><i id=\"a\"><d>1</d></i></category>");
    const auto readItems = []() -> Items { throw std::runtime_error("no items"); };
    EXPECT_THROW(replaceCategoryItems("bomItems", readItems), std::runtime_error);
    EXPECT_EQ(bomItems(), Items{"a;1"});
}

class AppendedElements : public Settings {
protected:
    platform::XmlDocument open() {
        writeSettings("");
        return openSettingsDocument(settingsFilePath());
    }

    /// Lets the first, the second, ... allocation of an `appendCategory` fail until none is left to
    /// fail; what it returned and left in the document each time, "-" for nothing.
    static std::string appendWithFailures(const platform::XmlDocument& document) {
        const platform::XmlNodeList children = document.documentElement().childNodes();
        const std::string element = "category";
        const std::string attribute = "name";
        const std::string value = "a long name that is stored on the heap";
        std::string outcomes;
        for (long nth = 1; nth < 1000; ++nth) {
            bool hasFailed = false;
            bool isThere = false;
            {
                const test_support::FailingAllocation failing(nth);
                isThere = static_cast<bool>(appendCategory(document, element, attribute, value));
                hasFailed = failing.hasFailed();
            }
            if (!hasFailed) {
                return outcomes;
            }
            outcomes += isThere || children.length() != 0 ? "category " : "- ";
        }
        return "no end";
    }
};

TEST_F(AppendedElements, CategoryIsUnderTheRoot) {
    const platform::XmlDocument document = open();
    const platform::XmlNode category = appendCategory(document, "category", "name", "bomItems");
    const platform::XmlNode stored = document.documentElement().firstChild();
    EXPECT_EQ(category.nodeName(), "category");
    EXPECT_EQ(stored.nodeName(), "category");
    EXPECT_EQ(stored.attributes().length(), 1);
    EXPECT_EQ(stored.attributes().item(0).nodeName(), "name");
    EXPECT_EQ(stored.attributes().item(0).nodeValue(), "bomItems");
}

TEST_F(AppendedElements, CategoryNeedsARoot) {
    const platform::XmlDocument empty = platform::XmlDocument::create();
    EXPECT_EQ(comError([&] { appendCategory(empty, "category", "name", "x"); }), E_POINTER);
}

TEST_F(AppendedElements, CategoryIsDroppedWhenAnExceptionIsThrown) {
    const platform::XmlDocument document = open();
    const std::string outcomes = appendWithFailures(document);
    EXPECT_TRUE(outcomes.starts_with("- - - ")) << outcomes;
    EXPECT_EQ(outcomes.find("category"), std::string::npos) << outcomes;
    EXPECT_EQ(document.documentElement().childNodes().length(), 1);
}

TEST_F(AppendedElements, ItemIsUnderItsParent) {
    const platform::XmlDocument document = open();
    const platform::XmlNode category = appendCategory(document, "category", "name", "bomItems");
    appendItem(document, category, "item_bomItems", "id", "QEMA_Mass");
    const platform::XmlNode stored = document.documentElement().firstChild().firstChild();
    EXPECT_EQ(stored.nodeName(), "item_bomItems");
    EXPECT_EQ(stored.attributes().item(0).nodeName(), "id");
    EXPECT_EQ(stored.attributes().item(0).nodeValue(), "QEMA_Mass");
}

TEST_F(AppendedElements, ItemNeedsAParent) {
    const platform::XmlDocument document = open();
    EXPECT_EQ(comError([&] { appendItem(document, {}, "item_bomItems", "id", "a"); }), E_POINTER);
}

TEST_F(AppendedElements, ItemIsReadAsOneString) {
    const platform::XmlDocument document = open();
    platform::XmlNode item =
        appendItem(document, document.documentElement(), "item_bomItems", "id", "QEMA_Mass");
    item.appendChild(document.createElement("displayName")).setText("Weight");
    EXPECT_EQ(itemToString(item), "QEMA_Mass;Weight");
}

}  // namespace
}  // namespace tarnix
