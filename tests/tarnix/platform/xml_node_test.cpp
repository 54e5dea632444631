#include "tests/tarnix/platform/xml_fixture.h"

namespace tarnix::platform {
namespace {

class XmlHandle : public Xml {};

TEST_F(XmlHandle, RefersToNothingAtFirst) {
    EXPECT_FALSE(XmlNode());
    EXPECT_FALSE(XmlAttributeMap());
    EXPECT_FALSE(XmlDocument());
}

TEST_F(XmlHandle, OfNoNodeThrowsAtAnyUse) {
    XmlNode nothing;
    EXPECT_EQ(comError([&] { return nothing.nodeName(); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.nodeValue(); }), E_POINTER);
    EXPECT_EQ(comError([&] { nothing.setNodeValue(""); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.text(); }), E_POINTER);
    EXPECT_EQ(comError([&] { nothing.setText(""); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.childNodes(); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.firstChild(); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.attributes(); }), E_POINTER);
    EXPECT_EQ(comError([&] { nothing.appendChild(makeRoot()); }), E_POINTER);
    EXPECT_EQ(comError([&] { nothing.removeChild(makeRoot()); }), E_POINTER);
}

TEST_F(XmlHandle, OfNoListOrMapThrowsAtAnyUse) {
    XmlAttributeMap map;
    EXPECT_EQ(comError([] { return XmlNodeList().length(); }), E_POINTER);
    EXPECT_EQ(comError([] { return XmlNodeList().item(0); }), E_POINTER);
    EXPECT_EQ(comError([&] { return map.length(); }), E_POINTER);
    EXPECT_EQ(comError([&] { return map.item(0); }), E_POINTER);
    EXPECT_EQ(comError([&] { map.setNamedItem(makeRoot()); }), E_POINTER);
}

TEST_F(XmlHandle, OfNoDocumentThrowsAtAnyUse) {
    XmlDocument nothing;
    EXPECT_EQ(comError([&] { nothing.load(folder.windows("a.xml")); }), E_POINTER);
    EXPECT_EQ(comError([&] { nothing.save(folder.windows("a.xml")); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.documentElement(); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.createElement("a"); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.createNode(XmlNodeType::Attribute, "a"); }), E_POINTER);
    EXPECT_EQ(comError([&] { return nothing.createProcessingInstruction("a", "b"); }), E_POINTER);
}

TEST_F(XmlHandle, OfNoNodeThrowsAsAnArgument) {
    XmlNode root = makeRoot();
    EXPECT_EQ(comError([&] { root.appendChild(XmlNode()); }), E_POINTER);
    EXPECT_EQ(comError([&] { root.removeChild(XmlNode()); }), E_POINTER);
    EXPECT_EQ(comError([&] { root.attributes().setNamedItem(XmlNode()); }), E_POINTER);
}

TEST_F(XmlHandle, KeepsItsNodeWhenTheDocumentIsReleased) {
    const XmlNode child = read("<r><a>text</a></r>").firstChild();
    document = {};
    EXPECT_EQ(child.nodeName() + "=" + child.text(), "a=text");
}

class XmlNodes : public Xml {
protected:
    void setAttribute(const XmlNode& element, const std::string& name, const std::string& value) {
        XmlNode attribute = document.createNode(XmlNodeType::Attribute, name);
        attribute.setNodeValue(value);
        element.attributes().setNamedItem(attribute);
    }
};

TEST_F(XmlNodes, HaveTheNamesOfTheirKinds) {
    const XmlNodeList children = read("<r>t<a/><!--c--><![CDATA[d]]><?i v?></r>").childNodes();
    ASSERT_EQ(children.length(), 5);
    EXPECT_EQ(document.nodeName(), "#document");
    EXPECT_EQ(children.item(0).nodeName(), "#text");
    EXPECT_EQ(children.item(1).nodeName(), "a");
    EXPECT_EQ(children.item(2).nodeName(), "#comment");
    EXPECT_EQ(children.item(3).nodeName(), "#cdata-section");
    EXPECT_EQ(children.item(4).nodeName(), "i");
}

TEST_F(XmlNodes, HaveTheValuesOfTheirKinds) {
    const XmlNode root = read("<r a='1'> t <!-- c --><![CDATA[ d ]]><?i v ?></r>");
    const XmlNodeList children = root.childNodes();
    EXPECT_EQ(root.attributes().item(0).nodeValue(), "1");
    EXPECT_EQ(children.item(0).nodeValue(), " t ");
    EXPECT_EQ(children.item(1).nodeValue(), " c ");
    EXPECT_EQ(children.item(2).nodeValue(), " d ");
    EXPECT_EQ(children.item(3).nodeValue(), "v ");
}

TEST_F(XmlNodes, ElementsAndDocumentsHaveNoValue) {
    XmlNode root = makeRoot();
    EXPECT_EQ(comError([&] { return root.nodeValue(); }), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(comError([&] { return document.nodeValue(); }), DISP_E_TYPEMISMATCH);
    EXPECT_NE(comError([&] { root.setNodeValue("v"); }), 0);
}

TEST_F(XmlNodes, AttributesAreInDocumentOrder) {
    const XmlAttributeMap attributes = read("<r z='1' a='2' m='3'/>").attributes();
    ASSERT_EQ(attributes.length(), 3);
    EXPECT_EQ(attributes.item(0).nodeName(), "z");
    EXPECT_EQ(attributes.item(1).nodeName(), "a");
    EXPECT_EQ(attributes.item(2).nodeName(), "m");
}

TEST_F(XmlNodes, ThereIsNothingBeyondTheLast) {
    const XmlNode root = read("<r a='1'><b/></r>");
    EXPECT_FALSE(root.attributes().item(1));
    EXPECT_FALSE(root.childNodes().item(1));
    EXPECT_FALSE(root.firstChild().firstChild());
    EXPECT_FALSE(root.firstChild().attributes().item(0));
}

TEST_F(XmlNodes, CommentsAndTextsHaveNoAttributes) {
    const XmlNodeList children = read("<r>text<!--comment--><a/></r>").childNodes();
    EXPECT_FALSE(children.item(0).attributes());
    EXPECT_FALSE(children.item(1).attributes());
    EXPECT_TRUE(children.item(2).attributes());
}

TEST_F(XmlNodes, TextIsThatOfAllBelow) {
    EXPECT_EQ(read("<r>one <a>two</a> three<!--no--><?no no?></r>").text(), "one two three");
}

TEST_F(XmlNodes, TextBeginsAndEndsWithNoWhiteSpace) {
    EXPECT_EQ(read("<r>\r\n\t a  b\tc \n</r>").text(), "a  b\tc");
}

TEST_F(XmlNodes, TextOfCharacterDataIsNotTrimmed) {
    EXPECT_EQ(read("<r><![CDATA[ a ]]></r>").text(), " a ");
}

TEST_F(XmlNodes, TextOfACommentIsItsValue) {
    EXPECT_EQ(read("<r><!-- c --></r>").firstChild().text(), " c ");
}

TEST_F(XmlNodes, SetTextTakesThePlaceOfAllChildren) {
    XmlNode root = read("<r>old<a/><!--c--></r>");
    root.setText("new");
    EXPECT_EQ(root.childNodes().length(), 1);
    EXPECT_EQ(root.text(), "new");
}

TEST_F(XmlNodes, EmptyTextLeavesNoChild) {
    XmlNode root = read("<r>old</r>");
    root.setText("");
    EXPECT_EQ(root.text(), "");
    EXPECT_NE(saved().find("<r/>"), std::string::npos);
}

TEST_F(XmlNodes, AppendedChildComesAfterTheOthers) {
    XmlNode root = read("<r><a/></r>");
    const XmlNode added = root.appendChild(document.createElement("b"));
    EXPECT_EQ(added.nodeName(), "b");
    EXPECT_EQ(root.childNodes().length(), 2);
    EXPECT_EQ(root.childNodes().item(1).nodeName(), "b");
}

TEST_F(XmlNodes, AppendingAChildAgainMovesIt) {
    XmlNode root = read("<r><a/><b/></r>");
    root.appendChild(root.firstChild());
    EXPECT_EQ(root.childNodes().length(), 2);
    EXPECT_EQ(root.firstChild().nodeName(), "b");
}

TEST_F(XmlNodes, RemovedChildIsGone) {
    XmlNode root = read("<r><a/><b/></r>");
    const XmlNode removed = root.removeChild(root.firstChild());
    EXPECT_EQ(removed.nodeName(), "a");
    EXPECT_EQ(root.childNodes().length(), 1);
    EXPECT_EQ(root.firstChild().nodeName(), "b");
}

TEST_F(XmlNodes, RemovingWhatIsNotAChildFails) {
    XmlNode root = read("<r><a><b/></a></r>");
    const XmlNode grandchild = root.firstChild().firstChild();
    EXPECT_EQ(comError([&] { root.removeChild(grandchild); }), E_INVALIDARG);
    EXPECT_EQ(root.firstChild().childNodes().length(), 1);
}

TEST_F(XmlNodes, NewAttributeComesAfterTheOthers) {
    const XmlNode root = read("<r z='1'/>");
    setAttribute(root, "a", "2");
    EXPECT_EQ(root.attributes().length(), 2);
    EXPECT_EQ(root.attributes().item(1).nodeValue(), "2");
}

TEST_F(XmlNodes, AttributeTakesThePlaceOfOneOfItsName) {
    const XmlNode root = read("<r a='1' b='1'/>");
    setAttribute(root, "a", "2");
    EXPECT_EQ(root.attributes().length(), 2);
    EXPECT_NE(saved().find("a=\"2\""), std::string::npos);
}

TEST_F(XmlNodes, AnElementIsRefusedAsAnAttribute) {
    const XmlNode root = makeRoot();
    EXPECT_NE(comError([&] { root.attributes().setNamedItem(document.createElement("a")); }), 0);
    EXPECT_EQ(root.attributes().length(), 0);
}

}  // namespace
}  // namespace tarnix::platform
