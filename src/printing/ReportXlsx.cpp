#include "printing/ReportFiles.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <system_error>
#include <utility>
#include <xlsxwriter.h>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestSheetName = 31; // letters
constexpr std::size_t kLongestCell = 32767;
constexpr double kWidestColumn = 60;
constexpr double kSecondsPerDay = 86400;

std::size_t lengthOf(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

std::string shortened(std::string text, std::size_t letters) {
  std::size_t at = 0;
  for (std::size_t count = 0; at < text.size(); ++at) {
    if ((static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80 && count++ == letters)
      break;
  }
  text.resize(at);
  return text;
}

// A folder of its own for the temporary files, removed with them.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::error_code failed;
    std::string name = (fs::temp_directory_path(failed) / "hooptab-XXXXXX").string();
    if (!failed && ::mkdtemp(name.data()) != nullptr)
      m_path = name;
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    if (!m_path.empty())
      fs::remove_all(m_path, ignored);
  }
  const std::string& path() const { return m_path; }

 private:
  std::string m_path;
};

// A sheet takes no name twice, whatever the letter case, and none of a few letters.
class SheetNames {
 public:
  std::string next(std::string name) {
    for (char& letter : name) {
      if (std::string_view("[]:*?/\\'").find(letter) != std::string_view::npos ||
          static_cast<unsigned char>(letter) < ' ')
        letter = '-';
    }
    name = shortened(std::move(name), kLongestSheetName);
    if (name.empty())
      name = "-";
    std::string unique = name;
    for (int number = 2; !m_taken.insert(inSmallLetters(unique)).second; ++number) {
      const std::string suffix = " " + std::to_string(number);
      unique = shortened(name, kLongestSheetName - suffix.size()) + suffix;
    }
    return unique;
  }

 private:
  static std::string inSmallLetters(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return text;
  }
  std::set<std::string> m_taken;
};

class Workbook {
 public:
  Workbook(const std::string& path, std::string temporary) : m_temporary(std::move(temporary)) {
    lxw_workbook_options options = {};
    options.tmpdir = m_temporary.data();
    m_book = workbook_new_opt(path.c_str(), &options);
    if (m_book == nullptr)
      return;
    for (const bool isPale : {false, true}) {
      for (const bool isStrong : {false, true})
        m_formats[isPale ? 1 : 0][isStrong ? 1 : 0] = {
            format(isStrong, nullptr, isPale), format(isStrong, "0.0", isPale),
            format(isStrong, "0.00", isPale), format(isStrong, "0.0%", isPale),
            format(isStrong, "[mm]:ss", isPale)};
    }
    m_head = format(true, nullptr);
    format_set_bottom(m_head, LXW_BORDER_THIN);
    m_group = format(true, nullptr);
    format_set_align(m_group, LXW_ALIGN_CENTER);
  }
  ~Workbook() { lxw_workbook_free(m_book); } // which closing has done
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  // Cancelled, it stops in the middle: the workbook must not be used then.
  // `about` stands above the table: what it is of.
  void add(const ReportTable& table, const std::string& about, const TaskWatch& watch) {
    if (m_book == nullptr)
      return;
    m_sheet = workbook_add_worksheet(m_book, m_names.next(table.title).c_str());
    if (m_sheet == nullptr) {
      m_isGood = false;
      return;
    }
    lxw_row_t head = 0;
    if (!about.empty())
      addText(head++, 0, about, m_formats[0][1].plain);
    if (!table.groups.empty())
      addGroups(head++, table);
    for (std::size_t i = 0; i < table.columns.size(); ++i)
      addText(head, i, table.columns[i].header, m_head);
    for (std::size_t row = 0; row < table.rows.size() && !watch.isCancelled(); ++row) {
      addRow(head + 1 + static_cast<lxw_row_t>(row), table.rows[row]);
      watch.advance();
    }
    if (watch.isCancelled())
      return;
    setWidths(table);
    std::size_t repeated = 0;
    while (repeated < table.columns.size() && table.columns[repeated].isRepeated)
      ++repeated;
    worksheet_freeze_panes(m_sheet, head + 1, static_cast<lxw_col_t>(repeated));
    worksheet_repeat_rows(m_sheet, 0, head);
    worksheet_set_landscape(m_sheet);
    worksheet_fit_to_pages(m_sheet, 1, 0);
  }
  // The score at each of its changes, and the difference as a chart beside it.
  void add(const FlowDrawing& drawing, const std::string& title) {
    m_sheet = m_book == nullptr ? nullptr : workbook_add_worksheet(m_book, m_names.next(title).c_str());
    if (m_sheet == nullptr) {
      m_isGood = false;
      return;
    }
    std::size_t column = 0;
    for (const std::string& head : {drawing.timeWords, drawing.teams[Side::Visitor],
                                    drawing.teams[Side::Home], drawing.differenceWords})
      addText(0, column++, head, m_head);
    lxw_row_t row = 1;
    const bool hasTime = drawing.flow.hasTime;
    const auto add = [&](int at, const PerSide<int>& score) {
      const auto& formats = m_formats[0][0];
      addNumber(row, 0, hasTime ? at / kSecondsPerDay : at, hasTime ? formats.time : formats.plain);
      addNumber(row, 1, score[Side::Visitor], formats.plain);
      addNumber(row, 2, score[Side::Home], formats.plain);
      addNumber(row++, 3, score[Side::Visitor] - score[Side::Home], formats.plain);
    };
    add(0, {});
    for (const MarginFlow::Step& step : drawing.flow.steps)
      add(step.at, step.score);
    worksheet_freeze_panes(m_sheet, 1, 0);
    addChart(drawing.differenceWords, row - 1, hasTime);
  }
  // Writes it; false when it could not be.
  bool close() {
    return m_book != nullptr && workbook_close(std::exchange(m_book, nullptr)) == LXW_NO_ERROR && m_isGood;
  }

