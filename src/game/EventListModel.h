// The events of a game for views: clock, action in words, period, and the score where an event changed it.
// Words are made only for what is looked at. Takes a game read anew without a reset, so that selection and
// scroll survive.
#pragma once

#include "appearance/TableContent.h"
#include "game/EventWords.h"
#include "game/GameFile.h"
#include "game/RunningScore.h"

#include <QAbstractTableModel>

namespace hooptab {

class EventListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Clock, Action, Period, Score, ColumnCount };

  enum class Words { Whole, Short }; // the whole ones are in the tool tip too

  // The texts must outlive it.
  explicit EventListModel(const Texts& texts, Words words = Words::Whole, QObject* parent = nullptr);

  // Keeps a copy (the text of the events is shared).
  void show(const Game& game);
  // The language changed.
  void relabel();
  const Game& game() const { return m_game; }
  const EventWords& words() const { return m_words; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString text(std::size_t event, int column) const;
  TableKind kindOf(std::size_t event, int column) const;

  const Texts& m_texts;
  Words m_length;
  Game m_game;
  EventWords m_words;
  Scores m_score;
};

} // namespace hooptab
