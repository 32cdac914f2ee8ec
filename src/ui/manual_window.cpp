#include "ui/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace ui {
namespace {

constexpr QSize kUsualSize(760, 640);
constexpr int kMargin = 8;

// A picture of a window is wider than a page that is read: it is drawn as wide as the page.
class Page : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant content = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return content;
    const QImage picture = QImage::fromData(content.toByteArray());
    const int room = viewport()->width() - 4 * kMargin;
    return picture.width() > room ? picture.scaledToWidth(room, Qt::SmoothTransformation) : picture;
  }
};

}  // namespace

ManualWindow::ManualWindow(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Manual"));
  resize(kUsualSize);
  auto* contents = new QPushButton(tr("&Contents"), this);
  auto* back = new QPushButton(tr("&Back"), this);
  back->setEnabled(false);
  auto* close = new QPushButton(tr("Close"), this);
  text_ = new Page(this);  // behind the buttons for the Tab key
  text_->setAccessibleName(tr("Manual page"));
  text_->setOpenExternalLinks(true);
  text_->document()->setDocumentMargin(kMargin);
  for (QPushButton* button : {contents, back, close}) button->setAutoDefault(false);
  connect(contents, &QPushButton::clicked, this, [this] { Open(QStringLiteral("index")); });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(back, &QPushButton::clicked, text_, &QTextBrowser::backward);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(contents);
  buttons->addWidget(back);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addLayout(buttons);
  column->addWidget(text_, 1);
}

void ManualWindow::Open(const QString& page) {
  show();
  text_->setSource(
      QUrl(QStringLiteral("qrc:/docs/manual/%1.md").arg(page.section(QLatin1Char('#'), 0, 0))),
      QTextDocument::MarkdownResource);
  GoTo(page.section(QLatin1Char('#'), 1));
  text_->setFocus();
  activateWindow();
}

void ManualWindow::GoTo(const QString& heading) {
  const QTextDocument& document = *text_->document();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || block.text() != heading) continue;
    text_->setTextCursor(QTextCursor(block));
    const QRectF place = document.documentLayout()->blockBoundingRect(block);
    text_->verticalScrollBar()->setValue(static_cast<int>(place.top()));
  }
}

}  // namespace ui
