// How a game is shared on the network, as somebody has chosen it; what is remembered of that; and what is
// offered first where minors play.
#pragma once

#include "feed/FeedGame.h"
#include "game/GameDetails.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

struct ShareChoice {
  static constexpr int kMostDelay = 120; // seconds

  std::string address = "127.0.0.1"; // of this machine, in figures
  std::uint16_t port = 8310;
  std::string passPhrase; // of the bench; never remembered
  FeedOptions feed;
  friend bool operator==(const ShareChoice&, const ShareChoice&) = default;
};

// Without pass phrase and names, as one text; what cannot be read of it is as at first.
[[nodiscard]] std::string shareChoiceText(const ShareChoice& choice);
[[nodiscard]] ShareChoice readShareChoice(std::string_view text);

// "full", "initial" or "number"; whole names for any other text.
[[nodiscard]] std::string_view nameFormKey(NameForm form);
[[nodiscard]] NameForm readNameForm(std::string_view key);

// Whether a game's rules or a team's category say that its players are under age: rules for young people, an
// age below 18 in a category ("U16", "M14", "16U"), or the name of such an age group in French.
[[nodiscard]] bool areMinors(const GameDetails& details);
// What is offered: what was chosen for these categories before (empty: nothing), else numbers alone for
// minors.
[[nodiscard]] NameForm offeredNames(std::string_view chosen, const GameDetails& details);
// Both teams' categories, which names are remembered by; empty where there are none.
[[nodiscard]] std::string categoriesOf(const GameDetails& details);

} // namespace hooptab
