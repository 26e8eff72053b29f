// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/gpib_error.h"

namespace vexa {
namespace {

QString GpibErrorText(int number) {
  switch (number) {
    case gpib_error::kNoServiceRequest:
      return QStringLiteral("GP-IB通信でSRQｴﾗｰ発生しました。");
    case 1:
      return QStringLiteral("ｺﾝﾄﾛｰﾗｴﾗｰ");
    case gpib_error::kFormat:
      return QStringLiteral("GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。");
    case gpib_error::kTimeOut:
      return QStringLiteral("GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。");
    case 61:
      return QStringLiteral("通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。");
    case 62:
      return QStringLiteral("GP-IB通信でｵﾊﾞｰﾌﾛｰ･ｴﾗｰ発生しました。");
    case gpib_error::kControlBox:
      return QStringLiteral("コントロールボックスの初期化でｴﾗｰ発生しました。");
    default:
      return QStringLiteral("GP-IB通信で予期しないｴﾗｰ発生しました。");
  }
}

}  // namespace

QString GpibErrorMessage(int number, const QString& step, int code) {
  return QStringLiteral("%1(%2 %3)").arg(GpibErrorText(number), step).arg(code);
}

}  // namespace vexa
