#include "welcome/StartCard.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace hooptab {

namespace {

constexpr double kChipRadius = 4;

QFont titleFont() {
  return Theme::font(Type::Count, QFont::DemiBold);
}

struct Lengths {
  int margin = Theme::measure()(20);
  int icon = Theme::measure()(24);
  int slack = Theme::measure()(16); // between the words and what stands at the right
  [[nodiscard]] int textLeft() const { return margin + icon + Theme::measure()(18); }
};

} // namespace

StartCard::StartCard(QAction& action, Text line, const Texts& texts, QWidget* parent)
    : PageButton(parent), m_action(action), m_line(line), m_texts(texts) {
  setObjectName(QStringLiteral("card_") + action.objectName());
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  connect(&action, &QAction::changed, this, &StartCard::follow);
  if (action.menu<QMenu*>() == nullptr)
    connect(this, &QAbstractButton::clicked, &action, &QAction::trigger);
  follow();
}

StartCard::StartCard(QMenu& menu, Text line, const Texts& texts, QWidget* parent)
    : StartCard(*menu.menuAction(), line, texts, parent) {
  connect(this, &QAbstractButton::clicked, &menu,
          [this, &menu] { menu.popup(mapToGlobal(rect().bottomLeft())); });
}

void StartCard::follow() {
  setText(m_action.text());
  setIcon(m_action.icon());
  setEnabled(m_action.isEnabled());
  setToolTip(m_action.toolTip());
  updateGeometry();
  update();
}

void StartCard::relabelCard() {
  setAccessibleDescription(caption(m_texts, m_line));
  updateGeometry();
  update();
}

QSize StartCard::minimumSizeHint() const {
  const Lengths lengths;
  const QFontMetrics title(titleFont());
  const QFontMetrics line(Theme::font(Type::Body));
  const int words = std::max(title.size(Qt::TextShowMnemonic, text()).width(),
                             line.horizontalAdvance(caption(m_texts, m_line)));
  return {lengths.textLeft() + words + lengths.slack + signSize().width() + lengths.margin,
          title.height() + line.height() + Theme::measure()(20)};
}

QSize StartCard::sizeHint() const {
  return minimumSizeHint() + QSize(0, Theme::measure()(22));
}

// Of what stands at the right: the key, or the sign of a menu.
QSize StartCard::signSize() const {
  const Lengths lengths;
  if (m_action.menu<QMenu*>() != nullptr)
    return {lengths.icon, lengths.icon};
  const QString key = keyText();
  const QFontMetrics small(Theme::font(Type::Small));
  return key.isEmpty() ? QSize(0, 0)
                       : QSize(small.horizontalAdvance(key) + Theme::measure()(12),
                               small.height() + Theme::measure()(2));
}

QString StartCard::keyText() const {
  return m_action.shortcut().toString(QKeySequence::NativeText);
}

void StartCard::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  const Lengths lengths;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  drawGround(painter, Shape::Card);

  const QRect iconRect(lengths.margin, (height() - lengths.icon) / 2, lengths.icon, lengths.icon);
  icon().paint(&painter, iconRect, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

  const QSize size = signSize();
  const QRect sign(QPoint(width() - lengths.margin - size.width(), (height() - size.height()) / 2), size);
  if (m_action.menu<QMenu*>() != nullptr) {
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = sign;
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
  } else if (!sign.isEmpty()) {
    painter.setFont(Theme::font(Type::Small));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(look.edge);
    painter.drawRoundedRect(QRectF(sign).adjusted(0.5, 0.5, -0.5, -0.5), kChipRadius, kChipRadius);
    painter.setPen(look.muted);
    painter.drawText(sign, Qt::AlignCenter, keyText());
  }

  const int left = lengths.textLeft();
  const int room = sign.left() - lengths.slack / 2 - left;
  const auto write = [&](const QFont& font, const QColor& colour, int top, const QString& text, int flags) {
    painter.setFont(font);
    painter.setPen(isEnabled() ? colour : look.edge);
    const QFontMetrics metrics = painter.fontMetrics();
    painter.drawText(QRect(left, top, room, metrics.height()), flags | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, room, flags));
    return top + metrics.height();
  };
  const QFont title = titleFont();
  const QFont line = Theme::font(Type::Body);
  int top = (height() - QFontMetrics(title).height() - QFontMetrics(line).height()) / 2;
  top = write(title, look.ink, top, text(), Qt::TextShowMnemonic); // its text is one for buttons
  write(line, look.muted, top, caption(m_texts, m_line), 0);
}

} // namespace hooptab
