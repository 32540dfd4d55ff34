#include "geometry/cabinetlabels.h"
#include "testcase.h"

#include <QFontMetrics>

#include <limits>

using namespace vardeno::testcharttools;

namespace {

constexpr uint unknown = std::numeric_limits<uint>::max();

// What stands in the 30 rows or columns of a screen, first to last.
const char* const lettersUp = "ABCDEFGHIJKLMNOPQRSTUVWXYZABCD";
const char* const lettersDown = "ZYXWVUTSRQPONMLKJIHGFEDCBAZYXW";
const char* const smallLettersDown = "zyxwvutsrqponmlkjihgfedcbazyxw";
const char* const numbersUp =
    "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30";
const char* const numbersDown =
    "30 29 28 27 26 25 24 23 22 21 20 19 18 17 16 15 14 13 12 11 10 9 8 7 6 5 4 3 2 1";

QStringList parts(const char* sequence)
{
    const QString text = QLatin1String(sequence);
    return text.split(text.contains(QLatin1Char(' ')) ? QStringLiteral(" ") : QString(), Qt::SkipEmptyParts);
}

QString centred(const LabelStyle& style, int row, int column, int rows, int columns)
{
    const auto label = cabinetLabel(style, row, column, rows, columns);
    return label ? label->row + QLatin1Char('-') + label->column : QStringLiteral("none");
}

/// Takes pixels off the size one by one, as long as it is above 1 and a label does not fit.
int steppedSize(int requested, QFont font, int heightLimit, int widthLimit)
{
    if (requested > 0)
        font.setPixelSize(requested);
    QFontMetrics metrics(font);
    int size = requested;
    while (size > 1 &&
           (metrics.height() > heightLimit || metrics.horizontalAdvance(QStringLiteral("WW")) > widthLimit)) {
        font.setPixelSize(--size);
        metrics = QFontMetrics(font);
    }
    return size;
}

} // namespace

