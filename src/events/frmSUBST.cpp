#include "events/frmSUBST.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/JerseyButton.h"
#include "events/PlayerWords.h"
#include "keypad/KeyCodes.h"
#include "keypad/QtKeys.h"
#include "recording/ConflictWords.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kColumns = 5;
constexpr int kMargin = 10;
constexpr int kGap = 2;

QSize playerSize() {
  const Measure& measure = Theme::measure();
  return {measure(98, 128), measure(48, 62)};
}

int lineHeight() {
  return Theme::measure()(26, 33);
}

void colourBand(QLabel& band, const LiveGame& game, Side team) {
  const QColor colour = colourOf(game.game().details.teamColour[team]);
  QPalette colours = band.palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  band.setPalette(colours);
}

// A team's name on its colour.
QLabel* bandOf(const LiveGame& game, Side team, const QString& name, QWidget* parent) {
  auto* band = new PlainLabel(name, parent);
  colourBand(*band, game, team);
  band->setAutoFillBackground(true);
  band->setMargin(kGap * 2);
  return band;
}

// With Shift where the keyboard has them so.
bool isSeparator(const QKeyEvent& key) {
  switch (key.key()) {
  case Qt::Key_Comma:
  case Qt::Key_Period:
  case Qt::Key_Minus:
  case Qt::Key_Plus:
  case Qt::Key_Asterisk: return true;
  case Qt::Key_Delete: return key.modifiers().testFlag(Qt::KeypadModifier); // the point with Num Lock off
  default: return false;
  }
}

} // namespace

