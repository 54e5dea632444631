#include "parts/material_colour.h"

#include "parts/ascii.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace parts {
namespace {

struct KnownMaterial {
    std::string_view word;
    host::Rgba colour;
};

constexpr host::Rgba kUnknown = {.red = 186, .green = 193, .blue = 203, .alpha = 255};

constexpr host::Rgba kSteel = {.red = 160, .green = 168, .blue = 178, .alpha = 255};
constexpr host::Rgba kIron = {.red = 112, .green = 118, .blue = 126, .alpha = 255};
constexpr host::Rgba kAluminium = {.red = 204, .green = 209, .blue = 214, .alpha = 255};
constexpr host::Rgba kCopper = {.red = 196, .green = 132, .blue = 98, .alpha = 255};
constexpr host::Rgba kBronze = {.red = 176, .green = 138, .blue = 92, .alpha = 255};
constexpr host::Rgba kBrass = {.red = 205, .green = 179, .blue = 107, .alpha = 255};
constexpr host::Rgba kPlastic = {.red = 96, .green = 110, .blue = 130, .alpha = 255};
constexpr host::Rgba kRubber = {.red = 70, .green = 72, .blue = 76, .alpha = 255};
constexpr host::Rgba kGlass = {.red = 176, .green = 206, .blue = 214, .alpha = 128};
constexpr host::Rgba kWood = {.red = 196, .green = 164, .blue = 124, .alpha = 255};

/// The first word that a name has is the one that counts.
constexpr auto kMaterials = std::to_array<KnownMaterial>({
    {"steel", kSteel},
    {"ocel", kSteel},
    {"titanium", kSteel},
    {"cast iron", kIron},
    {"litina", kIron},
    {"alumin", kAluminium},
    {"hlin\xC3\xADk", kAluminium},
    {"bronz", kBronze},
    {"brass", kBrass},
    {"mosaz", kBrass},
    {"copper", kCopper},
    {"m\xC4\x9B\xC4\x8F", kCopper},
    {"plast", kPlastic},
    {"nylon", kPlastic},
    {"polyamid", kPlastic},
    {"polycarbonat", kPlastic},
    {"polyethyl", kPlastic},
    {"polypropyl", kPlastic},
    {"acetal", kPlastic},
    {"rubber", kRubber},
    {"pry\xC5\xBE", kRubber},
    {"glass", kGlass},
    {"sklo", kGlass},
    {"wood", kWood},
    {"d\xC5\x99"
     "evo",
     kWood},
});

/// Light enough for edges to be seen, and unlike each other.
constexpr auto kPalette = std::to_array<host::Rgba>({
    {.red = 143, .green = 164, .blue = 190, .alpha = 255},
    {.red = 163, .green = 184, .blue = 153, .alpha = 255},
    {.red = 199, .green = 176, .blue = 150, .alpha = 255},
    {.red = 176, .green = 158, .blue = 188, .alpha = 255},
    {.red = 148, .green = 186, .blue = 184, .alpha = 255},
    {.red = 201, .green = 160, .blue = 154, .alpha = 255},
    {.red = 190, .green = 188, .blue = 140, .alpha = 255},
    {.red = 158, .green = 162, .blue = 170, .alpha = 255},
});

/// FNV-1a: the same on every machine.
std::uint32_t hashOf(std::string_view text) {
    std::uint32_t hash = 2166136261U;
    for (const char each : text) {
        hash = (hash ^ static_cast<unsigned char>(each)) * 16777619U;
    }
    return hash;
}

}  // namespace

host::Rgba colourOfMaterial(std::string_view name) {
    if (name.empty()) {
        return kUnknown;
    }
    const std::string lower = lowerCase(std::string(name));
    for (const KnownMaterial& material : kMaterials) {
        if (lower.find(material.word) != std::string::npos) {
            return material.colour;
        }
    }
    return kPalette[hashOf(lower) % kPalette.size()];
}

}  // namespace parts
