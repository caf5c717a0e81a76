#include "report/TeamReports.h"

#include "report/ReportWords.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

// Rules of the team, as the team editor names them.
constexpr std::pair<Text, std::string TeamRecord::*> kRules[] = {
    {Text::PeriodCount, &TeamRecord::periods},
    {Text::MinutesPerPeriod, &TeamRecord::minutesPerPeriod},
    {Text::BonusAfter, &TeamRecord::bonus},
    {Text::FoulLimit, &TeamRecord::personalFoulLimit},
    {Text::TechnicalLimit, &TeamRecord::technicalFoulLimit},
};

constexpr std::string_view kToWrite = "________________"; // a line for a pen

std::string text(const Texts& texts, Text which) {
  return std::string(texts.text(which));
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
  report.pageWords = text(texts, Text::PageOf);
  return report;
}

FormSheet sheetOf(FormIdentifier identifier, int sheets, const std::string& title, const Texts& texts) {
  FormSheet sheet;
  sheet.identifier = identifier;
  sheet.title = title;
  sheet.hint = text(texts, Text::FormHint);
  sheet.made = text(texts, Text::MadeCapitals);
  sheet.missed = text(texts, Text::MissCapitals);
  sheet.sheet = withPlaceholders(texts.text(Text::FormSheet), std::to_string(identifier.sheet + 1),
                                 std::to_string(sheets));
  return sheet;
}

} // namespace

Report rosterReport(const TeamRecord& team, const std::vector<TeamPlayer>& players, const Texts& texts) {
  Report report = reportOf(text(texts, Text::TeamRoster), nameOf(team), texts);
  if (const std::string_view name = Module1::trimmed(team.name); !name.empty())
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Heading, std::string(name)});
  std::string words;
  for (const auto& [label, rule] : kRules)
    words += (words.empty() ? "" : ".  ") + labelled(label, team.*rule, texts);
  report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, std::move(words)});

  ReportTable table;
  table.title = texts.withPlaceholder(Text::PlayerCount, std::to_string(players.size()));
  table.columns = {{"No", "No", {}, true, true},
                   {text(texts, Text::PlayerName), "Name", {}, true, true},
                   {"Pos", "Position", {}, true},
                   {text(texts, Text::Height), "Height", {}, true},
                   {text(texts, Text::Weight), "Weight", {}, true},
                   {text(texts, Text::Age), "Age", {}, true},
                   {text(texts, Text::Grade), "Grade", {}, true}};
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
  Report report = reportOf(text(texts, Text::PreparedForms), nameOf(team), texts);
  std::vector<const TeamPlayer*> able;
  for (const TeamPlayer& player : players) {
    if (isJersey(player.number) && able.size() < FormLayout::kPlayers * FormIdentifier::kMostSheets)
      able.push_back(&player);
  }
  const int sheets =
      std::max(1, (static_cast<int>(able.size()) + FormLayout::kPlayers - 1) / FormLayout::kPlayers);
  const int number = FormIdentifier::teamNumber(team.abbreviation, Module1::trimmed(team.category));
  const std::string title = text(texts, Text::InputForm) + "  " + nameOf(team);
  const std::string blanks = labelled(Text::Date, kToWrite, texts);
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
  Report report = reportOf(text(texts, Text::BlankForms), {}, texts);
  const std::string blanks =
      labelled(Text::Team, kToWrite, texts) + "  " + labelled(Text::Date, kToWrite, texts);
  for (int sheet = 0; sheet < FormLayout::kSheets; ++sheet) {
    FormSheet page = sheetOf({sheet, false, 0}, FormLayout::kSheets, text(texts, Text::InputForm), texts);
    page.blanks = blanks;
    report.blocks.push_back(std::move(page));
  }
  return report;
}

} // namespace hooptab
