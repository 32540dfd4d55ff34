#include "charttool.h"

#include "editor/editordelays.h"
#include "lockspy.h"

#include <QScopedValueRollback>

using namespace charttool;

namespace {

/// A tool whose usual delay never ends.
struct ShownTool
{
    ShownTool()
        : user(tool)
    {
        tool.applyRecord(smallRecord());
        ready = user.show();
        editorDelays().snapshot = 60000;
    }

    void change() const { user.basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd")); }
    bool isChanged() const { return user.shownChart().pixelColor(20, 20) == QColor(Qt::darkBlue); }

    VTestChartTools tool;
    User user;
    bool ready = false;
};

} // namespace

class TestPromptPreview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        editorDelays() = EditorDelays();
        TestCase::cleanup();
    }

    void offAtFirst()
    {
        const ShownTool shown;
        QVERIFY(shown.ready && !shown.tool.promptPreview());
        shown.change();
        QTRY_VERIFY(!shown.user.cancel()->isEnabled()); // the lock has come
        QVERIFY(!shown.isChanged());
    }

    /// Once for all signals of a change, and the panels are let go.
    void aChange()
    {
        ShownTool shown;
        QVERIFY(shown.ready);
        QVERIFY(shown.tool.setProperty("promptPreview", true));
        LockSpy lock(shown.user.cancel());
        shown.change();
        QVERIFY(!shown.isChanged());
        QVERIFY(shown.user.mask()->isVisible());
        QTRY_VERIFY(shown.isChanged());
        QVERIFY(shown.user.settle());
        QVERIFY(lock.wasLocked());
        QVERIFY(!shown.user.mask()->isVisible());
        QVERIFY(shown.user.cancel()->isEnabled());
    }

    void manyChanges()
    {
        ShownTool shown;
        QVERIFY(shown.ready);
        shown.tool.setPromptPreview(true);
        for (int i = 0; i < 20; ++i) {
            shown.user.basicPanel()->setColor(QColor(10 * i, 0, 0), QStringLiteral("odd"));
            QTest::qWait(i % 3);
        }
        shown.change();
        QTRY_VERIFY(shown.isChanged());
        QVERIFY(shown.user.settle());
        QCOMPARE(shown.user.shownChart(),
                 shown.tool.chartImage().convertToFormat(shown.user.shownChart().format()));
    }
};

VD_TEST_MAIN(TestPromptPreview)
#include "tst_promptpreview.moc"
