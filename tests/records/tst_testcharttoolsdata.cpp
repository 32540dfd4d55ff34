#include "testcase.h"
#include "testcharttoolsdata.h"
#include "vtestcharttools.h"

#include <cstddef>
#include <type_traits>

using namespace vardeno::testcharttools;

using Edit = void (*)(TestChartToolsData&);
Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(RgbaColor)

static_assert(!std::is_polymorphic_v<TestChartToolsData>, "the record is a plain value");
static_assert(std::is_convertible_v<EditType, int>, "hosts use the numbers");

// A colour is four consecutive 32-bit numbers.
static_assert(sizeof(RgbaColor) == 16);
static_assert(offsetof(RgbaColor, red) == 0 && offsetof(RgbaColor, green) == 4);
static_assert(offsetof(RgbaColor, blue) == 8 && offsetof(RgbaColor, alpha) == 12);

// The label modes are three adjacent bytes.
static_assert(offsetof(InLineChartData, numMode) == offsetof(InLineChartData, letterMode) + 1);
static_assert(offsetof(InLineChartData, combinationMode) == offsetof(InLineChartData, letterMode) + 2);

namespace {

const RgbaColor darkBlue = {0, 0, 100, 255};

/// Keeps what arrives through string-based connections, which find types by their registered names.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QList<TestChartToolsData> records;
    QStringList fileNames;
    QList<EditType> types;

public Q_SLOTS:
    void receive(TestChartToolsData record, QString fileName, EditType type)
    {
        records.append(record);
        fileNames.append(fileName);
        types.append(type);
    }
};

} // namespace

