// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/thick_graph.h"

#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "base/number_text.h"
#include "base/translation.h"
#include "measurement/evaluation.h"
#include "views/common/doubt_text.h"
#include "views/common/file_questions.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"
#include "views/common/theme.h"
#include "views/optics/history_plot.h"
#include "views/optics/optics_print.h"
#include "views/optics/thick_g_set_dlg.h"
#include "views/paper/current_printer.h"

namespace vexa {

namespace {

constexpr int kRepeatMs = 200;
const QString kNothing = QStringLiteral("-");

QLabel* Value(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QPushButton* Button(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  return button;
}

}  // namespace

ThickGraph::ThickGraph(Session& session, MessageService& messages, FileDialogs& dialogs,
                       CurrentPrinter& printer, std::function<int()> selectedSlot, QWidget* parent)
    : QMainWindow(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      dialogs_(dialogs),
      printer_(printer),
      selectedSlot_(std::move(selectedSlot)),
      cursor_(session.State().thicknessHistory.count),
      plot_(new HistoryPlot),
      count_(Value("TotalCount")),
      thickness_(Value("Thickness")),
      index_(Value("DataIndex")),
      kind_(Value("PointKind")),
      fit_(Value("PointFit")),
      doubt_(Value("PointDoubt")),
      doubts_(new QPlainTextEdit) {
  setObjectName(QStringLiteral("ThickGraph"));
  setWindowTitle(Text::tr("膜厚ｸﾞﾗﾌ"));
  BuildMenus();
  AddExport(*plot_, messages_, dialogs_, [this] { return ProposedName(state_); });
  auto* frame = new QFrame;
  frame->setFrameShape(QFrame::StyledPanel);
  auto* framed = new QVBoxLayout(frame);
  framed->setContentsMargins(1, 1, 1, 1);
  framed->addWidget(plot_);
  auto* central = new QWidget;
  auto* layout = new QHBoxLayout(central);
  layout->setContentsMargins(10, 8, 10, 10);
  layout->setSpacing(10);
  layout->addWidget(frame, 1);
  layout->addLayout(BuildInformation());
  setCentralWidget(central);
  resize(760, 460);
  connect(&session_, &Session::HistoryChanged, this, &ThickGraph::ShowChange);
  ShowChange();
}

void ThickGraph::ShowChange() {
  const int count = state_.thicknessHistory.count;
  cursor_ = count > shownCount_ ? count : std::clamp(cursor_, std::min(1, count), count);
  shownCount_ = count;
  RecomputeScale();
  ShowHistory();
}

void ThickGraph::BuildMenus() {
  const auto add = [this](auto* to, const char* name, const QString& caption, auto run) {
    QAction* action = to->addAction(caption);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
  };
  QMenu* file = menuBar()->addMenu(Text::tr("ﾌｧｲﾙ"));
  add(file, "SaveAs", Text::tr("ﾌｧｲﾙの名前を付けて保存"), &ThickGraph::Save);
  add(file, "Print", Text::tr("印刷"), &ThickGraph::Print);
  add(menuBar(), "ClearAll", Text::tr("全ﾃﾞｰﾀ･ｸﾘｱ"), &ThickGraph::ClearAll);
  QMenu* settings = menuBar()->addMenu(Text::tr("設定"));
  add(settings, "GraphSettings", Text::tr("ｸﾞﾗﾌ設定"), &ThickGraph::AskScale);
}

QLayout* ThickGraph::BuildInformation() {
  auto* group = new QGroupBox(Text::tr("ﾃﾞｰﾀ情報"));
  constexpr int kWidth = 190;
  group->setFixedWidth(kWidth);
  auto* values = new QFormLayout;
  values->setVerticalSpacing(8);
  values->addRow(Text::tr("全ﾃﾞｰﾀ数"), count_);
  values->addRow(Text::tr("膜厚"), thickness_);
  values->addRow(Text::tr("ﾃﾞｰﾀｲﾝﾃﾞｯｸｽ"), index_);
  values->addRow(Text::tr("種類"), kind_);
  values->addRow(Text::tr("ﾌｨｯﾄ"), fit_);
  doubt_->setPixmap(DoubtMark());
  values->addRow(Text::tr("疑い"), doubt_);

  auto* cursors = new QHBoxLayout;
  for (const int by : {-1, 1}) {
    auto* button = Button(by < 0 ? "CursorLeft" : "CursorRight",
                          by < 0 ? QStringLiteral("◀") : QStringLiteral("▶"));
    button->setToolTip(by < 0 ? Text::tr("前のﾃﾞｰﾀ") : Text::tr("次のﾃﾞｰﾀ"));
    button->setAutoRepeat(true);
    button->setAutoRepeatDelay(kRepeatMs);
    button->setAutoRepeatInterval(kRepeatMs);
    // Comes at once and then with each repeat while the button is held.
    connect(button, &QPushButton::pressed, this, [this, by] { MoveCursor(by); });
    cursors->addWidget(button);
  }
  auto* add = Button("AddPoint", Text::tr("追加"));
  auto* remove = Button("DeletePoint", Text::tr("削除"));
  connect(add, &QPushButton::clicked, this, &ThickGraph::AddCurrent);
  connect(remove, &QPushButton::clicked, this, &ThickGraph::DeletePoint);
  auto* commands = new QHBoxLayout;
  commands->addWidget(add);
  commands->addWidget(remove);

  auto* layout = new QVBoxLayout(group);
  layout->setContentsMargins(10, 10, 10, 10);
  layout->setSpacing(10);
  layout->addLayout(values);
  layout->addLayout(cursors);
  layout->addLayout(commands);

  // Below the buttons, which stay where they are while the cursor moves.
  doubts_->setObjectName(QStringLiteral("PointDoubts"));
  doubts_->setReadOnly(true);
  doubts_->setFrameShape(QFrame::NoFrame);
  doubts_->setFixedWidth(kWidth);
  auto* side = new QVBoxLayout;
  side->addWidget(group);
  side->addWidget(doubts_, 1);
  side->addStretch();
  return side;
}

void ThickGraph::AddCurrent() {
  const MeasurementSlot* slot = state_.Slot(selectedSlot_());
  if (!state_.thickness.enabled && (slot == nullptr || !slot->fit)) {
    messages_.Tell({Message::kHistoryThicknessDisabled});
    return;
  }
  const std::optional<HistoryPoint> point =
      slot != nullptr && slot->valid ? HistoryPointOf(*slot) : std::nullopt;
  if (!point) {
    messages_.Tell({Message::kNoValidData});
    return;
  }
  const HistoryAddResult result = session_.AddToHistory(*point);
  if (const std::optional<MessageCall> refusal = HistoryRefusal(result)) {
    messages_.Tell(*refusal);
  }
}

void ThickGraph::DeletePoint() {
  if (!session_.RemoveFromHistory(cursor_)) {
    messages_.Tell({Message::kHistoryNoPoint});
  }
}

QCoro::Task<> ThickGraph::ClearAll() {
  const MessageCall question{Message::kHistoryClear};
  const MessageResult answer = co_await messages_.Ask(question);
  if (answer != MessageResult::kOk) {
    co_return;
  }
  session_.ClearHistory();
}

void ThickGraph::MoveCursor(int by) {
  const int count = state_.thicknessHistory.count;
  cursor_ = std::clamp(cursor_ + by, std::min(1, count), count);
  ShowHistory();
}

QCoro::Task<> ThickGraph::Save() {
  const std::optional<SaveChoice> choice = co_await dialogs_.AskSave(
      Text::tr("ﾌｧｲﾙの名前を付けて保存"), QStringLiteral("Data File (*.thk)|*.thk"));
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, QStringLiteral(".thk"));
  const bool may = co_await MayReplace(path, messages_, Message::kReplaceFileOrCancel);
  if (!may) {
    co_return;
  }
  if (const WriteResult written = WriteThicknessFile(path, state_.thicknessHistory); !written) {
    messages_.Tell({Message::kHistoryWriteError, {}, written.reason});
  }
}

void ThickGraph::Print() {
  printer_.Print(windowTitle(), SinglePage([this](QPainter& painter, const QRectF& page) {
                   PaintHistoryPage(painter, page, state_.thicknessHistory, scale_);
                 }));
}

void ThickGraph::AskScale() {
  auto* dialog = new ThickGSetDlg(scale_, autoScale_, messages_, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    autoScale_ = dialog->AutoScale();
    scale_ = dialog->Scale();
    RecomputeScale();
    ShowHistory();
  });
  dialog->open();
}

void ThickGraph::RecomputeScale() {
  if (!autoScale_) {
    return;
  }
  const ThicknessHistory& history = state_.thicknessHistory;
  std::vector<double> shownNm(history.Points().begin(), history.Points().end());
  for (const HistoryNote& note : history.Notes()) {
    if (note.fitNm > 0.0 && note.fitNm <= ThicknessScale::kHighestNm) {
      shownNm.push_back(note.fitNm);
    }
  }
  if (const std::optional<ThicknessScale> scale = AutoScale(shownNm)) {
    scale_ = *scale;
  } else {
    messages_.Tell({Message::kHistoryScaleFault});
  }
}

void ThickGraph::ShowHistory() {
  const ThicknessHistory& history = state_.thicknessHistory;
  plot_->Show(history, scale_, cursor_);
  count_->setText(QString::number(history.count));
  index_->setText(cursor_ > 0 ? QString::number(cursor_) : kNothing);
  const auto place = static_cast<std::size_t>(std::max(cursor_ - 1, 0));
  thickness_->setText(cursor_ > 0 ? FormatNumber(history.values[place], u"###0.0") : kNothing);
  const HistoryNote note = cursor_ > 0 ? history.notes[place] : HistoryNote();
  kind_->setText(cursor_ == 0       ? kNothing
                 : note.fitted      ? Text::tr("膜厚ﾌｨｯﾄ", "kind")
                 : history.physical ? Text::tr("物理膜厚", "kind")
                                    : Text::tr("光学膜厚", "kind"));
  fit_->setText(note.fitNm > 0.0 ? FormatNumber(note.fitNm, u"###0.0") : kNothing);
  doubt_->setPixmap(note.doubts.empty() ? QPixmap() : DoubtMark());
  doubts_->setPlainText(DoubtTexts(note.doubts));
  doubts_->setVisible(!note.doubts.empty());
}

}  // namespace vexa
