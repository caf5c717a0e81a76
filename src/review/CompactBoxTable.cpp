#include "review/CompactBoxTable.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "review/CompactBoxDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kPadding = 14; // left and right of a text together
constexpr int kLeastPadding = 9;
constexpr int kMarkWidth = 22;
constexpr int kNumberWidth = 28;
constexpr int kLeastWidth = 16; // of a column that is dragged
constexpr int kLeastName = 110;
constexpr int kWidestName = 200;

constexpr double kWhole = 1000; // thousandths

// The head of a dense table: muted words on a raised ground; the one that is sorted by is ink with an arrow.
class CompactHeader : public QHeaderView {
 public:
  explicit CompactHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSortIndicator(-1, Qt::AscendingOrder);
    setSortIndicatorShown(true);
    setSortIndicatorClearable(true);
    setMinimumSectionSize(kLeastWidth);
  }
  QSize sizeHint() const override { return {QHeaderView::sizeHint().width(), Theme::measure()(21, 30)}; }

 protected:
  void paintSection(QPainter* painter, const QRect& area, int column) const override {
    const Look& look = Theme::look();
    painter->save();
    painter->setClipRect(area);
    painter->fillRect(area, look.raised);
    painter->fillRect(QRect(area.left(), area.bottom(), area.width(), 1), look.edge);
    const bool isSorted = sortIndicatorSection() == column;
    painter->setFont(Theme::font(Type::Small, QFont::DemiBold));
    painter->setPen(isSorted ? look.ink : look.muted);
    QString text = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    if (isSorted)
      text += sortIndicatorOrder() == Qt::DescendingOrder ? QStringLiteral("▾") : QStringLiteral("▴");
    const auto alignment =
        model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    const int margin = Theme::measure()(kPadding) / 2;
    painter->drawText(area.adjusted(column == CompactBoxModel::Name ? margin : 0, 0, -margin, -1),
                      static_cast<int>(alignment) | Qt::TextSingleLine, text);
    painter->restore();
  }
};

} // namespace

CompactBoxTable::CompactBoxTable(const QString& name, const Texts& texts, QWidget* parent)
    : QTableView(parent), m_texts(texts), m_model(texts) {
  setObjectName(name);
  m_sorted.setSourceModel(&m_model);
  setHorizontalHeader(new CompactHeader(this));
  setModel(&m_sorted);
  setItemDelegate(new CompactBoxDelegate(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setShowGrid(false);
  setWordWrap(false);
  setFrameShape(QFrame::NoFrame);
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setSortingEnabled(true);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
    if (!m_isFitting)
      keepWidth(column);
  });
  connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) {
    if (column >= CompactBoxModel::Name)
      setColumnWidth(column, column == CompactBoxModel::Name ? longestName() : neededWidth(column));
  });
  setRowHeight(Theme::measure()(20, 29));
}

void CompactBoxTable::showRows(const QString& head, std::vector<CompactRow> rows,
                               const CompactChoice& choice) {
  const bool isOther = choice != m_model.choice();
  m_model.showRows(head, std::move(rows), choice);
  if (isOther)
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  fitColumns();
}

void CompactBoxTable::setRowHeight(int height) {
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

int CompactBoxTable::heightOf(int rowHeight) const {
  const bool scrolls = horizontalScrollBar()->maximum() > 0;
  return horizontalHeader()->sizeHint().height() + m_model.rowCount() * rowHeight +
         (scrolls ? horizontalScrollBar()->sizeHint().height() : 0);
}

int CompactBoxTable::longestName() const {
  const QFontMetrics metrics(Theme::font(Type::Body));
  int width = Theme::measure()(kLeastName);
  for (int row = 0; row < m_model.rowCount(); ++row) {
    const QModelIndex name = m_model.index(row, CompactBoxModel::Name);
    width = std::max(width, metrics.horizontalAdvance(name.data().toString() + u' ' +
                                                      name.data(CompactBoxModel::PositionRole).toString()));
  }
  return std::min(width + Theme::measure()(kPadding), Theme::measure()(kWidestName));
}

void CompactBoxTable::setNameWidth(int width) {
  m_nameWidth = width;
  fitColumns();
}

void CompactBoxTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange)
    fitColumns();
}

void CompactBoxTable::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy))
    return QTableView::keyPressEvent(event);
  copyTable(*this);
  emit copied();
}

void CompactBoxTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitColumns();
}

// Wide enough for whatever it will ever hold, so that nothing moves when counts grow.
int CompactBoxTable::leastWidth(int column) const {
  const CompactColumn& shown = m_model.columnAt(column);
  const QFontMetrics metrics(Theme::font(Type::Body, QFont::DemiBold));
  int width = std::max(metrics.horizontalAdvance(m_model.headAt(column)),
                       metrics.horizontalAdvance(toQt(shown.widest)));
  if (shown.name == "PF")
    width = std::max(width,
                     metrics.horizontalAdvance(QStringLiteral("5 ") + caption(m_texts, Text::FouledOutWord)));
  return width + Theme::measure()(kPadding);
}

int CompactBoxTable::neededWidth(int column) const {
  return column == CompactBoxModel::Name ? Theme::measure()(kLeastName) : leastWidth(column);
}

std::string CompactBoxTable::keyOf(int column) const {
  return fromQt(m_model.headerData(column, Qt::Horizontal, kTableNameRole).toString());
}

// The first column that is dragged lets all others stay as they are.
void CompactBoxTable::keepWidth(int column) {
  const auto keep = [this](int each) {
    m_widths[keyOf(each)] =
        static_cast<int>(std::lround(kWhole * columnWidth(each) / std::max(neededWidth(each), 1)));
  };
  if (m_widths.empty()) {
    for (int each = CompactBoxModel::Name; each < m_model.columnCount(); ++each)
      keep(each);
  }
  keep(column);
  emit widthsChosen(m_widths);
}

void CompactBoxTable::setWidths(const CompactWidths& widths) {
  m_widths = widths;
  fitColumns();
}

int CompactBoxTable::chosenWidth(int column) const {
  const auto kept = m_widths.find(keyOf(column));
  if (kept == m_widths.end())
    return column == CompactBoxModel::Name ? std::max(m_nameWidth, neededWidth(column)) : neededWidth(column);
  return std::max(static_cast<int>(std::lround(neededWidth(column) * kept->second / kWhole)), kLeastWidth);
}

// What room there is beyond that is shared by the columns of figures, unless the user gave them their widths.
void CompactBoxTable::fitColumns() {
  const Measure& measure = Theme::measure();
  if (m_model.columnCount() <= CompactBoxModel::FirstCell)
    return;
  const QScopedValueRollback isFitting(m_isFitting, true);
  for (const int column : {CompactBoxModel::Starter, CompactBoxModel::Number})
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
  setColumnWidth(CompactBoxModel::Starter, measure(kMarkWidth));
  setColumnWidth(CompactBoxModel::Number, measure(kNumberWidth));
  setColumnWidth(CompactBoxModel::Name, chosenWidth(CompactBoxModel::Name));
  int needed = 0;
  for (int column = 0; column < m_model.columnCount(); ++column)
    needed += column < CompactBoxModel::FirstCell ? columnWidth(column) : chosenWidth(column);
  int spare = m_widths.empty() ? std::max(viewport()->width() - needed, 0) : 0;
  for (int column = CompactBoxModel::FirstCell; column < m_model.columnCount(); ++column) {
    const int share = spare / (m_model.columnCount() - column);
    setColumnWidth(column, chosenWidth(column) + share);
    spare -= share;
  }
}

} // namespace hooptab
