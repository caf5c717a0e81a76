#include "events/FollowUpBar.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/JerseyButton.h"
#include "events/PlayerWords.h"
#include "game/EventWords.h"
#include "recording/LiveFigures.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMates = 2;      // buttons side by side, with names
constexpr int kRebounders = 3; // the same, without
constexpr int kMargin = 9;
constexpr int kGap = 4;
constexpr int kBandMargin = 3;
constexpr double kRadius = 8;
constexpr int kArrow = 10;     // length
constexpr int kArrowFoot = 10; // half of it
constexpr int kBetween = 5;    // two panels
constexpr int kFlash = 400;    // milliseconds
constexpr int kSamePlace = 12; // pixels

bool isDigit(const QKeyEvent& event) {
  return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
}

bool isModifier(int key) {
  switch (key) {
  case Qt::Key_Shift:
  case Qt::Key_Control:
  case Qt::Key_Alt:
  case Qt::Key_AltGr:
  case Qt::Key_Meta:
  case Qt::Key_CapsLock:
  case Qt::Key_NumLock:
  case Qt::Key_ScrollLock: return true;
  default: return false;
  }
}

} // namespace

FollowUpBar::FollowUpBar(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  m_assist = makeAssist();
  m_rebound = makeRebound();
  m_reasonRow = makeReason();
  m_flash.setSingleShot(true);
  m_flash.setInterval(kFlash);
  connect(&m_flash, &QTimer::timeout, this, qOverload<>(&FollowUpBar::update));
  m_goingOn.setSingleShot(true);
  m_goingOn.setInterval(kMayGoOn);
  connect(&m_goingOn, &QTimer::timeout, this, &FollowUpBar::settle);
  setObjectName(QStringLiteral("FollowUp"));
  // A click between the buttons is no click on what lies below.
  setAttribute(Qt::WA_NoMousePropagation);
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(kGap);
  layout->addWidget(m_assist);
  layout->addWidget(m_rebound);
  layout->addWidget(m_reasonRow);
  relabel(*this, texts);
  hide();
  qApp->installEventFilter(this);
}

FollowUpBar::~FollowUpBar() {
  qApp->removeEventFilter(this);
}

// What is asked, and the number typed so far, readable from where one sits.
QWidget* FollowUpBar::makeTitle(QWidget* form) {
  auto* row = new QWidget(form);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  const auto index = static_cast<std::size_t>(m_titles[0] == nullptr ? 0 : 1);
  m_titles[index] = new PlainLabel(row);
  m_titles[index]->setObjectName(QStringLiteral("lblQUESTION"));
  Theme::setType(*m_titles[index], Type::Name);
  m_numbers[index] = new PlainLabel(row);
  m_numbers[index]->setObjectName(QStringLiteral("lblTYPED"));
  Theme::setType(*m_numbers[index], Type::Points);
  layout->addWidget(m_titles[index], 1);
  layout->addWidget(m_numbers[index]);
  return row;
}

// Below all else, so that nothing moves when it comes.
QWidget* FollowUpBar::makeReason() {
  auto* row = new QWidget(this);
  auto* layout = new QVBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  m_reason = new PlainLabel(row);
  m_reason->setObjectName(QStringLiteral("lblREASON"));
  m_reason->setWordWrap(true);
  layout->addWidget(m_reason);
  auto* ways = new QHBoxLayout;
  ways->setSpacing(kGap);
  constexpr std::array kTexts = {Text::AllTheSame, Text::PutIn};
  constexpr std::array kNames = {"cmdALLTHESAME", "cmdCOMESIN"};
  for (std::size_t way = 0; way < m_waysOut.size(); ++way) {
    auto* button = new QPushButton(row);
    button->setObjectName(QLatin1String(kNames[way]));
    button->setFocusPolicy(Qt::TabFocus);
    setTextNumber(*button, kTexts[way]);
    connect(button, &QPushButton::pressed, this, [this, button, way] {
      button->setDown(false);
      answer(m_question.take(static_cast<FollowUpQuestion::WayOut>(way)));
    });
    ways->addWidget(button, 1);
    m_waysOut[way] = button;
  }
  layout->addLayout(ways);
  row->hide();
  return row;
}

QLabel* FollowUpBar::makeBand(QWidget* form, const QString& name) {
  auto* band = new PlainLabel(form);
  band->setObjectName(name);
  band->setAutoFillBackground(true);
  band->setMargin(kBandMargin);
  return band;
}

