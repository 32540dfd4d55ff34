#include "painttextlogowidget.h"
#include "testcase.h"

#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>

#include <climits>

using namespace vardeno::testcharttools;

namespace {

const QString atFirst = QStringLiteral("VardenoRT5Pro");

/// The chart's text font; 0 leaves the program's own size.
QFont logoFont(int pixelSize)
{
    QFont font;
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    font.setFamily(QStringLiteral("Arail"));
    return font;
}

bool fits(const QString& text, int pixelSize, const QSize& chart)
{
    const QFontMetrics metrics(logoFont(pixelSize));
    return metrics.horizontalAdvance(text) <= chart.width() * 0.8 && metrics.height() <= chart.height() * 0.8;
}

/// Where the ink is; null for a picture without any.
QRect inkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int largestAlpha(const QImage& image)
{
    int largest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            largest = qMax(largest, image.pixelColor(x, y).alpha());
    }
    return largest;
}

/// `text` drawn with its baseline starting at `at`, from the chart's centre.
QImage drawn(const QSize& chart, const QString& text, int pixelSize, const QColor& color, const QPoint& at)
{
    QPixmap pixmap(chart);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.translate(chart.width() / 2, chart.height() / 2);
    painter.setPen(color);
    painter.setFont(logoFont(pixelSize));
    painter.drawText(at, text);
    painter.end();
    return pixmap.toImage();
}

qint64 textPictureKey(const PaintTextLogoWidget& layer)
{
    return layer.pixmap(Qt::ReturnByValue).cacheKey();
}

} // namespace

