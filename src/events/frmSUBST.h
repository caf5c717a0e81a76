// "Several at once", now or at an event of the past: both rosters to pick who leaves and who comes in any
// order, by a click or by typing the numbers, and the lines that have played before. One confirmation; what
// was chosen is for the caller to write as one event. What would not fit later in the game is said before.
#pragma once

#include "game/Side.h"
#include "recording/Substitution.h"
#include "recording/SubstitutionLine.h"

#include <QDialog>

#include <array>
#include <optional>

class QBoxLayout;
class QGridLayout;
class QKeyEvent;
class QLabel;
class QPushButton;

namespace hooptab {

class JerseyButton;
class Texts;

class frmSUBST : public QDialog {
  Q_OBJECT
 public:
  // Both must outlive it. The game may run on meanwhile, but nobody else may substitute.
  frmSUBST(const LiveGame& game, const Texts& texts, QWidget* parent = nullptr);

  // A forgotten substitution, or another choice for one that is recorded.
  frmSUBST(const LiveGame& game, const PastSubstitution& past, const Texts& texts, QWidget* parent = nullptr);

  // A line to be taken with one click, above those that have played in this game.
  void propose(Side team, unsigned players, const QString& words, const QString& hint);
  void toggle(Side team, int player);
  EditPlan plan() const { return m_choice.plan(); } // in the past
  const OnCourt& onCourt() const { return m_choice.onCourt(); }
  // Modal, over the panel it was called from, without waiting for the answer.
  void openBeside(const QWidget& panel);

 signals:
  void clockAsked(); // by its key

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kPlaces = 15; // of a team
  void makeContents();
  void addPlace(QBoxLayout& layout);
  void addTeam(QGridLayout& layout, Side team);
  QWidget* makeLines(Side team);
  QWidget* makeTyped();
  QWidget* makeAnswers();
  bool takeKey(const QKeyEvent& key);
  void showChoice();
  void showTyped();

  const LiveGame& m_game;
  const Texts& m_texts;
  std::optional<PastSubstitution> m_past;
  Substitution m_choice;
  SubstitutionLine m_line{m_game, m_choice};
  PerSide<std::array<JerseyButton*, kPlaces>> m_players = {};
  PerSide<QLabel*> m_counts = {};
  PerSide<QBoxLayout*> m_lines = {};
  QLabel* m_typedTeam = nullptr;
  QLabel* m_typed = nullptr;
  QLabel* m_words = nullptr;
  QLabel* m_conflict = nullptr; // in the past
  QPushButton* m_accept = nullptr;
};

} // namespace hooptab
