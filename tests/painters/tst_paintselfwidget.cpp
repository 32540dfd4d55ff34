#include "findink.h"
#include "language.h"
#include "layerprotocol.h"
#include "paintselfwidget.h"
#include "testcase.h"

#include <QFontMetrics>

using namespace vardeno::testcharttools;

using TextChange = std::function<void(PaintSelfWidget& layer)>;
Q_DECLARE_METATYPE(TextChange)

namespace {

const QString defaultText = QStringLiteral("www.example.com");

QFont chartFont(int pixelSize)
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setFamily(QStringLiteral("Arail"));
    return font;
}

/// A text that is expected on the chart, `below` pixels under the layer's centre line.
struct Line
{
    QString text;
    int pixelSize;
    int below = 0;
    QColor color = Qt::black;
};

QImage drawnLines(const QSize& size, const QList<Line>& lines)
{
    return drawnPicture(size, [&](QPainter& painter) {
        const int middle = size.width() / 2;
        painter.translate(middle, size.height() / 1.5);
        for (const Line& line : lines) {
            painter.setFont(chartFont(line.pixelSize));
            painter.setPen(line.color);
            const QFontMetrics metrics(painter.font());
            painter.drawText(-(metrics.horizontalAdvance(line.text) / 2), line.below + metrics.height() / 2,
                             line.text);
        }
    });
}

/// The size that is left of `requested` when the text has been made to fit; 0 where not even one pixel does.
int steppedSize(const QString& text, int requested, const QSize& size)
{
    for (int pixelSize = requested; pixelSize > 0; --pixelSize) {
        const QFontMetrics metrics(chartFont(pixelSize));
        if (metrics.horizontalAdvance(text) <= size.width() && metrics.height() <= size.height())
            return pixelSize;
    }
    return 0;
}

void showOnlyText(PaintSelfWidget& layer, bool text, bool information)
{
    layer.setSelfTextVisible(text);
    layer.setResolutionVisible(information);
}

} // namespace

class TestPaintSelfWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void startsWithBothLines()
    {
        const QSize size(1920, 1080);
        PaintSelfWidget layer;
        QCOMPARE(layer.selfTextSize(), 70);
        QCOMPARE(layer.resolutionSize(), 50);
        pictureAt(size, layer);
        QCOMPARE(layer.selfTextSize(), 70);
        QCOMPARE(layer.resolutionSize(), 50);
        // From 64 pixels on the toolkit draws outlines, whose pixels depend on what was drawn before.
        layer.setSelfTextSize(60);
        VD_COMPARE_IMAGES(
            layerImage(layer),
            drawnLines(size, {{defaultText, 60}, {QStringLiteral(":1920*1080 :144"), 50, 180}}));
    }

    void information_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<bool>("boxNum");
        QTest::addColumn<QString>("captions"); // both, with a comma; empty before the first retranslation
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QSize& size, int rows, int columns, bool boxNum,
                            const char* captions, const char* text) {
            QTest::newRow(name) << size << rows << columns << boxNum << QString::fromUtf8(captions)
                                << QString::fromUtf8(text);
        };
        row("1920 x 1080", {1920, 1080}, 9, 16, true, "Resolution,Cabinets",
            "Resolution:1920*1080 Cabinets:144");
        row("without the cabinets", {1920, 1080}, 9, 16, false, "Resolution,Cabinets",
            "Resolution:1920*1080");
        row("before a translation", {1920, 1080}, 9, 16, true, "", ":1920*1080 :144");
        row("before a translation, without the cabinets", {1920, 1080}, 9, 16, false, "", ":1920*1080");
        row("portrait", {1080, 1920}, 16, 9, true, "Resolution,Cabinets",
            "Resolution:1080*1920 Cabinets:144");
        row("its own size, not the usual one", {801, 333}, 3, 5, true, "R,B", "R:801*333 B:15");
        row("1 x 1 cabinet", {800, 450}, 1, 1, true, "R,B", "R:800*450 B:1");
        row("100 x 100 cabinets", {800, 450}, 100, 100, true, "R,B", "R:800*450 B:10000");
        row("no rows", {800, 450}, 0, 16, true, "R,B", "R:800*450 B:0");
        row("no columns", {800, 450}, 9, 0, true, "R,B", "R:800*450 B:0");
        row("most cabinets", {1920, 1080}, 65535, 65535, true, "R,B", "R:1920*1080 B:4294836225");
        row("other letters", {800, 450}, 9, 16, true, "分辨率,箱体", "分辨率:800*450 箱体:144");
        row("captions with per cent signs", {800, 450}, 9, 16, true, "100%2,%1 %3",
            "100%2:800*450 %1 %3:144");
    }

    void information()
    {
        QFETCH(QSize, size);
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(bool, boxNum);
        QFETCH(QString, captions);
        QFETCH(QString, text);
        PaintSelfWidget layer;
        showOnlyText(layer, false, true);
        layer.setBoxNumVisible(boxNum);
        layer.setResolutionSize(30);
        layer.setRows(ushort(rows));
        layer.setColumns(ushort(columns));
        if (!captions.isEmpty()) {
            QVERIFY(speak({{QStringLiteral("ResolutionShow"), captions.section(QLatin1Char(','), 0, 0)},
                           {QStringLiteral("BoxNumShow"), captions.section(QLatin1Char(','), 1)}}));
            layer.retranslate();
        }
        const QImage image = pictureAt(size, layer);
        QCOMPARE(layer.resolutionSize(), 30);
        VD_COMPARE_IMAGES(image, drawnLines(size, {{text, 30, size.height() / 6}}));
    }

    void retranslates()
    {
        const QSize size(800, 450);
        PaintSelfWidget layer;
        showOnlyText(layer, false, true);
        layer.setResolutionSize(30);
        pictureAt(size, layer);
        const auto shows = [&](const char* text) {
            return imageDifference(layerImage(layer),
                                   drawnLines(size, {{QString::fromLatin1(text), 30, 75}}));
        };
        layer.retranslate(); // no language: the keys
        QCOMPARE(shows("ResolutionShow:800*450 BoxNumShow:144"), QString());
        QVERIFY(speak({{QStringLiteral("ResolutionShow"), QStringLiteral("Size")},
                       {QStringLiteral("BoxNumShow"), QStringLiteral("Boxes")}}));
        QCOMPARE(shows("ResolutionShow:800*450 BoxNumShow:144"), QString());
        layer.retranslate();
        QCOMPARE(shows("Size:800*450 Boxes:144"), QString());
        layer.setBoxNumVisible(false);
        QCOMPARE(shows("Size:800*450"), QString());
    }

    void visibility_data()
    {
        QTest::addColumn<bool>("text");
        QTest::addColumn<bool>("resolution");
        QTest::addColumn<bool>("boxNum");
        QTest::addColumn<QString>("information");
        const QString both = QStringLiteral(":900*600 :144");
        QTest::newRow("everything") << true << true << true << both;
        QTest::newRow("no text") << false << true << true << both;
        QTest::newRow("no cabinets") << true << true << false << QStringLiteral(":900*600");
        QTest::newRow("cabinets without the resolution") << true << false << true << QString();
        QTest::newRow("text only") << true << false << false << QString();
        QTest::newRow("only cabinets, which is nothing") << false << false << true << QString();
        QTest::newRow("nothing") << false << false << false << QString();
    }

    void visibility()
    {
        QFETCH(bool, text);
        QFETCH(bool, resolution);
        QFETCH(bool, boxNum);
        QFETCH(QString, information);
        const QSize size(900, 600);
        PaintSelfWidget layer;
        layer.setSelfTextSize(40);
        layer.setSelfTextVisible(text);
        layer.setResolutionVisible(resolution);
        layer.setBoxNumVisible(boxNum);
        QList<Line> lines;
        if (text)
            lines << Line{defaultText, 40};
        if (!information.isEmpty())
            lines << Line{information, 50, 100};
        VD_COMPARE_IMAGES(pictureAt(size, layer), drawnLines(size, lines));
    }

    void colours()
    {
        const QSize size(900, 600);
        PaintSelfWidget layer;
        layer.setSelfTextSize(40);
        layer.setSelfTextColor(Qt::red);
        layer.setResolutionColor(QColor(0, 0, 255, 120));
        layer.setBoxNumColor(Qt::green);
        VD_COMPARE_IMAGES(pictureAt(size, layer), drawnLines(size, {{defaultText, 40, 0, Qt::red},
                                                                    {QStringLiteral(":900*600 :144"), 50, 100,
                                                                     QColor(0, 0, 255, 120)}}));
    }

    /// Around the middle of the chart, two thirds of its height down, and a sixth of it below that.
    void linesAreCentred_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("landscape") << QSize(1920, 1080);
        QTest::newRow("portrait") << QSize(1080, 1920);
        QTest::newRow("odd") << QSize(1001, 701);
    }

    void linesAreCentred()
    {
        QFETCH(QSize, size);
        for (const bool information : {false, true}) {
            PaintSelfWidget layer;
            showOnlyText(layer, !information, information);
            layer.setSelfText(QStringLiteral("HHHH"));
            layer.setSelfTextSize(60);
            const QRect ink = inkBounds(pictureAt(size, layer));
            QVERIFY(qAbs(ink.left() + ink.right() + 1 - size.width()) <= 12);
            const double line = size.height() / 1.5 + (information ? size.height() / 6 : 0);
            QVERIFY(ink.top() < line + 10 && ink.bottom() > line);
            QVERIFY(ink.bottom() < line + 45 && ink.top() > line - 45);
        }
    }

    void fittedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("requested");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("shrinks");
        const QSize usual(900, 600);
        QTest::newRow("fits") << defaultText << 60 << usual << false;
        QTest::newRow("wider than the chart") << QString(60, QLatin1Char('W')) << 60 << usual << true;
        QTest::newRow("higher than the chart") << defaultText << 60 << QSize(1900, 30) << true;
        QTest::newRow("wider than a narrow chart") << defaultText << 60 << QSize(40, 600) << true;
        QTest::newRow("in a chart of 3 x 3") << defaultText << 60 << QSize(3, 3) << true;
        QTest::newRow("50 characters") << QString(50, QLatin1Char('x')) << 60 << usual << true;
        QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('x')) << 60 << usual << true;
        QTest::newRow("right to left")
            << QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd 123").repeated(3) << 60
            << usual << true;
        QTest::newRow("combining") << QString::fromUtf8("e\u0301x\u0323\u0302a\u0300") << 60 << usual
                                   << false;
        QTest::newRow("emoji") << QString::fromUtf8("\U0001F600\U0001F468\u200D\U0001F469") << 60 << usual
                               << false;
        QTest::newRow("half a pair") << QString(QChar(0xd83d)) << 60 << usual << false;
        QTest::newRow("two lines in one") << QStringLiteral("A\nB\tC") << 60 << usual << false;
        QTest::newRow("1 pixel") << defaultText << 1 << usual << false;
    }

    void fittedText()
    {
        QFETCH(QString, text);
        QFETCH(int, requested);
        QFETCH(QSize, size);
        QFETCH(bool, shrinks);
        PaintSelfWidget layer;
        showOnlyText(layer, true, false);
        layer.setSelfTextSize(ushort(requested));
        layer.setSelfText(text);
        const QImage image = pictureAt(size, layer);
        const int fitted = steppedSize(text, requested, size);
        QCOMPARE(layer.selfTextSize(), fitted);
        QCOMPARE(layer.selfTextSize() < requested, shrinks);
        VD_COMPARE_IMAGES(image, drawnLines(size, {{text, qMax(fitted, 1)}}));
    }

    void fittedInformation()
    {
        const QSize size(200, 300);
        const QString text = QStringLiteral(":200*300 :144");
        PaintSelfWidget layer;
        showOnlyText(layer, false, true);
        const QImage image = pictureAt(size, layer);
        const int fitted = steppedSize(text, 50, size);
        QVERIFY(fitted < 50);
        QCOMPARE(layer.resolutionSize(), fitted);
        VD_COMPARE_IMAGES(image, drawnLines(size, {{text, fitted, 50}}));
        layer.setBoxNumVisible(false); // a shorter line, and the requested size was kept
        QCOMPARE(layer.resolutionSize(), steppedSize(QStringLiteral(":200*300"), 50, size));
        QVERIFY(layer.resolutionSize() > fitted);
    }

    void sizesAreThoseOfTheLastRender()
    {
        PaintSelfWidget layer;
        pictureAt({900, 600}, layer);
        layer.setSelfText(QString(60, QLatin1Char('W')));
        const int small = layer.selfTextSize();
        QVERIFY(small < 70);
        layer.setSelfTextVisible(false);
        layer.setSelfText(defaultText);
        QCOMPARE(layer.selfTextSize(), small);
        layer.setSelfTextVisible(true);
        QCOMPARE(layer.selfTextSize(), 70);
        layer.setResolutionVisible(false);
        layer.setResolutionSize(20);
        QCOMPARE(layer.resolutionSize(), 50);
        layer.setResolutionVisible(true);
        QCOMPARE(layer.resolutionSize(), 20);
    }

    void emptyTextDrawsNothing()
    {
        const QSize size(900, 600);
        PaintSelfWidget layer;
        showOnlyText(layer, true, false);
        layer.setSelfText(QString());
        QCOMPARE(inkBounds(pictureAt(size, layer)), QRect());
        QCOMPARE(layer.selfTextSize(), 70);
        layer.setSelfText(QStringLiteral("x"));
        QVERIFY(!inkBounds(layerImage(layer)).isEmpty());
    }

    /// The toolkit refuses a pixel size of 0: the font keeps the default size.
    void sizeZeroDrawsInTheDefaultSize()
    {
        const QSize size(900, 600);
        PaintSelfWidget layer;
        layer.setSelfTextSize(0);
        layer.setResolutionSize(0);
        const QImage image = pictureAt(size, layer);
        QCOMPARE(layer.selfTextSize(), 0);
        QCOMPARE(layer.resolutionSize(), 0);
        QFont font;
        font.setFamily(QStringLiteral("Arail"));
        VD_COMPARE_IMAGES(image, drawnPicture(size, [&](QPainter& painter) {
                              painter.translate(450, 400);
                              painter.setFont(font);
                              const QFontMetrics metrics(font);
                              const QString information = QStringLiteral(":900*600 :144");
                              painter.drawText(-(metrics.horizontalAdvance(defaultText) / 2),
                                               metrics.height() / 2, defaultText);
                              painter.drawText(-(metrics.horizontalAdvance(information) / 2),
                                               100 + metrics.height() / 2, information);
                          }));
    }

    void setters_data()
    {
        QTest::addColumn<TextChange>("change");
        const auto row = [](const char* name, const TextChange& change) { QTest::newRow(name) << change; };
        row("text visible", [](PaintSelfWidget& layer) { layer.setSelfTextVisible(false); });
        row("text", [](PaintSelfWidget& layer) { layer.setSelfText(QStringLiteral("x")); });
        row("text colour", [](PaintSelfWidget& layer) { layer.setSelfTextColor(Qt::red); });
        row("text size", [](PaintSelfWidget& layer) { layer.setSelfTextSize(20); });
        row("resolution visible", [](PaintSelfWidget& layer) { layer.setResolutionVisible(false); });
        row("resolution colour", [](PaintSelfWidget& layer) { layer.setResolutionColor(Qt::red); });
        row("resolution size", [](PaintSelfWidget& layer) { layer.setResolutionSize(20); });
        row("cabinets visible", [](PaintSelfWidget& layer) { layer.setBoxNumVisible(false); });
        row("rows", [](PaintSelfWidget& layer) { layer.setRows(5); });
        row("columns", [](PaintSelfWidget& layer) { layer.setColumns(4); });
    }

    void setters()
    {
        QFETCH(TextChange, change);
        CountedLayer<PaintSelfWidget> layer;
        pictureAt({640, 360}, layer);
        verifyRendersOnce(layer, change);
    }

    void cabinetColourIsKeptButNotDrawn()
    {
        CountedLayer<PaintSelfWidget> layer;
        const QImage before = pictureAt({640, 360}, layer);
        layer.renders = 0;
        layer.setBoxNumColor(Qt::red);
        QCOMPARE(layer.renders, 1);
        layer.setBoxNumColor(Qt::red);
        QCOMPARE(layer.renders, 1);
        VD_COMPARE_IMAGES(layerImage(layer), before);
    }

    void defaultsAreNotRenderedAgain()
    {
        CountedLayer<PaintSelfWidget> layer;
        pictureAt({64, 36}, layer);
        layer.renders = 0;
        showOnlyText(layer, true, true);
        layer.setBoxNumVisible(true);
        layer.setSelfText(defaultText);
        layer.setSelfTextColor(Qt::black);
        layer.setSelfTextSize(70);
        layer.setResolutionColor(Qt::black);
        layer.setResolutionSize(50);
        layer.setBoxNumColor(Qt::black);
        layer.setRows(9);
        layer.setColumns(16);
        QCOMPARE(layer.renders, 0);
    }

    void showRenders()
    {
        CountedLayer<PaintSelfWidget> layer;
        pictureAt({640, 360}, layer);
        const int before = layer.renders;
        const qint64 key = layer.pixmap(Qt::ReturnByValue).cacheKey();
        layer.show();
        QVERIFY(layer.renders > before);
        QVERIFY(layer.pixmap(Qt::ReturnByValue).cacheKey() != key);
    }

    void everyPaintReportsBeforeItPaints()
    {
        PaintSelfWidget layer;
        verifyPaintReports(layer);
    }
};

VD_TEST_MAIN(TestPaintSelfWidget)
#include "tst_paintselfwidget.moc"
