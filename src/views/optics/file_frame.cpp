// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/optics/file_frame.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "base/translation.h"

namespace vexa {

FileFrame::FileFrame(const QString& caption, const QString& name, const QString& path,
                     QWidget* parent)
    : QGroupBox(caption, parent), path_(new QLineEdit) {
  path_->setObjectName(name + QStringLiteral("FileName"));
  path_->setReadOnly(true);
  auto* load = new QPushButton(QStringLiteral("Load"));
  load->setObjectName(name + QStringLiteral("Load"));
  load->setAutoDefault(false);
  connect(load, &QPushButton::clicked, this, &FileFrame::LoadRequested);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(16, 12, 16, 12);
  row->setSpacing(12);
  row->addWidget(new QLabel(Text::tr("ﾌｧｲﾙ名")));
  row->addWidget(path_, 1);
  row->addWidget(load);
  SetPath(path);
}

void FileFrame::SetPath(const QString& path) {
  path_->setText(path);
  path_->setToolTip(path);
}

}  // namespace vexa
