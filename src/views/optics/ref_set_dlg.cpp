// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/ref_set_dlg.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/translation.h"
#include "measurement/dispersion_data.h"
#include "optics/bunsan.h"
#include "optics/index_file.h"
#include "views/common/dialog_buttons.h"
#include "views/common/file_questions.h"
#include "views/common/option_frame.h"
#include "views/optics/file_frame.h"
#include "views/optics/number_fields_frame.h"
#include "views/optics/thickness_measurement_page.h"

namespace vexa {

namespace {

/// What differs between the two uses.
struct ModeTexts {
  QString caption;
  QString kindFrame;
  QString valueLabel;
  QString unit;
  QString valueTip;
  Message outOfRange;
  double highestFixedValue;
  QString fileFilter;
  QString extension;
  Message readError;
  Message writeError;
};

constexpr double kLowestFixedValue = 0.1;

ModeTexts Texts(RefSetDlg::Mode mode) {
  if (mode == RefSetDlg::Mode::kReference) {
    return {Text::tr("ﾘﾌｧﾚﾝｽ設定"),
            Text::tr("ﾘﾌｧﾚﾝｽ設定"),
            Text::tr("反射率"),
            QStringLiteral("[%]"),
            Text::tr("全波長で使う反射率です (0.1～110 %)。"),
            Message::kReferenceOutOfRange,
            110.0,
            Text::tr("ﾘﾌｧﾚﾝｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ref)|*.ref|"),
            QStringLiteral(".ref"),
            Message::kReferenceFileReadError,
            Message::kReferenceFileWriteError};
  }
  return {Text::tr("膜厚設定"),
          Text::tr("ｺｰﾄ屈折率設定"),
          Text::tr("屈折率"),
          QStringLiteral("[n]"),
          Text::tr("全波長で使う屈折率です (0.1～10)。"),
          Message::kIndexOutOfRange,
          10.0,
          Text::tr("ｲﾝﾃﾞｯｸｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ind)|*.ind|"),
          QStringLiteral(".ind"),
          Message::kIndexFileReadError,
          Message::kIndexFileWriteError};
}

}  // namespace

RefSetDlg::RefSetDlg(Mode mode, Session& session, MessageService& messages, FileDialogs& dialogs,
                     QWidget* parent)
    : QDialog(parent),
      mode_(mode),
      session_(session),
      state_(session.State()),
      messages_(messages),
      dialogs_(dialogs),
      original_(mode == Mode::kReference ? session.State().referenceSetting
                                         : session.State().thickness.coat),
      pages_(new QTabWidget),
      kind_(new QButtonGroup(this)) {
  setObjectName(QStringLiteral("RefSetDlg"));
  setWindowTitle(Texts(mode).caption);
  BuildPages();
  connect(kind_, &QButtonGroup::idToggled, this, &RefSetDlg::EnableFieldsOfKind);
  EnableFieldsOfKind();
  QPushButton* save = DialogButton("Save", QStringLiteral("Save"));
  connect(save, &QPushButton::clicked, this, &RefSetDlg::Save);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(12);
  layout->addWidget(pages_);
  layout->addWidget(OkCancelButtons(*this, save));
}

QString RefSetDlg::Outcome() const {
  return OutcomeText(*this);
}

void RefSetDlg::accept() {
  Edited edited;
  if (!Apply(edited)) {
    return;
  }
  Settings settings = session_.SettingsInForce();
  if (mode_ == Mode::kReference) {
    settings.referenceSetting = edited.setting;
    settings.referenceReflectance = edited.spectrum;
  } else {
    settings.thickness = edited.thickness;
    StoreCoatSpectrum(settings, edited.spectrum);
  }
  session_.TakeSettings(settings);
  QDialog::accept();
}

void RefSetDlg::BuildPages() {
  const ModeTexts texts = Texts(mode_);
  const bool thickness = mode_ == Mode::kThickness;
  const QString coefficients = QStringLiteral("0.00000000E+00");
  measurement_ = new ThicknessMeasurementPage(state_.thickness);
  fixed_ = new NumberFieldsFrame({Text::tr("固定ﾘﾌｧﾚﾝｽ反射率"),
                                  {texts.valueLabel},
                                  QStringLiteral("0.000000"),
                                  QStringLiteral("FixedValue"),
                                  texts.unit},
                                 std::span(&original_.fixedValue, 1));
  fixed_->setToolTip(texts.valueTip);
  schott_ =
      new NumberFieldsFrame({Text::tr("Schott分散式ﾊﾟﾗﾒｰﾀ"),
                             {QStringLiteral("A0"), QStringLiteral("A1"), QStringLiteral("A2"),
                              QStringLiteral("A3"), QStringLiteral("A4"), QStringLiteral("A5")},
                             coefficients,
                             QStringLiteral("Schott"),
                             {}},
                            original_.schott);
  sellmeier_ =
      new NumberFieldsFrame({Text::tr("Sellmeier分散式ﾊﾟﾗﾒｰﾀ"),
                             {QStringLiteral("Sellmeier  A1"), QStringLiteral("Sellmeier  A2"),
                              QStringLiteral("Sellmeier  A3"), QStringLiteral("Sellmeier  B1"),
                              QStringLiteral("Sellmeier  B2"), QStringLiteral("Sellmeier  B3")},
                             coefficients,
                             QStringLiteral("Sellmeier"),
                             {}},
                            original_.sellmeier);
  indexFile_ =
      new FileFrame(Text::tr("分散ﾃﾞｰﾀﾌｧｲﾙ"), QStringLiteral("Index"), original_.indexFileName);
  substrateFile_ =
      new FileFrame(Text::tr("基板屈折率"), QStringLiteral("Substrate"), original_.dataFileName);
  connect(indexFile_, &FileFrame::LoadRequested, this, &RefSetDlg::LoadIndexFile);
  connect(substrateFile_, &FileFrame::LoadRequested, this, &RefSetDlg::LoadSubstrateFile);

  pages_->setObjectName(QStringLiteral("Pages"));
  pages_->setUsesScrollButtons(false);
  AddPage(Text::tr("膜厚測定"), measurement_, thickness);
  AddPage(Text::tr("分散設定"), BuildKinds(), true);
  AddPage(Text::tr("固定値"), fixed_, true);
  AddPage(Text::tr("分散式１"), schott_, true);
  AddPage(Text::tr("分散式２"), sellmeier_, true);
  AddPage(Text::tr("ﾌｧｲﾙ"), indexFile_, true);
  AddPage(Text::tr("基板屈折率"), substrateFile_, thickness);
  pages_->setCurrentIndex(thickness ? 0 : 1);
}

void RefSetDlg::AddPage(const QString& caption, QWidget* page, bool available) {
  auto* holder = new QWidget;
  auto* layout = new QVBoxLayout(holder);
  layout->setContentsMargins(12, 14, 12, 12);
  layout->addWidget(page);
  layout->addStretch();
  pages_->setTabEnabled(pages_->addTab(holder, caption), available);
}

QGroupBox* RefSetDlg::BuildKinds() {
  QGroupBox* frame = OptionFrame(
      Texts(mode_).kindFrame, QStringLiteral("Kind"),
      {Text::tr("固定値設定"), Text::tr("分散式１"), Text::tr("分散式２"), Text::tr("ﾌｧｲﾙ設定"),
       Text::tr("基板屈折率を使用し計算")},
      *kind_, original_.kind,
      {Text::tr("全波長で同じ値を使います。"), Text::tr("Schottの分散式で波長ごとに計算します。"),
       Text::tr("Sellmeierの分散式で波長ごとに計算します。"),
       Text::tr("ﾌｧｲﾙの値を波長ごとに使います。"),
       Text::tr("基板の屈折率と測定した反射率から膜の屈折率を計算します (Type A、Type B)。")});
  // The index of a substrate is no reflectance.
  kind_->button(DispersionKind::kSubstrate)->setEnabled(mode_ == Mode::kThickness);
  return frame;
}

void RefSetDlg::EnableFieldsOfKind() {
  const std::pair<QWidget*, std::int16_t> frames[] = {{fixed_, DispersionKind::kFixedValue},
                                                      {schott_, DispersionKind::kSchott},
                                                      {sellmeier_, DispersionKind::kSellmeier},
                                                      {indexFile_, DispersionKind::kIndexFile},
                                                      {substrateFile_, DispersionKind::kSubstrate}};
  for (const auto& [frame, kind] : frames) {
    frame->setEnabled(kind_->checkedId() == kind);
  }
}

bool RefSetDlg::Apply(Edited& edited) {
  edited.setting = original_;
  edited.setting.kind = ChosenOption(*kind_, original_.kind);
  edited.setting.indexFileName = indexFile_->Path();
  edited.setting.dataFileName = substrateFile_->Path();
  edited.thickness = state_.thickness;
  measurement_->Take(edited.thickness);
  if (!TakeNumbers(edited.setting)) {
    return false;
  }
  edited.thickness.coat = edited.setting;
  const bool thickness = mode_ == Mode::kThickness;
  if (thickness && edited.thickness.type == ThicknessType::kC &&
      edited.setting.kind == DispersionKind::kSubstrate) {
    messages_.Tell({Message::kTypeCWithSubstrate});
    return false;
  }
  const Dispersion dispersion = GetBunsanArray(!thickness, edited.setting);
  if (dispersion.notice) {
    messages_.Tell(*dispersion.notice);
  }
  if (const std::optional<MessageCall> message = DispersionMessage(dispersion.status)) {
    messages_.Tell(*message);
  }
  edited.spectrum = dispersion.spectrum;
  return dispersion.status == 0;
}

// Only what the chosen kind uses can be wrong: the other fields cannot be reached to mend them.
bool RefSetDlg::TakeNumbers(DispersionSetting& setting) {
  const ModeTexts texts = Texts(mode_);
  const bool fixed = fixed_->Take(std::span(&setting.fixedValue, 1));
  if (setting.kind == DispersionKind::kFixedValue &&
      !(fixed && setting.fixedValue >= kLowestFixedValue &&
        setting.fixedValue <= texts.highestFixedValue)) {
    messages_.Tell({texts.outOfRange});
    GoTo(*fixed_);
    return false;
  }
  const bool schott = schott_->Take(setting.schott);
  const bool sellmeier = sellmeier_->Take(setting.sellmeier);
  if ((setting.kind == DispersionKind::kSchott && !schott) ||
      (setting.kind == DispersionKind::kSellmeier && !sellmeier)) {
    messages_.Tell({Message::kCoefficientNotANumber});
    GoTo(schott ? *sellmeier_ : *schott_);
    return false;
  }
  return true;
}

void RefSetDlg::GoTo(const NumberFieldsFrame& frame) {
  for (int page = 0; page < pages_->count(); ++page) {
    if (pages_->widget(page)->isAncestorOf(&frame)) {
      pages_->setCurrentIndex(page);
    }
  }
  EnterAgain(frame.FieldAtFault());
}

QCoro::Task<> RefSetDlg::LoadIndexFile() {
  const ModeTexts texts = Texts(mode_);
  const std::optional<QString> path = co_await dialogs_.AskOpen(texts.caption, texts.fileFilter);
  if (!path || !MayKeepName(*path, messages_)) {
    co_return;
  }
  const auto values = ReadIndexFile(*path);
  if (values) {
    indexFile_->SetPath(*path);
  } else {
    messages_.Tell({texts.readError, {}, FaultText(values.Fault())});
  }
}

QCoro::Task<> RefSetDlg::LoadSubstrateFile() {
  const std::optional<QString> path = co_await dialogs_.AskOpen(
      Texts(mode_).caption, Text::tr("ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|"));
  if (!path || !MayKeepName(*path, messages_)) {
    co_return;
  }
  const auto reflectance = ReadSubstrateFile(*path);
  if (reflectance) {
    substrateFile_->SetPath(*path);
    co_return;
  }
  if (const std::optional<MessageCall> notice = SubstrateNotice(reflectance.Fault())) {
    messages_.Tell(*notice);
  }
  messages_.Tell({Message::kIndexFileReadError, {}, FaultText(reflectance.Fault())});
}

QCoro::Task<> RefSetDlg::Save() {
  Edited edited;
  if (!Apply(edited)) {
    co_return;
  }
  const ModeTexts texts = Texts(mode_);
  const std::optional<SaveChoice> choice =
      co_await dialogs_.AskSave(texts.caption, Text::tr("全てのﾌｧｲﾙ(*.*)|*.*|") + texts.fileFilter);
  if (!choice) {
    co_return;
  }
  const QString path = WithExtension(choice->path, texts.extension);
  const bool may = co_await MayReplace(path, messages_, Message::kReplaceFileOrCancel);
  if (!may) {
    co_return;
  }
  const auto content = mode_ == Mode::kReference ? IndexFileContent::kReferenceReflectance
                                                 : IndexFileContent::kIndex;
  if (const WriteResult written = WriteIndexFile(path, content, edited.spectrum); !written) {
    messages_.Tell({texts.writeError, {}, written.reason});
  }
}

}  // namespace vexa
