// The events of the game that is recorded, the newest on top, with everything that can be done to them:
// delete and restore, edit, insert, undo and redo; which of them are shown; and where one should look again.
// Shows, and says what was asked; changes no game.
#pragma once

#include "events/LiveEventRows.h"
#include "game/Side.h"
#include "recording/LiveRepairs.h"

#include <QWidget>

#include <optional>
#include <vector>

class QAction;
class QPushButton;
class QToolButton;

namespace hooptab {

class EventFilterRow;
class EventWindow;
class LiveEventList;
class LiveGame;
struct LiveAction;

class LiveEventPanel : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit LiveEventPanel(const Texts& texts, QWidget* parent = nullptr);

  // The game must live as long as the panel, or until another is shown.
  void showGame(const LiveGame& game);
  void relabelPanel(); // behind relabel()
  void applyColours();
  // An event that is filtered out is shown again.
  void choose(const EventPlace& event);
  void leaveDeleted();                  // what is selected and deleted now is so no more
  void showOnly(Side team, int period); // as by the filters
  void leadToCheck();                   // to the first event to look at, and from it to the next
  // The window of their own: where it stands, or was left; empty when never.
  bool hasWindow() const { return m_window != nullptr; }
  QByteArray windowPlace() const;
  void restoreWindow(const QByteArray& place, bool isOpen);
  std::size_t findings() const { return m_rows.findings().size(); }
  std::size_t doubtful() const { return m_rows.doubtful().size(); }

 signals:
  void acceptAsked(const hooptab::EventPlace& event, int finding);
  void doubtAsked(const hooptab::EventPlace& event, bool isDoubtful);
  void deleteAsked(const std::vector<hooptab::EventPlace>& events, bool isDeleted);
  void editAsked(const hooptab::EventPlace& event);
  void correctionAsked(const hooptab::EventPlace& event); // by a double click
  void insertAsked(const hooptab::EventPlace& event, bool isBefore);
  void timeAsked(const hooptab::EventPlace& event);
  // Put in at an event, or another choice for one that is recorded; `player` (0: nobody) is to come in.
  void substitutionAsked(const hooptab::PastSubstitution& past, hooptab::Side team, int player);
  void undoAsked();
  void redoAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QAction* makeAction(const char* name, Text text, const char* iconName);
  QWidget* makeButtons();
  void makeList();
  void serve(LiveEventList& list);
  void showWindow(bool isOpen);
  void nameWindow();
  void showChecks();
  void showCommands();
  void showTurn(QAction& action, const LiveAction* turned, Text text, Text nothing) const;
  std::vector<std::size_t> toCheck() const; // in the order of the game
  void select(const std::vector<EventPlace>& events, const std::optional<EventPlace>& current);
  void offerRepairs(std::size_t event, const QPoint& corner);
  void repair(const LiveRepair& repair);
  void askDeletion();
  void choose(std::size_t event);
  EventPlace placeOf(std::size_t event) const;
  std::vector<EventPlace> placesOf(const std::vector<std::size_t>& events) const;
  std::vector<std::size_t> selected() const; // in the order of the game
  std::optional<EventPlace> current() const;

  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  QString m_path; // of the game shown
  LiveEventRows m_rows;
  LiveEventList* m_list = nullptr;
  EventWindow* m_window = nullptr; // while the events stand in one of their own, too
  QByteArray m_windowPlace;        // as it was left
  QPushButton* m_checks = nullptr;
  std::vector<QToolButton*> m_buttons;
  EventFilterRow* m_filters = nullptr;
  QAction* m_delete = nullptr;
  QAction* m_undelete = nullptr;
  QAction* m_edit = nullptr;
  QAction* m_insertBefore = nullptr;
  QAction* m_insertAfter = nullptr;
  QAction* m_time = nullptr;
  QAction* m_doubt = nullptr;
  QAction* m_substituteBefore = nullptr;
  QAction* m_substituteAfter = nullptr;
  QAction* m_undo = nullptr;
  QAction* m_redo = nullptr;
  QAction* m_filter = nullptr;
  QAction* m_detach = nullptr;
};

} // namespace hooptab
