#include "bbgame/BbGameWriter.h"

#include "bbgame/BbGameBox.h"
#include "bbgame/BbGamePlayRows.h"
#include "bbgame/BbGameWords.h"
#include "bbgame/XmlDocument.h"
#include "foreign/NameForms.h"
#include "game/RuleSets.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

constexpr int kMinute = 60;
constexpr int kHundred = 100;
constexpr int kWholeGame = BbGameBox::kWholeGame;

// "mm/dd/yyyy"; a date in no such form stays as it is.
std::string monthFirst(const std::string& date) {
  return date.size() == 10 ? date.substr(5, 2) + '/' + date.substr(8) + '/' + date.substr(0, 4) : date;
}
// One decimal, "40" without one.
std::string percent(int made, int attempted) {
  constexpr std::int64_t kPercent = 100;
  if (attempted <= 0)
    return "0";
  std::string text = Module1::quotientText(kPercent * made, attempted, 1);
  if (text.ends_with(".0"))
    text.resize(text.size() - 2);
  return text;
}
// "4th-00:20".
std::string whenLedMost(const ScoreFlow::Team& team) {
  constexpr std::array kEndings = {"th", "st", "nd", "rd"};
  const auto period = static_cast<std::size_t>(team.biggestLeadPeriod);
  return std::to_string(period) + kEndings[period < kEndings.size() ? period : 0] + '-' +
         Module1::clockText(team.biggestLeadCentiseconds / kHundred);
}

std::optional<int> officialOf(const OfficialNumbers& numbers, std::string_view name) {
  const auto found = numbers.find(name);
  return found == numbers.end() ? std::nullopt : std::optional(found->second.value);
}

class Writer {
 public:
  explicit Writer(const ForeignGame& game)
      : m_game(game), m_box(game), m_flow(scoreFlow(game)), m_rows(game) {
    for (const ForeignEvent& event : game.events)
      m_periods = std::max(m_periods, event.period);
    m_saysDrawn = std::ranges::any_of(
        game.events, [](const ForeignEvent& event) { return isFoul(event.code) && event.other.isPlayer(); });
  }

  std::string text() {
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    setAttribute(declaration, "version", "1.0");
    setAttribute(declaration, "encoding", "UTF-8");
    pugi::xml_node root = document.append_child("bbgame");
    const bool hasPlaces =
        std::ranges::any_of(m_game.events, [](const ForeignEvent& event) { return event.place.has_value(); });
    setAttribute(root, "source", "HOOPTAB");
    setAttribute(root, "version", "1.0");
    setAttribute(root, "generated", monthFirst(m_game.date));
    setAttribute(root, "coords", hasPlaces ? "Y" : "N");
    writeVenue(root.append_child("venue"));
    writeStatus(root.append_child("status"));
    for (const Side team : kSides)
      writeTeam(team, root.append_child("team"));
    writePlays(root.append_child("plays"));
    return xmlText(document);
  }

 private:
  // Whose figures: those of the file's own box where it says them, else what the plays come to.
  struct Whose {
    Side team = Side::Visitor;
    int player = 0;
    int period = kWholeGame;
    const OfficialNumbers* official = nullptr; // of the game alone
  };
  [[nodiscard]] int figure(const Whose& whose, std::string_view name, const char* attribute) const {
    const auto official = whose.official == nullptr ? std::nullopt : officialOf(*whose.official, name);
    return official.value_or(m_box.count(whose.team, whose.player, whose.period, attribute));
  }
  [[nodiscard]] const ForeignTeam& team(Side side) const { return m_game.teams[side]; }

  void writeVenue(pugi::xml_node venue) const {
    setAttribute(venue, "gameid", m_game.id);
    setAttribute(venue, "visid", team(Side::Visitor).abbreviation);
    setAttribute(venue, "visname", team(Side::Visitor).name);
    setAttribute(venue, "homeid", team(Side::Home).abbreviation);
    setAttribute(venue, "homename", team(Side::Home).name);
    setAttribute(venue, "date", monthFirst(m_game.date));
    setAttribute(venue, "location", m_game.place);
    setAttribute(venue, "attend", m_game.attendance);
    setAttribute(venue, "competitionname", m_game.competition);
    setAttribute(venue.append_child("officials"), "text", m_game.referees);
    venue.append_child("notes");
    pugi::xml_node rules = venue.append_child("rules");
    const RuleSet* named = ruleSetOf(m_game.ruleSet);
    setAttribute(rules, "prds", m_game.periods);
    setAttribute(rules, "minutes", m_game.minutes);
    setAttribute(rules, "minutesot", m_game.overtimeMinutes);
    setAttribute(rules, "fouls", (named != nullptr ? *named : kRuleSets.front()).personalFouls);
    setAttribute(rules, "qh", m_game.periods == 2 ? "H" : "Q");
  }

