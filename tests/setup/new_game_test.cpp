#include "setup/SetupWords.h"

#include "storage/codepage.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>

namespace hooptab {
namespace {

using Problem = NewGame::Problem;
using Objection = NewGame::Objection;

constexpr const char* kToday = "2026-11-21";

std::string sixteenPlayers(const std::string& section) {
  std::string text = "[" + section + "]\r\n";
  for (int number = 1; number <= 16; ++number)
    text += std::to_string(number) + "=9,Player " + std::to_string(number) + ",,,,,\r\n";
  return text;
}

// Team 1 is nobody's main team, 2 and 4 are; 3 has a "-" in its abbreviation and no players; the last one's
// key is no number. Rules differ in every team.
std::string teams() {
  return "[CONFIGURATION]\r\nLANGUE=0\r\nSTATU1=U1-Charges\r\nSTATU2=U2-Écrans\r\n[TEAM]\r\n"
         "1=LYNX,AAA ,Basketball College ,U1,U2,2,4,5,6,3,8438015,0\r\n"
         "2=COUGAR,AA ,State College,U1,U2,8,2,7,5,2,12303223,1\r\n"
         "3= A-B,C/D,Aigles,U1,U2,10x, 4 quarters,5,5,2\r\n"
         "4=PUMA,CCC ,Very Small School,U1,U2,0,1,1,1,1,5,1\r\n"
         "5=0\r\n"
         "x=ODD,B,Odd Key,U1,U2,7,4,5,5,2,1,0\r\n"
         "[1]\r\n4=0,Ann Able,,,,,\r\n00=2,Bea Baker,,,,,\r\n1234=1,Cleo Carter,,,,,\r\nAB=1,Dana "
         "Dunn,,,,,\r\n"
         "4=1,Eve Ellis,,,,,\r\n" +
         sixteenPlayers("2") + sixteenPlayers("4");
}

class NewGameTest : public testing::Test {
 protected:
  NewGameTest() {
    folder.write("CONFIG.INI", codepage::fromUtf8(teams()));
    settings.read();
  }
  NewGame made(const LastChoices& last = {}) { return {store, settings, texts, kToday, last}; }
  // Lynx against Cougar with 15 players; nothing is wrong.
  NewGame ready() {
    NewGame game = made();
    game.chooseTeam(Side::Visitor, 0);
    game.chooseTeam(Side::Home, 1);
    game.setChecked(Side::Home, 15, false);
    return game;
  }

  bool holds(const char* file, const std::string& part) const {
    return folder.read(file).find(part) != std::string::npos;
  }

