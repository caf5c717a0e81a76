#include "season/GamePictures.h"

#include "appearance/relabel.h"
#include "season/GameColumns.h"
#include "season/SeasonTables.h"

namespace hooptab {

namespace {

using Unit = SeriesDrawing::Unit;

constexpr std::size_t kLatest = 5; // games that stand out

// Month and day; the year is in the tool tip.
QString shortDate(const ListedGame& game) {
  constexpr int kYear = 5;
  return game.day ? toQt(game.date).mid(kYear) : toQt(game.date);
}

QString averageText(double average, Unit unit, const Texts& texts) {
  QString number = SeriesPicture::valueText(average, unit);
  if (unit == Unit::Count)
    number = QString::number(average, 'f', 1);
  else if (unit == Unit::Percent)
    number = QString::number(average * 100, 'f', 1) + u'%';
  return toQt(texts.withPlaceholder(Text::Average, fromQt(number)));
}

QString opponentOf(const GameCatalogue& catalogue, const ListedGame& game, Side side) {
  return toQt(catalogue.teams()[game.team[otherSide(side)]].name);
}

Unit unitOf(ValueKind kind) {
  switch (kind) {
  case ValueKind::Count: break;
  case ValueKind::Time: return Unit::Time;
  case ValueKind::Percent: return Unit::Percent;
  }
  return Unit::Count;
}

} // namespace

SeriesWithToolTips pictureOfStatistic(const SeasonPerson& person, int column, const Settings& settings,
                                      const Texts& texts) {
  const GameCatalogue& catalogue = person.season->catalogue();
  const GameSeries series = seriesOfStatistic(person.results, column);
  SeriesWithToolTips picture;
  SeriesDrawing& drawing = picture.drawing;
  const QString name = statisticName(column, settings, texts, person.season->statistics().labels());
  drawing.title = toQt(person.row.number) + u' ' + toQt(person.row.name) + QStringLiteral(" – ") + name;
  drawing.style = SeriesDrawing::Style::Bars;
  drawing.latest = kLatest;
  drawing.unit = unitOf(seasonColumn(column).statistic->kind);
  drawing.average = series.average;
  if (series.average)
    drawing.averageText = averageText(*series.average, drawing.unit, texts);
  for (std::size_t i = 0; i < series.points.size(); ++i) {
    const GameResult& result = person.results[i];
    const ListedGame& game = catalogue.games()[result.game];
    drawing.values.push_back(series.points[i].value);
    drawing.labels << shortDate(game);
    const QString value = toQt(seasonCell(rowOfResult(result), column, SeasonView::Totals, texts));
    picture.toolTips << toQt(game.date) + QStringLiteral("  ") + opponentOf(catalogue, game, result.side) +
                            QStringLiteral("  ") + toQt(resultText(game, result.side, texts)) + u'\n' + name +
                            QStringLiteral("  ") + value;
  }
  return picture;
}

SeriesWithToolTips pictureOfMargins(const GameSeries& margins, SeasonId team, const Season& season,
                                    const Texts& texts) {
  const GameCatalogue& catalogue = season.catalogue();
  SeriesWithToolTips picture;
  SeriesDrawing& drawing = picture.drawing;
  drawing.style = SeriesDrawing::Style::Margins;
  drawing.title =
      toQt(catalogue.teams()[team].key) + QStringLiteral(" – ") + caption(texts, Text::ScoreMargins);
  drawing.average = margins.average;
  if (margins.average)
    drawing.averageText = averageText(*margins.average, drawing.unit, texts);
  for (const SeriesPoint& point : margins.points) {
    const ListedGame& game = catalogue.games()[point.game];
    const Side side = game.team[Side::Visitor] == team ? Side::Visitor : Side::Home;
    drawing.values.push_back(point.value);
    drawing.labels << shortDate(game);
    picture.toolTips << toQt(game.date) + QStringLiteral("  ") + opponentOf(catalogue, game, side) +
                            QStringLiteral("  ") + toQt(resultText(game, side, texts)) + u'\n' +
                            caption(texts, Text::OpensGame);
  }
  return picture;
}

} // namespace hooptab
