#include "live/PlayerPanel.h"

#include "appearance/ArrowFocus.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/CountBox.h"
#include "events/JerseyButton.h"
#include "events/MiniCourt.h"
#include "events/StatButton.h"
#include "events/StatControls.h"
#include "recording/LiveGame.h"
#include "settings/Settings.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

// Lengths below are those of a panel of this size; the places grow with the panel, the type with the measure.
constexpr QSize kDesigned(210, 294);
constexpr int kEdge = 5;
constexpr int kGap = 4;
constexpr QRect kJersey(6, 6, 39, 37);
constexpr int kHeadLeft = 52;
constexpr int kPointsWidth = 38;
constexpr QRect kPips(kHeadLeft, 30, 58, 8);
constexpr int kMostPips = 6;
constexpr QRect kCourt(kEdge, 47, 106, 168);
constexpr int kActionsLeft = 116;
constexpr int kShotsTop = 219;
constexpr int kShotsHeight = 36;
constexpr int kTotalsTop = 259;
constexpr double kRadius = 7;
constexpr int kTeamEdge = 3;

constexpr int kActionRows = (static_cast<int>(kActionControls.size()) + 1) / 2;
constexpr int kShotButtons = 5;

QString shortName(EventCode code) {
  return toQt(kindOf(code)->shortName);
}

StatButton::State stateOf(LivePanel::FoulMark mark) {
  switch (mark) {
  case LivePanel::FoulMark::Reached: return StatButton::State::Reached;
  case LivePanel::FoulMark::EarlyTwo:
  case LivePanel::FoulMark::OneLeft: return StatButton::State::Warned;
  case LivePanel::FoulMark::None: break;
  }
  return StatButton::State::Usual;
}

void setTextColour(QWidget& widget, const QColor& colour) {
  QPalette palette = widget.palette();
  if (palette.color(QPalette::WindowText) == colour)
    return;
  palette.setColor(QPalette::WindowText, colour);
  widget.setPalette(palette);
}

} // namespace

