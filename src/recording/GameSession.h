// A running game and all who want to know what becomes of it. The game can be changed through its session
// alone: when a change is whole, those who listen hear once what has come of it.
#pragma once

#include "recording/GameFollower.h"
#include "recording/GameNews.h"
#include "recording/LiveGame.h"

#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace hooptab {

class GameSession {
 public:
  // Both must outlive it.
  GameSession(ProfileStore& store, TimeSource& time) : m_game(store, time) {}
  GameSession(const GameSession&) = delete;
  GameSession& operator=(const GameSession&) = delete;

  [[nodiscard]] const LiveGame& game() const { return m_game; }

  // The hold on a game that is being changed; several that overlap are one change, which is whole when the
  // last one goes.
  class Change {
   public:
    explicit Change(GameSession& session) : m_session(session) { ++session.m_changes; }
    ~Change() { m_session.end(); }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    LiveGame* operator->() const { return &m_session.m_game; }
    LiveGame& operator*() const { return m_session.m_game; }

   private:
    GameSession& m_session;
  };
  // `session.change()->recordShot(...)` is whole with its statement.
  [[nodiscard]] Change change() { return Change(*this); }

  // Called where the change is made, before those that follow, until what is returned goes; not for how the
  // game stands now, which game() tells. One that throws harms no other: what it threw goes to `onFailure`.
  // It may change the game: then all hear of that, too, afterwards.
  using Listener = std::function<void(const GameNews& news)>;
  using Listening = std::shared_ptr<const Listener>;
  [[nodiscard]] Listening listen(Listener listener);
  void onFailure(std::function<void(std::exception_ptr)> handler) { m_onFailure = std::move(handler); }
  // For whatever may take long: gets the game as it stands now, where one is open, and after each change of
  // it (GameNews::isOfGame); until what is returned goes.
  using Following = std::shared_ptr<GameFollower>;
  [[nodiscard]] Following follow(GameFollower::Work work);

 private:
  // What a change is told by, beside the log's own account.
  struct Look {
    LiveGame::Phase phase = LiveGame::Phase::Stopped;
    int period = 0;
    int endedPeriod = 0;
    GameClock clock;
    CourtSlots places;
    bool isPending = false;
    std::size_t waiting = 0;
    bool isLost = false;
    std::string rescuedAs;
  };
  [[nodiscard]] Look look() const;
  void end() noexcept;
  [[nodiscard]] GameNews takeNews();
  void tell(const GameNews& news);
  void fail() const noexcept; // with what was thrown

  LiveGame m_game;
  int m_changes = 0; // that are under way
  bool m_isTelling = false;
  Look m_told;
  std::vector<std::weak_ptr<const Listener>> m_listeners;
  std::vector<std::weak_ptr<GameFollower>> m_followers;
  std::function<void(std::exception_ptr)> m_onFailure;
};

} // namespace hooptab
