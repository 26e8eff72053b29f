// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "views/common/file_dialogs.h"

namespace vexa::test {

/// File dialogs that answer with what a test prepared; nothing prepared is Cancel.
class PreparedFiles : public FileDialogs {
 public:
  QCoro::Task<std::optional<QString>> AskOpen(QString /*title*/, QString asked) override {
    filter = asked.toStdString();
    const std::optional<QString> answer = open;  // a task would take the member itself along
    co_return answer;
  }
  QCoro::Task<std::optional<SaveChoice>> AskSave(QString /*title*/, QString asked,
                                                 QString name) override {
    filter = asked.toStdString();
    proposed = name.toStdString();
    const std::optional<SaveChoice> answer = save;
    co_return answer;
  }

  std::optional<QString> open;
  std::optional<SaveChoice> save;
  std::string filter;    ///< of the dialog asked last
  std::string proposed;  ///< by it
};

}  // namespace vexa::test
