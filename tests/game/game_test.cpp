// Game files and their events: what is written, what is understood, and what every counter makes of it.
#include "game/GameFile.h"
#include "game/Tally.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

constexpr const char* kHead = "[DETAILS]\r\nVERSION=2.0\r\nNBREPERIODE=4\r\nDUREE=10\r\n";

class GameFileTest : public testing::Test {
 protected:
  // A game file with these rosters and period sections, read back.
  Game gameWith(const std::string& sections) {
    m_folder.write("g.GAM", kHead + sections);
    Game game;
    EXPECT_EQ(m_file.read(game), GameFileProblem::None);
    return game;
  }
  static GameState tallied(const Game& game) {
    GameState state;
    EXPECT_EQ(Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]),
              std::nullopt);
    return state;
  }
  TemporaryFolder m_folder;
  FileSystem m_files;
  ProfileStore m_store{m_files};
  GameFile m_file{m_store, m_folder.path("g.GAM")};
};

std::string fiveAside(const std::string& events) {
  return "[0]\r\n4=0,Ana\r\n5=1,Bo\r\n10=2,Cy\r\n12=9,Di\r\n15=9,Ed\r\n16=9,Flo\r\n"
         "[1]\r\n3=0,Gus\r\n7=1,Hal\r\n8=2,Ian\r\n11=9,Jo\r\n22=9,Kim\r\n[PERIODE1]\r\n" +
         events;
}

TEST_F(GameFileTest, NewGameIsWrittenInOrderAndLeavesNothingOfTheOld) {
  m_folder.write("g.GAM", std::string(kHead) +
                              "EVENUM=9\r\nTERMINE=1\r\nKEEPBONUS=1\r\nDUREEPROL=5\r\nIDPARTIE=old\r\n["
                              "HORLOGE]\r\n1=5\r\n[0]\r\n99=0,Old\r\n[PERIODE1]\r\n1=x\r\n"
                              "[PERIODE12]\r\n2=y\r\n");
  GameDetails details;
  details.date = "2026-03-01";
  details.abbreviation[Side::Visitor] = "LYNX";
  details.abbreviation[Side::Home] = "PUMA";
  details.category[Side::Visitor] = "AAA ";
  details.periods = 4;
  details.minutesPerPeriod = 8;
  details.notes = "Été, œuf";
  details.id = "ab12"; // else drawn at random
  ASSERT_EQ(m_file.create(details, {{"5", 2, "Zoé"}}, {}), GameFileProblem::None);
  EXPECT_EQ(
      m_folder.read("g.GAM"),
      "[DETAILS]\r\nVERSION=2.0\r\nINPUTTYPE=0\r\nDATE=2026-03-01\r\nOKPRINCIPAL=0\r\nEQUIPE0ID=0\r\n"
      "EQUIPE1ID=0\r\nEQUIPE0COL=0\r\nEQUIPE1COL=0\r\nEQUIPE0ABB=LYNX\r\nEQUIPE1ABB=PUMA\r\n"
      "EQUIPE0NOM=\r\nEQUIPE1NOM=\r\nEQUIPE0CAT=AAA \r\nEQUIPE1CAT=\r\nSUPP0=\r\nSUPP1=\r\nENDROIT=\r\n"
      "SAISIEPAR=\r\nNBREPERIODE=4\r\nDUREE=8\r\nBONUS=0\r\nPFMAX=0\r\nTFMAX=0\r\nTYPE=0\r\n"
      "NOTES=\xC9t\xE9, \x9Cuf\r\nIDPARTIE=ab12\r\n[0]\r\n5=2,Zo\xE9\r\n[1]\r\n0=9,PUMA\r\n[PERIODE1]\r\n"
      "1=08:00,ARRET,IN-,IN-\r\n");
  EXPECT_EQ(m_file.nextNumber(), 2);
}

