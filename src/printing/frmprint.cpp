#include "printing/frmprint.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "printing/PageView.h"
#include "printing/Printers.h"
#include "printing/ReportLayout.h"
#include "printing/ReportOutput.h"
#include "report/ReportWords.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDataStream>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
// Of what is kept; before it there was none, and the page width that was kept then was nobody's choice.
constexpr qint32 kArrangementVersion = 2;
constexpr int kTitleWidth = 260;
constexpr int kStepMilliseconds = 20; // of laying out, before the window is served again
constexpr qsizetype kLongestTitle = 120;

// The entries of the zoom's list: two that fit, then sizes in percent.
constexpr int kZooms[] = {50, 75, 100, 125, 150, 200, 300, 400};
constexpr int kFitPageEntry = 0;
constexpr int kFitWidthEntry = 1;
constexpr int kFirstZoomEntry = 2;

// The entries of the list of rows, behind "all".
constexpr std::size_t kRowCounts[] = {10, kProposedRows, 50, 100};
constexpr int kProposedEntry = 2;

struct Export {
  ReportForm form;
  const char* name;
};
constexpr Export kExports[] = {
    {ReportForm::Xlsx, "mnuXLSX"}, {ReportForm::Csv, "mnuCSV"}, {ReportForm::CsvFrench, "mnuCSVFRENCH"},
    {ReportForm::Html, "mnuHTML"}, {ReportForm::Png, "mnuPNG"},
};

} // namespace

frmprint::frmprint(const Texts& texts, Dialogs& dialogs, Printers& printers, ReportOutput& output,
                   QWidget* parent)
    : ChildWindow(parent), m_texts(texts), m_dialogs(dialogs), m_printers(printers), m_output(output),
      m_view(new PageView(this)) {
  setObjectName(QStringLiteral("frmprint"));
  setTextNumber(*this, Text::PrintPreview);
  m_view->setObjectName(QStringLiteral("pages"));
  setAccessibleNumber(*m_view, Text::PrintPreview);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addWidget(makeReportRow());
  layout->addWidget(makePageRow());
  layout->addWidget(m_view, 1);
  m_steps.setInterval(0);
  fillChoices();
  m_paper->setCurrentIndex(static_cast<int>(usualPaper()));
  connectEverything();
  relabelWindow();
}

frmprint::~frmprint() = default;

QComboBox* frmprint::addChoice(const char* name, Text label, QWidget* parent) {
  auto* choice = new QComboBox(parent);
  choice->setObjectName(QLatin1String(name));
  choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setToolTipNumber(*choice, label);
  setAccessibleNumber(*choice, label);
  return choice;
}

QToolButton* frmprint::addButton(const char* name, Text text, const char* iconName, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  if (iconName != nullptr)
    button->setIcon(icon(QLatin1String(iconName)));
  setToolTipNumber(*button, text);
  setAccessibleNumber(*button, text);
  return button;
}

QWidget* frmprint::makeReportRow() {
  auto* row = new QWidget(this);
  m_choice = addChoice("cmbREPORT", Text::WhichReport, row);
  m_title = new QLineEdit(row);
  m_title->setObjectName(QStringLiteral("txtTITLE"));
  m_title->setMaxLength(kLongestTitle);
  m_title->setMinimumWidth(kTitleWidth);
  auto* exports = new QPushButton(icon(QStringLiteral("export")), QString(), row);
  exports->setObjectName(QStringLiteral("cmdEXPORT"));
  setTextNumber(*exports, Text::Export);
  setToolTipNumber(*exports, Text::Export);
  auto* menu = new QMenu(exports);
  for (const Export& each : kExports) {
    auto* action = menu->addAction(QString());
    action->setObjectName(QLatin1String(each.name));
    setTextNumber(*action, ReportOutput::textOf(each.form));
    connect(action, &QAction::triggered, this, [this, form = each.form] { save(form); });
  }
  exports->setMenu(menu);

  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(captionFor(*m_choice, Text::WhichReport));
  layout->addWidget(m_choice);
  layout->addSpacing(kMargin);
  layout->addWidget(captionFor(*m_title, Text::PersonTitle));
  layout->addWidget(m_title, 1);
  layout->addSpacing(kMargin);
  layout->addWidget(iconButton("cmdPRINT", Text::Print, Text::Print, "vwprint", row));
  layout->addWidget(iconButton("cmdPDF", Text::SavePdf, Text::SavePdf, "savemanual", row));
  layout->addWidget(exports);
  layout->addWidget(iconButton("cmdCLOSE", Text::CloseButton, Text::ClosePreview, "vwclose", row));
  return row;
}

