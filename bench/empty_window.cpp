// The measure for start-up: a program that shows an empty window and nothing else.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  window.resize(1000, 640);
  window.show();
  return QApplication::exec();
}
