// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/index_file.h"

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"

namespace vexa {
namespace {

constexpr qsizetype kSlotColumns = 10;

template <typename NextValue>
ReflectanceSpectrum ReadValues(NextValue nextValue) {
  ReflectanceSpectrum values;
  for (double& value : values.Values()) {
    value = nextValue();
  }
  return values;
}

ReflectanceSpectrum ReadFirstColumn(TextReader& reader) {
  const QString firstTitle = reader.Row(kSlotColumns).front();
  const qsizetype column = firstTitle == QStringLiteral("wave") ? 1 : 0;
  return ReadValues([&] {
    const auto value = ParseNumber(reader.Row(column + kSlotColumns)[column]);
    if (!value) {
      throw reader.Fault(FileFaultKind::kValue, column + 1);
    }
    return *value;
  });
}

ReflectanceSpectrum ReadFirstBlock(TextReader& reader) {
  reader.Line();  // comment
  reader.Line();  // count of blocks
  reader.Line();  // sample number
  return ReadValues([&] { return reader.RealField(); });
}

}  // namespace

ReadResult<ReflectanceSpectrum> ReadIndexFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    reader.Field();
    return ReadValues([&] { return reader.RealField(); });
  });
}

WriteResult WriteIndexFile(const QString& path, IndexFileContent content,
                           const ReflectanceSpectrum& values) {
  const FileKind& kind =
      content == IndexFileContent::kIndex ? file_kind::kIndex : file_kind::kReference;
  FileText text;
  text.Line(kind.header.toString());
  for (const double value : values.Values()) {
    text.Line(FormatNumber(value, u"0.00000000E+00"));
  }
  return text.WriteTo(path);
}

ReadResult<ReflectanceSpectrum> ReadSubstrateFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    const double version = ReadHeaderVersion(reader.Line(), file_kind::kData.word);
    if (version < file_kind::kData.oldest) {
      throw ReadFault({.kind = FileFaultKind::kVersion, .line = 1, .version = version});
    }
    return version < file_kind::kData.currentLayout ? ReadFirstBlock(reader)
                                                    : ReadFirstColumn(reader);
  });
}

}  // namespace vexa
