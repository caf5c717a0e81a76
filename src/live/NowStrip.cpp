#include "live/NowStrip.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/SignedText.h"
#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"
#include "settings/StorageWords.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>
#include <numeric>
#include <utility>

namespace hooptab {

namespace {

constexpr int kGap = 8;
constexpr int kChip = 10;

} // namespace

NowStrip::NowStrip(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_keys(new QToolButton(this)), m_disk(new PlainLabel(this)),
      m_pending(new PlainLabel(this)) {
  setObjectName(QStringLiteral("picNOW"));
  m_keys->setObjectName(QStringLiteral("cmdTYPE"));
  m_keys->setIcon(icon(QStringLiteral("livekpad")));
  m_keys->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_keys->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*m_keys, Text::TypeHere);
  setToolTipNumber(*m_keys, Text::TypeHint);
  connect(m_keys, &QToolButton::clicked, this, &NowStrip::keysAsked);
  m_disk->setObjectName(QStringLiteral("lblDISK"));
  m_disk->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_pending->setObjectName(QStringLiteral("lblPENDING"));
  m_pending->setAutoFillBackground(true);
  m_pending->setAlignment(Qt::AlignCenter);
  m_pending->hide();
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGap, 3, kGap, 3);
  layout->addWidget(m_keys);
  layout->addStretch();
  layout->addWidget(m_disk);
  relabel(*this, texts);
}

void NowStrip::showGame(const LiveGame& game) {
  m_game = &game;
  m_fives = Fives::of(game);
  m_run = lastRun(game.game().events);
  gather();
}

void NowStrip::showTime(const LiveGame& game) {
  for (const Side team : kSides)
    m_fives.current[team].seconds = LiveFigures(game).secondsOfLine(team);
  gather();
}

void NowStrip::addWords(const QString& words, const QColor& colour, bool isBold) {
  m_runs.push_back({.text = words, .colour = colour, .isBold = isBold});
}

// "■ 4 5 7 12 14 together 00:25 0 (0–0)"
void NowStrip::addFive(Side team) {
  const Look& look = Theme::look();
  const FivePlay& five = m_fives.current[team];
  if (five.players == 0)
    return;
  addChip(team, true);
  addWords(toQt(five.jerseys), look.ink, true);
  if (m_game->hasTime()) {
    addWords(caption(m_texts, Text::Together), look.muted);
    addWords(toQt(Module1::clockText(five.seconds)), look.ink);
  }
  addWords(toQt(signedText(five.plusMinus())),
           five.plusMinus() < 0   ? look.missed
           : five.plusMinus() > 0 ? look.made
                                  : look.ink,
           true);
  addWords(QStringLiteral("(%1–%2)").arg(five.pointsFor).arg(five.pointsAgainst), look.muted);
}

void NowStrip::gather() {
  const Look& look = Theme::look();
  const std::vector<Run> before = std::exchange(m_runs, {});
  for (const Side team : kSides)
    addFive(team);
  if (m_run) {
    m_runs.push_back(
        {.text = caption(m_texts, Text::RunOfPoints), .colour = look.muted, .beginsGroup = true});
    addChip(m_run->team);
    addWords(toQt(runText(*m_run)), look.ink, true);
  }
  for (const Side team : kSides) {
    const FivePlay* const best = m_fives.best(team);
    if (best == nullptr || best->plusMinus() <= 0)
      continue;
    m_runs.push_back({.text = caption(m_texts, Text::BestFive), .colour = look.muted, .beginsGroup = true});
    addChip(team);
    addWords(toQt(best->jerseys), look.ink);
    addWords(toQt(signedText(best->plusMinus())), look.made, true);
  }
  if (m_runs == before)
    return;
  QString words; // a line for each group, also of those that have no room
  for (const Run& run : m_runs)
    words += (words.isEmpty() ? u"" : run.beginsGroup ? u"\n" : u" ") + run.text;
  setToolTip(words);
  update();
}

// Its colour, painted; its name, in words.
void NowStrip::addChip(Side team, bool beginsGroup) {
  const GameDetails& details = m_game->game().details;
  m_runs.push_back({.text = toQt(details.abbreviation[team]),
                    .colour = colourOf(details.teamColour[team]),
                    .isChip = true,
                    .beginsGroup = beginsGroup});
}

