// SPDX-License-Identifier: GPL-3.0-or-later
// A window with nothing in it: the least that a program of this toolkit takes to start.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("bare window"));
  window.resize(1280, 800);
  window.show();
  return QApplication::exec();
}
