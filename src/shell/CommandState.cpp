#include "shell/CommandState.h"

#include <algorithm>

namespace hooptab {

namespace {

bool isOn(CommandGroup group, const Modes& modes) {
  const bool hasLive = modes.live != LiveClock::NoGame;
  switch (group) {
  case CommandGroup::Always: return true;
  case CommandGroup::Scorecard: return modes.hasScorecard;
  case CommandGroup::Season: return modes.hasSeason;
  case CommandGroup::StartOfInput: return modes.live != LiveClock::Running;
  case CommandGroup::Live: return hasLive;
  case CommandGroup::Manual: return modes.hasManual;
  case CommandGroup::LiveOrManual: return hasLive || modes.hasManual;
  }
  return false;
}

bool isEnabled(const Command& command, const Modes& modes) {
  if (command.kind == CommandKind::Menu)
    return std::ranges::any_of(commands(), [&](const Command& entry) {
      return entry.parent == command.id && isEnabled(entry, modes);
    });
  return isOn(command.group, modes);
}

// Whether what a Toggle, Swap or Choice stands for is so at present.
bool isSo(CommandId id, const Modes& modes) {
  if (id == CommandId::ByLine)
    return modes.scorecardByLine;
  if (id == CommandId::MadeAttempted)
    return modes.scorecardHidesMadeAttempted;
  if (id == CommandId::AskRebounds)
    return modes.asksRebounds;
  if (id == CommandId::Keypad)
    return modes.keypadIsActive;
  if (id == CommandId::Refresh10)
    return modes.refreshSeconds == 10;
  if (id == CommandId::Refresh30)
    return modes.refreshSeconds == 30;
  if (id == CommandId::Refresh60)
    return modes.refreshSeconds == 60;
  return id == CommandId::RefreshByHand && modes.refreshSeconds == 0;
}

} // namespace

CommandState stateOf(const Command& command, const Modes& modes) {
  CommandState state{isEnabled(command, modes), false, command.text, command.icon, command.shortcut};
  // The key saves what is in front; totals behind another window are saved by their button.
  if (command.id == CommandId::SaveTotals && modes.inFront != CommandGroup::Manual)
    state.shortcut = {};
  const bool so = isSo(command.id, modes);
  if (command.kind == CommandKind::Swap && so) {
    state.text = command.otherText;
    state.icon = command.otherIcon;
  } else if (command.kind == CommandKind::Toggle || command.kind == CommandKind::Choice) {
    state.isChecked = so;
  }
  if (command.id == CommandId::Refresh && modes.refreshSeconds > 0)
    state.icon = modes.refreshSeconds == 10   ? "vwrefsec10"
                 : modes.refreshSeconds == 30 ? "vwrefsec30"
                                              : "vwrefsec60";
  return state;
}

bool hasButton(const Command& command, const Modes& modes) {
  if (command.parent != CommandId::None)
    return false;
  const bool hasLive = modes.live != LiveClock::NoGame;
  switch (command.group) {
  case CommandGroup::Always:
  case CommandGroup::StartOfInput: return true;
  case CommandGroup::Scorecard: return modes.hasScorecard;
  case CommandGroup::Season: return modes.hasSeason;
  case CommandGroup::Live: return hasLive;
  case CommandGroup::Manual: return modes.hasManual;
  case CommandGroup::LiveOrManual: return hasLive || modes.hasManual;
  }
  return true;
}

} // namespace hooptab
