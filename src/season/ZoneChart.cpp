#include "season/ZoneChart.h"

#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

using Turn = CourtPicture::Turn;

constexpr QColor kWarm(0xC2, 0x41, 0x0C);
constexpr QColor kCold(0x1F, 0x5F, 0xA8);
constexpr double kPalest = 0.08;

QString fraction(const ZoneSum& sum) {
  return QString::number(sum.made) + u'/' + QString::number(sum.attempted);
}

QString signedPoints(double points) {
  return (points > 0 ? QStringLiteral("+") : QString()) + QString::number(points, 'f', 1);
}

// One colour for the whole court, so that the zones' colours say one thing alone.
CourtColours plainCourt(const QColor& ground) {
  return {ground, ground, ground};
}

class Legend : public QWidget {
 public:
  using QWidget::QWidget;
  QSize sizeHint() const override { return {200, fontMetrics().height() + 4}; }
  QSize minimumSizeHint() const override { return {120, fontMetrics().height() + 4}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setFont(font());
    paintDifferenceLegend(painter, rect(), palette().color(QPalette::WindowText));
  }
};

} // namespace

QColor colourOfDifference(double points) {
  return points < 0 ? kCold : kWarm;
}

double strengthOfDifference(double points) {
  return std::clamp(std::abs(points) / kFullDifference, kPalest, 1.0);
}

std::vector<CourtZoneText> zoneTexts(const ShotSums& shots, const ShotSums& average, const Texts& texts) {
  std::vector<CourtZoneText> zones;
  for (std::size_t i = 0; i < shots.zones.size(); ++i) {
    const ZoneSum& sum = shots.zones[i];
    if (sum.attempted == 0)
      continue;
    const auto which = static_cast<court::ChartZone>(i);
    const double points = differenceInPoints(sum, average.zones[i]);
    const QString percent = toQt(Module1::percentText(sum.made, sum.attempted));
    const QString usual = toQt(Module1::percentText(average.zones[i].made, average.zones[i].attempted));
    zones.push_back({which, percent, fraction(sum), strengthOfDifference(points),
                     caption(texts, court::chartZoneText(which)) + QStringLiteral("  ") + fraction(sum) +
                         QStringLiteral("  ") + percent + QStringLiteral("  (") + signedPoints(points) +
                         QStringLiteral(" / ") + usual + u')',
                     colourOfDifference(points)});
  }
  return zones;
}

void paintDifferenceLegend(QPainter& painter, const QRectF& area, const QColor& textColour) {
  painter.save();
  const QFontMetricsF metrics(painter.font(), painter.device());
  const QString low = QString::number(-kFullDifference);
  const QString high = u'+' + QString::number(kFullDifference);
  const double margin = metrics.horizontalAdvance(high) + metrics.height() / 2;
  const QRectF scale = area.adjusted(margin, area.height() * 0.2, -margin, -area.height() * 0.2);
  constexpr int kSteps = 12;
  const double width = scale.width() / kSteps;
  for (int i = 0; i < kSteps; ++i) {
    const double points = kFullDifference * ((i + 0.5) / kSteps * 2 - 1);
    QColor colour = colourOfDifference(points);
    colour.setAlphaF(static_cast<float>(0.6 * strengthOfDifference(points))); // as zones are tinted
    painter.fillRect(QRectF(scale.left() + i * width, scale.top(), width, scale.height()), colour);
  }
  painter.setPen(textColour);
  painter.drawText(QRectF(area.left(), area.top(), margin, area.height()), Qt::AlignCenter, low);
  painter.drawText(QRectF(scale.right(), area.top(), margin, area.height()), Qt::AlignCenter, high);
  painter.drawText(scale, Qt::AlignCenter, QStringLiteral("0"));
  painter.restore();
}

