#include "host/import/reader/iges.h"

#include "host/import/reader/protocol.h"
#include "host/import/reader/shapes.h"
#include "host/import/reader/step_file.h"

#include <IGESControl_Reader.hxx>
#include <IGESData_GlobalSection.hxx>
#include <IGESData_IGESModel.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <TCollection_HAsciiString.hxx>

#include <fstream>
#include <string>

namespace step {
namespace {

using nlohmann::json;

/// The name of the file's length unit, in lower case; empty where it has none.
std::string unitOf(const IGESControl_Reader& reader) {
    const Handle(IGESData_IGESModel) model = Handle(IGESData_IGESModel)::DownCast(reader.Model());
    const Handle(TCollection_HAsciiString) name = model->GlobalSection().UnitName();
    if (name.IsNull()) {
        return {};
    }
    TCollection_AsciiString lower = name->String();
    lower.LowerCase();
    return lower.ToCString();
}

}  // namespace

bool looksLikeIges(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string line;
    constexpr std::size_t kSectionColumn = 72;
    return std::getline(stream, line) && line.size() > kSectionColumn &&
           line[kSectionColumn] == 'S';
}

json readIges(const std::filesystem::path& file, TopTools_IndexedMapOfShape& shapes,
              std::vector<TopoDS_Shape>& curves) {
    sendStage("Reading");
    // What it prints would be among the responses.
    Message::DefaultMessenger()->ChangePrinters().Clear();
    IGESControl_Reader reader;
    if (reader.ReadFile(file.c_str()) != IFSelect_RetDone || reader.NbRootsForTransfer() == 0) {
        throw ReadError("cannot be read as IGES; export it again");
    }
    reader.TransferRoots();
    const TopoDS_Shape whole = reader.OneShape();
    sendStage("Resolving");
    const Bodies bodies = whole.IsNull() ? Bodies() : bodiesOf(whole);
    json component = {{"id", ""},
                      {"name", file.stem().string()},
                      {"description", ""},
                      {"uses", json::array()},
                      {"shape", bodies.shape.IsNull() ? -1 : shapes.Add(bodies.shape) - 1},
                      {"bodies", bodies.count}};
    const TopoDS_Shape lines =
        whole.IsNull() || !bodies.shape.IsNull() ? TopoDS_Shape() : curvesOf(whole);
    if (!lines.IsNull()) {
        component["curves"] = curves.size();
        curves.push_back(lines);
    }
    return {{"unit", unitOf(reader)},
            {"files", {file.string()}},
            {"roots", {0}},
            {"components", {component}}};
}

}  // namespace step
