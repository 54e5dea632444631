#include "tests/workbench/serve/page_client.h"
#include "tests/workbench/workbench_fixture.h"

#include <httplib.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

/// The model of a STEP file, which a program of its own reads.
namespace test_support {
namespace {

class ServedShapes : public Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        program = std::make_unique<ServedProgram>(std::vector<std::string>{
            PROJECT_FOLDER "/samples/planetary-gearbox.step", "--no-cache"});
        ASSERT_NE(program->port(), 0);
    }

    /// The status of the model, and why there is none.
    [[nodiscard]] std::string model() const {
        httplib::Client client("127.0.0.1", program->port());
        client.set_read_timeout(std::chrono::seconds(60));
        const ServedProgram::Secrets secrets = program->secrets();
        const auto response =
            client.Get("/model.glb", {{"Cookie", secrets.cookie}, {"Workbench-Key", secrets.key}});
        if (!response) return "no answer";
        const Json body = Json::parse(response->body, nullptr, /*allow_exceptions=*/false);
        return std::to_string(response->status) +
               (body.is_object() ? " " + body.value("error", "") : "");
    }

    /// The program that reads the file.
    [[nodiscard]] pid_t reader() const {
        const std::string process = std::to_string(program->process());
        std::ifstream children("/proc/" + process + "/task/" + process + "/children");
        pid_t child = 0;
        children >> child;
        return child;
    }

    std::unique_ptr<ServedProgram> program;
};

TEST_F(ServedShapes, HostGoesOnWhileTheyAreRead) {
    PageClient page(*program);
    std::string status;
    std::thread reading([&] { status = model(); });

    EXPECT_EQ(page.act({{"action", "press"}, {"command", "QM_TX_BOM"}})["ok"], true);

    reading.join();
    EXPECT_EQ(status, "200");
}

TEST_F(ServedShapes, CrashOfTheReaderIsSaid) {
    ASSERT_NE(reader(), 0);
    ASSERT_EQ(::kill(reader(), SIGSEGV), 0);

    EXPECT_EQ(
        model(),
        "500 no shape could be drawn: cannot be drawn: the reader crashed (Segmentation fault)");

    PageClient page(*program);
    EXPECT_EQ(page.state()["document"]["name"], "planetary-gearbox");
    EXPECT_EQ(page.act({{"action", "open"}, {"file", nullptr}})["ok"], true);
    EXPECT_EQ(model(), "200");
}

TEST_F(ServedShapes, ProgramEndsWhileTheyAreRead) {
    std::thread reading([this] { static_cast<void>(model()); });

    EXPECT_EQ(program->stop(), 0);

    reading.join();
}

}  // namespace
}  // namespace test_support
