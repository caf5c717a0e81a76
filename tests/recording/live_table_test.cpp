// What is faster at the scorer's table: places that are kept, players who come late, the five who begin.
#include "recording/LastFive.h"
#include "recording/LiveTable.h"
#include "recording/StartingFive.h"

namespace hooptab {
namespace {

TEST_F(LiveTableTest, WhoComesTakesThePlaceOfWhoHasLeftWherePlacesAreKept) {
  open(textOfGame(kBegin));
  putFives();
  live.setKeepsPlaces(true);
  ASSERT_TRUE(live.setOnCourt({0b11101100, kFive})); // 6 and 7 for 1 and 4
  EXPECT_EQ(places(live), "6 2 3 7 5");
  ASSERT_TRUE(live.undo());
  EXPECT_EQ(places(live), "1 2 3 4 5");
  run(10);
  for (const int player : {3, 7, 1, 4}) // clicks while the clock runs
    ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, player));
  EXPECT_FALSE(live.putInSlot({Side::Visitor, 1}, 6) || live.putInSlot({Side::Visitor, 3}, 7))
      << "taken, and on court";
  EXPECT_FALSE(live.putInSlot({Side::Visitor, 3}, 8));
  ASSERT_TRUE(live.putInSlot({Side::Visitor, 3}, 6));
  EXPECT_EQ(places(live), "0 2 7 6 5");
  live.stop();
  LiveGame again(store, time);
  again.setKeepsPlaces(true);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(places(again), "6 2 7 0 5") << "as lists tell it, which know no places";
  again.setKeepsPlaces(false);
  ASSERT_TRUE(again.setOnCourt({kFive, kFive}));
  EXPECT_EQ(places(again), "1 2 3 4 5");
  again.finish({});
  ASSERT_TRUE(live.open(path) == GameFileProblem::None && !live.putInSlot({Side::Visitor, 0}, 6));
}

using Problem = NewPlayer::Problem;

TEST_F(LiveTableTest, APlayerWhoComesLateIsInTheFileAndCountsFromThen) {
  open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-33,IN-\n3=09:00,SA,0-33\n"));
  EXPECT_EQ(places(live), "1 2 3 4 0");
  const NewPlayer added = live.addPlayer(Side::Visitor, " 33 ", "Zoë\nZłoty, Jr. ");
  EXPECT_EQ(added.entry, 8);
  EXPECT_EQ(added.words(live.game(), texts), "PAN: 33 Zoë Zloty, Jr. can play now.");
  EXPECT_EQ(places(live), "1 2 3 4 8") << "whom the list named before he was known";
  EXPECT_EQ(live.state().players[Side::Visitor][8].counters[Counter::Ast], 1);
  EXPECT_EQ(onDisk().roster[Side::Visitor].player(8)->name, "Zoë Zloty, Jr.");
  EXPECT_TRUE(live.log().countsAgree());
  const auto problem = [&](Side team, std::string_view jersey, const std::string& name = {}) {
    return live.addPlayer(team, jersey, name).problem;
  };
  for (const char* jersey : {"", "1234", "a", "-1", "1 2"})
    EXPECT_EQ(problem(Side::Visitor, jersey), Problem::NoNumber) << jersey;
  EXPECT_EQ(live.addPlayer(Side::Visitor, "05", "").words(live.game(), texts),
            "Number 05 is worn by 5 Bea Baker.");
  EXPECT_EQ(problem(Side::Home, "5", std::string(252, 'x')), Problem::None);
  EXPECT_EQ(problem(Side::Home, "6", std::string(126, 'x') + std::string(127, 'y')), Problem::NameTooLong);
  for (int number = 50; number < 59; ++number)
    EXPECT_EQ(problem(Side::Home, std::to_string(number)), Problem::None);
  EXPECT_EQ(problem(Side::Home, "59"), Problem::RosterFull);
  EXPECT_EQ(onDisk().roster[Side::Home].players().size(), 15U);
  live.finish({});
  EXPECT_EQ(problem(Side::Visitor, "60"), Problem::CannotRecord);
}

TEST_F(LiveTableTest, ALatePlayerSurvivesTheDiskAndOtherHands) {
  open(textOfGame(kBegin));
  const std::string before = folder.read("live.GAM");
  disk.failAt = 0;
  disk.staysBroken = true;
  ASSERT_TRUE(live.addPlayer(Side::Home, "9", "Nia").isAdded() && !live.log().isOnDisk());
  disk.reset();
  EXPECT_TRUE(live.settle());
  folder.write("live.GAM", before + "2=09:00,SA,1-3\n"); // an older copy with an event of others
  EXPECT_TRUE(live.settle());
  EXPECT_EQ(live.takeForeignHands().added, 1);
  EXPECT_EQ(onDisk().roster[Side::Home].player(6)->name, "Nia");
}

