#include "printing/ReportFiles.h"

#include "storage/AtomicFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace hooptab {

namespace {

constexpr std::array<std::pair<ReportForm, std::string_view>, 6> kForms = {{{ReportForm::Pdf, "pdf"},
                                                                            {ReportForm::Xlsx, "xlsx"},
                                                                            {ReportForm::Csv, "csv"},
                                                                            {ReportForm::CsvFrench, "csv"},
                                                                            {ReportForm::Html, "html"},
                                                                            {ReportForm::Png, "png"}}};

template <class Block>
bool has(const Report& report) {
  return std::ranges::any_of(report.blocks,
                             [](const ReportBlock& block) { return std::holds_alternative<Block>(block); });
}

std::string pictureSuffix(std::size_t place) {
  return place == 0 ? std::string() : "-" + std::to_string(place + 1);
}

std::size_t pictureCount(const Report& report) {
  return static_cast<std::size_t>(std::ranges::count_if(
      report.blocks, [](const ReportBlock& block) { return std::holds_alternative<ReportPicture>(block); }));
}

std::vector<ReportFile> pictures(const Report& report, const TaskWatch& watch) {
  std::vector<ReportFile> files;
  watch.progress(0, pictureCount(report));
  for (const ReportBlock& block : report.blocks) {
    const auto* picture = std::get_if<ReportPicture>(&block);
    if (picture == nullptr || watch.isCancelled())
      continue;
    files.push_back({pictureSuffix(files.size()), picturePng(*picture)});
    watch.advance();
  }
  return files;
}

} // namespace

std::string_view endingOf(ReportForm form) {
  return std::ranges::find(kForms, form, &std::pair<ReportForm, std::string_view>::first)->second;
}

std::optional<ReportForm> reportFormOf(std::string_view ending) {
  const auto* found = std::ranges::find(kForms, ending, &std::pair<ReportForm, std::string_view>::second);
  return found == kForms.end() ? std::nullopt : std::optional(found->first);
}

bool holdsData(ReportForm form) {
  return form == ReportForm::Xlsx || form == ReportForm::Csv || form == ReportForm::CsvFrench;
}

bool canBe(const Report& report, ReportForm form) {
  switch (form) {
  case ReportForm::Xlsx:
  case ReportForm::Csv:
  case ReportForm::CsvFrench: return has<ReportTable>(report);
  case ReportForm::Html: return !has<FormSheet>(report);
  case ReportForm::Png: return has<ReportPicture>(report);
  case ReportForm::Pdf: break;
  }
  return true;
}

std::optional<std::vector<ReportFile>> filesOf(const Report& report, ReportForm form,
                                               const PageFormat& format, std::string_view language,
                                               const TaskWatch& watch) {
  const auto one = [](std::string bytes) { return std::vector<ReportFile>{{{}, std::move(bytes)}}; };
  std::optional<std::vector<ReportFile>> files;
  switch (form) {
  case ReportForm::Pdf: files = one(reportPdf(report, format, watch)); break;
  case ReportForm::Xlsx:
    if (std::optional<std::string> bytes = reportXlsx(report, watch))
      files = one(std::move(*bytes));
    break;
  case ReportForm::Csv: files = reportCsv(report); break;
  case ReportForm::CsvFrench: files = reportCsv(report, CsvReader::French); break;
  case ReportForm::Html: files = one(reportHtml(report, language, picturePng, watch)); break;
  case ReportForm::Png: files = pictures(report, watch); break;
  }
  return watch.isCancelled() ? std::nullopt : std::move(files);
}

std::vector<std::string> suffixesOf(const Report& report, ReportForm form) {
  if (form == ReportForm::Csv || form == ReportForm::CsvFrench)
    return csvSuffixes(report);
  std::vector<std::string> suffixes = {{}};
  if (form == ReportForm::Png) {
    for (std::size_t place = 1; place < pictureCount(report); ++place)
      suffixes.push_back(pictureSuffix(place));
  }
  return suffixes;
}

std::string pathOf(const std::string& path, const std::string& suffix) {
  const std::size_t slash = path.rfind('/');
  const std::size_t dot = path.rfind('.');
  const bool hasEnding = dot != std::string::npos && (slash == std::string::npos || dot > slash);
  return hasEnding ? path.substr(0, dot) + suffix + path.substr(dot) : path + suffix;
}

std::string writeFiles(FileSystem& files, const std::string& path, const std::vector<ReportFile>& contents) {
  for (const ReportFile& content : contents) {
    FileStamp stamp;
    const std::string target = pathOf(path, content.suffix);
    if (!replaceWholeFile(files, target, content.bytes, stamp).isOnDisk())
      return target;
  }
  return {};
}

WriteProblem writeProblem(const std::string& path, std::size_t bytes) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  if (fs::is_directory(path, ignored))
    return WriteProblem::IsFolder;
  const fs::path parent = fs::path(path).parent_path();
  const fs::path folder = parent.empty() ? fs::path(".") : parent;
  if (!fs::is_directory(folder, ignored))
    return WriteProblem::NoFolder;
  // No permission bit at all is a no for the administrator too.
  const auto mayWrite = [&ignored](const fs::path& place) {
    constexpr auto kAnyWriteBit = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return ::access(place.c_str(), W_OK) == 0 &&
           (fs::status(place, ignored).permissions() & kAnyWriteBit) != fs::perms::none;
  };
  if (!mayWrite(folder) || (fs::exists(path, ignored) && !mayWrite(path)))
    return WriteProblem::NoRight;
  const fs::space_info space = fs::space(folder, ignored);
  if (!ignored && space.available < bytes)
    return WriteProblem::NoRoom;
  return WriteProblem::Unknown;
}

Text textOfProblem(WriteProblem problem) {
  switch (problem) {
  case WriteProblem::IsFolder: return Text::PathIsFolder;
  case WriteProblem::NoFolder: return Text::FolderIsMissing;
  case WriteProblem::NoRight: return Text::NoRightToWrite;
  case WriteProblem::NoRoom: return Text::NoRoomOnDisk;
  case WriteProblem::Unknown: break;
  }
  return Text::ReportNotWritten;
}

} // namespace hooptab
