// What the program is measured against: a Qt window of the same size with nothing in it.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  window.resize(1100, 800);
  window.show();
  return QApplication::exec();
}
