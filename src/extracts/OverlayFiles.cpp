#include "extracts/OverlayFiles.h"

#include "game/EventWords.h"
#include "game/PeriodName.h"
#include "game/Rules.h"
#include "game/Side.h"
#include "game/TimeOuts.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>

namespace hooptab {

namespace {

constexpr PerSide<std::string_view> kSideNames = {"visitor", "home"};

// "#F08020" of red + 256 * green + 65536 * blue.
std::string colourText(std::uint32_t colour) {
  char text[16];
  std::snprintf(text, sizeof text, "#%02X%02X%02X", colour & 0xFFU, colour >> 8 & 0xFFU,
                colour >> 16 & 0xFFU);
  return text;
}

const GameEvent* lastOf(const EventList& events, auto isWanted) {
  const auto found = std::find_if(events.rbegin(), events.rend(), [&](const GameEvent& event) {
    return event.isUnderstood && !event.isDeleted && isWanted(event);
  });
  return found == events.rend() ? nullptr : &*found;
}

class Overlay {
 public:
  Overlay(const CountedGame& counted, const OverlayClock& clock, const Texts& texts)
      : m_counted(counted), m_game(counted.game), m_clock(clock), m_texts(texts), m_words(m_game, texts) {}

  std::vector<OverlayFile> files() {
    for (const Side team : kSides)
      addTeam(team);
    addGame();
    addRow();
    return std::move(m_files);
  }

 private:
  void add(std::string name, std::string_view content) {
    m_files.push_back({std::move(name) + ".txt", printable(content)});
  }

  void addTeam(Side team) {
    const std::string side = std::string(kSideNames[team]) + '_';
    const GameDetails& details = m_game.details;
    const int fouls = teamFouls(details, m_counted.state, team, m_clock.period);
    const auto timeOuts = timeOutsOf(details, m_game.events, team, m_clock.period, m_clock.seconds);
    add(side + "name", details.name[team]);
    add(side + "abbreviation", m_words.team(team));
    add(side + "colour", colourText(details.teamColour[team]));
    add(side + "score", std::to_string(m_counted.state.points(team)));
    add(side + "fouls", std::to_string(fouls));
    add(side + "bonus", isInBonus(details, fouls) ? m_texts.text(Text::BonusShort) : "");
    add(side + "timeouts_taken", std::to_string(m_counted.state.teamRows[team].timeOuts));
    add(side + "timeouts_left", timeOuts ? std::to_string(timeOuts->left) : "");
  }

  void addGame() {
    const bool hasTime = m_game.details.minutesPerPeriod > 0;
    add("score", std::string(m_words.team(Side::Visitor)) + ' ' +
                     std::to_string(m_counted.state.points(Side::Visitor)) + " - " +
                     std::to_string(m_counted.state.points(Side::Home)) + ' ' +
                     std::string(m_words.team(Side::Home)));
    add("period", periodName(m_clock.period, m_game.details.periods, m_texts));
    add("clock", hasTime ? Module1::clockText(m_clock.seconds) : "");
    add("clock_running", hasTime && m_clock.isRunning ? "1" : "0");
    add("finished", m_game.details.isFinished ? m_texts.text(Text::Final) : "");
    const GameEvent* const arrow =
        lastOf(m_game.events, [](const GameEvent& event) { return event.code == EventCode::XAR; });
    add("arrow", arrow != nullptr ? m_words.team(*arrow->player.team) : "");
    const GameEvent* const score =
        lastOf(m_game.events, [](const GameEvent& event) { return event.isShot() && event.isMade; });
    add("last_scorer", score != nullptr ? m_words.player(score->player) : "");
    add("last_scorer_team", score != nullptr ? m_words.team(*score->player.team) : "");
    add("last_points", score != nullptr ? std::to_string(score->kind()->points) : "");
  }

  // Columns are named as a title's fields are, so that they are mapped by themselves.
  void addRow() {
    nlohmann::ordered_json row = nlohmann::ordered_json::object();
    for (const OverlayFile& file : m_files)
      row[file.name.substr(0, file.name.rfind('.')) + ".Text"] = file.content;
    m_files.push_back({"scoreboard.json", nlohmann::ordered_json::array({row}).dump(1)});
  }

  const CountedGame& m_counted;
  const Game& m_game;
  const OverlayClock& m_clock;
  const Texts& m_texts;
  EventWords m_words;
  std::vector<OverlayFile> m_files;
};

} // namespace

OverlayClock clockOfLastEvent(const CountedGame& counted) {
  const GameEvent* const event =
      lastOf(counted.game.events, [](const GameEvent& each) { return each.isClock(); });
  return {counted.state.period, counted.state.clockSeconds,
          event != nullptr && event->code == EventCode::DEPART};
}

std::vector<OverlayFile> overlayFiles(const CountedGame& counted, const OverlayClock& clock,
                                      const Texts& texts) {
  return Overlay(counted, clock, texts).files();
}

} // namespace hooptab
