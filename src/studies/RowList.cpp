#include "studies/RowList.h"

#include "appearance/Theme.h"

#include <QStyledItemDelegate>

namespace hooptab {

namespace {

class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    row.text.clear();
    row.widget->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const Look& look = Theme::look();
    painter->save();
    painter->setFont(Theme::font(Type::Body));
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    static_cast<const RowList*>(row.widget)
        ->paintRow(*painter, row.rect, index.row(), isSelected ? look.soft : look.surface);
    painter->restore();
    painter->fillRect(QRect(row.rect.left(), row.rect.bottom(), row.rect.width(), 1), look.line);
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {1, static_cast<const RowList*>(option.widget)->rowHeight()};
  }
};

void write(QPainter& painter, const QRect& area, Qt::Alignment alignment, const QString& text,
           const QColor& colour) {
  painter.setPen(colour);
  painter.drawText(area, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

} // namespace

RowList::RowList(const QString& name, int narrow, int wide, QWidget* parent)
    : QListWidget(parent), m_narrow(narrow), m_wide(wide) {
  setObjectName(name);
  setFrameShape(QFrame::NoFrame);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new RowDelegate(this));
  connect(this, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { emit rowAsked(row(item)); });
}

void RowList::showRows(const QStringList& words, Paint paint) {
  m_paint = std::move(paint);
  clear();
  addItems(words);
}

void RowList::paintRow(QPainter& painter, const QRect& area, int row, const QColor& ground) const {
  if (m_paint)
    m_paint(painter, area, row, ground);
}

int RowList::rowHeight() const {
  return Theme::measure()(m_narrow, m_wide);
}

void writeLeft(QPainter& painter, QRect& area, int room, const QString& text, const QColor& colour) {
  write(painter, QRect(area.left(), area.top(), std::min(room, area.width()), area.height()), Qt::AlignLeft,
        text, colour);
  area.setLeft(area.left() + room);
}

void writeRight(QPainter& painter, QRect& area, int room, const QString& text, const QColor& colour) {
  write(painter, QRect(area.right() - room + 1, area.top(), room, area.height()), Qt::AlignRight, text,
        colour);
  area.setRight(area.right() - room);
}

} // namespace hooptab
