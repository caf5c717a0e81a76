#include "season/SeriesView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

namespace hooptab {

SeriesView::SeriesView(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SeriesView::show(SeriesDrawing drawing, QStringList toolTips) {
  m_drawing = std::move(drawing);
  m_toolTips = std::move(toolTips);
  setAccessibleName(m_drawing.title);
  m_highlighted.reset();
  update();
}

std::optional<std::size_t> SeriesView::valueAt(const QPointF& place) const {
  return SeriesPicture::valueAt(*this, font(), rect(), m_drawing, place);
}

void SeriesView::highlight(std::optional<std::size_t> value) {
  if (value == m_highlighted)
    return;
  m_highlighted = value;
  setAccessibleDescription(value ? m_toolTips.value(static_cast<qsizetype>(*value)) : m_drawing.averageText);
  update();
}

void SeriesView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(font());
  SeriesPicture(SeriesColours::ofScreen()).paint(painter, rect(), m_drawing, m_highlighted);
  if (hasFocus()) {
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
}

void SeriesView::paintPicture(QPainter& painter, const QRectF& area) const {
  SeriesPicture(SeriesColours::ofPaper()).paint(painter, area, m_drawing);
}

void SeriesView::mouseMoveEvent(QMouseEvent* event) {
  highlight(valueAt(event->position()));
  QToolTip::showText(event->globalPosition().toPoint(),
                     m_highlighted ? m_toolTips.value(static_cast<qsizetype>(*m_highlighted)) : QString(),
                     this);
}

void SeriesView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (const auto value = valueAt(event->position()))
    emit valueAsked(static_cast<int>(*value));
}

void SeriesView::keyPressEvent(QKeyEvent* event) {
  const std::size_t count = m_drawing.values.size();
  const bool isForward = event->key() == Qt::Key_Right;
  if (count == 0 || (!isForward && event->key() != Qt::Key_Left && event->key() != Qt::Key_Return &&
                     event->key() != Qt::Key_Enter)) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (m_highlighted)
      emit valueAsked(static_cast<int>(*m_highlighted));
    return;
  }
  const std::size_t first = isForward ? 0 : count - 1;
  highlight(m_highlighted ? (*m_highlighted + (isForward ? 1 : count - 1)) % count : first);
  QToolTip::showText(mapToGlobal(rect().center()), m_toolTips.value(static_cast<qsizetype>(*m_highlighted)),
                     this);
}

void SeriesView::leaveEvent(QEvent*) {
  highlight(std::nullopt);
}

void SeriesView::focusOutEvent(QFocusEvent* event) {
  highlight(std::nullopt);
  QWidget::focusOutEvent(event);
}

} // namespace hooptab
