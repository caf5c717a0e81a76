#include "scoreboard/ScorePanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "recording/ScoreText.h"
#include "scoreboard/FoulCard.h"
#include "scoreboard/PeriodScores.h"
#include "scoreboard/StartButton.h"
#include "storage/Module1.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QToolTip>

namespace hooptab {

namespace {

constexpr int kRefusedShown = 700; // milliseconds

// Heights and widths for a window 1366 wide and for one of 1920.
struct Both {
  int narrow, wide;
  [[nodiscard]] int now() const { return Theme::measure()(narrow, wide); }
};
constexpr Both kPlateHeight{140, 198};
constexpr Both kTeamHeight{60, 82};
constexpr Both kCentre{54, 70}; // of the plate, for the period
constexpr Both kStartHeight{38, 48};
constexpr Both kPeriodsHeight{70, 82};
constexpr Both kGap{5, 9};
constexpr Both kMargin{8, 12};
constexpr Both kSecond{27, 34};
constexpr Both kSecondHeight{23, 28};
constexpr Both kArrow{22, 28};
constexpr Both kArrowHeight{20, 24};
constexpr double kPlateRadius = 8;
constexpr double kTeamRadius = 6;
constexpr double kButtonOnPlate = 0.18;

void wear(QWidget& widget, const QColor& text) {
  QPalette own = widget.palette();
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    own.setColor(role, text);
  widget.setPalette(own);
}

// A team's part of the plate, painted in its colour.
class TeamPlate : public QWidget {
 public:
  using QWidget::QWidget;
  void setColour(const QColor& colour) {
    if (colour == m_colour)
      return;
    m_colour = colour;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outlineOf(m_colour, Theme::look().plate));
    painter.setBrush(m_colour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kTeamRadius, kTeamRadius);
  }

 private:
  QColor m_colour;
};

} // namespace

ScorePanel::ScorePanel(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("ScorePanel"));
  m_refused.setSingleShot(true);
  m_refused.setInterval(kRefusedShown);
  connect(&m_refused, &QTimer::timeout, this, &ScorePanel::showStart);
  for (const Side team : kSides)
    makeTeam(team);
  makeClock();
  makePeriod();
  m_periods = new PeriodScores(texts, this);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  relabel(*this, texts);
  applyColours();
}

QLabel* ScorePanel::label(const QString& name) {
  auto* made = new PlainLabel(this);
  made->setObjectName(name);
  made->setAlignment(Qt::AlignCenter);
  return made;
}

// Reached by the Tab key alone, so that a click never takes the keys away from the clock.
QToolButton* ScorePanel::smallButton(const QString& name, const QString& text, Text toolTip) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setText(text);
  button->setFocusPolicy(Qt::TabFocus);
  setToolTipNumber(*button, toolTip);
  setAccessibleNumber(*button, toolTip);
  return button;
}

void ScorePanel::makeTeam(Side team) {
  TeamWidgets& side = m_sides[team];
  side.plate = new TeamPlate(this);
  side.plate->setObjectName(QStringLiteral("pictTEAM(%1)").arg(numberOf(team)));
  side.plate->installEventFilter(this);
  setToolTipNumber(*side.plate, Text::SelectColour);
  side.name = smallButton(QStringLiteral("cmdCOUL(%1)").arg(numberOf(team)), {}, Text::SelectColour);
  side.name->setParent(side.plate);
  side.name->setAutoRaise(true);
  connect(side.name, &QToolButton::clicked, this, [this, team] { emit colourAsked(team); });
  side.points = label(QStringLiteral("lblPTS%1").arg(numberOf(team)));
  side.points->setParent(side.plate);
  side.fouls = new FoulCard(team, m_texts, this);
  connect(side.fouls, &FoulCard::timeOutAsked, this, &ScorePanel::timeOutAsked);
  connect(side.fouls, &FoulCard::arrowAsked, this, &ScorePanel::arrowAsked);
  connect(side.fouls, &FoulCard::menuAsked, this, &ScorePanel::teamMenuAsked);
}

