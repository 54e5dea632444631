#include "samples/product.h"
#include "samples/samples.h"

namespace samples {
namespace {

const Material kAluminium = {"Aluminium 6063", 2690};
const Material kSteel = {"Steel", 7850};
const Material kPlastic = {"POM", 1410};

Placement at(double x, double y, double z) { return {{x, y, z}}; }

std::vector<Product> parts() {
    return {
        {.key = "rail",
         .id = "CS-101",
         .name = "Rail 600",
         .description = "anodised",
         .material = kAluminium,
         .solid = Solid{{{rectangle(40, 20), 600}}, {circle(2.1, {-10, 0}), circle(2.1, {10, 0})}}},
        {.key = "end",
         .id = "CS-102",
         .name = "End plate",
         .material = kAluminium,
         .solid = Solid{{{rectangle(60, 30), 8}}, {circle(2.6, {-10, 0}), circle(2.6, {10, 0})}}},
        {.key = "carriage",
         .id = "CS-103",
         .name = "Carriage plate",
         .material = kAluminium,
         .solid = Solid{{{rectangle(80, 80), 6}},
                        {circle(2.5, {-30, -30}), circle(2.5, {30, -30}), circle(2.5, {30, 30}),
                         circle(2.5, {-30, 30})}}},
        {.key = "wheel",
         .id = "CS-104",
         .name = "V-wheel 24",
         .description = "with two bearings",
         .material = kPlastic,
         .solid = Solid{{{circle(12), 10}}, {circle(2.5)}}},
        {.key = "screw",
         .id = "ISO 4762 M5x25",
         .name = "Screw M5x25",
         .material = kSteel,
         .solid = Solid{{{circle(4.25), 5}, {circle(2.5), 25}}, {}}},
        {.key = "nut",
         .id = "ISO 4032 M5",
         .name = "Nut M5",
         .material = kSteel,
         .solid = Solid{{{hexagon(8), 4.7}}, {circle(2.5)}}},
        {.key = "foot",
         .id = "CS-105",
         .name = "Rubber foot; soft",
         .solid = Solid{{{circle(10), 4}, {circle(6), 6}}, {}}},
        {.key = "motor",
         .id = "NEMA17-40",
         .name = "Stepper motor",
         .description = "1.8\xC2\xB0",
         .material = kSteel,
         .solid = Solid{{{rectangle(42.3, 42.3), 40}, {circle(11), 2}, {circle(2.5), 22}}, {}}},
    };
}

Product slider() {
    // The rail lies along x.
    const std::vector<double> along = {1, 0, 0};
    const std::vector<double> up = {0, 0, 1};
    Product product{.key = "slider", .id = "CS-600", .name = "Camera slider CS-600"};
    product.uses = {{"rail", {{0, 0, 0}, along, {0, 1, 0}}},
                    {"end", {{-8, 0, 0}, along, {0, 1, 0}}},
                    {"end", {{600, 0, 0}, along, {0, 1, 0}}},
                    {"carriage", {{300, 0, 20}, up, along}},
                    {"motor", {{630, 0, -20}, {0, 0, 1}, along}}};
    for (const double x : {-30.0, 30.0}) {
        for (const double y : {-30.0, 30.0}) {
            product.uses.push_back({"wheel", at(300 + x, y, 8)});
            product.uses.push_back({"screw", {{300 + x, y, 31}, {0, 0, -1}, along}});
            product.uses.push_back({"nut", at(300 + x, y, 1)});
            product.uses.push_back({"foot", at(x < 0 ? -4 : 604, y / 2, -25)});
        }
    }
    return product;
}

}  // namespace

std::string cameraSlider() {
    std::vector<Product> products = parts();
    products.push_back(slider());
    return stepFile("Camera slider CS-600", products);
}

}  // namespace samples
