#include "exchange/ClockSequence.h"
#include "exchange/GameBuilder.h"
#include "exchange/GameReading.h"
#include "exchange/Reconciliation.h"
#include "game/PlayerIds.h"
#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

const std::string kId(32, 'a');

ForeignPlayer starter(const std::string& jersey, const std::string& name) {
  ForeignPlayer player{"id" + jersey, jersey, name};
  player.isStarter = true;
  return player;
}

// Five a side, and a sixth of the visitors on the bench.
ForeignGame twoTeams() {
  ForeignGame game;
  game.isFinished = true;
  game.teams[Side::Visitor] = {"Lynx", "LYNX"};
  game.teams[Side::Home] = {"Pumas", "PUMA"};
  for (const char* jersey : {"4", "5", "6", "7", "8"}) {
    game.teams[Side::Visitor].players.push_back(starter(jersey, std::string("Visitor ") + jersey));
    game.teams[Side::Home].players.push_back(starter(jersey, std::string("Home ") + jersey));
  }
  game.teams[Side::Visitor].players.insert(game.teams[Side::Visitor].players.begin(),
                                           ForeignPlayer{"", "5", "Late Visitor"});
  return game;
}

ForeignEvent at(int centiseconds, EventCode code, Doer doer) {
  ForeignEvent event;
  event.centiseconds = centiseconds;
  event.code = code;
  event.doer = doer;
  return event;
}
ForeignEvent change(int centiseconds, ForeignKind kind, Doer doer) {
  ForeignEvent event = at(centiseconds, EventCode::Unknown, doer);
  event.kind = kind;
  return event;
}

std::vector<std::string> linesOfPeriod(const BuiltGame& built, int period) {
  Game game;
  readGame(built.text, game);
  std::vector<std::string> lines;
  for (const GameEvent& event : game.events.ofPeriod(period))
    lines.emplace_back(event.line);
  return lines;
}

} // namespace

TEST(GameBuilderTest, WritesWhatTheTableWouldHaveRecorded) {
  ForeignGame game = twoTeams();
  ForeignEvent shot = at(58000, EventCode::GFG, {Side::Visitor, 1});
  shot.isMade = true;
  shot.place = {30, 100};
  shot.detail = "LAYUP";
  ForeignEvent foul = at(57000, EventCode::SPF, {Side::Home, 0});
  foul.other = {Side::Visitor, 2};
  foul.freeThrows = 2;
  ForeignEvent thrown = at(57000, EventCode::GFT, {Side::Visitor, 2});
  thrown.numberOfThrow = 1;
  thrown.ofThrows = 2;
  game.events = {shot,
                 foul,
                 change(57000, ForeignKind::Out, {Side::Visitor, 5}),
                 at(57000, EventCode::STO, {Side::Visitor, 5}), // filed behind his own substitution
                 change(57000, ForeignKind::In, {Side::Visitor, 0}),
                 thrown,
                 at(55000, EventCode::SDR, {Side::Home, 3}),
                 change(0, ForeignKind::PeriodEnd, {})};
  const BuiltGame built = buildGame(game, kId);
  EXPECT_EQ(linesOfPeriod(built, 1),
            (std::vector<std::string>{
                "10:00,ARRET,IN-,IN-", "10:00,ARRET,IN-04-5X2-06-07-08,IN-04-05-06-07-08", "10:00,DEPART",
                "09:40,GFG,0-4,30,100,K=LAYUP", "09:30,ARRET,IN-04-5X2-06-07-08,IN-04-05-06-07-08",
                "09:30,SPF,1-4,D=0-5X2,F=2", "09:30,STO,0-8",
                "09:30,ARRET,IN-04-05-5X2-06-07,IN-04-05-06-07-08", "09:30,GFTA,0-5X2,N=1/2", "09:30,DEPART",
                "09:10,SDR,1-7", "00:00,ARRET,IN-04-05-5X2-06-07,IN-04-05-06-07-08"}));
}

