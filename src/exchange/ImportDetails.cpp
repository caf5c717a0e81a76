#include "exchange/ImportDetails.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "exchange/ImportList.h"
#include "exchange/RowTable.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>

namespace hooptab {

namespace {

constexpr int kGap = 6;
enum DifferenceColumn { kTeam, kPlayer, kCounter, kHere, kInFile };

} // namespace

ImportDetails::ImportDetails(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_choice(new QWidget(this)), m_question(new ElidedLabel(m_choice)),
      m_files(new QComboBox(m_choice)) {
  m_question->setObjectName(QStringLiteral("lblWHICH"));
  m_files->setObjectName(QStringLiteral("cmbWHICH"));
  m_files->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_files->setMinimumContentsLength(40);
  setAccessibleNumber(*m_files, Text::WhichFileTip);
  setToolTipNumber(*m_files, Text::WhichFileTip);
  auto* take = iconButton("cmdTAKEFILE", Text::TakeThisFile, Text::WhichFileTip, "add", m_choice);
  auto* row = new QHBoxLayout(m_choice);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  row->addWidget(m_question, 1);
  row->addWidget(m_files, 1);
  row->addWidget(take);

  auto* splitter = new QSplitter(this);
  splitter->setObjectName(QStringLiteral("splDETAILS"));
  splitter->setChildrenCollapsible(false);
  m_notes = new QListWidget(splitter);
  m_notes->setObjectName(QStringLiteral("lstNOTES"));
  m_notes->setWordWrap(true);
  m_notes->setSelectionMode(QAbstractItemView::NoSelection);
  setAccessibleNumber(*m_notes, Text::ImportNotes);
  m_differences = new RowTable("tblDIFFERENCES", Text::DifferencesTable,
                               {{Text::Team, 9},
                                {Text::PlayerName, 26, false, false, true},
                                {Text::CounterColumn, 14},
                                {Text::HereColumn, 8, true},
                                {Text::InFileColumn, 16, true}},
                               texts, splitter);
  splitter->addWidget(m_notes);
  splitter->addWidget(m_differences);
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_choice);
  layout->addWidget(splitter, 1);
  connect(take, &QPushButton::clicked, this, [this] { emit fileChosen(m_files->currentData().toString()); });
  show(nullptr);
}

void ImportDetails::show(const ImportedGame* game) {
  m_game = game == nullptr ? ImportedGame() : *game;
  m_notes->clear();
  if (game != nullptr) {
    for (const std::string& line : linesAbout(m_game, m_texts))
      m_notes->addItem(toQt(line));
  }
  RowSource rows;
  rows.count = static_cast<int>(m_game.differences.size());
  rows.text = [this](int row, int column) -> QString {
    const Difference& difference = m_game.differences[static_cast<std::size_t>(row)];
    switch (column) {
    case kTeam: return toQt(shortTeam(m_game, difference.team));
    case kPlayer: return toQt(difference.player);
    case kCounter: return toQt(difference.counter);
    case kHere: return QString::number(difference.ours);
    default: return QString::number(difference.theirs);
    }
  };
  m_differences->show(std::move(rows));
  showChoice();
}

void ImportDetails::showChoice() {
  m_choice->setVisible(!m_game.group.choices.empty());
  m_files->clear();
  if (m_game.group.choices.empty())
    return;
  const QString name = QFileInfo(toQt(m_game.group.files.front())).fileName();
  m_question->setText(toQt(m_texts.withPlaceholder(Text::WhichFile, fromQt(name))));
  for (const std::string& file : m_game.group.choices.front().files)
    m_files->addItem(QFileInfo(toQt(file)).fileName(), toQt(file));
  m_files->addItem(caption(m_texts, Text::NoneBelongs), QString());
}

void ImportDetails::setChoosing(bool isOn) {
  m_choice->setEnabled(isOn);
}

void ImportDetails::relabelPanel() {
  const ImportedGame game = m_game;
  show(game.group.files.empty() ? nullptr : &game);
  m_differences->refresh();
}

void ImportDetails::fitToFont() {
  m_differences->fitToFont();
}

} // namespace hooptab
