// Shares the game that is being recorded: a web server of its own, which gets each state of the game as a
// value, on a thread that the recorder never waits for. Without it nothing listens.
#pragma once

#include "publish/ShareChoice.h"
#include "publish/WebServer.h"
#include "recording/GameSession.h"

#include <memory>

namespace hooptab {

class GameShare {
 public:
  // Throws WebServerError.
  explicit GameShare(const ShareChoice& choice);
  ~GameShare();
  GameShare(const GameShare&) = delete;
  GameShare& operator=(const GameShare&) = delete;

  // From now on this game; the session must outlive that, or leave() come first.
  void follow(GameSession& session);
  // Viewers are told that no game is recorded.
  void leave();
  void setFeed(const FeedOptions& options);

  [[nodiscard]] std::uint16_t port() const { return m_server->port(); }
  [[nodiscard]] int viewers() const { return m_server->viewers(); }

 private:
  std::shared_ptr<WebServer> m_server; // whoever hands it a game may be at it when this goes
  GameSession::Following m_following;
};

// Of options as they are chosen; who may ask it under another name is nobody.
[[nodiscard]] WebOptions webOptionsOf(const ShareChoice& choice);

} // namespace hooptab
