// The header of a dense table: small bold words in narrow columns, tinted like the cells under them, and the
// mark of the sorted column above the word instead of beside it, so that no header is cut when one sorts.
#pragma once

#include <QHeaderView>

namespace hooptab {

class BoxHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit BoxHeader(QWidget* parent = nullptr);

  // The header's words without padding.
  int textWidth(const QString& text) const;

  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& area, int column) const override;

 private:
  QFont boldFont() const;
};

} // namespace hooptab
