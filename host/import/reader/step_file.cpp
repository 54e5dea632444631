#include "host/import/reader/step_file.h"

#include "host/import/reader/long_string.h"
#include "host/import/reader/needed_entities.h"
#include "host/import/reader/work_library.h"

#include <Interface_Check.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <TColStd_SequenceOfAsciiString.hxx>
#include <TransferBRep.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <fstream>
#include <future>
#include <iterator>
#include <map>
#include <string_view>
#include <system_error>
#include <vector>

namespace step {
namespace {

/// "Line 9: Incorrect syntax: unexpected ';'" as a clause. Open CASCADE counts the lines from 2.
std::string plainPlace(std::string_view place) {
    constexpr std::string_view kLine = "Line ";
    constexpr std::string_view kSyntax = ": Incorrect syntax: ";
    const std::size_t syntax = place.find(kSyntax);
    int line = 0;
    if (!place.starts_with(kLine) || syntax == std::string_view::npos ||
        std::from_chars(place.data() + kLine.size(), place.data() + syntax, line).ec !=
            std::errc()) {
        return std::string(place);
    }
    return std::to_string(line - 1)
        .insert(0, "line ")
        .append(": ")
        .append(place.substr(syntax + kSyntax.size()));
}

/// Collects the messages of Open CASCADE while it reads.
class Listener final : public Message_Printer {
    DEFINE_STANDARD_RTTI_INLINE(Listener, Message_Printer)

public:
    mutable std::vector<std::string> syntax;  ///< places where the text is no STEP, in their order
    mutable std::size_t unresolved = 0;       ///< references to entities that are not there

protected:
    void send(const TCollection_AsciiString& message,
              const Message_Gravity /*gravity*/) const override {
        note(message.ToCString());
    }

private:
    // Const, as the interface has it; what is heard is kept all the same.
    void note(std::string_view message) const {
        constexpr std::string_view kParsing = "Undefined Parsing: ";
        const std::size_t at = message.find(kParsing);
        if (at != std::string_view::npos) {
            message.remove_prefix(at + kParsing.size());
            const std::string place =
                plainPlace(message.substr(0, message.find_last_not_of(" *\n") + 1));
            if (std::find(syntax.begin(), syntax.end(), place) == syntax.end()) {
                syntax.push_back(place);
            }
        } else if (message.find("Not found") != std::string_view::npos) {
            ++unresolved;
        }
    }
};

/// Makes the listener the only one whom Open CASCADE talks to, for as long as it lives.
class MessageCollector {
public:
    MessageCollector() : listener(new Listener) {
        listener->SetTraceLevel(Message_Trace);
        Message::DefaultMessenger()->ChangePrinters().Clear();
        Message::DefaultMessenger()->AddPrinter(listener);
    }
    MessageCollector(const MessageCollector&) = delete;
    MessageCollector& operator=(const MessageCollector&) = delete;
    ~MessageCollector() { Message::DefaultMessenger()->RemovePrinter(listener); }

    Handle(Listener) listener;
};

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw ReadError("cannot be opened");
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string count(std::size_t number, const std::string& one, const std::string& several) {
    return std::to_string(number) + " " + (number == 1 ? one : several);
}

/// Entities that are not as their schema wants them, the first complaint in words.
class Faults {
public:
    void add(const std::string& complaint, int label) {
        if (count_++ == 0) {
            first_ = complaint + " (#" + std::to_string(label) + ")";
        }
    }

