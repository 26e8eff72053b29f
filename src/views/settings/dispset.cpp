// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/dispset.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cmath>

#include "measurement/evaluation.h"
#include "views/common/dialog_buttons.h"

namespace vexa {

using namespace message_type;

namespace {

struct Group {
  explicit Group(const QString& caption) : box(new QGroupBox(caption)), grid(new QGridLayout(box)) {
    grid->setContentsMargins(12, 8, 12, 8);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    grid->setColumnStretch(0, 1);
  }
  QGroupBox* box;
  QGridLayout* grid;
};

std::int16_t Whole(double value) {
  return static_cast<std::int16_t>(std::lround(value));
}

}  // namespace

dispset::dispset(VEXATYPE& state, MessageService& messages, QWidget* parent)
    : QDialog(parent), state_(state), messages_(messages) {
  setObjectName(QStringLiteral("dispset"));
  setWindowTitle(QStringLiteral("表示設定"));
  auto* left = new QVBoxLayout;
  left->addWidget(BuildWavelengths());
  left->addWidget(BuildReflectance());
  left->addStretch();
  auto* right = new QVBoxLayout;
  right->addWidget(BuildDiagram());
  right->addWidget(BuildConditions());
  right->addWidget(BuildRest());
  right->addStretch();
  auto* columns = new QHBoxLayout;
  columns->setSpacing(14);
  columns->addLayout(left);
  columns->addLayout(right);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 14, 18, 14);
  layout->setSpacing(12);
  layout->addLayout(columns);
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void dispset::accept() {
  const DisplayEntries entries = Entries();
  if (const std::optional<QString> fault = CheckDisplayEntries(entries)) {
    messages_.MsgCall(*fault, kOk + kWarningIcon, QStringLiteral("設定入力"));
    return;
  }
  const StockConditions before = state_.ColourConditions();
  Store(entries);
  const StockConditions after = state_.ColourConditions();
  const bool changed = before.xyMode != after.xyMode || before.illuminant != after.illuminant ||
                       before.observer2Deg != after.observer2Deg;
  if (changed && state_.stock.Count > 0 &&
      messages_.MsgCall(QStringLiteral("現在累積されている色度図データと表示条件が異なります。現累"
                                       "積データをクリアしますか？"),
                        kYesNo + kQuestionIcon, message_title::kMessage) == MessageResult::kYes) {
    state_.stock.RemoveAll();
  }
  EvaluateAgain(state_);
  QDialog::accept();
}

NumberField* dispset::AddNumber(QGridLayout& grid, const char* name, const QString& caption,
                                double value, const QString& unit) {
  auto* field = new NumberField(QStringLiteral(" ##0.0###"));
  field->setObjectName(QLatin1String(name));
  field->SetValue(value);
  connect(field, &QLineEdit::inputRejected, this, [this] {
    messages_.MsgCall(QStringLiteral("ﾃﾞｰﾀが入力できません。再入力して下さい。"), kOk + kStopIcon,
                      message_title::kError);
  });
  const int row = grid.rowCount();
  grid.addWidget(new QLabel(caption), row, 0);
  grid.addWidget(field, row, 1);
  grid.addWidget(new QLabel(unit), row, 2);
  return field;
}

QCheckBox* dispset::AddCheck(QGridLayout& grid, const char* name, const QString& caption,
                             bool checked) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(QLatin1String(name));
  box->setChecked(checked);
  grid.addWidget(box, grid.rowCount(), 0, 1, 3);
  return box;
}

QButtonGroup* dispset::AddChoice(QGridLayout& grid, const char* name, const QStringList& captions,
                                 int chosen) {
  auto* group = new QButtonGroup(grid.parentWidget());
  auto* row = new QHBoxLayout;
  for (qsizetype i = 0; i < captions.size(); ++i) {
    auto* button = new QRadioButton(captions[i]);
    button->setObjectName(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(i));
    button->setChecked(i == chosen);
    group->addButton(button, static_cast<int>(i));
    row->addWidget(button);
  }
  row->addStretch();
  grid.addLayout(row, grid.rowCount(), 0, 1, 3);
  return group;
}

