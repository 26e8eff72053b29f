// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/settings_list.h"

#include "base/number_text.h"
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
  return {label,
          {Chosen(setting.kind, {QStringLiteral("固定値"), QStringLiteral("ﾊﾙﾄﾏﾝ分散式"),
                                 QStringLiteral("ｾﾙﾏｲﾔ分散式"), QStringLiteral("ﾌｧｲﾙ"),
                                 QStringLiteral("基板反射率")})}};
}

SettingsRow FixedValueRow(const QString& label, const DispersionSetting& setting,
                          const QString& unit) {
  return {label, {FormatNumber(setting.fixedValue, u"0.0000")}, unit};
}

SettingsRow ParametersRow(const DispersionSetting& setting) {
  SettingsRow row{QStringLiteral("分散式ﾊﾟﾗﾒｰﾀ"), {}};
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
  return {{QStringLiteral("波長"),
           {{QStringLiteral("ﾌﾙｽｹｰﾙ"), {OnOff(display.fullScale)}},
            {QStringLiteral("最短波長"), {Real(display.shortestNm)}, kNm},
            {QStringLiteral("最長波長"), {Real(display.longestNm)}, kNm},
            {QStringLiteral("目盛り間隔"), {Real(display.wavelengthTickNm)}, kNm}}},
          {QStringLiteral("反射率"),
           {{QStringLiteral("自動ｽｹｰﾘﾝｸﾞ"), {OnOff(display.autoScale)}},
            {QStringLiteral("最大値"), {Real(display.maximumPercent)}, kPercent},
            {QStringLiteral("最小値"), {Real(display.minimumPercent)}, kPercent},
            {QStringLiteral("自動目盛り"), {OnOff(display.autoTicks)}},
            {QStringLiteral("目盛り間隔"), {Real(display.tickPercent)}, kPercent}}},
          {QStringLiteral("ﾃｷｽﾄ表示"),
           {{QStringLiteral("表示ｽﾃｯﾌﾟ"), {QString::number(display.textStepNm)}, kNm}}},
          {QStringLiteral("色度図"),
           {{QStringLiteral("表示設定"), {Chosen(display.xyMode ? 0 : 1, DiagramTexts())}},
            {QStringLiteral("標準光源設定"), {IlluminantText(colour.illuminant)}},
            {QStringLiteral("視野設定"), {ObserverText(colour.observer2Deg)}},
            {QStringLiteral("L*a*bﾒﾓﾘ"), {Chosen(display.labScale, LabScaleTexts())}}}}};
}

SettingsGroup ReferenceGroup(const DispersionSetting& reference) {
  const QString caption = QStringLiteral("ﾘﾌｧﾚﾝｽ設定");
  return {caption,
          {SourceRow(caption, reference),
           FixedValueRow(QStringLiteral("固定ﾘﾌｧﾚﾝｽ値"), reference, kPercent),
           ParametersRow(reference),
           {QStringLiteral("ﾘﾌｧﾚﾝｽﾌｧｲﾙ名"), {reference.indexFileName}}}};
}

SettingsGroup ThicknessGroup(const ThicknessSettings& thickness, const ColourSettings& colour) {
  const DispersionSetting& coat = thickness.coat;
  return {
      QStringLiteral("膜厚測定設定"),
      {{QStringLiteral("膜厚測定"), {OnOff(thickness.enabled)}},
       {QStringLiteral("測定タイプ"),
        {Chosen(thickness.type,
                {QStringLiteral("typeA"), QStringLiteral("typeB"), QStringLiteral("typeC")}),
         Chosen(thickness.kind, {QStringLiteral("物理膜厚(n)"), QStringLiteral("光学膜厚(nd)")})}},
       SourceRow(QStringLiteral("屈折率設定"), coat),
       FixedValueRow(QStringLiteral("固定値"), coat, QStringLiteral("[n]")),
       ParametersRow(coat),
       {QStringLiteral("屈折率ﾌｧｲﾙ名"), {coat.indexFileName}},
       {QStringLiteral("基板ﾌｧｲﾙ名"), {coat.dataFileName}},
       {QStringLiteral("平均最小波長"), {QString::number(colour.avgFrom)}, kNm},
       {QStringLiteral("平均最大波長"), {QString::number(colour.avgTo)}, kNm}}};
}

}  // namespace

std::vector<SettingsGroup> SettingsList(const VEXATYPE& state) {
  std::vector<SettingsGroup> groups{
      {QStringLiteral("環境ﾌｧｲﾙ名"), {{{}, {state.envFileName}}}},
      {QStringLiteral("理論反射率"),
       {{QStringLiteral("ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示"),
         {state.display.showReferenceData ? QStringLiteral("表示") : QStringLiteral("非表示")}}}},
      {QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ設定"),
       {{QStringLiteral("ｻﾝﾌﾟﾘﾝｸﾞ時間"),
         {QString::number(state.instrument.samplingTimeMs)},
         QStringLiteral("[ms]")}}}};
  for (SettingsGroup& group : DisplayGroups(state.display, state.colour)) {
    groups.push_back(std::move(group));
  }
  groups.push_back(ReferenceGroup(state.referenceSetting));
  groups.push_back(
      {QStringLiteral("規格"), {{QStringLiteral("規格ﾌｧｲﾙ"), {state.standardFileName}}}});
  groups.push_back(ThicknessGroup(state.thickness, state.colour));
  return groups;
}

}  // namespace vexa
