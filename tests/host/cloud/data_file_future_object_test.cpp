#include "host/application/main_queue.h"
#include "host/application/running_host.h"
#include "host/base/clock.h"
#include "host/base/folder_lock.h"
#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/cloud/user_data.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/design/outline.h"
#include "tests/support/fault_watch.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

namespace host {
namespace {

using namespace adsk::core;
using namespace std::chrono_literals;

/// A host whose user has one project, "Workshop", and a folder of files beside the project.
class Uploads : public testing::Test {
protected:
    Uploads() {
        std::filesystem::create_directories(project());
        std::filesystem::create_directories(folder.path() / "disk");
        data =
            std::make_unique<UserData>(UserDataSetup{.folder = folder.path() / "data",
                                                     .activeProject = "",
                                                     .references = ReferencedFiles::KnownAtOnce});
        host::ApplicationObject::current()->setData(data->api());
    }
    ~Uploads() override { faults.verify(); }

    [[nodiscard]] std::filesystem::path project() const {
        return folder.path() / "data" / "Workshop";
    }

    [[nodiscard]] std::string disk(const std::string& name) const {
        return toUtf8(folder.path() / "disk" / fromUtf8(name));
    }

    [[nodiscard]] std::string design(const std::string& name) const {
        saveDesignFile(fromUtf8(disk(name)), parseOutline("Bolt"));
        return disk(name);
    }

    Ptr<DataFileFuture> upload(const std::string& file) const {
        return data->api()->activeProject()->rootFolder()->uploadFile(file);
    }

    static Ptr<Documents> documents() { return adsk::core::Application::get()->documents(); }

    static void wait(std::chrono::milliseconds duration) {
        clock::advance(duration);
        runPosted();
    }

    test_support::TemporaryFolder folder;
    std::unique_ptr<UserData> data;
    RunningHost host_;

    /// What the host reports against the test, and which of it the test expects.
    test_support::FaultWatch faults;
};

TEST_F(Uploads, ArePendingUntilTheirTimeIsOver) {
    storagePace().uploadSeconds = 5;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));

    wait(4s);
    EXPECT_EQ(future->uploadState(), UploadProcessing);
    EXPECT_FALSE(future->dataFile());
    EXPECT_FALSE(std::filesystem::exists(project() / "frame.ipt"));

    wait(1s);
    EXPECT_EQ(future->uploadState(), UploadFinished);
    EXPECT_EQ(future->dataFile()->name(), "frame");
    EXPECT_EQ(test_support::readFile(project() / "frame.ipt"),
              test_support::readFile(fromUtf8(disk("frame.ipt"))));
}

TEST_F(Uploads, ContinueWithoutAHandle) {
    storagePace().uploadSeconds = 5;
    upload(design("frame.ipt"));

    wait(5s);

    EXPECT_TRUE(std::filesystem::exists(project() / "frame.ipt"));
}

TEST_F(Uploads, ReplaceAFileOfTheSameName) {
    test_support::writeFile(project() / "frame.ipt", "old");

    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));
    wait(0s);

    EXPECT_EQ(future->uploadState(), UploadFinished);
    EXPECT_NE(test_support::readFile(project() / "frame.ipt"), "old");
}

TEST_F(Uploads, FailAtTheEndOfTheirTimeIfTheStorageFails) {
    storagePace().uploadSeconds = 2;
    storagePace().uploadFails = true;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));

    wait(1s);
    EXPECT_EQ(future->uploadState(), UploadProcessing);
    wait(1s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
    EXPECT_FALSE(future->dataFile());
    EXPECT_FALSE(std::filesystem::exists(project() / "frame.ipt"));
}

