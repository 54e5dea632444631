#include "host/base/dispatcher.h"

#include "host/base/gate.h"
#include "host/base/host_state.h"

#ifndef _MSC_VER
#include <cxxabi.h>
#endif

#include <cstdlib>
#include <exception>
#include <memory>
#include <typeinfo>
#include <utility>

namespace host {
namespace {

void record(UncaughtException thrown) {
    if (HostState* host = HostState::current()) {
        host->uncaughtExceptions.push_back(std::move(thrown));
    }
}

/// While it lives, the module works on an entry.
class Entering {
public:
    explicit Entering(ModuleEntry entry) : host_(HostState::current()) {
        if (host_ != nullptr) host_->entries.push_back(std::move(entry));
    }
    Entering(const Entering&) = delete;
    Entering& operator=(const Entering&) = delete;
    ~Entering() {
        if (host_ != nullptr && host_ == HostState::current()) host_->entries.pop_back();
    }

private:
    HostState* host_;
};

/// The class of the exception being handled, readable.
#ifdef _MSC_VER
std::string currentExceptionType() {
    try {
        throw;
    } catch (const std::exception& error) {
        return typeid(error).name();
    } catch (...) {
        return "unknown";
    }
}
#else
std::string currentExceptionType() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr) {
        return "unknown";
    }
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), std::free);
    return status == 0 ? name.get() : type->name();
}
#endif

}  // namespace

bool enterModule(const std::string& event, const std::string& inputId,
                 const std::function<void()>& enter) {
    const gate::Module running;
    const Entering entering({.event = event, .inputId = inputId});
    try {
        enter();
        return true;
    } catch (const std::exception& error) {
        const std::string type = currentExceptionType();
        // A null handle throws the bare class, whose own `what` is only its name.
        record({.event = event,
                .inputId = inputId,
                .type = type,
                .text = type == "std::exception" ? "" : error.what()});
    } catch (...) {
        record({.event = event, .inputId = inputId, .type = currentExceptionType(), .text = ""});
    }
    return false;
}

const std::vector<UncaughtException>& uncaughtExceptions() {
    return HostState::required().uncaughtExceptions;
}

void clearUncaughtExceptions() { HostState::required().uncaughtExceptions.clear(); }

}  // namespace host
