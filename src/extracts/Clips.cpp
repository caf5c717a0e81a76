#include "extracts/Clips.h"

#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/EventWords.h"
#include "game/PlayerLookup.h"
#include "storage/Module1.h"

#include <algorithm>
#include <ranges>

namespace hooptab {

namespace {

constexpr std::size_t kSideLength = 2; // "0-"

bool isClip(const GameEvent& event) {
  return !event.isClock() && event.code != EventCode::XAR;
}

class Filter {
 public:
  Filter(const Game& game, const GameWalk& walk, const ClipFilter& filter)
      : m_game(game), m_walk(walk), m_filter(filter) {
    if (filter.player)
      m_player = PlayerReference::read(*filter.player);
    if (!filter.line || !isClipLine(*filter.line))
      return;
    m_lineTeam = sideOf(Module1::wholeNumber(filter.line->substr(0, 1)));
    m_line = jerseysOf("IN-" + filter.line->substr(kSideLength), game.roster[*m_lineTeam]);
  }

  [[nodiscard]] bool isWanted(const WalkedEvent& walked) const {
    const GameEvent& event = m_game.events[walked.place];
    return isClip(event) && (!m_filter.period || event.period == *m_filter.period) &&
           (!m_filter.team || event.player.team == *m_filter.team) && isOfKind(event) && isOfPlayer(event) &&
           (!m_filter.line || (m_lineTeam && m_walk.onCourt(walked, *m_lineTeam) == m_line));
  }

 private:
  [[nodiscard]] bool isOfKind(const GameEvent& event) const {
    return m_filter.kinds.empty() || std::ranges::any_of(m_filter.kinds, [&](const ClipKind& kind) {
             return event.code == kind.code && (!event.isShot() || event.isMade != kind.isMissed);
           });
  }
  [[nodiscard]] bool isOfPlayer(const GameEvent& event) const {
    if (!m_filter.player)
      return true;
    if (!m_player)
      return false;
    const Roster& roster = m_game.roster[*m_player->team];
    const RosterPlayer* const wanted = findPlayer(roster, m_player->jersey);
    return std::ranges::any_of(playersNamedBy(event), [&](const PlayerReference& who) {
      return who.team == m_player->team &&
             (wanted != nullptr ? findPlayer(roster, who.jersey) == wanted : who.jersey == m_player->jersey);
    });
  }

  const Game& m_game;
  const GameWalk& m_walk;
  const ClipFilter& m_filter;
  std::optional<PlayerReference> m_player;
  std::optional<Side> m_lineTeam;
  std::vector<std::string> m_line;
};

class ClipWords {
 public:
  ClipWords(const Game& game, const GameWalk& walk, const Texts& texts)
      : m_game(game), m_walk(walk), m_texts(texts), m_words(game, texts) {}

  [[nodiscard]] std::string code(const WalkedEvent& walked) const {
    const GameEvent& event = m_game.events[walked.place];
    // Whether a shot was made is a label, so that all of a kind are one row.
    const std::string action = event.isShot() ? std::string(m_texts.text(event.kind()->wordsText))
                               : event.code == EventCode::XJB ? std::string(m_texts.text(Text::JumpBall))
                                                              : m_words.parts(walked.place).action;
    return event.player.team ? std::string(m_words.team(*event.player.team)) + ' ' + action : action;
  }

  [[nodiscard]] std::vector<std::pair<std::string, std::string>> labels(const WalkedEvent& walked) const {
    const GameEvent& event = m_game.events[walked.place];
    std::vector<std::pair<std::string, std::string>> labels;
    const auto add = [&](Text group, std::string text) {
      if (!text.empty())
        labels.emplace_back(m_texts.text(group), std::move(text));
    };
    if (event.isOfPlayer())
      add(Text::PlayerWord, m_words.player(event.player));
    add(Text::Period, m_words.periodText(event.period));
    add(Text::Clock, m_words.clock(walked.place));
    add(Text::Score,
        std::to_string(walked.after[Side::Visitor]) + '-' + std::to_string(walked.after[Side::Home]));
    if (event.player.team)
      add(Text::Line, lineText(m_walk.onCourt(walked, *event.player.team)));
    if (event.isShot())
      add(Text::ResultLabel, std::string(m_texts.text(event.isMade ? Text::Made : Text::Missed)));
    add(Text::DetailLabel, detailWords(event, m_words, m_texts));
    return labels;
  }

 private:
  static std::string lineText(const std::vector<std::string>& jerseys) {
    std::string line;
    for (const std::string& jersey : jerseys)
      line.append(line.empty() ? "" : "-").append(jersey);
    return line;
  }

  const Game& m_game;
  const GameWalk& m_walk;
  const Texts& m_texts;
  EventWords m_words;
};

std::optional<ClipKind> readKind(std::string_view text) {
  const auto kindNamed = [](std::string_view name) -> const EventKind* {
    const auto ofPlayer = std::ranges::find(kEventKinds, name, &EventKind::text);
    if (ofPlayer != kEventKinds.end())
      return &*ofPlayer;
    const auto ofTeam = std::ranges::find(kTeamKinds, name, &EventKind::text);
    return ofTeam != kTeamKinds.end() ? &*ofTeam : nullptr;
  };
  if (const EventKind* const kind = kindNamed(text))
    return kind->code == EventCode::XAR ? std::nullopt : std::optional(ClipKind{kind->code, false});
  const EventKind* const missed = text.ends_with('A') ? kindNamed(text.substr(0, text.size() - 1)) : nullptr;
  return missed != nullptr && missed->isShot ? std::optional(ClipKind{missed->code, true}) : std::nullopt;
}

} // namespace

std::optional<std::vector<ClipKind>> readClipKinds(std::string_view text) {
  std::vector<ClipKind> kinds;
  for (const auto part : std::views::split(text, ',')) {
    const auto kind = readKind(Module1::trimmed(std::string_view(part.begin(), part.end())));
    if (!kind)
      return std::nullopt;
    kinds.push_back(*kind);
  }
  return kinds.empty() ? std::nullopt : std::optional(kinds);
}

bool isClipLine(std::string_view text) {
  return (text.starts_with("0-") || text.starts_with("1-")) && text.size() > kSideLength &&
         Module1::isOnCourtList("IN-" + std::string(text.substr(kSideLength)));
}

ClipList clipsOf(const ExtractSource& source, const ClipRequest& request, const Texts& texts) {
  const Game& game = source.game();
  const GameWalk walk = walkGame(game);
  VideoTimes times = videoTimes(source, request.anchors);
  const Filter filter(game, walk, request.filter);
  const ClipWords words(game, walk, texts);
  ClipList list;
  // What is told of the whole game's events is told of those that are wanted.
  std::erase_if(times.notes, [](const VideoNote& note) { return note.problem == VideoProblem::Unreached; });
  list.notes = std::move(times.notes);
  for (const WalkedEvent& walked : walk.events) {
    if (!filter.isWanted(walked))
      continue;
    ++list.wanted;
    const auto time = times.at(walked.place);
    if (!time || *time < 0) {
      ++list.unreached;
      continue;
    }
    Clip clip;
    clip.place = walked.place;
    clip.start = std::max<VideoTime>(*time - std::max<VideoTime>(request.before, 0), 0);
    clip.end = *time + std::max<VideoTime>(request.after, 0);
    clip.team = game.events[walked.place].player.team;
    clip.code = words.code(walked);
    clip.labels = words.labels(walked);
    list.clips.push_back(std::move(clip));
  }
  if (list.unreached > 0)
    list.notes.push_back({VideoProblem::Unreached, list.unreached, list.wanted});
  return list;
}

} // namespace hooptab
