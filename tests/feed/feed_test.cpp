// What whoever follows a game is told: plays of what belongs together, how the game stands, and how much of a
// name; and that plays and box score say the same in real games.
#include "feed/FeedGame.h"
#include "feed/FeedPlays.h"
#include "feed/FeedWriting.h"

#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

const Texts kTexts;

std::string words(const FeedPlay& play) {
  std::string text(play.kind);
  text += ' ' + play.who.jersey + (play.isShot ? play.isMade ? "+" + std::to_string(play.points) : "-" : "");
  if (play.total > 0)
    text += '=' + std::to_string(play.total);
  if (play.fouls > 0)
    text +=
        " f" + std::to_string(play.fouls) + '/' + std::to_string(play.teamFouls) + (play.isOut ? " out" : "");
  if (play.with)
    text += " (" + std::string(play.with->kind) + ' ' + play.with->person.jersey + ')';
  return text + ' ' + std::to_string(play.score[Side::Visitor]) + '-' +
         std::to_string(play.score[Side::Home]);
}
std::vector<std::string> plays(const std::string& events, const std::string& details = {}) {
  std::vector<std::string> all;
  for (const FeedPlay& play : feedPlays(*counted(gameOfText(textOfGame(events, details))), kTexts))
    all.push_back(play.id + ' ' + words(play));
  return all;
}

TEST(FeedPlays, WhatBelongsTogetherIsOnePlay) {
  const std::vector<std::string> expected = {
      "1-3 two 4+2=2 (assist 5) 2-0", "1-5 three 3- (block 10) 2-0", "1-7 turnover 7 (steal 12) 2-0",
      "1-9 turnover 5 2-0",           "1-11 layupLeft 4+2=4 4-0",    "1-12 rebound  4-0",
      "1-14 substitution  4-0",
  };
  EXPECT_EQ(plays("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n"
                  "3=09:40,GFG,0-4,40,50\n4=09:40,SA,0-5\n5=09:20,GF3A,1-3,30,20\n6=09:20,SBS,0-10\n"
                  "7=09:00,STO,1-7\n8=09:00,SST,0-12\n9=08:50,STO,0-5\n10=E08:45,SST,1-3\n"
                  "11=08:30,GLG,0-4\n12=08:10,XDR,1\n"
                  "14=08:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n15=08:00,DEPART\n"),
            expected);
  // A steal that stands before its turnover is told with it, too; one at another time is a play of its own.
  EXPECT_EQ(
      plays("[PERIODE1]\n1=09:00,SST,0-12\n2=09:00,STO,1-7\n3=08:00,SST,0-4\n4=07:00,STO,1-3\n"),
      (std::vector<std::string>{"1-2 turnover 7 (steal 12) 0-0", "1-3 steal 4 0-0", "1-4 turnover 3 0-0"}));
}

TEST(FeedPlays, FoulsAreNumberedAndTheLastOneIsSaid) {
  EXPECT_EQ(
      plays("[PERIODE1]\n1=09:00,SPF,0-4\n2=08:00,SPF,0-5\n3=07:00,SPF,0-4\n4=06:00,SPF,0-4\n", "PFMAX=2\n"),
      (std::vector<std::string>{"1-1 foul 4 f1/1 0-0", "1-2 foul 5 f1/2 0-0", "1-3 foul 4 f2/3 out 0-0",
                                "1-4 foul 4 f3/4 0-0"}));
}

