// What those hear who listen to a running game, and that none of them can harm another or the game.
#include "recording/GameSession.h"
#include "recording/LiveTable.h"

#include <future>
#include <stdexcept>

namespace hooptab {
namespace {

using namespace std::chrono_literals;

class GameSessionTest : public LiveTableTest {
 protected:
  void SetUp() override {
    create(regular(), "4 5 10 12 15 7", "4 5 10 12 15 7");
    ASSERT_TRUE(session.change()->setOnCourt({kFive, kFive})); // event 2
  }
  // What is told, in short; "+3 -2 ~2 phase clock line-up details counts disk", blank behind each.
  static std::string words(const GameNews& news) {
    std::string text;
    for (const auto& [sign, events] :
         {std::pair('+', news.added), {'-', news.deleted}, {'~', news.changed}}) {
      for (const EventPlace& event : events)
        text += sign + event.key + ' ';
    }
    const std::pair<bool, const char*> others[] = {
        {news.isOpened, "opened "}, {news.phase, "phase "},
        {news.clock, "clock "},     {news.lineUp, "line-up "},
        {news.details, "details "}, {news.hasOtherCounts, "counts "},
        {news.disk, "disk "},       {news.foreign.isTouched, "foreign "}};
    for (const auto& [is, word] : others)
      text += is ? word : "";
    return text;
  }
  // What `act` is told by; "|" behind each telling.
  template <class Act>
  std::string told(Act act) {
    std::string all;
    const auto listening = session.listen([&](const GameNews& news) { all += words(news) + '|'; });
    act();
    return all;
  }
};

TEST_F(GameSessionTest, TellsOnceWhatAWholeChangeHasMade) {
  EXPECT_EQ(told([&] { session.change()->recordShot(Side::Visitor, 1, EventCode::GFT, true); }), "+3 |");
  EXPECT_EQ(told([&] { session.change()->recordShot(Side::Visitor, 99, EventCode::GFT, true); }), "")
      << "nothing was recorded";
  EXPECT_EQ(told([&] { session.change()->undo(); }), "-3 |");
  EXPECT_EQ(told([&] { session.change()->redo(); }), "~3 |");
  EXPECT_EQ(told([&] { session.change()->setClock(300); }), "clock |");
  EXPECT_EQ(told([&] { session.change()->start(); }), "+4 phase clock |");
  EXPECT_EQ(told([&] { session.change()->toggleOnCourt(Side::Visitor, 1); }), "line-up |")
      << "half of a substitution";
  EXPECT_EQ(told([&] { session.change()->toggleOnCourt(Side::Visitor, 6); }), "+5 +6 line-up |");
  time.now += 10;
  EXPECT_EQ(told([&] { session.change()->tick(); }), "") << "the time that passes is no news";
  time.now += 300;
  EXPECT_EQ(told([&] { session.change()->tick(); }), "+7 phase clock |") << "the period has ended";
  EXPECT_EQ(told([&] { session.change()->setTeamColour(Side::Visitor, 255); }), "details |");
  EXPECT_EQ(told([&] { (void)session.change()->addPlayer(Side::Visitor, "77", "Late Larry"); }), "counts |");
  EXPECT_EQ(told([&] {
              const auto whole = session.change();
              whole->recordAction(Side::Visitor, 2, EventCode::SPF);
              session.change()->recordAction(Side::Visitor, 3, EventCode::SPF);
            }),
            "+8 +9 |");
  disk.failAt = disk.calls;
  disk.staysBroken = true;
  EXPECT_EQ(told([&] { session.change()->recordAction(Side::Visitor, 2, EventCode::SBS); }), "+10 disk |");
  disk.failAt = -1;
  EXPECT_EQ(told([&] { session.change()->settle(); }), "disk |");
  folder.write("live.GAM", folder.read("live.GAM") + "900=10:00,GFT,0-5,-1,-1\r\n");
  EXPECT_EQ(told([&] { session.change()->settle(); }), "details counts foreign |");
}

TEST_F(GameSessionTest, AListenerThatThrowsChangesOrLeavesHarmsNobody) {
  std::string heard;
  int failures = 0;
  session.onFailure([&](const std::exception_ptr&) { ++failures; });
  const auto throwing = session.listen([](const GameNews&) { throw std::runtime_error("mine"); });
  GameSession::Listening leaving;
  leaving = session.listen([&](const GameNews&) {
    heard += "leaves ";
    leaving.reset();
  });
  const auto answering = session.listen([&](const GameNews& news) {
    if (news.added.size() == 1 && news.added[0].key == "3") // answers a shot with its assist
      session.change()->recordFollowUp(Side::Visitor, 2, EventCode::SA);
  });
  const auto last = session.listen([&](const GameNews& news) { heard += words(news) + '|'; });
  EXPECT_TRUE(session.change()->recordShot(Side::Visitor, 1, EventCode::GFT, true));
  EXPECT_EQ(heard, "leaves +3 |+4 |");
  EXPECT_EQ(failures, 2);
  EXPECT_EQ(onDisk().events.size(), 4U);
}

TEST_F(GameSessionTest, WhoFollowsGetsTheLastGameAndNobodyWaitsForHim) {
  std::promise<void> go;
  std::promise<int> lastPoints;
  int games = 0;
  auto follower = session.follow([&, mayGo = go.get_future().share()](const RunningGame& game) {
    mayGo.wait();
    if (++games == 1)
      throw std::runtime_error("at the first");
    if (games == 3)
      lastPoints.set_value(game.counted.state.points(Side::Visitor) + 100 * game.clockSeconds);
    return games > 2;
  });
  for (int shot = 0; shot < 5; ++shot)
    EXPECT_TRUE(session.change()->recordShot(Side::Visitor, 1, EventCode::GFT, true))
        << "while he is at work";
  session.change()->setClock(300);
  go.set_value();
  EXPECT_EQ(lastPoints.get_future().get(), 30005)
      << "and not one game after the other; again after a failure";
  follower.reset();
  EXPECT_EQ(games, 3);

  const auto begin = std::chrono::steady_clock::now();
  auto never = std::make_shared<std::promise<void>>();
  {
    const auto hanging = session.follow([never](const RunningGame&) {
      never->get_future().wait_for(1h);
      return true;
    });
    EXPECT_TRUE(session.change()->recordShot(Side::Visitor, 1, EventCode::GFT, true));
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 1min) << "one that hangs is left";
  never->set_value();
}

} // namespace
} // namespace hooptab
