// SPDX-License-Identifier: GPL-3.0-or-later
#include "standards/standard_file.h"

#include "base/file_kind.h"
#include "base/header_version.h"
#include "base/text_file.h"

namespace vexa {
namespace {

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

StandardContents ReadContents(TextReader& reader) {
  const double version = ReadHeaderVersion(reader.Row(1).constFirst(), file_kind::kStandard.word);
  if (version <= file_kind::kStandard.oldest) {
    throw ReadFault({.kind = FileFaultKind::kVersion, .line = 1, .version = version});
  }
  StandardContents contents;
  ReadStandard(reader, contents.standard);
  ReadMarker(reader, contents.chromaMarker);
  ReadMarker(reader, contents.hueMarker);
  return contents;
}

void WriteRange(FileText& text, const StandardLimits& limits) {
  text.Number(limits.upper).Number(limits.lower);
}

void WriteLimits(FileText& text, const StandardLimits& limits) {
  text.Flag(limits.enabled);
  WriteRange(text, limits);
}

}  // namespace

ReadResult<StandardContents> ReadStandardFile(const QString& path) {
  return TryRead([&path] {
    TextReader reader = TextReader::Open(path);
    return ReadContents(reader);
  });
}

ReadResult<StandardContents> ParseStandard(const QString& text) {
  return TryRead([&text] {
    TextReader reader(text.toLatin1());
    return ReadContents(reader);
  });
}

FileText StandardFileText(const StandardContents& contents) {
  const auto& [standard, chromaMarker, hueMarker] = contents;
  FileText text;
  text.Line(file_kind::kStandard.header.toString()).Flag(standard.useReflectance);
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

WriteResult WriteStandardFile(const QString& path, const StandardContents& contents) {
  return StandardFileText(contents).WriteTo(path);
}

MessageCall StandardMessage(const QString& path, const FileFault& fault) {
  const Message id = fault.kind == FileFaultKind::kVersion ? Message::kStandardVersionRefused
                                                           : Message::kStandardReadError;
  return {id, {path}, FaultText(fault)};
}

}  // namespace vexa
