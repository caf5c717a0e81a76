#include "printing/ReportOutput.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "printing/Printers.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <utility>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr auto kShownAfter = 300ms;
constexpr auto kOfferedFor = 60s; // to open what was saved
constexpr int kBarWidth = 160;
constexpr qsizetype kLongestName =
    100; // of a file, in letters: names of teams may be as long as a folder takes

struct Form {
  ReportForm form;
  Text text;
  Text filter;
};
constexpr Form kForms[] = {{ReportForm::Pdf, Text::SavePdf, Text::PdfFilter},
                           {ReportForm::Xlsx, Text::SaveXlsx, Text::XlsxFilter},
                           {ReportForm::Csv, Text::SaveCsv, Text::CsvFilter},
                           {ReportForm::CsvFrench, Text::SaveCsvFrench, Text::CsvFilter},
                           {ReportForm::Html, Text::SaveHtml, Text::HtmlFilter},
                           {ReportForm::Png, Text::SavePictures, Text::PngFilter}};

const Form& formOf(ReportForm form) {
  return *std::ranges::find(kForms, form, &Form::form);
}

} // namespace

ReportOutput::ReportOutput(const Texts& texts, Dialogs& dialogs, FileSystem& files, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_dialogs(dialogs), m_files(files), m_what(new PlainLabel(this)),
      m_progress(new QProgressBar(this)),
      m_cancel(iconButton("cmdCANCELREPORT", Text::CancelReport, Text::CancelReport, "clear", this)),
      m_open(iconButton("cmdOPENREPORT", Text::OpenSaved, Text::OpenSaved, "vwopen", this)),
      m_showFolder(iconButton("cmdSHOWREPORT", Text::ShowInFolder, Text::ShowInFolder, "export", this)) {
  setObjectName(QStringLiteral("reportOutput"));
  m_what->setObjectName(QStringLiteral("lblREPORT"));
  m_progress->setObjectName(QStringLiteral("reportProgress"));
  m_progress->setFixedWidth(kBarWidth);
  m_progress->setTextVisible(false);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_what);
  layout->addWidget(m_progress);
  layout->addWidget(m_cancel);
  layout->addWidget(m_open);
  layout->addWidget(m_showFolder);
  m_open->hide();
  m_showFolder->hide();
  hide();
  m_offerEnds.setInterval(kOfferedFor);
  m_offerEnds.setSingleShot(true);
  connect(&m_offerEnds, &QTimer::timeout, this, &QWidget::hide);
  connect(m_open, &QPushButton::clicked, this, [this] { openSaved(m_saved); });
  connect(m_showFolder, &QPushButton::clicked, this,
          [this] { openSaved(QFileInfo(m_saved).absolutePath()); });
  m_delay.setInterval(kShownAfter);
  m_delay.setSingleShot(true);
  connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
  connect(m_cancel, &QPushButton::clicked, this, &ReportOutput::cancel);
  connect(&m_task, &Task::progressed, this, &ReportOutput::showProgress);
  connect(&m_task, &Task::failed, this, [this] { complain(Text::NoMemoryForReport, {}, window()); });
  connect(&m_task, &Task::finished, this, &ReportOutput::end);
  hooptab::relabel(*this, texts);
}

// What is under way is finished first: the user has asked for it.
ReportOutput::~ReportOutput() {
  m_task.wait();
}

Text ReportOutput::textOf(ReportForm form) {
  return formOf(form).text;
}

QString ReportOutput::choosePath(const QString& fileName, ReportForm form, QWidget* asker) {
  const QString ending = toQt(endingOf(form));
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString folder = QFileInfo(m_folder).isDir()    ? m_folder
                         : QFileInfo(documents).isDir() ? documents
                                                        : QDir::homePath();
  const QString path = m_dialogs.chooseFileToSave(
      asker, caption(m_texts, formOf(form).text),
      QDir(folder).filePath(fileName.simplified().left(kLongestName).trimmed() + u'.' + ending),
      fileFilter(toQt(m_texts.text(formOf(form).filter))), ending);
  if (!path.isEmpty() && QFileInfo(path).absolutePath() != m_folder) {
    m_folder = QFileInfo(path).absolutePath();
    emit folderChosen(m_folder);
  }
  return path;
}

bool ReportOutput::mayReplace(const QString& path, const std::vector<std::string>& suffixes, QWidget* asker) {
  return std::ranges::all_of(suffixes, [&](const std::string& suffix) {
    const QFileInfo target(toQt(pathOf(fromQt(path), suffix)));
    return !target.exists() || target.isDir() || // a folder is refused with its own words
           m_dialogs.ask(asker, caption(m_texts, Text::WarningTitle),
                         toQt(m_texts.withPlaceholder(Text::ReplaceFile,
                                                      fromQt(QDir::toNativeSeparators(target.filePath())))));
  });
}