class TestCabinetLabels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("sort");
        QTest::addColumn<QByteArray>("rowParts");
        QTest::addColumn<QByteArray>("columnParts");
        const auto row = [](const char* name, uint mode, uint sort, const char* rows, const char* columns) {
            QTest::newRow(name) << mode << sort << QByteArray(rows) << QByteArray(columns);
        };
        row("letters, down and right", 0, 0, lettersUp, lettersUp);
        row("letters, down and left", 0, 1, lettersUp, lettersDown);
        row("letters, up and right", 0, 2, lettersDown, lettersUp);
        row("letters, up and left", 0, 3, lettersDown, lettersDown);
        row("numbers, down and right", 1, 0, numbersUp, numbersUp);
        row("numbers, down and left", 1, 1, numbersUp, numbersDown);
        row("numbers, up and right", 1, 2, numbersDown, numbersUp);
        row("numbers, up and left", 1, 3, numbersDown, numbersDown);
        row("letter and number, down and right", 2, 0, lettersUp, numbersUp);
        row("letter and number, down and left", 2, 1, lettersUp, numbersDown);
        row("letter and number, up and right", 2, 2, smallLettersDown, numbersUp);
        row("letter and number, up and left", 2, 3, smallLettersDown, numbersDown);
    }

    void labels()
    {
        QFETCH(uint, mode);
        QFETCH(uint, sort);
        QFETCH(QByteArray, rowParts);
        QFETCH(QByteArray, columnParts);
        const QStringList expectedRows = parts(rowParts.constData());
        const QStringList expectedColumns = parts(columnParts.constData());
        QCOMPARE(expectedRows.size(), 30);
        QCOMPARE(expectedColumns.size(), 30);
        const LabelStyle style{mode, sort, 0};
        for (int row = 0; row < 30; ++row) {
            for (int column = 0; column < 30; ++column) {
                const auto label = cabinetLabel(style, row, column, 30, 30);
                QVERIFY(label.has_value());
                QCOMPARE(label->row, expectedRows.at(row));
                QCOMPARE(label->column, expectedColumns.at(column));
            }
        }
    }

    void labelsOfOtherGrids_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("sort");
        QTest::addColumn<QSize>("grid"); // columns x rows
        QTest::addColumn<QPoint>("cell");
        QTest::addColumn<QString>("label");
        const auto row = [](const char* name, uint mode, uint sort, const QSize& grid, const QPoint& cell,
                            const char* label) {
            QTest::newRow(name) << mode << sort << grid << cell << QString::fromLatin1(label);
        };
        const QSize usual(16, 9);
        row("numbers, the first is 1-1", 1, 0, usual, {0, 0}, "1-1");
        row("numbers from below, top row", 1, 2, usual, {0, 0}, "9-1");
        row("numbers from below, bottom row", 1, 2, usual, {0, 8}, "1-1");
        row("numbers from below right, top left", 1, 3, usual, {0, 0}, "9-16");
        row("numbers from below right, bottom right", 1, 3, usual, {15, 8}, "1-1");
        row("letter and number from below, first row", 2, 2, usual, {0, 0}, "z-1");
        row("letter and number from below, second row", 2, 2, usual, {0, 1}, "y-1");
        row("letter and number from below right", 2, 3, usual, {2, 1}, "y-14");
        row("letters count down from Z, not from the count", 0, 3, usual, {15, 8}, "R-K");
        row("column 26 is A again", 0, 0, {30, 9}, {26, 0}, "A-A");
        row("column 0 from the right is Z", 0, 1, {30, 9}, {0, 0}, "A-Z");
        row("letters, 1 x 1", 0, 0, {1, 1}, {0, 0}, "A-A");
        row("letters from below right, 1 x 1", 0, 3, {1, 1}, {0, 0}, "Z-Z");
        row("numbers, 1 x 1", 1, 0, {1, 1}, {0, 0}, "1-1");
        row("numbers from below right, 1 x 1", 1, 3, {1, 1}, {0, 0}, "1-1");
        row("letter and number from below right, 1 x 1", 2, 3, {1, 1}, {0, 0}, "z-1");
        row("letters, the last of 100 x 100", 0, 0, {100, 100}, {99, 99}, "V-V");
        row("letters from below right, the last of 100 x 100", 0, 3, {100, 100}, {99, 99}, "E-E");
        row("numbers, the last of 100 x 100", 1, 0, {100, 100}, {99, 99}, "100-100");
        row("numbers from below right, the first of 100 x 100", 1, 3, {100, 100}, {0, 0}, "100-100");
        row("letter and number from below right, the last of 100 x 100", 2, 3, {100, 100}, {99, 99}, "e-1");
    }

    void labelsOfOtherGrids()
    {
        QFETCH(uint, mode);
        QFETCH(uint, sort);
        QFETCH(QSize, grid);
        QFETCH(QPoint, cell);
        QFETCH(QString, label);
        const LabelStyle style{mode, sort, 0};
        QCOMPARE(centred(style, cell.y(), cell.x(), grid.height(), grid.width()), label);
    }

    void unknownStyles_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("sort");
        QTest::newRow("mode 3") << 3U << 0U;
        QTest::newRow("mode -1") << unknown << 0U;
        QTest::newRow("sort 4, letters") << 0U << 4U;
        QTest::newRow("sort 4, numbers") << 1U << 4U;
        QTest::newRow("sort 4, letter and number") << 2U << 4U;
        QTest::newRow("sort -1") << 0U << unknown;
        QTest::newRow("neither") << 3U << 4U;
    }

    void unknownStyles()
    {
        QFETCH(uint, mode);
        QFETCH(uint, sort);
        QCOMPARE(centred({mode, sort, 0}, 0, 0, 9, 16), QStringLiteral("none"));
        QCOMPARE(centred({0, 0, 0}, 0, 0, 9, 16), QStringLiteral("A-A"));
    }

    void places_data()
    {
        QTest::addColumn<QRect>("cell");
        QTest::addColumn<QRect>("leftUp");
        QTest::addColumn<QRect>("rightUp");
        QTest::addColumn<QRect>("leftDown");
        QTest::addColumn<QRect>("rightDown");
        QTest::newRow("even") << QRect(100, 200, 80, 60) << QRect(100, 200, 40, 30) << QRect(140, 200, 40, 30)
                              << QRect(100, 230, 40, 30) << QRect(140, 230, 40, 30);
        QTest::newRow("odd, a pixel stays over")
            << QRect(10, 20, 101, 51) << QRect(10, 20, 50, 25) << QRect(60, 20, 50, 25)
            << QRect(10, 45, 50, 25) << QRect(60, 45, 50, 25);
        QTest::newRow("1 x 1, no half has a pixel")
            << QRect(3, 4, 1, 1) << QRect(3, 4, 0, 0) << QRect(3, 4, 0, 0) << QRect(3, 4, 0, 0)
            << QRect(3, 4, 0, 0);
        QTest::newRow("1 x 3") << QRect(0, 0, 1, 3) << QRect(0, 0, 0, 1) << QRect(0, 0, 0, 1)
                               << QRect(0, 1, 0, 1) << QRect(0, 1, 0, 1);
        QTest::newRow("empty") << QRect(7, 9, 0, 0) << QRect(7, 9, 0, 0) << QRect(7, 9, 0, 0)
                               << QRect(7, 9, 0, 0) << QRect(7, 9, 0, 0);
    }

    void places()
    {
        QFETCH(QRect, cell);
        QFETCH(QRect, leftUp);
        QFETCH(QRect, rightUp);
        QFETCH(QRect, leftDown);
        QFETCH(QRect, rightDown);
        const CabinetLabel label{QStringLiteral("C"), QStringLiteral("5")};

        const auto centre = placedLabel(label, 0, cell);
        QCOMPARE(int(centre.size()), 1);
        QCOMPARE(centre[0].box, cell);
        QCOMPARE(centre[0].alignment, int(Qt::AlignCenter));
        QCOMPARE(centre[0].head + centre[0].tail, QStringLiteral("C-5"));

        const auto downwards = placedLabel(label, 1, cell);
        QCOMPARE(int(downwards.size()), 2);
        QCOMPARE(downwards[0].box, leftUp);
        QCOMPARE(downwards[0].alignment, int(Qt::AlignLeft | Qt::AlignTop));
        QCOMPARE(downwards[0].head + downwards[0].tail, QStringLiteral("C"));
        QCOMPARE(downwards[1].box, rightDown);
        QCOMPARE(downwards[1].alignment, int(Qt::AlignRight | Qt::AlignBottom));
        QCOMPARE(downwards[1].head + downwards[1].tail, QStringLiteral("5"));

        const auto upwards = placedLabel(label, 2, cell);
        QCOMPARE(int(upwards.size()), 2);
        QCOMPARE(upwards[0].box, leftDown);
        QCOMPARE(upwards[0].alignment, int(Qt::AlignLeft | Qt::AlignBottom));
        QCOMPARE(upwards[0].head + upwards[0].tail, QStringLiteral("C"));
        QCOMPARE(upwards[1].box, rightUp);
        QCOMPARE(upwards[1].alignment, int(Qt::AlignRight | Qt::AlignTop));
        QCOMPARE(upwards[1].head + upwards[1].tail, QStringLiteral("5"));

        QVERIFY(placedLabel(label, 3, cell).empty());
        QVERIFY(placedLabel(label, unknown, cell).empty());
    }

    void everyStyleInEveryPlace_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<uint>("sort");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("column");
        // the cabinet in row 2, column 3 of 30 x 30
        const char* const expected[3][4][2] = {{{"C", "D"}, {"C", "W"}, {"X", "D"}, {"X", "W"}},
                                               {{"3", "4"}, {"3", "27"}, {"28", "4"}, {"28", "27"}},
                                               {{"C", "4"}, {"C", "27"}, {"x", "4"}, {"x", "27"}}};
        for (uint mode = 0; mode < 3; ++mode) {
            for (uint sort = 0; sort < 4; ++sort) {
                QTest::newRow(qPrintable(QStringLiteral("mode %1, sort %2").arg(mode).arg(sort)))
                    << mode << sort << QString::fromLatin1(expected[mode][sort][0])
                    << QString::fromLatin1(expected[mode][sort][1]);
            }
        }
    }

    void everyStyleInEveryPlace()
    {
        QFETCH(uint, mode);
        QFETCH(uint, sort);
        QFETCH(QString, row);
        QFETCH(QString, column);
        const CabinetGrid grid{QSize(900, 600), 30, 30};
        const auto label = cabinetLabel({mode, sort, 0}, 2, 3, 30, 30);
        QVERIFY(label.has_value());
        QStringList texts;
        QList<QRect> boxes;
        for (uint position = 0; position < 3; ++position) {
            for (const PlacedText& placed : placedLabel(*label, position, grid.cell(2, 3))) {
                texts << placed.head + placed.tail;
                boxes << placed.box;
            }
        }
        QCOMPARE(texts, QStringList({row + QLatin1Char('-') + column, row, column, row, column}));
        QCOMPARE(boxes, QList<QRect>({QRect(90, 40, 30, 20), QRect(90, 40, 15, 10), QRect(105, 50, 15, 10),
                                      QRect(90, 50, 15, 10), QRect(105, 40, 15, 10)}));
    }

    void cells_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QPoint>("cell");
        QTest::addColumn<QRect>("box");
        const auto row = [](const char* name, const QSize& chart, int rows, int columns, const QPoint& cell,
                            const QRect& box) {
            QTest::newRow(name) << chart << rows << columns << cell << box;
        };
        row("whole cells, first", {1920, 1080}, 9, 16, {0, 0}, {0, 0, 120, 120});
        row("whole cells, last", {1920, 1080}, 9, 16, {15, 8}, {1800, 960, 120, 120});
        row("truncated, second", {1000, 701}, 30, 30, {1, 1}, {33, 23, 33, 23});
        row("truncated, with a gap to the next", {1000, 701}, 30, 30, {2, 2}, {66, 46, 33, 23});
        row("truncated, third after the gap", {1000, 701}, 30, 30, {3, 3}, {100, 70, 33, 23});
        row("truncated, last", {1000, 701}, 30, 30, {29, 29}, {966, 677, 33, 23});
        row("portrait", {1080, 1920}, 16, 9, {8, 15}, {960, 1800, 120, 120});
        row("1 x 1", {1920, 1080}, 1, 1, {0, 0}, {0, 0, 1920, 1080});
        row("100 x 100, last", {1920, 1080}, 100, 100, {99, 99}, {1900, 1069, 19, 10});
        row("100 x 100 on the largest chart, last", {4320, 4320}, 100, 100, {99, 99}, {4276, 4276, 43, 43});
        row("cells below a pixel", {5, 3}, 9, 16, {15, 8}, {4, 2, 0, 0});
        row("no rows", {1920, 1080}, 0, 16, {3, 0}, {360, 0, 120, 0});
        row("no columns", {1920, 1080}, 9, 0, {0, 3}, {0, 360, 0, 120});
        row("empty chart", {0, 0}, 9, 16, {15, 8}, {0, 0, 0, 0});
    }

    void cells()
    {
        QFETCH(QSize, chart);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(QPoint, cell);
        QFETCH(QRect, box);
        const CabinetGrid grid{chart, ushort(rows), ushort(columns)};
        QCOMPARE(grid.cell(cell.y(), cell.x()), box);
    }

    void cellSizes_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("width");
        QTest::newRow("usual") << 9 << 16 << 120.0 << 120.0;
        QTest::newRow("not rounded") << 7 << 11 << 1080.0 / 7.0 << 1920.0 / 11.0;
        QTest::newRow("1 x 1") << 1 << 1 << 1080.0 << 1920.0;
        QTest::newRow("100 x 100") << 100 << 100 << 10.8 << 19.2;
        QTest::newRow("none counts as 65536") << 0 << 0 << 1080.0 / 65536.0 << 1920.0 / 65536.0;
        QTest::newRow("most") << 65535 << 65535 << 1080.0 / 65535.0 << 1920.0 / 65535.0;
    }

    void cellSizes()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(double, height);
        QFETCH(double, width);
        const CabinetGrid grid{QSize(1920, 1080), ushort(rows), ushort(columns)};
        QCOMPARE(grid.cellHeight(), height);
        QCOMPARE(grid.cellWidth(), width);
    }

    void fittedSize_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QSize>("limits"); // of the pair of letters
        const auto row = [](const char* name, const QSize& chart, int rows, int columns,
                            const QSize& limits) {
            QTest::newRow(name) << chart << rows << columns << limits;
        };
        row("cells of 100 x 100", {1600, 900}, 9, 16, {50, 51});
        row("cells of 120 x 120", {1920, 1080}, 9, 16, {60, 61});
        row("wide cells, the height decides", {1920, 1080}, 40, 2, {480, 13});
        row("high cells, the width decides", {1920, 1080}, 2, 60, {16, 275});
        row("fractional cells", {1000, 701}, 30, 30, {16, 11});
        row("cells of 43.2 x 43.2", {4320, 4320}, 100, 100, {21, 22});
        row("one cell", {640, 360}, 1, 1, {320, 183});
        row("limits of 4", {160, 72}, 9, 20, {4, 4});
        row("limits of 1", {32, 18}, 9, 16, {1, 1});
        row("cells below a pixel", {5, 3}, 9, 16, {0, 0});
        row("no rows", {1600, 900}, 0, 16, {50, 0});
        row("no columns", {1600, 900}, 9, 0, {0, 51});
    }

    void fittedSize()
    {
        QFETCH(QSize, chart);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(QSize, limits);
        const CabinetGrid grid{chart, ushort(rows), ushort(columns)};
        QFont condensed(QStringLiteral("DejaVu Serif"), 11, QFont::Bold, true);
        condensed.setStretch(QFont::Condensed);
        for (const QFont& font : {QFont(), condensed}) {
            for (const int requested : {0, 1, 2, 3, 7, 15, 16, 20, 33, 64, 100, 301}) {
                const int expected = steppedSize(requested, font, limits.height(), limits.width());
                QCOMPARE(fittedLabelSize(requested, font, grid), expected);
            }
        }
    }

    void fittedSizeIsBetweenRequestAndOne()
    {
        const CabinetGrid tiny{QSize(5, 3), 9, 16};
        const CabinetGrid large{QSize(4320, 4320), 1, 1};
        QCOMPARE(fittedLabelSize(100, QFont(), tiny), 1);
        QCOMPARE(fittedLabelSize(1, QFont(), tiny), 1);
        QCOMPARE(fittedLabelSize(0, QFont(), tiny), 0);
        QCOMPARE(fittedLabelSize(0, QFont(), large), 0);
        QCOMPARE(fittedLabelSize(1, QFont(), large), 1);
        QCOMPARE(fittedLabelSize(300, QFont(), large), 300);
    }

    /// Every 16-bit size may be asked for; none may stop the interface.
    void hugeSizeIsFitted()
    {
        const CabinetGrid grid{QSize(1600, 900), 9, 16};
        const int fitted = fittedLabelSize(65535, QFont(), grid);
        QCOMPARE(fitted, steppedSize(300, QFont(), 51, 50));
    }
};

VD_TEST_MAIN(TestCabinetLabels)
#include "tst_cabinetlabels.moc"
