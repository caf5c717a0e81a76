// What a game's events say with its line-ups: held against official box scores, and against the rules by
// which sums of players, lines and teams must agree.
#include "insight/GameInsight.h"

#include "insight/Combinations.h"
#include "insight/Rates.h"
#include "insight/Stretch.h"
#include "support/Json.h"
#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <numeric>
#include <string>

using namespace hooptab;

namespace {

const std::string kStart = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";

GameInsight insightInto(const std::string& lines, const std::string& details = {}) {
  return insightOf(gameOfText(textOfGame("[PERIODE1]\n" + kStart + lines, details)));
}
PointOrigins origins(const std::string& lines, Side team) {
  return insightInto(lines).origins[team];
}

TEST(Origins, PointsInThePaintAreTwosFromTheBoxAndKindsAtTheBasket) {
  const std::string shots =
      "3=09:50,GFG,0-4,77,67\n4=09:40,GFG,0-4,78,100\n5=09:30,GFG,0-4,50,66\n"
      "6=09:20,GDK,0-4\n7=09:10,GF3,0-4,30,100\n8=09:00,GFG,0-4\n9=08:50,GFGA,0-4,20,100\n";
  EXPECT_EQ(origins(shots, Side::Visitor).paint, 4); // the first and the dunk
}

TEST(Origins, TurnoversAndSecondChancesLastAsLongAsThePossession) {
  const std::string fromTurnover = "3=09:50,STO,1-3\n4=09:50,SST,0-4\n5=09:30,GFGA,0-4\n6=09:29,SOR,0-5\n"
                                   "7=09:25,GFG,0-5\n8=09:25,SPF,1-3,F=1\n9=09:25,GFT,0-5\n";
  const PointOrigins visitors = origins(fromTurnover, Side::Visitor);
  EXPECT_EQ(visitors.fromTurnovers, 3); // the throw that goes with the basket included
  EXPECT_EQ(visitors.secondChance, 3);
  const PointOrigins home = origins(fromTurnover + "10=09:00,GFG,1-3\n", Side::Home);
  EXPECT_EQ(home.fromTurnovers + home.secondChance, 0);
  const std::string unsportsmanlike =
      "3=09:50,STO,1-3\n4=09:45,SPF,1-3,K=U,F=2\n5=09:45,GFT,0-4\n6=09:45,GFT,0-4\n"
      "7=09:35,GF3,0-4\n";
  EXPECT_EQ(origins(unsportsmanlike, Side::Visitor).fromTurnovers, 2);
  EXPECT_EQ(
      origins("3=09:50,STO,1-3\n4=09:45,SPF,1-3,F=2\n5=09:45,STF,1-7,F=1\n6=09:45,GFT,0-5\n7=09:45,GFT,0-4\n"
              "8=09:45,GFT,0-4\n",
              Side::Visitor)
          .fromTurnovers,
      2);
  const std::string betweenThrows = "3=09:50,SPF,1-3,F=2\n4=09:50,GFTA,0-4\n5=09:50,XOR,0\n6=09:50,GFT,0-4\n";
  EXPECT_EQ(origins(betweenThrows, Side::Visitor).secondChance, 0);
  EXPECT_EQ(origins("3=09:50,GFTA,0-4\n4=09:49,SOR,0-5\n5=09:47,GFG,0-5\n", Side::Visitor).secondChance, 2);
  EXPECT_EQ(origins("3=09:50,STO,1-3\n4=09:30,GFGA,0-4\n5=09:29,SDR,1-3\n6=09:20,GFG,1-3\n", Side::Home)
                .fromTurnovers,
            0);
  EXPECT_EQ(
      insightInto("3=00:01,STO,1-3\n[PERIODE2]\n4=09:50,GFG,0-4\n").origins[Side::Visitor].fromTurnovers, 0);
}

TEST(Origins, QuickPointsComeSoonAfterTheBallAndFastBreaksWhereTheyWereRecorded) {
  const std::string lines =
      "3=09:50,GFGA,1-3\n4=09:49,SDR,0-4\n5=09:41,GFG,0-4\n6=09:20,GFGA,1-3\n7=09:19,SDR,0-4\n"
      "8=09:10,GFG,0-4\n";
  EXPECT_EQ(origins(lines, Side::Visitor).quick, 2);
  EXPECT_FALSE(origins(lines, Side::Visitor).fastBreak.has_value());
  const std::string whistled = "3=09:50,GFG,1-3\n4=09:30,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                               "5=09:30,XTO,1\n6=09:30,DEPART\n7=09:25,GFG,0-4\n";
  EXPECT_EQ(origins(whistled, Side::Visitor).quick, 0);
  const GameInsight recorded =
      insightInto(lines + "9=09:00,GFGA,1-3,60,100,Q=F\n10=08:50,GF3,0-4,130,100,Q=F\n");
  EXPECT_EQ(recorded.origins[Side::Visitor].fastBreak, 3);
  EXPECT_EQ(recorded.origins[Side::Home].fastBreak, 0);
  EXPECT_EQ(insightInto(lines, "DUREE=0\n").origins[Side::Visitor].quick, 0);
}

TEST(Insight, StartersAreThoseOnCourtWhenTheClockRunsFirst) {
  const GameInsight corrected =
      insightOf(gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-00,IN-03-07-08-11-22\n" +
                                      std::string("2=10:00,ARRET,IN-04-05-10-12-15,"
                                                  "IN-03-07-08-11-22\n3=10:00,DEPART\n4=09:00,ARRET,IN-00-05-"
                                                  "10-12-15,IN-03-07-08-11-22\n5=08:00,GFG,0-4\n"
                                                  "6=07:00,GFG,0-0\n"))));
  EXPECT_TRUE(corrected.isStarter(Side::Visitor, 1));
  EXPECT_FALSE(corrected.isStarter(Side::Visitor, 6));
  EXPECT_EQ(corrected.origins[Side::Visitor].bench, 2);
}

