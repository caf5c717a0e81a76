// The commands of the program as actions, and the tool bar that carries them: made from the table of
// commands, with drop-downs where it says so. Shows what is enabled, pressed and chosen; says which command
// was asked for, and carries out none.
#pragma once

#include "settings/Texts.h"
#include "shell/CommandState.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

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

  // By command key; the action of a Menu is that of its menu.
  [[nodiscard]] QAction& action(std::string_view key) const;
  // The drop-down of a button that has one.
  [[nodiscard]] QMenu& dropDown(std::string_view key) const;

  // Enables, checks and labels all commands for these modes.
  void show(const Modes& modes, const Texts& texts);
  // How wide the tool bar may be: with less than it takes, icons stand without words, and what has no room
  // then stands in a menu at its end.
  void setRoom(int width);

 signals:
  void asked(const QString& key);

 private:
  QAction* makeAction(const Command& command);
  void addButton(const Command& command);
  void placeButtons(const Modes& modes);
  void layOut();
  [[nodiscard]] QStringList measures() const;
  [[nodiscard]] bool fits() const;
  void putIn(const QStringList& keys);
  void showWords(const QStringList& keys);

  QMainWindow& m_window;
  QToolBar* m_toolBar = nullptr;
  QHash<QString, QAction*> m_actions;
  QMenu* m_moreMenu = nullptr;
  QStringList m_buttons;    // keys of those for the tool bar
  QStringList m_others;     // of those that belong to windows behind the one in front
  QStringList m_worded;     // of those whose words stand beside them, where there is room
  QStringList m_wordedLast; // the same, where there is more
  int m_room = 0;
  QStringList m_laidOut; // measures() when it was done last
  QHash<QString, QMenu*> m_dropDowns;
};

} // namespace hooptab
