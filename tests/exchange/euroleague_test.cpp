#include "exchange/GameBuilder.h"
#include "exchange/GameReading.h"
#include "exchange/Reconciliation.h"
#include "foreign/ExchangeNote.h"
#include "livedata/EuroLeagueReader.h"
#include "livedata/EuroLeagueWriter.h"
#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <ostream>
#include <sstream>

using namespace hooptab;

namespace {

const std::string kId(32, 'a');

// A row of a play-by-play: "CM ANA P1 09:07"; "-" for nothing. Players wear the digits of their ids.
Json play(const std::string& text) {
  static int number = 0;
  std::istringstream words(text);
  std::string type, team, id, clock;
  words >> type >> team >> id >> clock;
  const auto said = [](const std::string& word) { return word == "-" ? std::string("  ") : word + "   "; };
  return {{"PLAYTYPE", type + "  "}, {"CODETEAM", said(team)}, {"PLAYER_ID", said(id)},
          {"MARKERTIME", clock},     {"DORSAL", id.substr(1)}, {"PLAYER", "ROY, " + id},
          {"NUMBEROFPLAY", ++number}};
}
Json plays(const std::map<std::string, std::vector<std::string>>& lists) {
  Json document = {
      {"TeamA", "Pumas"}, {"TeamB", "Lynx"}, {"CodeTeamA", "PUM  "}, {"CodeTeamB", "LYN  "}, {"Live", false}};
  for (const auto& [list, rows] : lists) {
    for (const std::string& row : rows)
      document[list].push_back(play(row));
  }
  return document;
}

// "SPF 0-1 D1-0 09:07": what it is, whose, with whom, when.
std::string shortly(const ForeignEvent& event) {
  static const std::map<ForeignKind, std::string> kNames = {{ForeignKind::In, "IN"},
                                                            {ForeignKind::Out, "OUT"},
                                                            {ForeignKind::PeriodStart, "START"},
                                                            {ForeignKind::PeriodEnd, "END"}};
  const auto who = [](const Doer& doer) {
    return std::to_string(numberOf(*doer.team)) + (doer.isPlayer() ? "-" + std::to_string(doer.player) : "");
  };
  std::string text = std::to_string(event.period) + " " + Module1::clockText(event.centiseconds / 100) + " ";
  text += event.kind == ForeignKind::Event ? std::string(kindOf(event.code)->text) : kNames.at(event.kind);
  if (event.doer.team)
    text += " " + who(event.doer);
  if (event.other.team)
    text += " D" + who(event.other);
  return text + (event.detail.empty() ? "" : " " + event.detail) +
         (event.belongsTo < 0 ? "" : " of " + std::to_string(event.belongsTo));
}
std::vector<std::string> eventsOf(const ForeignGame& game) {
  std::vector<std::string> events;
  for (const ForeignEvent& event : game.events)
    events.push_back(shortly(event));
  return events;
}

std::vector<std::pair<double, double>> placesOf(const ForeignGame& game) {
  std::vector<std::pair<double, double>> places;
  for (const ForeignEvent& event : game.events) {
    if (event.place)
      places.push_back(*event.place);
  }
  return places;
}

ForeignGame writtenAndRead(const ForeignGame& game) {
  const Json box = parseJson(writeEuroLeagueBox(game));
  const Json points = parseJson(writeEuroLeaguePoints(game));
  return readEuroLeague(parseJson(writeEuroLeaguePlayByPlay(game)), &box, &points);
}

} // namespace

