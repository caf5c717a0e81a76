#include "printing/PageView.h"

#include "printing/ReportPainter.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr double kGap = 14; // pixels around pages
constexpr double kSmallest = 0.1;
constexpr double kLargest = 8;
constexpr double kZoomStep = 1.15;
constexpr int kLinePixels = 40;

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
  setBackgroundRole(QPalette::Mid);
  viewport()->setBackgroundRole(QPalette::Mid);
  viewport()->setAutoFillBackground(true);
  setFocusPolicy(Qt::StrongFocus);
  verticalScrollBar()->setSingleStep(kLinePixels);
  horizontalScrollBar()->setSingleStep(kLinePixels);
}

void PageView::showLayout(const ReportLayout* layout) {
  m_layout = layout;
  applyFit();
  arrange();
  viewport()->update();
}

// Repaints only where something in sight has changed: the last page that was known may have grown, and every
// foot names the number of pages once all are there.
void PageView::showMorePages() {
  const bool hasChanged =
      m_layout->isDone() || pageRect(m_knownPages - 1)
                                .translated(-horizontalScrollBar()->value(), -verticalScrollBar()->value())
                                .intersects(viewport()->rect());
  arrange();
  if (hasChanged)
    viewport()->update();
}

int PageView::pageCount() const {
  return m_layout == nullptr ? 0 : static_cast<int>(m_layout->pages().size());
}

double PageView::pixelsPerUnit() const {
  return m_zoom * logicalDpiX() / kUnitsPerInch;
}

QSizeF PageView::pageSize() const {
  return m_layout == nullptr ? QSizeF() : m_layout->size() * pixelsPerUnit();
}

QRectF PageView::pageRect(int page) const {
  const QSizeF size = pageSize();
  const double content = columns() * (size.width() + kGap) + kGap;
  const double indent = std::max(0.0, (viewport()->width() - content) / 2); // in the middle
  return {QPointF(indent + kGap + page % columns() * (size.width() + kGap),
                  kGap + page / columns() * (size.height() + kGap)),
          size};
}

void PageView::arrange() {
  m_knownPages = pageCount();
  const QSizeF size = pageSize();
  const int rows = (m_knownPages + columns() - 1) / columns();
  const double width = columns() * (size.width() + kGap) + kGap;
  const double height = rows * (size.height() + kGap) + kGap;
  const auto setRange = [](QScrollBar& bar, double content, int room) {
    bar.setPageStep(room);
    bar.setRange(0, std::max(0, qRound(content) - room)); // a page that fits leaves nothing to scroll
  };
  setRange(*horizontalScrollBar(), width, viewport()->width());
  setRange(*verticalScrollBar(), height, viewport()->height());
}

void PageView::applyFit() {
  if (m_layout == nullptr || m_fit == Fit::None)
    return;
  // As if the scroll bar stood there: else its coming and going would change the zoom it depends on.
  const int bar = verticalScrollBar()->isVisible() ? 0 : verticalScrollBar()->sizeHint().width();
  const double unitsToPixels = logicalDpiX() / kUnitsPerInch;
  const QSizeF page = m_layout->size() * unitsToPixels;
  const double across = (viewport()->width() - bar - (columns() + 1) * kGap) / (columns() * page.width());
  const double down = (viewport()->height() - 2 * kGap) / page.height();
  m_zoom = std::clamp(m_fit == Fit::Width ? across : std::min(across, down), kSmallest, kLargest);
  emit zoomChanged();
}

void PageView::setZoom(double zoom) {
  zoomAbout(QRectF(viewport()->rect()).center(), zoom);
}

void PageView::zoomIn() {
  setZoom(m_zoom * kZoomStep);
}

void PageView::zoomOut() {
  setZoom(m_zoom / kZoomStep);
}

void PageView::zoomAbout(const QPointF& fixed, double zoom) {
  const double before = m_zoom;
  const QPointF place = fixed + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
  m_fit = Fit::None;
  m_zoom = std::clamp(zoom, kSmallest, kLargest);
  arrange();
  const QPointF scroll = place * (m_zoom / before) - fixed;
  horizontalScrollBar()->setValue(qRound(scroll.x()));
  verticalScrollBar()->setValue(qRound(scroll.y()));
  viewport()->update();
  emit zoomChanged();
}

void PageView::setFit(Fit fit) {
  const int shown = page();
  m_fit = fit;
  applyFit();
  arrange();
  goTo(shown);
  viewport()->update();
}

void PageView::setFacing(bool isFacing) {
  const int shown = page();
  m_isFacing = isFacing;
  applyFit();
  arrange();
  goTo(shown);
  viewport()->update();
}

int PageView::page() const {
  if (m_layout == nullptr)
    return 0;
  const int pages = pageCount();
  // At the end, the last page is the one meant, though an earlier one may still be at the top.
  const QScrollBar& bar = *verticalScrollBar();
  if (bar.value() == bar.maximum() && bar.maximum() > 0)
    return pages;
  if (bar.value() == 0) // small pages stand several in sight
    return 1;
  const double middle = bar.value() + viewport()->height() / 3.0;
  const double row = pageSize().height() + kGap;
  return std::clamp(static_cast<int>(middle / row) * columns() + 1, 1, pages);
}

void PageView::goTo(int page) {
  if (m_layout == nullptr || page < 1)
    return;
  verticalScrollBar()->setValue(static_cast<int>(pageRect(page - 1).top() - kGap));
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
  if (m_layout == nullptr)
    return;
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  const QRectF seen =
      QRectF(viewport()->rect()).translated(horizontalScrollBar()->value(), verticalScrollBar()->value());
  for (int i = 0; i < pageCount(); ++i) {
    const QRectF rect = pageRect(i);
    if (!rect.intersects(seen))
      continue;
    painter.fillRect(rect, Qt::white);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(rect);
    painter.save();
    painter.setClipRect(rect);
    painter.translate(rect.topLeft());
    painter.scale(pixelsPerUnit(), pixelsPerUnit());
    paintPage(painter, *m_layout, static_cast<std::size_t>(i));
    painter.restore();
  }
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  const int shown = page();
  const bool isAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  applyFit();
  arrange();
  if (m_fit != Fit::None && !isAtEnd)
    goTo(shown);
}

void PageView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  if (const int shown = page(); shown != m_shownPage) {
    m_shownPage = shown;
    emit pageChanged(shown);
  }
}

void PageView::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier))
    return QAbstractScrollArea::wheelEvent(event);
  zoomAbout(event->position(), m_zoom * (event->angleDelta().y() > 0 ? kZoomStep : 1 / kZoomStep));
  event->accept();
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const int step = columns();
  const bool isWholePage = m_fit == Fit::Page;
  switch (event->key()) {
  case Qt::Key_Home: return goTo(1);
  case Qt::Key_End: return goTo(pageCount());
  case Qt::Key_Plus: return zoomIn();
  case Qt::Key_Minus: return zoomOut();
  case Qt::Key_Space:
  case Qt::Key_PageDown:
    if (isWholePage)
      return goTo(std::min(page() + step, pageCount()));
    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
  case Qt::Key_Backspace:
  case Qt::Key_PageUp:
    if (isWholePage)
      return goTo(std::max(page() - step, 1));
    return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
  default: QAbstractScrollArea::keyPressEvent(event);
  }
}

} // namespace hooptab
