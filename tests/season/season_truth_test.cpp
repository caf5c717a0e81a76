// A season against truths that share no code with it: the sums of official box scores, and a simple, slow
// count of the event lines.
#include "catalogue/SeasonFolder.h"
#include "season/Leaders.h"
#include "simulator/SampleSeason.h"
#include "storage/codepage.h"
#include "support/FaultyFileSystem.h"
#include "support/OfficialBox.h"
#include "support/SharedGames.h"

#include <gtest/gtest.h>
#include <set>

using namespace hooptab;

namespace {

class OfficialSeason : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(OfficialSeason, EveryPlayersCountersAreTheSumsOfTheOfficialBoxes) {
  ASSERT_GE(sharedGames().size(), 10U) << GetParam();
  TemporaryFolder folder;
  std::map<std::string, std::map<std::string, int>> official, ours; // by team and jersey
  for (const auto& game : sharedGames()) {
    std::filesystem::copy_file(game, folder.path(game.filename().string()));
    const Json box = Json::ofFile(std::filesystem::path(game).replace_extension(".json").string());
    for (const Json& team : box["teams"].array()) {
      for (const Json& player : team["players"].array()) {
        bool hasPlayed = player["seconds"].isNull() ? player["minutes_rounded"].number() > 0
                                                    : player["seconds"].integer() > 0;
        for (const auto& count : OfficialBox::kCounts)
          hasPlayed = hasPlayed || player[count.name].integer() != 0;
        if (!hasPlayed)
          continue;
        auto& sums = official[team["abb"].text() + "|" + player["jersey"].text()];
        ++sums["games"];
        for (const auto& count : OfficialBox::kCounts)
          sums[count.name] += player[count.name].integer();
      }
    }
  }
  FileSystem files;
  GameCatalogue catalogue(files);
  ASSERT_EQ(catalogue.scan({folder.path()}), ScanOutcome::Done);
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  for (const SeasonRow& row : statistics.players()) {
    auto& sums = ours[catalogue.teams()[row.team].abbreviation + "|" + row.number];
    sums["games"] += row.games; // two players of one jersey are one in this comparison
    Counters counters;          // those of a few games fit in a single game's
    std::ranges::transform(row.numbers.counters.counts, counters.counts.begin(),
                           [](int count) { return static_cast<std::int16_t>(count); });
    for (const auto& count : OfficialBox::kCounts)
      sums[count.name] += count.ours(counters);
  }
  EXPECT_GT(ours.size(), 50U);
  EXPECT_EQ(ours, official);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(OfficialSeason);
INSTANTIATE_TEST_SUITE_P(RealGames, OfficialSeason, testing::ValuesIn(sharedFolders("games")));

// The independent count: text only, no class of the program.
std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char letter : text) {
    if (letter == separator)
      parts.emplace_back();
    else
      parts.back() += letter;
  }
  return parts;
}
struct Plain {
  std::map<std::string, int> counts; // by event code
  int seconds = 0;
  int games = 0;
};
struct PlainSeason {
  std::map<std::string, Plain> players, lines;

