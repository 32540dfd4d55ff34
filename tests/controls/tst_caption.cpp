#include "controls/caption.h"
#include "testcase.h"
#include "translatemanager1.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

using namespace vardeno::testcharttools;

namespace {

const QString longText = QStringLiteral("From up to down increase");

int textWidth(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().boundingRect(text).width();
}

} // namespace

class TestCaption : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        load("xx", "<message><source>Row</source><translation>Rather a long row</translation></message>"
                   "<message><source>Col</source><translation>C</translation></message>");
        load("yy", "<message><source>Row</source><translation>R</translation></message>"
                   "<message><source>Col</source><translation>Really wide column</translation></message>");
    }

    void init()
    {
        TestCase::init();
        TranslateManager1::instance().switchLanguage(QString());
    }

    void elides_data()
    {
        QTest::addColumn<bool>("onButton");
        QTest::addColumn<int>("margin");
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        for (const bool onButton : {false, true}) {
            const auto row = [onButton](const char* name) -> QTestData& {
                return QTest::newRow(qPrintable((onButton ? "button: " : "label: ") + QLatin1String(name)));
            };
            row("plenty of room") << onButton << 0 << 100 << true;
            row("just enough") << onButton << 0 << 0 << true;
            row("one pixel too few") << onButton << 0 << -1 << false;
            row("half of it") << onButton << 0 << -textWidth(QLabel(), longText) / 2 << false;
            row("just enough with a margin") << onButton << 10 << 0 << true;
            row("a margin's pixel too few") << onButton << 10 << -1 << false;
        }
    }

    /// `spare`: how much wider than text and margin the widget is.
    void elides()
    {
        QFETCH(bool, onButton);
        if (onButton)
            verifyElides<QPushButton>();
        else
            verifyElides<QLabel>();
    }

    void emptyTextFits()
    {
        QLabel label;
        label.setFixedWidth(50);
        label.setToolTip(QStringLiteral("earlier"));
        showElided(&label, QString());
        QCOMPARE(label.text(), QString());
        QCOMPARE(label.toolTip(), QString());
    }

    void followsTheLanguage()
    {
        QLabel row;
        QPushButton column;
        row.setFixedWidth(60);
        column.setFixedWidth(60);
        CaptionSet captions;
        captions.add(&row, QStringLiteral("Row"));
        captions.add(&column, QStringLiteral("Col"));
        QCOMPARE(row.text(), QString()); // not before it is told to

        captions.retranslate();
        QCOMPARE(row.text(), QStringLiteral("Row"));
        QCOMPARE(column.text(), QStringLiteral("Col"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("xx"));
        QCOMPARE(row.text(), QStringLiteral("Row"));

        captions.retranslate();
        verifyElided(row, QStringLiteral("Rather a long row"));
        verifyWhole(column, QStringLiteral("C"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("yy"));
        captions.retranslate();
        verifyWhole(row, QStringLiteral("R"));
        verifyElided(column, QStringLiteral("Really wide column"));
        TranslateManager1::instance().switchLanguage(QStringLiteral("none"));
        captions.retranslate();
        verifyWhole(row, QStringLiteral("Row"));
        verifyWhole(column, QStringLiteral("Col"));
    }

    void elidesFromTheFullSourceEachTime()
    {
        QLabel label;
        label.setFixedWidth(40);
        CaptionSet captions;
        captions.add(&label, longText);
        captions.retranslate();
        const QString elided = label.text();
        verifyElided(label, longText);
        captions.retranslate();
        QCOMPARE(label.text(), elided);
        QCOMPARE(label.toolTip(), longText);
        label.setFixedWidth(textWidth(label, longText));
        captions.retranslate();
        verifyWhole(label, longText);
    }

    void marginsOfTheSetCount()
    {
        QLabel label;
        QPushButton button;
        label.setFixedWidth(textWidth(label, longText) + 4);
        button.setFixedWidth(textWidth(button, longText) + 4);
        CaptionSet fitting;
        fitting.add(&label, longText, 4);
        fitting.add(&button, longText, 4);
        fitting.retranslate();
        verifyWhole(label, longText);
        verifyWhole(button, longText);
        CaptionSet tight;
        tight.add(&label, longText, 5);
        tight.add(&button, longText, 5);
        tight.retranslate();
        verifyElided(label, longText);
        verifyElided(button, longText);
    }

    void showsInTheOrderOfAdding()
    {
        QStringList shown;
        QLabel label;
        label.setFixedWidth(100);
        CaptionSet captions;
        captions.add(QStringLiteral("Row"), [&](const QString& text) { shown.append(text); });
        captions.add(&label, QStringLiteral("Row"));
        captions.add(QStringLiteral("Col"),
                     [&](const QString& text) { shown.append(text + QLatin1Char('/') + label.text()); });
        captions.add(QStringLiteral("Row"), [&](const QString& text) { shown.append(text); });
        QCOMPARE(shown, QStringList());
        captions.retranslate();
        QCOMPARE(shown, QStringList({"Row", "Col/Row", "Row"}));
        shown.clear();
        TranslateManager1::instance().switchLanguage(QStringLiteral("yy"));
        captions.retranslate();
        QCOMPARE(shown, QStringList({"R", "Really wide column/R", "R"}));
    }

private:
    void load(const QByteArray& language, const QByteArray& messages)
    {
        QFile file(m_folder.filePath(QString::fromLatin1(language)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<TS language=\"" + language + "\"><context><name>TestChartTools::Widget</name>" +
                   messages + "</context></TS>");
        file.close();
        QVERIFY(TranslateManager1::instance().translator().load(file.fileName()));
    }

    template <typename Widget>
    static void verifyElides()
    {
        QFETCH(int, margin);
        QFETCH(int, spare);
        QFETCH(bool, fits);
        Widget widget;
        widget.setToolTip(QStringLiteral("earlier"));
        widget.setFixedWidth(textWidth(widget, longText) + margin + spare);
        showElided(&widget, longText, margin);
        if (fits)
            verifyWhole(widget, longText);
        else
            verifyElided(widget, longText, margin);
    }

    template <typename Widget>
    static void verifyWhole(const Widget& widget, const QString& text)
    {
        QCOMPARE(widget.text(), text);
        QCOMPARE(widget.toolTip(), QString());
    }

    template <typename Widget>
    static void verifyElided(const Widget& widget, const QString& text, int margin = 0)
    {
        QString start = widget.text();
        QVERIFY2(start.endsWith(QChar(0x2026)), qPrintable(start));
        start.chop(1);
        QVERIFY(!start.isEmpty());
        QVERIFY(text.startsWith(start));
        QVERIFY(start.size() < text.size());
        QVERIFY(widget.fontMetrics().horizontalAdvance(widget.text()) <= widget.width() - margin);
        QCOMPARE(widget.toolTip(), text);
    }

    QTemporaryDir m_folder;
};

VD_TEST_MAIN(TestCaption)
#include "tst_caption.moc"
