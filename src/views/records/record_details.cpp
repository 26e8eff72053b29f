// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/record_details.h"

#include <array>
#include <initializer_list>
#include <utility>

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/translation.h"
#include "colour/cie_parts.h"
#include "optics/thickness_doubts.h"
#include "records/lot_tally.h"
#include "records/result_json.h"
#include "views/common/colour_kind.h"
#include "views/common/doubt_text.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

const QString kNone = QStringLiteral("-");

QString Number(double value, QStringView pattern) {
  return FormatNumber(value, pattern).trimmed();
}

QString OrNone(const QString& text) {
  return text.isEmpty() ? kNone : text.toHtmlEscaped();
}

/// Rows of a label and what stands beside it, under headings.
class Sheet {
 public:
  void Heading(const QString& text) {
    html_ +=
        QStringLiteral("<tr><td colspan=2 style='padding-top:8px'><b>%1</b></td></tr>").arg(text);
  }
  /// `html` is escaped already.
  void Row(const QString& label, const QString& html) {
    html_ += QStringLiteral(
                 "<tr><td style='color:%1; padding-right:12px; white-space:nowrap'>%2</td>"
                 "<td>%3</td></tr>")
                 .arg(theme::kMutedText.name(), label, html);
  }
  [[nodiscard]] QString Html() const {
    return QStringLiteral("<table cellspacing=0 cellpadding=1>%1</table>").arg(html_);
  }

 private:
  QString html_;
};

QString MarginText(const GroupJudgement& group) {
  return group.margin ? Number(*group.margin, u"0.000#") : QString();
}

QString Coloured(const QString& verdict) {
  return verdict == QLatin1String("NG")
             ? QStringLiteral("<b style='color:%1'>NG</b>").arg(theme::kBad.name())
             : verdict;
}

QString FrameText(const std::optional<FrameRecord>& frame) {
  return frame ? QStringLiteral("%1　%2 ms × %3　%4 nm　%5")
                     .arg(DateTimeText(frame->taken.takenAt))
                     .arg(frame->taken.samplingTimeMs)
                     .arg(frame->taken.averagingCount)
                     .arg(frame->taken.calibrationShiftNm)
                     .arg(frame->controller.toHtmlEscaped())
               : kNone;
}

void AddSample(Sheet& sheet, const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  sheet.Heading(Text::tr("試料No") + QStringLiteral("　") +
                OrNone(sample.sampleNumber.simplified()));
  sheet.Row(Text::tr("測定日時"), DateTimeText(sample.measuredAt));
  if (sample.repeats > 1) {
    sheet.Row(Text::tr("繰返し"), QStringLiteral("%1/%2").arg(sample.repeat).arg(sample.repeats));
  }
  sheet.Row(Text::tr("ロット"), OrNone(sample.lot));
  sheet.Row(Text::tr("レシピ"), OrNone(sample.recipe));
  sheet.Row(Text::tr("測定者"), OrNone(sample.operatorName));
  sheet.Row(Text::tr("測定機"), OrNone(sample.station));
  for (const auto& [label, text] :
       {std::pair(Text::tr("備考1"), sample.remark1), std::pair(Text::tr("備考2"), sample.remark2),
        std::pair(Text::tr("ﾃﾞｰﾀﾌｧｲﾙ"), sample.source)}) {
    if (!text.isEmpty()) {
      sheet.Row(label, text.toHtmlEscaped());
    }
  }
}

void AddVerdict(Sheet& sheet, const QString& caption, const GroupJudgement& group,
                const QString& margin) {
  if (group.passed) {
    sheet.Row(caption,
              Coloured(*group.passed ? QStringLiteral("OK") : QStringLiteral("NG")) +
                  (margin.isEmpty() ? QString()
                                    : QStringLiteral("　") + Text::tr("余裕 %1").arg(margin)));
  }
}

void AddVerdicts(Sheet& sheet, const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  const std::array captions{Text::tr("反射率", "column"),
                            Text::tr("平均反射率", "column"),
                            Text::tr("視感反射率", "column"),
                            Text::tr("波長"),
                            Text::tr("クロマC*"),
                            Text::tr("色相角h[deg]")};
  sheet.Heading(Text::tr("合否判定") + QStringLiteral("　") + Coloured(VerdictText(record)));
  for (std::size_t i = 0; i < captions.size(); ++i) {
    AddVerdict(sheet, captions.at(i), sample.groups.at(i), MarginText(sample.groups.at(i)));
  }
  for (std::size_t i = 0; i < kCieGroupCount; ++i) {
    AddVerdict(sheet, QString::fromUtf8(kCieLimitsEntries.at(i).symbol), sample.cieGroups.at(i),
               MarginText(sample.cieGroups.at(i)));
  }
  if (VerdictOf(sample.cieGroups) != Verdict::kNone) {
    sheet.Row({}, CieCaption(CieConditionsOf(sample.cie)));
  }
}

