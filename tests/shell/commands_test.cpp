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

CommandState state(std::string_view key, const Modes& modes) {
  const Command* command = findCommand(key);
  EXPECT_NE(command, nullptr) << key;
  return command == nullptr ? CommandState() : stateOf(*command, modes);
}

TEST(Commands, EachIsFoundByItsKeyStandsBehindItsParentAndHasTextsAndIcon) {
  const Texts texts;
  std::set<std::string_view> keys;
  const std::string icons = HOOPTAB_TESTS "/../src/resources/icons/";
  for (const Command& command : commands()) {
    SCOPED_TRACE(command.key);
    EXPECT_TRUE(command.parent.empty() || keys.contains(command.parent));
    EXPECT_TRUE(keys.insert(command.key).second) << "twice";
    EXPECT_EQ(findCommand(command.key), &command);
    EXPECT_TRUE(command.kind != CommandKind::Menu ||
                std::ranges::count(commands(), command.key, &Command::parent) > 0)
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
  for (const char* unknown : {"vwOPEN", "", "tbVOICE"})
    EXPECT_EQ(findCommand(unknown), nullptr);
}

TEST(CommandState, EachModeEnablesItsCommandsAGroupAsAWhole) {
  for (const Modes& modes : allModes()) {
    std::map<CommandGroup, std::set<bool>> states;
    for (const Command& command : commands())
      if (command.kind != CommandKind::Menu)
        states[command.group].insert(state(command.key, modes).isEnabled);
    for (const auto& [group, values] : states)
      EXPECT_EQ(values.size(), 1U) << static_cast<int>(group);
    const bool hasLive = modes.live != LiveClock::NoGame;
    EXPECT_TRUE(state("VwOPEN", modes).isEnabled);
    EXPECT_TRUE(state("VIEW", modes).isEnabled);
    EXPECT_EQ(state("VwCLOSE", modes).isEnabled, modes.hasScorecard);
    EXPECT_EQ(state("stCLOSE", modes).isEnabled, modes.hasSeason);
    EXPECT_EQ(state("SWITCH", modes).isEnabled, hasLive);
    EXPECT_EQ(state("saveMANUAL", modes).isEnabled, modes.hasManual);
    EXPECT_EQ(state("CLOSELIVEMANUAL", modes).isEnabled, hasLive || modes.hasManual);
    EXPECT_EQ(state("LIVEOpen", modes).isEnabled, modes.live != LiveClock::Running);
    EXPECT_EQ(state("LIVENew", modes).isEnabled, modes.live != LiveClock::Running);
  }
}

TEST(CommandState, WhatIsOnIsCheckedOrShowsTheWayBack) {
  for (const Modes& modes : allModes()) {
    EXPECT_EQ(state("VwLIGNE", modes).text, modes.scorecardByLine ? Text::ViewByPlayer : Text::ViewByLine);
    EXPECT_EQ(state("VwMA", modes).text, modes.scorecardHidesMadeAttempted
                                             ? Text::StatisticsWithMadeAndAttempt
                                             : Text::StatisticsWithoutMadeAndAttempt);
    EXPECT_EQ(state("VwLIGNE", modes).icon, modes.scorecardByLine ? "vwplayer" : "vwligne");
    EXPECT_EQ(state("LIVEMouse", modes).isChecked, modes.asksRebounds);
    EXPECT_EQ(state("LIVEKpad", modes).isChecked, modes.keypadIsActive);
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
  EXPECT_TRUE(state("VwREFSEC30", {.refreshSeconds = 30}).isChecked);
  EXPECT_TRUE(state("VwREFSEC00", {}).isChecked);
  EXPECT_EQ(state("VwREFRESH", {.refreshSeconds = 30}).icon, "vwrefsec30") << "it is seen that it goes on";
  EXPECT_EQ(state("saveMANUAL", {.inFront = CommandGroup::Season, .hasManual = true}).shortcut, "");
}

} // namespace
} // namespace hooptab
