// A team's fouls of the period on a card: how many, and in words what they mean for the other team.
#pragma once

#include <QColor>
#include <QWidget>

class QLabel;

namespace hooptab {

class LiveGame;
class Texts;

class FoulCard : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  FoulCard(int team, const Texts& texts, QWidget* parent = nullptr);

  void showGame(const LiveGame& game);
  void applyColours();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int m_team;
  const Texts& m_texts;
  QColor m_colour;
  bool m_isInBonus = false;
  QLabel* m_title = nullptr;
  QLabel* m_count = nullptr;
  QLabel* m_words = nullptr;
};

} // namespace hooptab
