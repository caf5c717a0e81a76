#include "appearance/Icons.h"

#include "appearance/Theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// Outside any namespace, as the macro demands: the icons stand in a static library, from which nothing else
// would pull them.
static void initIconResources() {
  Q_INIT_RESOURCE(icons);
}

namespace hooptab {

namespace {

// Renders one of our SVG files in the palette's colours, each size and state once.
class PaletteIconEngine : public QIconEngine {
 public:
  explicit PaletteIconEngine(const QString& name) : m_name(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const double ratio = painter->device()->devicePixelRatioF();
    QPixmap pixmap = rendered(rect.size() * ratio, mode);
    pixmap.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), pixmap);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override { return rendered(size, mode); }
  QIconEngine* clone() const override { return new PaletteIconEngine(*this); }
  bool isNull() override { return false; }

 private:
  QPixmap rendered(const QSize& size, QIcon::Mode mode) const {
    if (size.isEmpty()) // a button squeezed to nothing
      return {};
    const QPalette palette = QApplication::palette();
    const bool isDisabled = mode == QIcon::Disabled;
    const QColor text =
        palette.color(isDisabled ? QPalette::Disabled : QPalette::Active,
                      mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
    const QString key = QStringLiteral("hooptab/%1/%2x%3/%4")
                            .arg(m_name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(text.name());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
      return pixmap;
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(coloured(text));
    if (renderer.isValid()) {
      renderer.setAspectRatioMode(Qt::KeepAspectRatio);
      QPainter painter(&pixmap);
      renderer.render(&painter);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
  }

  QByteArray coloured(const QColor& text) const {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(m_name));
    if (!file.open(QIODevice::ReadOnly))
      return {};
    QByteArray svg = file.readAll();
    if (m_name == QLatin1String("hooptab")) // the program's own icon keeps its colours
      return svg;
    return svg.replace("#000000", text.name().toLatin1());
  }

  QString m_name;
};

} // namespace

QIcon icon(const QString& name) {
  initIconResources();
  if (!QFile::exists(QStringLiteral(":/icons/%1.svg").arg(name)))
    return {};
  return QIcon(new PaletteIconEngine(name));
}

} // namespace hooptab
