#include "parts/thumbnail.h"

#include "tests/parts/sample_meshes.h"

#include "host/design/box_mesh.h"
#include "host/import/content_hash.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

/// `kept_pictures_test.cpp` compares with pictures that can be looked at.
namespace {

using parts::Image;

std::array<int, 4> pixel(const Image& image, int x, int y) {
    const auto first = static_cast<std::size_t>(4 * (y * image.width + x));
    return {image.rgba.at(first), image.rgba.at(first + 1), image.rgba.at(first + 2),
            image.rgba.at(first + 3)};
}

/// The red of each pixel as a letter, from 'a' (dark) to 'z'; '.' for what shines through.
std::string drawn(const Image& image) {
    std::string text = "\n";
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const std::array<int, 4> cell = pixel(image, x, y);
            text += cell[3] < 128 ? '.' : static_cast<char>('a' + cell[0] * 26 / 256);
        }
        text += '\n';
    }
    return text;
}

host::ShapeMesh cube() {
    host::ShapeMesh mesh = host::boxMesh({0, 0, 0}, {10, 10, 10});
    mesh.edgePointsMm.clear();
    mesh.edgeEnds.clear();
    return mesh;
}

/// A triangle that lies flat, without edges.
host::ShapeMesh triangle(const std::optional<host::Rgba>& colour) {
    host::ShapeMesh mesh;
    mesh.positionsMm = {0, 0, 0, 10, 0, 0, 0, 10, 0};
    mesh.normals = {0, 0, 1, 0, 0, 1, 0, 0, 1};
    mesh.indices = {0, 1, 2};
    mesh.groups = {{.firstIndex = 0, .indexCount = 3, .colour = colour}};
    return mesh;
}

constexpr host::Rgba kWhite = {.red = 250, .green = 250, .blue = 250, .alpha = 255};

// A hexagon: the top is lightest (250 x (0.4 + 0.65 x 0.829) = 235, an 'x'), the front on the left
// is darker (250 x 0.725 = 181, an 's'), the right-hand side darkest (250 x 0.5625 = 141, an 'o').
TEST(Thumbnail, ShowsACubeFromItsCorner) {
    EXPECT_EQ(drawn(parts::drawThumbnail(cube(), {.size = 16, .colour = kWhite})), R"(
................
.......xx.......
.....xxxxxx.....
....xxxxxxxx....
..wxxxxxxxxxxv..
..suxxxxxxxxro..
..sssvxxxxtooo..
..sssstwvpoooo..
..ssssssoooooo..
..ssssssoooooo..
..ssssssoooooo..
..ssssssoooooo..
....ssssoooo....
.....sssooo.....
.......so.......
................
)");
}

TEST(Thumbnail, HasATransparentGround) {
    const Image image = parts::drawThumbnail(cube(), {.size = 32, .colour = kWhite});

    EXPECT_EQ(pixel(image, 0, 0), (std::array<int, 4>{0, 0, 0, 0}));
    EXPECT_EQ(pixel(image, 16, 8)[3], 255);
}

TEST(Thumbnail, SmoothsItsOutline) {
    const Image image = parts::drawThumbnail(cube(), {.size = 32, .colour = kWhite});
    bool hasMixed = false;
    for (std::size_t at = 3; at < image.rgba.size(); at += 4) {
        hasMixed = hasMixed || (image.rgba[at] > 0 && image.rgba[at] < 255);
    }

    EXPECT_TRUE(hasMixed);
}

TEST(Thumbnail, DrawsEdgesThatCanBeSeen) {
    const host::ShapeMesh box = host::boxMesh({0, 0, 0}, {10, 10, 10});

    const Image image = parts::drawThumbnail(box, {.size = 64, .colour = kWhite});

    // The corner towards the viewer, where three edges meet; and the middle of the top.
    EXPECT_LT(pixel(image, 32, 32)[0], 100);
    EXPECT_GT(pixel(image, 32, 18)[0], 200);
}

TEST(Thumbnail, DrawsTheShapeAsLargeAsFits) {
    host::ShapeMesh small = cube();
    for (float& value : small.positionsMm) {
        value /= 1000;
    }

    EXPECT_EQ(parts::drawThumbnail(small, {.size = 24, .colour = kWhite}).rgba[4 * 24 * 12 + 48],
              parts::drawThumbnail(cube(), {.size = 24, .colour = kWhite}).rgba[4 * 24 * 12 + 48]);
}

TEST(Thumbnail, TakesTheColourOfTheFile) {
    const host::Rgba red = {.red = 200, .green = 0, .blue = 0, .alpha = 255};

    const Image image = parts::drawThumbnail(triangle(red), {.size = 32, .colour = kWhite});

    // 200 x (0.4 + 0.65 x 0.829).
    EXPECT_EQ(pixel(image, 14, 16), (std::array<int, 4>{188, 0, 0, 255}));
}

TEST(Thumbnail, LetsTheGroundShineThrough) {
    const host::Rgba glass = {.red = 200, .green = 0, .blue = 0, .alpha = 102};

    const Image image = parts::drawThumbnail(triangle(glass), {.size = 32, .colour = kWhite});

    EXPECT_EQ(pixel(image, 14, 16)[3], 102);
    EXPECT_NEAR(pixel(image, 14, 16)[0], 188, 2);
}

TEST(Thumbnail, LightsASurfaceFromBothSides) {
    host::ShapeMesh turned = triangle(kWhite);
    for (float& value : turned.normals) {
        value = -value;
    }

    EXPECT_EQ(parts::drawThumbnail(turned, {}), parts::drawThumbnail(triangle(kWhite), {}));
}

/// Colours and alpha of all pixels, as 64 hexadecimal digits.
std::string pixelHash(const host::ShapeMesh& mesh) {
    const Image image = parts::drawThumbnail(mesh, {});
    return host::sha256Of(std::string(image.rgba.begin(), image.rgba.end()));
}

// Those of the pictures in tests/parts/pictures, which were looked at.
TEST(Thumbnail, HasTheSamePixelsOnEveryMachineAndSystem) {
    EXPECT_EQ(pixelHash(test_support::bracketMesh()),
              "07d6300f4fb4cc4318077043c41dbf3488bf42befced0408e21ea783569e0356");
    EXPECT_EQ(pixelHash(test_support::glassConeMesh()),
              "469a95c413af995dfeab0e56edafe643527d5467145044bce80148539343e253");
}

TEST(Thumbnail, DrawsWhatIsNearer) {
    const host::Rgba red = {.red = 200, .green = 0, .blue = 0, .alpha = 255};
    host::ShapeMesh two = triangle(kWhite);
    two.positionsMm.insert(two.positionsMm.end(), {0, 0, -1, 10, 0, -1, 0, 10, -1});
    two.normals.insert(two.normals.end(), {0, 0, 1, 0, 0, 1, 0, 0, 1});
    two.indices = {0, 1, 2, 3, 4, 5};
    two.groups = {{.firstIndex = 0, .indexCount = 3, .colour = kWhite},
                  {.firstIndex = 3, .indexCount = 3, .colour = red}};

    // 250 x (0.4 + 0.65 x 0.829); red alone has no green.
    EXPECT_EQ(pixel(parts::drawThumbnail(two, {.size = 32, .colour = kWhite}), 14, 16)[1], 235);
}

TEST(Thumbnail, IsEmptyWhereThereIsNothing) {
    const Image image = parts::drawThumbnail(host::ShapeMesh(), {.size = 8, .colour = kWhite});

    EXPECT_EQ(image.rgba, std::vector<std::uint8_t>(256));
}

}  // namespace
