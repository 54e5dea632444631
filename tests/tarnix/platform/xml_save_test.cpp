#include "tests/tarnix/platform/xml_fixture.h"

namespace tarnix::platform {
namespace {

class XmlSave : public Xml {
protected:
    /// Saves a document with this value as a text and as an attribute, and reads it again.
    void saveAndReadAgain(const std::string& value) {
        XmlNode root = makeRoot();
        XmlNode attribute = document.createNode(XmlNodeType::Attribute, "id");
        attribute.setNodeValue(value);
        root.attributes().setNamedItem(attribute);
        root.setText(value);
        const std::string content = saved();
        root = read(content);
        ASSERT_TRUE(root) << content;
        readAttribute = root.attributes().item(0).nodeValue();
        readText = root.text();
    }

    std::string readAttribute;
    std::string readText;
};

TEST_F(XmlSave, WritesNothingBetweenElements) {
    XmlNode root = makeRoot();
    XmlNode category = root.appendChild(document.createElement("category"));
    category.appendChild(document.createElement("www")).setText("http://a.example/");
    root.appendChild(document.createElement("category"));

    EXPECT_EQ(rootOf(saved()),
              "<configuration><category><www>http://a.example/</www></category><category/>"
              "</configuration>");
}

TEST_F(XmlSave, DeclarationComesFirst) {
    document = XmlDocument::create();
    document.appendChild(
        document.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    document.appendChild(document.createElement("configuration"));

    EXPECT_TRUE(saved().starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
}

TEST_F(XmlSave, EscapesSpecialCharacters) {
    XmlNode root = makeRoot();
    XmlNode attribute = document.createNode(XmlNodeType::Attribute, "id");
    attribute.setNodeValue("a&b<c>d\"e'f");
    root.attributes().setNamedItem(attribute);
    root.setText("a&b<c>d\"e'f");

    EXPECT_EQ(rootOf(saved()),
              "<configuration id=\"a&amp;b&lt;c&gt;d&quot;e'f\">a&amp;b&lt;c&gt;d\"e'f"
              "</configuration>");
}

TEST_F(XmlSave, SpecialCharactersComeBack) {
    saveAndReadAgain("&amp; <a b=\"c\"> ]]> 'd' -- &#65;");
    EXPECT_EQ(readAttribute, "&amp; <a b=\"c\"> ]]> 'd' -- &#65;");
    EXPECT_EQ(readText, "&amp; <a b=\"c\"> ]]> 'd' -- &#65;");
}

TEST_F(XmlSave, CharactersOfAllPlanesComeBack) {
    saveAndReadAgain("Sou\xC4\x8D\xC3\xA1st \xE6\xBC\xA2 \xF0\x9F\x98\x80");
    EXPECT_EQ(readAttribute, "Sou\xC4\x8D\xC3\xA1st \xE6\xBC\xA2 \xF0\x9F\x98\x80");
    EXPECT_EQ(readText, "Sou\xC4\x8D\xC3\xA1st \xE6\xBC\xA2 \xF0\x9F\x98\x80");
}

TEST_F(XmlSave, LineEndsAndTabsInsideComeBack) {
    saveAndReadAgain("a\tb\nc\r\nd");
    EXPECT_EQ(readAttribute, "a\tb\nc\r\nd");
    EXPECT_EQ(readText, "a\tb\nc\r\nd");
}

TEST_F(XmlSave, ForbiddenCharactersAreLeftOut) {
    saveAndReadAgain(
        "a\x01"
        "b\x1B"
        "c\xFF");
    EXPECT_EQ(readAttribute, "abc\xEF\xBF\xBD");
    EXPECT_EQ(readText, "abc\xEF\xBF\xBD");
}

TEST_F(XmlSave, ManualEditsStay) {
    read(
        "<configuration b='1' a='2'>\n  <!-- mine --><?mine too?>\n  <x><![CDATA[<&]]></x>\n"
        "</configuration>");
    EXPECT_EQ(rootOf(saved()),
              "<configuration b=\"1\" a=\"2\"><!-- mine --><?mine too?><x><![CDATA[<&]]></x>"
              "</configuration>");
}

TEST_F(XmlSave, ReplacesTheOldFile) {
    folder.write("saved.xml", std::string(1000, 'x'));
    makeRoot().setText("new");
    EXPECT_EQ(rootOf(saved()), "<configuration>new</configuration>");
}

TEST_F(XmlSave, ThrowsWhereTheFolderIsMissing) {
    makeRoot();
    EXPECT_LT(comError([&] { document.save(folder.windows("missing/saved.xml")); }), 0);
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(XmlSave, ThrowsWhereAFolderHasTheName) {
    makeRoot();
    std::filesystem::create_directory(folder.path() / "saved.xml");
    EXPECT_LT(comError([&] { document.save(folder.windows("saved.xml")); }), 0);
    EXPECT_EQ(folder.count(), 1);
}

}  // namespace
}  // namespace tarnix::platform
