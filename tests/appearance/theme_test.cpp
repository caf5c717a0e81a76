#include "appearance/Theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QMdiArea>
#include <QTableWidget>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

// Relative luminance and contrast as WCAG 2 defines them, written out once more to check the program by.
double luminance(const QColor& colour) {
  const auto linear = [](double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}
constexpr double kReadable = 4.5;

class ThemeTest : public testing::TestWithParam<ColourScheme> {
 protected:
  void SetUp() override { Theme::apply(*qApp, GetParam()); }
  void TearDown() override { Theme::apply(*qApp, ColourScheme::Light); }
};

INSTANTIATE_TEST_SUITE_P(BothThemes, ThemeTest, testing::Values(ColourScheme::Light, ColourScheme::Dark));

TEST_P(ThemeTest, IsReadableWhereverTextStands) {
  EXPECT_EQ(Theme::current(), GetParam());
  const QPalette palette = QApplication::palette();
  for (const auto& [text, background] :
       {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
        std::pair(QPalette::Text, QPalette::AlternateBase), std::pair(QPalette::ButtonText, QPalette::Button),
        std::pair(QPalette::HighlightedText, QPalette::Highlight),
        std::pair(QPalette::ToolTipText, QPalette::ToolTipBase)})
    EXPECT_GE(contrast(palette.color(text), palette.color(background)), 7) << text;
  for (const QColor& text : {Theme::accent(), Theme::made(), Theme::missed(), Theme::muted()}) {
    for (const QPalette::ColorRole background : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
      EXPECT_GE(contrast(text, palette.color(background)), kReadable) << text.name().toStdString();
  }
}

TEST_P(ThemeTest, SetsDisabledApartAndKeepsItLegible) {
  const QPalette palette = QApplication::palette();
  const QColor background = palette.color(QPalette::Window);
  const QColor disabled = palette.color(QPalette::Disabled, QPalette::ButtonText);
  EXPECT_GE(contrast(disabled, background), 2);
  EXPECT_GE(contrast(palette.color(QPalette::Active, QPalette::ButtonText), disabled), 3);
}

TEST_P(ThemeTest, TellsMadeFromMissedByLightnessToo) {
  EXPECT_GE(contrast(Theme::made(), Theme::missed()), 1.5);
}

TEST_P(ThemeTest, ReachesWindowsThatAreOpen) {
  QMdiArea area;
  QLabel label(&area);
  area.show();
  const QBrush before = area.background();
  Theme::apply(*qApp, GetParam() == ColourScheme::Light ? ColourScheme::Dark : ColourScheme::Light);
  QCoreApplication::processEvents();
  EXPECT_NE(area.background(), before);
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QApplication::palette().color(QPalette::WindowText));
}

// On a table too, where the box stands on the colour that fills it.
TEST_P(ThemeTest, ShowsCheckBoxesAndWhetherTheyAreChecked) {
  QTableWidget table(3, 1);
  table.setAttribute(Qt::WA_DontShowOnScreen);
  const Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
  QImage cells[3];
  for (int row = 0; row < 3; ++row) {
    auto* const item = new QTableWidgetItem;
    item->setCheckState(states[row]);
    table.setItem(row, 0, item);
  }
  table.show();
  for (int row = 0; row < 3; ++row)
    cells[row] =
        table.viewport()->grab(table.visualItemRect(table.item(row, 0)).adjusted(1, 1, -1, -1)).toImage();
  const QColor background = QApplication::palette().color(QPalette::Base);
  double strongest = 1;
  for (int y = 0; y < cells[0].height(); ++y) {
    for (int x = 0; x < cells[0].width(); ++x)
      strongest = std::max(strongest, contrast(cells[0].pixelColor(x, y), background));
  }
  EXPECT_GE(strongest, 3);
  EXPECT_NE(cells[0], cells[1]);
  EXPECT_NE(cells[1], cells[2]);
  EXPECT_NE(cells[0], cells[2]);
}

TEST_P(ThemeTest, HasFiguresOfOneWidth) {
  for (const bool isBold : {false, true}) {
    const QFontMetricsF metrics(Theme::figures(28, isBold));
    for (char digit = '1'; digit <= '9'; ++digit)
      EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char(digit)), metrics.horizontalAdvance(QLatin1Char('0')));
  }
}

TEST(Colours, ComeBackAsTheyWereStored) {
  EXPECT_EQ(colourOf(9092558), QColor(0xCE, 0xBD, 0x8A));
  for (const std::uint32_t stored : {0U, 255U, 65280U, 16711680U, 9092558U, 16777215U})
    EXPECT_EQ(storedColour(colourOf(stored)), stored);
  EXPECT_EQ(colourOf(0xFF000001U), QColor(1, 0, 0)); // what is above a colour's three bytes means nothing
}

TEST(Colours, CarryTheTextThatReadsBetter) {
  EXPECT_EQ(textOn(Qt::white), QColor(Qt::black));
  EXPECT_EQ(textOn(Qt::black), QColor(Qt::white));
  EXPECT_EQ(textOn(QColor(255, 255, 0)), QColor(Qt::black));
  EXPECT_EQ(textOn(QColor(0, 0, 255)), QColor(Qt::white));
  for (int red = 0; red <= 255; red += 17) {
    for (int green = 0; green <= 255; green += 17) {
      for (int blue = 0; blue <= 255; blue += 17) {
        const QColor background(red, green, blue);
        ASSERT_GE(contrast(textOn(background), background), kReadable) << background.name().toStdString();
      }
    }
  }
}

} // namespace
} // namespace hooptab
