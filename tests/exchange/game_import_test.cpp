#include "exchange/GameExport.h"
#include "exchange/GameImport.h"
#include "exchange/MadeGame.h"
#include "storage/GameLock.h"
#include "support/SharedGames.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace hooptab;

namespace {

class GameImportTest : public testing::Test {
 protected:
  static ForeignGame game(int baskets = 1) { return madeGame(baskets); }
  void put(GameFormat format, const ForeignGame& game, const std::string& stem) {
    for (const ExportedFile& file : exportAs(format, game, stem))
      put(file.name, file.content);
  }
  void put(const std::string& name, const std::string& content) {
    std::filesystem::create_directories(source());
    std::ofstream(std::filesystem::path(source()) / name, std::ios::binary) << content;
  }
  std::string source() const { return m_folder.path("source"); }
  std::vector<SourceGroup> groups(std::optional<GameFormat> wanted = std::nullopt) {
    return recogniseFiles(m_files, filesOf({source()}), wanted, TaskWatch());
  }
  ImportRequest request() const { return {m_folder.path(""), {}, false}; }

  TemporaryFolder m_folder;
  FileSystem m_files;
  ProfileStore m_store{m_files};
};

} // namespace

TEST_F(GameImportTest, TakesEveryFormatInAndNamesTheFile) {
  for (const GameFormat format : kGameFormats)
    put(format, game(), std::string(formatKey(format)));
  const std::vector<SourceGroup> found = groups();
  ASSERT_EQ(found.size(), kGameFormats.size());
  for (const SourceGroup& group : found) {
    SCOPED_TRACE(group.files.front());
    ImportRequest request = this->request();
    request.date = "2026-03-01"; // for those that have none
    request.folder = m_folder.path(std::string(formatKey(*group.format)));
    std::filesystem::create_directories(request.folder);
    const ImportedGame imported = importGame(m_store, group, request);
    EXPECT_TRUE(imported.isWritten) << static_cast<int>(imported.problem.text);
    EXPECT_EQ(imported.points, (PerSide<int>{2, 0}));
    EXPECT_EQ(imported.differences, std::vector<Difference>());
    EXPECT_GT(imported.compared, 50);
    EXPECT_EQ(std::filesystem::path(imported.path).filename(), "2026-03-01 PAN-OLY.GAM");
    Game own;
    EXPECT_EQ(GameFile(m_store, imported.path).read(own), GameFileProblem::None);
  }
}

TEST_F(GameImportTest, BringsTheFilesOfAGameTogetherByWhatIsInThem) {
  put(GameFormat::NbaLive, game(1), "a");
  put(GameFormat::NbaLive, game(2), "b");
  put(GameFormat::EuroLeague, game(3), "c");
  std::filesystem::remove(std::filesystem::path(source()) / "b-boxscore.json");
  std::filesystem::remove(std::filesystem::path(source()) / "c-playbyplay.json");
  std::filesystem::rename(std::filesystem::path(source()) / "a-boxscore.json",
                          std::filesystem::path(source()) / "zzz.json");
  std::map<std::string, std::pair<std::size_t, Text>> found; // by the first file
  for (const SourceGroup& group : groups())
    found[std::filesystem::path(group.files.front()).filename()] = {group.files.size(), group.problem.text};
  const std::map<std::string, std::pair<std::size_t, Text>> expected = {
      {"a-playbyplay.json", {2, Text::None}},
      {"b-playbyplay.json", {1, Text::None}},
      {"c-boxscore.json", {1, Text::BoxAlone}},
      {"c-points.json", {1, Text::PointsAlone}}};
  EXPECT_EQ(found, expected);
}

