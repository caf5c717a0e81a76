#include "keypad/KeypadPicture.h"

#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "keypad/QtKeys.h"

#include <QGridLayout>
#include <QPushButton>

namespace hooptab {

namespace {

struct Place {
  int code;
  int row;
  int column;
  int rows = 1;
  int columns = 1;
};
constexpr Place kPlaces[] = {
    {8, 0, 2, 1, 2}, {144, 1, 0}, {111, 1, 1},       {106, 1, 2},      {109, 1, 3},      {103, 2, 0},
    {104, 2, 1},     {105, 2, 2}, {107, 2, 3, 2, 1}, {100, 3, 0},      {101, 3, 1},      {102, 3, 2},
    {97, 4, 0},      {98, 4, 1},  {99, 4, 2},        {13, 4, 3, 2, 1}, {96, 5, 0, 1, 2}, {110, 5, 2},
};
constexpr int kKeyWidth = 84;
constexpr int kKeyHeight = 52;
constexpr int kGap = 4;

} // namespace

QString shortNameOf(KeypadAction action, const Texts& texts) {
  const Text name = wordsOf(action).name;
  return name == Text::None ? QString::fromLatin1(kKeypadKeys[static_cast<std::size_t>(action)])
                            : toQt(texts.text(name));
}

KeypadPicture::KeypadPicture(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  for (const Place& place : kPlaces) {
    auto* button = new QPushButton(this);
    button->setObjectName(QStringLiteral("key(%1)").arg(place.code));
    button->setFocusPolicy(Qt::NoFocus); // the box that takes the key keeps it
    button->setAutoDefault(false);
    button->setFixedSize(kKeyWidth * place.columns + kGap * (place.columns - 1),
                         kKeyHeight * place.rows + kGap * (place.rows - 1));
    connect(button, &QPushButton::clicked, this, [this, code = place.code] { emit keyClicked(code); });
    grid->addWidget(button, place.row, place.column, place.rows, place.columns);
    m_keys.push_back({button, place.code});
  }
}

void KeypadPicture::showKeys(const KeypadSetup& setup, const Texts& texts,
                             std::optional<KeypadAction> marked) {
  for (const PicturedKey& key : m_keys) {
    const std::vector<KeypadAction> actions = setup.keys.actionsOf(key.code);
    QStringList names;
    for (const KeypadAction action : actions)
      names << shortNameOf(action, texts);
    // A line for each word, as "SECONDARY Team" is wider than a key.
    const QString shown = names.join(u'/').replace(u' ', u'\n');
    key.button->setText(withoutMnemonic(keyName(key.code, texts) + u'\n' + shown));
    key.button->setToolTip(names.join(u'\n'));
    key.button->setAccessibleName(keyName(key.code, texts) + QLatin1String(": ") +
                                  names.join(QLatin1String(", ")));
    QPalette colours;
    const bool isMarked = marked && std::ranges::find(actions, *marked) != actions.end();
    if (actions.size() > 1 || isMarked) {
      const QColor colour = actions.size() > 1 ? Theme::missed() : Theme::accent();
      colours.setColor(QPalette::Button, colour);
      colours.setColor(QPalette::ButtonText, textOn(colour));
    }
    key.button->setPalette(colours);
  }
}

} // namespace hooptab
