#include "recording/ForeignWords.h"

#include <cstddef>

namespace hooptab {

namespace {

constexpr std::size_t kMostNamed = 5;

std::string keysOf(const std::vector<EventPlace>& lines) {
  std::string keys;
  for (std::size_t index = 0; index < lines.size() && index < kMostNamed; ++index)
    keys += (keys.empty() ? "" : ", ") + lines[index].key;
  return lines.size() > kMostNamed ? keys + ", …" : keys;
}

} // namespace

std::string foreignWords(const ForeignHands& hands, const Texts& texts) {
  std::string words;
  const auto add = [&](Text text, const std::string& value) {
    words += (words.empty() ? "" : " ") + texts.withPlaceholder(text, value);
  };
  if (hands.isRewritten)
    add(Text::FileRewritten, {});
  else if (hands.added > 0 || hands.restored > 0 || !hands.gaveWay.empty())
    add(Text::FileTouched, {});
  if (hands.restored > 0)
    add(Text::EventsRestored, std::to_string(hands.restored));
  if (hands.added > 0)
    add(Text::EventsAdded, std::to_string(hands.added));
  if (!hands.gaveWay.empty())
    add(Text::GaveWay, keysOf(hands.gaveWay));
  if (!hands.keptAs.empty())
    add(Text::KeptAs, hands.keptAs.substr(hands.keptAs.rfind('/') + 1)); // beside the game
  return words;
}

} // namespace hooptab
