#include "tests/host/ui/host_test.h"

#include "host/design/document.h"

#include <Fusion/FusionAll.h>

namespace host {
namespace {

using namespace adsk::core;

class WorkspaceTest : public HostWithDesign {
protected:
    WorkspaceTest() : HostWithDesign("") {}

    static Ptr<adsk::core::Application> app() { return adsk::core::Application::get(); }
};

TEST_F(WorkspaceTest, TheFirstOneIsActiveByDefault) {
    EXPECT_EQ(ui()->activeWorkspace()->id(), "FusionSolidEnvironment");
    EXPECT_TRUE(ui()->activeWorkspace()->isActive());
    EXPECT_EQ(ui()->workspaces()->count(), 4U);
    EXPECT_EQ(ui()->workspaces()->item(3)->id(), "FusionDocumentationEnvironment");
    EXPECT_FALSE(ui()->workspaces()->itemById("Nowhere"));
}

TEST_F(WorkspaceTest, ActivationIsReportedAtItsEndWithTheNewWorkspace) {
    on<OnWorkspace>(ui()->workspacePreDeactivate(),
                    [this](const auto& args) { note("preDeactivate:" + args->workspace()->id()); });
    on<OnWorkspace>(ui()->workspaceActivated(), [this](const auto& args) {
        note("activated:" + args->workspace()->id());
        EXPECT_EQ(ui()->activeWorkspace(), args->workspace());
    });

    activateWorkspace("CAMEnvironment");

    EXPECT_EQ(noted(), "preDeactivate:FusionSolidEnvironment activated:CAMEnvironment");
}

TEST_F(WorkspaceTest, TheActiveOneIsNotActivatedAgain) {
    on<OnWorkspace>(ui()->workspaceActivated(), [this](const auto&) { note("activated"); });

    activateWorkspace("FusionSolidEnvironment");

    EXPECT_EQ(noted(), "");
}

TEST_F(WorkspaceTest, ARunningCommandIsCancelledByTheChange) {
    traceHost();
    openWith([](const Ptr<CommandInputs>& inputs) { inputs->addBoolValueInput("b", "", true); });
    noted();

    activateWorkspace("CAMEnvironment");

    EXPECT_EQ(noted(), "terminated:Dialog=2");
}

TEST_F(WorkspaceTest, AModuleCannotChangeItInsideAnEventOfACommand) {
    define("Button", [](const Ptr<Command>&) {
        EXPECT_FALSE(ui()->workspaces()->itemById("CAMEnvironment")->activate());
    });

    pressCommand("Button");

    EXPECT_EQ(ui()->activeWorkspace()->id(), "FusionSolidEnvironment");
    EXPECT_EQ(misused(), "Workspace::activate");
}

TEST_F(WorkspaceTest, ForDesignsTheActiveProductIsTheDesign) {
    const Ptr<adsk::fusion::Design> design = app()->activeProduct();

    ASSERT_TRUE(design);
    EXPECT_EQ(app()->activeDocument(), document);
    EXPECT_EQ(design->parentDocument(), document);
}

TEST_F(WorkspaceTest, ForManufactureTheActiveProductIsNotADesign) {
    activateWorkspace("CAMEnvironment");

    EXPECT_TRUE(app()->activeProduct());
    EXPECT_FALSE(Ptr<adsk::fusion::Design>(app()->activeProduct()));
}

TEST_F(WorkspaceTest, TheRootComponentIsEditedUntilSomethingElseIs) {
    const Ptr<adsk::fusion::Design> design = app()->activeProduct();
    EXPECT_EQ(app()->activeEditObject(), design->rootComponent());

    host::ApplicationObject::current()->setActiveEditObject(design);
    EXPECT_EQ(app()->activeEditObject(), design);

    host::ApplicationObject::current()->setActiveEditObject(nullptr);
    EXPECT_EQ(app()->activeEditObject(), design->rootComponent());
}

TEST_F(WorkspaceTest, ADocumentCanBeShownWithAnotherProduct) {
    host::ApplicationObject::current()->setActiveDocument(document, otherProductOf(document));

    EXPECT_FALSE(Ptr<adsk::fusion::Design>(app()->activeProduct()));
    EXPECT_TRUE(app()->activeProduct());
}

}  // namespace
}  // namespace host
