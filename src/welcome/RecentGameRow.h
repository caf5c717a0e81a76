// A line of the start page's recent games: date, teams, score and state, or why there are none.
#pragma once

#include "settings/Texts.h"
#include "welcome/PageButton.h"
#include "welcome/RecentGames.h"

namespace hooptab {

class RecentGameRow : public PageButton {
  Q_OBJECT
 public:
  RecentGameRow(RecentGame game, const Texts& texts, QWidget* parent);

  void relabelRow();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  RecentGame m_game;
  const Texts& m_texts;
};

} // namespace hooptab
