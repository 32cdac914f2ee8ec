#include "ui/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QVBoxLayout>

namespace ui {
namespace {

constexpr QSize kUsualSize(760, 640);
constexpr int kMargin = 8;
constexpr int kAboveHeading = 16;
constexpr int kStepOfAList = 40;  // what stands in a list begins further right

// A picture of a window is wider than a page that is read: it is drawn as wide as the page. A page
// has many, which take longer to read than all of its text: each is read once the text around it is
// on the screen, and until then its room is kept.
class Page : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    QImage room(SizeOf(FileOf(name)), kUnread);
    room.setColor(0, qRgba(0, 0, 0, 0));
    room.fill(0);
    return room;
  }

 protected:
  // Laid out once, when it is whole: each row of a table would lay it out anew.
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override {
    document()->setLayoutEnabled(false);
    QTextBrowser::doSetSource(name, type);
    SetHeadings();
    SetTables();
    document()->setLayoutEnabled(true);
  }

  void paintEvent(QPaintEvent* event) override {
    QTextBrowser::paintEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { ReadPictures(); }, Qt::QueuedConnection);
  }

 private:
  static constexpr QImage::Format kUnread = QImage::Format_Mono;  // no picture of a window is

  // Half bold, and hardly larger than the text: room says where something new begins.
  void SetHeadings() {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
      const int level = block.blockFormat().headingLevel();
      QTextBlockFormat room;
      room.setTopMargin(level > 0 ? kAboveHeading : 0);
      room.setBottomMargin(kMargin);
      QTextCursor cursor(block);
      cursor.mergeBlockFormat(room);
      if (level == 0) continue;
      cursor.select(QTextCursor::BlockUnderCursor);
      QTextCharFormat letters;
      letters.setProperty(QTextFormat::FontSizeAdjustment, level == 1 ? 1 : 0);
      letters.setFontWeight(QFont::DemiBold);
      cursor.mergeCharFormat(letters);
    }
  }

  void SetTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
      auto* table = qobject_cast<QTextTable*>(frame);
      if (table == nullptr) continue;
      QTextTableFormat format = table->format();
      format.setBorderCollapse(true);
      format.setBorder(1);
      format.setBorderBrush(palette().color(QPalette::Mid));
      format.setCellSpacing(0);
      format.setCellPadding(4);
      format.setBottomMargin(kMargin);
      table->setFormat(format);
    }
  }

  // The pages and their pictures are in the program.
  QString FileOf(const QUrl& name) const {
    return QLatin1Char(':') + source().resolved(name).path();
  }

  QSize SizeOf(const QString& file) const {
    const QSize whole = QImageReader(file).size();
    const int room = viewport()->width() - 4 * kMargin - kStepOfAList;
    return whole.width() > room ? whole.scaled(room, whole.height(), Qt::KeepAspectRatio) : whole;
  }

  // Those in view. On a screen with other pixels they are read again.
  void ReadPictures() {
    const QAbstractTextDocumentLayout& layout = *document()->documentLayout();
    const QRectF inView = viewport()->rect().translated(0, verticalScrollBar()->value());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
      if (layout.blockBoundingRect(block).intersects(inView)) ReadPicturesOf(block);
  }

  void ReadPicturesOf(const QTextBlock& block) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      const QUrl name = format.toImageFormat().name();
      const auto here = document()->resource(QTextDocument::ImageResource, name).value<QImage>();
      if (here.isNull() || IsForThisScreen(here)) continue;
      document()->addResource(QTextDocument::ImageResource, document()->baseUrl().resolved(name),
                              Drawn(FileOf(name), here.size() / here.devicePixelRatio()));
      viewport()->update();
    }
  }

  bool IsForThisScreen(const QImage& picture) const {
    return picture.format() != kUnread && picture.devicePixelRatio() == devicePixelRatioF();
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

ManualWindow::ManualWindow(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Manual"));
  resize(kUsualSize);
  auto* contents = new QPushButton(tr("&Contents"), this);
  auto* back = new QPushButton(tr("&Back"), this);
  back->setEnabled(false);
  auto* close = new QPushButton(tr("C&lose"), this);
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