TEST(GameBuilderTest, GivesEachPlayerANumberAndWhoPlayedComesFirst) {
  ForeignGame game = twoTeams();
  game.teams[Side::Visitor].players.push_back({"", "", "No Number"});
  game.teams[Side::Home].players.insert(game.teams[Side::Home].players.begin(),
                                        ForeignPlayer{"bench", "14", "Never Played"});
  game.teams[Side::Home].players[1].isCaptain = true;
  const BuiltGame built = buildGame(game, kId);
  EXPECT_EQ(built.jerseys[Side::Visitor], (std::vector<std::string>{"5", "4", "5X2", "6", "7", "8", "X1"}));
  Game own;
  readGame(built.text, own);
  EXPECT_EQ(own.roster[Side::Home].players().back().name, "Never Played");
  EXPECT_EQ(own.details.captain[Side::Home], "4");
  EXPECT_EQ(readPlayerIds(built.text, Side::Home).at("14").foreignId, "bench");
  std::vector<Text> told;
  for (const ExchangeNote& note : built.notes)
    told.push_back(note.text);
  EXPECT_EQ(told, (std::vector<Text>{Text::ImportNoJersey, Text::JerseyTwice}));
}

TEST(GameBuilderTest, TellsWhereTheSourceHasAHole) {
  ForeignGame game = twoTeams();
  game.events = {
      change(50000, ForeignKind::In, {Side::Visitor, 1}), change(40000, ForeignKind::Out, {Side::Visitor, 0}),
      change(30000, ForeignKind::Out, {Side::Home, 2}), at(20000, EventCode::STO, {Side::Home, 1})};
  const std::vector<ExchangeNote> notes = buildGame(game, kId).notes;
  EXPECT_NE(std::ranges::find(notes, ExchangeNote{Text::InTwice, "4 Visitor 4", "1 - 08:20"}), notes.end());
  EXPECT_NE(std::ranges::find(notes, ExchangeNote{Text::OutWhileOff, "5 Late Visitor", "1 - 06:40"}),
            notes.end());
  EXPECT_NE(std::ranges::find(notes, ExchangeNote{Text::NotFiveOnCourt, "Pumas: 4", "1 - 05:00"}),
            notes.end());
}

TEST(GameBuilderTest, WhatIsFiledLateStaysInItsPeriod) {
  ForeignGame game = twoTeams();
  ForeignEvent late = change(0, ForeignKind::PeriodEnd, {});
  ForeignEvent second = at(59000, EventCode::STO, {Side::Home, 1});
  second.period = 2;
  game.events = {late,
                 change(0, ForeignKind::Out, {Side::Visitor, 1}), // behind the end, at its clock
                 change(0, ForeignKind::In, {Side::Visitor, 0}),
                 second,
                 late, // once more, behind the first of the next period
                 at(18000, EventCode::SOR, {Side::Home, 2})};
  const BuiltGame built = buildGame(game, kId);
  EXPECT_EQ(
      linesOfPeriod(built, 1),
      (std::vector<std::string>{"10:00,ARRET,IN-,IN-", "10:00,ARRET,IN-04-5X2-06-07-08,IN-04-05-06-07-08",
                                "10:00,DEPART", "00:00,ARRET,IN-04-5X2-06-07-08,IN-04-05-06-07-08",
                                "03:00,SOR,1-6", "00:00,ARRET,IN-05-5X2-06-07-08,IN-04-05-06-07-08"}));
  EXPECT_EQ(linesOfPeriod(built, 2),
            (std::vector<std::string>{"10:00,DEPART", "09:50,STO,1-5",
                                      "09:50,ARRET,IN-05-5X2-06-07-08,IN-04-05-06-07-08"}));
}

TEST(GameBuilderTest, AClockThatStepsBackWhileItStandsIsNotPlayedTwice) {
  ForeignGame game = twoTeams();
  game.events = {at(30000, EventCode::SPF, {Side::Home, 0}), at(33000, EventCode::SDR, {Side::Home, 0}),
                 at(29500, EventCode::STO, {Side::Home, 0}), change(0, ForeignKind::PeriodEnd, {})};
  Game own;
  readGame(buildGame(game, kId).text, own);
  EXPECT_EQ(tallied(own).players[Side::Home][1].seconds, 600);
  EXPECT_EQ(own.events.ofPeriod(1)[6].line, "05:00,DEPART");
}

