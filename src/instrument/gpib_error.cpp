// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/gpib_error.h"

namespace vexa {
namespace {

Message GpibErrorIdentity(int number) {
  switch (number) {
    case gpib_error::kNoServiceRequest:
      return Message::kGpibServiceRequest;
    case 1:
      return Message::kGpibController;
    case gpib_error::kFormat:
      return Message::kGpibFormat;
    case gpib_error::kTimeOut:
      return Message::kGpibTimeOut;
    case 61:
      return Message::kGpibDevice;
    case 62:
      return Message::kGpibOverflow;
    case gpib_error::kControlBox:
      return Message::kGpibControlBox;
    default:
      return Message::kGpibUnexpected;
  }
}

}  // namespace

MessageCall GpibErrorMessage(int number, const QString& step, int code) {
  return {GpibErrorIdentity(number), {step, QString::number(code)}};
}

}  // namespace vexa
