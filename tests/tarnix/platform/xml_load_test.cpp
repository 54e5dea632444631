#include "tests/tarnix/platform/test_system.h"
#include "tests/tarnix/platform/xml_fixture.h"

namespace tarnix::platform {
namespace {

class XmlLoad : public Xml {
protected:
    /// Reads a document that names a file "secret.txt" beside it, and returns whether that was
    /// read.
    bool readsSecretFor(const std::string& content) {
        folder.write("secret.txt", "<!ENTITY e 'secret'>");
        const test::ReadWatch control(folder.path() / "secret.txt");
        EXPECT_NE(folder.read("secret.txt"), "");
        EXPECT_TRUE(control.wasRead()) << "this file system does not report reads";

        const test::ReadWatch watch(folder.path() / "secret.txt");
        EXPECT_FALSE(read(content));
        EXPECT_EQ(document.text(), "");
        return watch.wasRead();
    }
};

TEST_F(XmlLoad, ReportsThatTheFileWasRead) {
    EXPECT_EQ(read("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r/>\r\n").nodeName(), "r");
    EXPECT_TRUE(loaded);
}

TEST_F(XmlLoad, MissingFileLeavesAnEmptyDocument) {
    document = XmlDocument::create();
    EXPECT_FALSE(document.load(folder.windows("missing.xml")));
    EXPECT_FALSE(document.documentElement());
    EXPECT_EQ(document.childNodes().length(), 0);
}

TEST_F(XmlLoad, FileThatIsNotXmlLeavesAnEmptyDocument) {
    EXPECT_FALSE(read("no xml at all"));
    EXPECT_FALSE(loaded);
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read(std::string_view("\0\xFF\xFE<r/>", 7)));
}

TEST_F(XmlLoad, FileThatIsNotWellFormedLeavesAnEmptyDocument) {
    EXPECT_FALSE(read("<r><a></r>"));
    EXPECT_FALSE(loaded);
    EXPECT_FALSE(read("<r a='1' a='2'/>"));
    EXPECT_FALSE(read("<r/><r/>"));
    EXPECT_FALSE(read("<r>&unknown;</r>"));
    EXPECT_FALSE(read("<r>caf\xE9</r>"));
    EXPECT_FALSE(read("<r>cut off"));
}

TEST_F(XmlLoad, FailedLoadDropsWhatTheDocumentHeld) {
    makeRoot();
    folder.write("bad.xml", "<r>");
    EXPECT_FALSE(document.load(folder.windows("bad.xml")));
    EXPECT_FALSE(document.documentElement());
}

TEST_F(XmlLoad, TextsOfWhiteSpaceAloneAreDropped) {
    const XmlNode root = read("<r>\r\n  <a> \t</a>\n  <!--c-->\n</r>");
    EXPECT_EQ(root.childNodes().length(), 2);
    EXPECT_FALSE(root.firstChild().firstChild());
}

TEST_F(XmlLoad, TextsOfWhiteSpaceStayWhereTheDocumentPreservesThem) {
    const XmlNode root = read("<r xml:space='preserve'> <a>\t</a></r>");
    ASSERT_EQ(root.childNodes().length(), 2);
    EXPECT_EQ(root.firstChild().nodeValue(), " ");
    EXPECT_EQ(root.childNodes().item(1).firstChild().nodeValue(), "\t");
}

TEST_F(XmlLoad, TextKeepsItsEndsWhereTheDocumentPreservesThem) {
    const XmlNode root = read("<r><a xml:space='preserve'> x </a><b> y </b></r>");
    EXPECT_EQ(root.firstChild().text(), " x ");
    EXPECT_EQ(root.childNodes().item(1).text(), "y");
}

TEST_F(XmlLoad, WhiteSpaceGoesAgainInsideAnElementOfTheDefault) {
    const XmlNode root = read("<r xml:space='preserve'><a xml:space='default'> <b/> </a></r>");
    EXPECT_EQ(root.firstChild().childNodes().length(), 1);
}

TEST_F(XmlLoad, EscapedCharactersComeOutAsTheyAre) {
    const XmlNode root = read("<r a='&lt;&amp;&gt;&quot;&apos;&#233;'>&lt;&amp;&gt;&#x10D;</r>");
    EXPECT_EQ(root.attributes().item(0).nodeValue(), "<&>\"'\xC3\xA9");
    EXPECT_EQ(root.text(), "<&>\xC4\x8D");
    EXPECT_EQ(root.childNodes().length(), 1);
}

TEST_F(XmlLoad, OtherEncodingsAreUnderstood) {
    EXPECT_EQ(read("\xEF\xBB\xBF<r>\xC4\x8D</r>").text(), "\xC4\x8D");
    EXPECT_EQ(read("<?xml version='1.0' encoding='iso-8859-2'?><r>\xE8</r>").text(), "\xC4\x8D");
    EXPECT_EQ(read(std::string_view("\xFF\xFE<\0r\0>\0\x0D\x01<\0/\0r\0>\0", 18)).text(),
              "\xC4\x8D");
}

TEST_F(XmlLoad, DeclarationAndCommentsAreChildrenOfTheDocument) {
    read("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- manual -->\n<r/>");
    ASSERT_EQ(document.childNodes().length(), 3);
    EXPECT_EQ(document.firstChild().nodeName(), "xml");
    EXPECT_EQ(document.firstChild().nodeValue(), "version=\"1.0\" encoding=\"UTF-8\"");
    EXPECT_EQ(document.childNodes().item(1).nodeValue(), " manual ");
}

TEST_F(XmlLoad, DocumentTypeIsRefused) {
    EXPECT_FALSE(read("<!DOCTYPE r><r>text</r>"));
    EXPECT_FALSE(loaded);
    EXPECT_EQ(document.childNodes().length(), 0);
    EXPECT_FALSE(read("<!DOCTYPE r [<!ENTITY e 'text'>]><r>&e;</r>"));
}

TEST_F(XmlLoad, NothingOutsideIsReadForAnEntity) {
    EXPECT_FALSE(readsSecretFor("<!DOCTYPE r [<!ENTITY e SYSTEM 'secret.txt'>]><r>&e;</r>"));
}

TEST_F(XmlLoad, NothingOutsideIsReadForADocumentType) {
    EXPECT_FALSE(readsSecretFor("<!DOCTYPE r SYSTEM 'secret.txt'><r>text</r>"));
}

TEST_F(XmlLoad, NothingOutsideIsReadForAParameterEntity) {
    EXPECT_FALSE(readsSecretFor("<!DOCTYPE r [<!ENTITY % p SYSTEM 'secret.txt'> %p;]><r>text</r>"));
}

TEST_F(XmlLoad, EntitiesOfEntitiesDoNotGrow) {
    // A thousand million "a", if anybody worked it out.
    EXPECT_FALSE(
        read("<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaa'>"
             "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
             "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
             "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
             "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'>"
             "<!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;'>"
             "<!ENTITY g '&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;'>"
             "<!ENTITY h '&g;&g;&g;&g;&g;&g;&g;&g;&g;&g;'>"
             "<!ENTITY i '&h;&h;&h;&h;&h;&h;&h;&h;&h;&h;'>]><r>&i;</r>"));
}

TEST_F(XmlLoad, TreeOfAnUnreasonableDepthIsRefused) {
    std::string open;
    std::string close;
    for (int i = 0; i < 100'000; ++i) {
        open += "<a>";
        close += "</a>";
    }
    EXPECT_FALSE(read(open + close));
}

}  // namespace
}  // namespace tarnix::platform
