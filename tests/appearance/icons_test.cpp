#include "appearance/Icons.h"

#include "appearance/Theme.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include <set>

namespace hooptab {
namespace {

QImage image(const QString& name, QIcon::Mode mode = QIcon::Normal, const QSize& size = {32, 32}) {
  return icon(name).pixmap(size, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The colours of pixels that nothing shines through.
std::set<QRgb> solidColours(const QImage& image) {
  std::set<QRgb> colours;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) == 255)
        colours.insert(image.pixel(x, y));
    }
  }
  return colours;
}

class IconsTest : public testing::TestWithParam<ColourScheme> {
 protected:
  void SetUp() override { Theme::apply(*qApp, GetParam()); }
  void TearDown() override { Theme::apply(*qApp, ColourScheme::Light); }
};

INSTANTIATE_TEST_SUITE_P(BothThemes, IconsTest, testing::Values(ColourScheme::Light, ColourScheme::Dark));

TEST_P(IconsTest, DrawsEveryIconInTheThemesColours) {
  EXPECT_FALSE(icon(QStringLiteral("vwopen")).isNull());
  const QStringList files = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
  EXPECT_GT(files.size(), 40);
  const QPalette palette = QApplication::palette();
  for (const QString& file : files) {
    const QString name = file.chopped(4);
    const QImage normal = image(name, QIcon::Normal, {96, 96});
    const std::set<QRgb> colours = solidColours(normal);
    ASSERT_FALSE(colours.empty()) << name.toStdString();
    if (name == QLatin1String("hooptab"))
      continue;
    EXPECT_TRUE(colours.contains(palette.color(QPalette::ButtonText).rgb())) << name.toStdString();
    EXPECT_FALSE(colours.contains(QColor(Qt::black).rgb())) << name.toStdString();
    const std::set<QRgb> disabled = solidColours(image(name, QIcon::Disabled, {96, 96}));
    EXPECT_TRUE(disabled.contains(palette.color(QPalette::Disabled, QPalette::ButtonText).rgb()))
        << name.toStdString();
    EXPECT_FALSE(disabled.contains(palette.color(QPalette::ButtonText).rgb())) << name.toStdString();
  }
}

TEST_P(IconsTest, FollowsAChangeOfThemeWithoutBeingMadeAnew) {
  const QIcon kept = icon(QStringLiteral("vwma"));
  const QImage before = kept.pixmap(32, 32).toImage();
  Theme::apply(*qApp, GetParam() == ColourScheme::Light ? ColourScheme::Dark : ColourScheme::Light);
  EXPECT_NE(kept.pixmap(32, 32).toImage(), before);
  Theme::apply(*qApp, GetParam());
  EXPECT_EQ(kept.pixmap(32, 32).toImage(), before);
}

TEST_P(IconsTest, IsSharpOnADenseScreenAndNeverStretched) {
  const QPixmap dense = icon(QStringLiteral("vwopen")).pixmap(QSize(24, 24), 2.0);
  EXPECT_EQ(dense.size(), QSize(48, 48));
  EXPECT_EQ(dense.devicePixelRatio(), 2.0);
  // In a wide space the drawing stays square, with nothing left and right of it.
  const QImage wide = image(QStringLiteral("vwma"), QIcon::Normal, {96, 32});
  for (int y = 0; y < wide.height(); ++y) {
    ASSERT_EQ(qAlpha(wide.pixel(2, y)), 0);
    ASSERT_EQ(qAlpha(wide.pixel(wide.width() - 3, y)), 0);
  }
}

TEST_P(IconsTest, GivesAnEmptyIconForAFileThatIsNotThere) {
  EXPECT_TRUE(icon(QStringLiteral("nosuchicon")).isNull());
  EXPECT_TRUE(icon(QString()).isNull());
  EXPECT_TRUE(icon(QStringLiteral("../icons")).pixmap(16, 16).isNull());
}

} // namespace
} // namespace hooptab
