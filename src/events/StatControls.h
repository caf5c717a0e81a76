// The names of the controls that record shots and actions, with their tool tips: the same in every player's
// panel and where an event is edited.
#pragma once

#include "game/GameEvent.h"

#include <array>

namespace hooptab {

// Controls of one kind of shot; the court records the kinds without a button.
struct ShotControls {
  EventCode code;
  const char* button;
  Text toolTip;
  const char *made, *attempts, *points;
};
inline constexpr std::array kShotControls = {
    ShotControls{EventCode::GFT, "cmdBUTFT", Text::FreeThrowTip, "lblFT", "lblFTa", "lblFTpts"},
    ShotControls{EventCode::GLG, "cmdBUTLUG", Text::LayupLeftTip, "lblLUG", "lblLUGa", "lblLUGpts"},
    ShotControls{EventCode::GLD, "cmdBUTLUD", Text::LayupRightTip, "lblLUD", "lblLUDa", "lblLUDpts"},
    ShotControls{EventCode::GPB, "cmdBUTPB", Text::PutBackTip, "lblPB", "lblPBa", "lblPBpts"},
    ShotControls{EventCode::GDK, "cmdBUTDK", Text::DunkTip, "lblDK", "lblDKA", "lblDKpts"},
    ShotControls{EventCode::GFG, nullptr, Text::None, "lblFG", "lblFGA", "lblFGpts"},
    ShotControls{EventCode::GF3, nullptr, Text::None, "lblF3", "lblF3a", "lblF3pts"},
};

struct ActionControls {
  EventCode code;
  const char* button;
  Text toolTip; // none: the user's own label
  const char* count;
};
// Row by row, two in each.
inline constexpr std::array kActionControls = {
    ActionControls{EventCode::SPF, "cmdBUTF", Text::PersonalFoulTip, "lblFAUTE"},
    ActionControls{EventCode::STF, "cmdBUTTF", Text::TechnicalFoulTip, "lblTFAUTE"},
    ActionControls{EventCode::SOR, "cmdBUTORB", Text::OffensiveReboundTip, "lblORB"},
    ActionControls{EventCode::SDR, "cmdBUTDRB", Text::DefensiveReboundTip, "lblDRB"},
    ActionControls{EventCode::SA, "cmdBUTA", Text::AssistTip, "lblA"},
    ActionControls{EventCode::STO, "cmdBUTTO", Text::TurnoverTip, "lblTO"},
    ActionControls{EventCode::SST, "cmdBUTST", Text::StealTip, "lblST"},
    ActionControls{EventCode::SBS, "cmdBUTBS", Text::BlockedShotTip, "lblBS"},
    ActionControls{EventCode::SU1, "cmdBUTU1", Text::None, "lblAUTRE"},
    ActionControls{EventCode::SU2, "cmdBUTU2", Text::None, "lblAUTRE2"},
};

} // namespace hooptab
