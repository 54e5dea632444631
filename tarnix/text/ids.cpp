#include "tarnix/text/ids.h"

#include "tarnix/text/numbers.h"

namespace tarnix {

std::string idTail(const std::string& id) {
    const auto underscore = id.rfind('_');
    return underscore == std::string::npos ? id : id.substr(underscore + 1);
}

std::string idBase(const std::string& id) { return id.substr(0, id.rfind('_')); }

int idNumber(const std::string& id) { return parseInt(idTail(id)); }

}  // namespace tarnix
