// The score by period of both teams with its sum, and how long and how often each of them was ahead, or the
// score tied. The last periods where there is no room for all.
#pragma once

#include "game/GameState.h"
#include "game/Side.h"

#include <QWidget>

#include <array>
#include <vector>

class QLabel;

namespace hooptab {

class LiveGame;
class Texts;

class PeriodScores : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit PeriodScores(const Texts& texts, QWidget* parent = nullptr);

  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game); // of the present state of the lead
  void setTurned(bool isTurned);       // team 1 above
  void applyColours();
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Column {
    QString name;
    PerSide<QString> points;
    friend bool operator==(const Column&, const Column&) = default;
  };
  struct Lead {
    QLabel* title = nullptr;
    QLabel* time = nullptr;
    QLabel* times = nullptr;
  };
  [[nodiscard]] QRect rowRect(int row) const;
  void layOut();

  const Texts& m_texts;
  bool m_isTurned = false;
  std::vector<Column> m_columns; // the sum last
  std::array<Lead, 3> m_leads;   // in the order of LeadState
};

} // namespace hooptab
