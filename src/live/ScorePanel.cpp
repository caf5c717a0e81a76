#include "live/ScorePanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/ScoreText.h"
#include "live/SideSwitch.h"
#include "storage/Module1.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>
#include <QToolTip>

namespace hooptab {

namespace {

constexpr int kSelectColour = 1835;
constexpr int kFouls = 1019;
constexpr int kTeamFouls = 1712;
constexpr int kPointsByPeriod = 1506;
constexpr int kAhead = 1020;
constexpr int kTied = 1021;
constexpr int kTimeInLeadHint = 1714;
constexpr int kNoTime = 1383;
constexpr int kPeriod = 1087;
constexpr int kSwitchSides = 1043;
constexpr int kHalfTime = 2381;
constexpr int kStartHint = 1930;
constexpr int kClockHint = 1931;
constexpr int kSecondMore = 1932;
constexpr int kSecondLess = 1933;
constexpr int kClockForm = 1934;
constexpr int kBack = 1935;
constexpr int kBackHint = 1936;
constexpr int kOnDisk = 1937;
constexpr int kNotOnDiskHint = 1939;
constexpr int kPlaysLeft = 1940;
constexpr int kInBonus = 1943;
constexpr int kPeriodByHand = 1944;
constexpr int kRowsStay = 2494;
constexpr int kLocked = 2495;
constexpr int kRefusedShown = 700; // milliseconds

constexpr int kLeastWidth = 250;
constexpr int kGap = 3;
constexpr int kSwitchWidth = 32;
constexpr int kPlateWidth = (kLeastWidth - kSwitchWidth) / 2 - kGap;
constexpr int kPlateMargin = 4;
constexpr int kArrowRoom = 30;
constexpr int kPlateHeight = 52;
constexpr int kClockWidth = 172;
constexpr int kClockHeight = 50;
constexpr int kPeriodHeight = 24;
constexpr int kStartHeight = 36;
constexpr int kSecondWidth = 36;
constexpr int kSmallHeight = 24;
constexpr int kDiskWidth = 16;

constexpr int kNamePoints = 10;
constexpr int kScorePoints = 22;
constexpr int kFoulPoints = 12;
constexpr int kClockPoints = 36;
constexpr int kTypedClockPoints = 28;
constexpr int kPeriodPoints = 13;
constexpr int kStartPoints = 15;
constexpr int kLeadPoints = 9;
constexpr int kDiskPoints = 10;
constexpr int kTiedPlace = static_cast<int>(LeadState::Tied);

void colour(QWidget& widget, const QColor& background) {
  QPalette own = widget.palette();
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button})
    own.setColor(role, background);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    own.setColor(role, textOn(background));
  widget.setPalette(own);
}

void colourText(QLabel& label, const QColor& text) {
  QPalette own;
  own.setColor(QPalette::WindowText, text);
  label.setPalette(own);
}

QBoxLayout* rowIn(QWidget& widget) {
  auto* row = new QHBoxLayout(&widget);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  return row;
}

QFont bold(QFont font, int points) {
  font.setPointSize(points);
  font.setBold(true);
  return font;
}

} // namespace

ScorePanel::ScorePanel(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("ScorePanel"));
  setMinimumWidth(kLeastWidth);
  auto* plates = new QWidget(this);
  m_plates = rowIn(*plates);
  m_switch = new SideSwitch(smallButton(QStringLiteral("cmdSWITCH"), {}, kSwitchSides), this);
  connect(m_switch, &SideSwitch::asked, this, &ScorePanel::switchAsked);
  m_platesStay = new QAction(this);
  m_platesStay->setObjectName(QStringLiteral("cmdROWSSTAY"));
  m_platesStay->setCheckable(true);
  setTextNumber(*m_platesStay, kRowsStay);
  m_switch->addAction(m_platesStay);
  m_switch->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(m_platesStay, &QAction::triggered, this, &ScorePanel::platesStayAsked);
  m_plates->addWidget(makePlate(0));
  m_plates->addWidget(m_switch);
  m_plates->addWidget(makePlate(1));
  m_refused.setSingleShot(true);
  m_refused.setInterval(kRefusedShown);
  connect(&m_refused, &QTimer::timeout, this, &ScorePanel::showStart);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  for (QWidget* part : {plates, makeFouls(), makeClock(), makeButtons(), makeLeads()})
    layout->addWidget(part);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  relabel(*this, texts);
  relabelPanel();
}

