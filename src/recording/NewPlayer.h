// A player who is added to a team while its game is recorded: whether that can be, and why not. Changes
// nothing; the live game adds him.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "settings/Texts.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

struct NewPlayer {
  enum class Problem : std::uint8_t {
    None,
    CannotRecord, // the game is finished, or open for reading alone
    NoNumber,     // one to three digits are a number
    NumberTaken,  // also where it is written otherwise: 5 and 05
    RosterFull,   // fifteen
    NameTooLong,  // for a value of the file
  };
  Problem problem = Problem::None;
  Side team = Side::Visitor;
  int entry = 0;            // that he has; 0 with a problem
  std::string jersey = {};  // as given
  std::string wearer = {};  // NumberTaken: "5 Ann Able"
  RosterPlayer player = {}; // as the file will have him

  [[nodiscard]] bool isAdded() const { return problem == Problem::None; }
  // That he has been added, or why not.
  [[nodiscard]] std::string words(const Game& game, const Texts& texts) const;

  // Whether such a player could be added to a game that can be recorded.
  [[nodiscard]] static NewPlayer of(const Game& game, Side team, std::string_view jersey,
                                    std::string_view name);
};

} // namespace hooptab
