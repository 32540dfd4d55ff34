#include "charttool.h"
#include "language.h"
#include "wheel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QToolTip>

using namespace charttool;

namespace {

/// Fields that a turn of the wheel changes.
QVector<QWidget*> turnable(const VTestChartTools& tool)
{
    QVector<QWidget*> fields;
    for (const QWidget* panel : User(const_cast<VTestChartTools&>(tool)).panels()) {
        for (auto* field : panel->findChildren<QWidget*>()) {
            if (qobject_cast<SpinEditBox*>(field) || qobject_cast<QComboBox*>(field) ||
                qobject_cast<QSlider*>(field))
                fields.append(field);
        }
    }
    return fields;
}

QVector<SpinEditBox*> entries(const VTestChartTools& tool)
{
    QVector<SpinEditBox*> found;
    for (QWidget* field : turnable(tool)) {
        if (auto* entry = qobject_cast<SpinEditBox*>(field))
            found.append(entry);
    }
    return found;
}

/// What a field that can be turned shows.
double shownValue(const QWidget* field)
{
    if (const auto* entry = qobject_cast<const SpinEditBox*>(field))
        return entry->value();
    if (const auto* box = qobject_cast<const QComboBox*>(field))
        return box->currentIndex();
    return qobject_cast<const QSlider*>(field)->value();
}

} // namespace

