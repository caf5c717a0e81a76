// The rule by which a command is enabled, checked and labelled in the modes that are on. Knows no widget: the
// main window asks for every command again whenever a mode begins or ends.
#pragma once

#include "shell/Commands.h"

#include <cstdint>
#include <string_view>

namespace hooptab {

enum class LiveClock : std::uint8_t { NoGame, Stopped, Running };

struct Modes {
  CommandGroup inFront =
      CommandGroup::Always; // of the window in front; Always: none with commands of its own
  bool hasScorecard = false;
  bool scorecardByLine = false;
  bool scorecardHidesMadeAttempted = false;
  int refreshSeconds = 0; // 0: by hand
  bool hasSeason = false;
  LiveClock live = LiveClock::NoGame;
  bool hasManual = false;
  bool asksRebounds = false;
  bool keypadIsActive = false;
};

struct CommandState {
  bool isEnabled = false;
  bool isChecked = false;
  Text text = Text::None;
  std::string_view icon;
  std::string_view shortcut; // empty while its key means something else, or nothing
};

// Whether the tool bar has a button for it: what every mode has, and what belongs to a mode that is on.
[[nodiscard]] bool hasButton(const Command& command, const Modes& modes);
// A menu is enabled when one of its entries is.
[[nodiscard]] CommandState stateOf(const Command& command, const Modes& modes);

} // namespace hooptab
