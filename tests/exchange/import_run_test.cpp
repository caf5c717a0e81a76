#include "exchange/ImportRun.h"

#include "exchange/GameExport.h"
#include "exchange/ImportList.h"
#include "exchange/MadeGame.h"
#include "exchange/TeamsOfGames.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace hooptab;

namespace {

class ImportRunTest : public testing::Test {
 protected:
  std::string put(const ForeignGame& game, const std::string& name) const {
    return folder.write(name, exportAs(GameFormat::BbGame, game, "")[0].content);
  }
  LookedAt look(const std::vector<std::string>& paths) {
    return lookAtFiles(files, paths, {}, {folder.path()}, TaskWatch());
  }
  static std::vector<SourceGroup> groupsOf(const LookedAt& looked) {
    std::vector<SourceGroup> groups;
    for (const ImportedGame& game : looked.games)
      groups.push_back(game.group);
    return groups;
  }

  TemporaryFolder folder;
  FileSystem files;
  ProfileStore store{files};
  Texts texts;
};

ForeignGame gameWith(const std::vector<std::pair<std::string, std::string>>& players) {
  ForeignGame game;
  game.teams[Side::Visitor].abbreviation = "LYNX";
  for (const auto& [jersey, name] : players) {
    ForeignPlayer player;
    player.jersey = jersey;
    player.name = name;
    game.teams[Side::Visitor].players.push_back(player);
  }
  return game;
}

std::string joined(const std::vector<NameProposal>& proposals) {
  std::string all;
  for (const NameProposal& each : proposals)
    all += each.team + ' ' + each.jersey + ' ' + each.name + " > " + each.written + '\n';
  return all;
}

} // namespace

TEST(PlayerNamesTest, ANameMayBeAnotherOnlyByCaseAccentsOrderOrInitials) {
  for (const auto& [left, right] : {std::pair("JOSÉ ROY", "José Roy"), std::pair("Roy, José", "Jose Roy"),
                                    std::pair("J. Roy", "José Roy"), std::pair("ROY J.-P.", "Jean-Paul Roy"),
                                    std::pair("Shay O'Neil", "Shay Oneil")})
    EXPECT_TRUE(mayBeOneName(left, right) && mayBeOneName(right, left)) << left << " " << right;
  for (const auto& [left, right] :
       {std::pair("José Roy", "Juan Roy"), std::pair("J. Roy", "A. Roy"), std::pair("J. Roy", "José Ray"),
        std::pair("J. R.", "José Roy"), std::pair("José Roy", "José Luis Roy"), std::pair("", "")})
    EXPECT_FALSE(mayBeOneName(left, right)) << left << " " << right;
}

TEST(PlayerNamesTest, ProposesTheFullestNameAndNothingThatIsDoubtful) {
  PlayerNames names;
  names.add(gameWith({{"4", "J. ROY"}, {"5", "A. Able"}, {"7", "C. Cole"}, {"8", "Chris Cole"}}));
  names.add(gameWith({{"4", "Roy José"}, {"5", "Ann Able"}, {"7", "Chris Cole"}}));
  names.add(gameWith({{"4", "José Roy"}, {"5", "Amy Able"}, {"9", "José Roy"}}));
  names.add(gameWith({{"4", "José Roy"}}));
  EXPECT_EQ(joined(names.proposals()), "LYNX 4 J. ROY > José Roy\nLYNX 4 Roy José > José Roy\n")
      << "Ann and Amy both fit A. Able; both Coles stood in one game";
}

TEST_F(ImportRunTest, NamesThatWereJoinedAreKeptInTheFolderAndWritten) {
  ForeignGame game = madeGame();
  game.teams[Side::Visitor].players[0].name = "A. ABLE";
  const std::string source = put(game, "a.xml");
  folder.write("NOMS.INI", "; mine\r\n[OLY]\r\nB. Baker=Bea Baker\r\n");
  LookedAt looked = look({source});
  EXPECT_EQ(looked.joins.written("oly", "B. BAKER"), "Bea Baker");
  looked.joins.join("OLY", "b. baker", "");
  looked.joins.join(shortNameOf(game.teams[Side::Visitor]), "A. Able", "Ann Able, é");
  looked.joins.join("PAN", "=x", "y");
  looked.joins.join("PAN", "[x", "y");
  ASSERT_TRUE(looked.joins.save(store, folder.path()).isOnDisk());
  EXPECT_TRUE(folder.read("NOMS.INI").starts_with("; mine\r\n")) << folder.read("NOMS.INI");
  EXPECT_EQ(NameJoins::of(store, folder.path()), looked.joins);

  const std::vector<ImportedGame> taken = importGroups(files, groupsOf(looked), {folder.path()}, TaskWatch());
  Game own;
  ASSERT_EQ(GameFile(store, taken.at(0).path).read(own), GameFileProblem::None);
  EXPECT_EQ(own.roster[Side::Visitor].players()[0].name, "Ann Able, é");
  EXPECT_EQ(stateOf(look({source}).games.at(0)), ImportState::SameThere);
}

