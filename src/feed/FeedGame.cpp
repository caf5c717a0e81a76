#include "feed/FeedGame.h"

#include "feed/BoxJson.h"
#include "feed/FeedPlays.h"
#include "feed/FeedWriting.h"
#include "game/EventWords.h"
#include "game/RuleSets.h"
#include "game/Rules.h"
#include "game/TimeOuts.h"
#include "insight/MarginFlow.h"
#include "recording/LiveFigures.h"
#include "recording/LiveWords.h"
#include "scorecard/ShotChart.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;

std::string_view nameOf(NameForm form) {
  switch (form) {
  case NameForm::Full: return "full";
  case NameForm::Initial: return "initial";
  case NameForm::Number: break;
  }
  return "number";
}

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

class FeedWriter {
 public:
  FeedWriter(const RunningGame& game, const FeedMoment& moment, const FeedOptions& options,
             const Texts& texts)
      : m_running(game), m_game(game.counted.game), m_state(game.counted.state), m_moment(moment),
        m_options(options), m_texts(texts) {}

  std::string text() && {
    m_json.beginObject();
    writeFeedHead(m_json, m_running, m_moment, m_options);
    writeDetails();
    writeRules();
    writeBox(m_json, m_running.counted,
             {.hasLines = false,
              .nameOf = [this](const BoxRow& row) { return toldName(row.name, m_options.names); },
              .ofTeam = [this](JsonWriter&, Side team) { writeTeam(team); },
              .ofPlayer = [this](JsonWriter&, Side team, int entry,
                                 const GameInsight& insight) { writePlayer(team, entry, insight); }});
    writeRun();
    writeFlow();
    m_json.name("plays");
    m_json.beginArray();
    for (const FeedPlay& play : feedPlays(m_running.counted, m_texts))
      writePlay(play);
    m_json.endArray();
    m_json.endObject();
    return m_json.text();
  }

 private:
  void writeDetails() {
    const GameDetails& details = m_game.details;
    m_json.name("details");
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("date", details.date);
    m_json.member("place", details.place);
    m_json.member("competition", details.competition);
    m_json.member("round", details.round);
    m_json.endObject();
    m_json.endLine();
  }
  void writeRules() {
    const GameDetails& rules = m_game.details;
    m_json.name("rules");
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("periods", rules.periods);
    m_json.member("periodSeconds", rules.minutesPerPeriod * kSecondsPerMinute);
    const RuleSet* set = ruleSetOf(rules.ruleSet);
    const int overtime = rules.overtimeMinutes > 0 ? rules.overtimeMinutes
                         : set != nullptr          ? set->overtimeMinutes
                                                   : rules.minutesPerPeriod;
    m_json.member("overtimeSeconds", overtime * kSecondsPerMinute);
    m_json.member("foulLimit", rules.personalFoulLimit);
    m_json.member("bonusFouls", rules.bonus);
    m_json.endObject();
    m_json.endLine();
  }

  void writeTeam(Side team) {
    const LiveFigures figures(m_running);
    m_json.member("colour", webColour(m_game.details.teamColour[team]));
    m_json.member("foulsNow", figures.teamFouls(team));
    m_json.member("shootsBonus", figures.isInBonus(otherSide(team)));
    m_json.name("timeOuts");
    m_json.beginObject();
    m_json.beginLine();
    writeTimeOuts(m_json,
                  timeOutsOf(m_game.details, m_game.events, team, m_running.period, m_running.clockSeconds));
    m_json.member("taken", static_cast<int>(m_state.teamRows[team].timeOuts));
    m_json.endObject();
    m_json.endLine();
    writeScorers(team);
  }
  // The two with most points, in the order of the roster where they have as many.
  void writeScorers(Side team) {
    constexpr std::size_t kNamed = 2;
    std::vector<std::pair<int, const RosterPlayer*>> scorers;
    for (int entry = 1; entry <= kMostPlayers; ++entry) {
      const int points = pointsOf(m_state.players[team][static_cast<std::size_t>(entry)].counters);
      if (const RosterPlayer* player = m_game.roster[team].player(entry); player != nullptr && points > 0)
        scorers.emplace_back(points, player);
    }
    std::ranges::stable_sort(scorers, std::ranges::greater(), [](const auto& each) { return each.first; });
    scorers.resize(std::min(scorers.size(), kNamed));
    writeList("scorers", scorers, [this](const auto& scorer) {
      m_json.beginObject();
      m_json.member("number", scorer.second->jersey);
      m_json.member("name", toldName(scorer.second->name, m_options.names));
      m_json.member("points", scorer.first);
      m_json.endObject();
    });
  }
  void writePlayer(Side team, int entry, const GameInsight& insight) {
    const unsigned bit = 1U << static_cast<unsigned>(std::max(entry, 0));
    const LiveFigures figures(m_running);
    m_json.member("entry", entry);
    m_json.member("onCourt", entry > 0 && (m_running.onCourt[team] & bit) != 0);
    m_json.member("starter", insight.isStarter(team, entry));
    const PlayerEntry& counted = m_state.players[team][static_cast<std::size_t>(entry)];
    m_json.member("played", (m_state.wereOnCourt[team] & bit) != 0 || counted.counters.hasAny());
    m_json.member("out", entry > 0 && figures.isFouledOut(team, entry));
  }

