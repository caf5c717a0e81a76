#include "welcome/RecentGameWords.h"

#include "appearance/LanguageLocale.h"
#include "appearance/relabel.h"
#include "game/PeriodName.h"

#include <QDate>
#include <QFileInfo>
#include <QLocale>

namespace hooptab {

namespace {

bool isInOvertime(const RecentGame& game) {
  return game.hasPeriods && game.regularPeriods > 0 && game.period > game.regularPeriods;
}

} // namespace

QString dayText(const RecentGame& game, const Texts& texts) {
  const QString stored = toQt(game.date);
  const QDate day = QDate::fromString(stored, Qt::ISODate);
  const QLocale locale = localeOf(texts.language());
  return day.isValid() ? locale.toString(day, QStringLiteral("d MMM yyyy")) : stored;
}

QString periodText(const RecentGame& game, const Texts& texts) {
  return isInOvertime(game) ? toQt(periodName(game.period, game.regularPeriods, texts))
                            : toQt(texts.withPlaceholder(Text::PeriodNumber, std::to_string(game.period)));
}

QString stateText(const RecentGame& game, const Texts& texts) {
  if (game.problem != GameFileProblem::None)
    return caption(texts, Text::RecentCannotBeRead);
  QString state = caption(texts, game.isFinished ? Text::Final : Text::NotFinished);
  if (game.mayBeCut)
    state += QStringLiteral(", ") + caption(texts, Text::MayBeCut);
  return isInOvertime(game)
             ? QStringLiteral("%1, %2").arg(state, toQt(periodName(game.period, game.regularPeriods, texts)))
             : state;
}

QString scoreText(const RecentGame& game) {
  return QStringLiteral("%1 – %2").arg(game.teams[Side::Visitor].points).arg(game.teams[Side::Home].points);
}

QString wholeText(const RecentGame& game, const Texts& texts) {
  if (game.problem != GameFileProblem::None)
    return QFileInfo(toQt(game.path)).fileName() + QStringLiteral(", ") + stateText(game, texts);
  return QStringLiteral("%1, %2 %3 %4, %5")
      .arg(dayText(game, texts), toQt(game.teams[Side::Visitor].abbreviation), scoreText(game),
           toQt(game.teams[Side::Home].abbreviation), stateText(game, texts));
}

} // namespace hooptab
