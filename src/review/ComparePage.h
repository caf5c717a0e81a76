// The page that puts two sides beside each other: the teams, two players, or a player in two stretches of the
// game. Offers the choices; what is compared is computed elsewhere.
#pragma once

#include "review/Comparison.h"
#include "review/ShownGame.h"

#include <QWidget>

#include <array>

class QComboBox;
class QLabel;

namespace hooptab {

class ComparisonBars;

class ComparePage : public QWidget {
  Q_OBJECT

 public:
  explicit ComparePage(const Texts& texts, QWidget* parent = nullptr);

  // Teams and players in what is shown of it; a player's stretches are those of the whole game.
  void showGame(const ShownGame& game);

 private:
  enum Kind { Teams, Players, Stretches };
  struct SideShown {
    RateBasis basis;
    QString name;
    QColor colour;
  };
  QComboBox* addBox(const char* name, Text text);
  void fillBoxes();
  void fillPlayers(QComboBox& box, Side usual);
  void fillStretches(QComboBox& box, int usual);
  void showBoxes(Kind kind); // those that it needs
  void showComparison();
  [[nodiscard]] SideShown playerOf(const QComboBox& box) const;
  [[nodiscard]] SideShown stretchOf(const QComboBox& box) const;

  const Texts& m_texts;
  ShownGame m_game;
  QComboBox* m_kind;
  std::array<QComboBox*, 2> m_players;
  std::array<QComboBox*, 2> m_stretches;
  QLabel* m_with;
  QLabel* m_note;
  ComparisonBars* m_bars;
};

} // namespace hooptab
