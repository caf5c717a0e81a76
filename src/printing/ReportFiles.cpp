#include "printing/ReportFiles.h"

#include "storage/AtomicFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace hooptab {

namespace {

constexpr std::array<std::pair<ReportForm, std::string_view>, 5> kForms = {{{ReportForm::Pdf, "pdf"},
                                                                            {ReportForm::Xlsx, "xlsx"},
                                                                            {ReportForm::Csv, "csv"},
                                                                            {ReportForm::Html, "html"},
                                                                            {ReportForm::Png, "png"}}};

template <class Block>
bool has(const Report& report) {
  return std::ranges::any_of(report.blocks,
                             [](const ReportBlock& block) { return std::holds_alternative<Block>(block); });
}

std::vector<ReportFile> pictures(const Report& report) {
  std::vector<ReportFile> files;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* picture = std::get_if<ReportPicture>(&block))
      files.push_back(
          {files.empty() ? std::string() : "-" + std::to_string(files.size() + 1), picturePng(*picture)});
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

bool canBe(const Report& report, ReportForm form) {
  switch (form) {
  case ReportForm::Xlsx:
  case ReportForm::Csv: return has<ReportTable>(report);
  case ReportForm::Html: return !has<FormSheet>(report);
  case ReportForm::Png: return has<ReportPicture>(report);
  case ReportForm::Pdf: break;
  }
  return true;
}

std::optional<std::vector<ReportFile>> filesOf(const Report& report, ReportForm form,
                                               const PageFormat& format, std::string_view language) {
  const auto one = [](std::string bytes) { return std::vector<ReportFile>{{{}, std::move(bytes)}}; };
  switch (form) {
  case ReportForm::Pdf: return one(reportPdf(report, format));
  case ReportForm::Xlsx: {
    std::optional<std::string> bytes = reportXlsx(report);
    return bytes ? std::optional(one(std::move(*bytes))) : std::nullopt;
  }
  case ReportForm::Csv: return reportCsv(report);
  case ReportForm::Html: return one(reportHtml(report, language, picturePng));
  case ReportForm::Png: return pictures(report);
  }
  return std::nullopt;
}

std::string pathOf(const std::string& path, const ReportFile& file) {
  const std::size_t slash = path.rfind('/');
  const std::size_t dot = path.rfind('.');
  const bool hasEnding = dot != std::string::npos && (slash == std::string::npos || dot > slash);
  return hasEnding ? path.substr(0, dot) + file.suffix + path.substr(dot) : path + file.suffix;
}

std::string writeFiles(FileSystem& files, const std::string& path, const std::vector<ReportFile>& contents) {
  for (const ReportFile& content : contents) {
    FileStamp stamp;
    const std::string target = pathOf(path, content);
    if (!replaceWholeFile(files, target, content.bytes, stamp))
      return target;
  }
  return {};
}

} // namespace hooptab
