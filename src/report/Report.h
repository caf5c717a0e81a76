// A report as it is meant: a title and a sequence of paragraphs, sentences, tables, pictures, lines to write
// on and page breaks. The screen, the printer, PDF files and the exports are all made from it. Knows no page,
// no font and no file format.
#pragma once

#include "court/CourtGeometry.h"
#include "forms/FormLayout.h"
#include "insight/FlowDrawing.h"
#include "scorecard/ShotChart.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace hooptab {

struct ReportCell {
  enum class Kind : std::uint8_t { Text, Number, Percent, Time };

  std::string text; // as it is shown
  Kind kind = Kind::Text;
  double value = 0; // of a number; of a percentage 0.5 for 50 %; of a time its seconds
  bool isStrong = false;
};
[[nodiscard]] ReportCell textCell(std::string text);
[[nodiscard]] ReportCell numberCell(int number);

struct ReportColumn {
  std::string header;         // short, as on screen
  std::string name;           // unique in its table, for files
  std::string words = {};     // what it holds, where the header is a code
  bool isLeftAligned = false; // else at the right, as numbers
  bool isRepeated = false;    // stands on every part of a table that is too wide for the page
  bool isCentred = false;     // on paper, whatever isLeftAligned says
};

// Columns that belong together, under a title of their own; they stay on one part of a wide table.
struct ReportColumnGroup {
  std::string title; // may be empty
  std::size_t columns = 0;
  bool isUnused = false; // all of it 0: left out on paper, where room is dear
};

struct ReportRow {
  enum class Emphasis : std::uint8_t { None, Highlighted, Total };

  std::vector<ReportCell> cells; // as many as the table has columns
  Emphasis emphasis = Emphasis::None;
  bool beginsSection = false; // a line above it
  bool isNote = false;        // the text of its second cell runs on over all others
  bool isPale = false;        // says little: in grey
};

// The columns of numbers that a workbook draws beside a table, over what stands in its first column.
struct ReportChart {
  std::string title;
  std::size_t firstColumn = 0;
  std::size_t columns = 1;
  bool rowsAreSeries =
      false; // each row named by its first column, over the heads; else each column by its head
};

// A team's abbreviation on its colour.
struct ReportTag {
  std::string words;
  std::uint32_t colour = 0; // red + 256 * green + 65536 * blue
};

struct ReportTable {
  std::string title;
  std::vector<ReportColumn> columns;
  std::vector<ReportColumnGroup> groups; // of all columns, in their order; or none
  std::vector<ReportRow> rows;
  bool standsBeside = false;         // to the right of the block before it, where there is room
  bool isInGrid = false;             // one of many of a kind, that stand beside each other in equal widths
  bool isSummary = false;            // one of the small tables beside what the report is about
  bool isRanked = false;             // the best rows stand first, so that the others can be left out
  bool areTiles = false;             // each cell of its one row large, the head below it
  std::optional<ReportTag> tag = {}; // before the title
  std::string note = {};             // behind the title
  std::optional<ReportChart> chart = {};
};

struct ReportParagraph {
  enum class Style : std::uint8_t { Heading, Body, Note };
  Style style = Style::Body;
  std::string text;
  std::string beside = {}; // smaller behind a heading, at the right edge of other paragraphs
};

// Sentences that stand out, each by itself.
struct ReportSentences {
  struct Part {
    std::string text;
    bool isStrong = false;
    friend bool operator==(const Part&, const Part&) = default;
  };
  std::string title;
  std::string note = {}; // behind it
  std::vector<std::vector<Part>> sentences;
};

// Lines to write on, as many as a report of one page has room for.
struct ReportRuledLines {
  std::string title;
};

// The half court with shots, or with sums by zone; one of the two lists is empty.
struct ShotDrawing {
  struct Mark {
    court::Place place;
    bool isMade = false;
  };
  std::vector<Mark> marks;
  std::vector<ZoneWords> zones;
  // Of each zone, how far its percentage is from the one that it is compared with, in percentage points: they
  // are tinted by it, with a legend. Empty: tinted by their attempts.
  std::vector<double> differences = {};
  // Each zone is a circle instead, the larger the more attempts, and its difference one of points per shot:
  // blue above 0, orange with a broken edge below, white at 0.
  bool areCircles = false;

  // Of the tints of its zones.
  [[nodiscard]] bool hasLegend() const { return !differences.empty() && !areCircles; }
};

// Values over an axis, each line from left to right.
struct LineDrawing {
  struct Line {
    std::string name;
    std::vector<std::array<double, 2>> points;
  };
  struct Tick {
    double at = 0;
    std::string text;
  };
  std::vector<Line> lines;
  std::vector<Tick> ticks; // of the horizontal axis, the first one at its begin, the last one at its end
};

struct ReportPicture {
  std::string title;
  std::variant<ShotDrawing, LineDrawing, FlowDrawing> drawing;
  std::string caption = {};
  bool standsBeside = false;
  std::optional<ReportTag> tag = {}; // in place of the title, on a report of one page
  std::string note = {};             // behind it
};

struct ReportPageBreak {};

// A paper input form: a page of its own.
struct FormSheet {
  FormIdentifier identifier;
  std::string title;
  std::string hint;
  std::string sheet;  // "Sheet 1 of 4"
  std::string blanks; // what is to be written by hand, behind the title
  std::string made;   // heads of the cells for shots
  std::string missed;
  std::array<std::string, FormLayout::kPlayers> names;   // empty: to be written by hand
  std::array<std::string, FormLayout::kPlayers> jerseys; // whose digits are filled in
};

using ReportBlock = std::variant<ReportParagraph, ReportSentences, ReportTable, ReportPicture,
                                 ReportRuledLines, ReportPageBreak, FormSheet>;

struct Report {
  std::string title;
  std::string subject;    // which game or team it is about, for the head of each page
  std::string pageWords;  // "Page XXX of YYY"
  std::string fileName;   // proposed for files made of it, without ending
  bool isOnePage = false; // whatever it holds stands on one upright page, a heading first
  std::vector<ReportBlock> blocks;
};

} // namespace hooptab
