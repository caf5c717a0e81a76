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
  int buttonWords;    // number of the text of its tool tip
};

inline constexpr int kManualPages = 2;
inline constexpr std::array<ManualColumn, kCounterCount> kManualColumns = {{
    {Counter::FGM, EventCode::GFG, true, 1, "lblFG", nullptr, 0},
    {Counter::FGA, EventCode::GFG, false, 1, "lblFGA", nullptr, 0},
    {Counter::F3M, EventCode::GF3, true, 1, "lblF3", nullptr, 0},
    {Counter::F3A, EventCode::GF3, false, 1, "lblF3a", nullptr, 0},
    {Counter::FTM, EventCode::GFT, true, 1, "lblFT", "cmdBUTFT(0)", 1212},
    {Counter::FTA, EventCode::GFT, false, 1, "lblFTa", "cmdBUTFT(1)", 1217},
    {Counter::LLM, EventCode::GLG, true, 1, "lblLUG", "cmdBUTLUG(0)", 1213},
    {Counter::LLA, EventCode::GLG, false, 1, "lblLUGa", "cmdBUTLUG(1)", 1218},
    {Counter::LRM, EventCode::GLD, true, 1, "lblLUD", "cmdBUTLUD(0)", 1214},
    {Counter::LRA, EventCode::GLD, false, 1, "lblLUDa", "cmdBUTLUD(1)", 1219},
    {Counter::PBM, EventCode::GPB, true, 1, "lblPB", "cmdBUTPB(0)", 1215},
    {Counter::PBA, EventCode::GPB, false, 1, "lblPBa", "cmdBUTPB(1)", 1220},
    {Counter::DKM, EventCode::GDK, true, 1, "lblDK", "cmdBUTDK(0)", 1216},
    {Counter::DKA, EventCode::GDK, false, 1, "lblDKA", "cmdBUTDK(1)", 1221},
    {Counter::Ast, EventCode::SA, true, 2, "lblA", "cmdBUTA", 1392},
    {Counter::OR, EventCode::SOR, true, 2, "lblORB", "cmdBUTORB", 1385},
    {Counter::DR, EventCode::SDR, true, 2, "lblDRB", "cmdBUTDRB", 1386},
    {Counter::BS, EventCode::SBS, true, 2, "lblBS", "cmdBUTBS", 1388},
    {Counter::ST, EventCode::SST, true, 2, "lblST", "cmdBUTST", 1387},
    {Counter::TO, EventCode::STO, true, 2, "lblTO", "cmdBUTTO", 1389},
    {Counter::PF, EventCode::SPF, true, 2, "lblFAUTE", "cmdBUTF", 1390},
    {Counter::TF, EventCode::STF, true, 2, "lblTFAUTE", "cmdBUTTF", 1391},
    {Counter::S1, EventCode::SU1, true, 2, "lblAUTRE", "cmdBUTU1", 1393},
    {Counter::S2, EventCode::SU2, true, 2, "lblAUTRE2", "cmdBUTU2", 1393},
}};

} // namespace hooptab
