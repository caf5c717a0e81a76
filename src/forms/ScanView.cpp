#include "forms/ScanView.h"

#include "appearance/Theme.h"

#include <QGraphicsPixmapItem>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr double kTickedMargin = 0.1; // of the frames, in millimetres around the cell
constexpr double kDoubtfulMargin = 0.3;
constexpr double kCurrentMargin = 0.8;
constexpr double kReach = 0.4;      // half of the gap between two cells
constexpr double kBadge = 0.3;      // radius, of the cell's width
constexpr double kFinestFrame = 12; // of a cell's width, so that a page in whole stays readable
constexpr double kJudgedCell = 24;  // pixels on screen
constexpr double kStep = 1.25;
constexpr double kLargestScale = 4;
constexpr double kSmallestScale = 0.05;

// The page is paper in every look of the program.
QColor tickedColour() {
  return Theme::madeOnPaper();
}
QColor doubtColour() {
  return Theme::palette(ColourScheme::Light).color(QPalette::BrightText);
}
QColor currentColour() {
  return Theme::palette(ColourScheme::Light).color(QPalette::Link);
}

QPen pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) {
  QPen made(colour, width, style, Qt::SquareCap, Qt::MiterJoin);
  made.setCosmetic(true); // as wide on screen at every zoom
  return made;
}

QPointF toQtPoint(const PicturePoint& point) {
  return {point.x, point.y};
}

} // namespace

ScanView::ScanView(QWidget* parent) : QGraphicsView(parent) {
  setScene(new QGraphicsScene(this));
  setDragMode(QGraphicsView::ScrollHandDrag);
  setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
  setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  setBackgroundRole(QPalette::Dark);
  viewport()->setCursor(Qt::ArrowCursor);
}

void ScanView::showPage(std::shared_ptr<const GrayPicture> picture, const CheckedSheet& sheet) {
  showNothing();
  m_picture = std::move(picture);
  m_sheet = &sheet;
  const QImage image(m_picture->pixels.data(), m_picture->width, m_picture->height, m_picture->width,
                     QImage::Format_Grayscale8);
  auto* page = scene()->addPixmap(QPixmap::fromImage(image));
  page->setTransformationMode(Qt::SmoothTransformation);
  page->setCacheMode(QGraphicsItem::DeviceCoordinateCache); // scaled once, not with every mark that changes
  scene()->setSceneRect(page->boundingRect());
  fitPage();
}

void ScanView::showNothing() {
  m_sheet = nullptr;
  m_current.reset();
  m_framed.clear();
  scene()->clear();
  m_picture.reset();
}

// --- Where it looks

void ScanView::fitPage() {
  m_fit = Fit::Page;
  applyFit();
}

void ScanView::fitWidth() {
  m_fit = Fit::Width;
  applyFit();
}

void ScanView::applyFit() {
  const QRectF page = sceneRect();
  if (m_sheet == nullptr || page.isEmpty())
    return;
  if (m_fit == Fit::Page)
    fitInView(page, Qt::KeepAspectRatio);
  else if (m_fit == Fit::Width)
    setTransform(
        QTransform::fromScale(viewport()->width() / page.width(), viewport()->width() / page.width()));
}

void ScanView::zoomBy(double factor) {
  const double scale = std::clamp(transform().m11() * factor, kSmallestScale, kLargestScale);
  m_fit = Fit::None;
  setTransform(QTransform::fromScale(scale, scale));
}

void ScanView::goTo(std::size_t cell) {
  if (m_sheet == nullptr)
    return;
  m_current = cell;
  const QRectF box = outline(cell, 0).boundingRect();
  const double scale = kJudgedCell / std::max(box.width(), 1.0);
  if (transform().m11() < scale) {
    m_fit = Fit::None;
    setTransform(QTransform::fromScale(scale, scale));
  }
  centerOn(box.center());
  ensureVisible(rowHead(cell)); // so that it is seen what is counted there, if there is room for both
  ensureVisible(outline(cell, kCurrentMargin).boundingRect());
  viewport()->update();
}

