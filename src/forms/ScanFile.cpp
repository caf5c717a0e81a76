#include "forms/ScanFile.h"

#include "appearance/relabel.h"
#include "forms/PdfPages.h"
#include "forms/TiffPages.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <fstream>
#include <new>

namespace hooptab {

namespace {

using Reason = PageRefusal::Reason;

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

// The largest of which a decoder's process has room for the colours and the shades: A4 of 1000 dots per inch.
bool isTooLarge(const QSize& size) {
  constexpr qint64 kMostDots = 100'000'000;
  return qint64{size.width()} * size.height() > kMostDots;
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

// A page may lie on its side; a long strip of paper stays too large.
int edgeFor(const QImage& image) {
  return std::max(std::min(image.width(), image.height()) / kPageOf300Dots, 1);
}

int pagesOf(const QString& path, const QByteArray& format) {
  if (format != "tiff")
    return 1;
  std::ifstream file(fromQt(path), std::ios::binary);
  return std::max(countTiffPages(file, ScannedPage::kMostPages), 1);
}

PageRefusal toPicture(QImage image, GrayPicture& picture) {
  if (image.isNull())
    return {Reason::Damaged};
  if (isTooCoarse(image))
    return {Reason::TooCoarse};
  image = onPaper(std::move(image)).convertToFormat(QImage::Format_Grayscale8);
  if (image.isNull()) // no memory
    return {Reason::TooLarge};
  const int edge = edgeFor(image);
  if (static_cast<std::size_t>(image.width() / edge) * static_cast<std::size_t>(image.height() / edge) >
      ScannedPage::kMostPixels)
    return {Reason::TooLarge};
  picture = reduced(image, edge);
  return {};
}

// A file of one of the two kinds, opened.
struct Source {
  PageRefusal refusal;
  int pages = 0;
  std::function<PageRefusal(QImage&)> read = {}; // one page of it
};

Source pdfSource(PdfPages& document, const QString& path, int page) {
  const PageRefusal refusal = document.open(path);
  return {refusal, document.count(), [&document, page](QImage& image) -> PageRefusal {
            if (isTooLarge(document.size(page)))
              return {Reason::TooLarge};
            image = document.draw(page);
            return {};
          }};
}

Source pictureSource(QImageReader& reader, const QString& path, int page) {
  reader.setFileName(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  QImageReader::setAllocationLimit(0); // the process has one
  if (!reader.canRead() || !isOfThem(reader.format()))
    return {{Reason::NotAPicture}};
  if (isCutOff(path, reader.format()))
    return {{Reason::Damaged}};
  return {{}, pagesOf(path, reader.format()), [&reader, page](QImage& image) -> PageRefusal {
            if (page > 0 && !reader.jumpToImage(page))
              return {Reason::Damaged};
            if (isTooLarge(reader.size()))
              return {Reason::TooLarge};
            image = reader.read();
            return {};
          }};
}

} // namespace

ScannedPage loadScan(const QString& path, int page, const std::function<void(int)>& counted) {
  ScannedPage result;
  const auto refused = [&](const PageRefusal& refusal) {
    counted(0);
    result.refusal = refusal;
    return result;
  };
  // A pipe would never end.
  if (!QFileInfo(path).isFile() || !QFile(path).open(QIODevice::ReadOnly))
    return refused({Reason::CannotOpen});
  QImageReader reader;
  PdfPages document;
  const Source source = isPdf(path) ? pdfSource(document, path, page) : pictureSource(reader, path, page);
  if (source.refusal.reason != Reason::None)
    return refused(source.refusal);
  if (source.pages > ScannedPage::kMostPages)
    return refused({Reason::TooManyPages, ScannedPage::kMostPages});
  result.pagesInFile = source.pages;
  counted(result.pagesInFile);
  try {
    QImage image;
    result.refusal = source.read(image);
    if (result.refusal.reason == Reason::None)
      result.refusal = toPicture(std::move(image), result.picture);
  } catch (const std::bad_alloc&) {
    result.refusal = {Reason::TooLarge};
  }
  return result;
}

} // namespace hooptab
