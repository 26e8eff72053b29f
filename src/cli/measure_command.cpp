// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFileInfo>
#include <QJsonArray>
#include <QScopeGuard>
#include <array>
#include <memory>

#include "base/end_signals.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/line_input.h"
#include "cli/measure_plan.h"
#include "cli/program_settings.h"
#include "cli/sample_file.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "measurement/controller_start.h"
#include "measurement/measurement_sequence.h"
#include "records/record_settings.h"
#include "records/session_recorder.h"

namespace vexa::cli {
namespace {

QJsonValue ToJson(const std::optional<Status>& status) {
  return status ? QJsonValue(*status) : QJsonValue();
}

// The statuses of the steps made so far.
struct Report {
  std::optional<Status> initialise;
  std::optional<Status> background;
  std::optional<Status> reference;
  QJsonArray samples;
  QString file;
  bool complete = false;
};

std::unique_ptr<Controller> ConnectTo(const MeasurePlan& plan, const VEXATYPE& state) {
  if (plan.device.isEmpty()) {
    return MakeController(state, plan.replyTimeoutMs);
  }
  // The port itself takes a relative name for one under /dev.
  QString device = QFileInfo(plan.device).absoluteFilePath();
  return std::make_unique<frmComH8Ctrl>([device](int) { return device; }, plan.replyTimeoutMs);
}

// One run: it can be interrupted at any moment, and what was measured by then is on the disk.
class Run {
 public:
  Run(const MeasurePlan& plan, Session& session, MessageService& messages)
      : plan_(plan),
        session_(session),
        messages_(messages),
        controller_(ConnectTo(plan, session.State())),
        sequence_(session),
        file_(plan.out) {
    sequence_.UseController(controller_.get());
    NameSamples();
    if (plan.record) {
      Record();
    }
  }

  QCoro::Task<Report> MeasureAll() {
    if (!ComplainUnwritten(file_.MayBeWritten(), plan_.out)) {
      co_return report_;
    }
    report_.initialise = co_await StartController();
    if (report_.initialise == kSuccess) {
      report_.complete = co_await TakeFrames();
    }
    for (int sample = 1; report_.complete && sample <= plan_.samples; ++sample) {
      report_.complete = co_await TakeSample(sample);
    }
    file_.Finish();
    if (recorder_ != nullptr && recorder_->Settle() > 0) {
      Complain(
          Text::tr("%1 件の記録を書き込めず、失われました").arg(recorder_->Keeper().HeldCount()));
      report_.complete = false;
    }
    co_return report_;
  }

  void Interrupt() {
    interrupted_ = true;
    input_.Interrupt();
    controller_->Cancel();
  }

 private:
  void NameSamples() {
    std::array<SampleInfo, kSlotCount> information;
    for (std::size_t slot = 0; slot < information.size(); ++slot) {
      const int sample = static_cast<int>(slot) / plan_.Repeats();
      information[slot].sampleNumber = plan_.sampleNumbers.value(sample);
    }
    session_.EditInformation(information);
  }

  void Record() {
    const QString& directory = session_.State().programDirectory;
    const QString store = plan_.store.isEmpty() ? RecordStorePath(directory) : plan_.store;
    RecordContext context;
    context.station = ReadRecordSettings(directory).value_or(RecordSettings()).station;
    context.lot = plan_.lot;
    context.operatorName = plan_.operatorName;
    if (plan_.recipe) {
      context.recipe = plan_.recipe->name;
      context.cieLimits = plan_.recipe->cie;
    }
    recorder_ = std::make_unique<SessionRecorder>(session_, store, context);
    QObject::connect(recorder_.get(), &SessionRecorder::Faulted, recorder_.get(),
                     [this, store](StoreFault fault) {
                       messages_.Tell({Message::kRecordStoreFault, {store}, StoreFaultText(fault)});
                     });
    QObject::connect(&recorder_->Keeper(), &RecordKeeper::Held, recorder_.get(),
                     [this, store](StoreFault fault) {
                       messages_.Tell({Message::kRecordsHeld, {store}, StoreFaultText(fault)});
                     });
    QObject::connect(recorder_.get(), &SessionRecorder::Replaced, recorder_.get(), [this, store] {
      messages_.Tell({Message::kRecordStoreReplaced, {store}});
    });
  }

  QCoro::Task<Status> StartController() {
    Status status = co_await controller_->Initialise(session_.State().instrument.controllerPort);
    Message failure = Message::kControllerFailed;
    if (status == kSuccess) {
      const Sampling sampling = SamplingOf(session_.State().instrument);
      status = co_await controller_->SetSampling(sampling);
      failure = Message::kSamplingFailed;
    }
    if (status != kSuccess && status != Controller::kCancelled) {
      TellControllerFailure(*controller_, failure, messages_);
    }
    co_return status;
  }

  QCoro::Task<bool> TakeFrames() {
    const QString darkness = Text::tr("リファレンス（バックグラウンド用）");
    bool going = co_await Place(darkness);
    if (going) {
      const MeasurementOutcome outcome = co_await sequence_.MeasureBackground();
      report_.background = outcome.status;
      going = IsDone(outcome);
    }
    const QString reference = Text::tr("リファレンス");
    if (going) {
      going = co_await Place(reference);
    }
    if (going) {
      const MeasurementOutcome outcome = co_await sequence_.MeasureReference();
      report_.reference = outcome.status;
      going = IsDone(outcome);
    }
    co_return going;
  }

