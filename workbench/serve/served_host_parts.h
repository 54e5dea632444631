#pragma once

#include "workbench/serve/served_host.h"

#include <utility>

namespace workbench::serve {

/// A message or a file dialog that the module shows.
struct ServedHost::Waiting {
    int id = 0;
    Json message;  ///< null for a file dialog
    Json fileDialog;
    host::FileDialogKind kind = host::FileDialogKind::Open;
    bool answered = false;
    adsk::core::DialogResults result = adsk::core::DialogOK;
    host::PickedFiles files;
};

/// While it lives, a variable has another value.
template <class Value>
class Restored {
public:
    Restored(Value& variable, Value value)
        : variable_(variable), before_(std::exchange(variable, std::move(value))) {}
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;
    ~Restored() { variable_ = std::move(before_); }

private:
    Value& variable_;
    Value before_;
};

/// An action that is being done, until it is answered.
class ServedHost::InAction {
public:
    InAction(ServedHost& host, const Answer& answer) : host_(host), answer_(answer) {
        host_.inAction_.push_back(this);
    }
    InAction(const InAction&) = delete;
    InAction& operator=(const InAction&) = delete;
    ~InAction() { std::erase(host_.inAction_, this); }

    void reply(Json answer) {
        if (!std::exchange(answered_, true)) {
            answer["ok"] = true;
            answer["revision"] = host_.revision_;
            answer_(answer);
        }
    }

    [[nodiscard]] bool isAnswered() const { return answered_; }

private:
    ServedHost& host_;
    const Answer& answer_;
    bool answered_ = false;
};

}  // namespace workbench::serve
