#include "live/PlayerPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/CountBox.h"
#include "live/LiveGame.h"
#include "live/MiniCourt.h"
#include "live/StatButton.h"
#include "live/StatControls.h"
#include "storage/Settings.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr QSize kDesignedSize(218, 316); // for which lengths below are given
constexpr int kNobodyText = 1117;
constexpr int kTotalText = 1070;
constexpr int kCourtToolTip = 1095;

constexpr int kActionRows = static_cast<int>(kActionControls.size()) / 2;
constexpr int kShotButtons = 5;

QString shortName(EventCode code) {
  return toQt(kindOf(code)->shortName);
}

// Seen without colour too.
QString sign(LivePanel::FoulMark mark) {
  switch (mark) {
  case LivePanel::FoulMark::Reached: return QStringLiteral("\u2298"); // a circled slash
  case LivePanel::FoulMark::OneLeft: return QStringLiteral("!");
  case LivePanel::FoulMark::None: break;
  }
  return {};
}

QColor colourOfMark(LivePanel::FoulMark mark, const QColor& usual) {
  switch (mark) {
  case LivePanel::FoulMark::Reached: return Theme::missed();
  case LivePanel::FoulMark::OneLeft: return Theme::accent();
  case LivePanel::FoulMark::None: break;
  }
  return usual;
}

void setTextColour(QWidget& widget, const QColor& colour) {
  QPalette palette = widget.palette();
  if (palette.color(QPalette::WindowText) == colour)
    return;
  palette.setColor(QPalette::WindowText, colour);
  widget.setPalette(palette);
}

// A box that is on no button has a ground of its own, so that its counts are not read as its neighbour's.
void standAlone(CountBox& box) {
  box.setBackgroundRole(QPalette::AlternateBase);
  box.setAutoFillBackground(true);
}

QFont fontOf(double pixels, bool isBold) {
  QFont font = Theme::figures(9, isBold);
  font.setPixelSize(std::max(8, static_cast<int>(pixels)));
  return font;
}

} // namespace

