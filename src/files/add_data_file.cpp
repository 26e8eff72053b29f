// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/add_data_file.h"

#include "base/date_text.h"
#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "colour/colour_values.h"

namespace vexa {
namespace {

struct ValueRow {
  const char16_t* label;
  ColourValue value;
};

constexpr ValueRow kValueRows[] = {
    {u"L*,", colour_value::kL},
    {u"a*,", colour_value::kA},
    {u"b*,", colour_value::kB},
    {u"x,", colour_value::kChromaticityX},
    {u"y,", colour_value::kChromaticityY},
    {u"色相角,", colour_value::kHue},
    {u"クロマ,", colour_value::kChroma},
    {u"平均反射率,", colour_value::kAverage},
    {u"視感反射率,", colour_value::kLuminous},
};

QString ConditionText(const ColourSettings& settings) {
  return QStringLiteral("光源:") + SignedText(settings.illuminant) +
         QStringLiteral("(1:A,2:B,3:C,4:D65）,視野:") +
         (settings.observer2Deg ? QStringLiteral("True") : QStringLiteral("False")) +
         QStringLiteral("(True:2度視野,False:10度視野)");
}

// The first value stands unpadded after its label, as the label makes the two one text.
QString ValueText(const ValueRow& row, const VEXATYPE& state) {
  QString text = QString::fromUtf16(row.label) + SignedText(row.value.Of(state.Slot(1)->colour));
  for (int number = 2; number <= kSlotCount; ++number) {
    text += u',' + FormatNumber(row.value.Of(state.Slot(number)->colour), u"0.000000000000000");
  }
  return text;
}

template <typename Entry>
QString InformationText(const QString& label, const VEXATYPE& state, Entry entry) {
  QStringList entries{label};
  for (const MeasurementSlot& slot : state.measurementSlots) {
    entries << entry(slot.info);
  }
  return entries.join(u',');
}

}  // namespace

WriteResult WriteAddDataFile(const QString& path, const VEXATYPE& state) {
  FileText text;
  text.Line(file_kind::kAddData.header.toString()).Line(ConditionText(state.colour));
  for (const ValueRow& row : kValueRows) {
    text.Line(ValueText(row, state));
  }
  text.Line(InformationText(QStringLiteral("試料No"), state,
                            [](const SampleInfo& info) { return info.sampleNumber; }))
      .Line(InformationText(QStringLiteral("備考1"), state,
                            [](const SampleInfo& info) { return info.remark1; }))
      .Line(InformationText(QStringLiteral("備考2"), state,
                            [](const SampleInfo& info) { return info.remark2; }))
      .Line(InformationText(QStringLiteral("測定日"), state,
                            [](const SampleInfo& info) { return DateTimeText(info.measuredAt); }));
  return text.WriteTo(path);
}

ReadResult<SampleInfos> ReadAddDataFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    const double version = ReadHeaderVersion(reader.Line(), file_kind::kAddData.word);
    if (version < file_kind::kAddData.oldest) {
      throw reader.Fault(FileFaultKind::kVersion);
    }
    reader.Line();
    for (std::size_t row = 0; row < std::size(kValueRows); ++row) {
      reader.Row(1 + kSlotCount);
    }
    SampleInfos infos;
    for (QString SampleInfo::*text :
         {&SampleInfo::sampleNumber, &SampleInfo::remark1, &SampleInfo::remark2}) {
      const QStringList fields = reader.Row(1 + kSlotCount);
      for (std::size_t i = 0; i < infos.size(); ++i) {
        infos[i].*text = fields[static_cast<qsizetype>(i) + 1];
      }
    }
    const QStringList dates = reader.Row(1 + kSlotCount);
    for (std::size_t i = 0; i < infos.size(); ++i) {
      const auto field = static_cast<qsizetype>(i) + 1;
      const std::optional<QDateTime> time = ParseDateTime(dates[field]);
      if (!time) {
        throw reader.Fault(FileFaultKind::kValue, field + 1);
      }
      infos[i].measuredAt = *time;
    }
    return infos;
  });
}

}  // namespace vexa
