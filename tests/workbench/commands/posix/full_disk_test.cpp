#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

#include <filesystem>
#include <string>

/// A disk that fills up while the program writes.
namespace {

namespace fs = std::filesystem;
using test_support::ProgramResult;

/// A file system of its own, for as long as this lives.
class SmallDisk {
public:
    explicit SmallDisk(fs::path place) : place_(std::move(place)) { fs::create_directory(place_); }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk() {
        if (isMounted_) {
            ::umount(place_.c_str());
        }
    }

    /// False where the system does not allow it.
    bool mount(std::uintmax_t bytes) {
        isMounted_ = ::mount("tmpfs", place_.c_str(), "tmpfs", MS_NOSUID | MS_NODEV,
                             ("size=" + std::to_string(bytes)).c_str()) == 0;
        return isMounted_;
    }

private:
    fs::path place_;
    bool isMounted_ = false;
};

class FullDisk : public test_support::Workbench {
protected:
    /// Parts whose list takes some 250 bytes each.
    std::string largeDesign(int parts) {
        host::DesignData data;
        data.name = "large";
        data.components.resize(static_cast<std::size_t>(parts) + 1);
        data.components[0].name = "large";
        for (int part = 1; part <= parts; ++part) {
            host::ComponentData& component = data.components[static_cast<std::size_t>(part)];
            component.name = std::string(100, 'n') + std::to_string(part);
            component.partNumber = std::string(100, 'p') + std::to_string(part);
            data.components[0].children.emplace_back().component = static_cast<std::size_t>(part);
        }
        const fs::path file = folder.path() / "large.design.json";
        host::saveDesignFile(file, data);
        return host::toUtf8(file);
    }

    static std::uintmax_t sizeOf(const fs::path& place) {
        std::uintmax_t size = 0;
        for (const auto& entry : fs::recursive_directory_iterator(place)) {
            constexpr std::uintmax_t kPage = 4096;
            size += kPage + (entry.is_regular_file() ? entry.file_size() : 0);
        }
        return size;
    }

    SmallDisk disk{folder.path() / "disk"};
};

TEST_F(FullDisk, KeepsNoneOfTheResults) {
    constexpr std::uintmax_t kSmall = 65536;
    if (!disk.mount(kSmall)) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    const std::string file = largeDesign(400);

    const ProgramResult exported = run({"bom", file, "--out", path("disk/out")});
    const ProgramResult saved = run({"bom", file, "--save", path("disk/a.design.json")});
    const ProgramResult printed = run({"bom", file, "--output", path("disk/list.txt")});

    for (const ProgramResult& each : {exported, saved, printed}) {
        EXPECT_EQ(each.status, 5);
        EXPECT_NE(each.errors.find("No space left on device"), std::string::npos) << each.errors;
    }
    EXPECT_EQ(exported.output, "");
    EXPECT_EQ(saved.output, "");
    EXPECT_TRUE(fs::is_empty(folder.path() / "disk"));
}

TEST_F(FullDisk, KeepsNoneOfSeveralLists) {
    constexpr std::uintmax_t kSmall = 65536;
    if (!disk.mount(kSmall)) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    const std::string file = largeDesign(400);

    const ProgramResult lists =
        run({"parts", file, "--output", path("out/list.csv"), "--output", path("disk/list.json")});

    EXPECT_EQ(lists.status, 5);
    EXPECT_NE(lists.errors.find("No space left on device"), std::string::npos) << lists.errors;
    EXPECT_EQ(lists.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
    EXPECT_TRUE(fs::is_empty(folder.path() / "disk"));
}

TEST_F(FullDisk, KeepsNoComparison) {
    constexpr std::uintmax_t kSmall = 65536;
    if (!disk.mount(kSmall)) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }

    const ProgramResult compared = run(
        {"compare", design("Bolt"), largeDesign(1000), "--output", path("disk/out/changes.txt")});

    EXPECT_EQ(compared.status, 5);
    EXPECT_NE(compared.errors.find("No space left on device"), std::string::npos)
        << compared.errors;
    EXPECT_FALSE(fs::exists(folder.path() / "disk/out/changes.txt"));
}

TEST_F(FullDisk, WritesNoWorkbookWithoutRoomForItsParts) {
    constexpr std::uintmax_t kSmall = 65536;
    if (!disk.mount(kSmall)) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    const std::string file = largeDesign(400);
    variables.set("TMPDIR", path("disk"));

    const ProgramResult workbook = run({"parts", file, "--output", path("out/list.xlsx")});

    EXPECT_EQ(workbook.status, 5);
    // After what the library says itself.
    EXPECT_NE(workbook.errors.find("tarnix-workbench: XLSX cannot be written: "), std::string::npos)
        << workbook.errors;
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
    EXPECT_TRUE(fs::is_empty(folder.path() / "disk"));
}

TEST_F(FullDisk, CutsNoExport) {
    constexpr std::uintmax_t kRoom = 262144;
    const fs::path addin = host::environment::programFolder().parent_path() / "Tarnix";
    if (!disk.mount(sizeOf(addin) + kRoom)) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    const std::string file = largeDesign(2000);
    variables.set("TMPDIR", path("disk"));

    const ProgramResult result = run({"bom", file, "--format", "csv", "--out", out()});

    EXPECT_EQ(result.status, 5);
    EXPECT_NE(result.errors.find("is the disk full?"), std::string::npos) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

}  // namespace
