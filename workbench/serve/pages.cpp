#include "workbench/serve/pages.h"

#include <chrono>
#include <utility>

namespace workbench::serve {
namespace {

constexpr std::chrono::seconds kPause{1};

}  // namespace

void Page::show(std::shared_ptr<const State> state) {
    {
        const std::lock_guard lock(mutex_);
        state_ = std::move(state);
    }
    changed_.notify_all();
}

void Page::close() {
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
    }
    changed_.notify_all();
}

std::shared_ptr<const State> Page::next(std::uint64_t revision) {
    std::unique_lock lock(mutex_);
    const bool isThere = changed_.wait_for(
        lock, kPause, [&] { return closed_ || (state_ && state_->revision > revision); });
    return isThere && !closed_ ? state_ : nullptr;
}

bool Page::isClosed() const {
    const std::lock_guard lock(mutex_);
    return closed_;
}

std::shared_ptr<Page> Pages::open() {
    const std::lock_guard lock(mutex_);
    if (closed_ || pages_.size() >= kMostPages) {
        return nullptr;
    }
    ++newest_;
    return pages_.emplace(newest_, std::make_shared<Page>(newest_)).first->second;
}

void Pages::remove(const Page& page) {
    const std::lock_guard lock(mutex_);
    pages_.erase(page.number());
}

std::shared_ptr<Page> Pages::find(int number) const {
    const std::lock_guard lock(mutex_);
    const auto found = pages_.find(number);
    return found == pages_.end() ? nullptr : found->second;
}

std::vector<std::shared_ptr<Page>> Pages::all() const {
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<Page>> pages;
    for (const auto& [number, page] : pages_) {
        pages.push_back(page);
    }
    return pages;
}

void Pages::closeAll() {
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
    }
    for (const std::shared_ptr<Page>& each : all()) {
        each->close();
    }
}

}  // namespace workbench::serve
