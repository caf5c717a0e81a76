// What a second start of the program leaves to the one that runs already on its folder: the games it was to
// open, handed over through a local socket that belongs to this user and this folder. Whether one is running
// is InstanceLock's to know.
#pragma once

#include <QObject>
#include <QStringList>

#include <chrono>
#include <string>
#include <vector>

class QLocalServer;
class QLocalSocket;

namespace hooptab {

class SecondStart : public QObject {
  Q_OBJECT

 public:
  // Listens for others from now on. Where that is not possible, none is ever heard.
  explicit SecondStart(const QString& programFolder);

  // Hands absolute paths to the program that listens; one that has only just started is waited for. False:
  // nobody took them.
  [[nodiscard]] static bool handOver(const QString& programFolder, const std::vector<std::string>& games,
                                     std::chrono::milliseconds patience = std::chrono::seconds(5));

 signals:
  // Once for each second start; without games it only wants this window.
  void asked(const QStringList& games);

 private:
  void serve(QLocalSocket* other);

  QLocalServer* m_server;
};

} // namespace hooptab