  TemporaryFolder folder;
  FaultyFileSystem files;
  ProfileStore profile{files};
  Texts texts;
  Settings settings{profile, folder.path()};
  TeamStore store{profile, settings};
};

TEST_F(NewGameTest, BeginsWithTheLastChoicesThatAreStillThere) {
  const NewGame game = made({{1, 3}, "Main gym", "Camille", 4, 2});
  EXPECT_EQ(game.sides[Side::Visitor].team, 0);
  EXPECT_EQ(game.sides[Side::Home].name, "Aigles");
  EXPECT_EQ(game.rules.minutesPerPeriod, "10x");
  EXPECT_EQ(game.place, "Main gym");
  EXPECT_EQ(game.choices(), (LastChoices{{1, 3}, "Main gym", "Camille", 4, 2, {{1, {}}, {3, {}}}}));
  const NewGame fresh = made({{0, 77}, "", "", 7, 9});
  EXPECT_EQ(fresh.sides[Side::Visitor].team, NewGame::kNone) << "a key without a number is not team 0";
  for (const int choice : {fresh.sides[Side::Home].team, fresh.gameType, fresh.inputType})
    EXPECT_EQ(choice, NewGame::kNone);
  EXPECT_EQ(fresh.teams().size(), 5U);
}

TEST_F(NewGameTest, HomeTeamAndMainTeamSetRulesAndDate) {
  NewGame game = made();
  game.date = "typed";
  game.chooseTeam(Side::Visitor, 0);
  EXPECT_EQ(game.rules.periods, "") << "visitors who are not the main team";
  EXPECT_EQ(game.date, "typed");
  EXPECT_EQ(game.sides[Side::Visitor].name, "Basketball College ");
  EXPECT_EQ(game.sides[Side::Visitor].colour, 8438015U);
  game.chooseTeam(Side::Home, 2);
  EXPECT_EQ(game.rules.minutesPerPeriod, "10x");
  EXPECT_EQ(game.date, kToday);
  EXPECT_EQ(game.sides[Side::Home].colour, 0U) << "no default here";
  EXPECT_EQ(game.mainTeam, std::nullopt);
  game.date = "typed";
  game.chooseTeam(Side::Visitor, 3);
  EXPECT_EQ(game.mainTeam, Side::Visitor);
  EXPECT_EQ(game.rules.minutesPerPeriod, "0") << "visitors who are";
  EXPECT_EQ(game.date, kToday);
  game.chooseTeam(Side::Home, 1);
  EXPECT_EQ(game.mainTeam, Side::Home) << "one at most";
  game.chooseTeam(Side::Home, 0);
  EXPECT_EQ(game.mainTeam, std::nullopt);
}

TEST_F(NewGameTest, ASetOfRulesIsFilledInAndWhatComesAfterwardsHolds) {
  NewGame game = ready();
  EXPECT_FALSE(game.differsFromRules());
  game.chooseRules("NBA");
  game.chooseRules("FIBA");
  const TypedRules& rules = game.rules;
  EXPECT_EQ(rules.periods + ' ' + rules.minutesPerPeriod + ' ' + rules.bonus + ' ' + rules.personalFoulLimit +
                ' ' + rules.technicalFoulLimit,
            "4 10 4 5 2");
  EXPECT_FALSE(game.differsFromRules());
  game.rules.personalFoulLimit = "06";
  EXPECT_TRUE(game.differsFromRules());
  ASSERT_EQ(game.create(folder.path("a.GAM")), GameFileProblem::None);
  for (const char* part : {"DUREE=10\r\nBONUS=4\r\nPFMAX=06\r\n", "REGLES=FIBA\r\n", "DUREEPROL=5\r\n"})
    EXPECT_TRUE(holds("a.GAM", part)) << part;
  game.chooseTeam(Side::Home, 0);
  EXPECT_EQ(game.rules.minutesPerPeriod, "2") << "the team's, as ever";
  EXPECT_EQ(game.ruleSet(), "FIBA");
  EXPECT_TRUE(game.differsFromRules());
  game.chooseRules("LATER");
  EXPECT_EQ(game.ruleSet() + game.rules.minutesPerPeriod, "2");
}

TEST_F(NewGameTest, RulesAndLevelAreThoseOfTheTeamsLastGameUntilOthersAreChosen) {
  using enum RecordingLevel;
  LastChoices last{{3, 1}, "", "", 2, 0};
  last.habits = {{1, {"NBA", Full}}, {2, {"FIBA", League}}, {4, {"LATER", Basic}}};
  NewGame game = made(last);
  EXPECT_EQ(game.ruleSet(), "NBA") << "of the home team, where nobody is the main one";
  EXPECT_EQ(game.rules.minutesPerPeriod, "2") << "which the team alone says";
  EXPECT_EQ(game.level(), Full);
  ASSERT_EQ(game.create(folder.path("a.GAM")), GameFileProblem::None);
  EXPECT_TRUE(holds("a.GAM", "REGLES=NBA\r\nNIVEAU=FULL\r\n"));
  EXPECT_EQ(game.choices().habits, (std::map<int, TeamHabit>{{1, {"NBA", Full}}, {3, {"NBA", Full}}}))
      << "though the visitors became the main team";
  NewGame next = made(last);
  next.chooseTeam(Side::Visitor, 1);
  EXPECT_EQ(next.ruleSet(), "FIBA") << "the visitors are the main team";
  next.setChecked(Side::Visitor, 0, false);
  next.chooseRules("");
  next.chooseLevel(Basic);
  ASSERT_EQ(next.create(folder.path("b.GAM")), GameFileProblem::None);
  EXPECT_TRUE(holds("b.GAM", "NIVEAU=BASIC\r\n")) << "chosen against the habit";
  EXPECT_FALSE(holds("b.GAM", "REGLES") || holds("b.GAM", "DUREEPROL"));
  next.inputType = 2;
  ASSERT_EQ(next.create(folder.path("c.GAM")), GameFileProblem::None);
  EXPECT_FALSE(holds("c.GAM", "NIVEAU")) << "nothing is asked for in totals";
  EXPECT_EQ(next.choices().habits.at(2), (TeamHabit{"", League}));
  EXPECT_EQ(made({{0, 4}, "", "", 2, 0, last.habits}).ruleSet(), "") << "a set that nobody knows";
}

TEST_F(NewGameTest, TheSheetGoesWithTheGameAndItsTeams) {
  NewGame game = ready();
  game.sheet.competition = "Élite";
  for (const Side side : kSides) {
    game.sheet.coach[side] = side == Side::Visitor ? "Zoë" : "Bo";
    game.sheet.captain[side] = side == Side::Visitor ? "4" : "2";
  }
  game.sheet.targetScore = "30";
  game.chooseTeam(Side::Home, 1);
  game.setChecked(Side::Home, 15, false);
  EXPECT_EQ(game.sheet.captain[Side::Home], "2") << "the same team once more";
  game.setChecked(Side::Home, 1, false); // number 2
  ASSERT_EQ(game.create(folder.path("a.GAM")), GameFileProblem::None);
  EXPECT_TRUE(holds("a.GAM", codepage::fromUtf8("COMPETITION=Élite\r\nENTRAINEUR0=Zoë\r\nENTRAINEUR1=Bo\r\n"
                                                "CAPITAINE0=4\r\nSCORECIBLE=30\r\n")));
  game.chooseTeam(Side::Home, 2);
  EXPECT_EQ(game.sheet.coach[Side::Visitor] + '|' + game.sheet.coach[Side::Home] +
                game.sheet.captain[Side::Home],
            "Zoë|");
}

TEST_F(NewGameTest, OnlyAJerseyThatNobodyAboveWearsCanPlay) {
  NewGame game = made();
  game.chooseTeam(Side::Visitor, 0);
  using enum NewGame::Eligibility;
  const NewGame::Eligibility expected[] = {CanPlay, CanPlay, NoJersey, NoJersey, NumberTaken};
  auto& players = game.sides[Side::Visitor].players;
  ASSERT_EQ(players.size(), std::size(expected));
  for (std::size_t i = 0; i < players.size(); ++i) {
    EXPECT_EQ(players[i].eligibility, expected[i]) << i;
    EXPECT_EQ(players[i].isChecked, expected[i] == CanPlay) << i;
    game.setChecked(Side::Visitor, i, true);
  }
  EXPECT_EQ(game.sides[Side::Visitor].checkedPlayers(), 2);
  for (const int position : {1, 2, 9, 0}) {
    game.stepPosition(Side::Visitor, 0);
    EXPECT_EQ(players[0].position, position);
  }
}

TEST_F(NewGameTest, NumbersAloneMakeTheSideAndLeaveTheTeam) {
  const std::string before = folder.read("CONFIG.INI");
  NewGame game = made();
  game.chooseTeam(Side::Visitor, 0); // wears 4 and 00
  const auto shown = [&] {
    std::string text;
    for (const NewGame::Player& player : game.sides[Side::Visitor].players)
      text += (player.isChecked ? "+" : "-") + player.number + ' ' + player.name + '|';
    return text;
  };
  const auto added = [&](Side side, std::string_view number, std::string_view name) {
    return wordsOf(game.addPlayer(side, number, name), texts);
  };
  EXPECT_EQ(game.takeNumbers(Side::Visitor, "23 004 7").problem, QuickRoster::Problem::None);
  EXPECT_EQ(shown(), "+4 Ann Able|-00 Bea Baker|-1234 Cleo Carter|-AB Dana Dunn|-4 Eve Ellis|+23 |+7 |");
  const std::string chosen = shown();
  for (const char* wrong : {"4 x", "7 07", " "})
    EXPECT_EQ(game.takeNumbers(Side::Visitor, wrong).jerseys.size(), 0U);
  EXPECT_EQ(added(Side::Visitor, "x", ""), texts.text(Text::InvalidNumber));
  EXPECT_EQ(added(Side::Visitor, "04", "Zoë"), "Number 04 is worn by 4 Ann Able.");
  EXPECT_EQ(added(Side::Visitor, "8", std::string(260, 'W')), texts.text(Text::NameTooLong));
  EXPECT_EQ(shown(), chosen) << "nothing of what is wrong";
  EXPECT_EQ(added(Side::Visitor, " 9 ", " Zoë "), "");
  EXPECT_EQ(game.takeNumbers(Side::Visitor, "00,7").problem, QuickRoster::Problem::None);
  EXPECT_EQ(shown(), "-4 Ann Able|+00 Bea Baker|-1234 Cleo Carter|-AB Dana Dunn|-4 Eve Ellis|-9 Zoë|+7 |");
  game.chooseTeam(Side::Home, 1);
  EXPECT_EQ(game.takeNumbers(Side::Home, "1").problem, QuickRoster::Problem::None);
  ASSERT_EQ(game.create(folder.path("a.GAM")), GameFileProblem::None);
  EXPECT_TRUE(holds("a.GAM", "[0]\r\n00=2,Bea Baker\r\n7=9,\r\n[1]\r\n1=9,Player 1\r\n"));
  EXPECT_EQ(folder.read("CONFIG.INI").substr(folder.read("CONFIG.INI").find("[TEAM]")),
            before.substr(before.find("[TEAM]")));
}

TEST_F(NewGameTest, AGameNeedsNoTeamOfTheList) {
  folder.write("CONFIG.INI", "[CONFIGURATION]\r\nLANGUE=0\r\n");
  NewGame game = made();
  EXPECT_EQ(game.takeNumbers(Side::Visitor, "4 5").problem, QuickRoster::Problem::None);
  EXPECT_EQ(game.addPlayer(Side::Home, "7", "Zoë").problem, NewGame::AddedPlayer::Problem::None);
  EXPECT_TRUE(game.canAccept() && game.problem() == Objection());
  EXPECT_NE(game.sides[Side::Visitor].colour, game.sides[Side::Home].colour);

  const std::pair<const char*, const char*> names[] = {{"", "HOME"},
                                                       {" Quarry Hill Otters ", "Otters"},
                                                       {"Équipe Saint-Élie", "SaintÉl"},
                                                       {"-", "HOME"},
                                                       {"Home", "Home"}};
  const auto rename = [&game](Side side, const char* name) {
    game.sides[side].name = name;
    game.renameOwnTeam(side);
  };
  for (const auto& [name, abbreviation] : names) {
    rename(Side::Home, name);
    EXPECT_EQ(game.teams()[1].abbreviation, abbreviation);
  }
  rename(Side::Visitor, "Valley Lions");
  rename(Side::Home, "City Lions");
  EXPECT_EQ(game.teams()[1].abbreviation, "HOME") << "two of one name would be one team in a season";
  rename(Side::Visitor, "");
  rename(Side::Home, "Home");
  game.sides[Side::Home].category = "AA";
  game.renameOwnTeam(Side::Home);
  game.chooseOwnTeam(Side::Home);
  EXPECT_EQ(game.sides[Side::Home].players.size(), 1U) << "it is chosen already";
  EXPECT_EQ(game.teams().size(), 2U);
  EXPECT_TRUE(game.proposedFileName().ends_with(" VISITOR- Home-AA.GAM")) << game.proposedFileName();
  ASSERT_EQ(game.create(folder.path("a.GAM")), GameFileProblem::None);
  for (const char* part :
       {"EQUIPE1ABB=Home\r\n", "NBREPERIODE=4\r\nDUREE=10\r\nBONUS=5\r\nPFMAX=5\r\nTFMAX=2\r\n",
        "[0]\r\n4=9,\r\n5=9,\r\n[1]\r\n7=9,Zo"})
    EXPECT_TRUE(holds("a.GAM", part)) << part;
  EXPECT_EQ(game.choices().teamId[Side::Home], 0) << "the next game does not find it again";
  game.chooseTeam(Side::Visitor, 1);
  EXPECT_EQ(game.sides[Side::Visitor].name, "Home") << "by its position as any other";
  EXPECT_EQ(game.problem(), (Objection{Problem::SameTeam}));
}

TEST_F(NewGameTest, IsAcceptedOnceEverythingIsChosen) {
  const struct {
    void (*spoil)(NewGame&);
    Objection missing;
    Text text;
  } cases[] = {
      {[](NewGame&) {}, {}, Text::None},
      {[](NewGame& g) { g.sides[Side::Visitor].team = NewGame::kNone; },
       {Problem::NoTeam, Side::Visitor},
       Text::ChooseTeams},
      {[](NewGame& g) { g.sides[Side::Home].team = NewGame::kNone; },
       {Problem::NoTeam, Side::Home},
       Text::ChooseTeams},
      {[](NewGame& g) { g.date.clear(); }, {Problem::NoDate}, Text::EnterDate},
      {[](NewGame& g) { g.gameType = NewGame::kNone; }, {Problem::NoGameType}, Text::ChooseGameType},
      {[](NewGame& g) { g.inputType = NewGame::kNone; }, {Problem::NoInputType}, Text::ChooseInputType},
      {[](NewGame& g) { g.inputType = 1, g.mainTeam = std::nullopt; },
       {Problem::NoMainTeam},
       Text::ChooseMainTeam},
      {[](NewGame& g) { g.inputType = 1, g.mainTeam = Side::Visitor; }, {}, Text::None},
      {[](NewGame& g) { g.inputType = 2, g.mainTeam = std::nullopt; }, {}, Text::None},
  };
  for (const auto& c : cases) {
    NewGame game = ready();
    c.spoil(game);
    EXPECT_EQ(game.missing(), c.missing) << &c - cases;
    EXPECT_EQ(textOf(game.missing()), c.text) << &c - cases;
    EXPECT_EQ(game.canAccept(), c.text == Text::None);
  }
}

// Everything is wrong at first; each case mends the first thing, and the next one comes to light.
TEST_F(NewGameTest, TellsTheFirstThingThatIsWrong) {
  NewGame game = made();
  game.rules = {"0", "100", "-5", "none", ""}; // minutes that no clock of mm:ss shows
  game.inputType = NewGame::kNone;
  const struct {
    Text problem;
    void (*mend)(NewGame&);
  } cases[] = {
      {Text::InvalidMinutes, [](NewGame& g) { g.rules.minutesPerPeriod = "-1"; }},
      {Text::InvalidMinutes, [](NewGame& g) { g.rules.minutesPerPeriod = "abc"; }},
      {Text::InvalidPeriods, [](NewGame& g) { g.rules.periods = "4 quarters"; }},
      {Text::SameTeam, [](NewGame& g) { g.chooseTeam(Side::Visitor, 3), g.rules.bonus = "0"; }},
      {Text::InvalidBonus, [](NewGame& g) { g.rules.bonus = "1"; }},
      {Text::ChooseInputType, [](NewGame& g) { g.inputType = 0, g.rules.personalFoulLimit = "0"; }},
      {Text::InvalidPersonalFouls,
       [](NewGame& g) { g.rules.personalFoulLimit = "5", g.rules.technicalFoulLimit = "0"; }},
      {Text::InvalidTechnicalFouls, [](NewGame& g) { g.rules.technicalFoulLimit = "2"; }},
      {Text::ChooseTeams, [](NewGame& g) { g.chooseTeam(Side::Home, 3), g.chooseTeam(Side::Visitor, 3); }},
      {Text::SameTeam, [](NewGame& g) { g.chooseTeam(Side::Home, 1); }},
      {Text::VisitorsTooMany, [](NewGame& g) { g.setChecked(Side::Visitor, 3, false); }},
      {Text::HomeTooMany, [](NewGame& g) { g.setChecked(Side::Home, 0, false); }},
      {Text::None, [](NewGame&) {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(textOf(game.problem()), c.problem) << &c - cases;
    c.mend(game);
  }
  game.rules.minutesPerPeriod = "0";
  EXPECT_EQ(game.problem(), Objection()) << "a game without time";
}

TEST_F(NewGameTest, ProposesANameThatEveryFileSystemTakes) {
  NewGame game = ready();
  game.chooseTeam(Side::Home, 3);
  game.date = "2024-03-01";
  EXPECT_EQ(game.proposedFileName(), "2024-03-01 Season LYNX-AAA  PUMA-CCC .GAM");
  texts.setLanguage(Language::French);
  game.chooseTeam(Side::Home, 2);
  game.date = "1/3:\"*?<>|\\\t\x7F";
  EXPECT_EQ(game.proposedFileName(),
            "1-3---------- " + std::string(texts.text(Text::Season)) + " LYNX-AAA  A-B-C-D.GAM");
  EXPECT_EQ(withGameEnding("/a/b"), "/a/b.GAM");
  EXPECT_EQ(withGameEnding("/a/b.gAm"), "/a/b.gAm");
  EXPECT_EQ(withGameEnding("/a/3.5"), "/a/3.5.GAM");
  EXPECT_EQ(withGameEnding("AM"), "AM.GAM");
}

// The whole file for each input type, byte for byte. The first side has players, the other none.
// What is drawn at random is left out.
std::string withoutId(std::string text) {
  const std::size_t begin = text.find("IDPARTIE=");
  const std::size_t end = text.find('\n', begin);
  EXPECT_EQ(end - begin, std::string("IDPARTIE=\r").size() + 32) << text;
  return text.erase(begin, end + 1 - begin);
}

TEST_F(NewGameTest, WritesTheWholeGameAndAHugePeriodAndAnOddKeyAllTheSame) {
  const struct {
    int input;
    std::optional<Side> mainTeam;
    const char *stored, *period, *keypad;
  } cases[] = {
      {0, std::nullopt, "0", "[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n", "False"},
      {1, Side::Home, "0", "[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n", "True"},
      {2, Side::Visitor, "1", "", "False"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.input);
    NewGame game = made();
    game.chooseTeam(Side::Visitor, 0);
    game.chooseTeam(Side::Home, 2);
    game.inputType = c.input;
    game.mainTeam = c.mainTeam;
    game.sides[Side::Home].name = "Élans";
    game.place = "Gym, \"B\"";
    game.statistician = "Zoë";
    game.notes = "one\ntwo";
    game.stepPosition(Side::Visitor, 1);
    const std::string name = std::to_string(c.input) + ".GAM";
    ASSERT_EQ(game.create(folder.path(name)), GameFileProblem::None);
    EXPECT_EQ(withoutId(codepage::toUtf8(folder.read(name))),
              std::string("[DETAILS]\r\nVERSION=2.0\r\nINPUTTYPE=") + c.stored +
                  "\r\nDATE=2026-11-21\r\nOKPRINCIPAL=" + (c.mainTeam == Side::Home ? "1" : "0") +
                  "\r\nEQUIPE0ID=1\r\nEQUIPE1ID=3\r\nEQUIPE0COL=8438015\r\nEQUIPE1COL=0\r\n"
                  "EQUIPE0ABB=LYNX\r\nEQUIPE1ABB=A\r\nEQUIPE0NOM=Basketball College \r\nEQUIPE1NOM=Élans\r\n"
                  "EQUIPE0CAT=AAA \r\nEQUIPE1CAT=C/D\r\nSUPP0=U1-Charges\r\nSUPP1=U2-Écrans\r\n"
                  "ENDROIT=Gym, \"B\"\r\nSAISIEPAR=Zoë\r\n"
                  "NBREPERIODE= 4 quarters\r\nDUREE=10x\r\nBONUS=5\r\n"
                  "PFMAX=5\r\nTFMAX=2\r\nTYPE=2\r\nNOTES=one two\r\n"
                  "[0]\r\n4=0,Ann Able\r\n00=9,Bea Baker\r\n[1]\r\n0=9,A\r\n" +
                  c.period);
    EXPECT_EQ(game.mainTeam, c.mainTeam.value_or(Side::Visitor)) << "the visitors where none was chosen";
    EXPECT_EQ(settings.lastGameFolder, folder.path());
    EXPECT_TRUE(holds("CONFIG.INI", std::string("KEYPAD=") + c.keypad));
  }
  EXPECT_TRUE(holds("CONFIG.INI", "1=LYNX,AAA ,Basketball College ,U1,U2,2"));
  NewGame odd = ready();
  odd.chooseTeam(Side::Visitor, 4);
  odd.rules.minutesPerPeriod = "99999999999";
  ASSERT_EQ(odd.create(folder.path("a.GAM")), GameFileProblem::None);
  for (const char* part : {"EQUIPE0ID=0\r\n", "DUREE=99999999999\r\n", ":00,ARRET,IN-,IN-"})
    EXPECT_TRUE(holds("a.GAM", part)) << part;
}

TEST_F(NewGameTest, NamesTheGameThatWouldBeLostAndLeavesNothingOfIt) {
  const std::string path = folder.path("old.GAM");
  NewGame game = ready();
  EXPECT_EQ(game.overwriteQuestion(path), "");
  std::string old = "[DETAILS]\r\nVERSION=2.0\r\nDATE=2024-03-01\r\nEQUIPE0ABB=OWL\r\nEQUIPE1ABB=FOX\r\n"
                    "EVENUM=9\r\nKEEPBONUS=1\r\nTERMINE=1\r\n[0]\r\n77=0,Old\r\n[PERIODE1]\r\n"
                    "5=09:00,SA,0-77\r\n[PERIODE12]\r\n8=01:00,SA,0-77\r\n";
  folder.write("old.GAM", old);
  EXPECT_EQ(game.overwriteQuestion(path), path + " holds the game OWL - FOX (2024-03-01), which is finished "
                                                 "and would be lost. Replace it?");
  folder.write("old.GAM", old.replace(old.find("TERMINE=1"), 9, "TERMINE=0"));
  EXPECT_NE(game.overwriteQuestion(path).find("not finished"), std::string::npos);
  folder.write("note.GAM", "a shopping list");
  EXPECT_EQ(game.overwriteQuestion(folder.path("note.GAM")),
            texts.withPlaceholder(Text::OtherFileIsLost, folder.path("note.GAM")));
  ASSERT_EQ(game.create(path), GameFileProblem::None);
  ASSERT_EQ(game.create(folder.path("new.GAM")), GameFileProblem::None);
  EXPECT_EQ(withoutId(folder.read("old.GAM")), withoutId(folder.read("new.GAM")));
}

TEST_F(NewGameTest, AWriteThatFailsLeavesTheOldFileAndTheSettings) {
  const std::string old = "[DETAILS]\r\nVERSION=2.0\r\n[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n";
  const std::string settingsBefore = folder.read("CONFIG.INI");
  const std::string folderBefore = settings.lastGameFolder;
  for (int call = 0;; ++call) {
    folder.write("a.GAM", old);
    NewGame game = ready();
    game.inputType = 1;
    files.reset();
    files.failAt = call;
    files.staysBroken = true;
    const GameFileProblem problem = game.create(folder.path("a.GAM"));
    files.reset();
    ASSERT_TRUE(call > 3 || problem != GameFileProblem::None);
    if (problem == GameFileProblem::None)
      break;
    EXPECT_EQ(problem, GameFileProblem::WriteFailed);
    EXPECT_EQ(folder.read("CONFIG.INI"), settingsBefore);
    EXPECT_EQ(settings.lastGameFolder, folderBefore);
    EXPECT_TRUE(folder.read("a.GAM") == old || holds("a.GAM", "EQUIPE1ABB=COUGAR"));
  }
}

} // namespace
} // namespace hooptab
