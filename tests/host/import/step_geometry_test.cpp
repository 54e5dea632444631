#include "host/import/step_geometry.h"

#include "host/import/reader_process.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using host::ReaderProcess;
using host::StepGeometry;

/// A reader that returns prepared answers.
StepGeometry answering(const std::string& script) {
    return {std::make_shared<ReaderProcess>("/bin/sh", std::vector<std::string>{"-c", script},
                                            host::ReadingLimits{.seconds = 30, .megabytes = 1000}),
            3, "a.step"};
}

/// What an operation throws as its reason; empty when it throws nothing.
template <class Operation>
std::string complaint(Operation operation) {
    try {
        operation();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

TEST(StepGeometry, AShapeIsMeasuredOnce) {
    StepGeometry geometry = answering(R"(read line; echo '{"area": 6, "volume": 1}')");

    EXPECT_EQ(geometry.area(), 6);
    EXPECT_EQ(geometry.volume(), 1);
    EXPECT_EQ(geometry.area(), 6);
}

TEST(StepGeometry, ThePlacementIsSentWithTheRequestForTheBox) {
    StepGeometry geometry = answering(
        R"(read line; [ "$line" = "box 3 1 0 0 2.5 0 1 0 -1 0 0 1 1e-07" ] && echo '{"min": [1,2,3], "max": [4,5,6]}')");
    host::Transform placement;
    placement.cells[3] = 2.5;
    placement.cells[7] = -1;
    placement.cells[11] = 1e-7;

    EXPECT_EQ(geometry.box(placement), (host::Box{{1, 2, 3}, {4, 5, 6}}));
}

TEST(StepGeometry, AShapeWithoutExtentHasNoBox) {
    EXPECT_EQ(answering("read line; echo '{}'").box({}), std::nullopt);
}

TEST(StepGeometry, AReaderThatHasEndedThrowsEachTime) {
    StepGeometry geometry = answering("read line; kill -SEGV $$");
    const std::string why =
        "a.step: a shape cannot be measured: the reader crashed (Segmentation fault)";

    EXPECT_EQ(complaint([&] { geometry.volume(); }), why);
    EXPECT_EQ(complaint([&] { geometry.volume(); }), why);
    EXPECT_EQ(complaint([&] { geometry.box({}); }), why);
}

TEST(StepGeometry, AFailureInTheReaderDoesNotAffectOtherRequests) {
    StepGeometry geometry =
        answering(R"(read line; echo '{"error": "no surface"}'; read line; echo '{}')");
    const std::string why = "a.step: a shape cannot be measured: no surface";

    EXPECT_EQ(complaint([&] { geometry.area(); }), why);
    EXPECT_EQ(geometry.box({}), std::nullopt);
    EXPECT_EQ(complaint([&] { geometry.volume(); }), why);
}

TEST(StepGeometry, AResponseWithoutASizeIsAFailure) {
    StepGeometry geometry = answering(R"(read line; echo '{"area": 6}')");

    EXPECT_THROW(geometry.area(), std::runtime_error);
}

}  // namespace