TEST(Insight, ClutchIsTheEndOfACloseGame) {
  const std::string last =
      "[PERIODE4]\n9=05:01,GFG,0-4\n10=05:00,GFG,0-4\n11=04:00,GF3,0-4\n12=03:00,GFG,1-3\n";
  const GameInsight insight = insightInto("3=09:00,GFG,1-3\n" + last);
  EXPECT_EQ(insight.clutch.points(Side::Visitor), 5); // at +5 the next basket still counts
  EXPECT_EQ(insight.clutch.points(Side::Home), 2);
}

TEST(Insight, KnowsNoBenchWhereNobodyRecordedWhoPlays) {
  const GameInsight oneSided = insightOf(gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-\n2=10:00,DEPART\n3=09:00,GFG,0-0\n4=08:30,GFG,1-3\n"
      "5=08:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n6=08:00,DEPART\n7=07:00,GFG,1-3\n")));
  EXPECT_EQ(oneSided.origins[Side::Visitor].bench, 2);
  EXPECT_EQ(oneSided.origins[Side::Home].bench, 0); // who came first starts
  EXPECT_FALSE(
      insightOf(gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4\n"))).origins[Side::Visitor].bench);
}

TEST(Insight, AnOvertimeIsClutchFromItsBeginning) {
  const GameInsight insight =
      insightInto("[PERIODE4]\n3=00:00,ARRET,,\n[PERIODE5]\n4=09:00,DEPART\n5=08:00,GFG,0-4\n");
  EXPECT_EQ(insight.clutch.points(Side::Visitor), 2);
  EXPECT_EQ(insight.clutch.seconds, 60);
  EXPECT_EQ(insightInto("3=01:00,GFG,0-4\n", "NBREPERIODE=0\n").clutch.points(Side::Visitor), 0);
}

TEST(Rates, FollowTheirFormulas) {
  const GameInsight insight =
      insightInto("3=09:50,GF3,0-4\n4=09:40,GFGA,1-3\n5=09:39,SDR,0-5\n6=09:30,GFGA,0-4\n"
                  "7=09:29,SOR,0-5\n8=09:20,STO,0-5\n9=09:20,SST,1-3\n10=09:00,GFT,1-3\n"
                  "11=09:00,GFTA,1-3\n12=08:50,ARRET,,\n");
  const RateBasis visitors = RateBasis::ofAll(Side::Visitor, insight.whole);
  const auto value = [&visitors](std::string_view name) { return *rateNamed(name).value(visitors); };
  EXPECT_DOUBLE_EQ(value("eFG"), 0.75);
  EXPECT_DOUBLE_EQ(value("TS"), 3.0 / 4);
  EXPECT_DOUBLE_EQ(value("TOrate"), 100.0 / 3);
  EXPECT_DOUBLE_EQ(value("ORpct"), 1.0);
  EXPECT_DOUBLE_EQ(value("offRating"), 150);
  EXPECT_DOUBLE_EQ(value("defRating"), 50);
  EXPECT_DOUBLE_EQ(value("pace"), 40 * 60 * 2.0 / 70);
  EXPECT_FALSE(rateNamed("FTpct").value(visitors).has_value());
  EXPECT_EQ(rateText(rateNamed("eFG"), value("eFG")), "75.0");
}

// --- Real games

CountedGame countedGame(const std::filesystem::path& path) {
  CountedGame counted{gameOfText(bytesOf(path)), {}};
  counted.state = tallied(counted.game);
  return counted;
}

class RealGame : public testing::TestWithParam<std::filesystem::path> {
 protected:
  const CountedGame m_counted = countedGame(GetParam());
  const GameInsight m_insight = insightOf(m_counted.game);
};

TEST_P(RealGame, EveryPlayersPlusMinusIsTheOfficialOne) {
  std::filesystem::path official = GetParam();
  official.replace_extension(".json");
  if (!std::filesystem::exists(official))
    GTEST_SKIP() << "a game of the sample season has no official box score";
  const Json box = Json::parse(bytesOf(official));
  int compared = 0;
  for (const Side team : kSides) {
    for (const Json& player : box["teams"][static_cast<std::size_t>(numberOf(team))]["players"].array()) {
      if (player["plusminus"].isNull())
        continue;
      const int entry = m_counted.game.roster[team].entryOf(player["jersey"].text());
      ++compared;
      EXPECT_EQ(m_insight.players[team][static_cast<std::size_t>(entry)].plusMinus(team),
                player["plusminus"].integer())
          << player["jersey"].text();
    }
  }
  RecordProperty("compared", compared);
}

TEST_P(RealGame, SumsOfLinesAndPlayersAreTheTeams) {
  const GameState& state = m_counted.state;
  CourtShare sum;
  for (const Matchup& matchup : m_insight.matchups)
    sum += matchup.share;
  EXPECT_EQ(sum, m_insight.whole);
  for (const Side team : kSides) {
    BoxCounters counted;
    for (const PlayerEntry& player : state.players[team])
      counted += player.counters;
    EXPECT_EQ(m_insight.whole.counters[team], counted);
    for (int line = 1; line <= state.usedLines[team]; ++line) {
      const LineEntry& entry = state.lines[team][static_cast<std::size_t>(line)];
      const CourtShare share = m_insight.ofLine(team, line);
      EXPECT_EQ(share.seconds, entry.seconds) << entry.list;
      EXPECT_EQ(share.points(team), pointsOf(entry.counters)) << entry.list;
    }
    for (int player = 1; player < static_cast<int>(GameState::kPlayerEntries); ++player) {
      const OnOff split = onOffOf(m_insight, team, player);
      EXPECT_EQ(split.on + split.off, m_insight.whole);
      EXPECT_EQ(split.on, togetherOnCourt(m_insight, state, team, 1U << static_cast<unsigned>(player)))
          << player;
      EXPECT_EQ(split.on.seconds, state.players[team][static_cast<std::size_t>(player)].seconds) << player;
    }
  }
}

TEST_P(RealGame, StretchesAddUpToTheGame) {
  int last = 0;
  for (const GameEvent& event : m_counted.game.events)
    last = std::max(last, event.period);
  CourtShare sum;
  for (int period = 1; period <= last; ++period) {
    const Game part = gameOfStretch(m_counted.game, Stretch::ofPeriods(period, period));
    const CourtShare share = insightOf(part).whole;
    EXPECT_LE(std::abs(share.possessions[Side::Visitor] - share.possessions[Side::Home]), 1) << period;
    sum += share;
  }
  EXPECT_EQ(sum, m_insight.whole);
  const Stretch early{1, Stretch::kPeriodBegin, 2, 3 * 60 + 17};
  const Stretch late{2, 3 * 60 + 17, last, 0};
  CourtShare halves = insightOf(gameOfStretch(m_counted.game, early)).whole;
  halves += insightOf(gameOfStretch(m_counted.game, late)).whole;
  EXPECT_EQ(halves.counters, m_insight.whole.counters);
  EXPECT_EQ(halves.seconds, m_insight.whole.seconds);
}

INSTANTIATE_TEST_SUITE_P(, RealGame, testing::ValuesIn(realOrSampleGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::erase_if(name, [](char letter) { return std::isalnum(static_cast<unsigned char>(letter)) == 0; });
  return name;
});

} // namespace
