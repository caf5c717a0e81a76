// A short list whose rows are painted: games, leaders. Chosen by mouse or keys like any list; what a row says
// to a screen reader is its text. Double click or Enter asks for a row.
#pragma once

#include <QColor>
#include <QListWidget>
#include <QPainter>

#include <functional>

namespace hooptab {

class RowList : public QListWidget {
  Q_OBJECT

 public:
  // The ground is that under the row: of a selected one another.
  using Paint = std::function<void(QPainter& painter, const QRect& area, int row, const QColor& ground)>;

  // How high its rows are in a narrow window and in a wide one.
  RowList(const QString& name, int narrow, int wide, QWidget* parent = nullptr);

  void showRows(const QStringList& words, Paint paint);
  void paintRow(QPainter& painter, const QRect& area, int row, const QColor& ground) const;
  int rowHeight() const;

 signals:
  void rowAsked(int row);

 private:
  const int m_narrow;
  const int m_wide;
  Paint m_paint;
};

// Writes into the left or the right of an area, cut where it has no room, and takes the room off.
void writeLeft(QPainter& painter, QRect& area, int room, const QString& text, const QColor& colour);
void writeRight(QPainter& painter, QRect& area, int room, const QString& text, const QColor& colour);

} // namespace hooptab
