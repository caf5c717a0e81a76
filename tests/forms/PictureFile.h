// Files as scanners write them, and byte by byte as no painting program would.
#pragma once

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QtEndian>

#include <string>
#include <utility>
#include <vector>

namespace hooptab {

// A TIF file with a page for each picture: shades of grey, not compressed.
inline QByteArray tifOf(const std::vector<QImage>& pictures) {
  QByteArray bytes("II\x2a\0\0\0\0\0", 8);
  qsizetype link = 4; // where the place of the next directory stands
  const auto put = [&bytes](auto value) {
    const auto stored = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&stored), sizeof stored);
  };
  for (const QImage& picture : pictures) {
    const QImage gray = picture.convertToFormat(QImage::Format_Grayscale8);
    const auto data = static_cast<quint32>(bytes.size());
    for (int row = 0; row < gray.height(); ++row)
      bytes.append(reinterpret_cast<const char*>(gray.constScanLine(row)), gray.width());
    if (bytes.size() % 2 != 0)
      bytes.append('\0');
    qToLittleEndian(static_cast<quint32>(bytes.size()), bytes.data() + link);
    const auto width = static_cast<quint32>(gray.width());
    const auto height = static_cast<quint32>(gray.height());
    const std::pair<quint16, quint32> tags[] = {{256, width}, {257, height}, {258, 8},
                                                {259, 1},     {262, 1},      {273, data},
                                                {277, 1},     {278, height}, {279, width * height}};
    put(static_cast<quint16>(std::size(tags)));
    for (const auto& [tag, value] : tags) {
      put(tag);
      put(quint16{4}); // one number of 32 bits
      put(quint32{1});
      put(value);
    }
    link = bytes.size();
    put(quint32{0});
  }
  return bytes;
}

// A PDF file with a page of paper for each picture, which fills it.
inline QByteArray pdfOf(const std::vector<QImage>& pictures, QSizeF millimetres = {210, 297}) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setPageSize(QPageSize(millimetres, QPageSize::Millimeter));
  writer.setPageMargins({});
  QPainter painter(&writer);
  for (const QImage& picture : pictures) {
    if (&picture != pictures.data())
      writer.newPage();
    painter.drawImage(QRectF(0, 0, writer.width(), writer.height()), picture);
  }
  painter.end();
  return bytes;
}

// A PDF file of one empty page, for which a password is asked.
inline QByteArray lockedPdf() {
  const QByteArray objects[] = {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
                                "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]>>",
                                "<</Filter/Standard/V 1/R 2/P -4/O<" + QByteArray(64, '5') + ">/U<" +
                                    QByteArray(64, '6') + ">>>"};
  QByteArray bytes = "%PDF-1.4\n";
  QByteArray places = "0000000000 65535 f \n";
  int number = 0;
  for (const QByteArray& object : objects) {
    places += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
    bytes += QByteArray::number(++number) + " 0 obj\n" + object + "\nendobj\n";
  }
  const QByteArray start = QByteArray::number(bytes.size());
  return bytes + "xref\n0 5\n" + places +
         "trailer\n<</Size 5/Root 1 0 R/Encrypt 4 0 R/ID[<41><41>]>>\nstartxref\n" + start + "\n%%EOF\n";
}

// A TIF file of so many pages, of which each has a width and nothing else.
inline QByteArray tifOfDirectories(quint32 count) {
  QByteArray bytes("II\x2a\0\x08\0\0\0", 8);
  for (quint32 directory = 1; directory <= count; ++directory) {
    bytes.append("\1\0\0\1\4\0\1\0\0\0\0\x10\0\0", 14);
    const quint32 next = directory < count ? qToLittleEndian(static_cast<quint32>(bytes.size()) + 4) : 0;
    bytes.append(reinterpret_cast<const char*>(&next), sizeof next);
  }
  return bytes;
}

// The check sum of a PNG file's parts, over their names and data.
inline quint32 pngSum(const QByteArray& bytes) {
  quint32 sum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    sum ^= static_cast<uchar>(byte);
    for (int bit = 0; bit < 8; ++bit)
      sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

inline QByteArray bigEndian(quint32 value) {
  value = qToBigEndian(value);
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

inline QByteArray pngPart(const QByteArray& name, const QByteArray& data) {
  return bigEndian(static_cast<quint32>(data.size())) + name + data + bigEndian(pngSum(name + data));
}

// A PNG file that says it has that size, with no more than the beginning of its dots.
inline QByteArray pngOfSize(quint32 width, quint32 height, char depth, char colourType, char interlace) {
  QByteArray head = bigEndian(width) + bigEndian(height);
  head.append(depth).append(colourType).append('\0').append('\0').append(interlace);
  const QByteArray dots = qCompress(QByteArray(60'000, '\0')).mid(4);
  return QByteArray("\x89PNG\r\n\x1a\n", 8) + pngPart("IHDR", head) + pngPart("IDAT", dots) +
         pngPart("IEND", {});
}

} // namespace hooptab
