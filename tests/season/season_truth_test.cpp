// A season against truths that share no code with it: the sums of official box scores, and a simple, slow
// count of the event lines of a simulated season.
#include "catalogue/SeasonFolder.h"
#include "season/Leaders.h"
#include "simulator/SampleSeason.h"
#include "storage/codepage.h"
#include "support/Json.h"
#include "support/SharedGames.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

using namespace hooptab;

namespace {

// What the official boxes name, of one player over some games.
using Sums = std::map<std::string, int>;

Sums sumsOf(const SeasonRow& row) {
  const BoxNumbers& numbers = row.numbers;
  const auto& of = numbers.counters;
  return {
      {"games", row.games},
      {"fg2m", of[Counter::FGM] + of[Counter::LLM] + of[Counter::LRM] + of[Counter::PBM] + of[Counter::DKM]},
      {"fg2a", of[Counter::FGA] + of[Counter::LLA] + of[Counter::LRA] + of[Counter::PBA] + of[Counter::DKA]},
      {"fg3m", of[Counter::F3M]},
      {"fg3a", of[Counter::F3A]},
      {"ftm", of[Counter::FTM]},
      {"fta", of[Counter::FTA]},
      {"oreb", of[Counter::OR]},
      {"dreb", of[Counter::DR]},
      {"ast", of[Counter::Ast]},
      {"stl", of[Counter::ST]},
      {"blk", of[Counter::BS]},
      {"tov", of[Counter::TO]},
      {"pts", numbers.points()}};
}

// Whether the official box says that the player played or did anything.
bool played(const Json& player) {
  if (player.has("seconds") && !player["seconds"].isNull() && player["seconds"].integer() > 0)
    return true;
  if (player.has("minutes_rounded") && player["minutes_rounded"].number() > 0)
    return true;
  return std::ranges::any_of(sumsOf(SeasonRow()), [&](const auto& named) {
    return player.has(named.first) && player[named.first].integer() != 0;
  });
}

class OfficialSeason : public testing::TestWithParam<int> {};

// Every second, every third game, and all of them.
TEST_P(OfficialSeason, EveryPlayersCountersAreTheSumsOfTheOfficialBoxes) {
  const std::vector<std::filesystem::path> games = sharedGames();
  if (games.empty())
    GTEST_SKIP() << "the folder of real games is missing";
  TemporaryFolder folder;
  std::map<std::string, Sums> official; // by team, jersey and name
  int count = 0;
  for (std::size_t i = 0; i < games.size(); i += static_cast<std::size_t>(GetParam())) {
    std::filesystem::copy_file(games[i], folder.path(games[i].filename().string()));
    ++count;
    const Json box = Json::ofFile(std::filesystem::path(games[i]).replace_extension(".json").string());
    for (const Json& team : box["teams"].array()) {
      for (const Json& player : team["players"].array()) {
        if (!played(player))
          continue;
        Sums& sums = official[team["abb"].text() + "|" + player["jersey"].text()];
        ++sums["games"];
        for (const auto& [name, ours] : sumsOf(SeasonRow())) {
          if (name != "games")
            sums[name] += player[name].integer();
        }
      }
    }
  }
  FileSystem files;
  GameCatalogue catalogue(files);
  ScanWatch watch;
  ASSERT_EQ(catalogue.scan({folder.path()}, watch), ScanOutcome::Done);
  ASSERT_EQ(std::ssize(catalogue.games()), count);
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  std::map<std::string, Sums> ours;
  for (const SeasonRow& row : statistics.players()) {
    Sums& sums = ours[catalogue.teams()[row.team].abbreviation + "|" + row.number];
    for (const auto& [name, value] : sumsOf(row))
      sums[name] += value; // two players of one jersey are one in this comparison
  }
  EXPECT_GT(ours.size(), 50U);
  for (const auto& [who, sums] : official)
    EXPECT_EQ(ours[who], sums) << who;
  EXPECT_EQ(ours.size(), official.size());
}
INSTANTIATE_TEST_SUITE_P(RealGames, OfficialSeason, testing::Values(1, 2, 3));

// ---- The independent count: text only, no class of the program. ----

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
int secondsOf(const std::string& clock) {
  return std::stoi(clock.substr(0, 2)) * 60 + std::stoi(clock.substr(3));
}

struct Plain {
  std::map<std::string, int> counts; // by event code
  int seconds = 0;
  int games = 0;
};
struct PlainSeason {
  std::map<std::string, Plain> players, lines;

  void add(const std::string& file) {
    std::map<std::string, std::map<std::string, std::string>> rosters;
    std::map<std::string, std::string> details;
    std::set<std::string> playersHere, linesHere;
    std::string section, period;
    std::set<std::string> onCourt[2];
    int since = 0;
    for (std::string line : split(file, '\n')) {
      while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.pop_back();
      if (line.empty())
        continue;
      if (line[0] == '[') {
        section = line.substr(1, line.size() - 2);
        continue;
      }
      const std::string key = line.substr(0, line.find('='));
      const std::string value = line.substr(line.find('=') + 1);
      if (section == "DETAILS")
        details[key] = value;
      else if (section == "0" || section == "1")
        rosters[section][key] = value.substr(value.find(',') + 1);
      else
        event(value, section, details, rosters, onCourt, period, since, playersHere, linesHere);
    }
    for (const std::string& player : playersHere)
      ++players[player].games;
    for (const std::string& line : linesHere)
      ++lines[line].games;
  }

