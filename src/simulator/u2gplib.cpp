// SPDX-License-Identifier: GPL-3.0-or-later
// The virtual control box as the GP-IB interface library that a program loads by its name. The
// options stand in the environment variable U2GPLIB_OPTIONS, as on a command line.
#include <QProcess>
#include <cstdio>
#include <memory>
#include <mutex>
#include <thread>

#include "simulator/control_box.h"

namespace {

using namespace vexa::simulator;

constexpr int kInitialisationError = 97;
constexpr int kNotSetUp = 1;
constexpr auto kHang = std::chrono::minutes(10);

/// The interface and what is at its other end. Never destroyed: a call may still be out when the
/// program ends.
struct Interface {
  std::mutex mutex;
  QString optionText;
  Options options;
  std::unique_ptr<ControlBox> box;
};

Interface& TheInterface() {
  static auto* const kInterface = new Interface;
  return *kInterface;
}

/// Sets the box up, anew when the options have changed.
bool SetUp(Interface& interface) {
  const QString text = qEnvironmentVariable("U2GPLIB_OPTIONS");
  if (interface.box != nullptr && text == interface.optionText) {
    return true;
  }
  auto read = ReadOptions(QStringList{QStringLiteral("U2GPLIB")} + QProcess::splitCommand(text));
  if (const auto* end = std::get_if<EarlyEnd>(&read)) {
    std::fputs(qUtf8Printable(end->text), stderr);
    return false;
  }
  interface.optionText = text;
  interface.options = std::get<Options>(read);
  interface.box = std::make_unique<ControlBox>(interface.options);
  return true;
}

/// Makes a call of the library: the box's own part, and the fault that strikes at it.
template <typename Part>
int Call(const char* name, Part part) {
  Interface& interface = TheInterface();
  std::unique_lock lock(interface.mutex);
  if (interface.box == nullptr) {
    return kNotSetUp;
  }
  ControlBox& box = *interface.box;
  const auto fault = interface.options.callFaults.Strike(QString::fromLatin1(name));
  CallResult result;
  if (!fault) {
    result = part(box);
  } else if (fault->kind == CallFaultKind::Hang) {
    lock.unlock();
    std::this_thread::sleep_for(kHang);
    return kNotSetUp;
  } else if (fault->kind == CallFaultKind::Number) {
    result.number = fault->number;
  } else {
    if (fault->kind == CallFaultKind::NoRequest) {
      box.LoseRequest();
    } else {
      box.CutTransfer();
    }
    result = part(box);
  }
  const bool paced = interface.options.paced;
  lock.unlock();
  if (paced) {
    std::this_thread::sleep_for(result.takes);
  }
  return result.number;
}

}  // namespace

#define VEXA_EXPORT extern "C" __attribute__((visibility("default")))

VEXA_EXPORT int gp_init(int /*ownAddress*/) {
  {
    const std::lock_guard lock(TheInterface().mutex);
    if (!SetUp(TheInterface())) {
      return kInitialisationError;
    }
  }
  return Call("gp_init", [](ControlBox& box) {
    box.SetUpInterface();
    return CallResult();
  });
}

VEXA_EXPORT int gp_delm(const char* direction, int delimiter) {
  return Call("gp_delm", [=](ControlBox& box) {
    return box.SetDelimiter(QString::fromLatin1(direction), delimiter);
  });
}

VEXA_EXPORT int gp_tmout(int seconds) {
  return Call("gp_tmout", [=](ControlBox& box) { return box.SetTimeOut(seconds); });
}

VEXA_EXPORT int gp_cli() {
  return Call("gp_cli", [](ControlBox& box) { return box.ClearInterface(); });
}

VEXA_EXPORT int gp_ren() {
  return Call("gp_ren", [](ControlBox& box) { return box.EnableRemote(); });
}

VEXA_EXPORT int gp_clr(int address) {
  return Call("gp_clr", [=](ControlBox& box) { return box.Clear(address); });
}

VEXA_EXPORT int gp_trg(int address) {
  return Call("gp_trg", [=](ControlBox& box) { return box.Trigger(address); });
}

VEXA_EXPORT int gp_wsrq(int seconds) {
  return Call("gp_wsrq", [=](ControlBox& box) { return box.AwaitRequest(seconds); });
}

VEXA_EXPORT int gp_rds(int address, int* statusByte) {
  return Call("gp_rds", [=](ControlBox& box) { return box.Poll(address, *statusByte); });
}

VEXA_EXPORT int gp_wrt(int address, const char* text) {
  return Call("gp_wrt",
              [=](ControlBox& box) { return box.Write(address, QString::fromLatin1(text)); });
}

VEXA_EXPORT int gp_tfrin(int address, int length, unsigned char* bytes, int* received) {
  return Call("gp_tfrin", [=](ControlBox& box) {
    return box.Transfer(address, {bytes, static_cast<std::size_t>(length)}, *received);
  });
}
