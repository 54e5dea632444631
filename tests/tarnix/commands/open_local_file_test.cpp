#include "tests/support/case_name.h"
#include "tests/tarnix/commands/open_local_file_fixture.h"

#include "host/base/gate.h"
#include "host/base/last_error.h"
#include "host/session/dialog_answers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using OpenLocalFile = OpenLocalFileTest;

std::uint64_t calls(const std::string& name) { return host::gate::count(name); }

/// The formats of the options that were made, of the calls recorded.
std::vector<std::string> factoriesCalled() {
    const std::string before = "ImportManager::create";
    const std::string after = "ImportOptions";
    std::vector<std::string> formats;
    for (const std::string& call : host::gate::recorded()) {
        if (call.rfind(before, 0) == 0) {
            formats.push_back(
                call.substr(before.size(), call.size() - before.size() - after.size()));
        }
    }
    return formats;
}

constexpr const char* kFilter =
    "Supported Files(*.wire; *.dwg; *.f3d; *.f2d; *.cam360; *.iam; *.ipt; *.CATProduct; *.CATPart; "
    "*.dxf; *.fbx; *.igs; *.ige; *.iges; *.prt; *.obj; *.x_b; *.x_t; *.prt; *.asm; *.g; *.neu; "
    "*.3dm; *.sat; *.smb; *.smt; *.sab; *.asm; *.sldprt; *.sldasm; *.prt; *.step; *.stp; *.ste; "
    "*.stl; *.sku);; Alias files(*.wire);;AutoCAD DWG files(*.dwg);;Autodesk Fusion 360 "
    "files(*.f3d);;Autodesk Fusion 360 Drawing files(*.f2d);;Autodesk Fusion 360 Toolpath "
    "files(*.cam360);;Autodesk Inventor files(*.iam; *.ipt);; Catia V5 files(*.CATProduct; "
    "*.CATPart);;DXF files(*.dxf);;FBX files(*.fbx);;IGES files(*.iges; *.ige; *.igs);;NX "
    "files(*.prt);;OBJ files(*.obj);;Parasolid Binary files(*.x_b);;Parasolid Text "
    "files(*.x_t);;Pro / ENGINEER and Creo Parametric files(*.asm; *.prt);;Pro / ENGINEER Granite "
    "files(*.g);;Pro / ENGINEER Neutral files(*.neu);;Rhino files(*.3dm);;SAT / SMT files(*.sab; "
    "*.sat; *.smb; *.smt);;SolidWorks files(*.prt; *.asm; *.sldprt; *.sldasm);;STEP files(*.ste; "
    "*.step; *.stp);;STL files(*.stl);; SketchUp files(*.sku);;All Files(*.*)";

TEST_F(OpenLocalFile, AsksForSeveralFilesOfManyKinds) {
    pickNothing();

    host::FileDialogShown expected;
    expected.title = "Select local file to open/import";
    expected.filter = kFilter;
    expected.multiSelect = true;
    EXPECT_EQ(host::fileDialogs(), std::vector<host::FileDialogShown>{expected});
}