  void writeRun() {
    const std::optional<ScoringRun> run = lastRun(m_game.events);
    m_json.name("run");
    if (!run) {
      m_json.null();
      return;
    }
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("team", numberOf(run->team));
    m_json.member("points", run->points);
    m_json.endObject();
    m_json.endLine();
  }

  void writeFlow() {
    const MarginFlow flow = marginFlowOf(m_game);
    m_json.name("flow");
    m_json.beginObject();
    m_json.member("hasTime", flow.hasTime);
    writeList("periods", flow.periods, [this](const MarginFlow::Period& period) {
      m_json.beginObject();
      m_json.member("number", period.number);
      m_json.member("begin", period.begin);
      m_json.member("end", period.end);
      m_json.member("full", period.full);
      m_json.endObject();
    });
    writeList("steps", flow.steps, [this](const MarginFlow::Step& step) {
      writeNumbersOf({step.at, step.score[Side::Visitor], step.score[Side::Home]});
    });
    writeList("timeOuts", flow.timeOuts, [this](const MarginFlow::TimeOut& timeOut) {
      m_json.beginArray();
      m_json.value(timeOut.at);
      writeTeamNumber(m_json, timeOut.team);
      m_json.endArray();
    });
    writeList("runs", flow.runs, [this](const MarginFlow::Run& run) {
      m_json.beginObject();
      m_json.member("team", numberOf(run.team));
      m_json.member("points", run.points);
      m_json.member("from", static_cast<int>(run.first));
      m_json.member("to", static_cast<int>(run.last));
      m_json.endObject();
    });
    m_json.endObject();
  }
  // Each of its values on a line of its own.
  template <class Values, class Write>
  void writeList(std::string_view name, const Values& values, const Write& write) {
    m_json.name(name);
    m_json.beginArray();
    for (const auto& value : values) {
      m_json.beginLine();
      write(value);
      m_json.endLine();
    }
    m_json.endArray();
  }
  void writeNumbersOf(std::initializer_list<int> numbers) {
    m_json.beginArray();
    for (const int number : numbers)
      m_json.value(number);
    m_json.endArray();
  }

