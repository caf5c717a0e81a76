// torture_pictures [COUNT | SECONDSs] [SEED] [FIRST] [FOLDER]: opens damaged pictures of scanned forms in the
// real window of the totals, which starts real processes to decode them, and counts what it answers. Exit
// status 1 when the window came to its end, hung, or left one picture without an answer. Pictures that
// brought their process down, or worse, are kept in FOLDER when there is one.
//
// The window stands in a process of its own, whose end can be seen and told.
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "forms/DecoderProcess.h"
#include "forms/FilledForm.h"
#include "forms/ScannedPage.h"
#include "manual/frmMANUAL.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"
#include "tools/torture/DamagedPicture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <cstdio>
#include <optional>

using namespace hooptab;

namespace {

constexpr int kPatience = 200'000;      // milliseconds for a picture: longer than each of its pages may take
constexpr int kFinalPatience = 260'000; // for a window that does not even tell that it waits

const QString kWindowOption = QStringLiteral("--window");

// Of pages, as the window told them.
struct Answers {
  int read = 0;
  int refused = 0; // with a reason; the next two are among them
  int died = 0;
  int late = 0;
  [[nodiscard]] int pages() const { return read + refused; }
  void add(const Answers& other) {
    read += other.read;
    refused += other.refused;
    died += other.died;
    late += other.late;
  }
};

QString fileOf(const QString& folder, int number, const DamagedPicture& picture) {
  return QStringLiteral("%1/picture%2.%3").arg(folder).arg(number).arg(QLatin1String(picture.ending));
}

bool write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

DamagedPictures makePictures() {
  const Texts texts;
  FilledForm form(blankForms(texts));
  form.tickDigit(0, 2, 4);
  form.tick(0, FormCell::Kind::Made, Counter::FTM, 2);
  std::vector<QImage> pages;
  for (const int dots : {160, 200}) { // per inch: coarser than one would scan, for the sake of time
    QImage page = form.picture().scaledToWidth(form.picture().width() * dots / FilledForm::kDots,
                                               Qt::SmoothTransformation);
    page.setDotsPerMeterX(qRound(dots / 0.0254));
    page.setDotsPerMeterY(page.dotsPerMeterX());
    pages.push_back(page);
  }
  return DamagedPictures(pages);
}

// --- The process with the window

class Window {
 public:
  Window() {
    (void)m_settings.prepare(m_texts);
    const std::string game = m_folder.write("A.GAM", textOfGame("", "INPUTTYPE=1\n"));
    m_window.emplace(m_store, m_settings, m_texts, m_dialogs);
    m_window->show();
    m_isOpen = m_window->open(toQt(game));
    m_dialogs.nextAnswer = true; // leaves the pages that are left
    m_broken = toQt(explained({PageRefusal::Reason::BrokeOff}, m_texts));
    m_late = toQt(m_texts.withPlaceholder(Text::TookTooLong, "#")).section(u'#', 0, 0);
  }
  [[nodiscard]] bool isOpen() const { return m_isOpen; }

  // Nothing when it does not come to an end with the picture.
  std::optional<Answers> open(const QString& file) {
    Answers answers;
    m_dialogs.nextFiles = {file};
    press("cmdFORM");
    for (;;) {
      if (!QTest::qWaitFor([this] { return isVisible("tblSCAN") || isVisible("tblTOTALS"); }, kPatience))
        return std::nullopt;
      count(QFileInfo(file).fileName(), answers);
      if (isVisible("tblTOTALS"))
        return answers;
      ++answers.read;
      press("cmdREPLACESCAN"); // the whole way of a page that could be read
    }
  }

 private:
  [[nodiscard]] bool isVisible(const char* name) const {
    const auto* found = m_window->findChild<QWidget*>(QLatin1String(name));
    return found != nullptr && found->isVisible();
  }
  void press(const char* name) {
    QTest::mouseClick(m_window->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
  }
  // Each page has a line that begins with the file's name; after the first of them, only their number is
  // told.
  void count(const QString& name, Answers& answers) {
    for (const ScriptedDialogs::Shown& shown : m_dialogs.shown) {
      const QString more = toQt(m_texts.withPlaceholder(Text::MoreRefused, "#")).section(u'#', 0, 0);
      for (const QString& line : shown.text.split(u'\n')) {
        if (line.startsWith(more))
          answers.refused += line.mid(more.size()).section(u' ', 0, 0).toInt();
        if (shown.kind != ScriptedDialogs::Kind::Complain || !line.startsWith(name))
          continue;
        const QString reason = line.section(QStringLiteral(": "), 1);
        answers.refused += reason.isEmpty() ? 0 : 1;
        answers.died += reason == m_broken ? 1 : 0;
        answers.late += reason.startsWith(m_late) ? 1 : 0;
      }
    }
    m_dialogs.shown.clear();
  }

  TemporaryFolder m_folder;
  FileSystem m_files;
  ProfileStore m_store{m_files};
  Texts m_texts;
  Settings m_settings{m_store, m_folder.path()};
  ScriptedDialogs m_dialogs;
  std::optional<frmMANUAL> m_window;
  bool m_isOpen = false;
  QString m_broken, m_late;
};

// One line for each picture: its number and the answers, or nothing behind the number.
int runWindow(const QStringList& arguments) {
  const quint64 seed = arguments.value(2).toULongLong();
  const int first = arguments.value(3).toInt();
  const int count = arguments.value(4).toInt();
  const qint64 milliseconds = arguments.value(5).toLongLong();
  Theme::apply(*qApp, ColourScheme::Light);
  const DamagedPictures pictures = makePictures();
  const TemporaryFolder folder;
  Window window;
  if (!window.isOpen())
    return EXIT_FAILURE;
  QElapsedTimer time;
  time.start();
  for (int number = first; number < first + count && time.elapsed() < milliseconds; ++number) {
    const DamagedPicture picture = pictures.make(seed, number);
    const QString file = fileOf(toQt(folder.path()), number, picture);
    if (!write(file, picture.bytes))
      return EXIT_FAILURE;
    const std::optional<Answers> answers = window.open(file);
    if (answers)
      std::printf("%d %d %d %d %d\n", number, answers->read, answers->refused, answers->died, answers->late);
    else
      std::printf("%d\n", number);
    std::fflush(stdout);
    if (!answers)
      return EXIT_FAILURE;
    QFile::remove(file);
  }
  return EXIT_SUCCESS;
}

// --- The process that watches it

class Watch {
 public:
  Watch(quint64 seed, int first, const QString& keep)
      : m_seed(seed), m_first(first), m_next(first), m_keep(keep) {}

