#include "geometry/fittedtext.h"
#include "testcase.h"

#include <QFontMetrics>

using namespace vardeno::testcharttools;

namespace {

QFont chartFont(int pixelSize)
{
    QFont font;
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    font.setFamily(QStringLiteral("Arail"));
    return font;
}

/// Takes pixels off the size one by one until the text fits or the size is below 1.
int sizeByStepping(const QString& text, int requested, double widthLimit, double heightLimit)
{
    int size = requested;
    for (;; --size) {
        const QFontMetrics metrics(chartFont(requested > 0 ? qMax(size, 1) : 0));
        if (metrics.horizontalAdvance(text) <= widthLimit && metrics.height() <= heightLimit)
            return size;
        if (size < 1)
            return size;
    }
}

} // namespace

class TestFittedText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("requested");
        QTest::addColumn<double>("widthLimit");
        QTest::addColumn<double>("heightLimit");
        QTest::addColumn<int>("atLeast");
        QTest::addColumn<int>("atMost");
        const auto row = [](const char* name, const QString& text, int requested, double widthLimit,
                            double heightLimit, int atLeast, int atMost) {
            QTest::newRow(name) << text << requested << widthLimit << heightLimit << atLeast << atMost;
        };
        const QString domain = QStringLiteral("www.example.com");
        row("with room to spare", domain, 70, 1920, 1080, 70, 70);
        row("too wide", domain, 70, 200, 1080, 2, 69);
        row("too high", domain, 70, 1920, 40, 2, 39);
        row("too wide and too high", domain, 200, 100, 10, 1, 19);
        row("no room in width", domain, 70, 0, 1080, 0, 0);
        row("no room in height", domain, 70, 1920, 0, 0, 0);
        row("one pixel high", domain, 5, 1920, 1, 0, 1);
        row("requested 1", domain, 1, 1920, 1080, 1, 1);
        row("requested 1, too wide", domain, 1, 2, 1080, 0, 0);
        row("requested 0", domain, 0, 1920, 1080, 0, 0);
        row("requested 0, too wide", domain, 0, 3, 1080, 0, 0);
        row("empty", QString(), 70, 1920, 1080, 70, 70);
        row("empty, no width needed", QString(), 70, 0, 1080, 70, 70);
        row("empty, too high", QString(), 70, 1920, 40, 2, 39);
        row("blank", QStringLiteral(" "), 70, 1920, 1080, 70, 70);
        row("50 characters", QString(50, QLatin1Char('W')), 70, 1920, 1080, 20, 69);
        row("10,000 characters", QString(10000, QLatin1Char('W')), 70, 1920, 1080, 0, 1);
        row("right to left", QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd"), 70, 150,
            1080, 2, 69);
        row("combining", QString::fromUtf8("e\u0301x\u0323\u0302a\u0300"), 70, 40, 1080, 2, 69);
        row("emoji", QString::fromUtf8("\U0001F600\U0001F468\u200D\U0001F469"), 70, 60, 1080, 1, 69);
        row("half a pair", QString(QChar(0xd83d)), 70, 1920, 1080, 70, 70);
    }

    void fits()
    {
        QFETCH(QString, text);
        QFETCH(int, requested);
        QFETCH(double, widthLimit);
        QFETCH(double, heightLimit);
        QFETCH(int, atLeast);
        QFETCH(int, atMost);
        const FittedText fitted = fitText(text, requested, widthLimit, heightLimit);
        QCOMPARE(fitted.pixelSize, sizeByStepping(text, requested, widthLimit, heightLimit));
        QVERIFY2(fitted.pixelSize >= atLeast && fitted.pixelSize <= atMost,
                 qPrintable(QString::number(fitted.pixelSize)));

        QCOMPARE(fitted.font.family(), QStringLiteral("Arail"));
        const QFont shown = chartFont(requested > 0 ? qMax(fitted.pixelSize, 1) : 0);
        QCOMPARE(fitted.font.pixelSize(), shown.pixelSize());
        QCOMPARE(fitted.advance, QFontMetrics(shown).horizontalAdvance(text));
        QCOMPARE(fitted.height, QFontMetrics(shown).height());
    }

    /// Whose stops do not shrink with the size.
    void tabulators()
    {
        const QString text = QStringLiteral("tab\tx");
        for (int requested = 1; requested <= 150; ++requested) {
            QCOMPARE(fitText(text, requested, 247.2, 203.2).pixelSize,
                     sizeByStepping(text, requested, 247.2, 203.2));
            QCOMPARE(fitText(text, requested, 90, 80).pixelSize, sizeByStepping(text, requested, 90, 80));
        }
    }

    void exactLimitsFit()
    {
        const QString text = QStringLiteral("www.example.com");
        const QFontMetrics metrics(chartFont(40));
        const double advance = metrics.horizontalAdvance(text);
        const double height = metrics.height();
        QCOMPARE(fitText(text, 40, advance, height).pixelSize, 40);
        QVERIFY(fitText(text, 40, advance - 0.5, height).pixelSize < 40);
        QVERIFY(fitText(text, 40, advance, height - 0.5).pixelSize < 40);
    }

    void fontIsOtherwiseTheDefault()
    {
        const QFont fitted = fitText(QStringLiteral("x"), 40, 1920, 1080).font;
        QCOMPARE(fitted.weight(), QFont().weight());
        QCOMPARE(fitted.italic(), QFont().italic());
        QCOMPARE(fitted, chartFont(40));
    }

    /// Every 16-bit size may be asked for; none may stop the interface.
    void hugeSizeIsFitted()
    {
        const QString text = QStringLiteral("www.example.com");
        const FittedText fitted = fitText(text, 65535, 1920, 1080);
        QCOMPARE(fitted.pixelSize, sizeByStepping(text, 400, 1920, 1080));
    }
};

VD_TEST_MAIN(TestFittedText)
#include "tst_fittedtext.moc"