  void add(const std::string& file) {
    std::map<std::string, std::map<std::string, std::string>> sections; // of details and rosters
    std::set<std::string> playersHere, linesHere, onCourt[2];
    std::string section, period;
    int since = 0;
    const auto teamOf = [&](const std::string& side) {
      const auto& details = sections["DETAILS"];
      return details.at("EQUIPE" + side + "ABB") + "-" + details.at("EQUIPE" + side + "CAT") + "|";
    };
    const auto playerOf = [&](const std::string& side, const std::string& jersey) {
      const std::string& listed = sections[side].at(jersey);
      return teamOf(side) + jersey + "|" + listed.substr(listed.find(',') + 1);
    };
    const auto lineOf = [&](int side) {
      std::set<int> numbers;
      for (const std::string& jersey : onCourt[side])
        numbers.insert(std::stoi(jersey));
      std::string name;
      for (const int number : numbers)
        name += (name.empty() ? "" : "-") + std::to_string(number);
      return teamOf(std::to_string(side)) + name;
    };
    for (std::string text : split(file, '\n')) {
      text.erase(text.find_last_not_of("\r ") + 1);
      if (text.empty())
        continue;
      if (text[0] == '[') {
        section = text.substr(1, text.size() - 2);
        continue;
      }
      const std::string value = text.substr(text.find('=') + 1);
      if (section == "DETAILS" || section == "0" || section == "1") {
        sections[section][text.substr(0, text.find('='))] = value;
        continue;
      }
      if (value[0] == 'E')
        continue;
      const std::vector<std::string> fields = split(value, ',');
      const int clock = std::stoi(fields[0].substr(0, 2)) * 60 + std::stoi(fields[0].substr(3));
      if (std::exchange(period, section) != section)
        since = clock;
      if (fields[1] == "ARRET") {
        for (int side = 0; side < 2; ++side) {
          const std::string sideText = std::to_string(side);
          if (!onCourt[side].empty()) {
            lines[lineOf(side)].seconds += since - clock;
            if (since > clock)
              linesHere.insert(lineOf(side));
          }
          for (const std::string& jersey : onCourt[side])
            players[playerOf(sideText, jersey)].seconds += since - clock;
          onCourt[side].clear();
          for (const std::string& listed : split(fields[static_cast<std::size_t>(side) + 2], '-')) {
            for (const auto& [jersey, name] : sections[sideText]) {
              if (listed != "IN" && !listed.empty() && std::stoi(listed) == std::stoi(jersey)) {
                onCourt[side].insert(jersey);
                playersHere.insert(playerOf(sideText, jersey));
              }
            }
          }
        }
        since = clock;
      } else if (fields[1] != "DEPART") {
        const int side = fields[2][0] - '0';
        const std::string player = playerOf(fields[2].substr(0, 1), fields[2].substr(2));
        ++players[player].counts[fields[1]];
        playersHere.insert(player);
        if (!onCourt[side].empty()) {
          ++lines[lineOf(side)].counts[fields[1]];
          linesHere.insert(lineOf(side));
        }
      }
    }
    for (const std::string& player : playersHere)
      ++players[player].games;
    for (const std::string& line : linesHere)
      ++lines[line].games;
  }
};

// Every counted column of a row, from the plain counts.
void expectEqual(const SeasonRow& row, std::map<std::string, Plain>& all, const std::string& who) {
  SCOPED_TRACE(who);
  ASSERT_TRUE(all.contains(who));
  Plain plain = all[who];
  static const Texts texts; // thousands of rows are compared
  auto& of = plain.counts;
  std::map<std::string, int> expected = {{"PF", of["SPF"]}, {"TF", of["STF"]}, {"Ast", of["SA"]},
                                         {"BS", of["SBS"]}, {"ST", of["SST"]}, {"TO", of["STO"]},
                                         {"OR", of["SOR"]}, {"DR", of["SDR"]}, {"TR", of["SOR"] + of["SDR"]},
                                         {"U1", of["SU1"]}, {"U2", of["SU2"]}, {"PTS", 0},
                                         {"TGM", 0},        {"TGA", 0},        {"G", plain.games}};
  const std::map<std::string, std::pair<std::string, int>> kinds = {
      {"F2", {"GFG", 2}}, {"F3", {"GF3", 3}}, {"FT", {"GFT", 1}}, {"LL", {"GLG", 2}},
      {"LR", {"GLD", 2}}, {"PB", {"GPB", 2}}, {"DK", {"GDK", 2}}};
  for (const auto& [name, kind] : kinds) {
    expected[name + "M"] = of[kind.first];
    expected[name + "A"] = of[kind.first] + of[kind.first + "A"];
    expected[name + "PTS"] = of[kind.first] * kind.second;
    expected["PTS"] += of[kind.first] * kind.second;
    expected["TGM"] += of[kind.first];
    expected["TGA"] += of[kind.first] + of[kind.first + "A"];
  }
  expected["FGM"] = of["GFG"] + of["GF3"];
  expected["FGA"] = expected["F2A"] + expected["F3A"];
  expected["FGPTS"] = expected["F2PTS"] + expected["F3PTS"];
  expected["rating"] = expected["PTS"] + expected["TR"] + of["SA"] + of["SST"] + of["SBS"] -
                       (expected["TGA"] - expected["TGM"] + of["STO"]);
  EXPECT_EQ(row.numbers.seconds, plain.seconds);
  const auto shown = [&](const std::string& name, SeasonView view) {
    return seasonCell(row, seasonColumn(name).index, view, texts);
  };
  for (const auto& [name, value] : expected) {
    EXPECT_EQ(shown(name, SeasonView::Totals), std::to_string(value)) << name;
    if (name == "G")
      continue;
    EXPECT_NEAR(std::stod(shown(name, SeasonView::PerGame)), 1.0 * value / plain.games, 0.0501) << name;
    if (plain.seconds > 0) {
      EXPECT_NEAR(std::stod(shown(name, SeasonView::PerMinute)), 60.0 * value / plain.seconds, 0.00501)
          << name;
    }
  }
  for (const char* kind : {"F2", "F3", "FT", "FG", "LL", "LR", "PB", "DK"}) {
    const int attempts = expected[std::string(kind) + "A"];
    const double percent = attempts == 0 ? 0 : 100.0 * expected[std::string(kind) + "M"] / attempts;
    EXPECT_NEAR(std::stod(shown(std::string(kind) + "%", SeasonView::Totals)), percent, 0.0501) << kind;
  }
}