TEST_F(Uploads, OfAMissingFileFailAndNameIt) {
    const Ptr<DataFileFuture> future = upload(disk("missing.ipt"));
    wait(0s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
    EXPECT_EQ(lastError().description,
              "DataFolder::uploadFile: " + disk("missing.ipt") + ": no such file");
}

TEST_F(Uploads, OfAFolderFailAndNameIt) {
    const Ptr<DataFileFuture> future = upload(host::toUtf8(project()));
    wait(0s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
    EXPECT_EQ(lastError().description,
              "DataFolder::uploadFile: " + host::toUtf8(project()) + " is no ordinary file");
}

TEST_F(Uploads, RemoveAtOnceWhatAKilledProcessLeftHalfCopied) {
    namespace fs = std::filesystem;
    const fs::path left = project() / ".123456789.uploading";
    fs::create_directory(left);
    std::ofstream(left / "copy") << "half";

    upload(design("bolt.ipt"));
    wait(0s);

    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(fs::exists(project() / "bolt.ipt"));
}

TEST_F(Uploads, LeaveWhatAnotherProcessCopiesHoweverOldItIs) {
    namespace fs = std::filesystem;
    const fs::path begun = project() / ".123456789.uploading";
    fs::create_directory(begun);
    const auto lock = host::FolderLock::take(begun);
    std::ofstream(begun / "copy") << "half";
    fs::last_write_time(begun / "copy", fs::file_time_type::clock::now() - 48h);

    upload(design("bolt.ipt"));
    wait(0s);

    EXPECT_TRUE(fs::exists(begun / "copy"));
}

TEST_F(Uploads, OfAFileDeletedMeanwhileFail) {
    storagePace().uploadSeconds = 2;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));

    std::filesystem::remove(fromUtf8(disk("frame.ipt")));
    wait(2s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
}

TEST_F(Uploads, OfAFolderFail) {
    const Ptr<DataFileFuture> future = upload(toUtf8(folder.path() / "disk"));
    wait(0s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
}

TEST_F(Uploads, IntoADeletedFolderFail) {
    storagePace().uploadSeconds = 2;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));

    std::filesystem::remove_all(project());
    wait(2s);

    EXPECT_EQ(future->uploadState(), UploadFailed);
}

TEST_F(Uploads, CanBeOpenedOnceTheyAreConverted) {
    storagePace().conversionSeconds = 3;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));
    wait(0s);

    EXPECT_FALSE(documents()->open(future->dataFile()));
    wait(3s);
    const Ptr<Document> document = documents()->open(future->dataFile());

    ASSERT_TRUE(document);
    EXPECT_TRUE(document->dataFile() == future->dataFile());
    EXPECT_TRUE(adsk::core::Application::get()->activeDocument() == document);
}

TEST_F(Uploads, FailToOpenAsOftenAsTheStorageIsSetTo) {
    storagePace().conversionsThrowing = 1;
    storagePace().conversionsReturningNothing = 1;
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));
    wait(0s);

    EXPECT_THROW(documents()->open(future->dataFile()), std::runtime_error);
    EXPECT_FALSE(documents()->open(future->dataFile()));
    EXPECT_TRUE(documents()->open(future->dataFile()));
}

TEST_F(Uploads, OfOtherFilesThanDesignsAreNeverOpened) {
    test_support::writeFile(fromUtf8(disk("frame.ipt")), "nothing");
    const Ptr<DataFileFuture> future = upload(disk("frame.ipt"));
    wait(0s);

    EXPECT_FALSE(documents()->open(future->dataFile()));
    EXPECT_FALSE(documents()->open(nullptr));
}

TEST_F(Uploads, DocumentsListsWhatIsOpen) {
    const Ptr<DataFileFuture> future = upload(design("frame.ipt"));
    wait(0s);
    const std::size_t before = documents()->count();

    const Ptr<Document> document = documents()->open(future->dataFile());

    EXPECT_EQ(documents()->count(), before + 1);
    EXPECT_TRUE(documents()->item(before) == document);
    EXPECT_FALSE(documents()->item(before + 1));
}

}  // namespace
}  // namespace host
