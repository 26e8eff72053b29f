// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/stock_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/translation.h"
#include "colour/stock_file.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/common/file_questions.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"

namespace vexa {
namespace {

constexpr int kSmallestDiagram = 420;
QString Filter() {
  return Text::tr("累積ﾃﾞｰﾀ･ﾌｧｲﾙ(*.stc)|*.stc|");
}

}  // namespace

StockWindow::StockWindow(Session& session, MessageService& messages, FileDialogs& dialogs,
                         std::shared_ptr<BackgroundPicture> picture, QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      dialogs_(dialogs),
      diagram_(new ChromaticityDiagram(std::move(picture))),
      count_(new QLabel),
      load_(AddButton("StockLoad", Text::tr("読み込み"), [this] { Load(); })),
      save_(AddButton("StockSave", Text::tr("保存"), [this] { Save(); })),
      clear_(AddButton("StockClearOne", Text::tr("ｸﾘｱ"), [this] { ClearLast(); })),
      clearAll_(AddButton("StockClearAll", Text::tr("全ｸﾘｱ"), [this] { ClearAll(); })),
      close_(AddButton("StockClose", Text::tr("閉じる"), [this] { CloseWindow(); })) {
  setObjectName(QStringLiteral("StockWindow"));
  setWindowTitle(Text::tr("累積色度図表示"));
  diagram_->setMinimumSize(kSmallestDiagram, ChromaticityDiagram::HeightFor(kSmallestDiagram));
  AddExport(*diagram_, messages_, dialogs_, [this] { return ProposedName(state_); });
  count_->setObjectName(QStringLiteral("StockWindowCount"));
  count_->setAlignment(Qt::AlignCenter);
  clear_->setToolTip(Text::tr("最後の累積データを取り消します。"));

  auto* frame = new QFrame;
  frame->setFrameShape(QFrame::StyledPanel);
  auto* framed = new QVBoxLayout(frame);
  framed->setContentsMargins(1, 1, 1, 1);
  framed->addWidget(diagram_);
  auto* column = new QVBoxLayout;
  column->setSpacing(8);
  column->addWidget(count_);
  column->addSpacing(4);
  for (QPushButton* button : {load_, save_, clear_, clearAll_}) {
    column->addWidget(button);
  }
  column->addStretch();
  column->addWidget(close_);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(12, 12, 12, 12);
  layout->setSpacing(12);
  layout->addWidget(frame, 1);
  layout->addLayout(column);
  connect(&session_, &Session::StockChanged, this, &StockWindow::Refresh);
  Refresh();
}

void StockWindow::SetNamed(bool named) {
  diagram_->SetKind(ColourKind::kInstrument, named);
  Refresh();
}

void StockWindow::Refresh() {
  diagram_->ShowStock(state_);
  count_->setText(Text::tr("累積数  %1 / %2")
                      .arg(state_.stock.Count)
                      .arg(static_cast<int>(ColourStock::kCapacity)));
  clear_->setEnabled(state_.stock.Count > 0);
  clearAll_->setEnabled(state_.stock.Count > 0);
}

QPushButton* StockWindow::AddButton(const char* name, const QString& caption,
                                    const std::function<void()>& run) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  button->setMinimumWidth(116);
  connect(button, &QPushButton::clicked, this, [run] { run(); });
  return button;
}

void StockWindow::ClearAll() {
  session_.RemoveAllColours();
}

void StockWindow::ClearLast() {
  session_.RemoveLastColour();
}

QCoro::Task<> StockWindow::Load() {
  const std::optional<QString> path =
      co_await dialogs_.AskOpen(Text::tr("累積ﾃﾞｰﾀ･ﾌｧｲﾙを開く"), Filter());
  if (!path) {
    co_return;
  }
  const ReadResult<ColourStock> stock = ReadStockFile(*path);
  if (!stock) {
    messages_.Tell(StockMessage(stock.Fault()));
    co_return;
  }
  session_.ReplaceStock(*stock);
}

QCoro::Task<> StockWindow::Save() {
  const std::optional<SaveChoice> choice =
      co_await dialogs_.AskSave(Text::tr("累積ﾃﾞｰﾀ･ﾌｧｲﾙの保存"), Filter());
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".stc"));
  const bool may = co_await MayReplace(path, messages_);
  if (may) {
    (void)TellWritten(WriteStockFile(path, state_.stock), path, messages_);
  }
}

void StockWindow::CloseWindow() {
  close();
}

}  // namespace vexa
