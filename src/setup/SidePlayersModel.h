// The players of one side of a new game as a table, a check mark on each who can take part. The owner tells
// when another team was chosen.
#pragma once

#include "game/Side.h"
#include "setup/NewGame.h"

#include <QAbstractTableModel>

namespace hooptab {

class SidePlayersModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { Number, Position, Name, PositionIndex, ColumnCount };

  // Game and texts must outlive it.
  SidePlayersModel(NewGame& game, Side side, const Texts& texts, QObject* parent = nullptr);

  void changedTeam();
  void relabel();
  void checkAll(bool isChecked);
  void toggle(int row);
  void stepPosition(int row);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const std::vector<NewGame::Player>& players() const { return m_game.sides[m_side].players; }
  void rowsChanged(int first, int last);

  NewGame& m_game;
  const Side m_side;
  const Texts& m_texts;
};

} // namespace hooptab
