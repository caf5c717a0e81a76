// The events of a live game as its list shows them: the newest first, only those that were asked for, an
// assist or rebound under its shot, and a mark where something looks wrong.
#pragma once

#include "checks/Finding.h"
#include "game/EventListModel.h"
#include "game/Side.h"
#include "recording/LiveWords.h"
#include "recording/OnCourt.h"

#include <QColor>
#include <QMetaType>
#include <QSortFilterProxyModel>

#include <vector>

namespace hooptab {

// A row in the parts that are drawn apart.
struct LiveEventRow {
  QString clock;
  QColor team; // not valid: nobody's
  QString number, name, action;
  QString extra; // what counts of it, as which foul of his it is: "3rd"
  QString tail;  // and which of the team's
  QString score; // where it changed
  bool isUnderstood = true;
  bool isShot = false;
  bool isMade = false;
  bool isDeleted = false;
  bool isDoubtful = false;
  bool hasFinding = false;
  bool isLatest = false; // of what is recorded
};

struct EventFilter {
  std::optional<Side> team = {};       // any
  int period = 0;                      // any
  int player = 0;                      // entry, of `team`; 0: any
  EventCode kind = EventCode::Unknown; // any; ARRET: who went in and out
  bool showsDeleted = false;
  friend bool operator==(const EventFilter&, const EventFilter&) = default;
};

class LiveEventRows : public QSortFilterProxyModel {
  Q_OBJECT
 public:
  enum Role { HasFinding = kTableKindRole + 1, Whole }; // a doubtful one has a finding, too; a LiveEventRow

  // `texts` must outlive it.
  explicit LiveEventRows(const Texts& texts, QObject* parent = nullptr);

  void show(const Game& game);
  void relabel();
  void setFilter(const EventFilter& filter);
  const EventFilter& filter() const { return m_filter; }
  // Each leads to its event.
  const std::vector<Finding>& findings() const { return m_findings; }
  std::vector<std::size_t> doubtful() const; // places in the game of those that are marked so
  const Game& game() const { return m_events.game(); }
  const EventWords& words() const { return m_events.words(); }
  std::size_t eventAt(const QModelIndex& row) const; // place in the game
  QModelIndex rowOf(std::size_t event) const;        // invalid where it is filtered out

  QVariant data(const QModelIndex& index, int role) const override;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  struct Row {
    OnCourt changed = {};  // by a stop: who went in or out
    QString findings = {}; // a line each
    FoulNumber foul = {};
    friend bool operator==(const Row&, const Row&) = default;
  };
  std::vector<Row> rowsOf(const Game& game) const;
  [[nodiscard]] LiveEventRow whole(std::size_t event) const;

  const Texts& m_texts;
  EventListModel m_events;
  EventFilter m_filter;
  std::vector<Row> m_ofEvents;
  std::vector<Finding> m_findings;
};

} // namespace hooptab

Q_DECLARE_METATYPE(hooptab::LiveEventRow)