TEST_F(GameImportTest, ASecondPlayByPlayGetsTheBoxOnlyWithItsScore) {
  ForeignGame cutOff = game(3);
  cutOff.events.resize(cutOff.events.size() - 2); // a basket less
  cutOff.isFinished = false;
  put(GameFormat::NbaLive, game(3), "whole");
  put("earlier.json", exportAs(GameFormat::NbaLive, cutOff, "")[0].content);
  put("copy.json", exportAs(GameFormat::NbaLive, game(3), "")[1].content);
  for (const SourceGroup& group : groups()) {
    const std::string first = std::filesystem::path(group.files.front()).filename();
    if (first == "earlier.json")
      EXPECT_EQ(group.files.size(), 1U);
    else // two boxes of one score: nobody can tell
      EXPECT_EQ(group.problem.text, Text::FitsTwoWays) << first;
  }
}

TEST_F(GameImportTest, NeverReplacesAFileUnasked) {
  put(GameFormat::BbGame, game(), "a");
  const SourceGroup group = groups().at(0);
  ASSERT_TRUE(importGame(m_store, group, request()).isWritten);
  EXPECT_EQ(importGame(m_store, group, request()).problem.text, Text::GameIsThereAlready);
  put(GameFormat::BbGame, game(2), "a");
  const ImportedGame other = importGame(m_store, group, request());
  EXPECT_EQ(other.problem.text, Text::OtherFileThere);
  EXPECT_FALSE(other.isWritten);
  ImportRequest replacing = request();
  replacing.replacesExisting = true;
  {
    GameLock held;
    ASSERT_EQ(held.acquire(m_files, other.path), GameLock::Outcome::Held);
    EXPECT_EQ(importGame(m_store, group, replacing).problem.text, Text::GameToReplaceIsOpen);
  }
  EXPECT_TRUE(importGame(m_store, group, replacing).isWritten);
  replacing.folder = m_folder.path("nowhere");
  EXPECT_EQ(importGame(m_store, group, replacing).problem.text, Text::GameNotWritten);
}

TEST_F(GameImportTest, TwoGamesOfOneNameAreNeverOneFile) {
  put(GameFormat::LiveStats, madeGame(1), "data");
  put(GameFormat::LiveStats, madeGame(2), "more");
  ImportRequest replacing = request();
  replacing.replacesExisting = true;
  replacing.date = "2026-03-01";
  std::set<std::string> written;
  replacing.written = &written;
  std::vector<Text> problems;
  for (const SourceGroup& group : groups()) {
    const ImportedGame game = importGame(m_store, group, replacing);
    problems.push_back(game.problem.text);
    if (game.isWritten)
      written.insert(game.path);
  }
  EXPECT_EQ(problems, (std::vector<Text>{Text::None, Text::OtherFileThere}));
}

TEST_F(GameImportTest, NamesABadFileAndGoesOn) {
  put(GameFormat::LiveStats, game(), "good");
  put("empty.json", "");
  put("broken.json", "{\"tm\": [1, 2");
  put("deep.json", std::string(100'000, '['));
  put("other.json", R"({"hello": "world"})");
  put("laughs.xml", "<!DOCTYPE a [<!ENTITY b \"cc\">]><a>&b;</a>");
  put("two.xml", "<bbgame></bbgame>\n<bbgame></bbgame>");
  std::filesystem::resize_file(std::filesystem::path(source()) / "empty.json", kLargestSourceFile + 1);
  std::map<std::string, Text> problems;
  for (const SourceGroup& group : groups())
    problems[std::filesystem::path(group.files.front()).filename()] = group.problem.text;
  const std::map<std::string, Text> expected = {{"good.json", Text::None},
                                                {"empty.json", Text::SourceTooLarge},
                                                {"broken.json", Text::JsonCutOff},
                                                {"deep.json", Text::JsonTooDeep},
                                                {"other.json", Text::NoKnownFormat},
                                                {"laughs.xml", Text::NoKnownFormat},
                                                {"two.xml", Text::NoXml}};
  EXPECT_EQ(problems, expected);
  EXPECT_EQ(groups(GameFormat::BbGame).at(3).problem.text, Text::OtherFormat); // good.json
}
