// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"
#include "files/data_file.h"
#include "measurement/evaluation.h"

namespace vexa {
namespace {

double Value(const TextReader& reader, const QString& text, qsizetype field) {
  const std::optional<double> number = LeadingNumber(text);
  if (!number) {
    throw reader.Fault(FileFaultKind::kValue, field);
  }
  return *number;
}

ReadFault VersionFault(double version) {
  return ReadFault({.kind = FileFaultKind::kVersion, .line = 1, .version = version});
}

DataFileContent ReadCsv(TextReader& reader) {
  const double version = ReadHeaderVersion(reader.Line(), file_kind::kData.word);
  if (version < file_kind::kData.currentLayout) {
    throw VersionFault(version);
  }
  QStringList titles = reader.Row(kSlotCount, 1 + kSlotCount);
  const bool wavelengthColumn = titles.front() == QLatin1String("wave");
  if (wavelengthColumn) {
    titles.removeFirst();
    if (titles.size() < kSlotCount) {
      throw reader.Fault(FileFaultKind::kFields);
    }
  }
  DataFileContent content;
  content.entries.resize(kSlotCount);
  for (std::size_t i = 0; i < kSlotCount; ++i) {
    content.entries[i].sampleNumber = titles[static_cast<qsizetype>(i)];
  }
  const qsizetype skipped = wavelengthColumn ? 1 : 0;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    const QStringList row = reader.Row(skipped + kSlotCount);
    qsizetype field = skipped;
    for (DataFileSlot& slot : content.entries) {
      slot.reflectance[nm] = Value(reader, row[field], field + 1);
      ++field;
    }
  }
  for (DataFileSlot& slot : content.entries) {
    const ReflectanceSpectrum& spectrum = slot.reflectance;
    slot.valid = spectrum[440] != 0.0 || spectrum[450] != 0.0 || spectrum[840] != 0.0;
  }
  return content;
}

// A block: a line with the sample number, which is not taken over, then a line a value.
DataFileSlot ReadBlock(TextReader& reader) {
  DataFileSlot slot;
  reader.Line();
  for (double& value : slot.reflectance.Values()) {
    value = Value(reader, reader.Line(), 0);
    slot.valid = slot.valid || value != 0.0;
  }
  return slot;
}

DataFileContent ReadBlocks(TextReader& reader) {
  const double version = ReadHeaderVersion(reader.Field(), file_kind::kData.word);
  if (version > file_kind::kData.currentLayout && version < file_kind::kBlockVersion) {
    throw VersionFault(version);
  }
  DataFileContent content{.blocks = true, .entries = {}, .comment = reader.Line()};
  const std::int16_t count = reader.IntegerLine();
  if (count < 0 || count > kSlotCount) {
    throw reader.Fault(FileFaultKind::kRange);
  }
  for (int number = 1; number <= count; ++number) {
    content.entries.push_back(ReadBlock(reader));
  }
  return content;
}

}  // namespace

ReadResult<DataFileContent> ReadDataFile(const QString& path) {
  return LayoutByEnding(path) == DataFileLayout::kCsv ? ReadCsvDataFile(path)
                                                      : ReadDatDataFile(path);
}

ReadResult<DataFileContent> ReadCsvDataFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    return ReadCsv(reader);
  });
}

ReadResult<DataFileContent> ReadDatDataFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    return ReadBlocks(reader);
  });
}

MessageCall DataFileMessage(const FileFault& fault) {
  // Only the gap of the block files lies above the layout's first version.
  if (fault.kind == FileFaultKind::kVersion && fault.version > file_kind::kData.currentLayout) {
    return {Message::kOldDataVersion, {}, FaultText(fault)};
  }
  return {Message::kDataReadError, {file_kind::kData.header.toString()}, FaultText(fault)};
}

std::optional<MessageCall> StoreQuestion(const DataFileContent& content) {
  if (!content.blocks) {
    return std::nullopt;
  }
  return MessageCall{Message::kEraseSlots,
                     {SignedText(static_cast<double>(content.entries.size()))}};
}

SlotTable SlotsWith(const DataFileContent& content, SlotTable present) {
  for (std::size_t i = 0; i < content.entries.size(); ++i) {
    const DataFileSlot& read = content.entries[i];
    MeasurementSlot& slot = present[i];
    slot = {};
    slot.reflectance = read.reflectance;
    slot.info.sampleNumber = read.sampleNumber;
    slot.valid = read.valid;
  }
  return present;
}

}  // namespace vexa
