// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QStringList>
#include <optional>

#include "cli/console.h"
#include "instrument/controller.h"
#include "measurement/vexatype.h"
#include "records/recipe.h"

namespace vexa::cli {

/// The options of a run of measurements, checked.
struct MeasurePlan {
  int port = 0;
  QString device;  ///< instead of a port
  QString out;
  int samples = 1;
  int replyTimeoutMs = Controller::kReplyTimeoutMs;
  bool prompt = false;
  bool record = false;  ///< everything goes into the record store, too
  QString store;        ///< of the records; empty for that of the program directory
  QString lot;
  QString operatorName;
  std::optional<Recipe> recipe;  ///< its environment and standard are in the settings

  /// Measurements of one sample, each in a slot of its own.
  [[nodiscard]] int Repeats() const { return recipe ? recipe->repeats : 1; }
  QStringList sampleNumbers;  ///< of samples 1, 2, ...; no more than there are samples
};

void DeclareMeasureOptions(QCommandLineParser& parser);

/// Puts the recipe of its option in force, before the other options; kDone, or the exit status
/// after messages and a complaint. Nothing without the option.
[[nodiscard]] ExitStatus TakeRecipe(const QCommandLineParser& parser, Settings& settings,
                                    MessageService& messages, std::optional<Recipe>& recipe);

/// The plan, with its sampling, shift and port put into the settings. Nothing, and a complaint, for
/// wrong usage.
[[nodiscard]] std::optional<MeasurePlan> ReadMeasurePlan(const QCommandLineParser& parser,
                                                         Settings& settings);

}  // namespace vexa::cli
