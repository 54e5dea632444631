#pragma once

#include <cstdint>
#include <functional>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

namespace host {

/// Takes back what was done to a document: for previews, and for executions that failed.
///
/// A record holds how to undo each change that is made while it is open, and costs what is changed.
/// Each change goes into the newest open record. Without an open one nothing is kept.
class History {
public:
    using Record = std::uint64_t;

    /// Opens a record.
    Record begin() {
        records_[++newest_].open = true;
        return newest_;
    }

    /// Closes a record: later changes are no part of it.
    void end(Record record) { records_[record].open = false; }

    /// Undoes the changes of a record, the last one first, and drops it.
    void takeBack(Record record) {
        const Changes undos = std::exchange(records_[record].undos, {});
        records_.erase(record);
        for (auto undo = undos.rbegin(); undo != undos.rend(); ++undo) {
            (*undo)();
        }
    }

    /// Drops a record. Its changes stay, as part of the open record around it if there is one.
    void keep(Record record) {
        Changes undos = std::exchange(records_[record].undos, {});
        records_.erase(record);
        if (Changes* around = open()) {
            around->insert(around->end(), std::make_move_iterator(undos.begin()),
                           std::make_move_iterator(undos.end()));
        }
    }

    /// Notes how to undo a change that is about to be made. What it refers to lives as long as the
    /// document.
    template <class Undo>
    void remember(Undo undo) {
        if (Changes* const changes = open()) {
            changes->emplace_back(std::move(undo));
        }
    }

    /// Whether the newest record is closed and waits to be taken back or kept, as that of a preview
    /// does: what is changed now is no part of it, and stays when it is taken back.
    [[nodiscard]] bool waits() const {
        return !records_.empty() && !records_.rbegin()->second.open;
    }

    /// Drops all records; the document ends.
    void clear() { records_.clear(); }

private:
    using Changes = std::vector<std::function<void()>>;

    struct Entry {
        bool open = false;
        Changes undos;
    };

    /// That of the newest open record, null for none.
    Changes* open() {
        for (auto entry = records_.rbegin(); entry != records_.rend(); ++entry) {
            if (entry->second.open) return &entry->second.undos;
        }
        return nullptr;
    }

    std::map<Record, Entry> records_;
    Record newest_ = 0;
};

}  // namespace host
