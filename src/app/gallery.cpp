// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/gallery.h"

#include <QApplication>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <cstdio>
#include <tuple>

#include "app/vexa.h"
#include "base/translation.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_panel.h"
#include "views/common/original_msg_frm.h"
#include "views/common/scroll_body.h"
#include "views/graph/reflectance_graph.h"

namespace vexa {
namespace {

void LetDraw() {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) {
    QApplication::processEvents();
  }
}

void Press(const QWidget& window, const char* button) {
  window.findChild<QAbstractButton*>(QLatin1String(button))->click();
  LetDraw();
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
  TakeWindows(window);
  TakeMessage();
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
  const std::pair<QAction*, const char*> dialogs[] = {
      {commands.displaySettings, "display-settings"},
      {commands.settingsList, "settings-list"},
      {commands.sampleInformation, "sample-information"},
      {commands.printSettings, "print-settings"},
      {commands.standards, "standards"},
      {commands.thicknessSettings, "thickness-settings"},
      {commands.wavelengthList, "wavelength-list"},
      {commands.colourDifference, "colour-difference"},
      {commands.referenceSettings, "reference-settings"},
      {commands.samplingSettings, "sampling-settings"},
      {commands.calibration, "calibration"},
      {commands.version, "version"}};
  for (const auto& [command, name] : dialogs) {
    TakeDialog([action = command] { action->trigger(); }, QLatin1String(name));
  }
  TakeDialog([&] { commands.print->trigger(); }, QStringLiteral("print"),
             [this](QWidget& dialog) {
               TakeDialog([&] { Press(dialog, "Preview"); }, QStringLiteral("print-preview"));
             });
  auto* graph = window.findChild<ReflectanceGraph*>(QStringLiteral("ReflectanceGraph"));
  TakeDialog([graph] { emit graph->JumpRequested(); }, QStringLiteral("jump"));
}

void Gallery::TakeWindows(VEXA& window) {
  Press(window, "StockShow");
  TakeWindow(QStringLiteral("StockWindow"), QStringLiteral("accumulation"));
  for (const auto& [command, object, name] :
       {std::tuple{window.Commands().slotStatistics, "SlotStatisticsWindow", "slot-statistics"},
        std::tuple{window.Commands().controlChart, "ControlChartWindow", "control-chart"},
        std::tuple{window.Commands().dailyCheck, "DailyCheckWindow", "daily-check"},
        std::tuple{window.Commands().gaugeStudy, "GaugeStudyWindow", "gauge-study"}}) {
    command->trigger();
    TakeWindow(QLatin1String(object), QLatin1String(name));
  }
  window.Commands().thicknessGraph->trigger();
  LetDraw();
  for (const QWidget* history : QApplication::topLevelWidgets()) {
    if (history->objectName() == QLatin1String("ThickGraph")) {
      Press(*history, "AddPoint");
      TakeDialog([&] { history->findChild<QAction*>(QStringLiteral("GraphSettings"))->trigger(); },
                 QStringLiteral("thickness-history-settings"));
    }
  }
  TakeWindow(QStringLiteral("ThickGraph"), QStringLiteral("thickness-history"));
}

void Gallery::TakeMessage() {
  OriginalMsgFrm message;
  const auto show = [&message] {
    message.Show(
        {Message::kControllerFailed, {}, Text::tr("com5 (/dev/ttyUSB0) という装置がありません。")});
  };
  TakeDialog(show, QStringLiteral("message"), [this](QWidget& dialog) {
    Press(dialog, "Unfold");
    Save(dialog, QStringLiteral("message-unfolded"));
  });
}

void Gallery::TakeDialog(const std::function<void()>& open, const QString& name,
                         const std::function<void(QWidget&)>& inside) {
  const QWidget* below = QApplication::activeModalWidget();
  open();
  LetDraw();
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == below) {
    Fail(name);
    return;
  }
  auto* pages = dialog->findChild<QTabWidget*>();
  for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
    if (pages != nullptr) {
      pages->setCurrentIndex(page);
      LetDraw();
    }
    Save(*dialog, page == 0 ? name : QStringLiteral("%1-%2").arg(name).arg(page + 1));
  }
  if (inside) {
    inside(*dialog);
  }
  dialog->close();
  LetDraw();
}

void Gallery::TakeWindow(const QString& objectName, const QString& name) {
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

// On whatever screen: all of the window in the picture.
void Gallery::Save(QWidget& widget, const QString& name) {
  if (const auto* body = widget.findChild<ScrollBody*>()) {
    const QSize hidden = (body->widget()->sizeHint() - body->viewport()->size()).expandedTo({0, 0});
    if (!hidden.isNull()) {
      widget.resize(widget.size() + hidden);
      LetDraw();
    }
  }
  if (!widget.grab().save(directory_.filePath(name + QStringLiteral(".png")))) {
    Fail(name);
  }
}

void Gallery::Fail(const QString& name) {
  std::fprintf(stderr, "vexa: no picture of %s\n", qUtf8Printable(name));
  ++missing_;
}

}  // namespace vexa
