#include "tests/tarnix/refusal/session_steps.h"

namespace refusal {

std::filesystem::path settingsFileOf(const host::Session& session) {
    return session.addin().folder / "Tarnix_configuration.xml";
}

void endSession(host::Session& session) {
    if (session.dialogOpen()) {
        session.cancel();
    }
    session.stop();
}

}  // namespace refusal