void ScorePanel::makeClock() {
  m_clock = label(QStringLiteral("lblTEMPS"));
  m_clock->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_clock->installEventFilter(this);
  m_clockEdit = new QLineEdit(this);
  m_clockEdit->setObjectName(QStringLiteral("txtTEMPS"));
  m_clockEdit->setAlignment(Qt::AlignCenter);
  m_clockEdit->installEventFilter(this);
  m_clockEdit->hide();
  m_state = label(QStringLiteral("lblSTATE"));
  m_state->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

  m_start = new StartButton(this);
  m_start->setObjectName(QStringLiteral("cmdSTART"));
  connect(m_start, &QPushButton::pressed, this, [this] {
    m_start->setDown(false); // what it asks for may open a window that keeps the release from it
    emit startAsked();
  });
  m_earlier = smallButton(QStringLiteral("cmdTEMPS(1)"), QStringLiteral("−1"), Text::SecondLess);
  m_later = smallButton(QStringLiteral("cmdTEMPS(0)"), QStringLiteral("+1"), Text::SecondMore);
  connect(m_earlier, &QToolButton::pressed, this, [this] { emit clockAsked(m_game->clockSeconds() - 1); });
  connect(m_later, &QToolButton::pressed, this, [this] { emit clockAsked(m_game->clockSeconds() + 1); });
  m_return = smallButton(QStringLiteral("cmdRETURN"), {}, Text::BackHint);
  setTextNumber(*m_return, Text::BackwardsTip);
  m_return->setShortcut(Qt::Key_F3); // whoever records by keys has no other way back
  connect(m_return, &QToolButton::pressed, this, &ScorePanel::returnAsked); // what is typed next comes after
  m_return->hide();
  for (QWidget* button :
       {static_cast<QWidget*>(m_start), static_cast<QWidget*>(m_earlier), static_cast<QWidget*>(m_later)})
    button->setEnabled(false);
}

void ScorePanel::makePeriod() {
  m_periodTitle = label(QStringLiteral("lblPERIODTITLE"));
  setTextNumber(*m_periodTitle, Text::Period);
  m_period = label(QStringLiteral("lblPERIOD"));
  setToolTipNumber(*m_period, Text::Period);
  m_previousPeriod = smallButton(QStringLiteral("UpDoPERIOD(1)"), {}, Text::PeriodByHand);
  m_nextPeriod = smallButton(QStringLiteral("UpDoPERIOD(0)"), {}, Text::PeriodByHand);
  m_previousPeriod->setArrowType(Qt::DownArrow);
  m_nextPeriod->setArrowType(Qt::UpArrow);
  for (QToolButton* button : {m_previousPeriod, m_nextPeriod})
    button->setEnabled(false);
  connect(m_previousPeriod, &QToolButton::pressed, this, [this] { emit periodAsked(m_game->period() - 1); });
  connect(m_nextPeriod, &QToolButton::pressed, this, [this] { emit periodAsked(m_game->period() + 1); });
}

