#include "shell/WelcomePage.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kIconSize = 96;
constexpr int kButtonIconSize = 20;
constexpr int kColumnWidth = 480;
constexpr int kHintPoints = 12;

// A button that looks and is labelled like an action.
QPushButton* buttonLike(QAction& action, const QString& name, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(name);
  button->setIconSize({kButtonIconSize, kButtonIconSize});
  button->setMinimumSize(220, 40);
  const auto follow = [button, &action] {
    button->setIcon(action.icon());
    button->setText(action.text());
  };
  QObject::connect(&action, &QAction::changed, button, follow);
  follow();
  return button;
}

} // namespace

WelcomePage::WelcomePage(QAction& openGame, QMenu& recentGames, QMenu& sampleGames, QWidget* parent)
    : QWidget(parent) {
  setObjectName(QStringLiteral("welcome"));
  auto* column = new QWidget(this);
  column->setFixedWidth(kColumnWidth);
  auto* picture = new PlainLabel(column);
  picture->setPixmap(icon(QStringLiteral("hooptab")).pixmap(kIconSize));
  picture->setAlignment(Qt::AlignCenter);
  auto* hint = new PlainLabel(column);
  hint->setObjectName(QStringLiteral("lblHINT"));
  hint->setWordWrap(true);
  hint->setAlignment(Qt::AlignCenter);
  hint->setForegroundRole(QPalette::PlaceholderText);
  QFont large = hint->font();
  large.setPointSize(kHintPoints);
  hint->setFont(large);
  setTextNumber(*hint, 1545);

  QPushButton* open = buttonLike(openGame, QStringLiteral("cmdOPEN"), column);
  connect(open, &QPushButton::clicked, &openGame, &QAction::trigger);
  QPushButton* recent = buttonLike(*recentGames.menuAction(), QStringLiteral("cmdRECENT"), column);
  recent->setMenu(&recentGames);
  QPushButton* samples = buttonLike(*sampleGames.menuAction(), QStringLiteral("cmdSAMPLES"), column);
  samples->setMenu(&sampleGames);

  auto* layout = new QVBoxLayout(column);
  layout->setSpacing(12);
  layout->addWidget(picture);
  layout->addWidget(hint);
  for (QPushButton* button : {open, recent, samples})
    layout->addWidget(button, 0, Qt::AlignHCenter);
  // Centred by stretches: an alignment would not ask the wrapped hint for its height.
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(column);
  row->addStretch();
  auto* page = new QVBoxLayout(this);
  page->addStretch(2);
  page->addLayout(row);
  page->addStretch(3);
}

} // namespace hooptab
