#include "shell/ShareDesk.h"

#include "appearance/Icons.h"
#include "appearance/relabel.h"
#include "live/frmLIVE.h"
#include "publish/GameShare.h"
#include "publish/ShareWords.h"
#include "publish/frmSHARE.h"
#include "shell/CommandBar.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"
#include "storage/Placeholders.h"

#include <QToolButton>

namespace hooptab {

namespace {

constexpr std::string_view kLayout = "share";
constexpr std::string_view kNames = "share-names ";

} // namespace

ShareDesk::ShareDesk(const Workshop& workshop, WindowArea& area, QWidget& window)
    : QObject(&window), m_workshop(workshop), m_area(area), m_window(window),
      m_sign(new QToolButton(&window)) {
  m_sign->setObjectName(QStringLiteral("cmdSHARED"));
  m_sign->setAutoRaise(true);
  m_sign->setIcon(icon(QStringLiteral("liveshare")));
  m_sign->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_sign->setFocusPolicy(Qt::NoFocus);
  setToolTipNumber(*m_sign, Text::ShareStatusTip);
  m_sign->hide();
  connect(m_sign, &QToolButton::clicked, this, &ShareDesk::openWindow);
  m_tick.setInterval(1000); // how soon viewers are counted anew, and another game is followed
  connect(&m_tick, &QTimer::timeout, this, [this] {
    followGame();
    showState();
  });
}

ShareDesk::~ShareDesk() = default;

QWidget* ShareDesk::sign() const {
  return m_sign;
}

void ShareDesk::serve(CommandBar& commands) {
  commands.serve(CommandId::ShareGame, this, [this] { openWindow(); });
}

const GameDetails* ShareDesk::details() const {
  auto* live = m_area.first<frmLIVE>();
  return live == nullptr ? nullptr : &live->session().game().game().details;
}

std::string ShareDesk::categories() const {
  return details() == nullptr ? std::string() : categoriesOf(*details());
}

ShareChoice ShareDesk::remembered() const {
  const std::string kept = m_workshop.memory.layout(kLayout);
  ShareChoice choice = m_choice != nullptr ? *m_choice : readShareChoice(kept);
  if (m_choice == nullptr && kept.empty())
    choice.address.clear(); // the first network that is there
  const std::string chosen = m_workshop.memory.layout(std::string(kNames) + categories());
  if (details() != nullptr)
    choice.feed.names = offeredNames(chosen, *details());
  else if (!chosen.empty())
    choice.feed.names = readNameForm(chosen);
  return choice;
}

void ShareDesk::remember(const ShareChoice& choice) {
  m_choice = std::make_unique<ShareChoice>(choice);
  m_workshop.memory.rememberLayout(kLayout, shareChoiceText(choice));
  m_workshop.memory.rememberLayout(std::string(kNames) + categories(), nameFormKey(choice.feed.names));
}

void ShareDesk::openWindow() {
  if (m_dialog == nullptr) {
    const frmSHARE::Players players = {categories(), details() != nullptr && areMinors(*details())};
    m_dialog = new frmSHARE(m_share != nullptr ? *m_choice : remembered(), webNetworks(), players,
                            m_workshop.texts, &m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &frmSHARE::switched, this, &ShareDesk::switchTo);
    connect(m_dialog, &frmSHARE::feedChosen, this, &ShareDesk::takeFeed);
  }
  m_dialog->show();
  m_dialog->raise();
  m_dialog->activateWindow();
  if (m_share != nullptr)
    m_dialog->showShared(m_share->port());
  showState();
}

void ShareDesk::switchTo(bool on) {
  const ShareChoice choice = m_dialog->choice();
  m_share.reset();
  m_live.clear();
  if (on) {
    try {
      m_share = std::make_unique<GameShare>(choice);
      m_dialog->showProblem({});
      remember(choice);
      followGame();
    } catch (const WebServerError& error) {
      m_dialog->showProblem(toQt(shareProblemWords(error, webOptionsOf(choice), m_workshop.texts)));
    }
  }
  m_dialog->showShared(m_share != nullptr ? std::optional(m_share->port()) : std::nullopt);
  if (m_share != nullptr)
    m_tick.start();
  else
    m_tick.stop();
  showState();
  emit changed();
}

void ShareDesk::takeFeed() {
  if (m_share == nullptr)
    return;
  const ShareChoice choice = m_dialog->choice();
  remember(choice);
  m_share->setFeed(choice.feed);
}

// Another category may have other names.
void ShareDesk::followGame() {
  auto* live = m_area.first<frmLIVE>();
  if (m_share == nullptr || live == m_live)
    return;
  m_live = live;
  if (live == nullptr) {
    m_share->leave();
    return;
  }
  const ShareChoice choice = remembered();
  if (m_choice->feed != choice.feed) {
    m_choice->feed = choice.feed;
    m_share->setFeed(choice.feed);
    if (m_dialog != nullptr)
      m_dialog->close(); // what it shows holds no longer
  }
  m_share->follow(live->session());
  connect(live, &QObject::destroyed, this, [this] {
    if (m_share != nullptr)
      m_share->leave();
  });
}

void ShareDesk::showState() {
  m_sign->setVisible(m_share != nullptr);
  if (m_share == nullptr)
    return;
  const std::string viewers = std::to_string(m_share->viewers());
  m_sign->setText(toQt(withPlaceholders(m_workshop.texts.text(Text::ShareStatus),
                                        webAddress(m_choice->address, m_share->port()), viewers)));
  if (m_dialog != nullptr)
    m_dialog->showViewers(m_share->viewers());
}

void ShareDesk::relabelDesk() {
  relabel(*m_sign, m_workshop.texts);
  if (m_dialog != nullptr)
    m_dialog->close();
  showState();
}

} // namespace hooptab
