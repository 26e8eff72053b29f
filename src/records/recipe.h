// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <variant>

#include "base/file_fault.h"
#include "base/message.h"
#include "measurement/vexatype.h"
#include "standards/cie_limits.h"

namespace vexa {

/// How the lenses of a lot are measured, as one JSON file tells it; docs/files.md describes it.
struct Recipe {
  static constexpr int kMostRepeats = 10;
  static constexpr int kLongestAgeMinutes = 10080;  ///< a week

  QString name;         ///< that of the file where it gives none
  QString path;         ///< of the file, whole
  QString environment;  ///< whole paths of files; empty: what is in force stays
  QString standard;
  QString filmStack;
  int repeats = 1;  ///< measurements of each lens, 1..kMostRepeats; it passes when all of them do
  /// After this time a frame has to be taken again; 0: it never has.
  int backgroundAgeMinutes = kFrameAgeLimitMinutes;
  int referenceAgeMinutes = kFrameAgeLimitMinutes;
  CieLimits cie;  ///< judged beside the standard
};

/// What is wrong with a recipe, and with which of its entries.
struct RecipeFault {
  FileFault file;  ///< kVersion: no recipe
  QString entry;   ///< as "cie.limits.L"; empty where it is the file as a whole
};

/// Reads a recipe. Files are named as seen from the recipe's directory. An entry that is unknown is
/// a fault, so that a misspelt one is not passed over.
[[nodiscard]] std::variant<Recipe, RecipeFault> ReadRecipe(const QString& path);

/// Where it is and what it is, in words: "repeats: ...".
[[nodiscard]] QString RecipeFaultText(const RecipeFault& fault);

/// What came of putting a recipe in force.
struct [[nodiscard]] RecipeInForce {
  bool complete = false;  ///< every file that it names could be read
  QList<MessageCall> notices;
};

/// Puts environment and standard of a recipe in force. Unless all could be read, the settings stay
/// as they were.
RecipeInForce ApplyRecipe(const Recipe& recipe, Settings& settings);

}  // namespace vexa
