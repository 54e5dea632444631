#include "host/base/last_error.h"
#include "host/base/misuse.h"
#include "host/base/object.h"
#include "host/design/design_check.h"
#include "tests/host/design/design_fixture.h"

#include <utility>

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

using DocumentTest = DesignTest;

TEST_F(DocumentTest, DesignIsItsProductForModelling) {
    open("Bolt");
    const Ptr<Design> design = designOf(document);

    EXPECT_EQ(design->productType(), "DesignProductType");
    EXPECT_EQ(design->parentDocument(), document);
    EXPECT_EQ(designOf(document), design);
    EXPECT_EQ(Ptr<Design>(Ptr<Product>(design)), design);
}

TEST_F(DocumentTest, OtherProductIsNotADesign) {
    open("Bolt");
    const Ptr<Product> other = otherProductOf(document);

    EXPECT_EQ(Ptr<Design>(other), nullptr);
    EXPECT_EQ(other->parentDocument(), document);
    EXPECT_EQ(other->productType(), "CAMProductType");
}

TEST_F(DocumentTest, IsNotSavedAndHasNoFileAtFirst) {
    open("Bolt");

    EXPECT_FALSE(document->isSaved());
    EXPECT_EQ(document->dataFile(), nullptr);
    EXPECT_EQ(document->parent(), nullptr);
}

/// A file in the user's data, of which only the name is known.
class NamedFile final : public Object<adsk::core::DataFile> {
public:
    [[nodiscard]] std::string id() const override { return "urn:1"; }
    [[nodiscard]] std::string name() const override { return "Gearbox"; }
    bool name(const std::string& /*value*/) override { return false; }
    [[nodiscard]] Ptr<adsk::core::DataFolder> parentFolder() const override { return {}; }
    [[nodiscard]] Ptr<adsk::core::DataProject> parentProject() const override { return {}; }
};

TEST_F(DocumentTest, IsSavedOnceItHasAFile) {
    open("Motor  document=M1");
    const Ptr<adsk::core::DataFile> file = make<NamedFile>();

    setDataFile(document, file);

    EXPECT_TRUE(document->isSaved());
    EXPECT_EQ(document->dataFile(), file);
    EXPECT_EQ(referencesOf(document)[0]->dataFile(), nullptr);
    setDataFile(referencesOf(document)[0], file);
    EXPECT_EQ(component("Motor:1")->parentDesign()->parentDocument()->dataFile(), file);
}

// Design_designType, Product_unitsManager.
TEST_F(DocumentTest, ADesignHasATypeAndUnits) {
    open("Bolt");
    const Ptr<Design> design = designOf(document);
    EXPECT_EQ(design->designType(), ParametricDesignType);
    EXPECT_TRUE(design->designType(DirectDesignType));
    EXPECT_EQ(design->designType(), DirectDesignType);

    const Ptr<adsk::core::UnitsManager> units = design->unitsManager();
    EXPECT_EQ(units->defaultLengthUnits(), "mm");
    EXPECT_EQ(units->internalUnits(), "cm");
    EXPECT_DOUBLE_EQ(units->evaluateExpression("2 in + 4", "mm"), 5.48);
    EXPECT_EQ(units->evaluateExpression("2 furlong", "mm"), -1);
    EXPECT_TRUE(units->isValidExpression("3", "mm"));
    EXPECT_FALSE(units->isValidExpression("3 +", "mm"));
    EXPECT_DOUBLE_EQ(units->convert(1, "in", "mm"), 25.4);
    EXPECT_DOUBLE_EQ(units->convert(2, "internalUnits", "mm"), 20);
    EXPECT_EQ(units->convert(1, "in", "deg"), -1);
    EXPECT_EQ(units->formatInternalValue(2.54, "in"), "1.000 in");
    EXPECT_EQ(units->formatInternalValue(2.54, "", false), "25.400");
    EXPECT_EQ(units->formatInternalValue(1, "furlong"), "");
}

// Document_name: a saved document is called like its file.
TEST_F(DocumentTest, TheNameOfASavedDocumentCannotBeSet) {
    open("Bolt");
    EXPECT_TRUE(document->name("Gearbox"));
    setDataFile(document, make<NamedFile>());

    EXPECT_FALSE(document->name("Motor"));

    EXPECT_EQ(document->name(), "Gearbox");
}

