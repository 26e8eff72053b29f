// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <cstdio>
#include <span>

#include "base/message.h"
#include "base/replace_file.h"

namespace vexa::cli {

/// Exit statuses of every command.
enum ExitStatus { kDone = 0, kFailed = 1, kUsageError = 2 };

/// Standard output, as UTF-8.
void Print(const QString& text);

/// Whether all that was printed has left the program; Run asks for it at the end of a command.
[[nodiscard]] bool IsPrinted();

/// One JSON document on standard output; doubles in the shortest form that reads back.
void PrintJson(const QJsonObject& object);

/// One line "vexa-cli: TEXT" on standard error.
void Complain(const QString& text);

/// That a file cannot be written, and why; nothing when it was written. True when written.
bool ComplainUnwritten(const WriteResult& result, const QString& path);

/// A question of the command itself on standard error, without a line end.
void Prompt(const QString& text);

/// Values as a JSON array, those that are not finite as null.
[[nodiscard]] QJsonArray ToJson(std::span<const double> values);

/// Values 1 nm apart as lines "WAVELENGTH VALUE" in aligned columns.
[[nodiscard]] QString SpectrumText(int firstNm, std::span<const double> values);

/// Puts every message on standard error as one line "TITLE: TEXT", line breaks as blanks, and
/// answers a question with its first button, or, `refusing`, with No or Cancel. The details of a
/// message follow as a complaint.
class ConsoleMessages : public MessageService {
 public:
  explicit ConsoleMessages(bool refusing) : refusing_(refusing) {}

  void Tell(const MessageCall& call) override;
  QCoro::Task<MessageResult> Ask(MessageCall call) override;
  void Beep() override {}

 private:
  bool refusing_;
};

}  // namespace vexa::cli
