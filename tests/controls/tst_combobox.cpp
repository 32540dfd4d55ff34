#include "testcase.h"

#include <combobox.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QVBoxLayout>

#include <memory>

using namespace vardeno::testcharttools;

namespace {

const QString longText = QStringLiteral("From up to down increase From left to right increase");

} // namespace

/// A box of 120 pixels in a shown window, with a short item, a long one and another short one.
class TestComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        // The offscreen platform's own, for every pop-up.
        log().allowWarning(
            QStringLiteral("^This plugin does not support (raise\\(\\)|grabbing the keyboard)"));
        m_window = std::make_unique<QWidget>();
        auto* column = new QVBoxLayout(m_window.get());
        m_box = new ComboBox(m_window.get());
        m_box->setFixedWidth(120);
        m_box->addItem(QStringLiteral("Center"), 10);
        m_box->addItem(longText, 20);
        m_box->addItem(QStringLiteral("Left Up"), 30);
        column->addWidget(m_box);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_box->setFocus();
    }

    void cleanup()
    {
        QToolTip::hideText();
        m_window.reset();
        TestCase::cleanup();
    }

    void itemsHaveTextAndData()
    {
        QCOMPARE(m_box->count(), 3);
        QCOMPARE(m_box->currentIndex(), 0);
        QCOMPARE(m_box->currentData().toInt(), 10);
        m_box->setCurrentIndex(m_box->findData(30));
        QCOMPARE(m_box->currentText(), QStringLiteral("Left Up"));
    }

    void widthDoesNotDependOnTheItems()
    {
        ComboBox narrow;
        narrow.addItem(QStringLiteral("A"));
        ComboBox wide;
        wide.addItem(longText);
        QCOMPARE(wide.sizeHint().width(), narrow.sizeHint().width());
        QCOMPARE(wide.minimumSizeHint().width(), narrow.minimumSizeHint().width());
        const int before = wide.sizeHint().width();
        wide.addItem(longText + longText);
        QCOMPARE(wide.sizeHint().width(), before);
        QVERIFY(before < wide.fontMetrics().horizontalAdvance(longText));
    }

    void keysChooseAndAreAnnounced()
    {
        const QSignalSpy spy(m_box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Down);
        QCOMPARE(m_box->currentIndex(), 1);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_End);
        QCOMPARE(m_box->currentIndex(), 2);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Down);
        QCOMPARE(spy.count(), 2);
    }

    void listShowsEveryItemWhole_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("items");
        QTest::newRow("pop-up over the box") << "fusion" << 0;
        QTest::newRow("pop-up over the box, many items") << "fusion" << 40;
        QTest::newRow("list below the box") << "windows" << 0;
        QTest::newRow("list below the box, with a scroll bar") << "windows" << 40;
    }

    void listShowsEveryItemWhole()
    {
        QFETCH(QString, style);
        QFETCH(int, items);
        setStyle(style);
        for (int i = 0; i < items; ++i)
            m_box->addItem(QStringLiteral("item"));
        openList();
        const QAbstractItemView* view = m_box->view();
        QVERIFY(view->viewport()->width() >= view->sizeHintForIndex(m_box->model()->index(1, 0)).width());
        QVERIFY(view->viewport()->width() > view->fontMetrics().horizontalAdvance(longText));
        QCOMPARE(view->verticalScrollBar()->isVisible(), items > 0 && style == QLatin1String("windows"));
        QCOMPARE(m_box->width(), 120);
    }

    void listWidthFollowsTheItems_data()
    {
        QTest::addColumn<QString>("style");
        QTest::newRow("pop-up over the box") << "fusion";
        QTest::newRow("list below the box") << "windows";
    }

    void listWidthFollowsTheItems()
    {
        QFETCH(QString, style);
        setStyle(style);
        m_box->setItemText(1, longText + longText);
        openList();
        const int wide = m_box->view()->width();
        m_box->hidePopup();
        m_box->setItemText(1, QStringLiteral("short"));
        openList();
        QVERIFY(m_box->view()->width() < wide);
        QVERIFY(m_box->view()->width() <= 150);
    }

    void itemOfTheListIsChosenByClick()
    {
        openList();
        const QModelIndex last = m_box->model()->index(2, 0);
        const QPoint position = m_box->view()->visualRect(last).center();
        QTest::mouseMove(m_box->view()->viewport(), position);
        QTest::qWait(QApplication::doubleClickInterval() + 50); // a click right after opening does not count
        QTest::mouseClick(m_box->view()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
        QTRY_COMPARE(m_box->currentData().toInt(), 30);
    }

    void emptyListStaysClosed()
    {
        m_box->clear();
        m_box->showPopup();
        QVERIFY(!m_box->view()->isVisible());
    }

    void toolTips_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("ownToolTip");
        QTest::addColumn<QString>("expected");
        QTest::newRow("item that fits") << 0 << ""
                                        << "";
        QTest::newRow("item that is cut") << 1 << "" << longText;
        QTest::newRow("tool tip of its own, item that fits") << 0 << "Sort by"
                                                             << "Sort by";
        QTest::newRow("tool tip of its own, item that is cut") << 1 << "Sort by"
                                                               << "Sort by";
        QTest::newRow("no current item") << -1 << ""
                                         << "";
    }

    void toolTips()
    {
        QFETCH(int, index);
        QFETCH(QString, ownToolTip);
        QFETCH(QString, expected);
        m_box->setCurrentIndex(index);
        m_box->setToolTip(ownToolTip);
        askForToolTip();
        QCOMPARE(QToolTip::text(), expected);
    }

    void toolTipFollowsTheWidth_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plenty of room") << 80 << "";
        QTest::newRow("just enough beside the arrow") << 0 << "";
        QTest::newRow("a pixel too few") << -1 << longText;
    }

    /// `spare`: how much wider than the text the box is beside its arrow.
    void toolTipFollowsTheWidth()
    {
        QFETCH(int, spare);
        QFETCH(QString, expected);
        m_box->setCurrentIndex(1);
        m_box->setFixedWidth(m_box->fontMetrics().horizontalAdvance(longText) + besideField(*m_box) + spare);
        askForToolTip();
        QCOMPARE(QToolTip::text(), expected);
    }

    void wideItemIsShownElided_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("fits") << 600;
        QTest::newRow("elided") << 120;
        QTest::newRow("hardly a letter") << 40;
    }

    void wideItemIsShownElided()
    {
        QFETCH(int, width);
        ComboBox box;
        box.addItem(longText);
        ComboBox expected;
        box.resize(width, 24);
        expected.resize(width, 24);
        expected.addItem(box.fontMetrics().elidedText(longText, Qt::ElideRight, width - besideField(box)));
        VD_COMPARE_IMAGES(box.grab().toImage(), expected.grab().toImage());
        QCOMPARE(box.currentText(), longText);
    }

private:
    /// What the style takes of the box's width for frame and arrow.
    static int besideField(const QComboBox& box)
    {
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.subControls = QStyle::SC_All;
        const QRect field =
            box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
        return box.width() - field.width();
    }

    void setStyle(const QString& name)
    {
        QStyle* style = QStyleFactory::create(name);
        QVERIFY(style);
        style->setParent(m_window.get());
        m_box->setStyle(style);
        // A list below the box scrolls with a scroll bar, as it does where the whole application has the
        // style.
        if (name == QLatin1String("windows"))
            m_box->view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    }

    void openList()
    {
        m_box->showPopup();
        QTRY_VERIFY(m_box->view()->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(m_box->view()->window()));
    }

    void askForToolTip()
    {
        QToolTip::hideText();
        QTRY_VERIFY(QToolTip::text().isEmpty());
        const QPoint position = m_box->rect().center();
        QHelpEvent event(QEvent::ToolTip, position, m_box->mapToGlobal(position));
        QCoreApplication::sendEvent(m_box, &event);
    }

    std::unique_ptr<QWidget> m_window;
    ComboBox* m_box = nullptr;
};

VD_TEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
