#include "appearance/ProgramStyle.h"

#include "appearance/Icons.h"
#include "appearance/Theme.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kRadius = 6;
constexpr double kCardRadius = 8;
constexpr int kCardMargin = 10;
constexpr int kFieldMargin = 3; // beside a field's text
constexpr int kFocus = 2;
constexpr int kSelectionEdge = 3;
constexpr int kArrow = 4;          // half its width
constexpr double kDotShare = 0.22; // of a chosen radio button, its radius

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
  return option.state.testFlag(flag);
}

bool isFocused(const QStyleOption& option) {
  return has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange);
}

void drawRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& fill,
                 const QColor& border, double width = 1) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  painter.setPen(border.isValid() ? QPen(border, width) : QPen(Qt::NoPen));
  const double inset = border.isValid() ? width / 2 : 0;
  painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

void drawArrow(QPainter& painter, const QPointF& centre, int degrees, const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(centre);
  painter.rotate(degrees);
  painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(
      QPolygonF({QPointF(-kArrow, -kArrow / 2.0), QPointF(0, kArrow / 2.0), QPointF(kArrow, -kArrow / 2.0)}));
  painter.restore();
}

enum class Box { Square, Round };

void drawBox(QPainter& painter, const QStyleOption& option, Box shape) {
  const Look& look = Theme::look();
  const bool isEnabled = has(option, QStyle::State_Enabled);
  const bool isOn = has(option, QStyle::State_On);
  const bool isPartly = has(option, QStyle::State_NoChange);
  const QColor frame = !isEnabled                             ? look.line
                       : isOn || isPartly                     ? look.accent
                       : has(option, QStyle::State_MouseOver) ? look.ink
                                                              : look.edge;
  const QColor sign = isEnabled ? look.accent : look.edge;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(option.rect.width(), option.rect.height()) - 3;
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  painter.setPen(QPen(frame, 1.4));
  painter.setBrush(isEnabled ? look.surface : look.raised);
  if (shape == Box::Round) {
    painter.drawEllipse(box);
    painter.setBrush(sign);
    painter.setPen(Qt::NoPen);
    if (isOn)
      painter.drawEllipse(box.center(), side * kDotShare, side * kDotShare);
    painter.restore();
    return;
  }
  painter.drawRoundedRect(box, 3, 3);
  painter.setPen(QPen(sign, side * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const auto inBox = [&box](double x, double y) {
    return box.topLeft() + QPointF(x * box.width(), y * box.height());
  };
  if (isOn)
    painter.drawPolyline(QPolygonF({inBox(0.22, 0.52), inBox(0.43, 0.73), inBox(0.79, 0.28)}));
  else if (isPartly) // some of several
    painter.drawLine(inBox(0.28, 0.5), inBox(0.72, 0.5));
  painter.restore();
}

// What is drawn on a control without words.
QColor signOf(const QStyleOption& option) {
  return has(option, QStyle::State_Enabled) ? option.palette.color(QPalette::Active, QPalette::ButtonText)
                                            : Theme::look().edge;
}

bool isFirstChoice(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
         has(option, QStyle::State_Enabled);
}

// A colour that a window has given to the button is its face; what is pointed at and pressed is shown by
// shades of it.
struct Face {
  QColor fill, border, text;
};
Face faceOf(const QStyleOption& option) {
  const Look& look = Theme::look();
  const bool isEnabled = has(option, QStyle::State_Enabled);
  const bool isPressed = has(option, QStyle::State_Sunken);
  const bool isPointedAt = has(option, QStyle::State_MouseOver);
  const QColor own =
      option.palette.color(isEnabled ? QPalette::Active : QPalette::Disabled, QPalette::Button);
  const QColor usual = isEnabled ? look.surface : look.raised;
  if (own != usual && !isEnabled)
    return {own, own, mix(option.palette.color(QPalette::Active, QPalette::ButtonText), own, 0.45)};
  if (own != usual) {
    const QColor text = option.palette.color(QPalette::ButtonText);
    const double shade = isPressed ? 0.24 : isPointedAt ? 0.12 : 0;
    return {mix(text, own, shade), own == look.plate ? look.edge : outlineOf(own, look.desk), text};
  }
  if (!isEnabled)
    return {look.raised, look.line, look.edge};
  if (isFirstChoice(option)) {
    const double shade = isPressed ? 0.24 : isPointedAt ? 0.12 : 0;
    return {mix(look.onAccent, look.accent, shade), look.accent, look.onAccent};
  }
  if (has(option, QStyle::State_On))
    return {isPressed ? look.line : look.soft, look.accent, look.ink};
  if (isPressed)
    return {look.line, look.ink, look.ink};
  return {isPointedAt ? look.raised : look.surface, isPointedAt ? look.ink : look.edge, look.ink};
}

void drawButton(QPainter& painter, const QStyleOption& option) {
  const Face face = faceOf(option);
  drawRounded(painter, option.rect, kRadius, face.fill, face.border);
  if (!isFocused(option))
    return;
  const QColor ring = isFirstChoice(option) ? Theme::look().ink : Theme::look().accent;
  const bool isSeen = isFirstChoice(option) || contrast(ring, face.fill) >= kRecognisable;
  drawRounded(painter, option.rect, kRadius, {}, isSeen ? ring : face.text, kFocus);
}

// Of a tool bar and the like: nothing but the sign until it is pointed at.
void drawToolButton(QPainter& painter, const QStyleOption& option) {
  const Look& look = Theme::look();
  const bool isOn = has(option, QStyle::State_On);
  if (!has(option, QStyle::State_AutoRaise) ||
      option.palette.color(QPalette::Active, QPalette::Button) !=
          Theme::palette(Theme::current()).color(QPalette::Active, QPalette::Button))
    return drawButton(painter, option);
  if (has(option, QStyle::State_Enabled)) {
    if (isOn)
      drawRounded(painter, option.rect, kRadius, look.soft, look.accent);
    else if (has(option, QStyle::State_Sunken))
      drawRounded(painter, option.rect, kRadius, look.line, look.ink);
    else if (has(option, QStyle::State_MouseOver))
      drawRounded(painter, option.rect, kRadius, look.raised, look.edge);
  }
  if (isFocused(option))
    drawRounded(painter, option.rect, kRadius, {}, look.accent, kFocus);
}

void drawField(QPainter& painter, const QStyleOption& option) {
  const Look& look = Theme::look();
  const bool isEnabled = has(option, QStyle::State_Enabled) && !has(option, QStyle::State_ReadOnly);
  drawRounded(painter, option.rect, kRadius, option.palette.color(QPalette::Base),
              isEnabled ? look.edge : look.line);
  if (has(option, QStyle::State_HasFocus))
    drawRounded(painter, option.rect, kRadius, {}, look.accent, kFocus);
}

void drawRow(QPainter& painter, const QStyleOptionViewItem& option) {
  const Look& look = Theme::look();
  if (option.backgroundBrush.style() != Qt::NoBrush)
    painter.fillRect(option.rect, option.backgroundBrush);
  const bool isSelected = has(option, QStyle::State_Selected);
  if (isSelected)
    painter.fillRect(
        option.rect,
        option.palette.color(has(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled,
                             QPalette::Highlight));
  else if (has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled))
    painter.fillRect(option.rect, look.raised);
  using enum QStyleOptionViewItem::ViewItemPosition;
  if (isSelected && (option.viewItemPosition == Beginning || option.viewItemPosition == OnlyOne))
    painter.fillRect(QRect(option.rect.left(), option.rect.top(), kSelectionEdge, option.rect.height()),
                     look.accent);
}

void drawHead(QPainter& painter, const QStyleOption& option) {
  const Look& look = Theme::look();
  painter.fillRect(option.rect, has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled)
                                    ? look.soft
                                    : look.raised);
  const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  const QRect& rect = option.rect;
  if (section != nullptr && section->orientation == Qt::Vertical)
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), look.line);
  else
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), look.edge);
}

