#include "feed/FeedPlays.h"

#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/PlayerLookup.h"
#include "game/Rules.h"
#include "game/RunningScore.h"
#include "insight/ShotPartners.h"
#include "recording/LiveWords.h"
#include "recording/OnCourt.h"
#include "settings/Settings.h"

#include <map>
#include <set>

namespace hooptab {

namespace {

std::string_view kindName(EventCode code) {
  switch (code) {
  case EventCode::GFG: return "two";
  case EventCode::GF3: return "three";
  case EventCode::GFT: return "freeThrow";
  case EventCode::GLG: return "layupLeft";
  case EventCode::GLD: return "layupRight";
  case EventCode::GPB: return "putBack";
  case EventCode::GDK: return "dunk";
  case EventCode::SA: return "assist";
  case EventCode::SBS: return "block";
  case EventCode::SST: return "steal";
  case EventCode::STO:
  case EventCode::XTV: return "turnover";
  case EventCode::SOR:
  case EventCode::SDR:
  case EventCode::XOR:
  case EventCode::XDR: return "rebound";
  case EventCode::SPF: return "foul";
  case EventCode::STF: return "technical";
  case EventCode::XCF: return "benchTechnical";
  case EventCode::XTO: return "timeOut";
  case EventCode::XJB: return "jumpBall";
  default: return "other";
  }
}

bool isTold(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted && event.code != EventCode::XAR;
}

// Which steal took the ball of which turnover, by place: of the other team, at the same clock, next to it.
std::map<std::size_t, std::size_t> stolenBalls(const EventList& events) {
  std::map<std::size_t, std::size_t> stolen;
  std::optional<std::size_t> before;
  std::set<std::size_t> used;
  for (std::size_t place = 0; place < events.size(); ++place) {
    const GameEvent& event = events[place];
    if (!isTold(event) || event.isClock())
      continue;
    if (before && !used.contains(*before)) {
      const GameEvent& last = events[*before];
      const bool isPair = (last.code == EventCode::STO && event.code == EventCode::SST) ||
                          (last.code == EventCode::SST && event.code == EventCode::STO);
      if (isPair && last.period == event.period && last.clockSeconds == event.clockSeconds &&
          last.player.team != event.player.team) {
        stolen[event.code == EventCode::STO ? place : *before] =
            event.code == EventCode::SST ? place : *before;
        used.insert(place);
      }
    }
    before = place;
  }
  return stolen;
}

class Teller {
 public:
  Teller(const CountedGame& counted, const Texts& texts)
      : m_game(counted.game), m_events(counted.game.events), m_texts(texts),
        m_fouls(foulNumbers(counted.game)), m_scores(runningScore(counted.game.events)),
        m_blocks(blockedShots(counted.game.events)), m_steals(stolenBalls(counted.game.events)) {
    for (std::size_t place = 0; place < m_events.size(); ++place) {
      if (const auto assist = isTold(m_events[place]) ? assistOf(m_events, place) : std::nullopt)
        m_assists[place] = *assist;
    }
    for (const auto* partners : {&m_assists, &m_blocks, &m_steals}) {
      for (const auto& [main, partner] : *partners)
        m_partners.insert(partner);
    }
  }

  std::vector<FeedPlay> plays() {
    for (std::size_t place = 0; place < m_events.size(); ++place) {
      const GameEvent& event = m_events[place];
      if (!isTold(event) || m_partners.contains(place))
        continue;
      if (event.isClock())
        addSubstitution(place);
      else
        addPlay(place);
    }
    return std::move(m_plays);
  }

 private:
  FeedPlay begun(std::size_t place) const {
    const GameEvent& event = m_events[place];
    FeedPlay play;
    play.id = std::to_string(event.period) + '-' + std::string(event.key);
    play.period = event.period;
    play.clockSeconds = event.clockSeconds;
    play.score = m_scores[place];
    return play;
  }

  FeedPlay::Person personOf(const PlayerReference& reference) const {
    FeedPlay::Person person{.team = reference.team, .jersey = {}, .name = {}};
    if (!reference.team || reference.jersey.empty())
      return person;
    const Roster& roster = m_game.roster[*reference.team];
    person.entry = roster.entryOf(reference.jersey);
    person.jersey = reference.jersey;
    if (const RosterPlayer* listed = findPlayer(roster, reference.jersey)) {
      person.jersey = listed->jersey;
      person.name = listed->name;
    }
    return person;
  }

  void setWords(FeedPlay& play, const GameEvent& event) const {
    const EventKind& kind = *event.kind();
    for (const LanguageFacts& facts : kLanguages) {
      const Language language = facts.language;
      std::string& words = play.words[indexOf(language)];
      words = nameOf(event.code, m_texts.text(kind.wordsText, language));
      const auto detail = event.detail(detail_key::kKind);
      if (!detail)
        continue;
      for (const KindWord& known : detailKinds(event.code)) {
        if (known.value == *detail && known.isSaid)
          words += ", " + std::string(m_texts.text(known.text, language));
      }
    }
  }