class TestTestChartToolsData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // The bindings name the fields in the order of their declaration, and all of them.

    void basicDefaults()
    {
        const BasicChartData data;
        const auto& [stripes, gradient, odd, even, chess, colorBar, gradientChecked] = data;
        static_assert(std::is_same_v<decltype(data.colorStripeColors), std::map<int, QColor>>);
        static_assert(std::is_same_v<decltype(data.gradientColors), std::map<int, QColor>>);
        QCOMPARE(&stripes, &data.colorStripeColors);
        QCOMPARE(&gradient, &data.gradientColors);
        QVERIFY(stripes.empty());
        QVERIFY(gradient.empty());
        verifyColor(odd, data.oddColor, {255, 170, 255, 255});
        verifyColor(even, data.evenColor, {85, 170, 255, 255});
        verifyField(chess, data.chessChecked, true);
        verifyField(colorBar, data.colorBarChecked, false);
        verifyField(gradientChecked, data.gradientChecked, false);
    }

    void publicDefaults()
    {
        const PublicChartData data;
        const auto& [brightness, width, height, rows, columns, border, borderWidth, borderColor] = data;
        verifyField(brightness, data.brightness, 100);
        verifyField(width, data.resolutionWidth, 1920);
        verifyField(height, data.resolutionHeight, 1080);
        verifyField(rows, data.boxRow, 9);
        verifyField(columns, data.boxCol, 16);
        verifyField(border, data.showOutBorder, true);
        verifyField(borderWidth, data.outBorderWidth, 2);
        verifyColor(borderColor, data.outBorderColor, {255, 255, 255, 255});
    }

    void inLineDefaults()
    {
        const InLineChartData data;
        const auto& [circle, circleSize, circleWidth, circleColor, diagonal, diagonalWidth, diagonalColor,
                     serial, serialSize, serialColor, letter, number, combination, position, sort] = data;
        verifyField(circle, data.showCircle, true);
        verifyField(circleSize, data.circleSize, 540);
        verifyField(circleWidth, data.circleWidth, 2);
        verifyColor(circleColor, data.circleColor, {0, 255, 0, 255});
        verifyField(diagonal, data.showDiagonal, true);
        verifyField(diagonalWidth, data.diagonalWidth, 10);
        verifyColor(diagonalColor, data.diagonalColor, {0, 255, 0, 255});
        verifyField(serial, data.showSerialNumber, true);
        verifyField(serialSize, data.serialSize, 20);
        verifyColor(serialColor, data.serialColor, darkBlue);
        verifyField(letter, data.letterMode, true);
        verifyField(number, data.numMode, false);
        verifyField(combination, data.combinationMode, false);
        verifyField(position, data.serialPosition, 0);
        verifyField(sort, data.serialSort, 0);
    }

    void logoDefaults()
    {
        const LogoChartData data;
        const auto& [logo, picture, text, logoText, textSize, textColor, scale, path, position, x, y,
                     opacity] = data;
        verifyField(logo, data.showLogo, true);
        verifyField(picture, data.pictureLogo, true);
        verifyField(text, data.textLogo, false);
        verifyField(logoText, data.logoText, std::string("Vardeno RT5 Pro"));
        verifyField(textSize, data.textSize, 100);
        verifyColor(textColor, data.textColor, darkBlue);
        verifyField(scale, data.scale, 100);
        verifyField(path, data.picturePath, std::string());
        verifyField(position, data.displayPosition, 0);
        verifyField(x, data.offsetX, 0);
        verifyField(y, data.offsetY, 0);
        verifyField(opacity, data.opacity, 100);
    }

    void selfDefaults()
    {
        const SelfChartData data;
        const auto& [show, text, size, color, resolution, resolutionSize, resolutionColor] = data;
        verifyField(show, data.showSelfText, true);
        verifyField(text, data.selfText, std::string("www.example.com"));
        verifyField(size, data.selfTextSize, 50);
        verifyColor(color, data.selfTextColor, darkBlue);
        verifyField(resolution, data.showResolution, true);
        verifyField(resolutionSize, data.resolutionTextSize, 50);
        verifyColor(resolutionColor, data.resolutionTextColor, darkBlue);
    }

    void recordHasFiveGroupsInOrder()
    {
        const TestChartToolsData record;
        const auto& [basic, publicGroup, inLine, logo, self] = record;
        QVERIFY(&basic == &record.basicData && basic == BasicChartData());
        QVERIFY(&publicGroup == &record.publicData && publicGroup == PublicChartData());
        QVERIFY(&inLine == &record.inLineData && inLine == InLineChartData());
        QVERIFY(&logo == &record.logoData && logo == LogoChartData());
        QVERIFY(&self == &record.selfData && self == SelfChartData());
    }

    void editTypeValues_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("Cancle") << int(Cancle) << 0;
        QTest::newRow("AddConfirm") << int(AddConfirm) << 1;
        QTest::newRow("ReplaceConfirm") << int(ReplaceConfirm) << 2;
        QTest::newRow("ReplaceConfirmOnlyCancle") << int(ReplaceConfirmOnlyCancle) << 3;
        QTest::newRow("ReplaceApply") << int(ReplaceApply) << 4;
    }

    void editTypeValues()
    {
        QFETCH(int, value);
        QFETCH(int, expected);
        QCOMPARE(value, expected);
    }

    void equalitySeesEveryField_data() { addFields(); }

    void equalitySeesEveryField()
    {
        QFETCH(Edit, edit);
        const TestChartToolsData original;
        TestChartToolsData edited;
        QVERIFY(edited == original);
        QVERIFY(!(edited != original));
        edit(edited);
        QVERIFY(!(edited == original));
        QVERIFY(edited != original);
        edit(edited);
        TestChartToolsData same;
        edit(same);
        QVERIFY(edited == same);
    }

    void copiesAreDeep_data() { addFields(); }

    void copiesAreDeep()
    {
        QFETCH(Edit, edit);
        TestChartToolsData source;
        edit(source);
        TestChartToolsData copy(source);
        TestChartToolsData assigned;
        assigned = source;
        QVERIFY(copy == source);
        QVERIFY(assigned == source);

        source.basicData.colorStripeColors[0].setRed(7);
        source.basicData.gradientColors.clear();
        source.logoData.logoText[0] = '#';
        source.selfData.selfText += '#';
        source.publicData.boxRow = 77;
        TestChartToolsData expected;
        edit(expected);
        QVERIFY(copy == expected);
        QVERIFY(assigned == expected);
    }

    void rowsOfTheColorListsCount()
    {
        TestChartToolsData first;
        TestChartToolsData second;
        first.basicData.colorStripeColors = {{0, Qt::red}};
        second.basicData.colorStripeColors = {{1, Qt::red}};
        QVERIFY(first != second);
    }

    void travelsThroughQueuedSignals()
    {
        VTestChartTools sender;
        QVERIFY(QMetaType::type("TestChartToolsData") == qMetaTypeId<TestChartToolsData>());
        QVERIFY(QMetaType::type("EditType") == qMetaTypeId<EditType>());
        Receiver receiver;
        QVERIFY(connect(&sender, SIGNAL(sigTestToolEditDone(TestChartToolsData, QString, EditType)),
                        &receiver, SLOT(receive(TestChartToolsData, QString, EditType)),
                        Qt::QueuedConnection));
        TestChartToolsData record;
        for (const Field& field : fields())
            field.edit(record);
        Q_EMIT sender.sigTestToolEditDone(record, QStringLiteral("/charts/one.png"), ReplaceApply);
        const TestChartToolsData sent = record;
        record = TestChartToolsData();
        QCOMPARE(receiver.records.size(), 0);

        QCoreApplication::processEvents();
        QCOMPARE(receiver.records.size(), 1);
        QVERIFY(receiver.records.first() == sent);
        QCOMPARE(receiver.fileNames, QStringList(QStringLiteral("/charts/one.png")));
        QCOMPARE(receiver.types, QList<EditType>{ReplaceApply});
    }

    void recordToToolkitColor_data()
    {
        QTest::addColumn<RgbaColor>("color");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("opaque") << RgbaColor{255, 170, 0, 255} << QColor(255, 170, 0);
        QTest::newRow("each component in its place") << RgbaColor{1, 2, 3, 4} << QColor(1, 2, 3, 4);
        QTest::newRow("transparent") << RgbaColor{9, 8, 7, 0} << QColor(9, 8, 7, 0);
        QTest::newRow("default") << RgbaColor() << QColor(0, 0, 0, 255);
        QTest::newRow("below the range") << RgbaColor{-1, -255, -2147483647, -1} << QColor(0, 0, 0, 0);
        QTest::newRow("above the range")
            << RgbaColor{256, 1000, 2147483647, 256} << QColor(255, 255, 255, 255);
    }

    void recordToToolkitColor()
    {
        QFETCH(RgbaColor, color);
        QFETCH(QColor, expected);
        QCOMPARE(toQColor(color), expected);
    }

    void toolkitToRecordColor_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<RgbaColor>("expected");
        QTest::newRow("each component in its place") << QColor(1, 2, 3, 4) << RgbaColor{1, 2, 3, 4};
        QTest::newRow("named") << QColor(Qt::yellow) << RgbaColor{255, 255, 0, 255};
        QTest::newRow("by hue") << QColor::fromHsv(120, 255, 255, 128) << RgbaColor{0, 255, 0, 128};
        QTest::newRow("invalid") << QColor() << RgbaColor{0, 0, 0, 255};
    }

    void toolkitToRecordColor()
    {
        QFETCH(QColor, color);
        QFETCH(RgbaColor, expected);
        QVERIFY(toRgbaColor(color) == expected);
    }

    void everyComponentSurvivesTheWayBack()
    {
        for (int value = 0; value < 256; ++value) {
            const RgbaColor color = {value, 255 - value, value / 2, value};
            QVERIFY(toRgbaColor(toQColor(color)) == color);
        }
    }

