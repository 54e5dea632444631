#include "tests/fuzz/fuzzed_files.h"

#include "host/design/design_file.h"
#include "host/design/geometry.h"
#include "host/design/outline.h"
#include "host/import/read_design.h"
#include "samples/product.h"
#include "tests/fuzz/choices.h"
#include "tests/host/import/iges_drafts.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <nlohmann/json.hpp>

#include <array>
#include <exception>
#include <typeinfo>
#include <vector>

namespace fuzz {
namespace {

using nlohmann::json;

/// Whether Open CASCADE crashed and no code of ours. It does so over some text that is no STEP,
/// such as a list that never ends, which it alone reads at the first stage (a fault of ours there
/// ends with a report of the sanitizers, not a signal), and over bodies with faulty entities, which
/// the reader counts before it builds them.
bool isOfTheLibrary(const std::string& error) {
    return error.find("; the file has ") != std::string::npos ||
           (error.find("the reader crashed") != std::string::npos &&
            error.find("at the stage \"Reading\"") != std::string::npos);
}

/// The text of an error, where it is none of the file: its reader did not end in order.
std::string faultIn(const std::string& error) {
    if (isOfTheLibrary(error)) {
        return {};
    }
    for (const char* const end : {"the reader crashed", "took longer than", "ended without"}) {
        if (error.find(end) != std::string::npos) {
            return error;
        }
    }
    return {};
}

/// What is refused in words is no fault; anything else that is thrown is one.
template <class Read>
std::string faultOf(Read read) {
    try {
        return read();
    } catch (const host::ImportError& error) {
        return faultIn(error.what());
    } catch (const host::DesignError&) {
        return {};
    } catch (const std::exception& error) {
        return std::string(typeid(error).name()) + ": " + error.what();
    }
}

void collect(json& node, std::vector<json*>& all) {
    all.push_back(&node);
    if (node.is_structured()) {
        for (json& each : node) {
            collect(each, all);
        }
    }
}

void damage(json& node, Choices& choices) {
    static const std::vector<json> kOthers = {nullptr,
                                              true,
                                              -1,
                                              0,
                                              1,
                                              2,
                                              1e308,
                                              4294967296,
                                              "",
                                              "x",
                                              "\xC5\x99",
                                              json::array(),
                                              json::object(),
                                              json::array({0, 1, 2})};
    switch (choices.below(3)) {
        case 0:
            node = choices.pick(kOthers);
            break;
        case 1:
            if (node.is_array() && !node.empty()) {
                node.push_back(node[choices.below(node.size())]);
            }
            break;
        default:
            if (node.is_structured() && !node.empty()) {
                auto gone = node.begin();
                std::advance(gone, choices.below(node.size()));
                node.erase(gone);
            }
    }
}

json baseDesign(const test_support::TemporaryFolder& folder) {
    host::DesignData design = host::parseOutline(R"(
        Frame  material=Steel:0.00785
          Leg  box=1x2x3 at=1,2,3
        Frame
        Bolt  measures=3:2 document=Other)");
    design.components[2].material->nameAssumed = true;
    const std::filesystem::path file = folder.path() / "base.json";
    host::saveDesignFile(file, design);
    return json::parse(test_support::readFile(file));
}

std::string readAgain(const std::filesystem::path& file) {
    const host::DesignData design = host::loadDesignFile(file);
    const std::filesystem::path once = file.parent_path() / "once.json";
    const std::filesystem::path twice = file.parent_path() / "twice.json";
    host::saveDesignFile(once, design);
    host::saveDesignFile(twice, host::loadDesignFile(once));
    return test_support::readFile(once) == test_support::readFile(twice)
               ? ""
               : "a design file differs after it was read and saved";
}

/// The places of what begins with one of these characters.
std::vector<std::size_t> placesOf(const std::string& text, const char* marks) {
    std::vector<std::size_t> places;
    for (std::size_t at = text.find_first_of(marks); at != std::string::npos;
         at = text.find_first_of(marks, at + 1)) {
        places.push_back(at);
    }
    return places;
}

/// Changes a reference, a number or a string of the text, or the line around it.
void damage(std::string& text, Choices& choices) {
    static const std::array<std::string, 10> kOthers = {
        "$", "*", "#1", "#99999", "1.E308", "-1.E-308", "'\\X2\\'", "()", "'", ";"};
    const std::vector<std::size_t> places = placesOf(text, "#(,'");
    if (places.empty()) {
        return;
    }
    const std::size_t at = choices.pick(places);
    const std::size_t end = std::min(text.find_first_of(",);\n", at + 1), text.size());
    switch (choices.below(5)) {
        case 0:
            text.replace(at + 1, end - at - 1, choices.pick(kOthers));
            break;
        case 1:
            text.replace(at, end - at, text.substr(choices.pick(places), end - at));
            break;
        case 2:
            text.erase(at, text.find('\n', at) - at);
            break;
        case 3:
            text.insert(at, text.substr(choices.pick(places), choices.below(200)));
            break;
        default:
            text[at + choices.below(text.size() - at)] = static_cast<char>(choices.below(256));
    }
}

/// Two plates of a material in an assembly.
std::string baseStep() {
    const samples::Solid solid = {{{samples::rectangle(10, 20), 5}}, {samples::circle(2)}};
    return samples::stepFile("x", {{.key = "plate",
                                    .id = "P",
                                    .name = "Plate",
                                    .description = "",
                                    .material = samples::Material{"Bronze", 8600},
                                    .solid = solid,
                                    .uses = {}},
                                   {.key = "top",
                                    .id = "T",
                                    .name = "Top",
                                    .description = "",
                                    .material = {},
                                    .solid = {},
                                    .uses = {{"plate", {}}, {"plate", {{1, 2, 3}}}}}});
}

/// A shape that cannot be measured says so.
std::string measure(const host::DesignData& design) {
    for (const host::ComponentData& component : design.components) {
        try {
            if (component.geometry != nullptr) {
                component.geometry->area();
                component.geometry->box({});
            }
        } catch (const std::runtime_error& error) {
            if (const std::string fault = faultIn(error.what()); !fault.empty()) {
                return fault;
            }
        }
    }
    return {};
}

std::string readDamaged(std::string text, const char* name, std::span<const std::uint8_t> bytes) {
    Choices choices(bytes);
    do {
        damage(text, choices);
    } while (!choices.isOver());
    const test_support::TemporaryFolder folder;
    const std::string file = folder.write(name, text);
    return faultOf([&] {
        std::vector<host::ReadingWarning> warnings;
        const host::ReadingLimits limits = {
            .seconds = 20, .megabytes = 1024, .occurrences = 1000, .levels = 50};
        return measure(host::readDesign(file, limits, {}, warnings));
    });
}

}  // namespace

std::string readDesignFile(std::span<const std::uint8_t> bytes) {
    const test_support::TemporaryFolder folder;
    json design = baseDesign(folder);
    Choices choices(bytes);
    do {
        std::vector<json*> nodes;
        collect(design, nodes);
        damage(*choices.pick(nodes), choices);
    } while (!choices.isOver());
    const std::string file = folder.write("a.design.json", design.dump());
    return faultOf([&] { return readAgain(file); });
}

std::string readStep(std::span<const std::uint8_t> bytes) {
    return readDamaged(baseStep(), "a.step", bytes);
}

std::string readIges(std::span<const std::uint8_t> bytes) {
    return readDamaged(drafts::iges(drafts::kRectangle), "a.iges", bytes);
}

}  // namespace fuzz
