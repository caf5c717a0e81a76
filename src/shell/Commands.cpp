#include "shell/Commands.h"

#include <algorithm>

namespace hooptab {

namespace {

using enum CommandGroup;
using enum CommandKind;

constexpr bool kSeparator = true;
constexpr bool kBuilt = true;

// clang-format off
constexpr Command kCommands[] = {
    {"VIEW", "", 1029, "view", Always, Menu},
      {"VwOPEN", "VIEW", 1030, "vwopen", Always, Action, "Ctrl+O", false, kBuilt},
    {"VwREFRESH", "", 1031, "vwrefresh", Scorecard, Action, "F5", false, kBuilt},
      {"VwREFSEC00", "VwREFRESH", 1049, "vwrefsec00", Scorecard, Choice, "", kSeparator, kBuilt},
      {"VwREFSEC10", "VwREFRESH", 1051, "vwrefsec10", Scorecard, Choice, "", kSeparator, kBuilt},
      {"VwREFSEC30", "VwREFRESH", 1052, "vwrefsec30", Scorecard, Choice, "", false, kBuilt},
      {"VwREFSEC60", "VwREFRESH", 1053, "vwrefsec60", Scorecard, Choice, "", false, kBuilt},
    {"VwLIGNE", "", 1032, "vwligne", Scorecard, Swap, "Ctrl+L", false, kBuilt, 1033, "vwplayer"},
    {"VwMA", "", 1034, "vwma", Scorecard, Swap, "Ctrl+M", false, kBuilt, 1035, "vwmafull"},
    {"vwPRINT", "", 1036, "vwprint", Scorecard, Action, "Ctrl+P", false, kBuilt},
    {"VwCLOSE", "", 1335, "vwclose", Scorecard, Action, "Ctrl+W", false, kBuilt},

    {"STATS", "", 1045, "stats", Always, Action, "Ctrl+T", kSeparator, kBuilt},
      {"StLISTGAMES", "STATS", 1421, "stlistgames", Season, Action, "", kSeparator, kBuilt},
      {"StLISTGAMESSOMM", "STATS", 1422, "stlistgamessomm", Season, Action, "", false, kBuilt},
      {"stSTATJOUEURS", "STATS", 1423, "ststatjoueurs", Season, Action, "", kSeparator, kBuilt},
      {"stSTATLIGNES", "STATS", 1424, "ststatlignes", Season, Action, "", false, kBuilt},
      {"stSTATJOUEURSAUTRES", "STATS", 1425, "ststatjoueursautres", Season, Action, "", false, kBuilt},
      {"stSTATLIGNESAUTRES", "STATS", 1426, "ststatlignesautres", Season, Action, "", false, kBuilt},
      {"stMENEURSTOT", "STATS", 1427, "stmeneurstot", Season, Action, "", kSeparator, kBuilt},
      {"stMENEURSMOY", "STATS", 1428, "stmeneursmoy", Season, Action, "", false, kBuilt},
      {"stMENEURSMIN", "STATS", 1429, "stmeneursmin", Season, Action, "", false, kBuilt},
      {"stRAPJOUEUR", "STATS", 1430, "strapjoueur", Season, Action, "", kSeparator, kBuilt},
      {"stRAPLIGNE", "STATS", 1431, "strapligne", Season, Action, "", false, kBuilt},
    {"stPRINT", "", 1435, "stprint", Season, Action, "Ctrl+Shift+P", false, kBuilt},
    {"stCLOSE", "", 1338, "stclose", Season, Action, "Ctrl+Shift+T", false, kBuilt},

    {"LIVE", "", 1037, "live", Always, Menu, "", kSeparator},
      {"LIVENew", "LIVE", 1038, "livenew", StartOfInput, Action, "Ctrl+N", false, kBuilt},
      {"LIVEOpen", "LIVE", 1039, "liveopen", StartOfInput, Action, "Ctrl+Shift+O", false, kBuilt},
      {"openFORM", "LIVE", 1238, "openform", Manual, Action, "Ctrl+I", kSeparator, kBuilt},
    {"LIVEKpad", "", 1040, "livekpad", Live, Toggle, "F7", false, kBuilt},
    {"LIVEMouse", "", 1042, "livemouse", Live, Toggle, "F8", false, kBuilt},
    {"SWITCH", "", 1043, "switch", Live, Action, "F9", false, kBuilt},
    {"GAMEOVER", "", 1044, "gameover", Live, Action, "Ctrl+G", false, kBuilt},
    {"livePRINT", "", 1224, "liveprint", Live, Action, "", false, kBuilt},
    {"saveMANUAL", "", 1384, "savemanual", Manual, Action, "Ctrl+S", false, kBuilt},
    {"CLOSELIVEMANUAL", "", 1294, "closelivemanual", LiveOrManual, Action, "Ctrl+Shift+W", false, kBuilt},

    {"SETTINGS", "", 1046, "settings", Always, Menu, "", kSeparator},
      {"gEQUIPE", "SETTINGS", 1048, "gequipe", Always, Action, "Ctrl+E", false, kBuilt},
      {"tbTERRAIN", "SETTINGS", 1146, "tbterrain", Always, Action, "", kSeparator, kBuilt},
      {"tbKEYPAD", "SETTINGS", 1054, "tbkeypad", Always, Action, "", false, kBuilt},
      {"FORMS", "SETTINGS", 1409, "forms", Always, Menu, "", kSeparator},
        {"blankPRINT", "FORMS", 1399, "blankprint", Always, Action, "", false, kBuilt},
        {"viergePRINT", "FORMS", 1400, "viergeprint", Always, Action, "", false, kBuilt},
      {"tbLANGUE", "SETTINGS", 1074, "tblangue", Always, Action, "F12", kSeparator, kBuilt},

    {"HELP", "", 1380, "help", Always, Menu, "", kSeparator},
      {"AidHELP", "HELP", 1537, "aidhelp", Always, Action, "F1", false, kBuilt},
      {"AidWEB", "HELP", 1381, "aidweb", Always, Action, "", false, kBuilt},
      {"AidABOUT", "HELP", 1382, "aidabout", Always, Action, "", kSeparator, kBuilt},
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
