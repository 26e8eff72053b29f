// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/gauge_study_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/date_text.h"
#include "base/translation.h"
#include "records/daily_check_events.h"
#include "records/result_json.h"
#include "views/common/dialog_buttons.h"
#include "views/common/plot_export.h"
#include "views/common/scroll_body.h"
#include "views/common/theme.h"
#include "views/common/window_size.h"
#include "views/paper/plot_drawing.h"
#include "views/statistics/component_plot.h"
#include "views/statistics/gauge_plan_entries.h"
#include "views/statistics/gauge_result.h"
#include "views/statistics/series_filter.h"
#include "views/statistics/slot_choice.h"

namespace vexa {
namespace {

const QString kFileName = QStringLiteral("gauge-study");
constexpr int kSlot = kSlotCount;
const QString kRecipe = QStringLiteral("gauge-study");  // of the records of its measurements

QLabel* WrappedLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setWordWrap(true);
  return label;
}

void Colour(QLabel& label, const QColor& colour) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, colour);
  label.setPalette(palette);
}

QString StudyText(const GaugeSession& study) {
  return QStringLiteral("%1  %2/%3  %4")
      .arg(study.plan.name)
      .arg(study.Done())
      .arg(study.order.size())
      .arg(DateTimeText(study.plan.begun));
}

}  // namespace

