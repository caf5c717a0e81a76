#include "teams/TeamStore.h"

#include "storage/codepage.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

class TeamStoreTest : public testing::Test {
 protected:
  // Section CONFIGURATION is there, so that nothing is a first start.
  void write(const std::string& rest) {
    folder.write("CONFIG.INI", "[CONFIGURATION]\r\nLANGUE=0\r\nSTATU1=U1-One\r\nSTATU2=U2-Two\r\n" +
                                   codepage::fromUtf8(rest));
    settings.read();
  }
  std::string file() { return codepage::toUtf8(folder.read("CONFIG.INI")); }
  bool holds(const std::string& line) { return file().find("\r\n" + line + "\r\n") != std::string::npos; }

  TemporaryFolder folder;
  FaultyFileSystem disk;
  ProfileStore store{disk};
  Texts texts;
  Settings settings{store, folder.path()};
  TeamStore teams{store, settings};
};

TEST_F(TeamStoreTest, FreedIdsAreTakenFirstInFileOrderAndTheLastNewTeamIsTheNewest) {
  write("");
  EXPECT_EQ(teams.create(texts), 1) << "no section at all";
  EXPECT_TRUE(holds("1=Newteam, , ,U1-One,U2-Two,8,4,5,5,2")) << file();
  EXPECT_EQ(teams.create(texts), 2);
  EXPECT_EQ(teams.create(texts), 3);
  ASSERT_TRUE(teams.remove(2));
  EXPECT_TRUE(holds("2=0"));
  EXPECT_EQ(teams.create(texts), 2);
  EXPECT_EQ(teams.create(texts), 4);
  texts.setLanguage(Language::French);
  EXPECT_EQ(teams.create(texts), 5);
  EXPECT_TRUE(holds("5=Nouveau, , ,U1-One,U2-Two,8,4,5,5,2")) << file();
  EXPECT_EQ(newestTeam({}, texts), -1);
  EXPECT_EQ(newestTeam({{"1", 1, "LYNX", "AAA "}}, texts), -1);
  EXPECT_EQ(newestTeam({{"1", 1, "Newteam", ""}, {"2", 2, "Nouveau2", ""}, {"3", 3, "NEWTEAM", ""}}, texts),
            1);
}

TEST_F(TeamStoreTest, KeysThatAreNoNumbersAreShownAndLeftAlone) {
  write("[TEAM]\r\nx=0\r\n-3=ODD,B,\r\n07=0\r\n4=BEES,A,Bees,,,8,4,5,5,2,255,1\r\n4=LOST,A\r\n9=abc\r\n"
        "CONFIGURATION=EVIL,A,x\r\n999999999=0\r\n");
  const std::vector<TeamEntry> list = teams.list();
  ASSERT_EQ(list.size(), 3U) << "three characters are no team, and a second equal key is nobody's";
  EXPECT_TRUE(list[0].abbreviation == "ODD" && !list[0].isEditable());
  EXPECT_TRUE(list[1].abbreviation == "BEES" && list[1].id == 4);
  EXPECT_TRUE(teams.players("CONFIGURATION").empty());
  const std::string before = file();
  EXPECT_EQ(teams.create(texts), 999'999'999) << "the only freed id";
  EXPECT_EQ(teams.create(texts), 1) << "above there is none";
  EXPECT_EQ(file().substr(0, before.find("999999999")), before.substr(0, before.find("999999999")));
}

TEST_F(TeamStoreTest, ARecordOfTenFieldsIsSavedWithTwelve) {
  write("[TEAM]\r\n1=Newteam, , ,U1-,U2-,8,4,5,5,2\r\n2=MIN,,,,,,,,,,-5,x\r\n");
  TeamRecord team = teams.read("1");
  EXPECT_EQ(team.minutesPerPeriod, "8");
  EXPECT_EQ(team.storedColour, 0U);
  EXPECT_EQ(team.colour(), kDefaultTeamColour);
  EXPECT_FALSE(team.isMain);
  EXPECT_EQ(teams.read("2").colour(), kDefaultTeamColour) << "negative";
  EXPECT_EQ(teams.read("77"), TeamRecord());
  team.abbreviation = "A,B";
  team.name = "Bees, Inc.";
  team.isMain = true;
  ASSERT_TRUE(teams.save(1, team, {}));
  EXPECT_TRUE(holds("1=A B, ,Bees  Inc.,U1-One,U2-Two,8,4,5,5,2,8438015,1")) << file();
  EXPECT_TRUE(holds("2=MIN,,,,,,,,,,-5,x")) << "the others stay";
}

TEST_F(TeamStoreTest, PlayersAreRewrittenInTheirOrderAndUneditedOnesLetterForLetter) {
  const std::string longName(300, 'n');
  const std::string longLine = "2," + longName + ",6ft,,,,";
  write("[TEAM]\r\n3=BEES,A,Bees,,,8,4,5,5,2,255,1\r\n[3]\r\n00=2,Ann Long,6ft 1in,176lbs,18,Senior,\r\n"
        "5=1,Bo,,,,,by hand\r\n5=0,Cy\r\nx=" +
        longLine + "\r\n[OTHER]\r\na=b\r\n");
  std::vector<TeamPlayer> players = teams.players("3");
  ASSERT_EQ(players.size(), 4U);
  EXPECT_EQ(players[0].record, (PlayerRecord{2, "Ann Long", "6ft 1in", "176lbs", "18", "Senior"}));
  EXPECT_EQ(players[2].record.name, "Cy") << "a repeated number is shown";
  EXPECT_LT(players[3].record.name.size(), longName.size());
  players.erase(players.begin() + 2);
  players[0].record.height = "6ft, 2in";
  std::swap(players[0], players[1]);
  ASSERT_TRUE(teams.savePlayers(3, players));
  EXPECT_TRUE(file().ends_with("[OTHER]\r\na=b\r\n[3]\r\n5=1,Bo,,,,,by hand\r\n"
                               "00=2,Ann Long,6ft  2in,176lbs,18,Senior,\r\nx=" +
                               longLine + "\r\n"));
  ASSERT_TRUE(teams.remove(3));
  EXPECT_TRUE(file().ends_with("[TEAM]\r\n3=0\r\n[OTHER]\r\na=b\r\n")) << file();
}

TEST_F(TeamStoreTest, AFailedWriteLeavesTheFileAndIsMadeUpFor) {
  write("[TEAM]\r\n1=BEES,A,Bees,,,8,4,5,5,2,255,1\r\n[1]\r\n4=2,Ann,,,,,\r\n");
  const std::string before = file();
  for (int call = 0;; ++call) {
    disk.reset();
    disk.failAt = call;
    disk.staysBroken = true;
    const bool isKept = teams.save(1, teams.read("1"), {});
    if (!disk.hasFailed)
      break;
    const auto isNew = [this] {
      return file().find("[1]") == std::string::npos && file().find("1=BEES") != std::string::npos;
    };
    EXPECT_TRUE(isNew() || file() == before) << call;
    disk.reset();
    EXPECT_TRUE(settings.retry());
    EXPECT_EQ(isNew(), isKept) << call;
    EXPECT_TRUE(isKept == teams.players("1").empty()) << call;
    folder.write("CONFIG.INI", before);
  }
  EXPECT_NE(file(), before);
}

} // namespace
} // namespace hooptab