 private:
  using Texts = std::map<std::string, std::string>;
  static std::string teamOf(const Texts& details, const std::string& side) {
    return details.at("EQUIPE" + side + "ABB") + "-" + details.at("EQUIPE" + side + "CAT");
  }
  static std::string lineOf(const std::set<std::string>& jerseys) {
    std::set<int> numbers;
    for (const std::string& jersey : jerseys)
      numbers.insert(std::stoi(jersey));
    std::string name;
    for (const int number : numbers)
      name += (name.empty() ? "" : "-") + std::to_string(number);
    return name;
  }
  void event(const std::string& value, const std::string& section, const Texts& details,
             std::map<std::string, Texts>& rosters, std::set<std::string> (&onCourt)[2], std::string& period,
             int& since, std::set<std::string>& playersHere, std::set<std::string>& linesHere) {
    if (value[0] == 'E')
      return;
    const std::vector<std::string> fields = split(value, ',');
    const int clock = secondsOf(fields[0]);
    if (section != period)
      since = clock;
    period = section;
    const auto playerKey = [&](const std::string& side, const std::string& jersey) {
      return teamOf(details, side) + "|" + jersey + "|" + rosters[side].at(jersey);
    };
    if (fields[1] == "ARRET") {
      for (int side = 0; side < 2; ++side) {
        const std::string sideText = std::to_string(side);
        if (!onCourt[side].empty()) {
          const std::string line = teamOf(details, sideText) + "|" + lineOf(onCourt[side]);
          lines[line].seconds += since - clock;
          if (since > clock)
            linesHere.insert(line);
        }
        for (const std::string& jersey : onCourt[side])
          players[playerKey(sideText, jersey)].seconds += since - clock;
        onCourt[side].clear();
        for (const std::string& listed : split(fields[static_cast<std::size_t>(side) + 2], '-')) {
          for (const auto& [jersey, name] : rosters[sideText]) {
            if (listed != "IN" && !listed.empty() && std::stoi(listed) == std::stoi(jersey)) {
              onCourt[side].insert(jersey);
              playersHere.insert(playerKey(sideText, jersey));
            }
          }
        }
      }
      since = clock;
    } else if (fields[1] != "DEPART") {
      const std::string side = fields[2].substr(0, 1);
      const std::string player = playerKey(side, fields[2].substr(2));
      ++players[player].counts[fields[1]];
      playersHere.insert(player);
      if (const auto& five = onCourt[side == "1" ? 1 : 0]; !five.empty()) {
        const std::string line = teamOf(details, side) + "|" + lineOf(five);
        ++lines[line].counts[fields[1]];
        linesHere.insert(line);
      }
    }
  }
};

// Every counted column of a row, from the plain counts.
void expectEqual(const SeasonRow& row, Plain plain, const std::string& who) {
  SCOPED_TRACE(who);
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

// Nothing here has to outlast a power cut.
class UnsyncedFileSystem : public FileSystem {
 public:
  int sync(int) override { return 0; }
};

TEST(SimulatedSeason, TablesAgreeWithASlowCountOfTheEventLines) {
  constexpr int kGames = 200;
  const SampleSeason simulated(kGames, 99);
  TemporaryFolder folder;
  UnsyncedFileSystem files;
  cinifile store(files);
  PlainSeason plain;
  for (int i = 0; i < kGames; ++i) {
    const std::string name = std::to_string(i) + ".GAM";
    store.Path(folder.path(name));
    ASSERT_TRUE(store.write(simulated.game(i).batch()));
    plain.add(folder.read(name));
  }
  GameCatalogue catalogue(files);
  ScanWatch watch;
  ASSERT_EQ(catalogue.scan({folder.path()}, watch), ScanOutcome::Done);
  ASSERT_EQ(std::ssize(catalogue.games()), kGames);
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});

  EXPECT_EQ(statistics.players().size(), plain.players.size());
  for (const SeasonRow& row : statistics.players()) {
    const std::string who =
        codepage::fromUtf8(catalogue.teams()[row.team].key + "|" + row.number + "|" + row.name);
    ASSERT_TRUE(plain.players.contains(who)) << who;
    expectEqual(row, plain.players[who], who);
  }
  std::erase_if(plain.lines, [](const auto& line) { return line.second.games == 0; });
  EXPECT_EQ(statistics.lines().size(), plain.lines.size());
  for (const SeasonRow& row : statistics.lines()) {
    const std::string who = catalogue.teams()[row.team].key + "|" + row.name;
    ASSERT_TRUE(plain.lines.contains(who)) << who;
    expectEqual(row, plain.lines[who], who);
  }

  // The same on one thread and on four: chance decides nothing.
  for (const unsigned threads : {1U, 4U}) {
    GameCatalogue other(files);
    ASSERT_EQ(other.scan({folder.path(), false, threads}, watch), ScanOutcome::Done);
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
