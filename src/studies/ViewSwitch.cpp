#include "studies/ViewSwitch.h"

namespace hooptab {

namespace {

constexpr ChoiceSwitch::Button kButtons[] = {{"cmdTOTALS", Text::Totals},
                                             {"cmdPERGAME", Text::PerGame},
                                             {"cmdPERMINUTE", Text::PerMinute},
                                             {"cmdPERFORTY", Text::PerForty}};

} // namespace

ViewSwitch::ViewSwitch(QWidget* parent) : ChoiceSwitch(kButtons, parent) {
  connect(this, &ChoiceSwitch::chosen, this,
          [this](int button) { emit viewChosen(static_cast<SeasonView>(button)); });
}

} // namespace hooptab
