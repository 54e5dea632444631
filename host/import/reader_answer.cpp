#include "host/import/reader_answer.h"

#include <nlohmann/json.hpp>

#include <mutex>
#include <stdexcept>

namespace host {

using nlohmann::json;

json answerOf(ReaderConnection& reader, const std::string& request) {
    const std::lock_guard asking(reader.asking);
    json answer;
    try {
        reader.startClock();
        reader.send(request);
        answer = json::parse(reader.receive());
    } catch (const json::exception& failure) {
        throw std::runtime_error(failure.what());
    }
    if (answer.contains("error")) {
        throw std::runtime_error(answer["error"].get<std::string>());
    }
    return answer;
}

}  // namespace host
