#include "court/CourtColourChoice.h"

#include "storage/codepage.h"

#include <algorithm>

namespace hooptab {

CourtColourChoice CourtColourChoice::of(const Settings& settings) {
  CourtColourChoice choice;
  choice.colours = {settings.twoPointColour, settings.boxColour, settings.threePointColour,
                    settings.buttonColour};
  for (const std::size_t which : {0U, 1U})
    choice.label[which] = Settings::shownLabel(settings.statisticLabel[which]);
  return choice;
}

std::string CourtColourChoice::prefix(std::size_t which) {
  return which == 0 ? "U1-" : "U2-";
}

CourtColourChoice::Problem CourtColourChoice::problem() const {
  const bool areDistinct = colours.twoPoints != colours.box && colours.box != colours.threePoints &&
                           colours.threePoints != colours.twoPoints;
  return areDistinct ? Problem::None : Problem::SameColours;
}

std::string CourtColourChoice::storedLabel(std::size_t which) const {
  std::string text = codepage::storedForm(label[which]);
  std::ranges::replace(text, ',', ' ');       // labels stand in records of comma fields
  text.erase(text.find_last_not_of(' ') + 1); // the file gives back none at the end
  return prefix(which) + text;
}

bool CourtColourChoice::save(Settings& settings) const {
  return settings.saveAppearance(colours, {storedLabel(0), storedLabel(1)});
}

} // namespace hooptab