TEST_F(OpenLocalFile, FirstPickCancelledThereIsNothingToDo) {
    host::gate::reset();

    pickNothing();

    EXPECT_EQ(calls("UserInterface::terminateActiveCommand"), 1U);
    EXPECT_EQ(calls("Application::importManager"), 0U);
    EXPECT_EQ(calls("Application::data"), 0U);
    EXPECT_EQ(opened(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, LaterPickCancelledTheEarlierListRunsAgain) {
    pick({design("part.f3d")});

    pickNothing();

    EXPECT_EQ(opened(), (Texts{"part", "part"}));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, NextPickReplacesTheList) {
    pick({design("first.f3d")});

    pick({design("second.f3d")});

    EXPECT_EQ(opened(), (Texts{"first", "second"}));
}

TEST_F(OpenLocalFile, ImportedDocumentBecomesTheActiveOne) {
    pick({design("bracket.f3d")});

    EXPECT_EQ(session->design().name, "bracket");
    EXPECT_EQ(session->design().components.at(1).name, "Plate");
    EXPECT_EQ(messages(), Texts());
}

TEST_F(OpenLocalFile, EachExtensionHasItsFactory) {
    host::gate::reset();
    host::gate::record(true);

    pick({pathOf("a.igs"), pathOf("a.iges"), pathOf("a.ige"), pathOf("a.f3d"), pathOf("a.sab"),
          pathOf("a.sat"), pathOf("a.smb"), pathOf("a.smt"), pathOf("a.stp"), pathOf("a.step"),
          pathOf("a.ste")});

    EXPECT_EQ(factoriesCalled(),
              (std::vector<std::string>{"IGES", "IGES", "IGES", "FusionArchive", "SAT", "SAT",
                                        "SMT", "SMT", "STEP", "STEP", "STEP"}));
    EXPECT_EQ(calls("ImportManager::importToNewDocument"), 11U);
    EXPECT_EQ(calls("DataFolder::uploadFile"), 0U);
    EXPECT_EQ(opened(), Texts());
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, StepFileInUpperCaseGoesThroughTheImportWithTheLowerCasedPath) {
    pick({"/nowhere/PART.STEP"});

    EXPECT_EQ(host::lastError().description, "/nowhere/part.step: no such file");
    EXPECT_EQ(calls("ImportManager::createSTEPImportOptions"), 1U);
}

TEST_F(OpenLocalFile, FileInAFolderInUpperCaseIsFound) {
    pick({design("Shared Designs/V2/BRACKET.F3D")});

    EXPECT_EQ(opened(), Texts{"BRACKET"});
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, FileOfAFormatThatTheHostCannotReadIsSkipped) {
    pick({file("block.sat", "400 0 1 0"), design("part.f3d")});

    EXPECT_EQ(opened(), Texts{"part"});
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, InventorFileMatchesNoGroupAndIsUploaded) {
    host::gate::reset();

    pick({design("model.ipt")});

    EXPECT_EQ(calls("Application::importManager"), 0U);
    EXPECT_EQ(uploaded(), Texts{"model"});
    EXPECT_EQ(opened(), Texts{"model"});
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, InventorFileInUpperCaseIsUploadedWithTheLowerCasedPath) {
    pick({design("Shared Designs/MODEL.IPT")});

    EXPECT_TRUE(std::filesystem::exists(folder.path() / "data" / "Workshop" / "model.ipt"));
    EXPECT_EQ(uploaded(), Texts{"model"});
    // The design's name, which is in the file's content.
    EXPECT_EQ(opened(), Texts{"MODEL"});
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, FileWithoutAnExtensionInADottedFolderIsUploaded) {
    host::gate::reset();

    pick({design("release.f3d/model")});

    // What follows the dot is "f3d/model".
    EXPECT_EQ(calls("Application::importManager"), 0U);
    EXPECT_EQ(uploaded(), Texts{"model"});
}

TEST_F(OpenLocalFile, EmptyNameIsReported) {
    pick({""});

    EXPECT_EQ(messages(), Texts{"Something is wrong with the file"});
    EXPECT_EQ(calls("DataFolder::uploadFile"), 0U);
    EXPECT_EQ(uncaughtExceptions(), "");
}

/// A call of the host that returns nothing, and a file that needs it.
struct MissingCall {
    const char* name;
    const char* call;
    const char* file;
};

class OpenLocalFileWithout : public OpenLocalFile,
                             public testing::WithParamInterface<MissingCall> {};

TEST_P(OpenLocalFileWithout, ThrowsBeforeTheNextFile) {
    host::gate::refuse(GetParam().call, 1);

    pick({design(GetParam().file), design("other.f3d")});

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(uploaded(), Texts());
    EXPECT_EQ(opened(), Texts());
    EXPECT_EQ(messages(), Texts());
}

INSTANTIATE_TEST_SUITE_P(Each, OpenLocalFileWithout,
                         testing::Values(MissingCall{.name = "AnImportManager",
                                                     .call = "Application::importManager",
                                                     .file = "part.f3d"},
                                         MissingCall{.name = "AProgressDialog",
                                                     .call = "UserInterface::createProgressDialog",
                                                     .file = "model.ipt"},
                                         MissingCall{.name = "AnUploadToWaitFor",
                                                     .call = "DataFolder::uploadFile",
                                                     .file = "model.ipt"}),
                         test_support::caseName);

TEST_F(OpenLocalFile, FileForWhichTheHostMakesNoOptionsIsSkipped) {
    faults.expectMisuse("ImportManager::importToNewDocument", "needs options that name a file");
    host::gate::refuse("ImportManager::createFusionArchiveImportOptions", 1);

    pick({design("part.f3d"), design("other.f3d")});

    // The host is asked all the same, and what it returns is not looked at.
    EXPECT_EQ(calls("ImportManager::importToNewDocument"), 2U);
    EXPECT_EQ(opened(), Texts{"other"});
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFile, WithoutTheUserInterfaceTheEarlierListRunsAgain) {
    pick({design("part.f3d")});
    host::gate::refuse("Application::userInterface", 1);

    session->press("QEMA_OpenLocalCmd_QAT");

    EXPECT_EQ(opened(), (Texts{"part", "part"}));
}

}  // namespace
