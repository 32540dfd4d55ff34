#include "imagewidget.h"
#include "testcase.h"

#include <QEvent>
#include <QPainter>

using namespace vardeno::testcharttools;

namespace {

/// Red and green above blue and yellow, one pixel each.
QPixmap fourPixels()
{
    QImage image(2, 2, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    image.setPixelColor(0, 1, Qt::blue);
    image.setPixelColor(1, 1, Qt::yellow);
    return QPixmap::fromImage(image);
}

/// The same four colours, each over one quarter.
QImage fourQuarters(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const int w = size.width() / 2;
    const int h = size.height() / 2;
    painter.fillRect(0, 0, w, h, Qt::red);
    painter.fillRect(w, 0, size.width() - w, h, Qt::green);
    painter.fillRect(0, h, w, size.height() - h, Qt::blue);
    painter.fillRect(w, h, size.width() - w, size.height() - h, Qt::yellow);
    return image;
}

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

} // namespace

class TestImageWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedForTheStyleSheet()
    {
        ImageWidget widget;
        QCOMPARE(widget.objectName(), QStringLiteral("ImageWidget"));
    }

    void stretchesOverTheWholeWidget_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("the preview's size") << QSize(80, 46);
        QTest::newRow("wider than the picture") << QSize(200, 10);
        QTest::newRow("higher than the picture") << QSize(10, 200);
        QTest::newRow("the picture's own size") << QSize(2, 2);
    }

    void stretchesOverTheWholeWidget()
    {
        QFETCH(QSize, size);
        ImageWidget widget;
        widget.setFixedSize(size);
        widget.setPixmap(fourPixels());
        VD_COMPARE_IMAGES(widget.grab().toImage(), fourQuarters(size));
    }

    void shrinksAPictureThatIsTooLarge()
    {
        ImageWidget widget;
        widget.setFixedSize(10, 6);
        widget.setPixmap(QPixmap::fromImage(fourQuarters(QSize(400, 300))));
        VD_COMPARE_IMAGES(widget.grab().toImage(), fourQuarters(QSize(10, 6)));
    }

    void followsItsSize()
    {
        ImageWidget widget;
        widget.setPixmap(fourPixels());
        widget.setFixedSize(20, 20);
        widget.grab();
        widget.setFixedSize(60, 30);
        VD_COMPARE_IMAGES(widget.grab().toImage(), fourQuarters(QSize(60, 30)));
    }

    void paintsNothingWithoutAPicture_data()
    {
        QTest::addColumn<bool>("hadOne");
        QTest::newRow("at first") << false;
        QTest::newRow("taken away again") << true;
    }

    void paintsNothingWithoutAPicture()
    {
        QFETCH(bool, hadOne);
        ImageWidget widget;
        QWidget plain;
        for (QWidget* w : {static_cast<QWidget*>(&widget), &plain})
            w->setFixedSize(40, 30);
        if (hadOne) {
            widget.setPixmap(fourPixels());
            widget.grab();
            widget.setPixmap(QPixmap());
        }
        VD_COMPARE_IMAGES(widget.grab().toImage(), plain.grab().toImage());
    }

    void aNewPictureIsShownWithoutFurtherAdo()
    {
        ImageWidget widget;
        widget.setFixedSize(40, 30);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QTest::qWait(50);
        PaintCounter counter;
        widget.installEventFilter(&counter);
        widget.setPixmap(fourPixels());
        QTRY_COMPARE(counter.paints, 1);
    }
};

VD_TEST_MAIN(TestImageWidget)
#include "tst_imagewidget.moc"
