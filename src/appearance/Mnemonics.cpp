#include "appearance/Mnemonics.h"

#include "appearance/PlainText.h"
#include "appearance/relabel.h"

#include <QAbstractButton>
#include <QAction>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QSet>
#include <QTabWidget>
#include <functional>

namespace hooptab {

namespace {

// A letter that every keyboard of our two languages has without a second key.
bool isPlain(QChar letter) {
  return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
}

bool beginsWord(const QString& caption, qsizetype place) {
  return place == 0 || !caption[place - 1].isLetter();
}

// The places of a caption that can be its letter, the better ones first.
QList<qsizetype> placesIn(const QString& caption) {
  QList<qsizetype> found;
  for (const bool atWords : {true, false}) {
    for (qsizetype place = 0; place < caption.size(); ++place) {
      if (isPlain(caption[place]) && beginsWord(caption, place) == atWords)
        found << place;
    }
  }
  return found;
}

// Gives captions letters so that as many as can be have one: a caption whose letters are all taken moves
// another one on to a letter that is free (augmenting paths of a bipartite matching).
class Matching {
 public:
  Matching(const QStringList& captions, const QString& taken) : m_captions(captions), m_taken(taken) {
    m_places.assign(static_cast<std::size_t>(captions.size()), -1);
    for (int caption = 0; caption < captions.size(); ++caption) {
      m_tried.clear();
      place(caption);
    }
  }
  std::vector<qsizetype> places() const { return m_places; }

 private:
  bool place(int caption) {
    const QString& text = m_captions[caption];
    const QList<qsizetype> candidates = placesIn(text);
    for (const bool moves : {false, true}) {
      for (const qsizetype candidate : candidates) {
        const QChar letter = text[candidate].toLower();
        const auto owner = m_owners.constFind(letter);
        const bool isFree = owner == m_owners.constEnd();
        if (m_taken.contains(letter) || (!isFree && (!moves || m_tried.contains(letter))))
          continue;
        m_tried.insert(letter);
        if (!isFree && !place(*owner))
          continue;
        m_owners[letter] = caption;
        m_places[static_cast<std::size_t>(caption)] = candidate;
        return true;
      }
    }
    return false;
  }

  const QStringList& m_captions;
  const QString& m_taken;
  std::vector<qsizetype> m_places;
  QHash<QChar, int> m_owners;
  QSet<QChar> m_tried;
};

// A caption of a menu as it is read.
QString withoutLetter(const QString& caption) {
  QString read;
  for (qsizetype place = 0; place < caption.size(); ++place) {
    if (caption[place] == u'&' && place + 1 < caption.size())
      ++place; // the letter behind it is read, were it one more of these
    read += caption[place];
  }
  return read;
}

QString lettersOfMenuBar(const QWidget& window) {
  QString letters;
  if (const auto* bar = window.window()->findChild<QMenuBar*>()) {
    for (const QAction* menu : bar->actions()) {
      if (const qsizetype place = menu->text().indexOf(u'&'); place >= 0 && place + 1 < menu->text().size())
        letters += menu->text()[place + 1].toLower();
    }
  }
  return letters;
}

} // namespace

std::vector<qsizetype> mnemonicPlaces(const QStringList& captions, const QString& taken) {
  return Matching(captions, taken).places();
}

QString giveMnemonics(const QList<QAction*>& actions) {
  QList<QAction*> named;
  QStringList captions;
  for (QAction* action : actions) {
    if (action->isSeparator() || !hasTextNumber(*action))
      continue;
    named << action;
    captions << withoutLetter(action->text());
  }
  const std::vector<qsizetype> places = mnemonicPlaces(captions);
  QString letters;
  for (qsizetype i = 0; i < named.size(); ++i) {
    const qsizetype place = places[static_cast<std::size_t>(i)];
    const QString& caption = captions[i];
    if (place < 0)
      continue;
    letters += caption[place].toLower();
    named[i]->setText(withoutMnemonic(caption.left(place)) + u'&' + withoutMnemonic(caption.mid(place)));
  }
  return letters;
}

void giveMnemonics(QWidget& window) {
  QStringList captions;
  std::vector<std::function<void(const QString&)>> show;
  for (QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
    for (int tab = 0; tab < tabs->count(); ++tab) {
      if (!hasTabTextNumber(*tabs->widget(tab)))
        continue;
      captions << tabs->tabText(tab);
      show.emplace_back([tabs, tab](const QString& text) { tabs->setTabText(tab, text); });
    }
  }
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (!hasTextNumber(*button) || button->text().isEmpty() || !button->shortcut().isEmpty())
      continue;
    captions << button->text();
    show.emplace_back([button](const QString& text) { button->setText(text); });
  }
  for (QLabel* label : window.findChildren<QLabel*>()) {
    if (!hasTextNumber(*label) || label->buddy() == nullptr || label->text().isEmpty())
      continue;
    captions << label->text();
    show.emplace_back([label](const QString& text) { label->setText(text); });
  }
  const std::vector<qsizetype> places = mnemonicPlaces(captions, lettersOfMenuBar(window));
  for (std::size_t i = 0; i < show.size(); ++i) {
    QString& caption = captions[static_cast<qsizetype>(i)];
    if (places[i] >= 0)
      show[i](caption.insert(places[i], u'&'));
  }
}

} // namespace hooptab
