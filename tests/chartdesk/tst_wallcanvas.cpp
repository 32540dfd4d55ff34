#include "testcase.h"
#include "wallcanvas.h"
#include "wallmodel.h"

#include <QPainter>

using namespace vardeno::walls;

/// What the canvas shows of a wall, pixel by pixel, without its window.
class TestWallCanvas : public TestCase
{
    Q_OBJECT

private:
    WallModel m_model;
    std::unique_ptr<WallCanvas> m_canvas;

    static WallDocument wallOf(const std::vector<int>& widths, const std::vector<int>& heights)
    {
        WallDocument wall;
        wall.columnWidths.pixels = widths;
        wall.rowHeights.pixels = heights;
        wall.data.path.pattern = vardeno::walls::Pattern::EachLine;
        wall.power.path.pattern = vardeno::walls::Pattern::EachLine;
        wall.physical.watts = 100; // there is power to be wired
        return wall;
    }

    QImage shown(const WallDocument& wall, double zoom)
    {
        m_model.change(QString(), wall);
        m_canvas->grab(); // it takes its size for that
        m_canvas->setZoom(zoom);
        return m_canvas->viewport()->grab().toImage();
    }

    QPoint middle(int column, int row) const { return m_canvas->rectOf({column, row}).center(); }

    static int countOf(const QColor& color, const QImage& picture)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixel(x, y) == color.rgb() ? 1 : 0;
        return count;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_canvas = std::make_unique<WallCanvas>(&m_model);
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black); // on which a veil of white is seen
        m_canvas->setPalette(dark);
        m_canvas->resize(400, 300);
    }

    void cleanup()
    {
        m_canvas.reset();
        TestCase::cleanup();
    }

    void neighbouringCablesAreFarApartInColour()
    {
        const QImage picture = shown(wallOf({64, 64}, {64, 64, 64}), 1);
        for (int row = 0; row < 3; ++row) {
            const QPoint data = middle(0, row) - QPoint(6, 6);
            QCOMPARE(picture.pixelColor(data).rgb(), QColor::fromHsv(48 + 67 * row, 190, 255).rgb());
            const QPoint power = middle(0, row) + QPoint(6, 6);
            QCOMPARE(picture.pixelColor(power).rgb(), QColor::fromHsv(190 + 67 * row, 120, 255).rgb());
        }
    }

    void cablesAreThinWhereCabinetsAreFlat()
    {
        const QImage picture = shown(wallOf({64, 64}, {12}), 1);
        QCOMPARE(countOf(QColor::fromHsv(48, 190, 255), picture), 65); // one line between the middles
    }

    void theGridOfPixelsStaysWithinTheWall()
    {
        const QImage picture = shown(wallOf({16}, {8}), 8);
        const QRect wall = m_canvas->rectOf({0, 0});
        const QRgb around = m_canvas->palette().color(QPalette::Base).rgb();
        for (int x = wall.left() - 8; x <= wall.right() + 8; ++x) {
            QCOMPARE(picture.pixel(x, wall.bottom() + 2), around);
            QCOMPARE(picture.pixel(x, wall.top() - 2), around);
        }
        for (int y = wall.top() - 8; y <= wall.bottom() + 8; ++y) {
            QCOMPARE(picture.pixel(wall.right() + 2, y), around);
            QCOMPARE(picture.pixel(wall.left() - 2, y), around);
        }
        const auto brightness = [&](int x) { return qGray(picture.pixel(x, wall.top() + 52)); };
        QVERIFY(brightness(wall.left() + 96) > brightness(wall.left() + 97));
    }
};

VD_TEST_MAIN(TestWallCanvas)
#include "tst_wallcanvas.moc"
