#include "forms/DecoderProcess.h"

#include "forms/PageAnswer.h"
#include "forms/PageDecoder.h"
#include "forms/ScanFile.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <span>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace hooptab {

namespace {

// Bytes of addresses in use. The limit is laid on top: what the program's libraries take differs from one
// computer to the next, and a sanitizer reserves terabytes.
rlim_t addressSpaceInUse() {
  std::ifstream sizes("/proc/self/statm");
  rlim_t pages = 0;
  sizes >> pages;
  return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

void limit(__rlimit_resource resource, rlim_t most, rlim_t grace = 0) {
  const rlimit both{most, most + grace};
  (void)::setrlimit(resource, &both); // can fail only where the limit is lower already
}

bool write(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR)
      return false;
    bytes = bytes.subspan(count < 0 ? 0 : static_cast<std::size_t>(count));
  }
  return true;
}

template <class Record>
bool writeRecord(const Record& record) {
  std::array<std::uint8_t, sizeof(Record)> bytes;
  std::memcpy(bytes.data(), record.data(), bytes.size());
  return write(bytes);
}

} // namespace

std::optional<int> decodePageIfAsked(int argc, char** argv) {
  if (argc != 4 || std::strcmp(argv[1], kDecodePageOption) != 0)
    return std::nullopt;
  confineProcess({});
  const QCoreApplication application(argc, argv); // knows where the decoders of the kinds are
  bool isHeard = true;
  const ScannedPage page =
      loadScan(QString::fromUtf8(argv[2]), std::atoi(argv[3]),
               [&isHeard](int pagesInFile) { isHeard = writeRecord(PageAnswer::countRecord(pagesInFile)); });
  isHeard = isHeard && writeRecord(PageAnswer::pageRecord(page)) && write(page.picture.pixels);
  return isHeard ? EXIT_SUCCESS : EXIT_FAILURE;
}

void confineProcess(const DecoderLimits& limits) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::signal(SIGXFSZ, SIG_IGN); // complaints may go to a file, and are lost then
  limit(RLIMIT_FSIZE, 0);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorSeconds), 1); // a signal of its own, then the end
  if (const rlim_t used = addressSpaceInUse(); used > 0)
    limit(RLIMIT_AS, used + limits.memory);
}

} // namespace hooptab
