// Says when a file looks different: another size, time or identity, or it has come or gone. Looks every two
// seconds, on a thread of its own: a share that does not answer must not stop the window. Reads nothing.
#pragma once

#include <QObject>

#include <chrono>
#include <memory>
#include <string>

namespace hooptab {

class FileWatch : public QObject {
  Q_OBJECT
 public:
  explicit FileWatch(QObject* parent = nullptr) : QObject(parent) {}
  ~FileWatch() override { stop(); }

  void watch(const std::string& path, std::chrono::milliseconds every = std::chrono::seconds(2));
  void stop();

 signals:
  void changed();

 private:
  struct Shared; // with the thread, which may hang after this has gone
  std::shared_ptr<Shared> m_shared;
};

} // namespace hooptab
