#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace test_support {

/// The built program while it serves a host: started by the construction, which waits for the
/// address that it prints, and ended by the destruction where that was not done before.
class ServedProgram {
public:
    explicit ServedProgram(const std::vector<std::string>& arguments);
    ServedProgram(const ServedProgram&) = delete;
    ServedProgram& operator=(const ServedProgram&) = delete;
    ~ServedProgram();

    /// What it printed; empty where it ended without an address.
    [[nodiscard]] const std::string& address() const { return address_; }
    [[nodiscard]] int port() const;
    [[nodiscard]] std::string token() const;

    /// What a browser that opened the address knows.
    struct Secrets {
        std::string cookie;  ///< the header "Cookie"
        std::string key;     ///< the header "Workbench-Key"
    };
    [[nodiscard]] Secrets secrets() const;

    [[nodiscard]] pid_t process() const { return process_; }

    void signal(int number) const;

    /// Asks it to end, and returns its exit status; -1 where a signal ended it.
    int stop();

private:
    pid_t process_ = 0;
    std::string address_;
};

}  // namespace test_support