TEST_F(GameFileTest, AppendingAdvancesTheCounter) {
  Game game = gameWith(fiveAside("57=09:00,SPF,0-4\r\n"));
  ASSERT_EQ(m_file.append(2, 541, 58,
                          {", SA, 0-5", eventText(EventCode::GF3, false, Side::Home, "7", {{100.9, 44}})}),
            GameFileProblem::None);
  ASSERT_EQ(m_file.read(game), GameFileProblem::None);
  EXPECT_EQ(game.details.nextEventNumber, 60);
  ASSERT_EQ(game.events.size(), 3U);
  EXPECT_EQ(game.events[1].line, "09:01,SA,0-5");
  EXPECT_EQ(game.events[2].line, "09:01,GF3A,1-7,100,44");
  EXPECT_EQ(m_file.nextNumber(), 60);
  for (const std::string wrong : {"3", "", "-1", "x"}) { // another program's mistake
    ASSERT_EQ(m_file.setDetails({{"EVENUM", wrong}}), GameFileProblem::None);
    const std::string key = std::to_string(m_file.nextNumber());
    ASSERT_EQ(m_file.change({{EventChange::Kind::Add, 2, key, "08:00,SA,0-5"}}), GameFileProblem::None);
    ASSERT_EQ(m_file.readDetails(game.details), GameFileProblem::None);
    EXPECT_EQ(game.details.nextEventNumber, m_file.nextNumber()) << wrong;
  }
}

// Whoever records waits for it: the file is read in one go, though it was written a moment ago.
TEST_F(GameFileTest, AnEventReadsItsFileOnce) {
  gameWith(fiveAside("1=10:00,DEPART\r\n"));
  FaultyFileSystem counting;
  ProfileStore store(counting);
  GameFile file(store, m_file.path());
  int number = file.nextNumber();
  for (int event = 0; event < 3; ++event, ++number) {
    counting.reads = 0;
    ASSERT_EQ(file.change({{EventChange::Kind::Add, 1, std::to_string(number), "09:00,SA,0-5"}}),
              GameFileProblem::None);
    EXPECT_EQ(counting.reads, 2) << "its bytes, and their end";
    EXPECT_EQ(counting.renames, event + 1);
  }
}

TEST_F(GameFileTest, DeletingRestoringEditingAndInsertingKeepTheRest) {
  gameWith(fiveAside("1=10:00,DEPART\r\n2=09:00,SPF,0-4\r\n;note\r\n3=08:00,SA,0-5\r\n"));
  const std::string before = m_folder.read("g.GAM");
  const std::vector<GameFile::EventKey> both = {{1, "2"}, {1, "3"}};
  ASSERT_EQ(m_file.setDeleted(both, true), GameFileProblem::None);
  EXPECT_NE(m_folder.read("g.GAM").find("\r\n2=E09:00,SPF,0-4\r\n;note\r\n3=E08:00,SA,0-5\r\n"),
            std::string::npos);
  ASSERT_EQ(m_file.setDeleted(both, true), GameFileProblem::None); // once more changes nothing
  ASSERT_EQ(m_file.setDeleted(both, false), GameFileProblem::None);
  EXPECT_EQ(m_folder.read("g.GAM"), before);

  using enum EventChange::Kind;
  ASSERT_EQ(m_file.change({{Replace, 1, "3", "07:55,SA,0-10"}, {Add, 1, "4", "08:20,STO,1-7", "3"}}),
            GameFileProblem::None);
  Game game;
  ASSERT_EQ(m_file.read(game), GameFileProblem::None);
  std::string order;
  for (const GameEvent& event : game.events)
    order += std::string(event.key) + "=" + std::string(event.line) + " ";
  EXPECT_EQ(order, "1=10:00,DEPART 2=09:00,SPF,0-4 4=08:20,STO,1-7 3=07:55,SA,0-10 ");
  EXPECT_EQ(game.details.nextEventNumber, 5);
  const std::string changed = m_folder.read("g.GAM");
  for (const EventChange& wrong :
       {EventChange{Add, 1, "5", "08:20,STO,1-7", "77"}, EventChange{Add, 1, "4", "x"},
        EventChange{Replace, 2, "3", "x"}, EventChange{Move, 1, "9"}})
    EXPECT_EQ(m_file.change({{Replace, 1, "2", "lost"}, wrong}), GameFileProblem::UnknownEvent);
  EXPECT_EQ(m_folder.read("g.GAM"), changed) << "one step that cannot be taken, and none is";
  ASSERT_EQ(m_file.change({{Move, 1, "3", {}, "2"}, {Add, 2, "5", "10:00,DEPART"}}), GameFileProblem::None);
  EXPECT_NE(
      m_folder.read("g.GAM").find("1=10:00,DEPART\r\n3=07:55,SA,0-10\r\n2=09:00,SPF,0-4\r\n4=08:20,STO,1-7"),
      std::string::npos);
  ASSERT_EQ(m_file.read(game), GameFileProblem::None);
  EXPECT_EQ(game.details.nextEventNumber, 6);
  EXPECT_EQ(m_file.setDeleted({{1, "77"}}, true), GameFileProblem::UnknownEvent);
}

