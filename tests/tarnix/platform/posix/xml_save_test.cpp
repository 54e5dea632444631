#include "tests/tarnix/platform/test_system.h"
#include "tests/tarnix/platform/xml_fixture.h"

namespace tarnix::platform {
namespace {

using PosixXmlNodes = Xml;

TEST_F(PosixXmlNodes, AppendingAnAncestorFails) {
    XmlNode root = read("<r><a/></r>");
    EXPECT_NE(comError([&] { root.firstChild().appendChild(root); }), 0);
    EXPECT_EQ(document.documentElement().nodeName(), "r");
}

using PosixXmlSave = Xml;

TEST_F(PosixXmlSave, EachChildOfTheDocumentEndsItsLine) {
    document = XmlDocument::create();
    document.appendChild(
        document.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    document.appendChild(document.createElement("r"));
    EXPECT_EQ(saved(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r/>\r\n");
}

/// A document, and what of it is written again.
struct SavedDocument {
    const char* name;
    std::string text;
    std::string saved;
};

/// The same text in UTF-16, with its mark in front.
std::string utf16(std::string_view ascii) {
    std::string wide = "\xFF\xFE";
    for (const char c : ascii) {
        wide += {c, '\0'};
    }
    return wide;
}

class PosixXmlSaveOf : public Xml, public testing::WithParamInterface<SavedDocument> {};

TEST_P(PosixXmlSaveOf, WritesIt) {
    read(GetParam().text);
    EXPECT_EQ(saved(), GetParam().saved);
}

INSTANTIATE_TEST_SUITE_P(
    EachDocument, PosixXmlSaveOf,
    testing::Values(
        SavedDocument{.name = "StandaloneDeclarationIsKept",
                      .text = "<?xml version='1.0' standalone='yes'?><r/>",
                      .saved = "<?xml version=\"1.0\" standalone=\"yes\"?>\r\n<r/>\r\n"},
        SavedDocument{
            .name = "DocumentWithoutADeclarationGetsNone", .text = "<r/>", .saved = "<r/>\r\n"},
        SavedDocument{.name = "NamespaceDeclarationKeepsItsPlace",
                      .text = "<r b='1' xmlns:p='u' p:a='2'><p:c/></r>",
                      .saved = "<r b=\"1\" xmlns:p=\"u\" p:a=\"2\"><p:c/></r>\r\n"},
        SavedDocument{.name = "DocumentInAnotherEncodingBecomesUtf8",
                      .text = "<?xml version=\"1.0\" encoding=\"iso-8859-2\"?><r>\xE8</r>",
                      .saved = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>\xC4\x8D</r>\r\n"},
        SavedDocument{.name = "DocumentInUtf16BecomesUtf8",
                      .text = utf16("<?xml version='1.0' encoding='UTF-16'?><r>text</r>"),
                      .saved = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>text</r>\r\n"}),
    [](const auto& test) { return test.param.name; });

TEST_F(PosixXmlSave, LeavesNothingBesideTheFile) {
    makeRoot();
    saved();
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(PosixXmlSave, ReplacedFileKeepsItsPermissions) {
    using std::filesystem::perms;
    folder.write("saved.xml", "old");
    std::filesystem::permissions(folder.path() / "saved.xml",
                                 perms::owner_read | perms::owner_write);
    makeRoot();
    saved();
    EXPECT_EQ(std::filesystem::status(folder.path() / "saved.xml").permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(PosixXmlSave, LinkStaysAndItsTargetIsReplaced) {
    folder.write("target.xml", "old");
    std::filesystem::create_symlink("target.xml", folder.path() / "saved.xml");
    makeRoot();
    saved();
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "saved.xml"));
    EXPECT_EQ(folder.read("target.xml"), "<configuration/>\r\n");
}

TEST_F(PosixXmlSave, FileThatCannotBeReplacedKeepsItsContent) {
    folder.write("saved.xml", "old");
    makeRoot();
    {
        const auto kept = test::holdUndeletable(folder.path() / "saved.xml");
        if (kept == nullptr) {
            GTEST_SKIP() << "the system lets the file go all the same";
        }
        EXPECT_EQ(comError([&] { document.save(folder.windows("saved.xml")); }), E_ACCESSDENIED);
    }
    EXPECT_EQ(folder.read("saved.xml"), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(PosixXmlSave, LeftoverOfACrashDoesNotMatter) {
    makeRoot();
    folder.write("saved.xml.new-" + std::to_string(test::processNumber()), "half");
    EXPECT_EQ(saved(), "<configuration/>\r\n");
    EXPECT_EQ(folder.count(), 1);
}

}  // namespace
}  // namespace tarnix::platform
