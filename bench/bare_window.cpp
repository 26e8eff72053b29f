// SPDX-License-Identifier: GPL-3.0-or-later
// A window with nothing in it, or with the text of its argument: the least that a program of this
// toolkit takes to start.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("bare window"));
  window.resize(1280, 900);
  if (argc > 1) {
    window.setCentralWidget(new QLabel(QString::fromUtf8(argv[1])));
  }
  window.show();
  return QApplication::exec();
}
