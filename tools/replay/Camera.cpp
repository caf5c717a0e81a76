#include "tools/replay/Camera.h"

#include <chrono>
#include <iostream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace hooptab {

void Camera::take(const std::string& name) {
  if (m_folder.empty() || !m_taken.insert(name).second)
    return;
  std::this_thread::sleep_for(std::chrono::milliseconds(400)); // a tick of the clock, and the painting
  const std::string path = m_folder + "/" + name + ".png";
  const pid_t process = ::fork();
  if (process == 0) {
    ::execlp("import", "import", "-window", "root", path.c_str(), nullptr);
    ::_exit(127);
  }
  int status = -1;
  ::waitpid(process, &status, 0);
  if (status != 0)
    std::cerr << "no picture " << path << ": is ImageMagick's import there?\n";
}

} // namespace hooptab