JerseyButton* FollowUpBar::makeButton(QWidget* form, int index) {
  auto* button = new JerseyButton(jerseyButtonName(index), {}, form);
  connect(button, &JerseyButton::pressed, this, [this, button] {
    const auto found = std::ranges::find(m_buttons, button);
    if (m_isOpen && found != m_buttons.end())
      answer(m_question.choose(static_cast<std::size_t>(found - m_buttons.begin())));
  });
  return button;
}

QPushButton* FollowUpBar::makeNobody(QWidget* form, const char* name) {
  auto* nobody = new QPushButton(form);
  nobody->setObjectName(QLatin1String(name));
  nobody->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*nobody, Text::Nobody);
  setToolTipNumber(*nobody, Text::NumberHint);
  connect(nobody, &QPushButton::pressed, this, [this, nobody] {
    nobody->setDown(false);
    m_whole.reset();
    dismiss();
  });
  return nobody;
}

QWidget* FollowUpBar::makeAssist() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("Assist"));
  setAccessibleNumber(*form, Text::AssistTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->addWidget(makeTitle(form), 0, 0, 1, kMates);
  m_shooters = makeBand(form, QStringLiteral("lblTEAM"));
  grid->addWidget(m_shooters, 1, 0, 1, kMates);
  for (int index = 0; index < kGroup; ++index) {
    m_mates[static_cast<std::size_t>(index)] = makeButton(form, index);
    if (index < 2 * kMates) // the shooter is left out: four at most
      grid->addWidget(m_mates[static_cast<std::size_t>(index)], 2 + index / kMates, index % kMates);
  }
  grid->addWidget(makeNobody(form, "cmdNOASS"), 5, 0, 1, kMates);
  return form;
}

QWidget* FollowUpBar::makeRebound() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("frmRebound"));
  setAccessibleNumber(*form, Text::ReboundTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->addWidget(makeTitle(form), 0, 0, 1, kRebounders);
  constexpr int kRows = 3; // of a group: its name, and its players in two
  for (int group = 0; group < 2; ++group) {
    QLabel* label = makeBand(form, QStringLiteral("lblTYPEREBOND(%1)").arg(group));
    m_groups[static_cast<std::size_t>(group)] = label;
    grid->addWidget(label, 1 + kRows * group, 0, 1, kRebounders);
    for (int place = 0; place < kGroup; ++place) {
      const int index = group * kGroup + place;
      m_rebounders[static_cast<std::size_t>(index)] = makeButton(form, index);
      grid->addWidget(m_rebounders[static_cast<std::size_t>(index)], 2 + kRows * group + place / kRebounders,
                      place % kRebounders);
    }
  }
  grid->addWidget(makeNobody(form, "cmdNOREB"), 1 + 2 * kRows, 0, 1, kRebounders);
  return form;
}

// As wide as a panel of the live window: what lies beside it stays in reach.
void FollowUpBar::setPanelWidth(int panel) {
  const Measure& measure = Theme::measure();
  m_innerWidth = (panel > 0 ? panel : measure(210, 294)) - 2 * kMargin;
  for (QLabel* band : {m_reason, m_shooters, m_groups[0], m_groups[1]})
    band->setFixedWidth(m_innerWidth);
  for (QLabel* number : m_numbers)
    number->setFixedHeight(number->fontMetrics().height());
  const QSize mate((m_innerWidth - kGap) / kMates, measure(40, 50));
  for (JerseyButton* button : m_mates)
    button->setFixedSize(mate);
  const QSize rebounder((m_innerWidth - (kRebounders - 1) * kGap) / kRebounders, measure(34, 44));
  for (JerseyButton* button : m_rebounders)
    button->setFixedSize(rebounder);
}

void FollowUpBar::offer(const LiveGame& game, JerseyButton& button, std::size_t place) {
  const FollowUpQuestion::Choice& choice = m_question.choices()[place];
  const int team = choice.team();
  const RosterPlayer* who = game.game().roster[team].player(choice.player);
  const bool hasName = m_question.isAssist() && who != nullptr;
  button.setLook({.jersey = toQt(choice.jersey),
                  .name = hasName ? toQt(familyName(who->name)) : QString(),
                  .colour = colourOf(game.game().details.teamColour[team]),
                  .isFilled = true,
                  .isFouledOut = LiveFigures(game).isFouledOut(team, choice.player)});
  button.setEnabled(true);
  showPlayerWords(button, game, team, choice.player, m_texts);
  m_buttons.push_back(&button);
}

