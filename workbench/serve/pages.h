#pragma once

#include "workbench/serve/changes.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace workbench::serve {

/// So many pages can be open.
inline constexpr std::size_t kMostPages = 16;

/// The rows of a table that a page wants.
struct RowWindow {
    std::size_t from = 0;
    std::size_t count = 60;
};

/// An open page: what its stream is to send next. A page that reads slowly finds the newest state
/// there, whatever came before it, so nothing accumulates.
class Page {
public:
    explicit Page(int number) : number_(number) {}

    [[nodiscard]] int number() const { return number_; }

    /// Leaves a state for the stream.
    void show(std::shared_ptr<const State> state);

    /// Ends the stream.
    void close();

    /// Waits for a state that is newer than `revision`, for a second at most. Null where none came;
    /// `isClosed` says whether one will come.
    std::shared_ptr<const State> next(std::uint64_t revision);

    [[nodiscard]] bool isClosed() const;

    /// By the keys of tables; of the main thread alone.
    std::map<std::uint32_t, RowWindow> windows;

private:
    int number_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::shared_ptr<const State> state_;
    bool closed_ = false;
};

/// All pages that are open. Each function may be called from any thread.
class Pages {
public:
    /// A new page; null where too many are open, or all were closed.
    std::shared_ptr<Page> open();
    void remove(const Page& page);

    /// The page of that number, null for none.
    [[nodiscard]] std::shared_ptr<Page> find(int number) const;
    [[nodiscard]] std::vector<std::shared_ptr<Page>> all() const;

    /// Ends all streams, and opens none any more.
    void closeAll();

private:
    mutable std::mutex mutex_;
    std::map<int, std::shared_ptr<Page>> pages_;
    int newest_ = 0;
    bool closed_ = false;
};

}  // namespace workbench::serve
