#include "appearance/relabel.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QVariant>
#include <QWidget>

namespace hooptab {

namespace {

constexpr const char* kTextNumber = "hooptabText";
constexpr const char* kToolTipNumber = "hooptabToolTip";
constexpr const char* kAccessibleNumber = "hooptabAccessible";

void setNumber(QObject& object, const char* name, int number) {
  object.setProperty(name, number > 0 ? QVariant(number) : QVariant());
}
int numberOf(const QObject& object, const char* name) {
  return object.property(name).toInt();
}

// Texts of the table carry no mnemonics: an "&" in one is meant to be seen.
QString withoutMnemonic(QString text) {
  return text.replace(u'&', QLatin1String("&&"));
}

void relabelAction(QAction& action, const Texts& texts) {
  if (const int number = numberOf(action, kTextNumber))
    action.setText(withoutMnemonic(caption(texts, number)));
  if (const int number = numberOf(action, kToolTipNumber)) {
    QString toolTip = caption(texts, number);
    if (const QKeySequence key = action.shortcut(); !key.isEmpty())
      toolTip += QStringLiteral(" (%1)").arg(key.toString(QKeySequence::NativeText));
    action.setToolTip(toolTip);
    action.setStatusTip(toolTip);
  }
}

void setCaption(QWidget& widget, const QString& text) {
  if (auto* const label = qobject_cast<QLabel*>(&widget))
    label->setText(label->buddy() == nullptr ? text : withoutMnemonic(text));
  else if (auto* const button = qobject_cast<QAbstractButton*>(&widget))
    button->setText(withoutMnemonic(text));
  else if (auto* const menu = qobject_cast<QMenu*>(&widget))
    menu->setTitle(withoutMnemonic(text));
  else if (widget.metaObject()->indexOfProperty("title") >= 0)
    widget.setProperty("title", text);
  else
    widget.setWindowTitle(text);
}

void relabelWidget(QWidget& widget, const Texts& texts) {
  if (const int number = numberOf(widget, kTextNumber))
    setCaption(widget, caption(texts, number));
  if (const int number = numberOf(widget, kToolTipNumber))
    widget.setToolTip(caption(texts, number));
  if (const int number = numberOf(widget, kAccessibleNumber))
    widget.setAccessibleName(caption(texts, number));
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
QString caption(const Texts& texts, int number) {
  return toQt(texts.caption(number));
}

void setTextNumber(QObject& object, int number) {
  setNumber(object, kTextNumber, number);
}
void setToolTipNumber(QObject& object, int number) {
  setNumber(object, kToolTipNumber, number);
}
void setAccessibleNumber(QWidget& widget, int number) {
  setNumber(widget, kAccessibleNumber, number);
}

void relabel(QObject& root, const Texts& texts) {
  relabelOne(root, texts);
  const QList<QObject*> children = root.findChildren<QObject*>();
  for (QObject* const child : children)
    relabelOne(*child, texts);
}

} // namespace hooptab
