#include "report/ScoutKeys.h"

#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "report/ReportWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr ShotKinds kLeftKind = shotKinds({EventCode::GLG});
constexpr ShotKinds kRightKind = shotKinds({EventCode::GLD});
constexpr int kForty = 40 * 60;
constexpr int kRegularSeconds = 10 * 60; // in a game

// What is worth telling: a good shooter from afar, a poor one, a poor one from the line, and who has a side.
constexpr double kGoodThrees = 1.0 / 3;
constexpr double kPoorThrees = 0.28;
constexpr double kPoorThrows = 0.7;
constexpr double kClearSide = 0.6; // of layups

using Weighed = std::optional<std::pair<double, double>>;

double perGame(const ScoutedPlayer& player, int count) {
  return static_cast<double>(count) / player.games;
}
std::string perGameText(const ScoutedPlayer& player, int count) {
  return Module1::quotientText(count, player.games, 1);
}
int countOf(const ScoutedPlayer& player, Counter counter) {
  return static_cast<int>(player.numbers.counters[counter]);
}

// A share of a kind of shot, weighed by its attempts.
Weighed shareOf(const ScoutedPlayer& player, ShotKinds kinds, int least) {
  const int attempted = player.numbers.attempted(kinds);
  if (attempted < least)
    return std::nullopt;
  return std::pair(static_cast<double>(player.numbers.made(kinds)) / attempted,
                   static_cast<double>(attempted));
}
Weighed poorShareOf(const ScoutedPlayer& player, ShotKinds kinds, int least, double poor) {
  Weighed share = shareOf(player, kinds, least);
  if (!share || share->first >= poor)
    return std::nullopt;
  share->first = -share->first;
  return share;
}
std::string fractionOf(const ScoutedPlayer& player, ShotKinds kinds) {
  return fractionText({player.numbers.made(kinds), player.numbers.attempted(kinds)});
}
// " (46%)".
std::string percentOf(const ScoutedPlayer& player, ShotKinds kinds) {
  return " (" + wholePercent(shareOf(player, kinds, 1)->first) + ')';
}

// One behind the other, the last one closed.
ScoutKeys::Sentence joined(std::vector<ScoutKeys::Sentence> clauses) {
  ScoutKeys::Sentence all;
  for (ScoutKeys::Sentence& clause : clauses) {
    if (clause.empty())
      continue;
    if (!all.empty())
      all.back().text += ' ';
    std::ranges::move(clause, std::back_inserter(all));
    all.back().text += '.';
  }
  return all;
}

} // namespace

std::vector<ScoutKeys::Sentence> ScoutKeys::sentences() const {
  constexpr std::size_t kClauses = 2; // in one sentence
  std::vector<Sentence> shooters = {threes(), foul(), leave(), boards()};
  std::erase_if(shooters, [](const Sentence& clause) { return clause.empty(); });
  shooters.resize(std::min(shooters.size(), kClauses));
  std::vector<Sentence> sentences = {joined({scorer()}), joined(std::move(shooters)),
                                     joined({periods(), press()})};
  std::erase_if(sentences, [](const Sentence& sentence) { return sentence.empty(); });
  if (sentences.empty())
    sentences.push_back({{std::string(m_texts.text(Text::ScoutKeysNone)) + '.'}});
  return sentences;
}

std::optional<double> ScoutKeys::driveShare(const BoxNumbers& numbers) {
  const int drives = numbers.attempted(kLeftKind | kRightKind);
  if (drives < kLeastDrives)
    return std::nullopt;
  return static_cast<double>(numbers.attempted(kRightKind)) / drives;
}

const ScoutedPlayer* ScoutKeys::highest(Value value) const {
  const ScoutedPlayer* best = nullptr;
  Weighed most;
  for (const ScoutedPlayer& player : m_players) {
    if (const Weighed own = value(player); own && (!most || *own > *most)) {
      best = &player;
      most = own;
    }
  }
  return best;
}

ScoutKeys::Sentence ScoutKeys::named(Text text, const std::string& name, const std::string& y,
                                     const std::string& z) const {
  constexpr std::string_view kName = "XXX";
  const std::string_view words = m_texts.text(text);
  const std::size_t at = words.find(kName);
  if (at == std::string_view::npos)
    return {{withPlaceholders(words, name, y, z)}};
  return {{std::string(words.substr(0, at)) + name, true},
          {withPlaceholders(words.substr(at + kName.size()), name, y, z)}};
}