void drawTab(QPainter& painter, const QStyleOption& option) {
  const Look& look = Theme::look();
  const bool isSelected = has(option, QStyle::State_Selected);
  if (!isSelected && has(option, QStyle::State_MouseOver))
    painter.fillRect(option.rect, look.raised);
  if (isSelected)
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom() - 2, option.rect.width(), 3),
                     look.accent);
  if (has(option, QStyle::State_HasFocus))
    drawRounded(painter, option.rect, 3, {}, look.accent, kFocus);
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& slider) {
  const Look& look = Theme::look();
  painter.fillRect(option.rect, look.raised);
  if (option.minimum == option.maximum)
    return;
  const bool isUsed = has(option, QStyle::State_MouseOver) || has(option, QStyle::State_Sunken);
  drawRounded(painter, QRectF(slider).adjusted(2, 2, -2, -2), 4, isUsed ? look.muted : look.edge, {});
}

void drawComboBox(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow) {
  if (option.editable) {
    drawField(painter, option);
  } else {
    QStyleOption face(option);
    face.palette.setColor(QPalette::Button,
                          has(option, QStyle::State_Enabled) ? Theme::look().surface : Theme::look().raised);
    drawButton(painter, face);
    if (has(option, QStyle::State_HasFocus))
      drawRounded(painter, option.rect, kRadius, {}, Theme::look().accent, kFocus);
  }
  drawArrow(painter, QRectF(arrow).center(), 0,
            has(option, QStyle::State_Enabled) ? Theme::look().ink : Theme::look().edge);
}

