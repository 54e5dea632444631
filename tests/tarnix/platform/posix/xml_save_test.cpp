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

class PosixXmlSave : public Xml {
protected:
    /// The same text in UTF-16, with its mark in front.
    static std::string utf16(std::string_view ascii) {
        std::string wide = "\xFF\xFE";
        for (const char c : ascii) {
            wide += {c, '\0'};
        }
        return wide;
    }
};

TEST_F(PosixXmlSave, EachChildOfTheDocumentEndsItsLine) {
    document = XmlDocument::create();
    document.appendChild(
        document.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    document.appendChild(document.createElement("r"));
    EXPECT_EQ(saved(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r/>\r\n");
}

TEST_F(PosixXmlSave, StandaloneDeclarationIsKept) {
    read("<?xml version='1.0' standalone='yes'?><r/>");
    EXPECT_EQ(saved(), "<?xml version=\"1.0\" standalone=\"yes\"?>\r\n<r/>\r\n");
}

TEST_F(PosixXmlSave, DocumentWithoutADeclarationGetsNone) {
    read("<r/>");
    EXPECT_EQ(saved(), "<r/>\r\n");
}

TEST_F(PosixXmlSave, NamespaceDeclarationKeepsItsPlace) {
    read("<r b='1' xmlns:p='u' p:a='2'><p:c/></r>");
    EXPECT_EQ(saved(), "<r b=\"1\" xmlns:p=\"u\" p:a=\"2\"><p:c/></r>\r\n");
}

TEST_F(PosixXmlSave, DocumentInAnotherEncodingBecomesUtf8) {
    read("<?xml version=\"1.0\" encoding=\"iso-8859-2\"?><r>\xE8</r>");
    EXPECT_EQ(saved(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>\xC4\x8D</r>\r\n");
}

TEST_F(PosixXmlSave, DocumentInUtf16BecomesUtf8) {
    read(utf16("<?xml version='1.0' encoding='UTF-16'?><r>text</r>"));
    EXPECT_EQ(saved(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<r>text</r>\r\n");
}

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
        const test::Undeletable kept(folder.path() / "saved.xml");
        if (!kept.isEffective()) {
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