TEST_F(ImportRunTest, TheSecondGameOfOneNameNeverReplacesTheFirst) {
  const LookedAt looked = look({put(madeGame(1), "a.xml"), put(madeGame(2), "b.xml")});
  std::vector<ImportedGame> games =
      importGroups(files, groupsOf(looked), {folder.path(), {}, true}, TaskWatch());
  ASSERT_EQ(games.size(), 2U);
  EXPECT_EQ(stateOf(games[0]), ImportState::Imported);
  EXPECT_EQ(stateOf(games[1]), ImportState::OtherThere);
  games = importGroups(files, {looked.games[1].group}, {folder.path(), {}, true}, TaskWatch());
  EXPECT_EQ(stateOf(games[0]), ImportState::Imported) << "asked for by itself it does";

  const TaskWatch cancelled;
  cancelled.cancel();
  EXPECT_TRUE(importGroups(files, groupsOf(looked), {folder.path()}, cancelled).empty());
  EXPECT_FALSE(lookAtGroups(files, groupsOf(looked), {folder.path()}, cancelled).isWhole);
}

TEST_F(ImportRunTest, OfFilesThatFitOneGameTheChosenOneIsTaken) {
  const std::vector<ExportedFile> nba = exportAs(GameFormat::NbaLive, madeGame(), "a");
  const std::string rows = folder.write(nba[0].name, nba[0].content);
  const std::string box = folder.write("box.json", nba[1].content);
  const std::string copy = folder.write("copy.json", nba[1].content);
  const ImportRequest request{folder.path(), "2026-03-01"};
  const std::vector<std::string> paths = {rows, box, copy};
  const ImportedGame open = lookAtFiles(files, paths, {}, request, TaskWatch()).games.at(0);
  EXPECT_EQ(stateOf(open), ImportState::TwoWays);
  EXPECT_EQ(open.group.choices.at(0).files, (std::vector{box, copy}));
  const ImportedGame chosen = lookAtFiles(files, paths, {{rows, {copy}}}, request, TaskWatch()).games.at(0);
  EXPECT_EQ(stateOf(chosen), ImportState::New) << stateWords(chosen, texts);
  EXPECT_EQ(chosen.group.files, (std::vector{rows, copy}));
  EXPECT_GT(chosen.compared, 0);
  const ImportedGame none = lookAtFiles(files, paths, {{rows, {""}}}, request, TaskWatch()).games.at(0);
  EXPECT_EQ(none.group.files, std::vector{rows});
  EXPECT_NE(stateOf(none), ImportState::TwoWays);
}

TEST_F(ImportRunTest, TeamsOfGamesComeToThoseThatAreThereWithoutChangingThem) {
  folder.write("CONFIG.INI", "[CONFIGURATION]\r\nLANGUE=0\r\nSTATU1=U1-One\r\nSTATU2=U2-Two\r\n"
                             "[TEAM]\r\n3=PN,Women,Pandas,U1,U2,8,4,5,5,2,1,0\r\n"
                             "[3]\r\n04=1,Somebody Else,180,,,\r\n12=2,ANN ABLE,,,,\r\n");
  Settings settings(store, folder.path());
  settings.read();
  TeamStore teams(store, settings);
  Game game;
  game.details.abbreviation[Side::Visitor] = "PAN";
  game.details.name[Side::Visitor] = "pandas";
  game.details.abbreviation[Side::Home] = "LONGNAMÉS";
  game.details.name[Side::Home] = "Olives, of " + std::string(300, 'x');
  for (const auto& [jersey, name] :
       {std::pair("4", "Bea Baker"), std::pair("7", "Ann Able"), std::pair("9", "Cy, Cole"),
        std::pair("X1", "No Number"), std::pair("1234", "Too Long")})
    game.roster[Side::Visitor].add({jersey, 1, name});
  game.roster[Side::Home].add({"0", 9, "LONGNAMÉS"}); // the side itself
  TeamsOfGames found;
  found.add(game);
  found.add(game);
  const std::vector<TeamsOfGames::Addition> lacking = found.lackingIn(teams);
  EXPECT_EQ(countsOf(lacking).teams, 1U);
  EXPECT_EQ(countsOf(lacking).players, 1U);
  EXPECT_EQ(lacking.at(0).leftOut,
            (std::vector<std::string>{"PAN 4 Bea Baker", "PAN X1 No Number", "PAN 1234 Too Long"}));
  ASSERT_TRUE(addTo(teams, lacking, texts));
  const std::string file = folder.read("CONFIG.INI");
  EXPECT_NE(file.find("3=PN,Women,Pandas,U1,U2,8,4,5,5,2,1,0\r\n"), std::string::npos) << file;
  EXPECT_NE(file.find("04=1,Somebody Else,180,,,\r\n12=2,ANN ABLE,,,,\r\n9=1,Cy  Cole,"), std::string::npos);
  ASSERT_EQ(teams.list().size(), 2U);
  EXPECT_EQ(teams.list()[1].abbreviation, "LONGNAM");
  EXPECT_TRUE(teams.list()[1].name.starts_with("Olives  of xxx"));
  EXPECT_TRUE(found.lackingIn(teams).size() == 1U && countsOf(found.lackingIn(teams)).players == 0U);
}
