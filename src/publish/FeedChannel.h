// The feed of one game to all who follow it: how the game stands, and each change with its number, the last
// ones kept for those who come back. Knows no game and no connection: it gets the feed's text and hands out
// frames.
#pragma once

#include "publish/FeedChange.h"
#include "publish/WebSource.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>

namespace hooptab {

class FeedChannel : public WebStream {
 public:
  static constexpr std::size_t kKept = 2000; // changes
  static constexpr std::size_t kPlaysOfScore = 8;

  FeedChannel();
  ~FeedChannel() override;

  // The game as it stands now (feed/FeedGame), told to all who follow as what is different; as a whole new
  // one where it is another game than before.
  void show(const std::string& game, bool isAnother);
  // Once in two seconds, so that viewers know that they are connected; `now` in milliseconds since 1970.
  void beat(std::int64_t now);

  // The id of the last change: EPOCH-NUMBER. The epoch is this channel's own.
  [[nodiscard]] std::string id() const;
  using Body = std::shared_ptr<const std::string>;
  [[nodiscard]] Body game() const { return m_game; } // with its id
  [[nodiscard]] Body score() const {
    return m_score;
  } // without players, flow, substitutions and earlier plays
  // The changes behind an id, as an answer of its own.
  [[nodiscard]] std::string changesSince(std::string_view lastId) const;

  [[nodiscard]] std::vector<Frame> since(std::string_view lastId) override;

 private:
  struct Change {
    std::string data; // JSON, one line
    Frame frame;
  };
  // How many of those kept are behind it; nothing where it is none of ours, or too old.
  [[nodiscard]] std::optional<std::size_t> behind(std::string_view lastId) const;
  [[nodiscard]] Frame resetFrame() const;
  void keep(FeedJson game);

  std::string m_epoch;
  std::int64_t m_number = 0;
  std::deque<Change> m_changes;
  std::unique_ptr<FeedJson> m_document;
  Body m_game, m_score;
};

} // namespace hooptab
