#include "exchange/GameBuilder.h"
#include "exchange/GameReading.h"
#include "exchange/Reconciliation.h"
#include "foreign/ScoreFlow.h"
#include "insight/GameInsight.h"
#include "insight/MarginFlow.h"
#include "livedata/NbaLiveForms.h"
#include "livedata/NbaLiveReader.h"
#include "livedata/NbaLiveWriter.h"
#include "support/SharedGames.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace hooptab;

namespace {

const std::string kId(32, 'a');

std::filesystem::path realFolder() {
  return sharedFolder() / "exchange" / "nba-cdn";
}
Json realFile(const std::string& name) {
  return parseJson(bytesOf(realFolder() / (name + ".json")));
}
ForeignGame realGame(const std::string& id) {
  const Json box = realFile(id + "-boxscore");
  return readNbaLive(realFile(id + "-playbyplay"), &box);
}

ForeignGame writtenAndRead(const ForeignGame& game) {
  const Json box = parseJson(writeNbaLiveBox(game));
  return readNbaLive(parseJson(writeNbaLivePlays(game)), &box);
}

void expectReconciled(const ForeignGame& game, int atLeast) {
  int compared = 0;
  for (const Difference& difference : reconcile(game, buildGame(game, kId), &compared))
    ADD_FAILURE() << numberOf(difference.team) << ' ' << difference.player << ' ' << difference.counter
                  << ": " << difference.ours << " here, " << difference.theirs << " there";
  EXPECT_GE(compared, atLeast);
}

int teamOf(const Doer& doer) {
  return doer.team ? numberOf(*doer.team) : -1;
}
// One to a line, for comparison.
std::vector<std::string> wordsOf(const ForeignGame& game) {
  std::vector<std::string> words;
  for (const ForeignEvent& event : game.events) {
    std::ostringstream line;
    const EventKind* kind = kindOf(event.code);
    line << event.period << ' ' << event.centiseconds << ' ' << static_cast<int>(event.kind) << ' '
         << (kind == nullptr ? "" : kind->text) << (event.isMade ? "+" : "") << (event.isFastBreak ? "F" : "")
         << ' ' << teamOf(event.doer) << '-' << event.doer.player << ' ' << teamOf(event.other) << '-'
         << event.other.player << ' ' << event.detail << ' ' << event.freeThrows << ' ' << event.numberOfThrow
         << '/' << event.ofThrows << ' ' << (event.wonBy ? numberOf(*event.wonBy) : -1) << ' '
         << event.wallClock << " of " << event.belongsTo;
    if (event.place)
      line << " at " << static_cast<int>(event.place->first) << ',' << static_cast<int>(event.place->second);
    words.push_back(line.str());
  }
  return words;
}

void expectSame(const ForeignGame& game, const ForeignGame& other) {
  const std::vector<std::string> words = wordsOf(game);
  const std::vector<std::string> others = wordsOf(other);
  ASSERT_EQ(words.size(), others.size());
  for (std::size_t i = 0; i < words.size(); ++i)
    ASSERT_EQ(words[i], others[i]) << i;
  EXPECT_EQ(std::tie(game.id, game.date, game.place, game.referees, game.attendance, game.ruleSet,
                     game.periods, game.minutes, game.overtimeMinutes, game.isFinished,
                     game.threePointRadius),
            std::tie(other.id, other.date, other.place, other.referees, other.attendance, other.ruleSet,
                     other.periods, other.minutes, other.overtimeMinutes, other.isFinished,
                     other.threePointRadius));
  for (const Side team : kSides) {
    const ForeignTeam& one = game.teams[team];
    const ForeignTeam& two = other.teams[team];
    EXPECT_EQ(std::tie(one.id, one.name, one.abbreviation, one.pointsOfPeriod),
              std::tie(two.id, two.name, two.abbreviation, two.pointsOfPeriod));
    ASSERT_EQ(one.players.size(), two.players.size());
    for (std::size_t i = 0; i < one.players.size(); ++i) {
      const ForeignPlayer& a = one.players[i];
      const ForeignPlayer& b = two.players[i];
      EXPECT_EQ(std::tie(a.id, a.jersey, a.name, a.position, a.isStarter),
                std::tie(b.id, b.jersey, b.name, b.position, b.isStarter));
      for (const auto& [name, number] : a.official)
        EXPECT_EQ(number.value, b.official.at(name).value) << a.jersey << ' ' << name;
    }
  }
}

// A play-by-play of ANA (team 10, players 11..15) at BEA (team 20, players 21..25), of rows without the
// members that all have.
Json playsOf(const std::vector<std::string>& rows) {
  std::string text;
  for (std::size_t i = 0; i < rows.size(); ++i)
    text += (text.empty() ? "" : ",") + std::string("{\"period\": 1, \"actionNumber\": ") +
            std::to_string(i + 1) + ", \"orderNumber\": " + std::to_string(i + 1) + "0, " + rows[i] + "}";
  return parseJson(R"({"game": {"gameId": "7", "actions": [)" + text + "]}}");
}
std::string row(const std::string& clock, int team, int person, const std::string& type,
                const std::string& subType, const std::string& more = {}) {
  return R"("clock": "PT)" + clock + R"(S", "teamId": )" + std::to_string(team) + R"(, "teamTricode": ")" +
         (team == 10 ? "ANA" : "BEA") + R"(", "personId": )" + std::to_string(person) +
         R"(, "playerNameI": "P. )" + std::to_string(person) + R"(", "actionType": ")" + type +
         R"(", "subType": ")" + subType + '"' + (more.empty() ? "" : ", " + more);
}

