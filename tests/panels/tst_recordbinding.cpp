#include "panels/fieldrange.h"
#include "panels/recordbinding.h"
#include "testcase.h"

#include <QCheckBox>
#include <QPushButton>

using namespace vardeno::testcharttools;

Q_DECLARE_METATYPE(SpinRange)

namespace {

struct Group
{
    bool on = false;
    int size = 0;
    int choice = 0;
    std::string text;
    RgbaColor color;
};

} // namespace

class TestRecordBinding : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controlsShowTheGroup()
    {
        Controls c;
        c.binding.push({true, 12, 1, "Bühne", {10, 20, 30, 255}});
        QVERIFY(c.on.isChecked());
        QCOMPARE(c.size.value(), 12.0);
        QCOMPARE(c.choice.currentIndex(), 1);
        QCOMPARE(c.text.text(), QString::fromUtf8("Bühne"));
        QCOMPARE(c.color.color(), QColor(10, 20, 30));
    }

    void groupIsCollected()
    {
        Controls c;
        c.on.setChecked(true);
        c.size.setValue(7.9);
        c.choice.setCurrentIndex(1);
        c.text.setText(QString::fromUtf8("Bühne"));
        c.color.set(QColor(1, 2, 3));
        Group group;
        c.binding.collect(group);
        QVERIFY(group.on);
        QCOMPARE(group.size, 7);
        QCOMPARE(group.choice, 1);
        QCOMPARE(group.text, std::string("Bühne"));
        QVERIFY(group.color == (RgbaColor{1, 2, 3, 255}));
    }

    void aChoiceBeyondTheRowsIsCut_data()
    {
        QTest::addColumn<int>("choice");
        QTest::addColumn<int>("row");
        QTest::newRow("beyond") << 9 << 1;
        QTest::newRow("before") << -1 << 0;
    }

    void aChoiceBeyondTheRowsIsCut()
    {
        QFETCH(int, choice);
        QFETCH(int, row);
        Controls c;
        Group group;
        group.choice = choice;
        c.binding.push(group);
        QCOMPARE(c.choice.currentIndex(), row);
    }

    void rowsArePushedInTheirOrder()
    {
        SpinEditBox entry;
        QStringList pushed;
        RecordBinding<Group> binding;
        binding.bind({}, [&](const Group&) { pushed << "first"; });
        binding.bind(&Group::size, &entry, [&] { pushed << entry.text(); });
        binding.bind([](Group& group) { group.on = true; }, {});
        binding.bind({}, [&](const Group&) { pushed << "last"; });
        Group group;
        group.size = 5;
        binding.push(group);
        QCOMPARE(pushed, QStringList({"first", "5", "last"}));
        binding.push(group); // it is told even where nothing differs
        QCOMPARE(pushed.count(QStringLiteral("5")), 2);
        binding.collect(group);
        QVERIFY(group.on);
    }

    void ranges_data()
    {
        QTest::addColumn<SpinRange>("range");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::newRow("resolution") << rangeOf(&PublicChartData::resolutionWidth) << 16.0 << 4320.0;
        QTest::newRow("cabinets") << rangeOf(&PublicChartData::boxCol) << 1.0 << 100.0;
        QTest::newRow("radius") << rangeOf(&InLineChartData::circleSize) << 1.0 << 16384.0;
        QTest::newRow("scale") << rangeOf(&LogoChartData::scale) << 0.0 << 200.0;
        QTest::newRow("opacity") << rangeOf(&LogoChartData::opacity) << 0.0 << 100.0;
        QTest::newRow("text size") << rangeOf(&SelfChartData::selfTextSize) << 1.0 << 200.0;
    }

    void ranges()
    {
        QFETCH(SpinRange, range);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QCOMPARE(range.minimum, minimum);
        QCOMPARE(range.maximum, maximum);
    }

private:
    struct Controls
    {
        Controls()
        {
            choice.addItems({QStringLiteral("one"), QStringLiteral("two")});
            button.setFixedSize(16, 16);
            color.init(&button, Qt::black, [](const QColor&) {});
            binding.bind(&Group::on, &on);
            binding.bind(&Group::size, &size);
            binding.bind(&Group::choice, &choice);
            binding.bind(&Group::text, &text);
            binding.bind(&Group::color, color, [this](const QColor& pushed) { color.set(pushed); });
        }

        QCheckBox on;
        SpinEditBox size;
        ComboBox choice;
        QLineEdit text;
        QPushButton button;
        ColorRole color;
        RecordBinding<Group> binding;
    };
};

VD_TEST_MAIN(TestRecordBinding)
#include "tst_recordbinding.moc"