TEST_F(DocumentTest, UnnamedDesignTakesItsRootComponentsNameOrUntitled) {
    DesignData data = parseOutline("Bolt");
    data.name = "";
    data.components[0].name = "Gearbox";
    open(std::move(data));
    EXPECT_EQ(document->name(), "Gearbox");

    DesignData empty;
    empty.components.resize(1);
    open(std::move(empty));
    EXPECT_EQ(document->name(), "Untitled");
    EXPECT_EQ(root()->name(), "Untitled");
}

TEST_F(DocumentTest, ComponentsOfTheSameNameAreRenamed) {
    open(R"(
        One  name=Bolt
        Two  name=Bolt
        Three  name=Bolt number=M8)");

    EXPECT_EQ(paths(), (Strings{"Bolt:1", "Bolt (1):1", "Bolt (2):1"}));
    EXPECT_EQ(component("Bolt (1):1")->partNumber(), "Bolt (1)");
    EXPECT_EQ(component("Bolt (2):1")->partNumber(), "M8");
}

TEST_F(DocumentTest, SnapshotHoldsAllEdits) {
    open(R"(
        Frame  at=1,2,3 attribute=G/a/1
          Bolt  number=M8)");
    component("Frame:1")->name("Rack");
    component("Rack:1")->attributes()->add("G", "b", "2");
    component("Rack:1+Bolt:1")->partNumber("M10");
    component("Rack:1+Bolt:1")->description("long");
    occurrence("Rack:1")->isGrounded(true);
    root()->transformOccurrences({occurrence("Rack:1")}, {Matrix3D::create()}, true);
    document->name("Gearbox");

    const DesignData data = snapshot(document);

    EXPECT_EQ(data.name, "Gearbox");
    EXPECT_EQ(data.components[0].name, "Gearbox");
    EXPECT_EQ(data.components[0].children[0].transform, Transform());
    EXPECT_TRUE(data.components[0].children[0].grounded);
    EXPECT_EQ(data.components[1].name, "Rack");
    EXPECT_EQ(data.components[1].attributes,
              (std::vector<AttributeData>{{"G", "a", "1"}, {"G", "b", "2"}}));
    EXPECT_EQ(data.components[2].partNumber, "M10");
    EXPECT_EQ(data.components[2].description, "long");
    EXPECT_TRUE(data.components[2].hasExplicitPartNumber);
}

TEST_F(DocumentTest, SnapshotOpensAsTheSameDesign) {
    open(R"(
        Frame
          Bolt
        Bolt
        (absent))");

    const Strings before = paths();
    DesignData data = snapshot(document);
    open(std::move(data));

    EXPECT_EQ(paths(), before);
    EXPECT_EQ(root()->occurrences()->count(), 3u);
}

TEST_F(DocumentTest, EditsAreCounted) {
    open("Bolt");
    EXPECT_EQ(editCount(document), 0u);

    component("Bolt:1")->description("x");
    component("Bolt:1")->attributes()->add("G", "a", "1");
    EXPECT_EQ(paths(), Strings{"Bolt:1"});

    EXPECT_EQ(editCount(document), 2u);
}

