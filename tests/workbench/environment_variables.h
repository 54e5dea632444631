#pragma once

#include "host/session/environment.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace test_support {

/// Variables of this process, which its child processes inherit. They get their old values back at
/// the end.
class EnvironmentVariables {
public:
    EnvironmentVariables() = default;
    EnvironmentVariables(const EnvironmentVariables&) = delete;
    EnvironmentVariables& operator=(const EnvironmentVariables&) = delete;

    ~EnvironmentVariables() {
        for (auto each = before_.rbegin(); each != before_.rend(); ++each) {
            host::environment::setVariable(each->first, each->second);
        }
    }

    /// Sets a variable; without a value it is removed.
    void set(const std::string& name, const std::optional<std::filesystem::path>& value) {
        const Native native = std::filesystem::path(name).native();
        before_.emplace_back(native, host::environment::variable(native));
        host::environment::setVariable(native,
                                       value ? std::optional(value->native()) : std::nullopt);
    }

    /// Sets the variables in which either system names the folders for a user's data and caches.
    void setUserData(const std::filesystem::path& folder) {
        set("XDG_DATA_HOME", folder);
        setUserCache(folder / "cache");
        set("LOCALAPPDATA", folder);
    }

    /// Sets those for a user's caches alone; one system has a single folder for both.
    void setUserCache(const std::filesystem::path& folder) {
        set("XDG_CACHE_HOME", folder);
        set("LOCALAPPDATA", folder);
    }

private:
    using Native = std::filesystem::path::string_type;

    std::vector<std::pair<Native, std::optional<Native>>> before_;
};

}  // namespace test_support
