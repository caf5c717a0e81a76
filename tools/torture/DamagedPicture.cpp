#include "tools/torture/DamagedPicture.h"

#include "forms/PictureFile.h"

#include <QBuffer>

#include <algorithm>
#include <array>
#include <cstring>

namespace hooptab {

namespace {

constexpr int kHead = 600; // bytes in which the fields of most files stand

QByteArray saved(const QImage& picture, const char* format, int quality = -1) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, format, quality);
  return bytes;
}

int place(const QByteArray& bytes, Random& random) {
  return random.below(static_cast<int>(bytes.size()));
}

// Anywhere, in the head, or at the end, where the directories of some TIF files stand.
int placeOfInterest(const QByteArray& bytes, Random& random) {
  const int size = static_cast<int>(bytes.size());
  switch (random.below(4)) {
  case 0: return place(bytes, random);
  case 1: return std::max(0, size - 1 - random.below(300));
  default: return random.below(std::min(kHead, size));
  }
}

void flipBits(QByteArray& bytes, Random& random) {
  for (int left = random.between(1, 40); left > 0; --left) {
    const int at = placeOfInterest(bytes, random);
    bytes[at] = static_cast<char>(bytes[at] ^ (1 << random.below(8)));
  }
}

void cutOff(QByteArray& bytes, Random& random) {
  bytes.truncate(random.chance(300) ? random.below(std::min<int>(kHead, static_cast<int>(bytes.size())))
                                    : place(bytes, random));
}

// A block goes, is doubled, is put over another one, or is emptied as a lost sector of a disk.
void spliceBlock(QByteArray& bytes, Random& random) {
  const int from = placeOfInterest(bytes, random);
  const QByteArray block = bytes.mid(from, random.between(1, 4096));
  const int to = placeOfInterest(bytes, random);
  switch (random.below(4)) {
  case 0: bytes.remove(from, block.size()); break;
  case 1: bytes.insert(to, block); break;
  case 2: bytes.replace(to, block.size(), block); break;
  default: bytes.replace(from, block.size(), QByteArray(block.size(), '\0')); break;
  }
}

// Numbers that programs trip over, in either order of bytes.
void writeNumbers(QByteArray& bytes, Random& random) {
  constexpr std::array<quint32, 12> kBad = {
      0, 1, 0x7F, 0xFF, 0x7FFF, 0xFFFF, 0x8000, 0x00010000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0x00FFFFFF};
  for (int left = random.between(1, 4); left > 0; --left) {
    const quint32 number =
        random.chance(500) ? kBad[static_cast<std::size_t>(random.below(kBad.size()))] : random.next();
    const quint32 stored = random.chance(500) ? qToBigEndian(number) : qToLittleEndian(number);
    const int size = random.chance(500) ? 4 : 2;
    const int at = placeOfInterest(bytes, random);
    for (int index = 0; index < size && at + index < bytes.size(); ++index)
      bytes[at + index] = static_cast<char>(stored >> (8 * index));
  }
}

// Each field of the first directory holds its value in the last four of twelve bytes.
void changeTifFields(QByteArray& bytes, Random& random) {
  if (bytes.size() < 8)
    return;
  const qsizetype directory = qFromLittleEndian<quint32>(bytes.constData() + 4);
  for (int left = random.between(1, 3); left > 0; --left) {
    const qsizetype at = directory + 2 + random.below(12 * 12);
    if (at < bytes.size())
      bytes[at] = static_cast<char>(random.next());
  }
}

// Links from directory to directory that go round in a circle, or anywhere.
void tieTifLinks(QByteArray& bytes, Random& random) {
  for (qsizetype link = 4; link + 4 <= bytes.size();) {
    const qsizetype next = qFromLittleEndian<quint32>(bytes.constData() + link);
    const bool isLast = next == 0 || next + 2 > bytes.size();
    if (isLast || random.chance(300)) {
      const quint32 target = random.chance(500) ? qFromLittleEndian<quint32>(bytes.constData() + 4)
                                                : static_cast<quint32>(place(bytes, random));
      qToLittleEndian(target, bytes.data() + link);
      return;
    }
    link = next + 2 + qFromLittleEndian<quint16>(bytes.constData() + next) * 12;
  }
}

