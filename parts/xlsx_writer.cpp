#include "parts/xlsx_writer.h"

#include "parts/row_remarks.h"
#include "parts/xlsx_totals.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <utility>

namespace parts {
namespace {

namespace fs = std::filesystem;

constexpr double kPictureSide = 64;       // pixels
constexpr double kPictureRow = 50;        // points: somewhat more than the picture
constexpr double kPictureWidth = 10;      // characters
constexpr std::size_t kNarrowest = 6;     // characters
constexpr std::size_t kWidest = 60;       // characters
constexpr std::size_t kFilterButton = 3;  // characters that it covers in a header

/// Files of the library, which writes to files alone.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::error_code error;
        std::string name = (fs::temp_directory_path(error) / "tarnix-xlsx-XXXXXX").string();
        if (error || ::mkdtemp(name.data()) == nullptr) {
            throw XlsxError("XLSX cannot be written: no temporary folder can be made");
        }
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

/// The system's own tables of the workbook.
struct CloseWorkbook {
    void operator()(lxw_workbook* book) const { (void)::workbook_close(book); }
};

/// Columns that a text takes; characters of the East are two wide.
std::size_t widthOf(std::string_view text) {
    std::size_t width = 0;
    std::size_t line = 0;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        constexpr unsigned char kThreeBytes = 0xE0;
        line += (byte & 0xC0U) == 0x80U ? 0U : byte >= kThreeBytes ? 2U : 1U;
        line = each == '\n' ? 0 : line;
        width = std::max(width, line);
    }
    return width;
}

std::uint32_t bigEndian(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (const char each : bytes.substr(at, 4)) {
        value = value << 8U | static_cast<unsigned char>(each);
    }
    return value;
}

/// The larger side of a PNG in pixels; 0 for what is none.
double sideOf(const std::string& png) {
    constexpr std::size_t kWidth = 16;
    constexpr std::size_t kHeight = 20;
    return png.size() < kHeight + 4
               ? 0
               : static_cast<double>(std::max(bigEndian(png, kWidth), bigEndian(png, kHeight)));
}

class XlsxWriter {
public:
    XlsxWriter(const PartsList& list, const NumberFormat& numbers)
        : list_(list),
          numbers_(numbers),
          remarks_(rowRemarks(list)),
          hasRemarks_(
              std::ranges::any_of(remarks_, [](const auto& each) { return !each.empty(); })),
          file_(folder_.path() / "list.xlsx") {
        std::string temporary = folder_.path().string();
        lxw_workbook_options options = {};
        options.tmpdir = temporary.data();
        book_.reset(::workbook_new_opt(file_.c_str(), &options));
        sheet_ = book_ == nullptr ? nullptr : ::workbook_add_worksheet(book_.get(), "Parts");
        if (sheet_ == nullptr) {
            throw XlsxError("XLSX cannot be written: not enough memory");
        }
    }

    std::string bytes() {
        checkSize();
        // Without it the workbook would have the time at which it was made, and other bytes.
        lxw_doc_properties properties = {};
        std::string title = withoutNull(list_.design);
        properties.title = title.data();
        properties.created = kCreated;
        check(::workbook_set_properties(book_.get(), &properties), "the title");
        writeHeader();
        for (std::size_t row = 0; row < list_.rows.size(); ++row) {
            writeRow(row);
        }
        writeTotals();
        setColumns();
        setPages();
        return close();
    }

private:
    static constexpr std::time_t kCreated = 946'684'800;  // 2000-01-01

    static void check(lxw_error error, const std::string& what) {
        if (error != LXW_NO_ERROR) {
            throw XlsxError("XLSX cannot be written: " + what + ": " + ::lxw_strerror(error));
        }
    }

    void checkSize() const {
        const std::size_t rows = list_.rows.size() + 2;  // header and totals
        const std::size_t columns = shownColumns() + 2;
        if (rows > LXW_ROW_MAX || columns > LXW_COL_MAX) {
            throw XlsxError(
                "XLSX cannot be written: a sheet holds 1048576 rows and 16384 columns "
                "at the most; write CSV instead (.csv)");
        }
    }

    /// What is to be known of a row comes last, where it can be filtered and is printed.
    std::size_t shownColumns() const { return list_.columns.size() + (hasRemarks_ ? 1 : 0); }

    std::string captionOf(std::size_t column) const {
        return column < list_.columns.size() ? list_.columns[column].caption : "Remark";
    }

    static std::string withoutNull(std::string text) {
        // The library takes strings of C, which end there.
        for (std::size_t at = 0; (at = text.find('\0', at)) != std::string::npos;) {
            text.replace(at, 1, "\xEF\xBF\xBD");
        }
        return text;
    }

