// Which events the live list shows: by team, period, player and kind, a choice each. Knows no list; whoever
// shows it takes the filter.
#pragma once

#include "events/LiveEventRows.h"
#include "game/Side.h"

#include <QWidget>

#include <array>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;

namespace hooptab {

class EventFilterRow : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit EventFilterRow(const Texts& texts, QWidget* parent = nullptr);

  // Offers the game's periods, teams and players; what is chosen stays while it is offered.
  void showGame(const Game& game, const EventWords& words);
  void relabelRow(const Game& game, const EventWords& words);
  [[nodiscard]] EventFilter filter() const;
  void clear();                       // everything is shown again
  void choose(Side team, int period); // that alone

 signals:
  void changed();

 private:
  QComboBox* makeBox(const char* name, Text text);
  void fill(QComboBox& box, Text text, const QString& key, const std::vector<std::pair<QString, int>>& items);
  void fillPlayers();

  const Texts& m_texts;
  QString m_game; // what was offered: path and number of players
  QComboBox* m_team = nullptr;
  QComboBox* m_period = nullptr;
  QComboBox* m_player = nullptr;
  QComboBox* m_kind = nullptr;
  QCheckBox* m_deleted = nullptr;                          // whether they are shown
  PerSide<std::vector<std::pair<QString, int>>> m_players; // words and choice, of each team
};

} // namespace hooptab
