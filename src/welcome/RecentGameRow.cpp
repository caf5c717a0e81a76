#include "welcome/RecentGameRow.h"

#include "appearance/Icons.h"
#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/Side.h"
#include "welcome/RecentGameWords.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <utility>

namespace hooptab {

namespace {

// A little more than the text, whose width is rounded.
int roomFor(const QFontMetrics& metrics, const QString& text) {
  return metrics.horizontalAdvance(text) + 2;
}

// Of the widest contents, so that the lines stand below each other whatever they hold.
struct Columns {
  int margin, gap, day, tag, points, dash, sign;
  Columns() {
    const Measure& measure = Theme::measure();
    const QFontMetrics body(Theme::font(Type::Body));
    const QFontMetrics bold(Theme::font(Type::Name, QFont::Bold));
    margin = measure(16);
    gap = measure(12);
    day = roomFor(body, QStringLiteral("30 sept. 2026"));
    tag = teamTagWidth();
    points = roomFor(bold, QStringLiteral("199"));
    dash = roomFor(body, QStringLiteral(" – "));
    sign = measure(18, 20);
  }
};

} // namespace

RecentGameRow::RecentGameRow(RecentGame game, const Texts& texts, QWidget* parent)
    : PageButton(parent), m_game(std::move(game)), m_texts(texts) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setToolTip(QDir::toNativeSeparators(toQt(m_game.path)));
  relabelRow();
}

void RecentGameRow::relabelRow() {
  setAccessibleName(wholeText(m_game, m_texts));
  updateGeometry();
  update();
}

QSize RecentGameRow::sizeHint() const {
  const Columns columns;
  const int state = roomFor(QFontMetrics(Theme::font(Type::Body)), stateText(m_game, m_texts));
  return {2 * columns.margin + columns.day + 2 * columns.tag + 2 * columns.points + columns.dash +
              6 * columns.gap + state + columns.sign,
          Theme::measure()(36, 44)};
}

// But a file's name, which is cut, nothing gives way.
QSize RecentGameRow::minimumSizeHint() const {
  return m_game.problem == GameFileProblem::None ? sizeHint() : QSize(0, sizeHint().height());
}

void RecentGameRow::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  const Columns columns;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  drawGround(painter, Shape::Row);
  painter.fillRect(QRect(1, 0, width() - 2, 1), look.line);

  int left = columns.margin;
  const int right = width() - columns.margin - columns.sign;
  const auto write = [&](int room, const QString& text, const QColor& colour, Qt::Alignment alignment) {
    painter.setPen(colour);
    painter.drawText(QRect(left, 0, room, height()),
                     static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, room));
    left += room;
  };
  const auto tag = [&](const RecentGame::Team& team) {
    const int high = teamTagHeight();
    drawTeamTag(painter, QRect(left, (height() - high) / 2, columns.tag, high), toQt(team.abbreviation),
                colourOf(team.colour), look.surface);
    left += columns.tag;
  };
  const QFont body = Theme::font(Type::Body);
  const QFont bold = Theme::font(Type::Name, QFont::Bold);
  painter.setFont(body);
  if (m_game.problem != GameFileProblem::None) {
    write(right - columns.gap - left,
          QStringLiteral("%1 · %2").arg(QFileInfo(toQt(m_game.path)).fileName(), stateText(m_game, m_texts)),
          look.missed, Qt::AlignLeft);
    return;
  }
  write(columns.day, dayText(m_game, m_texts), look.muted, Qt::AlignLeft);
  left += columns.gap;
  tag(m_game.teams[Side::Visitor]);
  left += columns.gap;
  painter.setFont(bold);
  write(columns.points, QString::number(m_game.teams[Side::Visitor].points), look.ink, Qt::AlignRight);
  painter.setFont(body);
  write(columns.dash, QStringLiteral("–"), look.muted, Qt::AlignHCenter);
  painter.setFont(bold);
  write(columns.points, QString::number(m_game.teams[Side::Home].points), look.ink, Qt::AlignLeft);
  left += columns.gap;
  tag(m_game.teams[Side::Home]);
  left += 2 * columns.gap;
  painter.setFont(body);
  const QString state = stateText(m_game, m_texts);
  if (m_game.mayBeCut) {
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect chip(left - columns.gap, (height() - metrics.height()) / 2 - 1,
                     metrics.horizontalAdvance(state) + 2 * columns.gap, metrics.height() + 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.warningGround);
    painter.drawRoundedRect(chip, chip.height() / 2.0, chip.height() / 2.0);
  }
  write(right - columns.gap - left, state, m_game.mayBeCut ? look.warningText : look.muted, Qt::AlignLeft);
  hooptab::icon(QStringLiteral("view"))
      .paint(&painter, QRect(right, (height() - columns.sign) / 2, columns.sign, columns.sign));
}

} // namespace hooptab
