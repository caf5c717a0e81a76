// How the score of a game went, small: the margin as steps, the leading team's colour below them.
#pragma once

#include "game/CountedGame.h"
#include "insight/MarginFlow.h"
#include "settings/Texts.h"

#include <QWidget>

#include <memory>

namespace hooptab {

class MarginChart : public QWidget {
  Q_OBJECT
 public:
  explicit MarginChart(const Texts& texts, QWidget* parent = nullptr) : QWidget(parent), m_texts(texts) {}
  void showGame(std::shared_ptr<const CountedGame> game);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Texts& m_texts;
  std::shared_ptr<const CountedGame> m_game;
  MarginFlow m_flow;
};

} // namespace hooptab