  // A statistic of the user's own has the name that he gave it.
  std::string nameOf(EventCode code, std::string_view words) const {
    const std::string own = code == EventCode::SU1   ? Settings::shownLabel(m_game.details.statisticLabel[0])
                            : code == EventCode::SU2 ? Settings::shownLabel(m_game.details.statisticLabel[1])
                                                     : std::string();
    return own.empty() ? std::string(words) : own;
  }

  void addPlay(std::size_t place) {
    const GameEvent& event = m_events[place];
    FeedPlay play = begun(place);
    play.kind = kindName(event.code);
    play.who = personOf(event.player);
    setWords(play, event);
    play.isShot = event.isShot();
    if (event.isShot())
      addShot(play, event);
    if (isFoul(event.code))
      addFoul(play, event, m_fouls[place]);
    addPartner(play, place, m_assists, "assist");
    addPartner(play, place, m_blocks, "block");
    addPartner(play, place, m_steals, "steal");
    m_plays.push_back(std::move(play));
  }
  void addShot(FeedPlay& play, const GameEvent& event) {
    play.isMade = event.isMade;
    if (event.hasPlace)
      play.place = court::Place{event.x, event.y};
    if (!event.isMade || !event.player.team)
      return;
    play.points = event.kind()->points;
    play.total = m_counts[*event.player.team][countedAs(play.who)].points += play.points;
  }
  void addFoul(FeedPlay& play, const GameEvent& event, const FoulNumber& number) {
    play.fouls = number.ofPlayer;
    play.teamFouls = number.ofTeam;
    if (!event.player.team || play.who.jersey.empty())
      return;
    PlayerFouls& fouls = m_counts[*event.player.team][countedAs(play.who)].fouls;
    const bool wasOut = isFouledOut(m_game.details, fouls);
    ++(event.code == EventCode::STF ? fouls.technical : fouls.personal);
    play.isOut = !wasOut && isFouledOut(m_game.details, fouls);
  }
  // Those whom no roster has are told apart by their jerseys.
  static std::string countedAs(const FeedPlay::Person& person) {
    return person.entry > 0 ? '#' + std::to_string(person.entry) : person.jersey;
  }
  void addPartner(FeedPlay& play, std::size_t place, const std::map<std::size_t, std::size_t>& partners,
                  std::string_view kind) const {
    if (const auto found = partners.find(place); found != partners.end())
      play.with = FeedPlay::Partner{personOf(m_events[found->second].player), kind};
  }

  // The starting fives change nobody.
  void addSubstitution(std::size_t place) {
    const std::optional<OnCourt> lists =
        onCourtOf(m_events[place], {m_game.roster[Side::Visitor], m_game.roster[Side::Home]});
    if (!lists)
      return;
    PerSide<FeedPlay::Change> changes;
    bool isAny = false;
    std::optional<Side> only;
    for (const Side team : kSides) {
      if (m_onCourt[team] == 0 || m_onCourt[team] == (*lists)[team])
        continue;
      changes[team] = {jerseys(team, (*lists)[team] & ~m_onCourt[team]),
                       jerseys(team, m_onCourt[team] & ~(*lists)[team])};
      only = isAny ? std::nullopt : std::optional(team);
      isAny = true;
    }
    m_onCourt = *lists;
    if (!isAny)
      return;
    FeedPlay play = begun(place);
    play.kind = "substitution";
    play.who.team = only;
    for (const LanguageFacts& facts : kLanguages)
      play.words[indexOf(facts.language)] = m_texts.text(Text::Substitution, facts.language);
    play.changes = std::move(changes);
    m_plays.push_back(std::move(play));
  }
  std::vector<std::string> jerseys(Side team, unsigned entries) const {
    std::vector<std::string> found;
    for (int entry = 1; entry <= kMostPlayers; ++entry) {
      if ((entries >> static_cast<unsigned>(entry) & 1U) != 0)
        found.push_back(m_game.roster[team].player(entry)->jersey);
    }
    return found;
  }

  struct Counts {
    int points = 0;
    PlayerFouls fouls;
  };

  const Game& m_game;
  const EventList& m_events;
  const Texts& m_texts;
  std::vector<FoulNumber> m_fouls;
  Scores m_scores;
  std::map<std::size_t, std::size_t> m_assists, m_blocks, m_steals;
  std::set<std::size_t> m_partners; // told with what they belong to
  PerSide<std::map<std::string, Counts>> m_counts = {};
  OnCourt m_onCourt = {};
  std::vector<FeedPlay> m_plays;
};

} // namespace

std::vector<FeedPlay> feedPlays(const CountedGame& counted, const Texts& texts) {
  return counted.game.details.inputType != 0 ? std::vector<FeedPlay>() : Teller(counted, texts).plays();
}

} // namespace hooptab
