// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/standards/standard_frm.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/translation.h"
#include "measurement/evaluation.h"
#include "standards/condition_caption.h"
#include "standards/standard_check.h"
#include "views/common/dialog_buttons.h"
#include "views/common/elided_label.h"
#include "views/common/option_frame.h"
#include "views/common/scroll_body.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

QPushButton* MakeButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setMinimumWidth(96);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

StandardFrm::StandardFrm(Session& session, MessageService& messages, FileDialogs& dialogs,
                         QWidget* parent)
    : QDialog(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      dialogs_(dialogs),
      fileName_(session.State().standardFileName),
      conditions_(new ConditionsGroup),
      average_(new LimitsGroup(QStringLiteral("averageReflectance"),
                               Text::tr("平均反射率を使用する"), QStringLiteral("%"),
                               Text::tr("表示設定の波長範囲の平均反射率を判定します。"))),
      luminous_(new LimitsGroup(QStringLiteral("luminousReflectance"),
                                Text::tr("視感反射率を使用する"), QStringLiteral("%"),
                                Text::tr("標準光源と視野の設定による視感反射率を判定します。"))),
      wavelengthValue_(new LimitsGroup(QStringLiteral("wavelengthValue"),
                                       Text::tr("波長値を使用する"), QStringLiteral("nm"),
                                       Text::tr("反射率の山または谷の波長を判定します。"))),
      chroma_(new LimitsGroup(QStringLiteral("chroma"), Text::tr("クロマを使用する"),
                              QStringLiteral("C*"),
                              Text::tr("クロマ C*、a*b*色度図の原点からの距離を判定します。"))),
      hue_(new LimitsGroup(QStringLiteral("hueAngle"), Text::tr("色相角を使用する"),
                           QStringLiteral("°"),
                           Text::tr("色相角 h、a*軸から反時計回りの角度を判定します。"
                                    "上限が下限より小さいときは、0°をまたぐ範囲になります。"))),
      chromaMarker_(new MarkerGroup(QStringLiteral("chromaMarker"), Text::tr("基準値･クロマ"),
                                    Text::tr("基準値C*"),
                                    Text::tr("a*b*色度図に、このクロマの円を描きます。"))),
      hueMarker_(new MarkerGroup(QStringLiteral("hueMarker"), Text::tr("基準値･色相角"),
                                 Text::tr("基準値h°"),
                                 Text::tr("a*b*色度図に、この色相角の線を描きます。"))),
      peak_(new QRadioButton(Text::tr("ピーク"))),
      bottom_(new QRadioButton(Text::tr("ボトム"))),
      fileLabel_(new ElidedLabel),
      fileHint_(new QLabel(Text::tr("保存されていない規格は終了時に失われます。"))) {
  setObjectName(QStringLiteral("StandardFrm"));
  setWindowTitle(Text::tr("規格設定"));
  if (!state_.standardsChanged) {
    inFile_ = ContentsOf(state_);
  }
  auto* ok = MakeButton("btnOK", QStringLiteral("OK"));
  ok->setDefault(true);
  auto* cancel = MakeButton("btnCancel", Text::tr("ｷｬﾝｾﾙ"));
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* groups = new QHBoxLayout;
  groups->setSpacing(12);
  groups->addWidget(conditions_);
  groups->addWidget(BuildGroups(), 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(10);
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 14);
  layout->setSpacing(12);
  auto* body = new QWidget;
  body->setLayout(groups);
  groups->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new ScrollBody(body), 1);
  layout->addLayout(BuildFileRow());
  layout->addLayout(buttons);
  Show(ContentsOf(state_));
  ShowFileName();
  BeginWithFirstField(*this);
  resize(sizeHint());
}

