// The court and the shot buttons of a player who sits on the bench, for the shot of one of whom it was
// forgotten that he came in: as in a panel, pressed with the left button for made and with another for
// missed. Comes up where it is asked for and goes with the shot; says what was pressed, records nothing.
#pragma once

#include "game/EventKind.h"

#include <QFrame>

class QLabel;

namespace hooptab {

class MiniCourt;
class Settings;
class Texts;

class BenchShot : public QFrame {
  Q_OBJECT
 public:
  // Both must outlive it.
  BenchShot(const Settings& settings, const Texts& texts, QWidget* parent);

  // Above or below that place of the screen, as there is room.
  void ask(const QString& player, bool playsRight, const QPoint& place);
  void applyColours();

 signals:
  void courtPressed(const QPointF& place, bool isMade); // in the picture as it is shown
  void shotPressed(hooptab::EventCode kind, bool isMade);

 protected:
  void keyPressEvent(QKeyEvent* event) override; // closes it, and is carried out but for Esc

 private:
  const Settings& m_settings;
  QLabel* m_player;
  MiniCourt* m_court;
};

} // namespace hooptab
