#include "scorecard/ShotChartPanel.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtColourChoice.h"
#include "court/CourtView.h"
#include "game/Glossary.h"
#include "settings/Settings.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QEvent>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <algorithm>

namespace hooptab {

namespace {

QString fraction(const ZoneSum& sum) {
  return toQt(fractionText(sum));
}

QString coloured(const QString& text, const QColor& colour) {
  return QStringLiteral("<span style='color:%1'>%2</span>").arg(colour.name(), text);
}

} // namespace

ShotChartPanel::ShotChartPanel(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_checked(addChoice("cmdSELECTED", true)),
      m_all(addChoice("cmdALL", false)), m_byShot(addChoice("cmdBYSHOT", true)),
      m_byZone(addChoice("cmdBYZONE", false)), m_court(new CourtView(this)), m_numbers(new PlainLabel(this)),
      m_withoutPlace(new PlainLabel(this)) {
  setTextNumber(*m_checked, Text::Selected);
  setToolTipNumber(*m_checked, Text::ShowSelectedPlayers);
  setTextNumber(*m_all, Text::All);
  setToolTipNumber(*m_all, Text::ShowAllPlayers);
  setTextNumber(*m_byShot, Text::ByShot);
  setTextNumber(*m_byZone, Text::ByZone);
  setToolTipNumber(*m_byShot, Text::ShotOrZone);
  setToolTipNumber(*m_byZone, Text::ShotOrZone);
  auto* scope = new QButtonGroup(this);
  scope->addButton(m_checked);
  scope->addButton(m_all);
  auto* kind = new QButtonGroup(this);
  kind->addButton(m_byShot);
  kind->addButton(m_byZone);

  m_court->setObjectName(QStringLiteral("courtstat"));
  setAccessibleNumber(*m_court, Text::ShotChart);
  m_court->setMinimumSize(160, 160);
  m_court->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  m_court->installEventFilter(this);
  m_numbers->setObjectName(QStringLiteral("lblSHOTS"));
  m_numbers->setTextFormat(Qt::RichText);
  m_numbers->setAlignment(Qt::AlignCenter);
  m_withoutPlace->setObjectName(QStringLiteral("lblWITHOUTPLACE"));
  m_withoutPlace->setAlignment(Qt::AlignCenter);
  m_withoutPlace->setForegroundRole(QPalette::PlaceholderText);
  m_withoutPlace->setWordWrap(true);

  auto* switches = new QHBoxLayout;
  switches->setSpacing(2);
  switches->addWidget(m_checked);
  switches->addWidget(m_all);
  switches->addStretch();
  switches->addWidget(m_byShot);
  switches->addWidget(m_byZone);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addLayout(switches);
  layout->addWidget(m_court, 1);
  layout->addWidget(m_numbers);
  layout->addWidget(m_withoutPlace);

  connect(m_checked, &QToolButton::toggled, this, [this](bool isOn) {
    emit scopeChosen(isOn ? ScorecardView::Scope::Checked : ScorecardView::Scope::All);
  });
  connect(m_byZone, &QToolButton::toggled, this, [this](bool isOn) {
    if (isOn)
      m_court->showZones();
    else
      m_court->showMarks();
  });
  // Of two switches the one that is on must be seen at a glance, in the dark look too.
  setStyleSheet(QStringLiteral(
      "QToolButton { border: 1px solid palette(mid); border-radius: 4px; padding: 3px 8px; }"
      "QToolButton:checked { background: palette(highlight); color: palette(highlighted-text); }"));
  applyColours();
  m_court->showMarks();
}

QToolButton* ShotChartPanel::addChoice(const char* name, bool isChecked) {
  auto* button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setCheckable(true);
  button->setChecked(isChecked);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  return button;
}

void ShotChartPanel::showShots(std::vector<Shot> shots, const Game& game, const EventWords& words) {
  m_shots = std::move(shots);
  m_placed.clear();
  m_toolTips.clear();
  for (const Shot& shot : m_shots) {
    if (!shot.hasPlace)
      continue;
    m_placed.push_back(shot);
    m_toolTips << toQt(shotWords(shot, game, words));
  }
  showMarks();
  showZones();
  showNumbers();
}

void ShotChartPanel::highlight(std::optional<std::uint32_t> event) {
  m_highlighted = event;
  showMarks();
}

void ShotChartPanel::paintPicture(QPainter& painter, const QRectF& area) const {
  const double line = QFontMetricsF(painter.font(), painter.device()).height() * 1.3;
  m_court->paintOn(painter, area.adjusted(0, 0, 0, -line));
  painter.setPen(Qt::black);
  painter.drawText(QRectF(area.left(), area.bottom() - line, area.width(), line), Qt::AlignCenter,
                   QTextDocumentFragment::fromHtml(m_numbers->text()).toPlainText());
}

void ShotChartPanel::showMarks() {
  std::vector<CourtMark> marks;
  marks.reserve(m_placed.size());
  for (const Shot& shot : m_placed)
    marks.push_back({{shot.x, shot.y}, shot.isMade, shot.eventIndex == m_highlighted});
  m_court->setMarks(std::move(marks), m_toolTips);
}

void ShotChartPanel::showZones() {
  const ShotSums sums = shotSums(m_shots);
  std::vector<CourtZoneText> zones;
  for (const ZoneWords& words : zoneWords(sums)) {
    const QString share = toQt(words.fraction);
    const QString percent = toQt(words.percent);
    const QString name = caption(m_texts, court::chartZoneText(words.zone));
    zones.push_back({words.zone, share, percent, words.strength,
                     name + QStringLiteral("  ") + share + QStringLiteral("  ") + percent});
  }
  m_court->setZones(std::move(zones));
  m_withoutPlace->setVisible(sums.withoutPlace.attempted > 0);
  m_withoutPlace->setText(fraction(sums.withoutPlace) + u' ' + caption(m_texts, Text::WithoutPlace));
}

void ShotChartPanel::showNumbers() {
  const ShotSummary summary = shotSummary(m_shots);
  const int made = summary.twoPoints.made + summary.threePoints.made;
  const int missed = summary.twoPoints.attempted + summary.threePoints.attempted - made;
  const auto line = [](const QString& name, const ZoneSum& sum) {
    return QStringLiteral("<b>%1</b> %2 %3")
        .arg(name, fraction(sum), toQt(Module1::percentText(sum.made, sum.attempted)));
  };
  const QString gap = QStringLiteral(" &nbsp; ");
  m_numbers->setText(coloured(QStringLiteral("●"), Theme::made()) + u' ' + caption(m_texts, Text::Made) +
                     u' ' + QString::number(made) + gap + coloured(QStringLiteral("✕"), Theme::missed()) +
                     u' ' + caption(m_texts, Text::Missed) + u' ' + QString::number(missed) +
                     QStringLiteral("<br>") + line(toQt(kTwoPointers), summary.twoPoints) + gap +
                     line(toQt(kThreePointers), summary.threePoints));
}

void ShotChartPanel::applyColours() {
  m_court->setColours(wornCourt(CourtColourChoice::of(m_settings).colours));
  m_byShot->setIcon(icon(QStringLiteral("byshot")));
  m_byZone->setIcon(icon(QStringLiteral("byzone")));
  showNumbers();
}

bool ShotChartPanel::eventFilter(QObject* object, QEvent* event) {
  if (object == m_court && event->type() == QEvent::Resize)
    m_court->setTurn(CourtPicture::largerTurn(m_court->rect()));
  return QWidget::eventFilter(object, event);
}

} // namespace hooptab
