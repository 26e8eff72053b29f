// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/paper/current_printer.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "base/replace_file.h"
#include "base/translation.h"
#include "files/keep_unreadable.h"
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

WriteResult WritePdf(const QString& path, const QString& title, const QPageLayout& layout,
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
  return painted ? ReplaceFile(path, bytes)
                 : WriteResult{false, Text::tr("PDFを作れませんでした。")};
}

PrintSettings SavedPrintSettings(const VEXATYPE& state) {
  const ReadResult<PrintSettings> settings = ReadPrintFile(SettingsPath(state));
  return settings ? *settings : PrintSettings();
}

CurrentPrinter::CurrentPrinter(const VEXATYPE& state, MessageService& messages,
                               FileDialogs& dialogs)
    : state_(state), messages_(messages), dialogs_(dialogs) {}

const PrintSettings& CurrentPrinter::Settings() {
  if (!settings_) {
    const QString path = SettingsPath(state_);
    const ReadResult<PrintSettings> settings = ReadPrintFile(path);
    settings_ = settings ? *settings : PrintSettings();
    if (!settings && settings.Fault().kind != FileFaultKind::kMissing) {
      messages_.Tell({Message::kSettingsReadError, {path}, FaultText(settings.Fault())});
    }
  }
  return *settings_;
}

void CurrentPrinter::SetSettings(const PrintSettings& settings) {
  settings_ = settings;
  const QString path = SettingsPath(state_);
  const WriteResult kept =
      KeepUnreadable(path, [&path] { return static_cast<bool>(ReadPrintFile(path)); });
  (void)TellWritten(kept ? WritePrintFile(path, settings) : kept, path, messages_);
}

QCoro::Task<bool> CurrentPrinter::Print(QString title, PageMaker pages, int copies, QString name) {
  if (!Settings().printerName.isEmpty()) {
    co_return PrintOnPaper(title, pages, copies);
  }
  const bool printed = co_await PrintToFile(title, pages, name);
  co_return printed;
}

QCoro::Task<bool> CurrentPrinter::PrintToFile(QString title, PageMaker pages, QString name) {
  const std::optional<SaveChoice> choice =
      co_await dialogs_.AskSave(Text::tr("印刷"), QStringLiteral("PDF(*.pdf)|*.pdf"),
                                WithExtension(ProposedName(state_, name), QStringLiteral(".pdf")));
  if (!choice) {
    co_return false;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".pdf"));
  const bool may = co_await MayReplace(path, messages_);
  co_return may&& TellWritten(WritePdf(path, title, PageLayoutOf(Settings()), pages), path,
                              messages_);
}

bool CurrentPrinter::PrintOnPaper(const QString& title, const PageMaker& pages, int copies) {
  const QString& name = Settings().printerName;
  if (QPrinterInfo::printerInfo(name).isNull()) {
    messages_.Tell({Message::kPrinterMissing, {name}});
    return false;
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(name);
  printer.setPageLayout(PageLayoutOf(Settings()));
  printer.setDocName(title);
  printer.setCopyCount(copies);
  if (!PaintPages(printer, pages) || printer.printerState() == QPrinter::Error) {
    messages_.Tell({Message::kPrintError, {name}});
    return false;
  }
  return true;
}

}  // namespace vexa
