// The numbers of the texts that only the season's windows show, by name.
#pragma once

namespace hooptab {

// Parts of the window.
inline constexpr int kSeasonTitle = 1045;
inline constexpr int kGamesTab = 1307;
inline constexpr int kPlayersTab = 2100;
inline constexpr int kLinesTab = 2101;
inline constexpr int kLeadersTab = 2102;
inline constexpr int kPersonTab = 2103;
inline constexpr int kTeamTab = 1305;
inline constexpr int kNotReadTab = 2104;

// Folder and reading; XXX is a number, a folder, or a file.
inline constexpr int kGamesFolder = 1301;
inline constexpr int kBrowseFolders = 1369;
inline constexpr int kWithSubfolders = 2105;
inline constexpr int kReadAgain = 2106;
inline constexpr int kLoadingGames = 1374;
inline constexpr int kGeneratingStatistics = 1375;
inline constexpr int kLoadingPerson = 1411;
inline constexpr int kLoadingOneGame = 2743;
inline constexpr int kGeneratingOfOne = 2744;
inline constexpr int kLoadingOneOfPerson = 2745;
inline constexpr int kCancelReading = 1397;
inline constexpr int kListedGames = 2107; // XXX of YYY
inline constexpr int kListedOfOne = 2734;
inline constexpr int kFilesNotRead = 2108;
inline constexpr int kOneFileNotRead = 2109;
inline constexpr int kOneGameNotFinished = 2746;
inline constexpr int kGamesNotFinished = 2747;
inline constexpr int kFolderMissing = 2110;
inline constexpr int kFolderUnreadable = 2111;
inline constexpr int kNoGames = 2112;
inline constexpr int kReadingCancelled = 2113;
inline constexpr int kNoMemory = 2114;
inline constexpr int kFileColumn = 1524;
inline constexpr int kReasonColumn = 2115;
inline constexpr int kSameGameAs = 2056;
inline constexpr int kSameGameOtherEvents = 2748;

// Criteria.
inline constexpr int kCriteria = 1306;
inline constexpr int kTeamCriterion = 1305;
inline constexpr int kTypeCriterion = 1122;
inline constexpr int kWhereCriterion = 1304;
inline constexpr int kInputCriterion = 1303;
inline constexpr int kPositionCriterion = 1839;
inline constexpr int kDateCriterion = 1550;
inline constexpr int kFromDate = 1404;
inline constexpr int kToDate = 1370;
inline constexpr int kAnything = 1015;
inline constexpr int kNeedsTeam = 2749;
inline constexpr int kHome = 1200;
inline constexpr int kAway = 1201;
inline constexpr int kApply = 1155;
inline constexpr int kApplyHint = 2116;
inline constexpr int kGenerate = 1367;
inline constexpr int kGenerateHint = 1368;
inline constexpr int kCountOnce = 2117;
inline constexpr int kLeaveOutWrong = 2697;
inline constexpr int kCountWrongToo = 2698;

// Tables.
inline constexpr int kPlayerTitle = 1180;
inline constexpr int kLineTitle = 1193;
inline constexpr int kTotals = 2118;
inline constexpr int kPerGame = 2119;
inline constexpr int kPerMinute = 2120;
inline constexpr int kPerForty = 2720;
inline constexpr int kShortTimeWarning = 2121;
inline constexpr int kNotGenerated = 2122;
inline constexpr int kOutdated = 2123;
inline constexpr int kOutdatedOfOne = 2742;
inline constexpr int kOfGames = 2124;
inline constexpr int kOfOneGame = 2733;
inline constexpr int kStatisticColumn = 2125;
inline constexpr int kLeaderColumn = 2126;
inline constexpr int kValueColumn = 2127;
inline constexpr int kOpensGame = 2128;
inline constexpr int kOpensPerson = 2129;

// The minimum for averages; XXX and YYY are its numbers.
inline constexpr int kUnderGames = 2721;
inline constexpr int kUnderMinutes = 2722;
inline constexpr int kMinimumPerGame = 2723;
inline constexpr int kMinimumPerTime = 2724;
inline constexpr int kMinimumOfTotals = 2725;
inline constexpr int kMinimum = 2726;
inline constexpr int kMinimumUnits[] = {2727, 2728, 2729}; // games, minutes, attempts
inline constexpr int kMinimumHints[] = {2730, 2731, 2732};

// Columns in words.
inline constexpr int kFieldGoals = 2134;
inline constexpr int kRating = 2145;

// A player or line, a team, and their pictures.
inline constexpr int kPersonalRecords = 1405;
inline constexpr int kLineRecords = 1412;
inline constexpr int kResultsByGame = 1415;
inline constexpr int kChooseSomebody = 2135;
inline constexpr int kShownStatistic = 2136;
inline constexpr int kAverageIs = 2137;
inline constexpr int kSeasonChart = 2138;
inline constexpr int kDifferenceLegend = 2139;
inline constexpr int kMargins = 2140;
inline constexpr int kOneWin = 2735;
inline constexpr int kWins = 2736;
inline constexpr int kOneLoss = 2737;
inline constexpr int kLosses = 2738;
inline constexpr int kOneTie = 2739;
inline constexpr int kTies = 2740;
inline constexpr int kGameByGame = 2142;
inline constexpr int kNoShots = 2143;
inline constexpr int kPersonGames = 2144;
inline constexpr int kOnePersonGame = 2741;

} // namespace hooptab
