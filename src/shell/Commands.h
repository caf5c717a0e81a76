// The one table of the program's commands, in the order of the tool bar: key, texts, icon, shortcut and the
// mode that a command belongs to. Tool bar, menus and tool tips are made from it; what a command does is told
// to the tool bar by whoever serves it.
#pragma once

#include "settings/Text.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace hooptab {

// In the order of the table.
enum class CommandId : std::uint8_t {
  ViewMenu,
  OpenScorecard,
  ImportGames,
  ExportGame,
  Refresh,
  RefreshByHand,
  Refresh10,
  Refresh30,
  Refresh60,
  ByLine,
  MadeAttempted,
  PrintScorecard,
  CloseScorecard,
  OpenSeason,
  TeamSummary,
  TeamDetail,
  PlayerShots,
  LineShots,
  PlayerOther,
  LineOther,
  LeadersTotal,
  LeadersPerGame,
  LeadersPerMinute,
  PlayerReport,
  LineReport,
  GamesToFile,
  PrintSeason,
  CloseSeason,
  InputMenu,
  NewGame,
  OpenForInput,
  OpenForms,
  SaveCopy,
  GameSheet,
  BenchView,
  ShareGame,
  Keypad,
  AskRebounds,
  SwitchSides,
  GameOver,
  PrintGame,
  SaveTotals,
  CloseInput,
  SettingsMenu,
  OpenTeams,
  CourtColours,
  OpenKeys,
  OpenRating,
  FormsMenu,
  PreparedForms,
  BlankForms,
  Language,
  HelpMenu,
  Guide,
  WebSite,
  About,
  None // of no command
};
inline constexpr std::size_t kCommandCount = static_cast<std::size_t>(CommandId::None);

enum class CommandKind : std::uint8_t {
  Action,
  Toggle, // a button that stays pressed
  Swap,   // shows the other text and icon while its mode is on
  Choice, // one of the entries of its menu is checked
  Menu,   // only opens its entries
};

// The mode that enables a command. Live input is recorded, manual input entered from totals.
enum class CommandGroup : std::uint8_t {
  Always,
  Scorecard,
  Season,
  StartOfInput,
  Live,
  Manual,
  LiveOrManual
};

struct Command {
  CommandId id = CommandId::None;
  std::string_view key; // the object name of its action
  CommandId parent =
      CommandId::None; // the button whose drop-down shows it; None for a button of the tool bar
  Text text = Text::None;
  std::string_view icon; // file name without ending
  CommandGroup group = CommandGroup::Always;
  CommandKind kind = CommandKind::Action;
  std::string_view shortcut = {}; // portable form, empty for none
  bool separatorBefore = false;
  Text otherText = Text::None; // of a Swap
  std::string_view otherIcon = {};
};

// A button with entries that is no Menu acts itself; its own action is also the first entry of its drop-down.
[[nodiscard]] std::span<const Command> commands();
[[nodiscard]] const Command& commandOf(CommandId id); // not None

} // namespace hooptab