std::optional<ExchangeNote> refusalOf(const Json& plays, const Json* box) {
  try {
    static_cast<void>(readNbaLive(plays, box));
  } catch (const UnreadableGame& unreadable) {
    return unreadable.why();
  }
  return std::nullopt;
}

// What goes out of the flow of a game is what its own pages say of it.
void expectTold(const Game& own, const Json& box) {
  const GameInsight insight = insightOf(own);
  const MarginFlow flow = marginFlowOf(own);
  for (const Side team : kSides) {
    const Json& statistics =
        member(member(member(box, "game"), team == Side::Visitor ? "awayTeam" : "homeTeam"), "statistics");
    const PointOrigins& origins = insight.origins[team];
    EXPECT_EQ(numberOf(statistics, "pointsInThePaint", -1), origins.paint);
    EXPECT_EQ(numberOf(statistics, "pointsFromTurnovers", -1), origins.fromTurnovers);
    EXPECT_EQ(numberOf(statistics, "pointsSecondChance", -1), origins.secondChance);
    EXPECT_EQ(numberOf(statistics, "benchPoints", -1), origins.bench.value_or(0));
    EXPECT_EQ(numberOf(statistics, "biggestLead", -1),
              flow.biggestLead[team] ? flow.biggestLead[team]->points : 0);
    EXPECT_EQ(numberOf(statistics, "leadChanges", -1), std::ssize(flow.leadChanges));
    EXPECT_EQ(numberOf(statistics, "timesTied", -1), flow.timesTied);
  }
}

class NbaLiveTruthTest : public testing::TestWithParam<std::string> {};

std::vector<std::string> realIds() {
  return sharedFolders("exchange/nba-cdn").empty() ? std::vector<std::string>()
                                                   : std::vector<std::string>{"0022500775", "0022500776"};
}

} // namespace

TEST_P(NbaLiveTruthTest, CountsWhatTheBoxScoreCounts) {
  const ForeignGame game = realGame(GetParam());
  expectReconciled(game, 520);
  EXPECT_TRUE(game.isFinished);
  EXPECT_EQ(game.date, "2026-02-11");
  EXPECT_EQ(game.unknown.at("heave"), 1);
  const Json box = realFile(GetParam() + "-boxscore");
  const ScoreFlow flow = scoreFlow(game);
  for (const Side team : kSides) {
    const Json& statistics =
        member(member(member(box, "game"), team == Side::Visitor ? "awayTeam" : "homeTeam"), "statistics");
    EXPECT_EQ(flow.teams[team].biggestLead, numberOf(statistics, "biggestLead", -1));
    EXPECT_EQ(flow.leadChanges, numberOf(statistics, "leadChanges", -1));
    EXPECT_EQ(flow.timesLevel, numberOf(statistics, "timesTied", -1));
  }
}