void drawSpinBox(QPainter& painter, const QStyleOptionSpinBox& option, const QRect& up, const QRect& down) {
  if (option.frame)
    drawField(painter, option);
  const Look& look = Theme::look();
  const auto step = [&](const QRect& rect, QStyle::SubControl control, QAbstractSpinBox::StepEnabledFlag flag,
                        int turn) {
    const bool canStep = option.stepEnabled.testFlag(flag) && has(option, QStyle::State_Enabled);
    if (canStep && option.activeSubControls.testFlag(control))
      drawRounded(painter, rect, 3, has(option, QStyle::State_Sunken) ? look.line : look.raised, {});
    drawArrow(painter, QRectF(rect).center(), turn, canStep ? look.ink : look.edge);
  };
  if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
    return;
  step(up, QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, 180);
  step(down, QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, 0);
}

constexpr int kMenuArrow = 14; // the room of its sign beside a tool button's label

bool hasMenuArrow(const QStyleOptionToolButton& button) {
  return button.features.testFlag(QStyleOptionToolButton::HasMenu);
}

} // namespace

void ProgramStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  // Qt's own class for them, made and polished before it has its text.
  if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && widget->inherits("QTipLabel"))
    label->setTextFormat(Qt::PlainText);
  if (widget->inherits("QHeaderView") || widget->inherits("QTabBar") || widget->inherits("QComboBox"))
    widget->setAttribute(Qt::WA_Hover);
  if (auto* view = qobject_cast<QAbstractItemView*>(widget);
      view != nullptr && !widget->inherits("QHeaderView"))
    view->viewport()->setAttribute(Qt::WA_Hover);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  const Look& look = Theme::look();
  switch (element) {
  case PE_IndicatorCheckBox:
  case PE_IndicatorItemViewItemCheck: return drawBox(*painter, *option, Box::Square);
  case PE_IndicatorRadioButton: return drawBox(*painter, *option, Box::Round);
  case PE_PanelButtonCommand:
  case PE_PanelButtonBevel: {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button != nullptr && button->features.testFlag(QStyleOptionButton::Flat) &&
        !(option->state & (State_MouseOver | State_Sunken | State_On))) {
      if (isFocused(*option))
        drawRounded(*painter, option->rect, kRadius, {}, look.accent, kFocus);
      return;
    }
    return drawButton(*painter, *option);
  }
  case PE_PanelButtonTool: return drawToolButton(*painter, *option);
  case PE_FrameDefaultButton: return;
  case PE_FrameFocusRect:
    if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) // of a row
      return drawRounded(*painter, option->rect, 2, {}, look.accent, kFocus);
    if (widget != nullptr && (widget->inherits("QPushButton") || widget->inherits("QToolButton") ||
                              widget->inherits("QComboBox") || widget->inherits("QTabBar")))
      return; // they frame themselves
    return drawRounded(*painter, option->rect, 3, {}, look.accent, kFocus);
  case PE_PanelLineEdit: {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (frame != nullptr && frame->lineWidth > 0)
      return drawField(*painter, *option);
    return painter->fillRect(option->rect, option->palette.brush(QPalette::Base));
  }
  case PE_FrameLineEdit: return drawRounded(*painter, option->rect, kRadius, {}, look.edge);
  case PE_FrameGroupBox: return drawRounded(*painter, option->rect, kCardRadius, look.surface, look.line);
  case PE_Frame:
  case PE_FrameMenu: return drawRounded(*painter, option->rect, 0, {}, look.line);
  case PE_FrameTabWidget: return drawRounded(*painter, option->rect, 0, look.surface, look.line);
  case PE_FrameTabBarBase:
    return painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                             look.line);
  case PE_PanelTipLabel: return drawRounded(*painter, option->rect, 0, look.plate, look.edge);
  case PE_PanelItemViewRow: return;
  case PE_PanelItemViewItem:
    if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
      return drawRow(*painter, *item);
    break;
  case PE_IndicatorArrowDown: return drawArrow(*painter, QRectF(option->rect).center(), 0, signOf(*option));
  case PE_IndicatorArrowUp: return drawArrow(*painter, QRectF(option->rect).center(), 180, signOf(*option));
  case PE_IndicatorArrowLeft: return drawArrow(*painter, QRectF(option->rect).center(), 90, signOf(*option));
  case PE_IndicatorArrowRight:
    return drawArrow(*painter, QRectF(option->rect).center(), 270, signOf(*option));
  case PE_IndicatorHeaderArrow: {
    const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(option);
    const bool isUp = section != nullptr && section->sortIndicator == QStyleOptionHeader::SortUp;
    return drawArrow(*painter, QRectF(option->rect).center(), isUp ? 180 : 0, look.ink);
  }
  case PE_IndicatorToolBarSeparator: {
    const QRect& rect = option->rect;
    const bool isHorizontal = has(*option, State_Horizontal);
    return painter->fillRect(isHorizontal ? QRect(rect.center().x(), rect.top() + 8, 1, rect.height() - 16)
                                          : QRect(rect.left() + 8, rect.center().y(), rect.width() - 16, 1),
                             look.line);
  }
  default: break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const Look& look = Theme::look();
  switch (element) {
  case CE_PushButtonLabel:
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
      QStyleOptionButton label = *button;
      label.palette.setColor(QPalette::ButtonText, faceOf(*option).text);
      return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    break;
  case CE_HeaderSection: return drawHead(*painter, *option);
  case CE_HeaderEmptyArea:
    painter->fillRect(option->rect, look.raised);
    return painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                             look.edge);
  case CE_HeaderLabel:
    if (const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
      QStyleOptionHeaderV2 label;
      static_cast<QStyleOptionHeader&>(label) = *section;
      const bool isSorted = section->sortIndicator != QStyleOptionHeader::None;
      label.palette.setColor(QPalette::ButtonText, isSorted ? look.ink : look.muted);
      label.state &= ~State_On; // selected columns are no bolder
      painter->save();
      QFont font = painter->font();
      font.setWeight(QFont::DemiBold);
      painter->setFont(font);
      QProxyStyle::drawControl(element, &label, painter, widget);
      painter->restore();
      return;
    }
    break;
  case CE_TabBarTabShape: return drawTab(*painter, *option);
  case CE_TabBarTabLabel:
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
      QStyleOptionTab label = *tab;
      label.palette.setColor(QPalette::WindowText, has(*option, State_Selected) ? look.ink : look.muted);
      label.state &= ~State_HasFocus;
      return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    break;
  case CE_MenuBarEmptyArea: return painter->fillRect(option->rect, look.raised);
  case CE_MenuBarItem:
    if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
      painter->fillRect(option->rect, look.raised);
      if (has(*option, State_Selected) && has(*option, State_Enabled))
        drawRounded(*painter, QRectF(option->rect).adjusted(1, 3, -1, -3), kRadius, look.soft, look.accent);
      const int flags =
          Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine |
          (proxy()->styleHint(SH_UnderlineShortcut, option, widget, nullptr) ? Qt::TextShowMnemonic
                                                                             : Qt::TextHideMnemonic);
      return drawItemText(painter, option->rect, flags, item->palette, has(*option, State_Enabled),
                          item->text, QPalette::ButtonText);
    }
    break;
  case CE_ToolBar: painter->fillRect(option->rect, look.raised); return;
  case CE_Splitter: return painter->fillRect(option->rect, look.desk);
  default: break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto part = [&](SubControl which) { return subControlRect(control, option, which, widget); };
  switch (control) {
  case CC_TitleBar:
    if (const auto* titleBar = qstyleoption_cast<const QStyleOptionTitleBar*>(option)) {
      QStyleOptionTitleBar readable = *titleBar;
      readable.palette.setColor(QPalette::Highlight, Theme::look().plate);
      readable.palette.setColor(QPalette::HighlightedText, Theme::look().plateText);
      return QProxyStyle::drawComplexControl(control, &readable, painter, widget);
    }
    break;
  case CC_ScrollBar:
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option))
      return drawScrollBar(*painter, *slider, part(SC_ScrollBarSlider));
    break;
  case CC_ToolButton:
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
      return drawToolButtonWhole(*button, painter, widget);
    break;
  case CC_ComboBox:
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option))
      return drawComboBox(*painter, *box, part(SC_ComboBoxArrow));
    break;
  case CC_SpinBox:
    if (const auto* box = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
      return drawSpinBox(*painter, *box, part(SC_SpinBoxUp), part(SC_SpinBoxDown));
    break;
  default: break;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

// One face for the button and the sign of its menu, which stands beside the label.
void ProgramStyle::drawToolButtonWhole(const QStyleOptionToolButton& button, QPainter* painter,
                                       const QWidget* widget) const {
  proxy()->drawPrimitive(PE_PanelButtonTool, &button, painter, widget);
  QStyleOptionToolButton label = button;
  if (!has(button, State_AutoRaise) || !has(button, State_Enabled))
    label.palette.setColor(QPalette::ButtonText, faceOf(button).text);
  label.state &= ~State_Sunken; // nothing moves
  if (hasMenuArrow(button)) {
    label.rect.setRight(label.rect.right() - kMenuArrow);
    label.features &= ~QStyleOptionToolButton::HasMenu;
    drawArrow(*painter, QPointF(label.rect.right() + kMenuArrow / 2.0, QRectF(button.rect).center().y()), 0,
              has(button, State_Enabled) ? Theme::look().ink : Theme::look().edge);
  }
  if (button.toolButtonStyle == Qt::ToolButtonTextBesideIcon) { // Qt begins at the left
    constexpr int kAroundIcon = 12;
    const int needed = button.iconSize.width() + kAroundIcon +
                       button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    const int free = std::max(label.rect.width() - needed, 0);
    label.rect.adjust(free / 2, 0, free / 2 - free, 0);
  }
  proxy()->drawControl(CE_ToolButtonLabel, &label, painter, widget);
}

// A scroll bar is its slider alone. The menu of a tool button is below its sign.
QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
  if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
      control == CC_ToolButton && button != nullptr && part == SC_ToolButtonMenu && hasMenuArrow(*button))
    return option->rect.adjusted(option->rect.width() - kMenuArrow - 4, 0, 0, 0);
  if (control == CC_GroupBox && part == SC_GroupBoxLabel) // inside the card
    return QProxyStyle::subControlRect(control, option, part, widget).translated(kCardMargin, 2);
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control != CC_ScrollBar || slider == nullptr)
    return QProxyStyle::subControlRect(control, option, part, widget);
  constexpr int kLeastSlider = 28;
  const bool isHorizontal = slider->orientation == Qt::Horizontal;
  const QRect& groove = option->rect;
  const int room = isHorizontal ? groove.width() : groove.height();
  const int range = slider->maximum - slider->minimum;
  int length = room;
  if (range > 0)
    length = std::clamp(
        static_cast<int>(static_cast<qint64>(slider->pageStep) * room / (range + slider->pageStep)),
        std::min(kLeastSlider, room), room);
  const int start = sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition,
                                            room - length, slider->upsideDown);
  const auto along = [&](int from, int size) {
    const QRect rect = isHorizontal ? QRect(groove.left() + from, groove.top(), size, groove.height())
                                    : QRect(groove.left(), groove.top() + from, groove.width(), size);
    return visualRect(slider->direction, groove, rect);
  };
  switch (part) {
  case SC_ScrollBarGroove: return groove;
  case SC_ScrollBarSlider: return along(start, length);
  case SC_ScrollBarSubPage: return along(0, start);
  case SC_ScrollBarAddPage: return along(start + length, room - start - length);
  default: return {};
  }
}

