#include "shell/PrintOffers.h"

#include "printing/GameReports.h"
#include "printing/PrintTexts.h"
#include "printing/TeamReports.h"

#include <memory>
#include <utility>

namespace hooptab {

namespace {

constexpr int kPreparedForms = 1399;
constexpr int kBlankForms = 1400;

ReportOffer named(int text, const Texts& texts, std::function<Report()> make) {
  return {[text, &texts] { return std::string(texts.text(text)); }, std::move(make)};
}

struct Team {
  TeamRecord record;
  std::vector<TeamPlayer> players;
};

} // namespace

std::vector<ReportOffer> gameReports(const Game& game, const GameState& state, const ScorecardView& choice,
                                     const Settings& settings, const Texts& texts) {
  const auto kept = std::make_shared<const std::pair<Game, GameState>>(game, state);
  return {
      named(kScorecard, texts,
            [=, &settings, &texts] {
              return scorecardReport(kept->first, kept->second, choice, settings, texts);
            }),
      named(kPlayByPlay, texts, [=, &texts] { return playByPlayReport(kept->first, kept->second, texts); })};
}

std::vector<ReportOffer> teamReports(const TeamRecord& team, const std::vector<TeamPlayer>& players,
                                     const Texts& texts) {
  const auto kept = std::make_shared<const Team>(Team{team, players});
  std::vector<ReportOffer> offers = {
      named(kTeamRoster, texts, [=, &texts] { return rosterReport(kept->record, kept->players, texts); }),
      named(kPreparedForms, texts,
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

std::vector<ReportOffer> emptyForms(const Texts& texts) {
  return {named(kBlankForms, texts, [&texts] { return blankForms(texts); })};
}

} // namespace hooptab
