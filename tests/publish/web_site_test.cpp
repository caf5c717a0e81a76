// What each address gives, what is for the bench alone, games that are read when they are asked for, and how
// sharing is chosen.
#include "publish/GameFiles.h"
#include "publish/ShareChoice.h"
#include "publish/WebSite.h"

#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace hooptab {
namespace {

constexpr std::int64_t kNow = 1'800'000'000'000;

class WebSiteTest : public ::testing::Test {
 protected:
  static WebRequest request(const std::string& path,
                            std::map<std::string, std::string, std::less<>> query = {}) {
    return {path, std::move(query)};
  }
  static std::string body(WebSite& site, const std::string& path) {
    const WebAnswer answer = site.answer(request(path));
    return answer.body == nullptr ? std::string() : *answer.body;
  }
  static WebGame::Moment moment(const std::string& events, const std::string& details = {}) {
    auto game = std::make_shared<RunningGame>();
    game->counted = *counted(gameOfText(textOfGame(events, details)));
    return {game, kNow, true};
  }
  static std::string textOf(const std::string& date, const std::string& events,
                            const std::string& more = {}) {
    return textOfGame(events, "DATE=" + date + "\n" + more);
  }

  WebSite site{[] { return kNow; }, {}};
};

TEST_F(WebSiteTest, ViewersStayWhileGamesComeAndGo) {
  const auto stream = site.stream(request("/events"));
  ASSERT_NE(stream, nullptr);
  std::vector<std::string> frames;
  const auto listening =
      stream->listen([&frames](const WebStream::Frame& frame) { frames.push_back(*frame); });
  EXPECT_NE(body(site, "/api/game").find("\"none\""), std::string::npos);
  site.show("game", moment("[PERIODE1]\n1=09:40,GDK,0-4\n"));
  ASSERT_EQ(frames.size(), 1U);
  EXPECT_TRUE(frames[0].starts_with("event: reset\n"));
  EXPECT_EQ(site.stream(request("/g/game/events")), stream);
  const FeedJson score = FeedJson::parse(*site.answer(request("/api/game", {{"parts", "score"}})).body);
  EXPECT_EQ(score["teams"][0]["points"], 2);
  EXPECT_FALSE(score["teams"][0].contains("players"));
  site.show("game", {nullptr, kNow, false});
  EXPECT_NE(body(site, "/api/game").find("\"none\""), std::string::npos);
}

TEST_F(WebSiteTest, WhatTheBenchIsToldIsPrivateWhereverItStands) {
  for (const char* path :
       {"/bench", "/api/bench", "/api/bench/events", "/g/x/bench", "/g/x/api/bench/events"})
    EXPECT_TRUE(site.isPrivate(request(path))) << path;
  for (const char* path : {"/", "/api/game", "/events", "/box", "/g/bench/events", "/pages/bench.js"})
    EXPECT_FALSE(site.isPrivate(request(path))) << path;
  site.show("game", moment("[PERIODE1]\n1=09:40,GDK,0-4\n"));
  const auto ofHome = site.answer(request("/api/bench", {{"team", "1"}, {"lang", "fr"}}));
  EXPECT_EQ(FeedJson::parse(*ofHome.body)["us"]["name"], "OLY");
}

TEST_F(WebSiteTest, WhatIsNotThereIsNotFound) {
  for (const char* path :
       {"/nothing", "/g/none/", "/g/none/api/game", "/pages/../score.html", "/words/de.json"})
    EXPECT_EQ(site.answer(request(path)).status, 404) << path;
  EXPECT_EQ(site.answer(request("/score.html")).status, 404) << "a page has one address";
  const WebAnswer moved = [this] {
    site.show("game", moment(""));
    return site.answer(request("/g/game"));
  }();
  EXPECT_EQ(moved.location, "/g/game/");
  EXPECT_EQ(FeedJson::parse(body(site, "/court.json"))["width"], 200);
}

TEST_F(WebSiteTest, GamesOfAFolderAreReadWhenTheyAreAskedForAndFollowTheirFiles) {
  const TemporaryFolder folder;
  folder.write("a.GAM", textOf("2026-11-05", "[PERIODE1]\n1=09:40,GDK,0-4\n", "TERMINE=1\n"));
  folder.write("b é.GAM", textOf("2026-11-06", "[PERIODE1]\n1=10:00,DEPART\n2=09:40,GDK,0-4\n"));
  folder.write("c.GAM", "no game");
  auto shelf = std::make_unique<GameFiles>(std::vector{folder.path()}, [] { return kNow; });
  ASSERT_EQ(shelf->faults().size(), 1U);
  GameFiles& files = *shelf;
  site.setShelf(std::move(shelf));
  const FeedJson games = FeedJson::parse(body(site, "/api/games"));
  ASSERT_EQ(games.size(), 2U);
  EXPECT_EQ(games[0]["name"], "b") << "the last one first";
  EXPECT_EQ(games[0]["state"], "running");
  EXPECT_EQ(games[1]["state"], "final");
  EXPECT_EQ(site.answer(request("/api/game")).status, 404) << "none of several stands at the root";
  EXPECT_EQ(site.answer(request("/box")).location, "/");
  const FeedJson game = FeedJson::parse(body(site, "/g/b/api/game"));
  EXPECT_EQ(game["clock"]["running"], false) << "nobody knows when its last event was";

  folder.write("b é.GAM",
               textOf("2026-11-06", "[PERIODE1]\n1=10:00,DEPART\n2=09:40,GDK,0-4\n3=09:00,GF3,1-3,9,9\n"));
  for (const std::string& name : files.look({folder.path("b é.GAM")}))
    site.refresh(name);
  EXPECT_EQ(FeedJson::parse(body(site, "/g/b/api/game"))["teams"][1]["points"], 3);
  folder.write("b é.GAM", "half a");
  for (const std::string& name : files.look({folder.path("b é.GAM")}))
    site.refresh(name);
  EXPECT_EQ(FeedJson::parse(body(site, "/g/b/api/game"))["teams"][1]["points"], 3) << "it is being written";
  std::filesystem::remove(folder.path("b é.GAM"));
  for (const std::string& name : files.look({folder.path("b é.GAM")}))
    site.refresh(name);
  EXPECT_EQ(site.answer(request("/g/b/api/game")).status, 404);
}

TEST(ShareChoice, MinorsAreKnownByRulesAndCategories) {
  const auto play = [](const std::string& visitors, const std::string& home, const std::string& rules = {}) {
    GameDetails details;
    details.category = {visitors, home};
    details.ruleSet = rules;
    return areMinors(details);
  };
  for (const char* category :
       {"U16", "U-14 F", "M12", "16U", "Cadet AA", "BENJAMIN", "Juvénile D2", "JUVÉNILE"})
    EXPECT_TRUE(play("AAA", category)) << category;
  for (const char* category : {"AAA", "U18", "U20", "SENIOR", "M1 2014", "Division 3", ""})
    EXPECT_FALSE(play(category, "AAA")) << category;
  EXPECT_TRUE(play("", "", "FIBAJEUNES"));
  GameDetails young;
  young.category = {"U16", "U16"};
  EXPECT_EQ(offeredNames("", young), NameForm::Number);
  EXPECT_EQ(offeredNames("full", young), NameForm::Full) << "somebody chose it for them";
  EXPECT_EQ(offeredNames("", {}), NameForm::Full);
}

TEST(ShareChoice, IsRememberedWithoutItsPassPhrase) {
  ShareChoice choice;
  choice.address = "192.168.1.20";
  choice.port = 9000;
  choice.passPhrase = "secret";
  choice.feed = {.delaySeconds = 20, .first = Side::Home};
  const std::string text = shareChoiceText(choice);
  EXPECT_EQ(text.find("secret"), std::string::npos);
  choice.passPhrase.clear();
  EXPECT_EQ(readShareChoice(text), choice);
  EXPECT_EQ(readShareChoice("x 99999 -3"), readShareChoice("x"));
}

} // namespace
} // namespace hooptab