TEST(SimulatedSeason, TablesAgreeWithASlowCountOfTheEventLines) {
  constexpr int kGames = 200;
  const SampleSeason simulated(kGames, 99);
  TemporaryFolder folder;
  FileSystem files;
  FaultyFileSystem disk;
  disk.syncs = false;
  ProfileStore store(disk);
  PlainSeason plain;
  for (int i = 0; i < kGames; ++i) {
    const std::string name = std::to_string(i) + ".GAM";
    ASSERT_TRUE(store.write(folder.path(name), simulated.game(i).batch()).isOnDisk());
    plain.add(folder.read(name));
  }
  GameCatalogue catalogue(files);
  ASSERT_EQ(catalogue.scan({folder.path()}), ScanOutcome::Done);
  ASSERT_EQ(std::ssize(catalogue.games()), kGames);
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  EXPECT_EQ(statistics.players().size(), plain.players.size());
  for (const SeasonRow& row : statistics.players()) {
    const std::string who =
        codepage::fromUtf8(catalogue.teams()[row.team].key + "|" + row.number + "|" + row.name);
    expectEqual(row, plain.players, who);
  }
  std::erase_if(plain.lines, [](const auto& line) { return line.second.games == 0; });
  EXPECT_EQ(statistics.lines().size(), plain.lines.size());
  for (const SeasonRow& row : statistics.lines())
    expectEqual(row, plain.lines, catalogue.teams()[row.team].key + "|" + row.name);
  // The same on one thread and on four: chance decides nothing.
  for (const unsigned threads : {1U, 4U}) {
    GameCatalogue other(files);
    ASSERT_EQ(other.scan({folder.path(), false, threads}), ScanOutcome::Done);
    ASSERT_EQ(other.games().size(), catalogue.games().size());
    for (std::size_t i = 0; i < other.games().size(); ++i) {
      EXPECT_EQ(other.games()[i].path, catalogue.games()[i].path);
      ASSERT_EQ(other.games()[i].lines.size(), catalogue.games()[i].lines.size());
      for (std::size_t row = 0; row < other.games()[i].lines.size(); ++row)
        ASSERT_EQ(other.games()[i].lines[row].id, catalogue.games()[i].lines[row].id);
    }
    EXPECT_TRUE(std::ranges::equal(other.players(), catalogue.players(), {}, &SeasonPlayer::name,
                                   &SeasonPlayer::name));
  }
}

} // namespace
