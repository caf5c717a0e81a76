#include "shell/CommandBar.h"

#include "appearance/Icons.h"
#include "appearance/relabel.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace hooptab {

namespace {

// The words beside the icons of the mode that is on: the whole captions, which menus and tool tips show,
// would not fit side by side. Printing and closing, known by their icons, give up their words first.
struct ShortCaption {
  std::string_view key;
  Text text;
};
// clang-format off
constexpr ShortCaption kShortCaptions[] = {
    {"VIEW", Text::ScorecardShort}, {"VwREFRESH", Text::RefreshShort}, {"VwLIGNE", Text::ByLineShort}, {"VwMA", Text::MadeAttempted},
    {"vwPRINT", Text::PrintWord}, {"VwCLOSE", Text::CloseButton},
    {"STATS", Text::Season}, {"stPRINT", Text::PrintWord}, {"stCLOSE", Text::CloseButton},
    {"LIVE", Text::Input}, {"LIVEKpad", Text::KeypadShort}, {"LIVEMouse", Text::ReboundsShort}, {"SWITCH", Text::Sides}, {"GAMEOVER", Text::EndGameShort},
    {"livePRINT", Text::PrintWord}, {"saveMANUAL", Text::SaveShort}, {"CLOSELIVEMANUAL", Text::CloseButton}, {"SETTINGS", Text::Settings},
};
// clang-format on

Text shortCaption(const Command& command, const CommandState& state) {
  if (state.text == Text::ViewByPlayer)
    return Text::ByPlayer;
  const auto* found = std::ranges::find(kShortCaptions, command.key, &ShortCaption::key);
  return found == std::end(kShortCaptions) ? state.text : found->text;
}

Text textOfRefresh(const Modes& modes) {
  const auto isInForce = [&](const Command& command) {
    return command.parent == "VwREFRESH" && stateOf(command, modes).isChecked;
  };
  const auto found = std::ranges::find_if(commands(), isInForce);
  return found == commands().end() ? Text::None : found->text;
}

bool hasEntries(const Command& command) {
  return std::ranges::any_of(commands(), [&](const Command& entry) { return entry.parent == command.key; });
}

} // namespace

CommandBar::CommandBar(QMainWindow& window) : QObject(&window), m_window(window) {
  m_toolBar = new QToolBar(&window);
  m_toolBar->setObjectName(QStringLiteral("Toolbar1"));
  m_toolBar->setMovable(false);
  m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it would only offer to hide the tool bar
  m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_toolBar->setFloatable(false);

  m_moreMenu = new QMenu(&window);
  m_moreMenu->setToolTipsVisible(true);
  setTextNumber(*m_moreMenu->menuAction(), Text::MoreCommands);
  setToolTipNumber(*m_moreMenu->menuAction(), Text::MoreCommands);

  // Drop-downs first, since an entry may stand in the table of one that is itself an entry.
  for (const Command& command : commands()) {
    if (!hasEntries(command))
      continue;
    auto* menu = new QMenu(&window);
    menu->setToolTipsVisible(true);
    m_dropDowns.insert(toQt(command.key), menu);
  }
  QHash<QString, QActionGroup*> choices;
  for (const Command& command : commands()) {
    QAction* action = makeAction(command);
    m_actions.insert(toQt(command.key), action);
    if (command.kind == CommandKind::Choice) {
      QActionGroup*& group = choices[toQt(command.parent)];
      if (group == nullptr)
        group = new QActionGroup(this);
      group->addAction(action);
    }
    if (command.parent.empty()) {
      if (command.kind != CommandKind::Menu && hasEntries(command))
        dropDown(command.key).addAction(action);
      continue;
    }
    QMenu& parent = dropDown(command.parent);
    if (command.separatorBefore)
      parent.addSeparator();
    parent.addAction(action);
  }
}

QAction& CommandBar::action(std::string_view key) const {
  return *m_actions.value(toQt(key));
}

QMenu& CommandBar::dropDown(std::string_view key) const {
  return *m_dropDowns.value(toQt(key));
}

QAction* CommandBar::makeAction(const Command& command) {
  const QString key = toQt(command.key);
  QAction* action =
      command.kind == CommandKind::Menu ? dropDown(command.key).menuAction() : new QAction(&m_window);
  action->setObjectName(key);
  action->setCheckable(command.kind == CommandKind::Toggle || command.kind == CommandKind::Choice);
  if (command.kind != CommandKind::Menu)
    connect(action, &QAction::triggered, this, [this, key] { emit asked(key); });
  return action;
}

