#include "appearance/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

// Every colour of one look. Warm neutrals, so that team colours and the accent stand out.
struct Look {
  QColor window, base, alternate, button, text, mutedText, disabledText, border, highlight, highlightedText;
  QColor accent, made, missed, toolTip, toolTipText, link;
};

const Look& look(ColourScheme scheme) {
  static const Look kLight = {
      QColor(0xF2, 0xEF, 0xE9), QColor(0xFD, 0xFC, 0xFA), QColor(0xF5, 0xF2, 0xEC), QColor(0xE9, 0xE4, 0xDB),
      QColor(0x1D, 0x1B, 0x18), QColor(0x5C, 0x56, 0x4C), QColor(0xA3, 0x9C, 0x90), QColor(0xCF, 0xC8, 0xBB),
      QColor(0xF6, 0xD9, 0xB4), QColor(0x1D, 0x1B, 0x18), QColor(0xB4, 0x5A, 0x0A), QColor(0x12, 0x6E, 0x3A),
      QColor(0xC2, 0x26, 0x1D), QColor(0x2B, 0x28, 0x23), QColor(0xFA, 0xF7, 0xF1), QColor(0x8A, 0x43, 0x05)};
  static const Look kDark = {
      QColor(0x20, 0x23, 0x27), QColor(0x17, 0x1A, 0x1D), QColor(0x1E, 0x21, 0x25), QColor(0x2F, 0x33, 0x39),
      QColor(0xEE, 0xEC, 0xE7), QColor(0xAD, 0xA9, 0xA1), QColor(0x6A, 0x6B, 0x6C), QColor(0x43, 0x48, 0x4F),
      QColor(0x6B, 0x47, 0x1E), QColor(0xFF, 0xFB, 0xF4), QColor(0xF0, 0xA0, 0x4B), QColor(0x5F, 0xD0, 0x8C),
      QColor(0xFF, 0x8A, 0x7A), QColor(0xF3, 0xEF, 0xE7), QColor(0x1D, 0x1B, 0x18), QColor(0xF3, 0xB5, 0x74)};
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
QToolBar QToolButton:pressed, QToolBar QToolButton:checked { background: %4; border-color: %1; }
QMenuBar { background: %2; }
QHeaderView::section { background: %3; border: 0; border-right: 1px solid %1; border-bottom: 1px solid %1;
                       padding: 3px 4px; font-weight: 600; }
QTableView, QTreeView, QListView { border: 1px solid %1; }
QTabBar::tab { padding: 5px 12px; }
QStatusBar::item { border: 0; }
QSplitter::handle { background: %2; }
)")
      .arg(colours.border.name(), colours.window.name(), colours.button.name(), colours.highlight.name(),
           colours.toolTip.name(), colours.toolTipText.name());
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
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.button);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colours.disabledText);
  return palette;
}

void Theme::apply(QApplication& application, ColourScheme scheme) {
  s_current = scheme;
  application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  application.setPalette(palette(scheme));
  application.setStyleSheet(styleSheet(look(scheme)));
}

ColourScheme Theme::current() {
  return s_current;
}
QColor Theme::accent() {
  return look(s_current).accent;
}
QColor Theme::made() {
  return look(s_current).made;
}
QColor Theme::missed() {
  return look(s_current).missed;
}
QColor Theme::muted() {
  return look(s_current).mutedText;
}

QFont Theme::figures(int pointSize, bool bold) {
  // All digits of this family are equally wide, so that a clock does not move while it runs.
  QFont font(QStringLiteral("DejaVu Sans"));
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