QWidget* frmprint::makePageRow() {
  auto* row = new QWidget(this);
  m_paper = addChoice("cmbPAPER", Text::Paper, row);
  m_turn = addChoice("cmbTURN", Text::Orientation, row);
  m_zoom = addChoice("cmbZOOM", Text::Zoom, row);
  m_rows = addChoice("cmbROWS", Text::Rows, row);
  m_facing = addButton("cmdFACING", Text::FacingPages, nullptr, row);
  m_facing->setCheckable(true);
  setTextNumber(*m_facing, Text::FacingPages);
  m_page = new QSpinBox(row);
  m_page->setObjectName(QStringLiteral("txtPAGE"));
  m_page->setMinimum(1);
  setToolTipNumber(*m_page, Text::ShownPage);
  setAccessibleNumber(*m_page, Text::ShownPage);
  m_pageCount = new PlainLabel(row);
  m_pageCount->setObjectName(QStringLiteral("lblPAGES"));

  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (auto [choice, label] : {std::pair(m_paper, Text::Paper),
                               {m_turn, Text::Orientation},
                               {m_zoom, Text::Zoom},
                               {m_rows, Text::Rows}}) {
    layout->addWidget(captionFor(*choice, label));
    layout->addWidget(choice);
    layout->addSpacing(kMargin);
  }
  layout->addWidget(m_facing);
  layout->addStretch();
  const auto addStep = [&](const char* name, Text text, const QString& sign, auto target) {
    QToolButton* button = addButton(name, text, nullptr, row);
    button->setText(sign);
    connect(button, &QToolButton::clicked, this, [this, target] { m_view->goTo(target(m_view->page())); });
    layout->addWidget(button);
  };
  const auto across = [this] { return m_view->isFacing() ? 2 : 1; };
  addStep("cmdFIRST", Text::FirstPage, QStringLiteral("|◀"), [](int) { return 1; });
  addStep("cmdPREVIOUS", Text::PreviousPage, QStringLiteral("◀"),
          [across](int page) { return std::max(1, page - across()); });
  layout->addWidget(m_page);
  layout->addWidget(m_pageCount);
  addStep("cmdNEXT", Text::NextPage, QStringLiteral("▶"),
          [this, across](int page) { return std::min(m_page->maximum(), page + across()); });
  addStep("cmdLAST", Text::LastPage, QStringLiteral("▶|"), [this](int) { return m_page->maximum(); });
  return row;
}

void frmprint::connectEverything() {
  connect(m_choice, &QComboBox::currentIndexChanged, this, [this] {
    m_isTitleTyped = false;
    makeReport();
  });
  connect(m_title, &QLineEdit::textEdited, this, [this](const QString& title) {
    m_isTitleTyped = true;
    m_report.title = fromQt(title);
    layOut();
  });
  for (QComboBox* choice : {m_paper, m_turn})
    connect(choice, &QComboBox::currentIndexChanged, this, &frmprint::layOut);
  connect(m_rows, &QComboBox::activated, this, [this] {
    m_areRowsChosen = true;
    makeReport();
  });
  connect(m_zoom, &QComboBox::activated, this, &frmprint::chooseZoom);
  connect(m_facing, &QToolButton::toggled, m_view, &PageView::setFacing);
  connect(m_page, &QSpinBox::valueChanged, m_view, &PageView::goTo);
  connect(m_view, &PageView::pageChanged, this, &frmprint::showPage);
  connect(m_view, &PageView::zoomChanged, this, &frmprint::showZoom);
  connect(&m_steps, &QTimer::timeout, this, &frmprint::layOutMore);
  connect(&m_output, &ReportOutput::busyChanged, this, &frmprint::showOutputs);
  const auto key = [this](const QKeySequence& keys, auto act) {
    auto* shortcut = new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, act);
  };
  key(QKeySequence::ZoomIn, [this] { m_view->zoomIn(); });
  key(Qt::CTRL | Qt::Key_Equal, [this] { m_view->zoomIn(); }); // the same key without Shift
  key(QKeySequence::ZoomOut, [this] { m_view->zoomOut(); });
  findChild<QPushButton*>(QStringLiteral("cmdPRINT"))->setShortcut(QKeySequence::Print);
  key(Qt::Key_Escape, [this] { findChild<QPushButton*>(QStringLiteral("cmdCLOSE"))->click(); });
  key(Qt::CTRL | Qt::Key_0, [this] { m_view->setFit(PageView::Fit::Page); });
  connect(findChild<QPushButton*>(QStringLiteral("cmdPRINT")), &QPushButton::clicked, this, &frmprint::print);
  connect(findChild<QPushButton*>(QStringLiteral("cmdPDF")), &QPushButton::clicked, this,
          [this] { save(ReportForm::Pdf); });
  connect(findChild<QPushButton*>(QStringLiteral("cmdCLOSE")), &QPushButton::clicked, this, [this] {
    if (parentWidget() != nullptr)
      parentWidget()->close(); // the frame's window around this one
  });
}