  int run(int count, qint64 milliseconds) {
    QElapsedTimer time;
    time.start();
    while (m_next < m_first + count && time.elapsed() < milliseconds && m_failures < 20) {
      if (!watchOne(m_first + count - m_next, milliseconds - time.elapsed()))
        break;
    }
    std::printf("seed %llu: %d pictures, %d pages: %d read, %d refused with the reason, of these %d whose "
                "process died and %d given up; %d pictures unanswered, %d hangs, %d crashes of the window\n",
                m_seed, m_next - m_first, m_answers.pages(), m_answers.read, m_answers.refused,
                m_answers.died, m_answers.late, m_unanswered, m_hangs, m_crashes);
    const bool isGood = m_failures == 0 && m_unanswered == 0 && m_next > m_first;
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
  }

 private:
  // One window until it is through, or broken; whether it was through.
  bool watchOne(int count, qint64 milliseconds) {
    const int first = m_next;
    QProcess window;
    window.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    window.start(QCoreApplication::applicationFilePath(),
                 {kWindowOption, QString::number(m_seed), QString::number(m_next), QString::number(count),
                  QString::number(milliseconds)});
    while (window.canReadLine() || window.waitForReadyRead(kFinalPatience)) {
      while (window.canReadLine())
        take(window.readLine());
    }
    const bool hangs = window.state() != QProcess::NotRunning && !window.waitForFinished(kFinalPatience);
    if (!hangs && window.exitStatus() == QProcess::NormalExit && window.exitCode() == EXIT_SUCCESS)
      return m_next > first;
    ++m_failures;
    if (hangs || m_isHung)
      ++m_hangs;
    else
      ++m_crashes;
    window.kill();
    window.waitForFinished();
    tell(m_next, hangs || m_isHung ? "the window hangs" : "the window came to its end");
    m_isHung = false;
    ++m_next;
    return true;
  }
  void take(const QByteArray& line) {
    Answers answers;
    int number = 0;
    const int count = std::sscanf(line.constData(), "%d %d %d %d %d", &number, &answers.read,
                                  &answers.refused, &answers.died, &answers.late);
    m_isHung = count == 1;
    if (count != 5)
      return;
    m_answers.add(answers);
    if (answers.pages() == 0) {
      ++m_unanswered;
      tell(number, "no answer");
    } else if (answers.died > 0) {
      tell(number, "the process died");
    } else if (answers.late > 0) {
      tell(number, "given up");
    }
    m_next = number + 1;
  }
  void tell(int number, const char* what) {
    std::fprintf(stderr, "picture %d of seed %llu: %s\n", number, m_seed, what);
    if (m_keep.isEmpty())
      return;
    if (!m_pictures)
      m_pictures.emplace(makePictures());
    const DamagedPicture picture = m_pictures->make(m_seed, number);
    if (!write(fileOf(m_keep, number, picture), picture.bytes))
      std::fprintf(stderr, "cannot write to %s\n", qPrintable(m_keep));
  }

  quint64 m_seed;
  int m_first;
  int m_next;
  QString m_keep;
  std::optional<DamagedPictures> m_pictures; // to be kept
  Answers m_answers;
  int m_unanswered = 0, m_hangs = 0, m_crashes = 0, m_failures = 0;
  bool m_isHung = false;
};

} // namespace

int main(int argc, char** argv) {
  if (const std::optional<int> status = decodePageIfAsked(argc, argv))
    return *status;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) == kWindowOption)
    return runWindow(arguments);
  QString much = arguments.value(1, QStringLiteral("2000"));
  const bool isTime = much.endsWith(u's');
  if (isTime)
    much.chop(1);
  const int number = much.toInt();
  if (number < 1) {
    std::fprintf(stderr, "torture_pictures [COUNT | SECONDSs] [SEED] [FIRST] [FOLDER]\n");
    return 2;
  }
  constexpr int kEndless = 1'000'000'000;
  constexpr qint64 kDay = 24LL * 60 * 60 * 1000;
  Watch watch(arguments.value(2, QStringLiteral("1")).toULongLong(), arguments.value(3).toInt(),
              arguments.value(4));
  return isTime ? watch.run(kEndless, number * 1000LL) : watch.run(number, kDay);
}
