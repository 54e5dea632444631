#include "tests/fuzz/fuzzed_protocol.h"

#include "tests/support/addin_test.h"
#include "tests/support/outline.h"

#include "host/design/outline.h"

#include <sstream>
#include <stdexcept>

namespace fuzz {
namespace {

using namespace workbench::serve;

ServeRequest requestFor(const std::filesystem::path& data) {
    ServeRequest request;
    request.session = test_support::addinOptions();
    request.data = data;
    request.read = [](const std::filesystem::path& file, const host::ImportProgress& progress,
                      std::vector<host::ReadingWarning>& warnings) {
        return host::readDesign(file, {}, progress, warnings);
    };
    return request;
}

}  // namespace

FuzzedProtocol::FuzzedProtocol() {
    std::filesystem::create_directory(folder_.path() / "project");
    host_ = std::make_unique<ServedHost>(requestFor(folder_.path()), queue_, pages_);
    host_->begin(host::parseOutline("Frame  box=10x10x1\nBolt  box=1x1x1\nBolt"), {});
    host_->runAddin();
    // Messages and file dialogs are closed, as when the program ends.
    queue_.close();
    seen_ = page_->next(0);
}

std::string FuzzedProtocol::act(Bytes bytes) {
    std::istringstream lines(std::string(bytes.begin(), bytes.end()));
    std::string fault;
    for (std::string line; fault.empty() && std::getline(lines, line);) {
        fault = actOn(line);
        fault = fault.empty() ? follow() : fault;
    }
    return fault;
}

std::string FuzzedProtocol::actOn(const std::string& line) {
    try {
        Action action = parseAction(line);
        if (action.kind == ActionKind::ReloadAddin) {
            return "";  // the leak checker has no name for what a module left that is gone
        }
        action.page = page_->number();
        host_->act(action, [](const Json& /*answer*/) {});
        return "";
    } catch (const std::runtime_error&) {
        return "";  // a refusal
    } catch (const std::exception& error) {
        return line + ": " + error.what();
    }
}

std::string FuzzedProtocol::follow() {
    host_->publish();
    const std::shared_ptr<const State> now = page_->next(seen_->revision);
    if (!now) {
        return "no state followed";
    }
    const Json patched = documentOf(*seen_).patch(patchBetween(*seen_, *now));
    seen_ = now;
    return patched == documentOf(*now) ? "" : "the patch leads to another state";
}

}  // namespace fuzz