  QCoro::Task<bool> TakeSample(int sample) {
    const QString what = Text::tr("サンプル %1 ").arg(sample);
    bool going = co_await Place(what);
    for (int i = 1; going && i <= plan_.Repeats(); ++i) {
      const int slot = (sample - 1) * plan_.Repeats() + i;
      CountRepeat(i);
      const MeasurementOutcome outcome = co_await sequence_.MeasureSample(slot);
      report_.samples.append(ToJson(outcome.status));
      going = IsDone(outcome) && Save();
    }
    co_return going;
  }

  // A record tells which of the repeats it is: one that was broken off before the last is no lens.
  void CountRepeat(int repeat) {
    if (recorder_ != nullptr) {
      RecordContext context = recorder_->Context();
      context.repeat = repeat;
      context.repeats = plan_.Repeats();
      recorder_->SetContext(context);
    }
  }

  bool Save() {
    const WriteResult written = file_.Save(session_.State());
    if (ComplainUnwritten(written, plan_.out)) {
      report_.file = plan_.out;
      return true;
    }
    return false;
  }

  // Waits until the operator has placed it. False when nobody is there, or the run is to end.
  QCoro::Task<bool> Place(QString what) {
    if (!plan_.prompt || interrupted_) {
      co_return !interrupted_;
    }
    Prompt(Text::tr("%1を置いて Enter を押してください: ").arg(what));
    const bool placed = co_await input_.Next();
    if (!placed && !interrupted_) {
      Complain(Text::tr("標準入力が終わりました"));
    }
    co_return placed;
  }

  bool IsDone(const MeasurementOutcome& outcome) {
    Tell(outcome, messages_);
    return outcome.IsDone() && !interrupted_;
  }

  const MeasurePlan& plan_;
  Session& session_;
  MessageService& messages_;
  std::unique_ptr<Controller> controller_;
  MeasurementSequence sequence_;
  std::unique_ptr<SessionRecorder> recorder_;
  LineInput input_;
  SampleFile file_;
  Report report_;
  bool interrupted_ = false;
};

void PrintReport(const Report& report, bool json) {
  if (json) {
    PrintJson(
        {{QStringLiteral("initialise"), ToJson(report.initialise)},
         {QStringLiteral("background"), ToJson(report.background)},
         {QStringLiteral("reference"), ToJson(report.reference)},
         {QStringLiteral("samples"), report.samples},
         {QStringLiteral("file"), report.file.isEmpty() ? QJsonValue() : QJsonValue(report.file)}});
    return;
  }
  const auto line = [](const QString& name, const QJsonValue& status) {
    if (!status.isNull()) {
      Print(QStringLiteral("%1 %2\n").arg(name, -12).arg(status.toInt(), 3));
    }
  };
  line(QStringLiteral("initialise"), ToJson(report.initialise));
  line(QStringLiteral("background"), ToJson(report.background));
  line(QStringLiteral("reference"), ToJson(report.reference));
  for (qsizetype i = 0; i < report.samples.size(); ++i) {
    line(QStringLiteral("sample %1").arg(i + 1), report.samples[i]);
  }
  if (!report.file.isEmpty()) {
    Print(QStringLiteral("%1 %2\n").arg(QStringLiteral("file"), -12).arg(report.file));
  }
}

// Gives the plan its recipe; false, with a complaint, when all measurements are more than slots.
bool TakesRepeats(MeasurePlan& plan, const std::optional<Recipe>& recipe) {
  plan.recipe = recipe;
  const int measurements = plan.samples * plan.Repeats();
  if (measurements > kSlotCount) {
    Complain(Text::tr("%1 個の試料を %2 回ずつでは、測定が %3 回を超えます")
                 .arg(plan.samples)
                 .arg(plan.Repeats())
                 .arg(kSlotCount));
    return false;
  }
  return true;
}

int Measure(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  Settings settings = LoadSettings(parser, messages);
  if (Settings scratch = settings; !ReadMeasurePlan(parser, scratch)) {
    return kUsageError;
  }
  std::optional<Recipe> recipe;
  if (const ExitStatus taken = TakeRecipe(parser, settings, messages, recipe); taken != kDone) {
    return taken;
  }
  std::optional<MeasurePlan> plan = ReadMeasurePlan(parser, settings);
  if (!plan || !TakesRepeats(*plan, recipe)) {
    return kUsageError;
  }
  if (const ExitStatus taken = TakeReferenceReflectance(parser, settings); taken != kDone) {
    return taken;
  }
  Session session(settings.programDirectory);
  session.TakeSettings(settings);
  Run run(*plan, session, messages);
  const EndSignals endSignals([&run] { run.Interrupt(); });
  const Report report = QCoro::waitFor(run.MeasureAll());
  PrintReport(report, parser.isSet(option::kJson));
  return report.complete ? kDone : kFailed;
}

}  // namespace

Command MeasureCommand() {
  return {
      QStringLiteral("measure"),
      QStringLiteral("(--port N | --device PATH) --out FILE [options]"),
      Text::tr("バックグラウンド、リファレンス、サンプルを測定し、データファイルに保存します。"),
      0,
      DeclareMeasureOptions,
      Measure};
}

}  // namespace vexa::cli
