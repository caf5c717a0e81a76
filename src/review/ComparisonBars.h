// Two sides compared, drawn: a row for each value with a bar to either side of its words, the better one
// bold; above them whom the sides are. What is compared is decided elsewhere. Rows for which there is no room
// are left out, the last ones first.
#pragma once

#include "appearance/TableContent.h"
#include "review/Comparison.h"

#include <QColor>
#include <QRect>
#include <QWidget>

#include <vector>

namespace hooptab {

class ComparisonBars : public QWidget, public ShownTable {
  Q_OBJECT

 public:
  struct Head {
    QString title;
    QString middle = {}; // between the sides
    PerSide<QString> name = {};
    PerSide<QColor> colour = {};
    friend bool operator==(const Head&, const Head&) = default;
  };

  explicit ComparisonBars(QWidget* parent = nullptr);

  void showRows(Head head, std::vector<ComparisonRow> rows);
  // As many rows as it asks for room.
  void setUsualRows(std::size_t count);
  [[nodiscard]] TableContent tableContent() const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] std::vector<QRect> rowRects() const;
  [[nodiscard]] int headHeight() const;
  void paintHead(QPainter& painter) const;
  static void paintTitle(QPainter& painter, const QRect& area, const ComparisonRow& row);
  // One of so many that are shown.
  void paintRow(QPainter& painter, const QRect& area, const ComparisonRow& row, std::size_t shown) const;

  Head m_head;
  std::vector<ComparisonRow> m_rows;
  std::size_t m_usualRows = 9;
};

} // namespace hooptab
