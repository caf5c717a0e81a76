// The columns of a table of totals, in their order: what each counts, on which page it stands, and the names
// of its labels and of its button.
#pragma once

#include "game/EventKind.h"

#include <array>

namespace hooptab {

struct ManualColumn {
  Counter counter;
  EventCode code;
  bool isMade; // of shots: made, else attempts; a button of attempts counts a miss. Actions: true
  int page;    // 1 or 2
  const char* label;
  const char* button; // null for field goals, which have none: they are placed on the court
  Text buttonWords;   // its tool tip
};

inline constexpr int kManualPages = 2;
inline constexpr std::array<ManualColumn, kCounterCount> kManualColumns = {{
    {Counter::FGM, EventCode::GFG, true, 1, "lblFG", nullptr, Text::None},
    {Counter::FGA, EventCode::GFG, false, 1, "lblFGA", nullptr, Text::None},
    {Counter::F3M, EventCode::GF3, true, 1, "lblF3", nullptr, Text::None},
    {Counter::F3A, EventCode::GF3, false, 1, "lblF3a", nullptr, Text::None},
    {Counter::FTM, EventCode::GFT, true, 1, "lblFT", "cmdBUTFT(0)", Text::FreeThrowMadeCount},
    {Counter::FTA, EventCode::GFT, false, 1, "lblFTa", "cmdBUTFT(1)", Text::FreeThrowMissedCount},
    {Counter::LLM, EventCode::GLG, true, 1, "lblLUG", "cmdBUTLUG(0)", Text::LayupLeftMadeCount},
    {Counter::LLA, EventCode::GLG, false, 1, "lblLUGa", "cmdBUTLUG(1)", Text::LayupLeftMissedCount},
    {Counter::LRM, EventCode::GLD, true, 1, "lblLUD", "cmdBUTLUD(0)", Text::LayupRightMadeCount},
    {Counter::LRA, EventCode::GLD, false, 1, "lblLUDa", "cmdBUTLUD(1)", Text::LayupRightMissedCount},
    {Counter::PBM, EventCode::GPB, true, 1, "lblPB", "cmdBUTPB(0)", Text::PutBackMadeCount},
    {Counter::PBA, EventCode::GPB, false, 1, "lblPBa", "cmdBUTPB(1)", Text::PutBackMissedCount},
    {Counter::DKM, EventCode::GDK, true, 1, "lblDK", "cmdBUTDK(0)", Text::DunkMadeCount},
    {Counter::DKA, EventCode::GDK, false, 1, "lblDKA", "cmdBUTDK(1)", Text::DunkMissedCount},
    {Counter::Ast, EventCode::SA, true, 2, "lblA", "cmdBUTA", Text::ACount},
    {Counter::OR, EventCode::SOR, true, 2, "lblORB", "cmdBUTORB", Text::ORCount},
    {Counter::DR, EventCode::SDR, true, 2, "lblDRB", "cmdBUTDRB", Text::DRCount},
    {Counter::BS, EventCode::SBS, true, 2, "lblBS", "cmdBUTBS", Text::BSCount},
    {Counter::ST, EventCode::SST, true, 2, "lblST", "cmdBUTST", Text::STCount},
    {Counter::TO, EventCode::STO, true, 2, "lblTO", "cmdBUTTO", Text::TOCount},
    {Counter::PF, EventCode::SPF, true, 2, "lblFAUTE", "cmdBUTF", Text::PFCount},
    {Counter::TF, EventCode::STF, true, 2, "lblTFAUTE", "cmdBUTTF", Text::TFCount},
    {Counter::S1, EventCode::SU1, true, 2, "lblAUTRE", "cmdBUTU1", Text::OwnCount},
    {Counter::S2, EventCode::SU2, true, 2, "lblAUTRE2", "cmdBUTU2", Text::OwnCount},
}};
static_assert(kManualColumns.back().code != EventCode::Unknown, "a counter without a column");

} // namespace hooptab
