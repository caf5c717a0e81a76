#include "live/LiveChecks.h"

#include "live/ShotFollowUp.h"
#include "storage/EventWords.h"
#include "storage/Module1.h"
#include "storage/PlayerLookup.h"

#include <algorithm>
#include <array>
#include <optional>

namespace hooptab {

namespace {

constexpr std::size_t kFive = 5;

using Kind = LiveFinding::Kind;

class RecordedCheck {
 public:
  explicit RecordedCheck(const Game& game) : m_game(game), m_fouls() {}

  std::vector<LiveFinding> run() && {
    for (m_place = 0; m_place < m_game.events.size(); ++m_place) {
      const GameEvent& event = m_game.events[m_place];
      if (event.isUnderstood && !event.isDeleted)
        check(event);
    }
    checkTimes();
    std::ranges::stable_sort(m_findings, {}, &LiveFinding::event);
    return std::move(m_findings);
  }

 private:
  struct Court {
    std::string_view list;
    std::vector<ListedPlayer> players;
    int since = 0;                          // clock from which time counts for them
    int playersSeconds = 0;                 // of this period
    std::optional<std::size_t> lastChecked; // the stop up to which it was counted
  };

  void check(const GameEvent& event) {
    if (event.period != m_period)
      enterPeriod(event);
    if (event.code == EventCode::ARRET)
      checkStop(event);
    else if (event.code == EventCode::DEPART)
      checkStart();
    else
      checkAction(event);
  }
  void enterPeriod(const GameEvent& event);
  void checkStop(const GameEvent& event);
  void checkStart();
  void checkAction(const GameEvent& event);
  void checkFoul(const GameEvent& event);
  void checkAssist(const GameEvent& event);
  bool hasBasketBefore(const GameEvent& assist) const;
  void checkTimes();

  // Totals know neither clock nor court; a side without players is always there.
  bool followsCourt(std::size_t team) const {
    return m_game.details.inputType == 0 && !isTeamItself(m_game.roster[team]);
  }
  void name(Kind kind, std::size_t team, std::string jersey = {}) {
    m_findings.push_back({m_place, kind, static_cast<int>(team), std::move(jersey)});
  }