  [[nodiscard]] int minutesOf(int period) const {
    return period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes;
  }
  void writeStatus(pugi::xml_node status) const {
    const auto arrow =
        std::find_if(m_game.events.rbegin(), m_game.events.rend(), [](const ForeignEvent& event) {
          return event.code == EventCode::XAR && event.doer.team;
        });
    setAttribute(status, "complete", m_game.isFinished ? "Y" : "N");
    setAttribute(status, "period", std::max(m_periods, 1));
    setAttribute(status, "periodtype", m_periods > m_game.periods ? "OVERTIME" : "REGULAR");
    setAttribute(status, "clock",
                 Module1::clockText(m_game.events.empty() ? minutesOf(1) * kMinute
                                                          : m_game.events.back().centiseconds / kHundred));
    setAttribute(status, "running", "F");
    if (arrow != m_game.events.rend())
      setAttribute(status, "arrow", bbgame::kSideLetters[*arrow->doer.team]);
  }

  void writeTeam(Side side, pugi::xml_node element) {
    setAttribute(element, "vh", bbgame::kSideLetters[side]);
    setAttribute(element, "id", team(side).abbreviation);
    setAttribute(element, "name", team(side).name);
    setAttribute(element, "code", team(side).id);
    writeLineScore(side, element.append_child("linescore"));
    pugi::xml_node totals = element.append_child("totals");
    writeTotals(side, totals.append_child("stats"));
    writeSpecial(side, kWholeGame, totals);
    writePeriods({side, BbGameBox::kWholeTeam}, totals);
    for (std::size_t i = 0; i < team(side).players.size(); ++i)
      writePlayer({side, static_cast<int>(i)}, element.append_child("player"));
    writeTeamRow(side, element.append_child("player"));
  }

  void writeLineScore(Side side, pugi::xml_node element) const {
    std::vector<int> points = team(side).pointsOfPeriod;
    for (int period = static_cast<int>(points.size()) + 1; period <= m_periods; ++period)
      points.push_back(m_box.count(side, BbGameBox::kWholeTeam, period, "tp"));
    std::string line;
    for (const int each : points)
      line += (line.empty() ? "" : ",") + std::to_string(each);
    setAttribute(element, "line", line);
    setAttribute(element, "score",
                 figure({side, BbGameBox::kWholeTeam, kWholeGame, &team(side).official}, "points", "tp"));
    for (std::size_t i = 0; i < points.size(); ++i) {
      pugi::xml_node period = element.append_child("lineprd");
      setAttribute(period, "prd", static_cast<int>(i) + 1);
      setAttribute(period, "score", points[i]);
    }
  }

  void writeFigures(const Whose& whose, pugi::xml_node stats) const {
    const int threes = figure(whose, "F3M", "fgm3");
    const int triedThrees = figure(whose, "F3A", "fga3");
    const bool isOfficial = whose.official != nullptr && officialOf(*whose.official, "FGM").has_value() &&
                            officialOf(*whose.official, "FGA").has_value();
    const int made = figure(whose, "FGM", "fgm") + (isOfficial ? threes : 0);
    const int tried = figure(whose, "FGA", "fga") + (isOfficial ? triedThrees : 0);
    setAttribute(stats, "fgm", made);
    setAttribute(stats, "fga", tried);
    for (const bbgame::BoxNumber& each : bbgame::kBoxNumbers) {
      const bool isCounted =
          each.name != "plusMinus" && each.name != "rating" && (each.name != "FD" || m_saysDrawn);
      if (isCounted || (whose.official != nullptr && officialOf(*whose.official, each.name)))
        setAttribute(stats, each.attribute, figure(whose, each.name, each.attribute));
    }
    setAttribute(stats, "fgpct", percent(made, tried));
    setAttribute(stats, "fg3pct", percent(threes, triedThrees));
    setAttribute(stats, "ftpct", percent(figure(whose, "FTM", "ftm"), figure(whose, "FTA", "fta")));
  }
  void writeRebounds(pugi::xml_node stats) const {
    setAttribute(stats, "treb", numberOf(stats, "oreb", 0) + numberOf(stats, "dreb", 0));
  }
  // Whole minutes: "+" where there are seconds more, "-" where there are some less.
  void writeMinutes(const Whose& whose, pugi::xml_node stats) const {
    const int seconds = figure(whose, "seconds", "seconds");
    const int minutes = (seconds + kMinute / 2) / kMinute;
    setAttribute(stats, "min", minutes);
    if (seconds != minutes * kMinute)
      setAttribute(stats, "sec", seconds > minutes * kMinute ? "+" : "-");
  }

  void writeTotals(Side side, pugi::xml_node stats) const {
    const OfficialNumbers& official = team(side).official;
    writeFigures({side, BbGameBox::kWholeTeam, kWholeGame, &official}, stats);
    for (const bbgame::SharedNumber& each : bbgame::kSharedNumbers) {
      const auto ofPlayers = officialOf(official, each.name);
      const auto own = officialOf(official, each.ofRow);
      setAttribute(stats, each.attribute,
                   ofPlayers && own ? *ofPlayers + *own
                                    : m_box.count(side, BbGameBox::kWholeTeam, kWholeGame, each.attribute));
    }
    writeRebounds(stats);
  }
  void writePeriods(const Whose& whose, pugi::xml_node element) const {
    for (int period = 1; period <= m_periods; ++period) {
      pugi::xml_node stats = element.append_child("statsbyprd");
      setAttribute(stats, "prd", period);
      writePeriod({whose.team, whose.player, period}, stats);
      if (whose.player >= 0)
        writeMinutes({whose.team, whose.player, period}, stats);
    }
  }
  void writePeriod(const Whose& whose, pugi::xml_node stats) const {
    writeFigures(whose, stats);
    for (const bbgame::SharedNumber& each : bbgame::kSharedNumbers)
      setAttribute(stats, each.attribute, figure(whose, each.name, each.attribute));
    writeRebounds(stats);
  }

