// The sentences of a scouting sheet: who scores, whom not to leave, whom to foul or to press, and in which
// period a team is weak. Each is made of counts and tells them; where those are too few to mean anything,
// nothing is said. Of equal ones the one with more attempts is named, then the one who stands first.
#pragma once

#include "game/Statistics.h"
#include "report/Report.h"
#include "season/TeamStudy.h"
#include "settings/Texts.h"

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct ScoutedPlayer {
  std::string name; // "14 Able"
  int games = 0;    // at least 1
  BoxNumbers numbers;
};

class ScoutKeys {
 public:
  static constexpr int kLeastThrows = 8;
  static constexpr int kLeastThrees = 15;
  static constexpr int kLeastShots = 15;
  static constexpr int kLeastDrives = 8;
  static constexpr int kLeastCounts = 8; // of turnovers, and of offensive rebounds
  static constexpr int kLeastGames = 3;  // of a period

  using Sentence = std::vector<ReportSentences::Part>;

  // All must outlive it.
  ScoutKeys(std::span<const ScoutedPlayer> players, std::span<const TeamCourse::Period> periods,
            const Texts& texts)
      : m_players(players), m_periods(periods), m_texts(texts) {}

  // Three at most; one that says so where nothing can be said.
  [[nodiscard]] std::vector<Sentence> sentences() const;

  // Which side he drives to, of his layups: the share of those at the right, 0.5 for half. Nothing of few.
  [[nodiscard]] static std::optional<double> driveShare(const BoxNumbers& numbers);

 private:
  // Whose value is highest; `value` gives nothing for who cannot be named, else the value and its weight.
  using Value = std::optional<std::pair<double, double>> (*)(const ScoutedPlayer& player);
  [[nodiscard]] const ScoutedPlayer* highest(Value value) const;

  // Nothing of nobody.
  [[nodiscard]] Sentence ofShots(Text text, const ScoutedPlayer* player, ShotKinds kinds) const;
  [[nodiscard]] Sentence scorer() const;
  [[nodiscard]] Sentence threes() const;
  [[nodiscard]] Sentence foul() const;
  [[nodiscard]] Sentence leave() const;
  [[nodiscard]] Sentence boards() const;
  [[nodiscard]] Sentence periods() const;
  [[nodiscard]] Sentence press() const;
  // The words of a text, in bold up to the name that stands for its XXX.
  [[nodiscard]] Sentence named(Text text, const std::string& name, const std::string& y = {},
                               const std::string& z = {}) const;

  std::span<const ScoutedPlayer> m_players;
  std::span<const TeamCourse::Period> m_periods;
  const Texts& m_texts;
};

} // namespace hooptab
