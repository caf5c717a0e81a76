#include "scorecard/ColumnWords.h"

#include "game/Glossary.h"
#include "scorecard/BoxScore.h"

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

struct NamedText {
  std::string_view column;
  Text text;
};
// What a group of shot columns holds, by the end of the column's name.
constexpr NamedText kShotColumns[] = {
    {"M", Text::MadeOf},
    {"A", Text::AttemptsOf},
    {"%", Text::PercentageOf},
    {"PTS", Text::PointsOf},
};

std::optional<std::string> shotWords(std::string_view ending, std::string_view kind, const Texts& texts) {
  const auto* found = std::ranges::find(kShotColumns, ending, &NamedText::column);
  if (found == std::end(kShotColumns))
    return std::nullopt;
  return texts.withPlaceholder(found->text, kind);
}

std::string ownStatistic(std::size_t index, const std::string (&gameLabels)[2], const Settings& settings,
                         const Texts& texts) {
  std::string label = Settings::shownLabel(gameLabels[index]);
  if (label.empty())
    label = Settings::shownLabel(settings.statisticLabel[index]);
  std::string words =
      texts.withPlaceholder(index == 0 ? Text::FirstOwnStatistic : Text::SecondOwnStatistic, label);
  if (label.empty())
    words.resize(words.find_last_not_of(" :") + 1); // nothing stands behind the colon
  return words;
}

} // namespace

std::string columnWords(int column, const std::string (&gameLabels)[2], const Settings& settings,
                        const Texts& texts) {
  const std::string_view name = boxColumns()[static_cast<std::size_t>(column - 1)].name;
  if (name == "S1")
    return ownStatistic(0, gameLabels, settings, texts);
  if (name == "S2")
    return ownStatistic(1, gameLabels, settings, texts);
  if (const Text words = termWords(name); words != Text::None)
    return std::string(texts.text(words));
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot && name.starts_with(kind.shortName)) {
      if (auto words = shotWords(name.substr(kind.shortName.size()), texts.text(kind.wordsText), texts))
        return *words;
    }
  }
  return shotWords(name, texts.text(Text::AllShots), texts).value_or(std::string(name));
}

} // namespace hooptab
