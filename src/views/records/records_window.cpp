// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/records/records_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/plot_export.h"
#include "views/common/window_size.h"
#include "views/records/recomputed_window.h"
#include "views/records/record_commands.h"
#include "views/records/record_details.h"
#include "views/records/record_graph.h"
#include "views/records/record_list.h"
#include "views/records/record_search_bar.h"
#include "views/records/supersede_dialog.h"

namespace vexa {
namespace {

constexpr qsizetype kMostCurves = 50;
constexpr int kMostSelectedAtOnce = 2000;
constexpr std::array<int, 9> kColumnWidths{140, 90, 110, 58, 56, 56, 56, 66, 92};

// Why nothing is found, for the user.
QString SearchFaultText(StoreFault fault) {
  return fault == StoreFault::kMissing
             ? Text::tr("まだ記録がありません。")
             : Text::tr("記録を検索できません。%1").arg(StoreFaultText(fault));
}

}  // namespace

RecordsWindow::RecordsWindow(const RecordsWindowParts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      bar_(new RecordSearchBar(parts.reader.HasShared())),
      list_(new RecordList(parts.reader, this)),
      table_(new QTableView),
      state_(new QLabel),
      graph_(new RecordGraph),
      details_(new QTextEdit) {
  setObjectName(QStringLiteral("RecordsWindow"));
  setWindowTitle(Text::tr("記録"));
  setWindowFlag(Qt::WindowMinMaxButtonsHint);
  auto* halves = new QSplitter;
  halves->addWidget(BuildTable());
  halves->addWidget(BuildSelection());
  halves->setStretchFactor(0, 3);
  halves->setStretchFactor(1, 2);
  halves->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addWidget(bar_);
  layout->addWidget(halves, 1);
  layout->addLayout(BuildButtons());
  ResizeWithinScreen(*this, {1180, 680});
  AddExport(*graph_, parts_.messages, parts_.dialogs);
  ConnectAll();
  ShowState();
  Search();
}

QWidget* RecordsWindow::BuildTable() {
  table_->setObjectName(QStringLiteral("RecordTable"));
  table_->setModel(list_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setAlternatingRowColors(true);
  table_->setWordWrap(false);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  // Rows of one height are never measured.
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
  table_->horizontalHeader()->setHighlightSections(false);
  int column = 0;
  for (const int width : kColumnWidths) {
    table_->setColumnWidth(column++, width);
  }
  state_->setObjectName(QStringLiteral("RecordState"));
  state_->setTextFormat(Qt::PlainText);
  state_->setWordWrap(true);
  auto* left = new QWidget;
  auto* layout = new QVBoxLayout(left);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(table_, 1);
  layout->addWidget(state_);
  left->setMinimumWidth(360);
  return left;
}

QWidget* RecordsWindow::BuildSelection() {
  details_->setObjectName(QStringLiteral("RecordDetails"));
  details_->setReadOnly(true);
  graph_->setMinimumSize(260, 140);
  auto* right = new QSplitter(Qt::Vertical);
  right->addWidget(graph_);
  right->addWidget(details_);
  right->setSizes({300, 260});
  right->setChildrenCollapsible(false);
  return right;
}

QLayout* RecordsWindow::BuildButtons() {
  auto* row = new QHBoxLayout;
  load_ = AddButton(*row, "LoadRecords", Text::tr("ｽﾛｯﾄに読み込む(&L)"));
  recompute_ = AddButton(*row, "RecomputeRecords", Text::tr("再計算(&E)"));
  export_ = AddButton(*row, "ExportRecords", Text::tr("書き出し(&X)"));
  print_ = AddButton(*row, "PrintRecords", Text::tr("印刷(&P)"));
  supersede_ = AddButton(*row, "SupersedeRecord", Text::tr("置き換え(&S)"));
  load_->setToolTip(Text::tr("10件までをｽﾛｯﾄに読み込みます。"));
  recompute_->setToolTip(Text::tr("いまの設定で計算し直し、記録された値と並べます。"));
  supersede_->setToolTip(Text::tr("2件を選び、一方でもう一方を置き換えます。"));
  row->addStretch();
  close_ = AddButton(*row, "CloseRecords", Text::tr("閉じる"));
  return row;
}

QPushButton* RecordsWindow::AddButton(QLayout& row, const char* name, const QString& caption) {
  QPushButton* button = DialogButton(name, caption);
  row.addWidget(button);
  return button;
}

void RecordsWindow::ConnectAll() {
  connect(bar_, &RecordSearchBar::SearchRequested, this, &RecordsWindow::Search);
  connect(list_, &RecordList::Answered, this, [this] {
    if (selectingAll_) {
      SelectAll();
    }
    ShowState();
  });
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &RecordsWindow::ShowSelection);
  connect(list_, &RecordList::modelReset, this, &RecordsWindow::ShowSelection);
  auto* all = new QShortcut(QKeySequence::SelectAll, table_);
  all->setContext(Qt::WidgetShortcut);
  connect(all, &QShortcut::activated, this, &RecordsWindow::SelectAll);
  connect(&parts_.desk, &InstrumentDesk::ActivityChanged, this, &RecordsWindow::ShowState);
  connect(&parts_.preferences, &ProgramPreferences::Changed, this, &RecordsWindow::ShowCie);
  ShowCie();

  connect(load_, &QPushButton::clicked, this, [this] {
    WithSelected([this](const Records& records) {
      LoadIntoSlots(records, parts_.session, parts_.messages);
    });
  });
  connect(recompute_, &QPushButton::clicked, this,
          [this] { WithSelected([this](const Records& records) { Recompute(records); }); });
  connect(export_, &QPushButton::clicked, this, [this] {
    WithSelected(
        [this](const Records& records) { ExportAs(records, parts_.dialogs, parts_.messages); });
  });
  connect(print_, &QPushButton::clicked, this, [this] { WithSelected(parts_.print); });
  connect(supersede_, &QPushButton::clicked, this, &RecordsWindow::Supersede);
  connect(close_, &QPushButton::clicked, this, &QDialog::close);
}

void RecordsWindow::TakeNewer() {
  list_->TakeNewer();
}

void RecordsWindow::ShowCie() {
  list_->SetNamed(parts_.preferences.InForce().showCie);
  for (const int column :
       {RecordList::kLightness, RecordList::kRedGreen, RecordList::kYellowBlue}) {
    table_->setColumnWidth(column, std::max(kColumnWidths.at(static_cast<std::size_t>(column)),
                                            table_->horizontalHeader()->sectionSizeHint(column)));
  }
  ShowSelection();
}

void RecordsWindow::Search() {
  selectingAll_ = false;
  list_->Search(bar_->Place(), bar_->Query(parts_.session.Now().date()));
}

// All that was found, read to the end where that is not too far.
void RecordsWindow::SelectAll() {
  selectingAll_ = list_->canFetchMore({}) && list_->rowCount() < kMostSelectedAtOnce;
  if (selectingAll_) {
    list_->fetchMore({});
  } else {
    table_->selectAll();
  }
}

void RecordsWindow::ShowState() {
  const int count = list_->rowCount();
  const qsizetype selected = SelectedRows().size();
  if (list_->Fault() != StoreFault::kNone) {
    state_->setText(SearchFaultText(list_->Fault()));
  } else {
    const QString found =
        list_->IsComplete() ? Text::tr("%1件").arg(count) : Text::tr("%1件以上").arg(count);
    const QString shown =
        selected > kMostCurves ? Text::tr("(ｸﾞﾗﾌは%1件まで)").arg(kMostCurves) : QString();
    state_->setText(selected == 0 ? found : found + Text::tr("　選択 %1件 ").arg(selected) + shown);
  }
  const bool local = list_->Place() == RecordPlace::kStation;
  load_->setEnabled(selected > 0 && selected <= kSlotCount && parts_.desk.IsIdle());
  recompute_->setEnabled(selected > 0);
  export_->setEnabled(selected > 0);
  print_->setEnabled(selected > 0);
  supersede_->setEnabled(selected == 2 && local);
}

void RecordsWindow::ShowSelection() {
  ShowState();
  if (std::exchange(showing_, true)) {
    showAgain_ = true;  // whoever runs through the rows does not wait for each of them
    return;
  }
  const QStringList ids = SelectedIds(kMostCurves);
  if (ids.isEmpty()) {
    ShowRecords({});
    return;
  }
  const auto done = [this](const Answer<Records>& records) { ShowRecords(records.value); };
  parts_.reader.Load(list_->Place(), ids, *this, done);
}

void RecordsWindow::ShowRecords(const Records& records) {
  showing_ = false;
  if (std::exchange(showAgain_, false)) {
    ShowSelection();
    return;
  }
  const int current = table_->currentIndex().row();
  const QString id =
      current >= 0 && current < list_->rowCount() ? list_->At(current).id : QString();
  auto shown = std::ranges::find(records, id, [](const WholeRecord& r) { return r.summary.id; });
  if (shown == records.end()) {
    shown = records.begin();
  }
  graph_->Show(records, id);
  details_->setHtml(shown == records.end()
                        ? QString()
                        : RecordDetails(*shown, parts_.preferences.InForce().showCie));
}

void RecordsWindow::WithSelected(const std::function<void(const Records& records)>& act) {
  const auto done = [this, act](const Answer<Records>& records) {
    if (records) {
      act(records.value);
    } else {
      TellUnreadable(records.fault);
    }
  };
  QStringList ids = SelectedIds(std::numeric_limits<qsizetype>::max());
  std::ranges::reverse(ids);  // as they were measured
  parts_.reader.Load(list_->Place(), ids, *this, done);
}

void RecordsWindow::Recompute(const Records& records) {
  auto* window = new RecomputedWindow(records, parts_.session.SettingsInForce(),
                                      parts_.preferences.InForce().showCie, this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->show();
}

void RecordsWindow::Supersede() {
  const QList<int> rows = SelectedRows();
  if (rows.size() != 2) {
    return;
  }
  auto* dialog = new SupersedeDialog(list_->At(rows[0]), list_->At(rows[1]), parts_.storePath,
                                     parts_.station, parts_.messages, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this] {
    Search();
    emit Decided();
  });
  dialog->open();
}

void RecordsWindow::TellUnreadable(StoreFault fault) {
  parts_.messages.Tell({Message::kRecordUnreadable, {StoreFaultText(fault)}});
}

// From the top, that is from the newest on.
QList<int> RecordsWindow::SelectedRows() const {
  QList<int> rows;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
    rows << index.row();
  }
  std::ranges::sort(rows);
  return rows;
}

QStringList RecordsWindow::SelectedIds(qsizetype most) const {
  QStringList ids;
  for (const int row : SelectedRows()) {
    if (ids.size() == most) {
      break;
    }
    ids << list_->At(row).id;
  }
  return ids;
}

}  // namespace vexa