/// What all fields of all panels have in common.
class TestFields : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    void cleanup()
    {
        QToolTip::hideText();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    /// An entry of whole numbers shows what the record has, after typing and after the chart is opened again.
    void whatIsShownIsInTheRecord()
    {
        VTestChartTools tool;
        tool.applyRecord(smallRecord());
        for (SpinEditBox* entry : entries(tool)) {
            const int whole = int(entry->minimum() + entry->maximum()) / 2;
            entry->findChild<QLineEdit*>()->setText(QString::number(whole) + QLatin1String(".9"));
            entry->interpretText();
            QCOMPARE(entry->text(), QString::number(whole) + entry->suffix());
            QCOMPARE(int(entry->value()), whole);
        }
        const TestChartToolsData record = tool.getTestChartToolsData();
        QCOMPARE(record.publicData.resolutionWidth, 2168);
        QCOMPARE(record.inLineData.circleWidth, 50);
        QCOMPARE(record.logoData.offsetY, 8192);
        QCOMPARE(record.selfData.selfTextSize, 100);
        VTestChartTools reopened;
        reopened.setTestChartToolsData(record);
        for (int i = 0; i < entries(tool).size(); ++i)
            QCOMPARE(entries(reopened).at(i)->text(), entries(tool).at(i)->text());
    }

    void wheelChangesWhatItTurnsOver()
    {
        VTestChartTools tool;
        QVERIFY(!tool.wheelScrollsPanels());
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        SpinEditBox* const rows = user.entry("Box RowColNum");
        const double before = rows->value();
        turnWheelOver(rows, 120);
        QCOMPARE(rows->value(), before + 1);
    }

    void wheelScrollsThePanels_data()
    {
        QTest::addColumn<bool>("focused");
        QTest::newRow("no field has the focus") << false;
        QTest::newRow("the field has the focus") << true;
    }

    void wheelScrollsThePanels()
    {
        QFETCH(bool, focused);
        VTestChartTools tool;
        tool.setProperty("wheelScrollsPanels", true);
        QVERIFY(tool.wheelScrollsPanels());
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        int turned = 0;
        for (QWidget* field : turnable(tool)) {
            if (!field->isVisibleTo(&tool) || !field->isEnabled())
                continue;
            user.reveal(field);
            focused ? field->setFocus() : user.preview()->setFocus();
            if (!focused && field->hasFocus())
                field->clearFocus();
            QScrollBar* const bar = user.settings()->verticalScrollBar();
            const int place = bar->value();
            const double before = shownValue(field);
            const int angle = place > bar->maximum() / 2 || focused ? 120 : -120;
            turnWheelOver(field, angle);
            turnWheelOver(field, -angle / 2); // what does not come to a notch scrolls as well
            QVERIFY2((bar->value() != place) != focused, qPrintable(field->accessibleName()));
            QCOMPARE(field->hasFocus(), focused);
            if (!focused)
                QCOMPARE(shownValue(field), before);
            else
                turned += shownValue(field) != before;
            QVERIFY(user.settle());
        }
        QVERIFY(!focused || turned > 5);
    }

    void wheelChangesAgain()
    {
        VTestChartTools tool;
        SpinEditBox* const entry = entries(tool).first();
        const Qt::FocusPolicy policy = entry->focusPolicy();
        tool.setWheelScrollsPanels(true);
        QVERIFY(entry->focusPolicy() != policy);
        tool.setWheelScrollsPanels(false);
        QCOMPARE(entry->focusPolicy(), policy);
        QVERIFY(!tool.wheelScrollsPanels());
    }

    /// Read without their captions.
    void everyFieldTellsWhatItIs()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({sourcePath("translations/de.ts")});
        for (const char* language : {"", "de"}) {
            tool.switchLanguage(QLatin1String(language));
            QSet<QString> names;
            for (const SpinEditBox* entry : entries(tool)) {
                names.insert(entry->accessibleName());
                QVERIFY(!entry->accessibleName().isEmpty());
                QVERIFY2(entry->toolTip().startsWith(entry->accessibleName()), qPrintable(entry->toolTip()));
                for (const double limit : {entry->minimum(), entry->maximum()})
                    QVERIFY2(entry->toolTip().contains(QString::number(limit)), qPrintable(entry->toolTip()));
            }
            QCOMPARE(names.size(), entries(tool).size());
            for (const QWidget* field : turnable(tool))
                QVERIFY(!field->accessibleName().isEmpty());
        }
    }

    void resolutionAndCabinets()
    {
        VTestChartTools tool;
        QStringList toolTips;
        for (const SpinEditBox* entry : User(tool).publicPanel()->findChildren<SpinEditBox*>())
            toolTips.append(entry->toolTip());
        QCOMPARE(toolTips,
                 QStringList({"Brightness in percent: 0 to 100", "Chart width in pixels: 16 to 4320",
                              "Chart height in pixels: 16 to 4320", "Rows of cabinets: 1 to 100",
                              "Columns of cabinets: 1 to 100", "Width of the border: 1 to 100 px"}));
        QCOMPARE(User(tool).named<QLineEdit>("selfInputLineEdit")->toolTip(),
                 QStringLiteral("Custom text: at most 50 characters"));
        QCOMPARE(User(tool).named<QPushButton>("circleColorButton")->toolTip(),
                 QStringLiteral("Color of the circles"));
        QCOMPARE(User(tool).toggle("Show Circle")->accessibleName(), QStringLiteral("Show the circles"));
    }

    void refusedEntriesTellTheirLimits_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("way");
        QTest::newRow("Return") << "9000" << int(Qt::Key_Return);
        QTest::newRow("Tab") << "9000" << int(Qt::Key_Tab);
        QTest::newRow("too small") << "3" << int(Qt::Key_Return);
        QTest::newRow("a click elsewhere") << "9000" << 0;
    }

    void refusedEntriesTellTheirLimits()
    {
        QFETCH(QString, typed);
        QFETCH(int, way);
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        SpinEditBox* const width = user.publicPanel()->findChildren<SpinEditBox*>().at(1);
        const QString before = width->text();
        user.click(width);
        QTest::keyClick(tool.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(width, typed);
        if (way)
            QTest::keyClick(tool.windowHandle(), Qt::Key(way));
        else
            user.click(user.publicPanel()->findChildren<SpinEditBox*>().at(2));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Chart width in pixels: 16 to 4320"));
        QCOMPARE(width->text(), before);
    }

    void acceptedEntriesTellNothing()
    {
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        user.enter(user.publicPanel()->findChildren<SpinEditBox*>().at(1), QStringLiteral("170"));
        QVERIFY(user.settle());
        QVERIFY(!QToolTip::isVisible());
    }
};

VD_TEST_MAIN(TestFields)
#include "tst_fields.moc"