// Words on a team's colour.
void FollowUpBar::nameTeam(const LiveGame& game, QLabel& band, const QString& words, int team) {
  band.setText(band.fontMetrics().elidedText(words, Qt::ElideRight, m_innerWidth - 2 * kBandMargin));
  band.setToolTip(words);
  const QColor colour = colourOf(game.game().details.teamColour[team]);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  band.setPalette(colours);
}

void FollowUpBar::ask(const LiveGame& game, const LiveGame::FollowUps& followUps, int team, int shooter,
                      const QRect& panel, const QRect& room) {
  dismiss();
  m_question.ask(game, followUps, team, shooter);
  if (m_question.choices().empty())
    return;
  setPanelWidth(panel.width());
  m_ownRefusal = Text::None;
  m_isTypedOnKeypad = false;
  m_buttons.clear();
  const auto clear = [](auto& buttons) {
    for (JerseyButton* button : buttons) {
      button->setLook({});
      button->setEnabled(false);
    }
  };
  clear(m_mates);
  clear(m_rebounders);
  std::array<std::size_t, 2> used = {}; // of the shooter's team, and of the other
  for (std::size_t choice = 0; choice < m_question.choices().size(); ++choice) {
    const std::size_t group = m_question.choices()[choice].team() == team ? 0 : 1;
    if (used[group] == kGroup)
      continue;
    const std::size_t place = group * kGroup + used[group]++;
    offer(game, m_question.isAssist() ? *m_mates[place] : *m_rebounders[place], choice);
  }
  if (m_question.isAssist()) {
    const RosterPlayer* who = game.game().roster[team].player(shooter);
    nameTeam(game, *m_shooters,
             QStringLiteral("● ") +
                 (who != nullptr ? toQt(who->jersey + ' ' + familyName(who->name)) : QString()),
             team);
  } else {
    const auto named = [&](Text text, int ofTeam) -> QString {
      return toQt(m_texts.text(text)) + QLatin1Char(' ') + toQt(game.game().details.name[ofTeam]);
    };
    nameTeam(game, *m_groups[0], named(Text::Offensive, team), team);
    nameTeam(game, *m_groups[1], named(Text::Defensive, 1 - team), 1 - team);
  }
  m_assist->setVisible(m_question.isAssist());
  m_rebound->setVisible(!m_question.isAssist());
  showTyped();
  placeBeside(panel, room);
  raise();
  show();
  m_isOpen = true;
  m_sinceOpened.start();
}

// On the panel of a neighbour, with an arrow to the shooter: the right one, and of the last the left one.
void FollowUpBar::placeBeside(const QRect& panel, const QRect& room) {
  const QRect inner(parentWidget()->mapFromGlobal(room.topLeft()), room.size());
  const QRect beside(parentWidget()->mapFromGlobal(panel.topLeft()), panel.size());
  const bool fitsRight = beside.right() + kBetween + m_innerWidth + 2 * kMargin <= inner.right() + 1;
  m_points = panel.isEmpty() ? Points::Nowhere : fitsRight ? Points::Left : Points::Right;
  layout()->setContentsMargins(kMargin + (m_points == Points::Left ? kArrow : 0), kMargin,
                               kMargin + (m_points == Points::Right ? kArrow : 0), kMargin);
  adjustSize();
  QPoint corner = inner.center() - rect().center();
  if (!panel.isEmpty())
    corner = {fitsRight ? beside.right() + 1 + kBetween - kArrow
                        : beside.left() - kBetween + kArrow - width(),
              beside.center().y() - height() / 2};
  const QSize free = parentWidget()->size() - size();
  move(std::clamp(corner.x(), 0, std::max(free.width(), 0)),
       std::clamp(corner.y(), 0, std::max(free.height(), 0)));
  m_shooterAt = beside.center().y();
}

void FollowUpBar::settle() {
  if (!m_whole)
    return;
  answer(m_whole);
  emit numberTyped(m_isTypedOnKeypad);
}

void FollowUpBar::dismiss() {
  if (!m_isOpen)
    return;
  if (m_whole)
    return settle();
  m_isOpen = false;
  hide();
  emit closed();
}

void FollowUpBar::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (isHidden()) // and not the window around it, which comes back
    dismiss();
}

