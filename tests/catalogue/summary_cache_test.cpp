// A scan with a cache finds what one without finds, whatever became of the files and of the cache.
#include "catalogue/GameCatalogue.h"
#include "simulator/SampleSeason.h"
#include "support/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <atomic>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>
#include <random>

using namespace hooptab;
namespace fs = std::filesystem;

namespace {

constexpr int kGames = 30;

// Notes which files are opened, and may be another program's.
struct WatchedFiles : FileSystem {
  std::atomic<int> opened = 0;
  bool isOtherProgram = false;

  using FileSystem::stamp;
  int open(const std::string& path, int flags, unsigned mode) override {
    opened += path.ends_with(".GAM") ? 1 : 0;
    return FileSystem::open(path, flags, mode);
  }
  bool stamp(const std::string& path, FileStamp& result) override {
    const bool isThere = FileSystem::stamp(path, result);
    result.size += isOtherProgram && path == "/proc/self/exe" ? 1 : 0;
    return isThere;
  }
};

class SummaryCacheTest : public testing::Test {
 protected:
  SummaryCacheTest() {
    for (int i = 0; i < kGames; ++i)
      write(i, someGame());
  }

  // A game of some teams, finished or not, or of another kind, or an event less or more.
  std::string someGame() {
    switch (pick(8)) {
    case 0: return textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"); // running
    case 1: return "[DETAILS]\nVERSION=2.00\n";
    case 2:
      return textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-99,IN-03-07-08-11\n2=09:00,GFG,0-4,30,100\n"
                        "3=08:00,GF3,0-00,500,3\n4=07:0x,SPF,1-8\n4=06:00,GFT,1-77\n",
                        "TERMINE=1\nTYPE=0\nREGLES=NBA\nEQUIPE0NOM=Panthers\nSUPP1=U2-Dives\nDATE=2026-02-0" +
                            std::to_string(1 + pick(9)) + "\n");
    default: {
      const std::string path = m_scratch.path("one.GAM");
      fs::remove(path);
      static const SampleSeason simulated(12, 5);
      EXPECT_TRUE(m_store.write(path, simulated.game(pick(12)).batch()).isOnDisk());
      return m_scratch.read("one.GAM");
    }
    }
  }
  std::string nameOf(int number) const { return std::to_string(number) + ".GAM"; }
  // Long ago, unless it is to look as if it could still be written in the same moment.
  void write(int number, const std::string& bytes, bool isLongAgo = true) {
    m_games.write(nameOf(number), bytes);
    if (isLongAgo)
      fs::last_write_time(m_games.path(nameOf(number)),
                          fs::file_time_type::clock::now() - std::chrono::seconds(10 + ++m_age));
  }
  GameCatalogue scan(const std::string& kept, unsigned threads = 1) {
    GameCatalogue catalogue(files);
    EXPECT_EQ(catalogue.scan({m_games.path(), false, threads, kept}), ScanOutcome::Done);
    return catalogue;
  }
  // Whether the scans give the same, two programs at once among them.
  void expectTruth() {
    const GameCatalogue plain = scan({});
    auto other = std::async(std::launch::async, [this] { return scan(cacheFolder, 2); });
    EXPECT_TRUE(scan(cacheFolder, 3) == plain);
    EXPECT_TRUE(other.get() == plain);
  }
  int openedByScan() {
    files.opened = 0;
    (void)scan(cacheFolder);
    return files.opened;
  }
  std::string cacheFile() const { return fs::directory_iterator(cacheFolder)->path(); }
  int pick(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

  WatchedFiles files;
  TemporaryFolder m_games, m_scratch;
  std::string cacheFolder = m_scratch.path("new/cache");

 private:
  std::mt19937 m_random{7};
  FaultyFileSystem m_disk;
  ProfileStore m_store{m_disk};
  int m_age = 0;
};

TEST_F(SummaryCacheTest, AScanFindsTheSameAfterAnyChanges) {
  expectTruth();
  for (int round = 0; round < 25; ++round) {
    SCOPED_TRACE(round);
    for (int change = pick(3) == 0 ? 20 : 1; change > 0; --change) {
      const std::string one = m_games.path(nameOf(pick(kGames)));
      const std::string other = m_games.path(nameOf(pick(2 * kGames)));
      std::error_code ignored;
      switch (pick(5)) {
      case 0: fs::remove(one); break;
      case 1: fs::rename(one, other, ignored); break;
      case 2: fs::copy_file(one, other, fs::copy_options::overwrite_existing, ignored); break;
      case 3: write(pick(kGames), someGame(), false); break;
      default: write(pick(kGames), someGame()); break;
      }
    }
    expectTruth();
  }
}

TEST_F(SummaryCacheTest, OnlyWhatChangedIsReadAndNothingThatWasJustWrittenIsBelieved) {
  EXPECT_EQ(openedByScan(), kGames);
  EXPECT_EQ(openedByScan(), 0);
  write(3, someGame());
  write(4, someGame());
  EXPECT_EQ(openedByScan(), 2) << "too few to write all anew for";
  EXPECT_EQ(openedByScan(), 2);
  for (int i = 0; i < kGames; ++i)
    write(i, someGame(), false);
  EXPECT_EQ(openedByScan(), kGames);
  EXPECT_EQ(openedByScan(), kGames) << "their times may be those of two states";
  EXPECT_EQ(std::distance(fs::directory_iterator(m_games.path()), {}), kGames);
}

TEST_F(SummaryCacheTest, WhatIsDamagedOrOfAnotherProgramIsNotBelieved) {
  const GameCatalogue plain = scan({});
  (void)scan(cacheFolder);
  const std::string path = cacheFile();
  const std::string name = path.substr(m_scratch.path().size() + 1);
  const std::string whole = m_scratch.read(name);
  for (std::size_t at = 0; at < whole.size(); at += 1 + whole.size() / 150) {
    std::string bytes = whole;
    bytes[at] = static_cast<char>(bytes[at] ^ (1 << pick(8)));
    (void)m_scratch.write(name, pick(3) == 0 ? whole.substr(0, at) : bytes);
    EXPECT_TRUE(scan(cacheFolder) == plain) << at;
  }
  (void)m_scratch.write(name, whole.substr(0, whole.size() - 1));
  (void)scan(cacheFolder);
  EXPECT_EQ(m_scratch.read(name), whole) << "written anew";
  files.isOtherProgram = true;
  EXPECT_EQ(openedByScan(), kGames);
  EXPECT_EQ(openedByScan(), 0);
}

TEST_F(SummaryCacheTest, WithoutAPlaceForItTheScanIsTheSame) {
  const GameCatalogue plain = scan({});
  (void)m_scratch.write("file", "x");
  EXPECT_TRUE(scan(m_scratch.path("file/cache")) == plain);
  fs::create_directories(cacheFolder + "/");
  EXPECT_TRUE(scan(cacheFolder) == plain);
}

} // namespace
