#include "shell/Commands.h"

#include <iterator>

namespace hooptab {

namespace {

using enum CommandGroup;
using enum CommandId;
using enum CommandKind;

constexpr bool kSeparator = true;

// clang-format off
constexpr Command kCommands[] = {
    {ViewMenu, "VIEW", None, Text::ViewGameScorecard, "view", Always, Menu},
      {OpenScorecard, "VwOPEN", ViewMenu, Text::OpenAGame, "vwopen", Always, Action, "Ctrl+O"},
      {ImportGames, "IMPORT", ViewMenu, Text::ImportGames, "import", Always, Action, "Ctrl+Shift+I", kSeparator},
      {ExportGame, "EXPORT", ViewMenu, Text::ExportGame, "export", Always, Action, "Ctrl+Shift+E"},
    {Refresh, "VwREFRESH", None, Text::RefreshStatisticsDuringAGame, "vwrefresh", Scorecard, Action, "F5"},
      {RefreshByHand, "VwREFSEC00", Refresh, Text::ManualRefresh, "vwrefsec00", Scorecard, Choice, "", kSeparator},
      {Refresh10, "VwREFSEC10", Refresh, Text::EveryTenSeconds, "vwrefsec10", Scorecard, Choice, "", kSeparator},
      {Refresh30, "VwREFSEC30", Refresh, Text::EveryThirtySeconds, "vwrefsec30", Scorecard, Choice},
      {Refresh60, "VwREFSEC60", Refresh, Text::EverySixtySeconds, "vwrefsec60", Scorecard, Choice},
    {ByLine, "VwLIGNE", None, Text::ViewByLine, "vwligne", Scorecard, Swap, "Ctrl+L", false, Text::ViewByPlayer, "vwplayer"},
    {MadeAttempted, "VwMA", None, Text::StatisticsWithoutMadeAndAttempt, "vwma", Scorecard, Swap, "Ctrl+M", false, Text::StatisticsWithMadeAndAttempt, "vwmafull"},
    {PrintScorecard, "vwPRINT", None, Text::GenerateScorecardReports, "vwprint", Scorecard, Action, "Ctrl+P"},
    {CloseScorecard, "VwCLOSE", None, Text::CloseGame, "vwclose", Scorecard, Action, "Ctrl+W"},

    {OpenSeason, "STATS", None, Text::SeasonTitle, "stats", Always, Action, "Ctrl+T", kSeparator},
      {TeamSummary, "StLISTGAMES", OpenSeason, Text::TeamSummary, "stlistgames", Season, Action, "", kSeparator},
      {TeamDetail, "StLISTGAMESSOMM", OpenSeason, Text::TeamDetail, "stlistgamessomm", Season, Action},
      {PlayerShots, "stSTATJOUEURS", OpenSeason, Text::PlayerShots, "ststatjoueurs", Season, Action, "", kSeparator},
      {LineShots, "stSTATLIGNES", OpenSeason, Text::LineShots, "ststatlignes", Season, Action},
      {PlayerOther, "stSTATJOUEURSAUTRES", OpenSeason, Text::PlayerOther, "ststatjoueursautres", Season, Action},
      {LineOther, "stSTATLIGNESAUTRES", OpenSeason, Text::LineOther, "ststatlignesautres", Season, Action},
      {LeadersTotal, "stMENEURSTOT", OpenSeason, Text::LeadersTotal, "stmeneurstot", Season, Action, "", kSeparator},
      {LeadersPerGame, "stMENEURSMOY", OpenSeason, Text::LeadersPerGame, "stmeneursmoy", Season, Action},
      {LeadersPerMinute, "stMENEURSMIN", OpenSeason, Text::LeadersPerMinute, "stmeneursmin", Season, Action},
      {PlayerReport, "stRAPJOUEUR", OpenSeason, Text::PlayerReport, "strapjoueur", Season, Action, "", kSeparator},
      {LineReport, "stRAPLIGNE", OpenSeason, Text::LineReport, "strapligne", Season, Action},
      {GamesToFile, "stGAMES", OpenSeason, Text::WeekendCommand, "stgames", Season, Action, "", kSeparator},
    {PrintSeason, "stPRINT", None, Text::PrintSeason, "stprint", Season, Action, "Ctrl+Shift+P"},
    {CloseSeason, "stCLOSE", None, Text::CloseSeason, "stclose", Season, Action, "Ctrl+Shift+T"},

    {InputMenu, "LIVE", None, Text::InputGame, "live", Always, Menu, "", kSeparator},
      {NewGame, "LIVENew", InputMenu, Text::CreateANewGame, "livenew", StartOfInput, Action, "Ctrl+N"},
      {OpenForInput, "LIVEOpen", InputMenu, Text::OpenAnExistingGame, "liveopen", StartOfInput, Action, "Ctrl+Shift+O"},
      {OpenForms, "openFORM", InputMenu, Text::OpenScannedForm, "openform", Manual, Action, "Ctrl+I", kSeparator},
      {SaveCopy, "saveCOPY", InputMenu, Text::SaveCopy, "savecopy", LiveOrManual, Action, "Ctrl+Shift+S", kSeparator},
      {GameSheet, "SHEET", InputMenu, Text::GameSheet, "sheet", Live, Action},
      {BenchView, "LIVEBench", InputMenu, Text::BenchView, "livebench", Live, Action, "Ctrl+B"},
      {ShareGame, "LIVEShare", InputMenu, Text::ShareCommand, "liveshare", Always, Action, "", kSeparator},
    {Keypad, "LIVEKpad", None, Text::KeypadActivation, "livekpad", Live, Toggle, "F7"},
    {AskRebounds, "LIVEMouse", None, Text::InputReboundsWithMouse, "livemouse", Live, Toggle, "F8"},
    {SwitchSides, "SWITCH", None, Text::SwitchSides, "switch", Live, Action, "F9"},
    {GameOver, "GAMEOVER", None, Text::GameOverMenu, "gameover", Live, Action, "Ctrl+G"},
    {PrintGame, "livePRINT", None, Text::PrintWord, "liveprint", Live, Action},
    {SaveTotals, "saveMANUAL", None, Text::SaveInGameFile, "savemanual", Manual, Action, "Ctrl+S"},
    {CloseInput, "CLOSELIVEMANUAL", None, Text::CloseButton, "closelivemanual", LiveOrManual, Action, "Ctrl+Shift+W"},

    {SettingsMenu, "SETTINGS", None, Text::HooptabConfiguration, "settings", Always, Menu, "", kSeparator},
      {OpenTeams, "gEQUIPE", SettingsMenu, Text::TeamManagement, "gequipe", Always, Action, "Ctrl+E"},
      {CourtColours, "tbTERRAIN", SettingsMenu, Text::ColourSettings, "tbterrain", Always, Action, "", kSeparator},
      {OpenKeys, "tbKEYPAD", SettingsMenu, Text::KeypadTitle, "tbkeypad", Always, Action},
      {OpenRating, "tbRATING", SettingsMenu, Text::OwnRatingGroup, "tbrating", Always, Action},
      {FormsMenu, "FORMS", SettingsMenu, Text::PrintInputForm, "forms", Always, Menu, "", kSeparator},
        {PreparedForms, "blankPRINT", FormsMenu, Text::PreparedForms, "blankprint", Always, Action},
        {BlankForms, "viergePRINT", FormsMenu, Text::BlankForms, "viergeprint", Always, Action},
      {Language, "tbLANGUE", SettingsMenu, Text::LanguageName, "tblangue", Always, Action, "F12", kSeparator},

    {HelpMenu, "HELP", None, Text::Help, "help", Always, Menu, "", kSeparator},
      {Guide, "AidHELP", HelpMenu, Text::UserGuide, "aidhelp", Always, Action, "F1"},
      {WebSite, "AidWEB", HelpMenu, Text::WebSite, "aidweb", Always, Action},
      {About, "AidABOUT", HelpMenu, Text::About, "aidabout", Always, Action, "", kSeparator},
};
// clang-format on

constexpr bool isInOrder() {
  for (std::size_t i = 0; i < std::size(kCommands); ++i) {
    if (kCommands[i].id != static_cast<CommandId>(i))
      return false;
  }
  return std::size(kCommands) == kCommandCount;
}
static_assert(isInOrder());

} // namespace

std::span<const Command> commands() {
  return kCommands;
}

const Command& commandOf(CommandId id) {
  return kCommands[static_cast<std::size_t>(id)];
}

} // namespace hooptab
