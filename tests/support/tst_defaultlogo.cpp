#include "testcase.h"

#include <defaultlogo.h>

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

const QString ofTheInstallation =
    QStringLiteral("/../share/themes/images/default/testcharttools/logo_1025.png");

bool writePicture(const QString& path)
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return QDir().mkpath(QFileInfo(path).path()) && picture.save(path, "PNG");
}

} // namespace

class TestDefaultLogo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        setDefaultLogo(QString());
        TestCase::cleanup();
    }

    void placesInTheirOrder()
    {
        const QStringList places = defaultLogoPlaces();
        QCOMPARE(places.first(), QCoreApplication::applicationDirPath() + ofTheInstallation);
        QCOMPARE(places.last(), QStringLiteral(":/vardeno/logo/logo_1025.png"));
        QVERIFY(places.at(1).startsWith(QFileInfo(QCoreApplication::applicationDirPath()).canonicalPath()));
        setDefaultLogo(QStringLiteral("/nowhere/logo.png"));
        QCOMPARE(defaultLogoPlaces(), QStringList(QStringLiteral("/nowhere/logo.png")) + places);
    }

    void carriedPictureIsTheInstalledOne()
    {
        const QImage carried(defaultLogoPlaces().last());
        QVERIFY(!carried.isNull());
        VD_COMPARE_IMAGES(carried, QImage(QCoreApplication::applicationDirPath() + ofTheInstallation));
    }

    void hostsPictureComesFirst()
    {
        const QTemporaryDir folder;
        const QString own = folder.filePath(QStringLiteral("own.png"));
        QVERIFY(writePicture(own));
        const QString before = defaultLogo();
        setDefaultLogo(own);
        QCOMPARE(defaultLogo(), own);
        QVERIFY(isDefaultLogo(own));
        QVERIFY(isDefaultLogo(before));
        QVERIFY(QFile::remove(own));
        QCOMPARE(defaultLogo(), before);
        setDefaultLogo(QString());
        QVERIFY(!isDefaultLogo(own));
    }
};

VD_TEST_MAIN(TestDefaultLogo)
#include "tst_defaultlogo.moc"
