#include "season/FoldedText.h"

#include "storage/codepage.h"

namespace hooptab {

std::string foldedText(std::string_view utf8) {
  std::string text = codepage::fromUtf8(utf8);
  for (char& letter : text) {
    letter = static_cast<char>(codepage::foldCase(static_cast<unsigned char>(letter)));
    switch (static_cast<unsigned char>(letter)) {
    case 0xE0:
    case 0xC0:
    case 0xE2:
    case 0xC2: letter = 'a'; break;
    case 0xE8:
    case 0xC8:
    case 0xE9:
    case 0xC9:
    case 0xEA:
    case 0xCA:
    case 0xEB:
    case 0xCB: letter = 'e'; break;
    case 0xEE:
    case 0xCE:
    case 0xEF:
    case 0xCF: letter = 'i'; break;
    case 0xF4:
    case 0xD4: letter = 'o'; break;
    case 0xF9:
    case 0xD9:
    case 0xFB:
    case 0xDB: letter = 'u'; break;
    case 0xE7:
    case 0xC7: letter = 'c'; break;
    default:
      if (letter >= 'A' && letter <= 'Z')
        letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return text;
}

} // namespace hooptab
