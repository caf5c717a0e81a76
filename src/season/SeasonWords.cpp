#include "season/SeasonWords.h"

#include "game/Glossary.h"
#include "scorecard/BoxScore.h"
#include "scorecard/ColumnWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

// Two- and three-point field goals together, which have a column for each end of the name.
constexpr std::pair<std::string_view, Text> kFieldGoalColumns[] = {
    {"FGM", Text::MadeOf}, {"FGA", Text::AttemptsOf}, {"FG%", Text::PercentageOf}, {"FGPTS", Text::PointsOf}};
// The names of the same columns in a single game's table, where they differ.
constexpr std::pair<std::string_view, std::string_view> kBoxNames[] = {
    {"TGM", "M"},   {"TGA", "A"},       {"F2M", "FGM"}, {"F2A", "FGA"},
    {"F2%", "FG%"}, {"F2PTS", "FGPTS"}, {"U1", "S1"},   {"U2", "S2"}};

template <typename Table>
auto found(const Table& table, std::string_view name) {
  const auto* const place = std::ranges::find(table, name, [](const auto& row) { return row.first; });
  return place == std::end(table) ? nullptr : place;
}

} // namespace

std::string seasonColumnWords(int column, const Settings& settings, const Texts& texts,
                              const OwnLabels& labels) {
  const std::string_view name = seasonColumn(column).name;
  if (const auto* goals = found(kFieldGoalColumns, name))
    return texts.withPlaceholder(goals->second, texts.text(Text::FieldGoals));
  const auto* other = found(kBoxNames, name);
  const std::string_view boxName = other == nullptr ? name : other->second;
  const auto box = std::ranges::find(boxColumns(), boxName, &BoxColumn::name);
  const std::string ofGames[2] = {labels[0], labels[1]};
  // Or one that a single game's table does not have.
  return box == boxColumns().end() ? std::string(texts.text(termWords(name)))
                                   : columnWords(box->index, ofGames, settings, texts);
}

std::string markWords(const Qualification& minimum, SeasonTable table, SeasonView view, const Texts& texts) {
  const bool isOfTime = view == SeasonView::PerMinute || view == SeasonView::PerForty;
  if (table == SeasonTable::Lines)
    return std::string(isOfTime ? texts.text(Text::ShortTimeWarning) : std::string_view());
  if (isOfTime)
    return texts.withPlaceholder(Text::UnderMinutes, std::to_string(minimum.minutes));
  return view == SeasonView::PerGame
             ? texts.withPlaceholder(Text::UnderGames, std::to_string(minimum.gamesPercent))
             : std::string();
}

std::string minimumWords(const Qualification& minimum, SeasonView view, const Texts& texts) {
  Text text = Text::MinimumOfTotals;
  int least = 0;
  switch (view) {
  case SeasonView::Totals: break;
  case SeasonView::PerGame:
    text = Text::MinimumPerGame;
    least = minimum.gamesPercent;
    break;
  case SeasonView::PerMinute:
  case SeasonView::PerForty:
    text = Text::MinimumPerTime;
    least = minimum.minutes;
    break;
  }
  return withPlaceholders(texts.text(text), std::to_string(least), std::to_string(minimum.attempts));
}

std::string copyWords(const GameCatalogue& catalogue, const ListedGame& game, const Texts& texts) {
  if (!game.copyOf)
    return {};
  const ListedGame& other = catalogue.games()[*game.copyOf];
  return texts.withPlaceholder(
      game.fingerprint == other.fingerprint ? Text::SameGameAs : Text::SameGameOtherEvents, other.path);
}

} // namespace hooptab
