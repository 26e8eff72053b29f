// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "files/data_file.h"
#include "files/data_file_messages.h"
#include "measurement/evaluation.h"

namespace vexa {

using namespace message_type;

namespace {

constexpr double kCsvVersion = 2.99;
constexpr double kCurrentVersion = 3.21;

double Value(const QString& text) {
  const std::optional<double> number = LeadingNumber(text);
  if (!number) {
    throw ReadFault("number out of range");
  }
  return *number;
}

void ReadCsvRows(TextReader& reader, VEXATYPE& state) {
  const QString first = reader.Field();
  const bool wavelengthColumn = first == QLatin1String("wave");
  QStringList sampleNumbers;
  if (!wavelengthColumn) {
    sampleNumbers << first;
  }
  while (sampleNumbers.size() < kSlotCount) {
    sampleNumbers << reader.Field();
  }
  state.ClearSlots();
  for (int number = 1; number <= kSlotCount; ++number) {
    state.Slot(number)->info.sampleNumber = sampleNumbers[number - 1];
  }
  const qsizetype skipped = wavelengthColumn ? 1 : 0;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    const QStringList row = reader.Row(skipped + kSlotCount);
    for (int number = 1; number <= kSlotCount; ++number) {
      state.Slot(number)->reflectance[nm] = Value(row[skipped + number - 1]);
    }
  }
}

// A block: a line with the sample number, which is not taken over, then a line a value.
void ReadBlock(TextReader& reader, MeasurementSlot& slot) {
  reader.Line();
  for (double& value : slot.reflectance.Values()) {
    value = Value(reader.Line());
  }
}

// The spectrum alone goes; what is known of the sample stays with the slot.
void ClearSpectra(VEXATYPE& state, int lastSlot) {
  for (int number = 1; number <= lastSlot; ++number) {
    MeasurementSlot& slot = *state.Slot(number);
    const SampleInfo info = std::exchange(slot, {}).info;
    slot.info = info;
  }
}

}  // namespace

bool ReadDataFile(const QString& path, VEXATYPE& state, MessageService& messages) {
  return LayoutByEnding(path) == DataFileLayout::kCsv ? ReadCsvDataFile(path, state, messages)
                                                      : ReadDatDataFile(path, state, messages);
}

bool ReadCsvDataFile(const QString& path, VEXATYPE& state, MessageService& messages) {
  try {
    TextReader reader = TextReader::Open(path);
    if (ReadHeaderVersion(reader.Line(), QStringLiteral("DAT")) < kCsvVersion) {
      throw ReadFault("version");
    }
    ReadCsvRows(reader, state);
  } catch (const ReadFault&) {
    ShowDataReadError(kNoCurrentDataFile, messages);
    return false;
  }
  for (MeasurementSlot& slot : state.measurementSlots) {
    slot.valid = slot.reflectance[440] != 0.0 || slot.reflectance[450] != 0.0 ||
                 slot.reflectance[840] != 0.0;
    if (slot.valid) {
      EvaluateSlot(state, slot, messages);
    }
  }
  return true;
}

bool ReadDatDataFile(const QString& path, VEXATYPE& state, MessageService& messages) {
  try {
    TextReader reader = TextReader::Open(path);
    const double version = ReadHeaderVersion(reader.Field(), QStringLiteral("DAT"));
    if (version > kCsvVersion && version < kCurrentVersion) {
      ShowDataReadError(QStringLiteral("VEXA-KT 旧Verのデータﾌｧｲﾙではありません。"), messages);
      return false;
    }
    const QString comment = reader.Line();
    const std::int16_t count = reader.IntegerLine();
    if (count < 0 || count > kSlotCount) {
      throw ReadFault("count of blocks");
    }
    state.dataFileComment = comment;
    const QString countText = SignedText(count);
    if (messages.MsgCall(countText + QStringLiteral("ﾃﾞｰﾀをひらくためﾃﾞｰﾀ１～ﾃﾞｰﾀ") + countText +
                             QStringLiteral("までのﾃﾞｰﾀが消去されます。"),
                         kOkCancel + kWarningIcon,
                         QStringLiteral("VEXA-KT")) != MessageResult::kOk) {
      return false;
    }
    ClearSpectra(state, count);
    for (int number = 1; number <= count; ++number) {
      MeasurementSlot& slot = *state.Slot(number);
      ReadBlock(reader, slot);
      const auto values = slot.reflectance.Values();
      slot.valid = std::ranges::any_of(values, [](double value) { return value != 0.0; });
      if (slot.valid) {
        EvaluateSlot(state, slot, messages);
      }
    }
    return true;
  } catch (const ReadFault&) {
    ShowDataReadError(kNoCurrentDataFile, messages);
    return false;
  }
}

}  // namespace vexa
