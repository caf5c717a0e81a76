#include "game/EventWords.h"

#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/PeriodName.h"
#include "game/PlayerLookup.h"
#include "game/Rules.h"
#include "settings/Settings.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

constexpr PerSide<Text> kSideNames = {Text::Visitor, Text::Home};

std::string sentence(const Texts& texts, std::string_view subject, std::string_view words) {
  return withPlaceholders(texts.text(Text::SubjectAndWords), subject, words);
}

std::string shownPlayer(const RosterPlayer* player, std::string_view jersey, bool isTeam,
                        const Texts& texts) {
  if (player == nullptr)
    return std::string(jersey) + ' ' + std::string(texts.text(Text::UnknownPlayer));
  if (isTeam)
    return player->name;
  return player->name.empty() ? player->jersey : player->jersey + ' ' + player->name;
}

// "in 4 Ann Able, 5 Bea Baker": those of the one list who are not in the other; nothing when there are none.
std::string missingIn(const std::vector<ListedPlayer>& other, const std::vector<ListedPlayer>& list,
                      Text directionText, const Texts& texts, const auto& shown) {
  std::string words;
  for (const ListedPlayer& listed : list) {
    if (std::ranges::find(other, listed) != other.end())
      continue;
    words += words.empty() ? std::string(texts.text(directionText)) + ' ' : ", ";
    words += shown(listed);
  }
  return words;
}

// The last stop before an event that counts, or null.
const GameEvent* stopBefore(const EventList& events, std::size_t index) {
  while (index > 0) {
    const GameEvent& event = events[--index];
    if (event.isUnderstood && !event.isDeleted && event.code == EventCode::ARRET)
      return &event;
  }
  return nullptr;
}

} // namespace

std::string familyName(std::string_view name) {
  const std::size_t blank = name.find(' ');
  return std::string(blank == std::string_view::npos || blank == 0 ? name : name.substr(blank + 1));
}

EventWords::EventWords(const Game& game, const Texts& texts) : m_game(game), m_texts(texts) {}

std::string EventWords::words(std::size_t eventIndex) const {
  return words(eventIndex, Length::Whole);
}

std::string EventWords::shortWords(std::size_t eventIndex) const {
  return words(eventIndex, Length::Short);
}

std::string EventWords::words(std::size_t eventIndex, Length length) const {
  const GameEvent& event = m_game.events[eventIndex];
  if (!event.isUnderstood)
    return std::string(event.line);
  switch (event.code) {
  case EventCode::DEPART: return std::string(m_texts.text(Text::Start));
  case EventCode::ARRET: {
    const std::string changes = substitution(eventIndex, length);
    return changes.empty() ? std::string(m_texts.text(Text::Stop)) : changes;
  }
  default: break;
  }
  if (event.isOfTeam())
    return wordsOfTeam(event, length);
  std::string who(team(*event.player.team));
  const bool isTeam = isTeamItself(m_game.roster[*event.player.team]);
  const std::string name =
      length == Length::Short && !isTeam ? std::string(event.player.jersey) : player(event.player);
  if (name != who)
    who += ' ' + name;
  if (length == Length::Short && event.isShot())
    return who + (event.isMade ? " ● " : " ✕ ") + std::string(m_texts.text(event.kind()->wordsText));
  const std::string more = length == Length::Whole ? detailWords(event, *this, m_texts) : std::string();
  return sentence(m_texts, who, action(event) + (more.empty() ? "" : ", ") + more);
}

// Nobody's time-out and a jump ball have no team in front.
std::string EventWords::wordsOfTeam(const GameEvent& event, Length length) const {
  std::string words = action(event);
  if (event.code == EventCode::XJB) {
    std::string jumpers;
    for (const Side side : kSides) {
      const PlayerReference jumper = event.jumper(side);
      jumpers += (side == Side::Visitor ? "" : " – ") + std::string(team(side)) + ' ' +
                 (length == Length::Short ? std::string(jumper.jersey) : player(jumper));
    }
    words = sentence(m_texts, words, jumpers);
  }
  const std::string more = length == Length::Whole ? detailWords(event, *this, m_texts) : std::string();
  words += (more.empty() ? "" : ", ") + more;
  return event.player.team ? sentence(m_texts, team(*event.player.team), words) : words;
}

