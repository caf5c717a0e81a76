#include "events/PlayerWords.h"

#include "appearance/relabel.h"
#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <QWidget>

namespace hooptab {

void showPlayerWords(QWidget& widget, const LiveGame& game, Side team, int player, const Texts& texts) {
  const RosterPlayer* const entry = game.game().roster[team].player(player);
  if (entry == nullptr)
    return;
  const Counters& counters = game.state().players[team][static_cast<std::size_t>(player)].counters;
  QString name = toQt(entry->jersey + " " + entry->name);
  name +=
      QStringLiteral(", ") + toQt(texts.text(game.slotOf(team, player) ? Text::OnCourtWord : Text::Bench));
  if (LiveFigures(game).isFouledOut(team, player))
    name += QStringLiteral(", ") + toQt(texts.text(Text::FouledOut));

  QString counts = toQt(positionText(entry->position, texts));
  counts +=
      QStringLiteral(" \u00b7 PF %1 \u00b7 TF %2").arg(counters[Counter::PF]).arg(counters[Counter::TF]);
  if (game.hasTime())
    counts +=
        QStringLiteral(" \u00b7 ") + toQt(Module1::clockText(LiveFigures(game).secondsOnCourt(team, player)));

  const QString toolTip = name + QLatin1Char('\n') + counts;
  if (widget.toolTip() == toolTip)
    return;
  widget.setToolTip(toolTip);
  widget.setAccessibleName(name);
  widget.setAccessibleDescription(counts);
}

} // namespace hooptab