TEST(EuroLeagueReaderTest, BringsTogetherWhatBelongsTogether) {
  const ForeignGame game = readEuroLeague(
      plays({{"FirstQuarter",
              {"BP - - -",          "RV PUM P1 09:00",   "CM LYN P2 09:00",    "CM LYN P3 08:50",
               "IN LYN P4 08:50",   "RV PUM P5 08:50",   "OF PUM P1 08:40",    "TO PUM P1 08:40",
               "RV LYN P2 08:40",   "AG PUM P5 08:30",   "2FGA PUM P5 08:30",  "FV LYN P3 08:28",
               "D LYN - 08:27",     "3FGM LYN P2 08:20", "AS LYN P3 08:18",    "TO PUM - 08:10",
               "ST LYN P4 08:09",   "C PUM CO_A 08:00",  "CMT PUM AC_A 08:00", "TOUT LYN - 08:00",
               "TOUT_TV - - 08:00", "RV PUM P1 07:50",   "CCH PUM - 07:50",    "NEW PUM P1 07:40",
               "AS PUM - 07:30"}}}),
      nullptr, nullptr);
  EXPECT_EQ(eventsOf(game),
            (std::vector<std::string>{"1 10:00 START", "1 09:00 SPF 0-0 D1-0 P", "1 08:50 SPF 0-1 D1-1 P",
                                      "1 08:50 IN 0-2", "1 08:40 SPF 1-0 D0-0 O", "1 08:40 STO 1-0 OFFENSIVE",
                                      "1 08:30 GFG 1-1", "1 08:28 SBS 0-1 D1-1 of 6", "1 08:27 XDR 0",
                                      "1 08:20 GF3 0-0", "1 08:18 SA 0-1 of 9", "1 08:10 XTV 1",
                                      "1 08:09 SST 0-2 of 11", "1 08:00 XCF 1 C", "1 08:00 XCF 1 B",
                                      "1 08:00 XTO 0 FULL", "1 08:00 XTO MEDIA"}));
  EXPECT_EQ(
      game.unknown,
      (std::map<std::string, int>{
          {"foul drawn without a foul", 1}, {"coach challenge", 1}, {"NEW", 1}, {"assist of nobody", 1}}));
  EXPECT_EQ(game.teams[Side::Visitor].players[0].name, "P2 ROY");
  EXPECT_FALSE(game.isFinished);
}

TEST(EuroLeagueReaderTest, BeginsAnOvertimeWithTheChangesBeforeIt) {
  const ForeignGame game = readEuroLeague(
      plays({{"ForthQuarter", {"BP - - -", "2FGM PUM P1 00:10", "EP - - -", "CMT LYN P9 05:00"}},
             {"ExtraTime",
              {"IN PUM P2 00:00", "BP - - -", "2FGM LYN P9 00:00", "EP - - -", "OUT PUM P2 05:00", "BP - - -",
               "FTM PUM P1 00:07", "EP - - -", "EG - - -"}}}),
      nullptr, nullptr);
  EXPECT_EQ(eventsOf(game),
            (std::vector<std::string>{"4 10:00 START", "4 00:10 GFG 1-0", "4 00:00 END", "5 05:00 START",
                                      "5 05:00 STF 0-0", "5 05:00 IN 1-1", "5 00:00 GFG 0-0", "5 00:00 END",
                                      "6 05:00 START", "6 05:00 OUT 1-1", "6 00:07 GFT 1-0", "6 00:00 END"}));
  EXPECT_TRUE(game.isFinished);
}

TEST(EuroLeagueReaderTest, GoesByTheMinuteWhereAClockContradictsIt) {
  Json document = plays(
      {{"SecondQuarter", {"2FGA PUM P1 02:00", "IN PUM P2 03:00", "2FGA PUM P1 01:58", "D LYN P3 02:01"}}});
  for (std::size_t i = 0; i < 4; ++i)
    document["SecondQuarter"][i]["MINUTE"] = i < 2 ? 18 : 19;
  document["SecondQuarter"][3]["MINUTE"] = 7; // says nothing that fits
  const ForeignGame game = readEuroLeague(document, nullptr, nullptr);
  EXPECT_EQ(eventsOf(game), (std::vector<std::string>{"2 10:00 START", "2 02:00 GFG 1-0", "2 02:00 IN 1-1",
                                                      "2 01:58 GFG 1-0", "2 02:01 SDR 0-0"}));
  EXPECT_EQ(game.notes.back(), (ExchangeNote{Text::EuroLeagueSlips, "1"}));
}