/// The text logo: its alpha, its size, and where it stands.
class TestPaintTextLogoWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void alpha_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("alpha");
        QTest::newRow("0 %") << 0 << 0;
        QTest::newRow("1 %") << 1 << 2;
        QTest::newRow("50 %") << 50 << 127;
        QTest::newRow("99 %") << 99 << 252;
        QTest::newRow("100 %") << 100 << 254;
    }

    void alpha()
    {
        QFETCH(int, percent);
        QFETCH(int, alpha);
        PaintTextLogoWidget layer;
        layer.resize(640, 200);
        layer.setTextColor(QColor(200, 0, 0));
        layer.setOpacity(percent);
        layer.setTextSize(60);
        QCOMPARE(largestAlpha(layerImage(layer)), alpha);
        QCOMPARE(inkOf(layerImage(layer)).isNull(), alpha == 0);

        const QFontMetrics metrics(logoFont(60));
        const QPoint centred(-(metrics.horizontalAdvance(atFirst) / 2), metrics.height() / 2);
        VD_COMPARE_IMAGES(layerImage(layer),
                          drawn({640, 200}, atFirst, 60, QColor(200, 0, 0, alpha), centred));
    }

    void everyRenderOverwritesTheColorsAlpha()
    {
        PaintTextLogoWidget layer;
        layer.resize(640, 200);
        layer.setTextColor(QColor(200, 0, 0, 10));
        QCOMPARE(largestAlpha(layerImage(layer)), 254);

        // The stored colour has the opacity's alpha now, and is compared with it.
        const qint64 rendered = textPictureKey(layer);
        layer.setTextColor(QColor(200, 0, 0, 254));
        QCOMPARE(textPictureKey(layer), rendered);
        layer.setTextColor(QColor(200, 0, 0));
        QVERIFY(textPictureKey(layer) != rendered);
        QCOMPARE(largestAlpha(layerImage(layer)), 254);
    }

    void startsBlackInTheCentre()
    {
        PaintTextLogoWidget layer;
        layer.resize(1920, 1080);
        layer.render();
        const QFontMetrics metrics(logoFont(100));
        const QPoint centred(-(metrics.horizontalAdvance(atFirst) / 2), metrics.height() / 2);
        VD_COMPARE_IMAGES(layerImage(layer),
                          drawn({1920, 1080}, atFirst, 100, QColor(0, 0, 0, 254), centred));
        QCOMPARE(layer.fittedSize(), 100);
        QVERIFY(!inkOf(layerImage(layer)).isNull());
    }

    void fitting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("requested");
        QTest::addColumn<QSize>("chart");
        QTest::newRow("fits") << QStringLiteral("RT5") << 60 << QSize(640, 480);
        QTest::newRow("too wide") << atFirst << 100 << QSize(320, 480);
        QTest::newRow("much too wide") << QString(100, QLatin1Char('W')) << 100 << QSize(1920, 1080);
        QTest::newRow("too high") << QStringLiteral("I") << 100 << QSize(640, 60);
        QTest::newRow("too wide and too high") << atFirst << 100 << QSize(90, 20);
        QTest::newRow("a tall chart") << atFirst << 100 << QSize(108, 1920);
    }

    void fitting()
    {
        QFETCH(QString, text);
        QFETCH(int, requested);
        QFETCH(QSize, chart);
        PaintTextLogoWidget layer;
        layer.resize(chart);
        layer.setText(text);
        layer.setTextSize(requested - 1); // a change, whatever was there
        layer.setTextSize(requested);
        const int fitted = layer.fittedSize();
        QVERIFY(fitted >= 1 && fitted <= requested);
        QVERIFY(fits(text, fitted, chart));
        QCOMPARE(fitted == requested, fits(text, requested, chart));
        if (fitted < requested)
            QVERIFY(!fits(text, fitted + 1, chart));
        const QRect ink = inkOf(layerImage(layer));
        QVERIFY(!ink.isNull());
        QVERIFY(ink.width() <= chart.width() * 0.8 + 2 && ink.height() <= chart.height() * 0.8);
    }

    /// As large as 80 % of the chart still fits: only more than that is reduced.
    void limitItselfFits()
    {
        const QFontMetrics metrics(logoFont(40));
        const int advance = metrics.horizontalAdvance(atFirst);
        int width = advance * 5 / 4;
        while (width * 0.8 < advance)
            ++width;
        PaintTextLogoWidget layer;
        layer.resize(width, 400);
        layer.setTextSize(40);
        QCOMPARE(layer.fittedSize(), 40);
        while (width * 0.8 >= advance)
            --width;
        layer.resize(width, 400);
        layer.setTextSize(41);
        layer.setTextSize(40);
        QVERIFY(layer.fittedSize() < 40);
    }

    void anchors_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<QPoint>("shift");
        for (int anchor = -1; anchor <= 5; ++anchor) {
            const auto name = [anchor](const char* shift) {
                return QString(QStringLiteral("anchor %1, %2").arg(anchor).arg(QLatin1String(shift)))
                    .toUtf8();
            };
            QTest::newRow(name("as it is").constData()) << anchor << QPoint();
            QTest::newRow(name("shifted").constData()) << anchor << QPoint(17, 23);
            QTest::newRow(name("shifted back").constData()) << anchor << QPoint(-17, -23);
            QTest::newRow(name("as far as it goes").constData()) << anchor << QPoint(16384, 16384);
            QTest::newRow(name("limits of an int").constData()) << anchor << QPoint(INT_MIN, INT_MAX);
        }
    }

    void anchors()
    {
        QFETCH(int, anchor);
        QFETCH(QPoint, shift);
        const QSize chart(640, 360);
        PaintTextLogoWidget layer;
        layer.resize(chart);
        layer.setText(QStringLiteral("HAH"));
        layer.setTextSize(48);
        layer.setPosition(anchor);
        layer.setMoveX(shift.x());
        layer.setMoveY(shift.y());
        layer.render();

        const QFontMetrics metrics(logoFont(48));
        const int tw = metrics.horizontalAdvance(QStringLiteral("HAH"));
        const int th = metrics.height();
        const int lw = metrics.lineWidth();
        const double top = lw - (180 - th / 1.1);
        const int bottom = 180 - th / 5 - lw;
        const int right = 320 - lw - tw;
        QPoint origin;
        if (anchor == 0)
            origin = QPoint(-(tw / 2), th / 2);
        else if (anchor == 1)
            origin = QPoint(lw - 320, int(top));
        else if (anchor == 2)
            origin = QPoint(-320, bottom);
        else if (anchor == 3)
            origin = QPoint(right, int(top));
        else if (anchor == 4)
            origin = QPoint(right, bottom);
        const qint64 x = qBound(qint64(lw - 320), qint64(origin.x()) + shift.x(), qint64(right));
        const qint64 y = qBound(qint64(top), qint64(origin.y()) + shift.y(), qint64(bottom));
        const QPoint at{int(x), int(y)};
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), at - origin);
        VD_COMPARE_IMAGES(layerImage(layer),
                          drawn(chart, QStringLiteral("HAH"), 48, QColor(0, 0, 0, 254), at));
        const QRect ink = inkOf(layerImage(layer));
        QVERIFY(ink.width() > 30 && ink.height() > 30);
        QVERIFY(QRect(QPoint(), chart).contains(ink));
    }

    /// Seen from the ink alone: close to its corner, and off the other edges.
    void cornersByInk_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<QRect>("within");
        QTest::newRow("centre") << 0 << QRect(160, 90, 320, 180);
        QTest::newRow("left up") << 1 << QRect(0, 0, 320, 70);
        QTest::newRow("left down") << 2 << QRect(0, 290, 320, 70);
        QTest::newRow("right up") << 3 << QRect(320, 0, 320, 70);
        QTest::newRow("right down") << 4 << QRect(320, 290, 320, 70);
    }

    void cornersByInk()
    {
        QFETCH(int, anchor);
        QFETCH(QRect, within);
        PaintTextLogoWidget layer;
        layer.resize(640, 360);
        layer.setText(QStringLiteral("HAH"));
        layer.setTextSize(48);
        layer.setPosition(anchor);
        layer.render();
        const QRect ink = inkOf(layerImage(layer));
        QVERIFY(!ink.isNull());
        QVERIFY(within.contains(ink));
        if (anchor == 0)
            QVERIFY(qAbs(ink.center().x() - 320) <= 2);
        else
            QVERIFY(ink.left() <= 8 || ink.right() >= 631);
    }

    void leftAnchorsStartAtTheSameX()
    {
        QList<int> lefts;
        for (const int anchor : {1, 2}) {
            PaintTextLogoWidget layer;
            layer.resize(640, 360);
            layer.setPosition(anchor);
            layer.render();
            lefts.append(inkOf(layerImage(layer)).left());
        }
        QCOMPARE(lefts.at(0), lefts.at(1));
    }

    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("inked");
        QTest::newRow("none") << QString() << false;
        QTest::newRow("one character") << QStringLiteral("W") << true;
        QTest::newRow("50 characters") << QString(50, QLatin1Char('W')) << true;
        QTest::newRow("10000 characters") << QString(10000, QLatin1Char('W')) << true;
        QTest::newRow("10000 blanks") << QString(10000, QLatin1Char(' ')) << false;
        QTest::newRow("right to left")
            << QString::fromUtf8("\u05d1\u05d3\u05d9\u05e7\u05d4 \u0634\u0627\u0634\u0629") << true;
        QTest::newRow("both directions")
            << QString::fromUtf8("RT5 \u05d1\u05d3\u05d9\u05e7\u05d4 (9*16)") << true;
        QTest::newRow("combining") << QString::fromUtf8("e\u0301a\u0308\u0323o\u0302\u0303\u0304") << true;
        QTest::newRow("many combining on one") << QLatin1Char('e') + QString(200, QChar(0x0301)) << true;
        QTest::newRow("emoji")
            << QString::fromUtf8("\U0001F600 \U0001F468\u200D\U0001F469\u200D\U0001F467 \U0001F1E9\U0001F1EA")
            << true;
        QTest::newRow("half an emoji") << QString(QChar(0xd83d)) + QLatin1Char('A') << true;
        QTest::newRow("wide script") << QString::fromUtf8("屏幕测试图") << true;
        QTest::newRow("line breaks and tabs") << QStringLiteral("A\nB\tC") << true;
        QTest::newRow("null character") << QString::fromUtf8("A\0B", 3) << true;
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(bool, inked);
        const QSize chart(960, 540);
        PaintTextLogoWidget layer;
        layer.resize(chart);
        layer.setText(text);
        layer.grab();
        QCOMPARE(layerImage(layer).size(), chart);
        QCOMPARE(!inkOf(layerImage(layer)).isNull(), inked);
        const int fitted = layer.fittedSize();
        QVERIFY(fitted >= 0 && fitted <= 100);
        QVERIFY(fits(text, fitted, chart) || fitted == 0);
        if (fitted < 100)
            QVERIFY(!fits(text, fitted + 1, chart));
    }

    /// Where even one pixel is too large the size is 0, and the text is drawn with one.
    void tooLongForAnySize()
    {
        PaintTextLogoWidget layer;
        layer.resize(320, 200);
        const QString text(10000, QLatin1Char('W'));
        layer.setText(text);
        QCOMPARE(layer.fittedSize(), 0);
        const QFontMetrics metrics(logoFont(1));
        const int right = 160 - metrics.lineWidth() - metrics.horizontalAdvance(text);
        QCOMPARE(layer.appliedMoveX(), right + metrics.horizontalAdvance(text) / 2);
        VD_COMPARE_IMAGES(layerImage(layer),
                          drawn({320, 200}, text, 1, QColor(0, 0, 0, 254), {right, metrics.height() / 2}));
    }

    void sizesThatFontsDoNotHave_data()
    {
        QTest::addColumn<int>("pixels");
        QTest::newRow("0") << 0;
        QTest::newRow("negative") << -3;
    }

    /// The font then keeps the size it has, and nothing is warned of.
    void sizesThatFontsDoNotHave()
    {
        QFETCH(int, pixels);
        PaintTextLogoWidget layer;
        layer.resize(640, 360);
        layer.setTextSize(pixels);
        QCOMPARE(layer.fittedSize(), pixels);
        const QFontMetrics metrics(logoFont(0));
        const QPoint centred(-(metrics.horizontalAdvance(atFirst) / 2), metrics.height() / 2);
        VD_COMPARE_IMAGES(layerImage(layer), drawn({640, 360}, atFirst, 0, QColor(0, 0, 0, 254), centred));
        QVERIFY(log().messages(QStringLiteral("setPixelSize")).isEmpty());
    }

    void sameValueRendersOnce()
    {
        PaintTextLogoWidget layer;
        layer.resize(320, 200);
        const auto settled = [&layer](const std::function<void()>& set) {
            const qint64 before = textPictureKey(layer);
            set();
            const qint64 once = textPictureKey(layer);
            set();
            return once != before && textPictureKey(layer) == once;
        };
        QVERIFY(settled([&] { layer.setText(QStringLiteral("RT")); }));
        QVERIFY(settled([&] { layer.setTextSize(30); }));
        QVERIFY(settled([&] { layer.setOpacity(30); }));
        QVERIFY(settled([&] { layer.setPosition(3); }));
        QVERIFY(settled([&] { layer.setMoveX(-9); }));
        QVERIFY(settled([&] { layer.setMoveY(9); }));
    }

    void everyPaintReportsOnce()
    {
        PaintTextLogoWidget layer;
        layer.resize(320, 200);
        QSignalSpy reports(&layer, &LayerPainter::sigPaintEventUpdated);
        layer.grab();
        QCOMPARE(reports.count(), 1);
        layer.grab();
        QCOMPARE(reports.count(), 2);
    }

    void resizedChartIsRenderedAnew()
    {
        PaintTextLogoWidget layer;
        layer.resize(640, 360);
        layer.setTextSize(48);
        layer.setPosition(4);
        layer.grab();
        layer.resize(400, 300);
        layer.grab();
        QCOMPARE(layerImage(layer).size(), QSize(400, 300));
        const QRect ink = inkOf(layerImage(layer));
        QVERIFY(ink.right() >= 390 && ink.top() > 230);
    }
};

VD_TEST_MAIN(TestPaintTextLogoWidget)
#include "tst_painttextlogowidget.moc"
