#include "controls/swatch.h"
#include "testcase.h"

#include <QPushButton>

using namespace vardeno::testcharttools;

namespace {

const QSize disabledSize(40, 20);
const QColor disabledFill(0x33, 0x33, 0x37);
const QColor disabledFrame(0x63, 0x64, 0x74);

QImage iconImage(const QPushButton& button)
{
    return button.icon().pixmap(button.iconSize()).toImage();
}

QImage expectedSwatch(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 1; y < size.height() - 1; ++y) {
        for (int x = 1; x < size.width() - 1; ++x)
            image.setPixel(x, y, qPremultiply(color.rgba()));
    }
    return image;
}

QIcon plainIcon(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

class TestSwatch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fillsAllButTheMargin_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque") << QSize(16, 16) << QColor(255, 170, 255);
        QTest::newRow("black") << QSize(16, 16) << QColor(Qt::black);
        QTest::newRow("translucent") << QSize(16, 16) << QColor(200, 100, 50, 128);
        QTest::newRow("almost transparent") << QSize(16, 16) << QColor(255, 255, 255, 1);
        QTest::newRow("transparent") << QSize(16, 16) << QColor(255, 0, 0, 0);
        QTest::newRow("wide") << QSize(40, 10) << QColor(Qt::green);
        QTest::newRow("odd size") << QSize(17, 9) << QColor(Qt::green);
        QTest::newRow("one pixel inside") << QSize(3, 3) << QColor(Qt::blue);
    }

    void fillsAllButTheMargin()
    {
        QFETCH(QSize, size);
        QFETCH(QColor, color);
        QPushButton button;
        button.resize(size);
        paintSwatch(&button, color);
        QCOMPARE(button.iconSize(), size);
        VD_COMPARE_IMAGES(iconImage(button), expectedSwatch(size, color));
        QCOMPARE(swatchColor(&button), color);
    }

    void paintingAgainReplacesColorAndSize()
    {
        QPushButton button;
        button.resize(16, 16);
        paintSwatch(&button, Qt::red);
        button.resize(20, 12);
        paintSwatch(&button, Qt::blue);
        QCOMPARE(button.iconSize(), QSize(20, 12));
        VD_COMPARE_IMAGES(iconImage(button), expectedSwatch(QSize(20, 12), Qt::blue));
        QCOMPARE(swatchColor(&button), QColor(Qt::blue));
    }

    void everyOpacityIsReadBackExactly_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("red") << QColor(255, 0, 0);
        QTest::newRow("white") << QColor(255, 255, 255);
        QTest::newRow("dark blue") << QColor(0, 0, 100);
        QTest::newRow("mixed") << QColor(201, 77, 3);
        // With some opacities the painter rounds these otherwise than qPremultiply does.
        QTest::newRow("rounded otherwise at 253") << QColor(57, 191, 144);
        QTest::newRow("rounded otherwise at 173") << QColor(241, 133, 92);
    }

    void everyOpacityIsReadBackExactly()
    {
        QFETCH(QColor, color);
        QPushButton button;
        button.resize(16, 16);
        for (int alpha = 0; alpha < 256; ++alpha) {
            color.setAlpha(alpha);
            paintSwatch(&button, color);
            QCOMPARE(swatchColor(&button), color);
        }
    }

    void withoutIconThereIsNoColor()
    {
        QPushButton button;
        button.resize(16, 16);
        QVERIFY(!swatchColor(&button).isValid());
        paintSwatch(&button, Qt::red);
        QVERIFY(swatchColor(&button).isValid());
        button.setIcon(QIcon());
        QVERIFY(!swatchColor(&button).isValid());
    }

    void anotherIconCountsByItsCentre()
    {
        QPushButton button;
        button.resize(16, 16);
        paintSwatch(&button, Qt::red);
        button.setIcon(plainIcon(Qt::green));
        QCOMPARE(swatchColor(&button), QColor(Qt::green));

        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::yellow);
        QImage image = pixmap.toImage();
        image.setPixelColor(8, 8, Qt::cyan);
        button.setIcon(QIcon(QPixmap::fromImage(image)));
        QCOMPARE(swatchColor(&button), QColor(Qt::cyan));
    }

    void pickingStartsWithWhatTheButtonShows()
    {
        QPushButton button;
        button.resize(30, 16);
        button.setFlat(true);
        button.setStyleSheet(QStringLiteral("background: #204060; border: none"));
        QCOMPARE(startColor(&button), QColor(0x20, 0x40, 0x60));
        paintSwatch(&button, Qt::red);
        QCOMPARE(startColor(&button), QColor(Qt::red));
    }

    void disabledSwatchLooks()
    {
        QPushButton button;
        button.resize(16, 16);
        paintSwatch(&button, Qt::red);
        paintDisabledSwatch(&button);
        QCOMPARE(button.iconSize(), disabledSize);
        const QImage image = iconImage(button);
        QCOMPARE(image.size(), disabledSize);
        const QImage picture(QStringLiteral(":/resources/images/disable.png"));
        QVERIFY(!picture.isNull());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                verifyDisabledPixel(image.pixelColor(x, y), x, y, picture.pixelColor(x, y));
        }
    }

    void disabledSwatchHidesThePaintedColor()
    {
        QPushButton button;
        button.resize(16, 16);
        paintSwatch(&button, Qt::red);
        paintDisabledSwatch(&button);
        QCOMPARE(swatchColor(&button), iconImage(button).pixelColor(20, 10));
        QVERIFY(swatchColor(&button) != QColor(Qt::red));
        paintSwatch(&button, Qt::blue);
        QCOMPARE(button.iconSize(), QSize(16, 16));
        QCOMPARE(swatchColor(&button), QColor(Qt::blue));
    }

    /// A word for each call: "keep-", "show+", "paint=red", and "shown=green" for a colour that reaches the
    /// button past the swatch. Minus is off.
    void switchedSwatch_data()
    {
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("color");
        QTest::addColumn<bool>("grey");
        QTest::newRow("painted") << "paint=red"
                                 << "red" << false;
        QTest::newRow("off") << "paint=red keep- show-"
                             << "red" << true;
        QTest::newRow("off and on") << "paint=red keep- show- keep+ show+"
                                    << "red" << false;
        QTest::newRow("off, on and off") << "paint=red keep- show- keep+ show+ keep- show-"
                                         << "red" << true;
        QTest::newRow("off twice") << "paint=red keep- show- keep- show-"
                                   << "red" << true;
        QTest::newRow("on twice") << "paint=red keep+ show+ keep+ show+"
                                  << "red" << false;
        QTest::newRow("kept twice before the grey") << "paint=red keep- keep- show-"
                                                    << "red" << true;
        QTest::newRow("off without keeping") << "paint=red show-"
                                             << "red" << true;
        QTest::newRow("off without keeping, then on") << "paint=red show- show+"
                                                      << "red" << false;
        QTest::newRow("off at once") << "show-"
                                     << "white" << true;
        QTest::newRow("off at once, then on") << "show- keep+ show+"
                                              << "white" << false;
        QTest::newRow("on at once") << "show+"
                                    << "white" << false;
        QTest::newRow("painted while off, then on") << "paint=red keep- show- paint=blue show+"
                                                    << "blue" << false;
        QTest::newRow("painted while off, then greyed") << "paint=red keep- show- paint=blue keep- show-"
                                                        << "blue" << true;
        QTest::newRow("switching off keeps what is shown") << "paint=red shown=green keep- show-"
                                                           << "green" << true;
        QTest::newRow("switching on keeps what was kept") << "paint=red shown=green keep+ show+"
                                                          << "red" << false;
        QTest::newRow("color is the one shown while on") << "paint=red shown=green"
                                                         << "green" << false;
        QTest::newRow("translucent") << "paint=#80c86432 keep- show- keep+ show+"
                                     << "#80c86432" << false;
    }

    void switchedSwatch()
    {
        QFETCH(QString, calls);
        QFETCH(QString, color);
        QFETCH(bool, grey);
        QPushButton button;
        button.resize(16, 16);
        SwitchedSwatch swatch(&button, Qt::white);
        const QStringList words = calls.split(QLatin1Char(' '));
        for (const QString& word : words)
            call(swatch, button, word);
        QCOMPARE(swatch.color(), QColor(color));
        QCOMPARE(button.iconSize(), grey ? disabledSize : QSize(16, 16));
        if (!grey)
            VD_COMPARE_IMAGES(iconImage(button), expectedSwatch(QSize(16, 16), QColor(color)));
    }

    void paintingWhileOffKeepsTheColorForLater()
    {
        QPushButton button;
        button.resize(16, 16);
        SwitchedSwatch swatch(&button, Qt::white);
        swatch.show(false);
        const QImage grey = button.icon().pixmap(40, 20).toImage();
        swatch.paint(Qt::blue);
        QCOMPARE(button.icon().pixmap(40, 20).toImage(), grey);
        QCOMPARE(swatch.color(), QColor(Qt::blue));
        swatch.show(true);
        QCOMPARE(swatchColor(&button), QColor(Qt::blue));
    }

    void withoutAnIconTheColorIsInvalid()
    {
        QPushButton button;
        const SwitchedSwatch swatch(&button, Qt::white);
        QVERIFY(!swatch.color().isValid());
    }