frmSUBST::frmSUBST(const LiveGame& game, const Texts& texts, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_game(game), m_texts(texts), m_choice(game) {
  makeContents();
}

frmSUBST::frmSUBST(const LiveGame& game, const PastSubstitution& past, const Texts& texts, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_game(game), m_texts(texts), m_past(past),
      m_choice(game, past) {
  makeContents();
}

void frmSUBST::makeContents() {
  setObjectName(QStringLiteral("frmSUBST"));
  setTextNumber(*this, Text::SeveralTitle);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  if (m_past) {
    addPlace(*layout);
  } else {
    auto* title = new PlainLabel(this);
    Theme::setType(*title, Type::Count, QFont::DemiBold);
    const bool isBeginning = m_choice.count(Side::Visitor) + m_choice.count(Side::Home) == 0;
    setTextNumber(*title, isBeginning ? Text::WhoBegins : Text::SeveralTitle);
    layout->addWidget(title);
  }
  auto* teams = new QGridLayout;
  teams->setHorizontalSpacing(kMargin);
  teams->setColumnStretch(1, 1);
  for (const Side team : kSides)
    addTeam(*teams, team);
  layout->addLayout(teams);
  if (m_past) {
    m_conflict = new PlainLabel(this);
    m_conflict->setObjectName(QStringLiteral("lblCONFLICT"));
    m_conflict->setMinimumHeight(m_conflict->fontMetrics().height()); // nothing moves when it speaks
    layout->addWidget(m_conflict);
  }
  layout->addWidget(makeTyped());
  layout->addWidget(makeAnswers());
  // The game goes on meanwhile: the clock's key is the clock's, and presses no player.
  auto* clock = new QShortcut(Qt::Key_Space, this);
  clock->setAutoRepeat(false);
  connect(clock, &QShortcut::activated, this, &frmSUBST::clockAsked);
  relabel(*this, m_texts);
  showChoice();
  // Ahead of any button: Tab and the arrows would move the focus, and Enter press what has it.
  installEventFilter(this);
  const QList<QWidget*> children = findChildren<QWidget*>();
  for (QWidget* child : children)
    child->installEventFilter(this);
}

// Without a title bar: of which moment this is.
void frmSUBST::addPlace(QBoxLayout& layout) {
  auto* place = new PlainLabel(this);
  place->setObjectName(QStringLiteral("lblPLACE"));
  Theme::setType(*place, Type::Body, QFont::Bold);
  const std::string words =
      m_texts.withPlaceholder(Text::SubstitutionAt, placeWords(m_past->event, m_game.game(), m_texts));
  place->setText(toQt(words));
  setWindowTitle(asTitle(place->text()));
  layout.addWidget(place);
}

void frmSUBST::toggle(Side team, int player) {
  m_choice.toggle(team, player);
  showChoice();
}

void frmSUBST::addTeam(QGridLayout& layout, Side team) {
  const int row = layout.rowCount();
  m_counts[team] = new PlainLabel(this);
  m_counts[team]->setObjectName(QStringLiteral("lblCOUNT(%1)").arg(numberOf(team)));
  Theme::setType(*m_counts[team], Type::Count, QFont::Bold);
  setToolTipNumber(*m_counts[team], Text::CountName);
  m_counts[team]->setFixedWidth(Theme::measure()(52, 66)); // 5/5 and 10/5 alike
  m_counts[team]->setAlignment(Qt::AlignCenter);
  auto* head = new QHBoxLayout;
  head->addWidget(bandOf(m_game, team, toQt(m_game.game().details.name[team]), this), 1);
  head->addWidget(m_counts[team]);
  layout.addLayout(head, row, 0);
  auto* title = new PlainLabel(this);
  setTextNumber(*title, Text::LinesPlayed);
  title->setVisible(!m_choice.lines(team).empty());
  layout.addWidget(title, row, 1);

  auto* roster = new QWidget(this);
  auto* grid = new QGridLayout(roster);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  for (int place = 0; place < kPlaces; ++place) {
    auto* button = new JerseyButton(jerseyButtonName(numberOf(team) * kPlaces + place), playerSize(), roster);
    button->setCheckable(true);
    connect(button, &JerseyButton::pressed, this, [this, team, place] { toggle(team, place + 1); });
    showPlayerWords(*button, m_game, team, place + 1, m_texts);
    grid->addWidget(button, place / kColumns, place % kColumns);
    m_players[team][static_cast<std::size_t>(place)] = button;
  }
  layout.addWidget(roster, row + 1, 0);
  layout.addWidget(makeLines(team), row + 1, 1);
}

QWidget* frmSUBST::makeLines(Side team) {
  auto* column = new QWidget(this);
  column->setMinimumWidth(Theme::measure()(170, 220));
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  m_lines[team] = layout;
  const std::vector<Substitution::Line>& lines = m_choice.lines(team);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    auto* button = new QPushButton(toQt(lines[line].jerseys), column);
    button->setObjectName(
        QStringLiteral("cmdLINE(%1)")
            .arg(static_cast<std::size_t>(numberOf(team)) * Substitution::kMostLines + line));
    button->setAutoDefault(false);
    button->setFixedHeight(lineHeight());
    button->setToolTip(
        toQt(m_texts.withPlaceholder(Text::LineTip, Module1::clockText(std::max(lines[line].seconds, 0)))));
    connect(button, &QPushButton::pressed, this, [this, team, line] {
      m_choice.takeLine(team, line);
      showChoice();
    });
    layout->addWidget(button);
  }
  layout->addStretch();
  return column;
}

void frmSUBST::propose(Side team, unsigned players, const QString& words, const QString& hint) {
  auto* button = new QPushButton(words, this);
  button->setObjectName(QStringLiteral("cmdPROPOSED(%1)").arg(numberOf(team)));
  button->setAutoDefault(false);
  button->setFixedHeight(lineHeight());
  button->setToolTip(hint);
  connect(button, &QPushButton::pressed, this, [this, team, players] {
    m_choice.take(team, players);
    showChoice();
  });
  m_lines[team]->insertWidget(0, button);
}

// The team, the number as it is typed, and what it means: nothing moves when they speak.
QWidget* frmSUBST::makeTyped() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  const QFont large = Theme::font(Type::Points);
  m_typedTeam = bandOf(m_game, m_line.team(), {}, row);
  m_typedTeam->setObjectName(QStringLiteral("lblTYPEDTEAM"));
  Theme::setType(*m_typedTeam, Type::Body, QFont::Bold);
  m_typed = new PlainLabel(row);
  m_typed->setObjectName(QStringLiteral("lblTYPEDNO"));
  m_typed->setFrameShape(QFrame::Box);
  m_typed->setMargin(kGap);
  m_typed->setFont(large);
  m_typed->setFixedSize(QFontMetrics(large).horizontalAdvance(QStringLiteral("8888_")),
                        QFontMetrics(large).height() + 2 * kGap + 2);
  m_words = new PlainLabel(row);
  m_words->setObjectName(QStringLiteral("lblTYPEDWORDS"));
  m_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // names widen no window
  layout->addWidget(m_typedTeam);
  layout->addWidget(m_typed);
  layout->addWidget(m_words, 1);
  return row;
}

bool frmSUBST::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !takeKey(static_cast<const QKeyEvent&>(*event)))
    return QDialog::eventFilter(watched, event);
  showChoice();
  return true;
}

// What is typed, on the main keyboard or the keypad. All other keys are those of any dialog.
bool frmSUBST::takeKey(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
    return false;
  const KeyPress press = keyPressOf(key);
  if (const auto digit = keys::digit(press.code, press.isKeypad)) {
    if (!key.isAutoRepeat())
      m_line.type(*digit);
    return true;
  }
  switch (key.key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (m_line.typed().empty())
      return false;
    if (m_line.enter() && m_choice.canAccept())
      accept();
    return true;
  case Qt::Key_Backspace: m_line.takeBack(); return true;
  case Qt::Key_Slash:
  case Qt::Key_Up:
  case Qt::Key_Down: m_line.changeTeam(); return true;
  case Qt::Key_Tab:
    if (m_line.typed().empty())
      return false;
    break;
  default:
    if (!isSeparator(key))
      return false;
  }
  m_line.separate();
  return true;
}