  const Game& m_game;
  std::vector<LiveFinding> m_findings;
  std::size_t m_place = 0;
  int m_period = 0;
  int m_firstClock = 0; // of the period
  int m_lastStop = 0;   // its clock
  std::array<Court, 2> m_court;
  struct Fouls {
    int personal = 0;
    int technical = 0;
  };
  std::array<std::array<Fouls, Roster::kLargestEntry + 1>, 2> m_fouls;
};

void RecordedCheck::enterPeriod(const GameEvent& event) {
  checkTimes();
  m_period = event.period;
  m_firstClock = event.clockSeconds;
  m_lastStop = event.clockSeconds;
  for (Court& court : m_court) {
    court.since = event.clockSeconds;
    court.playersSeconds = 0;
    court.lastChecked.reset();
  }
}

void RecordedCheck::checkStop(const GameEvent& event) {
  m_lastStop = event.clockSeconds;
  for (std::size_t team = 0; team < 2; ++team) {
    Court& court = m_court[team];
    const auto known = std::ranges::count_if(court.players, [](const ListedPlayer& listed) {
      return listed.player != nullptr; // nobody else is credited with time
    });
    court.playersSeconds += static_cast<int>(known) * (court.since - event.clockSeconds);
    court.since = event.clockSeconds;
    court.lastChecked = m_place;
    const std::string_view list = event.onCourt(team);
    if (list == court.list) // most stops change nobody
      continue;
    court.list = list;
    court.players.clear();
    for (const ListedPlayer& listed : playersOfList(list, m_game.roster[team])) {
      if (std::ranges::find(court.players, listed) != court.players.end())
        name(Kind::Twice, team, listed.jersey);
      else
        court.players.push_back(listed);
    }
  }
}

void RecordedCheck::checkStart() {
  for (std::size_t team = 0; team < 2; ++team) {
    const std::size_t count = m_court[team].players.size();
    if (!followsCourt(team) || count == kFive)
      continue;
    name(Kind::NotFive, team);
    m_findings.back().found = std::to_string(count);
  }
}

void RecordedCheck::checkAction(const GameEvent& event) {
  const auto team = static_cast<std::size_t>(event.player.team);
  const RosterPlayer* const player = findPlayer(m_game.roster[team], event.player.jersey);
  const auto isPlayer = [&](const ListedPlayer& listed) {
    return player != nullptr && listed.player == player;
  };
  // The bench is given technical fouls too.
  if (followsCourt(team) && event.code != EventCode::STF &&
      std::ranges::none_of(m_court[team].players, isPlayer))
    name(Kind::NotOnCourt, team, std::string(event.player.jersey));
  if (event.code == EventCode::SPF || event.code == EventCode::STF)
    checkFoul(event);
  if (event.code == EventCode::SA)
    checkAssist(event);
}

void RecordedCheck::checkFoul(const GameEvent& event) {
  const auto team = static_cast<std::size_t>(event.player.team);
  const int entry = m_game.roster[team].entryOf(event.player.jersey);
  if (entry == 0)
    return;
  const auto reached = [](int count, int limit) { return limit > 0 && count >= limit; };
  Fouls& fouls = m_fouls[team][static_cast<std::size_t>(entry)];
  if (reached(fouls.personal, m_game.details.personalFoulLimit) ||
      reached(fouls.technical, m_game.details.technicalFoulLimit))
    name(Kind::FouledOutBefore, team, std::string(event.player.jersey));
  ++(event.code == EventCode::SPF ? fouls.personal : fouls.technical);
}

void RecordedCheck::checkAssist(const GameEvent& event) {
  if (!hasBasketBefore(event))
    name(Kind::AssistWithoutBasket, static_cast<std::size_t>(event.player.team),
         std::string(event.player.jersey));
}

// A basket that no other assist has taken. One may also be given to a player who is fouled in the act and
// makes a free throw, be it not the last.
bool RecordedCheck::hasBasketBefore(const GameEvent& assist) const {
  auto shot = shotOf(m_game.events, m_place);
  for (; shot; shot = shotBefore(m_game.events, *shot)) {
    const GameEvent& basket = m_game.events[*shot];
    const bool isFreeThrow = basket.code == EventCode::GFT;
    if (basket.player.team != assist.player.team || basket.player.jersey == assist.player.jersey ||
        (isFreeThrow && basket.clockSeconds != assist.clockSeconds))
      return false;
    if (basket.isMade || !isFreeThrow)
      return basket.isMade;
  }
  return false;
}

// Up to the last stop of the period.
void RecordedCheck::checkTimes() {
  const int wanted = (m_firstClock - m_lastStop) * static_cast<int>(kFive);
  for (std::size_t team = 0; team < 2; ++team) {
    const Court& court = m_court[team];
    if (!court.lastChecked || !followsCourt(team) || court.playersSeconds == wanted)
      continue;
    m_findings.push_back({*court.lastChecked,
                          Kind::OtherTime,
                          static_cast<int>(team),
                          {},
                          Module1::clockText(court.playersSeconds),
                          Module1::clockText(wanted)});
  }
}

} // namespace

std::vector<LiveFinding> checkRecorded(const Game& game) {
  std::vector<LiveFinding> findings = RecordedCheck(game).run();
  if (game.accepted.empty())
    return findings;
  std::erase_if(findings, [&](const LiveFinding& finding) {
    const auto accepted = game.accepted.find(game.events[finding.event].number);
    return accepted != game.accepted.end() &&
           std::ranges::find(accepted->second, static_cast<int>(finding.kind)) != accepted->second.end();
  });
  return findings;
}

std::string wordsOf(const LiveFinding& finding, const Game& game, const Texts& texts) {
  const EventWords words(game, texts);
  std::string who(words.team(finding.team));
  if (!finding.jersey.empty()) {
    const std::string player = words.player({finding.team, finding.jersey});
    who = player == who ? who : who + ' ' + player;
  }
  std::string text =
      Module1::withPlaceholder(texts.text(static_cast<int>(finding.kind)), finding.found, "YYY");
  text = Module1::withPlaceholder(text, finding.wanted, "ZZZ");
  return Module1::withPlaceholder(text, who);
}

} // namespace hooptab
