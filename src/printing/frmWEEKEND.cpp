#include "printing/frmWEEKEND.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr std::size_t kToldGames = 10; // that were passed over: the message must fit on the screen

enum What { Pdf, Workbook, Both };
constexpr Text kWhat[] = {Text::WeekendPdf, Text::WeekendWorkbook, Text::WeekendBoth};

QString fileNames(const std::vector<std::string>& paths) {
  QStringList names;
  for (const std::string& path : paths)
    names << QFileInfo(toQt(path)).fileName();
  return names.join(QStringLiteral(", "));
}

} // namespace

frmWEEKEND::frmWEEKEND(std::vector<std::string> games, const QString& folder, const QString& name,
                       FileSystem& files, const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), m_games(std::move(games)), m_files(files), m_texts(texts), m_dialogs(dialogs) {
  setObjectName(QStringLiteral("frmWEEKEND"));
  setTextNumber(*this, Text::WeekendTitle);
  setModal(true);
  const Measure& measure = Theme::measure();
  auto* layout = new QVBoxLayout(this);
  const int margin = measure(16);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(measure(12));
  auto* count =
      new PlainLabel(toQt(m_texts.withPlaceholder(Text::WeekendGames, std::to_string(m_games.size()))), this);
  count->setObjectName(QStringLiteral("lblGAMES"));
  Theme::setType(*count, Type::Name);
  layout->addWidget(count);
  addFields(*layout, folder, name);
  addProgress(*layout);
  addAnswers(*layout);
  setMinimumWidth(measure(560, 700));
  selectOnFocus(*this);
  relabel(*this, texts);
  giveMnemonics(*this);
  showState();
  m_what->setFocus();
  connect(&m_task, &Task::progressed, this, &frmWEEKEND::showProgress);
  connect(&m_task, &Task::failed, this, [this] { complain(caption(m_texts, Text::NoMemoryForReport)); });
  connect(&m_task, &Task::finished, this, [this] {
    showState();
    if (!m_message.isEmpty())
      accept();
    else if (m_isLeaving)
      QDialog::reject();
  });
}

