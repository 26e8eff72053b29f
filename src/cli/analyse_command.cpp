// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/analysis_settings.h"
#include "cli/cie_report.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/judgement_json.h"
#include "cli/program_settings.h"
#include "colour/colour_values.h"
#include "files/data_file.h"
#include "measurement/evaluation.h"
#include "optics/thickness_doubts.h"
#include "records/result_json.h"

namespace vexa::cli {
namespace {

const QString kCie = QStringLiteral("cie");

/// What is told of one slot.
struct SlotReport {
  int number = 0;
  const MeasurementSlot* slot = nullptr;
  bool colourOk = false;
  ColourResult colour;  ///< not a number what could not be computed
  std::optional<Status> thickness;
};

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("データファイル (*.csv, *.dat)。"));
  DeclareAnalysisOptions(parser);
  parser.addOption({kCie, Text::tr("表の本来の波長で計算した CIE の色を加えます。")});
}

// The slot itself does not tell what of its colour could be computed.
void FillColour(const ColourSettings& settings, SlotReport& report) {
  ColourResult& colour = report.colour;
  for (const ColourValue& part : kColourValues) {
    colour.*part.member = std::numeric_limits<double>::quiet_NaN();
  }
  report.colourOk = CalcColour(report.slot->reflectance, settings, colour);
  (void)AverageReflectance(report.slot->reflectance, settings.avgFrom, settings.avgTo, colour.Rm);
}

std::vector<SlotReport> Evaluate(Session& session, MessageService& messages) {
  const VEXATYPE& state = session.State();
  std::vector<SlotReport> reports;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (!slot.valid) {
      continue;
    }
    SlotReport& report = reports.emplace_back(SlotReport{number, &slot, false, {}, {}});
    FillColour(state.colour, report);
    if (state.thickness.enabled) {
      report.thickness = session.ComputeThickness(number);
      if (report.thickness != kSuccess) {
        messages.Tell(SlotThicknessMessage(*report.thickness));
      }
    }
  }
  return reports;
}

bool IsJudged(const VEXATYPE& state, const QCommandLineParser& parser) {
  return parser.isSet(option::kStandard) || state.standard != StandardSet();
}

QJsonObject ColourJson(const SlotReport& report) {
  QJsonObject object{{QStringLiteral("ok"), report.colourOk}};
  for (const ColourValue& part : kColourValues) {
    object[QLatin1String(part.name)] = ToJson(std::array{part.Of(report.colour)}).first();
  }
  return object;
}

QJsonObject ThicknessJson(const SlotReport& report) {
  const Status status = *report.thickness;
  const ThicknessResult& result = report.slot->thickness;
  const auto number = [status](double value) {
    return status == 0 ? QJsonValue(value) : QJsonValue();
  };
  const auto point = [&number](const ExtremumPoint& extremum) {
    return QJsonObject{{QStringLiteral("wavelength"), number(extremum.wavelengthNm)},
                       {QStringLiteral("value"), number(extremum.reflectance)}};
  };
  QJsonArray extrema;
  for (const Extremum& extremum : result.extrema.Found()) {
    extrema.append(QJsonObject{
        {QStringLiteral("wavelength"), extremum.point.wavelengthNm},
        {QStringLiteral("reflectance"), extremum.point.reflectance},
        {QStringLiteral("kind"), extremum.maximum ? QStringLiteral("P") : QStringLiteral("V")}});
  }
  QJsonArray doubts;
  for (const ThicknessDoubt doubt : report.slot->doubts) {
    doubts.append(ThicknessDoubtName(doubt));
  }
  return {{QStringLiteral("status"), status},
          {QStringLiteral("thickness"), number(result.thicknessNm)},
          {QStringLiteral("first"), point(result.first)},
          {QStringLiteral("second"), point(result.second)},
          {QStringLiteral("extrema"), extrema},
          {QStringLiteral("doubts"), doubts}};
}

void PrintReportsJson(const QString& path, const std::vector<SlotReport>& reports, bool judged,
                      const std::optional<ColourSettings>& cie) {
  QJsonArray slotList;
  for (const SlotReport& report : reports) {
    QJsonObject object{{QStringLiteral("slot"), report.number},
                       {QStringLiteral("sample"), report.slot->info.sampleNumber},
                       {QStringLiteral("colour"), ColourJson(report)}};
    if (cie) {
      object[kCie] = CieJson(CalcCieColour(report.slot->reflectance, *cie), *cie);
    }
    if (judged) {
      object[QLatin1String("judgement")] = JudgementJson(report.slot->judgement);
    }
    if (report.thickness) {
      object[QLatin1String("thickness")] = ThicknessJson(report);
    }
    slotList.append(object);
  }
  PrintJson({{QStringLiteral("file"), path}, {QStringLiteral("slots"), slotList}});
}

