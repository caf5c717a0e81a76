// The tables of a report, and a game whose every text and number is as long as a file can hold, with names
// that a spreadsheet or a web page could take for something else.
#pragma once

#include "report/Report.h"
#include "support/TextGame.h"

#include <string>

namespace hooptab {

inline std::vector<const ReportTable*> tables(const Report& report) {
  std::vector<const ReportTable*> found;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block))
      found.push_back(table);
  }
  return found;
}

// `each` is how often every player does everything in each of four periods.
inline std::string crowdedText(int each = 26) {
  const std::string kinds[] = {"GFG", "GFT", "GF3", "GLG", "GLD", "GPB", "GDK", "SA", "SBS",
                               "SST", "STO", "SOR", "SDR", "SU1", "SU2", "SPF", "STF"};
  std::string text =
      "[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=WWWWWWW\nEQUIPE1ABB==1+2\nNBREPERIODE=4\nDUREE=10\nTERMINE=1\n"
      "DATE=2026-11-05\nEQUIPE0NOM=" +
      std::string(120, 'W') + "\nEQUIPE1NOM=Side <b>&\nNOTES=" + std::string(254, 'M') + "\n[0]\n";
  for (int player = 0; player < 15; ++player)
    text += std::to_string(100 + player) + "=1," + std::string(56, 'W') + ' ' + std::to_string(player) + "\n";
  text += "[1]\n3=0,=SUM(A1)\n7=1,<script>\n8=2,+Plus\n11=9,-Minus\n22=0,@At\"quote\n";
  int number = 0;
  for (int period = 1; period <= 4; ++period) {
    text += "[PERIODE" + std::to_string(period) + "]\n";
    const auto add = [&](const std::string& event) { text += std::to_string(++number) + "=" + event + "\n"; };
    add("10:00,ARRET,IN-100-101-102-103-104,IN-03-07-08-11-22");
    for (int line = 0; line < 8; ++line) { // 32 lines in all
      std::string list = "IN";
      for (int i = 0; i < 4; ++i)
        list += "-" + std::to_string(100 + (line + i) % 15);
      list += "-" + std::to_string(100 + (line + 3 + period) % 15);
      add("0" + std::to_string(9 - line) + ":30,ARRET," + list + ",IN-03-07-08-11-22");
    }
    for (int player = 0; player < 15; ++player) {
      for (const std::string& kind : kinds) {
        for (int count = 0; count < each; ++count) {
          const std::string place = kind == "GFG" || kind == "GF3" ? ",40,50" : "";
          add("01:00," + kind + ",0-" + std::to_string(100 + player) + place);
        }
      }
    }
    add("00:30,GF3A,1-3,110,90");
    add("00:20,GF3,1-22,60,20");
  }
  return text;
}
inline Game crowdedGame(int each = 26) {
  return gameOfText(crowdedText(each));
}

} // namespace hooptab
