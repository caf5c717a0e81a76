#include "publish/frmSHARE.h"

#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "publish/QrPicture.h"
#include "publish/ShareWords.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

// What can be followed, in the order in which it is offered.
struct SharedPage {
  std::string_view path;
  Text words;
};
constexpr std::array kPages = {
    SharedPage{"", Text::SharePageScore}, SharedPage{"bench", Text::SharePageBench},
    SharedPage{"announcer", Text::SharePageAnnouncer}, SharedPage{"hall", Text::SharePageHall},
    SharedPage{"overlay", Text::SharePageOverlay}};

constexpr int kLeastPort = 1024; // below, only the system's own programs listen
constexpr int kMostPort = 65535;

} // namespace

frmSHARE::frmSHARE(const ShareChoice& choice, std::vector<WebNetwork> networks, const Players& players,
                   const Texts& texts, QWidget* parent)
    : QDialog(parent), m_texts(texts), m_networks(std::move(networks)) {
  setObjectName(QStringLiteral("frmSHARE"));
  setTextNumber(*this, Text::ShareTitle);
  const Measure& measure = Theme::measure();
  auto* columns = new QHBoxLayout(this);
  const int margin = measure(16);
  columns->setContentsMargins(margin, margin, margin, margin);
  columns->setSpacing(measure(24));
  addFields();
  addAddress();
  fillNetworks(choice.address);
  m_portField->setValue(choice.port);
  m_delay->setValue(choice.feed.delaySeconds);
  m_names->setCurrentIndex(static_cast<int>(choice.feed.names));
  m_first->setCurrentIndex(numberOf(choice.feed.first));
  m_pass->setText(toQt(choice.passPhrase));
  connect(m_network, &QComboBox::activated, this, &frmSHARE::warn);
  connect(m_switch, &QCheckBox::clicked, this, &frmSHARE::switched);
  connect(m_delay, &QSpinBox::valueChanged, this, &frmSHARE::feedChosen);
  connect(m_names, &QComboBox::activated, this, &frmSHARE::feedChosen);
  connect(m_first, &QComboBox::activated, this, &frmSHARE::feedChosen);
  connect(m_page, &QComboBox::currentIndexChanged, this, &frmSHARE::showAddress);
  selectOnFocus(*this);
  relabel(*this, texts);
  giveMnemonics(*this);
  showNames(players);
  showShared(std::nullopt);
}

void frmSHARE::addRow(QWidget& field, Text words) {
  const int row = m_grid->rowCount();
  m_grid->addWidget(captionFor(field, words), row, 0);
  m_grid->addWidget(&field, row, 1);
}

void frmSHARE::addFields() {
  const Measure& measure = Theme::measure();
  m_grid = new QGridLayout;
  m_grid->setHorizontalSpacing(measure(10));
  m_grid->setVerticalSpacing(measure(8));
  m_grid->setColumnStretch(1, 1);
  const auto named = [this](auto* field, const char* name) {
    field->setObjectName(QLatin1String(name));
    return field;
  };
  const auto note = [&](const char* name) {
    auto* label = named(new PlainLabel(this), name);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    m_grid->addWidget(label, m_grid->rowCount(), 1);
    return label;
  };
  // In the order in which they stand, for that is the order of the Tab key.
  m_switch = named(new QCheckBox(this), "chkSHARE");
  setTextNumber(*m_switch, Text::ShareSwitch);
  Theme::setType(*m_switch, Type::Name);
  m_grid->addWidget(m_switch, 0, 0, 1, 2);
  m_network = named(new QComboBox(this), "cmbNETWORK");
  m_portField = named(new QSpinBox(this), "spnPORT");
  m_portField->setRange(kLeastPort, kMostPort);
  m_portField->setGroupSeparatorShown(false);
  m_pass = named(new QLineEdit(this), "txtPASS");
  m_names = named(new QComboBox(this), "cmbNAMES");
  for (const Text words : {Text::ShareNamesFull, Text::ShareNamesInitial, Text::ShareNamesNumber})
    m_names->addItem(caption(m_texts, words));
  m_delay = named(new QSpinBox(this), "spnDELAY");
  m_delay->setRange(0, ShareChoice::kMostDelay);
  m_delay->setSuffix(QStringLiteral(" s"));
  m_first = named(new QComboBox(this), "cmbFIRST");
  for (const Text words : {Text::Visitor, Text::Home})
    m_first->addItem(caption(m_texts, words));
  addRow(*m_network, Text::ShareNetwork);
  addRow(*m_portField, Text::SharePort);
  addRow(*m_pass, Text::SharePass);
  setTextNumber(*note("lblPASS"), Text::SharePassHint);
  addRow(*m_names, Text::ShareNames);
  m_minors = note("lblNAMES");
  addRow(*m_delay, Text::ShareDelay);
  setTextNumber(*note("lblDELAY"), Text::ShareDelayHint);
  addRow(*m_first, Text::ShareFirst);
  m_problem = noticeLabel(this);
  m_problem->setObjectName(QStringLiteral("lblPROBLEM"));
  auto* left = new QVBoxLayout;
  left->addWidget(m_problem);
  left->addLayout(m_grid);
  left->addStretch();
  static_cast<QHBoxLayout*>(layout())->addLayout(left, 1);
  setMinimumWidth(measure(720, 860));
}