TEST_P(NbaLiveTruthTest, WritesWhatItReads) {
  const ForeignGame game = realGame(GetParam());
  const ForeignGame again = writtenAndRead(game);
  expectSame(game, again);
  expectReconciled(again, 520);
}

INSTANTIATE_TEST_SUITE_P(Real, NbaLiveTruthTest, testing::ValuesIn(realIds()));
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(NbaLiveTruthTest);

TEST_P(NbaLiveTruthTest, TellsTheSameWithoutTheBoxScore) {
  const ForeignGame whole = realGame(GetParam());
  const ForeignGame alone = readNbaLive(realFile(GetParam() + "-playbyplay"), nullptr);
  EXPECT_TRUE(alone.isFinished);
  EXPECT_EQ(alone.date, whole.date);
  ASSERT_EQ(alone.events.size(), whole.events.size());
  for (std::size_t i = 0; i < whole.events.size(); ++i) {
    const Doer& doer = whole.events[i].doer;
    const Doer& other = alone.events[i].doer;
    ASSERT_EQ(doer.team, other.team);
    if (doer.isPlayer()) {
      ASSERT_EQ(whole.teams[*doer.team].players[static_cast<std::size_t>(doer.player)].id,
                alone.teams[*doer.team].players[static_cast<std::size_t>(other.player)].id);
    }
  }
}

TEST(NbaLiveTest, ReadsAGameAtHalfTimeAsFarAsItWent) {
  if (realIds().empty())
    return;
  const ForeignGame half = readNbaLive(realFile("0022500775-halftime-playbyplay"), nullptr);
  EXPECT_FALSE(half.isFinished);
  const ScoreFlow flow = scoreFlow(half);
  const ForeignGame whole = realGame("0022500775");
  for (const Side team : kSides) {
    EXPECT_EQ(half.teams[team].id, whole.teams[team].id);
    EXPECT_EQ(flow.teams[team].pointsOfPeriod, (std::vector(whole.teams[team].pointsOfPeriod.begin(),
                                                            whole.teams[team].pointsOfPeriod.begin() + 2)));
  }
}

// Whatever of ours goes out comes back with all that the box score counts, but for +/- at free throws, which
// the league gives to other line-ups; and once more, it is the same.
TEST(NbaLiveTest, TakesOurOwnGamesThereAndBack) {
  for (const std::filesystem::path& path : realOrSampleGames()) {
    SCOPED_TRACE(path.filename());
    const ProfileText text(bytesOf(path));
    Game own;
    readGame(text, own);
    if (own.details.inputType != 0)
      continue;
    ForeignGame game = foreignGameOf({own, tallied(own)}, text);
    expectTold(own, parseJson(writeNbaLiveBox(game)));
    for (ForeignTeam& team : game.teams) {
      for (ForeignPlayer& player : team.players)
        player.official.erase("plusMinus");
    }
    const ForeignGame back = writtenAndRead(game);
    expectReconciled(back, 100);
    expectSame(back, writtenAndRead(back));
  }
}

TEST(NbaLiveTest, PutsChangesBehindTheLastThrowAtTheirClock) {
  const ForeignGame game = readNbaLive(
      playsOf({row("05M00.00", 20, 24, "substitution", "out"), row("05M00.00", 20, 25, "substitution", "in"),
               row("05M00.00", 20, 21, "foul", "personal",
                   R"("qualifiers": ["2freethrow"], "foulDrawnPersonId": 11, "descriptor": "shooting")"),
               row("05M00.00", 10, 11, "freethrow", "1 of 2", R"("shotResult": "Made", "scoreAway": "1")"),
               row("05M00.00", 20, 21, "substitution", "out"), row("05M00.00", 20, 22, "substitution", "in"),
               R"("orderNumber": 45, )" +
                   row("05M00.00", 10, 11, "freethrow", "2 of 2", R"("shotResult": "Missed")"),
               row("04M58.00", 20, 23, "rebound", "defensive", R"("shotActionNumber": 7)")}),
      nullptr);
  EXPECT_EQ(wordsOf(game),
            (std::vector<std::string>{
                "1 30000 2  1-0 -1--1  -1 0/0 -1 0 of -1", "1 30000 1  1-1 -1--1  -1 0/0 -1 0 of -1",
                "1 30000 0 SPF 1-2 0-0 S 2 0/0 -1 0 of -1", "1 30000 0 GFT+ 0-0 -1--1  -1 1/2 -1 0 of -1",
                "1 30000 0 GFT 0-0 -1--1  -1 2/2 -1 0 of -1", "1 30000 2  1-2 -1--1  -1 0/0 -1 0 of -1",
                "1 30000 1  1-3 -1--1  -1 0/0 -1 0 of -1", "1 29800 0 SDR 1-4 -1--1  -1 0/0 -1 0 of 4"}));
  EXPECT_EQ(game.teams[Side::Visitor].abbreviation, "ANA");
}

