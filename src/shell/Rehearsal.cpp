#include "shell/Rehearsal.h"

#include <QApplication>
#include <QStringList>
#include <QWidget>

#include <unistd.h>

namespace hooptab {

namespace {

constexpr qsizetype kLongestLine = 1000;

// The control "Assist/cmdJERSEY(2)": of that name inside of another, however deep. One that is shown goes
// before others of the name; null when there is none.
QWidget* controlNamed(const QString& path) {
  const QStringList names = path.split(QLatin1Char('/'));
  QWidget* hidden = nullptr;
  const QWidgetList widgets = QApplication::allWidgets();
  for (QWidget* widget : widgets) {
    auto name = names.crbegin();
    for (const QWidget* at = widget; at != nullptr && name != names.crend(); at = at->parentWidget()) {
      if (at->objectName() == *name)
        ++name;
      else if (at == widget)
        break;
    }
    if (name != names.crend())
      continue;
    if (widget->isVisible())
      return widget;
    hidden = widget;
  }
  return hidden;
}

// "X Y WIDTH HEIGHT shown|hidden enabled|disabled active|inactive", in pixels of the screen; active where its
// window has the keys.
QString placeOf(const QWidget& widget) {
  const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
  return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
      .arg(corner.x())
      .arg(corner.y())
      .arg(widget.width())
      .arg(widget.height())
      .arg(widget.isVisible() ? QLatin1String("shown") : QLatin1String("hidden"),
           widget.isEnabled() ? QLatin1String("enabled") : QLatin1String("disabled"),
           widget.isActiveWindow() ? QLatin1String("active") : QLatin1String("inactive"));
}

QString textOf(const QWidget& widget) {
  const QVariant text = widget.property("text");
  return (text.isValid() ? text.toString() : widget.windowTitle()).replace(u'\n', u' ');
}

} // namespace

bool RehearsalTime::advanceTo(std::int64_t seconds) {
  if (seconds < m_now)
    return false;
  m_now = seconds;
  return true;
}

Rehearsal::Rehearsal(RehearsalTime& time, int input, int output, QObject* parent)
    : QObject(parent), m_time(time), m_input(input), m_output(output),
      m_notifier(input, QSocketNotifier::Read) {
  connect(&m_notifier, &QSocketNotifier::activated, this, &Rehearsal::read);
}

void Rehearsal::read() {
  char bytes[512];
  const ssize_t count = ::read(m_input, bytes, sizeof bytes);
  if (count <= 0) { // whoever asked has gone; the program stays
    m_notifier.setEnabled(false);
    return;
  }
  m_pending.append(bytes, count);
  for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
    const QString line = QString::fromUtf8(m_pending.left(end)).trimmed();
    m_pending.remove(0, end + 1);
    say(answer(line));
  }
  if (m_pending.size() > kLongestLine) {
    m_pending.clear();
    say(QStringLiteral("error: the line is too long"));
  }
}

QString Rehearsal::answer(const QString& line) {
  const QString command = line.section(QLatin1Char(' '), 0, 0);
  const QString rest = line.section(QLatin1Char(' '), 1);
  if (command == u"time") {
    bool isNumber = false;
    const qlonglong seconds = rest.toLongLong(&isNumber);
    return isNumber && m_time.advanceTo(seconds) ? QStringLiteral("ok")
                                                 : QStringLiteral("error: no later time: ") + rest;
  }
  if (command != u"where" && command != u"text")
    return QStringLiteral("error: unknown command: ") + command;
  const QWidget* widget = controlNamed(rest);
  if (widget == nullptr)
    return command == u"where" ? QStringLiteral("none") : QStringLiteral("error: no such control: ") + rest;
  return command == u"where" ? placeOf(*widget) : textOf(*widget);
}

void Rehearsal::say(const QString& line) const {
  const std::string bytes = line.toStdString() + '\n';
  for (std::size_t written = 0; written < bytes.size();) {
    const ssize_t count = ::write(m_output, bytes.data() + written, bytes.size() - written);
    if (count <= 0)
      return;
    written += static_cast<std::size_t>(count);
  }
}

} // namespace hooptab
