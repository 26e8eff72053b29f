// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/print_dlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "base/translation.h"
#include "views/colour/background_picture.h"
#include "views/common/dialog_buttons.h"
#include "views/common/option_frame.h"
#include "views/common/scroll_body.h"
#include "views/print/page_header.h"
#include "views/print/print_preview.h"
#include "views/print/print_setup_dlg.h"
#include "views/print/report.h"

namespace vexa {

namespace {

constexpr int kLongestText = 100;
constexpr int kMostCopies = 99;

QLineEdit* TextField(const char* name, const QString& text) {
  auto* field = new QLineEdit(text);
  field->setObjectName(QLatin1String(name));
  field->setMaxLength(kLongestText);
  field->setMinimumWidth(280);
  return field;
}

// Radio buttons in a row, each named after its group and its number.
QButtonGroup* AddChoice(QHBoxLayout& row, const char* name, QWidget* owner,
                        const QList<std::pair<int, QString>>& choices, int chosen) {
  auto* group = new QButtonGroup(owner);
  for (const auto& [id, caption] : choices) {
    auto* button = new QRadioButton(caption);
    button->setObjectName(QStringLiteral("%1%2").arg(QLatin1String(name)).arg(id));
    button->setChecked(id == chosen);
    group->addButton(button, id);
    row.addWidget(button);
  }
  row.setSpacing(18);
  row.addStretch();
  TabToChosen(*group);
  return group;
}

}  // namespace

PrintDlg::PrintDlg(const VEXATYPE& state, int selectedSlot, ReportRequest& request,
                   CurrentPrinter& printer, MessageService& messages, QWidget* parent)
    : QDialog(parent),
      state_(state),
      selectedSlot_(selectedSlot),
      request_(request),
      printer_(printer),
      messages_(messages),
      title_(TextField("Title", request.title)),
      operator_(TextField("Operator", request.operatorName)),
      date_(new QDateEdit(request.date)),
      printerText_(new QLabel),
      copies_(new QSpinBox),
      diagram_(new QCheckBox(Text::tr("色度図を加える"))),
      cie_(new QCheckBox(Text::tr("CIE測色値を加える"))) {
  setObjectName(QStringLiteral("PrintDlg"));
  setWindowTitle(Text::tr("印刷"));
  auto* preview = DialogButton("Preview", Text::tr("ﾌﾟﾚﾋﾞｭｰ"));
  connect(preview, &QPushButton::clicked, this, &PrintDlg::Preview);
  QWidget* buttons = OkCancelButtons(*this, preview);
  buttons->findChild<QPushButton*>(QStringLiteral("OK"))->setText(Text::tr("印刷"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 14, 18, 14);
  layout->setSpacing(12);
  auto* body = new QWidget;
  auto* groups = new QVBoxLayout(body);
  groups->setContentsMargins(0, 0, 0, 0);
  for (QWidget* group : {BuildHeader(), BuildSlots(), BuildContent(), BuildPrinter()}) {
    groups->addWidget(group);
  }
  layout->addWidget(new ScrollBody(body), 1);
  layout->addWidget(buttons);
  ShowPrinter();
  resize(sizeHint());
}

QWidget* PrintDlg::BuildHeader() {
  date_->setObjectName(QStringLiteral("Date"));
  date_->setLocale(QLocale::c());
  date_->setDisplayFormat(QStringLiteral("yyyy/M/d"));
  date_->setCalendarPopup(true);
  title_->setPlaceholderText(ReportTitle({}));
  auto* group = new QGroupBox(Text::tr("見出し"));
  auto* form = new QFormLayout(group);
  form->addRow(Text::tr("ﾀｲﾄﾙ"), title_);
  form->addRow(Text::tr("測定者"), operator_);
  form->addRow(Text::tr("日付"), date_);
  return group;
}

QWidget* PrintDlg::BuildSlots() {
  const MeasurementSlot* slot = state_.Slot(selectedSlot_);
  const bool selectable = slot != nullptr && slot->valid;
  auto* group = new QGroupBox(Text::tr("印刷ﾃﾞｰﾀ"));
  auto* row = new QHBoxLayout(group);
  slots_ =
      AddChoice(*row, "Slots", group,
                {{1, Text::tr("選択ﾃﾞｰﾀ (Mes%1)").arg(selectedSlot_)}, {0, Text::tr("全ﾃﾞｰﾀ")}},
                request_.slot != 0 && selectable ? 1 : 0);
  slots_->button(1)->setEnabled(selectable);
  return group;
}

QWidget* PrintDlg::BuildContent() {
  const auto id = [](ReportContent content) { return static_cast<int>(content); };
  auto* group = new QGroupBox(Text::tr("印刷内容"));
  auto* form = new QFormLayout(group);
  form->setHorizontalSpacing(18);
  auto* contents = new QHBoxLayout;
  content_ = AddChoice(*contents, "Content", group,
                       {{id(ReportContent::kGraph), Text::tr("ｸﾞﾗﾌ")},
                        {id(ReportContent::kText), Text::tr("ﾃｷｽﾄ")},
                        {id(ReportContent::kBoth), Text::tr("ｸﾞﾗﾌとﾃｷｽﾄ")}},
                       id(request_.content));
  auto* steps = new QHBoxLayout;
  step_ = AddChoice(*steps, "Step", group,
                    {{1, QStringLiteral("1 nm")}, {10, QStringLiteral("10 nm")}}, request_.stepNm);
  diagram_->setObjectName(QStringLiteral("ReportDiagram"));
  diagram_->setChecked(request_.diagram);
  cie_->setObjectName(QStringLiteral("ReportCie"));
  cie_->setChecked(request_.cie);
  cie_->setToolTip(Text::tr("他の測色計と比較できる値を、別の表 (と色度図) に加えます。"));
  form->addRow(contents);
  form->addRow(diagram_);
  form->addRow(cie_);
  form->addRow(Text::tr("ﾃｷｽﾄｽﾃｯﾌﾟ"), steps);
  const auto enableSteps = [this](int content) {
    for (QAbstractButton* button : step_->buttons()) {
      button->setEnabled(content != static_cast<int>(ReportContent::kGraph));
    }
  };
  connect(content_, &QButtonGroup::idClicked, this, enableSteps);
  enableSteps(content_->checkedId());
  return group;
}

QWidget* PrintDlg::BuildPrinter() {
  printerText_->setObjectName(QStringLiteral("PrinterText"));
  printerText_->setTextFormat(Qt::PlainText);
  QPushButton* settings = DialogButton("PrinterSettings", Text::tr("印刷設定"));
  connect(settings, &QPushButton::clicked, this, &PrintDlg::SetUpPrinter);
  copies_->setObjectName(QStringLiteral("Copies"));
  copies_->setRange(1, kMostCopies);
  copies_->setFixedWidth(80);
  auto* group = new QGroupBox(Text::tr("ﾌﾟﾘﾝﾀ"));
  auto* row = new QHBoxLayout;
  row->addWidget(printerText_, 1);
  row->addWidget(settings);
  auto* form = new QFormLayout(group);
  form->addRow(row);
  form->addRow(Text::tr("部数"), copies_);
  return group;
}

ReportRequest PrintDlg::Entries() const {
  return {.title = title_->text(),
          .operatorName = operator_->text(),
          .date = date_->date(),
          .slot = slots_->checkedId() == 0 ? 0 : selectedSlot_,
          .content = static_cast<ReportContent>(content_->checkedId()),
          .stepNm = step_->checkedId(),
          .diagram = diagram_->isChecked(),
          .cie = cie_->isChecked(),
          .unsaved = request_.unsaved,
          .proof = request_.proof};
}

PageMaker PrintDlg::Pages(const ReportRequest& request) const {
  std::shared_ptr<BackgroundPicture> background;
  if (request.diagram) {
    background = std::make_shared<BackgroundPicture>(messages_);
    background->Complete();
  }
  return MakeReport(state_, request, background);
}

void PrintDlg::ShowPrinter() {
  printerText_->setText(PrintSettingsText(printer_.Settings()));
  copies_->setEnabled(!printer_.Settings().printerName.isEmpty());
}

void PrintDlg::Preview() {
  auto* preview = new PrintPreview(printer_.Settings(), Pages(Entries()), this);
  preview->setAttribute(Qt::WA_DeleteOnClose);
  preview->open();
}

void PrintDlg::SetUpPrinter() {
  auto* setup = new PrintSetupDlg(printer_, messages_, this);
  setup->setAttribute(Qt::WA_DeleteOnClose);
  connect(setup, &QDialog::accepted, this, &PrintDlg::ShowPrinter);
  setup->open();
}

void PrintDlg::accept() {
  Print();
}

QCoro::Task<> PrintDlg::Print() {
  const ReportRequest entries = Entries();
  const QString title = ReportTitle(entries);
  const PageMaker pages = Pages(entries);
  const bool printed = co_await printer_.Print(title, pages, copies_->value());
  if (printed) {
    request_ = entries;
    QDialog::accept();
  }
}

void PrintSlots(const VEXATYPE& state, int selectedSlot, ReportRequest& request,
                CurrentPrinter& printer, MessageService& messages, QWidget* parent) {
  if (!state.HasValidSlot()) {
    messages.Tell({Message::kNoValidData});
    return;
  }
  auto* dialog = new PrintDlg(state, selectedSlot, request, printer, messages, parent);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

}  // namespace vexa
