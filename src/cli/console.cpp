// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/console.h"

#include <QJsonDocument>
#include <cmath>

#include "base/number_text.h"
#include "base/translation.h"

namespace vexa::cli {
namespace {

void Write(std::FILE* stream, const QString& text) {
  const QByteArray bytes = text.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
  std::fflush(stream);
}

}  // namespace

void Print(const QString& text) {
  Write(stdout, text);
}

bool IsPrinted() {
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void PrintJson(const QJsonObject& object) {
  Print(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n');
}

void Complain(const QString& text) {
  Write(stderr, QStringLiteral("vexa-cli: %1\n").arg(text));
}

void Prompt(const QString& text) {
  Write(stderr, text);
}

QJsonArray ToJson(std::span<const double> values) {
  QJsonArray array;
  for (const double value : values) {
    array.append(std::isfinite(value) ? QJsonValue(value) : QJsonValue());
  }
  return array;
}

QString SpectrumText(int firstNm, std::span<const double> values) {
  QString text;
  int nm = firstNm;
  for (const double value : values) {
    text += QStringLiteral("%1 %2\n").arg(nm++, 4).arg(FormatNumber(value, u"0.0000"), 12);
  }
  return text;
}

bool ComplainUnwritten(const WriteResult& result, const QString& path) {
  if (!result) {
    Complain(Text::tr("%1：書き込めません（%2）").arg(path, result.reason));
  }
  return result.written;
}

void ConsoleMessages::Tell(const MessageCall& call) {
  const QString line = MessageText(call).replace(u'\r', u' ').replace(u'\n', u' ');
  Write(stderr, MessageTitle(call.id) + QStringLiteral(": ") + line + u'\n');
  if (!call.details.isEmpty()) {
    Complain(call.details);
  }
}

QCoro::Task<MessageResult> ConsoleMessages::Ask(MessageCall call) {
  Tell(call);
  const MessageButtons buttons = CatalogueEntry(call.id).buttons;
  const bool no = refusing_ && buttons == MessageButtons::kYesNoCancel;
  co_return no ? MessageResult::kNo : refusing_ ? RefusingAnswer(buttons) : AgreeingAnswer(buttons);
}

}  // namespace vexa::cli
