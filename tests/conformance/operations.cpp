#include "tests/conformance/operations.h"

#include <Core/Application/CustomEvents.h>
#include <Core/Application/Documents.h>
#include <Core/Application/NamedValues.h>
#include <Core/Application/ObjectCollection.h>
#include <Core/Application/Product.h>
#include <Core/Application/UnitsManager.h>
#include <Core/Application/ValueInput.h>
#include <Core/Geometry/Matrix3D.h>
#include <Core/Geometry/Point3D.h>
#include <Core/Geometry/Vector3D.h>
#include <Core/UserInterface/AngleValueCommandInput.h>
#include <Core/UserInterface/CommandDefinition.h>
#include <Core/UserInterface/CommandDefinitions.h>
#include <Core/UserInterface/CommandInputs.h>
#include <Core/UserInterface/DistanceValueCommandInput.h>
#include <Core/UserInterface/FileDialog.h>
#include <Core/UserInterface/FloatSliderCommandInput.h>
#include <Core/UserInterface/FloatSpinnerCommandInput.h>
#include <Core/UserInterface/FolderDialog.h>
#include <Core/UserInterface/HTMLEvent.h>
#include <Core/UserInterface/HTMLEventArgs.h>
#include <Core/UserInterface/HTMLEventHandler.h>
#include <Core/UserInterface/IntegerSliderCommandInput.h>
#include <Core/UserInterface/IntegerSpinnerCommandInput.h>
#include <Core/UserInterface/Palette.h>
#include <Core/UserInterface/Palettes.h>
#include <Core/UserInterface/Toolbar.h>
#include <Core/UserInterface/Toolbars.h>
#include <Core/UserInterface/UserInterface.h>
#include <Core/UserInterface/ValueCommandInput.h>
#include <Fusion/Components/Component.h>
#include <Fusion/Components/Occurrence.h>
#include <Fusion/Components/Occurrences.h>
#include <Fusion/Fusion/Design.h>

#include <string>
#include <thread>

using namespace adsk::core;
using namespace adsk::fusion;

namespace operations {
namespace {

std::string quarterTurn() {
    Ptr<Matrix3D> matrix = Matrix3D::create();
    matrix->setToRotation(3.14159265358979323846 / 2, Vector3D::create(0, 0, 1),
                          Point3D::create(0, 0, 0));
    Ptr<Point3D> point = Point3D::create(1, 0, 0);
    point->transformBy(matrix);
    return point->isEqualTo(Point3D::create(0, 1, 0)) ? "turned" : "not turned";
}

std::string collected() {
    Ptr<ObjectCollection> collection = ObjectCollection::create();
    collection->add(Point3D::create(1, 2, 3));
    collection->add(Vector3D::create(1, 2, 3));
    int points = 0;
    for (Ptr<Base> each : collection) {  // NOLINT(performance-for-range-copy): as scripts have it
        if (Ptr<Point3D> point = each) points++;
    }
    return std::to_string(points) + " point";
}

std::string named() {
    Ptr<NamedValues> values = NamedValues::create();
    values->setValue("width", ValueInput::createByString("2 cm"));
    return values->value("width")->stringValue();
}

std::string measured(const Ptr<Application>& application) {
    Ptr<UnitsManager> units = application->activeProduct()->unitsManager();
    return units->formatInternalValue(units->evaluateExpression("1 in + 0.6", "mm"), "mm");
}

std::string asked(const Ptr<UserInterface>& ui) {
    Ptr<FileDialog> files = ui->createFileDialog();
    files->initialFilename("list.csv");
    if (files->showSave() != DialogOK) return "no file";
    Ptr<FolderDialog> folders = ui->createFolderDialog();
    return folders->showDialog() == DialogOK ? folders->folder() : files->filename();
}

std::string started(const Ptr<UserInterface>& ui) {
    Ptr<CommandDefinition> extrude = ui->commandDefinitions()->itemById("Extrude");
    return extrude ? extrude->name() : "no command";
}

// Adds an assembly with a part, as add-ins that generate models do.
std::string added(const Ptr<Component>& root) {
    Ptr<Occurrence> assembly = root->occurrences()->addNewComponent(Matrix3D::create());
    assembly->component()->name("Assembly");
    Ptr<Occurrences> parts = assembly->component()->occurrences();
    return parts->addNewComponent(Matrix3D::create())->name();
}

// A thread that reports its end to the host's own.
void work(const Ptr<Application>& application) {
    std::thread thread(
        [&application] { application->fireCustomEvent("ConformanceFinished", "worked"); });
    thread.join();
}

class OnFinished : public CustomEventHandler {
public:
    void notify(const Ptr<CustomEventArgs>& eventArgs) override {
        Ptr<Application> application = Application::get();
        application->log(eventArgs->additionalInfo());
    }
} onFinished;

class OnPage : public HTMLEventHandler {
public:
    void notify(const Ptr<HTMLEventArgs>& eventArgs) override {
        Ptr<Palette> palette = eventArgs->firingEvent()->sender();
        eventArgs->returnData(palette->sendInfoToHTML("echo", eventArgs->data()));
    }
} onPage;

}  // namespace

void addInputs(const Ptr<Command>& command) {
    Ptr<CommandInputs> inputs = command->commandInputs();
    inputs->addValueInput("value", "Value", "mm", ValueInput::createByReal(1));
    inputs->addDistanceValueCommandInput("distance", "Distance", ValueInput::createByReal(1));
    inputs->addAngleValueCommandInput("angle", "Angle", ValueInput::createByString("90 deg"));
    inputs->addIntegerSpinnerCommandInput("count", "Count", 1, 5, 1, 2);
    inputs->addFloatSpinnerCommandInput("width", "Width", "mm", 0, 10, 1, 1);
    inputs->addFloatSliderCommandInput("reach", "Reach", "mm", 0, 10)->setText("near", "far");
    inputs->addIntegerSliderListCommandInput("teeth", "Teeth", {8, 12, 20}, true)->valueTwo(12);
}

void subscribe(const Ptr<Application>& application) {
    Ptr<CustomEvent> finished = application->registerCustomEvent("ConformanceFinished");
    finished->add(&onFinished);
    Ptr<Palettes> palettes = application->userInterface()->palettes();
    Ptr<Palette> palette =
        palettes->add("ConformancePalette", "Palette", "page.html", true, true, true, 300, 200);
    palette->incomingFromHTML()->add(&onPage);
}

void unsubscribe(const Ptr<Application>& application) {
    application->unregisterCustomEvent("ConformanceFinished");
    Ptr<Palette> palette = application->userInterface()->palettes()->itemById("ConformancePalette");
    if (palette) palette->deleteMe();
}

std::string callAll(const Ptr<Application>& application) {
    Ptr<UserInterface> ui = application->userInterface();
    std::string results = quarterTurn() + ", " + collected() + ", " + named() + ", " +
                          measured(application) + ", " + asked(ui);
    Ptr<Toolbar> quickAccess = ui->toolbars()->itemById("QAT");
    results += quickAccess->isVisible() ? ", visible" : ", hidden";
    Ptr<Document> document = application->documents()->add(FusionDesignDocumentType);
    Ptr<Design> design = application->activeProduct();
    design->designType(DirectDesignType);
    results += ", " + document->name() + ", " + started(ui) + ", " + added(design->rootComponent());
    work(application);
    return results;
}

}  // namespace operations