void frmSHARE::addAddress() {
  const Measure& measure = Theme::measure();
  auto* right = new QVBoxLayout;
  right->setSpacing(measure(8));
  m_page = new QComboBox(this);
  m_page->setObjectName(QStringLiteral("cmbPAGE"));
  for (const SharedPage& page : kPages)
    m_page->addItem(caption(m_texts, page.words));
  m_address = new QLineEdit(this);
  m_address->setObjectName(QStringLiteral("txtADDRESS"));
  m_address->setReadOnly(true);
  m_copy = new QPushButton(this);
  m_copy->setObjectName(QStringLiteral("cmdCOPY"));
  m_copy->setAutoDefault(false);
  setTextNumber(*m_copy, Text::ShareCopy);
  connect(m_copy, &QPushButton::clicked, this, [this] {
    QGuiApplication::clipboard()->setText(m_address->text());
    m_copy->setText(caption(m_texts, Text::ShareCopied));
  });
  m_picture = new QrPicture(this);
  auto* hint = new PlainLabel(this);
  hint->setForegroundRole(QPalette::PlaceholderText);
  hint->setWordWrap(true);
  hint->setAlignment(Qt::AlignHCenter);
  setTextNumber(*hint, Text::ShareScan);
  m_viewers = new PlainLabel(this);
  m_viewers->setObjectName(QStringLiteral("lblVIEWERS"));
  m_viewers->setAlignment(Qt::AlignHCenter);
  auto* page = new QHBoxLayout;
  page->addWidget(captionFor(*m_page, Text::SharePage));
  page->addWidget(m_page, 1);
  auto* address = new QHBoxLayout;
  address->addWidget(m_address, 1);
  address->addWidget(m_copy);
  right->addLayout(page);
  right->addLayout(address);
  right->addWidget(m_picture, 0, Qt::AlignHCenter);
  right->addWidget(hint);
  right->addWidget(m_viewers);
  right->addStretch();
  static_cast<QHBoxLayout*>(layout())->addLayout(right);
}

// One that is chosen and gone (another hall) is not offered any more.
void frmSHARE::fillNetworks(const std::string& chosen) {
  std::erase_if(m_networks, [](const WebNetwork& network) { return network.isIPv6 && !network.isPrivate; });
  int current = 0;
  for (const WebNetwork& network : m_networks) {
    const QString words =
        network.isLoopback ? caption(m_texts, Text::ShareThisMachine) : toQt(network.interfaceName);
    m_network->addItem(toQt(network.address) + QStringLiteral("  ·  ") + words);
    if (network.address == chosen)
      current = m_network->count() - 1;
  }
  m_network->setCurrentIndex(current);
  warn();
}

// A machine without a network, or with an address of the internet, is no place to share a game from unawares.
void frmSHARE::warn() {
  const bool isAlone = std::ranges::all_of(m_networks, &WebNetwork::isLoopback);
  const int chosen = m_network->currentIndex();
  const bool isOpen = chosen >= 0 && !m_networks[static_cast<std::size_t>(chosen)].isPrivate &&
                      !m_networks[static_cast<std::size_t>(chosen)].isLoopback;
  if (isAlone)
    showProblem(caption(m_texts, Text::ShareNoNetwork));
  else
    showProblem(isOpen ? toQt(m_texts.withPlaceholder(Text::ShareOpenNetwork, choice().address)) : QString());
}

void frmSHARE::showNames(const Players& players) {
  QStringList words;
  if (players.areMinors)
    words << caption(m_texts, Text::ShareNamesMinors);
  if (!players.categories.empty())
    words << toQt(m_texts.withPlaceholder(Text::ShareNamesHint, players.categories));
  m_minors->setText(words.join(u' '));
  m_minors->setVisible(!words.isEmpty());
}

ShareChoice frmSHARE::choice() const {
  ShareChoice choice;
  const int network = m_network->currentIndex();
  if (network >= 0)
    choice.address = m_networks[static_cast<std::size_t>(network)].address;
  choice.port = static_cast<std::uint16_t>(m_portField->value());
  choice.passPhrase = fromQt(m_pass->text());
  choice.feed = {.names = static_cast<NameForm>(m_names->currentIndex()),
                 .delaySeconds = m_delay->value(),
                 .first = m_first->currentIndex() == 1 ? Side::Home : Side::Visitor};
  return choice;
}

void frmSHARE::showShared(std::optional<std::uint16_t> port) {
  m_port = port;
  m_switch->setChecked(port.has_value());
  // Where it listens stays as it is while it listens.
  for (QWidget* field :
       {static_cast<QWidget*>(m_network), static_cast<QWidget*>(m_portField), static_cast<QWidget*>(m_pass)})
    field->setEnabled(!port);
  showAddress();
  showViewers(0);
}

void frmSHARE::showAddress() {
  std::string address;
  if (m_port)
    address = webAddress(choice().address, *m_port) +
              std::string(kPages[static_cast<std::size_t>(m_page->currentIndex())].path);
  m_address->setText(toQt(address));
  m_address->setCursorPosition(0);
  m_copy->setEnabled(m_port.has_value());
  m_copy->setText(caption(m_texts, Text::ShareCopy));
  m_picture->showText(address);
}

void frmSHARE::showViewers(int viewers) {
  m_viewers->setText(m_port ? toQt(m_texts.withPlaceholder(Text::ShareViewersNow, std::to_string(viewers)))
                            : caption(m_texts, Text::ShareIsOff));
}

void frmSHARE::showProblem(const QString& words) {
  m_problem->setText(words);
  m_problem->setVisible(!words.isEmpty());
}

} // namespace hooptab
