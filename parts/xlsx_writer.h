#pragma once

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <stdexcept>
#include <string>

namespace parts {

/// A list that cannot be a workbook; the text says why, and what would be right.
class XlsxError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The bytes of an Excel workbook with the list as its one sheet: the same for the same list.
///
/// Numbers are numbers with all their digits, shown as `numbers` says; texts are texts, also those
/// that look like formulas. The header stays in view and has a filter, pictures lie in their cells,
/// and below the rows the quantities and masses are summed by formulas. Where no sum of cells is
/// the total, as with assemblies beside their parts, the total is a number.
///
/// Throws an `XlsxError` for what a sheet cannot hold, where the system has no room for temporary
/// files, and in a build without the library for it.
std::string xlsxOf(const PartsList& list, const NumberFormat& numbers);

}  // namespace parts
