#include "host/import/remembered_reader.h"

#include "host/import/content_hash.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace host {
namespace {

// A line of the reader is an object, and its first member says what it is.
constexpr std::string_view kDesign = R"({"design")";
constexpr std::string_view kError = R"({"error")";
constexpr std::string_view kAgain = R"({"again")";
constexpr std::string_view kProgress = R"({"progress")";

/// The first line of an entry; the hash of all others follows.
constexpr std::string_view kHead = "reading 1 ";

}  // namespace

RememberedReader::RememberedReader(ReadingCache cache, std::string key,
                                   const std::vector<std::filesystem::path>& files, Start start)
    : cache_(std::move(cache)),
      key_(std::move(key)),
      opened_(std::filesystem::file_time_type::clock::now()),
      start_(std::move(start)) {
    std::ranges::transform(files, std::back_inserter(stamps_), stampOf);
    const std::optional<std::string> found = findReading(cache_, key_);
    if (!found || !restore(*found)) {
        reader_ = start_();
    }
}

RememberedReader::~RememberedReader() {
    try {
        if (mayKeep_ && hasLearned_ && !cache_.folder.empty() && isUnchanged()) {
            keepReading(cache_, key_, entry());
        }
    } catch (const std::exception&) {
        // No memory for the entry: it is not kept.
    }
}

void RememberedReader::startClock() {
    if (reader_ != nullptr) {
        reader_->startClock();
    }
}

void RememberedReader::send(const std::string& line) {
    if (const auto known = responses_.find(line); known != responses_.end()) {
        toReceive_.push_back(known->second);
        return;
    }
    if (reader_ == nullptr) {
        startLateOnce();
    }
    asked_ = line;
    reader_->send(line);
}

std::string RememberedReader::receive() {
    if (!toReceive_.empty()) {
        std::string line = std::move(toReceive_.front());
        toReceive_.pop_front();
        return line;
    }
    std::string line = reader_->receive();
    remember(line);
    return line;
}

RememberedReader::Stamp RememberedReader::stampOf(const std::filesystem::path& file) {
    std::error_code changed;
    std::error_code sized;
    const Stamp stamp{.file = file,
                      .changed = std::filesystem::last_write_time(file, changed),
                      .bytes = std::filesystem::file_size(file, sized)};
    return changed || sized ? Stamp{.file = file, .changed = {}, .bytes = 0} : stamp;
}

bool RememberedReader::isUnchanged() const {
    return std::ranges::all_of(stamps_,
                               [](const Stamp& stamp) { return stampOf(stamp.file) == stamp; });
}

void RememberedReader::allowKeeping(const std::string& key,
                                    const std::vector<std::filesystem::path>& files) {
    // Files beyond the first were found by the reader: their content was not known before.
    const bool areKnown = files.size() == stamps_.size();
    mayKeep_ = isUnchanged();
    key_ = key;
    stamps_.clear();
    std::ranges::transform(files, std::back_inserter(stamps_), stampOf);
    if (!areKnown) {
        mayKeep_ = mayKeep_ && std::ranges::all_of(stamps_, [this](const Stamp& stamp) {
                       return stamp.changed < opened_;
                   });
    }
}

/// Whether an entry could be understood.
bool RememberedReader::restore(const std::string& entry) {
    const std::size_t end = entry.find('\n');
    if (end == std::string::npos ||
        entry.substr(0, end) !=
            std::string(kHead) + sha256Of(std::string_view(entry).substr(end + 1))) {
        return false;
    }
    std::istringstream lines(entry.substr(end + 1));
    for (std::string line; !isOpen_ && std::getline(lines, line);) {
        isOpen_ = line.starts_with(kDesign);
        opening_.push_back(std::move(line));
    }
    for (std::string request, response;
         std::getline(lines, request) && std::getline(lines, response);) {
        responses_.emplace(std::move(request), std::move(response));
    }
    if (!isOpen_) {
        opening_.clear();
    }
    toReceive_.assign(opening_.begin(), opening_.end());
    return isOpen_;
}

void RememberedReader::remember(const std::string& line) {
    if (cache_.folder.empty()) {
        return;
    }
    if (isOpen_) {
        if (!line.starts_with(kError) && !line.starts_with(kAgain)) {
            responses_.emplace(std::exchange(asked_, {}), line);
            hasLearned_ = true;
        }
        return;
    }
    if (!line.starts_with(kProgress)) {
        opening_.push_back(line);
    }
    isOpen_ = hasLearned_ = line.starts_with(kDesign);
}

void RememberedReader::startLateOnce() {
    if (!failure_.empty()) {
        throw ReaderFailure(failure_);
    }
    try {
        reader_ = startLate();
    } catch (const ReaderFailure& failure) {
        failure_ = failure.what();
        throw;
    }
}

/// A reader that has sent the design again.
std::unique_ptr<ReaderConnection> RememberedReader::startLate() const {
    if (!isUnchanged()) {
        throw ReaderFailure("the file was changed after it was opened");
    }
    std::unique_ptr<ReaderConnection> reader = start_();
    for (std::string line; !line.starts_with(kDesign);) {
        line = reader->receive();
        if (line.starts_with(kError)) {
            throw ReaderFailure("the reader could not read the file again");
        }
    }
    reader->startClock();
    return reader;
}

/// The shortest ones that have so many bytes together, by their requests.
std::vector<RememberedReader::Responses::const_iterator> RememberedReader::responsesWithin(
    std::uintmax_t room) const {
    const auto bytesOf = [](Responses::const_iterator each) {
        return each->first.size() + each->second.size() + 2;
    };
    std::vector<Responses::const_iterator> chosen;
    for (auto each = responses_.begin(); each != responses_.end(); ++each) {
        chosen.push_back(each);
    }
    std::ranges::stable_sort(chosen, {}, bytesOf);
    std::uintmax_t bytes = 0;
    std::erase_if(chosen, [&](Responses::const_iterator each) {
        bytes += bytesOf(each);
        return bytes > room;
    });
    return chosen;
}

std::string RememberedReader::entry() const {
    std::string text;
    for (const std::string& line : opening_) {
        text += line + "\n";
    }
    constexpr std::uintmax_t kHashDigits = 64;
    const std::uintmax_t used = text.size() + kHead.size() + kHashDigits + 1;
    const std::uintmax_t most = largestEntry(cache_);
    for (const auto& each : responsesWithin(used < most ? most - used : 0)) {
        text += each->first + "\n" + each->second + "\n";
    }
    return std::string(kHead) + sha256Of(text) + "\n" + text;
}

}  // namespace host