QPoint ScanView::positionOf(std::size_t cell) const {
  return mapFromScene(outline(cell, 0).boundingRect().center());
}

void ScanView::frame(std::vector<std::size_t> cells) {
  m_framed = std::move(cells);
  if (!m_framed.empty() && m_fit == Fit::None)
    ensureVisible(outline(m_framed.front(), kCurrentMargin).boundingRect());
  viewport()->update();
}

void ScanView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  applyFit();
}

void ScanView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0)
    return QGraphicsView::wheelEvent(event);
  zoomBy(event->angleDelta().y() > 0 ? kStep : 1 / kStep);
  event->accept();
}

// --- Cells

QPolygonF ScanView::outline(std::size_t cell, double margin) const {
  const FormRect& rect = m_sheet->cell(cell).rect;
  const FormReading& reading = m_sheet->reading();
  return QPolygonF({toQtPoint(reading.inPicture(rect.x - margin, rect.y - margin)),
                    toQtPoint(reading.inPicture(rect.right() + margin, rect.y - margin)),
                    toQtPoint(reading.inPicture(rect.right() + margin, rect.bottom() + margin)),
                    toQtPoint(reading.inPicture(rect.x - margin, rect.bottom() + margin))});
}

// What stands before the first cell of a row.
QRectF ScanView::rowHead(std::size_t cell) const {
  const FormCell& wanted = m_sheet->cell(cell);
  std::size_t first = 0;
  while (first < cell) {
    const FormCell& other = m_sheet->cell(first);
    if (other.player == wanted.player && other.kind == wanted.kind && other.counter == wanted.counter &&
        other.place == wanted.place)
      break;
    ++first;
  }
  constexpr double kLabel = 8.5; // millimetres
  const FormRect& rect = m_sheet->cell(first).rect;
  return QRectF(toQtPoint(m_sheet->reading().inPicture(rect.x - kLabel, rect.y)),
                toQtPoint(m_sheet->reading().inPicture(rect.right(), rect.bottom())))
      .normalized();
}

std::optional<std::size_t> ScanView::cellAt(const QPoint& position) const {
  const QPointF at = mapToScene(position);
  for (std::size_t cell = 0; m_sheet != nullptr && cell < m_sheet->cellCount(); ++cell) {
    if (outline(cell, kReach).containsPoint(at, Qt::OddEvenFill))
      return cell;
  }
  return std::nullopt;
}

// The nearest cell in the direction of an arrow key; those straight ahead come before those aside.
std::optional<std::size_t> ScanView::neighbour(int key) const {
  if (!m_current)
    return m_sheet->cellCount() > 0 ? std::optional<std::size_t>(0) : std::nullopt;
  const FormRect& from = m_sheet->cell(*m_current).rect;
  constexpr double kAsideCost = 4;
  std::optional<std::size_t> nearest;
  double least = 0;
  for (std::size_t cell = 0; cell < m_sheet->cellCount(); ++cell) {
    const double right = m_sheet->cell(cell).rect.x - from.x;
    const double down = m_sheet->cell(cell).rect.y - from.y;
    const bool isLevel = key == Qt::Key_Left || key == Qt::Key_Right;
    const double ahead = key == Qt::Key_Left    ? -right
                         : key == Qt::Key_Right ? right
                         : key == Qt::Key_Up    ? -down
                                                : down;
    const double cost = ahead + kAsideCost * std::abs(isLevel ? down : right);
    if (ahead > kReach && (!nearest || cost < least)) {
      nearest = cell;
      least = cost;
    }
  }
  return nearest;
}

void ScanView::mousePressEvent(QMouseEvent* event) {
  m_pressedAt = event->pos();
  QGraphicsView::mousePressEvent(event);
}

// A press that did not drag the page is for the cell under it.
void ScanView::mouseReleaseEvent(QMouseEvent* event) {
  QGraphicsView::mouseReleaseEvent(event);
  viewport()->setCursor(Qt::ArrowCursor);
  constexpr int kDragged = 4; // pixels
  if (event->button() != Qt::LeftButton || (event->pos() - m_pressedAt).manhattanLength() > kDragged)
    return;
  if (const auto cell = cellAt(event->pos())) {
    m_current = cell;
    emit cellPressed(*cell);
  }
}