TEST_F(GameFileTest, ALineLongerThanAnyReaderGetsSurvivesBeingDeletedAndRestored) {
  gameWith(fiveAside("1=09:00,SPF,0-4," + std::string(70000, 'x') + "\r\n"));
  const std::string before = m_folder.read("g.GAM");
  ASSERT_EQ(m_file.setDeleted({{1, "1"}}, true), GameFileProblem::None);
  EXPECT_EQ(m_folder.read("g.GAM").size(), before.size() + 1);
  ASSERT_EQ(m_file.setDeleted({{1, "1"}}, false), GameFileProblem::None);
  EXPECT_EQ(m_folder.read("g.GAM"), before);
}

TEST_F(GameFileTest, OtherFilesAreRefusedAndNothingIsWrittenToThem) {
  for (const std::string& bytes :
       {std::string("[DETAILS]\r\nVERSION=1.0\r\n"), std::string("[DETAILS]\r\nVERSION=2.00\r\n"),
        std::string("[X]\r\nVERSION=2.0\r\n"), std::string(), std::string("\0\1\xFF\xFE[", 5)}) {
    m_folder.write("g.GAM", bytes);
    Game game;
    EXPECT_EQ(m_file.read(game), GameFileProblem::InvalidFormat);
    EXPECT_EQ(m_file.append(1, 0, 1, {",DEPART"}), GameFileProblem::InvalidFormat);
    EXPECT_EQ(m_folder.read("g.GAM"), bytes);
  }
  GameFile absent(m_store, m_folder.path("none.GAM"));
  EXPECT_EQ(absent.validate(), GameFileProblem::Absent);
  EXPECT_EQ(absent.append(1, 0, 1, {",DEPART"}), GameFileProblem::Absent);
  EXPECT_FALSE(m_folder.holds("none.GAM"));
}

TEST_F(GameFileTest, AllPeriodsAreReadAscendingAndEachKeyOnce) {
  const Game game =
      gameWith("[PERIODE10]\n5=01:00,SA,0-1\n[PERIODE2]\n4=02:00,SA,0-1\n4=03:00,SA,0-2\n3=01:30,SA,0-3\n"
               "3=01:29,SA,0-4\n[periode1]\n1=09:00,SA,0-5\n[PERIODE01]\n9=00:00,SA,0-6\n[PERIODEX]\n1=1\n");
  std::string order;
  for (const GameEvent& event : game.events)
    order += std::to_string(event.period) + ":" + std::string(event.key) + ":" +
             std::string(event.player.jersey) + " ";
  EXPECT_EQ(order, "1:1:5 2:4:1 2:3:3 10:5:1 ");
}

// The program records no period behind the 255th; one that stands in a file is read all the same.
TEST_F(GameFileTest, PeriodsBehindTheLastAreReadCountedAndReplacedLikeOthers) {
  const Game game =
      gameWith(fiveAside("1=09:00,GFT,0-4\r\n[PERIODE1234567890123]\r\n7=05:00,ARRET\r\n[PERIODE300]\r\n"
                         "5=05:00,GFG,0-4\r\n6=04:00,SPF,0-4\r\n[PERIODE9999999999]\r\n9=04:00,SPF,0-4\r\n"
                         "[PERIODE256]\r\n4=03:00,GF3,0-4\r\n[PERIODE8]\r\n3=01:00,GFT,0-4\r\n"));
  std::string order;
  for (const GameEvent& event : game.events)
    order += std::to_string(event.period) + ":" + std::string(event.key) + " ";
  EXPECT_EQ(order, "1:1 8:3 256:4 300:5 300:6 999999999:9 999999999:7 ");
  const GameState state = tallied(game);
  EXPECT_EQ(state.periods[Side::Visitor][1].points, 1);
  EXPECT_EQ(state.periods[Side::Visitor][8].points, 1 + 3 + 2);
  EXPECT_EQ(state.periods[Side::Visitor][8].fouls, 2);
  EXPECT_EQ(m_file.nextNumber(), 10);
  ASSERT_EQ(m_file.setDeleted({{300, "6"}}, true), GameFileProblem::None);
  EXPECT_NE(m_folder.read("g.GAM").find("\r\n6=E04:00,SPF,0-4\r\n"), std::string::npos);
  // Headers that stand twice, of which readers see the first.
  (void)m_folder.write("g.GAM", m_folder.read("g.GAM") +
                                    "[Periode1]\r\n9=01:00,GFT,0-4\r\n[PERIODE300]\r\n1=02:00,GFT,0-4\r\n");
  ASSERT_EQ(m_file.create({}, {}, {}), GameFileProblem::None);
  EXPECT_EQ(m_folder.read("g.GAM").find("GF"), std::string::npos) << "nothing of the old game is left";
}

