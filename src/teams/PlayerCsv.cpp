#include "teams/PlayerCsv.h"

#include "game/Roster.h"
#include "settings/ChoiceTexts.h"
#include "storage/DelimitedText.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace hooptab {

namespace {

constexpr std::size_t kMostPlayers = 1000;
constexpr std::size_t kLongestDetail = 40;

enum Column : std::size_t { kNumber, kPosition, kName, kHeight, kWeight, kAge, kGrade, kColumns };
// A name may come in two columns, which are never written.
constexpr std::size_t kFirstName = kColumns;
constexpr std::size_t kLastName = kColumns + 1;
constexpr std::size_t kColumnsRead = kColumns + 2;
// The header's name of each column; others by which people call it, and the number's caption elsewhere.
constexpr std::array<Text, kColumns> kHeaders = {Text::Number, Text::Position, Text::PlayerName, Text::Height,
                                                 Text::Weight, Text::Age,      Text::Grade};
constexpr std::pair<std::string_view, std::size_t> kOtherNames[] = {{"no", kNumber},
                                                                    {"no.", kNumber},
                                                                    {"n°", kNumber},
                                                                    {"nº", kNumber},
                                                                    {"#", kNumber},
                                                                    {"jersey", kNumber},
                                                                    {"chandail", kNumber},
                                                                    {"pos", kPosition},
                                                                    {"pos.", kPosition},
                                                                    {"name", kName},
                                                                    {"player", kName},
                                                                    {"nom", kName},
                                                                    {"joueur", kName},
                                                                    {"first name", kFirstName},
                                                                    {"firstname", kFirstName},
                                                                    {"given name", kFirstName},
                                                                    {"prénom", kFirstName},
                                                                    {"prenom", kFirstName},
                                                                    {"last name", kLastName},
                                                                    {"lastname", kLastName},
                                                                    {"surname", kLastName},
                                                                    {"family name", kLastName},
                                                                    {"nom de famille", kLastName}};

constexpr std::pair<std::string_view, int> kAbbreviations[] = {{"c", 0}, {"f", 1},  {"sf", 1}, {"pf", 1},
                                                               {"g", 2}, {"pg", 2}, {"sg", 2}};

bool isSame(std::string_view left, std::string_view right) {
  return codepage::equalNames(codepage::fromUtf8(left), codepage::fromUtf8(right));
}

std::optional<std::size_t> columnOf(std::string_view cell, const Texts& texts) {
  for (std::size_t column = 0; column < kColumns; ++column) {
    for (const LanguageFacts& facts : kLanguages) {
      if (isSame(cell, texts.text(kHeaders[column], facts.language)))
        return column;
    }
  }
  for (const LanguageFacts& facts : kLanguages) {
    if (isSame(cell, texts.text(Text::JerseyNumber, facts.language)))
      return kNumber;
  }
  for (const auto& [name, column] : kOtherNames) {
    if (isSame(cell, name))
      return column;
  }
  return std::nullopt;
}

std::optional<int> positionOf(std::string_view cell, const Texts& texts) {
  if (cell.empty())
    return kNoPosition;
  for (int index = 0; index < kChoiceCount; ++index) {
    if (cell == std::to_string(index)) // also one without a name, as it is exported
      return index;
    if (choiceName(kFirstPositionText, index, texts).empty())
      continue;
    for (const LanguageFacts& facts : kLanguages) {
      const std::string_view name = texts.text(textBehind(kFirstPositionText, index), facts.language);
      if (isSame(cell, name) || (index != kNoPosition && cell.size() == 1 && isSame(cell, name.substr(0, 1))))
        return index;
    }
  }
  for (const auto& [name, index] : kAbbreviations) {
    if (isSame(cell, name))
      return index;
  }
  return std::nullopt;
}

// Where each column stands in the rows; nothing for one that is missing.
using Places = std::array<std::optional<std::size_t>, kColumnsRead>;

std::optional<Places> headerIn(const DelimitedRow& row, const Texts& texts) {
  Places places;
  std::size_t named = 0;
  for (std::size_t place = 0; place < row.fields.size(); ++place) {
    const std::optional<std::size_t> column = columnOf(row.fields[place], texts);
    if (!column || places[*column])
      continue;
    places[*column] = place;
    ++named;
  }
  // Beside a first name, "name" is the last one.
  if (places[kFirstName] && !places[kLastName])
    std::swap(places[kLastName], places[kName]);
  return named < 2 ? std::nullopt : std::optional(places);
}

// The fixed order, as far as the longest row goes.
Places placesInOrder(const std::vector<DelimitedRow>& rows) {
  Places places;
  for (const DelimitedRow& row : rows) {
    for (std::size_t column = 0; column < std::min<std::size_t>(kColumns, row.fields.size()); ++column)
      places[column] = column;
  }
  return places;
}

Text textOf(CsvProblem::Kind kind) {
  using enum CsvProblem::Kind;
  switch (kind) {
  case IncompleteHeader: return Text::IncompleteHeader;
  case TooManyRows: return Text::TooManyRows;
  case OpenQuote: return Text::OpenQuote;
  case NoJersey: return Text::InvalidNumber;
  case UnknownPosition: return Text::UnknownPosition;
  case NoName: return Text::NoName;
  case NumberAgain: return Text::NumberAgain;
  case NumberWrittenOtherwise: return Text::NumberWrittenOtherwise;
  case TooLong: break;
  }
  return Text::PlayerTooLong;
}

class RowReader {
 public:
  RowReader(const Texts& texts, const Places& places) : m_texts(texts), m_places(places) {}