void paintZoneChart(QPainter& painter, const QRectF& area, const ShotSums& shots, const ShotSums& average,
                    const Texts& texts) {
  const double line = QFontMetricsF(painter.font(), painter.device()).height() * 1.3;
  const QRectF court = CourtPicture::fitted(area.adjusted(0, 0, 0, -2 * line), Turn::BaselineTop);
  const CourtPicture picture(plainCourt(Qt::white));
  picture.paintCourt(painter, court, Turn::BaselineTop);
  picture.paintZones(painter, court, Turn::BaselineTop, zoneTexts(shots, average, texts));
  paintDifferenceLegend(painter, {area.left(), area.bottom() - 2 * line, area.width(), line}, Qt::black);
  painter.setPen(Qt::black);
  painter.drawText(QRectF(area.left(), area.bottom() - line, area.width(), line), Qt::AlignCenter,
                   toQt(texts.text(Text::DifferenceLegend)));
}

ZoneChart::ZoneChart(const QString& name, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_court(new CourtView(this)), m_legend(new Legend(this)),
      m_caption(new PlainLabel(this)), m_numbers(new PlainLabel(this)), m_reason(new PlainLabel(this)) {
  setObjectName(name);
  m_court->setObjectName(QStringLiteral("court"));
  m_court->setMinimumSize(150, 110);
  m_court->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  m_court->showZones();
  m_court->installEventFilter(this);
  setAccessibleNumber(*m_court, Text::SeasonShotChart);
  setAccessibleNumber(*m_legend, Text::DifferenceLegend);
  setTextNumber(*m_caption, Text::DifferenceLegend);
  m_caption->setWordWrap(true);
  m_caption->setAlignment(Qt::AlignCenter);
  m_caption->setForegroundRole(QPalette::PlaceholderText);
  m_numbers->setObjectName(QStringLiteral("lblSHOTS"));
  m_numbers->setAlignment(Qt::AlignCenter);
  m_reason->setAlignment(Qt::AlignCenter);
  m_reason->setWordWrap(true);
  m_reason->setForegroundRole(QPalette::PlaceholderText);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(m_court, 1);
  layout->addWidget(m_reason, 1);
  layout->addWidget(m_numbers);
  layout->addWidget(m_legend);
  layout->addWidget(m_caption);
  applyColours();
  showReason({});
}

void ZoneChart::showShots(const ShotSums& shots, const ShotSums& average) {
  showReason({});
  m_sums = shots;
  m_average = average;
  m_court->setZones(zoneTexts(shots, average, m_texts));
  ZoneSum all;
  for (const ZoneSum& zone : shots.zones) {
    all.made += zone.made;
    all.attempted += zone.attempted;
  }
  QString numbers =
      fraction(all) + QStringLiteral("  ") + toQt(Module1::percentText(all.made, all.attempted));
  if (shots.withoutPlace.attempted > 0)
    numbers +=
        QStringLiteral("   + ") + fraction(shots.withoutPlace) + u' ' + caption(m_texts, Text::WithoutPlace);
  m_numbers->setText(numbers);
}

void ZoneChart::showReason(const QString& reason) {
  m_reason->setText(reason);
  m_reason->setVisible(!reason.isEmpty());
  for (QWidget* part : {static_cast<QWidget*>(m_court), m_legend, static_cast<QWidget*>(m_caption),
                        static_cast<QWidget*>(m_numbers)})
    part->setVisible(reason.isEmpty());
}

bool ZoneChart::hasPicture() const {
  return m_reason->text().isEmpty() &&
         std::ranges::any_of(m_sums.zones, [](const ZoneSum& zone) { return zone.attempted > 0; });
}

void ZoneChart::paintPicture(QPainter& painter, const QRectF& area) const {
  paintZoneChart(painter, area, m_sums, m_average, m_texts);
}

void ZoneChart::applyColours() {
  m_court->setColours(plainCourt(QGuiApplication::palette().color(QPalette::Base)));
  m_legend->update();
}

bool ZoneChart::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize)
    m_court->setTurn(CourtPicture::largerTurn(m_court->rect()));
  return QWidget::eventFilter(object, event);
}

} // namespace hooptab
