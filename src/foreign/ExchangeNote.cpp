#include "foreign/ExchangeNote.h"

#include "storage/Placeholders.h"

namespace hooptab {

std::string inWords(const ExchangeNote& note, const Texts& texts) {
  return withPlaceholders(texts.text(note.text), note.x, note.y);
}

} // namespace hooptab