// Both tell the points of every player and team; none may be lost in merging.
TEST(FeedPlays, OfRealGamesAddUpToTheirBoxScores) {
  for (const auto& path : realOrSampleGames()) {
    const auto game = counted(gameOfText(bytesOf(path)));
    PerSide<int> points = {};
    PerSide<std::map<int, int>> ofPlayers;
    PerSide<int> assists = {};
    for (const FeedPlay& play : feedPlays(*game, kTexts)) {
      if (play.points > 0) {
        points[*play.who.team] += play.points;
        ofPlayers[*play.who.team][play.who.entry] += play.points;
        if (play.who.entry > 0) {
          EXPECT_EQ(play.total, ofPlayers[*play.who.team][play.who.entry]) << path << play.id;
        }
      }
      assists[Side::Visitor] += (play.with && play.with->kind == "assist") || play.kind == "assist" ? 1 : 0;
      EXPECT_TRUE(play.score == points || play.kind == "substitution") << path << play.id;
    }
    int counted = 0;
    for (const Side team : kSides) {
      EXPECT_EQ(points[team], game->game.details.inputType != 0 ? 0 : game->state.points(team)) << path;
      for (std::size_t entry = 0; entry < GameState::kPlayerEntries; ++entry)
        counted += game->state.players[team][entry].counters[Counter::Ast];
    }
    if (game->game.details.inputType == 0) {
      EXPECT_EQ(assists[Side::Visitor], counted) << path;
    }
  }
}

RunningGame running(const std::string& events, LiveGame::Phase phase, int period = 1,
                    const std::string& details = {}) {
  RunningGame game;
  game.counted = *counted(gameOfText(textOfGame(events, details)));
  game.phase = phase;
  game.period = period;
  return game;
}

TEST(FeedGame, StateSaysWhetherItBeganRestsOrEnded) {
  using Phase = LiveGame::Phase;
  const std::string kBegun = "[PERIODE1]\n1=09:40,GDK,0-4\n";
  EXPECT_EQ(feedState(running("", Phase::Stopped)), "before");
  EXPECT_EQ(feedState(running(kBegun, Phase::Running)), "running");
  EXPECT_EQ(feedState(running(kBegun, Phase::Stopped)), "stopped");
  EXPECT_EQ(feedState(running(kBegun, Phase::Stopped, 2)), "break");
  EXPECT_EQ(feedState(running(kBegun, Phase::OvertimeAsked)), "break");
  EXPECT_EQ(feedState(running(kBegun, Phase::Stopped, 1, "TERMINE=1\n")), "final");
}

TEST(FeedGame, NamesAreToldAsFarAsTheyMayBe) {
  EXPECT_EQ(toldName("Émile van Oosten", NameForm::Initial), "É. van Oosten");
  EXPECT_EQ(toldName("Pelé", NameForm::Initial), "Pelé");
  const RunningGame game = running("[PERIODE1]\n1=09:40,GDK,0-4\n2=09:40,SA,0-5\n", LiveGame::Phase::Stopped);
  EXPECT_NE(feedGame(game, {}, {.names = NameForm::Full}, kTexts).find("Ann Able"), std::string::npos);
  const std::string initial = feedGame(game, {}, {.names = NameForm::Initial}, kTexts);
  EXPECT_NE(initial.find("A. Able"), std::string::npos);
  EXPECT_EQ(initial.find("Ann"), std::string::npos);
  const std::string numbers = feedGame(game, {}, {.names = NameForm::Number}, kTexts);
  for (const std::string_view name : {"Able", "Baker", "Hart"})
    EXPECT_EQ(numbers.find(name), std::string::npos) << name;
}

TEST(FeedGame, NobodySeesLineUpFiguresInIt) {
  RunningGame game = running("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n"
                             "3=09:40,GDK,0-4\n4=09:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n",
                             LiveGame::Phase::Stopped);
  game.onCourt = {0x3E, 0x3E};
  const std::string text = feedGame(game, {}, {}, kTexts);
  EXPECT_EQ(text.find("\"lines\""), std::string::npos);
  EXPECT_NE(text.find("\"onCourt\": true"), std::string::npos);
}

TEST(FeedWriting, ColoursHaveRedInTheLowestByte) {
  EXPECT_EQ(webColour(0x0030C8FFU), "#ffc830");
}

} // namespace
} // namespace hooptab
