#include "recording/GameSession.h"

#include <utility>

namespace hooptab {

namespace {

constexpr int kMostRounds = 8; // of listeners that change the game in answer to each other

} // namespace

GameSession::Listening GameSession::listen(Listener listener) {
  auto listening = std::make_shared<const Listener>(std::move(listener));
  m_listeners.push_back(listening);
  return listening;
}

GameSession::Following GameSession::follow(GameFollower::Work work) {
  auto follower = std::make_shared<GameFollower>(std::move(work));
  m_followers.push_back(follower);
  if (!m_game.game().path.empty())
    follower->take(std::make_shared<const RunningGame>(RunningGame::of(m_game)));
  return follower;
}

GameSession::Look GameSession::look() const {
  const GameOnDisk& disk = m_game.disk();
  return {m_game.phase(), m_game.period(), m_game.endedPeriod(),
          m_game.clock(), m_game.places(), m_game.pending().has_value(),
          disk.waiting(), disk.isLost(),   disk.rescuedAs()};
}

GameNews GameSession::takeNews() {
  ForeignHands foreign = m_game.takeForeignHands();
  GameNews news = m_game.takeNews();
  news.foreign = std::move(foreign);
  const Look before = std::exchange(m_told, look());
  news.phase = m_told.phase != before.phase || m_told.period != before.period ||
               m_told.endedPeriod != before.endedPeriod;
  news.clock = m_told.clock != before.clock;
  news.lineUp = m_told.places != before.places || m_told.isPending != before.isPending;
  news.disk = m_told.waiting != before.waiting || m_told.isLost != before.isLost ||
              m_told.rescuedAs != before.rescuedAs;
  return news;
}

void GameSession::end() noexcept {
  if (--m_changes > 0 || m_isTelling)
    return;
  m_isTelling = true;
  try {
    for (int round = 0; round < kMostRounds; ++round) {
      const GameNews news = takeNews();
      if (news.isEmpty())
        break;
      tell(news);
    }
  } catch (...) {
    fail();
  }
  m_isTelling = false;
}

void GameSession::fail() const noexcept {
  if (m_onFailure)
    m_onFailure(std::current_exception());
}

void GameSession::tell(const GameNews& news) {
  std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
  std::erase_if(m_followers, [](const auto& follower) { return follower.expired(); });
  const auto listeners = m_listeners; // one may come or go meanwhile
  for (const auto& each : listeners) {
    const auto listener = each.lock();
    if (listener == nullptr)
      continue;
    try {
      (*listener)(news);
    } catch (...) {
      fail();
    }
  }
  if (m_followers.empty() || !news.isOfGame())
    return;
  const auto game = std::make_shared<const RunningGame>(RunningGame::of(m_game));
  for (const auto& each : m_followers) {
    if (const auto follower = each.lock())
      follower->take(game);
  }
}

} // namespace hooptab
