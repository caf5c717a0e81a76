#include "shell/CommandBar.h"

#include "appearance/Icons.h"
#include "appearance/relabel.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

// The words beside the icons of the mode that is on: the whole captions, which menus and tool tips show,
// would not fit side by side. Printing and closing, known by their icons, give up their words first.
struct ShortCaption {
  CommandId id;
  Text text;
};
// clang-format off
constexpr ShortCaption kShortCaptions[] = {
    {CommandId::ViewMenu, Text::ScorecardShort}, {CommandId::Refresh, Text::RefreshShort}, {CommandId::ByLine, Text::ByLineShort}, {CommandId::MadeAttempted, Text::MadeAttempted},
    {CommandId::PrintScorecard, Text::PrintWord}, {CommandId::CloseScorecard, Text::CloseButton},
    {CommandId::OpenSeason, Text::Season}, {CommandId::PrintSeason, Text::PrintWord}, {CommandId::CloseSeason, Text::CloseButton},
    {CommandId::InputMenu, Text::Input}, {CommandId::Keypad, Text::KeypadShort}, {CommandId::AskRebounds, Text::ReboundsShort}, {CommandId::SwitchSides, Text::Sides}, {CommandId::GameOver, Text::EndGameShort},
    {CommandId::PrintGame, Text::PrintWord}, {CommandId::SaveTotals, Text::SaveShort}, {CommandId::CloseInput, Text::CloseButton}, {CommandId::SettingsMenu, Text::Settings},
};
// clang-format on

Text shortCaption(const Command& command, const CommandState& state) {
  if (state.text == Text::ViewByPlayer)
    return Text::ByPlayer;
  const auto* found = std::ranges::find(kShortCaptions, command.id, &ShortCaption::id);
  return found == std::end(kShortCaptions) ? state.text : found->text;
}

Text textOfRefresh(const Modes& modes) {
  const auto isInForce = [&](const Command& command) {
    return command.parent == CommandId::Refresh && stateOf(command, modes).isChecked;
  };
  const auto found = std::ranges::find_if(commands(), isInForce);
  return found == commands().end() ? Text::None : found->text;
}

bool hasEntries(const Command& command) {
  return std::ranges::any_of(commands(), [&](const Command& entry) { return entry.parent == command.id; });
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
    m_dropDowns[index(command.id)] = menu;
  }
  std::array<QActionGroup*, kCommandCount> choices = {};
  for (const Command& command : commands()) {
    QAction* action = makeAction(command);
    m_actions[index(command.id)] = action;
    if (command.kind == CommandKind::Choice) {
      QActionGroup*& group = choices[index(command.parent)];
      if (group == nullptr)
        group = new QActionGroup(this);
      group->addAction(action);
    }
    if (command.parent == CommandId::None) {
      if (command.kind != CommandKind::Menu && hasEntries(command))
        dropDown(command.id).addAction(action);
      continue;
    }
    QMenu& parent = dropDown(command.parent);
    if (command.separatorBefore)
      parent.addSeparator();
    parent.addAction(action);
  }
}

QAction& CommandBar::action(CommandId id) const {
  return *m_actions[index(id)];
}

QMenu& CommandBar::dropDown(CommandId id) const {
  return *m_dropDowns[index(id)];
}

void CommandBar::serve(CommandId id, QObject* owner, std::function<void()> handler) {
  connect(&action(id), &QAction::triggered, owner, [handler = std::move(handler)] { handler(); });
  m_isServed[index(id)] = true;
}

QAction* CommandBar::makeAction(const Command& command) {
  QAction* action =
      command.kind == CommandKind::Menu ? dropDown(command.id).menuAction() : new QAction(&m_window);
  action->setObjectName(toQt(command.key));
  action->setAutoRepeat(false); // a key that is held would open and close in turn
  action->setCheckable(command.kind == CommandKind::Toggle || command.kind == CommandKind::Choice);
  return action;
}

void CommandBar::addButton(const Command& command) {
  if (command.separatorBefore)
    m_toolBar->addSeparator();
  QAction& action = this->action(command.id);
  m_toolBar->addAction(&action);
  auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(&action));
  button->setObjectName(QStringLiteral("button_") + toQt(command.key));
  if (command.kind == CommandKind::Menu) {
    button->setPopupMode(QToolButton::InstantPopup);
  } else if (hasEntries(command)) {
    button->setMenu(&dropDown(command.id));
    button->setPopupMode(QToolButton::MenuButtonPopup);
  }
}

void CommandBar::show(const Modes& modes, const Texts& texts) {
  for (const Command& command : commands()) {
    const CommandState state = stateOf(command, modes);
    QAction& action = this->action(command.id);
    action.setEnabled(state.isEnabled);
    if (action.isCheckable())
      action.setChecked(state.isChecked);
    action.setIcon(icon(toQt(state.icon)));
    action.setShortcut(QKeySequence::fromString(toQt(state.shortcut), QKeySequence::PortableText));
    setTextNumber(action, state.text);
    setToolTipNumber(action, state.text);
    relabel(action, texts);
    action.setIconText(caption(texts, shortCaption(command, state)));
    if (command.id == CommandId::Refresh && modes.refreshSeconds > 0) { // that it goes on by itself
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
    m_buttons << command.id;
    // The window in front has its commands in words; with none, those that lead to a first one have.
    const bool isOfFront = command.group == modes.inFront ||
                           (command.group == CommandGroup::LiveOrManual &&
                            (modes.inFront == CommandGroup::Live || modes.inFront == CommandGroup::Manual));
    if (!isOfFront && command.group != CommandGroup::Always)
      m_others << command.id;
    if (!isOfFront || command.id == CommandId::SettingsMenu || command.id == CommandId::HelpMenu)
      continue;
    const Text words = shortCaption(command, stateOf(command, modes));
    (words == Text::PrintWord || words == Text::CloseButton ? m_wordedLast : m_worded) << command.id;
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
  for (const CommandId id : m_buttons)
    measures << action(id).iconText() << QString::number(m_worded.contains(id))
             << QString::number(m_others.contains(id));
  return measures;
}

void CommandBar::layOut() {
  const QStringList now = measures();
  if (now == m_laidOut)
    return;
  m_laidOut = now;
  putIn(m_buttons);
  for (const QList<CommandId>& worded : {m_worded + m_wordedLast, m_worded, QList<CommandId>()}) {
    showWords(worded);
    if (fits())
      return;
  }
  // Commands of windows behind the one in front, the last first.
  QList<CommandId> shown = m_buttons;
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
void CommandBar::putIn(const QList<CommandId>& buttons) {
  m_toolBar->clear();
  m_moreMenu->clear();
  for (const Command& command : commands()) {
    if (buttons.contains(command.id))
      addButton(command);
    else if (m_buttons.contains(command.id))
      m_moreMenu->addAction(&action(command.id));
  }
  if (m_moreMenu->isEmpty())
    return;
  m_toolBar->addAction(m_moreMenu->menuAction());
  auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(m_moreMenu->menuAction()));
  button->setObjectName(QStringLiteral("button_MORE"));
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void CommandBar::showWords(const QList<CommandId>& buttons) {
  for (const CommandId id : m_buttons) {
    if (auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(&action(id))))
      button->setToolButtonStyle(buttons.contains(id) ? Qt::ToolButtonTextBesideIcon
                                                      : Qt::ToolButtonIconOnly);
  }
}

} // namespace hooptab
