// What a league's table has beside the team fouls, as buttons of their own: the time-outs that a team has
// left, and the possession arrow. They show, and say that they were pressed.
#pragma once

#include <QAbstractButton>

namespace hooptab {

// Acts on the press, not when it is let go.
class LeagueButton : public QAbstractButton {
 public:
  explicit LeagueButton(QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintGround(QPainter& painter) const;
};

class TimeOutButton : public LeagueButton {
 public:
  using LeagueButton::LeagueButton;
  struct Look {
    QString caption;
    QString shortCaption; // where there is no room for it
    int left = 0;         // filled dots
    int taken = 0;        // hollow ones behind them
    bool isEmphasized = false;
    friend bool operator==(const Look&, const Look&) = default;
  };
  void setLook(const Look& look);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Look m_look;
};

class ArrowButton : public LeagueButton {
 public:
  using LeagueButton::LeagueButton;
  void setLook(bool isOn, bool pointsRight);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool m_isOn = false;
  bool m_pointsRight = false;
};

} // namespace hooptab
