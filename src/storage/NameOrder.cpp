#include "storage/NameOrder.h"

#include "storage/codepage.h"

#include <array>

namespace hooptab {

namespace {

constexpr char kNextLevel = '\0'; // before every letter, so that a shorter name comes first

// By byte of the code page: a season's table asks for tens of thousands of names at once.
std::array<char, 256> makePlainLetters() {
  std::array<char, 256> letters = {};
  for (unsigned byte = 0; byte < letters.size(); ++byte)
    letters[byte] = static_cast<char>(
        codepage::foldCase(static_cast<unsigned char>(codepage::plainLetter(static_cast<char>(byte)))));
  return letters;
}

// The letters that a byte of the code page sorts as, small and without accents.
void appendBase(std::string& key, unsigned char byte) {
  switch (byte) {
  case 0xC6:
  case 0xE6: key += "ae"; return;
  case 0x8C:
  case 0x9C: key += "oe"; return;
  case 0xDF: key += "ss"; return;
  case 0xDE:
  case 0xFE: key += "th"; return;
  case 0xD0:
  case 0xF0: key += 'd'; return;
  case 0xD8:
  case 0xF8: key += 'o'; return;
  case 0xA0: key += ' '; return; // a blank that does not break
  case 0x91:
  case 0x92: key += '\''; return; // apostrophes and dashes of typesetters
  case 0x96:
  case 0x97: key += '-'; return;
  default: break;
  }
  static const std::array<char, 256> kLetters = makePlainLetters();
  key += kLetters[byte];
}

} // namespace

std::string nameOrderKey(std::string_view name) {
  const std::string stored = codepage::fromUtf8(name);
  std::string key;
  key.reserve(stored.size() * 3 + 2);
  for (const char letter : stored)
    appendBase(key, static_cast<unsigned char>(letter));
  key += kNextLevel;
  for (const char letter : stored)
    key += static_cast<char>(codepage::foldCase(static_cast<unsigned char>(letter)));
  key += kNextLevel;
  for (const char letter : stored)
    key += codepage::foldCase(static_cast<unsigned char>(letter)) == static_cast<unsigned char>(letter) ? '1'
                                                                                                        : '2';
  return key;
}

} // namespace hooptab
