// Writes a report to disk in every form it has. Each file is written whole or not at all.
#pragma once

#include "printing/PageFormat.h"
#include "report/ReportText.h"
#include "settings/Text.h"
#include "storage/FileSystem.h"
#include "storage/TaskWatch.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// CsvFrench is for spreadsheets of a French-speaking system.
enum class ReportForm { Pdf, Xlsx, Csv, CsvFrench, Html, Png };

[[nodiscard]] std::string_view endingOf(ReportForm form);                      // "pdf"
[[nodiscard]] std::optional<ReportForm> reportFormOf(std::string_view ending); // small letters
// What others calculate with, so that it is to be whole.
[[nodiscard]] bool holdsData(ReportForm form);
// Forms and pictures are for paper alone: they have no tables to export.
[[nodiscard]] bool canBe(const Report& report, ReportForm form);

// The files of an export: a PDF, a workbook and a web page are one, tables as text and pictures may be
// several. Nothing when it could not be made: cancelled, or without room for temporary files.
[[nodiscard]] std::optional<std::vector<ReportFile>> filesOf(const Report& report, ReportForm form,
                                                             const PageFormat& format,
                                                             std::string_view language,
                                                             const TaskWatch& watch = {});
// Their suffixes, before they are made.
[[nodiscard]] std::vector<std::string> suffixesOf(const Report& report, ReportForm form);
// Where a file of the export stands: "/games/box.csv" with the suffix before the ending.
[[nodiscard]] std::string pathOf(const std::string& path, const std::string& suffix);
// The path of the first file that could not be written; those before it stand. Empty when all is well.
[[nodiscard]] std::string writeFiles(FileSystem& files, const std::string& path,
                                     const std::vector<ReportFile>& contents);

// Why a file of so many bytes could not be written there, as far as looking at the place tells.
enum class WriteProblem { IsFolder, NoFolder, NoRight, NoRoom, Unknown };
[[nodiscard]] WriteProblem writeProblem(const std::string& path, std::size_t bytes);
// What the user is told of it; "XXX" is the path.
[[nodiscard]] Text textOfProblem(WriteProblem problem);

// Vector graphics with text that can be searched. Empty when cancelled.
[[nodiscard]] std::string reportPdf(const Report& report, const PageFormat& format,
                                    const TaskWatch& watch = {});
// Reports of one page each in one file, their pages counted through. Each is told to the watch.
[[nodiscard]] std::string pagesPdf(std::span<const Report> pages, const std::string& title,
                                   const PageFormat& format, const TaskWatch& watch = {});
// A sheet for each table, its head frozen; numbers, percentages and times as such; and one for the flow of a
// game, with a chart of it; and the charts that tables ask for. Nothing when cancelled, or when temporary
// files could not be written.
[[nodiscard]] std::optional<std::string> reportXlsx(const Report& report, const TaskWatch& watch = {});
// The summary on a sheet of its own, then each report of one page on a sheet of that name.
[[nodiscard]] std::optional<std::string> pagesXlsx(const ReportTable& summary, std::span<const Report> pages,
                                                   std::span<const std::string> names,
                                                   const TaskWatch& watch = {});
[[nodiscard]] std::string picturePng(const ReportPicture& picture);

} // namespace hooptab