void FollowUpBar::answer(std::optional<FollowUpQuestion::Answer> answer) {
  m_whole.reset();
  m_goingOn.stop();
  if (!answer) {
    showTyped();
    return;
  }
  const EventCode code = m_question.codeFor(answer->team);
  dismiss();
  emit chosen(*answer, code);
}

void FollowUpBar::refuse(Text text) {
  m_ownRefusal = text;
  showTyped();
  flash();
}

void FollowUpBar::flash() {
  m_flash.start();
  update();
}

// The number, whom it leaves, and why it is not taken.
void FollowUpBar::showTyped() {
  const std::size_t form = m_question.isAssist() ? 0 : 1;
  const bool isRefused = m_question.refusal().has_value();
  m_titles[form]->setText(caption(m_texts, m_question.isAssist() ? Text::AssistTitle : Text::ReboundTitle));
  const std::string& typed = m_question.typed();
  m_numbers[form]->setText(typed.empty() ? QString() : toQt(typed) + QLatin1Char('_'));
  QPalette colours = QApplication::palette();
  if (isRefused || m_ownRefusal != Text::None)
    colours.setColor(QPalette::WindowText, Theme::missed());
  m_numbers[form]->setPalette(colours);
  m_reason->setPalette(colours);
  m_reason->setText(isRefused                    ? toQt(m_question.reason(m_texts))
                    : m_ownRefusal != Text::None ? caption(m_texts, m_ownRefusal)
                                                 : QString());
  const bool hasWays = isRefused && m_question.refusal()->stranger;
  m_waysOut[0]->setVisible(hasWays);
  m_waysOut[1]->setVisible(hasWays && m_question.refusal()->canComeIn);
  m_reasonRow->setVisible(!m_reason->text().isEmpty());
  adjustSize();
  if (m_isOpen)
    move(x(), std::clamp(y(), 0, std::max(parentWidget()->height() - height(), 0)));
  showMarks();
}

void FollowUpBar::showMarks() {
  for (std::size_t choice = 0; choice < m_buttons.size(); ++choice) {
    JerseyButton::Look look = m_buttons[choice]->look();
    look.isFilled =
        std::ranges::find(m_question.fitting(), choice, &FittingJersey::place) != m_question.fitting().end();
    look.isSelected = m_question.marked() == choice;
    m_buttons[choice]->setLook(look);
  }
  for (std::size_t way = 0; way < m_waysOut.size(); ++way) {
    const bool isMarked = m_question.markedWayOut() == static_cast<FollowUpQuestion::WayOut>(way);
    QPalette colours;
    if (isMarked) {
      colours.setColor(QPalette::Button, Theme::accent());
      colours.setColor(QPalette::ButtonText, textOn(Theme::accent()));
    }
    m_waysOut[way]->setPalette(colours);
  }
}

// Enter is the question's, whatever it is bound to; the clock's keys stay the clock's. Backspace takes back
// what was typed on the main keyboard: no keypad of 17 keys has one, and those that have use it to confirm.
FollowUpKey FollowUpBar::meaningOf(const QKeyEvent& event) const {
  using Kind = FollowUpKey::Kind;
  const bool isPlain = (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
  if (event.key() == Qt::Key_Backspace && isPlain && !m_question.typed().empty() && !m_isTypedOnKeypad)
    return {Kind::TakeBack};
  const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (isEnter && isPlain && !event.modifiers().testFlag(Qt::KeypadModifier))
    return {Kind::Take};
  if (m_readKey) {
    if (const auto bound = m_readKey(event))
      return *bound;
  }
  if (!isPlain)
    return {};
  if (isEnter)
    return {Kind::Take};
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier)
    return {Kind::Clock};
  if (event.key() == Qt::Key_Escape)
    return {Kind::Clear};
  return isDigit(event) ? FollowUpKey{Kind::Digit, event.key() - Qt::Key_0} : FollowUpKey{};
}

bool FollowUpBar::ownsKey(const QKeyEvent& event) const {
  switch (meaningOf(event).kind) {
  case FollowUpKey::Kind::Digit:
  case FollowUpKey::Kind::Take:
  case FollowUpKey::Kind::TakeBack:
  case FollowUpKey::Kind::Clear: return true;
  case FollowUpKey::Kind::Clock: return false;
  case FollowUpKey::Kind::GoOn: break;
  }
  if (m_readKey && m_readKey(event))
    return false;
  return (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) && event.modifiers() == Qt::NoModifier;
}