void frmWEEKEND::addFields(QVBoxLayout& layout, const QString& folder, const QString& name) {
  m_what = new QComboBox(this);
  m_what->setObjectName(QStringLiteral("cmbFORMAT"));
  for (const Text what : kWhat)
    m_what->addItem(caption(m_texts, what));
  m_folder = new QLineEdit(QDir::toNativeSeparators(folder), this);
  m_folder->setObjectName(QStringLiteral("txtFOLDER"));
  m_browse = iconButton("cmdBROWSE", Text::BrowseFolders, Text::ExportFolderTip, "vwopen", this);
  m_name = new QLineEdit(name, this);
  m_name->setObjectName(QStringLiteral("txtNAME"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Theme::measure()(10));
  grid->setVerticalSpacing(Theme::measure()(8));
  grid->setColumnStretch(1, 1);
  grid->addWidget(captionFor(*m_what, Text::FormatColumn), 0, 0);
  grid->addWidget(m_what, 0, 1, 1, 2);
  grid->addWidget(captionFor(*m_folder, Text::ExportFolder), 1, 0);
  grid->addWidget(m_folder, 1, 1);
  grid->addWidget(m_browse, 1, 2);
  grid->addWidget(captionFor(*m_name, Text::WeekendName), 2, 0);
  grid->addWidget(m_name, 2, 1, 1, 2);
  layout.addLayout(grid);
  connect(m_browse, &QPushButton::clicked, this, &frmWEEKEND::browse);
  for (const QLineEdit* field : {m_folder, m_name})
    connect(field, &QLineEdit::textChanged, this, &frmWEEKEND::showState);
}

// Its room is kept while nothing is under way, so that nothing moves.
void frmWEEKEND::addProgress(QVBoxLayout& layout) {
  m_progressText = new PlainLabel(this);
  m_progressText->setObjectName(QStringLiteral("lblPROGRESS"));
  m_progress = new QProgressBar(this);
  m_progress->setObjectName(QStringLiteral("progress"));
  m_progress->setTextVisible(false);
  setAccessibleNumber(*m_progress, Text::WeekendTitle);
  for (QWidget* part : {static_cast<QWidget*>(m_progressText), static_cast<QWidget*>(m_progress)}) {
    QSizePolicy policy = part->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    part->setSizePolicy(policy);
    layout.addWidget(part);
  }
}

void frmWEEKEND::addAnswers(QVBoxLayout& layout) {
  auto* answers = new QHBoxLayout;
  answers->addStretch();
  m_write = addAnswer(*answers, "cmdWRITE", Text::WeekendWrite, this);
  m_write->setDefault(true);
  connect(m_write, &QPushButton::clicked, this, &frmWEEKEND::write);
  QPushButton* cancel = addAnswer(*answers, "cmdCANCEL", Text::Cancel, this);
  cancel->setAutoDefault(false);
  connect(cancel, &QPushButton::clicked, this, &frmWEEKEND::reject);
  layout.addLayout(answers);
}

QString frmWEEKEND::folder() const {
  return QDir::cleanPath(QDir::fromNativeSeparators(m_folder->text().trimmed()));
}

void frmWEEKEND::browse() {
  const QString folder =
      m_dialogs.chooseFolder(this, caption(m_texts, Text::BrowseFolders), m_folder->text());
  if (!folder.isEmpty())
    m_folder->setText(QDir::toNativeSeparators(folder));
}

GamesOrder frmWEEKEND::order() const {
  const std::string stem =
      fromQt(QDir(folder()).filePath(toQt(Module1::asFileName(fromQt(m_name->text().trimmed())))));
  GamesOrder order;
  order.games = m_games;
  order.paper = usualPaper();
  if (m_what->currentIndex() != Workbook)
    order.pdf = stem + ".pdf";
  if (m_what->currentIndex() != Pdf)
    order.workbook = stem + ".xlsx";
  return order;
}

bool frmWEEKEND::mayWrite(const GamesOrder& order) {
  if (!QFileInfo(folder()).isDir()) {
    complain(toQt(m_texts.withPlaceholder(Text::NoSuchFolder, fromQt(QDir::toNativeSeparators(folder())))));
    return false;
  }
  std::vector<std::string> there;
  for (const std::string& path : {order.pdf, order.workbook}) {
    if (!path.empty() && QFileInfo::exists(toQt(path)))
      there.push_back(path);
  }
  return there.empty() ||
         m_dialogs.ask(this, caption(m_texts, Text::WarningTitle),
                       toQt(m_texts.withPlaceholder(Text::ExportReplaces, fromQt(fileNames(there)))));
}

void frmWEEKEND::write() {
  if (m_task.isRunning())
    return;
  const GamesOrder order = this->order();
  if (!mayWrite(order))
    return;
  m_task.start([this, order, &files = m_files, texts = m_texts](const TaskWatch& watch) -> Task::Delivery {
    const GamesOutcome outcome = writeGames(files, order, texts, watch);
    return [this, outcome] { tell(outcome); };
  });
  showState();
  showProgress();
}

void frmWEEKEND::showProgress() {
  const auto [done, total] = m_task.progress();
  m_progress->setRange(0, total);
  m_progress->setValue(done);
  const auto games = static_cast<int>(m_games.size());
  const int game = total == 0 ? 1 : std::min(games, done * games / total + 1);
  m_progressText->setText(toQt(
      withPlaceholders(m_texts.text(Text::WeekendWorking), std::to_string(game), std::to_string(games))));
}

void frmWEEKEND::showState() {
  const bool isBusy = m_task.isRunning();
  for (QWidget* field : std::initializer_list<QWidget*>{m_what, m_folder, m_browse, m_name})
    field->setEnabled(!isBusy);
  m_progressText->setVisible(isBusy);
  m_progress->setVisible(isBusy);
  m_write->setEnabled(!isBusy && !m_folder->text().trimmed().isEmpty() &&
                      !m_name->text().trimmed().isEmpty());
}

// The window stays open where nothing was written, so that another folder can be tried.
void frmWEEKEND::tell(const GamesOutcome& outcome) {
  QStringList passedOver;
  for (const GamePages::PassedOver& game : outcome.passedOver) {
    if (std::cmp_equal(passedOver.size(), kToldGames)) {
      passedOver << QStringLiteral("…");
      break;
    }
    passedOver << toQt(withPlaceholders(m_texts.text(Text::WeekendPassedOver),
                                        fromQt(QFileInfo(toQt(game.path)).fileName()),
                                        m_texts.text(game.why)));
  }
  if (m_task.isCancelled())
    return;
  if (!outcome.failed.empty())
    return complain(toQt(m_texts.withPlaceholder(textOfProblem(outcome.problem), outcome.failed)));
  if (outcome.hasGames && !outcome.isMade)
    return complain(toQt(m_texts.withPlaceholder(Text::NoRoomForTemporary, fromQt(QDir::tempPath()))));
  if (!outcome.hasGames)
    passedOver.prepend(caption(m_texts, Text::WeekendNothing));
  else
    m_message = toQt(m_texts.withPlaceholder(Text::WeekendDone, fromQt(fileNames(outcome.written))));
  if (!passedOver.isEmpty())
    m_dialogs.warn(this, caption(m_texts, Text::WarningTitle), passedOver.join(u'\n'));
}

void frmWEEKEND::reject() {
  if (!m_task.isRunning())
    return QDialog::reject();
  m_isLeaving = true;
  m_task.cancel();
}

void frmWEEKEND::complain(const QString& text) {
  m_dialogs.complain(this, caption(m_texts, Text::ErrorTitle), text);
}

} // namespace hooptab