QLabel* ScorePanel::label(const QString& name, const QFont& font) {
  auto* made = new PlainLabel(this);
  made->setObjectName(name);
  made->setFont(font);
  made->setAlignment(Qt::AlignCenter);
  return made;
}

// Reached by the Tab key alone, so that a click never takes the keys away from the clock.
QToolButton* ScorePanel::smallButton(const QString& name, const QString& text, int toolTip) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setText(text);
  button->setFixedHeight(kSmallHeight);
  button->setFocusPolicy(Qt::TabFocus);
  setToolTipNumber(*button, toolTip);
  setAccessibleNumber(*button, toolTip);
  return button;
}

QWidget* ScorePanel::makePlate(int team) {
  Side& side = m_sides[static_cast<std::size_t>(team)];
  side.plate = new QWidget(this);
  side.plate->setObjectName(QStringLiteral("pictTEAM(%1)").arg(team));
  side.plate->setAutoFillBackground(true);
  side.plate->setMinimumWidth(kPlateWidth);
  side.plate->setFixedHeight(kPlateHeight);
  side.plate->installEventFilter(this);
  setToolTipNumber(*side.plate, kSelectColour);
  side.name = smallButton(QStringLiteral("cmdCOUL(%1)").arg(team), {}, kSelectColour);
  side.name->setAutoRaise(true);
  side.name->setFont(bold(font(), kNamePoints));
  side.name->setFixedHeight(kSmallHeight - kPlateMargin);
  side.name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  connect(side.name, &QToolButton::clicked, this, [this, team] { emit colourAsked(team); });
  side.points = label(QStringLiteral("lblPTS%1").arg(team), Theme::figures(kScorePoints, true));

  auto* layout = new QVBoxLayout(side.plate);
  layout->setContentsMargins(kPlateMargin, 0, kPlateMargin, 0);
  layout->setSpacing(0);
  layout->addWidget(side.name);
  layout->addWidget(side.points);
  return side.plate;
}

QWidget* ScorePanel::makeFouls() {
  auto* fouls = new QWidget(this);
  m_fouls = rowIn(*fouls);
  for (std::size_t team = 0; team < 2; ++team) {
    m_sides[team].fouls = label(QStringLiteral("lblFTE%1").arg(team), Theme::figures(kFoulPoints));
    m_fouls->addWidget(m_sides[team].fouls, 1);
  }
  QLabel* title = label(QStringLiteral("lblFTE"), font());
  title->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*title, kFouls);
  m_fouls->insertWidget(1, title);
  return fouls;
}

QWidget* ScorePanel::makeClock() {
  auto* time = new QWidget(this);
  time->setFixedHeight(kClockHeight);
  m_clock = label(QStringLiteral("lblTEMPS"), Theme::figures(kClockPoints, true));
  m_clock->setFixedSize(kClockWidth, kClockHeight);
  m_clock->installEventFilter(this);
  m_clockEdit = new QLineEdit(m_clock);
  m_clockEdit->setObjectName(QStringLiteral("txtTEMPS"));
  m_clockEdit->setFont(Theme::figures(kTypedClockPoints, true));
  m_clockEdit->setAlignment(Qt::AlignCenter);
  m_clockEdit->setGeometry(m_clock->rect());
  m_clockEdit->installEventFilter(this);
  m_clockEdit->hide();

  m_period = label(QStringLiteral("lblPERIOD"), bold(font(), kPeriodPoints));
  setToolTipNumber(*m_period, kPeriod);
  m_previousPeriod = smallButton(QStringLiteral("UpDoPERIOD(1)"), {}, kPeriodByHand);
  m_nextPeriod = smallButton(QStringLiteral("UpDoPERIOD(0)"), {}, kPeriodByHand);
  m_previousPeriod->setArrowType(Qt::DownArrow);
  m_nextPeriod->setArrowType(Qt::UpArrow);
  connect(m_previousPeriod, &QToolButton::pressed, this, [this] { emit periodAsked(m_game->period() - 1); });
  connect(m_nextPeriod, &QToolButton::pressed, this, [this] { emit periodAsked(m_game->period() + 1); });
  auto* period = new QGridLayout;
  period->setSpacing(1);
  m_period->setFixedHeight(kPeriodHeight);
  period->addWidget(m_period, 0, 0, 1, 2);
  int column = 0;
  for (QToolButton* button : {m_previousPeriod, m_nextPeriod}) {
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setEnabled(false);
    period->addWidget(button, 1, column++);
  }
  QBoxLayout* row = rowIn(*time);
  row->addWidget(m_clock);
  row->addLayout(period, 1);
  return time;
}

