#include "game/EventListModel.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QFont>
#include <algorithm>

namespace hooptab {

namespace {

QVariant alignment(int column) {
  return QVariant::fromValue(
      Qt::Alignment(column == EventListModel::Action ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
}

} // namespace

EventListModel::EventListModel(const Texts& texts, Words words, QObject* parent)
    : QAbstractTableModel(parent), m_texts(texts), m_length(words), m_words(m_game, texts) {}

void EventListModel::show(const Game& game) {
  const std::size_t before = m_game.events.size();
  const std::size_t after = game.events.size();
  const std::size_t common = std::min(before, after);
  const auto [head, tail] = m_game.events.inCommonWith(game.events);

  // Between the equal head and the equal tail, as many as there are on both sides changed; the rest is new or
  // gone.
  const int first = static_cast<int>(common - tail);
  const int oldCount = static_cast<int>(before);
  const int newCount = static_cast<int>(after);
  const bool hasChanged = head + tail < std::max(before, after);
  if (newCount > oldCount)
    beginInsertRows({}, first, first + newCount - oldCount - 1);
  else if (newCount < oldCount)
    beginRemoveRows({}, first, first + oldCount - newCount - 1);
  m_game = game;
  m_score.resize(head);
  m_score = runningScore(m_game.events, std::move(m_score));
  if (newCount > oldCount)
    endInsertRows();
  else if (newCount < oldCount)
    endRemoveRows();
  // All that follow show another score, and names may be others.
  if (hasChanged && newCount > 0)
    emit dataChanged(index(std::min(static_cast<int>(head), newCount - 1), 0),
                     index(newCount - 1, ColumnCount - 1));
}

void EventListModel::relabel() {
  emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
  if (rowCount() > 0)
    emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int EventListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_game.events.size());
}

int EventListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QString EventListModel::text(std::size_t event, int column) const {
  switch (column) {
  case Clock: return toQt(m_words.clock(event));
  case Action: return toQt(m_length == Words::Short ? m_words.shortWords(event) : m_words.words(event));
  case Period: return toQt(m_words.periodText(m_game.events[event].period));
  default: break;
  }
  const PerSide<int>& score = m_score[event];
  const PerSide<int> before = event == 0 ? PerSide<int>() : m_score[event - 1];
  return score == before ? QString()
                         : QString::number(score[Side::Visitor]) + u'-' + QString::number(score[Side::Home]);
}

// An overtime is a name.
TableKind EventListModel::kindOf(std::size_t event, int column) const {
  const GameEvent& shown = m_game.events[event];
  const GameDetails& details = m_game.details;
  if (column == Clock && shown.isUnderstood && details.minutesPerPeriod > 0)
    return TableKind::Time;
  const bool isNumber = column == Period && (details.periods <= 0 || shown.period <= details.periods);
  return isNumber ? TableKind::Number : TableKind::Text;
}

QVariant EventListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid())
    return {};
  const auto place = static_cast<std::size_t>(index.row());
  const GameEvent& event = m_game.events[place];
  switch (role) {
  case Qt::DisplayRole: return text(place, index.column());
  case kTableKindRole: return static_cast<int>(kindOf(place, index.column()));
  case kTableSortRole: return index.column() == Clock ? double(event.clockSeconds) : double(event.period);
  case Qt::AccessibleTextRole:
  case Qt::ToolTipRole: return index.column() == Action ? toQt(m_words.words(place)) : QVariant();
  case Qt::TextAlignmentRole: return alignment(index.column());
  case Qt::DecorationRole:
    if (index.column() != Action || !event.isUnderstood || !event.player.team)
      return {};
    return colourOf(m_game.details.teamColour[*event.player.team]);
  case Qt::FontRole: {
    QFont font;
    font.setStrikeOut(event.isDeleted);
    font.setBold(index.column() == Score);
    return font;
  }
  case Qt::ForegroundRole:
    return event.isDeleted || !event.isUnderstood ? QVariant(Theme::muted()) : QVariant();
  default: return {};
  }
}

QVariant EventListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
    return {};
  if (role == Qt::TextAlignmentRole)
    return alignment(section);
  constexpr std::array<Text, ColumnCount> kTexts = {Text::Time, Text::Event, Text::Period, Text::Score};
  return role == Qt::DisplayRole ? caption(m_texts, kTexts[static_cast<std::size_t>(section)]) : QVariant();
}

} // namespace hooptab
