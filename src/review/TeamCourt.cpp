#include "review/TeamCourt.h"

#include "appearance/ElidedLabel.h"
#include "appearance/TableContent.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtColourChoice.h"
#include "court/CourtView.h"
#include "game/EventWords.h"

#include <QBoxLayout>
#include <QEvent>

namespace hooptab {

TeamCourt::TeamCourt(const QString& name, Side team, const Settings& settings, const Texts& texts,
                     QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_title(new ElidedLabel(this)),
      m_counts(new PlainLabel(this)), m_court(new CourtView(this)) {
  Theme::setType(*m_title, Type::Small, QFont::DemiBold);
  Theme::setType(*m_counts, Type::Small);
  m_counts->setForegroundRole(QPalette::PlaceholderText);
  m_court->setObjectName(QStringLiteral("court%1(%2)").arg(name).arg(numberOf(team)));
  setAccessibleNumber(*m_court, Text::ShotChart);
  m_court->setMinimumSize(100, 80);
  m_court->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  m_court->installEventFilter(this);
  auto* head = new QHBoxLayout;
  head->setContentsMargins(0, 0, 0, 0);
  head->addWidget(m_title, 1);
  head->addWidget(m_counts);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addLayout(head);
  layout->addWidget(m_court, 1);
  applyColours();
}

void TeamCourt::showShots(const QString& title, const std::vector<Shot>& shots, const CountedGame& counted) {
  const EventWords words(counted.game, m_texts);
  std::vector<CourtMark> marks;
  QStringList toolTips;
  ZoneSum sum;
  for (const Shot& shot : shots) {
    if (!shot.hasPlace)
      continue;
    marks.push_back({{shot.x, shot.y}, shot.isMade});
    toolTips << toQt(shotWords(shot, counted.game, words));
    ++sum.attempted;
    sum.made += shot.isMade ? 1 : 0;
  }
  m_title->setText(title);
  setExportTitle(*this, title);
  m_counts->setText(marks.empty() ? caption(m_texts, Text::NoShotsYet)
                                  : toQt(m_texts.withPlaceholder(Text::ShotsWithPlace, fractionText(sum))));
  m_court->setMarks(std::move(marks), toolTips);
}

void TeamCourt::applyColours() {
  m_court->setColours(wornCourt(CourtColourChoice::of(m_settings).colours));
}

void TeamCourt::paintPicture(QPainter& painter, const QRectF& area) const {
  const double line = QFontMetricsF(painter.font(), painter.device()).height() * 1.3;
  m_court->paintOn(painter, area.adjusted(0, 0, 0, -line));
  painter.setPen(Qt::black);
  painter.drawText(QRectF(area.left(), area.bottom() - line, area.width(), line), Qt::AlignCenter,
                   m_title->text() + QStringLiteral("  ") + m_counts->text());
}

bool TeamCourt::eventFilter(QObject* object, QEvent* event) {
  if (object == m_court && event->type() == QEvent::Resize)
    m_court->setTurn(CourtPicture::largerTurn(m_court->rect()));
  return QWidget::eventFilter(object, event);
}

} // namespace hooptab
