#include "feed/FeedBench.h"

#include "assistant/BenchFigures.h"
#include "feed/FeedWriting.h"

namespace hooptab {

namespace {

class BenchWriter {
 public:
  BenchWriter(JsonWriter& json, const BenchFigures& figures) : m_json(json), m_figures(figures) {}

  void write() {
    writeTeam("us", m_figures.us);
    writeTeam("them", m_figures.them);
    m_json.member("periodWords", m_figures.period);
    writeTile("run", m_figures.run);
    writeTile("sinceTimeOut", m_figures.sinceTimeOut);
    writeTile("foulTrouble", m_figures.foulTrouble);
    writePlayers("five", m_figures.five);
    writePlayers("bench", m_figures.bench);
    writePlayers("theirFive", m_figures.theirFive);
    m_json.member("thisFive", m_figures.thisFive);
    m_json.member("factorsOf", m_figures.factorsOf);
    writeFactors();
    writeFives();
  }

 private:
  void writeTeam(std::string_view name, const BenchFigures::Team& team) {
    m_json.name(name);
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("name", team.name);
    m_json.member("colour", webColour(team.colour));
    m_json.member("points", team.points);
    m_json.member("fouls", team.fouls);
    m_json.member("foulWords", team.foulWords);
    m_json.member("bonus", team.isInBonus);
    m_json.name("timeOuts");
    m_json.beginObject();
    writeTimeOuts(m_json, team.timeOuts);
    m_json.endObject();
    m_json.endObject();
    m_json.endLine();
  }
  void writeTile(std::string_view name, const BenchFigures::Tile& tile) {
    m_json.name(name);
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("title", tile.title);
    m_json.member("figure", tile.figure);
    m_json.name("lines");
    m_json.beginArray();
    for (const std::string& line : tile.lines)
      m_json.value(line);
    m_json.endArray();
    m_json.member("alarm", tile.isAlarm);
    m_json.endObject();
    m_json.endLine();
  }
  void writePlayers(std::string_view name, const std::vector<BenchFigures::Player>& players) {
    m_json.name(name);
    m_json.beginArray();
    for (const BenchFigures::Player& player : players) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("number", player.jersey);
      m_json.member("name", player.name);
      m_json.member("fouls", player.fouls);
      m_json.member("trouble", player.isInTrouble);
      m_json.member("out", player.isOut);
      m_json.member("played", player.hasPlayed);
      m_json.member("minutes", player.minutes);
      m_json.member("plusMinus", player.plusMinus);
      m_json.member("points", player.points);
      m_json.member("stay", player.stay);
      m_json.member("long", player.isLong);
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }
  void writeFactors() {
    m_json.name("factors");
    m_json.beginArray();
    for (const BenchFigures::Factor& factor : m_figures.factors) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("name", factor.name);
      m_json.member("ours", factor.ours);
      m_json.member("theirs", factor.theirs);
      m_json.member("ourLength", factor.ourLength);
      m_json.member("theirLength", factor.theirLength);
      m_json.member("costsMost", factor.costsMost);
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }
  void writeFives() {
    m_json.name("fives");
    m_json.beginArray();
    for (const BenchFigures::Five& five : m_figures.fives) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("numbers", five.jerseys);
      m_json.member("minutes", five.minutes);
      m_json.member("plusMinus", five.plusMinus);
      m_json.member("net", five.net);
      m_json.member("hasNet", five.hasNet);
      m_json.member("now", five.isNow);
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
  }

  JsonWriter& m_json;
  const BenchFigures& m_figures;
};

} // namespace

std::string feedBench(const RunningGame& game, const BenchRecord& record, Side us, const FeedMoment& moment,
                      const Texts& texts) {
  JsonWriter json;
  json.beginObject();
  writeFeedHead(json, game, moment, {});
  json.member("foulLimit", game.counted.game.details.personalFoulLimit);
  BenchWriter(json, BenchFigures::of(game, record, us, texts)).write();
  json.endObject();
  return json.text();
}

} // namespace hooptab
