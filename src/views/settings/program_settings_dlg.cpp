// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/program_settings_dlg.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/file_questions.h"
#include "views/common/theme.h"

namespace vexa {

ProgramSettingsDlg::ProgramSettingsDlg(ProgramPreferences& preferences,
                                       const QString& programDirectory, MessageService& messages,
                                       QWidget* parent)
    : QDialog(parent),
      preferences_(preferences),
      programDirectory_(programDirectory),
      messages_(messages),
      showCie_(new QCheckBox(Text::tr("CIE測色値を並べて表示する"))) {
  setObjectName(QStringLiteral("ProgramSettingsDlg"));
  setWindowTitle(Text::tr("ﾌﾟﾛｸﾞﾗﾑ設定"));
  showCie_->setObjectName(QStringLiteral("ShowCie"));
  showCie_->setChecked(preferences.InForce().showCie);
  showCie_->setToolTip(
      Text::tr("測色値に「CIE」の列を加え、色度図で選べるようにし、印刷にも加えます。"));
  auto* hint =
      new QLabel(Text::tr("他の測色計の値と比較できる値です。装置固有の測色値、規格の判定、\n"
                          "ﾌｧｲﾙの内容は変わりません。440 nm より下は外挿した値を用います。"));
  hint->setObjectName(QStringLiteral("ShowCieHint"));
  QPalette muted = hint->palette();
  muted.setColor(QPalette::WindowText, theme::kMutedText);
  hint->setPalette(muted);
  auto* group = new QGroupBox(Text::tr("測色値"));
  auto* body = new QVBoxLayout(group);
  body->addWidget(showCie_);
  body->addWidget(hint);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 16, 18, 16);
  layout->setSpacing(16);
  layout->addWidget(group);
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgramSettingsDlg::accept() {
  const WriteResult written = preferences_.Change(
      [this](ProgramSettings& settings) { settings.showCie = showCie_->isChecked(); });
  // In force it is all the same.
  (void)TellWritten(written, ProgramSettingsPath(programDirectory_), messages_);
  QDialog::accept();
}

}  // namespace vexa