TEST(ClockSequenceTest, KeepsTimesWithinASecondAndNeverRises) {
  ClockSequence clock({1, 1});
  clock.beginPeriod(60000);
  double played = 0;
  int shown = 0;
  int last = 600;
  int cameAt = 0;
  for (int centiseconds = 59961, number = 0; centiseconds > 0; centiseconds -= 1037, ++number) {
    const bool comes = number % 2 == 0;
    const std::array changes = {ClockSequence::Change{Side::Visitor, 0, comes}};
    const int seconds = clock.seconds(centiseconds, changes);
    EXPECT_LE(seconds, last);
    EXPECT_LT(std::abs(seconds * 100 - centiseconds), 100);
    if (!comes) {
      played += 10.37;
      shown += cameAt - seconds;
    }
    cameAt = seconds;
    last = clock.seconds(centiseconds); // the same clock is the same second
    EXPECT_EQ(last, seconds);
  }
  EXPECT_NEAR(shown, played, 1.0);
}

TEST(ReconciliationTest, TellsEveryCounterThatDiffersAndNoOther) {
  ForeignGame game = twoTeams();
  ForeignEvent shot = at(58000, EventCode::GF3, {Side::Visitor, 1});
  shot.isMade = true;
  game.events = {shot, at(57000, EventCode::STF, {Side::Visitor, 1}), change(0, ForeignKind::PeriodEnd, {})};
  game.teams[Side::Visitor].players[1].official = {
      {"F3M", {1}}, {"PTS", {3}},          {"PF", {1}}, // technicals among them
      {"Ast", {2}}, {"seconds", {601, 1}}, {"plusMinus", {3}}};
  game.teams[Side::Home].players[0].official = {{"plusMinus", {-2}}};
  game.teams[Side::Visitor].pointsOfPeriod = {3, 1};
  game.teams[Side::Visitor].official = {{"points", {3}}, {"teamRow.OR", {4}}};
  int compared = 0;
  const std::vector<Difference> differences = reconcile(game, buildGame(game, kId), &compared);
  EXPECT_EQ(compared, 11);
  EXPECT_EQ(differences, (std::vector<Difference>{{Side::Visitor, "4 Visitor 4", "Ast", 0, 2},
                                                  {Side::Visitor, "", "periods[2]", 0, 1},
                                                  {Side::Visitor, "", "teamRow.OR", 0, 4},
                                                  {Side::Home, "4 Home 4", "plusMinus", -3, -2}}));
}

TEST(GameReadingTest, WhoIsInNoRosterIsOneOfTheTeam) {
  const std::string text = textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,DEPART\n3=09:00,SST,0-77\n"
                                      "4=08:00,SST,0-78\n5=07:00,SST,0-77\n");
  const Game own = gameOfText(text);
  const ForeignGame out = foreignGameOf({own, tallied(own)}, ProfileText(text));
  std::vector<std::string> jerseys;
  for (const ForeignEvent& event : out.events) {
    if (event.doer.isPlayer())
      jerseys.push_back(
          out.teams[Side::Visitor].players.at(static_cast<std::size_t>(event.doer.player)).jersey);
  }
  EXPECT_EQ(jerseys, (std::vector<std::string>{"77", "78", "77"}));
}

// A game of ours that goes out and comes back is the same in events, line-ups and counts.
TEST(GameReadingTest, WhatGoesOutComesBack) {
  for (const std::filesystem::path& path : realOrSampleGames()) {
    SCOPED_TRACE(path.filename());
    const ProfileText text(bytesOf(path));
    Game own;
    readGame(text, own);
    if (own.details.inputType != 0)
      continue;
    const ForeignGame out = foreignGameOf({own, tallied(own)}, text);
    const BuiltGame built = buildGame(out, kId);
    for (const Difference& difference : reconcile(out, built))
      ADD_FAILURE() << difference.player << ' ' << difference.counter << ' ' << difference.ours << ' '
                    << difference.theirs;
  }
}