PlayerPanel::PlayerPanel(int slot, const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_slot(slot), m_settings(settings), m_texts(texts), m_content(new QWidget(this)) {
  setObjectName(named("fraPLAYER"));
  setMinimumSize(kDesignedSize * 0.8);
  m_content->hide();
  makeHead();
  m_court = new MiniCourt(settings, m_content);
  m_court->setObjectName(named("CourtJ"));
  setToolTipNumber(*m_court, kCourtToolTip);
  setAccessibleNumber(*m_court, kCourtToolTip);
  connect(m_court, &MiniCourt::pressed, this,
          [this](const QPointF& place, bool isMade) { emit courtPressed(m_slot, place, isMade); });
  makeActions();
  makeShots();
  relabelPanel();
  applyColours();
}

QSize PlayerPanel::sizeHint() const {
  return kDesignedSize;
}

QString PlayerPanel::named(const char* name) const {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(m_slot);
}

QLabel* PlayerPanel::headLabel(const char* name, int toolTip) {
  auto* const label = new PlainLabel(m_content);
  label->setObjectName(named(name));
  setToolTipNumber(*label, toolTip);
  return label;
}

void PlayerPanel::makeHead() {
  constexpr int kPointsToolTip = 1708;
  constexpr int kPersonalFoulsToolTip = 1003;
  constexpr int kTechnicalFoulsToolTip = 1004;
  constexpr int kTimeToolTip = 1706;
  m_entry = headLabel("lblID", 0); // never shown: which player of the roster stands here
  m_entry->hide();
  m_jersey = headLabel("lblNO", 0);
  m_jersey->setAlignment(Qt::AlignCenter);
  m_jersey->setAutoFillBackground(true);
  m_name = headLabel("lblNom", 0);
  m_points = headLabel("lblPTS", kPointsToolTip);
  m_points->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_personalFouls = headLabel("lblPF", kPersonalFoulsToolTip);
  m_technicalFouls = headLabel("lblTF", kTechnicalFoulsToolTip);
  m_time = headLabel("lblTIME", kTimeToolTip);
  m_time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void PlayerPanel::makeActions() {
  for (const ActionControls& controls : kActionControls) {
    const EventKind& kind = *kindOf(controls.code);
    auto* const button =
        new StatButton(StatButton::Records::Action, shortName(kind.code), {named(controls.count)}, m_content);
    button->setObjectName(named(controls.button));
    setToolTipNumber(*button, controls.toolTip);
    setAccessibleNumber(*button, controls.toolTip == 0 ? 0 : kind.wordsText);
    connect(button, &StatButton::recorded, this,
            [this, code = kind.code] { emit actionPressed(m_slot, code); });
    m_buttons[kind.code] = button;
    m_counts[kind.code] = &button->counts();
  }
}

void PlayerPanel::makeShots() {
  for (const ShotControls& controls : kShotControls) {
    const EventKind& kind = *kindOf(controls.code);
    const QStringList names = {named(controls.made), named(controls.attempts), named(controls.points)};
    if (controls.button == nullptr) {
      m_counts[kind.code] = new CountBox(shortName(kind.code), names, m_content);
      setToolTipNumber(*m_counts[kind.code], kind.wordsText);
      standAlone(*m_counts[kind.code]);
      continue;
    }
    auto* const button = new StatButton(StatButton::Records::Shot, shortName(kind.code), names, m_content);
    button->setObjectName(named(controls.button));
    button->setCountsOnce(kind.code != EventCode::GFT);
    setToolTipNumber(*button, controls.toolTip);
    setAccessibleNumber(*button, kind.wordsText);
    connect(button, &StatButton::recorded, this,
            [this, code = kind.code](bool isMade) { emit shotPressed(m_slot, code, isMade); });
    m_buttons[kind.code] = button;
    m_counts[kind.code] = &button->counts();
  }
  m_total = new CountBox({}, {named("lblTOT"), named("lblTOTa"), named("lblTOTpct")}, m_content);
  standAlone(*m_total);
}

void PlayerPanel::showGame(const LiveGame& game) {
  const GameDetails& details = game.game().details;
  LivePanel panel = LivePanel::of(game, m_slot);
  if (const std::uint32_t colour = details.teamColour[panel.team]; colour != m_teamColour) {
    m_teamColour = colour;
    applyColours();
  }
  m_court->setEnabled(game.canRecord());
  for (const auto& [code, button] : m_buttons)
    button->setEnabled(game.canRecord());
  for (std::size_t i = 0; i < m_ownLabels.size(); ++i)
    m_ownLabels[i] = details.statisticLabel[i];
  showOwnLabels();
  if (panel == m_shown)
    return;
  m_shown = std::move(panel);
  showPanel();
}

void PlayerPanel::showTime(const LiveGame& game) {
  m_shown.timeOnCourt = LivePanel::timeOf(game, m_slot);
  m_time->setText(toQt(m_shown.timeOnCourt));
}

void PlayerPanel::showPanel() {
  const bool isEmpty = m_shown.player == 0;
  if (m_content->isHidden() != isEmpty) {
    m_content->setVisible(!isEmpty);
    update();
  }
  m_entry->setText(QString::number(m_shown.player));
  m_jersey->setText(toQt(m_shown.jersey));
  setAccessibleName(isEmpty ? caption(m_texts, kNobodyText)
                            : QStringLiteral("%1 %2").arg(toQt(m_shown.jersey), toQt(m_shown.name)));
  showName();
  m_points->setText(QString::number(pointsOf(m_shown.counters)));
  m_time->setText(toQt(m_shown.timeOnCourt));
  const Counters& counters = m_shown.counters;
  for (const auto& [code, box] : m_counts) {
    const EventKind& kind = *kindOf(code);
    const int count = counters[kind.counter];
    if (kind.isShot)
      box->setCounts({QString::number(count), QString::number(counters[kind.attempts]),
                      QString::number(count * kind.points)});
    else
      box->setCounts({QString::number(count)});
  }
  m_total->setCounts({QString::number(m_shown.made()), QString::number(m_shown.attempts()),
                      toQt(Module1::percentText(m_shown.made(), m_shown.attempts()))});
  showFouls();
  m_court->setMarks(m_shown.shots);
}

void PlayerPanel::showName() {
  const QString name = toQt(m_shown.name);
  m_name->setText(m_name->fontMetrics().elidedText(name, Qt::ElideRight, m_name->width()));
  m_name->setToolTip(name);
}

// In the head and on the button alike.
void PlayerPanel::showFouls() {
  const auto show = [this](EventCode code, LivePanel::FoulMark mark, QLabel& head) {
    const int count = m_shown.counters[kindOf(code)->counter];
    const bool isMarked = mark != LivePanel::FoulMark::None;
    const QString name = shortName(code);
    head.setText(QStringLiteral("%1 %2%3").arg(name).arg(count).arg(sign(mark)));
    QFont font = head.font();
    font.setBold(isMarked);
    head.setFont(font);
    setTextColour(head, colourOfMark(mark, palette().color(QPalette::WindowText)));
    m_counts[code]->setCaption(name + sign(mark));
    m_counts[code]->setBold(isMarked);
    m_buttons[code]->setColour(colourOfMark(mark, colourOf(m_settings.buttonColour)));
  };
  show(EventCode::SPF, m_shown.personalFouls, *m_personalFouls);
  show(EventCode::STF, m_shown.technicalFouls, *m_technicalFouls);
}

void PlayerPanel::setPlaysRight(bool playsRight) {
  m_court->setPlaysRight(playsRight);
}

void PlayerPanel::setSelected(bool isSelected) {
  if (isSelected == m_isSelected)
    return;
  m_isSelected = isSelected;
  update();
}

void PlayerPanel::relabelPanel() {
  m_total->setCaption(caption(m_texts, kTotalText));
  showOwnLabels();
  if (m_shown.player == 0)
    setAccessibleName(caption(m_texts, kNobodyText));
  update(); // an empty panel has its word painted
}

void PlayerPanel::showOwnLabels() {
  constexpr std::array kCodes = {EventCode::SU1, EventCode::SU2};
  for (std::size_t i = 0; i < kCodes.size(); ++i) {
    std::string label = Settings::shownLabel(m_ownLabels[i]);
    if (label.empty())
      label = Settings::shownLabel(m_settings.statisticLabel[i]);
    const QString text = label.empty() ? caption(m_texts, kindOf(kCodes[i])->wordsText) : toQt(label);
    StatButton& button = *m_buttons[kCodes[i]];
    if (button.toolTip() == text)
      continue;
    button.setToolTip(text);
    button.setStatusTip(text);
    button.setAccessibleName(text);
  }
}

void PlayerPanel::applyColours() {
  const QColor team = colourOf(m_teamColour);
  QPalette jersey = m_jersey->palette();
  jersey.setColor(QPalette::Window, team);
  jersey.setColor(QPalette::WindowText, textOn(team));
  m_jersey->setPalette(jersey);
  for (const auto& [code, button] : m_buttons)
    button->setColour(colourOf(m_settings.buttonColour));
  const QColor text = palette().color(QPalette::WindowText);
  for (CountBox* box : {m_counts[EventCode::GFG], m_counts[EventCode::GF3], m_total})
    box->setTextColour(text);
  showFouls();
  m_court->applyColours();
  update();
}

void PlayerPanel::resizeEvent(QResizeEvent*) {
  m_content->setGeometry(rect());
  layOut();
}

// Everything grows with the panel; by hand, so that no text that changes can make anything move.
void PlayerPanel::layOut() {
  const double scale = std::min(static_cast<double>(width()) / kDesignedSize.width(),
                                static_cast<double>(height()) / kDesignedSize.height());
  const auto scaled = [scale](double length) { return static_cast<int>(std::lround(length * scale)); };
  const int gap = scaled(3);
  const QRect inner = rect().adjusted(scaled(4), scaled(6), -scaled(4), -scaled(4));

  const QRect head(inner.left(), inner.top(), inner.width(), scaled(40));
  const int totalsHeight = scaled(32);
  const int shotsHeight = scaled(38);
  const int totalsTop = inner.bottom() + 1 - totalsHeight;
  const int shotsTop = totalsTop - gap - shotsHeight;
  const QRect middle(inner.left(), head.bottom() + 1 + gap, inner.width(),
                     shotsTop - head.bottom() - 1 - 2 * gap);
  layOutHead(head, scale);

  // The buttons keep the room that a panel of the designed shape gives them.
  const int courtWidth = std::min(static_cast<int>(middle.height() * court::kLength / court::kWidth),
                                  inner.width() - scaled(94));
  const int courtHeight = static_cast<int>(courtWidth * court::kWidth / court::kLength);
  m_court->setGeometry(middle.left(), middle.top() + (middle.height() - courtHeight) / 2, courtWidth,
                       courtHeight);

  const auto share = [gap](int total, int count, int index) { // where part `index` of `count` begins
    return (total + gap) * index / count;
  };
  const QRect actions = middle.adjusted(courtWidth + gap, 0, 0, 0);
  for (int i = 0; i < kActionRows * 2; ++i) {
    const int left = share(actions.width(), 2, i % 2);
    const int top = share(actions.height(), kActionRows, i / 2);
    m_buttons[kActionControls[static_cast<std::size_t>(i)].code]->setGeometry(
        actions.left() + left, actions.top() + top, share(actions.width(), 2, i % 2 + 1) - left - gap,
        share(actions.height(), kActionRows, i / 2 + 1) - top - gap);
  }
  for (int i = 0; i < kShotButtons; ++i) {
    const int left = share(inner.width(), kShotButtons, i);
    m_buttons[kShotControls[static_cast<std::size_t>(i)].code]->setGeometry(
        inner.left() + left, shotsTop, share(inner.width(), kShotButtons, i + 1) - left - gap, shotsHeight);
  }
  const std::array totals = {m_counts[EventCode::GFG], m_counts[EventCode::GF3], m_total};
  constexpr std::array kEdges = {0, 3, 6, 10}; // tenths; the last holds a percentage too
  for (std::size_t i = 0; i < totals.size(); ++i) {
    const int left = share(inner.width(), 10, kEdges[i]);
    totals[i]->setGeometry(inner.left() + left, totalsTop,
                           share(inner.width(), 10, kEdges[i + 1]) - left - gap, totalsHeight);
  }
}

void PlayerPanel::layOutHead(const QRect& area, double scale) {
  const auto scaled = [scale](double length) { return static_cast<int>(std::lround(length * scale)); };
  const int gap = scaled(4);
  m_jersey->setFont(fontOf(20 * scale, true));
  m_jersey->setGeometry(area.left(), area.top(), scaled(44), area.height());
  m_points->setFont(fontOf(20 * scale, true));
  const int pointsWidth = scaled(34);
  m_points->setGeometry(area.right() + 1 - pointsWidth, area.top(), pointsWidth, area.height() * 6 / 10);
  const int left = m_jersey->geometry().right() + 1 + gap;
  const int lineHeight = area.height() / 2;
  m_name->setFont(fontOf(12 * scale, true));
  m_name->setGeometry(left, area.top(), m_points->x() - left, lineHeight);
  const int foulsWidth = scaled(46);
  const QRect lower(left, area.top() + lineHeight, area.right() + 1 - left, area.height() - lineHeight);
  int x = lower.left();
  for (QLabel* label : {m_personalFouls, m_technicalFouls}) {
    label->setFont(fontOf(11 * scale, false));
    label->setGeometry(x, lower.top(), foulsWidth, lower.height());
    x += foulsWidth;
  }
  m_time->setFont(fontOf(12 * scale, false));
  m_time->setGeometry(x, lower.top(), lower.right() + 1 - x, lower.height());
  showName();
  showFouls();
}

void PlayerPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  constexpr int kStripe = 3;
  painter.fillRect(QRect(1, 1, width() - 2, kStripe), colourOf(m_teamColour));
  if (m_isSelected) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Theme::accent(), kStripe, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(rect()).adjusted(kStripe / 2.0, kStripe / 2.0, -kStripe / 2.0, -kStripe / 2.0));
  }
  if (m_shown.player == 0) {
    painter.setPen(Theme::muted());
    painter.setFont(fontOf(height() * 0.045, false));
    painter.drawText(rect(), Qt::AlignCenter, caption(m_texts, kNobodyText));
  }
}

} // namespace hooptab
