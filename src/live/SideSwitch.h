// Which team plays on which side of the court: a little court in their colours, and the button that exchanges
// them. A click on either asks for it; at half-time the button stands out. A right click chooses whether the
// rows of panels follow.
#pragma once

#include <QColor>
#include <QWidget>

#include <array>

class QAction;
class QLabel;
class QToolButton;

namespace hooptab {

class LiveGame;
class Texts;

class SideSwitch : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit SideSwitch(const Texts& texts, QWidget* parent = nullptr);

  void begin(); // another game, with team 0 on the left
  void setSides(bool team0PlaysRight, bool rowsStay);
  void applyColours(); // and lengths
  void showGame(const LiveGame& game);

 signals:
  void asked();
  void rowsStayAsked(bool stay);

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  class Court;
  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  bool m_team0PlaysRight = false;
  bool m_isHalfTimeOver = false; // they have been switched in it
  Court* m_court;
  QToolButton* m_button;
  QLabel* m_name;
  QAction* m_rowsStay;
};

} // namespace hooptab