private:
    struct Field
    {
        const char* name;
        Edit edit;
    };

    template <typename Value>
    static void verifyField(const Value& bound, const Value& field, const Value& expected)
    {
        QCOMPARE(&bound, &field);
        QCOMPARE(field, expected);
    }

    static void verifyColor(const RgbaColor& bound, const RgbaColor& field, const RgbaColor& expected)
    {
        QCOMPARE(&bound, &field);
        QCOMPARE(field.red, expected.red);
        QCOMPARE(field.green, expected.green);
        QCOMPARE(field.blue, expected.blue);
        QCOMPARE(field.alpha, expected.alpha);
    }

    static void addFields()
    {
        QTest::addColumn<Edit>("edit");
        for (const Field& field : fields())
            QTest::newRow(field.name) << field.edit;
    }

    /// Each field with a change to it, and each component of one colour.
    static std::vector<Field> fields();
};

#define FIELD(group, field, value)                                                                           \
    {                                                                                                        \
#group "." #field, [](TestChartToolsData & record) { record.group.field = value; }                   \
    }

std::vector<TestTestChartToolsData::Field> TestTestChartToolsData::fields()
{
    return {
        FIELD(basicData, colorStripeColors[0], QColor(Qt::red)),
        FIELD(basicData, gradientColors[3], QColor(1, 2, 3, 4)),
        FIELD(basicData, oddColor.red, 1),
        FIELD(basicData, oddColor.green, 1),
        FIELD(basicData, oddColor.blue, 1),
        FIELD(basicData, oddColor.alpha, 1),
        FIELD(basicData, evenColor.red, 1),
        FIELD(basicData, chessChecked, false),
        FIELD(basicData, colorBarChecked, true),
        FIELD(basicData, gradientChecked, true),
        FIELD(publicData, brightness, 99),
        FIELD(publicData, resolutionWidth, 99),
        FIELD(publicData, resolutionHeight, 99),
        FIELD(publicData, boxRow, 99),
        FIELD(publicData, boxCol, 99),
        FIELD(publicData, showOutBorder, false),
        FIELD(publicData, outBorderWidth, 99),
        FIELD(publicData, outBorderColor.blue, 99),
        FIELD(inLineData, showCircle, false),
        FIELD(inLineData, circleSize, 99),
        FIELD(inLineData, circleWidth, 99),
        FIELD(inLineData, circleColor.red, 99),
        FIELD(inLineData, showDiagonal, false),
        FIELD(inLineData, diagonalWidth, 99),
        FIELD(inLineData, diagonalColor.red, 99),
        FIELD(inLineData, showSerialNumber, false),
        FIELD(inLineData, serialSize, 99),
        FIELD(inLineData, serialColor.red, 99),
        FIELD(inLineData, letterMode, false),
        FIELD(inLineData, numMode, true),
        FIELD(inLineData, combinationMode, true),
        FIELD(inLineData, serialPosition, 2),
        FIELD(inLineData, serialSort, 3),
        FIELD(logoData, showLogo, false),
        FIELD(logoData, pictureLogo, false),
        FIELD(logoData, textLogo, true),
        FIELD(logoData, logoText, "标志"),
        FIELD(logoData, textSize, 99),
        FIELD(logoData, textColor.red, 99),
        FIELD(logoData, scale, 99),
        FIELD(logoData, picturePath, "/pictures/logo.png"),
        FIELD(logoData, displayPosition, 4),
        FIELD(logoData, offsetX, 99),
        FIELD(logoData, offsetY, 99),
        FIELD(logoData, opacity, 99),
        FIELD(selfData, showSelfText, false),
        FIELD(selfData, selfText, ""),
        FIELD(selfData, selfTextSize, 99),
        FIELD(selfData, selfTextColor.red, 99),
        FIELD(selfData, showResolution, false),
        FIELD(selfData, resolutionTextSize, 99),
        FIELD(selfData, resolutionTextColor.red, 99),
    };
}

#undef FIELD

VD_TEST_MAIN(TestTestChartToolsData)
#include "tst_testcharttoolsdata.moc"
