// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/gallery.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <cstdio>
#include <tuple>

#include "app/vexa.h"
#include "app/window_waits.h"
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

void Press(const QWidget& window, const char* button) {
  window.findChild<QAbstractButton*>(QLatin1String(button))->click();
}

void ChooseLast(const QWidget& within, const char* choice) {
  auto* box = within.findChild<QComboBox*>(QLatin1String(choice));
  box->setCurrentIndex(box->count() - 1);
  emit box->activated(box->currentIndex());
}

QWidget* ShownWindow(const QString& objectName) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == objectName) {
      return window;
    }
  }
  return nullptr;
}

}  // namespace

Gallery::Gallery(const QString& directory, VEXA& window) : directory_(directory), window_(window) {}

QCoro::Task<int> Gallery::Take() {
  if (!directory_.mkpath(QStringLiteral("."))) {
    Fail(directory_.path());
    co_return missing_;
  }
  co_await TakeViews();
  co_await TakeDialogs();
  co_await TakePrint();
  co_await TakeWindows();
  co_await TakeFilmFit();
  co_await TakeThicknessGraph();
  const QString plain;
  co_await TakeRecords(plain);
  co_await TakeCie();
  co_await TakeLot();
  co_await TakeMessage();
  const int missing = missing_;
  co_return missing;
}

QCoro::Task<> Gallery::TakeViews() {
  const QList<QAction*> views = window_.Commands().views->actions();
  const BackgroundPicture* background = window_.findChild<ColourPanel*>()->Picture().get();
  for (qsizetype i = 0; i < views.size(); ++i) {
    views[i]->trigger();
    co_await Drawn();
    co_await Until([background] { return !background->IsBuilding(); });
    const QLatin1String view(kViews[static_cast<std::size_t>(i)].name);
    const QString name = QStringLiteral("view-") + view;
    co_await Save(window_, name);
  }
  views.constFirst()->trigger();
}

QCoro::Task<> Gallery::TakeDialogs() {
  const MenuCommands& commands = window_.Commands();
  const std::pair<QAction*, const char*> dialogs[] = {
      {commands.displaySettings, "display-settings"},
      {commands.settingsList, "settings-list"},
      {commands.sampleInformation, "sample-information"},
      {commands.printSettings, "print-settings"},
      {commands.standards, "standards"},
      {commands.thicknessSettings, "thickness-settings"},
      {commands.colourDifference, "colour-difference"},
      {commands.referenceSettings, "reference-settings"},
      {commands.samplingSettings, "sampling-settings"},
      {commands.calibration, "calibration"},
      {commands.version, "version"}};
  for (const auto& [command, named] : dialogs) {
    command->trigger();
    const QString name = QLatin1String(named);
    co_await TakeDialog(name, nullptr);
  }
  auto* graph = window_.findChild<ReflectanceGraph*>(QStringLiteral("ReflectanceGraph"));
  emit graph->JumpRequested();
  co_await TakeDialog(QStringLiteral("jump"), nullptr);
}

QCoro::Task<> Gallery::TakePrint() {
  window_.Commands().print->trigger();
  const QPointer<QWidget> dialog = co_await TakePages(QStringLiteral("print"), nullptr);
  if (!dialog.isNull()) {
    Press(*dialog, "Preview");
    co_await TakeDialog(QStringLiteral("print-preview"), dialog);
    dialog->close();
    co_await Drawn();
  }
}

QCoro::Task<> Gallery::TakeWindows() {
  Press(window_, "StockShow");
  co_await TakeWindow(QStringLiteral("StockWindow"), QStringLiteral("accumulation"));
  const MenuCommands& commands = window_.Commands();
  const std::tuple<QAction*, const char*, const char*> windows[] = {
      {commands.wavelengthList, "WaveListDlg", "wavelength-list"},
      {commands.slotStatistics, "SlotStatisticsWindow", "slot-statistics"},
      {commands.controlChart, "ControlChartWindow", "control-chart"},
      {commands.dailyCheck, "DailyCheckWindow", "daily-check"},
      {commands.gaugeStudy, "GaugeStudyWindow", "gauge-study"}};
  for (const auto& [command, object, named] : windows) {
    command->trigger();
    const QString objectName = QLatin1String(object);
    const QString name = QLatin1String(named);
    co_await Drawn();
    QWidget* window = ShownWindow(objectName);
    if (command == commands.gaugeStudy && window != nullptr) {
      ChooseLast(*window, "StudyChoice");
    }
    // What is read of the store comes from a thread of its own.
    co_await Until(
        [window] { return window == nullptr || window->cursor().shape() != Qt::BusyCursor; });
    co_await TakeWindow(objectName, name);
  }
}

QCoro::Task<> Gallery::TakeThicknessGraph() {
  const QString objectName = QStringLiteral("ThickGraph");
  window_.Commands().thicknessGraph->trigger();
  co_await Drawn();
  if (const QWidget* history = ShownWindow(objectName)) {
    Press(*history, "AddPoint");
    history->findChild<QAction*>(QStringLiteral("GraphSettings"))->trigger();
    co_await TakeDialog(QStringLiteral("thickness-history-settings"), nullptr);
  }
  co_await TakeWindow(objectName, QStringLiteral("thickness-history"));
}

