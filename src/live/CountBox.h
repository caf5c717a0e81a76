// A caption and its counts in a small space: an action with its one count, or a kind of shot with made,
// attempts and one more. Each count is a label of its own, to be found by its name, at a fixed place, so that
// nothing moves when counts grow.
#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;

namespace hooptab {

class CountBox : public QWidget {
  Q_OBJECT
 public:
  // One name, or three: made, attempts, and what stands beside the caption.
  CountBox(const QString& caption, const QStringList& countNames, QWidget* parent = nullptr);

  void setCaption(const QString& caption);
  void setCounts(const QStringList& texts); // as many as names
  void setTextColour(const QColor& colour);
  void setBold(bool isBold); // the caption

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] bool isShot() const { return m_counts.size() == 3; }
  [[nodiscard]] QRect captionRect() const;
  [[nodiscard]] QFont captionFont() const;
  [[nodiscard]] QFont countFont(bool isBold) const;

  QString m_caption;
  QList<QLabel*> m_counts;
  bool m_isBold = false;
};

} // namespace hooptab
