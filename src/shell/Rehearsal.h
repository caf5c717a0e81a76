// A rehearsal: the game clock's time comes from whoever started the program, so that a whole game can be
// played in minutes, and he can ask where a control stands and what it shows. One command a line on standard
// input, one answer a line on standard output; CONTRIBUTING.md lists them. No input passes through here: keys
// and clicks come from the display, as a user's do.
#pragma once

#include "recording/TimeSource.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

namespace hooptab {

class RehearsalTime : public TimeSource {
 public:
  std::int64_t seconds() override { return m_now; }
  // False, and nothing changed, for a time before the present one: time never jumps back.
  bool advanceTo(std::int64_t seconds);

 private:
  std::int64_t m_now = 0;
};

class Rehearsal : public QObject {
  Q_OBJECT
 public:
  // Reads from one file descriptor and answers on the other until the first is closed. `time` must outlive
  // it.
  Rehearsal(RehearsalTime& time, int input, int output, QObject* parent = nullptr);

 private:
  void read();
  [[nodiscard]] QString answer(const QString& line);
  void say(const QString& line) const;

  RehearsalTime& m_time;
  int m_input;
  int m_output;
  QSocketNotifier m_notifier;
  QByteArray m_pending; // the beginning of a line that is not whole yet
};

} // namespace hooptab
