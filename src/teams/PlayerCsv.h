// Players as a table of text, for spreadsheets: number, position, name, height, weight, age, grade. Reads
// what people have (comma, semicolon or tab; quoted fields; with or without a header row in either language)
// and names each row that it leaves out. A first and a last name in two columns are put together. Works on
// UTF-8 text; knows no file and no window.
#pragma once

#include "settings/Texts.h"
#include "teams/TeamStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct CsvProblem {
  enum class Kind {
    IncompleteHeader, // the whole table is left out
    TooManyRows,      // so are this row and all behind it
    OpenQuote,
    NoJersey,
    UnknownPosition,
    NoName,
    NumberAgain,
    NumberWrittenOtherwise,
    TooLong,
  };
  int line = 0; // of the text, from 1, where the row begins
  Kind kind = Kind::NoName;
  std::string detail; // the value that is wrong, of too many rows how many are taken; of others empty
};

struct CsvPlayers {
  // Which columns the table has; what it lacks, a player who is there already keeps.
  bool hasPosition = false, hasHeight = false, hasWeight = false, hasAge = false, hasGrade = false;
  std::vector<TeamPlayer> players; // the good rows, in their order
  std::vector<CsvProblem> problems;
};

// A row is left out when its number is no jersey (1171), its position is unknown, its name is empty (1173),
// its number stands in an earlier good row, be it written otherwise ("5" and "05"), or its record would not
// fit. An empty position is N/A. Positions are names or first letters in either language, the usual
// abbreviations (C, F, G, PF, SF, PG, SG) or the index, whatever the letter case. Empty rows are passed over.
// Cells that were disarmed for spreadsheets are read as what they held.
[[nodiscard]] CsvPlayers parsePlayersCsv(std::string_view text, const Texts& texts);

// "Line 12: ...", in the language in use.
[[nodiscard]] std::string problemText(const CsvProblem& problem, const Texts& texts);

// With a header row and positions in the language in use, one without a name as its index; see csvRow().
[[nodiscard]] std::string playersCsv(const std::vector<TeamPlayer>& players, const Texts& texts);

} // namespace hooptab