    lxw_format* formatOf(bool isBold, int decimals) {
        lxw_format*& format = formats_[{isBold, decimals}];
        if (format == nullptr) {
            format = ::workbook_add_format(book_.get());
            ::format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
            if (isBold) {
                ::format_set_bold(format);
            }
            if (decimals >= 0) {
                const std::string digits =
                    decimals == 0 ? "0"
                                  : "0." + std::string(static_cast<std::size_t>(decimals), '0');
                ::format_set_num_format(format, digits.c_str());
            }
        }
        return format;
    }

    /// Decimals with which a number is shown.
    int shownDecimals(const Number& number) const {
        const std::string text =
            numberText(number, {.significantDigits = numbers_.significantDigits});
        const std::size_t point = text.find('.');
        return point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
    }

    void writeText(std::size_t row, std::size_t column, const std::string& text, bool isBold) {
        const lxw_error error =
            ::worksheet_write_string(sheet_, rowOf(row), columnOf(column),
                                     withoutNull(text).c_str(), formatOf(isBold, kNoNumber));
        if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) {
            throw XlsxError("XLSX cannot be written: row " + std::to_string(row) + ", \"" +
                            captionOf(column) +
                            "\": a cell holds 32767 characters at the most; write CSV instead "
                            "(.csv)");
        }
        check(error, "row " + std::to_string(row));
        widen(column, widthOf(text));
    }

    void writeNumber(std::size_t row, std::size_t column, const Number& number, bool isBold) {
        check(::worksheet_write_number(sheet_, rowOf(row), columnOf(column), number.value,
                                       formatOf(isBold, shownDecimals(number))),
              "row " + std::to_string(row));
        widen(column, numberText(number, numbers_).size());
    }

    void writePicture(std::size_t row, std::size_t column, const Picture& picture) {
        const double side = picture.png == nullptr ? 0 : sideOf(*picture.png);
        if (side == 0) {
            return;
        }
        std::string noDescription;
        lxw_image_options options = {};
        options.x_offset = options.y_offset = 1;
        options.x_scale = options.y_scale = std::min(1.0, kPictureSide / side);
        options.object_position = LXW_OBJECT_MOVE_AND_SIZE;
        options.description = noDescription.data();
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the library's own byte type
        const auto* const bytes = reinterpret_cast<const unsigned char*>(picture.png->data());
        check(::worksheet_insert_image_buffer_opt(sheet_, rowOf(row), columnOf(column), bytes,
                                                  picture.png->size(), &options),
              "the picture in row " + std::to_string(row));
    }

    void writeHeader() {
        widths_.assign(shownColumns(), kNarrowest);
        for (std::size_t column = 0; column < shownColumns(); ++column) {
            const std::string caption = captionOf(column);
            writeText(0, column, caption, /*isBold=*/true);
            widen(column, widthOf(caption) + kFilterButton);
        }
    }

    void writeRow(std::size_t index) {
        const PartsRow& row = list_.rows[index];
        bool hasPicture = false;
        for (std::size_t column = 0; column < row.cells.size(); ++column) {
            const Cell& cell = row.cells[column];
            if (const auto* const number = std::get_if<Number>(&cell)) {
                writeNumber(index + 1, column, *number, /*isBold=*/false);
            } else if (const auto* const picture = std::get_if<Picture>(&cell)) {
                writePicture(index + 1, column, *picture);
                hasPicture = true;
            } else if (const std::string text = cellText(cell, numbers_); !text.empty()) {
                writeText(index + 1, column, text, /*isBold=*/false);
            }
        }
        if (!remarks_[index].empty()) {
            writeText(index + 1, row.cells.size(), remarks_[index], /*isBold=*/false);
        }
        if (hasPicture) {
            check(::worksheet_set_row(sheet_, rowOf(index + 1), kPictureRow, nullptr),
                  "row " + std::to_string(index + 1));
        }
    }

    void writeTotals() {
        bool hasTotal = false;
        std::size_t markers = shownColumns();
        for (std::size_t column = 0; column < list_.columns.size() && !list_.rows.empty();
             ++column) {
            if (const std::optional<ColumnTotal> total = totalOf(list_, column)) {
                writeTotal(column, *total, markers);
                hasTotal = true;
            }
        }
        if (hasTotal && !totalOf(list_, 0)) {
            writeText(list_.rows.size() + 1, 0,
                      list_.totals.isUnmeasured ? "Total (at least)" : "Total",
                      /*isBold=*/true);
        }
    }