void frmprint::fillChoices() {
  m_paper->addItems({QStringLiteral("A4"), QString()});
  m_turn->addItems({QString(), QString(), QString()});
  m_zoom->addItems({QString(), QString()});
  m_rows->addItem(QString());
  for (std::size_t i = 0; i < std::size(kRowCounts); ++i)
    m_rows->addItem(QString());
  for (const int zoom : kZooms)
    m_zoom->addItem(QStringLiteral("%1%").arg(zoom));
}

void frmprint::relabelWindow() {
  relabel(*this, m_texts);
  m_paper->setItemText(static_cast<int>(Paper::Letter), caption(m_texts, Text::PaperLetter));
  m_turn->setItemText(0, caption(m_texts, Text::AsItFits));
  m_turn->setItemText(1, caption(m_texts, Text::Upright));
  m_turn->setItemText(2, caption(m_texts, Text::Across));
  m_rows->setItemText(0, caption(m_texts, Text::AllRows));
  for (std::size_t i = 0; i < std::size(kRowCounts); ++i)
    m_rows->setItemText(static_cast<int>(i) + 1,
                        toQt(m_texts.withPlaceholder(Text::BestRows, std::to_string(kRowCounts[i]))));
  m_zoom->setItemText(kFitPageEntry, caption(m_texts, Text::WholePage));
  m_zoom->setItemText(kFitWidthEntry, caption(m_texts, Text::PageWidth));
  for (std::size_t i = 0; i < m_offers.size(); ++i)
    m_choice->setItemText(static_cast<int>(i), toQt(m_offers[i].name()));
  if (!m_offers.empty())
    makeReport();
}

void frmprint::offer(std::vector<ReportOffer> offers) {
  {
    const QSignalBlocker noChoice(m_choice);
    m_offers = std::move(offers);
    m_choice->clear();
    for (const ReportOffer& each : m_offers)
      m_choice->addItem(toQt(each.name()));
  }
  m_isTitleTyped = false;
  m_areRowsChosen = false;
  makeReport();
  m_view->setFocus(); // its keys go through the pages
}

void frmprint::makeReport() {
  m_view->showLayout(nullptr);
  m_layout.reset(); // it refers to the old report
  m_report = m_offers[static_cast<std::size_t>(m_choice->currentIndex())].make();
  limitRows();
  if (m_isTitleTyped)
    m_report.title = fromQt(m_title->text());
  else
    m_title->setText(toQt(m_report.title));
  showOutputs();
  layOut();
  m_view->goTo(1);
}

// A list of hundreds of lines is seldom meant to be printed whole: its best are proposed.
void frmprint::limitRows() {
  const std::size_t rows = rankedRows(m_report);
  m_rows->setEnabled(rows > kRowCounts[0]);
  if (!m_areRowsChosen)
    m_rows->setCurrentIndex(rows > kLongestList ? kProposedEntry : 0);
  if (const int chosen = m_rows->currentIndex(); chosen > 0)
    keepBest(m_report, kRowCounts[chosen - 1], m_texts);
}

void frmprint::showOutputs() {
  for (const char* name : {"cmdPRINT", "cmdPDF", "cmdEXPORT"})
    findChild<QPushButton*>(QLatin1String(name))->setEnabled(!m_output.isBusy());
  for (const Export& each : kExports)
    findChild<QAction*>(QLatin1String(each.name))->setEnabled(canBe(m_report, each.form));
}

