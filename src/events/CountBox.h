// A caption and its counts in a small space: an action with its one count, or a kind of shot with made,
// attempts and one more. Each count is a label of its own, to be found by its name, at a fixed place, so that
// nothing moves when counts grow. What is zero is quiet, what counts is bold.
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

class QLabel;

namespace hooptab {

class CountBox : public QWidget {
  Q_OBJECT
 public:
  enum class Place { OnButton, InPanel };
  // One name, or three: made, attempts, and what stands beside the caption.
  CountBox(Place place, const QString& caption, const QStringList& countNames, QWidget* parent = nullptr);

  void setCaption(const QString& caption);
  void setCounts(const QStringList& texts); // as many as names
  // Caption and counts, and zeros.
  void setColours(const QColor& text, const QColor& zeros);
  void layOut(); // the measure has changed

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override { (void)event, layOut(); }

 private:
  [[nodiscard]] bool isShot() const { return m_counts.size() == 3; }
  [[nodiscard]] bool isZero() const;
  [[nodiscard]] QFont countFont() const;
  void showCounts();

  Place m_place;
  QString m_caption;
  QList<QLabel*> m_counts;
  QColor m_text, m_zeros;
  QRect m_captionRect, m_slash;
};

} // namespace hooptab
