#include "tests/host/import/iges_drafts.h"

#include <iomanip>
#include <sstream>

namespace drafts {
namespace {

std::string fields(const std::vector<int>& numbers) {
    std::ostringstream text;
    for (const int each : numbers) {
        text << std::setw(8) << each;
    }
    return text.str();
}

}  // namespace

std::string igesRecord(const std::string& text, char section, std::size_t number) {
    std::ostringstream line;
    line << std::left << std::setw(72) << text << section << std::right << std::setw(7) << number
         << "\n";
    return line.str();
}

std::string iges(const std::vector<IgesEntity>& entities, const std::string& unit) {
    std::string directory;
    std::string parameters;
    for (std::size_t index = 0; index < entities.size(); ++index) {
        const IgesEntity& each = entities[index];
        const auto place = static_cast<int>(index) + 1;
        directory +=
            igesRecord(fields({each.type, place, 0, 0, 0, 0, 0, 0, 0}), 'D', 2 * index + 1);
        directory +=
            igesRecord(fields({each.type, 0, 0, 1, each.form, 0, 0, 0, 0}), 'D', 2 * index + 2);
        std::ostringstream line;
        line << std::left << std::setw(64) << each.parameters << std::right << std::setw(8)
             << 2 * index + 1;
        parameters += igesRecord(line.str(), 'P', index + 1);
    }
    std::ostringstream end;
    end << "S" << std::setw(7) << 1 << "G" << std::setw(7) << 2 << "D" << std::setw(7)
        << 2 * entities.size() << "P" << std::setw(7) << entities.size();
    return igesRecord("A draft.", 'S', 1) +
           igesRecord("1H,,1H;,5Hdraft,9Hdraft.igs,5Hhands,1H1,32,38,6,308,15,5Hdraft,1.0,", 'G',
                      1) +
           igesRecord(unit + ",1,0.01,15H20260101.000000,1.0E-6,100.0,2Hme,2Hme,11,0;", 'G', 2) +
           directory + parameters + igesRecord(end.str(), 'T', 1);
}

}  // namespace drafts
