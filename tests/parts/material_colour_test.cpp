#include "parts/material_colour.h"

#include <gtest/gtest.h>

namespace {

using parts::colourOfMaterial;

TEST(MaterialColour, IsThatOfAWordInTheName) {
    EXPECT_EQ(colourOfMaterial("Stainless Steel 1.4301"), colourOfMaterial("steel"));
    EXPECT_EQ(colourOfMaterial("Aluminum 6061"), colourOfMaterial("ALUMINIUM"));
    EXPECT_EQ(colourOfMaterial("Hlin\xC3\xADk"), colourOfMaterial("aluminium"));
    EXPECT_NE(colourOfMaterial("copper"), colourOfMaterial("brass"));
}

TEST(MaterialColour, OfAFilledPlasticIsNoGlass) {
    EXPECT_EQ(colourOfMaterial("Nylon, 30 % glass"), colourOfMaterial("plastic"));
    EXPECT_EQ(colourOfMaterial("Float glass").alpha, 128);
}

TEST(MaterialColour, IsAlwaysTheSameForAName) {
    EXPECT_EQ(colourOfMaterial("X12CrNi"), colourOfMaterial("x12crni"));
    // The hashes 0xE40C292C and 0xE70C2DE5 (FNV-1a) end in 4 and 5 of the eight.
    EXPECT_NE(colourOfMaterial("a"), colourOfMaterial("b"));
}

TEST(MaterialColour, OfNoMaterialIsGrey) {
    const host::Rgba grey = {.red = 186, .green = 193, .blue = 203, .alpha = 255};
    EXPECT_EQ(colourOfMaterial(""), grey);
}

}  // namespace
