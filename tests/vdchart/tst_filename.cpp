#include "filename.h"
#include "testcase.h"

class TestFileName : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void problems_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("problem");
        const QString characters = QStringLiteral("has characters that no file name has");
        const QString device = QStringLiteral("is a device on some systems");
        QTest::newRow("usual") << "left wall-2.png" << QString();
        QTest::newRow("other letters") << QString::fromUtf8("Bühne 屏") << QString();
        QTest::newRow("a path") << "../a" << characters;
        QTest::newRow("a drive") << "c:a" << characters;
        QTest::newRow("a line end") << "a\nb" << characters;
        QTest::newRow("a deleting character") << "a\x7f" << characters;
        QTest::newRow("a question") << "a?" << characters;
        QTest::newRow("hidden") << ".a"
                                << "begins with a dot";
        QTest::newRow("CON") << "CON" << device;
        QTest::newRow("nul") << "nul" << device;
        QTest::newRow("with an ending") << "Aux.left.png" << device;
        QTest::newRow("with blanks") << "prn .png" << device;
        QTest::newRow("a port") << "com1" << device;
        QTest::newRow("a port with a raised digit") << QString::fromUtf8("LPT²") << device;
        QTest::newRow("a longer word") << "console" << QString();
        QTest::newRow("two digits") << "COM10" << QString();
        QTest::newRow("in the middle") << "left-CON" << QString();
    }

    void problems()
    {
        QFETCH(QString, name);
        QFETCH(QString, problem);
        QCOMPARE(fileNameProblem(name),
                 problem.isEmpty() ? QString() : QStringLiteral("the name \"%1\" %2").arg(name, problem));
    }

    void sameNames_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("same");
        QTest::newRow("equal") << "left"
                               << "left" << true;
        QTest::newRow("letter case") << "Left"
                                     << "lEFT" << true;
        QTest::newRow("composed or not")
            << QString::fromUtf8("B\u00fchne") << QString::fromUtf8("Bu\u0308hne") << true;
        QTest::newRow("composed or not, in capitals")
            << QString::fromUtf8("B\u00dcHNE") << QString::fromUtf8("bu\u0308hne") << true;
        QTest::newRow("another letter") << QString::fromUtf8("B\u00fchne") << "Buhne" << false;
    }

    void sameNames()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(sameFileName(a) == sameFileName(b), "same");
    }
};

VD_TEST_MAIN(TestFileName)
#include "tst_filename.moc"
