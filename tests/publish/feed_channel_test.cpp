// Changes of a game as they go to viewers: applied one after the other they give the game as it stands,
// whatever was put in, corrected or taken out.
#include "publish/FeedChannel.h"
#include "publish/WebGame.h"

#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <random>

namespace hooptab {
namespace {

// A viewer as docs/formats/feed.md tells him to be.
class Viewer {
 public:
  explicit Viewer(const FeedChannel& channel) : game(FeedJson::parse(*channel.game())) {}

  void take(const std::string& frame) {
    if (frame.starts_with("event:"))
      return;
    const FeedJson change = FeedJson::parse(frame.substr(frame.find("\ndata: ") + 7));
    for (const FeedJson& set : change.value("set", FeedJson::array()))
      game[FeedJson::json_pointer(set[0].get<std::string>())] = set[1];
    for (const FeedJson& more : change.value("append", FeedJson::array()))
      for (const FeedJson& value : more[1])
        game[FeedJson::json_pointer(more[0].get<std::string>())].push_back(value);
    for (const FeedJson& play : change.value("plays", FeedJson::array()))
      takePlay(play);
    game["id"] = change["id"];
    ++changes;
  }

  FeedJson game;
  int changes = 0;

 private:
  FeedJson::iterator placeOf(const FeedJson& id) {
    return std::ranges::find_if(game["plays"], [&id](const FeedJson& play) { return play["id"] == id; });
  }
  void takePlay(const FeedJson& told) {
    FeedJson& plays = game["plays"];
    if (told["op"] == "insert")
      plays.insert(told["before"].is_null() ? plays.end() : placeOf(told["before"]), told["play"]);
    else if (told["op"] == "delete")
      plays.erase(placeOf(told["play"]["id"]));
    else
      *placeOf(told["play"]["id"]) = told["play"];
  }
};

std::string feedOf(const Game& game) {
  static const Texts kTexts;
  RunningGame running;
  running.counted = *counted(game);
  running.period = running.counted.state.period;
  return feedGame(running, {}, {}, kTexts);
}

// The game with some of its events only.
Game with(const Game& whole, const std::vector<bool>& isThere) {
  Game game = whole;
  game.events = {};
  std::size_t place = 0;
  for (const GameEvent& event : whole.events) {
    if (isThere[place++])
      game.events.appendOwned(event.period, event.key, event.whole());
  }
  return game;
}

TEST(FeedChannel, EveryViewerHasTheGameWhateverIsPutInOrTakenOut) {
  const auto paths = realOrSampleGames();
  ASSERT_FALSE(paths.empty());
  const Game whole = gameOfText(bytesOf(paths.front()));
  std::vector<bool> isThere(whole.events.size(), false);
  FeedChannel channel;
  channel.show(feedOf(with(whole, isThere)), true);
  Viewer viewer(channel);
  const auto listening = channel.listen([&viewer](const WebStream::Frame& frame) { viewer.take(*frame); });
  std::mt19937 random(7);
  std::size_t recorded = 0;
  std::string oldId;
  FeedJson old;
  while (recorded < whole.events.size()) {
    for (int step = 0; step < 6 && recorded < whole.events.size(); ++step)
      isThere[recorded++] = random() % 8 != 0; // some are forgotten, and put in later
    if (recorded > 20)
      for (int step = 0; step < 2; ++step) {
        const std::size_t corrected = random() % recorded;
        isThere[corrected] = !isThere[corrected];
      }
    channel.show(feedOf(with(whole, isThere)), false);
    ASSERT_EQ(viewer.game, FeedJson::parse(*channel.game())) << recorded;
    if (oldId.empty() && recorded > whole.events.size() / 2) {
      oldId = channel.id();
      old = viewer.game;
    }
  }
  EXPECT_GT(viewer.changes, 20);
  // Who was away gets what he missed, each once.
  Viewer away(channel);
  away.game = old;
  for (const WebStream::Frame& frame : channel.since(oldId))
    away.take(*frame);
  EXPECT_EQ(away.game, viewer.game);
}

TEST(FeedChannel, WhoIsTooFarBehindOrComesFromElsewhereBeginsAnew) {
  FeedChannel channel;
  channel.show(R"({"a":0,"plays":[]})", true);
  const std::string first = channel.id();
  for (std::size_t number = 1; number <= FeedChannel::kKept + 1; ++number)
    channel.show(R"({"a":)" + std::to_string(number) + R"(,"plays":[]})", false);
  const auto isReset = [&channel](const std::string& id) {
    const auto frames = channel.since(id);
    return frames.size() == 1 && frames[0]->starts_with("event: reset\n");
  };
  EXPECT_TRUE(isReset(first)) << "too long ago";
  EXPECT_TRUE(isReset("other-3"));
  EXPECT_TRUE(isReset("nonsense"));
  EXPECT_TRUE(isReset(channel.id() + "0")) << "from the future";
  EXPECT_TRUE(channel.since(channel.id()).empty());
  EXPECT_EQ(channel.changesSince("other-3"), "{\"id\":\"" + channel.id() + "\",\"reset\":true}\n");
  const std::string last = channel.id();
  channel.show(R"({"a":-1,"plays":[]})", false);
  EXPECT_EQ(channel.changesSince(last), "{\"id\":\"" + channel.id() + "\",\"changes\":[{\"id\":\"" +
                                            channel.id() + "\",\"set\":[[\"/a\",-1]]}]}\n");
}

TEST(FeedChange, SaysWhatIsACorrectionAndWhatOnlyFollows) {
  const auto game = [](const std::string& plays) { return FeedJson::parse("{\"plays\":[" + plays + "]}"); };
  const std::string first = R"({"id":"1","kind":"two","number":"4","score":[2,0]})";
  const std::string second = R"({"id":"2","kind":"two","number":"5","score":[4,0]})";
  const FeedJson change =
      *feedChange(game(first + ',' + second), game(R"({"id":"1","kind":"three","number":"4","score":[3,0]},)"
                                                   R"({"id":"2","kind":"two","number":"5","score":[5,0]})"));
  ASSERT_EQ(change["plays"].size(), 2U);
  EXPECT_FALSE(change["plays"][0].contains("follows"));
  EXPECT_EQ(change["plays"][0]["was"]["kind"], "two");
  EXPECT_TRUE(change["plays"][1].contains("follows"));
  const FeedJson joined = *feedChange(
      game(first),
      game(R"({"id":"1","kind":"two","number":"4","score":[2,0],"with":{"number":"5","kind":"assist"}})"));
  EXPECT_TRUE(joined["plays"][0].contains("follows")) << "an assist is recorded behind its basket";
  EXPECT_EQ(feedChange(game(first), game(first)), std::nullopt);
}

// The public is late; the bench is not.
TEST(WebGame, TheDelayHoldsForThePublicAlone) {
  const Texts texts;
  WebGame game(texts, {.delaySeconds = 20});
  auto shown = std::make_shared<RunningGame>();
  shown->counted = *counted(gameOfText(textOfGame("[PERIODE1]\n1=09:40,GDK,0-4\n", "IDPARTIE=1\n")));
  game.show({shown, 1'000'000, true});
  const auto isPublic = [&game] { return game.feed()->game()->find("\"points\":2") != std::string::npos; };
  EXPECT_FALSE(isPublic());
  EXPECT_NE(game.direct()->game()->find("\"points\":2"), std::string::npos);
  EXPECT_NE(game.bench(Side::Visitor, Language::English, 1'000'000)->find("\"points\":2"), std::string::npos);
  game.tick(1'019'000);
  EXPECT_FALSE(isPublic());
  game.tick(1'020'000);
  EXPECT_TRUE(isPublic());
}

} // namespace
} // namespace hooptab