TEST(EuroLeagueReaderTest, TakesPlacesFromTheShotsAndTeamsByTheirCodes) {
  const Json document =
      plays({{"FirstQuarter", {"2FGM PUM P1 09:00", "FTM LYN P2 08:00", "2FGA PUM P1 07:00"}}});
  const auto number = [&](std::size_t i) { return document["FirstQuarter"][i]["NUMBEROFPLAY"]; };
  const Json points = {{"Rows",
                        {{{"NUM_ANOT", number(1)},
                          {"TEAM", "LYN "},
                          {"ID_PLAYER", "P2"},
                          {"COORD_X", -1},
                          {"COORD_Y", -1},
                          {"UTC", "20240229235959"},
                          {"POINTS", 1},
                          {"POINTS_A", 0},
                          {"POINTS_B", 1}},
                         {{"NUM_ANOT", number(0)},
                          {"TEAM", "PUM "},
                          {"ID_PLAYER", "P1"},
                          {"COORD_X", 75},
                          {"COORD_Y", -15},
                          {"FASTBREAK", "1"},
                          {"UTC", "20240301000001"}},
                         {{"NUM_ANOT", number(2)}, {"ID_PLAYER", "P2"}, {"COORD_X", 0}, {"COORD_Y", 9}},
                         {{"NUM_ANOT", 4711}}}}};
  const Json box = {
      {"Stats",
       {{{"Team", "LYNX"},
         {"PlayersStats",
          {{{"Team", "LYN"},
            {"Player_ID", "P2  "},
            {"Dorsal", "8"},
            {"IsStarter", 1},
            {"Minutes", "DNP"},
            {"Turnovers", 2}}}},
         {"tmr", {{"Turnovers", 1}}},
         {"totr", {{"Turnovers", 3}}}},
        {{"Team", "PUMAS"},
         {"Coach", "GAGNON, DI"},
         {"PlayersStats", {{{"Team", "PUM"}, {"Player", "LAVOIE, BO"}}}}}}},
      {"ByQuarter", {{{"Team", "PUMAS"}, {"Quarter1", 2}}, {{"Team", "LYNX"}, {"Quarter1", 1}}}},
      {"Referees", "ROY, ANA, PETIT, GUS"}};
  const ForeignGame game = readEuroLeague(document, &box, &points);
  ASSERT_TRUE(game.events[1].place);
  EXPECT_NEAR(game.events[1].place->first, 19, 0.001);
  EXPECT_NEAR(game.events[1].place->second, 110, 0.001);
  EXPECT_TRUE(game.events[1].isFastBreak);
  EXPECT_EQ(game.events[1].wallClock, 1709251201000);
  EXPECT_FALSE(game.events[3].place); // the row is another player's
  EXPECT_EQ(game.notes.back(), (ExchangeNote{Text::EuroLeagueLostShots, "2"}));
  EXPECT_EQ(game.date, "2024-02-29");
  EXPECT_EQ(game.referees, "ANA ROY, GUS PETIT");
  EXPECT_EQ(game.teams[Side::Home].coach, "DI GAGNON");
  EXPECT_EQ(game.teams[Side::Home].pointsOfPeriod, (std::vector<int>{2}));
  EXPECT_TRUE(game.teams[Side::Visitor].players[0].isStarter);
  EXPECT_EQ(game.teams[Side::Visitor].official.at("TO").value, 2);
  EXPECT_EQ(game.teams[Side::Visitor].official.at("teamRow.TO").value, 1);
  EXPECT_EQ(recogniseEuroLeague(document)->game, "PUM/LYN");
  EXPECT_EQ(recogniseEuroLeague(points)->game, "PUM/LYN"); // the first points were not of team A
  EXPECT_EQ(recogniseEuroLeague(points)->players, (std::set<std::string>{"P1", "P2"}));
  EXPECT_EQ(recogniseEuroLeague(box)->role, SourceRole::Box);
}

TEST(EuroLeagueReaderTest, TellsWhatIsNoGame) {
  const auto problemWith = [](const Json& document) {
    try {
      static_cast<void>(readEuroLeague(document, &document, &document));
    } catch (const UnreadableGame& unreadable) {
      return unreadable.why().text;
    }
    return Text::None;
  };
  Json document = plays({{"FirstQuarter", {"BP - - -"}}});
  EXPECT_EQ(problemWith(document), Text::EuroLeagueNoPlays);
  document["CodeTeamB"] = "PUM";
  EXPECT_EQ(problemWith(document), Text::EuroLeagueWithout);
  for (const char* other :
       {"[]", "3", "{}", R"({"Rows":[1]})", R"({"Stats":[[]]})", R"({"CodeTeamA":"A"})"}) {
    EXPECT_EQ(problemWith(parseJson(other)), Text::EuroLeagueWithout) << other;
    EXPECT_FALSE(recogniseEuroLeague(parseJson(other))) << other;
  }
}

