#include "totals/CounterWords.h"

namespace hooptab {

std::string counterWords(const ManualColumn& column, const GameDetails& game, const Settings& settings,
                         const Texts& texts) {
  const EventKind& kind = *kindOf(column.code);
  if (kind.isShot)
    return texts.withPlaceholder(column.isMade ? Text::MadeOf : Text::AttemptsOf, texts.text(kind.wordsText));
  if (column.code == EventCode::SU1 || column.code == EventCode::SU2) {
    const std::size_t which = column.code == EventCode::SU1 ? 0 : 1;
    std::string label = Settings::shownLabel(game.statisticLabel[which]);
    if (label.empty())
      label = Settings::shownLabel(settings.statisticLabel[which]);
    if (!label.empty())
      return label;
  }
  return texts.caption(kind.wordsText);
}

} // namespace hooptab
