// The plate of the start page with the game that goes on: where it stands, and the ways back into it.
#pragma once

#include "game/Side.h"
#include "settings/Texts.h"
#include "welcome/RecentGames.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace hooptab {

class UnfinishedPlate : public QWidget {
  Q_OBJECT
 public:
  explicit UnfinishedPlate(const Texts& texts, QWidget* parent = nullptr);

  void showGame(const RecentGame& game);
  const RecentGame& game() const { return m_game; }
  void relabelPlate(); // behind relabel()
  void applyLook();    // colours and measure
  QPushButton& firstButton() const { return *m_buttons.front(); }
  QPushButton& lastButton() const { return *m_buttons.back(); }

 signals:
  void continueAsked();
  void scorecardAsked();
  void folderAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void widenButtons();
  void paintTeam(QPainter& painter, const QRect& rect, Side team) const;

  const Texts& m_texts;
  RecentGame m_game;
  std::array<QPushButton*, 3> m_buttons;
};

} // namespace hooptab
