#include "review/ColumnChooser.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <numeric>

namespace hooptab {

namespace {

constexpr int kWidth = 340;
constexpr int kHeight = 420;
constexpr int kColumnRole = Qt::UserRole;

} // namespace

ColumnChooser::ColumnChooser(const Texts& texts, QWidget* parent)
    : Card(parent, Qt::Popup), m_texts(texts), m_list(new QListWidget(this)),
      m_up(addButton("cmdUP", Text::ColumnUp, Qt::UpArrow)),
      m_down(addButton("cmdDOWN", Text::ColumnDown, Qt::DownArrow)),
      m_usual(addButton("cmdUSUAL", Text::ColumnsUsual, Qt::NoArrow)) {
  setObjectName(QStringLiteral("COLUMNS"));
  m_list->setObjectName(QStringLiteral("lvwCOLUMNS"));
  setAccessibleNumber(*m_list, Text::ColumnsTip);
  m_list->setTabKeyNavigation(false);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_up);
  buttons->addWidget(m_down);
  buttons->addStretch();
  buttons->addWidget(m_usual);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_list, 1);
  layout->addLayout(buttons);
  connect(m_list, &QListWidget::itemChanged, this, &ColumnChooser::tell);
  connect(m_up, &QToolButton::clicked, this, [this] { move(-1); });
  connect(m_down, &QToolButton::clicked, this, [this] { move(1); });
  connect(m_usual, &QToolButton::clicked, this, [this] {
    fill(usualCompactColumns());
    tell();
  });
}

QToolButton* ColumnChooser::addButton(const char* name, Text text, Qt::ArrowType arrow) {
  auto* button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setArrowType(arrow);
  if (arrow == Qt::NoArrow)
    setTextNumber(*button, text);
  setToolTipNumber(*button, text);
  setAccessibleNumber(*button, text);
  return button;
}

void ColumnChooser::openBelow(const QWidget& button, const CompactChoice& choice) {
  relabel(*this, m_texts);
  fill(choice);
  const Measure& measure = Theme::measure();
  const QPoint corner = button.mapToGlobal(QPoint(button.width(), button.height() + 2));
  const QRect screen = button.screen()->availableGeometry();
  const QSize size = QSize(measure(kWidth), measure(kHeight)).boundedTo(screen.size());
  setGeometry({{std::clamp(corner.x() - size.width(), screen.left(), screen.right() + 1 - size.width()),
                std::clamp(corner.y(), screen.top(), screen.bottom() + 1 - size.height())},
               size});
  show();
  m_list->setFocus();
}

// The chosen ones first, in their order, then the others.
void ColumnChooser::fill(const CompactChoice& choice) {
  const QSignalBlocker noNews(m_list);
  m_list->clear();
  CompactChoice all = choice;
  for (std::size_t i = 0; i < compactColumns().size(); ++i) {
    if (std::ranges::find(choice, i) == choice.end())
      all.push_back(i);
  }
  for (std::size_t place = 0; place < all.size(); ++place) {
    const CompactColumn& column = compactColumns()[all[place]];
    auto* item = new QListWidgetItem(
        toQt(column.name) + QStringLiteral("   ") + caption(m_texts, column.words), m_list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(place < choice.size() ? Qt::Checked : Qt::Unchecked);
    item->setData(kColumnRole, static_cast<int>(all[place]));
    if (column.tip != Text::None)
      item->setToolTip(caption(m_texts, column.tip));
  }
  m_list->setCurrentRow(0);
}

void ColumnChooser::move(int by) {
  const int row = m_list->currentRow();
  const int target = row + by;
  if (row < 0 || target < 0 || target >= m_list->count())
    return;
  {
    const QSignalBlocker noNews(m_list);
    m_list->insertItem(target, m_list->takeItem(row));
    m_list->setCurrentRow(target);
  }
  tell();
}

// A table without any column would show nothing: the last one stays.
void ColumnChooser::tell() {
  CompactChoice choice;
  for (int row = 0; row < m_list->count(); ++row) {
    if (m_list->item(row)->checkState() == Qt::Checked)
      choice.push_back(m_list->item(row)->data(kColumnRole).value<std::size_t>());
  }
  if (!choice.empty())
    return emit chosen(choice);
  const QSignalBlocker noNews(m_list);
  m_list->item(std::max(m_list->currentRow(), 0))->setCheckState(Qt::Checked);
}

} // namespace hooptab