QWidget* StandardFrm::BuildGroups() {
  auto* range = new QLabel(Text::tr("<範囲:0°-360°>"));
  range->setTextFormat(Qt::PlainText);
  range->setObjectName(QStringLiteral("hueRange"));
  hue_->AddBelow(range);
  wavelengthValue_->AddBeside(BuildPeakChoice());
  auto* widget = new QWidget;
  auto* grid = new QGridLayout(widget);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(12);
  grid->addWidget(average_, 0, 0);
  grid->addWidget(luminous_, 0, 1);
  grid->addWidget(wavelengthValue_, 1, 0, 1, 2);
  grid->addWidget(chroma_, 2, 0);
  grid->addWidget(hue_, 2, 1);
  grid->addWidget(chromaMarker_, 3, 0);
  grid->addWidget(hueMarker_, 3, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(4, 1);
  return widget;
}

QWidget* StandardFrm::BuildPeakChoice() {
  peak_->setToolTip(Text::tr("反射率が最大になる波長を判定します。"));
  bottom_->setToolTip(Text::tr("反射率が最小になる波長を判定します。"));
  peak_->setObjectName(QStringLiteral("peak"));
  bottom_->setObjectName(QStringLiteral("bottom"));
  auto* choice = new QButtonGroup(this);
  choice->addButton(peak_);
  choice->addButton(bottom_);
  TabToChosen(*choice);
  auto* widget = new QWidget;
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(24, 0, 0, 0);
  row->setSpacing(24);
  row->addWidget(peak_);
  row->addWidget(bottom_);
  row->addStretch();
  return widget;
}

QLayout* StandardFrm::BuildFileRow() {
  auto* load = MakeButton("load_bt", Text::tr("読み込み(&L)"));
  auto* save = MakeButton("save_bt", Text::tr("保存(&S)"));
  connect(load, &QPushButton::clicked, this, &StandardFrm::Load);
  connect(save, &QPushButton::clicked, this, &StandardFrm::Save);
  fileLabel_->setObjectName(QStringLiteral("fileName"));
  fileHint_->setObjectName(QStringLiteral("fileHint"));
  QPalette calm = fileHint_->palette();
  calm.setColor(QPalette::WindowText, theme::kAccent);
  fileHint_->setPalette(calm);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addWidget(fileLabel_, 1);
  row->addWidget(fileHint_);
  row->addWidget(load);
  row->addWidget(save);
  return row;
}

void StandardFrm::Show(const StandardContents& contents) {
  const StandardSet& standard = contents.standard;
  conditions_->Show(standard);
  average_->Show(standard.averageReflectance);
  luminous_->Show(standard.luminousReflectance);
  wavelengthValue_->Show(standard.wavelengthValue.limits);
  shownSelector_ = standard.wavelengthValue.selector;
  (shownSelector_ != 0 ? peak_ : bottom_)->setChecked(true);
  chroma_->Show(standard.chroma);
  hue_->Show(standard.hueAngle);
  chromaMarker_->Show(contents.chromaMarker);
  hueMarker_->Show(contents.hueMarker);
}

void StandardFrm::ShowFileName() {
  fileLabel_->setText(Text::tr("規格ﾌｧｲﾙ名") + QStringLiteral(":") + fileName_);
  fileLabel_->setToolTip(fileName_);
  fileHint_->setVisible(fileName_.isEmpty());
}

QLineEdit* StandardFrm::TakeInto(StandardContents& contents, QString& where) const {
  StandardSet& standard = contents.standard;
  const std::int16_t peak = shownSelector_ != 0 ? shownSelector_ : std::int16_t{1};
  standard.wavelengthValue.selector = peak_->isChecked() ? peak : std::int16_t{0};
  const ConditionsGroup::Fault condition = conditions_->TakeInto(standard);
  const struct {
    QLineEdit* field;
    QString where;
  } faults[] = {
      {condition.field, Text::tr("反射率規格・") + ConditionCaption(condition.condition)},
      {average_->TakeInto(standard.averageReflectance), Text::tr("平均反射率規格")},
      {wavelengthValue_->TakeInto(standard.wavelengthValue.limits), Text::tr("波長値規格")},
      {chroma_->TakeInto(standard.chroma), Text::tr("クロマ規格")},
      {hue_->TakeInto(standard.hueAngle), Text::tr("色相角規格")},
      {luminous_->TakeInto(standard.luminousReflectance), Text::tr("視感反射率規格")},
      {chromaMarker_->TakeInto(contents.chromaMarker), chromaMarker_->title()},
      {hueMarker_->TakeInto(contents.hueMarker), hueMarker_->title()},
  };
  for (const auto& fault : faults) {
    if (fault.field != nullptr) {
      where = fault.where;
      return fault.field;
    }
  }
  return nullptr;
}

// The first entry, in the order of the check, that spoils what without it would be accepted.
QLineEdit* StandardFrm::FieldAtFault(const StandardSet& entered) const {
  StandardSet tried;
  const auto limitAtFault = [&tried](StandardLimits& part, const StandardLimits& limits,
                                     const RangeFields& fields) -> QLineEdit* {
    part.enabled = limits.enabled;
    part.upper = limits.upper;
    if (CheckStandardSet(tried)) {
      return fields.upper;
    }
    part.lower = limits.lower;
    return CheckStandardSet(tried) ? fields.lower : nullptr;
  };
  tried.useReflectance = entered.useReflectance;
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    tried.wavelengths[k] = entered.wavelengths[k];
    tried.conditions[k].enabled = entered.conditions[k].enabled;
    if (CheckStandardSet(tried)) {
      return conditions_->WavelengthField(k);
    }
    if (QLineEdit* field =
            limitAtFault(tried.conditions[k], entered.conditions[k], conditions_->Fields(k))) {
      return field;
    }
  }
  const struct {
    StandardLimits& part;
    const StandardLimits& limits;
    const LimitsGroup* group;
  } groups[] = {
      {tried.averageReflectance, entered.averageReflectance, average_},
      {tried.wavelengthValue.limits, entered.wavelengthValue.limits, wavelengthValue_},
      {tried.chroma, entered.chroma, chroma_},
      {tried.hueAngle, entered.hueAngle, hue_},
      {tried.luminousReflectance, entered.luminousReflectance, luminous_},
  };
  for (const auto& [part, limits, group] : groups) {
    if (QLineEdit* field = limitAtFault(part, limits, group->Fields())) {
      return field;
    }
  }
  return nullptr;
}

