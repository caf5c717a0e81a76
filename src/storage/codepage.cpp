#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace hooptab::codepage {
namespace {

// What the bytes 80 to 9F stand for; every other byte is the character of the same number.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Nearest plain letters of U+0100 to U+024F and of U+1E00 to U+1EFF; a blank where there is none, or where
// kReplacements knows better.
constexpr char32_t kExtendedBegin = 0x100;
constexpr std::string_view kExtended = //
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi  JjKkkLlLlLlL"
    "lLlNnNnNnnNnOoOoOo  RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"
    "bBBb  OCcDDDd EEEFfG  IIKkl MNnOOo  Pp   S tTtTUuUVYyZzZ  z     "
    "     D  L  N AaIiOoUuUuUuUuUueAaAa  GgGgKkOoOoZzj D GgH NnAa  Oo"
    "AaAaEeEeIiIiOoOoRrRrUuUuSsTt  HhNd  ZzAaEeOoOoOoOoYylntj  ACcLTs"
    "z  BUVEeJjQqRrYy";
constexpr char32_t kAdditionalBegin = 0x1E00;
constexpr std::string_view kAdditional = //
    "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMm"
    "MmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVv"
    "WwWwWwWwWwXxXxYyZzZzZzhtwyasss  AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
    "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYyLlVvYy";

// What else has a near relative in the code page: letters that are two, and typographic signs. Sorted by code
// point.
struct Replacement {
  char32_t codePoint;
  std::string_view stored;
};
constexpr auto kReplacements = std::to_array<Replacement>({
    {0x0085, " "},    {0x0132, "IJ"},   {0x0133, "ij"},   {0x01C4, "DZ"},   {0x01C5, "Dz"},
    {0x01C6, "dz"},   {0x01C7, "LJ"},   {0x01C8, "Lj"},   {0x01C9, "lj"},   {0x01CA, "NJ"},
    {0x01CB, "Nj"},   {0x01CC, "nj"},   {0x01E2, "\xC6"}, {0x01E3, "\xE6"}, {0x01F1, "DZ"},
    {0x01F2, "Dz"},   {0x01F3, "dz"},   {0x01FC, "\xC6"}, {0x01FD, "\xE6"}, {0x01FE, "\xD8"},
    {0x01FF, "\xF8"}, {0x0254, "o"},    {0x0259, "e"},    {0x025B, "e"},    {0x02B9, "'"},
    {0x02BB, "\x91"}, {0x02BC, "\x92"}, {0x02C9, "\xAF"}, {0x02CA, "\xB4"}, {0x02CB, "`"},
    {0x03BC, "\xB5"}, {0x1E9E, "\xDF"}, {0x2010, "-"},    {0x2011, "-"},    {0x2012, "\x96"},
    {0x2015, "\x97"}, {0x201B, "\x91"}, {0x201F, "\x93"}, {0x2024, "."},    {0x2027, "\xB7"},
    {0x2028, " "},    {0x2029, " "},    {0x2032, "'"},    {0x2033, "\""},   {0x2035, "`"},
    {0x2043, "-"},    {0x2044, "/"},    {0x2116, "No"},   {0x212A, "K"},    {0x212B, "\xC5"},
    {0x2212, "-"},    {0x2215, "/"},    {0x2217, "*"},    {0x2219, "\xB7"}, {0x2236, ":"},
    {0x22C5, "\xB7"}, {0x3000, " "},    {0xFB00, "ff"},   {0xFB01, "fi"},   {0xFB02, "fl"},
    {0xFB03, "ffi"},  {0xFB04, "ffl"},  {0xFB05, "st"},   {0xFB06, "st"},
});
static_assert(std::ranges::is_sorted(kReplacements, {}, &Replacement::codePoint));

// The letters of the code page that carry an accent, by accent: letter and composed form at the same place.
struct Accent {
  char32_t mark;
  std::string_view letters;
  std::string_view composed;
};
constexpr auto kAccents = std::to_array<Accent>({
    {0x0300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    {0x0301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    {0x0302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    {0x0303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    {0x0308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
    {0x030A, "Aa", "\xC5\xE5"},
    {0x030C, "SZsz", "\x8A\x8E\x9A\x9E"},
    {0x0327, "Cc", "\xC7\xE7"},
    {0x0340, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},           // an older grave
    {0x0341, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"}, // an older acute
});

bool isLetter(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte >= 0xC0 ||
         plainLetter(character) != character;
}

// 0 where the code page has no such letter.
char compose(char letter, char32_t mark) {
  const auto* const accent = std::ranges::find(kAccents, mark, &Accent::mark);
  if (accent == kAccents.end())
    return 0;
  const std::size_t place = accent->letters.find(letter);
  return place == std::string_view::npos ? char{0} : accent->composed[place];
}

bool isCombining(char32_t point) {
  return (point >= 0x0300 && point <= 0x036F) || (point >= 0x1AB0 && point <= 0x1AFF) ||
         (point >= 0x1DC0 && point <= 0x1DFF) || (point >= 0x20D0 && point <= 0x20FF) ||
         (point >= 0xFE20 && point <= 0xFE2F);
}

// Signs that show nothing: joiners, marks of direction, byte order marks, variation selectors.
bool isInvisible(char32_t point) {
  return (point >= 0x200B && point <= 0x200F) || (point >= 0x202A && point <= 0x202E) ||
         (point >= 0x2060 && point <= 0x2064) || (point >= 0xFE00 && point <= 0xFE0F) || point == 0xFEFF;
}

// 0 where the code page has no such character.
unsigned char exactByte(char32_t point) {
  if (point < 0x80 || (point >= 0xA0 && point <= 0xFF))
    return static_cast<unsigned char>(point);
  const auto* const found = std::ranges::find(kUpperControls, point);
  return found == kUpperControls.end() ? static_cast<unsigned char>(0)
                                       : static_cast<unsigned char>(0x80 + (found - kUpperControls.begin()));
}

void appendNearest(std::string& stored, char32_t point) {
  const auto* const found = std::ranges::lower_bound(kReplacements, point, {}, &Replacement::codePoint);
  if (found != kReplacements.end() && found->codePoint == point) {
    stored += found->stored;
    return;
  }
  char nearest = ' ';
  if (point >= kExtendedBegin && point - kExtendedBegin < kExtended.size())
    nearest = kExtended[point - kExtendedBegin];
  else if (point >= kAdditionalBegin && point - kAdditionalBegin < kAdditional.size())
    nearest = kAdditional[point - kAdditionalBegin];
  else if (point >= 0xFF01 && point <= 0xFF5E) // the wide forms of ASCII
    nearest = static_cast<char>(point - 0xFF01 + '!');
  else if (point == 0x2007 || point == 0x202F) // blanks that do not break
    nearest = '\xA0';
  else if ((point >= 0x2000 && point <= 0x200A) || point == 0x205F) { // blanks of other widths
    stored += ' ';
    return;
  }
  stored += nearest == ' ' ? '?' : nearest;
}

constexpr char32_t kInvalid = 0xFFFFFFFF;

// Takes one code point off the front; for a byte that begins no valid sequence takes that byte alone.
char32_t takeCodePoint(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  std::size_t length = 0;
  char32_t point = 0;
  char32_t smallest = 0;
  if (lead < 0x80) {
    length = 1;
    point = lead;
  } else if ((lead & 0xE0U) == 0xC0) {
    length = 2;
    point = lead & 0x1FU;
    smallest = 0x80;
  } else if ((lead & 0xF0U) == 0xE0) {
    length = 3;
    point = lead & 0x0FU;
    smallest = 0x800;
  } else if ((lead & 0xF8U) == 0xF0) {
    length = 4;
    point = lead & 0x07U;
    smallest = 0x10000;
  }
  bool isValid = length > 0 && length <= text.size();
  for (std::size_t index = 1; isValid && index < length; ++index) {
    const auto next = static_cast<unsigned char>(text[index]);
    isValid = (next & 0xC0U) == 0x80;
    point = point << 6U | (next & 0x3FU);
  }
  if (!isValid || point < smallest || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) {
    text.remove_prefix(1);
    return kInvalid;
  }
  text.remove_prefix(length);
  return point;
}

std::size_t asciiLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80)
    ++length;
  return length;
}

constexpr std::array<unsigned char, 256> makeFoldTable() {
  std::array<unsigned char, 256> table = {};
  for (unsigned byte = 0; byte < 256; ++byte) {
    const bool isUpper = (byte >= 'A' && byte <= 'Z') ||
                         (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7); // D7 is the times sign
    const bool isUpperInControls = byte == 0x8A || byte == 0x8C || byte == 0x8E;
    table[byte] = static_cast<unsigned char>(isUpper ? byte + 0x20 : isUpperInControls ? byte + 0x10 : byte);
  }
  table[0x9F] = 0xFF;
  return table;
}
constexpr auto kFold = makeFoldTable();

} // namespace

std::string toUtf8(std::string_view stored) {
  const std::size_t ascii = asciiLength(stored);
  std::string text(stored.substr(0, ascii));
  if (ascii == stored.size())
    return text;
  text.reserve(stored.size() * 2);
  for (const char character : stored.substr(ascii)) {
    const auto byte = static_cast<unsigned char>(character);
    const char32_t point = byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80U] : char32_t{byte};
    if (point < 0x80) {
      text += character;
    } else if (point < 0x800) {
      text += static_cast<char>(0xC0U | point >> 6U);
      text += static_cast<char>(0x80U | (point & 0x3FU));
    } else {
      text += static_cast<char>(0xE0U | point >> 12U);
      text += static_cast<char>(0x80U | (point >> 6U & 0x3FU));
      text += static_cast<char>(0x80U | (point & 0x3FU));
    }
  }
  return text;
}

std::string fromUtf8(std::string_view text) {
  const std::size_t ascii = asciiLength(text);
  std::string stored(text.substr(0, ascii));
  if (ascii == text.size())
    return stored;
  stored.reserve(text.size());
  text.remove_prefix(ascii);

  // Whether a following mark may still make another letter of the last one. A letter whose accents the code
  // page lacks becomes plain for good, in whichever order the accents come.
  bool composes = true;
  while (!text.empty()) {
    const char32_t point = takeCodePoint(text);
    if (point == kInvalid) {
      stored += '?';
    } else if (isCombining(point)) {
      if (stored.empty() || !isLetter(stored.back())) {
        if (stored.empty())
          stored += '?';
        continue;
      }
      const char composed = composes ? compose(stored.back(), point) : char{0};
      if (composed != 0)
        stored.back() = composed;
      else {
        stored.back() = plainLetter(stored.back());
        composes = false;
      }
    } else if (isInvisible(point)) {
      continue;
    } else if (const unsigned char byte = exactByte(point); byte != 0 || point == 0) {
      stored += static_cast<char>(byte);
      composes = true;
    } else {
      appendNearest(stored, point);
      composes = false;
    }
  }
  return stored;
}

std::string storedForm(std::string_view text) {
  return toUtf8(fromUtf8(text));
}

char plainLetter(char letter) {
  for (const Accent& accent : kAccents) {
    const std::size_t place = accent.composed.find(letter);
    if (place != std::string_view::npos)
      return accent.letters[place];
  }
  return letter;
}

unsigned char foldCase(unsigned char byte) {
  return kFold[byte];
}

bool equalNames(std::string_view left, std::string_view right) {
  if (left.size() != right.size())
    return false;
  for (std::size_t index = 0; index < left.size(); ++index)
    if (kFold[static_cast<unsigned char>(left[index])] != kFold[static_cast<unsigned char>(right[index])])
      return false;
  return true;
}

} // namespace hooptab::codepage
