// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <optional>

namespace vexa::cli {

/// Runs the command line (without the program's name) and returns the exit status.
int Run(QStringList arguments);

/// A command: its name, its arguments and what it does, and the function that does it.
struct Command {
  QString name;
  QString arguments;
  QString summary;
  /// How many arguments that are no options it takes; a negative number -n is n or more.
  qsizetype files;
  void (*declareOptions)(QCommandLineParser& parser);
  int (*run)(const QCommandLineParser& parser);
};

[[nodiscard]] Command AnalyseCommand();
[[nodiscard]] Command ConvertCommand();
[[nodiscard]] Command DecodeCommand();
[[nodiscard]] Command DispersionCommand();
[[nodiscard]] Command EnvCommand();
[[nodiscard]] Command FitCommand();
[[nodiscard]] Command JudgeCommand();
[[nodiscard]] Command MeasureCommand();
[[nodiscard]] Command RecordsCommand();
[[nodiscard]] Command ReflectanceCommand();
[[nodiscard]] Command StandardCommand();
[[nodiscard]] Command StatisticsCommand();
[[nodiscard]] Command StockCommand();

/// The value of a whole-number option, or `otherwise` when it was not given. Nothing, and a
/// complaint, when it is no number within minimum..maximum.
[[nodiscard]] std::optional<int> IntegerOption(const QCommandLineParser& parser,
                                               const QString& name, int otherwise, int minimum,
                                               int maximum);

/// Likewise for a real number.
[[nodiscard]] std::optional<double> RealOption(const QCommandLineParser& parser,
                                               const QString& name, double otherwise,
                                               double minimum, double maximum);

/// False, and a complaint, when both options were given.
[[nodiscard]] bool NotBoth(const QCommandLineParser& parser, const QString& one,
                           const QString& other);

}  // namespace vexa::cli