  void read(const DelimitedRow& row, CsvPlayers& into) const {
    using enum CsvProblem::Kind;
    const auto refuse = [&](CsvProblem::Kind kind, const std::string& detail) {
      into.problems.push_back(
          {row.line, kind, codepage::toUtf8(codepage::fromUtf8(detail).substr(0, kLongestDetail))});
    };
    if (row.hasOpenQuote)
      return refuse(OpenQuote, {});
    const std::string number = cell(row, kNumber);
    if (!isJersey(number))
      return refuse(NoJersey, number);
    const std::optional<int> position = positionOf(cell(row, kPosition), m_texts);
    if (!position)
      return refuse(UnknownPosition, cell(row, kPosition));
    TeamPlayer player{
        number,
        {*position, name(row), cell(row, kHeight), cell(row, kWeight), cell(row, kAge), cell(row, kGrade)},
        {}};
    if (player.record.name.empty())
      return refuse(NoName, {});
    if (std::ranges::find(into.players, number, &TeamPlayer::number) != into.players.end())
      return refuse(NumberAgain, number);
    if (std::ranges::any_of(into.players, [&](const TeamPlayer& other) {
          return Roster::areOneNumber(other.number, number);
        }))
      return refuse(NumberWrittenOtherwise, number);
    if (!fitsInValue(playerValue(player.record)))
      return refuse(TooLong, {});
    into.players.push_back(std::move(player));
  }

 private:
  std::string name(const DelimitedRow& row) const {
    if (!m_places[kLastName])
      return cell(row, kName);
    return std::string(Module1::trimmed(cell(row, kFirstName) + ' ' + cell(row, kLastName)));
  }
  std::string cell(const DelimitedRow& row, std::size_t column) const {
    const std::optional<std::size_t> place = m_places[column];
    if (!place || *place >= row.fields.size())
      return {};
    return std::string(Module1::trimmed(withoutCommas(std::string(heldByCell(row.fields[*place])))));
  }

  const Texts& m_texts;
  const Places& m_places;
};

} // namespace

CsvPlayers parsePlayersCsv(std::string_view text, const Texts& texts) {
  CsvPlayers result;
  const std::vector<DelimitedRow> rows = parseDelimited(text);
  if (rows.empty())
    return result;
  const std::optional<Places> header = headerIn(rows.front(), texts);
  if (header && (!(*header)[kNumber] || (!(*header)[kName] && !(*header)[kLastName]))) {
    result.problems.push_back({rows.front().line, CsvProblem::Kind::IncompleteHeader, {}});
    return result;
  }
  const Places places = header ? *header : placesInOrder(rows);
  result.hasPosition = places[kPosition].has_value();
  result.hasHeight = places[kHeight].has_value();
  result.hasWeight = places[kWeight].has_value();
  result.hasAge = places[kAge].has_value();
  result.hasGrade = places[kGrade].has_value();
  const RowReader reader(texts, places);
  for (std::size_t row = header ? 1 : 0; row < rows.size(); ++row) {
    if (result.players.size() == kMostPlayers) {
      result.problems.push_back(
          {rows[row].line, CsvProblem::Kind::TooManyRows, std::to_string(kMostPlayers)});
      break;
    }
    reader.read(rows[row], result);
  }
  return result;
}

std::string problemText(const CsvProblem& problem, const Texts& texts) {
  std::string words = texts.withPlaceholder(textOf(problem.kind), problem.detail);
  if (problem.kind == CsvProblem::Kind::NoJersey && !problem.detail.empty())
    words += " (" + problem.detail + ")";
  return withPlaceholders(texts.text(Text::LineRefused), std::to_string(problem.line), words);
}

std::string playersCsv(const std::vector<TeamPlayer>& players, const Texts& texts) {
  std::vector<std::string> fields;
  for (const Text header : kHeaders)
    fields.emplace_back(texts.text(header));
  std::string csv = csvRow(fields);
  for (const TeamPlayer& player : players) {
    const PlayerRecord& record = player.record;
    std::string position(choiceName(kFirstPositionText, record.position, texts));
    if (position.empty())
      position = std::to_string(record.position);
    csv += csvRow({player.number, std::move(position), record.name, record.height, record.weight, record.age,
                   record.grade});
  }
  return csv;
}

} // namespace hooptab