TEST(NbaLiveTest, GivesTechnicalFoulsToWhomTheyCount) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {row("05M00.00", 20, 21, "foul", "technical"), "STF 1-0 "},
      {row("05M00.00", 20, 21, "foul", "technical", R"("descriptor": "defensive-3-second")"), "XCF 1--1 B"},
      {row("05M00.00", 20, 0, "foul", "technical", R"("descriptor": "delay-technical")"), "XCF 1--1 B"},
      {row("05M00.00", 20, 99, "foul", "technical"), "XCF 1--1 C"},
  };
  for (const auto& [foul, expected] : cases) {
    const ForeignGame game = readNbaLive(playsOf({row("06M00.00", 10, 11, "violation", "kicked ball"),
                                                  row("06M00.00", 20, 21, "turnover", "traveling"),
                                                  row("06M00.00", 10, 0, "timeout", "challenge"), foul}),
                                         nullptr);
    const ForeignEvent& event = game.events.back();
    EXPECT_EQ(std::string(kindOf(event.code)->text) + ' ' + std::to_string(teamOf(event.doer)) + '-' +
                  std::to_string(event.doer.player) + ' ' + event.detail,
              expected);
    EXPECT_EQ(game.unknown,
              (std::map<std::string, int>{{"timeout challenge", 1}, {"violation kicked ball", 1}}));
    EXPECT_EQ(game.notes.front(), (ExchangeNote{Text::NbaLiveHomeUnknown, "BEA"}));
  }
}

TEST(NbaLiveTest, KeepsThePlaceOfEveryUnitOfTheCourt) {
  for (int x = 0; x <= 126; ++x) {
    for (int y = 0; y <= 200; ++y) {
      const auto [across, away] = nba_live::legacyOf({x, y});
      const auto [backX, backY] = nba_live::placeOf(across, away);
      ASSERT_EQ(std::pair(static_cast<int>(backX), static_cast<int>(backY)), std::pair(x, y));
    }
  }
  EXPECT_EQ(nba_live::placeOf(-260, 900), std::pair(126.0, 0.0)); // outside our court
}

TEST(NbaLiveTest, RefusesWhatIsNoGameAndSaysWhy) {
  const Json plays = playsOf({row("05M00.00", 20, 21, "turnover", "traveling")});
  const Json otherBox = parseJson(R"({"game": {"gameId": "8", "homeTeam": {}, "awayTeam": {}}})");
  const Json emptyBox = parseJson(R"({"game": {"gameId": "7", "homeTeam": {}, "awayTeam": {}}})");
  EXPECT_EQ(refusalOf(plays, nullptr), (ExchangeNote{Text::NbaLiveNoTeams}));
  EXPECT_EQ(refusalOf(plays, &emptyBox), (ExchangeNote{Text::NbaLiveNoTeams}));
  EXPECT_EQ(refusalOf(plays, &otherBox), (ExchangeNote{Text::NbaLiveTwoGames, "7", "8"}));
  EXPECT_EQ(refusalOf(playsOf({}), nullptr), (ExchangeNote{Text::NbaLiveNoPlays, "7"}));
  EXPECT_EQ(recogniseNbaLive(plays)->role, SourceRole::PlayByPlay);
  EXPECT_EQ(recogniseNbaLive(emptyBox)->role, SourceRole::Box);
  EXPECT_FALSE(recogniseNbaLive(parseJson(R"({"game": {"gameId": "7"}})")));
}
