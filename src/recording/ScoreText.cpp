#include "recording/ScoreText.h"

#include "game/EventWords.h"
#include "recording/LiveFigures.h"
#include "storage/Module1.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kNoTime = "--:--";
constexpr std::string_view kOver = "---";
constexpr std::size_t kLengthOfClock = 5; // mm:ss

std::string timeShown(const LiveMoment& game, int seconds) {
  return game.hasTime() ? Module1::clockText(seconds) : std::string(kNoTime);
}

} // namespace

std::string clockShown(const LiveMoment& game) {
  return timeShown(game, game.clockSeconds());
}

std::string leadTimeShown(const LiveGame& game, LeadState state) {
  return timeShown(game, LiveFigures(game).secondsInLead(state));
}

std::string periodShown(const LiveGame& game, const Texts& texts) {
  return EventWords(game.game(), texts).periodText(game.period());
}

std::string startShown(const LiveGame& game, const Texts& texts) {
  switch (game.phase()) {
  case LiveGame::Phase::Running: return texts.caption(Text::Stop);
  case LiveGame::Phase::Decided:
  case LiveGame::Phase::Finished:
  case LiveGame::Phase::ReadOnly: return std::string(kOver);
  case LiveGame::Phase::Stopped:
  case LiveGame::Phase::OvertimeAsked: break;
  }
  return texts.caption(Text::Start);
}

ScoreByPeriod scoreByPeriod(const LiveGame& game, const Texts& texts) {
  constexpr int kLastRow = static_cast<int>(GameState::kPeriodRows) - 1;
  const GameState& state = game.state();
  ScoreByPeriod score{.periods = {}, .points = {state.points(Side::Visitor), state.points(Side::Home)}};
  for (int period = 1; period <= std::min(std::max<int>(state.period, game.period()), kLastRow); ++period) {
    std::string shown = EventWords(game.game(), texts).periodText(period);
    if (period == kLastRow)
      shown += '+'; // shared by all later periods
    const auto row = static_cast<std::size_t>(period);
    score.periods.push_back(
        {std::move(shown), {state.periods[Side::Visitor][row], state.periods[Side::Home][row]}});
  }
  return score;
}

std::string shownByPeriod(const LiveGame& game, Side team, ByPeriod what, const Texts& texts) {
  std::string result;
  for (const ScoreByPeriod::Row& row : scoreByPeriod(game, texts).periods) {
    const PeriodEntry& entry = row.ofTeam[team];
    result += result.empty() ? "" : "   ";
    result += row.period + ": " + std::to_string(what == ByPeriod::Points ? entry.points : entry.fouls);
  }
  return result;
}

std::optional<int> typedClock(std::string_view text, int longest) {
  constexpr std::size_t kDigits = 2; // of the minutes, and of the seconds
  std::string whole(Module1::trimmed(text));
  if (whole.find(':') == std::string::npos) {
    if (whole.size() <= kDigits)
      whole += "00";
    whole.insert(whole.size() - kDigits, 1, ':');
  }
  if (whole.size() + 1 == kLengthOfClock)
    whole.insert(0, 1, '0');
  const std::optional<int> seconds = Module1::clockSeconds(whole);
  return seconds && *seconds <= longest ? seconds : std::nullopt;
}

} // namespace hooptab