TEST_F(LiveTableTest, AZeroBesideADoubleZeroTakesNobodysPlace) {
  const std::string zero = "0=1,Fay Ford\n";
  std::string game = textOfGame(kBegin + "2=10:00,ARRET,IN-00-04-05-10-12,IN-\n3=E10:00,ARRET,IN-00,IN-\n");
  open(game.erase(game.find(zero), zero.size()));
  ASSERT_TRUE(live.recordAction(Side::Visitor, 6, EventCode::SPF));
  ASSERT_EQ(live.addPlayer(Side::Visitor, "0", "Fay").entry, 7);
  EXPECT_EQ(places(live), "1 2 3 4 6");
  EXPECT_NE(folder.read("live.GAM").find("3=E10:00,ARRET,IN-000,IN-"), std::string::npos);
  EXPECT_TRUE(live.undo()) << "the foul";
  LiveGame again(store, time);
  ASSERT_EQ(again.open(path), GameFileProblem::None);
  EXPECT_EQ(places(again), "1 2 3 4 6");
}

TEST_F(LiveTableTest, StartSaysWhoIsMissingAndTheGameWaitsUntilSomethingHappens) {
  open(textOfGame(kBegin));
  EXPECT_TRUE(awaitsFive(live, Side::Visitor) && awaitsFive(live, Side::Home));
  EXPECT_EQ(missingWords(live, texts), "PAN: nobody on court; OLY: nobody on court");
  ASSERT_TRUE(live.setOnCourt({0b1110, kFive}));
  EXPECT_TRUE(!awaitsFive(live, Side::Visitor) && !awaitsFive(live, Side::Home));
  EXPECT_EQ(missingWords(live, texts), "PAN: 2 of the five missing");
  open("[DETAILS]\nVERSION=2.0\nNBREPERIODE=4\nDUREE=10\n[0]\n0=9,PAN\n[1]\n3=9,A\n7=9,B\n" + kBegin);
  EXPECT_FALSE(awaitsFive(live, Side::Visitor)) << "the team itself";
  EXPECT_EQ(missingOfFive(live, Side::Home), 2) << "all there are";
}

TEST_F(LiveTableTest, TheFiveOfTheLastGameAreProposed) {
  const auto details = [](const std::string& date) {
    return "EQUIPE0CAT=A\nEQUIPE1CAT=B\nDATE=" + date + "\n";
  };
  const auto lists = [](const std::string& list) {
    return kBegin + "2=E10:00,ARRET,IN-00-04-05-10-12,IN-\n3=10:00,ARRET,IN-04-05,IN-\n4=10:00,ARRET," +
           list + ",IN-\n5=09:00,ARRET,IN-04-05-10-12-15,IN-\n";
  };
  open(textOfGame(kBegin, details("2026-11-22")));
  const auto proposed = [&] {
    const auto last = LastFive::of(disk, live.game(), Side::Visitor);
    return last ? last->jerseys + ' ' + last->date + ' ' + last->opponent : "none";
  };
  folder.write("b.gam", textOfGame(lists("IN-000-05-10-12-15"), details("2026-11-08")));
  EXPECT_EQ(proposed(), "00 5 10 12 15 2026-11-08 OLY");
  std::string guests = textOfGame(kBegin + "2=10:00,ARRET,IN-,IN-04-05-07-10-12\n",
                                  "EQUIPE0CAT=B\nEQUIPE1CAT=A\nDATE=2026-11-15\n");
  guests.replace(guests.find("ABB=PAN"), 7, "ABB=NYK");
  guests.replace(guests.find("ABB=OLY"), 7, "ABB=PAN");
  guests.replace(guests.find("[1]\n"), 4, "[1]\n4=9,A\n05=9,B\n10=9,C\n12=9,D\n");
  folder.write("a.GAM", guests);
  EXPECT_EQ(proposed(), "none") << "7 is not in this roster";
  guests.replace(guests.find("-07-"), 4, "-00-");
  folder.write("a.GAM", guests.replace(guests.find("[1]\n"), 4, "[1]\n00=9,E\n"));
  folder.write("c.GAM", textOfGame(kBegin, details("2026-11-29"))); // not begun
  folder.write("d.GAM", textOfGame(lists("IN-04-05-10-12-15"), "DATE=2026-11-30\nEQUIPE0CAT=C\n"));
  folder.write("e.GAM.1", textOfGame(lists("IN-04-05-10-12-15"), details("2026-11-30")));
  folder.write("f.GAM", "[DETAILS]\nVERSION=1.0\n");
  EXPECT_EQ(proposed(), "00 4 5 10 12 2026-11-15 NYK");
  EXPECT_FALSE(LastFive::of(disk, live.game(), Side::Home)) << "OLY-B";
}

} // namespace
} // namespace hooptab