QWidget* dispset::BuildWavelengths() {
  const DisplaySettings& display = state_.display;
  Group group(QStringLiteral("表示波長"));
  const QString nm = QStringLiteral("[nm]");
  fullScale_ = AddCheck(*group.grid, "FullScale", QStringLiteral("ﾌﾙｽｹｰﾙ"), display.fullScale);
  shortest_ =
      AddNumber(*group.grid, "Shortest", QStringLiteral("最短波長"), display.shortestNm, nm);
  longest_ = AddNumber(*group.grid, "Longest", QStringLiteral("最長波長"), display.longestNm, nm);
  group.grid->addWidget(new QLabel(QStringLiteral("目盛り")), group.grid->rowCount(), 0);
  wavelengthTick_ = AddNumber(*group.grid, "WavelengthTick", QStringLiteral("目盛り間隔"),
                              display.wavelengthTickNm, nm);
  for (QWidget* field : {shortest_, longest_}) {
    field->setDisabled(fullScale_->isChecked());
    connect(fullScale_, &QCheckBox::toggled, field, &QWidget::setDisabled);
  }
  return group.box;
}

QWidget* dispset::BuildReflectance() {
  const DisplaySettings& display = state_.display;
  Group group(QStringLiteral("表示反射率"));
  const QString percent = QStringLiteral("[%]");
  autoScale_ = AddCheck(*group.grid, "AutoScale", QStringLiteral("自動ｽｹｰﾙ"), display.autoScale);
  maximum_ =
      AddNumber(*group.grid, "Maximum", QStringLiteral("最大"), display.maximumPercent, percent);
  minimum_ =
      AddNumber(*group.grid, "Minimum", QStringLiteral("最小"), display.minimumPercent, percent);
  group.grid->addWidget(new QLabel(QStringLiteral("目盛り")), group.grid->rowCount(), 0);
  autoTicks_ = AddCheck(*group.grid, "AutoTicks", QStringLiteral("自動目盛り"), display.autoTicks);
  tick_ =
      AddNumber(*group.grid, "Tick", QStringLiteral("目盛り間隔"), display.tickPercent, percent);
  for (QWidget* field : {maximum_, minimum_}) {
    field->setDisabled(autoScale_->isChecked());
    connect(autoScale_, &QCheckBox::toggled, field, &QWidget::setDisabled);
  }
  tick_->setDisabled(autoTicks_->isChecked());
  connect(autoTicks_, &QCheckBox::toggled, tick_, &QWidget::setDisabled);
  return group.box;
}

QWidget* dispset::BuildDiagram() {
  Group group(QStringLiteral("色度図"));
  diagram_ = AddChoice(*group.grid, "Diagram",
                       {QStringLiteral("XYZ色度図"), QStringLiteral("L*a*b色度図")},
                       state_.display.xyMode ? 0 : 1);
  group.grid->addWidget(new QLabel(QStringLiteral("L*a*bｽｹｰﾙ")), group.grid->rowCount(), 0);
  labScale_ = AddChoice(*group.grid, "LabScale",
                        {QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("40")},
                        state_.display.labScale);
  return group.box;
}

