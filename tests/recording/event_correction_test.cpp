// An event that is corrected with single steps, and what becomes of the assist or rebound behind it.
#include "recording/EventCorrection.h"

#include "recording/LiveTable.h"

namespace hooptab {
namespace {

using Outcome = EventCorrection::Outcome;
using Remedy = EventCorrection::Remedy;

class EventCorrectionTest : public LiveTableTest {
 protected:
  void begin(const std::string& events, const std::string& key) {
    open(textOfGame(kBegin + "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n" + events));
    ASSERT_TRUE(correction.begin(session, {1, key}));
  }
  std::string line(const std::string& key) { return std::string(live.game().events.find(1, key)->whole()); }
  std::string both() { return line("3").substr(6) + ' ' + line("4").substr(6); }
  Outcome type(const std::string& digits) {
    Outcome outcome = Outcome::None;
    for (const char digit : digits)
      outcome = correction.type(digit - '0');
    return outcome;
  }

  EventCorrection correction;
};

TEST_F(EventCorrectionTest, EachStepIsOneToUndoAndLeavesClockAndPlaceInTheGame) {
  begin("3=09:00,SPF,0-4\n4=09:30,GFG,0-12,40,50\n5=09:10,SST,1-3\n", "4"); // the clock was set back
  EXPECT_EQ(correction.question(texts), "PAN 12 Dana Dunn: 2 points made – whose?");
  EXPECT_TRUE(correction.canToggleMade() && correction.canToggleThree());
  const EventLines before = linesOf(live.game().events);
  const auto step = [&](Outcome outcome, const std::string& text) {
    EXPECT_EQ(outcome, Outcome::Changed) << text;
    EXPECT_EQ(line("4"), "09:30" + text);
  };
  step(correction.toggleMade(), ",GFGA,0-12,40,50");
  step(correction.toggleThree(), ",GF3A,0-12,40,50");
  step(correction.takePlayer({Side::Home, 2}), ",GF3A,1-7,40,50");
  step(correction.takePlayer({Side::Visitor, 7}), ",GF3A,0-00,40,50"); // from the bench
  EXPECT_EQ(correction.takePlayer({Side::Visitor, 7}), Outcome::Same);
  EXPECT_EQ(correction.takePlayer({Side::Visitor, 9}), Outcome::Refused);
  for (int steps = 0; steps < 4; ++steps)
    EXPECT_TRUE(live.undo());
  EXPECT_EQ(linesOf(live.game().events), before);
  ASSERT_TRUE(live.setDeleted(std::vector<EventPlace>{{1, "4"}}, true));
  EXPECT_EQ(correction.toggleMade(), Outcome::None);
  EXPECT_EQ(EventCorrection::lastOf(live), (EventPlace{1, "5"}));
  EXPECT_FALSE(correction.begin(session, {1, "2"}) || correction.begin(session, {1, "4"}));
}

TEST_F(EventCorrectionTest, AFollowUpThatNoLongerFitsIsNeverLeftOrLostInSilence) {
  begin("3=09:00,GLG,0-12\n4=09:00,SA,0-5\n", "3");
  EXPECT_EQ(correction.takePlayer({Side::Visitor, 3}), Outcome::Changed)
      << "another shooter, still assisted by 5";
  EXPECT_EQ(correction.takePlayer({Side::Visitor, 2}), Outcome::Asks);
  EXPECT_EQ(both(), "GLG,0-10 SA,0-5") << "nothing yet";
  EXPECT_EQ(correction.followUpQuestion(texts) + correction.adaptedWords(texts),
            "PAN 5 Bea Baker: assist – that no longer fits. Delete it, too?10 Cleo Carter: assist");
  EXPECT_EQ(correction.decide(Remedy::Adapt), Outcome::Changed);
  EXPECT_EQ(both(), "GLG,0-5 SA,0-10");
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(both(), "GLG,0-10 SA,0-5") << "one step";
  EXPECT_EQ(correction.toggleMade(), Outcome::Asks);
  EXPECT_EQ(correction.decide(Remedy::Adapt), Outcome::None);
  EXPECT_EQ(correction.toggleMade(), Outcome::Asks);
  EXPECT_EQ(correction.decide(Remedy::Delete), Outcome::Changed);
  EXPECT_EQ(line("3") + line("4"), "09:00,GLGA,0-10E09:00,SA,0-5");
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(correction.toggleMade(), Outcome::Asks);
  EXPECT_EQ(correction.decide(Remedy::Keep), Outcome::Changed);
  EXPECT_EQ(correction.takePlayer({Side::Home, 1}), Outcome::Changed) << "it did not fit before";
  EXPECT_EQ(both(), "GLGA,1-3 SA,0-5");

  begin("3=09:00,GLGA,0-12\n4=09:00,SOR,0-5\n", "3");
  EXPECT_EQ(correction.takePlayer({Side::Home, 1}), Outcome::Asks);
  EXPECT_EQ(correction.decide(Remedy::Adapt), Outcome::Changed);
  EXPECT_EQ(both(), "GLGA,1-3 SDR,0-5");
  EXPECT_EQ(correction.toggleMade(), Outcome::Asks);
  ASSERT_TRUE(live.setDeleted(std::vector<EventPlace>{{1, "3"}}, true)) << "in the meantime";
  EXPECT_EQ(correction.decide(Remedy::Keep), Outcome::None);

  begin("3=09:00,GLGA,0-12\n4=09:00,SOR,0-5\n5=08:00,GLG,0-12\n6=08:00,SA,0-5\n", "4");
  EXPECT_EQ(correction.takePlayer({Side::Home, 1}), Outcome::Changed);
  EXPECT_EQ(both(), "GLGA,0-12 SDR,1-3");
  ASSERT_TRUE(correction.begin(session, {1, "6"}));
  EXPECT_EQ(correction.takePlayer({Side::Visitor, 4}), Outcome::Refused);
  EXPECT_EQ(correction.reason(texts), "12 has made the basket himself.");
  EXPECT_EQ(correction.takePlayer({Side::Home, 1}), Outcome::Refused);
  EXPECT_EQ(correction.reason(texts), "3 plays for OLY.");
}

TEST_F(EventCorrectionTest, ATypedNumberIsHeldWholeAndItsOwnTeamComesFirst) {
  begin("3=09:00,SPF,1-3\n", "3");
  ASSERT_TRUE(live.addPlayer(Side::Home, "5", "Nia").isAdded());
  EXPECT_EQ(type("5"), Outcome::Changed) << "one in each team";
  EXPECT_EQ(line("3"), "09:00,SPF,1-5");
  EXPECT_EQ(type("4"), Outcome::Changed) << "nobody's of the own team, one of the other";
  EXPECT_EQ(line("3"), "09:00,SPF,0-4");
  EXPECT_EQ(type("0"), Outcome::None) << "00 could follow";
  EXPECT_EQ(correction.meant(), (EventCorrection::Who{Side::Visitor, 6}));
  EXPECT_EQ(correction.enter(), Outcome::Changed);
  EXPECT_EQ(line("3"), "09:00,SPF,0-0");
  EXPECT_EQ(type("99"), Outcome::Refused);
  EXPECT_EQ(correction.typed() + ' ' + correction.reason(texts), "99 Nobody here has number 99.");
}

} // namespace
} // namespace hooptab
