// The official box score of a real game, held against ours.
#pragma once

#include "game/GameFile.h"
#include "game/GameState.h"
#include "game/Side.h"
#include "support/Json.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace hooptab {

class OfficialBox {
 public:
  // What boxes name of each player, and how we count it.
  struct Count {
    const char* name;
    int (*ours)(const Counters&);
  };
  static constexpr Count kCounts[] = {
      {"fg2m",
       [](const Counters& c) {
         return c[Counter::FGM] + c[Counter::LLM] + c[Counter::LRM] + c[Counter::PBM] + c[Counter::DKM];
       }},
      {"fg2a",
       [](const Counters& c) {
         return c[Counter::FGA] + c[Counter::LLA] + c[Counter::LRA] + c[Counter::PBA] + c[Counter::DKA];
       }},
      {"fg3m", [](const Counters& c) { return int{c[Counter::F3M]}; }},
      {"fg3a", [](const Counters& c) { return int{c[Counter::F3A]}; }},
      {"ftm", [](const Counters& c) { return int{c[Counter::FTM]}; }},
      {"fta", [](const Counters& c) { return int{c[Counter::FTA]}; }},
      {"oreb", [](const Counters& c) { return int{c[Counter::OR]}; }},
      {"dreb", [](const Counters& c) { return int{c[Counter::DR]}; }},
      {"ast", [](const Counters& c) { return int{c[Counter::Ast]}; }},
      {"stl", [](const Counters& c) { return int{c[Counter::ST]}; }},
      {"blk", [](const Counters& c) { return int{c[Counter::BS]}; }},
      {"tov", [](const Counters& c) { return int{c[Counter::TO]}; }},
      {"pts", [](const Counters& c) { return pointsOf(c); }},
  };

  // Beside the game stand its box and, for the folder, the players whose official seconds contradict their
  // own substitutions, as "BAR 08 -60".
  explicit OfficialBox(const std::filesystem::path& game)
      : m_box(Json::ofFile(std::filesystem::path(game).replace_extension(".json").string())) {
    const Json known = Json::ofFile((game.parent_path() / "known_differences.json").string());
    const std::string name = m_box["game"].text();
    if (!known.has(name))
      return;
    for (const Json& difference : known[name]["seconds_minus_official"].array()) {
      const std::string& text = difference.text();
      const auto at = text.rfind(' ');
      m_known[text.substr(0, at)] = std::atoi(text.c_str() + at + 1);
    }
  }

  // Every difference in words; none when all counters, points and seconds agree.
  [[nodiscard]] std::vector<std::string> differences(const Game& game, const GameState& state) const {
    std::vector<std::string> lines;
    const auto compare = [&](const std::string& what, int ours, int official) {
      std::ostringstream line;
      line << what << ": " << ours << ", officially " << official;
      if (ours != official)
        lines.push_back(line.str());
    };
    for (const Side team : kSides) {
      const Json& box = m_box["teams"][static_cast<std::size_t>(numberOf(team))];
      compare(box["abb"].text() + " points", state.points(team), box["points"].integer());
      if (state.players[team][0].counters.hasAny())
        lines.push_back(box["abb"].text() + ": somebody counts as not in the roster");
      for (const Json& player : box["players"].array()) {
        const std::string who = box["abb"].text() + " " + player["jersey"].text();
        const int entry = game.roster[team].entryOf(player["jersey"].text());
        if (entry == 0) {
          lines.push_back(who + " is not in the roster");
          continue;
        }
        const PlayerEntry& ours = state.players[team][static_cast<std::size_t>(entry)];
        const Counters& c = ours.counters;
        for (const Count& count : kCounts)
          compare(who + ' ' + count.name, count.ours(c), player[count.name].integer());
        if (player.has("fouls_total"))
          compare(who + " fouls", c[Counter::PF] + c[Counter::TF], player["fouls_total"].integer());
        else
          compare(who + " pf", c[Counter::PF], player["pf"].integer());
        if (!player["seconds"].isNull()) {
          const auto known = m_known.find(who);
          compare(who + " seconds", ours.seconds - (known == m_known.end() ? 0 : known->second),
                  player["seconds"].integer());
        } else if (std::abs(ours.seconds / 60.0 - player["minutes_rounded"].number()) > 0.5 + 1.0 / 60) {
          lines.push_back(who + " minutes");
        }
      }
    }
    compareLines(state, lines);
    return lines;
  }

 private:
  // One source lists its five-man lines with their seconds, which it has with tenths.
  void compareLines(const GameState& state, std::vector<std::string>& lines) const {
    if (!m_box.has("lineups"))
      return;
    for (const Json& lineup : m_box["lineups"].array()) {
      const std::string list = "IN-" + lineup["five"].text();
      const auto& ours = state.lines[*sideOf(lineup["team"].integer())];
      const auto line = std::ranges::find(ours, list, &LineEntry::list);
      if (line == ours.end() || std::abs(line->seconds - lineup["seconds"].integer()) > 1)
        lines.push_back("line " + list);
    }
  }

  Json m_box;
  std::map<std::string, int> m_known;
};

} // namespace hooptab
