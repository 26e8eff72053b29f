// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/postgres_options.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

namespace vexa {
namespace {

// A server that is away must be noticed; what the connection itself says comes later and wins.
const QString kPatience = QStringLiteral("connect_timeout=5 tcp_user_timeout=10000 ");

QString Option(const QString& key, QString value) {
  value.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
  return key + QStringLiteral("='") + value + QStringLiteral("' ");
}

QString Decoded(const QString& text) {
  return QUrl::fromPercentEncoding(text.toUtf8());
}

// "host:port,host:port"; an address of IPv6 stands in brackets.
QString HostOptions(const QString& hostList) {
  static const QRegularExpression kHost(QStringLiteral(R"(^(?:\[(.*)\]|([^:]*))(?::(\d*))?$)"));
  QStringList hosts;
  QStringList ports;
  for (const QString& part : hostList.split(u',')) {
    const QRegularExpressionMatch match = kHost.match(part);
    hosts << Decoded(match.captured(1) + match.captured(2));
    ports << match.captured(3);
  }
  QString options;
  if (!hosts.join(QString()).isEmpty()) {
    options += Option(QStringLiteral("host"), hosts.join(u','));
  }
  if (!ports.join(QString()).isEmpty()) {
    options += Option(QStringLiteral("port"), ports.join(u','));
  }
  return options;
}

// postgresql://[user@][hosts][/name][?key=value&...] (PostgreSQL, 34.1.1.2 Connection URIs)
std::optional<QString> UriOptions(const QString& uri) {
  static const QRegularExpression kUri(
      QStringLiteral(R"(^postgres(?:ql)?://(?:([^@/?]*)@)?([^/?]*)(?:/([^?]*))?(?:\?(.*))?$)"));
  const QRegularExpressionMatch match = kUri.match(uri);
  const QString user = match.captured(1);
  if (!match.hasMatch() || user.contains(u':')) {
    return std::nullopt;
  }
  QString options = HostOptions(match.captured(2));
  if (!user.isEmpty()) {
    options += Option(QStringLiteral("user"), Decoded(user));
  }
  if (!match.captured(3).isEmpty()) {
    options += Option(QStringLiteral("dbname"), Decoded(match.captured(3)));
  }
  for (const QString& pair : match.captured(4).split(u'&', Qt::SkipEmptyParts)) {
    const qsizetype equals = pair.indexOf(u'=');
    if (equals <= 0) {
      return std::nullopt;
    }
    options += Option(Decoded(pair.first(equals)), Decoded(pair.sliced(equals + 1)));
  }
  return options;
}

}  // namespace

std::optional<QString> PostgresOptions(const QString& connection) {
  static const QRegularExpression kPassword(QStringLiteral(R"((^|\s)password\s*=)"));
  const QString text = connection.trimmed();
  std::optional<QString> options;
  if (text.startsWith(QLatin1String("postgresql://")) ||
      text.startsWith(QLatin1String("postgres://"))) {
    options = UriOptions(text);
  } else if (text.contains(u'=')) {
    options = text;
  } else if (!text.isEmpty()) {
    options = Option(QStringLiteral("service"), text);
  }
  // The driver takes a semicolon for a blank.
  if (!options || options->contains(u';') || kPassword.match(*options).hasMatch()) {
    return std::nullopt;
  }
  return kPatience + *options;
}

}  // namespace vexa