// The values under the same captions as the instrument's own.
void AddCie(Sheet& sheet, const SampleRecord& sample) {
  sheet.Heading(Text::tr("測定値") + QStringLiteral("　") + ColourKindText(ColourKind::kCie));
  const std::optional<CieColour> colour = CieOf(sample.cie);
  const auto texts = [&colour](std::initializer_list<double CieColour::*> values) {
    QStringList shown;
    for (double CieColour::*const value : values) {
      shown << CieValueText(colour, value);
    }
    return shown.join(QStringLiteral("　"));
  };
  sheet.Row(QStringLiteral("L* a* b*"), texts({&CieColour::L, &CieColour::a, &CieColour::b}));
  sheet.Row(QStringLiteral("x y"), texts({&CieColour::x, &CieColour::y}));
  sheet.Row(QStringLiteral("C* h[°]"), texts({&CieColour::C, &CieColour::h}));
  sheet.Row(Text::tr("視感[%]"), texts({&CieColour::Y}));
  sheet.Row(QStringLiteral("Rv (D65/2°)"), texts({&CieColour::Rv}));
  sheet.Row(Text::tr("外挿差 ΔE*ab"), texts({&CieColour::spread}));
  sheet.Row({}, CieCaption(CieConditionsOf(sample.cie)));
}

void AddValues(Sheet& sheet, const SampleRecord& sample, bool cie) {
  const ColourResult& colour = sample.colour;
  sheet.Heading(cie ? Text::tr("測定値") + QStringLiteral("　") +
                          ColourKindText(ColourKind::kInstrument)
                    : Text::tr("測定値"));
  sheet.Row(QStringLiteral("L* a* b*"),
            QStringLiteral("%1　%2　%3")
                .arg(Number(colour.L, u"##0.00"), Number(colour.a, u"0.0000"),
                     Number(colour.b, u"0.0000")));
  sheet.Row(QStringLiteral("x y"),
            QStringLiteral("%1　%2").arg(Number(colour.x, u"0.0000"), Number(colour.y, u"0.0000")));
  sheet.Row(QStringLiteral("C* h[°]"), QStringLiteral("%1　%2").arg(Number(colour.C, u"##0.000"),
                                                                    Number(colour.h, u"##0.000")));
  sheet.Row(Text::tr("平均[%]"), Number(colour.Rm, u"##0.0##"));
  sheet.Row(Text::tr("視感[%]"), Number(colour.Y, u"##0.0##"));
  sheet.Row(Text::tr("膜厚", "column"), ThicknessText(sample));
  for (const QString& doubt : DoubtTexts(sample.doubts).split(u'\n', Qt::SkipEmptyParts)) {
    sheet.Row({}, QStringLiteral("▲ ") + doubt.toHtmlEscaped());
  }
}

void AddConditions(Sheet& sheet, const WholeRecord& record) {
  sheet.Heading(Text::tr("測定条件"));
  sheet.Row(Text::tr("ﾊﾞｯｸｸﾞﾗｳﾝﾄﾞ"), FrameText(record.background));
  sheet.Row(Text::tr("ﾘﾌｧﾚﾝｽ"), FrameText(record.reference));
  sheet.Row(Text::tr("試料"), FrameText(record.sample.frame));
  if (record.settings) {
    const QJsonObject& values = record.settings->values;
    sheet.Row(Text::tr("規格ﾌｧｲﾙ"), OrNone(values[QStringLiteral("standardFile")].toString()));
  }
}

void AddProof(Sheet& sheet, const WholeRecord& record) {
  sheet.Heading(Text::tr("記録"));
  sheet.Row(Text::tr("番号"), QString::number(record.summary.number));
  sheet.Row(QStringLiteral("ID"), record.summary.id);
  sheet.Row(QStringLiteral("SHA-256"), QString::fromLatin1(record.hash.toHex().first(32)) +
                                           QStringLiteral("<br>") +
                                           QString::fromLatin1(record.hash.toHex().sliced(32)));
  sheet.Row(Text::tr("ﾌﾟﾛｸﾞﾗﾑ"), OrNone(record.sample.programVersion));
  if (!record.summary.supersedes.isEmpty()) {
    sheet.Row(Text::tr("置き換えた記録"), record.summary.supersedes);
    sheet.Row(Text::tr("理由"), OrNone(record.summary.reason));
  }
}

}  // namespace

QString VerdictText(const SampleRecord& sample) {
  const Verdict verdict = VerdictOf(sample);
  return verdict == Verdict::kNone ? kNone : VerdictWord(verdict);
}

QString VerdictText(const WholeRecord& record) {
  return LensStateText(StateOf(VerdictOf(record.sample), record.summary.heldBy));
}

QString ThicknessText(const SampleRecord& sample) {
  return sample.thickness ? DoubtMarkText(!sample.doubts.isEmpty()) +
                                Number(sample.thickness->thicknessNm, u"###0.0") +
                                ThicknessUnit(sample.thickness->physical)
                          : kNone;
}

QString RecordDetails(const WholeRecord& record, bool cie) {
  Sheet sheet;
  AddSample(sheet, record);
  AddVerdicts(sheet, record);
  AddValues(sheet, record.sample, cie);
  if (cie && record.sample.cie) {
    AddCie(sheet, record.sample);
  }
  AddConditions(sheet, record);
  AddProof(sheet, record);
  return sheet.Html();
}

}  // namespace vexa
