// The order of a league's table, and the insight that a season keeps of its games.
#include "catalogue/SeasonFolder.h"
#include "insight/GameInsight.h"
#include "insight/SignedText.h"
#include "season/Standings.h"
#include "simulator/SampleSeason.h"
#include "support/SharedGames.h"

#include <bit>
#include <gtest/gtest.h>

using namespace hooptab;

namespace {

// Games of teams that are letters: "A80B70" is a game of A at B.
class League {
 public:
  void add(const std::string& game) {
    const std::size_t second = game.find_first_not_of("0123456789", 1);
    std::string events;
    int key = 0;
    for (const auto& [side, points] :
         {std::pair("0-4", game.substr(1, second - 1)), std::pair("1-7", game.substr(second + 1))}) {
      for (int i = 0; i < std::stoi(points); ++i)
        events += std::to_string(++key) + "=09:00,GFT," + side + "\n";
    }
    const std::string day = std::to_string(10 + ++m_games);
    m_folder.add(day + ".GAM", "[DETAILS]\nVERSION=2.0\nTERMINE=1\nDUREE=10\nDATE=2026-01-" + day + "\n" +
                                   m_details + "EQUIPE0ABB=" + game[0] +
                                   "\nEQUIPE0CAT=A\nEQUIPE1ABB=" + game[second] +
                                   "\nEQUIPE1CAT=A\n[0]\n4=0,Ann\n[1]\n7=0,Ida\n[PERIODE1]\n" + events);
  }
  explicit League(std::initializer_list<const char*> games, std::string details = {},
                  PracticeGames practice = PracticeGames::LeftOut)
      : m_details(std::move(details)) {
    for (const char* game : games)
      add(game);
    const GameCatalogue& catalogue = m_folder.scan();
    standings = std::make_unique<Standings>(catalogue, catalogue.select({}), practice);
    for (const Standing& row : standings->rows())
      order += catalogue.teams()[row.team].abbreviation;
  }

  std::unique_ptr<Standings> standings;
  std::string order;

