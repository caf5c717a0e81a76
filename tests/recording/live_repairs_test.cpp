// Which dialogs are offered for what a check has found while a game is recorded.
#include "recording/LiveRepairs.h"

#include "checks/GameCheck.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

TEST(LiveRepairs, LeadToTheEventThatIsToBlame) {
  const Game game = gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:50,SA,0-5\n"
      "4=09:40,SST,0-0\n5=09:00,ARRET,IN-04-05-10-12,IN-03-03-07-08-11-22\n6=09:00,DEPART\n"
      "7=08:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n8=08:00,DEPART\n"));
  const Texts texts;
  std::vector<std::string> words; // "Words > key of the event" of what mends each finding
  for (const Finding& finding : checkGame(game)) {
    for (const LiveRepair& repair : repairsOf(finding, game)) {
      const bool isSubstitution = repair.kind == LiveRepair::Kind::Substitution;
      words.push_back(wordsOf(repair, game, texts) + " > " +
                      (isSubstitution ? repair.past.event.key : repair.event.key));
    }
  }
  EXPECT_EQ(words, (std::vector<std::string>{
                       "Edit > 3", "Delete > 3", "Substitution Before: 0 Fay Ford Comes In > 4",
                       "Change Player > 4", "Change Players In and Out > 5", "Change Players In and Out > 5",
                       "Change Players In and Out > 5", "Change Players In and Out > 5"}))
      << "one stop is to blame for all of them";
}

} // namespace
} // namespace hooptab
