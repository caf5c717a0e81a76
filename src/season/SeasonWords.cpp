#include "season/SeasonWords.h"

#include "scorecard/BoxScore.h"
#include "scorecard/ColumnWords.h"
#include "scorecard/ScorecardTexts.h"
#include "season/SeasonTexts.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

// Columns that a single game's table does not have.
constexpr std::pair<std::string_view, int> kOwnColumns[] = {
    {"G", kGamesPlayed}, {"TR", kTotalRebounds}, {"#", kRankRule}, {"PosHist", kPositionsHeld}};
// Two- and three-point field goals together, which have a column for each end of the name.
constexpr std::pair<std::string_view, int> kFieldGoalColumns[] = {
    {"FGM", kMadeOf}, {"FGA", kAttemptsOf}, {"FG%", kPercentageOf}, {"FGPTS", kPointsOf}};
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

std::string seasonColumnWords(int column, const Settings& settings, const Texts& texts) {
  const std::string_view name = seasonColumn(column).name;
  if (const auto* own = found(kOwnColumns, name))
    return std::string(texts.text(own->second));
  if (const auto* goals = found(kFieldGoalColumns, name))
    return texts.withPlaceholder(goals->second, texts.text(kFieldGoals));
  const auto* other = found(kBoxNames, name);
  const std::string_view boxName = other == nullptr ? name : other->second;
  const auto box = std::ranges::find(boxColumns(), boxName, &BoxColumn::name);
  static const std::string kNoLabels[2]; // a season has many games, whose labels may differ
  return box == boxColumns().end() ? std::string(name) : columnWords(box->index, kNoLabels, settings, texts);
}

} // namespace hooptab