// Texts of any width stand last in their lines, so that all columns keep their places.
void PrintColours(const std::vector<SlotReport>& reports) {
  QString line = QStringLiteral("slot");
  for (const ColourValue& part : kColourValues) {
    line += QStringLiteral(" %1").arg(QLatin1String(part.name), 9);
  }
  Print(line + QStringLiteral("  sample\n"));
  for (const SlotReport& report : reports) {
    line = QStringLiteral("%1").arg(report.number, 4);
    for (const ColourValue& part : kColourValues) {
      line += QStringLiteral(" %1").arg(part.TextOf(report.colour), 9);
    }
    Print(line + QStringLiteral("  ") + report.slot->info.sampleNumber + u'\n');
  }
}

void PrintCieColours(const std::vector<SlotReport>& reports, const ColourSettings& settings) {
  std::vector<CieLine> lines;
  lines.reserve(reports.size());
  for (const SlotReport& report : reports) {
    lines.push_back({report.number, CalcCieColour(report.slot->reflectance, settings)});
  }
  Print(CieText(lines, settings));
}

void PrintJudgements(const std::vector<SlotReport>& reports) {
  Print(QStringLiteral("\nslot judgement\n"));
  for (const SlotReport& report : reports) {
    QStringList texts;
    for (std::size_t group = 0; group < kStandardGroupCount; ++group) {
      if (const QString text = PanelText(report.slot->judgement, group); !text.isEmpty()) {
        texts << text;
      }
    }
    Print(QStringLiteral("%1 %2\n").arg(report.number, 4).arg(texts.join(QStringLiteral("  "))));
  }
}

void PrintThicknesses(const std::vector<SlotReport>& reports, const QString& unit) {
  Print(
      QStringLiteral("\nslot thickness%1    first[nm]   second[nm]  extrema  doubts\n").arg(unit));
  for (const SlotReport& report : reports) {
    const auto text = [&report](double value) {
      return report.thickness == Status{0} ? FormatNumber(value, u"0.0").trimmed()
                                           : QStringLiteral("-");
    };
    const ThicknessResult& result = report.slot->thickness;
    QStringList doubts;
    for (const ThicknessDoubt doubt : report.slot->doubts) {
      doubts << ThicknessDoubtName(doubt);
    }
    const QString end = doubts.isEmpty() ? QString() : QStringLiteral("  ") + doubts.join(u',');
    Print(QStringLiteral("%1 %2 %3 %4 %5%6\n")
              .arg(report.number, 4)
              .arg(text(result.thicknessNm), 13)
              .arg(text(result.first.wavelengthNm), 12)
              .arg(text(result.second.wavelengthNm), 12)
              .arg(result.extrema.count, 8)
              .arg(end));
  }
  for (const SlotReport& report : reports) {
    for (const ThicknessDoubt doubt : report.slot->doubts) {
      Print(QStringLiteral("%1 %2: %3\n")
                .arg(report.number, 4)
                .arg(ThicknessDoubtName(doubt), ThicknessDoubtText(doubt)));
    }
  }
}

int Analyse(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  Settings settings = LoadSettings(parser, messages);
  if (const ExitStatus taken = TakeAnalysisOptions(parser, settings, messages); taken != kDone) {
    return taken;
  }
  Session session(settings.programDirectory);
  session.TakeSettings(settings);
  const VEXATYPE& state = session.State();
  const QString path = parser.positionalArguments().front();
  if (!LoadDataFile(path, session, messages)) {
    return kFailed;
  }
  const std::vector<SlotReport> reports = Evaluate(session, messages);
  const bool judged = IsJudged(state, parser);
  const auto cie = parser.isSet(kCie) ? std::optional(state.colour) : std::nullopt;
  if (parser.isSet(option::kJson)) {
    PrintReportsJson(path, reports, judged, cie);
  } else {
    PrintColours(reports);
    if (cie) {
      PrintCieColours(reports, *cie);
    }
    if (judged) {
      PrintJudgements(reports);
    }
    if (state.thickness.enabled) {
      PrintThicknesses(reports, ThicknessUnit(state.thickness.kind != ThicknessKind::kOptical));
    }
  }
  return parser.isSet(option::kStandard) && AnyNotGood(state) ? kJudgedNotGood : int{kDone};
}

}  // namespace

Command AnalyseCommand() {
  return {QStringLiteral("analyse"),
          QStringLiteral("FILE [options]"),
          Text::tr("データファイルの各スロットの色、判定、膜厚を求めます。"),
          1,
          DeclareOptions,
          Analyse};
}

}  // namespace vexa::cli
