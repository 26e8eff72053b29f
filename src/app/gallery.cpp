// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/gallery.h"

#include <QApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

#include "app/vexa.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_panel.h"
#include "views/common/original_msg_frm.h"

namespace vexa {
namespace {

void LetDraw() {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) {
    QApplication::processEvents();
  }
}

}  // namespace

Gallery::Gallery(const QString& directory) : directory_(directory) {}

int Gallery::Take(VEXA& window) {
  if (!directory_.mkpath(QStringLiteral("."))) {
    Fail(directory_.path());
    return missing_;
  }
  TakeViews(window);
  TakeDialogs(window);
  return missing_;
}

void Gallery::TakeViews(VEXA& window) {
  const QStringList names{
      QStringLiteral("view-reflectance"), QStringLiteral("view-reflectance-text"),
      QStringLiteral("view-index"),       QStringLiteral("view-light"),
      QStringLiteral("view-light-text"),  QStringLiteral("view-chromaticity"),
      QStringLiteral("view-reciprocal")};
  const QList<QAction*> views = window.Commands().views->actions();
  for (qsizetype i = 0; i < views.size(); ++i) {
    views[i]->trigger();
    LetDraw();
    while (window.findChild<ColourPanel*>()->Picture()->IsBuilding()) {
      QApplication::processEvents();
    }
    Save(window, names[i]);
  }
  views.constFirst()->trigger();
}

void Gallery::TakeDialogs(VEXA& window) {
  const MenuCommands& commands = window.Commands();
  TakeDialog(commands.displaySettings, QStringLiteral("display-settings"));
  TakeDialog(commands.settingsList, QStringLiteral("settings-list"));
  TakeDialog(commands.sampleInformation, QStringLiteral("sample-information"));
  TakeDialog(commands.printSettings, QStringLiteral("print-settings"));
  TakeDialog(commands.print, QStringLiteral("print"));
  TakeDialog(commands.standards, QStringLiteral("standards"));
  TakeDialog(commands.thicknessSettings, QStringLiteral("thickness-settings"));
  TakeDialog(commands.wavelengthList, QStringLiteral("wavelength-list"));
  TakeDialog(commands.colourDifference, QStringLiteral("colour-difference"));
  TakeDialog(commands.referenceSettings, QStringLiteral("reference-settings"));
  TakeDialog(commands.samplingSettings, QStringLiteral("sampling-settings"));
  TakeDialog(commands.calibration, QStringLiteral("calibration"));
  TakeDialog(commands.version, QStringLiteral("version"));
  TakeWindow(commands.thicknessGraph, QStringLiteral("thickness-history"),
             QStringLiteral("ThickGraph"));
}

// A dialog runs its own event loop: the picture is taken from within it.
void Gallery::TakeDialog(QAction* command, const QString& name) {
  bool taken = false;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) {
      return;
    }
    LetDraw();
    auto* pages = dialog->findChild<QTabWidget*>();
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
      if (pages != nullptr) {
        pages->setCurrentIndex(page);
        LetDraw();
      }
      Save(*dialog, page == 0 ? name : QStringLiteral("%1-%2").arg(name).arg(page + 1));
    }
    taken = true;
    dialog->close();
  });
  command->trigger();
  LetDraw();
  if (!taken) {
    Fail(name);
  }
}

void Gallery::TakeWindow(QAction* command, const QString& name, const QString& objectName) {
  command->trigger();
  LetDraw();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == objectName) {
      Save(*window, name);
      window->close();
      return;
    }
  }
  Fail(name);
}

void Gallery::Save(QWidget& widget, const QString& name) {
  if (!widget.grab().save(directory_.filePath(name + QStringLiteral(".png")))) {
    Fail(name);
  }
}

void Gallery::Fail(const QString& name) {
  std::fprintf(stderr, "vexa: no picture of %s\n", qUtf8Printable(name));
  ++missing_;
}

}  // namespace vexa
