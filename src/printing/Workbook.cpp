#include "printing/Workbook.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

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

std::string inSmallLetters(std::string text) {
  std::ranges::transform(text, text.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text;
}

} // namespace

ScratchFolder::ScratchFolder() {
  std::error_code failed;
  std::string name = (fs::temp_directory_path(failed) / "hooptab-XXXXXX").string();
  if (!failed && ::mkdtemp(name.data()) != nullptr)
    m_path = name;
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  if (!m_path.empty())
    fs::remove_all(m_path, ignored);
}

Workbook::Workbook() : m_temporary(m_scratch.path()) {
  if (m_temporary.empty())
    return;
  lxw_workbook_options options = {};
  options.tmpdir = m_temporary.data();
  m_book = workbook_new_opt((m_scratch.path() + "/report.xlsx").c_str(), &options);
  if (m_book == nullptr)
    return;
  for (const bool isPale : {false, true}) {
    for (const bool isStrong : {false, true})
      m_formats.at(isPale ? 1 : 0).at(isStrong ? 1 : 0) = {
          format(isStrong, nullptr, isPale), format(isStrong, "0.0", isPale),
          format(isStrong, "0.00", isPale), format(isStrong, "0.0%", isPale),
          format(isStrong, "[mm]:ss", isPale)};
  }
  m_head = format(true, nullptr);
  format_set_bottom(m_head, LXW_BORDER_THIN);
  m_group = format(true, nullptr);
  format_set_align(m_group, LXW_ALIGN_CENTER);
}

Workbook::~Workbook() {
  lxw_workbook_free(m_book); // which closing has done
}

std::string Workbook::sheetName(std::string name) {
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

bool Workbook::beginSheet(const std::string& name) {
  m_sheet = m_book == nullptr ? nullptr : workbook_add_worksheet(m_book, sheetName(name).c_str());
  m_isGood = m_isGood && m_sheet != nullptr;
  m_widths.clear();
  m_charts.clear();
  return m_sheet != nullptr;
}

// Columns as wide as what they hold, charts at the right of them, the sheet as wide as a page.
void Workbook::endSheet() {
  for (std::size_t i = 0; i < m_widths.size(); ++i)
    worksheet_set_column(m_sheet, static_cast<lxw_col_t>(i), static_cast<lxw_col_t>(i),
                         std::min(static_cast<double>(m_widths[i]) + 1.5, kWidestColumn), nullptr);
  for (const Chart& chart : m_charts)
    m_isGood = worksheet_insert_chart(m_sheet, chart.row, static_cast<lxw_col_t>(m_widths.size() + 1),
                                      chart.chart) == LXW_NO_ERROR &&
               m_isGood;
  worksheet_set_landscape(m_sheet);
  worksheet_fit_to_pages(m_sheet, 1, 0);
}

void Workbook::add(const ReportTable& table, const std::string& about, const TaskWatch& watch) {
  if (!beginSheet(table.title))
    return;
  lxw_row_t row = 0;
  if (!about.empty())
    addText(row++, 0, about, m_formats[0][1].plain);
  const lxw_row_t head = row + (table.groups.empty() ? 0 : 1);
  addTable(table, row, watch);
  if (watch.isCancelled())
    return;
  std::size_t repeated = 0;
  while (repeated < table.columns.size() && table.columns[repeated].isRepeated)
    ++repeated;
  worksheet_freeze_panes(m_sheet, head + 1, static_cast<lxw_col_t>(repeated));
  worksheet_repeat_rows(m_sheet, 0, head);
  endSheet();
}

void Workbook::add(const FlowDrawing& drawing, const std::string& title) {
  if (!beginSheet(title))
    return;
  std::size_t column = 0;
  for (const std::string& head :
       {drawing.timeWords, drawing.teams[Side::Visitor], drawing.teams[Side::Home], drawing.differenceWords})
    addText(0, column++, head, m_head);
  lxw_row_t row = 1;
  const bool hasTime = drawing.flow.hasTime;
  const auto add = [&](int at, const PerSide<int>& score) {
    const Formats& formats = m_formats[0][0];
    addNumber(row, 0, hasTime ? at / kSecondsPerDay : at, hasTime ? formats.time : formats.plain);
    addNumber(row, 1, score[Side::Visitor], formats.plain);
    addNumber(row, 2, score[Side::Home], formats.plain);
    addNumber(row++, 3, score[Side::Visitor] - score[Side::Home], formats.plain);
  };
  add(0, {});
  for (const MarginFlow::Step& step : drawing.flow.steps)
    add(step.at, step.score);
  worksheet_freeze_panes(m_sheet, 1, 0);
  addFlowChart(drawing.differenceWords, row - 1, hasTime);
}

void Workbook::addPage(const Report& report, const std::string& name) {
  if (!beginSheet(name))
    return;
  lxw_row_t row = 0;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* paragraph = std::get_if<ReportParagraph>(&block)) {
      const bool isHeading = paragraph->style == ReportParagraph::Style::Heading;
      addText(row++, 0, paragraph->text, m_formats[0][isHeading ? 1 : 0].plain);
    } else if (const auto* table = std::get_if<ReportTable>(&block)) {
      addText(++row, 0, table->title, m_formats[0][1].plain);
      row = addTable(*table, row + 1, {}) + 1;
    }
  }
  endSheet();
}

