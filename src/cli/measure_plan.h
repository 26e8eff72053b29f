// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QStringList>
#include <optional>

#include "instrument/controller.h"
#include "measurement/vexatype.h"

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
  QStringList sampleNumbers;  ///< of samples 1, 2, ...; no more than there are samples
};

void DeclareMeasureOptions(QCommandLineParser& parser);

/// The plan, with its sampling, shift and port put into the settings. Nothing, and a complaint, for
/// wrong usage.
[[nodiscard]] std::optional<MeasurePlan> ReadMeasurePlan(const QCommandLineParser& parser,
                                                         Settings& settings);

}  // namespace vexa::cli