ScoutKeys::Sentence ScoutKeys::scorer() const {
  const ScoutedPlayer* player = highest([](const ScoutedPlayer& each) -> Weighed {
    const int shots = each.numbers.attempted(kFieldKinds);
    if (shots < kLeastShots)
      return std::nullopt;
    return std::pair(perGame(each, each.numbers.points()), static_cast<double>(shots));
  });
  if (player == nullptr)
    return {};
  const BoxNumbers& numbers = player->numbers;
  Sentence sentence = named(Text::ScoutKeyScorer, player->name, perGameText(*player, numbers.points()),
                            perGameText(*player, numbers.attempted(kFieldKinds)));
  std::string& words = sentence.back().text;
  words += " (" + fractionOf(*player, kFieldKinds) + ", eFG " +
           wholePercent(rateNamed("eFG").value({Side::Visitor, numbers, {}})) + ')';
  const auto right = driveShare(numbers);
  if (right && std::max(*right, 1 - *right) >= kClearSide) {
    const bool isRight = *right >= kClearSide;
    const int drives = numbers.attempted(isRight ? kRightKind : kLeftKind);
    words += "; " + m_texts.withPlaceholder(
                        isRight ? Text::ScoutKeyLayups : Text::ScoutKeyLayupsLeft,
                        wholePercent(isRight ? *right : 1 - *right) + " (" +
                            fractionText({drives, numbers.attempted(kLeftKind | kRightKind)}) + ')');
  }
  return sentence;
}

ScoutKeys::Sentence ScoutKeys::ofShots(Text text, const ScoutedPlayer* player, ShotKinds kinds) const {
  if (player == nullptr)
    return {};
  Sentence sentence = named(text, player->name, fractionOf(*player, kinds));
  sentence.back().text += percentOf(*player, kinds);
  return sentence;
}

ScoutKeys::Sentence ScoutKeys::threes() const {
  const auto* player = highest([](const ScoutedPlayer& each) -> Weighed {
    const Weighed share = shareOf(each, kThreeKinds, kLeastThrees);
    return share && share->first >= kGoodThrees ? share : std::nullopt;
  });
  return ofShots(Text::ScoutKeyThrees, player, kThreeKinds);
}

ScoutKeys::Sentence ScoutKeys::leave() const {
  const auto* player = highest(
      [](const ScoutedPlayer& each) { return poorShareOf(each, kThreeKinds, kLeastThrees, kPoorThrees); });
  return ofShots(Text::ScoutKeyLeave, player, kThreeKinds);
}

ScoutKeys::Sentence ScoutKeys::foul() const {
  const auto* player = highest(
      [](const ScoutedPlayer& each) { return poorShareOf(each, kThrowKinds, kLeastThrows, kPoorThrows); });
  return ofShots(Text::ScoutKeyFoul, player, kThrowKinds);
}

ScoutKeys::Sentence ScoutKeys::boards() const {
  const ScoutedPlayer* player = highest([](const ScoutedPlayer& each) -> Weighed {
    const int boards = countOf(each, Counter::OR);
    if (boards < kLeastCounts)
      return std::nullopt;
    return std::pair(perGame(each, boards), static_cast<double>(boards));
  });
  if (player == nullptr)
    return {};
  const int boards = countOf(*player, Counter::OR);
  Sentence sentence = named(Text::ScoutKeyBoards, player->name, perGameText(*player, boards));
  sentence.back().text += " (" + std::to_string(boards) + " OR)";
  return sentence;
}

ScoutKeys::Sentence ScoutKeys::press() const {
  const ScoutedPlayer* player = highest([](const ScoutedPlayer& each) -> Weighed {
    const int losses = countOf(each, Counter::TO);
    if (losses < kLeastCounts || each.numbers.seconds < kRegularSeconds * each.games)
      return std::nullopt;
    return std::pair(static_cast<double>(losses) / each.numbers.seconds, static_cast<double>(losses));
  });
  if (player == nullptr)
    return {};
  const int losses = countOf(*player, Counter::TO);
  Sentence sentence = named(Text::ScoutKeyPress, player->name,
                            Module1::quotientText(std::int64_t{losses} * kForty, player->numbers.seconds, 1));
  sentence.back().text += " (" + std::to_string(losses) + " TO)";
  return sentence;
}

// The worst is one that they lose; the best, one that they win, goes on with its sentence.
ScoutKeys::Sentence ScoutKeys::periods() const {
  const auto margin = [this](std::size_t period) {
    return m_periods[period].pointsFor - m_periods[period].pointsAgainst;
  };
  std::optional<std::size_t> worst;
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < m_periods.size(); ++i) {
    if (m_periods[i].games < kLeastGames)
      continue;
    if (margin(i) < (worst ? margin(*worst) : 0))
      worst = i;
    if (margin(i) > (best ? margin(*best) : 0))
      best = i;
  }
  if (!worst)
    return {};
  Sentence sentence = named(Text::ScoutKeyWorst, std::to_string(*worst + 1), signedText(margin(*worst)),
                            std::to_string(m_periods[*worst].games));
  if (best)
    sentence.back().text += ", " + withPlaceholders(m_texts.text(Text::ScoutKeyBest),
                                                    std::to_string(*best + 1), signedText(margin(*best)));
  return sentence;
}

} // namespace hooptab
