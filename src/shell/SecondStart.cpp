#include "shell/SecondStart.h"

#include "appearance/relabel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <unistd.h>

namespace hooptab {

namespace {

// A path may hold any byte but this one, which ends each; one more ends the message.
constexpr char kEnd = '\0';
constexpr qsizetype kLongestMessage = 1 << 20;
const QByteArray kTaken = QByteArrayLiteral("taken\n");
constexpr unsigned long kPauseMilliseconds = 50;

// Short, as the system wants it, and in a folder that is this user's where there is one.
QString socketPath(const QString& programFolder) {
  const QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QByteArray folder =
      QCryptographicHash::hash(programFolder.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
  return QDir(QFileInfo(own).isDir() ? own : QDir::tempPath())
      .filePath(QStringLiteral("hooptab-%1-%2").arg(::getuid()).arg(QLatin1String(folder)));
}

bool isWhole(const QByteArray& message) {
  return message.endsWith(kEnd) && (message.size() == 1 || message[message.size() - 2] == kEnd);
}

} // namespace

SecondStart::SecondStart(const QString& programFolder) : m_server(new QLocalServer(this)) {
  const QString path = socketPath(programFolder);
  QLocalServer::removeServer(path); // left by one that was killed: the folder is ours now
  m_server->setSocketOptions(QLocalServer::UserAccessOption);
  m_server->listen(path);
  connect(m_server, &QLocalServer::newConnection, this, [this] {
    while (QLocalSocket* other = m_server->nextPendingConnection()) {
      connect(other, &QLocalSocket::disconnected, other, &QObject::deleteLater);
      connect(other, &QLocalSocket::readyRead, this, [this, other] { serve(other); });
      serve(other);
    }
  });
}

void SecondStart::serve(QLocalSocket* other) {
  const QByteArray message = other->peek(kLongestMessage);
  if (message.size() == kLongestMessage)
    return other->abort();
  if (!isWhole(message))
    return; // the rest is on its way
  other->readAll();
  other->write(kTaken);
  other->flush(); // before the games are opened, which takes its time
  other->disconnectFromServer();
  QStringList games;
  for (const QByteArray& path : message.split(kEnd)) {
    if (path.startsWith('/'))
      games << QString::fromUtf8(path);
  }
  emit asked(games);
}

bool SecondStart::handOver(const QString& programFolder, const std::vector<std::string>& games,
                           std::chrono::milliseconds patience) {
  QElapsedTimer time;
  time.start();
  const auto left = [&] { return static_cast<int>(std::max<qint64>(patience.count() - time.elapsed(), 0)); };
  QLocalSocket socket;
  for (;;) {
    socket.connectToServer(socketPath(programFolder));
    if (socket.waitForConnected(left()))
      break;
    if (left() == 0)
      return false;
    QThread::msleep(kPauseMilliseconds);
  }
  QByteArray message;
  for (const std::string& game : games)
    message += QByteArray::fromStdString(game) + kEnd;
  socket.write(message + kEnd);
  while (socket.bytesToWrite() > 0) {
    if (!socket.waitForBytesWritten(left()))
      return false;
  }
  return socket.waitForReadyRead(left()) && socket.readAll() == kTaken;
}

} // namespace hooptab
