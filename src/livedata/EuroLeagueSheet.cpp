#include "livedata/EuroLeagueSheet.h"

#include "game/GameEvent.h"
#include "livedata/EuroLeagueTime.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr PerSide<std::string_view> kLetters = {"B", "A"}; // as in TeamB

// As the table of kinds has it: places and kinds of twos are not among what today's rows say, and a rebound
// of the team is one without a player.
EventCode plainCode(EventCode code) {
  switch (code) {
  case EventCode::GLG:
  case EventCode::GLD:
  case EventCode::GPB:
  case EventCode::GDK: return EventCode::GFG;
  case EventCode::XOR: return EventCode::SOR;
  case EventCode::XDR: return EventCode::SDR;
  case EventCode::XTV: return EventCode::STO;
  default: return code;
  }
}

bool isShot(EventCode code) {
  return code >= EventCode::GFG;
}
int pointsOf(EventCode code) {
  return code == EventCode::GFT ? 1 : code == EventCode::GF3 ? 3 : 2;
}

// Null for what no row can say.
const EuroLeagueKind* kindFor(const ForeignEvent& event) {
  const EventCode code = plainCode(event.code);
  if (code == EventCode::XJB)
    return event.wonBy ? &euroLeagueKind(EuroLeagueRow::JumpBall) : nullptr;
  if (code == EventCode::Unknown)
    return nullptr;
  const std::string_view detail = isShot(code) ? std::string_view()
                                  : code == EventCode::XTO && !event.doer.team
                                      ? "MEDIA"
                                      : std::string_view(event.detail);
  const EuroLeagueKind* first = nullptr;
  for (const EuroLeagueKind& kind : kEuroLeagueKinds) {
    if (kind.code != code || (isShot(code) && kind.isMade != event.isMade))
      continue;
    if (kind.detail == detail)
      return &kind;
    if (first == nullptr)
      first = &kind;
  }
  return first;
}

// What a row counts to, for the figure in its words; empty where it has none.
std::string_view counterOf(const EuroLeagueKind& kind) {
  if (kind.row == EuroLeagueRow::Rejected)
    return "BA";
  if (kind.row == EuroLeagueRow::FoulDrawn)
    return "FD";
  switch (kind.code) {
  case EventCode::SOR: return "OR";
  case EventCode::SDR: return "DR";
  case EventCode::SA: return "Ast";
  case EventCode::SST: return "ST";
  case EventCode::STO: return "TO";
  case EventCode::SBS: return "BS";
  case EventCode::SPF:
  case EventCode::STF: return "PF";
  case EventCode::XCF: return "CF";
  case EventCode::XTO: return "timeouts";
  default: return {};
  }
}

// Whether the row makes sense without a player.
bool canBeOfTeam(const EuroLeagueKind& kind, const Doer& doer) {
  switch (kind.code) {
  case EventCode::SOR:
  case EventCode::SDR:
  case EventCode::STO:
  case EventCode::XCF: return doer.team.has_value();
  case EventCode::XTO: return true;
  default: return kind.row == EuroLeagueRow::JumpBall;
  }
}

} // namespace

EuroLeagueSheet::EuroLeagueSheet(const ForeignGame& game) : m_game(game), m_origins(shotOrigins(game)) {
  nameTeams();
  for (const Side team : kSides) {
    namePlayers(team);
    m_points[team].resize(kEuroLeagueQuarters);
    const std::vector<ForeignPlayer>& players = game.teams[team].players;
    for (std::size_t i = 0; i < players.size(); ++i) {
      if (players[i].isStarter)
        m_onCourt[team].insert(static_cast<int>(i));
    }
  }
  for (const ForeignEvent& event : game.events) {
    if (event.period >= 1 && event.period <= kLastPeriod)
      take(event);
  }
  if (game.isFinished) {
    endPeriod();
    addMarker(EuroLeagueRow::GameEnd, 0);
  }
}

// Both have one, and no two the same.
void EuroLeagueSheet::nameTeams() {
  for (const Side team : kSides) {
    const ForeignTeam& foreign = m_game.teams[team];
    m_codes[team] = Module1::trimmed(foreign.abbreviation.empty() ? foreign.id : foreign.abbreviation);
    if (m_codes[team].empty())
      m_codes[team] = "TEAM" + std::string(kLetters[team]);
  }
  if (m_codes[Side::Visitor] == m_codes[Side::Home])
    m_codes[Side::Visitor] += '2';
}

void EuroLeagueSheet::namePlayers(Side team) {
  std::set<std::string, std::less<>> taken;
  for (const ForeignPlayer& player : m_game.teams[team].players) {
    std::string id(Module1::trimmed(player.id));
    if (id.empty() || id.starts_with("CO_") || id.starts_with("AC_") || taken.contains(id))
      id = "P" + std::string(kLetters[team]) + std::to_string(taken.size() + 1);
    while (!taken.insert(id).second)
      id += 'X';
    m_ids[team].push_back(std::move(id));
  }
}

std::string EuroLeagueSheet::id(const Doer& doer) const {
  return doer.isPlayer() ? m_ids[*doer.team][static_cast<std::size_t>(doer.player)] : std::string();
}

