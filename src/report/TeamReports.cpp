#include "report/TeamReports.h"

#include "report/PrintTexts.h"
#include "report/ReportWords.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr int kTeam = 1305;
constexpr int kDate = 1550;
constexpr int kHeight = 1320;
constexpr int kWeight = 1321;
constexpr int kAge = 1322;
constexpr int kGrade = 1323;
constexpr int kPlayers = 1824;
constexpr int kMade = 1241;
constexpr int kMissed = 1242;
constexpr int kPreparedForms = 1399;
constexpr int kBlankForms = 1400;

// Rules of the team, as the team editor names them.
constexpr std::pair<int, std::string TeamRecord::*> kRules[] = {
    {1123, &TeamRecord::periods},
    {1124, &TeamRecord::minutesPerPeriod},
    {1125, &TeamRecord::bonus},
    {1126, &TeamRecord::personalFoulLimit},
    {1127, &TeamRecord::technicalFoulLimit},
};

constexpr std::string_view kToWrite = "________________"; // a line for a pen

std::string text(const Texts& texts, int number) {
  return std::string(texts.text(number));
}

// "LYNX – AAA", without what is empty.
std::string nameOf(const TeamRecord& team) {
  const std::string category(Module1::trimmed(team.category));
  return category.empty() ? team.abbreviation : team.abbreviation + " – " + category;
}

Report reportOf(std::string title, std::string subject, const Texts& texts) {
  Report report;
  report.fileName = proposedFileName(subject.empty() ? title : subject + ' ' + title);
  report.title = std::move(title);
  report.subject = std::move(subject);
  report.pageWords = text(texts, kPageOf);
  return report;
}

FormSheet sheetOf(FormIdentifier identifier, int sheets, const std::string& title, const Texts& texts) {
  FormSheet sheet;
  sheet.identifier = identifier;
  sheet.title = title;
  sheet.hint = text(texts, kFormHint);
  sheet.made = text(texts, kMade);
  sheet.missed = text(texts, kMissed);
  sheet.sheet =
      withPlaceholders(texts.text(kFormSheet), std::to_string(identifier.sheet + 1), std::to_string(sheets));
  return sheet;
}

} // namespace

Report rosterReport(const TeamRecord& team, const std::vector<TeamPlayer>& players, const Texts& texts) {
  Report report = reportOf(text(texts, kTeamRoster), nameOf(team), texts);
  if (const std::string_view name = Module1::trimmed(team.name); !name.empty())
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Heading, std::string(name)});
  std::string words;
  for (const auto& [label, rule] : kRules)
    words += (words.empty() ? "" : ".  ") + labelled(label, team.*rule, texts);
  report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, std::move(words)});

  ReportTable table;
  table.title = texts.withPlaceholder(kPlayers, std::to_string(players.size()));
  table.columns = {{"No", "No", {}, true, true},
                   {text(texts, kPlayerName), "Name", {}, true, true},
                   {"Pos", "Position", {}, true},
                   {text(texts, kHeight), "Height", {}, true},
                   {text(texts, kWeight), "Weight", {}, true},
                   {text(texts, kAge), "Age", {}, true},
                   {text(texts, kGrade), "Grade", {}, true}};
  for (const TeamPlayer& player : players) {
    const PlayerRecord& record = player.record;
    table.rows.push_back(
        {{textCell(player.number), textCell(record.name), textCell(positionText(record.position, texts)),
          textCell(record.height), textCell(record.weight), textCell(record.age), textCell(record.grade)}});
  }
  report.blocks.push_back(std::move(table));
  return report;
}

Report preparedForms(const TeamRecord& team, const std::vector<TeamPlayer>& players, const Texts& texts) {
  Report report = reportOf(text(texts, kPreparedForms), nameOf(team), texts);
  std::vector<const TeamPlayer*> able;
  for (const TeamPlayer& player : players) {
    if (isJersey(player.number) && able.size() < FormLayout::kPlayers * FormIdentifier::kMostSheets)
      able.push_back(&player);
  }
  const int sheets =
      std::max(1, (static_cast<int>(able.size()) + FormLayout::kPlayers - 1) / FormLayout::kPlayers);
  const int number = FormIdentifier::teamNumber(team.abbreviation, Module1::trimmed(team.category));
  const std::string title = text(texts, kInputForm) + "  " + nameOf(team);
  const std::string blanks = labelled(kDate, kToWrite, texts);
  for (int sheet = 0; sheet < sheets; ++sheet) {
    FormSheet page = sheetOf({sheet, true, number}, sheets, title, texts);
    page.blanks = blanks;
    for (std::size_t place = 0; place < FormLayout::kPlayers; ++place) {
      const std::size_t player = static_cast<std::size_t>(sheet) * FormLayout::kPlayers + place;
      if (player >= able.size())
        break;
      page.jerseys[place] = able[player]->number;
      page.names[place] = able[player]->number + "  " + able[player]->record.name;
    }
    report.blocks.push_back(std::move(page));
  }
  return report;
}

Report blankForms(const Texts& texts) {
  Report report = reportOf(text(texts, kBlankForms), {}, texts);
  const std::string blanks = labelled(kTeam, kToWrite, texts) + "  " + labelled(kDate, kToWrite, texts);
  for (int sheet = 0; sheet < FormLayout::kSheets; ++sheet) {
    FormSheet page = sheetOf({sheet, false, 0}, FormLayout::kSheets, text(texts, kInputForm), texts);
    page.blanks = blanks;
    report.blocks.push_back(std::move(page));
  }
  return report;
}

} // namespace hooptab
