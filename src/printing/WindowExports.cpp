#include "printing/WindowExports.h"

#include "appearance/ChildWindow.h"
#include "appearance/Icons.h"
#include "appearance/PlainText.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "printing/ReportOutput.h"
#include "printing/TableReport.h"
#include "scorecard/FrozenTableView.h"
#include "storage/Module1.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QMenu>
#include <QShortcut>
#include <QTableView>
#include <QToolButton>

namespace hooptab {

namespace {

struct Entry {
  ReportForm form;
  const char* name;
};
constexpr Entry kEntries[] = {{ReportForm::Xlsx, "tableXLSX"},
                              {ReportForm::Csv, "tableCSV"},
                              {ReportForm::CsvFrench, "tableCSVFRENCH"},
                              {ReportForm::Html, "tableHTML"}};

// The tables of a window, whichever way it shows them; not the part of one that stays in sight while the rest
// scrolls, nor one within a control of Qt's own, as a calendar.
QList<QWidget*> tablesOf(QWidget& window) {
  QList<QWidget*> tables;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool isPart = qobject_cast<FrozenTableView*>(widget->parentWidget()) != nullptr;
    const bool isTable =
        qobject_cast<QTableView*>(widget) != nullptr || dynamic_cast<ShownTable*>(widget) != nullptr;
    if (isTable && !isPart && !widget->objectName().startsWith(u"qt_"))
      tables << widget;
  }
  return tables;
}

QAction* addAction(QWidget& widget, const char* name, Text text, const char* iconName = nullptr) {
  auto* action = new QAction(&widget);
  action->setObjectName(QLatin1String(name));
  if (iconName != nullptr)
    action->setIcon(icon(QLatin1String(iconName)));
  setTextNumber(*action, text);
  widget.addAction(action);
  return action;
}

// Views of other windows have taken the key themselves.
bool copiesByItself(const QWidget& table) {
  if (qobject_cast<const FrozenTableView*>(&table) != nullptr)
    return true;
  const auto keys = table.findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly);
  return std::ranges::any_of(
      keys, [](const QShortcut* each) { return each->keys().contains(QKeySequence(QKeySequence::Copy)); });
}

QString aboutOf(const QWidget& widget) {
  for (const QWidget* each = &widget; each != nullptr; each = each->parentWidget()) {
    if (const auto* window = qobject_cast<const ChildWindow*>(each))
      return shownTitle(*window);
  }
  return {};
}

QString fullTitle(const QWidget& widget) {
  const QString about = aboutOf(widget);
  const QString title = exportTitle(widget);
  const bool hasBoth = !about.isEmpty() && !title.isEmpty();
  return about + (hasBoth ? QStringLiteral(" – ") : QString()) + title;
}

} // namespace

QImage pictureOf(const ShownPicture& picture, const QString& title) {
  constexpr double kScale = 2;
  constexpr double kMargin = 12;
  const QFont font = QApplication::font();
  QFont bold = font;
  bold.setBold(true);
  const QSizeF size = picture.pictureSize();
  QImage image((size * kScale).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kScale, kScale);
  painter.setFont(bold);
  const QFontMetricsF metrics(bold, &image);
  const QRectF area = QRectF(QPointF(), size).adjusted(kMargin, kMargin / 2, -kMargin, -kMargin / 2);
  painter.setPen(Qt::black);
  painter.drawText(QRectF(area.topLeft(), QSizeF(area.width(), metrics.height())), Qt::AlignLeft,
                   metrics.elidedText(title, Qt::ElideRight, area.width()));
  painter.setFont(font);
  picture.paintPicture(painter, area.adjusted(0, metrics.height() * 1.4, 0, 0));
  painter.end();
  return image;
}

WindowExports::WindowExports(ReportOutput& output, const Texts& texts, QObject* parent)
    : QObject(parent), m_output(output), m_texts(texts) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr && now->property("hooptabExports").toBool())
      m_last = now;
  });
}

void WindowExports::serve(ChildWindow& window) {
  for (QWidget* table : tablesOf(window))
    addActions(*table);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (dynamic_cast<ShownPicture*>(widget) != nullptr)
      addPictureActions(*widget);
  }
  if (auto* button = window.findChild<QToolButton*>(QStringLiteral("cmdCOPY"))) {
    auto* menu = new QMenu(button);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, &window] { fill(*menu, &window); });
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
  }
  relabel(window, m_texts);
}