  void writeSpecial(Side side, int period, pugi::xml_node element) const {
    pugi::xml_node special = element.append_child("special");
    setAttribute(special, "vh", bbgame::kSideLetters[side]);
    for (const char* name : {"pts_to", "pts_ch2", "pts_paint", "pts_fastb", "pts_bench"}) {
      if (std::string_view(name) != "pts_paint" || m_box.knowsPaint())
        setAttribute(special, name, m_box.count(side, BbGameBox::kWholeTeam, period, name));
    }
    if (period != kWholeGame)
      return;
    const ScoreFlow::Team& flow = m_flow.teams[side];
    setAttribute(special, "ties", flow.tiesMade);
    setAttribute(special, "leads", flow.leadsTaken);
    setAttribute(special, "lead_time", flow.centisecondsLeading / kHundred);
    setAttribute(special, "tied_time", m_flow.centisecondsLevel / kHundred);
    setAttribute(special, "large_lead", flow.biggestLead);
    if (flow.biggestLead > 0)
      setAttribute(special, "large_lead_t", whenLedMost(flow));
    setAttribute(special, "biggest_run", flow.biggestRun);
  }

  void writePlayer(const Doer& who, pugi::xml_node element) const {
    const ForeignPlayer& player = team(*who.team).players[static_cast<std::size_t>(who.player)];
    const Whose whose{*who.team, who.player, kWholeGame, &player.official};
    const NameParts name = partsOfName(player.name);
    const bool hasPlayed = m_box.hasPlayed(who) || figure(whose, "seconds", "seconds") > 0;
    constexpr std::array kPositions = {"C", "F", "G"};
    const auto position = static_cast<std::size_t>(player.position);
    setAttribute(element, "uni", player.jersey);
    setAttribute(element, "code", player.id.empty() ? player.jersey : player.id);
    setAttribute(element, "name", name.given.empty() ? name.family : name.family + ", " + name.given);
    setAttribute(element, "checkname", bbGameCallName(player));
    setAttribute(element, "class", "");
    setAttribute(element, "gp", hasPlayed ? 1 : 0);
    setAttribute(element, "gs", player.isStarter ? 1 : 0);
    setAttribute(element, "pos", position < kPositions.size() ? kPositions[position] : "");
    setAttribute(element, "oncourt", m_box.isOnCourt(who) ? "Y" : "N");
    pugi::xml_node stats = element.append_child("stats");
    writePeriod(whose, stats);
    writeMinutes(whose, stats);
    if (hasPlayed)
      writePeriods(whose, element);
  }
  void writeTeamRow(Side side, pugi::xml_node element) const {
    setAttribute(element, "uni", bbgame::kTeamNumber);
    setAttribute(element, "code", bbgame::kTeamNumber);
    setAttribute(element, "name", bbgame::kTeamName);
    setAttribute(element, "checkname", bbgame::kTeamName);
    pugi::xml_node stats = element.append_child("stats");
    setAttribute(stats, "pf", 0);
    for (const bbgame::SharedNumber& each : bbgame::kSharedNumbers)
      setAttribute(
          stats, each.attribute,
          figure({side, BbGameBox::kTeamRow, kWholeGame, &team(side).official}, each.ofRow, each.attribute));
    writeRebounds(stats);
  }

  void writePlays(pugi::xml_node plays) {
    setAttribute(plays, "format", "tokens");
    for (int period = 1; period <= m_periods; ++period) {
      pugi::xml_node element = plays.append_child("period");
      setAttribute(element, "number", period);
      setAttribute(element, "time", Module1::clockText(minutesOf(period) * kMinute));
      setAttribute(element, "periodtype", period > m_game.periods ? "OVERTIME" : "REGULAR");
      for (const Side side : kSides) {
        pugi::xml_node summary = element.append_child("summary");
        setAttribute(summary, "vh", bbgame::kSideLetters[side]);
        writePeriod({side, BbGameBox::kWholeTeam, period}, summary);
        writeSpecial(side, period, element);
      }
      m_rows.write(period, element);
    }
  }

  const ForeignGame& m_game;
  BbGameBox m_box;
  ScoreFlow m_flow;
  BbGamePlayRows m_rows;
  int m_periods = 0;
  bool m_saysDrawn = false; // who was fouled
};

} // namespace

std::string writeBbGame(const ForeignGame& game) {
  return Writer(game).text();
}

} // namespace hooptab
