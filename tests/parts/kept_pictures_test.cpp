#include "parts/png.h"
#include "parts/thumbnail.h"
#include "tests/parts/sample_meshes.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

/// The files of tests/parts/pictures, byte for byte. A version of zlib that packs in another way
/// makes other bytes of the same pixels: `Thumbnail.HasTheSamePixelsOnEveryMachineAndSystem` says
/// whether that is all.
namespace {

std::string drawnPng(const host::ShapeMesh& mesh) {
    return parts::pngOf(parts::drawThumbnail(mesh, {}));
}

std::string keptPng(const std::string& name) {
    return test_support::readFile(std::filesystem::path(PICTURES_FOLDER) / (name + ".png"));
}

TEST(KeptPictures, AreDrawnAgainAsTheyAre) {
    EXPECT_TRUE(drawnPng(test_support::bracketMesh()) == keptPng("bracket"));
    EXPECT_TRUE(drawnPng(test_support::glassConeMesh()) == keptPng("glass-cone"));
}

}  // namespace
