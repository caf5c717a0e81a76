#include "scorecard/ColumnWords.h"

#include "game/Glossary.h"
#include "scorecard/BoxScore.h"

namespace hooptab {

namespace {

constexpr Text kPartTexts[] = {Text::MadeOf, Text::AttemptsOf, Text::PercentageOf, Text::PointsOf};

constexpr std::string_view kRatingColumn = "rating";

// "Your own: HEART = PTS + 2 * ST".
std::string ownRatingWords(const Settings& settings, const Texts& texts) {
  const OwnRatingChoice& own = settings.ownRating;
  const std::string named = own.name.empty() ? own.formula : own.name + " = " + own.formula;
  return texts.withPlaceholder(Text::OwnRatingTip, named);
}

std::string partWords(ShotPart part, Text shots, const Texts& texts) {
  return texts.withPlaceholder(kPartTexts[static_cast<std::size_t>(part)], texts.text(shots));
}

std::string ownStatistic(std::size_t index, StatisticLabels labels, const Settings& settings,
                         const Texts& texts) {
  std::string label = Settings::shownLabel(labels[index]);
  if (label.empty())
    label = Settings::shownLabel(settings.statisticLabel[index]);
  std::string words =
      texts.withPlaceholder(index == 0 ? Text::FirstOwnStatistic : Text::SecondOwnStatistic, label);
  if (label.empty())
    words.resize(words.find_last_not_of(" :") + 1); // nothing stands behind the colon
  return words;
}

} // namespace

std::string statisticWords(const Statistic& statistic, StatisticLabels labels, const Settings& settings,
                           const Texts& texts) {
  if (statistic.own >= 0)
    return ownStatistic(static_cast<std::size_t>(statistic.own), labels, settings, texts);
  if (statistic.words != Text::None)
    return std::string(texts.text(statistic.words));
  if (statistic.group != nullptr)
    return partWords(statistic.part, statistic.group->words, texts);
  return std::string(texts.text(termWords(statistic.name)));
}

std::string statisticTitle(const Statistic& statistic, StatisticLabels labels, const Settings& settings,
                           const Texts& texts) {
  return statistic.title != Text::None ? std::string(texts.text(statistic.title))
                                       : statisticWords(statistic, labels, settings, texts);
}

std::string columnWords(int column, StatisticLabels labels, const Settings& settings, const Texts& texts) {
  const BoxColumn& shown = boxColumn(column);
  if (shown.statistic != nullptr) {
    std::string words = statisticWords(*shown.statistic, labels, settings, texts);
    if (shown.name == kRatingColumn && !settings.ownRating.formula.empty())
      words += "\n" + ownRatingWords(settings, texts);
    return words;
  }
  const Text words = termWords(shown.name);
  return words == Text::None ? std::string(shown.name) : std::string(texts.text(words));
}

std::string leagueColumnWords(const LeagueColumn& column, const Texts& texts) {
  return column.shots != 0 ? partWords(column.part, column.words, texts)
                           : std::string(texts.text(column.words));
}

} // namespace hooptab
