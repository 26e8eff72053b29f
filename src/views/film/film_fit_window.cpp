// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_fit_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>

#include "base/translation.h"
#include "optics/fourier_thickness.h"
#include "optics/material.h"
#include "views/common/dialog_buttons.h"
#include "views/common/file_questions.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"
#include "views/common/scroll_body.h"
#include "views/common/window_size.h"
#include "views/film/film_fit_conditions.h"
#include "views/film/film_fit_plots.h"
#include "views/film/film_fit_print.h"
#include "views/film/film_fit_results.h"
#include "views/film/film_stack_editor.h"
#include "views/optics/fit_table.h"
#include "views/paper/current_printer.h"

namespace vexa {
namespace {

QString Filter() {
  return Text::tr("膜構成ﾌｧｲﾙ(*.flm)") + QStringLiteral("|*.flm");
}

QFrame* Framed(QWidget* widget) {
  auto* frame = new QFrame;
  frame->setFrameShape(QFrame::StyledPanel);
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->addWidget(widget);
  return frame;
}

QSplitter* Split(Qt::Orientation orientation, QWidget* first, QWidget* second, int firstStretch,
                 int secondStretch) {
  auto* splitter = new QSplitter(orientation);
  splitter->addWidget(first);
  splitter->addWidget(second);
  splitter->setStretchFactor(0, firstStretch);
  splitter->setStretchFactor(1, secondStretch);
  splitter->setChildrenCollapsible(false);
  return splitter;
}

}  // namespace

FilmFitWindow::FilmFitWindow(Session& session, ProgramPreferences& preferences,
                             CurrentPrinter& printer, MessageService& messages,
                             FileDialogs& dialogs, int selectedSlot, QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(session.State()),
      preferences_(preferences),
      printer_(printer),
      messages_(messages),
      dialogs_(dialogs),
      slot_(selectedSlot),
      stack_(new FilmStackEditor(dialogs)),
      conditions_(new FilmFitConditions),
      file_(new ElidedLabel),
      each_(new QCheckBox(Text::tr("測定後に毎回ﾌｨｯﾄ (保存した膜構成)"))),
      progress_(new QLabel),
      plot_(new FilmFitPlot),
      fourier_(new FourierPlot),
      results_(new FilmFitResults) {
  setObjectName(QStringLiteral("FilmFitWindow"));
  setWindowTitle(Text::tr("膜厚ﾌｨｯﾄ"));
  const auto name = [this] { return ProposedName(state_); };
  AddExport(*plot_, messages_, dialogs_, name);
  AddExport(*fourier_, messages_, dialogs_, name);
  plot_->setMinimumSize(270, 170);
  fourier_->setMinimumSize(210, 170);
  auto* plots = Split(Qt::Horizontal, Framed(plot_), Framed(fourier_), 3, 2);
  auto* right = Split(Qt::Vertical, plots, results_, 3, 2);
  auto* body = Split(Qt::Horizontal, BuildEntries(), right, 0, 1);
  body->setHandleWidth(10);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addWidget(body, 1);
  layout->addWidget(BuildButtons());
  ResizeWithinScreen(*this, {1180, 720});
  body->setSizes({width() / 3, width() - width() / 3});
  ReadNamedFile();
  ConnectSession();
  Refresh();
}

QWidget* FilmFitWindow::BuildEntries() {
  QPushButton* open = DialogButton("OpenStack", Text::tr("開く..."));
  QPushButton* save = DialogButton("SaveStack", Text::tr("保存..."));
  file_->setObjectName(QStringLiteral("StackFile"));
  file_->setTextFormat(Qt::PlainText);
  auto* files = new QHBoxLayout;
  files->addWidget(file_, 1);
  files->addWidget(open);
  files->addWidget(save);
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(files);
  column->addWidget(stack_);
  column->addWidget(conditions_);
  column->addWidget(each_);
  column->addStretch();
  each_->setObjectName(QStringLiteral("FitEachMeasurement"));
  each_->setToolTip(
      Text::tr("測定した試料を、ﾌｧｲﾙに保存した膜構成でﾌｨｯﾄし、結果を膜厚の横に表示します。"));
  connect(open, &QPushButton::clicked, this, &FilmFitWindow::OpenStack);
  connect(save, &QPushButton::clicked, this, &FilmFitWindow::SaveStack);
  connect(each_, &QCheckBox::clicked, this, &FilmFitWindow::FitEachSample);
  const auto edited = [this] {
    changed_ = true;
    edited_ = true;
    ShowFileName();
    Refresh();
  };
  connect(stack_, &FilmStackEditor::Edited, this, edited);
  connect(conditions_, &FilmFitConditions::Edited, this, edited);
  auto* area = new ScrollBody(content);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setMinimumWidth(content->minimumSizeHint().width() +
                        style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  return area;
}

QWidget* FilmFitWindow::BuildButtons() {
  QPushButton* one = DialogButton("FitSlot", Text::tr("選択ｽﾛｯﾄをﾌｨｯﾄ(&F)"));
  QPushButton* all = DialogButton("FitAll", Text::tr("全ｽﾛｯﾄをﾌｨｯﾄ(&A)"));
  QPushButton* copy = DialogButton("CopyFits", Text::tr("ｺﾋﾟｰ(&C)"));
  QPushButton* print = DialogButton("PrintFits", Text::tr("印刷(&P)"));
  QPushButton* close = DialogButton("CloseFits", Text::tr("閉じる"));
  one->setDefault(true);
  progress_->setObjectName(QStringLiteral("FitProgress"));
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(one);
  layout->addWidget(all);
  layout->addWidget(progress_);
  layout->addStretch();
  for (QPushButton* button : {copy, print, close}) {
    layout->addWidget(button);
  }
  connect(one, &QPushButton::clicked, this, [this] { FitSlots(false); });
  connect(all, &QPushButton::clicked, this, [this] { FitSlots(true); });
  connect(copy, &QPushButton::clicked, this, &FilmFitWindow::Copy);
  connect(print, &QPushButton::clicked, this, &FilmFitWindow::Print);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
          &FilmFitWindow::Print);
  return row;
}

void FilmFitWindow::ConnectSession() {
  connect(&session_, &Session::SlotChanged, this, [this](int slot) {
    refused_.erase(slot);  // another spectrum is another matter
    Refresh();
  });
  connect(&session_, &Session::SlotsReplaced, this, [this] {
    refused_.clear();
    Refresh();
  });
  connect(&run_, &FilmFitRun::Fitted, this, &FilmFitWindow::TakeFit);
  connect(results_, &FilmFitResults::SlotChosen, this, &FilmFitWindow::ShowSlot);
}

void FilmFitWindow::ReadNamedFile() {
  each_->setChecked(preferences_.InForce().fitEachMeasurement);
  setting_ = {QStringLiteral("1.5"), {{MaterialText(state_.thickness.coat), {}}}, {}};
  const QString& path = preferences_.InForce().filmStack;
  if (path.isEmpty() || !ReadStack(path)) {
    ShowSetting(setting_);
  }
}

bool FilmFitWindow::ReadStack(const QString& path) {
  const auto read = ReadFilmStackFile(path);
  if (const auto* fault = std::get_if<FilmStackFileFault>(&read)) {
    messages_.Tell({Message::kFilmStackFault, {path, FilmStackFileFaultText(*fault)}});
    return false;
  }
  setting_ = std::get<FilmStackSetting>(read);
  if (path != preferences_.InForce().filmStack) {
    ChangePreferences([&path](ProgramSettings& s) { s.filmStack = path; });
  }
  ShowSetting(setting_);
  return true;
}

void FilmFitWindow::ShowSetting(const FilmStackSetting& setting) {
  stack_->Show(setting);
  conditions_->Show(setting.options);
  changed_ = false;
  edited_ = false;
  ShowFileName();
  // What cannot be read is told when it is fitted.
  if (auto read = ReadFilmFitRequest(setting, Directory()); read.index() == 0) {
    request_ = std::get<FilmFitRequest>(read);
  }
}

QString FilmFitWindow::Directory() const {
  const QString& path = preferences_.InForce().filmStack;
  return path.isEmpty() ? state_.programDirectory : QFileInfo(path).absolutePath();
}

QString FilmFitWindow::FileName() const {
  return QFileInfo(preferences_.InForce().filmStack).fileName();
}

void FilmFitWindow::ShowFileName() {
  const QString name = FileName().isEmpty() ? Text::tr("(保存されていません)") : FileName();
  file_->setText(changed_ ? name + QStringLiteral(" *") : name);
  file_->setToolTip(preferences_.InForce().filmStack);
}

// The entries as a request; what is wrong with them is told, and the field has the focus.
bool FilmFitWindow::TakeEntries() {
  FilmStackSetting setting;
  QString fault;
  if (!stack_->Take(setting)) {
    fault = FilmFitFaultText(FilmFitFault::kThicknessRange);
  } else if (conditions_->Take(setting.options, fault)) {
    const auto read = ReadFilmFitRequest(setting, Directory());
    if (const auto* wrong = std::get_if<FilmMaterialFault>(&read)) {
      fault = QStringLiteral("\"%1\": %2").arg(wrong->material, MaterialFaultText(wrong->fault));
      stack_->EnterMaterialAgain(wrong->place);
    } else {
      request_ = std::get<FilmFitRequest>(read);
    }
  }
  if (!fault.isEmpty()) {
    messages_.Tell({Message::kFilmFitRefused, {fault}});
    return false;
  }
  setting_ = setting;
  edited_ = false;
  return true;
}

void FilmFitWindow::FitSlots(bool all) {
  std::map<int, FilmFitRun::Spectrum> spectra;
  for (int number = 1; number <= kSlotCount; ++number) {
    if (const MeasurementSlot& slot = *state_.Slot(number);
        slot.valid && (all || number == slot_)) {
      spectra[number] = {slot.reflectance, slot.noise};
    }
  }
  if (spectra.empty()) {
    messages_.Tell({Message::kNoValidData});
  }
  if (spectra.empty() || !TakeEntries()) {
    return;
  }
  fitting_ = spectra;
  run_.Start(request_, spectra);
  Refresh();
}

// A slot that was measured anew meanwhile has no use for it.
void FilmFitWindow::TakeFit(int slot, const FilmFitRun::Result& result) {
  if (state_.Slot(slot)->valid && state_.Slot(slot)->reflectance == fitting_[slot].reflectance) {
    if (const auto* fit = std::get_if<FilmFit>(&result)) {
      session_.StoreFit(slot, *fit);
    } else {
      refused_[slot] = std::get<FilmFitFault>(result);
    }
  }
  Refresh();
}

QCoro::Task<> FilmFitWindow::FitEachSample(bool on) {
  const bool fitting = on && TakeEntries();
  each_->setChecked(fitting);
  if (fitting && (changed_ || preferences_.InForce().filmStack.isEmpty())) {
    each_->setChecked(false);  // until there is a file for the next start
    const bool saved = co_await SaveStack();
    if (!saved) {
      co_return;
    }
    each_->setChecked(true);
  }
  if (fitting) {
    session_.FitEachSample(request_);
  } else {
    session_.EndFilmFit();
  }
  ChangePreferences([fitting](ProgramSettings& s) { s.fitEachMeasurement = fitting; });
}

QCoro::Task<> FilmFitWindow::OpenStack() {
  const std::optional<QString> path =
      co_await dialogs_.AskOpen(Text::tr("膜構成ﾌｧｲﾙを開く"), Filter());
  // What each sample is fitted with is what the window shows.
  if (path && ReadStack(*path) && each_->isChecked()) {
    FitEachSample(true);
  }
}

QCoro::Task<bool> FilmFitWindow::SaveStack() {
  if (!TakeEntries()) {
    co_return false;
  }
  const std::optional<SaveChoice> choice =
      co_await dialogs_.AskSave(Text::tr("膜構成ﾌｧｲﾙの保存"), Filter(), FileName());
  if (!choice) {
    co_return false;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".flm"));
  const bool may = co_await MayReplace(path, messages_);
  if (!may || !TellWritten(WriteFilmStackFile(path, setting_), path, messages_)) {
    co_return false;
  }
  changed_ = false;
  ChangePreferences([&path](ProgramSettings& s) { s.filmStack = path; });
  if (each_->isChecked()) {
    session_.FitEachSample(request_);
  }
  co_return true;
}

void FilmFitWindow::done(int result) {
  if (changed_ && isVisible()) {
    Leave();
  } else {
    QDialog::done(result);
  }
}

QCoro::Task<> FilmFitWindow::Leave() {
  const QPointer<FilmFitWindow> self(this);
  const MessageCall question{Message::kFilmStackUnsaved};
  const MessageResult answer = co_await messages_.Ask(question);
  bool leave = answer == MessageResult::kNo;
  if (self != nullptr && answer == MessageResult::kYes) {
    leave = co_await SaveStack();
  }
  if (self != nullptr && leave) {
    changed_ = false;
    close();
  }
}

void FilmFitWindow::ChangePreferences(const std::function<void(ProgramSettings&)>& change) {
  (void)TellWritten(preferences_.Change(change), ProgramSettingsPath(state_.programDirectory),
                    messages_);
  ShowFileName();
}

void FilmFitWindow::ShowSlot(int slot) {
  slot_ = slot;
  Refresh();
}

void FilmFitWindow::Refresh() {
  progress_->setText(run_.Left() > 0 ? Text::tr("計算中... 残り %1").arg(run_.Left()) : QString());
  results_->Show(state_, slot_, refused_, edited_ ? nullptr : &setting_);
  const MeasurementSlot* slot = state_.Slot(slot_);
  if (slot == nullptr || !slot->valid) {
    plot_->ShowNothing();
    fourier_->Show(std::nullopt, std::nullopt);
    return;
  }
  plot_->Show(slot->reflectance, slot_, slot->fit);
  fourier_->Show(
      !request_.stack.layers.empty()
          ? TransformFringes(slot->reflectance, request_.stack.layers.front().n,
                             request_.setting.options.fromNm, request_.setting.options.toNm)
          : std::nullopt,
      slot->fit);
}

FilmFitReport FilmFitWindow::Report() const {
  const std::optional<FilmFit>& fit = state_.Slot(slot_)->fit;
  return {StackRows(fit && !fit->setting.layers.empty() ? fit->setting : setting_),
          results_->Rows(),
          QStringLiteral("Mes%1  %2").arg(slot_).arg(state_.Slot(slot_)->info.sampleNumber),
          results_->Words(), FitSettingTable(state_)};
}

void FilmFitWindow::Copy() const {
  QApplication::clipboard()->setText(ReportText(Report()));
}

void FilmFitWindow::Print() {
  printer_.Print(windowTitle(), ReportPages(windowTitle(), Report(), *plot_, *fourier_));
}

}  // namespace vexa
