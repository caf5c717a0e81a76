#include "live/BenchPanel.h"

#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/frmSUBST.h"
#include "live/RosterStrip.h"
#include "live/SelectedPlayer.h"
#include "recording/LiveGame.h"

#include <QAction>
#include <QBoxLayout>
#include <QStackedLayout>
#include <QToolButton>

namespace hooptab {

namespace {

QToolButton* buttonFor(QAction& action, const char* name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setDefaultAction(&action);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setFocusPolicy(Qt::TabFocus);
  button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  return button;
}

} // namespace

BenchPanel::BenchPanel(const Texts& texts, QWidget* stripParent, QWidget* sides, QWidget* parent)
    : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("picBENCH"));
  for (const Side team : kSides) {
    auto* strip = new RosterStrip(team, texts, stripParent);
    connect(strip, &RosterStrip::pressed, this, &BenchPanel::press);
    connect(strip, &RosterStrip::allOutAsked, this, &BenchPanel::allOutAsked);
    connect(strip, &RosterStrip::playerAsked, this, &BenchPanel::playerAsked);
    m_strips[team] = strip;
  }
  m_pages = new QStackedLayout(this);
  m_pages->addWidget(makeCommands(sides));
  m_selection = new SelectedPlayer(texts, this);
  connect(m_selection, &SelectedPlayer::actionAsked, this,
          [this](EventCode kind) { emit actionAsked(m_selectedTeam, m_selectedPlayer, kind); });
  connect(m_selection, &SelectedPlayer::shotAsked, this,
          [this](const QPoint& place) { emit shotAsked(m_selectedTeam, m_selectedPlayer, place); });
  m_pages->addWidget(m_selection);
  relabel(*this, texts);
  applyColours();
}

QWidget* BenchPanel::makeCommands(QWidget* sides) {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  // The first word is longer in every language.
  const auto addCommand = [&](const char* name, Text text, Text toolTip, Qt::Key key, const char* iconName,
                              int stretch) {
    auto* action = new QAction(icon(QLatin1String(iconName)), {}, this);
    setTextNumber(*action, text);
    setToolTipNumber(*action, toolTip);
    action->setShortcut(key);
    action->setAutoRepeat(false);
    addAction(action);
    layout->addWidget(buttonFor(*action, name, row), stretch);
    return action;
  };
  m_substitute =
      addCommand("cmdSUBST", Text::Substitution, Text::SubstitutionMode, Qt::Key_F6, "substitution", 5);
  m_substitute->setCheckable(true);
  m_several = addCommand("cmdSEVERAL", Text::Several, Text::SeveralTitle, Qt::Key_F4, "several", 4);
  layout->addWidget(sides);
  m_placesStay = new QAction(this);
  m_placesStay->setObjectName(QStringLiteral("cmdPLACESSTAY"));
  m_placesStay->setCheckable(true);
  setTextNumber(*m_placesStay, Text::PlacesStay);
  connect(m_placesStay, &QAction::triggered, this, &BenchPanel::placesStayAsked);
  row->addAction(m_placesStay); // by a right click on either button
  row->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(m_substitute, &QAction::toggled, this, &BenchPanel::showStrips);
  connect(m_several, &QAction::triggered, this, &BenchPanel::askSeveral);
  return row;
}

bool BenchPanel::isSubstituting() const {
  return m_substitute->isChecked();
}

void BenchPanel::stopSubstituting() {
  m_substitute->setChecked(false);
}

bool BenchPanel::placesStay() const {
  return m_placesStay->isChecked();
}

void BenchPanel::setPlacesStay(bool stay) {
  m_placesStay->setChecked(stay);
}

void BenchPanel::press(Side team, int player) {
  if (m_taker && m_taker(team, player))
    return;
  if (isSubstituting())
    emit toggled(team, player);
  else if (isSelected(team, player)) // once more: never mind
    clearSelection();
  else
    select(team, player);
}

void BenchPanel::askSeveral() {
  if (m_game == nullptr)
    return;
  auto* several = new frmSUBST(*m_game, m_texts, this);
  several->setAttribute(Qt::WA_DeleteOnClose);
  connect(several, &frmSUBST::clockAsked, this, &BenchPanel::clockAsked);
  connect(several, &QDialog::accepted, this, [this, several] { emit onCourtAsked(several->onCourt()); });
  emit severalShown(*several);
  several->openBeside(*this);
}

void BenchPanel::select(Side team, int player) {
  m_selectedTeam = team;
  m_selectedPlayer = player;
  showStrips();
  showSelection();
  emit selected(team, player);
}

void BenchPanel::showStrips() {
  if (m_game == nullptr)
    return;
  for (const Side team : kSides)
    strip(team).showGame(*m_game, {team == m_selectedTeam ? m_selectedPlayer : 0, isSubstituting()});
}

void BenchPanel::showGame(const LiveGame& game) {
  m_game = &game;
  m_substitute->setEnabled(game.canRecord());
  m_several->setEnabled(game.canRecord());
  showStrips();
  showSelection();
}

void BenchPanel::showTime(const LiveGame& game) {
  for (const Side team : kSides)
    strip(team).showTime(game);
}

void BenchPanel::showSelection() {
  if (m_game != nullptr)
    m_selection->showPlayer(*m_game, m_selectedTeam, m_selectedPlayer);
  else
    m_selection->showNobody();
  m_pages->setCurrentIndex(m_selectedPlayer > 0 ? 1 : 0);
}

void BenchPanel::relabelPanel() {
  showStrips();
  showSelection();
}

void BenchPanel::applyColours() {
  const Measure& measure = Theme::measure();
  setFixedHeight(measure(30, 38));
  for (const char* name : {"cmdSUBST", "cmdSEVERAL"})
    findChild<QToolButton*>(QLatin1String(name))->setIconSize({measure(16, 20), measure(16, 20)});
  for (RosterStrip* strip : m_strips)
    strip->applyColours();
  m_selection->applyColours();
  relabelPanel();
}

} // namespace hooptab
