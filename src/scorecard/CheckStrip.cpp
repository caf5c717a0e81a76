#include "scorecard/CheckStrip.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/WarningChip.h"
#include "appearance/relabel.h"
#include "checks/FindingWords.h"
#include "game/EventWords.h"
#include "scorecard/Scorecard.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kGap = 6;
constexpr int kShownRows = 6;
constexpr std::size_t kMostOfAKind = 50;
constexpr int kEventRole = Qt::UserRole;

} // namespace

CheckStrip::CheckStrip(const Texts& texts, QWidget* parent)
    : QFrame(parent), m_texts(texts), m_counts(new ElidedLabel(this)), m_show(new QToolButton(this)),
      m_list(new QListWidget(this)) {
  setObjectName(QStringLiteral("stripCHECK"));
  m_counts->setObjectName(QStringLiteral("lblCHECK"));
  m_show->setObjectName(QStringLiteral("cmdCHECK"));
  m_show->setCheckable(true);
  m_show->setToolButtonStyle(Qt::ToolButtonTextOnly);
  setTextNumber(*m_show, Text::ShowFindings);
  setToolTipNumber(*m_show, Text::Findings);
  m_list->setObjectName(QStringLiteral("lvwCHECK"));
  m_list->setTabKeyNavigation(false);
  m_list->hide();
  setAccessibleNumber(*m_list, Text::Findings);

  auto* line = new QHBoxLayout;
  line->setSpacing(kGap);
  line->addWidget(new WarningChip(this));
  line->addWidget(m_counts, 1);
  line->addWidget(m_show);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap / 2);
  layout->addLayout(line);
  layout->addWidget(m_list);

  connect(m_show, &QToolButton::toggled, this, &CheckStrip::open);
  connect(m_list, &QListWidget::itemClicked, this, &CheckStrip::lead);
  connect(m_list, &QListWidget::itemActivated, this, &CheckStrip::lead);
  hide();
}

void CheckStrip::showFindings(const Scorecard& card) {
  const FindingSummary summary = summaryOf(card.findings(), kMostOfAKind);
  const EventWords events(card.game(), m_texts);
  const int current = m_list->currentRow();
  const QSignalBlocker quiet(m_list);
  m_list->clear();
  for (const auto& [finding, more] : summary.rows) {
    QString words = toQt(wordsOf(finding, card.game(), m_texts));
    if (finding.hasEvent()) {
      const std::string clock = events.clock(finding.event);
      words = toQt(events.periodText(card.game().events[finding.event].period)) + QStringLiteral("   ") +
              (clock.empty() ? QStringLiteral("--:--") : toQt(clock)) + QStringLiteral("   ") + words;
    }
    if (more > 0)
      words += QStringLiteral(" (") +
               toQt(m_texts.withPlaceholder(Text::MoreOfThisKind, std::to_string(more))) + u')';
    auto* item = new QListWidgetItem(words, m_list);
    item->setToolTip(words);
    if (finding.isWrong())
      item->setIcon(icon(QStringLiteral("tocheck")));
    if (finding.hasEvent())
      item->setData(kEventRole, QVariant::fromValue(static_cast<qulonglong>(finding.event)));
  }
  m_list->setCurrentRow(std::min(current, m_list->count() - 1));
  m_counts->setText(toQt(m_texts.withPlaceholder(Text::CheckOfGame, countsText(summary, m_texts))));
  open(m_show->isChecked());
  setVisible(m_list->count() > 0);
}

// As high as its rows, up to a few of them.
void CheckStrip::open(bool isOpen) {
  m_list->setVisible(isOpen);
  if (m_list->count() == 0)
    return;
  const int rows = std::min(m_list->count(), kShownRows);
  m_list->setFixedHeight(rows * m_list->sizeHintForRow(0) + 2 * m_list->frameWidth());
}

void CheckStrip::lead(const QListWidgetItem* item) {
  const QVariant event = item->data(kEventRole);
  if (event.isValid())
    emit eventAsked(static_cast<std::size_t>(event.toULongLong()));
}

void CheckStrip::applyColours() {
  for (int row = 0; row < m_list->count(); ++row) {
    if (!m_list->item(row)->icon().isNull())
      m_list->item(row)->setIcon(icon(QStringLiteral("tocheck")));
  }
}

} // namespace hooptab
