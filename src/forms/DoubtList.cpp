#include "forms/DoubtList.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

namespace hooptab {

namespace {

constexpr int kGap = 6;
constexpr int kSmallestList = 44;

} // namespace

DoubtList::DoubtList(const CheckedSheet& sheet, const Texts& texts, CellWords words, QWidget* parent)
    : QWidget(parent), m_sheet(sheet), m_texts(texts), m_words(std::move(words)),
      m_count(new PlainLabel(this)), m_list(new QListWidget(this)) {
  m_count->setObjectName(QStringLiteral("lblDOUBT"));
  m_list->setObjectName(QStringLiteral("lstDOUBT"));
  m_list->setMinimumHeight(kSmallestList);
  m_list->installEventFilter(this);
  setAccessibleNumber(*m_list, Text::Doubts);
  setToolTipNumber(*m_list, Text::Doubts);
  auto* ticked = iconButton("cmdTICKED", Text::TickedButton, Text::TickedTip, "checkall", this);
  auto* notTicked = iconButton("cmdNOTTICKED", Text::NotTickedButton, Text::NotTickedTip, "uncheckall", this);
  auto* next = iconButton("cmdNEXTDOUBT", Text::NextDoubt, Text::NextDoubtTip, "tocheck", this);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(m_count, 1);
  row->addWidget(ticked);
  row->addWidget(notTicked);
  row->addWidget(next);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(row);
  layout->addWidget(m_list, 1);

  connect(ticked, &QPushButton::clicked, this, [this] { emit judged(true); });
  connect(notTicked, &QPushButton::clicked, this, [this] { emit judged(false); });
  connect(next, &QPushButton::clicked, this, [this] { goToOpen(From::Selected); });
  connect(m_list, &QListWidget::currentRowChanged, this, [this](int place) {
    if (place >= 0)
      emit cellChosen(m_cells[static_cast<std::size_t>(place)]);
  });
}

// By what they type, not by where they stand on the keyboard.
bool DoubtList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const QString text = static_cast<QKeyEvent*>(event)->text();
    if (text == u"+" || text == u"-") {
      emit judged(text == u"+");
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void DoubtList::beginSheet() {
  const QSignalBlocker quiet(m_list);
  m_cells = m_sheet.doubtfulCells();
  m_list->clear();
  for (std::size_t row = 0; row < m_cells.size(); ++row)
    m_list->addItem(QString());
  m_list->setVisible(!m_cells.empty());
  setSizePolicy(QSizePolicy::Preferred, m_cells.empty() ? QSizePolicy::Maximum : QSizePolicy::Preferred);
  for (QPushButton* button : findChildren<QPushButton*>())
    button->setEnabled(!m_cells.empty());
  showDoubts();
}

void DoubtList::showDoubts() {
  for (std::size_t row = 0; row < m_cells.size(); ++row) {
    const std::size_t cell = m_cells[row];
    const QString state = m_sheet.isOpen(cell)     ? QStringLiteral("?")
                          : m_sheet.isTicked(cell) ? QStringLiteral("☒")
                                                   : QStringLiteral("☐");
    m_list->item(static_cast<int>(row))->setText(state + u"  " + m_words(cell));
  }
  const int open = m_sheet.openCells();
  m_count->setText(open == 0 ? caption(m_texts, Text::NoDoubtLeft)
                             : toQt(withPlaceholders(m_texts.text(Text::DoubtsLeft), std::to_string(open),
                                                     std::to_string(m_cells.size()))));
  QPalette colours;
  if (open > 0)
    colours.setColor(QPalette::WindowText, Theme::missed());
  m_count->setPalette(colours);
}

void DoubtList::goToOpen(From from) {
  const int count = static_cast<int>(m_cells.size());
  const int first = from == From::Start ? 0 : m_list->currentRow() + 1;
  for (int step = 0; step < count; ++step) {
    const int row = (first + step) % count;
    if (!m_sheet.isOpen(m_cells[static_cast<std::size_t>(row)]))
      continue;
    if (row == m_list->currentRow()) // the user may have gone elsewhere on the page
      emit cellChosen(m_cells[static_cast<std::size_t>(row)]);
    return m_list->setCurrentRow(row);
  }
}

void DoubtList::takeFocus() {
  m_list->setFocus();
}

} // namespace hooptab
