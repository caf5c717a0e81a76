#include "settings/CountWords.h"

namespace hooptab {

std::string countWords(std::size_t count, Text one, Text many, const Texts& texts) {
  const bool isSingular = count == 1 || (count == 0 && factsOf(texts.language()).isZeroSingular);
  return texts.withPlaceholder(isSingular ? one : many, std::to_string(count));
}

} // namespace hooptab
