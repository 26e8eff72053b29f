// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/settings_list.h"

#include "base/number_text.h"
#include "base/translation.h"
#include "colour/colour_tables.h"
#include "views/common/colour_texts.h"

namespace vexa {
namespace {

const QString kNm = QStringLiteral("[nm]");
const QString kPercent = QStringLiteral("[%]");

QString Real(double value) {
  return FormatNumber(value, u"##0.0###");
}

QString OnOff(Flag on) {
  return on ? QStringLiteral("On") : QStringLiteral("Off");
}

QString Chosen(int number, const QStringList& texts) {
  return texts.value(number, QStringLiteral("-"));
}

SettingsRow SourceRow(const QString& label, const DispersionSetting& setting) {
  return {
      label,
      {Chosen(setting.kind, {Text::tr("固定値"), Text::tr("ﾊﾙﾄﾏﾝ分散式"), Text::tr("ｾﾙﾏｲﾔ分散式"),
                             Text::tr("ﾌｧｲﾙ"), Text::tr("基板反射率")})}};
}

SettingsRow FixedValueRow(const QString& label, const DispersionSetting& setting,
                          const QString& unit) {
  return {label, {FormatNumber(setting.fixedValue, u"0.0000")}, unit};
}

SettingsRow ParametersRow(const DispersionSetting& setting) {
  SettingsRow row{Text::tr("分散式ﾊﾟﾗﾒｰﾀ"), {}};
  const auto fill = [&row](const std::array<double, 6>& coefficients, const QStringList& names) {
    for (const double coefficient : coefficients) {
      row.values << FormatNumber(coefficient, u"0.0000000E+00");
    }
    row.names = names;
  };
  switch (setting.kind) {
    case DispersionKind::kSchott:
      fill(setting.schott, {QStringLiteral("A0"), QStringLiteral("A1"), QStringLiteral("A2"),
                            QStringLiteral("A3"), QStringLiteral("A4"), QStringLiteral("A5")});
      break;
    case DispersionKind::kSellmeier:
      fill(setting.sellmeier, {QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"),
                               QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3")});
      break;
    default:
      row.values << QString();
      break;
  }
  return row;
}

std::vector<SettingsGroup> DisplayGroups(const DisplaySettings& display,
                                         const ColourSettings& colour) {
  return {
      {Text::tr("波長"),
       {{Text::tr("ﾌﾙｽｹｰﾙ"), {OnOff(display.fullScale)}},
        {Text::tr("最短波長"), {Real(display.shortestNm)}, kNm},
        {Text::tr("最長波長"), {Real(display.longestNm)}, kNm},
        {Text::tr("目盛り間隔"), {Real(display.wavelengthTickNm)}, kNm}}},
      {Text::tr("反射率"),
       {{Text::tr("自動ｽｹｰﾘﾝｸﾞ"), {OnOff(display.autoScale)}},
        {Text::tr("最大値"), {Real(display.maximumPercent)}, kPercent},
        {Text::tr("最小値"), {Real(display.minimumPercent)}, kPercent},
        {Text::tr("自動目盛り"), {OnOff(display.autoTicks)}},
        {Text::tr("目盛り間隔"), {Real(display.tickPercent)}, kPercent}}},
      {Text::tr("ﾃｷｽﾄ表示"), {{Text::tr("表示ｽﾃｯﾌﾟ"), {QString::number(display.textStepNm)}, kNm}}},
      {Text::tr("色度図"),
       {{Text::tr("表示設定"), {Chosen(display.xyMode ? 0 : 1, DiagramTexts())}},
        {Text::tr("標準光源設定"), {IlluminantText(colour.illuminant)}},
        {Text::tr("視野設定"), {ObserverText(colour.observer2Deg)}},
        {Text::tr("L*a*bﾒﾓﾘ"), {Chosen(display.labScale, LabScaleTexts())}}}}};
}

SettingsGroup ReferenceGroup(const DispersionSetting& reference) {
  const QString caption = Text::tr("ﾘﾌｧﾚﾝｽ設定");
  return {caption,
          {SourceRow(caption, reference),
           FixedValueRow(Text::tr("固定ﾘﾌｧﾚﾝｽ値"), reference, kPercent),
           ParametersRow(reference),
           {Text::tr("ﾘﾌｧﾚﾝｽﾌｧｲﾙ名"), {reference.indexFileName}}}};
}

SettingsGroup ThicknessGroup(const ThicknessSettings& thickness, const ColourSettings& colour) {
  const DispersionSetting& coat = thickness.coat;
  return {Text::tr("膜厚測定設定"),
          {{Text::tr("膜厚測定"), {OnOff(thickness.enabled)}},
           {Text::tr("測定タイプ"),
            {Chosen(thickness.type,
                    {QStringLiteral("typeA"), QStringLiteral("typeB"), QStringLiteral("typeC")}),
             Chosen(thickness.kind, {Text::tr("物理膜厚(n)"), Text::tr("光学膜厚(nd)")})}},
           SourceRow(Text::tr("屈折率設定"), coat),
           FixedValueRow(Text::tr("固定値"), coat, QStringLiteral("[n]")),
           ParametersRow(coat),
           {Text::tr("屈折率ﾌｧｲﾙ名"), {coat.indexFileName}},
           {Text::tr("基板ﾌｧｲﾙ名"), {coat.dataFileName}},
           {Text::tr("平均最小波長"), {QString::number(colour.avgFrom)}, kNm},
           {Text::tr("平均最大波長"), {QString::number(colour.avgTo)}, kNm}}};
}

}  // namespace

std::vector<SettingsGroup> SettingsList(const VEXATYPE& state) {
  std::vector<SettingsGroup> groups{
      {Text::tr("環境ﾌｧｲﾙ名"), {{{}, {state.envFileName}}}},
      {Text::tr("理論反射率"),
       {{Text::tr("ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示"),
         {state.display.showReferenceData ? Text::tr("表示") : Text::tr("非表示")}}}},
      {Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ設定"),
       {{Text::tr("ｻﾝﾌﾟﾘﾝｸﾞ時間"),
         {QString::number(state.instrument.samplingTimeMs)},
         QStringLiteral("[ms]")}}}};
  for (SettingsGroup& group : DisplayGroups(state.display, state.colour)) {
    groups.push_back(std::move(group));
  }
  groups.push_back(ReferenceGroup(state.referenceSetting));
  groups.push_back({Text::tr("規格"), {{Text::tr("規格ﾌｧｲﾙ"), {state.standardFileName}}}});
  groups.push_back(ThicknessGroup(state.thickness, state.colour));
  return groups;
}

}  // namespace vexa
