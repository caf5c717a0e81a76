#include "feed/SeasonJson.h"

#include "feed/NumbersJson.h"
#include "insight/Rates.h"
#include "season/GameColumns.h"
#include "season/Leaders.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <cmath>

namespace hooptab {

namespace {

constexpr int kResultColumn = 3;

class SeasonJson {
 public:
  SeasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team, const Qualification& minimum,
             const std::optional<PublicSeason>& isPublic)
      : m_statistics(statistics), m_catalogue(statistics.catalogue()), m_team(team), m_minimum(minimum),
        m_public(isPublic) {}

  std::string text() && {
    m_json.beginObject();
    writeMinimum();
    writeGames();
    writeSkipped();
    m_json.name("players");
    m_json.beginArray();
    for (const SeasonRow& row : m_statistics.players())
      writePlayer(row);
    m_json.endArray();
    if (!m_public) {
      m_json.name("lines");
      m_json.beginArray();
      for (const SeasonRow& row : m_statistics.lines())
        writeLine(row);
      m_json.endArray();
    }
    writeLeaders();
    writeTeams();
    m_json.endObject();
    return m_json.text();
  }

 private:
  void writeMinimum() {
    m_json.name("minimum");
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("gamesPercent", m_minimum.gamesPercent);
    m_json.member("minutesPerTeamGame", m_minimum.minutes);
    m_json.member("attemptsPerTeamGame", m_minimum.attempts);
    m_json.endObject();
    m_json.endLine();
  }
  void writeGames() {
    m_json.name("games");
    m_json.beginArray();
    for (const std::size_t index : m_statistics.games()) {
      const ListedGame& game = m_catalogue.games()[index];
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("file", fileOf(game.path));
      m_json.member("date", game.date);
      m_json.member("type", game.type);
      m_json.member("visitor", m_catalogue.teams()[game.team[Side::Visitor]].key);
      m_json.member("visitorPoints", game.points[Side::Visitor]);
      m_json.member("home", m_catalogue.teams()[game.team[Side::Home]].key);
      m_json.member("homePoints", game.points[Side::Home]);
      m_json.member("result", resultOf(game));
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }
  [[nodiscard]] std::string fileOf(const std::string& path) const {
    return m_public ? path.substr(path.rfind('/') + 1) : path;
  }
  [[nodiscard]] std::string nameOf(const SeasonRow& row) const {
    return m_public ? toldName(row.name, m_public->names) : row.name;
  }
  // Without a team, the winner's abbreviation.
  std::string resultOf(const ListedGame& game) const {
    if (const std::optional<Side> winner = game.winner(); winner && !m_team)
      return m_catalogue.teams()[game.team[*winner]].abbreviation;
    return gameCell(m_catalogue, game, kResultColumn, m_team, m_english);
  }
  void writeSkipped() {
    m_json.name("skipped");
    m_json.beginArray();
    for (const SkippedFile& skipped : m_catalogue.skipped()) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("file", fileOf(skipped.path));
      m_json.member("reason", skipReasonInEnglish(skipped.reason));
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }
  void writePlayer(const SeasonRow& row) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("team", m_catalogue.teams()[row.team].key);
    m_json.member("number", row.number);
    m_json.member("name", nameOf(row));
    m_json.member("position", positionText(row.positions.back(), m_english));
    writeSums(row, SeasonTable::Players);
    m_json.endObject();
    m_json.endLine();
  }
  void writeLine(const SeasonRow& row) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("team", m_catalogue.teams()[row.team].key);
    m_json.member("line", m_catalogue.lines()[row.id].list);
    m_json.member("players", row.players);
    writeSums(row, SeasonTable::Lines);
    m_json.endObject();
    m_json.endLine();
  }
  void writeSums(const SeasonRow& row, SeasonTable table) {
    m_json.member("games", row.games);
    writeNumbers(m_json, row.numbers);
    writeSeasonNumbers(m_json, row.numbers);
    m_json.member("rank", row.rank);
    for (const SeasonView view : {SeasonView::PerGame, SeasonView::PerMinute, SeasonView::PerForty})
      writeAverages(row, table, view);
    m_json.name("plusMinus");
    if (const std::optional<int> plusMinus = row.plusMinus())
      m_json.value(*plusMinus);
    else
      m_json.null(); // no game tells who was on court
  }
  void writeAverages(const SeasonRow& row, SeasonTable table, SeasonView view) {
    m_json.name(seasonViewName(view));
    m_json.beginObject();
    m_json.member("underMinimum", m_minimum.isUnder(row, table, view));
    for (const Statistic& statistic : statistics())
      m_json.member(statistic.name, seasonCell(row, statistic.seasonColumn, view, m_english));
    m_json.endObject();
  }
  void writeLeaders() {
    m_json.name("leaders");
    m_json.beginObject();
    for (const SeasonView view : kSeasonViews) {
      m_json.name(seasonViewName(view));
      m_json.beginObject();
      const Leaders leaders(m_statistics.players(), view, m_english, m_minimum);
      for (const StatisticLeaders& statistic : leaders.statistics()) {
        m_json.name(seasonColumn(statistic.column).name);
        m_json.beginArray();
        for (const Leader& leader : statistic.leaders)
          writeLeader(leader);
        m_json.endArray();
      }
      m_json.endObject();
    }
    m_json.endObject();
  }
  void writeTeams() {
    m_json.name("teams");
    m_json.beginArray();
    for (const SeasonTeamRow& row : m_statistics.teams())
      writeTeam(row);
    m_json.endArray();
  }
  void writeTeam(const SeasonTeamRow& row) {
    constexpr int kTenths = 10;
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("team", m_catalogue.teams()[row.team].key);
    m_json.member("games", row.games);
    m_json.member("wins", row.wins);
    m_json.member("losses", row.losses);
    m_json.member("ties", row.ties);
    m_json.member("points", row.pointsFor);
    m_json.member("pointsAgainst", row.pointsAgainst);
    m_json.name("possessions");
    m_json.beginObject();
    m_json.member("counted", row.counted.possessions[kOwnSide]); // in the games from events
    m_json.member("estimated",
                  Module1::quotientText(static_cast<int>(std::lround(kTenths * row.estimatedPossessions())),
                                        kTenths, 1));
    m_json.endObject();
    for (const std::string_view name : {"offRating", "defRating", "netRating", "pace"}) {
      const Rate& rate = rateNamed(name);
      m_json.member(name, rateText(rate, rate.value(RateBasis::ofAll(kOwnSide, row.counted))));
    }
    m_json.endObject();
    m_json.endLine();
  }
  void writeLeader(const Leader& leader) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("rank", leader.rank);
    m_json.member("team", m_catalogue.teams()[leader.row->team].key);
    m_json.member("number", leader.row->number);
    m_json.member("name", nameOf(*leader.row));
    m_json.member("value", leader.value);
    m_json.endObject();
    m_json.endLine();
  }

  const SeasonStatistics& m_statistics;
  const GameCatalogue& m_catalogue;
  std::optional<SeasonId> m_team;
  Qualification m_minimum;
  std::optional<PublicSeason> m_public;
  Texts m_english;
  JsonWriter m_json;
};

} // namespace

std::string seasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                       const Qualification& minimum, const std::optional<PublicSeason>& isPublic) {
  return SeasonJson(statistics, team, minimum, isPublic).text();
}

std::string skipReasonInEnglish(SkipReason reason) {
  return std::string(Texts().text(skipReasonText(reason), Language::English));
}

} // namespace hooptab
