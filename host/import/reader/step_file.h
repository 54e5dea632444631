#pragma once

#include "host/import/reader/part21_texts.h"

#include <STEPControl_Reader.hxx>
#include <StepData_StepModel.hxx>
#include <TopoDS_Shape.hxx>

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace step {

/// What is wrong with a file, in words that follow its name.
class ReadError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file whose tree exceeds the limit of occurrences.
class TooManyOccurrences : public ReadError {
public:
    using ReadError::ReadError;
};

/// What the user should know although a file can be read.
struct Warning {
    std::string code;                  ///< one word; step_import.h has the list
    std::string text;                  ///< words that follow the file's name
    std::string component = {};        ///< what it is about, empty for the whole file
    std::optional<double> value = {};  ///< a number in doubt, as the file has it
    std::string unit = {};             ///< its unit, in the file's words
};

/// One STEP file, read and not yet turned into shapes.
class StepFile {
public:
    /// Reads it; throws `ReadError` when the text is not intact. Open CASCADE leaves out what it
    /// cannot parse and reports success, so its messages are looked at as well as its status.
    explicit StepFile(const std::filesystem::path& file);

    /// The label of an entity in the file, the number after "#".
    [[nodiscard]] int label(const Handle(Standard_Transient) & entity) const;

    /// What came of an entity once shapes were built; a null shape when nothing did.
    [[nodiscard]] TopoDS_Shape shapeOf(const Handle(Standard_Transient) & entity) const;

    /// "mm", "cm", "m", "in" ...: the length unit that most of the file is in; empty if it has
    /// none.
    std::string unit();

    std::filesystem::path path;
    STEPControl_Reader reader;
    Handle(StepData_StepModel) model;
    Part21Texts texts;
    std::string faults;  ///< entities that are not as their schema wants them, empty if none
    std::vector<Warning> warnings;

private:
    void checkEntities();
};

}  // namespace step
