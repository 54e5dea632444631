#include "parts/xlsx_writer.h"

namespace parts {

std::string xlsxOf(const PartsList& /*list*/, const NumberFormat& /*numbers*/) {
    throw XlsxError(
        "XLSX cannot be written on Windows, for want of libxlsxwriter; write CSV instead (.csv)");
}

}  // namespace parts
