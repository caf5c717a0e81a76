// How a game stands at its events: possessions by the rules that insight/Possessions.h gives, stints,
// elapsed time.
#include "insight/GameWalk.h"

#include "extracts/GameTables.h"
#include "support/Json.h"
#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace hooptab;

namespace {

// Of each event "0:3": the team with the ball and the number of the possession; "-" where nobody has it.
std::string possessionsIn(const std::string& lines, const std::string& details = {}) {
  const Game game = gameOfText(textOfGame("[PERIODE1]\n" + lines, details));
  std::string all;
  for (const WalkedEvent& event : walkGame(game).events)
    all += (all.empty() ? "" : " ") + (event.withBall ? std::to_string(numberOf(*event.withBall)) + ':' +
                                                            std::to_string(event.possession)
                                                      : "-");
  return all;
}

TEST(Possessions, EndWithABasketAReboundAndATurnover) {
  EXPECT_EQ(
      possessionsIn("1=10:00,DEPART\n2=09:40,GFG,0-4\n3=09:40,SA,0-5\n4=09:20,GFGA,1-7\n5=09:19,SOR,1-7\n"
                    "6=09:10,GF3A,1-7\n7=09:08,SDR,0-4\n8=09:00,STO,0-4\n9=08:59,SST,1-7\n"
                    "10=08:50,GFG,1-7\n"),
      "- 0:1 0:1 1:2 1:2 1:2 1:2 0:3 0:3 1:4");
  EXPECT_EQ(possessionsIn("1=09:40,GFGA,0-4\n2=09:40,XOR,0\n3=09:35,GFGA,0-4\n4=09:33,XDR,1\n5=09:20,XTV,1\n"
                          "6=09:20,XTO,0\n7=09:10,XTO,0\n8=09:00,GFG,0-4\n"),
            "0:1 0:1 0:1 0:1 1:2 1:2 0:3 0:3")
      << "the team's own, and a time-out at a later clock is in the next possession";
}

TEST(Possessions, GoOnThroughFreeThrows) {
  EXPECT_EQ(possessionsIn("1=09:40,GFG,0-4\n2=09:40,SPF,1-7\n3=09:40,GFT,0-4\n4=09:20,GFG,1-7\n"),
            "0:1 0:1 0:1 1:2")
      << "a basket and one";
  EXPECT_EQ(
      possessionsIn("1=09:40,GFG,0-4\n2=09:38,SPF,1-7\n3=09:38,GFTA,0-4\n4=09:37,SOR,0-5\n5=09:30,GFG,0-5\n"),
      "0:1 0:1 0:1 0:1 0:1")
      << "a foul that is written two seconds later, and the rebound of its throw";
  EXPECT_EQ(
      possessionsIn("1=09:40,SPF,1-7\n2=09:40,GFT,0-4\n3=09:40,GFTA,0-4\n4=09:39,SDR,1-7\n5=09:20,STO,1-7\n"),
      "- 0:1 0:1 0:1 1:2");
  EXPECT_EQ(
      possessionsIn("1=09:50,GFGA,0-4\n2=09:50,SOR,0-4\n3=09:40,STF,1-7\n4=09:40,GFT,0-5\n5=09:30,STO,0-4\n"
                    "6=09:20,STF,0-4\n7=09:20,GFT,1-7\n8=09:10,GFG,1-7\n"),
      "0:1 0:1 0:1 0:1 0:1 1:2 1:2 1:2")
      << "throws of a technical foul interrupt it";
  EXPECT_EQ(possessionsIn("1=09:50,STO,1-7\n2=09:40,SPF,1-7,K=U,F=2\n3=09:40,GFT,0-4\n4=09:40,GFT,0-4\n"
                          "5=09:30,GFG,0-4\n"),
            "1:1 0:2 0:2 0:2 0:2")
      << "the ball stays with who shot those of an unsportsmanlike foul";
}

TEST(Possessions, ChangeWithoutAnEventToo) {
  EXPECT_EQ(possessionsIn("1=09:40,GFGA,0-4\n2=09:20,GFGA,1-7\n"), "0:1 1:2")
      << "the rebound was not recorded";
  EXPECT_EQ(possessionsIn("1=09:40,GFG,0-4\n2=09:20,GFG,0-4\n"), "0:1 0:3")
      << "the other team had the ball meanwhile";
  EXPECT_EQ(possessionsIn("1=10:00,XJB,0-4,1-7,W=1\n2=09:40,SPF,0-4\n3=E09:30,GFG,0-4\n4=09:20,GFG,1-7\n"
                          "5=09:18,ARRET\n[PERIODE2]\n6=10:00,DEPART\n7=09:50,GFG,1-7\n"),
            "1:1 1:1 1:1 1:1 - 1:2")
      << "a jump ball; a deleted event is none; the clock alone begins none; a period begins with nobody's";
}

TEST(GameWalk, TellsStintsAndElapsedSeconds) {
  const Game game = gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n3=10:00,DEPART\n"
      "4=09:30,GF3,0-4\n5=09:00,ARRET,IN-15-12-10-05-04,IN-03-07-08-11-22\n6=09:00,DEPART\n"
      "7=08:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n8=08:00,DEPART\n9=07:30,GFG,1-7\n"
      "10=00:00,ARRET,IN-000-05-10-12-15,IN-03-07-08-11-22\n"
      "[PERIODE5]\n11=05:00,DEPART\n12=04:50,STO,0-00\n13=04:00,ARRET,IN-,IN-\n"));
  const GameWalk walk = walkGame(game);
  ASSERT_EQ(walk.stints.size(), 3U);
  EXPECT_EQ(walk.stints[0].seconds, 120) << "the same ten in another order";
  EXPECT_EQ(walk.stints[0].points, (PerSide<int>{3, 0}));
  EXPECT_EQ(walk.stints[1].onCourt[Side::Visitor], (std::vector<std::string>{"00", "5", "10", "12", "15"}));
  EXPECT_EQ(walk.stints[1].seconds, 480);
  EXPECT_EQ(walk.stints[1].possessions, (PerSide<int>{0, 1}));
  EXPECT_EQ(walk.stints[2].period, 5) << "a period begins another one";
  EXPECT_EQ(walk.stints[2].seconds, 60);
  EXPECT_EQ(walk.stints[2].startClock, 300);
  EXPECT_EQ(walk.events[0].stint, 0);
  EXPECT_EQ(walk.events[3].elapsed, 30);
  EXPECT_EQ(walk.events[11].elapsed, 4 * 600 + 10) << "two periods without events, and an overtime";
  EXPECT_EQ(walk.events[8].before, (PerSide<int>{3, 0}));
  EXPECT_EQ(walk.events[8].after, (PerSide<int>{3, 2}));
}