void ScanView::keyPressEvent(QKeyEvent* event) {
  if (m_sheet == nullptr)
    return QGraphicsView::keyPressEvent(event);
  switch (event->key()) {
  case Qt::Key_Left:
  case Qt::Key_Right:
  case Qt::Key_Up:
  case Qt::Key_Down:
    if (const auto cell = neighbour(event->key()))
      goTo(*cell);
    return;
  case Qt::Key_Space:
    if (m_current)
      emit cellPressed(*m_current);
    return;
  default: QGraphicsView::keyPressEvent(event);
  }
}

bool ScanView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !m_words)
    return QGraphicsView::viewportEvent(event);
  auto* help = static_cast<QHelpEvent*>(event);
  const auto cell = cellAt(help->pos());
  QToolTip::showText(help->globalPos(), cell ? m_words(*cell) : toolTip(), viewport());
  return true;
}

// --- What is drawn over the page

void ScanView::drawForeground(QPainter* painter, const QRectF& exposed) {
  if (m_sheet == nullptr)
    return;
  for (std::size_t cell = 0; cell < m_sheet->cellCount(); ++cell) {
    const bool isMarked = m_sheet->isTicked(cell) || m_sheet->isDoubtful(cell) || m_sheet->isCorrected(cell);
    if (isMarked && outline(cell, kCurrentMargin).boundingRect().intersects(exposed))
      drawCell(*painter, cell);
  }
  painter->setBrush(Qt::NoBrush);
  painter->setPen(pen(currentColour(), 1.5));
  for (const std::size_t cell : m_framed)
    painter->drawPolygon(outline(cell, kReach));
  if (m_current) {
    painter->setPen(pen(currentColour(), 3));
    painter->drawPolygon(outline(*m_current, kCurrentMargin));
  }
}

void ScanView::drawCell(QPainter& painter, std::size_t cell) const {
  const bool isTicked = m_sheet->isTicked(cell);
  painter.setBrush(Qt::NoBrush);
  const QPolygonF box = outline(cell, kTickedMargin);
  const double width =
      std::clamp(QLineF(box[0], box[1]).length() * transform().m11() / kFinestFrame, 0.8, 2.0);
  if (isTicked) {
    painter.setPen(pen(tickedColour(), width));
    painter.drawPolygon(box);
  }
  if (m_sheet->isOpen(cell)) {
    const QPolygonF frame = outline(cell, kDoubtfulMargin);
    painter.setPen(pen(doubtColour(), 2.5, Qt::DashLine));
    painter.drawPolygon(frame);
    return drawBadge(painter, frame, doubtColour(), QStringLiteral("?"));
  }
  if (m_sheet->isCorrected(cell) && !isTicked) { // read as ticked: crossed out
    painter.setPen(pen(currentColour(), 2));
    painter.drawPolygon(box);
    painter.drawLine(box[1], box[3]);
  } else if (m_sheet->isCorrected(cell)) {
    drawBadge(painter, box, currentColour(), QStringLiteral("+"));
  } else if (isTicked) {
    drawBadge(painter, box, tickedColour(), {});
  }
}

// A disc at the upper right corner, where it hides the least of the ink.
void ScanView::drawBadge(QPainter& painter, const QPolygonF& outline, const QColor& colour,
                         const QString& sign) const {
  const double width = QLineF(outline[0], outline[1]).length();
  const double radius = width * (sign.isEmpty() ? kBadge / 2 : kBadge);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(outline[1], radius, radius);
  if (sign.isEmpty())
    return;
  QFont bold = font();
  bold.setBold(true);
  bold.setPixelSize(std::max(static_cast<int>(radius * 1.7), 1));
  painter.setFont(bold);
  painter.setPen(textOn(colour));
  painter.drawText(QRectF(outline[1] - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)),
                   Qt::AlignCenter, sign);
}

} // namespace hooptab
