#include "tests/tarnix/commands/open_local_file_fixture.h"

#include "tests/support/files.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"
#include "host/session/dialog_answers.h"

#include <clocale>
#include <locale>

using namespace adsk::core;

void OpenLocalFileTest::SetUp() {
    AddinTest::SetUp();
    std::filesystem::create_directories(folder.path() / "data" / "Workshop");
    session->useData({folder.path() / "data", "", host::ReferencedFiles::KnownAtOnce});
}

void OpenLocalFileTest::TearDown() {
    AddinTest::TearDown();
    // The command leaves its locale to the whole process.
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
}

std::string OpenLocalFileTest::pathOf(const std::string& name) const {
    return host::toUtf8(folder.path() / host::fromUtf8(name));
}

std::string OpenLocalFileTest::design(const std::string& name) const {
    host::DesignData data = host::parseOutline("Plate  box=1x2x3\n");
    const std::filesystem::path path = host::fromUtf8(pathOf(name));
    data.name = host::toUtf8(path.stem());
    data.components.front().name = data.name;
    std::filesystem::create_directories(path.parent_path());
    host::saveDesignFile(path, data);
    return pathOf(name);
}

std::string OpenLocalFileTest::file(const std::string& name, const std::string& content) const {
    const std::filesystem::path path = host::fromUtf8(pathOf(name));
    std::filesystem::create_directories(path.parent_path());
    test_support::writeFile(path, content);
    return pathOf(name);
}

void OpenLocalFileTest::pick(const Texts& files) const {
    host::answerNextFileDialog(files);
    session->press("QEMA_OpenLocalCmd_QAT");
}

void OpenLocalFileTest::pickNothing() const {
    host::answerNextFileDialog(std::nullopt);
    session->press("QEMA_OpenLocalCmd_QAT");
}

OpenLocalFileTest::Texts OpenLocalFileTest::opened() {
    Texts names;
    const Ptr<Documents> documents = Application::get()->documents();
    for (std::size_t index = 1; index < documents->count(); ++index) {
        names.push_back(documents->item(index)->name());
    }
    return names;
}

OpenLocalFileTest::Texts OpenLocalFileTest::uploaded() {
    Texts names;
    const Ptr<DataFiles> files =
        Application::get()->data()->activeProject()->rootFolder()->dataFiles();
    for (std::size_t index = 0; index < files->count(); ++index) {
        names.push_back(files->item(index)->name());
    }
    return names;
}

OpenLocalFileTest::Texts OpenLocalFileTest::messages() const {
    Texts texts;
    for (const host::Message& each : session->messages()) {
        EXPECT_EQ(each.title, "");
        texts.push_back(each.text);
    }
    return texts;
}