TEST_F(GameFileTest, AsManyPeriodsAsAFileHoldsAreReadInTimeAndMakeNoEndlessSum) {
  std::string sections;
  for (int period = 1; sections.size() < 15'000'000; ++period)
    sections += "[PERIODE" + std::to_string(period) + "]\n1=99:59,ARRET,IN-4\n2=00:00,ARRET,IN-4\n";
  const GameState state = tallied(gameWith("[0]\n4=0,Ana\n" + sections));
  EXPECT_EQ(state.players[Side::Visitor][1].seconds, 255 * 6000);
  EXPECT_EQ(state.lines[Side::Visitor][1].seconds, 255 * 6000);
  EXPECT_EQ(state.lead.seconds[2], 255 * 6000);
}

TEST_F(GameFileTest, MinutesOfAPeriodAreWhatAClockShows) {
  const std::tuple<const char*, int, int> cases[] = {
      {"99", 99, 99}, {"100", 100, 99}, {"2147483647", 2147483647, 99}, {"-5", -5, 0}, {"x", 0, 0}};
  for (const auto& [written, stored, shown] : cases) {
    m_folder.write("g.GAM", std::string("[DETAILS]\r\nVERSION=2.0\r\nDUREE=") + written + "\r\n");
    GameDetails details;
    ASSERT_EQ(m_file.readDetails(details), GameFileProblem::None);
    EXPECT_EQ(details.minutesPerPeriod, shown) << written;
    EXPECT_EQ(details.impossibleMinutes, stored == shown ? std::nullopt : std::optional(stored)) << written;
  }
}

TEST(GameEventTest, WhatCannotBeUnderstoodIsKeptAndCountsNothing) {
  for (const char* bad :
       {"", "E", "9:00,SPF,0-4", "09:00", "09:00,", "09:00,SPX,0-4", "09:00,spf,0-4", "09:00,SPF",
        "09:00,SPF,2-4", "09:00,SPF,0-", "09:00,SPF,04", "09:00,IN,0-4", "09:00,ARRET,OUT-04,IN-",
        "09:00,ARRET,IN14,IN-", "09:00,ARRET,IN-04,IN-05-", "E09:00,GFGAA,0-4", "09:60,SPF,0-4"}) {
    const GameEvent event = GameEvent::parse(1, "5", bad);
    EXPECT_FALSE(event.isUnderstood) << bad;
    EXPECT_EQ(event.line, bad);
  }
  EXPECT_FALSE(GameEvent::parse(1, "x", "09:00,SPF,0-4").isUnderstood);
  for (const char* nobody : {"09:00,ARRET", "09:00,ARRET,", "09:00,ARRET,,IN", "09:00,ARRET,IN-,IN,more"})
    EXPECT_TRUE(GameEvent::parse(1, "5", nobody).isUnderstood) << nobody;
}

TEST(GameEventTest, ShotsCountWithAndWithoutAPlace) {
  const GameEvent decimal = GameEvent::parse(1, "1", "09:41,GFG,0-12,42.5,51");
  EXPECT_TRUE(decimal.isUnderstood && decimal.isMade && decimal.hasPlace);
  EXPECT_FLOAT_EQ(decimal.x, 42.5F);
  for (const char* placeless : {"09:41,GF3A,0-12", "09:41,GF3A,0-12,42", "09:41,GF3A,0-12,x,y",
                                "09:41,GF3A,0-12,,", "09:41,GF3A,0-12,nan,1"}) {
    const GameEvent event = GameEvent::parse(1, "1", placeless);
    EXPECT_TRUE(event.isUnderstood) << placeless;
    EXPECT_FALSE(event.hasPlace || event.isMade) << placeless;
  }
  EXPECT_TRUE(GameEvent::parse(1, "1", "09:41,GFG,0-12,1,2,3,more").hasPlace);
  const GameEvent deleted = GameEvent::parse(1, "1", "E09:20,SPF,1-8");
  EXPECT_TRUE(deleted.isDeleted && deleted.isUnderstood);
}

