#include "shell/Commands.h"

#include <algorithm>

namespace hooptab {

namespace {

using enum CommandGroup;
using enum CommandKind;

constexpr bool kSeparator = true;

// clang-format off
constexpr Command kCommands[] = {
    {"VIEW", "", Text::ViewGameScorecard, "view", Always, Menu},
      {"VwOPEN", "VIEW", Text::OpenAGame, "vwopen", Always, Action, "Ctrl+O"},
    {"VwREFRESH", "", Text::RefreshStatisticsDuringAGame, "vwrefresh", Scorecard, Action, "F5"},
      {"VwREFSEC00", "VwREFRESH", Text::ManualRefresh, "vwrefsec00", Scorecard, Choice, "", kSeparator},
      {"VwREFSEC10", "VwREFRESH", Text::EveryTenSeconds, "vwrefsec10", Scorecard, Choice, "", kSeparator},
      {"VwREFSEC30", "VwREFRESH", Text::EveryThirtySeconds, "vwrefsec30", Scorecard, Choice},
      {"VwREFSEC60", "VwREFRESH", Text::EverySixtySeconds, "vwrefsec60", Scorecard, Choice},
    {"VwLIGNE", "", Text::ViewByLine, "vwligne", Scorecard, Swap, "Ctrl+L", false, Text::ViewByPlayer, "vwplayer"},
    {"VwMA", "", Text::StatisticsWithoutMadeAndAttempt, "vwma", Scorecard, Swap, "Ctrl+M", false, Text::StatisticsWithMadeAndAttempt, "vwmafull"},
    {"vwPRINT", "", Text::GenerateScorecardReports, "vwprint", Scorecard, Action, "Ctrl+P"},
    {"VwCLOSE", "", Text::CloseGame, "vwclose", Scorecard, Action, "Ctrl+W"},

    {"STATS", "", Text::SeasonTitle, "stats", Always, Action, "Ctrl+T", kSeparator},
      {"StLISTGAMES", "STATS", Text::TeamSummary, "stlistgames", Season, Action, "", kSeparator},
      {"StLISTGAMESSOMM", "STATS", Text::TeamDetail, "stlistgamessomm", Season, Action},
      {"stSTATJOUEURS", "STATS", Text::PlayerShots, "ststatjoueurs", Season, Action, "", kSeparator},
      {"stSTATLIGNES", "STATS", Text::LineShots, "ststatlignes", Season, Action},
      {"stSTATJOUEURSAUTRES", "STATS", Text::PlayerOther, "ststatjoueursautres", Season, Action},
      {"stSTATLIGNESAUTRES", "STATS", Text::LineOther, "ststatlignesautres", Season, Action},
      {"stMENEURSTOT", "STATS", Text::LeadersTotal, "stmeneurstot", Season, Action, "", kSeparator},
      {"stMENEURSMOY", "STATS", Text::LeadersPerGame, "stmeneursmoy", Season, Action},
      {"stMENEURSMIN", "STATS", Text::LeadersPerMinute, "stmeneursmin", Season, Action},
      {"stRAPJOUEUR", "STATS", Text::PlayerReport, "strapjoueur", Season, Action, "", kSeparator},
      {"stRAPLIGNE", "STATS", Text::LineReport, "strapligne", Season, Action},
    {"stPRINT", "", Text::PrintSeason, "stprint", Season, Action, "Ctrl+Shift+P"},
    {"stCLOSE", "", Text::CloseSeason, "stclose", Season, Action, "Ctrl+Shift+T"},

    {"LIVE", "", Text::InputGame, "live", Always, Menu, "", kSeparator},
      {"LIVENew", "LIVE", Text::CreateANewGame, "livenew", StartOfInput, Action, "Ctrl+N"},
      {"LIVEOpen", "LIVE", Text::OpenAnExistingGame, "liveopen", StartOfInput, Action, "Ctrl+Shift+O"},
      {"openFORM", "LIVE", Text::OpenScannedForm, "openform", Manual, Action, "Ctrl+I", kSeparator},
      {"saveCOPY", "LIVE", Text::SaveCopy, "savecopy", LiveOrManual, Action, "Ctrl+Shift+S", kSeparator},
    {"LIVEKpad", "", Text::KeypadActivation, "livekpad", Live, Toggle, "F7"},
    {"LIVEMouse", "", Text::InputReboundsWithMouse, "livemouse", Live, Toggle, "F8"},
    {"SWITCH", "", Text::SwitchSides, "switch", Live, Action, "F9"},
    {"GAMEOVER", "", Text::GameOverMenu, "gameover", Live, Action, "Ctrl+G"},
    {"livePRINT", "", Text::PrintWord, "liveprint", Live, Action},
    {"saveMANUAL", "", Text::SaveInGameFile, "savemanual", Manual, Action, "Ctrl+S"},
    {"CLOSELIVEMANUAL", "", Text::CloseButton, "closelivemanual", LiveOrManual, Action, "Ctrl+Shift+W"},

    {"SETTINGS", "", Text::HooptabConfiguration, "settings", Always, Menu, "", kSeparator},
      {"gEQUIPE", "SETTINGS", Text::TeamManagement, "gequipe", Always, Action, "Ctrl+E"},
      {"tbTERRAIN", "SETTINGS", Text::ColourSettings, "tbterrain", Always, Action, "", kSeparator},
      {"tbKEYPAD", "SETTINGS", Text::KeypadTitle, "tbkeypad", Always, Action},
      {"FORMS", "SETTINGS", Text::PrintInputForm, "forms", Always, Menu, "", kSeparator},
        {"blankPRINT", "FORMS", Text::PreparedForms, "blankprint", Always, Action},
        {"viergePRINT", "FORMS", Text::BlankForms, "viergeprint", Always, Action},
      {"tbLANGUE", "SETTINGS", Text::LanguageName, "tblangue", Always, Action, "F12", kSeparator},

    {"HELP", "", Text::Help, "help", Always, Menu, "", kSeparator},
      {"AidHELP", "HELP", Text::UserGuide, "aidhelp", Always, Action, "F1"},
      {"AidWEB", "HELP", Text::WebSite, "aidweb", Always, Action},
      {"AidABOUT", "HELP", Text::About, "aidabout", Always, Action, "", kSeparator},
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
