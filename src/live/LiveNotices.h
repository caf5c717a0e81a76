// What the live window tells while one records: what is not on disk, what others did to the file, and a clock
// that was left running, over the oldest of the events; and in one line what became of the last press.
// Nothing moves that is being pressed.
#pragma once

#include "recording/LostStop.h"

#include <QWidget>

class QLabel;

namespace hooptab {

class LostStopStrip;
class MessageLine;
class NoticeStrip;
class Texts;

class LiveNotices : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  LiveNotices(const Texts& texts, QWidget* parent);

  // Nothing where all is on disk; the reason is for whoever rests on the words.
  void showNotOnDisk(const QString& words, const QString& reason);
  void tellForeign(const QString& words);
  void offerClock(const LostStop& lost, bool wasClosed);
  void showLostStop(bool isLost);
  MessageLine& message() { return *m_message; }

  void forget(); // another game
  void relabelNotices();
  void applyColours();
  // At the foot of a column of the parent, as high as its words need, and the line of the last press.
  void placeIn(const QRect& column, const QRect& line);

 signals:
  void clockChosen(int seconds);

 private:
  void place();

  QLabel* m_notOnDisk;
  NoticeStrip* m_foreign;
  LostStopStrip* m_lostStop;
  MessageLine* m_message;
  QRect m_column;
};

} // namespace hooptab
