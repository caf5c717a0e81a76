#include "appearance/Icons.h"

#include "appearance/Theme.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <gtest/gtest.h>
#include <set>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

QImage image(const QString& name, QIcon::Mode mode, const QSize& size) {
  return icon(name).pixmap(size, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The colours of pixels that nothing shines through.
std::set<QRgb> solidColours(const QImage& image) {
  std::set<QRgb> colours;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) == 255)
        colours.insert(image.pixel(x, y));
  return colours;
}

class IconsTest : public testing::TestWithParam<ColourScheme> {
 protected:
  void SetUp() override { Theme::apply(*qApp, GetParam()); }
  void TearDown() override { Theme::apply(*qApp, ColourScheme::Light); }
};

INSTANTIATE_TEST_SUITE_P(BothThemes, IconsTest, testing::Values(ColourScheme::Light, ColourScheme::Dark));

TEST_P(IconsTest, DrawsEveryIconInTheThemesColours) {

  const QStringList files = QDir(u":/icons"_s).entryList({u"*.svg"_s});
  EXPECT_GT(files.size(), 40);
  const QPalette palette = QApplication::palette();
  for (const QString& file : files) {
    const QString name = file.chopped(4);
    const std::set<QRgb> colours = solidColours(image(name, QIcon::Normal, {96, 96}));
    SCOPED_TRACE(name.toStdString());
    ASSERT_FALSE(colours.empty());
    if (name == QLatin1String("hooptab"))
      continue;
    EXPECT_TRUE(colours.contains(palette.color(QPalette::ButtonText).rgb()));
    EXPECT_FALSE(colours.contains(QColor(Qt::black).rgb()));
    const std::set<QRgb> disabled = solidColours(image(name, QIcon::Disabled, {96, 96}));
    EXPECT_TRUE(disabled.contains(palette.color(QPalette::Disabled, QPalette::ButtonText).rgb()));
    EXPECT_FALSE(disabled.contains(palette.color(QPalette::ButtonText).rgb()));
  }
}

TEST_P(IconsTest, FollowsAChangeOfThemeWithoutBeingMadeAnew) {
  const QIcon kept = icon(u"vwma"_s);
  const QImage before = kept.pixmap(32, 32).toImage();
  Theme::apply(*qApp, GetParam() == ColourScheme::Light ? ColourScheme::Dark : ColourScheme::Light);
  EXPECT_NE(kept.pixmap(32, 32).toImage(), before);
  Theme::apply(*qApp, GetParam());
  EXPECT_EQ(kept.pixmap(32, 32).toImage(), before);
}

TEST_P(IconsTest, IsSharpOnADenseScreenAndNeverStretched) {
  const QPixmap dense = icon(u"vwopen"_s).pixmap(QSize(24, 24), 2.0);
  EXPECT_EQ(dense.size(), QSize(48, 48));
  EXPECT_EQ(dense.devicePixelRatio(), 2.0);
  // In a wide space the drawing stays square, with nothing left and right of it.
  const QImage wide = image(u"vwma"_s, QIcon::Normal, {96, 32});
  for (int y = 0; y < wide.height(); ++y) {
    ASSERT_EQ(qAlpha(wide.pixel(2, y)), 0);
    ASSERT_EQ(qAlpha(wide.pixel(wide.width() - 3, y)), 0);
  }
}

TEST(Icons, AreEmptyForAFileThatIsNotThere) {
  EXPECT_TRUE(icon(u"nosuchicon"_s).isNull());
  EXPECT_TRUE(icon(QString()).isNull());
  EXPECT_TRUE(icon(u"../icons"_s).pixmap(16, 16).isNull());
}

} // namespace
} // namespace hooptab
