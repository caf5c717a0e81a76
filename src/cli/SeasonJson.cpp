#include "cli/NumbersJson.h"
#include "cli/SeasonReports.h"
#include "season/GameColumns.h"
#include "season/Leaders.h"
#include "storage/ChoiceTexts.h"

namespace hooptab {

namespace {

constexpr int kResultColumn = 3;

class SeasonJson {
 public:
  SeasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team)
      : m_statistics(statistics), m_catalogue(statistics.catalogue()), m_team(team) {}

  std::string text() && {
    m_json.beginObject();
    writeGames();
    writeSkipped();
    m_json.name("players");
    m_json.beginArray();
    for (const SeasonRow& row : m_statistics.players())
      writePlayer(row);
    m_json.endArray();
    m_json.name("lines");
    m_json.beginArray();
    for (const SeasonRow& row : m_statistics.lines())
      writeLine(row);
    m_json.endArray();
    writeLeaders();
    m_json.endObject();
    return m_json.text();
  }

 private:
  void writeGames() {
    m_json.name("games");
    m_json.beginArray();
    for (const std::size_t index : m_statistics.games()) {
      const ListedGame& game = m_catalogue.games()[index];
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("file", game.path);
      m_json.member("date", game.date);
      m_json.member("type", game.type);
      m_json.member("visitor", m_catalogue.teams()[game.team[0]].key);
      m_json.member("visitorPoints", game.points[0]);
      m_json.member("home", m_catalogue.teams()[game.team[1]].key);
      m_json.member("homePoints", game.points[1]);
      m_json.member("result", gameCell(m_catalogue, game, kResultColumn, m_team, m_english));
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }
  void writeSkipped() {
    m_json.name("skipped");
    m_json.beginArray();
    for (const SkippedFile& skipped : m_catalogue.skipped()) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("file", skipped.path);
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
    m_json.member("name", row.name);
    m_json.member("position", positionText(row.positions.back(), m_english));
    writeSums(row);
    m_json.endObject();
    m_json.endLine();
  }
  void writeLine(const SeasonRow& row) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("team", m_catalogue.teams()[row.team].key);
    m_json.member("line", m_catalogue.lines()[row.id].list);
    writeSums(row);
    m_json.endObject();
    m_json.endLine();
  }
  void writeSums(const SeasonRow& row) {
    m_json.member("games", row.games);
    writeNumbers(m_json, row.numbers);
    m_json.member("TR", row.numbers.rebounds());
    m_json.member("rank", row.rank);
    writeAverages("perGame", row, SeasonView::PerGame);
    writeAverages("perMinute", row, SeasonView::PerMinute);
  }
  void writeAverages(std::string_view name, const SeasonRow& row, SeasonView view) {
    m_json.name(name);
    m_json.beginObject();
    for (const SeasonColumn& column : seasonColumns()) {
      if (column.index == kTimeColumn ||
          (column.index >= kFirstCountColumn && column.index <= kLastCountColumn))
        m_json.member(column.name, seasonCell(row, column.index, view, m_english));
    }
    m_json.endObject();
  }
  void writeLeaders() {
    constexpr std::string_view kViewNames[] = {"total", "perGame", "perMinute"};
    m_json.name("leaders");
    m_json.beginObject();
    for (const SeasonView view : kSeasonViews) {
      m_json.name(kViewNames[static_cast<std::size_t>(view)]);
      m_json.beginObject();
      const Leaders leaders(m_statistics.players(), view, m_english);
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
  void writeLeader(const Leader& leader) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("rank", leader.rank);
    m_json.member("team", m_catalogue.teams()[leader.row->team].key);
    m_json.member("number", leader.row->number);
    m_json.member("name", leader.row->name);
    m_json.member("value", leader.value);
    m_json.endObject();
    m_json.endLine();
  }

  const SeasonStatistics& m_statistics;
  const GameCatalogue& m_catalogue;
  std::optional<SeasonId> m_team;
  Texts m_english;
  JsonWriter m_json;
};

} // namespace

std::string seasonJson(const SeasonStatistics& statistics, std::optional<SeasonId> team) {
  return SeasonJson(statistics, team).text();
}

} // namespace hooptab
