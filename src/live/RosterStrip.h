// A team's roster above its panels: fifteen places that never move, who is on court filled with the team's
// colour, of the bench points, fouls and minutes. Shows, and says what was pressed; changes no game.
#pragma once

#include "game/Side.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace hooptab {

class JerseyButton;
class LiveGame;
class Texts;

class RosterStrip : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  RosterStrip(Side team, const Texts& texts, QWidget* parent = nullptr);

  // What the choice of a player means for the next press is its owner's.
  struct Choice {
    int selected = 0; // entry; 0: nobody
    bool isSubstituting = false;
    friend bool operator==(const Choice&, const Choice&) = default;
  };
  void showGame(const LiveGame& game, const Choice& choice);
  void showTime(const LiveGame& game); // of those on court
  void setPlaysRight(bool playsRight);
  void applyColours();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 signals:
  void pressed(hooptab::Side team, int player);
  void allOutAsked(hooptab::Side team);
  void playerAsked(hooptab::Side team); // one who is not in the roster yet

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  static constexpr int kPlaces = 15;
  void showPlace(const LiveGame& game, int player, const Choice& choice);
  [[nodiscard]] QRect placeRect(int place) const;
  void layOut();

  Side m_team;
  const Texts& m_texts;
  QString m_name;
  QColor m_colour;
  Choice m_choice;
  bool m_playsRight = false;
  int m_firstFree = 1; // entry
  QRect m_nameRect;
  QPushButton* m_allOut = nullptr;
  QPushButton* m_add = nullptr;
  std::array<JerseyButton*, kPlaces> m_players = {};
};

} // namespace hooptab