// By hand: every figure has its place, whatever it shows.
void ScorePanel::layOut() {
  const int gap = kGap.now();
  const int margin = kMargin.now();
  m_plate = QRect(0, 0, width(), kPlateHeight.now());
  const int teamWidth = (width() - 2 * margin - kCentre.now()) / 2;
  const int nameHeight = QFontMetrics(Theme::font(Type::Name)).height();
  for (const Side team : kSides) {
    const TeamWidgets& side = m_sides[team];
    const bool isLeft = (team == Side::Visitor) != m_areTurned;
    side.plate->setGeometry(isLeft ? margin : width() - margin - teamWidth, margin, teamWidth,
                            kTeamHeight.now());
    side.points->setGeometry(margin, nameHeight, teamWidth - 2 * margin, kTeamHeight.now() - nameHeight);
    side.points->setAlignment((isLeft ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    const int half = (width() - gap) / 2;
    side.fouls->setGeometry(isLeft ? 0 : width() - half, kPlateHeight.now() + kStartHeight.now() + 2 * gap,
                            half, m_foulsHeight);
  }
  const QRect centre(margin + teamWidth, margin, width() - 2 * (margin + teamWidth), kTeamHeight.now());
  const int title = QFontMetrics(Theme::font(Type::Small)).height();
  m_periodTitle->setGeometry(centre.left(), centre.top() - 2, centre.width(), title);
  const int arrowTop = centre.bottom() + 1 - kArrowHeight.now();
  m_period->setGeometry(centre.left(), centre.top() + title - 3, centre.width(),
                        arrowTop - centre.top() - title + 4);
  m_previousPeriod->setGeometry(centre.center().x() - kArrow.now(), arrowTop, kArrow.now(),
                                kArrowHeight.now());
  m_nextPeriod->setGeometry(centre.center().x() + 1, arrowTop, kArrow.now(), kArrowHeight.now());

  const int clockTop = margin + kTeamHeight.now();
  const QFontMetrics clock(m_clock->font());
  const int clockWidth = clock.horizontalAdvance(QStringLiteral("00:00")) + 2;
  m_clock->setGeometry(margin, clockTop, clockWidth, kPlateHeight.now() - clockTop - 2);
  m_clockEdit->setGeometry(m_clock->geometry().adjusted(-2, 4, 2, -4));
  const int left = m_clock->geometry().right() + 2;
  const int right = width() - margin;
  m_state->setGeometry(left, clockTop + margin, right - left, title + 2);
  const int buttonTop = kPlateHeight.now() - margin - kSecondHeight.now() - 4;
  m_later->setGeometry(right - kSecond.now(), buttonTop, kSecond.now(), kSecondHeight.now());
  m_earlier->setGeometry(right - 2 * kSecond.now() - 4, buttonTop, kSecond.now(), kSecondHeight.now());
  m_return->setGeometry(left, buttonTop, right - left, kSecondHeight.now());

  int top = kPlateHeight.now() + gap;
  m_start->setGeometry(0, top, width(), kStartHeight.now());
  top += kStartHeight.now() + gap + m_foulsHeight + gap;
  m_periods->setGeometry(0, top, width(), kPeriodsHeight.now());
  showSides();
}

void ScorePanel::resizeEvent(QResizeEvent*) {
  layOut();
}

void ScorePanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Theme::look().plate);
  painter.setBrush(Theme::look().plate);
  painter.drawRoundedRect(QRectF(m_plate).adjusted(0.5, 0.5, -0.5, -0.5), kPlateRadius, kPlateRadius);
}

void ScorePanel::tip(QWidget& widget, Text text) {
  setToolTipNumber(widget, text);
  widget.setToolTip(caption(m_texts, text).trimmed());
}

void ScorePanel::showGame(const LiveGame& game) {
  m_game = &game;
  if (FoulCard::heightFor(game) != m_foulsHeight)
    setHeight();
  for (const Side team : kSides)
    showTeam(team);
  m_period->setText(toQt(periodShown(game, m_texts)));
  m_periods->showGame(game);
  showClockButtons();
  showSides();
  showTime(game);
}

void ScorePanel::showTime(const LiveGame& game) {
  m_clock->setText(toQt(clockShown(game)));
  m_periods->showTime(game);
}

void ScorePanel::showTeam(Side team) {
  TeamWidgets& side = m_sides[team];
  const QColor own = colourOf(m_game->game().details.teamColour[team]);
  static_cast<TeamPlate*>(side.plate)->setColour(own);
  wear(*side.points, textOn(own));
  wear(*side.name, textOn(own));
  side.points->setText(QString::number(m_game->state().points(team)));
  side.points->setToolTip(caption(m_texts, Text::PointsByPeriod) + u'\n' +
                          toQt(shownByPeriod(*m_game, team, ByPeriod::Points, m_texts)));
  side.fouls->showGame(*m_game);
}

