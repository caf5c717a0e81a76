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
  int toolTip;
  const char *made, *attempts, *points;
};
inline constexpr std::array kShotControls = {
    ShotControls{EventCode::GFT, "cmdBUTFT", 1091, "lblFT", "lblFTa", "lblFTpts"},
    ShotControls{EventCode::GLG, "cmdBUTLUG", 1094, "lblLUG", "lblLUGa", "lblLUGpts"},
    ShotControls{EventCode::GLD, "cmdBUTLUD", 1090, "lblLUD", "lblLUDa", "lblLUDpts"},
    ShotControls{EventCode::GPB, "cmdBUTPB", 1092, "lblPB", "lblPBa", "lblPBpts"},
    ShotControls{EventCode::GDK, "cmdBUTDK", 1093, "lblDK", "lblDKA", "lblDKpts"},
    ShotControls{EventCode::GFG, nullptr, 0, "lblFG", "lblFGA", "lblFGpts"},
    ShotControls{EventCode::GF3, nullptr, 0, "lblF3", "lblF3a", "lblF3pts"},
};

struct ActionControls {
  EventCode code;
  const char* button;
  int toolTip; // 0: the user's own label
  const char* count;
};
// Row by row, two in each.
inline constexpr std::array kActionControls = {
    ActionControls{EventCode::SPF, "cmdBUTF", 1096, "lblFAUTE"},
    ActionControls{EventCode::STF, "cmdBUTTF", 1097, "lblTFAUTE"},
    ActionControls{EventCode::SOR, "cmdBUTORB", 1101, "lblORB"},
    ActionControls{EventCode::SDR, "cmdBUTDRB", 1100, "lblDRB"},
    ActionControls{EventCode::SA, "cmdBUTA", 1102, "lblA"},
    ActionControls{EventCode::STO, "cmdBUTTO", 1103, "lblTO"},
    ActionControls{EventCode::SST, "cmdBUTST", 1099, "lblST"},
    ActionControls{EventCode::SBS, "cmdBUTBS", 1098, "lblBS"},
    ActionControls{EventCode::SU1, "cmdBUTU1", 0, "lblAUTRE"},
    ActionControls{EventCode::SU2, "cmdBUTU2", 0, "lblAUTRE2"},
};

} // namespace hooptab
