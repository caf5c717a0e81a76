#include "appearance/Mnemonics.h"

#include "appearance/relabel.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QSet>

namespace hooptab {

namespace {

// A letter that every keyboard of our two languages has without a second key.
bool isPlain(QChar letter) {
  return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
}

bool beginsWord(const QString& caption, qsizetype place) {
  return place == 0 || !caption[place - 1].isLetter();
}

qsizetype findPlace(const QString& caption, const QSet<QChar>& taken) {
  for (const bool atWords : {true, false}) {
    for (qsizetype place = 0; place < caption.size(); ++place) {
      if (isPlain(caption[place]) && beginsWord(caption, place) == atWords &&
          !taken.contains(caption[place].toLower()))
        return place;
    }
  }
  return -1;
}

} // namespace

std::vector<qsizetype> mnemonicPlaces(const QStringList& captions) {
  QSet<QChar> taken;
  std::vector<qsizetype> places;
  for (const QString& caption : captions) {
    places.push_back(findPlace(caption, taken));
    if (places.back() >= 0)
      taken.insert(caption[places.back()].toLower());
  }
  return places;
}

void giveMnemonics(QWidget& window) {
  QStringList captions;
  QList<QWidget*> owners;
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (hasTextNumber(*button) && !button->text().isEmpty() && button->shortcut().isEmpty()) {
      captions << button->text();
      owners << button;
    }
  }
  for (QLabel* label : window.findChildren<QLabel*>()) {
    if (hasTextNumber(*label) && label->buddy() != nullptr && !label->text().isEmpty()) {
      captions << label->text();
      owners << label;
    }
  }
  const std::vector<qsizetype> places = mnemonicPlaces(captions);
  for (qsizetype i = 0; i < owners.size(); ++i) {
    const qsizetype place = places[static_cast<std::size_t>(i)];
    if (place >= 0)
      owners[i]->setProperty("text", captions[i].insert(place, u'&'));
  }
}

} // namespace hooptab
