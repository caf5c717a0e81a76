// Pages decoded in a process of their own: what a good one gives, what limits it, and everything that a
// damaged picture can make of it.
#include "forms/PageDecoder.h"

#include "forms/DecoderProcess.h"
#include "forms/PictureFile.h"
#include "support/TemporaryFolder.h"

#include <QFile>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace hooptab {
namespace {

using Reason = PageRefusal::Reason;
using namespace std::chrono_literals;

class PageDecoderTest : public testing::Test {
 protected:
  std::string write(const char* name, const QByteArray& bytes) const {
    return folder.write(name, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  }
  std::string save(const char* name, const QImage& picture) const {
    EXPECT_TRUE(picture.save(QString::fromStdString(folder.path(name)))) << name;
    return folder.path(name);
  }
  ScannedPage decode(const std::string& path, int page = 0) const {
    return PageDecoder().decode(path, page, watch);
  }
  // With a shell script in the place of the process.
  PageDecoder scripted(const std::string& lines, std::chrono::seconds patience = 60s) const {
    PageDecoder decoder{folder.write("decoder.sh", "#!/bin/sh\n" + lines + '\n'), patience};
    std::filesystem::permissions(decoder.program, std::filesystem::perms::owner_all);
    return decoder;
  }

  TemporaryFolder folder;
  TaskWatch watch;
};

TEST_F(PageDecoderTest, MakesFineScansCoarserAndKeepsTheirShades) {
  QImage gray(6000, 8000, QImage::Format_Grayscale8); // 48 million dots
  gray.fill(200);
  const ScannedPage fine = decode(write("fine.tif", tifOf({gray})));
  ASSERT_EQ(fine.refusal.reason, Reason::None);
  EXPECT_EQ(fine.pagesInFile, 1);
  EXPECT_EQ(fine.picture.width, 3000);
  EXPECT_EQ(fine.picture.height, 4000);
  EXPECT_EQ(fine.picture.at(1234, 2345), 200);
  QImage colour(4960, 7016, QImage::Format_RGB32); // A4 of 600 dots per inch
  colour.fill(qRgb(90, 90, 90));
  for (const char* name : {"colour.jpg", "colour.tif"}) {
    const ScannedPage page = decode(save(name, colour));
    ASSERT_EQ(page.refusal.reason, Reason::None) << name;
    EXPECT_EQ(page.picture.width, 2480);
    EXPECT_NEAR(page.picture.at(1000, 1000), 90, 1) << name;
  }
}

TEST_F(PageDecoderTest, DrawsThePagesOfAPdfFile) {
  QImage light(1240, 1754, QImage::Format_Grayscale8); // A4 of 150 dots per inch
  QImage dark = light;
  light.fill(200);
  dark.fill(60);
  const std::string path = write("scan.bin", "junk of a mail\n" + pdfOf({light, dark}));
  for (const int page : {0, 1}) {
    const ScannedPage read = decode(path, page);
    ASSERT_EQ(read.refusal.reason, Reason::None);
    EXPECT_EQ(read.pagesInFile, 2);
    EXPECT_NEAR(read.picture.width, 2480, 1) << "as many as of a scan of 300 dots per inch";
    EXPECT_NEAR(read.picture.height, 3508, 1);
    EXPECT_NEAR(read.picture.at(1200, 1700), page == 0 ? 200 : 60, 1);
  }
  EXPECT_EQ(decode(path, 2).refusal.reason, Reason::Damaged) << "there is none";
}

TEST_F(PageDecoderTest, RefusesPicturesThatAreTooMuchOrNone) {
  QImage strip(1000, 60000, QImage::Format_Mono);
  strip.fill(1);
  strip.setDotsPerMeterX(11811); // 300 dots per inch
  strip.setDotsPerMeterY(11811);
  const std::pair<std::string, Reason> cases[] = {
      {write("head.jpg", QByteArray("\xff\xd8\xff\xe0", 4)), Reason::Damaged},
      {write("giant.png", pngOfSize(60000, 60000, 16, 6, 1)), Reason::TooLarge},
      {write("cut.png", pngOfSize(9000, 9000, 8, 0, 0)), Reason::Damaged},
      {save("strip.png", strip), Reason::TooLarge},
      {write("locked.pdf", lockedPdf()), Reason::Locked},
      {write("head.pdf", "%PDF-1.4\n1 0 obj"), Reason::Damaged},
      {write("field.pdf", pdfOf({strip}, {4000, 4000})), Reason::TooLarge},
      {write("card.pdf", pdfOf({strip}, {55, 85})), Reason::TooCoarse},
      {write("directories.tif", tifOfDirectories(500'000)), Reason::TooManyPages},
      {folder.path("absent.tif"), Reason::CannotOpen},
      {"/dev/zero", Reason::CannotOpen}};
  for (const auto& [file, reason] : cases) {
    const ScannedPage page = decode(file);
    EXPECT_EQ(page.refusal.reason, reason) << file;
    EXPECT_TRUE(page.picture.pixels.empty());
  }
}

TEST_F(PageDecoderTest, TellsWhyThereIsNoAnswer) {
  const std::string counted = "printf 'HTPG\\003\\000\\000\\000'\n";
  const ScannedPage none = PageDecoder{folder.path("absent"), 60s}.decode("page.tif", 0, watch);
  EXPECT_EQ(none.refusal.reason, Reason::CannotStart);
  EXPECT_EQ(none.refusal.number, ENOENT);
  const std::tuple<const char*, std::chrono::seconds, PageRefusal> scripts[] = {
      {"kill -SEGV $$", 60s, {Reason::BrokeOff}},
      {"exit 0", 60s, {Reason::BrokeOff}},
      {"exec >&-; sleep 100", 60s, {Reason::BrokeOff}},
      {"cat /dev/zero", 60s, {Reason::BrokeOff}},
      {"echo These are words, and no picture at all", 60s, {Reason::BrokeOff}},
      {"printf 'HTPX\\0\\0\\0\\0\\0\\0\\0\\0\\2\\0\\0\\0\\2\\0\\0\\0cut'", 60s, {Reason::BrokeOff}},
      {"exec sleep 100", 1s, {Reason::TookTooLong, 1}},
      {"ulimit -S -t 1; while :; do :; done", 60s, {Reason::TookTooLong, DecoderLimits{}.processorSeconds}}};
  for (const auto& [lines, patience, refusal] : scripts) {
    const ScannedPage page = scripted(counted + lines, patience).decode("page.tif", 0, watch);
    EXPECT_EQ(page.refusal.reason, refusal.reason) << lines;
    EXPECT_EQ(page.refusal.number, refusal.number) << lines;
    EXPECT_EQ(page.pagesInFile, 3) << lines;
    EXPECT_TRUE(page.picture.pixels.empty());
  }
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no process is left";
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(PageDecoderTest, EndsTheProcessAtOnceWhenItIsStopped) {
  const PageDecoder decoder = scripted("exec sleep 100");
  std::thread user([this] {
    std::this_thread::sleep_for(100ms);
    watch.cancel();
  });
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(decoder.decode("page.tif", 0, watch).refusal.reason, Reason::Cancelled);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
  user.join();
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no process is left";
}

TEST_F(PageDecoderTest, GivesTheProcessNothingThatIsOpenHere) {
  QFile kept(QString::fromStdString(folder.path("kept")));
  ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
  const int inherited = ::dup(kept.handle()); // not closed on exec
  ASSERT_GT(inherited, STDERR_FILENO);
  (void)scripted("ls /proc/self/fd > " + folder.path("open")).decode("page.tif", 0, watch);
  ::close(inherited);
  EXPECT_EQ(folder.read("open"), "0\n1\n2\n3\n") << "the last one is the folder that is listed";
}

TEST(DecoderProcessDeathTest, HasLittleTimeAndMemoryAndWritesToNoFile) {
  const TemporaryFolder folder;
  const DecoderLimits small{1, 200'000'000};
  EXPECT_EXIT(
      {
        confineProcess(small);
        for (volatile bool isBusy = true; isBusy;) {
        }
      },
      testing::KilledBySignal(SIGXCPU), "");
  EXPECT_EXIT(
      {
        confineProcess(small);
        const bool fits = std::malloc(100'000'000) != nullptr;
        const bool isMapped =
            ::mmap(nullptr, 300'000'000, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
        std::_Exit(fits && !isMapped ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
  EXPECT_EXIT(
      {
        confineProcess(small);
        std::ofstream file(folder.path("file"));
        file << "words" << std::flush;
        std::_Exit(file ? 1 : 0);
      },
      testing::ExitedWithCode(0), "");
}

TEST(DecoderProcess, EndsWithTheProgram) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const pid_t program = ::fork();
  if (program == 0) {
    if (::fork() == 0) {
      confineProcess({});
      (void)!::write(ends[1], "x", 1);
    }
    for (;;)
      ::pause();
  }
  ::close(ends[1]);
  char sign = 0;
  ASSERT_EQ(::read(ends[0], &sign, 1), 1);
  ::kill(program, SIGKILL);
  ::waitpid(program, nullptr, 0);
  pollfd watched{ends[0], POLLIN, 0};
  ASSERT_EQ(::poll(&watched, 1, 10'000), 1);
  EXPECT_EQ(::read(ends[0], &sign, 1), 0) << "both have come to their end";
  ::close(ends[0]);
}

} // namespace
} // namespace hooptab
