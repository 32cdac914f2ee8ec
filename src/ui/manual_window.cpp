#include "ui/manual_window.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

namespace ui {
namespace {

constexpr QSize kUsualSize(760, 640);
constexpr int kMargin = 8;
constexpr int kStepOfAList = 40;  // what stands in a list begins further right

// A picture of a window is wider than a page that is read: it is drawn as wide as the page. A page
// has many, which take longer to read than all of its text: each is read when it comes into view,
// and until then something of its size stands there.
class Page : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    return QImage(SizeOf(FileOf(name)), kUnread);
  }

 protected:
  // Laid out once, when it is whole: each row of a table would lay it out anew.
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override {
    document()->setLayoutEnabled(false);
    QTextBrowser::doSetSource(name, type);
    document()->setLayoutEnabled(true);
  }

  void paintEvent(QPaintEvent* event) override {
    const QTextBlock end = cursorForPosition(viewport()->rect().bottomRight()).block().next();
    for (QTextBlock block = cursorForPosition({0, 0}).block(); block.isValid() && block != end;
         block = block.next())
      ReadPicturesOf(block);
    QTextBrowser::paintEvent(event);
  }

 private:
  static constexpr QImage::Format kUnread = QImage::Format_Mono;  // no picture of a window is

  // The pages and their pictures are in the program.
  QString FileOf(const QUrl& name) const {
    return QLatin1Char(':') + source().resolved(name).path();
  }

  QSize SizeOf(const QString& file) const {
    const QSize whole = QImageReader(file).size();
    const int room = viewport()->width() - 4 * kMargin - kStepOfAList;
    return whole.width() > room ? whole.scaled(room, whole.height(), Qt::KeepAspectRatio) : whole;
  }

  void ReadPicturesOf(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      const QUrl name = format.toImageFormat().name();
      const auto here = document()->resource(QTextDocument::ImageResource, name).value<QImage>();
      if (here.format() != kUnread) continue;
      document()->addResource(QTextDocument::ImageResource, document()->baseUrl().resolved(name),
                              Drawn(FileOf(name), here.size()));
    }
  }

  QImage Drawn(const QString& file, const QSize& size) const {
    const qreal ratio = devicePixelRatioF();
    QImage picture =
        QImage(file).scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
  }
};

}  // namespace

ManualWindow::ManualWindow(QWidget* parent) : QDialog(parent), text_(new Page(this)) {
  setWindowTitle(tr("Manual"));
  resize(kUsualSize);
  text_->setAccessibleName(tr("Manual page"));
  text_->setOpenExternalLinks(true);
  text_->document()->setDocumentMargin(kMargin);
  auto* contents = new QPushButton(tr("&Contents"), this);
  auto* back = new QPushButton(tr("&Back"), this);
  back->setEnabled(false);
  for (QPushButton* button : {contents, back}) button->setAutoDefault(false);
  connect(contents, &QPushButton::clicked, this, [this] { Open(QStringLiteral("index")); });
  connect(back, &QPushButton::clicked, text_, &QTextBrowser::backward);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(contents);
  buttons->addWidget(back);
  buttons->addStretch();
  auto* column = new QVBoxLayout(this);
  column->addLayout(buttons);
  column->addWidget(text_, 1);
}

void ManualWindow::Open(const QString& page) {
  show();
  text_->setSource(QUrl(QStringLiteral("qrc:/docs/manual/%1.md").arg(page)),
                   QTextDocument::MarkdownResource);
  text_->setFocus();
  activateWindow();
}

}  // namespace ui
