// One game as it is given over the network: to everybody, late by a delay and with as much of the names as
// may be told, and to the benches at once. Gets the game as a value after each change; lives on the server's
// thread.
#pragma once

#include "assistant/BenchRecord.h"
#include "feed/FeedGame.h"
#include "publish/BenchStream.h"
#include "publish/FeedChannel.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>

namespace hooptab {

class WebGame {
 public:
  // `texts` must outlive it.
  WebGame(const Texts& texts, const FeedOptions& options);

  using Shown = std::shared_ptr<const RunningGame>; // null: none is recorded
  struct Moment {
    Shown game;
    std::int64_t at = 0;       // since when it stands so, in milliseconds since 1970
    bool isClockKnown = false; // whether its clock was read then; a file may say nothing of it
  };
  void show(const Moment& moment);
  void setOptions(const FeedOptions& options, std::int64_t now);
  void tick(std::int64_t now);

  // As the public sees it.
  [[nodiscard]] const std::shared_ptr<FeedChannel>& feed() const { return m_feed; }
  // At once and with whole names, for those of the game's own people who know the pass phrase.
  [[nodiscard]] const std::shared_ptr<FeedChannel>& direct();
  [[nodiscard]] const Shown& publicGame() const { return m_public.game; }
  // Whether anybody follows it now.
  [[nodiscard]] bool isHeard() const;
  // Null while no game is recorded.
  [[nodiscard]] std::shared_ptr<const std::string> bench(Side us, Language language, std::int64_t now);
  [[nodiscard]] std::shared_ptr<BenchStream> benchStream(Side us, Language language, std::int64_t now);

 private:
  void publish(const Moment& moment);
  void showDirect(bool isAnother);
  [[nodiscard]] std::string textOf(const Moment& moment, const FeedOptions& options) const;
  void showBenches(std::int64_t now);
  [[nodiscard]] std::string benchText(Side us, Language language, std::int64_t now);
  struct Desk {
    std::shared_ptr<BenchStream> stream;
    Side us = Side::Visitor;
    Language language = Language::English;
  };

  Texts m_texts; // whose language is switched
  FeedOptions m_options;
  std::shared_ptr<FeedChannel> m_feed = std::make_shared<FeedChannel>();
  std::shared_ptr<FeedChannel> m_direct; // null until somebody asks for it
  std::deque<Moment> m_waiting;          // for their time to come
  Moment m_public;
  Moment m_now;
  std::optional<BenchRecord> m_record; // of m_now
  std::vector<Desk> m_desks;
  std::int64_t m_beaten = 0; // when
};

} // namespace hooptab
