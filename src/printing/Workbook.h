// A spreadsheet workbook while it is being made: a sheet for each table, for the flow of a game, or for all
// that one page of paper has. Numbers, percentages and times are written as such; what is to be seen at a
// glance gets a chart beside it. Which sheets there are is for whoever fills it.
#pragma once

#include "report/Report.h"
#include "storage/TaskWatch.h"

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>
#include <xlsxwriter.h>

namespace hooptab {

// A folder of its own for the temporary files, removed with them.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();
  const std::string& path() const { return m_path; } // empty: none could be made

 private:
  std::string m_path;
};

class Workbook {
 public:
  Workbook();
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  // `about` stands above the table: what it is of. Cancelled, it stops in the middle: the workbook must not
  // be used then. Each row is told to the watch.
  void add(const ReportTable& table, const std::string& about, const TaskWatch& watch);
  // The score at each of its changes, and the difference as a chart beside it.
  void add(const FlowDrawing& drawing, const std::string& title);
  // The paragraphs and tables of a report of one page below each other, on one sheet of that name.
  void addPage(const Report& report, const std::string& name);
  // The whole file; nothing when it could not be written.
  [[nodiscard]] std::optional<std::string> close();

 private:
  struct Formats {
    lxw_format* plain = nullptr;
    lxw_format* oneDecimal = nullptr;
    lxw_format* twoDecimals = nullptr;
    lxw_format* percent = nullptr;
    lxw_format* time = nullptr;
  };
  struct Chart {
    lxw_chart* chart = nullptr;
    lxw_row_t row = 0;
  };
  // A sheet takes no name twice, whatever the letter case, and none of a few letters.
  [[nodiscard]] std::string sheetName(std::string name);
  bool beginSheet(const std::string& name);
  void endSheet();
  // Its groups, head and rows from that row on; the row behind them.
  lxw_row_t addTable(const ReportTable& table, lxw_row_t row, const TaskWatch& watch);
  void addGroups(lxw_row_t row, const ReportTable& table);
  void addRow(lxw_row_t row, const ReportRow& cells);
  void addText(lxw_row_t row, std::size_t column, const std::string& text, lxw_format* format);
  void addNumber(lxw_row_t row, std::size_t column, double number, lxw_format* format);
  void measure(const ReportTable& table);
  void addChart(const ReportTable& table, lxw_row_t head);
  void addFlowChart(const std::string& title, lxw_row_t last, bool hasTime);
  lxw_format* format(bool isBold, const char* number, bool isPale = false);

  ScratchFolder m_scratch;
  std::string m_temporary; // of the library, which keeps a pointer to it
  lxw_workbook* m_book = nullptr;
  lxw_worksheet* m_sheet = nullptr;
  std::vector<std::size_t> m_widths;                    // letters of the sheet's columns
  std::vector<Chart> m_charts;                          // of the sheet, placed once its columns are known
  std::array<std::array<Formats, 2>, 2> m_formats = {}; // of usual and of pale rows, plain and strong
  lxw_format* m_head = nullptr;
  lxw_format* m_group = nullptr;
  std::set<std::string> m_taken; // names of sheets, in small letters
  bool m_isGood = true;
};

} // namespace hooptab
