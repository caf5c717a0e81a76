#include "exchange/frmEXPORT.h"

#include "appearance/Dialogs.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "settings/StorageWords.h"
#include "storage/AtomicFile.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr int kFewestRows = 4;

} // namespace

frmEXPORT::frmEXPORT(GameToExport game, std::vector<ExportKind> kinds, const Choice& last, FileSystem& files,
                     const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), m_game(std::move(game)), m_kinds(std::move(kinds)), m_system(files), m_texts(texts),
      m_dialogs(dialogs) {
  setObjectName(QStringLiteral("frmEXPORT"));
  setTextNumber(*this, Text::ExportGame);
  setModal(true);
  const Measure& measure = Theme::measure();
  auto* layout = new QVBoxLayout(this);
  const int margin = measure(16);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(measure(12));
  addHead();
  addFields();
  addAnswers();
  setMinimumWidth(measure(560, 700));
  m_folder->setText(
      toQt(last.folder.empty() ? fromQt(QFileInfo(toQt(m_game.path())).absolutePath()) : last.folder));
  const auto chosen = std::ranges::find(m_kinds, last.kind, &ExportKind::key);
  m_kind->setCurrentIndex(chosen == m_kinds.end() ? 0 : static_cast<int>(chosen - m_kinds.begin()));
  connect(m_kind, &QComboBox::currentIndexChanged, this, &frmEXPORT::showFiles);
  connect(m_folder, &QLineEdit::textChanged, this,
          [this](const QString& typed) { m_export->setEnabled(!typed.trimmed().isEmpty()); });
  selectOnFocus(*this);
  relabel(*this, texts);
  giveMnemonics(*this);
  showFiles();
  m_kind->setFocus();
}

void frmEXPORT::addHead() {
  const GameDetails& details = m_game.counted->game.details;
  auto* name = new ElidedLabel(toQt(details.abbreviation[Side::Visitor] + " " +
                                    std::to_string(m_game.counted->state.points(Side::Visitor)) + " - " +
                                    std::to_string(m_game.counted->state.points(Side::Home)) + " " +
                                    details.abbreviation[Side::Home] + "   " + details.date),
                               this);
  name->setObjectName(QStringLiteral("lblGAME"));
  Theme::setType(*name, Type::Name);
  auto* path = new ElidedLabel(QDir::toNativeSeparators(toQt(m_game.path())), this);
  path->setForegroundRole(QPalette::PlaceholderText);
  layout()->addWidget(name);
  layout()->addWidget(path);
}

void frmEXPORT::addFields() {
  m_kind = new QComboBox(this);
  m_kind->setObjectName(QStringLiteral("cmbFORMAT"));
  for (const ExportKind& kind : m_kinds)
    m_kind->addItem(toQt(kind.name));
  m_folder = new QLineEdit(this);
  m_folder->setObjectName(QStringLiteral("txtFOLDER"));
  auto* browse = iconButton("cmdBROWSE", Text::BrowseFolders, Text::ExportFolderTip, "vwopen", this);
  m_names = new QListWidget(this);
  m_names->setObjectName(QStringLiteral("lstFILES"));
  m_names->setSelectionMode(QAbstractItemView::NoSelection);
  m_names->setMinimumHeight(kFewestRows * Theme::measure()(24, 30));
  m_names->setMaximumHeight(2 * kFewestRows * Theme::measure()(24, 30));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Theme::measure()(10));
  grid->setVerticalSpacing(Theme::measure()(8));
  grid->setColumnStretch(1, 1);
  grid->addWidget(captionFor(*m_kind, Text::FormatColumn), 0, 0);
  grid->addWidget(m_kind, 0, 1, 1, 2);
  grid->addWidget(captionFor(*m_folder, Text::ExportFolder), 1, 0);
  grid->addWidget(m_folder, 1, 1);
  grid->addWidget(browse, 1, 2);
  grid->addWidget(captionFor(*m_names, Text::FilesColumn), 2, 0, Qt::AlignTop);
  grid->addWidget(m_names, 2, 1, 1, 2);
  m_follows = new QCheckBox(this);
  m_follows->setObjectName(QStringLiteral("chkLIVE"));
  setTextNumber(*m_follows, Text::ExportLive);
  setToolTipNumber(*m_follows, Text::ExportLiveTip);
  m_follows->setVisible(m_game.isRunning);
  grid->addWidget(m_follows, 3, 1, 1, 2);
  setToolTipNumber(*m_kind, Text::ExportFormatTip);
  setToolTipNumber(*m_folder, Text::ExportFolderTip);
  static_cast<QVBoxLayout*>(layout())->addLayout(grid);
  connect(browse, &QPushButton::clicked, this, &frmEXPORT::browse);
}

void frmEXPORT::addAnswers() {
  auto* answers = new QHBoxLayout;
  answers->addStretch();
  m_export = addAnswer(*answers, "cmdEXPORT", Text::Export, this);
  m_export->setDefault(true);
  connect(m_export, &QPushButton::clicked, this, &frmEXPORT::write);
  QPushButton* cancel = addAnswer(*answers, "cmdCANCEL", Text::Cancel, this);
  cancel->setAutoDefault(false);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  static_cast<QVBoxLayout*>(layout())->addLayout(answers);
}

frmEXPORT::Choice frmEXPORT::choice() const {
  return {m_kinds[static_cast<std::size_t>(m_kind->currentIndex())].key,
          fromQt(QDir::cleanPath(m_folder->text().trimmed())),
          m_follows->isEnabled() && m_follows->isChecked()};
}

void frmEXPORT::browse() {
  const QString folder =
      m_dialogs.chooseFolder(this, caption(m_texts, Text::BrowseFolders), m_folder->text());
  if (!folder.isEmpty())
    m_folder->setText(folder);
}

void frmEXPORT::showFiles() {
  const std::string stem = fromQt(QFileInfo(toQt(m_game.path())).completeBaseName());
  m_files = m_kinds[static_cast<std::size_t>(m_kind->currentIndex())].files(m_game, stem);
  m_follows->setEnabled(m_game.isRunning &&
                        m_kinds[static_cast<std::size_t>(m_kind->currentIndex())].canFollow);
  m_names->clear();
  for (const ExportedFile& file : m_files)
    m_names->addItem(toQt(file.name));
}

QString frmEXPORT::pathOf(const ExportedFile& file) const {
  return QDir(toQt(choice().folder)).filePath(toQt(file.name));
}

void frmEXPORT::write() {
  const QString error = toQt(m_texts.text(Text::ErrorTitle));
  const QString folder = toQt(choice().folder);
  if (!QFileInfo(folder).isDir())
    return m_dialogs.complain(
        this, error,
        toQt(m_texts.withPlaceholder(Text::NoSuchFolder, fromQt(QDir::toNativeSeparators(folder)))));
  QStringList there;
  for (const ExportedFile& file : m_files) {
    if (QFileInfo::exists(pathOf(file)))
      there << toQt(file.name);
  }
  if (!there.isEmpty() &&
      !m_dialogs.ask(
          this, toQt(m_texts.text(Text::WarningTitle)),
          toQt(m_texts.withPlaceholder(Text::ExportReplaces, fromQt(there.join(QStringLiteral(", ")))))))
    return;
  for (const ExportedFile& file : m_files) {
    FileStamp stamp;
    const WriteResult written = replaceWholeFile(m_system, fromQt(pathOf(file)), file.content, stamp);
    if (!written.isOnDisk())
      return m_dialogs.complain(this, error, toQt(storageWords(written.error(), m_texts)));
  }
  accept();
}

} // namespace hooptab
