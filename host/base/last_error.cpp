#include "host/base/last_error.h"

namespace host {
namespace {

constexpr int kBadApiCall = 3;  // GenericErrors::BadApiCallError

}  // namespace

LastError& lastError() {
    static auto* instance = new LastError;
    return *instance;
}

bool fail(int code, const std::string& description) {
    lastError() = {code, description};
    return false;
}

bool notImplemented(const std::string& operation) {
    return fail(kBadApiCall, operation + " is not part of the stand-in host");
}

}  // namespace host