// Official numbers are those of the game that goes out; the one that comes back is counted anew.
TEST(EuroLeagueWriterTest, WhatGoesOutComesBack) {
  for (const std::filesystem::path& path : realOrSampleGames()) {
    SCOPED_TRACE(path.filename());
    const ProfileText text(bytesOf(path));
    Game own;
    readGame(text, own);
    if (own.details.inputType != 0 || own.details.periods != 4 || own.details.minutesPerPeriod != 10)
      continue;
    const ForeignGame out = foreignGameOf({own, tallied(own)}, text);
    const ForeignGame back = writtenAndRead(out);
    for (const Difference& difference : reconcile(back, buildGame(back, kId)))
      ADD_FAILURE() << difference.player << ' ' << difference.counter << ' ' << difference.ours << ' '
                    << difference.theirs;
    EXPECT_EQ(back.isFinished, out.isFinished);
    const auto placesOut = placesOf(out);
    const auto placesBack = placesOf(back);
    ASSERT_EQ(placesBack.size(), placesOut.size());
    for (std::size_t i = 0; i < placesOut.size(); ++i) {
      EXPECT_NEAR(placesBack[i].first, placesOut[i].first, 0.07) << i; // half a centimetre
      EXPECT_NEAR(placesBack[i].second, placesOut[i].second, 0.07) << i;
    }
    EXPECT_EQ(eventsOf(writtenAndRead(back)), eventsOf(back));
    EXPECT_EQ(writeEuroLeaguePlayByPlay(writtenAndRead(back)), writeEuroLeaguePlayByPlay(back));
    EXPECT_EQ(writeEuroLeaguePoints(writtenAndRead(back)), writeEuroLeaguePoints(back));
    EXPECT_EQ(writeEuroLeagueBox(writtenAndRead(back)), writeEuroLeagueBox(back));
  }
}

namespace {

// A league's game, and what its own box score has otherwise than its own play-by-play.
struct KnownGame {
  std::string name;
  int compared;
  std::vector<std::string> contradictions; // team, jersey, counter, ours less theirs
};
void PrintTo(const KnownGame& game, std::ostream* stream) {
  *stream << game.name;
}

std::vector<KnownGame> knownGames() {
  if (sharedFolders("exchange/euroleague").empty())
    return {};
  return {
      {"E2025-005", 480, {}},
      // The minutes of each team add up to 195 of 200: the five who finish the game are a minute short.
      {"E2025-021",
       480,
       {"0 1 seconds 60", "0 2 seconds 60", "0 8 seconds 60", "0 21 seconds 60", "0 45 seconds 60",
        "1 1 seconds 60", "1 2 seconds 60", "1 3 seconds 60", "1 17 seconds 60", "1 24 seconds 60"}},
      // Those who change between the fourth quarter and the overtime do so a minute later in the box score,
      // where one of them has shot already.
      {"E2024-035",
       482,
       {"0 8 seconds -60", "0 13 seconds 60", "1 4 seconds 60", "1 10 seconds -60", "1 31 seconds -60",
        "1 99 seconds 60"}},
  };
}

class EuroLeagueTruthTest : public testing::TestWithParam<KnownGame> {};

std::optional<Json> partOf(const KnownGame& game, const std::string& part) {
  const std::string bytes =
      bytesOf(sharedFolder() / "exchange" / "euroleague" / (game.name + '-' + part + ".json"));
  return bytes.empty() ? std::nullopt : std::optional(parseJson(bytes));
}

} // namespace

TEST_P(EuroLeagueTruthTest, CountsToWhatTheBoxScoreSays) {
  const std::optional<Json> box = partOf(GetParam(), "boxscore");
  const std::optional<Json> points = partOf(GetParam(), "points");
  const Json document = partOf(GetParam(), "playbyplay").value();
  const ForeignGame game = readEuroLeague(document, &box.value(), points ? &*points : nullptr);
  EXPECT_EQ(recogniseEuroLeague(document)->game, recogniseEuroLeague(*box)->game);
  if (points) {
    EXPECT_EQ(recogniseEuroLeague(document)->game, recogniseEuroLeague(*points)->game);
  }
  int compared = 0;
  std::vector<std::string> differences;
  for (const Difference& each : reconcile(game, buildGame(game, kId), &compared))
    differences.push_back(std::to_string(numberOf(each.team)) + ' ' +
                          each.player.substr(0, each.player.find(' ')) + ' ' + each.counter + ' ' +
                          std::to_string(each.ours - each.theirs));
  EXPECT_EQ(compared, GetParam().compared);
  EXPECT_EQ(differences, GetParam().contradictions);
  EXPECT_TRUE(game.isFinished);
}
INSTANTIATE_TEST_SUITE_P(RealGames, EuroLeagueTruthTest, testing::ValuesIn(knownGames()));
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(EuroLeagueTruthTest);