QRect ProgramStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != SE_LineEditContents || frame == nullptr || frame->lineWidth == 0)
    return rect;
  return rect.adjusted(kFieldMargin, 0, -kFieldMargin, 0);
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const Measure& measure = Theme::measure();
  switch (metric) {
  case PM_ButtonMargin: return measure(10);
  case PM_DefaultFrameWidth: return 1;
  case PM_ScrollBarExtent: return measure(12);
  case PM_ToolBarIconSize:
  case PM_SmallIconSize:
  case PM_ButtonIconSize: return measure(20, 24);
  case PM_ToolBarItemSpacing: return 1;
  case PM_IndicatorWidth:
  case PM_IndicatorHeight:
  case PM_ExclusiveIndicatorWidth:
  case PM_ExclusiveIndicatorHeight: return measure(18, 22);
  case PM_HeaderMargin: return measure(6);
  case PM_TabBarTabHSpace: return measure(28);
  case PM_LayoutLeftMargin:
  case PM_LayoutRightMargin:
  case PM_LayoutTopMargin:
  case PM_LayoutBottomMargin: return measure(8, 12);
  case PM_LayoutHorizontalSpacing:
  case PM_LayoutVerticalSpacing: return measure(8);
  case PM_MenuBarItemSpacing: return 0;
  case PM_MenuBarPanelWidth: return 0;
  default: return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
  switch (hint) {
  case SH_ItemView_ShowDecorationSelected: return 1;
  case SH_EtchDisabledText: return 0;
  case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
  default: return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

// Buttons and fields have one height, whatever stands in them.
QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  const Measure& measure = Theme::measure();
  if (type == CT_PushButton || type == CT_LineEdit || type == CT_ComboBox || type == CT_SpinBox)
    size.setHeight(std::max(size.height(), measure(30, 38)));
  if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
      type == CT_ToolButton && button != nullptr) {
    const bool hasWords = button->toolButtonStyle != Qt::ToolButtonIconOnly;
    size = contents + QSize(measure(hasWords ? 14 : 10), measure(8));
    if (hasMenuArrow(*button))
      size.rwidth() += kMenuArrow;
  }
  return size;
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
  switch (which) {
  case SP_ToolBarHorizontalExtensionButton:
  case SP_ToolBarVerticalExtensionButton: return icon(QStringLiteral("more"));
  case SP_TitleBarMinButton: return icon(QStringLiteral("windowminimize"));
  case SP_TitleBarNormalButton: return icon(QStringLiteral("windowrestore"));
  case SP_TitleBarCloseButton: return icon(QStringLiteral("windowclose"));
  default: return QProxyStyle::standardIcon(which, option, widget);
  }
}

} // namespace hooptab
