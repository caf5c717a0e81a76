#include "appearance/Theme.h"

#include "appearance/ProgramStyle.h"

#include <QApplication>

#include <cmath>

namespace hooptab {

namespace {

// Every colour of one look. Warm neutrals, so that team colours and the accent stand out. Made and missed
// differ in lightness as well, for whoever cannot tell green from red.
struct Look {
  QColor window, base, alternate, button, desk, border;
  QColor text, mutedText, disabledText;
  QColor highlight, highlightedText;
  QColor title; // of the active window, under white letters
  QColor toolTip, toolTipText;
  QColor accent, link, made, missed, doubtful;
};

const Look& look(ColourScheme scheme) {
  static const Look kLight = {
      .window = QColor(0xF2, 0xEF, 0xE9),
      .base = QColor(0xFD, 0xFC, 0xFA),
      .alternate = QColor(0xF5, 0xF2, 0xEC),
      .button = QColor(0xE9, 0xE4, 0xDB),
      .desk = QColor(0xDC, 0xD6, 0xCB),
      .border = QColor(0xCF, 0xC8, 0xBB),
      .text = QColor(0x1D, 0x1B, 0x18),
      .mutedText = QColor(0x5C, 0x56, 0x4C),
      .disabledText = QColor(0xA0, 0x98, 0x8B),
      .highlight = QColor(0xF6, 0xD9, 0xB4),
      .highlightedText = QColor(0x1D, 0x1B, 0x18),
      .title = QColor(0x5F, 0x57, 0x4A),
      .toolTip = QColor(0x2B, 0x28, 0x23),
      .toolTipText = QColor(0xFA, 0xF7, 0xF1),
      .accent = QColor(0xA6, 0x52, 0x08),
      .link = QColor(0x8A, 0x43, 0x05),
      .made = QColor(0x0A, 0x59, 0x2D),
      .missed = QColor(0xCA, 0x2C, 0x20),
      .doubtful = QColor(0xEF, 0xE7, 0xFA),
  };
  static const Look kDark = {
      .window = QColor(0x2A, 0x2D, 0x32),
      .base = QColor(0x19, 0x1C, 0x1F),
      .alternate = QColor(0x20, 0x24, 0x28),
      .button = QColor(0x3A, 0x3F, 0x46),
      .desk = QColor(0x16, 0x18, 0x1B),
      .border = QColor(0x4B, 0x51, 0x59),
      .text = QColor(0xEE, 0xEC, 0xE7),
      .mutedText = QColor(0xB4, 0xB0, 0xA8),
      .disabledText = QColor(0x78, 0x7B, 0x7F),
      .highlight = QColor(0x5A, 0x3C, 0x18),
      .highlightedText = QColor(0xFF, 0xFB, 0xF4),
      .title = QColor(0x55, 0x5C, 0x66),
      .toolTip = QColor(0xF3, 0xEF, 0xE7),
      .toolTipText = QColor(0x1D, 0x1B, 0x18),
      .accent = QColor(0xF0, 0xA0, 0x4B),
      .link = QColor(0xF3, 0xB5, 0x74),
      .made = QColor(0x8C, 0xE6, 0xAE),
      .missed = QColor(0xF4, 0x74, 0x66),
      .doubtful = QColor(0x34, 0x27, 0x4C),
  };
  return scheme == ColourScheme::Light ? kLight : kDark;
}

ColourScheme s_current = ColourScheme::Light;

// What palettes cannot say: paddings, hairlines and the tool-bar. Colours come from the palette.
QString styleSheet(const Look& colours) {
  return QStringLiteral(R"(
QToolTip { padding: 4px; border: 1px solid %1; background: %5; color: %6; }
QToolBar { border: 0; border-bottom: 1px solid %1; padding: 3px; spacing: 2px; background: %2; }
QToolBar::separator { width: 1px; margin: 4px 5px; background: %1; }
QToolBar QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 3px 5px; }
QToolBar QToolButton[popupMode="1"] { padding-right: 16px; }
QToolBar QToolButton:hover:enabled { background: %3; border-color: %1; }
QToolBar QToolButton:pressed:enabled,
QToolBar QToolButton:checked:enabled { background: %4; border-color: %1; }
QMenuBar { background: %2; }
QMdiArea { qproperty-background: %7; }
QHeaderView::section { background: %3; border: 0; border-right: 1px solid %1; border-bottom: 1px solid %1;
                       padding: 3px 4px; font-weight: 600; }
QTableView, QTreeView, QListView { border: 1px solid %1; }
QTabWidget::pane { border: 1px solid %1; top: -1px; }
QTabBar::tab { padding: 5px 12px; border: 0; border-bottom: 2px solid transparent; color: %8; }
QTabBar::tab:selected { border-bottom-color: %9; color: palette(window-text); }
QTabBar::tab:hover:!selected, QTabBar::tab:focus { background: %3; }
QStatusBar::item { border: 0; }
QSplitter::handle { background: %2; }
)")
      .arg(colours.border.name(), colours.window.name(), colours.button.name(), colours.highlight.name(),
           colours.toolTip.name(), colours.toolTipText.name(), colours.desk.name(), colours.mutedText.name(),
           colours.accent.name());
}

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0 to 1, as WCAG 2 defines it.
double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

QPalette Theme::palette(ColourScheme scheme) {
  const Look& colours = look(scheme);
  QPalette palette;
  palette.setColor(QPalette::Window, colours.window);
  palette.setColor(QPalette::WindowText, colours.text);
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.alternate);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::PlaceholderText, colours.mutedText);
  palette.setColor(QPalette::Button, colours.button);
  palette.setColor(QPalette::ButtonText, colours.text);
  palette.setColor(QPalette::BrightText, colours.missed);
  palette.setColor(QPalette::Highlight, colours.highlight);
  palette.setColor(QPalette::HighlightedText, colours.highlightedText);
  palette.setColor(QPalette::ToolTipBase, colours.toolTip);
  palette.setColor(QPalette::ToolTipText, colours.toolTipText);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::LinkVisited, colours.link);
  palette.setColor(QPalette::Light, colours.base);
  palette.setColor(QPalette::Midlight, colours.alternate);
  palette.setColor(QPalette::Mid, colours.border);
  palette.setColor(QPalette::Dark, colours.border.darker(125));
  palette.setColor(QPalette::Shadow, colours.border.darker(160));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, colours.disabledText);
  palette.setColor(QPalette::Disabled, QPalette::Button, colours.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.button);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colours.disabledText);
  return palette;
}

