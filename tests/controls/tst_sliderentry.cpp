#include "controls/sliderentry.h"
#include "testcase.h"

#include <spineditbox.h>

#include <QSlider>

#include <memory>

using namespace vardeno::testcharttools;

class TestSliderEntry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_slider = std::make_unique<QSlider>(Qt::Horizontal);
        m_box = std::make_unique<SpinEditBox>();
        m_slider->setRange(0, 100);
        m_box->setRange(0, 100);
        m_events.clear();
        m_entry = {m_slider.get(), m_box.get()};
        m_entry.setQuietly(50);
    }

    void cleanup()
    {
        m_slider.reset();
        m_box.reset();
        TestCase::cleanup();
    }

    void entryShowsTheSlider()
    {
        m_slider->setValue(73);
        m_entry.entryFollows();
        QCOMPARE(m_box->value(), 73.0);
        QCOMPARE(m_slider->value(), 73);
    }

    void sliderShowsTheEntry_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("whole") << 73.0 << 73;
        QTest::newRow("cut, not rounded") << 73.99 << 73;
        QTest::newRow("lowest") << 0.0 << 0;
        QTest::newRow("below one") << 0.5 << 0;
        QTest::newRow("highest") << 100.0 << 100;
    }

    void sliderShowsTheEntry()
    {
        QFETCH(double, value);
        QFETCH(int, expected);
        m_box->setValue(value);
        QVERIFY(m_entry.sliderFollows());
        QCOMPARE(m_slider->value(), expected);
        QCOMPARE(m_box->value(), value);
    }

    void nothingIsAppliedWhileTheSliderIsDragged()
    {
        m_slider->setSliderDown(true);
        m_box->setValue(20);
        QVERIFY(!m_entry.sliderFollows());
        QCOMPARE(m_slider->value(), 20);
        m_slider->setSliderDown(false);
        QVERIFY(m_entry.sliderFollows());
    }

    void setsTheSliderFirst()
    {
        record();
        m_entry.set(30);
        QCOMPARE(m_events, QStringList({"slider 30", "entry 30"}));
        QCOMPARE(m_slider->value(), 30);
        QCOMPARE(m_box->value(), 30.0);
    }

    void settingTheSameValueIsSilent()
    {
        record();
        m_entry.set(50);
        QCOMPARE(m_events, QStringList());
    }

    void setsQuietly()
    {
        record();
        m_entry.setQuietly(30);
        QCOMPARE(m_events, QStringList());
        QCOMPARE(m_slider->value(), 30);
        QCOMPARE(m_box->value(), 30.0);
        QVERIFY(!m_slider->signalsBlocked());
        QVERIFY(!m_box->signalsBlocked());
    }

    void quietnessThatWasThereStays()
    {
        m_box->blockSignals(true);
        m_entry.setQuietly(30);
        QVERIFY(m_box->signalsBlocked());
        QVERIFY(!m_slider->signalsBlocked());
    }

    void coupled_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<double>("shown");
        QTest::addColumn<int>("applied");
        QTest::newRow("drag") << "drag 20" << 20.0 << 0;
        QTest::newRow("slider moved by a key") << "slide 20" << 20.0 << 1;
        QTest::newRow("entry") << "enter 20" << 20.0 << 1;
        QTest::newRow("entry cut to the slider's step") << "enter 20.7" << 20.0 << 2;
        QTest::newRow("same value in the entry") << "enter 50" << 50.0 << 0;
        QTest::newRow("both") << "set 20" << 20.0 << 1;
    }

    /// Connected as a panel connects it; a fraction is applied again when the slider has cut it.
    void coupled()
    {
        QFETCH(QString, action);
        QFETCH(double, shown);
        QFETCH(int, applied);
        QList<int> values;
        connect(m_slider.get(), &QSlider::valueChanged, m_box.get(), [this] { m_entry.entryFollows(); });
        connect(m_box.get(), &SpinEditBox::valueChanged, m_slider.get(), [&] {
            if (m_entry.sliderFollows())
                values.append(m_slider->value());
        });
        perform(action);
        QCOMPARE(m_box->value(), shown);
        QCOMPARE(m_slider->value(), int(shown));
        QCOMPARE(values.size(), applied);
        QCOMPARE(values.count(int(shown)), applied);
    }

private:
    void record()
    {
        connect(m_slider.get(), &QSlider::valueChanged, m_slider.get(),
                [this](int value) { m_events.append(QStringLiteral("slider %1").arg(value)); });
        connect(m_box.get(), &SpinEditBox::valueChanged, m_box.get(),
                [this](double value) { m_events.append(QStringLiteral("entry %1").arg(value)); });
    }

    void perform(const QString& action)
    {
        const QString verb = action.section(QLatin1Char(' '), 0, 0);
        const double value = action.section(QLatin1Char(' '), 1).toDouble();
        if (verb == QLatin1String("enter"))
            m_box->setValue(value);
        else if (verb == QLatin1String("set"))
            m_entry.set(int(value));
        else {
            m_slider->setSliderDown(verb == QLatin1String("drag"));
            m_slider->setValue(int(value));
        }
    }

    std::unique_ptr<QSlider> m_slider;
    std::unique_ptr<SpinEditBox> m_box;
    SliderEntry m_entry;
    QStringList m_events;
};

VD_TEST_MAIN(TestSliderEntry)
#include "tst_sliderentry.moc"