QWidget* frmSUBST::makeAnswers() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, kGap, 0, 0);
  auto* hint = new PlainLabel(row);
  hint->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*hint, Text::SubstitutionHint);
  layout->addWidget(hint, 1);
  const auto addAnswer = [&](const char* name, Text text, Text toolTip) {
    auto* button = new QPushButton(row);
    button->setObjectName(QLatin1String(name));
    setTextNumber(*button, text);
    setToolTipNumber(*button, toolTip);
    layout->addWidget(button);
    return button;
  };
  m_accept = addAnswer("cmdOK", Text::Confirm, Text::AcceptTip);
  m_accept->setDefault(true);
  QPushButton* cancel = addAnswer("cmdCANCEL", Text::Cancel, Text::CancelTip);
  cancel->setAutoDefault(false);
  connect(m_accept, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  return row;
}

void frmSUBST::showChoice() {
  for (const Side team : kSides) {
    const Roster& roster = m_game.game().roster[team];
    for (int player = 1; player <= kPlaces; ++player) {
      const RosterPlayer* entry = roster.player(player);
      if (entry == nullptr)
        continue;
      const bool stays = m_choice.isChosen(team, player);
      const bool wasThere = m_choice.wasOnCourt(team, player);
      using enum JerseyButton::Move;
      JerseyButton& button = *m_players[team][static_cast<std::size_t>(player - 1)];
      button.setLook({.jersey = toQt(entry->jersey),
                      .name = toQt(entry->name),
                      .colour = colourOf(m_game.game().details.teamColour[team]),
                      .isFilled = stays,
                      .isFouledOut = m_choice.isFouledOut(team, player),
                      .isSelected = m_line.fits(team, player),
                      .move = stays == wasThere ? None
                              : stays           ? Comes
                                                : Leaves});
      button.setChecked(stays);
      button.setAccessibleDescription(
          stays == wasThere ? QString() : caption(m_texts, stays ? Text::ComesIn : Text::Leaves));
    }
    const int count = m_choice.count(team);
    m_counts[team]->setText(QStringLiteral("%1/%2").arg(count).arg(kMostOnCourt));
    QPalette colours = palette();
    if (count != kMostOnCourt)
      colours.setColor(QPalette::WindowText, Theme::missed());
    m_counts[team]->setPalette(colours);
  }
  if (m_conflict != nullptr) {
    const auto conflict = m_choice.plan().conflict;
    m_conflict->setText(conflict ? toQt(wordsOf(*conflict, m_game.game(), m_texts)) : QString());
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, Theme::missed());
    m_conflict->setPalette(colours);
  }
  m_accept->setEnabled(m_choice.canAccept());
  showTyped();
}

void frmSUBST::showTyped() {
  const auto& names = m_game.game().details.abbreviation;
  m_typedTeam->setText(toQt(names[m_line.team()]));
  m_typedTeam->setFixedWidth(
      std::max(m_typedTeam->fontMetrics().horizontalAdvance(toQt(names[Side::Visitor])),
               m_typedTeam->fontMetrics().horizontalAdvance(toQt(names[Side::Home]))) +
      4 * kGap);
  colourBand(*m_typedTeam, m_game, m_line.team());
  m_typed->setText(toQt(m_line.typed()) + QLatin1Char('_'));
  const std::string words = m_line.words(m_texts);
  m_words->setText(words.empty() ? caption(m_texts, Text::TypingHint) : toQt(words));
  m_words->setToolTip(m_words->text());
  QPalette colours = palette();
  if (m_line.isRefused())
    colours.setColor(QPalette::WindowText, Theme::missed());
  else if (words.empty())
    colours.setColor(QPalette::WindowText, colours.color(QPalette::PlaceholderText));
  m_words->setPalette(colours);
  m_typed->setPalette(m_line.isRefused() ? colours : palette());
}

void frmSUBST::openBeside(const QWidget& panel) {
  adjustSize();
  const QRect room = panel.screen()->availableGeometry();
  const QRect place(panel.mapToGlobal(QPoint(0, 0)), panel.size());
  // Over the panel, grown to the side that has more room.
  QPoint corner = place.topLeft();
  if (place.center().x() > room.center().x())
    corner.setX(place.right() + 1 - width());
  corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() + 1 - width())));
  corner.setY(std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
  move(corner);
  open();
}

// Without a title bar: an edge of its own.
void frmSUBST::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QPen(Theme::accent(), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

} // namespace hooptab
