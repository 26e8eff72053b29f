// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/daily_check_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/date_text.h"
#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/plot_export.h"
#include "views/common/scroll_body.h"
#include "views/common/theme.h"
#include "views/common/window_size.h"
#include "views/paper/plot_drawing.h"
#include "views/statistics/check_limits_dialog.h"
#include "views/statistics/check_picture.h"
#include "views/statistics/check_settings_dialog.h"
#include "views/statistics/result_table.h"
#include "views/statistics/slot_choice.h"
#include "views/statistics/xmr_plot.h"

namespace vexa {
namespace {

const QString kRecipe = QStringLiteral("daily-check");  // of the record of the check piece
constexpr QSize kPrintedChart(960, 210);                // pixels

/// The charts of a page of the window: the first value, and how many.
struct ChartPage {
  const char* title;
  std::size_t first;
  std::size_t count;
};
constexpr std::array<ChartPage, 3> kPages{{{QT_TRANSLATE_NOOP("Text", "点検片"), 0, 3},
                                           {QT_TRANSLATE_NOOP("Text", "ランプ"), 3, 3},
                                           {QT_TRANSLATE_NOOP("Text", "暗レベルとノイズ"), 6, 2}}};

QLabel* WrappedLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QString InstructionFor(int step) {
  return step == 0 ? Text::tr("「測定」を押してください。光を閉じて背景を測定します。")
         : step == 1 ? Text::tr("ﾘﾌｧﾚﾝｽ試料を置いて「測定」を押してください。")
                     : Text::tr("点検片を置いて「測定」を押してください。");
}

}  // namespace

DailyCheckWindow::DailyCheckWindow(const StudyParts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      state_(parts.session.State()),
      instruction_(WrappedLabel("Instruction")),
      measure_(DialogButton("MeasureStep", Text::tr("測定(&M)"))),
      verdict_(WrappedLabel("CheckVerdict")),
      reasons_(WrappedLabel("CheckReasons")),
      limitsText_(WrappedLabel("CheckLimits")),
      freeze_(DialogButton("FreezeLimits", Text::tr("限界を決める(&L)..."))),
      release_(DialogButton("ReleaseHold", Text::tr("保留を解く(&H)..."))),
      pages_(new QTabWidget) {
  setObjectName(QStringLiteral("DailyCheckWindow"));
  setWindowTitle(Text::tr("日常点検"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  QPushButton* settings = DialogButton("CheckSettings", Text::tr("設定(&S)..."));
  QPushButton* print = DialogButton("PrintCheck", Text::tr("印刷(&P)"));
  QPushButton* closeButton = DialogButton("CloseCheck", Text::tr("閉じる"));
  auto* bottom = new QHBoxLayout;
  for (QPushButton* button : {freeze_, release_, settings, print}) {
    bottom->addWidget(button);
  }
  bottom->addStretch();
  bottom->addWidget(closeButton);
  auto* top = new QHBoxLayout;
  top->addWidget(BuildGuide());
  top->addWidget(BuildCharts(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addLayout(top, 1);
  layout->addLayout(bottom);
  ResizeWithinScreen(*this, {960, 560});

  connect(measure_, &QPushButton::clicked, this, [this] { MeasureNext(); });
  connect(freeze_, &QPushButton::clicked, this, &DailyCheckWindow::Freeze);
  connect(release_, &QPushButton::clicked, this, &DailyCheckWindow::Release);
  connect(settings, &QPushButton::clicked, this, &DailyCheckWindow::ChangeSettings);
  connect(print, &QPushButton::clicked, this, &DailyCheckWindow::Print);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::close);
  connect(&parts_.desk, &InstrumentDesk::ActivityChanged, this, &DailyCheckWindow::ShowGuide);
  connect(&parts_.session, &Session::FrameChanged, this, [this] { measured_ = true; });
  connect(&parts_.session, &Session::SampleStored, this, [this] { measured_ = true; });
  connect(&parts_.session, &Session::SettingsChanged, this, &DailyCheckWindow::ShowState);
  Load();
}

QWidget* DailyCheckWindow::BuildGuide() {
  auto* body = new QWidget;
  auto* layout = new QVBoxLayout(body);
  layout->setContentsMargins(0, 0, 6, 0);
  auto* guide = new QGroupBox(Text::tr("点検"));
  auto* guided = new QVBoxLayout(guide);
  const std::array names{Text::tr("背景"), Text::tr("ﾘﾌｧﾚﾝｽ"), Text::tr("点検片")};
  for (std::size_t i = 0; i < steps_.size(); ++i) {
    auto* row = new QHBoxLayout;
    steps_[i] = new QLabel;
    row->addWidget(steps_[i]);
    row->addWidget(new QLabel(names[i]), 1);
    guided->addLayout(row);
  }
  guided->addWidget(instruction_);
  guided->addWidget(measure_);
  auto* result = new QGroupBox(Text::tr("判定"));
  auto* results = new QVBoxLayout(result);
  results->addWidget(verdict_);
  results->addWidget(reasons_);
  results->addWidget(limitsText_);
  layout->addWidget(guide);
  layout->addWidget(result);
  layout->addStretch();
  auto* scroll = new ScrollBody(body);
  constexpr int kWidth = 270;
  scroll->setFixedWidth(kWidth);
  return scroll;
}

QWidget* DailyCheckWindow::BuildCharts() {
  pages_->setObjectName(QStringLiteral("CheckPages"));
  for (const ChartPage& page : kPages) {
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    for (std::size_t i = page.first; i < page.first + page.count; ++i) {
      charts_[i] = new XmrPlot(XmrPlot::Panes::kValues);
      charts_[i]->setObjectName(QStringLiteral("CheckChart%1").arg(i + 1));
      charts_[i]->setMinimumSize(240, 110);
      AddExport(*charts_[i], parts_.messages, parts_.dialogs, [] { return kRecipe; });
      layout->addWidget(charts_[i], 1);
    }
    pages_->addTab(body, Text::tr(page.title));
  }
  return pages_;
}

void DailyCheckWindow::Load() {
  Answer<DailyCheckHistory> loaded = LoadDailyChecks(parts_.storePath);
  history_ = std::move(loaded.value);
  ShowState();
  if (!loaded) {
    verdict_->setText(StoreFaultText(loaded.fault));
  }
}

void DailyCheckWindow::ShowState() {
  ShowGuide();
  ShowVerdict();
  ShowCharts();
}

void DailyCheckWindow::ShowGuide() {
  constexpr QSize kIcon(18, 18);
  for (std::size_t i = 0; i < steps_.size(); ++i) {
    steps_[i]->setPixmap(DoneIcon(i < static_cast<std::size_t>(next_)).pixmap(kIcon));
  }
  instruction_->setText(busy_ ? Text::tr("測定しています...")
                              : InstructionFor(static_cast<int>(next_)));
  measure_->setEnabled(!busy_ && parts_.desk.IsIdle() && parts_.desk.IsReady());
}

void DailyCheckWindow::ShowVerdict() {
  const CheckConditions conditions = ConditionsOfCheck(state_, history_.settings.wavelengthsNm);
  const int days = CountCheckDays(history_.UsableChecks(), conditions);
  QString text = Text::tr("まだ点検していません。");
  QColor colour = theme::kText;
  QStringList reasons;
  if (!history_.checks.empty()) {
    const JudgedCheck& last = history_.checks.back();
    switch (last.judgement.verdict) {
      case CheckVerdict::kGreen:
        text = Text::tr("正常");
        colour = theme::kGood;
        break;
      case CheckVerdict::kRed:
        text = history_.hold ? Text::tr("異常（ロットの判定を保留しています）") : Text::tr("異常");
        colour = theme::kBad;
        break;
      case CheckVerdict::kOtherConditions:
        text = Text::tr("限界を決めたときと測定条件が違うため、判定できません。");
        break;
      case CheckVerdict::kCollecting:
        text = Text::tr("限界を決めるためのデータを集めています。");
        break;
    }
    reasons << DateTimeText(last.check.time);
    for (const CheckFinding& finding : last.judgement.findings) {
      reasons << FindingText(finding, last.check.conditions);
    }
    if (const std::optional<EventRecord>& release = history_.release) {
      reasons << Text::tr("保留は解かれました: %1 (%2、%3)")
                     .arg(release->reason, release->operatorName, DateTimeText(release->time));
    }
  }
  verdict_->setText(text);
  QFont font = this->font();
  font.setBold(true);
  font.setPixelSize(qRound(1.2 * fontInfo().pixelSize()));
  verdict_->setFont(font);
  QPalette palette = verdict_->palette();
  palette.setColor(QPalette::WindowText, colour);
  verdict_->setPalette(palette);
  reasons_->setText(reasons.join(u'\n'));
  limitsText_->setText(
      history_.limits
          ? Text::tr("限界: %1 に %2 日分から決定")
                .arg(DateTimeText(history_.limits->frozenAt))
                .arg(history_.limits->days)
          : Text::tr("限界: 未決定（この条件で %1/%2 日）").arg(days).arg(kFewestCheckDays));
  freeze_->setEnabled(days >= kFewestCheckDays);
  release_->setEnabled(history_.hold.has_value());
}

void DailyCheckWindow::ShowCharts() {
  const CheckConditions conditions = ConditionsOfCheck(state_, history_.settings.wavelengthsNm);
  for (std::size_t i = 0; i < kCheckValueCount; ++i) {
    charts_[i]->Show(CheckPicture(history_, conditions, static_cast<CheckValue>(i)));
  }
}

QCoro::Task<> DailyCheckWindow::MeasureNext() {
  if (busy_ || !parts_.desk.IsIdle()) {
    co_return;
  }
  const QPointer<DailyCheckWindow> self(this);
  busy_ = true;
  measured_ = false;
  ShowGuide();
  const Step step = next_;
  if (step == Step::kBackground) {
    co_await parts_.desk.MeasureBackground();
  } else if (step == Step::kReference) {
    co_await parts_.desk.MeasureReference();
  } else {
    co_await MeasureCheckPiece();
  }
  if (self == nullptr) {
    co_return;
  }
  busy_ = false;
  if (measured_ && step != Step::kCheckPiece) {
    next_ = step == Step::kBackground ? Step::kReference : Step::kCheckPiece;
  } else if (measured_) {
    next_ = Step::kBackground;
  }
  ShowGuide();
}

QCoro::Task<> DailyCheckWindow::MeasureCheckPiece() {
  const QPointer<DailyCheckWindow> self(this);
  const int slot = FreeSlot(state_);
  const bool mayMeasure = co_await MayUseSlot(slot, state_, parts_.messages);
  if (self == nullptr || !mayMeasure) {
    co_return;
  }
  SessionRecorder& recorder = parts_.recorder;
  const RecordContext before = recorder.Context();
  RecordContext context = before;
  context.lot.clear();
  context.recipe = kRecipe;
  recorder.SetContext(context);
  co_await parts_.desk.MeasureSampleOver(slot);
  recorder.SetContext(before);
  if (self != nullptr && measured_) {
    KeepCheck(slot);
  }
}

void DailyCheckWindow::KeepCheck(int slot) {
  JudgedCheck judged;
  DailyCheck& check = judged.check;
  check.time = parts_.session.Now();
  check.operatorName = parts_.recorder.Context().operatorName;
  check.conditions = ConditionsOfCheck(state_, history_.settings.wavelengthsNm);
  check.values = ComputeCheckValues(state_.background, state_.reference,
                                    state_.Slot(slot)->reflectance, check.conditions);
  std::vector<DailyCheck> checks = history_.Checks();
  checks.push_back(check);
  judged.judgement = JudgeCheck(checks, history_.limits);
  if (Keep(CheckEvent(judged, parts_.recorder.Context().station)) && history_.hold) {
    parts_.messages.Beep();
  }
}

void DailyCheckWindow::Freeze() {
  const CheckConditions conditions = ConditionsOfCheck(state_, history_.settings.wavelengthsNm);
  auto* dialog =
      new CheckLimitsDialog(history_, conditions, parts_.recorder.Context().operatorName, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog, conditions] {
    const Decision decision{parts_.recorder.Context().station, dialog->Operator(), dialog->Reason(),
                            parts_.session.Now()};
    const CheckLimitsResult result =
        ComputeCheckLimits(history_.UsableChecks(dialog->Since()), conditions, decision.time);
    if (result.limits) {
      Keep(LimitsEvent(*result.limits, decision));
      return;
    }
    const QString name =
        result.refusal.value ? CheckValueText(*result.refusal.value, conditions) : QString();
    limitsText_->setText(name + u' ' + statistics::RefusalText(result.refusal.why));
  });
  dialog->open();
}

void DailyCheckWindow::Release() {
  if (history_.hold) {
    Decide(
        Text::tr("保留の解除"),
        Text::tr("異常の理由を確かめて、ロットの判定の保留を解きます。") + u'\n' +
            history_.hold->Why(),
        [hold = *history_.hold](const Decision& decision) { return ReleaseEvent(hold, decision); });
  }
}

void DailyCheckWindow::ChangeSettings() {
  auto* dialog =
      new CheckSettingsDialog(history_.settings, parts_.recorder.Context().operatorName, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    Keep(SettingsEvent(dialog->Settings(), {parts_.recorder.Context().station, dialog->Operator(),
                                            dialog->Reason(), parts_.session.Now()}));
  });
  dialog->open();
}

void DailyCheckWindow::Decide(const QString& title, const QString& question,
                              std::function<EventRecord(const Decision&)> make) {
  auto* dialog = new DecisionDialog(title, question, parts_.recorder.Context().operatorName, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog, make = std::move(make)] {
    Keep(make({parts_.recorder.Context().station, dialog->Operator(), dialog->Reason(),
               parts_.session.Now()}));
  });
  dialog->open();
}

bool DailyCheckWindow::Keep(const EventRecord& event) {
  const Answer<QString> kept = KeepEvent(parts_.storePath, event);
  if (!kept) {
    parts_.messages.Tell({Message::kWriteError, {parts_.storePath, StoreFaultText(kept.fault)}});
    return false;
  }
  Load();
  return true;
}

void DailyCheckWindow::Print() {
  std::vector<std::pair<QPicture, QSize>> plots(charts_.size());
  std::ranges::transform(charts_, plots.begin(), [](XmrPlot* chart) {
    return std::pair(PlotDrawing(*chart, kPrintedChart), kPrintedChart);
  });
  ResultTable table{{}, {Text::tr("項目"), Text::tr("値")}, {}, 2};
  table.rows = {{Text::tr("装置"), parts_.recorder.Context().station},
                {Text::tr("判定"), verdict_->text()},
                {Text::tr("規則"), reasons_->text()},
                {Text::tr("管理限界"), limitsText_->text()}};
  PrintResults(parts_.printer, windowTitle(), std::move(plots), {table});
}

}  // namespace vexa
