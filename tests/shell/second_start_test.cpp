#include "shell/SecondStart.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <future>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(SecondStartTest, LeavesItsGamesToTheProgramThatRunsOnItsFolder) {
  const QTemporaryDir folder, other;
  const auto handOver = [&](std::vector<std::string> games) {
    return std::async(std::launch::async, [&folder, games = std::move(games)] {
      return SecondStart::handOver(folder.path(), games, 20s);
    });
  };
  auto early = handOver({"/games/A \n B.GAM", "/games/Été 💡.GAM", "not/absolute.GAM"});
  auto running = std::make_unique<SecondStart>(folder.path()); // heard although it came later
  QSignalSpy asked(running.get(), &SecondStart::asked);
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }, 20000));
  EXPECT_TRUE(early.get());
  EXPECT_EQ(asked[0][0].toStringList(), (QStringList{u"/games/A \n B.GAM"_s, u"/games/Été 💡.GAM"_s}));
  auto bare = handOver({});
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked.size() == 2; }, 20000));
  EXPECT_TRUE(bare.get());
  EXPECT_TRUE(asked[1][0].toStringList().isEmpty()) << "it only wants the window";
  EXPECT_FALSE(SecondStart::handOver(other.path(), {"/a.GAM"}, 100ms)) << "nobody runs there";
  EXPECT_FALSE(SecondStart::handOver(folder.path(), {"/a.GAM"}, 100ms)) << "one that hangs does not answer";
}

} // namespace
} // namespace hooptab
