#include "shell/Commands.h"

#include <algorithm>

namespace hooptab {

namespace {

using enum CommandGroup;
using enum CommandKind;

constexpr bool kSeparator = true;

// clang-format off
constexpr Command kCommands[] = {
    {"VIEW", "", 1029, "view", Always, Menu},
      {"VwOPEN", "VIEW", 1030, "vwopen", Always, Action, "Ctrl+O"},
    {"VwREFRESH", "", 1031, "vwrefresh", Scorecard, Action, "F5"},
      {"VwREFSEC00", "VwREFRESH", 1049, "vwrefsec00", Scorecard, Choice, "", kSeparator},
      {"VwREFSEC10", "VwREFRESH", 1051, "vwrefsec10", Scorecard, Choice, "", kSeparator},
      {"VwREFSEC30", "VwREFRESH", 1052, "vwrefsec30", Scorecard, Choice},
      {"VwREFSEC60", "VwREFRESH", 1053, "vwrefsec60", Scorecard, Choice},
    {"VwLIGNE", "", 1032, "vwligne", Scorecard, Swap, "Ctrl+L", false, 1033, "vwplayer"},
    {"VwMA", "", 1034, "vwma", Scorecard, Swap, "Ctrl+M", false, 1035, "vwmafull"},
    {"vwPRINT", "", 1036, "vwprint", Scorecard, Action, "Ctrl+P"},
    {"VwCLOSE", "", 1335, "vwclose", Scorecard, Action, "Ctrl+W"},

    {"STATS", "", 1045, "stats", Always, Action, "Ctrl+T", kSeparator},
      {"StLISTGAMES", "STATS", 1421, "stlistgames", Season, Action, "", kSeparator},
      {"StLISTGAMESSOMM", "STATS", 1422, "stlistgamessomm", Season, Action},
      {"stSTATJOUEURS", "STATS", 1423, "ststatjoueurs", Season, Action, "", kSeparator},
      {"stSTATLIGNES", "STATS", 1424, "ststatlignes", Season, Action},
      {"stSTATJOUEURSAUTRES", "STATS", 1425, "ststatjoueursautres", Season, Action},
      {"stSTATLIGNESAUTRES", "STATS", 1426, "ststatlignesautres", Season, Action},
      {"stMENEURSTOT", "STATS", 1427, "stmeneurstot", Season, Action, "", kSeparator},
      {"stMENEURSMOY", "STATS", 1428, "stmeneursmoy", Season, Action},
      {"stMENEURSMIN", "STATS", 1429, "stmeneursmin", Season, Action},
      {"stRAPJOUEUR", "STATS", 1430, "strapjoueur", Season, Action, "", kSeparator},
      {"stRAPLIGNE", "STATS", 1431, "strapligne", Season, Action},
    {"stPRINT", "", 1435, "stprint", Season, Action, "Ctrl+Shift+P"},
    {"stCLOSE", "", 1338, "stclose", Season, Action, "Ctrl+Shift+T"},

    {"LIVE", "", 1037, "live", Always, Menu, "", kSeparator},
      {"LIVENew", "LIVE", 1038, "livenew", StartOfInput, Action, "Ctrl+N"},
      {"LIVEOpen", "LIVE", 1039, "liveopen", StartOfInput, Action, "Ctrl+Shift+O"},
      {"openFORM", "LIVE", 1238, "openform", Manual, Action, "Ctrl+I", kSeparator},
      {"saveCOPY", "LIVE", 2395, "savecopy", LiveOrManual, Action, "Ctrl+Shift+S", kSeparator},
    {"LIVEKpad", "", 1040, "livekpad", Live, Toggle, "F7"},
    {"LIVEMouse", "", 1042, "livemouse", Live, Toggle, "F8"},
    {"SWITCH", "", 1043, "switch", Live, Action, "F9"},
    {"GAMEOVER", "", 1044, "gameover", Live, Action, "Ctrl+G"},
    {"livePRINT", "", 1224, "liveprint", Live, Action},
    {"saveMANUAL", "", 1384, "savemanual", Manual, Action, "Ctrl+S"},
    {"CLOSELIVEMANUAL", "", 1294, "closelivemanual", LiveOrManual, Action, "Ctrl+Shift+W"},

    {"SETTINGS", "", 1046, "settings", Always, Menu, "", kSeparator},
      {"gEQUIPE", "SETTINGS", 1048, "gequipe", Always, Action, "Ctrl+E"},
      {"tbTERRAIN", "SETTINGS", 1146, "tbterrain", Always, Action, "", kSeparator},
      {"tbKEYPAD", "SETTINGS", 1054, "tbkeypad", Always, Action},
      {"FORMS", "SETTINGS", 1409, "forms", Always, Menu, "", kSeparator},
        {"blankPRINT", "FORMS", 1399, "blankprint", Always, Action},
        {"viergePRINT", "FORMS", 1400, "viergeprint", Always, Action},
      {"tbLANGUE", "SETTINGS", 1074, "tblangue", Always, Action, "F12", kSeparator},

    {"HELP", "", 1380, "help", Always, Menu, "", kSeparator},
      {"AidHELP", "HELP", 1537, "aidhelp", Always, Action, "F1"},
      {"AidWEB", "HELP", 1381, "aidweb", Always, Action},
      {"AidABOUT", "HELP", 1382, "aidabout", Always, Action, "", kSeparator},
};
// clang-format on

} // namespace

std::span<const Command> commands() {
  return kCommands;
}

const Command* findCommand(std::string_view key) {
  const Command* found = std::ranges::find(kCommands, key, &Command::key);
  return found == std::end(kCommands) ? nullptr : found;
}

} // namespace hooptab
