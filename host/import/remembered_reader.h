#pragma once

#include "host/import/reader_connection.h"
#include "host/import/reading_cache.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// A reader whose responses are remembered from one run to the next.
///
/// An entry of the cache holds what the reader sent up to the design, and its response to each
/// request since. As long as all that is asked is in the entry, no reader is started; the first
/// request that is not starts one. Errors are never remembered, and neither is what the reader
/// marks as made by a limit of time or memory: the next run asks again. Where an entry would be
/// too large for the cache, the longest responses are left out, which are meshes.
class RememberedReader final : public ReaderConnection {
public:
    using Start = std::function<std::unique_ptr<ReaderConnection>()>;

    /// Starts the reader of some files at once where the cache has no entry for the key. `start`
    /// throws `ReaderFailure`.
    RememberedReader(ReadingCache cache, std::string key,
                     const std::vector<std::filesystem::path>& files, Start start);
    RememberedReader(const RememberedReader&) = delete;
    RememberedReader& operator=(const RememberedReader&) = delete;

    /// Keeps what was learned, if that is allowed.
    ~RememberedReader() override;

    void startClock() override;
    void send(const std::string& line) override;
    std::string receive() override;

    /// Allows that it is kept, under a key that stands for the content of all files that were read.
    /// It is not if one of them was written while it was read.
    void allowKeeping(const std::string& key, const std::vector<std::filesystem::path>& files);

private:
    using Responses = std::map<std::string, std::string>;  ///< by request

    /// What shows that a file is no longer the one whose content is known.
    struct Stamp {
        std::filesystem::path file;
        std::filesystem::file_time_type changed;
        std::uintmax_t bytes = 0;

        bool operator==(const Stamp&) const = default;
    };

    static Stamp stampOf(const std::filesystem::path& file);
    [[nodiscard]] bool isUnchanged() const;
    bool restore(const std::string& entry);
    void remember(const std::string& line);
    void startLateOnce();
    [[nodiscard]] std::unique_ptr<ReaderConnection> startLate() const;
    [[nodiscard]] std::vector<Responses::const_iterator> responsesWithin(std::uintmax_t room) const;
    [[nodiscard]] std::string entry() const;

    ReadingCache cache_;
    std::string key_;
    std::filesystem::file_time_type opened_;  ///< when this was made
    std::vector<Stamp> stamps_;               ///< of the files that are read
    Start start_;
    std::unique_ptr<ReaderConnection> reader_;  ///< null while it is not needed
    std::vector<std::string> opening_;          ///< what comes up to the design, without progress
    Responses responses_;
    std::deque<std::string> toReceive_;  ///< remembered lines
    std::string failure_;                ///< why no reader could be started late
    std::string asked_;                  ///< the request that the reader has not answered yet
    bool isOpen_ = false;                ///< the design has come
    bool mayKeep_ = false;
    bool hasLearned_ = false;
};

}  // namespace host
