// The list of a game's events, or of a stretch of it, with the field that searches in it. Keeps its place
// when the game is read anew, and stays at the end when the user was there.
#pragma once

#include "game/EventListModel.h"
#include "insight/Stretch.h"

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
  // The events of that stretch alone; nothing: all of them.
  void showStretch(const std::optional<Stretch>& stretch);
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

  // Those of a stretch with the searched words.
  class Found : public QSortFilterProxyModel {
   public:
    explicit Found(const EventListModel& events) : m_events(events) {}
    void setStretch(const std::optional<Stretch>& stretch);

   protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

   private:
    const EventListModel& m_events;
    std::optional<Stretch> m_stretch;
  };

  EventListModel m_model;
  Found m_found{m_model};
  QLineEdit* m_search;
  QTableView* m_list;
};

} // namespace hooptab
