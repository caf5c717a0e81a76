// The least that a program with a window can do: its start is the floor for ours.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  QTimer::singleShot(0, &window, [&window] {
    QTimer::singleShot(0, &window, [&window] {
      std::puts("ready");
      std::fflush(stdout);
      window.close();
    });
  });
  return QApplication::exec();
}