EventWords::Parts EventWords::parts(std::size_t eventIndex) const {
  const GameEvent& event = m_game.events[eventIndex];
  Parts parts;
  if (!event.isUnderstood || event.code == EventCode::DEPART) {
    parts.action = words(eventIndex, Length::Short);
  } else if (event.code == EventCode::ARRET) {
    const PerSide<std::string> changes = {changesOf(eventIndex, Side::Visitor, Length::Short),
                                          changesOf(eventIndex, Side::Home, Length::Short)};
    if (changes[Side::Visitor].empty() != changes[Side::Home].empty()) {
      const Side changed = changes[Side::Visitor].empty() ? Side::Home : Side::Visitor;
      parts.team = changed;
      parts.action = changes[changed];
    } else {
      parts.action = words(eventIndex, Length::Short);
    }
  } else if (event.isOfTeam()) {
    parts.team = event.player.team;
    parts.action = event.code == EventCode::XJB ? words(eventIndex, Length::Short) : action(event);
  } else {
    parts.team = event.player.team;
    const Roster& roster = m_game.roster[*event.player.team];
    if (const RosterPlayer* who = findPlayer(roster, event.player.jersey); who != nullptr)
      parts.name = isTeamItself(roster) ? who->name : familyName(who->name);
    if (!isTeamItself(roster))
      parts.jersey = std::string(event.player.jersey);
    const Text shot = event.code == EventCode::GFG   ? Text::TwoInList
                      : event.code == EventCode::GF3 ? Text::ThreeInList
                                                     : event.kind()->wordsText;
    parts.action = event.isShot()
                       ? std::string(m_texts.text(shot)) + " (" + std::string(event.kind()->shortName) + ")"
                       : action(event);
  }
  return parts;
}

std::string EventWords::periodText(int period) const {
  return periodName(period, m_game.details.periods, m_texts);
}

std::string EventWords::clock(std::size_t eventIndex) const {
  const GameEvent& event = m_game.events[eventIndex];
  if (!event.isUnderstood)
    return {};
  return m_game.details.minutesPerPeriod == 0 ? "--:--" : Module1::clockText(event.clockSeconds);
}

std::string EventWords::player(const PlayerReference& reference) const {
  const Roster& roster = m_game.roster[*reference.team];
  return shownPlayer(findPlayer(roster, reference.jersey), reference.jersey, isTeamItself(roster), m_texts);
}

std::string EventWords::action(const GameEvent& event) const {
  const EventKind& kind = *event.kind();
  if (event.code == EventCode::XTO && !event.player.team)
    return std::string(m_texts.text(Text::MediaTimeOut));
  if (event.code == EventCode::XCF && event.detail(detail_key::kKind) == "C")
    return std::string(m_texts.text(Text::CoachTechnical));
  std::string words(m_texts.text(kind.wordsText));
  if (kind.isShot)
    return words + ' ' + std::string(m_texts.text(event.isMade ? Text::Made : Text::Missed));
  // The user's own statistics carry the game's labels; "---" stands for none.
  if (kind.code == EventCode::SU1 || kind.code == EventCode::SU2) {
    std::string label =
        Settings::shownLabel(m_game.details.statisticLabel[kind.code == EventCode::SU1 ? 0 : 1]);
    if (label.find_first_not_of("- ") != std::string::npos)
      return label;
  }
  return words;
}

std::string EventWords::wordsOfSide(std::size_t eventIndex, Side side) const {
  const GameEvent& event = m_game.events[eventIndex];
  if (!event.isUnderstood || event.code == EventCode::DEPART)
    return {};
  if (event.code == EventCode::ARRET)
    return changesOf(eventIndex, side, Length::Whole);
  const std::string more = detailWords(event, *this, m_texts);
  const std::string what = action(event) + (more.empty() ? "" : ", ") + more;
  if (event.code == EventCode::XJB)
    return sentence(m_texts, player(event.jumper(side)), what);
  if (event.player.team != side)
    return {};
  return event.isOfTeam() ? what : sentence(m_texts, player(event.player), what);
}

std::string EventWords::changesOf(std::size_t eventIndex, Side side, Length length) const {
  const GameEvent* const stop = stopBefore(m_game.events, eventIndex);
  const Roster& roster = m_game.roster[side];
  const bool isTeam = isTeamItself(roster);
  const auto before = playersOnCourt(stop != nullptr ? stop->onCourt(side) : std::string_view(), roster);
  const auto after = playersOnCourt(m_game.events[eventIndex].onCourt(side), roster);
  const auto shown = [&](const ListedPlayer& listed) {
    return length == Length::Short && !isTeam ? listed.jersey
                                              : shownPlayer(listed.player, listed.jersey, isTeam, m_texts);
  };
  std::string changes = missingIn(before, after, Text::In, m_texts, shown);
  if (const std::string out = missingIn(after, before, Text::Out, m_texts, shown); !out.empty())
    changes += (changes.empty() ? "" : "; ") + out;
  return changes;
}

std::string EventWords::substitution(std::size_t eventIndex, Length length) const {
  std::string words;
  for (const Side side : kSides) {
    if (const std::string changes = changesOf(eventIndex, side, length); !changes.empty())
      words += " - " + sentence(m_texts, team(side), changes);
  }
  if (words.empty() || length == Length::Short)
    return words.substr(std::min(words.size(), std::string_view(" - ").size()));
  return std::string(m_texts.text(Text::Substitution)) + words;
}

std::string_view EventWords::team(Side team) const {
  const std::string& abbreviation = m_game.details.abbreviation[team];
  return abbreviation.empty() ? m_texts.text(kSideNames[team]) : std::string_view(abbreviation);
}

} // namespace hooptab
