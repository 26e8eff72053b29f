// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/index_file.h"

#include "base/header_version.h"
#include "base/number_text.h"
#include "base/text_file.h"

namespace vexa {
namespace {

constexpr double kOldestVersion = 1.0;
constexpr double kFirstCommaSeparatedVersion = 2.99;
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
      throw ReadFault("not a number");
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

bool ReadIndexFile(const QString& path, ReflectanceSpectrum& values) {
  try {
    TextReader reader = TextReader::Open(path);
    reader.Field();
    values = ReadValues([&] { return reader.RealField(); });
    return true;
  } catch (const ReadFault&) {
    return false;
  }
}

bool WriteIndexFile(const QString& path, IndexFileContent content,
                    const ReflectanceSpectrum& values) {
  FileText text;
  text.Line(content == IndexFileContent::kIndex
                ? QStringLiteral("VEXA-KT 440-840 Ver 3.21 Index File")
                : QStringLiteral("VEXA-KT 440-840 Ver 3.21 Reference File"));
  for (const double value : values.Values()) {
    text.Line(FormatNumber(value, u"0.00000000E+00"));
  }
  return text.WriteTo(path);
}

bool ReadSubstrateFile(const QString& path, ReflectanceSpectrum& reflectance,
                       MessageService& messages) {
  try {
    TextReader reader = TextReader::Open(path);
    const double version = ReadHeaderVersion(reader.Line(), QStringLiteral("DAT"));
    if (version < kOldestVersion) {
      messages.MsgCall(QStringLiteral("ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。"),
                       message_type::kOk | message_type::kStopIcon, QStringLiteral("VEXA-KT"));
      return false;
    }
    reflectance =
        version < kFirstCommaSeparatedVersion ? ReadFirstBlock(reader) : ReadFirstColumn(reader);
    return true;
  } catch (const ReadFault&) {
    return false;
  }
}

}  // namespace vexa