void FollowUpBar::takeKey(const QKeyEvent& event) {
  const FollowUpKey meaning = meaningOf(event);
  m_ownRefusal = Text::None;
  m_goingOn.stop();
  m_whole.reset(); // Enter takes it by its mark, all other keys have another mind
  switch (meaning.kind) {
  case FollowUpKey::Kind::Digit:
    m_isTypedOnKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
    m_whole = m_question.type(meaning.digit);
    if (m_whole)
      m_goingOn.start();
    return showTyped();
  case FollowUpKey::Kind::Take:
    if (m_question.typed().empty() && !m_question.marked())
      return dismiss();
    return answer(m_question.enter(meaning.team));
  case FollowUpKey::Kind::TakeBack: m_question.takeBackDigit(); return showTyped();
  case FollowUpKey::Kind::Clear:
    if (event.key() == Qt::Key_Escape || m_question.typed().empty())
      return dismiss();
    m_question.clearTyped();
    return showTyped();
  case FollowUpKey::Kind::Clock:
  case FollowUpKey::Kind::GoOn: break;
  }
  m_question.moveMark(event.key() == Qt::Key_Left ? -1 : 1);
  showTyped();
}

// What is pressed elsewhere closes it; true for a press that goes no further.
bool FollowUpBar::takePress(QWidget& widget, const QMouseEvent& event) {
  const bool isInside = &widget == this || isAncestorOf(&widget);
  const QPoint at = event.globalPosition().toPoint();
  const bool isSecond = m_sinceAnswer.isValid() && !m_sinceAnswer.hasExpired(kSecondPress) &&
                        (at - m_answeredAt).manhattanLength() < kSamePlace && widget.window() == window();
  m_sinceAnswer.invalidate();
  if (isSecond)
    emit pressIgnored();
  if (isSecond || !m_isOpen)
    return isSecond;
  if (!isInside) {
    dismiss();
    return false;
  }
  if (!m_sinceOpened.hasExpired(kDeafFor)) {
    refuse(Text::TooSoon);
    return true;
  }
  ignoreSecondPress(at);
  return false;
}

void FollowUpBar::ignoreSecondPress(const QPoint& globalPlace) {
  m_sinceAnswer.start();
  m_answeredAt = globalPlace;
}

// Sees every event of the program. Only its own keys stay here.
bool FollowUpBar::eventFilter(QObject* watched, QEvent* event) {
  auto* const widget = qobject_cast<QWidget*>(watched);
  // What is typed or pressed in the window in front is no answer to a question that lies behind it.
  if (widget == nullptr || (m_isOpen && !isVisible()))
    return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
    return takePress(*widget, static_cast<const QMouseEvent&>(*event));
  if (!m_isOpen || (type != QEvent::KeyPress && type != QEvent::ShortcutOverride))
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isOwn = ownsKey(key) && widget->window() == window();
  if (!isOwn) {
    if (!isModifier(key.key()) && !key.isAutoRepeat() && meaningOf(key).kind != FollowUpKey::Kind::Clock)
      dismiss();
    return false;
  }
  // Otherwise a shortcut of the same key would come first.
  if (type == QEvent::ShortcutOverride)
    event->accept();
  else if (!key.isAutoRepeat() || key.key() == Qt::Key_Backspace)
    takeKey(key);
  return true;
}

void FollowUpBar::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double width = m_flash.isActive() ? 4 : 2;
  painter.setPen(QPen(m_flash.isActive() ? look.missed : look.accent, width));
  painter.setBrush(look.surface);
  const double left = m_points == Points::Left ? kArrow : width / 2;
  const double right = m_points == Points::Right ? kArrow : width / 2;
  const QRectF body = QRectF(rect()).adjusted(left, width / 2, -right, -width / 2);
  QPainterPath shape;
  shape.addRoundedRect(body, kRadius, kRadius);
  if (m_points != Points::Nowhere) {
    const double foot = m_points == Points::Left ? body.left() : body.right();
    const double tip = m_points == Points::Left ? foot - kArrow + width : foot + kArrow - width;
    const double middle =
        std::clamp<double>(m_shooterAt - y(), kRadius + kArrow, height() - kRadius - kArrow);
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF({{foot, middle - kArrowFoot},
                                {tip, middle},
                                {foot, middle + kArrowFoot},
                                {foot, middle - kArrowFoot}}));
    shape = shape.united(arrow);
  }
  painter.drawPath(shape);
}

} // namespace hooptab
