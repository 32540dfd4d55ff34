#include "logorefusal.h"
#include "testcase.h"

#include <paintpiclogowidget.h>
#include <vtestcharttools.h>

#include <QMessageBox>

using namespace vardeno::testcharttools;

/// What the desk says of a picture that cannot be a logo.
class TestLogoRefusal : public TestCase
{
    Q_OBJECT

private:
    static constexpr QSize limit = {3840, 3840};

private Q_SLOTS:
    void sentences_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("sentence");
        const QString damaged = QStringLiteral("This file is damaged, or no picture that can be read.");
        QTest::newRow("no picture") << QSize() << damaged;
        QTest::newRow("as large as may be, and damaged") << limit << damaged;
        QTest::newRow("too wide") << QSize(3841, 10)
                                  << "The picture has 3841 x 10 pixels; a logo has at most 3840 x 3840.";
        QTest::newRow("too high") << QSize(10, 9000)
                                  << "The picture has 10 x 9000 pixels; a logo has at most 3840 x 3840.";
    }

    void sentences()
    {
        QFETCH(QSize, size);
        QFETCH(QString, sentence);
        QCOMPARE(logoRefusal(size, limit), sentence);
    }

    void aMessageNamesTheFile()
    {
        QWidget window;
        auto* editor = new VTestChartTools(&window);
        tellRefusedLogos(editor);
        window.show();
        Q_EMIT editor->pictureLogo()->sigLogoRefused(QStringLiteral("/logos/a.png"), {}, {5000, 20}, limit);
        const auto boxes = window.findChildren<QMessageBox*>();
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first()->isVisible());
        QCOMPARE(boxes.first()->text(), logoRefusal({5000, 20}, limit));
        QCOMPARE(boxes.first()->informativeText(), QStringLiteral("/logos/a.png"));
        QTest::keyClick(boxes.first(), Qt::Key_Escape);
        QTRY_VERIFY(window.findChildren<QMessageBox*>().isEmpty());
    }
};

VD_TEST_MAIN(TestLogoRefusal)
#include "tst_logorefusal.moc"