QWidget* ScorePanel::makeButtons() {
  auto* buttons = new QWidget(this);
  m_start = new QPushButton(buttons);
  m_start->setObjectName(QStringLiteral("cmdSTART"));
  m_start->setFont(bold(font(), kStartPoints));
  m_start->setFixedHeight(kStartHeight);
  m_start->setFocusPolicy(Qt::TabFocus);
  m_start->setAutoDefault(false);
  connect(m_start, &QPushButton::pressed, this, [this] {
    m_start->setDown(false); // what it asks for may open a window that keeps the release from it
    emit startAsked();
  });
  m_earlier = smallButton(QStringLiteral("cmdTEMPS(1)"), QStringLiteral("−1"), kSecondLess);
  m_later = smallButton(QStringLiteral("cmdTEMPS(0)"), QStringLiteral("+1"), kSecondMore);
  connect(m_earlier, &QToolButton::pressed, this, [this] { emit clockAsked(m_game->clockSeconds() - 1); });
  connect(m_later, &QToolButton::pressed, this, [this] { emit clockAsked(m_game->clockSeconds() + 1); });

  m_return = smallButton(QStringLiteral("cmdRETURN"), {}, kBackHint);
  setTextNumber(*m_return, kBack);
  m_return->setFixedSize(2 * kSecondWidth + kGap, kStartHeight); // it takes the place of the two
  m_return->setShortcut(Qt::Key_F3); // whoever records by keys has no other way back
  connect(m_return, &QToolButton::pressed, this, &ScorePanel::returnAsked); // what is typed next comes after
  m_return->hide();
  m_disk = label(QStringLiteral("lblDISK"), bold(font(), kDiskPoints));
  m_disk->setFixedWidth(kDiskWidth);

  QBoxLayout* row = rowIn(*buttons);
  row->addWidget(m_start, 1);
  for (QToolButton* button : {m_earlier, m_later}) {
    button->setFixedSize(kSecondWidth, kStartHeight);
    button->setFont(Theme::figures(kFoulPoints));
    row->addWidget(button);
  }
  row->addWidget(m_return);
  row->addWidget(m_disk);
  for (QWidget* button :
       {static_cast<QWidget*>(m_start), static_cast<QWidget*>(m_earlier), static_cast<QWidget*>(m_later)})
    button->setEnabled(false);
  return buttons;
}

QWidget* ScorePanel::makeLeads() {
  auto* leads = new QWidget(this);
  m_leadGrid = new QGridLayout(leads);
  m_leadGrid->setContentsMargins(0, 0, 0, 0);
  m_leadGrid->setSpacing(0);
  m_leadGrid->setHorizontalSpacing(kGap);
  for (int state = 0; state < static_cast<int>(m_leads.size()); ++state) {
    Lead& lead = m_leads[static_cast<std::size_t>(state)];
    lead.title = label(QStringLiteral("lblPOS(%1)").arg(state), font());
    lead.title->setForegroundRole(QPalette::PlaceholderText);
    setTextNumber(*lead.title, state == kTiedPlace ? kTied : kAhead);
    lead.time = label(QStringLiteral("txtPOSTemps(%1)").arg(state), Theme::figures(kLeadPoints, true));
    lead.times = label(QStringLiteral("txtPOSNb(%1)").arg(state), Theme::figures(kLeadPoints));
    lead.time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lead.times->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (QWidget* part : {lead.title, lead.time, lead.times})
      setToolTipNumber(*part, kTimeInLeadHint);
  }
  for (int place = 0; place < 2 * static_cast<int>(m_leads.size()); place += 2) {
    m_leadGrid->setColumnStretch(place, 3);
    m_leadGrid->setColumnStretch(place + 1, 2);
    m_leadGrid->setColumnMinimumWidth(place, kLeastWidth / 6);
    m_leadGrid->setColumnMinimumWidth(place + 1, kLeastWidth / 8);
  }
  placeLeads();
  return leads;
}

