// The numbers of the texts that only reports and their preview show, by name.
#pragma once

namespace hooptab {

// On paper; XXX and YYY are what the page puts in.
inline constexpr int kScorecard = 2200;
inline constexpr int kEveryShot = 2202;
inline constexpr int kPlayByPlay = 2203;
inline constexpr int kTeamRoster = 2204;
inline constexpr int kGameLeaders = 2205;
inline constexpr int kPageOf = 2206;
inline constexpr int kScoreDiagram = 2207;
inline constexpr int kShotsOf = 2208;
inline constexpr int kManyPlayers = 2209;
inline constexpr int kStatistic = 2210;
inline constexpr int kNobodyTried = 2263;
inline constexpr int kPointsFor = 2264;
inline constexpr int kPointsAgainst = 2265;

// Shown elsewhere too.
inline constexpr int kLabelAndValue = 1801; // "XXX: YYY", each language with its own blanks
inline constexpr int kPlayerName = 1023;
inline constexpr int kValue = 2127;
inline constexpr int kFirstRows = 2756; // XXX of YYY

// The preview.
inline constexpr int kZoom = 2220;
inline constexpr int kRows = 2755;
inline constexpr int kAllRows = 2757;
inline constexpr int kBestRows = 2758;
inline constexpr int kFitPage = 2221;
inline constexpr int kFitWidth = 2222;
inline constexpr int kFacingPages = 2223;
inline constexpr int kPaper = 2224;
inline constexpr int kPaperLetter = 2225;
inline constexpr int kOrientation = 2226;
inline constexpr int kAsItFits = 2227;
inline constexpr int kUpright = 2228;
inline constexpr int kAcross = 2229;
inline constexpr int kSavePdf = 2230;
inline constexpr int kSaveXlsx = 2231;
inline constexpr int kSaveCsv = 2232;
inline constexpr int kSaveCsvFrench = 2751;
inline constexpr int kSaveHtml = 2233;
inline constexpr int kSavePictures = 2234;
inline constexpr int kExport = 2235;
inline constexpr int kPagesInAll = 2236;
inline constexpr int kFirstPage = 2237;
inline constexpr int kPreviousPage = 2238;
inline constexpr int kNextPage = 2239;
inline constexpr int kLastPage = 2240;
inline constexpr int kReportNotWritten = 2241;
inline constexpr int kReportSaved = 2242;
inline constexpr int kOpenSaved = 2759;
inline constexpr int kShowSaved = 2630;
inline constexpr int kSavedNotOpened = 2842;
inline constexpr int kSavedIsGone = 2760;
inline constexpr int kNotPrinted = 2243;
inline constexpr int kWhichReport = 2244;
inline constexpr int kClosePreview = 2245;
inline constexpr int kShownPage = 2246;
inline constexpr int kPdfFilter = 2247;
inline constexpr int kXlsxFilter = 2248;
inline constexpr int kCsvFilter = 2249;
inline constexpr int kHtmlFilter = 2250;
inline constexpr int kPngFilter = 2251;
inline constexpr int kSentToPrinter = 2252;

// Exports of tables and pictures, and what can come of writing a file.
inline constexpr int kExportTable = 2350;
inline constexpr int kCopyPicture = 2351;
inline constexpr int kSavePicture = 2352;
inline constexpr int kPictureCopied = 2353;
inline constexpr int kCancelReport = 2354;
inline constexpr int kWritingReport = 2355;
inline constexpr int kPrintingReport = 2356;
inline constexpr int kReportCancelled = 2357;
inline constexpr int kPathIsFolder = 2358;
inline constexpr int kFolderIsMissing = 2359;
inline constexpr int kNoRightToWrite = 2360;
inline constexpr int kNoRoomOnDisk = 2361;
inline constexpr int kNoRoomForTemporary = 2362;
inline constexpr int kNoMemoryForReport = 2363;
inline constexpr int kNoPrinter = 2364;

// The input forms.
inline constexpr int kInputForm = 2260;
inline constexpr int kFormHint = 2261;
inline constexpr int kFormSheet = 2262;

} // namespace hooptab
