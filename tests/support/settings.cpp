#include "tests/support/settings.h"

#include <map>

namespace test_support {
namespace {

const std::map<char, std::string> kEntities = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}};

std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const auto entity = kEntities.find(c);
        result += entity == kEntities.end() ? std::string(1, c) : entity->second;
    }
    return result;
}

std::string itemElement(const std::string& item) {
    const std::size_t end = item.find(';');
    const std::string caption = end == std::string::npos ? "" : item.substr(end + 1);
    return "<item_bomItems id=\"" + escaped(item.substr(0, end)) + "\"><displayName>" +
           escaped(caption) + "</displayName></item_bomItems>";
}

}  // namespace

std::string settingsDocument(const std::vector<std::string>& bomItems) {
    std::string items;
    for (const std::string& item : bomItems) {
        items += itemElement(item);
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
           "<configuration nameOfApplication=\"Tarnix\">"
           "<category name=\"httpHelpdesk\"><www>http://helpdesk.example/</www></category>"
           "<category name=\"iProperty\"/>"
           "<category name=\"bomItems\">" +
           items + "</category></configuration>\r\n";
}

}  // namespace test_support
