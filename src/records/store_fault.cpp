// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/store_fault.h"

#include "base/translation.h"

namespace vexa {

QString StoreFaultText(StoreFault fault) {
  switch (fault) {
    case StoreFault::kNone:
      return {};
    case StoreFault::kFull:
      return Text::tr("ﾃﾞｨｽｸに空きがありません。");
    case StoreFault::kLocked:
      return Text::tr("ほかのﾌﾟﾛｸﾞﾗﾑが使用中です。");
    case StoreFault::kReadOnly:
      return Text::tr("書き込みが許可されていません。");
    case StoreFault::kDamaged:
      return Text::tr("壊れているか、記録ではありません。");
    case StoreFault::kMissing:
      return Text::tr("ありません。");
    case StoreFault::kForeign:
      return Text::tr("ほかの種類か、新しいﾊﾞｰｼﾞｮﾝの記録です。");
    case StoreFault::kRefused:
      return Text::tr("記録の決まりに反します。");
    case StoreFault::kUnreachable:
      return Text::tr("ｻｰﾊﾞに接続できません。");
    case StoreFault::kOtherStore:
      return Text::tr("この測定機の名前で、別の記録があります。");
    case StoreFault::kFailed:
      return Text::tr("ｴﾗｰが発生しました。");
  }
  return {};
}

}  // namespace vexa
