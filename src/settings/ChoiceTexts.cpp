#include "settings/ChoiceTexts.h"

namespace hooptab {

namespace {

constexpr std::string_view kNotOffered = "---";

} // namespace

std::string_view choiceName(Text firstText, int index, const Texts& texts) {
  if (index < 0 || index >= kChoiceCount)
    return {};
  const std::string_view name = texts.text(textBehind(firstText, index));
  return name == kNotOffered ? std::string_view() : name;
}

std::string_view gameTypeText(int stored, const Texts& texts) {
  return choiceName(kFirstGameTypeText, gameTypeOf(stored), texts);
}

std::string positionText(int position, const Texts& texts) {
  const std::string_view name = choiceName(kFirstPositionText, position, texts);
  return std::string(name.empty() ? kPositionWithoutName : name);
}

std::vector<int> offeredChoices(Text firstText, const Texts& texts) {
  std::vector<int> offered;
  for (int index = 0; index < kChoiceCount; ++index) {
    if (!choiceName(firstText, index, texts).empty())
      offered.push_back(index);
  }
  return offered;
}

int nextChoice(Text firstText, int index, const Texts& texts) {
  int next = index < 0 || index >= kChoiceCount ? kChoiceCount - 1 : index;
  for (int tried = 0; tried < kChoiceCount; ++tried) {
    next = (next + 1) % kChoiceCount;
    if (!choiceName(firstText, next, texts).empty())
      break;
  }
  return next;
}

} // namespace hooptab
