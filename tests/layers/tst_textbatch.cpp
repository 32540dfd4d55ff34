#include "geometry/cabinetlabels.h"
#include "layers/textbatch.h"
#include "testcase.h"

#include <QFontDatabase>
#include <QPainter>
#include <QtMath>

using namespace vardeno::testcharttools;

/// Batched texts against the toolkit's own drawing of each of them.
class TestTextBatch : public TestCase
{
    Q_OBJECT

private:
    template <typename Draw>
    static QImage drawn(const QSize& size, int pixelSize, Draw draw)
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        QFont font = painter.font();
        font.setPixelSize(pixelSize);
        painter.setFont(font);
        painter.setPen(Qt::black);
        draw(painter);
        painter.end();
        return pixmap.toImage();
    }

private Q_SLOTS:
    void cabinetLabels_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("pixelSize");
        for (uint position = 0; position < 3; ++position) {
            for (uint mode = 0; mode < 3; ++mode) {
                const auto name = [&](const char* grid) {
                    return QStringLiteral("%1, mode %2, position %3")
                        .arg(grid)
                        .arg(mode)
                        .arg(position)
                        .toUtf8();
                };
                QTest::newRow(name("whole cells").constData()) << QSize(1600, 900) << 9 << 16 << 15;
                QTest::newRow(name("fractional cells").constData()) << QSize(1000, 701) << 30 << 30 << 7;
                QTest::newRow(name("largest batched size").constData()) << QSize(1600, 900) << 3 << 4 << 63;
                QTest::newRow(name("wider than their cells").constData())
                    << QSize(400, 300) << 12 << 20 << 14;
                QTest::newRow(name("outlines").constData()) << QSize(1200, 900) << 2 << 2 << 80;
            }
        }
    }

    void cabinetLabels()
    {
        QFETCH(QSize, chart);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(int, pixelSize);
        const QStringList parts = QString::fromLatin1(QTest::currentDataTag()).split(QLatin1String(", "));
        LabelStyle style;
        style.mode = parts.at(1).right(1).toUInt();
        style.position = parts.at(2).right(1).toUInt();
        const CabinetGrid grid{chart, ushort(rows), ushort(columns)};
        std::vector<PlacedText> texts;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const auto label = cabinetLabel(style, row, column, rows, columns);
                for (const PlacedText& placed : placedLabel(*label, style.position, grid.cell(row, column)))
                    texts.push_back(placed);
            }
        }

        const QImage expected = drawn(chart, pixelSize, [&](QPainter& painter) {
            for (const PlacedText& text : texts)
                painter.drawText(text.box, text.alignment, text.head + text.tail);
        });
        const QImage batched = drawn(chart, pixelSize, [&](QPainter& painter) {
            TextBatch batch(painter);
            for (const PlacedText& text : texts)
                batch.add(text.box, text.alignment, text.head, text.tail);
            batch.draw();
        });
        VD_COMPARE_IMAGES(batched, expected);
    }

    void fonts_data()
    {
        QTest::addColumn<QFont>("font");
        const auto row = [](const char* name, auto change) {
            QFont font = QApplication::font();
            change(font);
            QTest::newRow(name) << font;
        };
        row("underlined", [](QFont& font) { font.setUnderline(true); });
        row("overlined", [](QFont& font) { font.setOverline(true); });
        row("struck out", [](QFont& font) { font.setStrikeOut(true); });
        row("bold italic", [](QFont& font) { font.setBold(true), font.setItalic(true); });
        row("letters apart", [](QFont& font) { font.setLetterSpacing(QFont::AbsoluteSpacing, 3); });
        row("small capitals", [](QFont& font) { font.setCapitalization(QFont::SmallCaps); });
        row("stretched", [](QFont& font) { font.setStretch(150); });
        for (const char* family : {"DejaVu Sans Mono", "DejaVu Serif", "Noto Sans CJK JP", "Noto Sans CJK SC",
                                   "Noto Serif CJK JP", "Noto Serif CJK SC"})
            row(family, [&](QFont& font) { font.setFamily(QLatin1String(family)); });
    }

    /// Some of which have other digits behind a letter.
    void fonts()
    {
        QFETCH(QFont, font);
        if (!QFontDatabase().families().contains(font.family()))
            QSKIP("there is no such font here");
        for (const int pixelSize : {9, 16, 30}) {
            const auto drawAll = [&](auto drawText) {
                return drawn({900, 420}, pixelSize, [&](QPainter& painter) {
                    font.setPixelSize(pixelSize);
                    painter.setFont(font);
                    drawText(painter);
                });
            };
            const CabinetGrid grid{{900, 420}, 12, 11};
            std::vector<PlacedText> texts;
            for (int row = 0; row < grid.rows; ++row) {
                for (int column = 0; column < grid.columns; ++column) {
                    const auto label = cabinetLabel({2, 0, 0}, row, column, grid.rows, grid.columns);
                    for (const PlacedText& placed : placedLabel(*label, 0, grid.cell(row, column)))
                        texts.push_back(placed);
                }
            }
            const QImage expected = drawAll([&](QPainter& painter) {
                for (const PlacedText& text : texts)
                    painter.drawText(text.box, text.alignment, text.head + text.tail);
            });
            const QImage batched = drawAll([&](QPainter& painter) {
                TextBatch batch(painter);
                for (const PlacedText& text : texts)
                    batch.add(text.box, text.alignment, text.head, text.tail);
                batch.draw();
            });
            VD_COMPARE_IMAGES(batched, expected);
        }
    }

    void inkBesideItsBoxIsClipped_data()
    {
        QTest::addColumn<QString>("head");
        QTest::addColumn<QString>("tail");
        QTest::newRow("one text") << QStringLiteral("J") << QString();
        QTest::newRow("two parts") << QStringLiteral("A-") << QStringLiteral("f");
    }

    /// Glyphs reach beyond the width that the text takes.
    void inkBesideItsBoxIsClipped()
    {
        QFETCH(QString, head);
        QFETCH(QString, tail);
        const int alignment = Qt::AlignLeft | Qt::AlignTop;
        for (int pixelSize = 1; pixelSize < 64; ++pixelSize) {
            QFont font = QApplication::font();
            font.setPixelSize(pixelSize);
            const int width = qCeil(QFontMetricsF(font).horizontalAdvance(head + tail));
            const QRect box(10, 5, width, 90);
            const QImage expected = drawn({200, 100}, pixelSize, [&](QPainter& painter) {
                painter.drawText(box, alignment, head + tail);
            });
            const QImage batched = drawn({200, 100}, pixelSize, [&](QPainter& painter) {
                TextBatch batch(painter);
                batch.add(box, alignment, head, tail);
                batch.draw();
            });
            VD_COMPARE_IMAGES(batched, expected);
        }
    }

    void tinyBoxes_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::newRow("left, top") << int(Qt::AlignLeft | Qt::AlignTop);
        QTest::newRow("centre") << int(Qt::AlignCenter);
        QTest::newRow("right, bottom") << int(Qt::AlignRight | Qt::AlignBottom);
        QTest::newRow("left, centre") << int(Qt::AlignLeft | Qt::AlignVCenter);
        QTest::newRow("right, centre") << int(Qt::AlignRight | Qt::AlignVCenter);
    }

    /// Where a text takes about as much room as its box has.
    void tinyBoxes()
    {
        QFETCH(int, alignment);
        const QStringList texts = {QStringLiteral("1"), QStringLiteral("J-"), QStringLiteral("W7"),
                                   QStringLiteral("f-12"), QStringLiteral("24-A")};
        for (int pixelSize = 1; pixelSize <= 16; ++pixelSize) {
            std::vector<QRect> boxes;
            for (int width = 0; width <= 30; ++width) {
                for (int height = 0; height <= 20; ++height)
                    boxes.emplace_back(width * 32, height * 32, width, height);
            }
            const auto drawBoxes = [&](auto drawText) {
                for (std::size_t i = 0; i < boxes.size(); ++i)
                    drawText(boxes[i], texts.at(int(i) % texts.size()));
            };
            const QImage expected = drawn({1000, 700}, pixelSize, [&](QPainter& painter) {
                drawBoxes(
                    [&](const QRect& box, const QString& text) { painter.drawText(box, alignment, text); });
            });
            const QImage batched = drawn({1000, 700}, pixelSize, [&](QPainter& painter) {
                TextBatch batch(painter);
                drawBoxes([&](const QRect& box, const QString& text) {
                    batch.add(box, alignment, text.left(2), text.mid(2));
                });
                batch.draw();
            });
            const QString difference = imageDifference(batched, expected);
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("%1 pixels: %2").arg(pixelSize).arg(difference)));
        }
    }

    void anyText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("blank") << QStringLiteral(" ");
        QTest::newRow("kerned") << QStringLiteral("AVAToWa.");
        QTest::newRow("two fonts") << QStringLiteral("A屏1");
        QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1-1");
        QTest::newRow("combining") << QString::fromUtf8("e\u0301-x\u0323");
        QTest::newRow("two lines") << QStringLiteral("A\nB");
    }

    void anyText()
    {
        QFETCH(QString, text);
        for (const int alignment : {int(Qt::AlignCenter), int(Qt::AlignLeft | Qt::AlignTop),
                                    int(Qt::AlignRight | Qt::AlignBottom)}) {
            const QRect box(7, 5, 161, 43);
            const QImage expected =
                drawn({200, 60}, 17, [&](QPainter& painter) { painter.drawText(box, alignment, text); });
            const QImage batched = drawn({200, 60}, 17, [&](QPainter& painter) {
                TextBatch batch(painter);
                batch.add(box, alignment, QStringLiteral("A"));
                batch.add(box, alignment, text);
                batch.draw();
            });
            const QImage both = drawn({200, 60}, 17, [&](QPainter& painter) {
                painter.drawText(box, alignment, QStringLiteral("A"));
                painter.drawText(box, alignment, text);
            });
            QVERIFY(text.trimmed().isEmpty() || expected != drawn({200, 60}, 17, [](QPainter&) {}));
            VD_COMPARE_IMAGES(batched, both);
        }
    }
};

VD_TEST_MAIN(TestTextBatch)
#include "tst_textbatch.moc"