TEST(GameWalk, TakesNumbersThatNoGameHas) {
  const Game game = gameOfText("[DETAILS]\nVERSION=2.0\nNBREPERIODE=2000000000\nDUREE=99\n[PERIODE1]\n"
                               "1=99:59,GFG,0-4\n[PERIODE999999999]\n2=10:00,STO,0-4\n");
  EXPECT_EQ(walkGame(game).events.size(), 2U);
  EXPECT_GE(walkGame(game).events[1].elapsed, walkGame(game).events[0].elapsed);
}

// --- Whole games

class WholeGame : public testing::TestWithParam<std::filesystem::path> {
 protected:
  WholeGame() {
    FileSystem files;
    ProfileStore store(files);
    EXPECT_EQ(GameFile(store, GetParam().string()).read(m_counted.game), GameFileProblem::None);
    m_counted.state = tallied(m_counted.game);
    m_walk = walkGame(m_counted.game);
  }
  CountedGame m_counted;
  GameWalk m_walk;
};

TEST_P(WholeGame, HasThePlayersSecondsAndPlusMinusInItsStints) {
  const std::string path = std::filesystem::path(GetParam()).replace_extension(".json").string();
  const Json box = std::filesystem::exists(path) ? Json::ofFile(path) : Json();
  for (const Side team : kSides) {
    std::map<std::string, std::pair<int, int>>
        sums; // by jersey, of seconds and of points more than the other team
    for (const Stint& stint : m_walk.stints) {
      for (const std::string& jersey : stint.onCourt[team]) {
        sums[jersey].first += stint.seconds;
        sums[jersey].second += stint.points[team] - stint.points[otherSide(team)];
      }
    }
    const Roster& roster = m_counted.game.roster[team];
    for (int entry = 1; roster.player(entry) != nullptr && entry <= Roster::kLargestEntry; ++entry)
      EXPECT_EQ(sums[roster.player(entry)->jersey].first,
                m_counted.state.players[team][static_cast<std::size_t>(entry)].seconds)
          << roster.player(entry)->jersey;
    // Officially known of the real games alone.
    for (const Json& player :
         box.isNull() ? Json::Array()
                      : box["teams"][static_cast<std::size_t>(numberOf(team))]["players"].array()) {
      const std::string& jersey = player["jersey"].text();
      EXPECT_TRUE(player["plusminus"].isNull() || sums[jersey].second == player["plusminus"].integer())
          << jersey;
    }
  }
}

