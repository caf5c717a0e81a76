#include "setup/SidePlayersModel.h"

#include "appearance/relabel.h"

#include <QFont>

namespace hooptab {

namespace {

// By column; the index of a position is for readers of the model alone.
constexpr Text kHeaders[SidePlayersModel::ColumnCount] = {Text::Number, Text::Position, Text::PlayerName,
                                                          Text::Position};

Text hint(const NewGame::Player& player) {
  switch (player.eligibility) {
  case NewGame::Eligibility::NoJersey: return Text::NoJersey;
  case NewGame::Eligibility::NumberTaken: return Text::NumberAbove;
  case NewGame::Eligibility::NumberWrittenOtherwise: return Text::NumberOtherwise;
  case NewGame::Eligibility::CanPlay: break;
  }
  return Text::RowHint;
}

} // namespace

SidePlayersModel::SidePlayersModel(NewGame& game, Side side, const Texts& texts, QObject* parent)
    : QAbstractTableModel(parent), m_game(game), m_side(side), m_texts(texts) {}

void SidePlayersModel::changedTeam() {
  beginResetModel();
  endResetModel();
}

void SidePlayersModel::relabel() {
  emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
  rowsChanged(0, rowCount() - 1);
}

void SidePlayersModel::checkAll(bool isChecked) {
  for (std::size_t player = 0; player < players().size(); ++player)
    m_game.setChecked(m_side, player, isChecked);
  rowsChanged(0, rowCount() - 1);
}

void SidePlayersModel::toggle(int row) {
  const auto player = static_cast<std::size_t>(row);
  m_game.setChecked(m_side, player, !players().at(player).isChecked);
  rowsChanged(row, row);
}

void SidePlayersModel::stepPosition(int row) {
  m_game.stepPosition(m_side, static_cast<std::size_t>(row));
  rowsChanged(row, row);
}

void SidePlayersModel::rowsChanged(int first, int last) {
  if (first <= last)
    emit dataChanged(index(first, 0), index(last, ColumnCount - 1));
}

int SidePlayersModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(players().size());
}

int SidePlayersModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant SidePlayersModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid))
    return {};
  const NewGame::Player& player = players()[static_cast<std::size_t>(index.row())];
  const bool canPlay = player.eligibility == NewGame::Eligibility::CanPlay;
  if (role == Qt::DisplayRole) {
    switch (index.column()) {
    case Number: return toQt(player.number);
    case Position: return toQt(positionText(player.position, m_texts));
    case Name: return toQt(player.name);
    default: return player.position;
    }
  }
  if (role == Qt::CheckStateRole && index.column() == Number && canPlay)
    return player.isChecked ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::ToolTipRole)
    return QString(toQt(player.name) + u'\n' + caption(m_texts, hint(player))).trimmed();
  if (role == Qt::FontRole && !canPlay) {
    QFont font;
    font.setItalic(true);
    return font;
  }
  return {};
}

bool SidePlayersModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::CheckStateRole ||
      !flags(index).testFlag(Qt::ItemIsUserCheckable))
    return false;
  m_game.setChecked(m_side, static_cast<std::size_t>(index.row()), value.toInt() == Qt::Checked);
  rowsChanged(index.row(), index.row());
  return true;
}

Qt::ItemFlags SidePlayersModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  const bool hasCheck = index.column() == Number && data(index, Qt::CheckStateRole).isValid();
  return hasCheck ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant SidePlayersModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
    return {};
  return caption(m_texts, kHeaders[section]);
}

} // namespace hooptab