private:
    static void call(SwitchedSwatch& swatch, QPushButton& button, const QString& word)
    {
        const QString verb = word.section(QRegularExpression(QStringLiteral("[-+=]")), 0, 0);
        const QColor color(word.section(QLatin1Char('='), 1));
        if (verb == QLatin1String("keep"))
            swatch.keep(word.endsWith(QLatin1Char('+')));
        else if (verb == QLatin1String("show"))
            swatch.show(word.endsWith(QLatin1Char('+')));
        else if (verb == QLatin1String("paint"))
            swatch.paint(color);
        else if (verb == QLatin1String("shown"))
            paintSwatch(&button, color);
        else
            QFAIL(qPrintable(word));
    }

    /// The frame's line lies on the pixel edge at 1, so it covers half of the pixels 0 and 1 beside it.
    static void verifyDisabledPixel(const QColor& pixel, int x, int y, const QColor& picture)
    {
        const bool edge = x < 2 || x > 37 || y < 2 || y > 17;
        if (edge) {
            QVERIFY(isBetween(pixel, disabledFill, disabledFrame));
            const bool corner = (x < 2 || x > 37) && (y < 2 || y > 17);
            if (!corner)
                QVERIFY2(isMixed(pixel, disabledFill, disabledFrame, 128), qPrintable(pixel.name()));
        } else {
            QVERIFY2(isMixed(pixel, disabledFill, picture, picture.alpha()), qPrintable(pixel.name()));
        }
    }

    static bool isBetween(const QColor& pixel, const QColor& low, const QColor& high)
    {
        const auto within = [](int value, int least, int most) { return least <= value && value <= most; };
        return pixel.alpha() == 255 && within(pixel.red(), low.red(), high.red()) &&
               within(pixel.green(), low.green(), high.green()) &&
               within(pixel.blue(), low.blue(), high.blue());
    }

    /// `over` covers `under` with `alpha`, give or take the rounding.
    static bool isMixed(const QColor& pixel, const QColor& under, const QColor& over, int alpha)
    {
        const auto near = [alpha](int value, int u, int o) {
            return qAbs(value - (u * (255 - alpha) + o * alpha) / 255) <= 2;
        };
        return pixel.alpha() == 255 && near(pixel.red(), under.red(), over.red()) &&
               near(pixel.green(), under.green(), over.green()) &&
               near(pixel.blue(), under.blue(), over.blue());
    }
};

VD_TEST_MAIN(TestSwatch)
#include "tst_swatch.moc"