void ScorePanel::showClockButtons() {
  using Phase = LiveGame::Phase;
  const Phase phase = m_game->phase();
  const bool isRunning = phase == Phase::Running;
  const bool canSet = phase == Phase::Stopped && m_game->hasTime();
  showStart();
  m_later->setEnabled(canSet && m_game->clockSeconds() < m_game->fullLength());
  m_earlier->setEnabled(canSet && m_game->clockSeconds() > 0);
  if (!canSet)
    leaveClock();
  const bool hasTime = m_game->hasTime();
  const bool isLocked = m_game->startLock() > 0 && !isRunning;
  tip(*m_start, !hasTime ? Text::NoTime : isLocked ? Text::PeriodJustEnded : Text::StartHint);
  tip(*m_clock, hasTime ? Text::ClockHint : Text::NoTime);
  tip(*m_later, hasTime ? Text::SecondMore : Text::NoTime);
  tip(*m_earlier, hasTime ? Text::SecondLess : Text::NoTime);
  wear(*m_clock, isRunning || !hasTime ? Theme::look().plateText : Theme::look().clockStands);
  wear(*m_state, isRunning ? Theme::look().clockRuns
                 : hasTime ? Theme::look().clockStands
                           : Theme::look().plateMuted);
  m_state->setText(caption(m_texts, !hasTime    ? Text::WithoutTime
                                    : isRunning ? Text::ClockRuns
                                                : Text::ClockStands));

  const bool canChangePeriod = !isRunning && m_game->canRecord();
  m_nextPeriod->setEnabled(canChangePeriod);
  m_previousPeriod->setEnabled(canChangePeriod && m_game->period() > 1);
  const bool canReturn = canChangePeriod && m_game->canReturnToEndedPeriod();
  m_return->setVisible(canReturn);
  m_earlier->setVisible(!canReturn && !isRunning && hasTime);
  m_later->setVisible(!canReturn && !isRunning && hasTime);
}

// Locked, it stays enabled: a press on it is told why nothing happens.
void ScorePanel::showStart() {
  using Phase = LiveGame::Phase;
  if (m_game == nullptr)
    return;
  const Phase phase = m_game->phase();
  const bool canStart = m_game->hasTime() && phase != Phase::Decided && m_game->canRecord();
  const int lock = canStart && phase != Phase::Running ? m_game->startLock() : 0;
  const QString words = toQt(startShown(*m_game, m_texts));
  m_start->setEnabled(canStart);
  m_start->show(!canStart                 ? StartButton::Shown::Nothing
                : lock > 0                ? StartButton::Shown::Locked
                : phase == Phase::Running ? StartButton::Shown::Stop
                                          : StartButton::Shown::Start,
                lock > 0 ? QStringLiteral("%1 (%2 s)").arg(words).arg(lock) : words, m_refused.isActive());
}

int ScorePanel::bottomOfClock() const {
  return m_start->geometry().bottom();
}

void ScorePanel::showRefused() {
  m_refused.start();
  showStart();
}

void ScorePanel::setSides(bool team0PlaysRight, bool platesStay) {
  m_team0PlaysRight = team0PlaysRight;
  if (const bool areTurned = team0PlaysRight && !platesStay; areTurned != m_areTurned) {
    m_areTurned = areTurned;
    m_periods->setTurned(areTurned);
    layOut();
  }
  showSides();
}

// The arrow at a team's name points to its side of the court.
void ScorePanel::showSides() {
  if (m_game == nullptr)
    return;
  for (const Side team : kSides) {
    QToolButton& plate = *m_sides[team].name;
    const bool playsRight = (team == Side::Home) != m_team0PlaysRight;
    const int most = m_sides[team].plate->width() - 2;
    const int room = most - plate.fontMetrics().horizontalAdvance(QStringLiteral("◂ mm"));
    const QString name = withoutMnemonic(plate.fontMetrics().elidedText(
        toQt(m_game->game().details.abbreviation[team]), Qt::ElideRight, room));
    m_sides[team].fouls->setSide((team == Side::Visitor) != m_areTurned, playsRight, *m_game);
    plate.setText(playsRight ? name + QStringLiteral(" ▸") : QStringLiteral("◂ ") + name);
    // Above its score, on the outside.
    const int width = std::min(plate.fontMetrics().horizontalAdvance(plate.text()) + 2 * kMargin.now(), most);
    const bool isLeft = (team == Side::Visitor) != m_areTurned;
    plate.setGeometry(isLeft ? 1 : 1 + most - width, 1, width, plate.fontMetrics().height() + 2);
  }
}

void ScorePanel::relabelPanel() {
  leaveClock();
  if (m_game != nullptr)
    showGame(*m_game);
}

