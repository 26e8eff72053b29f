// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_menu.h"

#include <utility>

#include "base/language.h"
#include "base/translation.h"
#include "views/graph/view_table.h"

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
  for (const ViewEntry& entry : kViews) {
    QAction* action = Add(menu, Text::tr(entry.caption));
    action->setCheckable(true);
    action->setData(static_cast<int>(entry.view));
    views->addAction(action);
  }
  views->actions().constFirst()->setChecked(true);
  return views;
}

// Each language has its own name for itself.
QActionGroup* AddLanguages(QMenu* menu) {
  auto* languages = new QActionGroup(menu);
  for (const auto& [language, name] : {std::pair{Language::kJapanese, QStringLiteral("日本語")},
                                       std::pair{Language::kEnglish, QStringLiteral("English")}}) {
    QAction* action = Add(menu, name);
    action->setCheckable(true);
    action->setData(LanguageCode(language));
    languages->addAction(action);
  }
  return languages;
}

}  // namespace

MenuCommands BuildMenu(QMenuBar& bar) {
  MenuCommands commands{};

  QMenu* file = bar.addMenu(Text::tr("ﾌｧｲﾙ(&F)"));
  commands.openFile = Add(file, Text::tr("ﾌｧｲﾙを開く(&O)"), QKeySequence::Open);
  commands.recentFiles = file->addMenu(Text::tr("最近使ったﾌｧｲﾙ(&R)"));
  commands.recentFiles->setEnabled(false);
  commands.saveFileAs = Add(file, Text::tr("ﾌｧｲﾙの名前を付けて保存(&A)"), QKeySequence::Save);
  file->addSeparator();
  commands.openEnvironment = Add(file, Text::tr("環境ﾌｧｲﾙを開く(&W)"));
  commands.saveEnvironment = Add(file, Text::tr("環境ﾌｧｲﾙの上書き保存(&S)"));
  commands.saveEnvironmentAs = Add(file, Text::tr("環境ﾌｧｲﾙの名前を付けて保存(&L)"));
  file->addSeparator();
  commands.lotMeasurement = Add(file, Text::tr("ロット測定(&M)"));
  commands.records = Add(file, Text::tr("記録(&D)"));
  file->addSeparator();
  commands.printSettings = Add(file, Text::tr("印刷設定(&U)"));
  commands.print = Add(file, Text::tr("印刷(&P)"), QKeySequence::Print);
  file->addSeparator();
  commands.quit = Add(file, Text::tr("ﾌﾟﾛｸﾞﾗﾑの終了(&X)"), QKeySequence::Quit);

  QMenu* view = bar.addMenu(Text::tr("表示(&V)"));
  commands.views = AddViews(view);
  view->addSeparator();
  commands.displaySettings = Add(view, Text::tr("ｸﾞﾗﾌ設定(&G)"));
  commands.settingsList = Add(view, Text::tr("設定一覧表示(&C)"));
  commands.sampleInformation = Add(view, Text::tr("付加ﾃﾞｰﾀ"));

  QMenu* standards = bar.addMenu(Text::tr("規格(&K)"));
  commands.standards = Add(standards, Text::tr("規格設定(&S)"));

  QMenu* analysis = bar.addMenu(Text::tr("解析(&T)"));
  commands.thicknessSettings = Add(analysis, Text::tr("膜厚測定設定(&T)"));
  commands.wavelengthList = Add(analysis, Text::tr("膜厚波長ﾘｽﾄ(&L)"));
  commands.thicknessGraph = Add(analysis, Text::tr("膜厚ｸﾞﾗﾌ(&G)"));
  commands.filmFit = Add(analysis, Text::tr("膜厚ﾌｨｯﾄ(&F)"));
  commands.colourDifference = Add(analysis, Text::tr("色差測定"));
  commands.slotStatistics = Add(analysis, Text::tr("ｽﾛｯﾄの統計(&S)"));
  analysis->addSeparator();
  commands.dailyCheck = Add(analysis, Text::tr("日常点検(&D)"));
  commands.controlChart = Add(analysis, Text::tr("管理図(&C)"));
  commands.gaugeStudy = Add(analysis, Text::tr("測定システム解析(&M)"));

  QMenu* system = bar.addMenu(Text::tr("ｼｽﾃﾑ設定(&S)"));
  commands.referenceSettings = Add(system, Text::tr("ﾘﾌｧﾚﾝｽ設定(&R)"));
  commands.samplingSettings = Add(system, Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ設定(&S)"));
  commands.calibration = Add(system, Text::tr("ｷｬﾘﾌﾞﾚｰｼｮﾝ(&C)"));
  commands.programSettings = Add(system, Text::tr("ﾌﾟﾛｸﾞﾗﾑ設定(&P)"));
  system->addSeparator();
  commands.reconnect = Add(system, Text::tr("再接続(&N)"));

  QMenu* help = bar.addMenu(Text::tr("ﾍﾙﾌﾟ(&H)"));
  commands.languages = AddLanguages(help->addMenu(QStringLiteral("Language(&L)")));
  commands.version = Add(help, Text::tr("ﾊﾞｰｼﾞｮﾝ(&A)"));
  return commands;
}

}  // namespace vexa
