// The numbers of the texts that only the scorecard shows, by name.
#pragma once

namespace hooptab {

// Columns in words; XXX is a kind of shot or a label.
inline constexpr int kMadeOf = 1700;
inline constexpr int kAttemptsOf = 1701;
inline constexpr int kPercentageOf = 1702;
inline constexpr int kPointsOf = 1703;
inline constexpr int kAllShots = 1704;
inline constexpr int kFirstOwnStatistic = 1710;
inline constexpr int kSecondOwnStatistic = 1711;

// Head of the game.
inline constexpr int kPointsByPeriod = 1506;
inline constexpr int kTimeInLead = 1507;
inline constexpr int kFinished = 1552;
inline constexpr int kInProgress = 1553;
inline constexpr int kPeriodNumber = 1590;
inline constexpr int kTeamFouls = 1712;
inline constexpr int kTeamFoulsHint = 1713;
inline constexpr int kTimeInLeadHint = 1714;
inline constexpr int kLastClock = 1715;

// Details and events.
inline constexpr int kAction = 1501;
inline constexpr int kEvents = 1547;
inline constexpr int kGameDetails = 1549;
inline constexpr int kGameDate = 1550;
inline constexpr int kGameNotes = 1716;
inline constexpr int kSearchEvents = 1717;
inline constexpr int kScore = 1718;

// Table and chart.
inline constexpr int kShotChart = 1509;
inline constexpr int kByShot = 1510;
inline constexpr int kByZone = 1511;
inline constexpr int kWithoutPlace = 1513;
inline constexpr int kMadeShots = 1514;
inline constexpr int kMissedShots = 1515;
inline constexpr int kCopyTable = 1559;
inline constexpr int kShownTeam = 1719;
inline constexpr int kTableCopied = 1720;
inline constexpr int kCheckHint = 1721;

// Reading again; XXX is the file, YYY a counter, or the time of day.
inline constexpr int kFileIsGone = 1520;
inline constexpr int kCountOutOfRange = 1523;
inline constexpr int kLastRefresh = 1555;
inline constexpr int kFileCannotBeRead = 1722;

} // namespace hooptab
