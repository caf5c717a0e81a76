#include "appearance/Theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QTableWidget>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

// Relative luminance and contrast as WCAG 2 defines them, written out once more to check the program by.
double luminance(const QColor& colour) {
  const auto linear = [](double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
double measured(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

class ThemeTest : public testing::TestWithParam<ColourScheme> {
 protected:
  void SetUp() override { Theme::apply(*qApp, GetParam()); }
  void TearDown() override { Theme::apply(*qApp, ColourScheme::Light); }
};

INSTANTIATE_TEST_SUITE_P(BothThemes, ThemeTest, testing::Values(ColourScheme::Light, ColourScheme::Dark));

TEST_P(ThemeTest, IsReadableWhereverTextStands) {
  EXPECT_EQ(Theme::current(), GetParam());
  const Look& look = Theme::look();
  const auto reads = [](const QColor& text, const QColor& ground, double need = kReadable) {
    EXPECT_GE(measured(text, ground), need)
        << text.name().toStdString() << " on " << ground.name().toStdString();
    EXPECT_NEAR(contrast(text, ground), measured(text, ground), 0.05);
  };
  for (const QColor& ground : {look.desk, look.surface, look.raised, look.soft, look.seasonHigh})
    reads(look.ink, ground, 7);
  for (const QColor& ground : {look.desk, look.surface, look.raised, look.soft}) {
    for (const QColor& text : {look.muted, look.accent, look.missed, look.made})
      reads(text, ground);
    reads(look.accent, ground); // the focus
  }
  for (const QColor& ground : {look.surface, look.raised})
    reads(look.faint, ground);
  reads(look.onAccent, look.accent);
  reads(look.onStart, look.start);
  for (const QColor& text : {look.warningText, look.made, look.missed})
    reads(text, look.warningGround);
  reads(look.doubtfulText, look.doubtfulGround);
  for (const QColor& text : {look.plateText, look.plateMuted, look.clockStands, look.clockRuns})
    reads(text, look.plate);
  reads(lookOf(ColourScheme::Dark).accent, look.plate); // what a message offers
  for (const QColor& line : {look.edge, look.warningBar})
    reads(line, look.surface, kRecognisable);
  reads(look.edge, look.raised, kRecognisable); // of what is disabled
  reads(kMadeMark, kMadeRing, kRecognisable);
  reads(kMadeMark, kMissedMark, 2.5); // on the court, where only the shape helps besides
  reads(kMissedMark, GetParam() == ColourScheme::Light ? QColor(Qt::white) : look.desk, kRecognisable);
  const QPalette palette = QApplication::palette();
  EXPECT_EQ(palette.color(QPalette::Window), look.desk);
  EXPECT_EQ(palette.color(QPalette::HighlightedText), look.ink);
}

// Any colour that a team or the settings may have.
TEST_P(ThemeTest, ShiftsColoursUntilTheyAreSeen) {
  const Look& look = Theme::look();
  unsigned seed = 20261122;
  for (int round = 0; round < 500; ++round) {
    seed = seed * 1664525U + 1013904223U;
    const QColor colour = colourOf(seed >> 8U);
    for (const QColor& ground : {look.desk, look.surface, look.plate}) {
      ASSERT_GE(measured(lineOn(colour, ground, kReadable), ground), kReadable)
          << colour.name().toStdString();
      ASSERT_GE(measured(outlineOf(colour, ground), ground), kRecognisable) << colour.name().toStdString();
    }
  }
  EXPECT_EQ(lineOn(look.ink, look.surface, kReadable), look.ink) << "what is seen stays as it is";
}

TEST_P(ThemeTest, ReachesWindowsThatAreOpen) {
  QWidget window;
  QLabel label(&window);
  window.show();
  Theme::apply(*qApp, GetParam() == ColourScheme::Light ? ColourScheme::Dark : ColourScheme::Light);
  QCoreApplication::processEvents();
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
  for (int y = 0; y < cells[0].height(); ++y)
    for (int x = 0; x < cells[0].width(); ++x)
      strongest = std::max(strongest, measured(cells[0].pixelColor(x, y), background));
  EXPECT_GE(strongest, 3);
  EXPECT_TRUE(cells[0] != cells[1] && cells[1] != cells[2] && cells[0] != cells[2]);
}

// Clock and counts do not move, and the fonts come with the program.
TEST_P(ThemeTest, HasFiguresOfOneWidth) {
  for (const Type type : {Type::Dense, Type::Body, Type::Count, Type::Clock}) {
    const QFont font = Theme::font(type);
    EXPECT_TRUE(QFontInfo(font).family().startsWith(u"HOOPTAB"_s)) << QFontInfo(font).family().toStdString();
    for (char digit = '1'; digit <= '9'; ++digit)
      EXPECT_EQ(QFontMetricsF(font).horizontalAdvance(QLatin1Char(digit)),
                QFontMetricsF(font).horizontalAdvance(QLatin1Char('0')));
  }
}

TEST(Colours, ComeBackAsTheyWereStored) {
  EXPECT_EQ(colourOf(9092558), QColor(0xCE, 0xBD, 0x8A));
  for (const std::uint32_t stored : {0U, 255U, 65280U, 16711680U, 9092558U, 16777215U})
    EXPECT_EQ(storedColour(colourOf(stored)), stored);
  EXPECT_EQ(colourOf(0xFF000001U), QColor(1, 0, 0)); // what is above a colour's three bytes means nothing
}

TEST(Colours, CarryTheTextThatReadsBetter) {
  EXPECT_EQ(textOn(QColor(255, 255, 0)), QColor(Qt::black));
  EXPECT_EQ(textOn(QColor(0, 0, 255)), QColor(Qt::white));
  for (int step = 0; step < 16 * 16 * 16; ++step) {
    const QColor background(step / 256 * 17, step / 16 % 16 * 17, step % 16 * 17);
    ASSERT_GE(measured(textOn(background), background), kReadable) << background.name().toStdString();
  }
}

} // namespace
} // namespace hooptab