TEST(RosterTest, JerseysFindTheSameTextFirstThenTheEqualNumber) {
  Roster roster;
  for (const char* jersey : {"5", "05", "0", "00", "123", "A1"})
    roster.add({jersey, 0, ""});
  const std::pair<const char*, int> entries[] = {{"05", 2},   {"005", 1}, {"0005", 1}, {"0123", 5},
                                                 {"1123", 0}, {"A1", 6},  {"77", 0}};
  for (const auto& [jersey, entry] : entries)
    EXPECT_EQ(roster.entryOf(jersey), entry) << jersey;
  for (const auto& [jersey, entry] : {std::pair("0000000000123", 5), {"00", 3}, {"000", 4}})
    EXPECT_EQ(roster.entryOfListed(jersey), entry) << jersey;
  EXPECT_EQ(roster.listedJersey("0"), "00");
  EXPECT_EQ(roster.listedJersey("00"), "000");
  EXPECT_EQ(roster.listOf(0b111110), "IN-00-000-5-05-123") << "each is found again by its own text";
  EXPECT_TRUE(Roster::areOneNumber("5", "05") && Roster::areOneNumber("0", "000"));
  EXPECT_FALSE(Roster::areOneNumber("0", "00") || Roster::areOneNumber("5", "5"));
  for (int i = 7; i <= 16; ++i)
    roster.add({std::to_string(i + 20), 0, ""});
  EXPECT_EQ(roster.entryOf("35"), 15);
  EXPECT_EQ(roster.entryOf("36"), 0) << "the sixteenth player counts among the others";
}

using TallyTest = GameFileTest;

TEST_F(TallyTest, CountsPlayersLinesFoulsAndPoints) {
  const Game game = gameWith(fiveAside(
      "1=10:00,ARRET,IN-,IN-\n2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n3=10:00,DEPART\n"
      "4=09:41,GFG,0-12,42,51\n5=09:41,SA,0-5\n6=E09:20,SPF,1-8\n7=09:00,GFTA,1-8\n"
      "8=09:00,GFT,1-8\n9=08:30,STF,1-8\n10=08:00,ARRET,IN-15-12-10-5-16,IN-03-07-08-11-22\n11=08:00,DEPART\n"
      "12=07:00,GLG,0-16\n13=06:00,SPF,0-99\n14=05:00,ARRET,IN-04-05-10-12-15,IN-22-11-08-07-03\n"));
  const GameState state = tallied(game);
  const std::tuple<Side, std::size_t, Counter, int> counts[] = {
      {Side::Visitor, 4, Counter::FGM, 1}, {Side::Visitor, 2, Counter::Ast, 1},
      {Side::Home, 3, Counter::FTA, 2},    {Side::Home, 3, Counter::FTM, 1},
      {Side::Home, 3, Counter::TF, 1},     {Side::Visitor, 6, Counter::LLM, 1},
      {Side::Home, 3, Counter::PF, 0},     // a deleted foul
      {Side::Visitor, 0, Counter::PF, 1}}; // nobody of the roster wears 99
  for (const auto& [team, entry, counter, wanted] : counts)
    EXPECT_EQ(state.players[team][entry].counters[counter], wanted)
        << numberOf(team) << ' ' << entry << ' ' << static_cast<int>(counter);
  EXPECT_EQ(state.periods[Side::Visitor][1].fouls, 1);
  EXPECT_EQ(state.periods[Side::Home][1].fouls, 1) << "a technical is a team foul";
  EXPECT_EQ(std::pair(state.points(Side::Visitor), state.points(Side::Home)), std::pair(4, 1));
  const std::array seconds{state.players[Side::Visitor][0].seconds, state.players[Side::Visitor][1].seconds,
                           state.players[Side::Visitor][2].seconds};
  EXPECT_EQ(seconds, (std::array{0, 120, 300}));
  EXPECT_EQ(state.usedLines, (PerSide<int>{2, 1}));
  EXPECT_EQ(state.lines[Side::Visitor][2].list, "IN-05-10-12-15-16");
  EXPECT_EQ(std::pair(state.lines[Side::Visitor][1].seconds, state.lines[Side::Visitor][2].seconds),
            std::pair(120, 180));
  EXPECT_EQ(state.lines[Side::Visitor][2].counters[Counter::LLM], 1);
  EXPECT_EQ(state.currentLine[Side::Visitor], 1);
  EXPECT_EQ(state.lead.seconds, (std::array{281, 0, 19}));
  EXPECT_EQ(state.lead.times, (std::array{1, 0, 0}));
  ASSERT_EQ(state.shots.size(), 1U);
  EXPECT_EQ(state.shots[0].eventIndex, 3U);
}