void CommandBar::addButton(const Command& command) {
  if (command.separatorBefore)
    m_toolBar->addSeparator();
  QAction& action = this->action(command.key);
  m_toolBar->addAction(&action);
  auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(&action));
  button->setObjectName(QStringLiteral("button_") + toQt(command.key));
  if (command.kind == CommandKind::Menu) {
    button->setPopupMode(QToolButton::InstantPopup);
  } else if (hasEntries(command)) {
    button->setMenu(&dropDown(command.key));
    button->setPopupMode(QToolButton::MenuButtonPopup);
  }
}

void CommandBar::show(const Modes& modes, const Texts& texts) {
  for (const Command& command : commands()) {
    const CommandState state = stateOf(command, modes);
    QAction& action = this->action(command.key);
    action.setEnabled(state.isEnabled);
    if (action.isCheckable())
      action.setChecked(state.isChecked);
    action.setIcon(icon(toQt(state.icon)));
    action.setShortcut(QKeySequence::fromString(toQt(state.shortcut), QKeySequence::PortableText));
    setTextNumber(action, state.text);
    setToolTipNumber(action, state.text);
    relabel(action, texts);
    action.setIconText(caption(texts, shortCaption(command, state)));
    if (command.key == "VwREFRESH" && modes.refreshSeconds > 0) { // that it goes on by itself
      action.setIconText(action.iconText() + QStringLiteral(" (%1 s)").arg(modes.refreshSeconds));
      action.setToolTip(action.toolTip() + QStringLiteral(": ") + caption(texts, textOfRefresh(modes)));
      action.setStatusTip(action.toolTip());
    }
  }
  m_moreMenu->menuAction()->setIcon(icon(QStringLiteral("more")));
  placeButtons(modes);
}

// Anew where another mode has begun or ended: an action that were hidden would be so in the menus, too.
void CommandBar::placeButtons(const Modes& modes) {
  m_buttons.clear();
  m_worded.clear();
  m_wordedLast.clear();
  m_others.clear();
  for (const Command& command : commands()) {
    if (!hasButton(command, modes))
      continue;
    const QString key = toQt(command.key);
    m_buttons << key;
    // The window in front has its commands in words; with none, those that lead to a first one have.
    const bool isOfFront = command.group == modes.inFront ||
                           (command.group == CommandGroup::LiveOrManual &&
                            (modes.inFront == CommandGroup::Live || modes.inFront == CommandGroup::Manual));
    if (!isOfFront && command.group != CommandGroup::Always)
      m_others << key;
    if (!isOfFront || command.key == "SETTINGS" || command.key == "HELP")
      continue;
    const Text words = shortCaption(command, stateOf(command, modes));
    (words == Text::PrintWord || words == Text::CloseButton ? m_wordedLast : m_worded) << key;
  }
  layOut();
}

void CommandBar::setRoom(int width) {
  m_room = width;
  layOut();
}

// What it is laid out by; nothing is to be done while it is the same.
QStringList CommandBar::measures() const {
  QStringList measures{QString::number(m_room), QString::number(m_toolBar->iconSize().width()),
                       m_toolBar->font().toString()};
  for (const QString& key : m_buttons)
    measures << m_actions.value(key)->iconText() << QString::number(m_worded.contains(key))
             << QString::number(m_others.contains(key));
  return measures;
}

void CommandBar::layOut() {
  const QStringList now = measures();
  if (now == m_laidOut)
    return;
  m_laidOut = now;
  putIn(m_buttons);
  for (const QStringList& worded : {m_worded + m_wordedLast, m_worded, QStringList()}) {
    showWords(worded);
    if (fits())
      return;
  }
  // Commands of windows behind the one in front, the last first.
  QStringList shown = m_buttons;
  for (qsizetype last = m_others.size(); last > 0 && !fits(); --last) {
    shown.removeOne(m_others[last - 1]);
    putIn(shown);
    showWords({});
  }
}

bool CommandBar::fits() const {
  return m_room <= 0 || m_toolBar->sizeHint().width() <= m_room;
}

// The others stand in a menu at the end.
void CommandBar::putIn(const QStringList& keys) {
  m_toolBar->clear();
  m_moreMenu->clear();
  for (const Command& command : commands()) {
    const QString key = toQt(command.key);
    if (keys.contains(key))
      addButton(command);
    else if (m_buttons.contains(key))
      m_moreMenu->addAction(m_actions.value(key));
  }
  if (m_moreMenu->isEmpty())
    return;
  m_toolBar->addAction(m_moreMenu->menuAction());
  auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(m_moreMenu->menuAction()));
  button->setObjectName(QStringLiteral("button_MORE"));
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void CommandBar::showWords(const QStringList& keys) {
  for (const QString& key : m_buttons) {
    if (auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(m_actions.value(key))))
      button->setToolButtonStyle(keys.contains(key) ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  }
}

} // namespace hooptab
