// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/file_opener.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <algorithm>

#include "files/environment_file.h"
#include "files/startup_file.h"
#include "views/files/data_file_commands.h"
#include "views/files/environment_commands.h"

namespace vexa {
namespace {

QStringList LocalFiles(const QMimeData& mime) {
  QStringList paths;
  const QList<QUrl> urls = mime.urls();
  paths.reserve(urls.size());
  for (const QUrl& url : urls) {
    if (url.isLocalFile()) {
      paths << url.toLocalFile();
    }
  }
  return paths;
}

// "&1 /home/…/S-001.csv": the end of a path tells more than its beginning.
QString Caption(qsizetype place, const QString& path, const QFontMetrics& metrics) {
  constexpr int kWidthInLetters = 60;
  QString name =
      metrics.elidedText(path, Qt::ElideMiddle, kWidthInLetters * metrics.averageCharWidth());
  name.replace(u'&', QStringLiteral("&&"));
  const QString number = place < 9 ? QStringLiteral("&%1").arg(place + 1) : QStringLiteral("1&0");
  return number + u' ' + name;
}

}  // namespace

FileOpener::FileOpener(QMenu& recent, Session& session, InstrumentDesk& desk,
                       ProgramPreferences& preferences, MessageService& messages,
                       FileDialogs& dialogs, QWidget& window)
    : recent_(recent),
      session_(session),
      state_(session.State()),
      desk_(desk),
      preferences_(preferences),
      messages_(messages),
      dialogs_(dialogs) {
  recent_.setToolTipsVisible(true);
  connect(&preferences_, &ProgramPreferences::Changed, this, &FileOpener::FillMenu);
  FillMenu();
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

void FileOpener::ShowAvailable(bool idle) {
  idle_ = idle;
  recent_.setEnabled(idle && !recent_.isEmpty());
}

QCoro::Task<> FileOpener::AskForData() {
  const bool opened = co_await OpenDataFile(session_, messages_, dialogs_);
  if (opened) {
    Remember(state_.currentDataFileName);
  }
}

QCoro::Task<> FileOpener::AskForEnvironment() {
  const bool opened = co_await OpenEnvironment(session_, messages_, dialogs_);
  if (opened) {
    co_await TakeEnvironment();
  }
}

QCoro::Task<> FileOpener::SaveDataAs() {
  const bool saved = co_await SaveDataFileAs(session_, messages_, dialogs_);
  if (saved) {
    Remember(state_.currentDataFileName);
  }
}

QCoro::Task<> FileOpener::SaveEnvironmentAs() {
  const bool saved = co_await vexa::SaveEnvironmentAs(session_, messages_, dialogs_);
  if (saved) {
    RememberEnvironment();
  }
}

QCoro::Task<> FileOpener::Open(QString path) {
  if (!QFileInfo::exists(path)) {
    const bool recent = preferences_.InForce().recentFiles.contains(path);
    Forget(path);
    messages_.Tell({recent ? Message::kRecentFileMissing : Message::kFileMissing, {path}});
  } else if (IsEnvironmentFile(path)) {
    if (OpenEnvironment(path, session_, messages_)) {
      co_await TakeEnvironment();
    }
  } else {
    const bool opened = co_await OpenDataFile(path, session_, messages_);
    if (opened) {
      Remember(path);
    }
  }
}

bool FileOpener::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
    return QObject::eventFilter(watched, event);
  }
  auto* drop = static_cast<QDropEvent*>(event);
  const QStringList paths = LocalFiles(*drop->mimeData());
  if (!idle_ || paths.isEmpty() || QApplication::activeModalWidget() != nullptr) {
    drop->ignore();
    return true;
  }
  drop->setDropAction(Qt::CopyAction);
  drop->accept();
  if (event->type() == QEvent::Drop) {
    // The program that the files come from waits until this event has been handled.
    QTimer::singleShot(0, this, [this, paths] { OpenDropped(paths); });
  }
  return true;
}

QCoro::Task<> FileOpener::OpenDropped(QStringList paths) {
  if (paths.size() > 1) {
    messages_.Tell({Message::kOneFileAtATime});
  } else if (idle_) {
    co_await Open(paths.constFirst());
  }
}

// What a new environment brings with it.
QCoro::Task<> FileOpener::TakeEnvironment() {
  RememberEnvironment();
  co_await desk_.SendSampling();
}

// One that could not be read has put the defaults in force, under a name of theirs.
void FileOpener::RememberEnvironment() {
  if (state_.envFileRead) {
    Remember(CompletePath(state_, state_.envFileName));
  }
}

// What cannot be written is in force all the same, and no reason to disturb.
void FileOpener::Remember(const QString& path) {
  const QString whole = QFileInfo(path).absoluteFilePath();
  (void)preferences_.Change([&whole](ProgramSettings& settings) {
    settings.recentFiles.removeAll(whole);
    settings.recentFiles.prepend(whole);
    settings.recentFiles.resize(std::min(settings.recentFiles.size(), kRecentFiles));
  });
}

void FileOpener::Forget(const QString& path) {
  if (preferences_.InForce().recentFiles.contains(path)) {
    (void)preferences_.Change(
        [&path](ProgramSettings& settings) { settings.recentFiles.removeAll(path); });
  }
}

void FileOpener::FillMenu() {
  const QStringList& files = preferences_.InForce().recentFiles;
  recent_.clear();
  for (qsizetype i = 0; i < std::min(files.size(), kRecentFiles); ++i) {
    QAction* action = recent_.addAction(Caption(i, files[i], recent_.fontMetrics()));
    action->setData(files[i]);
    action->setToolTip(files[i]);
    // Later: opening fills the menu anew, this action with it.
    connect(
        action, &QAction::triggered, this, [this, path = files[i]] { Open(path); },
        Qt::QueuedConnection);
  }
  ShowAvailable(idle_);
}

}  // namespace vexa
