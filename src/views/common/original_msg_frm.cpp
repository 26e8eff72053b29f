// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/original_msg_frm.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kIconSize = 40;
constexpr int kTextWidth = 520;
constexpr int kDetailsWidth = 400;

bool Shows(MessageButtons buttons, MessageResult button) {
  switch (buttons) {
    case MessageButtons::kOk:
      break;
    case MessageButtons::kOkCancel:
      return button == MessageResult::kOk || button == MessageResult::kCancel;
    case MessageButtons::kYesNoCancel:
      return button != MessageResult::kOk;
    case MessageButtons::kYesNo:
      return button == MessageResult::kYes || button == MessageResult::kNo;
  }
  return button == MessageResult::kOk;
}

QStyle::StandardPixmap Pixmap(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kStop:
      break;
    case MessageIcon::kQuestion:
      return QStyle::SP_MessageBoxQuestion;
    case MessageIcon::kWarning:
      return QStyle::SP_MessageBoxWarning;
    case MessageIcon::kInformation:
      return QStyle::SP_MessageBoxInformation;
  }
  return QStyle::SP_MessageBoxCritical;
}

}  // namespace

OriginalMsgFrm::OriginalMsgFrm(QWidget* parent)
    : QDialog(parent),
      icon_(new QLabel),
      lblCmmnt_(new QLabel),
      unfold_(new QToolButton),
      details_(new QLabel) {
  const auto button = [this](const char* name, const QString& caption, MessageResult result) {
    auto* widget = new QPushButton(caption);
    widget->setObjectName(QLatin1String(name));
    widget->setMinimumWidth(96);
    connect(widget, &QPushButton::clicked, this, [this, result] {
      result_ = result;
      accept();
    });
    return Button{widget, result};
  };
  buttons_ = {button("btnOK", QStringLiteral("OK"), MessageResult::kOk),
              button("btnYes", Text::tr("はい(&Y)"), MessageResult::kYes),
              button("btnNo", Text::tr("いいえ(&N)"), MessageResult::kNo),
              button("btnCancel", Text::tr("ｷｬﾝｾﾙ"), MessageResult::kCancel)};

  lblCmmnt_->setObjectName(QStringLiteral("lblCmmnt"));
  lblCmmnt_->setTextFormat(Qt::PlainText);
  lblCmmnt_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblCmmnt_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  icon_->setFixedSize(kIconSize, kIconSize);

  unfold_->setObjectName(QStringLiteral("Unfold"));
  unfold_->setText(Text::tr("詳細"));
  unfold_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  unfold_->setCheckable(true);
  unfold_->setAutoRaise(true);
  details_->setObjectName(QStringLiteral("Details"));
  details_->setTextFormat(Qt::PlainText);
  details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  details_->setWordWrap(true);
  details_->setFixedWidth(kDetailsWidth);
  connect(unfold_, &QToolButton::toggled, this, [this](bool unfolded) {
    unfold_->setArrowType(unfolded ? Qt::DownArrow : Qt::RightArrow);
    details_->setVisible(unfolded);
  });

  auto* message = new QHBoxLayout;
  message->setSpacing(18);
  message->addWidget(icon_, 0, Qt::AlignTop);
  message->addWidget(lblCmmnt_, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addStretch();
  for (const Button& each : buttons_) {
    row->addWidget(each.widget);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(22, 20, 22, 16);
  layout->setSpacing(20);
  layout->addLayout(message);
  auto* more = new QVBoxLayout;
  more->setContentsMargins(kIconSize + 18, 0, 0, 0);
  more->setSpacing(4);
  more->addWidget(unfold_);
  more->addWidget(details_);
  layout->addLayout(more);
  layout->addLayout(row);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void OriginalMsgFrm::MsgCall(const MessageCall& call) {
  const MessageEntry& entry = CatalogueEntry(call.id);
  setWindowTitle(MessageTitle(call.id));
  ShowText(MessageText(call));
  ShowButtons(entry.buttons);
  icon_->setPixmap(style()->standardIcon(Pixmap(entry.icon)).pixmap(kIconSize, kIconSize));
  ShowDetails(call.details);
  setModal(true);
  show();
}

void OriginalMsgFrm::reject() {
  result_ = closedByFrame_;
  QDialog::reject();
}

void OriginalMsgFrm::ShowText(const QString& text) {
  QString lines = text;
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  lblCmmnt_->setText(lines);
  lblCmmnt_->setWordWrap(false);
  lblCmmnt_->setMinimumWidth(0);
  if (lblCmmnt_->sizeHint().width() > kTextWidth) {
    lblCmmnt_->setWordWrap(true);
    lblCmmnt_->setMinimumWidth(kTextWidth);
  }
}

void OriginalMsgFrm::ShowButtons(MessageButtons buttons) {
  QPushButton* first = nullptr;
  for (const Button& button : buttons_) {
    const bool shown = Shows(buttons, button.result);
    button.widget->setVisible(shown);
    button.widget->setDefault(false);
    if (shown) {
      // The last one in the row is Cancel where there is one, else No, else OK.
      closedByFrame_ = button.result;
      first = first == nullptr ? button.widget : first;
    }
  }
  if (first != nullptr) {
    first->setDefault(true);
    first->setFocus();
  }
}

// Folded at first: the text above says what happened.
void OriginalMsgFrm::ShowDetails(const QString& details) {
  details_->setText(details);
  unfold_->setVisible(!details.isEmpty());
  unfold_->setChecked(false);
  unfold_->setArrowType(Qt::RightArrow);
  details_->hide();
}

}  // namespace vexa