QWidget* dispset::BuildConditions() {
  auto* both = new QWidget;
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  Group illuminant(QStringLiteral("標準光源設定"));
  illuminant_ = AddChoice(
      *illuminant.grid, "Illuminant",
      {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D65")},
      state_.colour.illuminant - 1);
  Group observer(QStringLiteral("視野設定"));
  observer_ =
      AddChoice(*observer.grid, "Observer", {QStringLiteral("2度視野"), QStringLiteral("10度視野")},
                state_.colour.observer2Deg ? 0 : 1);
  layout->addWidget(illuminant.box);
  layout->addWidget(observer.box);
  return both;
}

QWidget* dispset::BuildRest() {
  auto* all = new QWidget;
  auto* layout = new QVBoxLayout(all);
  layout->setContentsMargins(0, 0, 0, 0);
  Group text(QStringLiteral("ﾃｷｽﾄ表示"));
  textStep_ = AddNumber(*text.grid, "TextStep", QStringLiteral("表示ｽﾃｯﾌﾟ"),
                        state_.display.textStepNm, QStringLiteral("[nm]"));
  Group shown(QStringLiteral("ﾘﾌｧﾚﾝｽﾃﾞｰﾀ"));
  reference_ = AddCheck(*shown.grid, "ShowReference", QStringLiteral("ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示する"),
                        state_.display.showReferenceData);
  Group cursor(QStringLiteral("ｶｰｿﾙ表示"));
  cursor_ = AddCheck(*cursor.grid, "ShowCursor", QStringLiteral("ｶｰｿﾙを表示する"),
                     state_.display.showCursor);
  Group minimum(QStringLiteral("Min表示"));
  minimumMark_ = AddCheck(*minimum.grid, "ShowMinimum", QStringLiteral("Min値に表示する"),
                          state_.display.showMinimum);
  Group average(QStringLiteral("平均反射率"));
  averageShortest_ = AddNumber(*average.grid, "AverageShortest", QStringLiteral("最短波長"),
                               state_.colour.avgFrom, QStringLiteral("[nm]"));
  averageLongest_ = AddNumber(*average.grid, "AverageLongest", QStringLiteral("最長波長"),
                              state_.colour.avgTo, QStringLiteral("[nm]"));
  auto* marks = new QHBoxLayout;
  marks->addWidget(cursor.box);
  marks->addWidget(minimum.box);
  layout->addWidget(text.box);
  layout->addWidget(shown.box);
  layout->addLayout(marks);
  layout->addWidget(average.box);
  return all;
}

DisplayEntries dispset::Entries() const {
  return {.fullScale = fullScale_->isChecked(),
          .shortestNm = shortest_->Value(),
          .longestNm = longest_->Value(),
          .wavelengthTickNm = wavelengthTick_->Value(),
          .autoScale = autoScale_->isChecked(),
          .maximumPercent = maximum_->Value(),
          .minimumPercent = minimum_->Value(),
          .autoTicks = autoTicks_->isChecked(),
          .tickPercent = tick_->Value(),
          .textStepNm = textStep_->Value(),
          .averageShortestNm = averageShortest_->Value(),
          .averageLongestNm = averageLongest_->Value()};
}

// Entries that a flag replaces are stored where they are numbers, and kept as they were elsewhere.
void dispset::Store(const DisplayEntries& entries) {
  DisplaySettings& display = state_.display;
  display.fullScale = entries.fullScale;
  display.shortestNm =
      entries.fullScale ? ReflectanceSpectrum::kFirstNm : std::round(*entries.shortestNm);
  display.longestNm =
      entries.fullScale ? ReflectanceSpectrum::kLastNm : std::round(*entries.longestNm);
  display.wavelengthTickNm = *entries.wavelengthTickNm;
  display.autoScale = entries.autoScale;
  display.maximumPercent = entries.maximumPercent.value_or(display.maximumPercent);
  display.minimumPercent = entries.minimumPercent.value_or(display.minimumPercent);
  display.autoTicks = entries.autoTicks;
  display.tickPercent = entries.tickPercent.value_or(display.tickPercent);
  display.textStepNm = Whole(*entries.textStepNm);
  display.xyMode = diagram_->checkedId() == 0;
  display.labScale = static_cast<std::int16_t>(std::max(labScale_->checkedId(), 0));
  display.showReferenceData = reference_->isChecked();
  display.showCursor = cursor_->isChecked();
  display.showMinimum = minimumMark_->isChecked();
  state_.colour.illuminant = static_cast<std::int16_t>(std::max(illuminant_->checkedId(), 0) + 1);
  state_.colour.observer2Deg = observer_->checkedId() == 0;
  state_.colour.avgFrom = Whole(*entries.averageShortestNm);
  state_.colour.avgTo = Whole(*entries.averageLongestNm);
}

}  // namespace vexa