int EuroLeagueSheet::count(const Doer& doer, std::string_view name) const {
  const auto counts = m_counts.find({doer.team, doer.player});
  if (counts == m_counts.end())
    return 0;
  const auto count = counts->second.find(name);
  return count == counts->second.end() ? 0 : count->second;
}

bool EuroLeagueSheet::isOnCourt(const Doer& player) const {
  return m_onCourt[*player.team].contains(player.player);
}

void EuroLeagueSheet::take(const ForeignEvent& event) {
  for (; m_period < event.period; beginPeriod(m_period + 1))
    endPeriod();
  const auto change = [&](EuroLeagueRow row) {
    if (!event.doer.isPlayer())
      return;
    std::set<int>& five = m_onCourt[*event.doer.team];
    if (row == EuroLeagueRow::In)
      five.insert(event.doer.player);
    else
      five.erase(event.doer.player);
    add(euroLeagueKind(row), event, event.doer);
  };
  switch (event.kind) {
  case ForeignKind::In: return change(EuroLeagueRow::In);
  case ForeignKind::Out: return change(EuroLeagueRow::Out);
  case ForeignKind::PeriodStart: return;
  case ForeignKind::PeriodEnd: return endPeriod();
  case ForeignKind::Event: return takePlay(event);
  }
}

// A period of overtime begins with a full number of time-outs, and so does the second half.
void EuroLeagueSheet::beginPeriod(int period) {
  constexpr int kSecondHalf = 3;
  m_period = period;
  m_hasEnded = false;
  for (std::vector<int>& points : m_points)
    points.resize(std::max(points.size(), static_cast<std::size_t>(period)));
  addMarker(EuroLeagueRow::PeriodStart,
            (period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * 6000);
  if (period == kSecondHalf || period > kEuroLeagueQuarters) {
    for (const Side team : kSides)
      m_counts[{team, -1}]["timeouts"] = 0;
  }
}
void EuroLeagueSheet::endPeriod() {
  if (!m_hasEnded)
    addMarker(EuroLeagueRow::PeriodEnd, 0);
  m_hasEnded = true;
}

void EuroLeagueSheet::addMarker(EuroLeagueRow row, int centiseconds) {
  ForeignEvent event;
  event.centiseconds = centiseconds;
  add(euroLeagueKind(row), event, {});
}

EuroLeaguePlay& EuroLeagueSheet::add(const EuroLeagueKind& kind, const ForeignEvent& event,
                                     const Doer& doer) {
  EuroLeaguePlay& play = m_plays.emplace_back();
  play.kind = &kind;
  play.number = static_cast<int>(m_plays.size());
  play.period = std::max(m_period, 1);
  play.centiseconds = event.centiseconds;
  play.doer = doer;
  play.words = kind.row == EuroLeagueRow::JumpBall ? std::string() : std::string(kind.words);
  if (const std::string_view counter = counterOf(kind); !counter.empty())
    play.words += " (" + std::to_string(++m_counts[{doer.team, doer.player}][counter]) + ')';
  return play;
}

void EuroLeagueSheet::takePlay(const ForeignEvent& event) {
  const EuroLeagueKind* kind = kindFor(event);
  const Doer doer = event.code == EventCode::XJB ? Doer{event.wonBy} : event.doer;
  if (kind == nullptr || (!doer.isPlayer() && !canBeOfTeam(*kind, doer)))
    return;
  const bool hasOther = event.other.isPlayer() && event.other.team != doer.team;
  if (hasOther && event.code == EventCode::SBS)
    add(euroLeagueKind(EuroLeagueRow::Rejected), event, event.other);
  EuroLeaguePlay& play = add(*kind, event, doer);
  if (isShot(kind->code))
    countShot(event, play);
  if (hasOther && (event.code == EventCode::SPF || event.code == EventCode::STF))
    add(euroLeagueKind(EuroLeagueRow::FoulDrawn), event, event.other);
}

void EuroLeagueSheet::countShot(const ForeignEvent& event, EuroLeaguePlay& play) {
  const EventCode code = play.kind->code;
  std::map<std::string_view, int>& counts = m_counts[{event.doer.team, event.doer.player}];
  int& made = counts[code == EventCode::GFT ? "FTM" : code == EventCode::GF3 ? "F3M" : "FGM"];
  int& attempts = counts[code == EventCode::GFT ? "FTA" : code == EventCode::GF3 ? "F3A" : "FGA"];
  int& points = counts["PTS"];
  ++attempts;
  if (event.isMade) {
    const Side team = *event.doer.team;
    ++made;
    points += pointsOf(code);
    m_score[team] += pointsOf(code);
    m_points[team][static_cast<std::size_t>(m_period - 1)] += pointsOf(code);
  }
  play.words +=
      " (" + std::to_string(made) + '/' + std::to_string(attempts) + " -  " + std::to_string(points) + " pt)";
  play.shot = &event;
  play.score = m_score;
  const ShotOrigin& origin = m_origins[static_cast<std::size_t>(&event - m_game.events.data())];
  play.isOfSecondChance = event.isMade && origin.isSecondChance;
  play.isOfTurnover = event.isMade && origin.isFromTurnover;
}

} // namespace hooptab
