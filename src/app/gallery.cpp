// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/gallery.h"

#include <QApplication>
#include <QComboBox>
#include <QCoroTask>
#include <QDeadlineTimer>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <cstdio>
#include <tuple>

#include "app/vexa.h"
#include "base/translation.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_panel.h"
#include "views/common/original_msg_frm.h"
#include "views/common/scroll_body.h"
#include "views/film/film_fit_window.h"
#include "views/graph/reflectance_graph.h"
#include "views/graph/view_table.h"
#include "views/lot/lot_window.h"

namespace vexa {
namespace {

void LetDraw() {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) {
    QApplication::processEvents();
  }
}

void WaitUntil(const std::function<bool()>& done) {
  constexpr int kPatienceMs = 10000;
  const QDeadlineTimer deadline(kPatienceMs);
  while (!done() && !deadline.hasExpired()) {
    QApplication::processEvents(QEventLoop::AllEvents, 10);
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
  TakeCie(window);
  TakeLot(window);
  TakeMessage();
  return missing_;
}

void Gallery::TakeViews(VEXA& window) {
  const QList<QAction*> views = window.Commands().views->actions();
  for (qsizetype i = 0; i < views.size(); ++i) {
    views[i]->trigger();
    LetDraw();
    while (window.findChild<ColourPanel*>()->Picture()->IsBuilding()) {
      QApplication::processEvents();
    }
    Save(window, QStringLiteral("view-") + QLatin1String(kViews[static_cast<std::size_t>(i)].name));
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
  TakeFilmFit(window);
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
  TakeRecords(window);
}

// What is read of the store comes from a thread of its own.
void Gallery::TakeRecords(VEXA& window) {
  window.Commands().records->trigger();
  const auto* records = window.findChild<QWidget*>(QStringLiteral("RecordsWindow"));
  auto* table = records->findChild<QTableView*>(QStringLiteral("RecordTable"));
  const auto* details = records->findChild<QTextEdit*>(QStringLiteral("RecordDetails"));
  WaitUntil([table] { return table->model()->rowCount() > 0; });
  table->selectAll();
  WaitUntil([details] { return !details->document()->isEmpty(); });
  Press(*records, "RecomputeRecords");
  WaitUntil([records] { return records->findChild<QDialog*>() != nullptr; });
  TakeWindow(QStringLiteral("RecomputedWindow"), QStringLiteral("records-recomputed"));
  TakeWindow(QStringLiteral("RecordsWindow"), QStringLiteral("records"));
}

void Gallery::TakeFilmFit(VEXA& window) {
  window.Commands().filmFit->trigger();
  LetDraw();
  if (auto* fit = window.findChild<FilmFitWindow*>()) {
    Press(*fit, "FitAll");
    while (!fit->IsDone()) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
  }
  TakeWindow(QStringLiteral("FilmFitWindow"), QStringLiteral("film-fit"));
}

// Everything that the CIE colours add; it is gone again at the end.
void Gallery::TakeCie(VEXA& window) {
  const MenuCommands& commands = window.Commands();
  const auto choose = [](const QWidget& within, const char* choice) {
    auto* box = within.findChild<QComboBox*>(QLatin1String(choice));
    box->setCurrentIndex(box->count() - 1);
    emit box->activated(box->currentIndex());
    LetDraw();
  };
  const auto change = [](QWidget& dialog) {
    Press(dialog, "ShowCie");
    Press(dialog, "OK");
  };
  TakeDialog([&] { commands.programSettings->trigger(); }, QStringLiteral("program-settings"),
             change);
  constexpr int kDiagramView = 5;
  commands.views->actions().at(kDiagramView)->trigger();
  LetDraw();
  choose(window, "DiagramKind");
  Save(window, QStringLiteral("view-chromaticity-cie"));
  TakeDialog(
      [&] {
        commands.colourDifference->trigger();
        LetDraw();
        choose(*QApplication::activeModalWidget(), "DifferenceKind");
      },
      QStringLiteral("colour-difference-cie"));
  commands.views->actions().constFirst()->trigger();
  commands.programSettings->trigger();
  LetDraw();
  change(*QApplication::activeModalWidget());
}

// A lot of a few lenses, on whatever the stage shows next.
void Gallery::TakeLot(VEXA& window) {
  window.Commands().lotMeasurement->trigger();
  LetDraw();
  auto* lots = window.findChild<LotWindow*>();
  lots->findChild<QLineEdit*>(QStringLiteral("LotName"))->setText(QStringLiteral("L-2031"));
  lots->findChild<QLineEdit*>(QStringLiteral("LotOperator"))->setText(QStringLiteral("VEXA"));
  LetDraw();
  Save(*lots, QStringLiteral("lot-start"));
  Press(*lots, "LotStart");
  QCoro::waitFor(window.Desk().UntilIdle());
  constexpr int kLenses = 4;
  for (int lens = 1; lens <= kLenses; ++lens) {
    auto* number = lots->findChild<QLineEdit*>(QStringLiteral("LotNumber"));
    number->setText(QStringLiteral("A-%1").arg(lens));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(number, &key);
    QCoro::waitFor(window.Desk().UntilIdle());
    LetDraw();
  }
  Save(*lots, QStringLiteral("lot"));
  lots->close();
  LetDraw();
}

void Gallery::TakeMessage() {
  OriginalMsgFrm message;
  const auto show = [&message] {
    message.MsgCall(
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
  const QPointer<QWidget> dialog = QApplication::activeModalWidget();
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
  if (dialog != nullptr) {
    dialog->close();
  }
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
