// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_menu.h"

#include "base/translation.h"

namespace vexa {
namespace {

QAction* Add(QMenu* menu, const QString& caption, const QKeySequence& shortcut = {}) {
  QAction* action = menu->addAction(caption);
  action->setShortcut(shortcut);
  action->setEnabled(false);
  return action;
}

QActionGroup* AddViews(QMenu* menu) {
  auto* views = new QActionGroup(menu);
  for (const QString& caption :
       {QStringLiteral("反射率ｸﾞﾗﾌ"), QStringLiteral("反射率ﾃｷｽﾄ"), QStringLiteral("屈折率ｸﾞﾗﾌ"),
        QStringLiteral("光量ｸﾞﾗﾌ"), QStringLiteral("光量ﾃｷｽﾄ"), QStringLiteral("色度図"),
        QStringLiteral("1/λ")}) {
    QAction* action = Add(menu, caption);
    action->setCheckable(true);
    action->setData(views->actions().size());
    views->addAction(action);
  }
  views->actions().constFirst()->setChecked(true);
  return views;
}

}  // namespace

MenuCommands BuildMenu(QMenuBar& bar) {
  MenuCommands commands{};

  QMenu* file = bar.addMenu(QStringLiteral("ﾌｧｲﾙ(&F)"));
  commands.openFile = Add(file, QStringLiteral("ﾌｧｲﾙを開く(&O)"), QKeySequence::Open);
  commands.saveFileAs = Add(file, QStringLiteral("ﾌｧｲﾙの名前を付けて保存(&A)"), QKeySequence::Save);
  file->addSeparator();
  commands.openEnvironment = Add(file, QStringLiteral("環境ﾌｧｲﾙを開く(&W)"));
  commands.saveEnvironment = Add(file, QStringLiteral("環境ﾌｧｲﾙの上書き保存(&S)"));
  commands.saveEnvironmentAs = Add(file, QStringLiteral("環境ﾌｧｲﾙの名前を付けて保存(&L)"));
  file->addSeparator();
  commands.printSettings = Add(file, QStringLiteral("印刷設定(&U)"));
  commands.print = Add(file, QStringLiteral("印刷(&P)"), QKeySequence::Print);
  file->addSeparator();
  commands.quit = Add(file, QStringLiteral("ﾌﾟﾛｸﾞﾗﾑの終了(&X)"), QKeySequence::Quit);

  QMenu* view = bar.addMenu(QStringLiteral("表示(&V)"));
  commands.views = AddViews(view);
  view->addSeparator();
  commands.displaySettings = Add(view, QStringLiteral("ｸﾞﾗﾌ設定(&G)"));
  commands.settingsList = Add(view, QStringLiteral("設定一覧表示(&C)"));
  commands.sampleInformation = Add(view, QStringLiteral("付加ﾃﾞｰﾀ"));

  QMenu* standards = bar.addMenu(QStringLiteral("規格(&K)"));
  commands.standards = Add(standards, QStringLiteral("規格設定(&S)"));

  QMenu* analysis = bar.addMenu(QStringLiteral("解析(&T)"));
  commands.thicknessSettings = Add(analysis, QStringLiteral("膜厚測定設定(&T)"));
  commands.wavelengthList = Add(analysis, QStringLiteral("膜厚波長ﾘｽﾄ(&L)"));
  commands.thicknessGraph = Add(analysis, QStringLiteral("膜厚ｸﾞﾗﾌ(&G)"));
  commands.colourDifference = Add(analysis, QStringLiteral("色差測定"));

  QMenu* system = bar.addMenu(QStringLiteral("ｼｽﾃﾑ設定(&S)"));
  commands.referenceSettings = Add(system, QStringLiteral("ﾘﾌｧﾚﾝｽ設定(&R)"));
  commands.samplingSettings = Add(system, QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ設定(&S)"));
  commands.calibration = Add(system, QStringLiteral("ｷｬﾘﾌﾞﾚｰｼｮﾝ(&C)"));
  system->addSeparator();
  commands.reconnect = Add(system, Text::tr("再接続(&N)"));

  QMenu* help = bar.addMenu(QStringLiteral("ﾍﾙﾌﾟ(&H)"));
  commands.version = Add(help, QStringLiteral("ﾊﾞｰｼﾞｮﾝ(&A)"));
  return commands;
}

}  // namespace vexa