PageFormat frmprint::format() const {
  return {static_cast<Paper>(m_paper->currentIndex()), static_cast<PageTurn>(m_turn->currentIndex())};
}

void frmprint::layOut() {
  m_view->showLayout(nullptr);
  m_layout = std::make_unique<ReportLayout>(m_report, format());
  m_view->showLayout(m_layout.get());
  m_steps.start();
  layOutMore(); // the first page at once
}

void frmprint::layOutMore() {
  QElapsedTimer time;
  time.start();
  while (!m_layout->isDone() && time.elapsed() < kStepMilliseconds)
    m_layout->step();
  if (m_layout->isDone())
    m_steps.stop();
  m_view->showMorePages();
  showPage();
}

void frmprint::finishLayout() {
  m_layout->finish();
  layOutMore();
}

void frmprint::showPage() {
  const QSignalBlocker noJump(m_page);
  const int pages = static_cast<int>(m_layout->pages().size());
  m_page->setMaximum(pages);
  m_page->setValue(m_view->page());
  m_pageCount->setText(
      toQt(m_texts.withPlaceholder(Text::PagesInAll, m_layout->isDone() ? std::to_string(pages) : "…")));
}

void frmprint::showZoom() {
  const QSignalBlocker noChoice(m_zoom);
  if (m_view->fit() != PageView::Fit::None) {
    m_zoom->setCurrentIndex(m_view->fit() == PageView::Fit::Page ? kFitPageEntry : kFitWidthEntry);
    return;
  }
  const QString percent = QStringLiteral("%1%").arg(qRound(m_view->zoom() * 100));
  m_zoom->setCurrentIndex(m_zoom->findText(percent)); // none of them after the wheel
  m_zoom->setPlaceholderText(percent);
}

void frmprint::chooseZoom(int choice) {
  if (choice >= kFirstZoomEntry)
    m_view->setZoom(kZooms[choice - kFirstZoomEntry] / 100.0);
  else
    m_view->setFit(choice == kFitPageEntry ? PageView::Fit::Page : PageView::Fit::Width);
}

void frmprint::print() {
  if (!m_printers.hasAny())
    return m_dialogs.complain(this, caption(m_texts, Text::PrinterError), caption(m_texts, Text::NoPrinter));
  finishLayout();
  std::shared_ptr<QPrinter> printer =
      m_printers.choose(this, m_layout->pageLayout(), static_cast<int>(m_layout->pages().size()));
  if (printer != nullptr)
    m_output.print(m_report, format(), std::move(printer), this);
}

// What is calculated with is whole, unless the user has chosen how many rows he wants.
void frmprint::save(ReportForm form) {
  if (!holdsData(form) || m_areRowsChosen)
    return m_output.save(m_report, form, format(), this);
  Report whole = m_offers[static_cast<std::size_t>(m_choice->currentIndex())].make();
  whole.title = m_report.title;
  m_output.save(std::move(whole), form, format(), this);
}

QByteArray frmprint::arrangement() const {
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  stream << kArrangementVersion << static_cast<qint32>(m_paper->currentIndex())
         << static_cast<qint32>(m_view->fit()) << m_view->zoom() << m_view->isFacing();
  return state;
}

void frmprint::restoreArrangement(const QByteArray& state) {
  QDataStream stream(state);
  qint32 version = 0;
  qint32 paper = 0;
  qint32 fit = 0;
  double zoom = 1;
  bool isFacing = false;
  stream >> version;
  const bool isOlder =
      version < kArrangementVersion; // the paper stood first; the page filled the width unasked
  if (isOlder)
    paper = version;
  else
    stream >> paper;
  stream >> fit >> zoom >> isFacing;
  if (stream.status() != QDataStream::Ok || version > kArrangementVersion || paper < 0 || paper > 1 ||
      fit < 0 || fit > 2)
    return;
  if (isOlder && fit == static_cast<qint32>(PageView::Fit::Width))
    fit = static_cast<qint32>(PageView::Fit::Page);
  m_paper->setCurrentIndex(paper);
  m_facing->setChecked(isFacing);
  if (fit == static_cast<qint32>(PageView::Fit::None))
    m_view->setZoom(zoom);
  else
    m_view->setFit(static_cast<PageView::Fit>(fit));
}

} // namespace hooptab