std::optional<StandardContents> StandardFrm::Entered() {
  StandardContents contents;
  QString where;
  if (QLineEdit* field = TakeInto(contents, where); field != nullptr) {
    messages_.Tell({Message::kStandardNotANumber, {where}});
    EnterAgain(*field);
    return std::nullopt;
  }
  if (const std::optional<MessageCall> fault = CheckStandardSet(contents.standard)) {
    messages_.Tell(*fault);
    if (QLineEdit* field = FieldAtFault(contents.standard)) {
      EnterAgain(*field);
    }
    return std::nullopt;
  }
  return contents;
}

QCoro::Task<> StandardFrm::Load() {
  const std::optional<StandardFile> file = co_await LoadStandardFile(messages_, dialogs_);
  if (!file) {
    co_return;
  }
  fileName_ = file->path;
  inFile_ = file->contents;
  Show(file->contents);
  ShowFileName();
}

QCoro::Task<> StandardFrm::Save() {
  const std::optional<StandardContents> contents = Entered();
  if (!contents) {
    co_return;
  }
  const QString filter = QStringLiteral("Standard Files (*.std)|*.std");
  const std::optional<QString> path =
      co_await SaveStandardFile(*contents, filter, messages_, dialogs_);
  if (!path) {
    co_return;
  }
  fileName_ = *path;
  inFile_ = contents;
  if (*path == state_.standardFileName) {
    Settings settings = session_.SettingsInForce();
    settings.standardsChanged = *contents != ContentsOf(state_);
    session_.TakeSettings(settings);
  }
  ShowFileName();
}

void StandardFrm::accept() {
  const std::optional<StandardContents> contents = Entered();
  if (!contents) {
    return;
  }
  Settings settings = session_.SettingsInForce();
  settings.standardsChanged = contents != inFile_;
  settings.standard = contents->standard;
  settings.chromaMarker = contents->chromaMarker;
  settings.hueMarker = contents->hueMarker;
  settings.standardFileName = fileName_;
  session_.TakeSettings(settings);
  QDialog::accept();
}

}  // namespace vexa
