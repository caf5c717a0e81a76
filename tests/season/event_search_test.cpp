// What is asked of all events in words, and which events answer.
#include "catalogue/SeasonFolder.h"
#include "season/EventSearch.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

const std::string kEvents = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                            "2=09:00,GF3,0-4,100,100\n"
                            "3=05:00,GF3A,0-5,100,100\n"
                            "4=01:30,GF3,0-4,100,100\n"
                            "5=01:00,STO,1-7\n"
                            "6=00:30,GF3,1-7,100,100\n"
                            "7=00:20,SA,1-3\n"
                            "8=00:10,GFT,0-5\n"
                            "9=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";

class EventSearchTest : public testing::Test {
 protected:
  EventSearchTest() {
    m_season.addGame("1.GAM", "2026-01-01", kEvents, "NBREPERIODE=1\n");
    m_season.addGame("2.GAM", "2026-01-02", "1=10:00,ARRET,IN-04,IN-07\n2=09:00,STO,0-4\n",
                     "NBREPERIODE=2\n");
    m_season.scan();
  }
  // The found events: "1 00:30 6-3".
  std::string found(const std::string& text) {
    const GameCatalogue& catalogue = m_season.catalogue();
    const EventQuery query = parseEventQuery(text, catalogue.teams());
    std::string unknown;
    for (const std::string& word : query.unknown)
      unknown += "?" + word;
    FileSystem files;
    std::string lines = unknown;
    for (const FoundEvent& event :
         searchEvents(files, catalogue, catalogue.select({}), query.criteria, Texts()).events)
      lines += (lines.empty() ? "" : ", ") + std::to_string(event.game + 1) + " " + event.clock + " " +
               std::to_string(event.score[Side::Visitor]) + "-" + std::to_string(event.score[Side::Home]);
    return lines;
  }

  SeasonFolder m_season;
};

TEST_F(EventSearchTest, AnswersSentencesInBothLanguages) {
  const std::pair<const char*, const char*> questions[] = {
      {"3P made by number 4 in the last two minutes", "1 01:30 6-0"},
      {"3P réussi numéro 4 dans les deux dernières minutes", "1 01:30 6-0"},
      {"tirs de 3 points du 04", "1 09:00 3-0, 1 01:30 6-0"},
      {"three missed", "1 05:00 3-0"},
      {"turnovers of OLY", "1 01:00 6-0"},
      {"revirements de pan en période 1 à 5 points", "2 09:00 0-0"},
      {"turnovers period 1 within 5 points", "2 09:00 0-0"},
      {"revirements, écart de 6", "1 01:00 6-0, 2 09:00 0-0"},
      {"last 30 seconds", "1 00:30 6-3, 1 00:20 6-3, 1 00:10 7-3"},
      {"lancers francs et passes", "1 00:20 6-3, 1 00:10 7-3"},
      {"turnovers in overtime", ""},
      {"offensive rebounds", ""},
      {"wizard turnovers by #7", "?wizard, 1 01:00 6-0"},
  };
  for (const auto& [question, answer] : questions)
    EXPECT_EQ(found(question), answer) << question;
}

TEST_F(EventSearchTest, TellsHowItWasUnderstood) {
  const GameCatalogue& catalogue = m_season.catalogue();
  const EventQuery query =
      parseEventQuery("steals and blocks of PAN player 12 q2 last minute within 3", catalogue.teams());
  EXPECT_EQ(queryWords(query.criteria, catalogue, Texts()),
            "blocked shot, steal · Number 12 · PAN-A · Period 2 · In the last 1 min · Within 3 points");
  EXPECT_TRUE(parseEventQuery("the of", catalogue.teams()).isEmpty());
}

// What the program calls things finds them.
TEST_F(EventSearchTest, UnderstandsTheProgramsOwnWords) {
  std::vector<EventKind> kinds(kEventKinds.begin(), kEventKinds.end());
  std::ranges::copy_if(kTeamKinds, std::back_inserter(kinds), [](const EventKind& kind) {
    return kind.code == EventCode::XTO || kind.code == EventCode::XJB;
  });
  for (const EventKind& kind : kinds) {
    if (kind.code == EventCode::SU1 || kind.code == EventCode::SU2)
      continue; // called as the user likes
    for (const Language language : {Language::English, Language::French}) {
      const std::string words(Texts().text(kind.wordsText, language));
      const EventQuery query = parseEventQuery(words, {});
      EXPECT_EQ(std::ranges::count(query.criteria.kinds, kind.code), 1) << words;
      EXPECT_TRUE(query.unknown.empty()) << words;
      EXPECT_EQ(query.criteria.margin, std::nullopt) << words;
    }
  }
}

} // namespace
