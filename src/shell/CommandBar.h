// The commands of the program as actions, and the tool bar that carries them: made from the table of
// commands, with drop-downs where it says so. Shows what is enabled, pressed and chosen. What a command does
// is told by those who serve it.
#pragma once

#include "settings/Texts.h"
#include "shell/CommandState.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <array>
#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace hooptab {

class CommandBar : public QObject {
  Q_OBJECT

 public:
  // The window owns all actions. Where the tool bar stands is for others to say.
  explicit CommandBar(QMainWindow& window);
  [[nodiscard]] QToolBar& toolBar() const { return *m_toolBar; }

  // The action of a Menu is that of its menu.
  [[nodiscard]] QAction& action(CommandId id) const;
  // The drop-down of a button that has one.
  [[nodiscard]] QMenu& dropDown(CommandId id) const;

  // What the command does, until `owner` goes. Once for each command that is no Menu.
  void serve(CommandId id, QObject* owner, std::function<void()> handler);
  [[nodiscard]] bool isServed(CommandId id) const { return m_isServed[index(id)]; }

  // Enables, checks and labels all commands for these modes.
  void show(const Modes& modes, const Texts& texts);
  // How wide the tool bar may be: with less than it takes, icons stand without words, and what has no room
  // then stands in a menu at its end.
  void setRoom(int width);

 private:
  static std::size_t index(CommandId id) { return static_cast<std::size_t>(id); }
  QAction* makeAction(const Command& command);
  void addButton(const Command& command);
  void placeButtons(const Modes& modes);
  void layOut();
  [[nodiscard]] QStringList measures() const;
  [[nodiscard]] bool fits() const;
  void putIn(const QList<CommandId>& buttons);
  void showWords(const QList<CommandId>& buttons);

  QMainWindow& m_window;
  QToolBar* m_toolBar = nullptr;
  std::array<QAction*, kCommandCount> m_actions = {};
  std::array<QMenu*, kCommandCount> m_dropDowns = {}; // null where a command has none
  std::array<bool, kCommandCount> m_isServed = {};
  QMenu* m_moreMenu = nullptr;
  QList<CommandId> m_buttons;    // those for the tool bar
  QList<CommandId> m_others;     // of those that belong to windows behind the one in front
  QList<CommandId> m_worded;     // whose words stand beside them, where there is room
  QList<CommandId> m_wordedLast; // the same, where there is more
  int m_room = 0;
  QStringList m_laidOut; // measures() when it was done last
};

} // namespace hooptab
