// Shows large what is typed on the keypad, what it will do, and what became of it. Lies over its parent while
// there is something to show, lets every click through, and flashes so that one knows without reading.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace hooptab {

class KeypadDisplay : public QWidget {
  Q_OBJECT
 public:
  explicit KeypadDisplay(QWidget* parent);

  enum class Tone { Plain, Recorded, Refused };
  // What is typed stays until the next call; without it the words go by themselves after a while.
  void show(const QString& typed, const QString& words, Tone tone, bool flashes);
  void clear();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintIn(const QColor& background);

  QLabel* m_typed = nullptr; // txtACTION
  QLabel* m_words = nullptr; // lblACTION
  QTimer m_end;
  QTimer m_flash;
};

} // namespace hooptab