TEST_F(DocumentTest, HandlesOutliveTheDocumentAndReturnNothing) {
    DesignData data = parseOutline(R"(
        Frame
          Bolt  attribute=G/a/1)");
    data.components[1].sketches = {{"Profile", {{true, false}}}};
    open(std::move(data));
    const Ptr<Design> design = designOf(document);
    const Ptr<Component> rootComponent = root();
    const Ptr<Occurrences> occurrences = rootComponent->occurrences();
    const Ptr<OccurrenceList> list = occurrences->asList();
    const Ptr<Occurrence> frame = list->item(0);
    const Ptr<OccurrenceList> children = frame->childOccurrences();
    const Ptr<Occurrence> bolt = children->item(0);
    const Ptr<OccurrenceList> none = bolt->childOccurrences();
    const Ptr<Attributes> attributes = bolt->component()->attributes();
    const Ptr<Attribute> attribute = attributes->item(0);
    const Ptr<Material> material = bolt->component()->material();
    const Ptr<Sketch> sketch = sketchOf(document, 1, 0);

    endDocument(document);

    EXPECT_FALSE(document->isValid());
    EXPECT_EQ(document->name(), "");
    EXPECT_FALSE(document->name("x"));
    EXPECT_EQ(design->rootComponent(), nullptr);
    EXPECT_EQ(design->parentDocument(), nullptr);
    EXPECT_EQ(rootComponent->occurrences(), nullptr);
    EXPECT_EQ(rootComponent->physicalProperties(), nullptr);
    EXPECT_EQ(rootComponent->boundingBox(), nullptr);
    EXPECT_FALSE(rootComponent->transformOccurrences({bolt}, {Matrix3D::create()}, true));
    EXPECT_EQ(occurrences->count(), 0u);
    EXPECT_EQ(list->item(0), nullptr);
    EXPECT_EQ(frame->fullPathName(), "");
    EXPECT_EQ(children->count(), 0u);
    EXPECT_EQ(bolt->component(), nullptr);
    EXPECT_FALSE(bolt->isGrounded(true));
    EXPECT_FALSE(bolt->isReferencedComponent());
    EXPECT_EQ(none->count(), 0u);
    EXPECT_EQ(attributes->add("G", "b", "2"), nullptr);
    EXPECT_EQ(attribute->value(), "");
    EXPECT_EQ(material->name(), "");
    EXPECT_EQ(sketch->sketchCurves(), nullptr);
    EXPECT_EQ(lastError().code, adsk::core::UnderlyingObjectDeletedError);
    EXPECT_EQ(lastError().description,
              "Sketch::sketchCurves: the adsk::fusion::Sketch was deleted or closed");
    EXPECT_EQ(misused(),
              "Document::name Document::name Design::rootComponent Product::parentDocument "
              "Component::occurrences Component::physicalProperties Component::boundingBox "
              "Component::transformOccurrences Occurrences::count OccurrenceList::item "
              "Occurrence::fullPathName OccurrenceList::count Occurrence::component "
              "Occurrence::isGrounded Occurrence::isReferencedComponent OccurrenceList::count "
              "Attributes::add Attribute::value Material::name Sketch::sketchCurves");
}

TEST_F(DocumentTest, CallOnAnObjectOfAClosedDocumentIsReportedAsMisuse) {
    open("Bolt");
    const Ptr<Component> component = designOf(document)->rootComponent();
    endDocument(document);
    clearMisuses();

    EXPECT_EQ(component->name(), "");

    EXPECT_EQ(misuses(),
              (std::vector<Misuse>{{.operation = "Component::name",
                                    .text = "called on a deleted adsk::fusion::Component"}}));
}

TEST_F(DocumentTest, CallOnADeletedAttributeIsReportedAsMisuse) {
    open("Bolt");
    const Ptr<Attribute> attribute =
        designOf(document)->rootComponent()->attributes()->add("G", "a", "1");
    attribute->deleteMe();
    clearMisuses();

    EXPECT_EQ(attribute->value(), "");

    EXPECT_EQ(misuses(),
              (std::vector<Misuse>{{.operation = "Attribute::value",
                                    .text = "called on a deleted adsk::core::Attribute"}}));
}

TEST_F(DocumentTest, HostFindsNothingOfAnEndedDocument) {
    open("Bolt");
    endDocument(document);
    endDocument(document);

    EXPECT_EQ(designOf(document), nullptr);
    EXPECT_EQ(otherProductOf(document), nullptr);
    EXPECT_EQ(sketchOf(document, 0, 0), nullptr);
    EXPECT_TRUE(snapshot(document).components.empty());
    EXPECT_EQ(editCount(document), 0u);
    EXPECT_EQ(designOf(nullptr), nullptr);
    endDocument(nullptr);
}

TEST_F(DocumentTest, EndsWhenTheLastHandleGoes) {
    open(R"(
        Frame
          Bolt)");
    const Ptr<Occurrence> bolt = occurrence("Frame:1+Bolt:1");

    document = nullptr;

    EXPECT_FALSE(bolt->isValid());
}

TEST_F(DocumentTest, ReferencedDocumentsEndWithTheOneThatRefersToThem) {
    open(R"(
        Motor  document=M1
        Gear   document=G1
        Motor)");
    const std::vector<Ptr<Document>> references = referencesOf(document);
    ASSERT_EQ(references.size(), 2u);
    EXPECT_EQ(references[0]->name(), "M1");
    EXPECT_EQ(references[1]->name(), "G1");
    EXPECT_FALSE(references[0]->name("M2"));

    endDocument(references[0]);
    EXPECT_TRUE(references[0]->isValid());
    endDocument(document);

    EXPECT_FALSE(references[0]->isValid());
    EXPECT_EQ(references[1]->name(), "");
    EXPECT_EQ(misused(), "Document::name");
}

TEST_F(DocumentTest, InvalidDesignIsNotOpened) {
    EXPECT_THROW(makeDocument(DesignData()), DesignError);
}

}  // namespace
}  // namespace host
