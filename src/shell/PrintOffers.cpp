#include "shell/PrintOffers.h"

#include "report/GameReports.h"
#include "report/ScanReport.h"
#include "report/TeamReports.h"

#include <memory>
#include <utility>

namespace hooptab {

namespace {

ReportOffer named(Text text, const Texts& texts, std::function<Report()> make) {
  return {[text, &texts] { return std::string(texts.text(text)); }, std::move(make)};
}

struct Team {
  TeamRecord record;
  std::vector<TeamPlayer> players;
};

} // namespace

std::vector<ReportOffer> gameOffers(std::shared_ptr<const CountedGame> game, const ScorecardView& choice,
                                    const Settings& settings, const Texts& texts) {
  std::vector<ReportOffer> offers;
  for (const GameReport& report : gameReports()) {
    if (report.name != Text::None)
      offers.push_back(named(report.name, texts, [=, &settings, &texts, make = report.make] {
        return make(game, choice, settings, texts);
      }));
  }
  return offers;
}

std::vector<ReportOffer> teamReports(const TeamRecord& team, const std::vector<TeamPlayer>& players,
                                     const Texts& texts) {
  const auto kept = std::make_shared<const Team>(Team{team, players});
  std::vector<ReportOffer> offers = {
      named(Text::TeamRoster, texts,
            [=, &texts] { return rosterReport(kept->record, kept->players, texts); }),
      named(Text::PreparedForms, texts,
            [=, &texts] { return preparedForms(kept->record, kept->players, texts); })};
  offers.push_back(emptyForms(texts).front());
  return offers;
}

std::vector<ReportOffer> teamForms(TeamStore& teams, const Texts& texts) {
  std::vector<ReportOffer> offers;
  for (const TeamEntry& entry : teams.list()) {
    const auto kept = std::make_shared<const Team>(Team{teams.read(entry.key), teams.players(entry.key)});
    offers.push_back({[entry] { return entry.abbreviation + " - " + entry.category; },
                      [=, &texts] { return preparedForms(kept->record, kept->players, texts); }});
  }
  return offers;
}

std::vector<ReportOffer> scanReports(const ScannedTotals& scanned, const GameDetails& game,
                                     const std::string& source, const Settings& settings,
                                     const Texts& texts) {
  const auto kept = std::make_shared<const std::pair<ScannedTotals, GameDetails>>(scanned, game);
  return {named(Text::VerificationReport, texts, [=, &settings, &texts] {
    return verificationReport(kept->first, kept->second, source, settings, texts);
  })};
}

bool canHighlight(SeasonReport report, const SeasonPerson& person) {
  switch (report) {
  case SeasonReport::LineShots:
  case SeasonReport::LineOther: return person.isLine;
  case SeasonReport::PlayerShots:
  case SeasonReport::PlayerOther:
  case SeasonReport::LeadersTotal:
  case SeasonReport::LeadersPerGame:
  case SeasonReport::LeadersPerMinute: return !person.isLine;
  case SeasonReport::TeamSummary:
  case SeasonReport::TeamDetail:
  case SeasonReport::Player:
  case SeasonReport::PlayerSheet:
  case SeasonReport::Line:
  case SeasonReport::Scout: break;
  }
  return false;
}

SeasonReport reportOfPage(frmSTATS::Page page, SeasonView leaders, const SeasonPerson* person) {
  switch (page) {
  case frmSTATS::Page::Players: return SeasonReport::PlayerShots;
  case frmSTATS::Page::Lines: return SeasonReport::LineShots;
  case frmSTATS::Page::Leaders:
    return leaders == SeasonView::Totals    ? SeasonReport::LeadersTotal
           : leaders == SeasonView::PerGame ? SeasonReport::LeadersPerGame
                                            : SeasonReport::LeadersPerMinute;
  case frmSTATS::Page::Person:
    if (person == nullptr)
      return SeasonReport::PlayerShots;
    return person->isLine ? SeasonReport::Line : SeasonReport::Player;
  case frmSTATS::Page::Team: return SeasonReport::TeamDetail;
  case frmSTATS::Page::Standings:
  case frmSTATS::Page::Games:
  case frmSTATS::Page::Search:
  case frmSTATS::Page::LeftOut: break;
  }
  return SeasonReport::TeamSummary;
}

MissingForReport missingFor(SeasonReport report, const SeasonOffer& offer) {
  if (!offer.season)
    return MissingForReport::Statistics;
  if (isOfTeam(report) && !offer.scouted)
    return MissingForReport::Team;
  const bool isOfLine = report == SeasonReport::Line;
  return isOfPerson(report) && (!offer.person || offer.person->isLine != isOfLine)
             ? MissingForReport::Person
             : MissingForReport::Nothing;
}

std::vector<ReportOffer> seasonOffers(const SeasonOffer& offer, SeasonReport first, const Settings& settings,
                                      const Texts& texts) {
  std::vector<ReportOffer> offers;
  for (const SeasonReportName& name : seasonReports()) {
    if (missingFor(name.report, offer) != MissingForReport::Nothing)
      continue;
    SeasonReportChoice choice;
    choice.team = isOfTeam(name.report) ? offer.scouted : offer.team;
    choice.reader = offer.reader;
    choice.minimum = offer.season->minimum();
    choice.ownRating = offer.season->ownRating();
    if (isOfPerson(name.report) ||
        (offer.highlightsPerson && offer.person && canHighlight(name.report, *offer.person)))
      choice.chosen = offer.person->row.id;
    ReportOffer made =
        named(name.text, texts, [=, season = offer.season, report = name.report, &settings, &texts] {
          return seasonReport(report, season->statistics(), choice, settings, texts);
        });
    offers.insert(name.report == first ? offers.begin() : offers.end(), std::move(made));
  }
  return offers;
}

std::vector<ReportOffer> emptyForms(const Texts& texts) {
  return {named(Text::BlankForms, texts, [&texts] { return blankForms(texts); })};
}

} // namespace hooptab
