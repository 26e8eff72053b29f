// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/dispset.h"

#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cmath>

#include "base/translation.h"
#include "colour/colour_tables.h"
#include "measurement/evaluation.h"
#include "views/common/colour_texts.h"
#include "views/common/dialog_buttons.h"
#include "views/common/option_frame.h"
#include "views/common/scroll_body.h"

namespace vexa {

namespace {

const QString kNm = QStringLiteral("[nm]");

struct Group {
  explicit Group(const QString& caption) : box(new QGroupBox(caption)), grid(new QGridLayout) {
    auto* above = new QVBoxLayout(box);
    above->setContentsMargins(12, 8, 12, 8);
    above->addLayout(grid);
    above->addStretch();
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(2, box->fontMetrics().horizontalAdvance(kNm));
  }
  QGroupBox* box;
  QGridLayout* grid;
};

std::int16_t Whole(double value) {
  return static_cast<std::int16_t>(std::lround(value));
}

}  // namespace

dispset::dispset(Session& session, MessageService& messages, QWidget* parent)
    : QDialog(parent), session_(session), state_(session.State()), messages_(messages) {
  setObjectName(QStringLiteral("dispset"));
  setWindowTitle(Text::tr("表示設定"));
  auto* body = new QWidget;
  auto* columns = new QHBoxLayout(body);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(14);
  const auto addColumn = [columns] {
    auto* column = new QVBoxLayout;
    columns->addLayout(column);
    return column;
  };
  QVBoxLayout* left = addColumn();
  BuildWavelengths(*left);
  BuildText(*left);
  BuildMarks(*left);
  QVBoxLayout* middle = addColumn();
  BuildReflectance(*middle);
  BuildAverage(*middle);
  QVBoxLayout* right = addColumn();
  BuildColours(*right);
  BuildReference(*right);
  // The last groups end in one line.
  for (QVBoxLayout* column : {left, middle, right}) {
    column->setStretch(column->count() - 1, 1);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 14, 18, 14);
  layout->setSpacing(12);
  layout->addWidget(new ScrollBody(body), 1);
  layout->addWidget(OkCancelButtons(*this));
  resize(sizeHint());
}

void dispset::accept() {
  Finish();
}

QCoro::Task<> dispset::Finish() {
  const DisplayEntries entries = Entries();
  if (const std::optional<MessageCall> fault = CheckDisplayEntries(entries)) {
    messages_.Tell(*fault);
    if (NumberField* field = FieldAtFault(entries)) {
      EnterAgain(*field);
    }
    co_return;
  }
  const StockConditions conditions = Conditions();
  if (conditions != state_.ColourConditions() && state_.stock.Count > 0) {
    const QPointer<dispset> alive(this);
    const MessageCall question{Message::kClearStockForDisplay};
    const MessageResult answer = co_await messages_.Ask(question);
    if (alive == nullptr) {
      co_return;
    }
    if (answer == MessageResult::kYes) {
      session_.RemoveAllColours();
    }
  }
  Store(entries, conditions);
  QDialog::accept();
}

NumberField* dispset::AddNumber(QGridLayout& grid, const char* name, const QString& caption,
                                double value, const QString& unit, const QString& tip) {
  auto* field = new NumberField(QStringLiteral(" ##0.0###"));
  field->setObjectName(QLatin1String(name));
  field->SetValue(value);
  field->setToolTip(tip);
  connect(field, &QLineEdit::inputRejected, this,
          [this] { messages_.Tell({Message::kEntryRefused}); });
  const int row = grid.rowCount();
  grid.addWidget(new QLabel(caption), row, 0);
  grid.addWidget(field, row, 1);
  grid.addWidget(new QLabel(unit), row, 2);
  return field;
}

QCheckBox* dispset::AddCheck(QGridLayout& grid, const char* name, const QString& caption,
                             bool checked, const QString& tip) {
  auto* box = new QCheckBox(caption);
  box->setToolTip(tip);
  box->setObjectName(QLatin1String(name));
  box->setChecked(checked);
  grid.addWidget(box, grid.rowCount(), 0, 1, 3);
  return box;
}

QButtonGroup* dispset::AddChoice(QGridLayout& grid, const char* name, const QStringList& captions,
                                 int chosen, const QString& tip) {
  auto* group = new QButtonGroup(grid.parentWidget());
  auto* row = new QHBoxLayout;
  row->setSpacing(14);
  for (qsizetype i = 0; i < captions.size(); ++i) {
    auto* button = new QRadioButton(captions[i]);
    button->setToolTip(tip);
    button->setObjectName(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(i));
    button->setChecked(i == chosen);
    group->addButton(button, static_cast<int>(i));
    row->addWidget(button);
  }
  row->addStretch();
  TabToChosen(*group);
  grid.addLayout(row, grid.rowCount(), 0, 1, 3);
  return group;
}

void dispset::BuildWavelengths(QBoxLayout& column) {
  const DisplaySettings& display = state_.display;
  const Group range(Text::tr("表示波長"));
  fullScale_ = AddCheck(*range.grid, "FullScale", Text::tr("ﾌﾙｽｹｰﾙ"), display.fullScale,
                        Text::tr("波長軸を440～840 nmにします。"));
  shortest_ = AddNumber(*range.grid, "Shortest", Text::tr("最短波長"), display.shortestNm, kNm,
                        Text::tr("波長軸の左端です (440～840 nm)。"));
  longest_ = AddNumber(*range.grid, "Longest", Text::tr("最長波長"), display.longestNm, kNm,
                       Text::tr("波長軸の右端です。最短波長から20 nm以上離します (840 nmまで)。"));
  for (QWidget* field : {shortest_, longest_}) {
    field->setDisabled(fullScale_->isChecked());
    connect(fullScale_, &QCheckBox::toggled, field, &QWidget::setDisabled);
  }
  const Group ticks(Text::tr("目盛り"));
  wavelengthTick_ =
      AddNumber(*ticks.grid, "WavelengthTick", Text::tr("目盛り間隔"), display.wavelengthTickNm,
                kNm, Text::tr("波長軸の目盛りの間隔です (5～1000 nm)。"));
  column.addWidget(range.box);
  column.addWidget(ticks.box);
}

void dispset::BuildReflectance(QBoxLayout& column) {
  const DisplaySettings& display = state_.display;
  const QString percent = QStringLiteral("[%]");
  const Group range(Text::tr("表示反射率"));
  autoScale_ = AddCheck(*range.grid, "AutoScale", Text::tr("自動ｽｹｰﾙ"), display.autoScale,
                        Text::tr("反射率軸を、表示中の曲線と規格に合わせます。"));
  maximum_ = AddNumber(*range.grid, "Maximum", Text::tr("最大"), display.maximumPercent, percent,
                       Text::tr("反射率軸の上端です (0.01～100 %)。"));
  minimum_ = AddNumber(*range.grid, "Minimum", Text::tr("最小"), display.minimumPercent, percent,
                       Text::tr("反射率軸の下端です (0～100 %)。"));
  for (QWidget* field : {maximum_, minimum_}) {
    field->setDisabled(autoScale_->isChecked());
    connect(autoScale_, &QCheckBox::toggled, field, &QWidget::setDisabled);
  }
  const Group ticks(Text::tr("目盛り"));
  autoTicks_ = AddCheck(*ticks.grid, "AutoTicks", Text::tr("自動目盛り"), display.autoTicks,
                        Text::tr("目盛りをきりのよい値に置きます。"));
  tick_ = AddNumber(*ticks.grid, "Tick", Text::tr("目盛り間隔"), display.tickPercent, percent,
                    Text::tr("反射率軸の目盛りの間隔です。目盛りは100本までです。"));
  tick_->setDisabled(autoTicks_->isChecked());
  connect(autoTicks_, &QCheckBox::toggled, tick_, &QWidget::setDisabled);
  column.addWidget(range.box);
  column.addWidget(ticks.box);
}

void dispset::BuildText(QBoxLayout& column) {
  const Group text(Text::tr("ﾃｷｽﾄ表示"));
  textStep_ = AddNumber(*text.grid, "TextStep", Text::tr("表示ｽﾃｯﾌﾟ"), state_.display.textStepNm,
                        kNm, Text::tr("表の行の波長の間隔です (1～100 nm)。"));
  column.addWidget(text.box);
}

void dispset::BuildColours(QBoxLayout& column) {
  const Group diagram(Text::tr("色度図"));
  diagram_ = AddChoice(*diagram.grid, "Diagram", DiagramTexts(), state_.display.xyMode ? 0 : 1,
                       Text::tr("測定画面の色度図です。累積する色の値もこれで決まります。"));
  diagram.grid->addWidget(new QLabel(Text::tr("L*a*bｽｹｰﾙ")), diagram.grid->rowCount(), 0);
  labScale_ = AddChoice(*diagram.grid, "LabScale", LabScaleTexts(), state_.display.labScale,
                        Text::tr("a*b*色度図の軸の端の値です。"));
  const Group illuminant(Text::tr("標準光源設定"));
  illuminant_ =
      AddChoice(*illuminant.grid, "Illuminant",
                {IlluminantText(1), IlluminantText(2), IlluminantText(3), IlluminantText(4)},
                state_.colour.illuminant - 1, Text::tr("測色値を計算する標準光源です。"));
  const Group observer(Text::tr("視野設定"));
  observer_ = AddChoice(*observer.grid, "Observer", {Text::tr("2度視野"), Text::tr("10度視野")},
                        state_.colour.observer2Deg ? 0 : 1,
                        Text::tr("測色値を計算する等色関数の視野です。"));
  for (const Group& group : {diagram, illuminant, observer}) {
    column.addWidget(group.box);
  }
}

void dispset::BuildReference(QBoxLayout& column) {
  const Group shown(Text::tr("ﾘﾌｧﾚﾝｽﾃﾞｰﾀ"));
  reference_ = AddCheck(*shown.grid, "ShowReference", Text::tr("ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示する"),
                        state_.display.showReferenceData,
                        Text::tr("ﾘﾌｧﾚﾝｽ試料の理論反射率をｸﾞﾗﾌと表に加えます。"));
  column.addWidget(shown.box);
}

void dispset::BuildMarks(QBoxLayout& column) {
  const Group cursor(Text::tr("ｶｰｿﾙ表示"));
  cursor_ =
      AddCheck(*cursor.grid, "ShowCursor", Text::tr("ｶｰｿﾙを表示する"), state_.display.showCursor,
               Text::tr("ｸﾞﾗﾌに波長のｶｰｿﾙを、その下に各曲線の値を示します。"));
  const Group minimum(Text::tr("Min表示"));
  minimumMark_ = AddCheck(*minimum.grid, "ShowMinimum", Text::tr("Min値に表示する"),
                          state_.display.showMinimum,
                          Text::tr("選択ｽﾛｯﾄの最小値の位置に、波長と値を示します。"));
  auto* marks = new QHBoxLayout;
  marks->addWidget(cursor.box);
  marks->addWidget(minimum.box);
  column.addLayout(marks);
}

void dispset::BuildAverage(QBoxLayout& column) {
  const Group average(Text::tr("平均反射率"));
  averageShortest_ =
      AddNumber(*average.grid, "AverageShortest", Text::tr("最短波長"), state_.colour.avgFrom, kNm,
                Text::tr("平均反射率を計算する範囲の始まりです (440～840 nm)。"));
  averageLongest_ =
      AddNumber(*average.grid, "AverageLongest", Text::tr("最長波長"), state_.colour.avgTo, kNm,
                Text::tr("平均反射率を計算する範囲の終わりです (440～840 nm)。"));
  column.addWidget(average.box);
}

// The first entry that spoils what without it would be accepted.
NumberField* dispset::FieldAtFault(const DisplayEntries& entries) const {
  DisplayEntries tried{.fullScale = entries.fullScale,
                       .shortestNm = ReflectanceSpectrum::kFirstNm,
                       .longestNm = ReflectanceSpectrum::kLastNm,
                       .wavelengthTickNm = 100.0,
                       .autoScale = entries.autoScale,
                       .maximumPercent = 100.0,
                       .minimumPercent = 0.0,
                       .autoTicks = entries.autoTicks,
                       .tickPercent = 100.0,
                       .textStepNm = 1.0,
                       .averageShortestNm = ReflectanceSpectrum::kFirstNm,
                       .averageLongestNm = ReflectanceSpectrum::kLastNm};
  const std::pair<DisplayEntries::Entry DisplayEntries::*, NumberField*> fields[] = {
      {&DisplayEntries::shortestNm, shortest_},
      {&DisplayEntries::longestNm, longest_},
      {&DisplayEntries::wavelengthTickNm, wavelengthTick_},
      {&DisplayEntries::minimumPercent, minimum_},
      {&DisplayEntries::maximumPercent, maximum_},
      {&DisplayEntries::tickPercent, tick_},
      {&DisplayEntries::textStepNm, textStep_},
      {&DisplayEntries::averageShortestNm, averageShortest_},
      {&DisplayEntries::averageLongestNm, averageLongest_}};
  for (const auto& [entry, field] : fields) {
    tried.*entry = entries.*entry;
    if (CheckDisplayEntries(tried)) {
      return field;
    }
  }
  return nullptr;
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

// A choice of which nothing is checked stays as it was.
StockConditions dispset::Conditions() const {
  const StockConditions now = state_.ColourConditions();
  return {.xyMode = diagram_->checkedId() == 0,
          .illuminant = static_cast<std::int16_t>(
              ChosenOption(*illuminant_, static_cast<std::int16_t>(now.illuminant - 1)) + 1),
          .observer2Deg = observer_->checkedId() == 0};
}

// Entries that a flag replaces are stored where they are numbers, and kept as they were elsewhere.
void dispset::Store(const DisplayEntries& entries, const StockConditions& conditions) {
  Settings settings = session_.SettingsInForce();
  DisplaySettings& display = settings.display;
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
  display.xyMode = conditions.xyMode;
  display.labScale = ChosenOption(*labScale_, display.labScale);
  display.showReferenceData = reference_->isChecked();
  display.showCursor = cursor_->isChecked();
  display.showMinimum = minimumMark_->isChecked();
  settings.colour.illuminant = conditions.illuminant;
  settings.colour.observer2Deg = conditions.observer2Deg;
  settings.colour.avgFrom = Whole(*entries.averageShortestNm);
  settings.colour.avgTo = Whole(*entries.averageLongestNm);
  session_.TakeSettings(settings);
}

}  // namespace vexa
