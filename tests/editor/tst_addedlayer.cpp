#include "charttool.h"
#include "editor/paintstatus.h"

#include <QPainter>

using namespace charttool;

namespace {

constexpr char name[] = "m_pMark";

/// A layer that is none of the library's: a red corner.
class Mark : public LayerPainter
{
public:
    using LayerPainter::LayerPainter;

protected:
    void draw(QPainter& painter, const QSize&) override { painter.fillRect(0, 0, 5, 5, Qt::red); }
};

LayerPainter* createMark()
{
    return new Mark(nullptr);
}

const Layer mark = {8, name, "Mark is done", true, false, createMark};

} // namespace

/// A layer joins the chart with a line in the table.
class TestAddedLayer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        std::vector<Layer>& table = layerTable();
        if (table.back().number == mark.number)
            table.pop_back();
        TestCase::cleanup();
    }

    void theStatusAwaitsIt_data()
    {
        QTest::addColumn<bool>("awaited");
        QTest::newRow("awaited") << true;
        QTest::newRow("not awaited") << false;
    }

    void theStatusAwaitsIt()
    {
        QFETCH(bool, awaited);
        std::vector<Layer> layers = {chartLayers().front(), mark};
        layers.back().awaited = awaited;
        PaintStatus status(layers);
        QVERIFY(!status.isDone());
        QCOMPARE(status.note(QLatin1String(layers.front().memberName)), layers.front().doneText);
        QCOMPARE(status.isDone(), !awaited);
        QCOMPARE(status.note(QLatin1String(name)), mark.doneText);
        QVERIFY(status.isDone());
        QCOMPARE(status.note(QStringLiteral("m_pNobody")), nullptr);
        status.clear();
        QVERIFY(!status.isDone());
    }

    void theEditorShowsAndAwaitsIt()
    {
        layerTable().push_back(mark);
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        log().clear();
        user.basicPanel()->setColor(Qt::darkBlue, QStringLiteral("odd"));
        QVERIFY(user.settle());
        QVERIFY(paintLog(log().messages()).contains("PaintTextChartTool is done"));
        QCOMPARE(toolLog(log().messages(), QStringLiteral("Mark is done")).size(), 1);
        QCOMPARE(tool.chartImage().pixel(2, 2), QColor(Qt::red).rgb());
        QCOMPARE(user.shownChart().pixel(2, 2), QColor(Qt::red).rgb());
        QImage expected = expectedChart(tool.getTestChartToolsData());
        QPainter(&expected).fillRect(0, 0, 5, 5, Qt::red);
        VD_COMPARE_IMAGES(tool.chartImage(), expected);
    }
};

VD_TEST_MAIN(TestAddedLayer)
#include "tst_addedlayer.moc"