 private:
  struct Formats {
    lxw_format* plain = nullptr;
    lxw_format* oneDecimal = nullptr;
    lxw_format* twoDecimals = nullptr;
    lxw_format* percent = nullptr;
    lxw_format* time = nullptr;
  };
  // The fourth column over the first, down to that row.
  void addChart(const std::string& title, lxw_row_t last, bool hasTime) {
    lxw_chart* chart = workbook_add_chart(m_book, LXW_CHART_SCATTER_STRAIGHT);
    lxw_chart_series* series = chart_add_series(chart, nullptr, nullptr);
    chart_series_set_categories(series, m_sheet->name, 1, 0, last, 0);
    chart_series_set_values(series, m_sheet->name, 1, 3, last, 3);
    chart_title_set_name(chart, title.c_str());
    chart_legend_set_position(chart, LXW_CHART_LEGEND_NONE);
    if (hasTime)
      chart_axis_set_num_format(chart->x_axis, "[mm]:ss");
    constexpr lxw_col_t kBeside = 5;
    m_isGood = worksheet_insert_chart(m_sheet, 1, kBeside, chart) == LXW_NO_ERROR && m_isGood;
  }
  lxw_format* format(bool isBold, const char* number, bool isPale = false) {
    constexpr lxw_color_t kGrey = 0x6B6B6B;
    lxw_format* result = workbook_add_format(m_book);
    if (isPale)
      format_set_font_color(result, kGrey);
    if (isBold)
      format_set_bold(result);
    if (number != nullptr)
      format_set_num_format(result, number);
    return result;
  }
  // As many decimals as are shown everywhere else; the exact number stays behind them.
  static lxw_format* numberFormat(const Formats& formats, const std::string& text) {
    const std::size_t point = text.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return decimals == 0 ? formats.plain : decimals == 1 ? formats.oneDecimal : formats.twoDecimals;
  }
  // Always as text: a name that begins with "=" is no formula.
  void addText(lxw_row_t row, std::size_t column, const std::string& text, lxw_format* format) {
    const lxw_error error = worksheet_write_string(m_sheet, row, static_cast<lxw_col_t>(column),
                                                   shortened(text, kLongestCell).c_str(), format);
    m_isGood = m_isGood && error == LXW_NO_ERROR;
  }
  void addNumber(lxw_row_t row, std::size_t column, double number, lxw_format* format) {
    const lxw_error error =
        worksheet_write_number(m_sheet, row, static_cast<lxw_col_t>(column), number, format);
    m_isGood = m_isGood && error == LXW_NO_ERROR;
  }
  void addGroups(lxw_row_t row, const ReportTable& table) {
    std::size_t first = 0;
    for (const ReportColumnGroup& group : table.groups) {
      const std::size_t last = first + group.columns - 1;
      if (!group.title.empty() && group.columns > 1)
        worksheet_merge_range(m_sheet, row, static_cast<lxw_col_t>(first), row, static_cast<lxw_col_t>(last),
                              group.title.c_str(), m_group);
      else
        addText(row, first, group.title, m_group);
      first += group.columns;
    }
  }
  void addRow(lxw_row_t row, const ReportRow& cells) {
    for (std::size_t i = 0; i < cells.cells.size(); ++i) {
      const ReportCell& cell = cells.cells[i];
      const bool isStrong = cells.emphasis != ReportRow::Emphasis::None || cell.isStrong;
      const Formats& formats = m_formats[cells.isPale ? 1 : 0][isStrong ? 1 : 0];
      switch (cell.kind) {
      case ReportCell::Kind::Text: addText(row, i, cell.text, formats.plain); break;
      case ReportCell::Kind::Number: addNumber(row, i, cell.value, numberFormat(formats, cell.text)); break;
      case ReportCell::Kind::Percent: addNumber(row, i, cell.value, formats.percent); break;
      case ReportCell::Kind::Time: addNumber(row, i, cell.value / kSecondsPerDay, formats.time); break;
      }
    }
  }
  void setWidths(const ReportTable& table) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      std::size_t longest = lengthOf(table.columns[i].header);
      for (const ReportRow& row : table.rows) {
        if (!row.isNote)
          longest = std::max(longest, lengthOf(row.cells[i].text));
      }
      const auto column = static_cast<lxw_col_t>(i);
      worksheet_set_column(m_sheet, column, column,
                           std::min(static_cast<double>(longest) + 1.5, kWidestColumn), nullptr);
    }
  }

  std::string m_temporary;
  lxw_workbook* m_book = nullptr;
  lxw_worksheet* m_sheet = nullptr;
  Formats m_formats[2][2]; // of usual and of pale rows, plain and strong
  lxw_format* m_head = nullptr;
  lxw_format* m_group = nullptr;
  SheetNames m_names;
  bool m_isGood = true;
};

} // namespace

std::optional<std::string> reportXlsx(const Report& report, const TaskWatch& watch) {
  const ScratchFolder scratch;
  if (scratch.path().empty())
    return std::nullopt;
  std::size_t rows = 0;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block))
      rows += table->rows.size();
  }
  watch.progress(0, rows);
  const std::string path = scratch.path() + "/report.xlsx";
  Workbook book(path, scratch.path());
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block); table != nullptr && !watch.isCancelled())
      book.add(*table, report.subject, watch);
    const auto* picture = std::get_if<ReportPicture>(&block);
    const auto* flow = picture == nullptr ? nullptr : std::get_if<FlowDrawing>(&picture->drawing);
    if (flow != nullptr && flow->emptyWords.empty() && !watch.isCancelled())
      book.add(*flow, picture->title);
  }
  if (watch.isCancelled() || !book.close())
    return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return file.bad() || bytes.empty() ? std::nullopt : std::optional(std::move(bytes));
}

} // namespace hooptab
