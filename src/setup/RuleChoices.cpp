#include "setup/RuleChoices.h"

#include "appearance/relabel.h"
#include "game/RuleSets.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <utility>

namespace hooptab {

void fillRuleSets(QComboBox& choice, std::string_view chosen, const Texts& texts) {
  const QSignalBlocker quiet(&choice);
  choice.clear();
  choice.addItem(caption(texts, Text::NoRuleSet), QString());
  for (const RuleSet& set : kRuleSets)
    choice.addItem(caption(texts, set.name), toQt(set.key));
  if (choice.findData(toQt(chosen)) < 0)
    choice.addItem(toQt(chosen), toQt(chosen));
  choice.setCurrentIndex(choice.findData(toQt(chosen)));
}

void fillLevels(QComboBox& choice, RecordingLevel chosen, const Texts& texts) {
  const QSignalBlocker quiet(&choice);
  choice.clear();
  for (const auto& [level, name] : {std::pair(RecordingLevel::Basic, Text::LevelBasic),
                                    {RecordingLevel::League, Text::LevelLeague},
                                    {RecordingLevel::Full, Text::LevelFull}})
    choice.addItem(caption(texts, name), static_cast<int>(level));
  choice.setCurrentIndex(choice.findData(static_cast<int>(chosen)));
}

} // namespace hooptab