void ReportOutput::save(Report report, ReportForm form, const PageFormat& format, QWidget* asker) {
  if (isBusy())
    return emit reported(m_what->text());
  const QString path = choosePath(toQt(report.fileName), form, asker);
  if (path.isEmpty() || !mayReplace(path, suffixesOf(report, form), asker))
    return;
  const std::string_view language = factsOf(m_texts.language()).code;
  write(
      path,
      [report = std::make_shared<const Report>(std::move(report)), form, format,
       language](const TaskWatch& watch) {
        auto files = filesOf(*report, form, format, language, watch);
        // Without the mark a spreadsheet would read the letters of another code page.
        if (files && form == ReportForm::Csv) {
          for (ReportFile& file : *files)
            file.bytes.insert(0, kByteOrderMark);
        }
        return files;
      },
      asker);
}

void ReportOutput::savePicture(const QString& fileName, std::string png, QWidget* asker) {
  if (isBusy())
    return emit reported(m_what->text());
  const QString path = choosePath(fileName, ReportForm::Png, asker);
  if (path.isEmpty() || !mayReplace(path, {{}}, asker))
    return;
  write(
      path,
      [png = std::move(png)](const TaskWatch&) {
        return std::optional(std::vector<ReportFile>{{{}, png}});
      },
      asker);
}

void ReportOutput::write(const QString& path, Make make, QWidget* asker) {
  start(toQt(m_texts.withPlaceholder(Text::WritingReport, fromQt(QFileInfo(path).fileName()))),
        [this, path, make = std::move(make), &files = m_files,
         asker = QPointer(asker)](const TaskWatch& watch) -> Task::Delivery {
          Outcome outcome;
          if (const auto contents = make(watch); contents && watch.commit()) {
            outcome.isMade = true;
            outcome.failed = writeFiles(files, fromQt(path), *contents);
            std::size_t bytes = 0;
            for (const ReportFile& file : *contents)
              bytes += file.bytes.size();
            if (!outcome.failed.empty())
              outcome.problem = writeProblem(outcome.failed, bytes);
          }
          return [this, outcome, path, asker] { tell(outcome, path, asker); };
        });
}

void ReportOutput::tell(const Outcome& outcome, const QString& path, QWidget* asker) {
  if (!outcome.failed.empty())
    return complain(textOfProblem(outcome.problem), toQt(outcome.failed), asker);
  if (!outcome.isMade && !m_task.isCancelled())
    return complain(Text::NoRoomForTemporary, QDir::tempPath(), asker);
  if (outcome.isMade)
    m_saved = path;
  emit reported(toQt(m_texts.withPlaceholder(outcome.isMade ? Text::ReportSaved : Text::ReportCancelled,
                                             fromQt(QDir::toNativeSeparators(path)))));
}

void ReportOutput::print(Report report, const PageFormat& format, std::shared_ptr<QPrinter> printer,
                         QWidget* asker) {
  if (isBusy())
    return emit reported(m_what->text());
  printer->setDocName(toQt(report.fileName));
  start(toQt(m_texts.withPlaceholder(Text::PrintingReport, report.fileName)),
        [this, report = std::make_shared<const Report>(std::move(report)), format,
         printer = std::move(printer), asker = QPointer(asker)](const TaskWatch& watch) -> Task::Delivery {
          const bool isPrinted = printReport(*printer, *report, format, watch);
          return [this, report, isPrinted, asker] {
            if (!isPrinted && !m_task.isCancelled())
              return complain(Text::NotPrinted, {}, asker);
            emit reported(toQt(m_texts.withPlaceholder(
                isPrinted ? Text::SentToPrinter : Text::ReportCancelled, report->fileName)));
          };
        });
}

void ReportOutput::start(const QString& what, Task::Work work) {
  m_saved.clear();
  m_offerEnds.stop();
  showParts(false);
  hide();
  m_what->setText(what);
  m_cancel->setEnabled(true);
  m_task.start(std::move(work));
  showProgress();
  m_delay.start();
  emit busyChanged();
}

void ReportOutput::showProgress() {
  const auto [done, total] = m_task.progress();
  m_progress->setRange(0, total);
  m_progress->setValue(done);
  m_cancel->setEnabled(m_task.canBeCancelled());
}

void ReportOutput::end() {
  m_delay.stop();
  setVisible(!m_saved.isEmpty());
  if (!m_saved.isEmpty()) {
    m_what->setText(QFileInfo(m_saved).fileName());
    showParts(true);
    m_offerEnds.start();
  }
  emit busyChanged();
}

// The work under way, or what it has saved.
void ReportOutput::showParts(bool isSaved) {
  for (QWidget* part : {static_cast<QWidget*>(m_progress), static_cast<QWidget*>(m_cancel)})
    part->setVisible(!isSaved);
  for (QPushButton* part : {m_open, m_showFolder})
    part->setVisible(isSaved);
}

void ReportOutput::openSaved(const QString& path) {
  if (!QFileInfo::exists(path))
    complain(Text::SavedIsGone, path, window());
  else if (!m_dialogs.openDocument(QUrl::fromLocalFile(path)))
    complain(Text::NoProgram, path, window());
}

void ReportOutput::complain(Text text, const QString& path, QWidget* asker) {
  m_dialogs.complain(asker == nullptr ? window() : asker,
                     caption(m_texts, text == Text::NotPrinted ? Text::PrinterError : Text::ErrorTitle),
                     toQt(m_texts.withPlaceholder(text, fromQt(QDir::toNativeSeparators(path)))));
}

} // namespace hooptab