// Below the teams; the tie between them.
void ScorePanel::placeLeads() {
  int place = 0;
  for (const int state : {m_areTurned ? 1 : 0, kTiedPlace, m_areTurned ? 0 : 1}) {
    const Lead& lead = m_leads[static_cast<std::size_t>(state)];
    m_leadGrid->addWidget(lead.title, 0, place, 1, 2);
    m_leadGrid->addWidget(lead.time, 1, place);
    m_leadGrid->addWidget(lead.times, 1, place + 1);
    place += 2;
  }
}

QString ScorePanel::abbreviation(std::size_t team) const {
  return m_game == nullptr ? QString() : toQt(m_game->game().details.abbreviation[team]);
}

QColor ScorePanel::teamColour(std::size_t team) const {
  return m_game == nullptr ? QColor() : colourOf(m_game->game().details.teamColour[team]);
}

void ScorePanel::tip(QWidget& widget, int number) {
  setToolTipNumber(widget, number);
  widget.setToolTip(caption(m_texts, number).trimmed());
}

void ScorePanel::showGame(const LiveGame& game) {
  m_game = &game;
  for (std::size_t team = 0; team < 2; ++team)
    showTeam(team);
  m_period->setText(toQt(periodShown(game, m_texts)));
  for (std::size_t state = 0; state < m_leads.size(); ++state) {
    m_leads[state].time->setText(toQt(leadTimeShown(game, static_cast<LeadState>(state))));
    m_leads[state].times->setText(u'×' + QString::number(game.state().lead.times[state]));
  }
  showClockButtons();
  showSides();
  showTime(game);
}

void ScorePanel::showTime(const LiveGame& game) {
  m_clock->setText(toQt(clockShown(game)));
  const LeadState now = game.state().lead.state;
  m_leads[static_cast<std::size_t>(now)].time->setText(toQt(leadTimeShown(game, now)));
}

void ScorePanel::showTeam(std::size_t team) {
  const int number = static_cast<int>(team);
  Side& side = m_sides[team];
  const QColor own = teamColour(team);
  if (side.plate->palette().color(QPalette::Window) != own) {
    for (QWidget* part : {side.plate, static_cast<QWidget*>(side.name), static_cast<QWidget*>(side.points)})
      colour(*part, own);
  }
  side.points->setText(QString::number(m_game->state().points(number)));
  side.points->setToolTip(caption(m_texts, kPointsByPeriod) + u'\n' +
                          toQt(shownByPeriod(*m_game, number, ByPeriod::Points, m_texts)));

  const bool isInBonus = m_game->isInBonus(number);
  const QString fouls = QString::number(m_game->teamFouls(number));
  side.fouls->setText(isInBonus ? QStringLiteral("◆ ") + fouls : fouls);
  side.fouls->setFont(Theme::figures(kFoulPoints, isInBonus));
  colourText(*side.fouls, isInBonus ? Theme::missed() : palette().color(QPalette::WindowText));
  QString hint =
      caption(m_texts, kTeamFouls) + u'\n' + toQt(shownByPeriod(*m_game, number, ByPeriod::Fouls, m_texts));
  if (isInBonus)
    hint += u'\n' + caption(m_texts, kInBonus);
  side.fouls->setToolTip(hint);
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
  tip(*m_start, !hasTime ? kNoTime : isLocked ? kLocked : kStartHint);
  tip(*m_clock, hasTime ? kClockHint : kNoTime);
  tip(*m_later, hasTime ? kSecondMore : kNoTime);
  tip(*m_earlier, hasTime ? kSecondLess : kNoTime);

  const bool canChangePeriod = !isRunning && m_game->canRecord();
  m_nextPeriod->setEnabled(canChangePeriod);
  m_previousPeriod->setEnabled(canChangePeriod && m_game->period() > 1);
  const bool canReturn = canChangePeriod && m_game->canReturnToEndedPeriod();
  m_return->setVisible(canReturn);
  m_earlier->setVisible(!canReturn);
  m_later->setVisible(!canReturn);
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
  m_start->setText(lock > 0 ? QStringLiteral("%1 (%2 s)").arg(words).arg(lock) : words);
  m_start->setEnabled(canStart);
  if (m_refused.isActive())
    colour(*m_start, Theme::accent());
  else if (canStart && lock == 0)
    colour(*m_start, phase == Phase::Running ? Theme::missed() : Theme::made());
  else
    m_start->setPalette(QPalette());
}

