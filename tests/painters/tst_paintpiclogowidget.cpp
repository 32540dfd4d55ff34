#include "paintpiclogowidget.h"
#include "testcase.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <climits>

using namespace vardeno::testcharttools;

namespace {

/// Every pixel has a colour of its own.
QImage picture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 5 % 256, y * 7 % 256, 128));
    }
    return image;
}

/// Clear on the left, opaque on the right.
QImage translucentPicture(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x * 5 % 256, y * 7 % 256, 128, 255 * x / qMax(1, size.width() - 1)));
    }
    return image;
}

QImage scaled(const QImage& image, const QSize& size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// The widget as it paints itself.
QImage painted(PaintPicLogoWidget& layer)
{
    return layer.grab().toImage();
}

QColor background(const QWidget& layer)
{
    return layer.palette().color(QPalette::Window);
}

/// What `layer` is to paint: `logo` with its corner at `at`, from the chart's corner.
QImage expectedPaint(const QWidget& layer, const QImage& logo, const QPoint& at, int percent = 100)
{
    QImage image(layer.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(background(layer));
    QPainter painter(&image);
    painter.setOpacity(double(float(percent * 0.01)));
    painter.drawPixmap(at, QPixmap::fromImage(logo));
    return image;
}

qint64 pictureKey(const PaintPicLogoWidget& layer)
{
    return layer.pixmap(Qt::ReturnByValue).cacheKey();
}

QByteArray stored(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void store(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

} // namespace

/// The picture logo: what it paints, where it finds its default picture, and how a picture is uploaded.
class TestPaintPicLogoWidget : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    QString m_pictures; ///< where the test keeps the pictures it offers
    QTimer m_patience;  ///< closes dialogs that nothing has answered

    QString path(const QString& name) const { return m_pictures + QLatin1Char('/') + name; }
    QString saved(const QImage& image, const QString& name, const char* format = nullptr) const
    {
        const bool written = image.save(path(name), format);
        return written ? path(name) : QString();
    }

    static QString uploaded(const QString& name)
    {
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
               QLatin1String("/vtestcharttools/logo/") + name;
    }

    /// Calls `answer` with the next modal dialog, if it is a `Dialog`; any other one is closed.
    template <typename Dialog, typename Answer>
    void onDialog(Answer answer)
    {
        auto* poll = new QTimer(&m_patience);
        connect(poll, &QTimer::timeout, this, [poll, answer] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible())
                return;
            poll->deleteLater();
            poll->stop();
            if (auto* dialog = qobject_cast<Dialog*>(modal))
                answer(dialog);
            else
                modal->close();
        });
        poll->start(10);
    }

    static void open(QFileDialog* dialog, const QString& file)
    {
        dialog->setFilter(dialog->filter() | QDir::Hidden); // the uploads are in a hidden folder
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
        auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
        if (dialog->isVisible())
            dialog->reject();
    }

    /// Uploads `file` through the dialog.
    void upload(PaintPicLogoWidget& layer, const QString& file)
    {
        onDialog<QFileDialog>([file](QFileDialog* dialog) { open(dialog, file); });
        layer.uploadPicLogo();
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Uploads, settings and the file dialog's own memory stay in a home of their own.
        QVERIFY(m_home.isValid());
        qputenv("HOME", m_home.path().toUtf8());
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qunsetenv(name);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.filePath("settings"));
        QVERIFY(QSettings("image", "path").fileName().startsWith(m_home.path()));
        QVERIFY(uploaded(QString()).startsWith(m_home.path()));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        connect(&m_patience, &QTimer::timeout, this, [] {
            if (QWidget* const modal = QApplication::activeModalWidget())
                modal->close();
        });
    }

    void init()
    {
        TestCase::init();
        // Without a window manager the focus is asked for windows that are not there yet, or no longer.
        log().allowWarning(QStringLiteral("^QXcbConnection: XCB error: 8 \\(BadMatch\\).*SetInputFocus"));
        m_pictures = m_home.filePath("pictures");
        QVERIFY(QDir().mkpath(m_pictures));
        QSettings("image", "path").clear();
        m_patience.start(10000);
    }

    void cleanup()
    {
        qDeleteAll(m_patience.findChildren<QTimer*>());
        m_patience.stop();
        QDir(m_pictures).removeRecursively();
        QDir(uploaded(QString())).removeRecursively();
        TestCase::cleanup();
    }

    void places_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("anchor");
        QTest::addColumn<QPoint>("shift");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QPoint>("applied");
        const QSize chart(200, 120);
        const QSize small(40, 30);
        QTest::newRow("centre") << chart << small << 0 << QPoint() << QPoint(80, 45) << QPoint();
        QTest::newRow("left up") << chart << small << 1 << QPoint() << QPoint(0, 0) << QPoint();
        QTest::newRow("left down") << chart << small << 2 << QPoint() << QPoint(0, 90) << QPoint();
        QTest::newRow("right up") << chart << small << 3 << QPoint() << QPoint(160, 0) << QPoint();
        QTest::newRow("right down") << chart << small << 4 << QPoint() << QPoint(160, 90) << QPoint();
        QTest::newRow("unknown anchor") << chart << small << 7 << QPoint() << QPoint(100, 60) << QPoint();
        QTest::newRow("odd sizes") << QSize(201, 121) << QSize(41, 31) << 0 << QPoint() << QPoint(80, 45)
                                   << QPoint();
        QTest::newRow("odd chart, right down")
            << QSize(201, 121) << small << 4 << QPoint() << QPoint(160, 90) << QPoint();
        QTest::newRow("shifted") << chart << small << 0 << QPoint(30, -10) << QPoint(110, 35)
                                 << QPoint(30, -10);
        QTest::newRow("shifted to the right edge")
            << chart << small << 0 << QPoint(100000, 0) << QPoint(160, 45) << QPoint(80, 0);
        QTest::newRow("shifted to the left and the bottom edge")
            << chart << small << 0 << QPoint(INT_MIN, INT_MAX) << QPoint(0, 90) << QPoint(-80, 45);
        QTest::newRow("as wide as the chart")
            << chart << QSize(200, 30) << 0 << QPoint(50, 10) << QPoint(0, 55) << QPoint(0, 10);
        QTest::newRow("as wide as an odd chart")
            << QSize(201, 120) << QSize(201, 30) << 0 << QPoint(50, 0) << QPoint(0, 45) << QPoint();
        QTest::newRow("as high as the chart")
            << chart << QSize(40, 120) << 3 << QPoint(-10, 50) << QPoint(150, 0) << QPoint(-10, 0);
        QTest::newRow("wider than the chart, right")
            << chart << QSize(300, 30) << 3 << QPoint(50, 5) << QPoint(-100, 5) << QPoint(0, 5);
        QTest::newRow("larger than the chart, centre")
            << chart << QSize(400, 200) << 0 << QPoint(9, 9) << QPoint(-100, -40) << QPoint();
    }

    void places()
    {
        QFETCH(QSize, chart);
        QFETCH(QSize, size);
        QFETCH(int, anchor);
        QFETCH(QPoint, shift);
        QFETCH(QPoint, at);
        QFETCH(QPoint, applied);
        PaintPicLogoWidget layer;
        layer.resize(chart);
        layer.setPicPath(saved(picture(size), "logo.png").toStdString());
        layer.setPosition(anchor);
        layer.setMoveX(shift.x());
        layer.setMoveY(shift.y());
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), applied);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture(size), at));
    }

    void scales_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("100 %") << QSize(40, 30) << 100 << QSize(40, 30);
        QTest::newRow("200 %") << QSize(40, 30) << 200 << QSize(80, 60);
        QTest::newRow("half, truncated") << QSize(41, 31) << 50 << QSize(20, 15);
        QTest::newRow("a third") << QSize(101, 40) << 33 << QSize(33, 13);
        // In double precision these would come out one pixel apart.
        QTest::newRow("29 %, single precision") << QSize(100, 100) << 29 << QSize(29, 29);
        QTest::newRow("53 %, single precision") << QSize(100, 100) << 53 << QSize(52, 52);
        QTest::newRow("117 %, single precision") << QSize(100, 60) << 117 << QSize(116, 70);
        QTest::newRow("one pixel left") << QSize(100, 100) << 1 << QSize(1, 1);
    }

    void scales()
    {
        QFETCH(QSize, size);
        QFETCH(int, percent);
        QFETCH(QSize, shown);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture(size), "logo.png").toStdString());
        layer.setScale(percent);
        layer.setPosition(1);
        const QImage expected = scaled(picture(size), shown);
        VD_COMPARE_IMAGES(layerImage(layer), expected);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, expected, {0, 0}));
    }

    void nothingLeft_data()
    {
        QTest::addColumn<int>("percent");
        QTest::newRow("0 %") << 0;
        QTest::newRow("less than a pixel") << 2;
    }

    void nothingLeft()
    {
        QFETCH(int, percent);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        layer.setScale(percent);
        QVERIFY(layerImage(layer).isNull());
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
    }

    void opacities_data()
    {
        QTest::addColumn<bool>("translucent");
        QTest::addColumn<int>("percent");
        for (const int percent : {0, 1, 50, 99, 100}) {
            QTest::newRow(qPrintable(QStringLiteral("opaque, %1 %").arg(percent))) << false << percent;
            QTest::newRow(qPrintable(QStringLiteral("translucent, %1 %").arg(percent))) << true << percent;
        }
    }

    void opacities()
    {
        QFETCH(bool, translucent);
        QFETCH(int, percent);
        const QImage logo = translucent ? translucentPicture({40, 30}) : picture({40, 30});
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(logo, "logo.png").toStdString());
        layer.setOpacity(percent);
        const QImage actual = painted(layer);
        VD_COMPARE_IMAGES(actual, expectedPaint(layer, logo, {80, 45}, percent));

        // The right half of the logo, where both kinds are not clear.
        const bool shown = actual.pixelColor(118, 60) != background(layer);
        QCOMPARE(shown, percent > 0);
        QCOMPARE(actual.pixelColor(80, 60) == background(layer), translucent || percent == 0);
        QCOMPARE(actual.pixelColor(118, 60) == logo.pixelColor(38, 15), percent == 100 && !translucent);
    }

    void clearPixelsStayClear()
    {
        QImage logo(40, 30, QImage::Format_ARGB32);
        logo.fill(Qt::transparent);
        logo.setPixelColor(3, 4, Qt::red);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(logo, "logo.png").toStdString());
        layer.setPosition(1);
        QImage expected(layer.size(), QImage::Format_RGB32);
        expected.fill(background(layer));
        expected.setPixelColor(3, 4, Qt::red);
        VD_COMPARE_IMAGES(painted(layer), expected);
    }

    void badFilesShowNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("present");
        const QByteArray good = encoded(picture({90, 90}), "PNG");
        QTest::newRow("missing") << QByteArray() << false;
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("text") << QByteArray("Cabinets: 144\n") << true;
        QTest::newRow("truncated header") << good.left(20) << true;
        QTest::newRow("truncated data") << good.left(good.size() / 2) << true;
        QTest::newRow("too wide") << encoded(picture({3841, 1}), "PNG") << true;
        QTest::newRow("too high") << encoded(picture({1, 3841}), "PNG") << true;
    }

    void badFilesShowNothing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, present);
        if (present)
            store(path("logo.png"), bytes);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "before.png").toStdString());
        layer.setPicPath(path("logo.png").toStdString());
        layer.setMoveX(5);
        layer.setScale(150);
        QVERIFY(layerImage(layer).isNull());
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
        QCOMPARE(layer.picPath(), path("logo.png").toStdString());
    }

    void withoutPictureNothingIsShown()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
        layer.setPosition(1);
        layer.setOpacity(30);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
    }

    void withoutPictureTheShiftIsThatOfTheLastRender()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setMoveX(30);
        layer.setMoveY(-1000);
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), QPoint(30, -60));
        layer.setPicPath(saved(picture({200, 120}), "logo.png").toStdString());
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), QPoint());
        layer.setPicPath(path("missing.png").toStdString());
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), QPoint(30, -60));
    }

    void scaledToTheSizeOfTheChartIgnoresTheShift()
    {
        PaintPicLogoWidget layer;
        layer.resize(201, 121);
        layer.setPicPath(saved(picture({134, 81}), "logo.png").toStdString());
        layer.setMoveX(20);
        layer.setMoveY(-10);
        layer.setScale(148);
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), QPoint(1, -1));
        layer.setScale(150);
        QCOMPARE(QPoint(layer.appliedMoveX(), layer.appliedMoveY()), QPoint());
        VD_COMPARE_IMAGES(painted(layer),
                          expectedPaint(layer, scaled(picture({134, 81}), {201, 121}), {0, 0}));
    }

    void withoutPictureAgain()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        layer.setPicPath(std::string());
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
    }

    void largestPictureIsShown()
    {
        QImage logo(3840, 3840, QImage::Format_Mono);
        logo.fill(1);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(logo, "logo.png").toStdString());
        layer.setScale(1);
        QCOMPARE(layerImage(layer).size(), QSize(38, 38));
        QCOMPARE(painted(layer).pixelColor(100, 60), QColor(Qt::white));
    }

    void pathsOutsideAscii()
    {
        const QString file = saved(picture({40, 30}), QString::fromUtf8("屏 \u00e9.png"));
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(file.toStdString());
        QCOMPARE(layer.picPath(), file.toStdString());
        VD_COMPARE_IMAGES(layerImage(layer), picture({40, 30}));
    }

    void nextPaintShowsTheChangedFile()
    {
        const QString file = saved(picture({40, 30}), "logo.png");
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(file.toStdString());
        painted(layer);
        saved(picture({60, 50}), "logo.png");
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture({60, 50}), {70, 35}));
        QVERIFY(QFile::remove(file));
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, QImage(), {0, 0}));
    }

    void everyPaintReportsOnceWithItsPictureReady()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        saved(picture({60, 50}), "logo.png");
        QSize shown;
        connect(&layer, &LayerPainter::sigPaintEventUpdated, &layer,
                [&] { shown = layerImage(layer).size(); });
        QSignalSpy reports(&layer, &LayerPainter::sigPaintEventUpdated);
        painted(layer);
        QCOMPARE(reports.count(), 1);
        QCOMPARE(shown, QSize(60, 50));
        painted(layer);
        QCOMPARE(reports.count(), 2);
    }

    void resizedChartMovesTheLogo()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        layer.setPosition(4);
        painted(layer);
        layer.resize(100, 80);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture({40, 30}), {60, 50}));
    }

    void sameValueAgain_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<bool>("rendersAgain");
        QTest::newRow("25 %") << 25 << false;
        QTest::newRow("50 %") << 50 << false;
        QTest::newRow("200 %") << 200 << false;
        // Compared in double precision with what single precision has kept of it.
        QTest::newRow("30 %") << 30 << true;
        QTest::newRow("99 %") << 99 << true;
    }

    void sameValueAgain()
    {
        QFETCH(int, percent);
        QFETCH(bool, rendersAgain);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        for (const auto set : {&PaintPicLogoWidget::setScale, &PaintPicLogoWidget::setOpacity}) {
            const qint64 before = pictureKey(layer);
            (layer.*set)(percent);
            const qint64 once = pictureKey(layer);
            QVERIFY(once != before);
            (layer.*set)(percent);
            QCOMPARE(pictureKey(layer) != once, rendersAgain);
        }
    }

    void valuesAtFirstRenderNothing()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.setPicPath(saved(picture({40, 30}), "logo.png").toStdString());
        const qint64 first = pictureKey(layer);
        layer.setScale(100);
        layer.setOpacity(100);
        layer.setPosition(0);
        layer.setMoveX(0);
        layer.setMoveY(0);
        layer.setPicPath(layer.picPath());
        QCOMPARE(pictureKey(layer), first);
    }

    void defaultPicture()
    {
        const QString file = QCoreApplication::applicationDirPath() +
                             QLatin1String("/../share/themes/images/default/testcharttools/logo_1025.png");
        const QImage whole(file);
        QVERIFY2(!whole.isNull(), qPrintable(file));

        PaintPicLogoWidget layer;
        layer.resize(1920, 1080);
        QVERIFY(!layer.showsDefaultPicLogo());
        layer.setDefaultPicLogo();
        QCOMPARE(layer.picPath(), file.toStdString());
        QVERIFY(layer.showsDefaultPicLogo());
        VD_COMPARE_IMAGES(layerImage(layer), whole);

        const QStringList lines = log().messages(QStringLiteral("picPixmap isNull:"));
        QCOMPARE(lines.size(), 2);
        for (const QString& line : lines)
            QVERIFY(line.contains(QLatin1String("PaintPicLogoWidget::setDefaultPicLogo()")));
        QVERIFY(lines.at(0).endsWith(QLatin1String("picPixmap isNull: false")));
        QVERIFY(lines.at(1).endsWith(QLatin1String("picPixmap isNull: 1920")));

        const QPoint centred(960 - whole.width() / 2, 540 - whole.height() / 2);
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, whole, centred));
        layer.setPicPath(saved(picture({40, 30}), "other.png").toStdString());
        QVERIFY(!layer.showsDefaultPicLogo());
    }

    void uploads_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QImage>("image");
        QTest::newRow("PNG") << QStringLiteral("mark.png") << QByteArray("PNG")
                             << translucentPicture({40, 30});
        QTest::newRow("JPEG") << QStringLiteral("mark.jpg") << QByteArray("JPEG") << picture({40, 30});
        QTest::newRow("BMP") << QStringLiteral("mark.bmp") << QByteArray("BMP") << picture({40, 30});
        QTest::newRow("name of two words")
            << QString::fromUtf8("标 mark.v2.png") << QByteArray("PNG") << picture({40, 30});
        QImage largest(3840, 3840, QImage::Format_Mono);
        largest.fill(1);
        QTest::newRow("3840 x 3840") << QStringLiteral("largest.png") << QByteArray("PNG") << largest;
    }

    void uploads()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QFETCH(QImage, image);
        const QString file = saved(image, name, format.constData());
        const QByteArray chosen = stored(file);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        upload(layer, file);

        QCOMPARE(layer.picPath(), uploaded(name).toStdString());
        QVERIFY(stored(uploaded(name)).startsWith("\x89PNG\r\n"));
        VD_COMPARE_IMAGES(QImage(uploaded(name)), QImage(file));
        VD_COMPARE_IMAGES(layerImage(layer), QImage(file));
        QCOMPARE(stored(file), chosen);
        QCOMPARE(QSettings("image", "path").value("lastImagePath").toString(), m_pictures);
        QVERIFY(log().messages(QStringLiteral("fileName open fail")).isEmpty());
    }

    void uploadOfTheSameNameReplacesTheFormer()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        upload(layer, saved(picture({40, 30}), "mark.png"));
        upload(layer, saved(picture({60, 50}), "mark.png"));
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture({60, 50}), {70, 35}));
        QCOMPARE(QDir(uploaded(QString())).entryList(QDir::Files | QDir::Hidden), QStringList("mark.png"));
    }

    void aVisibleLayerShowsTheUploadOfTheSameNameByItself()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        layer.show();
        QVERIFY(QTest::qWaitForWindowExposed(&layer));
        upload(layer, saved(picture({40, 30}), "mark.png"));
        QTRY_COMPARE(layerImage(layer).size(), QSize(40, 30));
        upload(layer, saved(picture({60, 50}), "mark.png"));
        QTRY_COMPARE(layerImage(layer).size(), QSize(60, 50));
    }

    void anUploadedPictureMayBeChosenAgain()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        upload(layer, saved(picture({40, 30}), "mark.png"));
        upload(layer, uploaded(QStringLiteral("mark.png")));
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture({40, 30}), {80, 45}));
    }

    void tooLargeIsRefusedInSilence_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("3841 x 1") << encoded(picture({3841, 1}), "PNG");
        QTest::newRow("1 x 3841") << encoded(picture({1, 3841}), "PNG");
        QTest::newRow("JPEG") << encoded(picture({3841, 1}), "JPEG");
        QTest::newRow("BMP") << encoded(picture({3841, 2}), "BMP");
        QByteArray fromTheTop = encoded(picture({3841, 2}), "BMP");
        fromTheTop.replace(22, 4, QByteArray("\xfe\xff\xff\xff", 4));
        QTest::newRow("BMP, rows from the top") << fromTheTop;
    }

    void tooLargeIsRefusedInSilence()
    {
        QFETCH(QByteArray, bytes);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        const QString before = saved(picture({40, 30}), "before.png");
        layer.setPicPath(before.toStdString());
        store(path("huge.png"), bytes);
        upload(layer, path("huge.png"));

        QCOMPARE(layer.picPath(), before.toStdString());
        VD_COMPARE_IMAGES(painted(layer), expectedPaint(layer, picture({40, 30}), {80, 45}));
        QVERIFY(!QFile::exists(uploaded(QStringLiteral("huge.png"))));
        QVERIFY(!QSettings("image", "path").contains("lastImagePath"));
    }

    void unreadableIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("text") << QByteArray("Cabinets: 144\n");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << encoded(picture({90, 90}), "PNG").left(90);
    }

    void unreadableIsTold()
    {
        QFETCH(QByteArray, bytes);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        const QString before = saved(picture({40, 30}), "before.png");
        layer.setPicPath(before.toStdString());
        store(path("notes.png"), bytes);
        QString title;
        QString text;
        QObject* parent = nullptr;
        QMessageBox::StandardButtons buttons;
        onDialog<QFileDialog>([&](QFileDialog* dialog) {
            onDialog<QMessageBox>([&](QMessageBox* box) {
                title = box->windowTitle();
                text = box->text();
                parent = box->parent();
                buttons = box->standardButtons();
                QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            });
            open(dialog, path("notes.png"));
        });
        layer.uploadPicLogo();

        QCOMPARE(title, QStringLiteral("result"));
        QCOMPARE(text, QStringLiteral("Error"));
        QCOMPARE(parent, &layer);
        QCOMPARE(buttons, QMessageBox::Ok);
        QCOMPARE(layer.picPath(), before.toStdString());
        QVERIFY(!QFile::exists(uploaded(QStringLiteral("notes.png"))));
        QVERIFY(!QSettings("image", "path").contains("lastImagePath"));
    }

    void theHostHearsOfARefusal_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QSize>("size");
        const QString notRead = QStringLiteral("This is not a picture that can be read.");
        QTest::newRow("too wide") << encoded(picture({3841, 1}), "PNG")
                                  << QStringLiteral("The picture is too large.") << QSize(3841, 1);
        QTest::newRow("text") << QByteArray("Cabinets: 144\n") << notRead << QSize();
        QTest::newRow("empty") << QByteArray() << notRead << QSize();
        QTest::newRow("truncated") << encoded(picture({90, 90}), "PNG").left(90)
                                   << QStringLiteral("The picture is damaged.") << QSize(90, 90);
    }

    void theHostHearsOfARefusal()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        QFETCH(QSize, size);
        PaintPicLogoWidget layer;
        QVERIFY(!layer.hostTellsRefusals());
        QVERIFY(layer.setProperty("hostTellsRefusals", true)); // no message box waits for its button
        QVERIFY(layer.hostTellsRefusals());
        const QSignalSpy refusals(&layer, &PaintPicLogoWidget::sigLogoRefused);
        store(path("mark.png"), bytes);
        upload(layer, path("mark.png"));
        QCOMPARE(refusals.count(), 1);
        QCOMPARE(refusals.first(), QVariantList({path("mark.png"), reason, size, QSize(3840, 3840)}));
        QVERIFY(layer.picPath().empty());
        upload(layer, saved(picture({40, 30}), "mark.png"));
        QCOMPARE(refusals.count(), 1);
    }

    void theHostHearsOfWhatTheUserIsTold()
    {
        PaintPicLogoWidget layer;
        const QSignalSpy refusals(&layer, &PaintPicLogoWidget::sigLogoRefused);
        store(path("notes.png"), "Cabinets: 144");
        bool heardBefore = false;
        onDialog<QFileDialog>([&](QFileDialog* dialog) {
            onDialog<QMessageBox>([&](QMessageBox* box) {
                heardBefore = refusals.count() > 0;
                QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            });
            open(dialog, path("notes.png"));
        });
        layer.uploadPicLogo();
        QVERIFY(!heardBefore);
        QCOMPARE(refusals.count(), 1);
    }

    void hostsThatTellRefusalsOfferJpegToo()
    {
        PaintPicLogoWidget layer;
        layer.setHostTellsRefusals(true);
        QStringList filters;
        onDialog<QFileDialog>([&](QFileDialog* dialog) {
            filters = dialog->nameFilters();
            dialog->reject();
        });
        layer.uploadPicLogo();
        QCOMPARE(filters, QStringList("Files(*.jpg *.jpeg *.bmp *.png)"));
        const QString file = path("mark.jpeg");
        QVERIFY(picture({40, 30}).save(file, "JPEG"));
        upload(layer, file);
        QCOMPARE(layer.picPath(), uploaded(QStringLiteral("mark.jpeg")).toStdString());
    }

    /// A photo of a camera that was held upright.
    void turnedPhotosStandUpright()
    {
        QImage photo(40, 20, QImage::Format_RGB32);
        photo.fill(Qt::blue);
        QByteArray jpeg = encoded(photo, "JPEG");
        jpeg.insert(2, QByteArray::fromHex("ffe10022457869660000"         // EXIF, big endian
                                           "4d4d002a00000008"             //
                                           "0001011200030000000100060000" // orientation 6: to the right
                                           "00000000"));
        store(path("photo.jpg"), jpeg);
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        upload(layer, path("photo.jpg"));
        QCOMPARE(QImage(uploaded(QStringLiteral("photo.jpg"))).size(), QSize(20, 40));
        layer.setPicPath(path("photo.jpg").toStdString());
        layer.grab();
        QCOMPARE(layerImage(layer).size(), QSize(20, 40));
    }

    void cancelIsLoggedOnly()
    {
        PaintPicLogoWidget layer;
        layer.resize(200, 120);
        const QString before = saved(picture({40, 30}), "before.png");
        layer.setPicPath(before.toStdString());
        onDialog<QFileDialog>([](QFileDialog* dialog) {
            auto* buttons = dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
            QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        });
        layer.uploadPicLogo();

        const QStringList lines = log().messages(QStringLiteral("fileName open fail"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.at(0).contains(QLatin1String("PaintPicLogoWidget::uploadPicLogo()")));
        QCOMPARE(layer.picPath(), before.toStdString());
        QVERIFY(!QSettings("image", "path").contains("lastImagePath"));
    }

    void theDialogStartsInTheLastFolder()
    {
        QStringList folders;
        const auto choose = [&](const QString& file) {
            return [&folders, file](QFileDialog* dialog) {
                folders.append(dialog->directory().absolutePath());
                open(dialog, file);
            };
        };
        const QString file = saved(picture({40, 30}), "mark.png");
        for (int round = 0; round < 2; ++round) {
            PaintPicLogoWidget layer;
            layer.resize(200, 120);
            onDialog<QFileDialog>(choose(file));
            layer.uploadPicLogo();
        }
        QCOMPARE(folders, QStringList({m_home.path(), m_pictures}));
    }

    void theDialog()
    {
        PaintPicLogoWidget layer;
        layer.translateTitle();
        QString title;
        QStringList filters;
        QFileDialog::FileMode mode = QFileDialog::AnyFile;
        onDialog<QFileDialog>([&](QFileDialog* dialog) {
            title = dialog->windowTitle();
            filters = dialog->nameFilters();
            mode = dialog->fileMode();
            dialog->reject();
        });
        layer.uploadPicLogo();
        QCOMPARE(title, QStringLiteral("SelectImage"));
        QCOMPARE(filters, QStringList("Files(*.jpg *.bmp *.png)"));
        QCOMPARE(mode, QFileDialog::ExistingFile);
    }
};

VD_TEST_MAIN(TestPaintPicLogoWidget)
#include "tst_paintpiclogowidget.moc"