std::optional<std::string> Workbook::close() {
  if (m_book == nullptr || workbook_close(std::exchange(m_book, nullptr)) != LXW_NO_ERROR || !m_isGood)
    return std::nullopt;
  std::ifstream file(m_scratch.path() + "/report.xlsx", std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return file.bad() || bytes.empty() ? std::nullopt : std::optional(std::move(bytes));
}

lxw_row_t Workbook::addTable(const ReportTable& table, lxw_row_t row, const TaskWatch& watch) {
  if (!table.groups.empty())
    addGroups(row++, table);
  const lxw_row_t head = row++;
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    addText(head, i, table.columns[i].header, m_head);
  for (const ReportRow& cells : table.rows) {
    if (watch.isCancelled())
      return row;
    addRow(row++, cells);
    watch.advance();
  }
  measure(table);
  if (table.chart)
    addChart(table, head);
  return row;
}

// A series is a row, its name in the first column; or a column, its name its head.
void Workbook::addChart(const ReportTable& table, lxw_row_t head) {
  const ReportChart& drawn = *table.chart;
  lxw_chart* chart = workbook_add_chart(m_book, LXW_CHART_COLUMN);
  const auto first = static_cast<lxw_col_t>(drawn.firstColumn);
  const auto last = static_cast<lxw_col_t>(drawn.firstColumn + drawn.columns - 1);
  const auto rows = static_cast<lxw_row_t>(table.rows.size());
  const auto series = [&](lxw_row_t nameRow, lxw_col_t nameColumn, lxw_row_t top, lxw_col_t left,
                          lxw_row_t bottom, lxw_col_t right) {
    lxw_chart_series* added = chart_add_series(chart, nullptr, nullptr);
    chart_series_set_name_range(added, m_sheet->name, nameRow, nameColumn);
    chart_series_set_values(added, m_sheet->name, top, left, bottom, right);
    return added;
  };
  if (drawn.rowsAreSeries) {
    for (lxw_row_t row = head + 1; row <= head + rows; ++row)
      chart_series_set_categories(series(row, 0, row, first, row, last), m_sheet->name, head, first, head,
                                  last);
  } else {
    for (lxw_col_t column = first; column <= last; ++column)
      chart_series_set_categories(series(head, column, head + 1, column, head + rows, column), m_sheet->name,
                                  head + 1, 0, head + rows, 0);
  }
  chart_title_set_name(chart, drawn.title.c_str());
  chart_legend_set_position(chart, drawn.rowsAreSeries ? LXW_CHART_LEGEND_BOTTOM : LXW_CHART_LEGEND_NONE);
  m_charts.push_back({chart, head});
}

// The fourth column over the first, down to that row.
void Workbook::addFlowChart(const std::string& title, lxw_row_t last, bool hasTime) {
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

lxw_format* Workbook::format(bool isBold, const char* number, bool isPale) {
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

// Always as text: a name that begins with "=" is no formula.
void Workbook::addText(lxw_row_t row, std::size_t column, const std::string& text, lxw_format* format) {
  const lxw_error error = worksheet_write_string(m_sheet, row, static_cast<lxw_col_t>(column),
                                                 shortened(text, kLongestCell).c_str(), format);
  m_isGood = m_isGood && error == LXW_NO_ERROR;
}

void Workbook::addNumber(lxw_row_t row, std::size_t column, double number, lxw_format* format) {
  const lxw_error error =
      worksheet_write_number(m_sheet, row, static_cast<lxw_col_t>(column), number, format);
  m_isGood = m_isGood && error == LXW_NO_ERROR;
}

void Workbook::addGroups(lxw_row_t row, const ReportTable& table) {
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

void Workbook::addRow(lxw_row_t row, const ReportRow& cells) {
  // As many decimals as are shown everywhere else; the exact number stays behind them.
  const auto numberFormat = [](const Formats& formats, const std::string& text) {
    const std::size_t point = text.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    return decimals == 0 ? formats.plain : decimals == 1 ? formats.oneDecimal : formats.twoDecimals;
  };
  for (std::size_t i = 0; i < cells.cells.size(); ++i) {
    const ReportCell& cell = cells.cells[i];
    const bool isStrong = cells.emphasis != ReportRow::Emphasis::None || cell.isStrong;
    const Formats& formats = m_formats.at(cells.isPale ? 1 : 0).at(isStrong ? 1 : 0);
    switch (cell.kind) {
    case ReportCell::Kind::Text: addText(row, i, cell.text, formats.plain); break;
    case ReportCell::Kind::Number: addNumber(row, i, cell.value, numberFormat(formats, cell.text)); break;
    case ReportCell::Kind::Percent: addNumber(row, i, cell.value, formats.percent); break;
    case ReportCell::Kind::Time: addNumber(row, i, cell.value / kSecondsPerDay, formats.time); break;
    }
  }
}

void Workbook::measure(const ReportTable& table) {
  m_widths.resize(std::max(m_widths.size(), table.columns.size()));
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    m_widths[i] = std::max(m_widths[i], lengthOf(table.columns[i].header));
    for (const ReportRow& row : table.rows) {
      if (!row.isNote)
        m_widths[i] = std::max(m_widths[i], lengthOf(row.cells[i].text));
    }
  }
}

} // namespace hooptab
