#include "host/design/json_document.h"

#include "host/design/design_check.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>

namespace host {
namespace {

// Lists in lists would take the most memory for each byte of text.
constexpr std::size_t kDeepestNesting = 100;

// "0," is a value; longer ones leave room, and memory that is not written to costs nothing.
constexpr std::size_t kBytesForAValue = 8;

constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// Hears why a text is no JSON, and keeps nothing else.
class Complaint : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool /*value*/) override { return true; }
    bool number_integer(number_integer_t /*value*/) override { return true; }
    bool number_unsigned(number_unsigned_t /*value*/) override { return true; }
    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return true; }
    bool string(string_t& /*value*/) override { return true; }
    bool binary(binary_t& /*value*/) override { return true; }
    bool start_object(std::size_t /*members*/) override { return true; }
    bool key(string_t& /*value*/) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t /*entries*/) override { return true; }
    bool end_array() override { return true; }

    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const nlohmann::detail::exception& error) override {
        reason = error.what();
        return false;
    }

    std::string reason;
};

/// The prefix that a library puts before its message is of no use to the user.
std::string withoutOrigin(const std::string& text) {
    const std::size_t end = text.find("] ");
    return text.starts_with('[') && end != std::string::npos ? text.substr(end + 2) : text;
}

/// The fast parser says where it stopped; this one, by line and column, what it expected there.
[[noreturn]] void refuseAsNoJson(const std::string& text, std::size_t stoppedAt) {
    Complaint complaint;
    nlohmann::json::sax_parse(text, &complaint);
    const std::string reason = complaint.reason.empty()
                                   ? "parse error at byte " + std::to_string(stoppedAt)
                                   : withoutOrigin(complaint.reason);
    throw DesignError("is no design file: " + reason);
}

/// Half of a pair of UTF-16, which an escape can name and UTF-8 cannot hold.
bool hasSurrogate(std::string_view text) {
    for (std::size_t at = text.find('\xED'); at != std::string_view::npos;
         at = text.find('\xED', at + 1)) {
        if (at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) >= 0xA0) {
            return true;
        }
    }
    return false;
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
}

}  // namespace

/// Takes what the parser meets; false stops it.
class JsonDocument::Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
public:
    explicit Builder(JsonDocument& document) : document_(document) {}

    bool Null() { return add({.kind = Kind::Null}); }
    bool Bool(bool value) { return add({.kind = Kind::Flag, .content = value ? 1U : 0U}); }
    bool Int(int value) { return Double(value); }
    bool Uint(unsigned value) { return add({.kind = Kind::Whole, .content = value}); }
    bool Int64(std::int64_t value) { return Double(static_cast<double>(value)); }
    bool Uint64(std::uint64_t value) { return add({.kind = Kind::Whole, .content = value}); }
    bool Double(double value) {
        return add({.kind = Kind::Number, .content = std::bit_cast<std::uint64_t>(value)});
    }

    bool String(const char* text, rapidjson::SizeType size, bool /*copy*/) {
        const std::size_t begin = document_.texts_.size();
        document_.texts_.append(text, size);
        return add({.kind = Kind::Text, .size = size, .content = begin}) &&
               !hasSurrogate({text, size});
    }
    bool Key(const char* text, rapidjson::SizeType size, bool copy) {
        return String(text, size, copy);
    }

    bool StartObject() { return open(Kind::Object); }
    bool EndObject(rapidjson::SizeType members) { return close(members); }
    bool StartArray() { return open(Kind::List); }
    bool EndArray(rapidjson::SizeType entries) { return close(entries); }

    [[nodiscard]] bool isTooDeep() const { return open_.size() > kDeepestNesting; }

private:
    bool add(const Value& value) {
        document_.values_.push_back(value);
        return true;
    }

    bool open(Kind kind) {
        open_.push_back(document_.values_.size());
        return add({.kind = kind}) && !isTooDeep();
    }

    bool close(rapidjson::SizeType size) {
        Value& container = document_.values_[open_.back()];
        open_.pop_back();
        container.size = size;
        container.content = document_.values_.size();
        return true;
    }

    JsonDocument& document_;
    std::vector<std::size_t> open_;
};

JsonDocument::JsonDocument(std::string text) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw DesignError("is larger than 4 gigabytes; open a smaller design");
    }
    const std::size_t begin = text.starts_with(kMark) ? kMark.size() : 0;
    values_.reserve(text.size() / kBytesForAValue);
    Builder builder(*this);
    rapidjson::MemoryStream stream(text.data() + begin, text.size() - begin);
    constexpr unsigned kHow = rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag;
    rapidjson::Reader reader;
    // Each character is looked at again where some are of several bytes.
    const bool isRead =
        isAscii(std::string_view(text).substr(begin))
            ? !reader.Parse<kHow>(stream, builder).IsError()
            : !reader.Parse<kHow | rapidjson::kParseValidateEncodingFlag>(stream, builder)
                   .IsError();
    if (builder.isTooDeep()) {
        throw DesignError("is not a design file: brackets are nested too deep");
    }
    // The parser takes a byte of 0 for the end.
    if (!isRead || begin + stream.Tell() != text.size()) {
        refuseAsNoJson(text, begin + stream.Tell());
    }
}

}  // namespace host
