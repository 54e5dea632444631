#include "tests/support/case_name.h"
#include "tests/tarnix/platform/test_system.h"
#include "tests/tarnix/settings/settings_fixture.h"

namespace tarnix {
namespace {

class SettingsItems : public Settings {
protected:
    static Items bomItems() { return readCategoryItems("category", "bomItems"); }
};

TEST_F(SettingsItems, AreKeySemicolonAndValueInDocumentOrder) {
    writeSettings(
        "<category name=\"bomItems\">"
        "<item_bomItems id=\"QEMA_Mass\"><displayName>Weight</displayName></item_bomItems>"
        "<item_bomItems id=\"QEMA_Area\"><displayName>Surface</displayName></item_bomItems>"
        "</category>");
    EXPECT_EQ(bomItems(), (Items{"QEMA_Mass;Weight", "QEMA_Area;Surface"}));
}

TEST_F(SettingsItems, EmptyDisplayNameReadsAsMissing) {
    writeSettings(
        "<category name=\"bomItems\">"
        "<item_bomItems id=\"QEMA_Mass\"><displayName/></item_bomItems>"
        "<item_bomItems id=\"QEMA_Area\"><displayName>  </displayName></item_bomItems>"
        "</category>");
    EXPECT_EQ(bomItems(), (Items{"QEMA_Mass;missing", "QEMA_Area;missing"}));
}

TEST_F(SettingsItems, EmptyIdReadsAsAnEmptyEntryThatStays) {
    writeSettings(
        "<category name=\"bomItems\">"
        "<item_bomItems id=\"\"><displayName>Weight</displayName></item_bomItems>"
        "<item_bomItems id=\"QEMA_Area\"><displayName>Surface</displayName></item_bomItems>"
        "</category>");
    EXPECT_EQ(bomItems(), (Items{"", "QEMA_Area;Surface"}));
}

TEST_F(SettingsItems, EmptyIdNeedsNoDisplayName) {
    writeSettings("<category name=\"bomItems\"><item_bomItems id=\"\"/></category>");
    EXPECT_EQ(bomItems(), Items{""});
}

TEST_F(SettingsItems, CategoriesOfOneNameReturnTheItemsOfBothInOrder) {
    writeSettings(
        "<category name=\"bomItems\"><i id=\"a\"><d>1</d></i></category>"
        "<category name=\"iProperty\"><i id=\"b\"><d>2</d></i></category>"
        "<category name=\"bomItems\"><i id=\"c\"><d>3</d></i></category>");
    EXPECT_EQ(bomItems(), (Items{"a;1", "c;3"}));
}

TEST_F(SettingsItems, OtherElementsOfTheRootAreSkipped) {
    writeSettings(
        "<!-- mine --><other name=\"bomItems\"><i id=\"a\"><d>1</d></i></other><note/>"
        "<category name=\"bomItems\"><i id=\"b\"><d>2</d></i></category>");
    EXPECT_EQ(bomItems(), Items{"b;2"});
    EXPECT_EQ(readCategoryItems("other", "bomItems"), Items{"a;1"});
}

TEST_F(SettingsItems, WithoutTheirCategoryThereAreNone) {
    writeSettings("");
    EXPECT_EQ(bomItems(), Items());
}

TEST_F(SettingsItems, FirstAttributeOfACategoryIsComparedWhateverItsName) {
    writeSettings(
        "<category label=\"x\" name=\"bomItems\"><i id=\"a\"><d>1</d></i></category>"
        "<category label=\"bomItems\" name=\"x\"><i id=\"b\"><d>2</d></i></category>");
    EXPECT_EQ(bomItems(), Items{"b;2"});
}

TEST_F(SettingsItems, FirstAttributeOfAnItemIsItsKeyWhateverItsName) {
    writeSettings("<category name=\"bomItems\"><i first=\"a\" id=\"b\"><d>1</d></i></category>");
    EXPECT_EQ(bomItems(), Items{"a;1"});
}

TEST_F(SettingsItems, FirstChildOfAnItemIsItsValueWhateverItsName) {
    writeSettings(
        "<category name=\"bomItems\"><i id=\"a\"><!--note--><displayName>1</displayName></i>"
        "<i id=\"b\">plain</i></category>");
    EXPECT_EQ(bomItems(), (Items{"a;note", "b;plain"}));
}

TEST_F(SettingsItems, IndentedDocumentReadsAsOneWithout) {
    folder.write(kFile,
                 "<configuration>\n"
                 "    <category name='bomItems'>\n"
                 "        <item_bomItems id='QEMA_Mass'>\n"
                 "            <displayName> Weight </displayName>\n"
                 "        </item_bomItems>\n"
                 "    </category>\n"
                 "</configuration>\n");
    EXPECT_EQ(bomItems(), Items{"QEMA_Mass;Weight"});
}

TEST_F(SettingsItems, SpecialCharactersReadAsThemselves) {
    writeSettings(
        "<category name=\"bomItems\"><i id=\"QEMA_A&amp;B&quot;\"><d>&lt;\xC4\x8D&gt; a;b</d></i>"
        "</category>");
    EXPECT_EQ(bomItems(), Items{"QEMA_A&B\";<\xC4\x8D> a;b"});
}

struct BrokenSettings {
    const char* name;
    const char* categories;
};

class BrokenSettingsItems : public SettingsItems,
                            public testing::WithParamInterface<BrokenSettings> {};

TEST_P(BrokenSettingsItems, Throw) {
    writeSettings(GetParam().categories);
    EXPECT_EQ(comError([] { bomItems(); }), E_POINTER);
}

INSTANTIATE_TEST_SUITE_P(
    Each, BrokenSettingsItems,
    testing::Values(
        BrokenSettings{.name = "ItemWithoutAFirstChild",
                       .categories = R"(<category name="bomItems"><i id="a"/></category>)"},
        BrokenSettings{.name = "ItemWithoutAnAttribute",
                       .categories = R"(<category name="bomItems"><i><d>1</d></i></category>)"},
        BrokenSettings{.name = "CommentAmongTheItems",
                       .categories = R"(<category name="bomItems"><!-- note --></category>)"},
        BrokenSettings{.name = "CategoryWithoutAnAttribute",
                       .categories = R"(<category/><category name="bomItems"/>)"}),
    test_support::caseName);

TEST_F(SettingsItems, FileThatIsNotXmlThrows) {
    folder.write(kFile, "no xml");
    EXPECT_EQ(comError([] { bomItems(); }), E_POINTER);
    EXPECT_EQ(comError([] { readHelpdeskUrl(); }), E_POINTER);
    EXPECT_EQ(comError([] { replaceItems("bomItems", {"a;b"}); }), E_POINTER);
    EXPECT_EQ(folder.read(kFile), "no xml");
}

TEST_F(SettingsItems, EmptyFileThrows) {
    folder.write(kFile, "");
    EXPECT_EQ(comError([] { bomItems(); }), E_POINTER);
}

TEST_F(SettingsItems, DocumentTypeIsRefusedAndNothingOutsideIsRead) {
    folder.write("secret.txt", "secret");
    const test::ReadWatch watch(folder.path() / "secret.txt");
    folder.write(kFile,
                 "<!DOCTYPE configuration [<!ENTITY e SYSTEM 'secret.txt'>]>"
                 "<configuration><category name='bomItems'><i id='a'><d>&e;</d></i></category>"
                 "</configuration>");
    EXPECT_EQ(comError([] { bomItems(); }), E_POINTER);
    EXPECT_FALSE(watch.wasRead());
}

class HelpdeskUrl : public Settings {};

TEST_F(HelpdeskUrl, IsTheTextOfTheFirstElement) {
    writeSettings(
        "<category name=\"httpHelpdesk\"><www>http://a.example/?b&amp;c</www><www>no</www>"
        "</category>");
    EXPECT_EQ(readHelpdeskUrl(), "http://a.example/?b&c");
}

TEST_F(HelpdeskUrl, IsThatOfTheLastCategory) {
    writeSettings(
        "<category name=\"httpHelpdesk\"><www>http://a.example/</www></category>"
        "<category name=\"httpHelpdesk\"><www>http://b.example/</www></category>");
    EXPECT_EQ(readHelpdeskUrl(), "http://b.example/");
}

TEST_F(HelpdeskUrl, IsEmptyWithoutACategory) {
    writeSettings("<category name=\"bomItems\"/>");
    EXPECT_EQ(readHelpdeskUrl(), "");
}

TEST_F(HelpdeskUrl, MayBeEmpty) {
    writeSettings("<category name=\"httpHelpdesk\"><www/></category>");
    EXPECT_EQ(readHelpdeskUrl(), "");
}

TEST_F(HelpdeskUrl, ThrowsWithoutItsElement) {
    writeSettings("<category name=\"httpHelpdesk\"/>");
    EXPECT_EQ(comError([] { readHelpdeskUrl(); }), E_POINTER);
}

}  // namespace
}  // namespace tarnix