TEST_F(TallyTest, NothingIsAddedAcrossABreakAndAClockSetBackCancelsOut) {
  const Game game =
      gameWith(fiveAside("1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=00:00,ARRET,"
                         "IN-04-05-10-12-15,IN-\n[PERIODE2]\n3=10:00,DEPART\n4=09:00,SA,0-4\n"
                         "5=09:30,SA,0-4\n6=08:00,ARRET,IN-,IN-\n[PERIODE9]\n7=05:00,SPF,0-4\n"));
  const GameState state = tallied(game);
  EXPECT_EQ(state.players[Side::Visitor][1].seconds, 600 + 120);
  EXPECT_EQ(state.lead.seconds, (std::array{0, 0, 720}));
  EXPECT_EQ(state.periods[Side::Visitor][8].fouls, 1);
  EXPECT_EQ(state.lines[Side::Visitor][0].counters[Counter::PF], 1) << "nobody was on court";
}

TEST_F(TallyTest, StrangersInAListMakeALineOfTheirOwn) {
  const Game game = gameWith(
      fiveAside("1=10:00,ARRET,IN-04-05-10-12-77,IN-\n2=09:00,ARRET,IN-04-05-10-12-78,IN-\n"
                "3=08:00,ARRET,IN-77-04-05-10-12,IN-\n4=07:00,ARRET,IN-04-04-05,IN-\n5=06:00,ARRET\n"));
  const GameState state = tallied(game);
  EXPECT_EQ(state.usedLines[Side::Visitor], 3);
  EXPECT_EQ(state.lines[Side::Visitor][1].seconds, 120);
  EXPECT_EQ(state.lines[Side::Visitor][2].seconds, 60);
  EXPECT_EQ(state.lines[Side::Visitor][3].list, "IN-04-05");
  EXPECT_EQ(state.players[Side::Visitor][1].seconds, 240) << "twice in a list is once on court";
  EXPECT_EQ(state.onCourtCount[Side::Visitor], 0);
}

TEST_F(TallyTest, TheHundredAndFirstLineGoesToEntryZeroWithoutTime) {
  std::string events;
  int number = 1;
  for (int i = 0; i < 102; ++i)
    events += std::to_string(number++) + "=10:00,ARRET,IN-04-" + std::to_string(100 + i) + ",IN-\n";
  events += std::to_string(number) + "=09:00,SA,0-4\n" + std::to_string(number + 1) +
            "=08:00,ARRET,IN-04-100,IN-\n";
  const GameState state = tallied(gameWith(fiveAside(events)));
  EXPECT_EQ(state.usedLines[Side::Visitor], 100);
  EXPECT_EQ(state.lines[Side::Visitor][0].counters[Counter::Ast], 1);
  EXPECT_EQ(state.lines[Side::Visitor][0].seconds, 0);
  EXPECT_EQ(state.currentLine[Side::Visitor], 1) << "the first line finds its entry again";
  EXPECT_EQ(state.players[Side::Visitor][1].seconds, 120);
}

TEST_F(TallyTest, ACountOutOfRangeIsNamedAndStaysAtItsLimit) {
  PerSide<Roster> rosters;
  rosters[Side::Visitor].add({"4", 0, "Ana"});
  EventList events;
  for (int i = 1; i <= 32769; ++i)
    events.appendOwned(1, std::to_string(i), "09:00,SA,0-4");
  GameState state;
  const auto outOfRange = Tally::run(state, events, rosters[Side::Visitor], rosters[Side::Home]);
  ASSERT_TRUE(outOfRange);
  EXPECT_EQ(outOfRange->what, "4 Ast");
  EXPECT_EQ(state.players[Side::Visitor][1].counters[Counter::Ast], 32767);
}

