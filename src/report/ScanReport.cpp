#include "report/ScanReport.h"

#include "report/ReportWords.h"
#include "storage/Module1.h"
#include "totals/CounterWords.h"

#include <algorithm>

namespace hooptab {

namespace {

class ScanReport {
 public:
  ScanReport(const ScannedTotals& scanned, const GameDetails& game, const Settings& settings,
             const Texts& texts)
      : m_scanned(scanned), m_sheet(scanned.sheet), m_game(game), m_settings(settings), m_texts(texts) {}

  // A table for the shots and one for the rest: side by side they would not fit the paper.
  ReportTable counts(bool ofShots) const {
    ReportTable table;
    table.columns = {{text(Text::PlayerNumber), "No", {}, true, true},
                     {text(Text::PlayerName), "Name", {}, true, true}};
    table.groups = {{"", 2}};
    for (const ManualColumn& column : kManualColumns) {
      const EventKind& kind = *kindOf(column.code);
      if (kind.isShot != ofShots)
        continue;
      const std::string name(kind.shortName);
      table.columns.push_back({!ofShots ? name : text(column.isMade ? Text::MadeShort : Text::AttemptedShort),
                               std::string(counterName(column.counter)),
                               counterWords(column, m_game, m_settings, m_texts)});
      if (!ofShots || column.isMade)
        table.groups.push_back({ofShots ? name : "", ofShots ? std::size_t{2} : std::size_t{1}});
    }
    for (int player = 0; player < FormLayout::kPlayers; ++player) {
      ReportRow row{{textCell(number(player)), textCell(playerName(player))}};
      for (const ManualColumn& column : kManualColumns) {
        if (kindOf(column.code)->isShot == ofShots)
          row.cells.push_back(countCell(m_sheet.count(player, column.counter)));
      }
      table.rows.push_back(std::move(row));
    }
    return table;
  }

  ReportTable cells() const {
    ReportTable table;
    table.title = text(Text::DoubtsAndChanges);
    table.columns = {
        {text(Text::PlayerNumber), "No", {}, true, true}, {text(Text::PlayerName), "Name", {}, true, true},
        {text(Text::Statistic), "Statistic", {}, true},   {text(Text::Cell), "Cell"},
        {text(Text::ReadAs), "Read", {}, true},           {text(Text::Now), "Now", {}, true}};
    for (int player = 0; player < FormLayout::kPlayers; ++player) {
      for (std::size_t cell = 0; cell < m_sheet.cellCount(); ++cell) {
        if (m_sheet.cell(cell).player == player && (m_sheet.isDoubtful(cell) || m_sheet.isCorrected(cell)))
          table.rows.push_back(
              {{textCell(number(player)), textCell(playerName(player)),
                textCell(rowWords(m_sheet.cell(cell))), numberCell(placeOf(m_sheet.cell(cell))),
                textCell(state(m_sheet.wasRead(cell)) + (m_sheet.isDoubtful(cell) ? " ?" : "")),
                textCell(state(m_sheet.isTicked(cell)) + (m_sheet.isOpen(cell)        ? " ?"
                                                          : m_sheet.isCorrected(cell) ? " *"
                                                                                      : ""))}});
      }
    }
    return table;
  }

 private:
  std::string text(Text which) const { return std::string(m_texts.text(which)); }
  std::string state(bool isTicked) const { return text(isTicked ? Text::TickedWord : Text::NotTickedWord); }

  static ReportCell countCell(const CheckedSheet::Count& count) {
    ReportCell cell = numberCell(count.value);
    cell.text += count.isOpen ? "?" : count.isCorrected ? "*" : "";
    return cell;
  }

  // As it was read.
  std::string number(int player) const {
    const CheckedSheet::Jersey jersey = m_sheet.jersey(player);
    using State = CheckedSheet::Jersey::State;
    const std::string read = jersey.state == State::Readable     ? jersey.number
                             : jersey.state == State::Unreadable ? text(Text::NotReadable)
                             : m_sheet.hasCounts(player)         ? text(Text::NoNumber)
                                                                 : std::string();
    return read + (jersey.isOpen ? "?" : jersey.isCorrected ? "*" : "");
  }
  std::string playerName(int player) const {
    if (const RosterPlayer* found = m_scanned.roster().player(m_scanned.slot(player)))
      return found->name;
    return m_sheet.hasCounts(player) ? text(Text::LeftOutInBrackets) : std::string();
  }

  std::string rowWords(const FormCell& cell) const {
    if (cell.kind == FormCell::Kind::JerseyDigit)
      return text(Text::PlayerNumber) + ", " + text(kDigitPlaces[cell.place]);
    const auto kind = std::ranges::find(eventKinds(), cell.counter, &EventKind::counter);
    std::string words(kind->shortName);
    if (cell.kind != FormCell::Kind::Count)
      words += ' ' + text(cell.kind == FormCell::Kind::Made ? Text::MadeCapitals : Text::MissCapitals);
    return words;
  }
  // As somebody counts the cells of a row; of a number the digit itself.
  static int placeOf(const FormCell& cell) {
    return cell.kind == FormCell::Kind::JerseyDigit ? cell.number : cell.number + 1;
  }

  const ScannedTotals& m_scanned;
  const CheckedSheet& m_sheet;
  const GameDetails& m_game;
  const Settings& m_settings;
  const Texts& m_texts;
};

} // namespace

Report verificationReport(const ScannedTotals& scanned, const GameDetails& game, const std::string& source,
                          const Settings& settings, const Texts& texts) {
  Report report;
  report.title = texts.text(Text::VerificationReport);
  report.subject = game.abbreviation[Side::Visitor] + " – " + game.abbreviation[Side::Home] + ": " +
                   game.abbreviation[scanned.team()];
  report.pageWords = texts.text(Text::PageOf);
  report.fileName = proposedFileName(source + ' ' + report.title);
  report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Heading, source});
  report.blocks.push_back(
      ReportParagraph{ReportParagraph::Style::Body, std::string(texts.text(Text::VerificationSigns))});
  const ScanReport made(scanned, game, settings, texts);
  report.blocks.push_back(made.counts(true));
  report.blocks.push_back(made.counts(false));
  if (ReportTable cells = made.cells(); !cells.rows.empty())
    report.blocks.push_back(std::move(cells));
  return report;
}

} // namespace hooptab
