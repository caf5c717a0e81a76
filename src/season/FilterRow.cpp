#include "season/FilterRow.h"

#include "appearance/relabel.h"
#include "season/SeasonTableView.h"

#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>

namespace hooptab {

FilterRow::FilterRow(SeasonTableView& table, int frozenColumns, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_table(table), m_frozenColumns(frozenColumns), m_texts(texts) {
  setObjectName(table.objectName() + QStringLiteral("filters"));
  setFixedHeight(QLineEdit().sizeHint().height());
  const QHeaderView* header = table.horizontalHeader();
  connect(header, &QHeaderView::sectionCountChanged, this, &FilterRow::makeFields);
  connect(header, &QHeaderView::sectionResized, this, &FilterRow::layOut);
  connect(header, &QHeaderView::sectionMoved, this, &FilterRow::layOut);
  connect(header, &QHeaderView::geometriesChanged, this, &FilterRow::layOut);
  connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, &FilterRow::layOut);
  table.installEventFilter(this);
  makeFields();
  hide();
}

bool FilterRow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize)
    layOut();
  return QWidget::eventFilter(object, event);
}

void FilterRow::makeFields() {
  while (static_cast<int>(m_fields.size()) < m_table.content().columnCount()) {
    auto* field = new QLineEdit(this);
    field->setObjectName(objectName() + QStringLiteral("(%1)").arg(m_fields.size()));
    setPlaceholderNumber(*field, Text::FilterRowHint);
    setToolTipNumber(*field, Text::FilterRowTip);
    setAccessibleNumber(*field, Text::FilterRowTip);
    relabel(*field, m_texts);
    connect(field, &QLineEdit::textChanged, this, &FilterRow::apply);
    m_fields.push_back(field);
  }
  layOut();
}

void FilterRow::layOut() {
  const QHeaderView* header = m_table.horizontalHeader();
  for (std::size_t i = 0; i < m_fields.size(); ++i) {
    const int column = static_cast<int>(i);
    const bool isFrozen = column < m_frozenColumns;
    const int left = isFrozen ? header->sectionPosition(column) : header->sectionViewportPosition(column);
    m_fields[i]->setVisible(!m_table.isColumnHidden(column));
    m_fields[i]->setGeometry(m_table.frameWidth() + left, 0, header->sectionSize(column) - 1, height());
    if (isFrozen)
      m_fields[i]->raise();
  }
}

void FilterRow::showFields(bool areShown) {
  setVisible(areShown);
  layOut();
  apply();
}

QStringList FilterRow::typed() const {
  QStringList typed;
  for (const QLineEdit* field : m_fields)
    typed << field->text();
  return typed;
}

void FilterRow::setTyped(const QStringList& typed) {
  for (std::size_t i = 0; i < m_fields.size(); ++i)
    m_fields[i]->setText(static_cast<qsizetype>(i) < typed.size() ? typed[static_cast<qsizetype>(i)]
                                                                  : QString());
}

void FilterRow::apply() {
  std::vector<ColumnFilter> filters;
  for (const QLineEdit* field : m_fields)
    filters.emplace_back(isHidden() ? std::string() : fromQt(field->text()));
  m_table.content().filter(std::move(filters));
}

QWidget* withFilters(SeasonTableView& table, int frozenColumns, const Texts& texts, QWidget* parent) {
  auto* both = new QWidget(parent);
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(1);
  layout->addWidget(new FilterRow(table, frozenColumns, texts, both));
  layout->addWidget(&table, 1);
  return both;
}

} // namespace hooptab
