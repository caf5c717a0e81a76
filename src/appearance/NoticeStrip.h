// One line above a window's content that tells what happened and waits to be read: it stays until it is
// dismissed, and never in the way. A newer one takes its place.
#pragma once

#include <QFrame>

class QToolButton;

namespace hooptab {

class PlainLabel;

class NoticeStrip : public QFrame {
  Q_OBJECT
 public:
  NoticeStrip(const char* name, QWidget* parent);

  void tell(const QString& text);
  void applyColours();

 signals:
  void dismissed();

 private:
  PlainLabel* m_text;
  QToolButton* m_dismiss;
};

} // namespace hooptab
