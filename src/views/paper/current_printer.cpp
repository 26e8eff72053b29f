// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/current_printer.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "base/replace_file.h"
#include "views/common/file_questions.h"
#include "views/common/pdf_text.h"
#include "views/common/proposed_name.h"

namespace vexa {
namespace {

constexpr int kPdfResolution = 600;

QString SettingsPath(const VEXATYPE& state) {
  return CompletePath(state, QStringLiteral("vexa.prt"));
}

}  // namespace

bool WritePdf(const QString& path, const QString& title, const QPageLayout& layout,
              const PageMaker& pages) {
  QBuffer buffer;
  bool painted = buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter paper(&buffer);
    paper.setTitle(title);
    paper.setCreator(QStringLiteral("VEXA-KT"));
    paper.setResolution(kPdfResolution);
    painted = painted && paper.setPageLayout(layout) && PaintPages(paper, pages);
  }
  QByteArray bytes = buffer.data();
  NameCharacters(bytes, QFont());
  return painted && ReplaceFile(path, bytes);
}

PrintSettings SavedPrintSettings(const VEXATYPE& state) {
  return ReadPrintFile(SettingsPath(state)).value_or(PrintSettings());
}

CurrentPrinter::CurrentPrinter(const VEXATYPE& state, MessageService& messages,
                               FileDialogs& dialogs)
    : state_(state), messages_(messages), dialogs_(dialogs) {}

const PrintSettings& CurrentPrinter::Settings() {
  if (!settings_) {
    settings_ = SavedPrintSettings(state_);
  }
  return *settings_;
}

void CurrentPrinter::SetSettings(const PrintSettings& settings) {
  settings_ = settings;
  if (!WritePrintFile(SettingsPath(state_), settings)) {
    ShowWriteError(SettingsPath(state_), messages_);
  }
}

bool CurrentPrinter::Print(const QString& title, const PageMaker& pages, int copies) {
  return Settings().printerName.isEmpty() ? PrintToFile(title, pages)
                                          : PrintOnPaper(title, pages, copies);
}

bool CurrentPrinter::PrintToFile(const QString& title, const PageMaker& pages) {
  const std::optional<SaveChoice> choice =
      dialogs_.AskSave(QStringLiteral("印刷"), QStringLiteral("PDF(*.pdf)|*.pdf"),
                       WithExtension(ProposedName(state_), QStringLiteral(".pdf")));
  if (!choice) {
    return false;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".pdf"));
  if (!MayReplace(path, messages_)) {
    return false;
  }
  if (!WritePdf(path, title, PageLayoutOf(Settings()), pages)) {
    ShowWriteError(path, messages_);
    return false;
  }
  return true;
}

bool CurrentPrinter::PrintOnPaper(const QString& title, const PageMaker& pages, int copies) {
  const QString& name = Settings().printerName;
  if (QPrinterInfo::printerInfo(name).isNull()) {
    ShowError(QStringLiteral("ﾌﾟﾘﾝﾀが見つかりません。\r\r") + name);
    return false;
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(name);
  printer.setPageLayout(PageLayoutOf(Settings()));
  printer.setDocName(title);
  printer.setCopyCount(copies);
  if (!PaintPages(printer, pages) || printer.printerState() == QPrinter::Error) {
    ShowError(QStringLiteral("印刷でｴﾗｰが発生しました。\r\r") + name);
    return false;
  }
  return true;
}

void CurrentPrinter::ShowError(const QString& text) {
  messages_.MsgCall(text, message_type::kOk + message_type::kStopIcon, message_title::kError);
}

}  // namespace vexa
