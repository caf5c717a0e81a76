// After a game was left while its clock ran: two clocks to go on from, a click each, and never in the way.
// Shows, and says which was chosen.
#pragma once

#include "recording/LostStop.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace hooptab {

class Texts;

class LostStopStrip : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit LostStopStrip(const Texts& texts, QWidget* parent = nullptr);

  // `wasClosed`: by closing the window, which has stopped it.
  void offer(const LostStop& lost, bool wasClosed);
  void relabelPanel();
  void applyColours();

 signals:
  void clockChosen(int seconds);

 private:
  QPushButton* makeButton(const char* name);

  const Texts& m_texts;
  LostStop m_lost;
  bool m_wasClosed = false;
  QLabel* m_text;
  QPushButton* m_last;
  QPushButton* m_runOn;
};

} // namespace hooptab