void Theme::apply(QApplication& application, ColourScheme scheme) {
  s_current = scheme;
  // Without it a widget's palette does not reach its children once there is a style sheet.
  QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
  application.setStyle(new ProgramStyle(look(scheme).title));
  application.setPalette(palette(scheme));
  application.setStyleSheet(styleSheet(look(scheme)));
}

ColourScheme Theme::current() {
  return s_current;
}
QColor Theme::accent() {
  return look(s_current).accent;
}
QColor Theme::madeOnPaper() {
  return look(ColourScheme::Light).made;
}

QColor Theme::made() {
  return look(s_current).made;
}
QColor Theme::missed() {
  return look(s_current).missed;
}
QColor Theme::doubtful() {
  return look(s_current).doubtful;
}
QColor Theme::muted() {
  return look(s_current).mutedText;
}

QFont Theme::figures(int pointSize, bool bold) {
  // All digits of each of these families are equally wide, so that a clock does not move while it runs.
  QFont font;
  font.setFamilies(
      {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans")});
  font.setStyleHint(QFont::SansSerif);
  font.setPointSize(pointSize);
  font.setBold(bold);
  return font;
}

QColor colourOf(std::uint32_t stored) {
  return QColor(static_cast<int>(stored & 0xFFU), static_cast<int>((stored >> 8U) & 0xFFU),
                static_cast<int>((stored >> 16U) & 0xFFU));
}

std::uint32_t storedColour(const QColor& colour) {
  return static_cast<std::uint32_t>(colour.red()) + 256U * static_cast<std::uint32_t>(colour.green()) +
         65536U * static_cast<std::uint32_t>(colour.blue());
}

QColor textOn(const QColor& background) {
  const double light = luminance(background);
  const double contrastWithBlack = (light + 0.05) / 0.05;
  const double contrastWithWhite = 1.05 / (light + 0.05);
  return contrastWithBlack >= contrastWithWhite ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace hooptab
