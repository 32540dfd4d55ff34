#include "layers/composition.h"
#include "layers/layerpicture.h"
#include "layers/patternlayer.h"
#include "layers/veillayer.h"
#include "testcase.h"

#include <QPainter>

#include <mutex>

using namespace vardeno::testcharttools;

namespace {

constexpr QSize composedSize(3000, 150); // several bands

QImage paintedBands(const Composition& composition, int top = 0, int height = composedSize.height())
{
    QImage image(composedSize.width(), height, QImage::Format_RGB32);
    image.fill(Qt::cyan);
    composition.paintInParallel(image, top);
    return image;
}

QImage filledBands(const QColor& color)
{
    QImage image(composedSize, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

void drawBox(LayerPicture& picture)
{
    QPainter(&picture.begin(composedSize)).fillRect(QRect(20, 30, 900, 100), QColor(255, 0, 0, 128));
    picture.end();
}

} // namespace

class TestComposition : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsBlack()
    {
        VD_COMPARE_IMAGES(paintedBands({}), filledBands(Qt::black));
        Composition composition;
        composition.add([](QPainter&, const QRect&) {});
        VD_COMPARE_IMAGES(paintedBands(composition), filledBands(Qt::black));
    }

    /// Every row belongs to one band, and what is painted lies on what came before.
    void bandsFollowOneAnother()
    {
        Composition composition;
        std::mutex mutex;
        QVector<int> rows(composedSize.height());
        composition.add([&](QPainter&, const QRect& area) {
            const std::lock_guard<std::mutex> lock(mutex);
            for (int y = area.top(); y <= area.bottom(); ++y)
                ++rows[y];
        });
        composition.add([](QPainter& painter, const QRect& area) { painter.fillRect(area, Qt::red); });
        composition.add([](QPainter& painter, const QRect&) {
            painter.translate(1000, 0);
            painter.setOpacity(0.3);
        });
        composition.add([](QPainter& painter, const QRect&) { painter.fillRect(7, 5, 9, 90, Qt::blue); });
        QImage expected = filledBands(Qt::red);
        QPainter(&expected).fillRect(7, 5, 9, 90, Qt::blue);
        VD_COMPARE_IMAGES(paintedBands(composition), expected);
        QCOMPARE(rows, QVector<int>(composedSize.height(), 1));
    }

    void layersAndPictures()
    {
        PatternLayer pattern;
        VeilLayer veil;
        veil.brightness = 40;
        LayerPicture box;
        drawBox(box);
        Composition composition;
        composition.add(pattern, composedSize);
        composition.add(box, composedSize);
        composition.add(veil, composedSize);
        QImage expected = filledBands(Qt::black);
        QPainter painter(&expected);
        pattern.draw(painter, composedSize);
        box.paint(painter);
        veil.draw(painter, composedSize);
        painter.end();
        VD_COMPARE_IMAGES(paintedBands(composition), expected);
        VD_COMPARE_IMAGES(paintedBands(composition, 61, 40), expected.copy(0, 61, composedSize.width(), 40));
    }

    /// A picture that was drawn for another size leaves the rest dark.
    void aSmallerPicture()
    {
        LayerPicture small;
        small.begin({100, 50}, LayerCoverage::Opaque).fill(Qt::green);
        small.end();
        Composition composition;
        composition.add(small, composedSize);
        QImage expected = filledBands(Qt::black);
        QPainter(&expected).fillRect(0, 0, 100, 50, Qt::green);
        VD_COMPARE_IMAGES(paintedBands(composition), expected);
    }

    void onAWidget()
    {
        Composition composition;
        composition.add([](QPainter& painter, const QRect& area) { painter.fillRect(area, Qt::red); });
        QImage image = filledBands(Qt::white);
        QPainter painter(&image);
        composition.paint(painter, QRect(10, 10, 20, 20));
        painter.end();
        QImage expected = filledBands(Qt::white);
        QPainter(&expected).fillRect(10, 10, 20, 20, Qt::red);
        VD_COMPARE_IMAGES(image, expected);
    }
};

VD_TEST_MAIN(TestComposition)
#include "tst_composition.moc"
