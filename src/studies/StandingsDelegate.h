// Draws the table of a league: teams on their colours, the latest games as signs, differences as bars, and
// hairlines between groups of columns.
#pragma once

#include "season/Standings.h"

#include <QStyledItemDelegate>

#include <memory>

namespace hooptab {

class SeasonTableView;

enum class StandingsColumn {
  Rank,
  Tag,
  Name,
  Played,
  Won,
  Lost,
  Share,
  Behind,
  Home,
  Away,
  Latest,
  Streak,
  For,
  Against,
  Difference,
  Offence,
  Defence,
  Pace,
};

// The colour of a team in its latest game that has one.
[[nodiscard]] QColor seasonTeamColour(const SeasonTeam& team);

class StandingsDelegate : public QStyledItemDelegate {
 public:
  // Both must outlive it.
  StandingsDelegate(SeasonTableView& view, const Texts& texts);

  void show(std::shared_ptr<const GameCatalogue> catalogue, std::shared_ptr<const Standings> standings);
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] static int latestWidth();
  [[nodiscard]] static int differenceWidth();

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] const Standing& standingAt(const QModelIndex& index) const;
  void paintLatest(QPainter& painter, const QRect& area, const Standing& row) const;
  void paintDifference(QPainter& painter, const QRect& area, const Standing& row) const;

  SeasonTableView& m_view;
  const Texts& m_texts;
  std::shared_ptr<const GameCatalogue> m_catalogue;
  std::shared_ptr<const Standings> m_standings;
  double m_mostDifference = 1;
};

} // namespace hooptab