void NowStrip::showDisk(const PendingWrites& pending) {
  m_waiting = pending.size();
  m_why = pending.why();
  sayDisk();
}

void NowStrip::sayDisk() {
  const bool isOnDisk = m_waiting == 0;
  const Look& look = Theme::look();
  m_disk->setText(caption(m_texts, Text::Saved) + (isOnDisk ? QStringLiteral(" ✓") : QStringLiteral(" ✕")));
  const QString hint = isOnDisk
                           ? caption(m_texts, Text::OnDisk)
                           : toQt(m_texts.withPlaceholder(Text::NotOnDiskHint, std::to_string(m_waiting)));
  const QString reason = toQt(storageWords(m_why, m_texts));
  m_disk->setToolTip(reason.isEmpty() ? hint : hint + u'\n' + reason);
  m_disk->setAccessibleName(hint);
  m_disk->setAccessibleDescription(reason);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, isOnDisk ? look.made : look.missed);
  m_disk->setPalette(colours);
}

void NowStrip::showPending(const QString& words) {
  m_pending->setText(words);
  m_pending->setToolTip(words);
  m_pending->setVisible(!words.isEmpty());
  m_pending->setGeometry(middle());
}

void NowStrip::relabelStrip() {
  sayDisk();
  if (m_game != nullptr)
    gather();
}

void NowStrip::applyColours() {
  const Look& look = Theme::look();
  setFixedHeight(Theme::measure()(28, 40));
  QPalette colours = palette();
  colours.setColor(QPalette::Window, look.warningGround);
  colours.setColor(QPalette::WindowText, look.warningText);
  m_pending->setPalette(colours);
  relabelStrip();
}

QRect NowStrip::middle() const {
  const int left = m_keys->geometry().right() + kGap;
  return {left, 2, m_disk->x() - kGap - left, height() - 4};
}

bool NowStrip::event(QEvent* event) {
  const bool isTaken = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest) {
    m_pending->setGeometry(middle());
    update();
  }
  return isTaken;
}

void NowStrip::resizeEvent(QResizeEvent*) {
  m_pending->setGeometry(middle());
  emit resized();
}

void NowStrip::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.fillRect(rect(), look.surface);
  painter.fillRect(QRect(0, 0, width(), 1), look.line);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect room = middle();
  painter.setClipRect(room);
  int x = room.left();
  const int chip = Theme::measure()(kChip);
  const auto widthOf = [chip](const Run& run) {
    const QFont font = Theme::font(Type::Small, run.isBold ? QFont::Bold : QFont::Normal);
    return (run.isChip ? chip : QFontMetrics(font).horizontalAdvance(run.text)) + 5;
  };
  for (auto run = m_runs.begin(); run != m_runs.end(); ++run) {
    if (run->beginsGroup) { // shown whole, or not at all
      const auto end =
          std::find_if(run + 1, m_runs.end(), [](const Run& other) { return other.beginsGroup; });
      const int width = std::accumulate(run, end, x > room.left() ? 2 * kGap : 0,
                                        [&](int sum, const Run& part) { return sum + widthOf(part); });
      if (x + width > room.right() + 5)
        break;
    }
    if (run->beginsGroup && x > room.left()) {
      x += kGap;
      painter.fillRect(QRect(x, 6, 1, height() - 12), look.line);
      x += kGap;
    }
    if (run->isChip) {
      painter.setPen(outlineOf(run->colour, look.surface));
      painter.setBrush(run->colour);
      painter.drawRoundedRect(QRectF(x + 0.5, (height() - chip) / 2 + 0.5, chip - 1, chip - 1), 2, 2);
      x += chip + 5;
      continue;
    }
    painter.setFont(Theme::font(Type::Small, run->isBold ? QFont::Bold : QFont::Normal));
    painter.setPen(run->colour);
    const int width = painter.fontMetrics().horizontalAdvance(run->text);
    painter.drawText(QRect(x, 0, width + 1, height()), Qt::AlignLeft | Qt::AlignVCenter, run->text);
    x += width + 5;
  }
}

} // namespace hooptab