// What is left out of one table is left out of all, and what was full is named.
TEST_F(TallyTest, TablesAgreeWhenACountIsFull) {
  const struct {
    const char* code;
    std::vector<std::string> jerseys; // taken in turn
    int events;
    const char* named;
  } cases[] = {
      {"STF", {"4"}, 32768, "4 TF"},
      {"GFTA", {"4"}, 32768, "4 FTA"},
      {"SA", {"4", "5"}, 32768, "IN- Ast"}, // nobody was on court
      {"STF", {"4", "5"}, 32768, "IN- TF"},
      {"GF3", {"4"}, 10923, "PERIODE1 PTS"},
      {"GFG", {"4", "5"}, 16384, "PERIODE1 PTS"},
  };
  PerSide<Roster> rosters;
  rosters[Side::Visitor].add({"4", 0, "Ana"});
  rosters[Side::Visitor].add({"5", 0, "Bo"});
  for (const auto& each : cases) {
    EventList events;
    for (int i = 0; i < each.events + 5; ++i)
      events.appendOwned(1, std::to_string(i + 1),
                         std::string("09:00,") + each.code + ",0-" +
                             each.jerseys[static_cast<std::size_t>(i) % each.jerseys.size()]);
    GameState state;
    const auto outOfRange = Tally::run(state, events, rosters[Side::Visitor], rosters[Side::Home]);
    SCOPED_TRACE(each.named);
    ASSERT_TRUE(outOfRange);
    EXPECT_EQ(outOfRange->what, each.named);
    int points = 0, fouls = 0, attempts = 0;
    for (const PlayerEntry& player : state.players[Side::Visitor]) {
      points += pointsOf(player.counters);
      fouls += player.counters[Counter::PF] + player.counters[Counter::TF];
      attempts += player.counters[Counter::FGA] + player.counters[Counter::F3A];
    }
    EXPECT_EQ(points, state.points(Side::Visitor));
    EXPECT_EQ(points, pointsOf(state.lines[Side::Visitor][0].counters));
    EXPECT_EQ(fouls, state.periods[Side::Visitor][1].fouls);
    EXPECT_EQ(attempts, static_cast<int>(state.shots.size()));
  }
}

TEST_F(TallyTest, AListOfMoreThanFiveAndOneThatIsNoneGiveTimeToThoseWhoCount) {
  const Game game = gameWith(fiveAside("1=10:00,ARRET,IN-04-05-10-12-15-16,IN-\n2=09:00,ARRET,IN14,IN-\n"
                                       "3=08:00,ARRET,IN-04,IN\n[PERIODE2]\n4=10:00,ARRET,IN-4-\n"));
  const GameState state = tallied(game);
  EXPECT_EQ(state.players[Side::Visitor][1].seconds, 120) << "the second line moves no clock";
  EXPECT_EQ(state.players[Side::Visitor][6].seconds, 0) << "the sixth of a list";
  EXPECT_EQ(state.period, 1);
  EXPECT_EQ(state.clockSeconds, 480);
  EXPECT_EQ(state.onCourtCount[Side::Visitor], 1);
}

TEST_F(TallyTest, ClearingForgetsTheGameBefore) {
  const Game game = gameWith(
      fiveAside("1=10:00,ARRET,IN-04-05-10-12-15,IN-03\n2=09:00,GF3,0-4,100,44\n3=08:00,ARRET,IN-04,IN-\n"));
  GameState again = tallied(game);
  const GameState once = again;
  ASSERT_EQ(Tally::run(again, game.events, game.roster[Side::Visitor], game.roster[Side::Home]),
            std::nullopt);
  EXPECT_EQ(again.points(Side::Visitor), once.points(Side::Visitor));
  EXPECT_EQ(again.usedLines, once.usedLines);
  EXPECT_EQ(again.lines[Side::Visitor][1].seconds, once.lines[Side::Visitor][1].seconds);
  EXPECT_EQ(again.shots.size(), 1U);
  EventList none;
  ASSERT_EQ(Tally::run(again, none, game.roster[Side::Visitor], game.roster[Side::Home]), std::nullopt);
  EXPECT_EQ(again.points(Side::Visitor), 0);
  EXPECT_TRUE(again.lines[Side::Visitor][1].list.empty());
}

} // namespace