int ScorePanel::bottomOfClock() const {
  return m_start->mapTo(this, m_start->rect().bottomLeft()).y();
}

void ScorePanel::showRefused() {
  m_refused.start();
  showStart();
}

void ScorePanel::setSides(bool team0PlaysRight, bool platesStay) {
  m_isHalfTimeOver = m_isHalfTimeOver || team0PlaysRight != m_team0PlaysRight;
  m_team0PlaysRight = team0PlaysRight;
  m_platesStay->setChecked(platesStay);
  if (const bool areTurned = team0PlaysRight && !platesStay; areTurned != m_areTurned) {
    m_areTurned = areTurned;
    const std::size_t left = areTurned ? 1 : 0;
    m_plates->insertWidget(0, m_sides[left].plate);
    m_plates->addWidget(m_sides[1 - left].plate);
    m_fouls->insertWidget(0, m_sides[left].fouls, 1);
    m_fouls->addWidget(m_sides[1 - left].fouls, 1);
    placeLeads();
  }
  showSides();
}

// The arrow at a team's name points to its side of the court.
void ScorePanel::showSides() {
  for (std::size_t team = 0; team < 2; ++team) {
    QToolButton& plate = *m_sides[team].name;
    const bool playsRight = (team == 1) != m_team0PlaysRight;
    const QString name = withoutMnemonic(
        plate.fontMetrics().elidedText(abbreviation(team), Qt::ElideRight, kPlateWidth - kArrowRoom));
    plate.setText(playsRight ? name + QStringLiteral(" ▸") : QStringLiteral("◂ ") + name);
  }
  const std::size_t left = m_team0PlaysRight ? 1 : 0;
  const bool isHalfTime = m_game != nullptr && m_game->isHalfTime();
  m_isHalfTimeOver = m_isHalfTimeOver && isHalfTime;
  const bool isOffered = isHalfTime && !m_isHalfTimeOver;
  m_switch->setOffered(isOffered);
  m_switch->showSides(abbreviation(left), {teamColour(left), teamColour(1 - left)},
                      caption(m_texts, isOffered ? kHalfTime : kSwitchSides) + u'\n' +
                          toQt(m_texts.withPlaceholder(kPlaysLeft, fromQt(abbreviation(left)))));
}

void ScorePanel::showDisk(bool isOnDisk, std::size_t waiting) {
  m_isOnDisk = isOnDisk;
  m_waiting = waiting;
  m_disk->setText(isOnDisk ? QStringLiteral("✓") : QStringLiteral("✕"));
  m_disk->setToolTip(isOnDisk ? caption(m_texts, kOnDisk)
                              : toQt(m_texts.withPlaceholder(kNotOnDiskHint, std::to_string(waiting))));
  m_disk->setAccessibleName(m_disk->toolTip());
  colourText(*m_disk, isOnDisk ? Theme::made() : Theme::missed());
}

void ScorePanel::relabelPanel() {
  leaveClock();
  showDisk(m_isOnDisk, m_waiting);
  if (m_game != nullptr)
    showGame(*m_game);
}

void ScorePanel::applyColours() {
  relabelPanel();
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
    for (int team = 0; team < 2; ++team) {
      if (watched == m_sides[static_cast<std::size_t>(team)].plate)
        emit colourAsked(team);
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ScorePanel::editClock() {
  if (m_game == nullptr || !m_game->hasTime() || m_game->phase() != LiveGame::Phase::Stopped)
    return;
  const QString form = toQt(m_texts.withPlaceholder(kClockForm, Module1::clockText(m_game->fullLength())));
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
