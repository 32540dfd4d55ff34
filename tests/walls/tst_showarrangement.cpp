#include "testcase.h"
#include "testwalls.h"

#include <rectpacking.h>
#include <showarrangement.h>
#include <showpicture.h>

using namespace vardeno::walls;

namespace {

WallDocument wallOfPixels(int width, int height)
{
    return wallOf({width}, {height});
}

ShowDocument showFor(const std::vector<WallDocument>& walls, const std::vector<QSize>& outputs)
{
    ShowDocument show;
    for (std::size_t i = 0; i < walls.size(); ++i)
        show.walls.list.push_back({"wall" + std::to_string(i + 1), "path", {}, {}});
    for (const QSize& output : outputs)
        show.outputs.list.push_back(
            {"out" + std::to_string(show.outputs.list.size() + 1), output.width(), output.height(), 60, {}});
    return show;
}

/// That no two lie on one another, and all within their bins.
void requireApart(const std::vector<PackedRect>& packed, const std::vector<QSize>& bins)
{
    for (std::size_t i = 0; i < packed.size(); ++i) {
        if (packed[i].bin < 0)
            continue;
        QVERIFY(QRect(QPoint(), bins[std::size_t(packed[i].bin)]).contains(packed[i].rect));
        for (std::size_t other = 0; other < i; ++other)
            QVERIFY(packed[i].bin != packed[other].bin || !packed[i].rect.intersects(packed[other].rect));
    }
}

} // namespace

class TestShowArrangement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Four walls that fill an output to the last pixel are found to do so.
    void aPerfectFitIsFound()
    {
        const std::vector<QSize> bins(4, QSize(100, 100));
        const std::vector<PackedRect> packed =
            packRects({{40, 60}, {60, 30}, {60, 70}, {40, 40}}, bins, false);
        requireApart(packed, bins);
        for (const PackedRect& one : packed)
            QCOMPARE(one.bin, 0);
    }

    /// In the order in which they are given the small ones would lie in the way.
    void largeOnesArePutFirst()
    {
        const std::vector<QSize> bins(2, QSize(100, 100));
        const std::vector<PackedRect> packed = packRects({{30, 20}, {30, 20}, {70, 100}}, bins, false);
        requireApart(packed, bins);
        for (const PackedRect& one : packed)
            QCOMPARE(one.bin, 0);
    }

    void bothWaysOnlyWhereTurningIsAllowed()
    {
        const std::vector<QSize> bins(1, QSize(100, 40));
        QCOMPARE(packRects({{40, 100}}, bins, false).front().bin, -1);
        const PackedRect turned = packRects({{40, 100}}, bins, true).front();
        QCOMPARE(turned.bin, 0);
        QVERIFY(turned.turned);
        QCOMPARE(turned.rect, QRect(0, 0, 100, 40));
    }

    /// What is too large for one bin may fit a later one.
    void binsOfSeveralSizes()
    {
        const std::vector<QSize> bins = {{50, 50}, {100, 100}};
        const std::vector<PackedRect> packed = packRects({{80, 80}, {50, 50}, {500, 5}}, bins, false);
        requireApart(packed, bins);
        QCOMPARE(packed[0].bin, 1);
        QCOMPARE(packed[1].bin, 0);
        QCOMPARE(packed[2].bin, -1);
    }

    void manyOfThemLieApart()
    {
        std::vector<QSize> rects;
        quint32 random = 1;
        const auto next = [&random](int most) {
            random = random * 1664525u + 1013904223u;
            return 1 + int(random >> 8) % most;
        };
        qint64 area = 0;
        for (int i = 0; i < 120; ++i) {
            rects.emplace_back(next(400), next(300));
            area += qint64(rects.back().width()) * rects.back().height();
        }
        const std::vector<QSize> bins(120, QSize(1000, 1000));
        const std::vector<PackedRect> packed = packRects(rects, bins, true);
        requireApart(packed, bins);
        int last = 0;
        for (std::size_t i = 0; i < packed.size(); ++i) {
            QVERIFY(packed[i].bin >= 0);
            QCOMPARE(packed[i].turned ? packed[i].rect.size().transposed() : packed[i].rect.size(), rects[i]);
            last = qMax(packed[i].bin, last);
        }
        QVERIFY2(area * 100 >= qint64(last) * 1000 * 1000 * 80, qPrintable(QString::number(last + 1)));
    }

    void wallsAreCutAtTheirCabinets()
    {
        const WallDocument wall = wallOf({100, 100, 100, 50}, {60, 60});
        const std::vector<QRect> parts = ShowArrangement::partsWithin(wall, {250, 100});
        QCOMPARE(parts, (std::vector<QRect>{
                            {0, 0, 200, 60}, {200, 0, 150, 60}, {0, 60, 200, 60}, {200, 60, 150, 60}}));
        QCOMPARE(ShowArrangement::partsWithin(wall, {350, 120}), (std::vector<QRect>{{0, 0, 350, 120}}));
        QCOMPARE(ShowArrangement::partsWithin(wallOfPixels(250, 20), {100, 100}),
                 (std::vector<QRect>{{0, 0, 100, 20}, {100, 0, 100, 20}, {200, 0, 50, 20}}));
    }

    void aRibbonIsPackedInParts()
    {
        const std::vector<WallDocument> walls = {wallOf(std::vector<int>(90, 128), {128, 128, 128}),
                                                 wallOfPixels(1920, 1000)};
        ShowDocument show = showFor(walls, {{3840, 2160}});
        QCOMPARE(ShowArrangement::autoPack(show, walls, false), QString());
        QCOMPARE(show.outputs.list.size(), std::size_t(1));
        QCOMPARE(show.placements.list.size(), std::size_t(4));
        QCOMPARE(show.placements.list[1].part.rect, QRect(3840, 0, 3840, 384));
        QVERIFY(show.placements.list[3].part.rect.isEmpty());
        QCOMPARE(ShowFile::fromJson(ShowFile::toJson(show)).problems, QStringList());
    }

    void outputsFollowWhereMoreAreNeeded()
    {
        const std::vector<WallDocument> walls(3, wallOfPixels(900, 900));
        ShowDocument show = showFor(walls, {{1000, 1000}});
        show.outputs.list[0].name = "LED1";
        QCOMPARE(ShowArrangement::autoPack(show, walls, false), QString());
        QCOMPARE(show.outputs.list.size(), std::size_t(3));
        QCOMPARE(show.outputs.list[2].name, std::string("LED3"));
        QCOMPARE(show.outputs.list[2].width, 1000);

        ShowArrangement::placeSideBySide(show, walls);
        QCOMPARE(show.placements.list.size(), std::size_t(3));
        QCOMPARE(show.placements.list[1].output, std::string("LED2"));
    }
};

VD_TEST_MAIN(TestShowArrangement)
#include "tst_showarrangement.moc"
