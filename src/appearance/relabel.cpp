#include "appearance/relabel.h"

#include "appearance/PlainText.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QVariant>
#include <QWidget>

namespace hooptab {

namespace {

constexpr const char* kTextNumber = "hooptabText";
constexpr const char* kToolTipNumber = "hooptabToolTip";
constexpr const char* kAccessibleNumber = "hooptabAccessible";
constexpr const char* kPlaceholderNumber = "hooptabPlaceholder";
constexpr const char* kTabTextNumber = "hooptabTabText";

void setNumber(QObject& object, const char* name, Text number) {
  object.setProperty(name, number != Text::None ? QVariant(static_cast<int>(number)) : QVariant());
}
Text numberOf(const QObject& object, const char* name) {
  return static_cast<Text>(object.property(name).toInt());
}

QString withKey(const QString& toolTip, const QKeySequence& key) {
  return key.isEmpty() ? toolTip
                       : QStringLiteral("%1 (%2)").arg(toolTip, key.toString(QKeySequence::NativeText));
}

// Texts of the table carry no mnemonics: an "&" in one is meant to be seen.
void relabelAction(QAction& action, const Texts& texts) {
  if (const Text number = numberOf(action, kTextNumber); number != Text::None)
    action.setText(withoutMnemonic(caption(texts, number)));
  if (const Text number = numberOf(action, kToolTipNumber); number != Text::None) {
    action.setToolTip(withKey(caption(texts, number), action.shortcut()));
    action.setStatusTip(action.toolTip());
  }
}

void setCaption(QWidget& widget, const QString& text) {
  if (auto* const label = qobject_cast<QLabel*>(&widget)) {
    label->setText(label->buddy() == nullptr ? text : withoutMnemonic(text));
  } else if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
    // A new text would take the key away; one that the old text gave goes with it.
    const QKeySequence key = button->shortcut();
    const bool isOfText = key == QKeySequence::mnemonic(button->text());
    button->setText(withoutMnemonic(text));
    button->setShortcut(isOfText ? QKeySequence() : key);
  } else if (auto* const menu = qobject_cast<QMenu*>(&widget)) {
    menu->setTitle(withoutMnemonic(text));
  } else if (auto* const group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(withoutMnemonic(text));
  } else {
    widget.setWindowTitle(asTitle(text));
  }
}

void relabelTabs(QTabWidget& tabs, const Texts& texts) {
  for (int index = 0; index < tabs.count(); ++index) {
    if (const Text number = numberOf(*tabs.widget(index), kTabTextNumber); number != Text::None)
      tabs.setTabText(index, withoutMnemonic(caption(texts, number)));
  }
}

void relabelWidget(QWidget& widget, const Texts& texts) {
  if (const Text number = numberOf(widget, kTextNumber); number != Text::None)
    setCaption(widget, caption(texts, number));
  if (const Text number = numberOf(widget, kToolTipNumber); number != Text::None) {
    auto* const button = qobject_cast<QAbstractButton*>(&widget);
    widget.setToolTip(withKey(caption(texts, number), button ? button->shortcut() : QKeySequence()));
    widget.setStatusTip(widget.toolTip());
  }
  if (const Text number = numberOf(widget, kAccessibleNumber); number != Text::None)
    widget.setAccessibleName(caption(texts, number));
  if (const Text number = numberOf(widget, kPlaceholderNumber); number != Text::None)
    widget.setProperty("placeholderText", caption(texts, number));
  if (auto* const tabs = qobject_cast<QTabWidget*>(&widget))
    relabelTabs(*tabs, texts);
}

void relabelOne(QObject& object, const Texts& texts) {
  if (auto* const action = qobject_cast<QAction*>(&object))
    relabelAction(*action, texts);
  else if (auto* const widget = qobject_cast<QWidget*>(&object))
    relabelWidget(*widget, texts);
}

} // namespace

QString toQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
std::string fromQt(const QString& text) {
  return text.toStdString();
}
QString caption(const Texts& texts, Text number) {
  return toQt(texts.caption(number));
}

void setTextNumber(QObject& object, Text number) {
  setNumber(object, kTextNumber, number);
}

bool hasTextNumber(const QObject& object) {
  return numberOf(object, kTextNumber) != Text::None;
}

bool hasTabTextNumber(const QObject& page) {
  return numberOf(page, kTabTextNumber) != Text::None;
}
void setToolTipNumber(QObject& object, Text number) {
  setNumber(object, kToolTipNumber, number);
}
void setAccessibleNumber(QWidget& widget, Text number) {
  setNumber(widget, kAccessibleNumber, number);
}

void setPlaceholderNumber(QWidget& field, Text number) {
  setNumber(field, kPlaceholderNumber, number);
}

void setTabTextNumber(QWidget& page, Text number) {
  setNumber(page, kTabTextNumber, number);
}

void relabel(QObject& root, const Texts& texts) {
  relabelOne(root, texts);
  const QList<QObject*> children = root.findChildren<QObject*>();
  for (QObject* const child : children)
    relabelOne(*child, texts);
}

} // namespace hooptab
