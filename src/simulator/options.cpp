// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/options.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;

constexpr int kMostMs = 3'600'000;

/// A value that an option cannot have.
struct WrongValue {
  QString option;
  QString value;
  QString allowed;
};

void DeclareOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(u"The virtual VEXA-KT instrument on a pseudo-terminal."_s);
  parser.addOptions({
      {u"dir"_s, u"Directory of the link (the current one)."_s, u"DIR"_s, u"."_s},
      {u"port"_s, u"Number of the port, 1..255; 5 makes com5."_s, u"N"_s, u"5"_s},
      {u"pace"_s, u"real: as slow as the instrument; none: at once."_s, u"real|none"_s, u"real"_s},
      {u"stage"_s, u"Sample on the stage; auto: all in turn."_s, u"NAME|auto"_s, u"auto"_s},
      {u"seed"_s, u"Seed of the noise."_s, u"N"_s, u"1"_s},
      {u"noise"_s, u"Shot noise and read noise."_s, u"on|off"_s, u"on"_s},
      {u"fault"_s, u"A fault, striking once, from the numbered command on. Repeatable."_s,
       u"NAME[@EXCHANGE]"_s},
      {u"call-fault"_s, u"A fault of the library U2GPLIB, at the numbered call. Repeatable."_s,
       u"CALL=NUMBER|none|short|hang[@N]"_s},
      {u"late"_s, u"Delay of late-bytes in milliseconds."_s, u"MS"_s, u"1500"_s},
      {u"replug"_s, u"Milliseconds after which unplug ends; 0: never."_s, u"MS"_s, u"0"_s},
      {u"list"_s, u"List the samples, the faults and the wear."_s},
  });
  for (const WearInfo& info : AllWear()) {
    parser.addOption(
        {QString(info.name), u"Wear: %1."_s.arg(QString(info.description)), u"AMOUNT"_s, u"0"_s});
  }
  parser.addHelpOption();
  parser.addVersionOption();
}

template <typename Table>
QString ListTable(const QString& title, const Table& table) {
  QString text = title + u'\n';
  for (const auto& info : table) {
    text += u"  %1  %2\n"_s.arg(QString(info.name), -16).arg(QString(info.description));
  }
  return text;
}

/// Takes option values out of the parser, each within its range.
class ValueReader {
 public:
  explicit ValueReader(const QCommandLineParser& parser) : parser_(parser) {}

  int Number(const QString& option, int least, int most) const {
    const QString text = parser_.value(option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
      throw WrongValue{option, text, u"%1..%2"_s.arg(least).arg(most)};
    }
    return number;
  }

  bool Choice(const QString& option, const QString& yes, const QString& no) const {
    const QString text = parser_.value(option);
    if (text != yes && text != no) {
      throw WrongValue{option, text, u"%1 or %2"_s.arg(yes, no)};
    }
    return text == yes;
  }

  QString Directory() const {
    const QFileInfo directory(parser_.value(u"dir"_s));
    if (!directory.isDir()) {
      throw WrongValue{u"dir"_s, parser_.value(u"dir"_s), u"a directory"_s};
    }
    return directory.absoluteFilePath();
  }

  std::optional<Sample> Stage() const {
    const QString text = parser_.value(u"stage"_s);
    const auto sample = FindSample(text);
    if (!sample && text != "auto"_L1) {
      throw WrongValue{u"stage"_s, text, u"auto or a sample of --list"_s};
    }
    return sample;
  }

  Wear WearAmounts() const {
    Wear wear;
    for (const WearInfo& info : AllWear()) {
      const QString text = parser_.value(QString(info.name));
      const auto amount = ReadAmount(info, text);
      if (!amount) {
        throw WrongValue{QString(info.name), text, u"0..%1"_s.arg(info.most, 0, 'f', 0)};
      }
      wear.*info.amount = *amount;
    }
    return wear;
  }

  FaultPlan Faults() const {
    FaultPlan plan;
    for (const QString& text : parser_.values(u"fault"_s)) {
      const qsizetype at = text.indexOf(u'@');
      const auto fault =
          at < 0 ? MakeFault(text, {}) : MakeFault(text.first(at), text.sliced(at + 1));
      if (!fault || text.endsWith(u'@')) {
        throw WrongValue{u"fault"_s, text, u"a fault of --list, or that with @1..1000000"_s};
      }
      plan.Add(*fault);
    }
    return plan;
  }

  CallFaultPlan CallFaults() const {
    CallFaultPlan plan;
    for (const QString& text : parser_.values(u"call-fault"_s)) {
      const auto fault = MakeCallFault(text);
      if (!fault) {
        throw WrongValue{u"call-fault"_s, text,
                         u"CALL=NUMBER, none, short or hang, or that with @N"_s};
      }
      plan.Add(*fault);
    }
    return plan;
  }

 private:
  const QCommandLineParser& parser_;
};

Options ReadValues(const QCommandLineParser& parser) {
  const ValueReader reader(parser);
  return {.directory = reader.Directory(),
          .port = reader.Number(u"port"_s, 1, 255),
          .paced = reader.Choice(u"pace"_s, u"real"_s, u"none"_s),
          .stage = reader.Stage(),
          .seed = static_cast<unsigned int>(
              reader.Number(u"seed"_s, 0, std::numeric_limits<int>::max())),
          .noise = reader.Choice(u"noise"_s, u"on"_s, u"off"_s),
          .wear = reader.WearAmounts(),
          .faults = reader.Faults(),
          .callFaults = reader.CallFaults(),
          .lateBy = std::chrono::milliseconds(reader.Number(u"late"_s, 0, kMostMs)),
          .replugAfter = std::chrono::milliseconds(reader.Number(u"replug"_s, 0, kMostMs))};
}

EarlyEnd Wrong(const QString& reason) {
  return {u"vexa-simulator: %1\n"_s.arg(reason), 2};
}

}  // namespace

std::variant<Options, EarlyEnd> ReadOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  DeclareOptions(parser);
  if (!parser.parse(arguments)) {
    return Wrong(parser.errorText());
  }
  if (parser.isSet(u"help"_s) || parser.isSet(u"help-all"_s)) {
    return EarlyEnd{parser.helpText(), 0};
  }
  if (parser.isSet(u"version"_s)) {
    return EarlyEnd{u"vexa-simulator %1\n"_s.arg(QLatin1StringView(VEXA_VERSION)), 0};
  }
  if (parser.isSet(u"list"_s)) {
    return EarlyEnd{ListTable(u"samples"_s, AllSamples()) + ListTable(u"faults"_s, AllFaults()) +
                        ListTable(u"wear"_s, AllWear()),
                    0};
  }
  if (!parser.positionalArguments().isEmpty()) {
    return Wrong(u"unexpected \"%1\""_s.arg(parser.positionalArguments().first()));
  }
  try {
    return ReadValues(parser);
  } catch (const WrongValue& wrong) {
    return Wrong(
        u"--%1 cannot be \"%2\": it is %3"_s.arg(wrong.option, wrong.value, wrong.allowed));
  }
}

}  // namespace vexa::simulator