// Any size in the head, with the right sum, so that the decoder believes it.
void changePngSize(QByteArray& bytes, Random& random) {
  constexpr int kSize = 16;
  constexpr int kSum = 29;
  if (bytes.size() < kSum + 4)
    return;
  bytes[kSize + random.below(13)] = static_cast<char>(random.next());
  bytes.replace(kSum, 4, bigEndian(pngSum(bytes.mid(12, kSum - 12))));
}

// Width and height stand in the frame that begins with FF C0 or FF C2.
void changeJpegSize(QByteArray& bytes, Random& random) {
  for (int at = 2; at + 10 < std::min<int>(kHead, static_cast<int>(bytes.size())); ++at) {
    if (bytes[at] == '\xFF' && (bytes[at + 1] == '\xC0' || bytes[at + 1] == '\xC2'))
      bytes[at + 4 + random.below(6)] = static_cast<char>(random.next());
  }
}

DamagedPicture nastyPicture(Random& random) {
  const auto number = [&random](int most) { return static_cast<quint32>(random.between(1, most)); };
  switch (random.below(5)) {
  case 0: return {tifOfDirectories(random.chance(500) ? number(30) : 1000 + number(5000)), "tif"};
  case 1: return {QByteArray(random.below(2000), static_cast<char>(random.next())), "bmp"};
  case 2: return {QByteArray("\xff\xd8\xff\xe0", 4) + QByteArray(random.below(50), 'J'), "jpg"};
  default: {
    constexpr char kDepths[] = {1, 2, 4, 8, 16};
    constexpr char kColours[] = {0, 2, 3, 4, 6};
    const quint32 width = number(random.chance(500) ? 12'000 : 2'000'000'000);
    const quint32 height = number(random.chance(500) ? 12'000 : 2'000'000'000);
    const char depth = kDepths[random.below(5)];
    const char colour = kColours[random.below(5)];
    return {pngOfSize(width, height, depth, colour, static_cast<char>(random.below(2))), "png"};
  }
  }
}

} // namespace

DamagedPictures::DamagedPictures(const std::vector<QImage>& pages) {
  for (const QImage& page : pages) {
    const QImage gray = page.convertToFormat(QImage::Format_Grayscale8);
    const QImage line = page.convertToFormat(QImage::Format_Mono);
    const QImage glass = page.convertToFormat(QImage::Format_ARGB32);
    m_sound.push_back({saved(gray, "bmp"), "bmp"});
    m_sound.push_back({saved(line, "bmp"), "bmp"});
    m_sound.push_back({tifOf({gray}), "tif"});
    m_sound.push_back({tifOf({line, gray, gray}), "tif"});
    m_sound.push_back({saved(gray, "tif"), "tif"});
    m_sound.push_back({saved(line, "tif", 1), "tif"});
    m_sound.push_back({saved(gray, "png"), "png"});
    m_sound.push_back({saved(glass, "png"), "png"});
    m_sound.push_back({saved(gray, "jpg", 70), "jpg"});
    m_sound.push_back({pdfOf({gray}), "pdf"});
    m_sound.push_back({saved(glass.convertToFormat(QImage::Format_RGB32), "jpg", 90), "jpg"});
  }
}

DamagedPicture DamagedPictures::make(std::uint64_t seed, int number) const {
  Random random(seed * 1'000'003 + static_cast<std::uint64_t>(number));
  if (random.chance(60))
    return nastyPicture(random);
  DamagedPicture picture = m_sound[static_cast<std::size_t>(random.below(static_cast<int>(m_sound.size())))];
  if (random.chance(20))
    return picture;
  for (int left = random.chance(700) ? 1 : 3; left > 0 && !picture.bytes.isEmpty(); --left) {
    QByteArray& bytes = picture.bytes;
    switch (random.below(8)) {
    case 0:
    case 1: flipBits(bytes, random); break;
    case 2: cutOff(bytes, random); break;
    case 3: spliceBlock(bytes, random); break;
    case 4: writeNumbers(bytes, random); break;
    case 5: bytes.replace(0, placeOfInterest(bytes, random), bytes.left(place(bytes, random))); break;
    default:
      if (std::strcmp(picture.ending, "tif") == 0)
        random.chance(500) ? changeTifFields(bytes, random) : tieTifLinks(bytes, random);
      else if (std::strcmp(picture.ending, "png") == 0)
        changePngSize(bytes, random);
      else if (std::strcmp(picture.ending, "jpg") == 0)
        changeJpegSize(bytes, random);
      else
        writeNumbers(bytes, random);
    }
  }
  return picture;
}

} // namespace hooptab