PlayerPanel::PlayerPanel(Slot slot, const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_slot(slot), m_settings(settings), m_texts(texts), m_content(new QWidget(this)) {
  setObjectName(named("fraPLAYER"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  m_content->hide();
  makeHead();
  m_court = new MiniCourt(settings, m_content);
  m_court->setObjectName(named("CourtJ"));
  setToolTipNumber(*m_court, Text::CourtTip);
  setAccessibleNumber(*m_court, Text::CourtTip);
  connect(m_court, &MiniCourt::pressed, this,
          [this](const QPointF& place, bool isMade) { emit courtPressed(m_slot, place, isMade); });
  makeActions();
  makeShots();
  std::vector<QWidget*> buttons;
  for (const ActionControls& controls : kActionControls)
    buttons.push_back(m_buttons[controls.code]);
  for (int i = 0; i < kShotButtons; ++i)
    buttons.push_back(m_buttons[kShotControls[static_cast<std::size_t>(i)].code]);
  new ArrowFocus(std::move(buttons), this);
  relabelPanel();
  applyColours();
}

QSize PlayerPanel::sizeHint() const {
  return {Theme::measure()(kDesigned.width(), 294), Theme::measure()(kDesigned.height(), 413)};
}

// Below it the type would be cut; whoever lays panels out lets them be scrolled.
QSize PlayerPanel::minimumSizeHint() const {
  return {Theme::measure()(193, 246), Theme::measure()(270, 345)};
}

QString PlayerPanel::named(const char* name) const {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(m_slot.number());
}

QLabel* PlayerPanel::headLabel(const char* name, Text toolTip) {
  auto* const label = new PlainLabel(m_content);
  label->setObjectName(named(name));
  setToolTipNumber(*label, toolTip);
  return label;
}

void PlayerPanel::makeHead() {
  m_entry = headLabel("lblID", Text::None); // never shown: which player of the roster stands here
  m_entry->hide();
  m_jersey = headLabel("lblNO", Text::None);
  m_jersey->setAlignment(Qt::AlignCenter);
  m_name = headLabel("lblNom", Text::None);
  m_points = headLabel("lblPTS", Text::PointsScored);
  m_points->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_time = headLabel("lblTIME", Text::TimeToolTip);
  m_time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void PlayerPanel::makeActions() {
  for (const ActionControls& controls : kActionControls) {
    const EventKind& kind = *kindOf(controls.code);
    auto* const button =
        new StatButton(StatButton::Records::Action, shortName(kind.code), {named(controls.count)}, m_content);
    button->setObjectName(named(controls.button));
    setToolTipNumber(*button, controls.toolTip);
    setAccessibleNumber(*button, controls.toolTip == Text::None ? Text::None : kind.wordsText);
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
      m_counts[kind.code] = new CountBox(CountBox::Place::InPanel, shortName(kind.code), names, m_content);
      setToolTipNumber(*m_counts[kind.code], kind.wordsText);
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
  m_total = new CountBox(CountBox::Place::InPanel, {},
                         {named("lblTOT"), named("lblTOTa"), named("lblTOTpct")}, m_content);
}

void PlayerPanel::showGame(const LiveGame& game) {
  const GameDetails& details = game.game().details;
  LivePanel panel = LivePanel::of(game, m_slot);
  if (const std::uint32_t colour = details.teamColour[panel.team]; colour != m_teamColour) {
    m_teamColour = colour;
    applyColours();
  }
  m_mostFouls = details.personalFoulLimit;
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
  setAccessibleName(isEmpty ? caption(m_texts, Text::Nobody)
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
  m_name->setText(shortenedName(name, m_name->fontMetrics(), m_name->width()));
  m_name->setToolTip(name);
}

void PlayerPanel::showFouls() {
  m_buttons[EventCode::SPF]->setState(stateOf(m_shown.personalFouls));
  m_buttons[EventCode::STF]->setState(stateOf(m_shown.technicalFouls));
  // The pips alone: whatever lies on the panel would be painted with it.
  update(QRect(across(kPips.left()), down(kPips.top()), across(kPips.width()), down(kPips.height()))
             .adjusted(-1, -1, 1, 1));
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
  m_total->setCaption(caption(m_texts, Text::Total));
  showOwnLabels();
  if (m_shown.player == 0)
    setAccessibleName(caption(m_texts, Text::Nobody));
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
  const Look& look = Theme::look();
  setTextColour(*m_jersey, textOn(colourOf(m_teamColour)));
  setTextColour(*m_time, look.muted);
  for (const auto& [code, button] : m_buttons)
    button->setColour(colourOf(m_settings.buttonColour));
  for (CountBox* box : {m_counts[EventCode::GFG], m_counts[EventCode::GF3], m_total})
    box->setColours(look.ink, look.faint);
  showFouls();
  m_court->applyColours();
  updateGeometry();
  layOut();
}

void PlayerPanel::resizeEvent(QResizeEvent*) {
  m_content->setGeometry(rect());
  layOut();
}

void PlayerPanel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton)
    return;
  if (m_shown.player == 0)
    emit emptyPressed(m_slot);
  else if (event->position().y() < down(kCourt.top()))
    emit headPressed(m_slot);
}

bool PlayerPanel::isHead(const QWidget& widget) {
  const QWidget* const above = widget.parentWidget();
  const bool isPart = qobject_cast<const QLabel*>(&widget) != nullptr && above != nullptr &&
                      qobject_cast<const PlayerPanel*>(above->parentWidget()) != nullptr;
  return isPart || qobject_cast<const PlayerPanel*>(&widget) != nullptr ||
         qobject_cast<const PlayerPanel*>(above) != nullptr;
}

int PlayerPanel::across(int length) const {
  return (length * width() + kDesigned.width() / 2) / kDesigned.width();
}

int PlayerPanel::down(int length) const {
  return (length * height() + kDesigned.height() / 2) / kDesigned.height();
}

// By hand, so that no text that changes can make anything move.
void PlayerPanel::layOut() {
  if (width() < kEdge * kShotButtons || height() < kTotalsTop / 4)
    return; // not yet in its place
  layOutHead();
  const int gap = Theme::measure()(kGap);
  const QRect courtRoom(across(kCourt.left()), down(kCourt.top()), across(kCourt.width()),
                        down(kCourt.height()));
  const int courtWidth = std::min(
      courtRoom.width(), static_cast<int>(std::lround(courtRoom.height() * court::kLength / court::kWidth)));
  const int courtHeight = static_cast<int>(std::lround(courtWidth * court::kWidth / court::kLength));
  m_court->setGeometry(courtRoom.left(), courtRoom.center().y() + 1 - courtHeight / 2, courtWidth,
                       courtHeight);

  const auto share = [gap](int total, int count, int index) { // where part `index` of `count` begins
    return (total + gap) * index / count;
  };
  const int left = std::max(courtRoom.left() + courtWidth + gap + 1, across(kActionsLeft));
  const QRect actions(left, courtRoom.top(), width() - left - across(kEdge), courtRoom.height());
  for (int i = 0; i < static_cast<int>(kActionControls.size()); ++i) {
    const int x = share(actions.width(), 2, i % 2);
    const int y = share(actions.height(), kActionRows, i / 2);
    m_buttons[kActionControls[static_cast<std::size_t>(i)].code]->setGeometry(
        actions.left() + x, actions.top() + y, share(actions.width(), 2, i % 2 + 1) - x - gap,
        share(actions.height(), kActionRows, i / 2 + 1) - y - gap);
  }
  const QRect row(across(kEdge), down(kShotsTop), width() - 2 * across(kEdge), down(kShotsHeight));
  for (int i = 0; i < kShotButtons; ++i) {
    const int x = share(row.width(), kShotButtons, i);
    m_buttons[kShotControls[static_cast<std::size_t>(i)].code]->setGeometry(
        row.left() + x, row.top(), share(row.width(), kShotButtons, i + 1) - x - gap, row.height());
  }
  const std::array totals = {m_counts[EventCode::GFG], m_counts[EventCode::GF3], m_total};
  constexpr std::array kEdges = {0, 3, 6, 10}; // tenths; the last holds a percentage too
  const int wide = 2 * gap;                    // with a hairline between two
  const int totalsTop = down(kTotalsTop);
  for (std::size_t i = 0; i < totals.size(); ++i) {
    const int x = (row.width() + wide) * kEdges[i] / 10;
    const int next = (row.width() + wide) * kEdges[i + 1] / 10;
    totals[i]->setGeometry(row.left() + x, totalsTop, next - x - wide, height() - totalsTop - kGap);
  }
  for (const auto& [code, box] : m_counts)
    box->layOut();
  m_total->layOut();
  update();
}

void PlayerPanel::layOutHead() {
  const int right = width() - across(kEdge);
  m_jersey->setFont(Theme::font(Type::Jersey));
  m_jersey->setGeometry(across(kJersey.left()), down(kJersey.top()), across(kJersey.width()),
                        down(kJersey.height()));
  m_points->setFont(Theme::font(Type::Points));
  const int pointsWidth =
      std::max(across(kPointsWidth), m_points->fontMetrics().horizontalAdvance(QStringLiteral("88")));
  m_points->setGeometry(right - pointsWidth, down(kJersey.top()), pointsWidth, down(kJersey.height()));
  const int left = across(kHeadLeft);
  m_name->setFont(Theme::font(Type::Name));
  const int nameHeight = m_name->fontMetrics().height();
  const int middle = down(kPips.top()) - 2;
  m_name->setGeometry(left, middle - nameHeight, m_points->x() - left - 2, nameHeight);
  m_time->setFont(Theme::font(Type::Small));
  const int timeHeight = m_time->fontMetrics().height();
  const int timeWidth = m_time->fontMetrics().horizontalAdvance(QStringLiteral("00:00")) + 2;
  m_time->setGeometry(m_points->x() - timeWidth - 2, down(kPips.center().y()) - timeHeight / 2, timeWidth,
                      timeHeight);
  showName();
}

// A box for every personal foul up to the limit.
void PlayerPanel::paintPips(QPainter& painter) const {
  const Look& look = Theme::look();
  const int fouls = m_shown.counters[Counter::PF];
  const int pips = m_mostFouls > 0 && m_mostFouls <= kMostPips ? m_mostFouls : kMostPips - 1;
  const QColor full = m_shown.personalFouls == LivePanel::FoulMark::Reached ? look.missed
                      : m_shown.personalFouls == LivePanel::FoulMark::None  ? look.ink
                                                                            : look.warningBar;
  const double pitch = static_cast<double>(across(kPips.width())) / kMostPips;
  const QRectF first(across(kPips.left()) + 0.5, down(kPips.top()) + 0.5, pitch - 2,
                     down(kPips.height()) - 1);
  for (int pip = 0; pip < pips; ++pip) {
    const bool isFull = pip < fouls;
    painter.setPen(QPen(isFull ? full : look.edge, 1));
    painter.setBrush(isFull ? QBrush(full) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(first.translated(pip * pitch, 0), 1.5, 1.5);
  }
}

void PlayerPanel::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(m_isSelected ? QPen(look.accent, kTeamEdge) : QPen(look.line, 1));
  painter.setBrush(look.surface);
  painter.drawRoundedRect(m_isSelected ? card.adjusted(1, 1, -1, -1) : card, kRadius, kRadius);
  if (m_shown.player == 0) // a place that stays empty says nothing
    return;
  const QColor team = colourOf(m_teamColour);
  painter.setPen(QPen(outlineOf(team, look.surface), 1));
  painter.setBrush(team);
  painter.drawRoundedRect(QRectF(m_jersey->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
  paintPips(painter);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(look.line);
  for (const QWidget* box : {m_counts.at(EventCode::GF3), m_total}) {
    const int x = box->x() - Theme::measure()(kGap);
    painter.drawLine(x, box->y() + 2, x, box->geometry().bottom() - 2);
  }
}

} // namespace hooptab
