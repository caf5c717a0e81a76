// What a file of another system is, told by its content: of which format, and which part of its game.
#pragma once

#include "foreign/ForeignGame.h"

#include <cstdint>
#include <set>
#include <string>

namespace hooptab {

enum class SourceRole : std::uint8_t {
  Whole, // all of a game in one file
  PlayByPlay,
  Box,
  Points, // the shots with their places
};

struct SourcePart {
  GameFormat format = GameFormat::LiveStats;
  SourceRole role = SourceRole::Whole;
  // What all files of one game say alike: the game's id, or else both teams ("IST/OLY", the home team first).
  std::string game = {};
  // Where that is no id: the ids of the players named, by which two games of the same teams are told apart.
  std::set<std::string> players = {};
};

} // namespace hooptab
