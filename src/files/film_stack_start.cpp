// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/film_stack_start.h"

#include <QFileInfo>

#include "optics/film_stack_file.h"

namespace vexa {

std::optional<MessageCall> TakeFilmStack(const ProgramSettings& settings, Session& session) {
  if (!settings.fitEachMeasurement) {
    return std::nullopt;
  }
  const auto refused = [&settings](const QString& why) {
    return MessageCall{Message::kFilmStackFault, {settings.filmStack, why}};
  };
  const auto file = ReadFilmStackFile(settings.filmStack);
  if (const auto* fault = std::get_if<FilmStackFileFault>(&file)) {
    return refused(FilmStackFileFaultText(*fault));
  }
  const auto& setting = std::get<FilmStackSetting>(file);
  const auto request = ReadFilmFitRequest(setting, QFileInfo(settings.filmStack).absolutePath());
  if (const auto* fault = std::get_if<FilmMaterialFault>(&request)) {
    return refused(
        QStringLiteral("\"%1\": %2").arg(fault->material, MaterialFaultText(fault->fault)));
  }
  session.FitEachSample(std::get<FilmFitRequest>(request));
  return std::nullopt;
}

}  // namespace vexa
