// The least that a program with a window can do: its start is the floor for ours.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  QTimer::singleShot(0, &window, [&window] { QTimer::singleShot(0, &window, &QWidget::close); });
  return QApplication::exec();
}
