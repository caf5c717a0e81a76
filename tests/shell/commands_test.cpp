#include "shell/Commands.h"

#include "settings/Texts.h"
#include "shell/CommandState.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace hooptab {
namespace {

// Every combination of modes that the main window can be in.
std::vector<Modes> allModes() {
  std::vector<Modes> all;
  for (unsigned bits = 0; bits < 128; ++bits)
    for (const int seconds : {0, 10, 30, 60})
      for (const LiveClock live : {LiveClock::NoGame, LiveClock::Stopped, LiveClock::Running})
        all.push_back({CommandGroup::Always, (bits & 1U) != 0, (bits & 2U) != 0, (bits & 4U) != 0, seconds,
                       (bits & 8U) != 0, live, (bits & 16U) != 0, (bits & 32U) != 0, (bits & 64U) != 0});
  return all;
}

CommandState state(CommandId id, const Modes& modes) {
  return stateOf(commandOf(id), modes);
}

TEST(Commands, EachHasAKeyOfItsOwnStandsBehindItsParentAndHasTextsAndIcon) {
  const Texts texts;
  std::set<std::string_view> keys;
  std::set<CommandId> ids;
  const std::string icons = HOOPTAB_TESTS "/../src/resources/icons/";
  for (const Command& command : commands()) {
    SCOPED_TRACE(command.key);
    EXPECT_TRUE(command.parent == CommandId::None || ids.contains(command.parent));
    EXPECT_TRUE(keys.insert(command.key).second) << "twice";
    ids.insert(command.id);
    EXPECT_TRUE(command.kind != CommandKind::Menu ||
                std::ranges::count(commands(), command.id, &Command::parent) > 0)
        << "has no entries";
    std::string icon(command.key);
    std::ranges::transform(icon, icon.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_EQ(command.icon, icon);
    EXPECT_TRUE(std::filesystem::exists(icons + icon + ".svg"));
    EXPECT_EQ(command.kind == CommandKind::Swap, command.otherText != Text::None);
    EXPECT_TRUE(command.otherText == Text::None ||
                (texts.text(command.text) != texts.text(command.otherText) &&
                 std::filesystem::exists(icons + std::string(command.otherIcon) + ".svg")));
  }
}

TEST(CommandState, EachModeEnablesItsCommandsAGroupAsAWhole) {
  for (const Modes& modes : allModes()) {
    std::map<CommandGroup, std::set<bool>> states;
    for (const Command& command : commands())
      if (command.kind != CommandKind::Menu)
        states[command.group].insert(state(command.id, modes).isEnabled);
    for (const auto& [group, values] : states)
      EXPECT_EQ(values.size(), 1U) << static_cast<int>(group);
    const bool hasLive = modes.live != LiveClock::NoGame;
    EXPECT_TRUE(state(CommandId::OpenScorecard, modes).isEnabled);
    EXPECT_TRUE(state(CommandId::ViewMenu, modes).isEnabled);
    EXPECT_EQ(state(CommandId::CloseScorecard, modes).isEnabled, modes.hasScorecard);
    EXPECT_EQ(state(CommandId::CloseSeason, modes).isEnabled, modes.hasSeason);
    EXPECT_EQ(state(CommandId::SwitchSides, modes).isEnabled, hasLive);
    EXPECT_EQ(state(CommandId::SaveTotals, modes).isEnabled, modes.hasManual);
    EXPECT_EQ(state(CommandId::CloseInput, modes).isEnabled, hasLive || modes.hasManual);
    EXPECT_EQ(state(CommandId::OpenForInput, modes).isEnabled, modes.live != LiveClock::Running);
    EXPECT_EQ(state(CommandId::NewGame, modes).isEnabled, modes.live != LiveClock::Running);
  }
}

TEST(CommandState, WhatIsOnIsCheckedOrShowsTheWayBack) {
  for (const Modes& modes : allModes()) {
    EXPECT_EQ(state(CommandId::ByLine, modes).text,
              modes.scorecardByLine ? Text::ViewByPlayer : Text::ViewByLine);
    EXPECT_EQ(state(CommandId::MadeAttempted, modes).text, modes.scorecardHidesMadeAttempted
                                                               ? Text::StatisticsWithMadeAndAttempt
                                                               : Text::StatisticsWithoutMadeAndAttempt);
    EXPECT_EQ(state(CommandId::ByLine, modes).icon, modes.scorecardByLine ? "vwplayer" : "vwligne");
    EXPECT_EQ(state(CommandId::AskRebounds, modes).isChecked, modes.asksRebounds);
    EXPECT_EQ(state(CommandId::Keypad, modes).isChecked, modes.keypadIsActive);
    int checkedRefreshModes = 0;
    for (const Command& command : commands()) {
      const CommandState now = stateOf(command, modes);
      checkedRefreshModes += command.kind == CommandKind::Choice && now.isChecked;
      EXPECT_TRUE(!now.isChecked || command.kind == CommandKind::Choice ||
                  command.kind == CommandKind::Toggle)
          << command.key;
    }
    EXPECT_EQ(checkedRefreshModes, 1);
  }
  EXPECT_TRUE(state(CommandId::Refresh30, {.refreshSeconds = 30}).isChecked);
  EXPECT_TRUE(state(CommandId::RefreshByHand, {}).isChecked);
  EXPECT_EQ(state(CommandId::Refresh, {.refreshSeconds = 30}).icon, "vwrefsec30")
      << "it is seen that it goes on";
  EXPECT_EQ(state(CommandId::SaveTotals, {.inFront = CommandGroup::Season, .hasManual = true}).shortcut, "");
}

} // namespace
} // namespace hooptab
