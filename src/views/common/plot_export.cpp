// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/common/plot_export.h"

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "base/replace_file.h"
#include "base/translation.h"
#include "views/common/file_questions.h"
#include "views/common/pdf_text.h"
#include "views/common/plot.h"

namespace vexa {
namespace {

constexpr double kPixelsPerDot = 2.0;

/// Takes the cursor out of what is drawn meanwhile.
class WithoutCursor {
 public:
  explicit WithoutCursor(QCustomPlot& plot) : layer_(plot.layer(QLatin1String(kCursorLayer))) {
    Show(false);
  }
  ~WithoutCursor() { Show(true); }
  WithoutCursor(const WithoutCursor&) = delete;
  WithoutCursor& operator=(const WithoutCursor&) = delete;

 private:
  void Show(bool shown) {
    if (layer_ != nullptr) {
      layer_->setVisible(shown);
    }
  }

  QCPLayer* layer_;
};

QPixmap Pixmap(QCustomPlot& plot) {
  const WithoutCursor picture(plot);
  return plot.toPixmap(0, 0, kPixelsPerDot);
}

void Paint(QCustomPlot& plot, QPaintDevice& device, double scale) {
  const WithoutCursor picture(plot);
  QCPPainter painter(&device);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.scale(scale, scale);
  plot.toPainter(&painter, plot.width(), plot.height());
}

QCoro::Task<> SavePicture(QCustomPlot& plot, MessageService& messages, FileDialogs& dialogs,
                          QString name) {
  const std::optional<SaveChoice> choice = co_await dialogs.AskSave(
      Text::tr("ｸﾞﾗﾌの保存"), QStringLiteral("PNG(*.png)|*.png|SVG(*.svg)|*.svg|PDF(*.pdf)|*.pdf"),
      name);
  if (!choice) {
    co_return;
  }
  const QStringList suffixes{QStringLiteral(".png"), QStringLiteral(".svg"),
                             QStringLiteral(".pdf")};
  const QString path =
      WithExtension(choice->path, suffixes.value(choice->filterIndex - 1, suffixes[0]), suffixes);
  const bool may = co_await MayReplace(path, messages);
  if (may) {
    const QByteArray picture = PlotPicture(plot, QFileInfo(path).suffix().toLower());
    (void)TellWritten(ReplaceFile(path, picture), path, messages);
  }
}

}  // namespace

void AddExport(QCustomPlot& plot, MessageService& messages, FileDialogs& dialogs,
               const std::function<QString()>& name) {
  plot.setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* copy = new QAction(Text::tr("ｸﾞﾗﾌをｺﾋﾟｰ"), &plot);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(copy, &QAction::triggered, &plot,
                   [&plot] { QGuiApplication::clipboard()->setPixmap(Pixmap(plot)); });
  auto* save = new QAction(Text::tr("ｸﾞﾗﾌの保存..."), &plot);
  QObject::connect(save, &QAction::triggered, &plot, [&plot, &messages, &dialogs, name] {
    SavePicture(plot, messages, dialogs, name ? name() : QString());
  });
  plot.addActions({copy, save});
}

QByteArray PlotPicture(QCustomPlot& plot, const QString& suffix) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (suffix == QLatin1String("svg")) {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(plot.size());
    svg.setViewBox(plot.rect());
    Paint(plot, svg, 1.0);
  } else if (suffix == QLatin1String("pdf")) {
    QPdfWriter pdf(&buffer);
    const double pointsPerPixel = 72.0 / plot.logicalDpiX();
    pdf.setPageMargins({});
    pdf.setPageSize(QPageSize(QSizeF(plot.size()) * pointsPerPixel, QPageSize::Point, {},
                              QPageSize::ExactMatch));
    Paint(plot, pdf, static_cast<double>(pdf.width()) / plot.width());
    NameCharacters(bytes, plot.font());
  } else {
    Pixmap(plot).save(&buffer, "PNG");
  }
  return bytes;
}

}  // namespace vexa