  void writePerson(const FeedPlay::Person& person) {
    m_json.member("number", person.jersey);
    m_json.member("name", toldName(person.name, m_options.names));
  }
  void writePlay(const FeedPlay& play) {
    m_json.beginObject();
    m_json.beginLine();
    m_json.member("id", play.id);
    m_json.member("period", play.period);
    m_json.member("clock", play.clockSeconds);
    m_json.member("kind", play.kind);
    m_json.name("team");
    writeTeamNumber(m_json, play.who.team);
    writePerson(play.who);
    m_json.name("words");
    m_json.beginObject();
    for (const LanguageFacts& language : kLanguages)
      m_json.member(language.code, play.words[indexOf(language.language)]);
    m_json.endObject();
    m_json.name("score");
    writeNumbersOf({play.score[Side::Visitor], play.score[Side::Home]});
    writeShot(play);
    if (play.fouls > 0 || play.teamFouls > 0) {
      m_json.member("fouls", play.fouls);
      m_json.member("teamFouls", play.teamFouls);
      m_json.member("out", play.isOut);
    }
    if (play.with)
      writePartner(*play.with);
    if (play.changes) {
      writeChanges("in", *play.changes, &FeedPlay::Change::in);
      writeChanges("outs", *play.changes, &FeedPlay::Change::out);
    }
    m_json.endObject();
    m_json.endLine();
  }
  void writeShot(const FeedPlay& play) {
    if (!play.isShot)
      return;
    m_json.member("made", play.isMade);
    if (play.isMade) {
      m_json.member("points", play.points);
      m_json.member("total", play.total);
    }
    if (play.kind == "freeThrow")
      return;
    if (play.place) {
      m_json.name("place");
      m_json.beginArray();
      m_json.value(play.place->x);
      m_json.value(play.place->y);
      m_json.endArray();
    }
    m_json.name("zone");
    if (play.place)
      m_json.value(zoneName(shotZone(*play.place, play.kind == "three")));
    else
      m_json.null();
  }
  void writePartner(const FeedPlay::Partner& partner) {
    m_json.name("with");
    m_json.beginObject();
    writePerson(partner.person);
    m_json.member("kind", partner.kind);
    m_json.name("team");
    writeTeamNumber(m_json, partner.person.team);
    m_json.endObject();
  }
  void writeChanges(std::string_view name, const PerSide<FeedPlay::Change>& changes,
                    std::vector<std::string> FeedPlay::Change::*which) {
    m_json.name(name);
    m_json.beginArray();
    for (const Side team : kSides) {
      m_json.beginArray();
      for (const std::string& jersey : changes[team].*which)
        m_json.value(jersey);
      m_json.endArray();
    }
    m_json.endArray();
  }

  const RunningGame& m_running;
  const Game& m_game;
  const GameState& m_state;
  const FeedMoment& m_moment;
  const FeedOptions& m_options;
  const Texts& m_texts;
  JsonWriter m_json;
};

} // namespace

std::string_view feedState(const RunningGame& game) {
  const Game& played = game.counted.game;
  if (played.details.isFinished || game.phase == LiveGame::Phase::Finished)
    return "final";
  if (game.phase == LiveGame::Phase::Running)
    return "running";
  bool isBegun = false;
  bool hasPeriodBegun = false;
  for (const GameEvent& event : played.events) {
    isBegun = isBegun || counts(event);
    hasPeriodBegun = hasPeriodBegun || (counts(event) && event.period == game.period);
  }
  if (!isBegun)
    return played.details.inputType != 0 ? "stopped" : "before";
  const bool isOver = game.phase == LiveGame::Phase::OvertimeAsked ||
                      game.phase == LiveGame::Phase::Decided || !hasPeriodBegun;
  return isOver ? "break" : "stopped";
}

std::string toldName(const std::string& name, NameForm form) {
  if (form == NameForm::Full)
    return name;
  if (form == NameForm::Number)
    return {};
  const std::string family = familyName(name);
  if (family == name || name.empty())
    return name;
  // The first letter, however many bytes it has.
  std::size_t end = 1;
  while (end < name.size() && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U)
    ++end;
  return name.substr(0, end) + ". " + family;
}

void writeFeedHead(JsonWriter& json, const RunningGame& game, const FeedMoment& moment,
                   const FeedOptions& options) {
  const std::string_view state = feedState(game);
  json.member("id", moment.id);
  json.member("state", state);
  json.name("clock");
  json.beginObject();
  json.beginLine();
  json.member("period", game.period);
  json.name("seconds");
  if (game.counted.game.details.minutesPerPeriod > 0)
    json.value(game.clockSeconds);
  else
    json.null();
  json.member("running", state == "running" && moment.at.has_value());
  json.name("at");
  if (moment.at)
    json.value(*moment.at);
  else
    json.null();
  json.endObject();
  json.endLine();
  json.member("delay", options.delaySeconds);
  json.member("names", nameOf(options.names));
  json.member("order", options.first == Side::Visitor ? "visitor" : "home");
}

std::string feedGame(const RunningGame& game, const FeedMoment& moment, const FeedOptions& options,
                     const Texts& texts) {
  return FeedWriter(game, moment, options, texts).text();
}

std::string feedWithoutGame(const FeedMoment& moment, const FeedOptions& options) {
  JsonWriter json;
  json.beginObject();
  json.member("id", moment.id);
  json.member("state", "none");
  json.member("delay", options.delaySeconds);
  json.member("names", nameOf(options.names));
  json.member("order", options.first == Side::Visitor ? "visitor" : "home");
  json.endObject();
  return json.text();
}

} // namespace hooptab
