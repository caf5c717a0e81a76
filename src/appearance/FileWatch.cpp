#include "appearance/FileWatch.h"

#include "storage/FileSystem.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace hooptab {

struct FileWatch::Shared {
  explicit Shared(FileWatch* watcher) : receiver(watcher) {}

  std::mutex mutex;
  std::condition_variable stopped;
  FileWatch* receiver; // null once it has stopped

  static FileStamp stampOf(const std::string& path) {
    FileSystem files;
    FileStamp stamp; // as it is where there is no file
    (void)files.stamp(path, stamp);
    return stamp;
  }
  static void run(const std::shared_ptr<Shared>& shared, const std::string& path,
                  std::chrono::milliseconds every) {
    FileStamp seen = stampOf(path);
    std::unique_lock lock(shared->mutex);
    while (!shared->stopped.wait_for(lock, every, [&] { return shared->receiver == nullptr; })) {
      lock.unlock();
      const FileStamp now = stampOf(path);
      lock.lock();
      if (now != seen && shared->receiver != nullptr)
        QMetaObject::invokeMethod(shared->receiver, &FileWatch::changed, Qt::QueuedConnection);
      seen = now;
    }
  }
};

void FileWatch::watch(const std::string& path, std::chrono::milliseconds every) {
  stop();
  m_shared = std::make_shared<Shared>(this);
  std::thread(&Shared::run, m_shared, path, every).detach();
}

void FileWatch::stop() {
  if (m_shared == nullptr)
    return;
  {
    const std::lock_guard lock(m_shared->mutex);
    m_shared->receiver = nullptr;
  }
  m_shared->stopped.notify_all();
  m_shared.reset();
}

} // namespace hooptab
