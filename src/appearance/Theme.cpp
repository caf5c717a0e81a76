#include "appearance/Theme.h"

#include "appearance/ProgramStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QVariant>
#include <QWidget>

// Outside any namespace, as the macro demands: the fonts stand in a static library, from which nothing else
// would pull them.
static void initFontResources() {
  Q_INIT_RESOURCE(fonts);
}

namespace hooptab {

namespace {

constexpr const char* kTypeProperty = "type"; // what setType() gave: the use and the weight
constexpr double kPointsOfPixel = 0.75;       // Qt's pixels are those of 96 dpi

struct State {
  ColourScheme scheme = ColourScheme::Light;
  Measure measure;
  CourtStrength courtStrength = CourtStrength::Calm;
};
State s_state;

enum class Width { Usual, Narrow, Full };
struct TypeSize {
  Type use;
  int narrow, wide; // pixels
  QFont::Weight weight;
  Width width = Width::Usual;
};
constexpr TypeSize kTypes[] = {
    {Type::Caption, 11, 13, QFont::DemiBold}, {Type::Dense, 11, 13, QFont::Normal, Width::Narrow},
    {Type::Small, 12, 14, QFont::Normal},     {Type::Body, 13, 15, QFont::Normal},
    {Type::Name, 14, 17, QFont::DemiBold},    {Type::Count, 16, 20, QFont::Normal},
    {Type::Jersey, 22, 29, QFont::Bold},      {Type::Points, 24, 32, QFont::Bold},
    {Type::Score, 38, 54, QFont::Bold},       {Type::Clock, 60, 92, QFont::Bold, Width::Full},
    {Type::Title, 22, 28, QFont::DemiBold},
};

// Each with what stands in where a letter is missing.
QStringList families(Width width) {
  const QString fallback = QStringLiteral("DejaVu Sans");
  switch (width) {
  case Width::Narrow: return {QStringLiteral("HOOPTAB Sans Condensed"), fallback};
  case Width::Full: return {QStringLiteral("HOOPTAB Sans Wide"), fallback};
  case Width::Usual: break;
  }
  return {QStringLiteral("HOOPTAB Sans"), fallback};
}

void loadFonts() {
  static const bool isLoaded = [] {
    initFontResources();
    for (const char* file :
         {"sans-400", "sans-600", "sans-700", "sans-condensed-400", "sans-condensed-600", "sans-wide-700"})
      QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/%1.ttf").arg(QLatin1String(file)));
    return true;
  }();
  (void)isLoaded;
}

// In points: parts of windows make their own sizes of it.
QFont usualFont() {
  QFont font;
  font.setFamilies(families(Width::Usual));
  font.setPointSizeF(Theme::measure()(13, 15) * kPointsOfPixel);
  return font;
}

} // namespace

QPalette Theme::palette(ColourScheme scheme) {
  const Look& look = lookOf(scheme);
  QPalette palette;
  palette.setColor(QPalette::Window, look.desk);
  palette.setColor(QPalette::WindowText, look.ink);
  palette.setColor(QPalette::Base, look.surface);
  palette.setColor(QPalette::AlternateBase, look.raised);
  palette.setColor(QPalette::Text, look.ink);
  palette.setColor(QPalette::PlaceholderText, look.muted);
  palette.setColor(QPalette::Button, look.surface);
  palette.setColor(QPalette::ButtonText, look.ink);
  palette.setColor(QPalette::BrightText, look.missed);
  palette.setColor(QPalette::Highlight, look.soft);
  palette.setColor(QPalette::HighlightedText, look.ink);
  palette.setColor(QPalette::ToolTipBase, look.plate);
  palette.setColor(QPalette::ToolTipText, look.plateText);
  palette.setColor(QPalette::Link, look.accent);
  palette.setColor(QPalette::LinkVisited, look.accent);
  palette.setColor(QPalette::Light, look.surface);
  palette.setColor(QPalette::Midlight, look.raised);
  palette.setColor(QPalette::Mid, look.line);
  palette.setColor(QPalette::Dark, look.edge);
  palette.setColor(QPalette::Shadow, look.edge);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, look.edge);
  palette.setColor(QPalette::Disabled, QPalette::Button, look.raised);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, look.raised);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, look.edge);
  return palette;
}

void Theme::apply(QApplication& application, ColourScheme scheme) {
  s_state.scheme = scheme;
  loadFonts();
  application.setStyle(new ProgramStyle);
  application.setPalette(palette(scheme));
  application.setFont(usualFont());
}

ColourScheme Theme::current() {
  return s_state.scheme;
}

void Theme::setMeasure(QApplication& application, const Measure& measure) {
  if (measure == s_state.measure)
    return;
  s_state.measure = measure;
  application.setFont(usualFont());
  for (QWidget* widget : QApplication::allWidgets()) {
    if (const QVariant type = widget->property(kTypeProperty); type.isValid())
      widget->setFont(
          font(static_cast<Type>(type.toPoint().x()), static_cast<QFont::Weight>(type.toPoint().y())));
  }
}

const Measure& Theme::measure() {
  return s_state.measure;
}

CourtStrength Theme::courtStrength() {
  return s_state.courtStrength;
}

void Theme::setCourtStrength(CourtStrength strength) {
  s_state.courtStrength = strength;
}

QFont Theme::font(Type use) {
  const TypeSize& type = kTypes[static_cast<std::size_t>(use)];
  QFont font;
  font.setFamilies(families(type.width));
  font.setPixelSize(measure()(type.narrow, type.wide));
  font.setWeight(type.weight);
  return font;
}

QFont Theme::font(Type use, QFont::Weight weight) {
  QFont font = Theme::font(use);
  font.setWeight(weight);
  return font;
}

void Theme::setType(QWidget& widget, Type use) {
  setType(widget, use, static_cast<QFont::Weight>(font(use).weight()));
}

void Theme::setType(QWidget& widget, Type use, QFont::Weight weight) {
  widget.setProperty(kTypeProperty, QPoint(static_cast<int>(use), weight));
  widget.setFont(font(use, weight));
}

QColor colourOf(std::uint32_t stored) {
  return QColor(static_cast<int>(stored & 0xFFU), static_cast<int>((stored >> 8U) & 0xFFU),
                static_cast<int>((stored >> 16U) & 0xFFU));
}

std::uint32_t storedColour(const QColor& colour) {
  return static_cast<std::uint32_t>(colour.red()) + 256U * static_cast<std::uint32_t>(colour.green()) +
         65536U * static_cast<std::uint32_t>(colour.blue());
}

} // namespace hooptab
