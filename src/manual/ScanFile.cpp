#include "manual/ScanFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPixelFormat>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <new>

namespace hooptab {

namespace {

constexpr int kNotAPicture = 1407;
constexpr int kTooCoarse = 1408;
constexpr int kTooLarge = 2305;

constexpr std::array kFormats = {"bmp", "tiff", "png", "jpeg"};

constexpr double kInchesPerMetre = 39.37007874;
constexpr int kCoarsestScan = 150;    // dots per inch; below it no cell can be read
constexpr int kNarrowestPage = 1000;  // pixels: less is too coarse for a page, whatever its file says
constexpr int kPageOf300Dots = 2400;  // pixels; a little less than paper is wide
constexpr double kNarrowestPaper = 6; // inches; what a file says is believed for pictures between the two
constexpr double kWidestPaper = 13;

bool isOfThem(const QByteArray& format) {
  return std::ranges::any_of(kFormats, [&](const char* known) { return format == known; });
}

// Many programs write a resolution that is not so, but not one that makes the picture a sheet of paper.
bool isTooCoarse(const QImage& image) {
  const int narrow = std::min(image.width(), image.height());
  if (narrow < kNarrowestPage)
    return true;
  const double said = image.dotsPerMeterX() / kInchesPerMetre;
  const double inches = said > 0 ? narrow / said : 0;
  return said < kCoarsestScan && inches >= kNarrowestPaper && inches <= kWidestPaper;
}

// Whether reading the picture, or its shades of grey, would take more memory than a reader may.
bool isTooLarge(const QImageReader& reader) {
  constexpr qint64 kBitsPerMegabyte = 8LL * 1024 * 1024;
  constexpr int kGrayDepth = 8;
  const QSize size = reader.size();
  const QImage::Format format = reader.imageFormat();
  const int depth = format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
  return qint64{size.width()} * size.height() * std::max(depth, kGrayDepth) / kBitsPerMegabyte >=
         QImageReader::allocationLimit();
}

// The reader takes the rows that are missing for white ones.
bool isCutOff(const QString& path, const QByteArray& format) {
  QFile file(path);
  if (format != "bmp" || !file.open(QIODevice::ReadOnly))
    return false;
  constexpr int kSizeAt = 2; // four bytes
  const QByteArray head = file.read(kSizeAt + 4);
  return head.size() == kSizeAt + 4 && file.size() < qFromLittleEndian<quint32>(head.constData() + kSizeAt);
}

// What is transparent is white paper.
QImage onPaper(QImage image) {
  if (!image.hasAlphaChannel())
    return image;
  QImage paper(image.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, image);
  return paper;
}

// Each pixel the mean of a square of that edge.
GrayPicture reduced(const QImage& gray, int edge) {
  GrayPicture picture;
  picture.width = gray.width() / edge;
  picture.height = gray.height() / edge;
  picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
  std::vector<unsigned> sums(static_cast<std::size_t>(picture.width));
  auto* to = picture.pixels.data();
  for (int row = 0; row < picture.height; ++row) {
    std::ranges::fill(sums, 0U);
    for (int line = 0; line < edge; ++line) {
      const uchar* from = gray.constScanLine(row * edge + line);
      for (unsigned& sum : sums) {
        for (int column = 0; column < edge; ++column)
          sum += *from++;
      }
    }
    for (const unsigned sum : sums)
      *to++ = static_cast<std::uint8_t>(sum / static_cast<unsigned>(edge * edge));
  }
  return picture;
}

ScannedPage load(const QString& path, int page) {
  ScannedPage result;
  const auto failed = [&result](int problem) {
    result.problem = problem;
    return result;
  };
  if (!QFileInfo(path).isFile()) // a pipe would never end
    return failed(kNotAPicture);
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!reader.canRead() || !isOfThem(reader.format()) || isCutOff(path, reader.format()))
    return failed(kNotAPicture);
  result.pagesInFile = std::max(reader.imageCount(), 1);
  if (page > 0 && !reader.jumpToImage(page))
    return failed(kNotAPicture);
  if (isTooLarge(reader))
    return failed(kTooLarge);
  QImage image = reader.read();
  if (image.isNull())
    return failed(kNotAPicture);
  if (isTooCoarse(image))
    return failed(kTooCoarse);
  image = onPaper(std::move(image)).convertToFormat(QImage::Format_Grayscale8);
  if (image.isNull()) // no memory
    return failed(kTooLarge);
  result.picture = reduced(image, std::max(std::min(image.width(), image.height()) / kPageOf300Dots, 1));
  return result;
}

} // namespace

ScannedPage loadScan(const QString& path, int page) {
  try {
    return load(path, page);
  } catch (const std::bad_alloc&) {
    ScannedPage result;
    result.problem = kTooLarge;
    return result;
  }
}

} // namespace hooptab
