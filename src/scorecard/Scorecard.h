// One game as the scorecard shows it: read from its file, counted, and kept while a later reading fails. What
// the window shows and when it says what is decided here; the window only lays out.
#pragma once

#include "checks/Finding.h"
#include "game/CountedGame.h"
#include "game/Tally.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// "LYNX 78 - 81 PUMA": the name of a game in windows, lists and texts.
[[nodiscard]] std::string gameTitle(const CountedGame& counted);

class Scorecard {
 public:
  // The store must outlive it.
  Scorecard(ProfileStore& store, std::string path);

  // Reads and counts the game anew. On a problem what was read last stays.
  [[nodiscard]] GameFileProblem load();

  bool hasGame() const { return m_counted != nullptr; }
  const std::string& path() const { return m_path; }
  // As they were read last; once there is a game.
  const Game& game() const { return m_counted->game; }
  const GameState& state() const { return m_counted->state; }
  const std::shared_ptr<const CountedGame>& counted() const { return m_counted; }
  const std::optional<CountOutOfRange>& outOfRange() const { return m_outOfRange; }
  // What a check of the game and its file names.
  const std::vector<Finding>& findings() const { return m_findings; }
  [[nodiscard]] std::string title() const { return gameTitle(*m_counted); }

 private:
  ProfileStore& m_store;
  std::string m_path;
  std::shared_ptr<const CountedGame> m_counted;
  std::optional<CountOutOfRange> m_outOfRange;
  std::vector<Finding> m_findings;
};

} // namespace hooptab
