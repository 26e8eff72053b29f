// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_window.h"

#include <QCloseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include "base/translation.h"
#include "records/record_settings.h"
#include "records/record_store.h"
#include "views/common/file_questions.h"
#include "views/lot/lot_page.h"
#include "views/lot/lot_report.h"
#include "views/lot/lot_start_page.h"
#include "views/paper/current_printer.h"

namespace vexa {

LotWindow::LotWindow(const LotParts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      pages_(new QStackedWidget),
      start_(new LotStartPage(parts_.session.State().programDirectory, parts_.dialogs)) {
  setObjectName(QStringLiteral("LotWindow"));
  setWindowTitle(Text::tr("ロット測定"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  pages_->addWidget(start_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(pages_);
  constexpr QSize kUsual(980, 540);
  resize(kUsual);
  start_->setFocus();
  connect(start_, &LotStartPage::StartRequested, this, &LotWindow::Start);
  connect(start_, &LotStartPage::ReportRequested, this, [this] { Report(start_->Lot()); });
}

// While something is measured it is ended first; the window goes when the instrument is at rest.
void LotWindow::closeEvent(QCloseEvent* event) {
  if (run_ != nullptr && run_->IsMeasuring()) {
    closing_ = true;
    run_->Cancel();
    event->ignore();
    return;
  }
  if (page_ != nullptr) {
    page_->EndLight();
  }
  QDialog::closeEvent(event);
  // reject() does nothing, so that the base has left it open.
  event->accept();
}

QCoro::Task<> LotWindow::Start() {
  const QPointer<LotWindow> alive(this);
  const std::optional<Recipe> recipe = start_->ReadChosenRecipe();
  if (!recipe || run_ != nullptr) {
    co_return;
  }
  if (start_->Lot().isEmpty()) {
    parts_.messages.Tell({Message::kLotWithoutName});
    start_->setFocus();
    co_return;
  }
  const std::optional<QList<RecordSummary>> rows = RowsOf(start_->Lot());
  if (!rows || !parts_.desk.IsIdle() || !TakeRecipe(*recipe)) {
    co_return;
  }
  run_ = std::make_unique<LotRun>(LotIdentity{*recipe, start_->Lot(), start_->OperatorName()},
                                  TallyOf(*rows), parts_.session, parts_.desk, parts_.recorder,
                                  RecordStorePath(parts_.session.State().programDirectory));
  page_ = new LotPage(*run_, parts_.session, parts_.desk, parts_.messages);
  connect(page_, &LotPage::EndRequested, this, &LotWindow::End);
  connect(page_, &LotPage::ReportRequested, this, [this] { Report(run_->Identity().lot); });
  connect(run_.get(), &LotRun::Changed, this, [this] {
    if (closing_ && !run_->IsMeasuring()) {
      closing_ = false;
      QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    }
  });
  pages_->addWidget(page_);
  pages_->setCurrentWidget(page_);
  page_->setFocus();
  co_await parts_.desk.SendSampling();
}

void LotWindow::End() {
  if (run_ == nullptr || run_->IsMeasuring()) {
    return;
  }
  page_->EndLight();
  pages_->setCurrentWidget(start_);
  page_->deleteLater();
  page_ = nullptr;
  run_.release()->deleteLater();
  start_->setFocus();
}

bool LotWindow::TakeRecipe(const Recipe& recipe) {
  Settings settings = parts_.session.SettingsInForce();
  const RecipeInForce applied = ApplyRecipe(recipe, settings);
  TellAll(applied.notices, parts_.messages);
  if (!applied.complete) {
    return false;
  }
  parts_.session.TakeSettings(settings);
  if (!recipe.filmStack.isEmpty()) {
    const QString& directory = parts_.session.State().programDirectory;
    const WriteResult written = parts_.preferences.Change([&recipe](ProgramSettings& program) {
      program.filmStack = recipe.filmStack;
      program.fitEachMeasurement = true;
    });
    (void)TellWritten(written, ProgramSettingsPath(directory), parts_.messages);
  }
  return true;
}

// What the store holds of the lot; nothing, and the user is told, when it cannot be read.
std::optional<QList<RecordSummary>> LotWindow::RowsOf(const QString& lot) {
  const QString path = RecordStorePath(parts_.session.State().programDirectory);
  RecordStore store;
  StoreFault fault = store.Open(path, RecordStore::Mode::kRead);
  if (fault == StoreFault::kMissing) {
    return QList<RecordSummary>();
  }
  if (fault == StoreFault::kNone) {
    const Answer<QList<RecordSummary>> rows = LotRows(store, lot);
    if (rows) {
      return rows.value;
    }
    fault = rows.fault;
  }
  TellUnreadable(fault);
  return std::nullopt;
}

void LotWindow::TellUnreadable(StoreFault fault) {
  const QString path = RecordStorePath(parts_.session.State().programDirectory);
  parts_.messages.Tell({Message::kRecordUnreadable, {StoreFaultText(fault)}});
}

void LotWindow::Report(const QString& lot) {
  const QString path = RecordStorePath(parts_.session.State().programDirectory);
  RecordStore store;
  Answer<LotContent> content;
  content.fault = store.Open(path, RecordStore::Mode::kRead);
  if (content) {
    content = ReadLot(store, lot);
  }
  if (!content && content.fault != StoreFault::kMissing) {
    TellUnreadable(content.fault);
    return;
  }
  if (content.value.rows.empty()) {
    parts_.messages.Tell({Message::kLotWithoutRows, {lot}});
    return;
  }
  parts_.printer.Print(Text::tr("ロット報告書") + QStringLiteral(" ") + lot,
                       MakeLotReport(content.value));
}

}  // namespace vexa
