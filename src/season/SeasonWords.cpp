#include "season/SeasonWords.h"

#include "game/Glossary.h"
#include "scorecard/ColumnWords.h"
#include "storage/Placeholders.h"

namespace hooptab {

std::string seasonColumnWords(int column, const Settings& settings, const Texts& texts,
                              const OwnLabels& labels) {
  const SeasonColumn& shown = seasonColumn(column);
  return shown.statistic == nullptr ? std::string(texts.text(termWords(shown.name)))
                                    : statisticWords(*shown.statistic, labels, settings, texts);
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
