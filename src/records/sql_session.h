// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include "records/store_fault.h"

namespace vexa {

/// The fault that an error of SQLite or of PostgreSQL means.
[[nodiscard]] StoreFault FaultOf(const QSqlError& error);

/// A connection of its own to one database, for one thread.
class SqlSession {
 public:
  SqlSession() = default;
  ~SqlSession() { Close(); }
  SqlSession(const SqlSession&) = delete;
  SqlSession& operator=(const SqlSession&) = delete;

  /// Closes what was open before. `options` are the driver's.
  [[nodiscard]] StoreFault Open(const QString& driver, const QString& database,
                                const QString& options);
  void Close();
  [[nodiscard]] bool IsOpen() const { return !name_.isEmpty(); }

  /// Runs one statement with its values bound in order.
  [[nodiscard]] StoreFault Run(const QString& sql, const QVariantList& values = {}) const;

  /// The same for a statement that gives rows; next() of the value steps to the first.
  [[nodiscard]] Answer<QSqlQuery> Select(const QString& sql, const QVariantList& values = {}) const;

  /// The first column of the only row; no value when there is none.
  [[nodiscard]] Answer<QVariant> Value(const QString& sql, const QVariantList& values = {}) const;

 private:
  QString name_;
};

/// A transaction that is taken back unless it was committed.
class Transaction {
 public:
  /// `begin` is the statement that begins it.
  Transaction(const SqlSession& session, const QString& begin)
      : session_(session), fault_(session.Run(begin)) {}
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  [[nodiscard]] StoreFault Fault() const { return fault_; }
  [[nodiscard]] StoreFault Commit();

 private:
  const SqlSession& session_;
  StoreFault fault_;
  bool committed_ = false;
};

}  // namespace vexa
