// The pages of a report on screen: zoomed or fitted, one below the other or side by side. Paints only what is
// in sight, so that a long report scrolls as a short one does.
#pragma once

#include <QAbstractScrollArea>

namespace hooptab {

class ReportLayout;

class PageView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  enum class Fit { None, Page, Width };

  explicit PageView(QWidget* parent = nullptr);

  // The layout must stay until another one is shown; null shows nothing.
  void showLayout(const ReportLayout* layout);
  void showMorePages(); // the layout has gone on

  double zoom() const { return m_zoom; } // 1 is the size on paper
  void setZoom(double zoom);             // about the middle of what is seen
  void zoomIn();
  void zoomOut();
  void setFit(Fit fit);
  Fit fit() const { return m_fit; }
  void setFacing(bool isFacing);
  bool isFacing() const { return m_isFacing; }

  int page() const; // the one at the top, from 1; 0 when nothing is shown
  void goTo(int page);

 signals:
  void pageChanged(int page);
  void zoomChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  // Home, End and the page keys go by pages where a whole page is in sight; + and - zoom.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void zoomAbout(const QPointF& fixed, double zoom); // a place of the viewport
  [[nodiscard]] int pageCount() const;
  [[nodiscard]] double pixelsPerUnit() const;
  [[nodiscard]] QSizeF pageSize() const;         // in pixels
  [[nodiscard]] QRectF pageRect(int page) const; // from 0; in the whole of all pages
  [[nodiscard]] int columns() const { return m_isFacing ? 2 : 1; }
  void arrange();
  void applyFit();

  const ReportLayout* m_layout = nullptr;
  double m_zoom = 1;
  Fit m_fit = Fit::Page;
  bool m_isFacing = false;
  int m_shownPage = 0; // what was told last
  int m_knownPages = 0;
};

} // namespace hooptab
