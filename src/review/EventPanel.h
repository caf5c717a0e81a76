// The list of a game's events with the field that searches in it. Keeps its place when the game is read anew,
// and stays at the end when the user was there.
#pragma once

#include "game/EventListModel.h"

#include <QSortFilterProxyModel>
#include <QWidget>

#include <optional>

class QLineEdit;
class QTableView;

namespace hooptab {

class EventPanel : public QWidget {
  Q_OBJECT

 public:
  explicit EventPanel(const Texts& texts, QWidget* parent = nullptr);

  // A new game starts at its top when it is finished, at its last event when it goes on.
  void showGame(const Game& game, bool isNew);
  void relabel();
  // Selects an event by its place in the game; a search that hides it is ended.
  void choose(std::size_t event);
  // Placed by the window, which has a better place for it than above the list.
  QLineEdit& searchField() { return *m_search; }
  const EventListModel& model() const { return m_model; }

 signals:
  // The place of the event in the game; nothing when no event is chosen.
  void eventChosen(std::optional<std::uint32_t> event);
  void copied();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void tellChosen();
  void fitRows();
  void fitColumns();

  EventListModel m_model;
  QSortFilterProxyModel m_found;
  QLineEdit* m_search;
  QTableView* m_list;
};

} // namespace hooptab
