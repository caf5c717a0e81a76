// Real games against their official box scores: every counter of every player, and seconds as far as the
// sources agree.
#include "storage/GameFile.h"
#include "storage/Tally.h"
#include "support/Json.h"
#include "support/SharedGames.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

using namespace hooptab;

namespace {

// What the official box says of one player, in our counters.
struct Official {
  const char* name;
  int (*ours)(const Counters&);
};

constexpr Official kOfficial[] = {
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

// Players whose official seconds contradict their own substitutions, as "EL2024-035 BAR 08".
std::map<std::string, int> knownDifferences() {
  std::map<std::string, int> differences;
  const Json known = Json::ofFile((sharedFolder() / "games" / "known_differences.json").string());
  for (const auto& [game, entry] : known.object()) {
    for (const Json& difference : entry["seconds_minus_official"].array()) {
      const std::string& text = difference.text();
      const auto at = text.rfind(' ');
      differences[game + " " + text.substr(0, at)] = std::atoi(text.c_str() + at + 1);
    }
  }
  return differences;
}

class Truth : public testing::TestWithParam<std::filesystem::path> {
 protected:
  void SetUp() override {
    cinifile store(m_files);
    GameFile file(store, GetParam().string());
    ASSERT_EQ(file.read(m_game), GameFileProblem::None);
    ASSERT_EQ(Tally::run(m_state, m_game.events, m_game.roster[0], m_game.roster[1]), std::nullopt);
    m_official = Json::ofFile(std::filesystem::path(GetParam()).replace_extension(".json").string());
  }

  FileSystem m_files;
  Game m_game;
  GameState m_state;
  Json m_official;
};

TEST_P(Truth, EveryCounterAgreesWithTheOfficialBox) {
  const auto differences = knownDifferences();
  for (std::size_t team = 0; team < 2; ++team) {
    const Json& box = m_official["teams"][team];
    EXPECT_EQ(m_state.points(static_cast<int>(team)), box["points"].integer());
    EXPECT_FALSE(m_state.players[team][0].counters.hasAny()) << "somebody counts as not in the roster";
    for (const Json& player : box["players"].array()) {
      const std::string who = box["abb"].text() + " " + player["jersey"].text();
      SCOPED_TRACE(who + " " + player["name"].text());
      const int entry = m_game.roster[team].entryOf(player["jersey"].text());
      ASSERT_GT(entry, 0);
      const PlayerEntry& ours = m_state.players[team][static_cast<std::size_t>(entry)];
      for (const Official& official : kOfficial)
        EXPECT_EQ(official.ours(ours.counters), player[official.name].integer()) << official.name;
      const int fouls = ours.counters[Counter::PF];
      const int technicals = ours.counters[Counter::TF];
      if (player.has("fouls_total")) {
        EXPECT_EQ(fouls + technicals, player["fouls_total"].integer());
      } else {
        EXPECT_EQ(fouls, player["pf"].integer());
      }

      const auto known = differences.find(m_official["game"].text() + " " + who);
      if (!player["seconds"].isNull()) {
        const int expected = known == differences.end() ? 0 : known->second;
        EXPECT_EQ(ours.seconds - player["seconds"].integer(), expected);
      } else {
        EXPECT_LE(std::abs(ours.seconds / 60.0 - player["minutes_rounded"].number()), 0.5 + 1.0 / 60);
      }
    }
  }
}

TEST_P(Truth, LinesPeriodsAndLeadAddUp) {
  int played = 0; // seconds of all periods, from the events themselves
  int length = 0;
  int period = 0;
  for (const GameEvent& event : m_game.events.events()) {
    if (event.period != period)
      length = event.clockSeconds;
    else
      played += length - event.clockSeconds;
    length = event.clockSeconds;
    period = event.period;
  }
  EXPECT_GE(played, m_game.details.periods * m_game.details.minutesPerPeriod * 60);
  EXPECT_EQ(m_state.lead.seconds[0] + m_state.lead.seconds[1] + m_state.lead.seconds[2], played);
  for (std::size_t team = 0; team < 2; ++team) {
    int ofPlayers = 0;
    int ofLines = 0;
    Counters players;
    Counters lines;
    for (const PlayerEntry& player : m_state.players[team]) {
      ofPlayers += player.seconds;
      for (std::size_t i = 0; i < kCounterCount; ++i)
        players.counts[i] = static_cast<std::int16_t>(players.counts[i] + player.counters.counts[i]);
    }
    for (const LineEntry& line : m_state.lines[team]) {
      ofLines += line.seconds;
      for (std::size_t i = 0; i < kCounterCount; ++i)
        lines.counts[i] = static_cast<std::int16_t>(lines.counts[i] + line.counters.counts[i]);
    }
    EXPECT_EQ(ofPlayers, played * 5);
    EXPECT_EQ(ofLines, played);
    EXPECT_EQ(players, lines);
  }

  if (!m_official.has("lineups")) // one source lists its five-man line-ups with their seconds
    return;
  for (const Json& lineup : m_official["lineups"].array()) {
    const std::string list = "IN-" + lineup["five"].text();
    const auto& known = m_state.lines[static_cast<std::size_t>(lineup["team"].integer())];
    const auto line = std::ranges::find(known, list, &LineEntry::list);
    ASSERT_NE(line, known.end()) << list;
    EXPECT_LE(std::abs(line->seconds - lineup["seconds"].integer()), 1) << list;
  }
}

INSTANTIATE_TEST_SUITE_P(RealGames, Truth, testing::ValuesIn(sharedGames()), [](const auto& game) {
  std::string name = game.param.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
});
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Truth);

TEST(RealGamesFolder, IsThere) {
  if (sharedGames().empty())
    GTEST_SKIP() << "the folder of real games is missing: " << sharedFolder();
  EXPECT_GE(sharedGames().size(), 10U);
}

} // namespace