    void writeTotal(std::size_t column, const ColumnTotal& total, std::size_t& markers) {
        const std::size_t row = list_.rows.size() + 1;
        const auto field = list_.columns[column].column.field;
        const Number number{.value = total.value,
                            .decimals = field == Field::Quantity ? kWhole : kSignificant};
        if (total.isCounted.empty()) {
            writeNumber(row, column, number, /*isBold=*/true);
            return;
        }
        std::string formula = "=SUBTOTAL(109," + rangeOf(column) + ")";
        if (!total.isOfAllRows) {
            formula = "=SUMIF(" + rangeOf(markers) + ",1," + rangeOf(column) + ")";
            writeMarkers(markers++, total.isCounted);
        }
        check(::worksheet_write_formula_num(sheet_, rowOf(row), columnOf(column), formula.c_str(),
                                            formatOf(/*isBold=*/true, shownDecimals(number)),
                                            total.value),
              "the totals");
        widen(column, numberText(number, numbers_).size());
    }

    /// A hidden column that says which rows are in a total.
    void writeMarkers(std::size_t column, const std::vector<bool>& isCounted) {
        for (std::size_t row = 0; row < isCounted.size(); ++row) {
            check(::worksheet_write_number(sheet_, rowOf(row + 1), columnOf(column),
                                           isCounted[row] ? 1 : 0, nullptr),
                  "the totals");
        }
        lxw_row_col_options hidden = {};
        hidden.hidden = LXW_TRUE;
        check(::worksheet_set_column_opt(sheet_, columnOf(column), columnOf(column),
                                         LXW_DEF_COL_WIDTH, nullptr, &hidden),
              "the totals");
    }

    /// The cells of a column, as in "C2:C9".
    std::string rangeOf(std::size_t column) const {
        std::array<char, LXW_MAX_CELL_RANGE_LENGTH> text = {};
        ::lxw_rowcol_to_range(text.data(), rowOf(1), columnOf(column), rowOf(list_.rows.size()),
                              columnOf(column));
        return text.data();
    }

    /// All cells below the header, as in "A2:F9".
    std::string rangeOfRows() const {
        std::array<char, LXW_MAX_CELL_RANGE_LENGTH> text = {};
        ::lxw_rowcol_to_range(text.data(), rowOf(1), columnOf(0),
                              rowOf(std::max<std::size_t>(list_.rows.size(), 1)),
                              columnOf(shownColumns() - 1));
        return text.data();
    }

    void setColumns() {
        for (std::size_t column = 0; column < widths_.size(); ++column) {
            const bool isPicture = column < list_.columns.size() &&
                                   list_.columns[column].column.field == Field::Thumbnail;
            const auto width = static_cast<double>(std::min(widths_[column], kWidest));
            check(::worksheet_set_column(sheet_, columnOf(column), columnOf(column),
                                         isPicture ? std::max(kPictureWidth, width) : width + 1,
                                         nullptr),
                  "the columns");
        }
        ::worksheet_freeze_panes(sheet_, 1, 0);
        if (!list_.columns.empty()) {
            check(::worksheet_autofilter(sheet_, 0, 0, rowOf(list_.rows.size()),
                                         columnOf(shownColumns() - 1)),
                  "the filter");
            // Part numbers of digits are texts on purpose, which needs no mark in each cell.
            check(::worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT,
                                            rangeOfRows().c_str()),
                  "the columns");
        }
    }

    /// Printed sheets have all columns, and the header on each.
    void setPages() {
        ::worksheet_set_landscape(sheet_);
        ::worksheet_fit_to_pages(sheet_, /*width=*/1, /*height=*/0);
        check(::worksheet_repeat_rows(sheet_, 0, 0), "the pages");
    }

    std::string close() {
        check(::workbook_close(book_.release()), "the file");
        std::ifstream stream(file_, std::ios::binary);
        std::string bytes{std::istreambuf_iterator<char>(stream), {}};
        if (bytes.empty()) {
            throw XlsxError("XLSX cannot be written: the temporary file cannot be read");
        }
        return bytes;
    }

    void widen(std::size_t column, std::size_t width) {
        widths_[column] = std::max(widths_[column], width);
    }

    static lxw_row_t rowOf(std::size_t row) { return static_cast<lxw_row_t>(row); }
    static lxw_col_t columnOf(std::size_t column) { return static_cast<lxw_col_t>(column); }

    static constexpr int kNoNumber = -1;

    const PartsList& list_;
    const NumberFormat& numbers_;
    std::vector<std::string> remarks_;  ///< one for each row
    bool hasRemarks_;
    TemporaryFolder folder_;
    fs::path file_;
    std::unique_ptr<lxw_workbook, CloseWorkbook> book_;
    lxw_worksheet* sheet_ = nullptr;
    std::map<std::pair<bool, int>, lxw_format*> formats_;
    std::vector<std::size_t> widths_;  ///< characters
};

}  // namespace

std::string xlsxOf(const PartsList& list, const NumberFormat& numbers) {
    return XlsxWriter(list, numbers).bytes();
}

}  // namespace parts