TEST_P(WholeGame, HasPossessionsThatAlternateAndComeToNearlyAsMany) {
  std::map<int, std::optional<Side>> teams; // by number
  int period = 0;
  int previous = 0;
  for (const WalkedEvent& event : m_walk.events) {
    if (event.possession == 0)
      continue;
    EXPECT_GE(event.possession, previous);
    const auto [known, isNew] = teams.emplace(event.possession, event.withBall);
    EXPECT_EQ(known->second, event.withBall) << event.possession;
    const int now = m_counted.game.events[event.place].period;
    if (now == period && isNew) {
      EXPECT_EQ((event.possession - previous) % 2 == 0, teams[previous] == event.withBall);
    }
    period = now;
    previous = event.possession;
  }
  EXPECT_EQ(m_walk.possessions[Side::Visitor] + m_walk.possessions[Side::Home], previous);
  // Each period can give one team one more.
  EXPECT_LE(std::abs(m_walk.possessions[Side::Visitor] - m_walk.possessions[Side::Home]), period);
}

TEST_P(WholeGame, HasTheSameSumsInTheTablesOfEventsAndPlayers) {
  const auto rows = tableRows(ExtractSource{m_counted});
  const auto cell = [](GameTable table, const std::vector<std::string>& row, const char* name) {
    const std::vector<std::string> names = tableColumns(table);
    return row[static_cast<std::size_t>(std::ranges::find(names, name) - names.begin())];
  };
  std::map<std::string, int> ofEvents;
  for (const auto& row : rows[static_cast<std::size_t>(GameTable::Events)]) {
    const auto of = [&](const char* name) { return cell(GameTable::Events, row, name); };
    ++ofEvents[of("side") + of("jersey") + of("kind")];
    ofEvents[of("side") + of("jersey") + "points"] += std::atoi(of("points").c_str());
  }
  for (const auto& row : rows[static_cast<std::size_t>(GameTable::Players)]) {
    const auto of = [&](const char* name) { return cell(GameTable::Players, row, name); };
    for (const auto& [column, kind] : {std::pair("points", "points"),
                                       {"fg3_attempted", "three_pointer"},
                                       {"ft_attempted", "free_throw"},
                                       {"turnovers", "turnover"},
                                       {"personal_fouls", "personal_foul"},
                                       {"assists", "assist"}})
      EXPECT_EQ(ofEvents[of("side") + of("jersey") + kind], std::atoi(of(column).c_str()))
          << of("side") << ' ' << of("jersey") << ' ' << column;
  }
}

std::string nameOfGame(const testing::TestParamInfo<std::filesystem::path>& info) {
  std::string name = std::to_string(info.index) + '_' + info.param.stem().string();
  std::ranges::replace_if(
      name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}
INSTANTIATE_TEST_SUITE_P(Games, WholeGame, testing::ValuesIn(realOrSampleGames()), nameOfGame);

} // namespace