void WindowExports::addActions(QWidget& table) {
  table.setProperty("hooptabExports", true);
  QAction* copied = addAction(table, "tableCOPY", Text::CopyTable, "copy");
  if (!copiesByItself(table)) {
    copied->setShortcut(QKeySequence::Copy);
    copied->setShortcutContext(Qt::WidgetShortcut);
  }
  connect(copied, &QAction::triggered, this, [this, &table] { copy(table); });
  auto* menu = new QMenu(&table);
  menu->menuAction()->setObjectName(QStringLiteral("tableEXPORT"));
  menu->menuAction()->setIcon(icon(QStringLiteral("export")));
  setTextNumber(*menu->menuAction(), Text::ExportTable);
  for (const Entry& entry : kEntries) {
    QAction* action = addAction(*menu, entry.name, ReportOutput::textOf(entry.form));
    connect(action, &QAction::triggered, this, [this, &table, &entry] { exportTable(table, entry.form); });
  }
  table.addAction(menu->menuAction());
  table.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void WindowExports::addPictureActions(QWidget& widget) {
  QAction* copied = addAction(widget, "pictureCOPY", Text::CopyPicture, "copy");
  connect(copied, &QAction::triggered, this, [this, &widget] { copyPicture(widget); });
  QAction* saved = addAction(widget, "picturePNG", Text::SavePicture, "export");
  connect(saved, &QAction::triggered, this, [this, &widget] { savePicture(widget); });
  widget.setContextMenuPolicy(Qt::ActionsContextMenu);
}

QWidget* WindowExports::shownTable(ChildWindow& window) const {
  QWidget* shown = nullptr;
  for (QWidget* table : tablesOf(window)) {
    if (table->isVisibleTo(&window) && (shown == nullptr || table == m_last))
      shown = table;
  }
  return shown;
}

void WindowExports::fill(QMenu& menu, ChildWindow* window) {
  menu.clear();
  if (window == nullptr)
    return;
  if (QWidget* table = shownTable(*window))
    fillWith(menu, *table);
  fillWithPictures(menu, *window);
}

// Those that are in front, each by its name.
void WindowExports::fillWithPictures(QMenu& menu, ChildWindow& window) {
  bool isFirst = true;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* picture = dynamic_cast<const ShownPicture*>(widget);
    if (picture == nullptr || !widget->isVisibleTo(&window) || !picture->hasPicture())
      continue;
    if (isFirst)
      menu.addSeparator();
    isFirst = false;
    const QString name = widget->accessibleName().isEmpty() ? exportTitle(*widget) : widget->accessibleName();
    for (const auto& [text, act] : {std::pair(Text::CopyPicture, &WindowExports::copyPicture),
                                    std::pair(Text::SavePicture, &WindowExports::savePicture)}) {
      const QString words =
          caption(m_texts, text) + (name.isEmpty() ? QString() : QStringLiteral(" – ") + name);
      connect(menu.addAction(words), &QAction::triggered, widget,
              [this, widget, act = act] { (this->*act)(*widget); });
    }
  }
}

void WindowExports::fillWith(QMenu& menu, QWidget& table) {
  connect(menu.addAction(icon(QStringLiteral("copy")), caption(m_texts, Text::CopyTable)),
          &QAction::triggered, &table, [this, &table] { copy(table); });
  menu.addSeparator();
  for (const Entry& entry : kEntries) {
    QAction* action = menu.addAction(caption(m_texts, ReportOutput::textOf(entry.form)));
    action->setEnabled(!m_output.isBusy());
    connect(action, &QAction::triggered, &table, [this, &table, &entry] { exportTable(table, entry.form); });
  }
}

void WindowExports::copy(const QWidget& table) {
  copyTable(table);
  emit reported(caption(m_texts, Text::TableCopied));
}

void WindowExports::exportTable(const QWidget& table, ReportForm form) {
  if (const auto content = contentOf(table))
    m_output.save(tableReport(*content, aboutOf(table)), form, {}, table.window());
}

void WindowExports::copyPicture(const QWidget& widget) {
  const auto* picture = dynamic_cast<const ShownPicture*>(&widget);
  if (!picture->hasPicture())
    return;
  QApplication::clipboard()->setImage(pictureOf(*picture, fullTitle(widget)));
  emit reported(caption(m_texts, Text::PictureCopied));
}

void WindowExports::savePicture(const QWidget& widget) {
  const auto* picture = dynamic_cast<const ShownPicture*>(&widget);
  if (!picture->hasPicture())
    return;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  pictureOf(*picture, fullTitle(widget)).save(&buffer, "PNG");
  m_output.savePicture(toQt(Module1::asFileName(fromQt(fullTitle(widget)))), bytes.toStdString(),
                       widget.window());
}

} // namespace hooptab
