// SPDX-License-Identifier: GPL-3.0-or-later
#include <QJsonArray>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/analysis_settings.h"
#include "cli/program_settings.h"
#include "cli/records_actions.h"
#include "cli/text_columns.h"
#include "colour/cie_parts.h"
#include "colour/colour_values.h"
#include "files/configuration.h"
#include "measurement/dispersion_data.h"
#include "optics/thickness_doubts.h"
#include "records/record_files.h"
#include "records/result_json.h"
#include "records/whole_record.h"
#include "standards/standard_file.h"

namespace vexa::cli {
namespace {

using namespace records_option;

// All records of these ids; nothing after a complaint.
std::optional<QList<WholeRecord>> LoadAll(const QCommandLineParser& parser,
                                          const QStringList& ids) {
  RecordStore store;
  if (!OpenStore(parser, RecordStore::Mode::kRead, store)) {
    return std::nullopt;
  }
  QList<WholeRecord> records;
  for (const QString& id : ids) {
    Answer<WholeRecord> record = LoadRecord(store, id);
    if (!record) {
      (void)ComplainOf(QStringLiteral("sample %1").arg(id), record.fault);
      return std::nullopt;
    }
    records << std::move(record.value);
  }
  return records;
}

QString Number(double value, QStringView pattern) {
  return FormatNumber(value, pattern).trimmed();
}

// The outcome, and the layers from the air on.
QStringList FitRow(const QJsonObject& fit) {
  QStringList row{QStringLiteral("fit"), fit[QLatin1String("outcome")].toString()};
  const QJsonArray layers = fit[QLatin1String("layers")].toArray();
  for (const auto& layer : layers) {
    const double nm = NumberOf(layer[QLatin1String("thickness")]);
    row << (std::isfinite(nm)
                ? QStringLiteral("%1 ± %2 nm")
                      .arg(Number(nm, u"0.0"),
                           Number(NumberOf(layer[QLatin1String("uncertainty")]), u"0.0"))
                : QStringLiteral("-"));
  }
  return row;
}

QString ResultText(const SampleRecord& sample, const QString& verdict) {
  const auto text = [&sample](const ColourValue& value) { return value.TextOf(sample.colour); };
  using namespace colour_value;
  QList<QStringList> rows{
      {QStringLiteral("verdict"), verdict},
      {QStringLiteral("L* a* b*"), text(kL), text(kA), text(kB)},
      {QStringLiteral("x y Y"), text(kChromaticityX), text(kChromaticityY), text(kLuminous)},
      {QStringLiteral("Rm"), text(kAverage)}};
  if (sample.cie) {
    const auto part = [&sample](const char* name, QStringView pattern) {
      return Number(NumberOf((*sample.cie)[QLatin1String(name)]), pattern);
    };
    rows << QStringList{QStringLiteral("CIE L* a* b*"), part("L", u"##0.00"), part("a", u"0.0000"),
                        part("b", u"0.0000")}
         << QStringList{QStringLiteral("CIE C* h Rv"), part("C", u"##0.000"), part("h", u"##0.000"),
                        part("Rv", u"##0.0##")}
         << QStringList{QStringLiteral("CIE spread"), part("spread", u"##0.000")};
  }
  if (sample.thickness) {
    rows << QStringList{
        QStringLiteral("thickness"),
        Number(sample.thickness->thicknessNm, u"0.0") + ThicknessUnit(sample.thickness->physical),
        sample.doubts.join(u' ')};
  }
  if (sample.fit) {
    rows << FitRow(*sample.fit);
  }
  QStringList told;
  for (const QString& name : sample.doubts) {
    if (const auto doubt = ThicknessDoubtOf(name)) {
      told << QStringLiteral("%1: %2").arg(name, ThicknessDoubtText(*doubt));
    }
  }
  told << CieFailures(sample.cieGroups);
  if (sample.cie) {
    told << CieCaption(CieConditionsOf(sample.cie));
  }
  return TextColumns(rows) + (told.isEmpty() ? QString() : told.join(u'\n') + u'\n');
}

QString FrameText(const std::optional<FrameRecord>& frame) {
  return frame ? QStringLiteral("%1, %2 ms x %3")
                     .arg(TimeWithOffset(frame->taken.takenAt))
                     .arg(frame->taken.samplingTimeMs)
                     .arg(frame->taken.averagingCount)
               : QStringLiteral("-");
}

QString RecordText(const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  return TextColumns({{QStringLiteral("id"), record.summary.id},
                      {QStringLiteral("number"), QString::number(record.summary.number)},
                      {QStringLiteral("time"), record.summary.time},
                      {QStringLiteral("station"), sample.station},
                      {QStringLiteral("lot"), sample.lot},
                      {QStringLiteral("recipe"), sample.recipe},
                      {QStringLiteral("sample"), sample.sampleNumber},
                      {QStringLiteral("repeat"), RepeatText(sample.repeat, sample.repeats)},
                      {QStringLiteral("operator"), sample.operatorName},
                      {QStringLiteral("remarks"), sample.remark1, sample.remark2},
                      {QStringLiteral("supersedes"), record.summary.supersedes, sample.reason},
                      {QStringLiteral("background"), FrameText(record.background)},
                      {QStringLiteral("reference"), FrameText(record.reference)},
                      {QStringLiteral("sample"), FrameText(sample.frame)}}) +
         ResultText(sample, VerdictText(record.summary)) +
         SpectrumText(ReflectanceSpectrum::kFirstNm, sample.reflectance.Values());
}

// The settings under which records are evaluated anew; nothing after a complaint.
std::optional<Settings> EvaluationSettings(const QCommandLineParser& parser,
                                           MessageService& messages) {
  Settings settings = LoadSettings(parser, messages);
  if (!TakeEnvironment(parser, settings, messages) || !TakeStandard(parser, settings, messages)) {
    return std::nullopt;
  }
  return settings;
}

}  // namespace

int ShowRecord(const QCommandLineParser& parser, const QStringList& arguments) {
  const std::optional<QList<WholeRecord>> records = LoadAll(parser, arguments);
  if (!records) {
    return kFailed;
  }
  if (parser.isSet(option::kJson)) {
    PrintJson(RecordJson(records->first()));
  } else {
    Print(RecordText(records->first()));
  }
  return kDone;
}

int EvaluateRecords(const QCommandLineParser& parser, const QStringList& arguments) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  const std::optional<QList<WholeRecord>> records = LoadAll(parser, arguments);
  if (!records) {
    return kFailed;
  }
  const std::optional<Settings> settings = EvaluationSettings(parser, messages);
  if (!settings) {
    return kFailed;
  }
  QJsonArray results;
  for (const WholeRecord& record : *records) {
    const SampleRecord anew = EvaluateAnew(record, *settings, parser.isSet(kEnv));
    if (parser.isSet(option::kJson)) {
      QJsonObject object = ResultsJson(anew);
      object[QStringLiteral("id")] = record.summary.id;
      results.append(object);
    } else {
      Print(TextColumns({{QStringLiteral("id"), record.summary.id},
                         {QStringLiteral("sample"), record.sample.sampleNumber}}) +
            ResultText(anew, VerdictWord(VerdictOf(anew))));
    }
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("records"), results}});
  }
  return kDone;
}

int ExportFiles(const QCommandLineParser& parser, const QStringList& arguments) {
  if (!parser.isSet(option::kOut)) {
    Complain(Text::tr("records export には --out が必要です"));
    return kUsageError;
  }
  const QString path = parser.value(option::kOut);
  const std::optional<QList<WholeRecord>> records = LoadAll(parser, arguments);
  if (!records) {
    return kFailed;
  }
  switch (ExportRecords(path, *records)) {
    case ExportOutcome::kWritten:
      break;
    case ExportOutcome::kUnknownKind:
      Complain(Text::tr("%1：拡張子は csv、dat、json、jdx のいずれかです").arg(path));
      return kUsageError;
    case ExportOutcome::kTooMany:
      Complain(Text::tr("%1：データファイルの試料は 10 個までです").arg(path));
      return kFailed;
    case ExportOutcome::kNotWritten:
      Complain(Text::tr("%1：書き込めません").arg(path));
      return kFailed;
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("out"), path}, {QStringLiteral("written"), records->size()}});
  }
  return kDone;
}

}  // namespace vexa::cli
