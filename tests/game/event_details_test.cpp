// What is known of an event beyond the grammar of older readers, and events of teams that they do not count.
#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/PlayerIds.h"
#include "game/WallClock.h"
#include "storage/BatchText.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

#include <string>

namespace hooptab {
namespace {

GameEvent eventOf(std::string_view line) {
  return GameEvent::parse(1, "1", line);
}

TEST(EventDetails, AreReadInAnyOrderBehindTheGrammar) {
  const GameEvent foul = eventOf("E05:00,SPF,0-4,F=2,K=S,Z=9,D=1-07");
  EXPECT_TRUE(foul.isUnderstood && foul.isDeleted);
  EXPECT_EQ(foul.detail("D"), "1-07");
  EXPECT_EQ(foul.detail("Z"), "9") << "of a later version";
  EXPECT_EQ(foul.detail("X"), std::nullopt);
  EXPECT_EQ(eventOf("05:00,ARRET,IN-04,IN-05,K=1,?=1").detail("K"), "1");
  struct Placed {
    std::string_view line;
    bool hasPlace;
    std::string_view kind;
  };
  for (const Placed& placed : {Placed{"05:00,GFG,0-4,42,51,K=HOOK", true, "HOOK"},
                               {"05:00,GF3A,0-4,,,K=JUMP", false, "JUMP"},
                               {"05:00,GFG,0-4,K=JUMP", false, "JUMP"},
                               {"05:00,GDK,0-4,X=3,K=DUNK,Y=100", true, "DUNK"},
                               {"05:00,GDK,0-4,X=3,K=DUNK", false, "DUNK"},
                               {"05:00,GFT,0-4,X=3,Y=4,K=DUNK", false, "DUNK"}}) {
    const GameEvent event = eventOf(placed.line);
    EXPECT_TRUE(event.isUnderstood) << placed.line;
    EXPECT_EQ(event.hasPlace, placed.hasPlace) << placed.line;
    EXPECT_EQ(event.detail("K"), placed.kind) << placed.line;
  }
}

TEST(EventDetails, AreSetAndTakenAwayWithoutTouchingTheRest) {
  struct Case {
    std::string_view line, key, value, result;
  };
  for (const Case& c : {Case{"05:00,SPF,0-4", "D", "1-7", "05:00,SPF,0-4,D=1-7"},
                        {"05:00,SPF,0-4,D=1-7,F=2", "D", "1-8", "05:00,SPF,0-4,F=2,D=1-8"},
                        {"05:00,SPF,0-4,D=1-7,later", "D", "", "05:00,SPF,0-4,later"},
                        {"E05:00,GFG,0-4", "K", "HOOK", "E05:00,GFG,0-4,,,K=HOOK"},
                        {"05:00,GFG,0-4,,,K=HOOK", "K", "", "05:00,GFG,0-4"},
                        {"05:00,GFG,0-4,?=1", "K", "HOOK", "05:00,GFG,0-4,,,?=1,K=HOOK"},
                        {"05:00,GF3A,0-4,1,2", "?", "1", "05:00,GF3A,0-4,1,2,?=1"},
                        {"05:00,ARRET", "?", "1", "05:00,ARRET,,,?=1"},
                        {"05:00,DEPART", "?", "1", "05:00,DEPART,?=1"},
                        {"05:00,XJB,0-4,1-3", "W", "1", "05:00,XJB,0-4,1-3,W=1"},
                        {"05:00,SA,0-A=1", "?", "1", "05:00,SA,0-A=1,?=1"},
                        {",GDK,0-4", "X", "3", ",GDK,0-4,X=3"}})
    EXPECT_EQ(withDetail(c.line, c.key, c.value), c.result);
}

// What is said of a shot holds while it stays one; who drew a foul cannot be of the team that made it.
TEST(EventDetails, GoWithAnEventThatIsChanged) {
  const GameEvent foul = eventOf("05:00,SPF,0-4,K=S,D=1-7,F=2,?=1");
  EXPECT_EQ(withDetailsOf(foul, ",SPF,0-5", EventCode::SPF, Side::Visitor), ",SPF,0-5,K=S,D=1-7,F=2");
  EXPECT_EQ(withDetailsOf(foul, ",STF,1-7", EventCode::STF, Side::Home), ",STF,1-7,F=2");
  EXPECT_EQ(
      withDetailsOf(eventOf("05:00,SPF,0-4,D=1-7,later,D=1-8,K="), ",SPF,0-5", EventCode::SPF, Side::Visitor),
      ",SPF,0-5,D=1-7,later,D=1-8,K=")
      << "what is read first stays first";
  EXPECT_EQ(withDetailsOf(foul, ",STO,0-4", EventCode::STO, Side::Visitor), ",STO,0-4");
  const GameEvent dunk = eventOf("05:00,GDK,0-4,X=3,Y=100,Q=F");
  EXPECT_EQ(withDetailsOf(dunk, eventText(EventCode::GFG, false, Side::Visitor, "4"), EventCode::GFG,
                          Side::Visitor),
            ",GFGA,0-4,,,Q=F");
  EXPECT_EQ(withDetailsOf(dunk, eventText(EventCode::GDK, true, Side::Visitor, "4", {{5, 90}}),
                          EventCode::GDK, Side::Visitor),
            ",GDK,0-4,X=5,Y=90,Q=F");
}

TEST(EventDetails, ReadsWhatTeamsDoAndNothingElseUnderTheirCodes) {
  EXPECT_EQ(eventOf("05:00,XTO,1,K=FULL").player.team, Side::Home);
  EXPECT_TRUE(eventOf("05:00,XTO,,K=MEDIA").isUnderstood);
  const GameEvent ball = eventOf("05:00,XJB,0-4,1-07,W=1");
  EXPECT_EQ(ball.player.team, std::nullopt);
  EXPECT_EQ(ball.jumper(Side::Home).jersey, "07");
  EXPECT_EQ(ball.jumper(Side::Visitor).team, Side::Visitor);
  for (const std::string_view wrong : {"05:00,XTO,2", "05:00,XOR,", "05:00,XOR,0-4", "05:00,XJB,1-4,0-7",
                                       "05:00,XJB,0-4", "05:00,XAR", "05:00,XTOA,0", "05:00,xto,0"})
    EXPECT_FALSE(eventOf(wrong).isUnderstood) << wrong;
}

// The same game with everything that a league asks for, and as an older program would have counted it.
const std::string kPlain = "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n"
                           "3=09:30,GFG,0-4,20,100\n4=09:00,SPF,0-5\n5=08:30,GDKA,1-3\n6=08:30,SBS,0-4\n"
                           "7=08:00,STO,1-7\n8=07:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";
const std::string kFull =
    "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n20=10:00,XJB,0-4,1-3,W=0\n21=10:00,XAR,"
    "1\n"
    "2=10:00,DEPART\n3=09:30,GFG,0-4,20,100,K=HOOK,Q=F\n4=09:00,SPF,0-5,K=S,D=1-07,F=2\n22=08:59,XTO,1,K="
    "FULL\n"
    "5=08:30,GDKA,1-3,X=3,Y=100\n6=08:30,SBS,0-4,S=1-3\n23=08:29,XOR,1\n24=08:10,XTV,0,K=24S\n"
    "7=08:00,STO,1-7,K=TRAVEL\n25=07:50,XDR,0\n26=07:40,XCF,1,K=C\nE27=07:30,XTO,0\n28=07:20,XTO,,K=MEDIA\n"
    "8=07:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";

TEST(EventDetails, CountForTeamsAndChangeNoOldCount) {
  std::string full = kFull;
  full.replace(full.find("E27=07:30"), 9, "27=E07:30"); // the mark stands in the line
  const GameState plain = tallied(gameOfText(textOfGame(kPlain)));
  const Game game = gameOfText(textOfGame(full));
  const GameState state = tallied(game);
  for (const Side team : kSides) {
    for (std::size_t entry = 0; entry < plain.players[team].size(); ++entry) {
      EXPECT_EQ(state.players[team][entry].counters, plain.players[team][entry].counters);
      EXPECT_EQ(state.players[team][entry].seconds, plain.players[team][entry].seconds);
    }
    EXPECT_EQ(state.lines[team][1].seconds, plain.lines[team][1].seconds);
  }
  EXPECT_EQ(state.lead.seconds, plain.lead.seconds);
  EXPECT_EQ(state.clockSeconds, plain.clockSeconds);
  EXPECT_EQ(state.teamRows[Side::Home], (TeamRow{1, 0, 0, 1, 1}));
  EXPECT_EQ(state.teamRows[Side::Visitor], (TeamRow{0, 1, 1, 0, 0}));
  EXPECT_EQ(state.extras[Side::Home][2].foulsDrawn, 1) << "07 is number 7";
  EXPECT_EQ(state.extras[Side::Home][1].blocksAgainst, 1);
  ASSERT_EQ(state.shots.size(), 2U) << "a dunk with its place is drawn, too";
  EXPECT_FLOAT_EQ(state.shots[1].y, 100);
}

TEST(EventDetails, AreSaidInWords) {
  const Game game = gameOfText(textOfGame(kFull));
  Texts texts;
  const auto words = [&](int number) {
    for (std::size_t i = 0; i < game.events.size(); ++i) {
      if (game.events[i].number == number)
        return EventWords(game, texts).words(i);
    }
    return std::string();
  };
  EXPECT_EQ(words(4), "PAN 5 Bea Baker: personal foul, shooting, on 7 Ida Ivers, free throws: 2");
  EXPECT_EQ(words(6), "PAN 4 Ann Able: blocked shot, shot by 3 Hana Hart");
  EXPECT_EQ(words(20), "jump ball: PAN 4 Ann Able – OLY 3 Hana Hart, won by PAN");
  EXPECT_EQ(words(26), "OLY: technical foul of the coach");
  EXPECT_EQ(words(28), "media time-out");
  texts.setLanguage(Language::French);
  EXPECT_EQ(words(24), "PAN : retournement d'équipe, chronomètre de tir");
}

TEST(WallClock, CountsForTheGameThatItIsOf) {
  const ProfileText text("[HORLOGE]\r\nPARTIE=ab\r\n1=1763790000123\r\nx=5\r\n2=-1\r\n3=1763790000456x\r\n");
  EXPECT_EQ(readWallClock(text, "ab"), (std::map<int, std::int64_t>{{1, 1763790000123}}));
  EXPECT_TRUE(readWallClock(text, "cd").empty()) << "left over from another game";
  EXPECT_TRUE(readWallClock(ProfileText("[HORLOGE]\r\n1=5\r\n"), "").empty());
  EXPECT_NE(newGameId(), newGameId());
}

TEST(PlayerIds, AreKeptBesideWhatALaterVersionWrote) {
  ProfileText text("[JOUEURS1]\r\n07=X=1,LIC=QC-1,new,ID=\xC9\x37\r\n8=\r\n07=LIC=2\r\n");
  const PlayerIds ids = readPlayerIds(text, Side::Home);
  EXPECT_EQ(ids, (PlayerIds{{"07", {"QC-1", "É7"}}, {"8", {}}}));
  EXPECT_TRUE(readPlayerIds(text, Side::Visitor).empty());
  ProfileBatch batch;
  EXPECT_FALSE(planPlayerId(text, Side::Home, "8", {"a,b", ""}, batch));
  EXPECT_FALSE(planPlayerId(text, Side::Home, "07", {std::string(250, '1'), ""}, batch))
      << "with what is there";
  EXPECT_TRUE(batch.isEmpty());
  EXPECT_TRUE(planPlayerId(text, Side::Home, "07", {"", "Ü9"}, batch) &&
              planPlayerId(text, Side::Visitor, "4", {"L", ""}, batch));
  text = withBatch(text, batch);
  EXPECT_EQ(text.value("JOUEURS1", "07"), "ID=\xDC\x39,X=1,new");
  EXPECT_EQ(readPlayerIds(text, Side::Visitor), (PlayerIds{{"4", {"L", ""}}}));
}

} // namespace
} // namespace hooptab
