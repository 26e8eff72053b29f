// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_fault.h"

#include "base/translation.h"

namespace vexa {
namespace {

QString KindText(FileFaultKind kind) {
  switch (kind) {
    case FileFaultKind::kMissing:
      return Text::tr("ﾌｧｲﾙがありません。");
    case FileFaultKind::kNotRegular:
      return Text::tr("通常のﾌｧｲﾙではありません。");
    case FileFaultKind::kUnreadable:
      return Text::tr("ﾌｧｲﾙを読めません。");
    case FileFaultKind::kTooLarge:
      return Text::tr("ﾌｧｲﾙが大きすぎます。");
    case FileFaultKind::kVersion:
      return Text::tr("ﾌｧｲﾙの種類またはﾊﾞｰｼﾞｮﾝが違います。");
    case FileFaultKind::kEnd:
      return Text::tr("ﾌｧｲﾙが途中で終わっています。");
    case FileFaultKind::kFields:
      return Text::tr("項目が足りません。");
    case FileFaultKind::kUnknown:
      return Text::tr("この種類のﾌｧｲﾙにない項目です。");
    case FileFaultKind::kLacking:
      return Text::tr("必要な項目がありません。");
    case FileFaultKind::kValue:
      return Text::tr("値として読めません。");
    case FileFaultKind::kRange:
      return Text::tr("値が範囲外です。");
  }
  return {};
}

}  // namespace

QString FaultText(const FileFault& fault) {
  QString kind = KindText(fault.kind);
  if (fault.line == 0) {
    return kind;
  }
  const QString line = Text::tr("%1行目").arg(fault.line);
  const QString place = fault.field == 0 ? line : line + Text::tr(" %1番目の項目").arg(fault.field);
  return place + QStringLiteral(": ") + kind;
}

}  // namespace vexa
