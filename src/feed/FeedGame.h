// A running game in JSON for whoever follows it, over the network or on this machine: the box score, the
// clock, the flow and the plays. docs/formats/feed.md describes it. Who sees how much of a name is decided
// here; connections, delays and changes are others' business.
#pragma once

#include "game/Side.h"
#include "recording/RunningGame.h"
#include "settings/Texts.h"

#include <cstdint>
#include <optional>
#include <string>

namespace hooptab {

enum class NameForm : std::uint8_t { Full, Initial, Number };

struct FeedOptions {
  NameForm names = NameForm::Full;
  int delaySeconds = 0;       // told, so that viewers know
  Side first = Side::Visitor; // the team that stands left or on top
  friend bool operator==(const FeedOptions&, const FeedOptions&) = default;
};

// As it stands: `at` is when its clock was read, in milliseconds since 1970; nothing where nobody knows, as
// in a file that somebody else writes. `id` is of the last change in it.
struct FeedMoment {
  std::string id;
  std::optional<std::int64_t> at;
};
// `texts` gives both languages.
[[nodiscard]] std::string feedGame(const RunningGame& game, const FeedMoment& moment,
                                   const FeedOptions& options, const Texts& texts);
// While no game is recorded.
[[nodiscard]] std::string feedWithoutGame(const FeedMoment& moment, const FeedOptions& options);

// "none", "before", "running", "stopped", "break" or "final".
[[nodiscard]] std::string_view feedState(const RunningGame& game);

// "J. Miller" of "Jane Miller"; nothing where numbers alone are told.
[[nodiscard]] std::string toldName(const std::string& name, NameForm form);

} // namespace hooptab
