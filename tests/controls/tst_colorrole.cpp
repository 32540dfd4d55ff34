#include "controls/colorrole.h"
#include "testcase.h"

#include <QPushButton>

using namespace vardeno::testcharttools;

class TestColorRole : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_button = std::make_unique<QPushButton>();
        m_button->setFixedSize(16, 16);
        m_told.clear();
        m_role = ColorRole();
        m_role.init(m_button.get(), Qt::green, [this](const QColor& color) { m_told.append(color); });
    }

    void beginsShown()
    {
        QCOMPARE(m_role.button(), m_button.get());
        QCOMPARE(m_role.color(), QColor(Qt::green));
        QCOMPARE(swatchColor(m_button.get()), QColor(Qt::green));
        QVERIFY(!m_role.beforePicking().isValid());
        QVERIFY(m_told.isEmpty());
    }

    void settingShowsAndTells()
    {
        m_role.set(Qt::red);
        QCOMPARE(swatchColor(m_button.get()), QColor(Qt::red));
        QCOMPARE(m_told, QVector<QColor>{Qt::red});
        m_role.tell();
        QCOMPARE(m_told, (QVector<QColor>{Qt::red, Qt::red}));
    }

    void pickingRemembersWhatIsShown()
    {
        m_role.beginPicking();
        m_role.set(Qt::red);
        QCOMPARE(m_role.beforePicking(), QColor(Qt::green));
        m_role.setBeforePicking(Qt::blue);
        QCOMPARE(m_role.beforePicking(), QColor(Qt::blue));
    }

    void aGroupThatIsOffKeepsItsColor()
    {
        m_role.keep(false);
        m_role.show(false);
        QVERIFY(swatchColor(m_button.get()) != QColor(Qt::green));
        QCOMPARE(m_role.color(), QColor(Qt::green));
        m_role.set(Qt::red);
        QCOMPARE(m_told, QVector<QColor>{Qt::red});
        m_role.keep(true);
        m_role.show(true);
        QCOMPARE(swatchColor(m_button.get()), QColor(Qt::red));
    }

private:
    std::unique_ptr<QPushButton> m_button;
    ColorRole m_role;
    QVector<QColor> m_told;
};

VD_TEST_MAIN(TestColorRole)
#include "tst_colorrole.moc"
