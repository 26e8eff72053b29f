// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QString>
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
};

void DeclareMeasureOptions(QCommandLineParser& parser);

/// The plan, with its sampling, shift and port put into the settings. Nothing, and a complaint, for
/// wrong usage.
[[nodiscard]] std::optional<MeasurePlan> ReadMeasurePlan(const QCommandLineParser& parser,
                                                         Settings& settings);

}  // namespace vexa::cli
