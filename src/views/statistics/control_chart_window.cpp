// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/control_chart_window.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/plot_export.h"
#include "views/common/scroll_body.h"
#include "views/common/theme.h"
#include "views/common/window_size.h"
#include "views/paper/current_printer.h"
#include "views/paper/plot_drawing.h"
#include "views/statistics/histogram_plot.h"
#include "views/statistics/record_view.h"
#include "views/statistics/series_filter.h"
#include "views/statistics/xmr_plot.h"

namespace vexa {
namespace {

const QString kFileName = QStringLiteral("control-chart");

QComboBox* Choice(const char* name, const QStringList& texts) {
  auto* choice = new QComboBox;
  choice->setObjectName(QLatin1String(name));
  choice->addItems(texts);
  return choice;
}

}  // namespace

ControlChartWindow::ControlChartWindow(const Session& session, RecordReader& reader,
                                       CurrentPrinter& printer, MessageService& messages,
                                       FileDialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      session_(session),
      reader_(reader),
      printer_(printer),
      messages_(messages),
      dialogs_(dialogs),
      filter_(new SeriesFilter(session.Now().date(), reader.HasShared())),
      value_(new ValueChoice(true)),
      grouping_(Choice("Grouping", {Text::tr("群なし"), Text::tr("ロット"), Text::tr("日"),
                                    Text::tr("装置"), Text::tr("測定者")})),
      rules_(Choice("Rules", {QStringLiteral("Western Electric"), QStringLiteral("Nelson")})),
      baseline_(new QSpinBox),
      warnings_(new QLabel),
      plot_(new XmrPlot(XmrPlot::Panes::kValuesAndRanges)),
      histogram_(new HistogramPlot),
      pages_(new QTabWidget),
      statistics_(MakeResultView("Statistics")),
      signals_(MakeResultView("Signals")),
      groups_(MakeResultView("Groups")),
      record_(new RecordView) {
  setObjectName(QStringLiteral("ControlChartWindow"));
  setWindowTitle(Text::tr("管理図"));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  plot_->setObjectName(QStringLiteral("ControlChart"));
  plot_->setMinimumSize(260, 200);
  warnings_->setObjectName(QStringLiteral("ChartWarnings"));
  warnings_->setWordWrap(true);
  AddExport(*plot_, messages, dialogs, [] { return kFileName; });
  AddExport(*histogram_, messages, dialogs, [] { return QStringLiteral("histogram"); });

  auto* middle = new QVBoxLayout;
  middle->addWidget(warnings_);
  middle->addWidget(plot_, 1);
  auto* top = new QHBoxLayout;
  top->addWidget(BuildRequest());
  top->addLayout(middle, 3);
  top->addWidget(BuildPages(), 2);

  QPushButton* print = DialogButton("PrintChart", Text::tr("印刷(&P)"));
  QPushButton* save = DialogButton("SaveChart", Text::tr("保存(&S)"));
  QPushButton* closeButton = DialogButton("CloseChart", Text::tr("閉じる"));
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(print);
  bottom->addWidget(save);
  bottom->addStretch();
  bottom->addWidget(closeButton);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 10, 12, 10);
  layout->addLayout(top, 1);
  layout->addLayout(bottom);
  ResizeWithinScreen(*this, {1000, 560});

  connect(filter_, &SeriesFilter::Changed, this, &ControlChartWindow::Load);
  connect(value_, &ValueChoice::Changed, this, &ControlChartWindow::Load);
  connect(grouping_, &QComboBox::currentIndexChanged, this, &ControlChartWindow::Study);
  connect(rules_, &QComboBox::currentIndexChanged, this, &ControlChartWindow::Study);
  connect(baseline_, &QSpinBox::valueChanged, this, &ControlChartWindow::Study);
  connect(&session_, &Session::SettingsChanged, this, &ControlChartWindow::Study);
  connect(plot_, &XmrPlot::PointChosen, this, &ControlChartWindow::ChoosePoint);
  connect(signals_, &QTableWidget::itemSelectionChanged, this, [this] {
    if (const int row = signals_->currentRow(); row >= 0) {
      const int point = signals_->item(row, 0)->text().toInt();
      plot_->Choose(point);
      ShowRecord(point);
    }
  });
  connect(print, &QPushButton::clicked, this, &ControlChartWindow::Print);
  connect(save, &QPushButton::clicked, this, &ControlChartWindow::Save);
  connect(closeButton, &QPushButton::clicked, this, &QDialog::close);
  Load();
}

QWidget* ControlChartWindow::BuildRequest() {
  baseline_->setObjectName(QStringLiteral("Baseline"));
  baseline_->setLocale(QLocale::c());
  baseline_->setRange(0, kMostPoints);
  baseline_->setSpecialValueText(Text::tr("すべて"));
  baseline_->setKeyboardTracking(false);
  baseline_->setToolTip(Text::tr("最初のこの点数から管理限界を求めます。"));
  auto* read = DialogButton("LoadChart", Text::tr("読み直し(&R)"));
  connect(read, &QPushButton::clicked, this, &ControlChartWindow::Load);
  auto* body = new QWidget;
  auto* form = new QFormLayout(body);
  form->setContentsMargins(0, 0, 6, 0);
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form->addRow(value_);
  form->addRow(filter_);
  form->addRow(Text::tr("群"), grouping_);
  form->addRow(Text::tr("規則"), rules_);
  form->addRow(Text::tr("限界の点数"), baseline_);
  form->addRow(read);
  auto* scroll = new ScrollBody(body);
  constexpr int kWidth = 238;
  scroll->setFixedWidth(kWidth);
  return scroll;
}

QWidget* ControlChartWindow::BuildPages() {
  pages_->setObjectName(QStringLiteral("ChartPages"));
  pages_->addTab(statistics_, Text::tr("統計"));
  pages_->addTab(histogram_, Text::tr("ヒストグラム"));
  pages_->addTab(signals_, Text::tr("異常"));
  pages_->addTab(groups_, Text::tr("群"));
  pages_->addTab(record_, Text::tr("記録"));
  pages_->setMinimumWidth(std::max(360, pages_->tabBar()->sizeHint().width()));
  return pages_;
}

void ControlChartWindow::Load() {
  const RecordPlace place = filter_->Place();
  const RecordValue value = value_->Value();
  setCursor(Qt::BusyCursor);
  reader_.LoadValues(place, filter_->Query(kMostPoints), value, *this,
                     [this, place, value, request = ++requests_](const auto& series) {
                       if (request == requests_) {
                         place_ = place;
                         charted_ = value;
                         Take(series);
                       }
                     });
}

void ControlChartWindow::Take(const Answer<ValueSeries>& series) {
  unsetCursor();
  series_ = series.value;
  shownId_.clear();
  record_->Clear();
  Study();
  // Without a store nothing was ever recorded, which the study says in its words.
  if (!series && series.fault != StoreFault::kMissing) {
    ShowWarnings({StoreFaultText(series.fault)});
  }
}

void ControlChartWindow::Study() {
  const RecordValue value = charted_;
  study_ = StudyChart(series_,
                      {value, static_cast<Grouping>(grouping_->currentIndex()),
                       rules_->currentIndex() == 1, static_cast<std::size_t>(baseline_->value()),
                       IsCie(value.quantity) ? LimitsOf(series_.cieLimits, value.quantity)
                                             : LimitsOf(session_.State().standard, value)});
  plot_->Show(PictureOf(study_, series_));
  histogram_->Show(ValueTitle(value), study_.values, study_.request.tolerance);
  ShowResults(*statistics_, StatisticsTable(study_));
  ShowResults(*signals_, SignalTable(study_, series_));
  ShowResults(*groups_, GroupTable(study_));
  ShowWarnings(Warnings(study_, series_));
}

void ControlChartWindow::ChoosePoint(int point) {
  ShowRecord(point);
  pages_->setCurrentWidget(record_);
}

void ControlChartWindow::ShowRecord(int point) {
  const QString id = series_.points[static_cast<std::size_t>(point - 1)].id;
  shownId_ = id;
  reader_.Load(place_, {id}, *this, [this, id](const Answer<QList<WholeRecord>>& records) {
    if (id != shownId_) {
      return;  // another one was chosen meanwhile
    }
    if (records) {
      record_->Show(records.value.constFirst());
    } else {
      record_->Show(records.fault);
    }
  });
}

void ControlChartWindow::ShowWarnings(const QStringList& lines) {
  warnings_->setText(lines.join(u'\n'));
  warnings_->setVisible(!lines.isEmpty());
  const bool grave = !study_.refusal.isEmpty() || !study_.doubts.empty();
  QPalette palette = warnings_->palette();
  palette.setColor(QPalette::WindowText, grave ? theme::kBad : theme::kText);
  warnings_->setPalette(palette);
}

void ControlChartWindow::Print() {
  constexpr QSize kChart(960, 520);
  constexpr QSize kHistogram(960, 320);
  QList<ResultTable> tables{StatisticsTable(study_)};
  tables.front().rows.prepend({Text::tr("値"), ValueTitle(study_.request.value)});
  if (const QString records = filter_->Description(); !records.isEmpty()) {
    tables.front().rows.insert(1, {Text::tr("記録"), records});
  }
  for (const QString& warning : Warnings(study_, series_)) {
    tables.front().rows << QStringList{Text::tr("注意"), warning};
  }
  tables.front().textColumns = 2;
  for (const ResultTable& table : {SignalTable(study_, series_), GroupTable(study_)}) {
    if (!table.rows.isEmpty()) {
      tables << table;
    }
  }
  PrintResults(
      printer_, windowTitle(),
      {{PlotDrawing(*plot_, kChart), kChart}, {PlotDrawing(*histogram_, kHistogram), kHistogram}},
      tables);
}

void ControlChartWindow::Save() {
  SaveCsv(windowTitle(), kFileName, FileRows(study_, series_), messages_, dialogs_);
}

}  // namespace vexa
