// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_file.h"

#include "base/header_version.h"
#include "base/text_file.h"

namespace vexa {
namespace {

const QString kHeader = QStringLiteral("VEXA-KT 440-840 Ver 3.21 Standard File");
constexpr double kLastRefusedVersion = 2.99;

void ShowRefusal(const QString& path, MessageService& messages) {
  messages.MsgCall(QStringLiteral("規格ﾌｧｲﾙ名:") + path +
                       QStringLiteral("\r\rVer1.10以前の規格ﾌｧｲﾙは読み込めません。"),
                   message_type::kOk | message_type::kStopIcon, QStringLiteral("VEXA-KT"));
}

void ReadRange(TextReader& reader, StandardLimits& limits) {
  limits.upper = reader.RealField();
  limits.lower = reader.RealField();
}

void ReadLimits(TextReader& reader, StandardLimits& limits) {
  limits.enabled = reader.FlagLine();
  ReadRange(reader, limits);
}

void ReadMarker(TextReader& reader, ReferenceMarker& marker) {
  marker.shown = reader.FlagLine();
  marker.value = reader.RealField();
}

void ReadStandard(TextReader& reader, StandardSet& standard) {
  standard.useReflectance = reader.FlagLine();
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    standard.conditions[k].enabled = reader.FlagLine();
    standard.wavelengths[k] = reader.IntegerField();
    ReadRange(reader, standard.conditions[k]);
  }
  ReadLimits(reader, standard.averageReflectance);
  ReadLimits(reader, standard.luminousReflectance);
  standard.wavelengthValue.limits.enabled = reader.FlagLine();
  standard.wavelengthValue.selector = reader.IntegerField();
  ReadRange(reader, standard.wavelengthValue.limits);
  ReadLimits(reader, standard.chroma);
  ReadLimits(reader, standard.hueAngle);
}

void WriteRange(FileText& text, const StandardLimits& limits) {
  text.Number(limits.upper).Number(limits.lower);
}

void WriteLimits(FileText& text, const StandardLimits& limits) {
  text.Flag(limits.enabled);
  WriteRange(text, limits);
}

}  // namespace

bool ReadStandardFile(const QString& path, StandardSet& standard, ReferenceMarker& chromaMarker,
                      ReferenceMarker& hueMarker, MessageService& messages) {
  try {
    TextReader reader = TextReader::Open(path);
    if (ReadHeaderVersion(reader.Row(1).constFirst(), QStringLiteral("STA")) <=
        kLastRefusedVersion) {
      ShowRefusal(path, messages);
      return false;
    }
    ReadStandard(reader, standard);
    ReadMarker(reader, chromaMarker);
    ReadMarker(reader, hueMarker);
    return true;
  } catch (const ReadFault&) {
    return false;
  }
}

FileText StandardFileText(const StandardSet& standard, const ReferenceMarker& chromaMarker,
                          const ReferenceMarker& hueMarker) {
  FileText text;
  text.Line(kHeader).Flag(standard.useReflectance);
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    text.Flag(standard.conditions[k].enabled).Number(standard.wavelengths[k]);
    WriteRange(text, standard.conditions[k]);
  }
  WriteLimits(text, standard.averageReflectance);
  WriteLimits(text, standard.luminousReflectance);
  text.Flag(standard.wavelengthValue.limits.enabled)
      .Line(QString::number(standard.wavelengthValue.selector));
  WriteRange(text, standard.wavelengthValue.limits);
  WriteLimits(text, standard.chroma);
  WriteLimits(text, standard.hueAngle);
  text.Flag(chromaMarker.shown).Number(chromaMarker.value);
  text.Flag(hueMarker.shown).Number(hueMarker.value);
  return text;
}

bool WriteStandardFile(const QString& path, const StandardSet& standard,
                       const ReferenceMarker& chromaMarker, const ReferenceMarker& hueMarker) {
  return StandardFileText(standard, chromaMarker, hueMarker).WriteTo(path);
}

}  // namespace vexa