GaugeStudyWindow::GaugeStudyWindow(const StudyParts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      state_(parts.session.State()),
      choice_(new QComboBox),
      plan_(new GaugePlanEntries(choice_)),
      instruction_(WrappedLabel("GaugeInstruction")),
      measure_(DialogButton("MeasureGauge", Text::tr("測定(&M)"))),
      filter_(new SeriesFilter(parts.session.Now().date(), parts.reader.HasShared())),
      grade_(WrappedLabel("GaugeGrade")),
      variance_(MakeResultView("Variance")),
      components_(MakeResultView("ComponentTable")),
      plot_(new ComponentPlot) {
  setObjectName(QStringLiteral("GaugeStudyWindow"));
  setWindowTitle(Text::tr("測定システム解析"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  AddExport(*plot_, parts_.messages, parts_.dialogs, [] { return kFileName; });
  QPushButton* print = DialogButton("PrintGauge", Text::tr("印刷(&P)"));
  QPushButton* save = DialogButton("SaveGauge", Text::tr("保存(&S)"));
  QPushButton* closeButton = DialogButton("CloseGauge", Text::tr("閉じる"));
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(print);
  bottom->addWidget(save);
  bottom->addStretch();
  bottom->addWidget(closeButton);
  auto* top = new QHBoxLayout;
  top->addWidget(BuildPlan());
  top->addWidget(BuildResult(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addLayout(top, 1);
  layout->addLayout(bottom);
  ResizeWithinScreen(*this, {960, 560});

  connect(choice_, &QComboBox::activated, this, &GaugeStudyWindow::ChooseStudy);
  connect(measure_, &QPushButton::clicked, this, [this] { MeasureNext(); });
  connect(print, &QPushButton::clicked, this, &GaugeStudyWindow::Print);
  connect(save, &QPushButton::clicked, this, &GaugeStudyWindow::Save);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::close);
  connect(&parts_.desk, &InstrumentDesk::ActivityChanged, this, &GaugeStudyWindow::ShowProgress);
  LoadStudies({});
}

QWidget* GaugeStudyWindow::BuildPlan() {
  choice_->setObjectName(QStringLiteral("StudyChoice"));
  QPushButton* analyse = DialogButton("AnalyseRecords", Text::tr("記録を解析(&A)"));
  connect(plan_, &GaugePlanEntries::MakeRequested, this, &GaugeStudyWindow::MakePlan);
  connect(analyse, &QPushButton::clicked, this, &GaugeStudyWindow::AnalyseRecords);

  auto* measuring = new QGroupBox(Text::tr("測定"));
  auto* measures = new QVBoxLayout(measuring);
  measures->addWidget(instruction_);
  measures->addWidget(measure_);
  auto* records = new QGroupBox(Text::tr("記録から"));
  auto* recorded = new QVBoxLayout(records);
  recorded->addWidget(filter_);
  recorded->addWidget(analyse);

  auto* body = new QWidget;
  auto* layout = new QVBoxLayout(body);
  layout->setContentsMargins(0, 0, 6, 0);
  layout->addWidget(plan_);
  layout->addWidget(measuring);
  layout->addWidget(records);
  layout->addStretch();
  auto* scroll = new ScrollBody(body);
  constexpr int kWidth = 350;
  scroll->setFixedWidth(kWidth);
  return scroll;
}

QWidget* GaugeStudyWindow::BuildResult() {
  auto* tables = new QTabWidget;
  tables->setObjectName(QStringLiteral("GaugePages"));
  tables->addTab(components_, Text::tr("成分"));
  tables->addTab(variance_, Text::tr("分散分析"));
  plot_->setMinimumSize(240, 150);
  auto* result = new QWidget;
  auto* layout = new QVBoxLayout(result);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(grade_);
  layout->addWidget(plot_, 1);
  layout->addWidget(tables, 1);
  return result;
}

// The id may be that of a study that goes: it is a copy.
void GaugeStudyWindow::LoadStudies(QString id) {  // NOLINT(performance-unnecessary-value-param)
  Answer<std::vector<GaugeSession>> loaded = LoadGaugeSessions(parts_.storePath);
  study_ = nullptr;
  studies_ = std::move(loaded.value);
  choice_->clear();
  choice_->addItem(Text::tr("新しい解析"));
  for (const GaugeSession& study : studies_) {
    choice_->addItem(StudyText(study), study.plan.id);
    if (study.plan.id == id) {
      choice_->setCurrentIndex(choice_->count() - 1);
    }
  }
  ChooseStudy();
  if (!loaded) {
    ClearResult(StoreFaultText(loaded.fault));
  }
}

void GaugeStudyWindow::ChooseStudy() {
  const int index = choice_->currentIndex() - 1;
  ++requests_;
  study_ = index >= 0 ? &studies_[static_cast<std::size_t>(index)] : nullptr;
  ClearResult({});
  if (study_ != nullptr) {
    plan_->ShowSettled(study_->plan);
  } else {
    plan_->Release();
  }
  if (study_ != nullptr && !study_->Next()) {
    Analyse(ReadingsOf(*study_), study_->plan.tolerance);
  }
  ShowProgress();
}

void GaugeStudyWindow::MakePlan() {
  std::optional<GaugePlan> plan = plan_->Take();
  if (!plan) {
    return;
  }
  plan->begun = parts_.session.Now();
  plan->seed = QRandomGenerator::system()->generate();
  QString id;
  if (Keep(PlanEvent(*plan, parts_.recorder.Context().station), &id)) {
    LoadStudies(id);
  }
}

void GaugeStudyWindow::ShowProgress() {
  const std::optional<std::size_t> next = study_ != nullptr ? study_->Next() : std::nullopt;
  if (study_ != nullptr) {
    choice_->setItemText(choice_->currentIndex(), StudyText(*study_));
  }
  if (study_ == nullptr) {
    instruction_->setText(Text::tr("計画を作るか、続ける解析を選んでください。"));
  } else if (!next) {
    instruction_->setText(Text::tr("すべて測定しました。"));
  } else {
    const GaugeTask& task = study_->order[*next];
    instruction_->setText(Text::tr("%1/%2  測定者 %3: 部品 %4 を置いて「測定」を押してください。"
                                   "結果は最後まで示しません。")
                              .arg(*next + 1)
                              .arg(study_->order.size())
                              .arg(study_->plan.operators[task.gaugeOperator])
                              .arg(task.part + 1));
  }
  measure_->setEnabled(next && !busy_ && parts_.desk.IsIdle() && parts_.desk.IsReady());
  plan_->setEnabled(!busy_);
}

QCoro::Task<> GaugeStudyWindow::MeasureNext() {
  const std::optional<std::size_t> place = study_ != nullptr ? study_->Next() : std::nullopt;
  if (!place || busy_ || !parts_.desk.IsIdle()) {
    co_return;
  }
  const QPointer<GaugeStudyWindow> self(this);
  busy_ = true;
  ShowProgress();
  const bool mayMeasure = co_await MayUseSlot(kSlot, state_, parts_.messages);
  if (self == nullptr || !mayMeasure) {
    if (self != nullptr) {
      busy_ = false;
      ShowProgress();
    }
    co_return;
  }
  SessionRecorder& recorder = parts_.recorder;
  const RecordContext before = recorder.Context();
  RecordContext context = before;
  const GaugeTask task = study_->order[*place];
  context.lot = study_->plan.name;
  context.recipe = kRecipe;
  context.operatorName = study_->plan.operators[task.gaugeOperator];
  recorder.SetContext(context);
  const QString number = BlindNumber(study_->plan, *place);
  const MeasurementOutcome outcome =
      co_await parts_.desk.Measure(MeasurementKind::kSample, kSlot, number);
  recorder.SetContext(before);
  if (self == nullptr) {
    co_return;
  }
  busy_ = false;
  Tell(outcome, parts_.messages);
  if (outcome.IsDone()) {
    const MeasurementSlot slot = *state_.Slot(kSlot);
    parts_.session.ClearSlot(kSlot);  // nobody sees what it gave before the study is done
    if (KeepReading(slot, *place) && !study_->Next()) {
      LoadStudies(study_->plan.id);
    }
  }
  ShowProgress();
}

bool GaugeStudyWindow::KeepReading(const MeasurementSlot& slot, std::size_t place) {
  const SampleRecord sample = ResultsOf(state_, slot, parts_.recorder.Context());
  const std::optional<double> value = ValueOf(sample, study_->plan.value);
  if (!value) {
    ClearResult(Text::tr("この試料には解析する値がありません。測り直してください。"));
    return false;
  }
  const PlannedReading reading{
      place,
      *value,
      parts_.recorder.LastSample().id,
      IsCie(study_->plan.value.quantity) ? CieConditionsOf(sample.cie) : QString(),
      parts_.session.Now(),
      sample.station};
  if (!Keep(ReadingEvent(study_->plan, reading))) {
    return false;
  }
  study_->values[place] = *value;
  return true;
}

void GaugeStudyWindow::AnalyseRecords() {
  constexpr int kMostRecords = 10000;
  const std::optional<double> tolerance = plan_->Tolerance();
  const RecordValue value = plan_->Value();
  parts_.reader.LoadValues(filter_->Place(), filter_->Query(kMostRecords), value, *this,
                           [this, value, tolerance, request = ++requests_](const auto& series) {
                             if (request != requests_) {
                               return;  // something else was asked meanwhile
                             }
                             if (series) {
                               Analyse(ReadingsOf(series.value, value), tolerance);
                             } else {
                               ClearResult(StoreFaultText(series.fault));
                             }
                           });
}

void GaugeStudyWindow::Analyse(const GaugeReadings& readings, std::optional<double> tolerance) {
  const auto result = statistics::AnalyseGauge(readings.readings, tolerance);
  if (!result) {
    ClearResult(statistics::RefusalText(result.Why()));
    return;
  }
  readings_ = readings;
  result_ = *result;
  tolerance_ = tolerance;
  grade_->setText(GradeText(*result) + CieNote(readings));
  Colour(*grade_, GradeOf(*result) == GaugeGrade::kPoor   ? theme::kBad
                  : GradeOf(*result) == GaugeGrade::kGood ? theme::kGood
                                                          : theme::kText);
  ShowResults(*variance_, VarianceTable(*result));
  ShowResults(*components_, ComponentTable(*result, tolerance));
  plot_->Show(*result, tolerance);
}

void GaugeStudyWindow::ClearResult(const QString& why) {
  result_.reset();
  readings_ = {};
  grade_->setText(why);
  Colour(*grade_, theme::kBad);
  variance_->setRowCount(0);
  components_->setRowCount(0);
  plot_->Clear();
}

bool GaugeStudyWindow::Keep(const EventRecord& event, QString* id) {
  const Answer<QString> kept = KeepEvent(parts_.storePath, event);
  if (!kept) {
    parts_.messages.Tell({Message::kWriteError, {parts_.storePath, StoreFaultText(kept.fault)}});
  } else if (id != nullptr) {
    *id = kept.value;
  }
  return static_cast<bool>(kept);
}

void GaugeStudyWindow::Print() {
  constexpr QSize kPlot(960, 380);
  if (!result_) {
    parts_.messages.Tell({Message::kNoValidData});
    return;
  }
  PrintResults(parts_.printer, windowTitle(), {{PlotDrawing(*plot_, kPlot), kPlot}},
               {AboutTable(*result_, readings_), ComponentTable(*result_, tolerance_),
                VarianceTable(*result_)});
}

void GaugeStudyWindow::Save() {
  SaveCsv(windowTitle(), kFileName, ReadingRows(readings_), parts_.messages, parts_.dialogs);
}

}  // namespace vexa
