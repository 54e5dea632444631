#pragma once

namespace host::ui {

/// A size in pixels; 0 by 0 where nothing gives one.
struct DialogSize {
    int width = 0;
    int height = 0;

    bool operator==(const DialogSize&) const = default;
};

}  // namespace host::ui
