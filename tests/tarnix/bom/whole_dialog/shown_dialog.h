#pragma once

#include "tests/tarnix/bom/whole_dialog/plain_dialog.h"

#include "host/session/dialog_view.h"

#include <string>
#include <vector>

/// The open dialog, its settings and its export, compared with what the plain one has.
namespace test_support {

/// The input of this id; throws where there is none.
const host::InputView& inputOf(const std::vector<host::InputView>& inputs, const std::string& id);

/// A table of the open dialog as a plain one.
plain::Table tableOf(const host::TableContents& contents);

/// Fails the test where the two differ in a cell, a width or the number of columns.
void expectSame(const host::TableContents& contents, const plain::Table& table, const char* id);

/// The lines of a text; the sorted ones again as a text.
std::vector<std::string> split(const std::string& text);
std::string sortedLines(std::vector<std::string> lines);

/// The root element of a settings document, in which elements without content are written in the
/// short way.
std::string rootOf(const std::string& document);

/// The columns that a settings document has, "key;caption" each.
std::vector<std::string> columnsIn(const std::string& document);

}  // namespace test_support
