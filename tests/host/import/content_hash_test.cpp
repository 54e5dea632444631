#include "host/import/content_hash.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

// The examples of FIPS 180-2, appendix B.
constexpr const char* kOfAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
constexpr const char* kOfAMillion =
    "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0";

TEST(ContentHash, IsThatOfTheStandard) {
    EXPECT_EQ(host::sha256Of("abc"), kOfAbc);
    EXPECT_EQ(host::sha256Of(std::string(1'000'000, 'a')), kOfAMillion);
}

TEST(ContentHash, OfAFileIsThatOfItsBytes) {
    const test_support::TemporaryFolder folder;
    std::ofstream(folder.path() / "abc", std::ios::binary) << "abc";
    std::ofstream(folder.path() / "million", std::ios::binary) << std::string(1'000'000, 'a');

    EXPECT_EQ(host::sha256OfFile(folder.path() / "abc"), kOfAbc);
    EXPECT_EQ(host::sha256OfFile(folder.path() / "million"), kOfAMillion);
}

TEST(ContentHash, OfNoFileIsEmpty) {
    const test_support::TemporaryFolder folder;

    EXPECT_EQ(host::sha256OfFile(folder.path() / "absent"), "");
}

}  // namespace