void ScorePanel::applyColours() {
  const Look& look = Theme::look();
  m_clock->setFont(Theme::font(Type::Clock));
  QFont typed = Theme::font(Type::Clock);
  typed.setPixelSize(typed.pixelSize() * 2 / 3);
  m_clockEdit->setFont(typed);
  m_state->setFont(Theme::font(Type::Caption, QFont::Bold));
  m_periodTitle->setFont(Theme::font(Type::Small));
  wear(*m_periodTitle, look.plateMuted);
  m_period->setFont(Theme::font(Type::Name, QFont::Bold));
  QFont period = Theme::font(Type::Points);
  period.setPixelSize(period.pixelSize() * 3 / 4);
  m_period->setFont(period);
  wear(*m_period, look.plateText);
  for (QToolButton* button : {m_earlier, m_later, m_return, m_previousPeriod, m_nextPeriod}) {
    QPalette own;
    own.setColor(QPalette::Button, mix(look.plateText, look.plate, kButtonOnPlate));
    own.setColor(QPalette::ButtonText, look.plateText);
    button->setPalette(own);
    button->setFont(Theme::font(Type::Body, QFont::DemiBold));
  }
  for (const TeamWidgets& side : m_sides) {
    side.name->setFont(Theme::font(Type::Name));
    side.points->setFont(Theme::font(Type::Score));
    side.fouls->applyColours();
  }
  m_periods->applyColours();
  setHeight();
  update();
  relabelPanel();
}

void ScorePanel::setHeight() {
  m_foulsHeight = m_game == nullptr ? 0 : FoulCard::heightFor(*m_game);
  setFixedHeight(kPlateHeight.now() + kStartHeight.now() + m_foulsHeight + kPeriodsHeight.now() +
                 3 * kGap.now());
  layOut();
}

void ScorePanel::endTimeOuts() {
  for (const TeamWidgets& side : m_sides)
    side.fouls->endTimeOut();
}

void ScorePanel::beginTimeOut(Side team) {
  m_sides[team].fouls->beginTimeOut();
}

// --- The clock by hand

bool ScorePanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_clock && event->type() == QEvent::MouseButtonDblClick) {
    editClock();
    return true;
  }
  if (watched == m_clockEdit) {
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) // its own menu
      leaveClock();
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool isTaken = key == Qt::Key_Return || key == Qt::Key_Enter;
      if (!isTaken && key != Qt::Key_Escape)
        return false;
      if (event->type() == QEvent::ShortcutOverride) // no shortcut of the window while one types here
        event->accept();
      else if (isTaken)
        takeClock();
      else
        leaveClock();
      return true;
    }
  }
  // Not with the left button: a click that goes astray opens no window.
  if (event->type() == QEvent::MouseButtonPress && m_game != nullptr &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
    for (const Side team : kSides) {
      if (watched == m_sides[team].plate)
        emit colourAsked(team);
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ScorePanel::editClock() {
  if (m_game == nullptr || !m_game->hasTime() || m_game->phase() != LiveGame::Phase::Stopped)
    return;
  const QString form =
      toQt(m_texts.withPlaceholder(Text::ClockForm, Module1::clockText(m_game->fullLength())));
  m_clockEdit->setToolTip(form);
  m_clockEdit->setAccessibleName(form);
  m_clockEdit->setText(m_clock->text());
  m_clockEdit->selectAll();
  m_focusBefore = QApplication::focusWidget();
  m_clockEdit->show();
  m_clockEdit->setFocus();
}

void ScorePanel::takeClock() {
  const std::optional<int> seconds = typedClock(fromQt(m_clockEdit->text()), m_game->fullLength());
  if (!seconds) {
    m_clockEdit->selectAll();
    QToolTip::showText(m_clockEdit->mapToGlobal(m_clockEdit->rect().bottomLeft()), m_clockEdit->toolTip(),
                       m_clockEdit);
    return;
  }
  leaveClock();
  emit clockAsked(*seconds);
}

// The focus goes back to where it was, not on to the next button; its loss comes here once more.
void ScorePanel::leaveClock() {
  if (m_clockEdit->isHidden())
    return;
  QWidget* back = m_focusBefore != nullptr ? m_focusBefore.data() : parentWidget();
  if (m_clockEdit->hasFocus() && back != nullptr)
    back->setFocus();
  m_clockEdit->hide();
}

} // namespace hooptab
