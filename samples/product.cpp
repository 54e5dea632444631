#include "samples/product.h"

#include <map>

namespace samples {
namespace {

/// What other products refer to.
struct Written {
    std::string definition;
    std::string representation;
    std::string origin;
};

class Writer {
public:
    Writer() {
        application_ = text_.add("APPLICATION_CONTEXT('automotive design')");
        text_.add(
            "APPLICATION_PROTOCOL_DEFINITION('international standard','automotive_design',2000," +
            application_ + ")");
        productContext_ = text_.add("PRODUCT_CONTEXT(''," + application_ + ",'mechanical')");
        definitionContext_ = text_.add("PRODUCT_DEFINITION_CONTEXT('part definition'," +
                                       application_ + ",'design')");
        const std::string length =
            text_.add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))");
        const std::string angle = text_.add("(NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.))");
        const std::string solid =
            text_.add("(NAMED_UNIT(*)SI_UNIT($,.STERADIAN.)SOLID_ANGLE_UNIT())");
        const std::string accuracy =
            text_.add("UNCERTAINTY_MEASURE_WITH_UNIT(LENGTH_MEASURE(1.E-6)," + length +
                      ",'distance_accuracy_value','')");
        shapeContext_ =
            text_.add("(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNCERTAINTY_ASSIGNED_CONTEXT((" +
                      accuracy + "))GLOBAL_UNIT_ASSIGNED_CONTEXT((" + length + "," + angle + "," +
                      solid + "))REPRESENTATION_CONTEXT('',''))");
    }

    void write(const Product& product) {
        Written written = writeDefinition(product);
        writeShape(product, written);
        written_[product.key] = written;
        int number = 0;
        for (const Use& use : product.uses) {
            writeUse(written, use, ++number);
        }
        if (product.material) {
            writeMaterial(written.definition, *product.material);
        }
    }

    [[nodiscard]] std::string file(const std::string& name) const { return text_.file(name); }

private:
    Written writeDefinition(const Product& product) {
        const std::string entity =
            text_.addOwn("PRODUCT(" + literal(product.id) + "," + literal(product.name) + "," +
                         literal(product.description) + ",(" + productContext_ + "))");
        const std::string formation =
            text_.addOwn("PRODUCT_DEFINITION_FORMATION('',''," + entity + ")");
        Written written;
        written.definition = text_.addOwn("PRODUCT_DEFINITION('design',''," + formation + "," +
                                          definitionContext_ + ")");
        return written;
    }

    /// The representation holds the origin, the solid, and the places of what is used.
    void writeShape(const Product& product, Written& written) {
        written.origin = addPlacement(text_, {});
        std::string items = written.origin;
        if (product.solid) {
            items += "," + addSolid(text_, *product.solid);
        }
        const std::string kind =
            product.solid ? "ADVANCED_BREP_SHAPE_REPRESENTATION" : "SHAPE_REPRESENTATION";
        written.representation = text_.addOwn(kind + "(" + literal(product.name) + ",(" + items +
                                              ")," + shapeContext_ + ")");
        const std::string shape =
            text_.addOwn("PRODUCT_DEFINITION_SHAPE('',''," + written.definition + ")");
        text_.addOwn("SHAPE_DEFINITION_REPRESENTATION(" + shape + "," + written.representation +
                     ")");
    }

    void writeUse(const Written& parent, const Use& use, int number) {
        const Written& child = written_.at(use.key);
        const std::string usage =
            text_.addOwn("NEXT_ASSEMBLY_USAGE_OCCURRENCE('" + std::to_string(number) + "','',''," +
                         parent.definition + "," + child.definition + ",$)");
        const std::string shape =
            text_.addOwn("PRODUCT_DEFINITION_SHAPE('Placement',''," + usage + ")");
        const std::string way = text_.addOwn("ITEM_DEFINED_TRANSFORMATION('',''," + child.origin +
                                             "," + addPlacement(text_, use.placement) + ")");
        const std::string relation = text_.addOwn(
            "(REPRESENTATION_RELATIONSHIP('',''," + child.representation + "," +
            parent.representation + ")REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(" + way +
            ")SHAPE_REPRESENTATION_RELATIONSHIP())");
        text_.addOwn("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION(" + relation + "," + shape + ")");
    }

    void writeMaterial(const std::string& definition, const Material& material) {
        const std::string name =
            text_.add("DESCRIPTIVE_REPRESENTATION_ITEM(" + literal(material.name) + ",'')");
        const std::string kilogram = text_.add("(MASS_UNIT()NAMED_UNIT(*)SI_UNIT(.KILO.,.GRAM.))");
        const std::string metre = text_.add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT($,.METRE.))");
        const std::string volume = text_.add("DERIVED_UNIT_ELEMENT(" + metre + ",-3.)");
        const std::string mass = text_.add("DERIVED_UNIT_ELEMENT(" + kilogram + ",1.)");
        const std::string unit = text_.add("DERIVED_UNIT((" + mass + "," + volume + "))");
        const std::string density =
            text_.add("MEASURE_REPRESENTATION_ITEM('density measure',POSITIVE_RATIO_MEASURE(" +
                      real(material.density) + ")," + unit + ")");
        writeProperty(definition, "material name", name);
        writeProperty(definition, "density", density);
    }

    void writeProperty(const std::string& definition, const std::string& title,
                       const std::string& item) {
        const std::string property = text_.addOwn("PROPERTY_DEFINITION('material property','" +
                                                  title + "'," + definition + ")");
        const std::string representation =
            text_.addOwn("REPRESENTATION('" + title + "',(" + item + ")," + shapeContext_ + ")");
        text_.addOwn("PROPERTY_DEFINITION_REPRESENTATION(" + property + "," + representation + ")");
    }

    StepText text_;
    std::string application_;
    std::string productContext_;
    std::string definitionContext_;
    std::string shapeContext_;
    std::map<std::string, Written> written_;
};

}  // namespace

std::string stepFile(const std::string& name, const std::vector<Product>& products) {
    Writer writer;
    for (const Product& product : products) {
        writer.write(product);
    }
    return writer.file(name);
}

}  // namespace samples