 private:
  std::string m_details;
  SeasonFolder m_folder;
  int m_games = 0;
};

TEST(StandingsTable, CountsWinsPlacesStreakAndGamesBehind) {
  const League league{"A9B5", "B7A6", "A8C2", "C3A4", "B5C5"};
  EXPECT_EQ(league.order, "ABC");
  const auto& rows = league.standings->rows();
  EXPECT_EQ(balanceText(rows[0].all), "3–1");
  EXPECT_EQ(balanceText(rows[0].home), "1–1") << "lost to B at home";
  EXPECT_EQ(balanceText(rows[0].away), "2–0");
  EXPECT_EQ(balanceText(rows[2].all), "0–2–1");
  EXPECT_EQ(shareText(rows[0]), ".750");
  EXPECT_EQ(shareText(rows[1]), ".500");
  EXPECT_EQ(behindText(rows[0]), "–");
  EXPECT_EQ(behindText(rows[1]), "1.0");
  EXPECT_EQ(behindText(rows[2]), "2.0");
  EXPECT_EQ(streakText(rows[0], Texts()), "W2");
  EXPECT_EQ(streakText(rows[2], Texts()), "T1");
  EXPECT_EQ(signedText(rows[0].difference(), 1), "+2.5");
  EXPECT_EQ(signedText(rows[2].difference(), 1), "−2.3");
  EXPECT_EQ(signedText(-0.04, 1), "0.0");
}

TEST(StandingsTable, GamesBetweenTeamsComeBeforeTheDifferenceOfAll) {
  // A and B won two of three; B has the better difference, A won their game.
  EXPECT_EQ(League({"A5B4", "B30C1", "B30D1", "A9C8", "D9A8", "D2C9"}).order.substr(0, 2), "AB");
  // They have not met: the difference of all games decides.
  EXPECT_EQ(League({"B30C1", "A9C8"}).order, "BAC");
}

TEST(StandingsTable, ATableOfThreeTeamsPartsThemAndTheRestHasItsOwn) {
  // A, B and C beat each other in a ring, with +9, -9 and 0 points among them.
  EXPECT_EQ(League({"A20B10", "B13C12", "C15A14", "D8A9", "D8B9", "D8C9"}).order, "ACBD");
  // With +6, -3 and -3 it parts A alone: of the others B won their game, though C has the better difference.
  EXPECT_EQ(League({"A20B12", "B13C8", "C15A13", "A9D8", "B9D8", "C40D1"}).order, "ABCD");
}

// A and B won one of two against each other, A by more; B has the better difference of all, and won against
// D, which leads them; A won against C, which is behind them.
TEST(StandingsTable, TheRulesThatGamesNamePartEqualTeams) {
  const auto games = {"A20B10", "B12A11", "D9A8", "B9D8", "A9C8", "C9B8", "D9C8", "D9C7", "B30E1", "A9E8"};
  EXPECT_EQ(League(games).order, "DABCE") << "FIBA's: the difference between them";
  EXPECT_EQ(League(games, "REGLES=FIBAJEUNES\n").order, "DABCE");
  const League nba(games, "REGLES=NBA\n");
  EXPECT_EQ(nba.order, "DBACE") << "the difference of all games";
  EXPECT_TRUE(tiesText(nba.standings->ties(), Texts()).starts_with("Ties: NBA – "));
  // With more points against C instead: who won against the best is first.
  const auto others = {"A20B10", "B12A11", "D9A8", "B9D8", "A90C8", "C9B8", "D9C8", "D9C7"};
  EXPECT_EQ(League(others, "REGLES=NBA\n").order, "DABC");
  EXPECT_EQ(League(others, "REGLES=NCAA\n").order, "DBAC");
  // Between three in a ring all have the same difference: the points of these games part them.
  EXPECT_EQ(League({"A9B7", "B6C4", "C5A3"}).order, "BAC");
}

TEST(StandingsTable, PracticeCountsOnlyWhereItIsAskedFor) {
  const auto games = {"A9B5", "B7A6"};
  EXPECT_EQ(League(games, "TYPE=0\n").order, "");
  EXPECT_EQ(League(games, "TYPE=0\n", PracticeGames::Counted).order.size(), 2U);
  EXPECT_EQ(League(games, "TYPE=2\n").order.size(), 2U);
}

// What the season sums against the insight of each game, which nothing of the season is asked for.
void expectTheSumsOfInsight(const std::vector<std::filesystem::path>& paths) {
  SeasonFolder season;
  std::map<std::string, CourtShare> expected; // by team, jersey and name
  std::map<std::string, int> possessions;     // by team
  for (const auto& path : paths) {
    std::filesystem::copy_file(path, season.folder().path(path.filename().string()));
    Game game;
    readGame(ProfileText(bytesOf(path)), game);
    const GameInsight insight = insightOf(game);
    for (const Side team : kSides) {
      const std::string key = game.details.abbreviation[team] + "-" + game.details.category[team];
      possessions[key] += insight.whole.possessions[team];
      for (int entry = 1; entry < static_cast<int>(GameState::kPlayerEntries); ++entry) {
        CourtShare share = insight.players[team][static_cast<std::size_t>(entry)];
        if (share.isEmpty())
          continue;
        if (team != kOwnSide) {
          std::swap(share.counters[Side::Visitor], share.counters[Side::Home]);
          std::swap(share.possessions[Side::Visitor], share.possessions[Side::Home]);
        }
        const RosterPlayer& player = *game.roster[team].player(entry);
        expected[key + "|" + std::to_string(std::stoi(player.jersey)) + "|" + player.name] += share;
      }
    }
  }
  const SeasonStatistics statistics = season.statistics();
  ASSERT_GT(statistics.players().size(), 10U);
  for (const SeasonRow& row : statistics.players()) {
    const std::string team = statistics.catalogue().teams()[row.team].key;
    CourtShare share = expected[team + "|" + std::to_string(std::stoi(row.number)) + "|" + row.name];
    share.seconds = row.onCourt.seconds; // the tally's, which clocks set back may part from the walk's
    EXPECT_EQ(row.onCourt, share) << team << " " << row.number;
  }
  for (const SeasonTeamRow& team : statistics.teams())
    EXPECT_EQ(team.counted.possessions[kOwnSide], possessions[statistics.catalogue().teams()[team.team].key]);
}

TEST(SeasonInsight, PlayersOnCourtAreTheSumsOfTheGames) {
  const TemporaryFolder folder;
  FileSystem files;
  ProfileStore store{files};
  const SampleSeason season(12, 5);
  std::vector<std::filesystem::path> paths;
  for (int i = 0; i < 12; ++i) {
    paths.push_back(folder.path(std::to_string(i) + ".GAM"));
    ASSERT_TRUE(store.write(paths.back().string(), season.game(i).batch()).isOnDisk());
  }
  expectTheSumsOfInsight(paths);
  if (sharedGames().size() > 9)
    expectTheSumsOfInsight(sharedGames());
}

// A team has a hundred lines in a game; players keep their share of those behind.
TEST(SeasonInsight, LinesBehindTheHundredthAreThePlayersStill) {
  std::string roster;
  for (int jersey = 4; jersey < 14; ++jersey)
    roster += std::to_string(jersey) + "=0,Player " + static_cast<char>('A' + jersey) + "\n";
  std::string events;
  int key = 0;
  int clock = 600;
  for (unsigned five = 0; five < 1U << 10U && clock > 450; ++five) {
    if (std::popcount(five) != 5)
      continue;
    std::string list = "IN";
    for (int i = 0; i < 10; ++i)
      list +=
          (five >> static_cast<unsigned>(i) & 1U) != 0 ? (i < 6 ? "-0" : "-") + std::to_string(i + 4) : "";
    const std::string time = (clock < 600 ? "0" : "") + std::to_string(clock / 60) + ":" +
                             (clock % 60 < 10 ? "0" : "") + std::to_string(clock % 60);
    events += std::to_string(++key) + "=" + time + ",ARRET," + list + ",IN-07\n";
    events += std::to_string(++key) + "=" + time + ",GFG,1-7\n";
    --clock;
  }
  const TemporaryFolder folder;
  (void)folder.write("many.GAM",
                     "[DETAILS]\nVERSION=2.0\nTERMINE=1\nDUREE=10\nDATE=2026-01-01\nEQUIPE0ABB=PAN\n"
                     "EQUIPE0CAT=A\nEQUIPE1ABB=OLY\nEQUIPE1CAT=A\n[0]\n" +
                         roster + "[1]\n7=0,Ida\n[PERIODE1]\n" + events);
  expectTheSumsOfInsight({folder.path("many.GAM")});
}

} // namespace
