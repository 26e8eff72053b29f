// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <memory>

#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "support/scripted_peer.h"
#include "support/window_test.h"

namespace vexa::test {

/// The main window and, at the other end of the serial line, a controller.
class MainWindowTest : public WindowTest {
 protected:
  QWidget& Window() override { return *window; }

  void Create() {
    window.reset();
    window = std::make_unique<VEXA>(
        Services{messages, dialogs, [this] { return now; },
                 [this](const VEXATYPE&) {
                   return std::make_unique<frmComH8Ctrl>(
                       [this](int port) { return SerialPortPath(peer.Directory(), port); },
                       ScriptedPeer::kReplyTimeoutMs);
                 }},
        peer.Directory());
    window->show();
  }

  /// As the program starts. A window that was not closed before has crashed.
  void Start() {
    Create();
    window->Load();
    window->OfferSession();
  }

  /// Presses a button while every pixel has the value.
  void Measure(const char* button, int pixels) {
    peer.SetLines(FlatLines(1, pixels));
    Press(button);
  }

  QString Path(const char* name) const { return peer.files.Path(name); }

  QDateTime now{{2026, 3, 9}, {7, 5, 3}};
  ScriptedPeer peer;
  std::unique_ptr<VEXA> window;
};

}  // namespace vexa::test
