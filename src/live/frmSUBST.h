// "Several at once": both rosters to pick who leaves and who comes in any order, and the lines that have
// played before. One confirmation; what was chosen is for the caller to write as one event.
#pragma once

#include "live/Substitution.h"

#include <QDialog>

#include <array>

class QGridLayout;
class QLabel;
class QPushButton;

namespace hooptab {

class JerseyButton;
class Texts;

class frmSUBST : public QDialog {
 public:
  // Both must outlive it. The game may run on meanwhile, but nobody else may substitute.
  frmSUBST(const LiveGame& game, const Texts& texts, QWidget* parent = nullptr);

  const OnCourt& onCourt() const { return m_choice.onCourt(); }
  // Modal, over the panel it was called from, without waiting for the answer.
  void openBeside(const QWidget& panel);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kPlaces = 15; // of a team
  void addTeam(QGridLayout& layout, int team);
  QWidget* makeLines(int team);
  QWidget* makeAnswers();
  void showChoice();

  const LiveGame& m_game;
  const Texts& m_texts;
  Substitution m_choice;
  std::array<std::array<JerseyButton*, kPlaces>, 2> m_players = {};
  std::array<QLabel*, 2> m_counts = {};
  QPushButton* m_accept = nullptr;
};

} // namespace hooptab
