// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "views/common/file_dialogs.h"

namespace vexa::test {

/// File dialogs that answer with what a test prepared; nothing prepared is Cancel.
class PreparedFiles : public FileDialogs {
 public:
  std::optional<QString> AskOpen(const QString& /*title*/, const QString& asked) override {
    filter = asked.toStdString();
    return open;
  }
  std::optional<SaveChoice> AskSave(const QString& /*title*/, const QString& asked,
                                    const QString& name) override {
    filter = asked.toStdString();
    proposed = name.toStdString();
    return save;
  }

  std::optional<QString> open;
  std::optional<SaveChoice> save;
  std::string filter;    ///< of the dialog asked last
  std::string proposed;  ///< by it
};

}  // namespace vexa::test
