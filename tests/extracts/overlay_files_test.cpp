// What a broadcast shows: a file for each value, and all of them as a row.
#include "extracts/OverlayFiles.h"

#include "support/Json.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <map>

using namespace hooptab;

namespace {

std::map<std::string, std::string> contents(const CountedGame& counted, const OverlayClock& clock) {
  const Texts texts;
  std::map<std::string, std::string> all;
  for (const OverlayFile& file : overlayFiles(counted, clock, texts))
    all[file.name] = file.content;
  return all;
}

TEST(OverlayFiles, HoldOneValueEach) {
  const auto game = counted(gameOfText(
      textOfGame("[PERIODE5]\n1=05:00,DEPART\n2=04:50,GF3,1-07\n3=E04:40,GFG,0-4\n4=04:30,XTO,0,K=FULL\n"
                 "5=04:20,XAR,0\n6=04:10,SPF,0-4\n7=04:05,SPF,0-4\n",
                 "REGLES=FIBA\nBONUS=2\nEQUIPE1NOM=L\"Oc\xE9"
                 "an\nEQUIPE1COL=8438015\n")));
  const OverlayClock clock = clockOfLastEvent(*game);
  EXPECT_TRUE(clock.isRunning);
  EXPECT_EQ(clock.seconds, 245) << "what a team did moves no clock";
  auto files = contents(*game, {5, 200, true});
  EXPECT_EQ(files["home_name.txt"], "L\"Océan");
  EXPECT_EQ(files["home_colour.txt"], "#FFC080");
  EXPECT_EQ(files["score.txt"], "PAN 0 - 3 OLY");
  EXPECT_EQ(files["period.txt"], "OT1");
  EXPECT_EQ(files["clock.txt"], "03:20") << "of the clock that is given, not of the last event";
  EXPECT_EQ(files["visitor_fouls.txt"], "2");
  EXPECT_EQ(files["visitor_bonus.txt"], "BONUS");
  EXPECT_EQ(files["home_bonus.txt"], "");
  EXPECT_EQ(files["visitor_timeouts_taken.txt"] + files["visitor_timeouts_left.txt"], "10");
  EXPECT_EQ(files["arrow.txt"], "PAN");
  EXPECT_EQ(files["last_scorer.txt"] + files["last_points.txt"], "7 Ida Ivers3");

  const Json row = Json::parse(files["scoreboard.json"]);
  ASSERT_EQ(row.array().size(), 1U);
  EXPECT_EQ(row[0]["home_name.Text"].text(), "L\"Océan");
  EXPECT_EQ(row[0]["clock_running.Text"].text(), "1");
  for (const auto& [name, content] : files)
    EXPECT_TRUE(name == "scoreboard.json" ||
                row[0][name.substr(0, name.size() - 4) + ".Text"].text() == content)
        << name;
}

TEST(OverlayFiles, AreTheSameBeforeTheFirstEventAndWithoutTime) {
  const auto empty = counted(gameOfText(textOfGame("", "DUREE=0\n")));
  const auto full = counted(gameOfText(textOfGame("[PERIODE1]\n1=05:00,GFG,0-4\n")));
  auto files = contents(*empty, {1, 0, false});
  EXPECT_EQ(files["clock.txt"] + files["last_scorer.txt"] + files["arrow.txt"], "");
  EXPECT_EQ(files["visitor_timeouts_left.txt"], "") << "the game names no rules";
  EXPECT_EQ(files.size(), contents(*full, {1, 300, false}).size());
}

} // namespace