// What is read of the store comes from a thread of its own.
QCoro::Task<> Gallery::TakeRecords(const QString& suffix) {
  window_.Commands().records->trigger();
  const auto* records = window_.findChild<QWidget*>(QStringLiteral("RecordsWindow"));
  auto* table = records->findChild<QTableView*>(QStringLiteral("RecordTable"));
  const auto* details = records->findChild<QTextEdit*>(QStringLiteral("RecordDetails"));
  co_await Until([table] { return table->model()->rowCount() > 0; });
  table->selectAll();
  co_await Until([details] { return !details->document()->isEmpty(); });
  Press(*records, "RecomputeRecords");
  co_await Until([records] { return records->findChild<QDialog*>() != nullptr; });
  co_await TakeWindow(QStringLiteral("RecomputedWindow"),
                      QStringLiteral("records-recomputed") + suffix);
  co_await TakeWindow(QStringLiteral("RecordsWindow"), QStringLiteral("records") + suffix);
}

QCoro::Task<> Gallery::TakeFilmFit() {
  window_.Commands().filmFit->trigger();
  co_await Drawn();
  if (auto* fit = window_.findChild<FilmFitWindow*>()) {
    Press(*fit, "FitAll");
    co_await Until([fit] { return fit->IsDone(); });
  }
  co_await TakeWindow(QStringLiteral("FilmFitWindow"), QStringLiteral("film-fit"));
}

// Everything that the CIE colours add; it is gone again at the end.
QCoro::Task<> Gallery::TakeCie() {
  const MenuCommands& commands = window_.Commands();
  const auto change = [](const QWidget& dialog) {
    Press(dialog, "ShowCie");
    Press(dialog, "OK");
  };
  commands.programSettings->trigger();
  const QPointer<QWidget> on = co_await TakePages(QStringLiteral("program-settings"), nullptr);
  if (on.isNull()) {
    co_return;
  }
  change(*on);
  commands.views->actions().at(static_cast<int>(View::kChromaticity))->trigger();
  co_await Drawn();
  ChooseLast(window_, "DiagramKind");
  co_await Drawn();
  co_await Save(window_, QStringLiteral("view-chromaticity-cie"));
  commands.colourDifference->trigger();
  co_await Drawn();
  ChooseLast(*QApplication::activeModalWidget(), "DifferenceKind");
  co_await TakeDialog(QStringLiteral("colour-difference-cie"), nullptr);
  const QString suffix = QStringLiteral("-cie");
  co_await TakeRecords(suffix);
  commands.views->actions().constFirst()->trigger();
  commands.programSettings->trigger();
  co_await Drawn();
  change(*QApplication::activeModalWidget());
}

// A lot of a few lenses, on whatever the stage shows next.
QCoro::Task<> Gallery::TakeLot() {
  window_.Commands().lotMeasurement->trigger();
  co_await Drawn();
  auto* lots = window_.findChild<LotWindow*>();
  lots->findChild<QLineEdit*>(QStringLiteral("LotName"))->setText(QStringLiteral("L-2031"));
  lots->findChild<QLineEdit*>(QStringLiteral("LotOperator"))->setText(QStringLiteral("VEXA"));
  co_await Drawn();
  co_await Save(*lots, QStringLiteral("lot-start"));
  Press(*lots, "LotStart");
  co_await window_.Desk().UntilIdle();
  constexpr int kLenses = 4;
  for (int lens = 1; lens <= kLenses; ++lens) {
    auto* number = lots->findChild<QLineEdit*>(QStringLiteral("LotNumber"));
    number->setText(QStringLiteral("A-%1").arg(lens));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(number, &key);
    co_await window_.Desk().UntilIdle();
    co_await Drawn();
  }
  co_await Save(*lots, QStringLiteral("lot"));
  lots->close();
  co_await Drawn();
}

QCoro::Task<> Gallery::TakeMessage() {
  OriginalMsgFrm message;
  const MessageCall call{
      Message::kControllerFailed, {}, Text::tr("com5 (/dev/ttyUSB0) という装置がありません。")};
  message.MsgCall(call);
  const QPointer<QWidget> dialog = co_await TakePages(QStringLiteral("message"), nullptr);
  if (!dialog.isNull()) {
    Press(*dialog, "Unfold");
    co_await Drawn();
    co_await Save(*dialog, QStringLiteral("message-unfolded"));
    dialog->close();
  }
}

QCoro::Task<QPointer<QWidget>> Gallery::TakePages(QString name, const QWidget* below) {
  co_await Drawn();
  const QPointer<QWidget> dialog = QApplication::activeModalWidget();
  if (dialog == below) {
    Fail(name);
    co_return QPointer<QWidget>();
  }
  auto* pages = dialog->findChild<QTabWidget*>();
  const int count = pages == nullptr ? 1 : pages->count();
  for (int page = 0; page < count; ++page) {
    if (pages != nullptr) {
      pages->setCurrentIndex(page);
      co_await Drawn();
    }
    const QString picture = page == 0 ? name : QStringLiteral("%1-%2").arg(name).arg(page + 1);
    co_await Save(*dialog, picture);
  }
  co_return QPointer<QWidget>(dialog);
}

QCoro::Task<> Gallery::TakeDialog(QString name, const QWidget* below) {
  const QPointer<QWidget> dialog = co_await TakePages(name, below);
  if (!dialog.isNull()) {
    dialog->close();
  }
  co_await Drawn();
}

QCoro::Task<> Gallery::TakeWindow(QString objectName, QString name) {
  co_await Drawn();
  if (QWidget* window = ShownWindow(objectName)) {
    co_await Save(*window, name);
    window->close();
  } else {
    Fail(name);
  }
}

// On whatever screen: all of the window in the picture.
QCoro::Task<> Gallery::Save(QWidget& widget, QString name) {
  if (const auto* body = widget.findChild<ScrollBody*>()) {
    const QSize hidden = (body->widget()->sizeHint() - body->viewport()->size()).expandedTo({0, 0});
    if (!hidden.isNull()) {
      widget.resize(widget.size() + hidden);
      co_await Drawn();
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