    [[nodiscard]] std::string text() const {
        return count_ == 0
                   ? ""
                   : count(count_, "faulty entity", "faulty entities") + ", first " + first_;
    }

private:
    std::size_t count_ = 0;
    std::string first_;
};

/// Whether a design lacks something where this is wrong with one of its entities. Products, places
/// and shapes are built from these kinds; a missing name is an empty one, and a unit is understood
/// without its dimensions.
bool matters(const std::string& complaint, std::string_view kind) {
    return complaint.find("not a quoted String") == std::string::npos &&
           complaint.find("(dimensions)") == std::string::npos &&
           (kind.starts_with("StepBasic_") || kind.starts_with("StepGeom_") ||
            kind.starts_with("StepRepr_") || kind.starts_with("StepShape_"));
}

/// Open CASCADE does not say why. What is known to stop it is a string beyond its buffer.
[[noreturn]] void refuseUnread(const std::filesystem::path& file) {
    if (const std::optional<LongString> found = findLongString(contentOf(file))) {
        throw ReadError("cannot be read as STEP: the string in line " +
                        std::to_string(found->line) + " has " + std::to_string(found->bytes) +
                        " bytes, at most " + std::to_string(kLongestString) +
                        " are possible; shorten it");
    }
    throw ReadError("cannot be read as STEP; export it again");
}

}  // namespace

StepFile::StepFile(const std::filesystem::path& file) : path(file) {
    const MessageCollector listening;
    // The two have nothing in common but the bytes.
    std::future<Part21Texts> bytes =
        std::async(std::launch::async, [&file] { return Part21Texts(contentOf(file)); });
    completeModels(reader);
    const IFSelect_ReturnStatus status = reader.ReadFile(path.c_str());
    texts = bytes.get();
    const std::vector<std::string>& syntax = listening.listener->syntax;
    if (!syntax.empty()) {
        throw ReadError("is cut off or damaged (" +
                        count(syntax.size(), "syntax error", "syntax errors") + ", " +
                        syntax.front() + "); export it again");
    }
    model = Handle(StepData_StepModel)::DownCast(reader.WS()->Model());
    if (status != IFSelect_RetDone || model.IsNull()) {
        refuseUnread(file);
    }
    if (const std::size_t missing = listening.listener->unresolved; missing > 0) {
        warnings.push_back({.code = "missing-reference",
                            .text = count(missing, "reference leads", "references lead") +
                                    " to an entity that is missing; what needs it is left out"});
    }
    checkEntities();
}

void StepFile::checkEntities() {
    Faults all;
    Faults mattering;
    std::optional<NeededEntities> needed;  // looked for where it makes a difference
    for (int number = 1; number <= model->NbEntities(); ++number) {
        const Handle(Interface_Check)& check = model->Check(number, /*syntactic=*/true);
        if (!check->HasFailed()) {
            continue;
        }
        const Handle(Standard_Transient) entity = model->Value(number);
        const std::string complaint = check->CFail(1, /*final=*/true);
        all.add(complaint, label(entity));
        if (!matters(complaint, entity->DynamicType()->Name())) {
            continue;
        }
        if (!needed) {
            needed.emplace(model, reader.WS()->Graph());
        }
        if (needed->contains(number)) {
            mattering.add(complaint, label(entity));
        }
    }
    faults = all.text();
    if (const std::string text = mattering.text(); !text.empty()) {
        warnings.push_back({.code = "faulty-entity",
                            .text = "has " + text + "; what needs them may be missing or wrong"});
    }
}

int StepFile::label(const Handle(Standard_Transient) & entity) const {
    return model->IdentLabel(entity);
}

TopoDS_Shape StepFile::shapeOf(const Handle(Standard_Transient) & entity) const {
    const Handle(Transfer_TransientProcess) process =
        reader.WS()->TransferReader()->TransientProcess();
    const Handle(Transfer_Binder) binder = process->Find(entity);
    return binder.IsNull() ? TopoDS_Shape() : TransferBRep::ShapeResult(binder);
}

std::string StepFile::unit() {
    static const std::map<std::string, std::string> kShort = {
        {"millimetre", "mm"}, {"centimetre", "cm"}, {"metre", "m"},       {"inch", "in"},
        {"foot", "ft"},       {"micrometre", "um"}, {"kilometre", "km"},  {"decimetre", "dm"},
        {"mile", "mi"},       {"nanometre", "nm"},  {"microinch", "uin"}, {"mil", "mil"}};
    TColStd_SequenceOfAsciiString lengths;
    TColStd_SequenceOfAsciiString angles;
    TColStd_SequenceOfAsciiString solidAngles;
    reader.FileUnits(lengths, angles, solidAngles);
    if (lengths.IsEmpty()) {
        return {};
    }
    TCollection_AsciiString name = lengths.First();
    name.LowerCase();
    const auto found = kShort.find(name.ToCString());
    return found == kShort.end() ? name.ToCString() : found->second;
}

}  // namespace step
