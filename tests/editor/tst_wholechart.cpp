#include "lockspy.h"
#include "paintbasicwidget.h"
#include "paintinlinewidget.h"
#include "paintpiclogowidget.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "paintrowcolsequewidget.h"
#include "paintselfwidget.h"
#include "painttextlogowidget.h"
#include "testcase.h"
#include "translatemanager1.h"
#include "vtestcharttools.h"

#include <spineditbox.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>

using namespace vardeno::testcharttools;

namespace {

const QString english = sourcePath("translations/en.ts");
const QString chinese = sourcePath("translations/zh_CN.ts");

template <typename Control>
Control* captioned(const QWidget& tool, const char* source)
{
    for (const QLabel* label : tool.findChildren<QLabel*>()) {
        const QString whole = label->toolTip().isEmpty() ? label->text() : label->toolTip();
        if (whole == QLatin1String(source) && qobject_cast<Control*>(label->buddy()))
            return qobject_cast<Control*>(label->buddy());
    }
    return nullptr;
}

/// The layers' painters, bottom to top.
QList<LayerPainter*> painters(const VTestChartTools& tool)
{
    return {tool.findChild<PaintBasicWidget*>(),        tool.findChild<PaintRowColSequeWidget*>(),
            tool.findChild<PaintInLineWidget*>(),       tool.findChild<PaintSelfWidget*>(),
            tool.findChild<PaintPicLogoWidget*>(),      tool.findChild<PaintTextLogoWidget*>(),
            tool.findChild<PaintPublicBrightWidget*>(), tool.findChild<PaintPublicWidget*>()};
}

QWidget* mask(const VTestChartTools& tool)
{
    return tool.findChild<QWidget*>("maskWidget");
}

/// What the preview shows, in the chart's resolution.
QImage preview(const VTestChartTools& tool)
{
    return layerImage(*tool.findChild<QLabel*>("ViewWidget"));
}

/// The layers on black, one after the other.
QImage composition(const VTestChartTools& tool)
{
    QImage image(painters(tool).first()->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (LayerPainter* layer : painters(tool)) {
        if (!layer->isHidden())
            layer->QWidget::render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    }
    return image;
}

/// The texts' layer: two lines in the lower part of the chart, each in a size in which it fits.
QImage texts(const QSize& chart, const QString& text, const QString& info, int pixels, const QColor& color)
{
    QPixmap pixmap(chart);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.translate(chart.width() / 2, chart.height() / 1.5);
    painter.setPen(color);
    QFont font;
    font.setPixelSize(pixels);
    font.setFamily(QStringLiteral("Arail"));
    painter.setFont(font);
    const QFontMetrics metrics(font);
    painter.drawText(-(metrics.horizontalAdvance(text) / 2), metrics.height() / 2, text);
    painter.drawText(-(metrics.horizontalAdvance(info) / 2), chart.height() / 6 + metrics.height() / 2, info);
    painter.end();
    return pixmap.toImage();
}

TestChartToolsData smallChart(int width = 320, int height = 180)
{
    TestChartToolsData record;
    record.publicData.resolutionWidth = width;
    record.publicData.resolutionHeight = height;
    return record;
}

/// Random records whose values lie within the controls' ranges.
class Records
{
public:
    explicit Records(quint32 seed, std::string picture)
        : m_random(seed)
        , m_picture(std::move(picture))
    {
    }

    TestChartToolsData next()
    {
        TestChartToolsData record;
        record.basicData = basic();
        record.publicData = {number(0, 100), number(16, 400), number(16, 400), number(1, 100),
                             number(1, 100), flag(),          number(1, 100),  color()};
        record.inLineData = inLine();
        record.logoData = logo();
        record.selfData = {flag(), text(50), textSize(200), color(), flag(), textSize(200), color()};
        return record;
    }

private:
    int number(int least, int most) { return m_random.bounded(least, most + 1); }
    /// Mostly small: large ones are slow to fit.
    int textSize(int largest) { return number(1, number(0, 9) == 0 ? largest : 30); }
    bool flag() { return m_random.bounded(2) == 1; }
    RgbaColor color()
    {
        return {number(0, 255), number(0, 255), number(0, 255), flag() ? 255 : number(0, 255)};
    }

    std::map<int, QColor> list()
    {
        std::map<int, QColor> colors;
        const int count = number(0, 8);
        for (int row = 0; row < count; ++row)
            colors[row] = QColor(number(0, 255), number(0, 255), number(0, 255));
        return colors;
    }

    /// Now and then in other scripts: those are slow to fit.
    std::string text(int longest)
    {
        if (number(0, 19) == 0)
            return QString::fromUtf8("屏幕 \u05d0\u0416").toStdString();
        const QString letters = QString::fromUtf8("ABCxyz 0189.-_*\u00e9");
        QString text;
        const int length = number(0, longest);
        for (int i = 0; i < length; ++i)
            text.append(letters.at(number(0, letters.size() - 1)));
        return text.toStdString();
    }

    BasicChartData basic()
    {
        BasicChartData data;
        data.colorStripeColors = list();
        data.gradientColors = list();
        data.oddColor = color();
        data.evenColor = color();
        data.chessChecked = flag();
        data.colorBarChecked = !data.chessChecked;
        data.gradientChecked = flag();
        return data;
    }

    InLineChartData inLine()
    {
        InLineChartData data;
        data.showCircle = flag();
        data.circleSize = number(1, 16384);
        data.circleWidth = number(1, 100);
        data.circleColor = color();
        data.showDiagonal = flag();
        data.diagonalWidth = number(1, 100);
        data.diagonalColor = color();
        data.showSerialNumber = flag();
        data.serialSize = textSize(100);
        data.serialColor = color();
        const int mode = number(0, 2);
        data.letterMode = mode == 0;
        data.numMode = mode == 1;
        data.combinationMode = mode == 2;
        data.serialPosition = number(0, 2);
        data.serialSort = number(0, 3);
        return data;
    }

    LogoChartData logo()
    {
        LogoChartData data;
        data.showLogo = flag();
        data.pictureLogo = flag();
        data.textLogo = !data.pictureLogo;
        data.logoText = text(60);
        data.textSize = textSize(100);
        data.textColor = color();
        data.scale = number(0, 200);
        data.picturePath = flag() ? m_picture : std::string();
        data.displayPosition = number(0, 4);
        data.offsetX = number(0, 16384);
        data.offsetY = number(0, 16384);
        data.opacity = number(0, 100);
        return data;
    }

    QRandomGenerator m_random;
    std::string m_picture;
};

} // namespace

/// All eight layers and all five panels together.
class TestWholeChart : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    std::string logoPath() const { return m_folder.filePath("logo.png").toStdString(); }

    static void show(VTestChartTools& tool)
    {
        tool.show();
        tool.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&tool));
        waitForCycle(tool);
    }

    static void waitForCycle(const VTestChartTools& tool)
    {
        QTRY_VERIFY_WITH_TIMEOUT(!mask(tool)->isVisible(), 20000);
    }

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QPushButton*>();
        QImage logo(60, 40, QImage::Format_ARGB32);
        logo.fill(QColor(255, 0, 0, 200));
        QVERIFY(logo.save(m_folder.filePath("logo.png")));
    }

    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void stack()
    {
        const VTestChartTools tool;
        const QList<LayerPainter*> layers = painters(tool);
        QVERIFY(!layers.contains(nullptr));
        QWidget* const view = layers.first()->parentWidget();
        const auto* shared = qobject_cast<QStackedWidget*>(layers.at(4)->parentWidget());
        QVERIFY(shared);
        QCOMPARE(shared->widget(0), layers.at(4));
        QCOMPARE(shared->widget(1), layers.at(5));
        QCOMPARE(shared->currentIndex(), 0);

        // A view lists its children bottom to top.
        QStringList names;
        for (const QObject* child : view->children()) {
            if (child->isWidgetType())
                names.append(QString::fromLatin1(child->metaObject()->className()).section("::", -1));
        }
        QCOMPARE(names, QStringList({"PaintBasicWidget", "PaintRowColSequeWidget", "PaintInLineWidget",
                                     "PaintSelfWidget", "QStackedWidget", "PaintPublicBrightWidget",
                                     "PaintPublicWidget"}));
        QVERIFY(!view->isVisible());
    }

    void layersHaveTheChartsResolution_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::newRow("1920 x 1080") << QSize(1920, 1080);
        QTest::newRow("smallest, below the built-in logo") << QSize(16, 16);
        QTest::newRow("tall") << QSize(16, 700);
    }

    void layersHaveTheChartsResolution()
    {
        QFETCH(QSize, chart);
        VTestChartTools tool;
        for (const bool ofText : {false, true}) {
            TestChartToolsData record = smallChart(chart.width(), chart.height());
            record.logoData.pictureLogo = !ofText;
            record.logoData.textLogo = ofText;
            tool.setTestChartToolsData(record);
            for (const LayerPainter* layer : painters(tool)) {
                if (!layer->isHidden())
                    QCOMPARE(layer->size(), chart);
            }
            QCOMPARE(preview(tool).size(), chart);
        }
    }

    void previewIsTheComposition_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::addColumn<bool>("logoOn");
        QTest::addColumn<int>("brightness");
        QTest::newRow("picture logo") << false << true << 60;
        QTest::newRow("text logo") << true << true << 60;
        QTest::newRow("no logo") << false << false << 100;
        QTest::newRow("dark") << false << true << 0;
    }

    /// Every layer overlaps the one below it, so that another order would be another picture.
    void previewIsTheComposition()
    {
        QFETCH(bool, ofText);
        QFETCH(bool, logoOn);
        QFETCH(int, brightness);
        TestChartToolsData record = smallChart();
        record.basicData.oddColor = record.basicData.evenColor = {0, 0, 0, 255};
        record.publicData.brightness = brightness;
        record.publicData.outBorderWidth = 30;
        record.publicData.outBorderColor = {255, 255, 255, 128};
        record.inLineData.circleSize = 50;
        record.logoData.showLogo = logoOn;
        record.logoData.pictureLogo = !ofText;
        record.logoData.textLogo = ofText;
        record.logoData.picturePath = logoPath();
        record.logoData.displayPosition = 2;
        record.logoData.scale = 200;
        record.logoData.opacity = 80;
        VTestChartTools tool;
        tool.setTestChartToolsData(record);
        const QImage shown = preview(tool);
        VD_COMPARE_IMAGES(shown, composition(tool));

        // By hand: the logo's corner lies below the border, and both are there.
        QCOMPARE(painters(tool).at(4)->isHidden(), ofText || !logoOn);
        QCOMPARE(painters(tool).at(5)->isHidden(), !ofText || !logoOn);
        if (brightness == 0) {
            QCOMPARE(shown.pixelColor(160, 90), QColor(Qt::black));
            QCOMPARE(shown.pixelColor(5, 90), QColor(128, 128, 128));
        }
        if (logoOn && !ofText && brightness > 0) {
            const QColor logo = shown.pixelColor(60, 130); // 200 of 255, of which 80 %, of which 60 %
            QVERIFY2(qAbs(logo.red() - 96) <= 2 && logo.green() + logo.blue() == 0, qPrintable(logo.name()));
        }
    }

    void defaultRecord()
    {
        VTestChartTools tool;
        for (int round = 0; round < 2; ++round) {
            tool.setTestChartToolsData(TestChartToolsData());
            const TestChartToolsData record = tool.getTestChartToolsData();
            QVERIFY(record.basicData == BasicChartData());
            QVERIFY(record.publicData == PublicChartData());
            QVERIFY(record.inLineData == InLineChartData());
            QVERIFY(record.logoData == LogoChartData());
            QVERIFY(record.selfData == SelfChartData());
            QVERIFY(record == TestChartToolsData());
        }
    }

    void randomRecords()
    {
        Records records(20240501, logoPath());
        VTestChartTools tool;
        for (int i = 0; i < 100; ++i) {
            const TestChartToolsData record = records.next();
            tool.setTestChartToolsData(record);
            const TestChartToolsData read = tool.getTestChartToolsData();
            const QByteArray place = "record " + QByteArray::number(i);
            QVERIFY2(read.basicData == record.basicData, place);
            QVERIFY2(read.publicData == record.publicData, place);
            QVERIFY2(read.inLineData == record.inLineData, place);
            QVERIFY2(read.logoData == record.logoData, place);
            QVERIFY2(read.selfData == record.selfData, place);
        }
        VD_COMPARE_IMAGES(preview(tool), composition(tool));
    }

    /// What is shown depends on the record alone, not on what was shown before.
    void recordDecidesWhatIsShown()
    {
        Records records(7, logoPath());
        VTestChartTools used;
        for (int i = 0; i < 8; ++i) {
            TestChartToolsData record = records.next();
            // What equals the entries' first values the inline layer is not told, and keeps its own.
            record.inLineData.circleSize = 40 + i;
            record.inLineData.circleWidth = 3 + i;
            record.inLineData.diagonalWidth = 11 + i;
            record.inLineData.serialSize = 5 + i;
            used.setTestChartToolsData(record);
            VTestChartTools fresh;
            fresh.setTestChartToolsData(record);
            const QString difference = imageDifference(preview(used), preview(fresh));
            QVERIFY2(difference.isEmpty(),
                     qPrintable(QStringLiteral("record %1: %2").arg(i).arg(difference)));
        }
    }

    void informationLine_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("info");
        QTest::newRow("English") << english << QStringLiteral("en")
                                 << QStringLiteral("Resolution:1920*1080 Cabinets:144");
        QTest::newRow("no file for the language")
            << english << QStringLiteral("fr") << QStringLiteral("ResolutionShow:1920*1080 BoxNumShow:144");
    }

    void informationLine()
    {
        QFETCH(QString, file);
        QFETCH(QString, language);
        QFETCH(QString, info);
        VTestChartTools tool;
        tool.setTestChartToolsData(TestChartToolsData());
        tool.loadLanguageFiles({file});
        tool.switchLanguage(language);
        tool.slotGetHeightWidth();
        const QColor darkBlue(0, 0, 100);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintSelfWidget*>()),
                          texts({1920, 1080}, QStringLiteral("www.example.com"), info, 50, darkBlue));
        VD_COMPARE_IMAGES(preview(tool), composition(tool));
    }

    void informationLineInChinese()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallChart());
        tool.loadLanguageFiles({english, chinese});
        tool.switchLanguage(QStringLiteral("zh_CN"));
        const auto translation = [](const char* source) {
            return vardeno::trans::translate(TranslateManager1::instance().translator(), "TestChartTools",
                                             "Widget", QLatin1String(source));
        };
        QVERIFY(translation("ResolutionShow") != QLatin1String("ResolutionShow"));
        const QString info = translation("ResolutionShow") + QLatin1String(":320*180 ") +
                             translation("BoxNumShow") + QLatin1String(":144");
        TestChartToolsData record = smallChart();
        record.selfData.selfTextSize = record.selfData.resolutionTextSize = 12;
        tool.setTestChartToolsData(record);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintSelfWidget*>()),
                          texts({320, 180}, QStringLiteral("www.example.com"), info, 12, QColor(0, 0, 100)));
    }

    void builtInTheCurrentLanguage()
    {
        TranslateManager1::instance().translator().load(english);
        TranslateManager1::instance().switchLanguage(QStringLiteral("en"));
        VTestChartTools tool;
        tool.setTestChartToolsData(TestChartToolsData());
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintSelfWidget*>()),
                          texts({1920, 1080}, QStringLiteral("www.example.com"),
                                QStringLiteral("Resolution:1920*1080 Cabinets:144"), 50, QColor(0, 0, 100)));
    }

    void informationLineFollowsTheChart()
    {
        VTestChartTools tool;
        tool.loadLanguageFiles({english});
        tool.switchLanguage(QStringLiteral("en"));
        TestChartToolsData record = smallChart(800, 301);
        record.publicData.boxRow = 100;
        record.publicData.boxCol = 99;
        record.selfData.selfTextSize = record.selfData.resolutionTextSize = 20;
        tool.setTestChartToolsData(record);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintSelfWidget*>()),
                          texts({800, 301}, QStringLiteral("www.example.com"),
                                QStringLiteral("Resolution:800*301 Cabinets:9900"), 20, QColor(0, 0, 100)));
    }

    void gridReachesItsLayers_data()
    {
        QTest::addColumn<bool>("bySlots");
        QTest::newRow("slots") << true;
        QTest::newRow("entries of the public panel") << false;
    }

    void gridReachesItsLayers()
    {
        QFETCH(bool, bySlots);
        VTestChartTools tool;
        TestChartToolsData record = smallChart(400, 240);
        record.selfData.resolutionTextSize = 20;
        tool.setTestChartToolsData(record);
        if (bySlots) {
            tool.slotUpdateRow(3);
            tool.slotUpdateCol(5);
        } else {
            auto* const row = captioned<SpinEditBox>(tool, "Box RowColNum");
            const auto entries = row->parentWidget()->findChildren<SpinEditBox*>();
            row->setValue(3);
            entries.at(entries.indexOf(row) + 1)->setValue(5);
        }

        PaintBasicWidget basic;
        basic.resize(400, 240);
        basic.setRows(3);
        basic.setColumns(5);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintBasicWidget*>()), layerImage(basic));

        PaintSelfWidget self;
        self.resize(400, 240);
        self.setSelfTextSize(50);
        self.setResolutionSize(20);
        self.setSelfTextColor(QColor(0, 0, 100));
        self.setResolutionColor(QColor(0, 0, 100));
        self.setRows(3);
        self.setColumns(5);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintSelfWidget*>()), layerImage(self));

        PaintInLineWidget inLine; // it keeps its own widths until they are changed
        inLine.resize(400, 240);
        inLine.setSerialColor(QColor(0, 0, 100));
        inLine.setSerialSize(20);
        inLine.setRows(3);
        inLine.setColumns(5);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintInLineWidget*>()), layerImage(inLine));
    }

    /// A new chart gets the default colours of the colour bar, and all else from the record.
    void recordForANewChart()
    {
        Records records(3, logoPath());
        TestChartToolsData record = records.next();
        record.basicData.colorStripeColors = {{0, QColor(1, 2, 3)}, {1, QColor(4, 5, 6)}};
        VTestChartTools tool;
        tool.setShowForAdd(true);
        tool.setTestChartToolsData(TestChartToolsData());
        const auto defaults = tool.getTestChartToolsData().basicData.colorStripeColors;
        QCOMPARE(defaults.size(), std::size_t(5));
        tool.setTestChartToolsData(record);
        const TestChartToolsData read = tool.getTestChartToolsData();
        QVERIFY(read.basicData.colorStripeColors == defaults);
        record.basicData.colorStripeColors = defaults;
        QVERIFY(read == record);

        tool.setShowForAdd(false);
        record.basicData.colorStripeColors = {{0, QColor(1, 2, 3)}};
        tool.setTestChartToolsData(record);
        QVERIFY(tool.getTestChartToolsData() == record);
    }

    void logoReportsAloneCompleteNothing()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallChart());
        show(tool);
        log().clear();
        tool.slotGetHeightWidth();
        QVERIFY(mask(tool)->isVisible());
        tool.slotUpdatePaintEventStatus(QStringLiteral("m_pPaintPicLogoWidget"));
        tool.slotUpdatePaintEventStatus(QStringLiteral("m_pPaintTextLogoWidget"));
        QVERIFY(mask(tool)->isVisible());
        QCOMPARE(log().messages(QStringLiteral("PaintPicLogoWidget is done")).size(), 1);
        QCOMPARE(log().messages(QStringLiteral("PaintTextLogoWidget is done")).size(), 1);
        QVERIFY(log().messages(QStringLiteral("PaintTextChartTool is done")).isEmpty());

        // The others complete it without the logos.
        tool.slotGetHeightWidth();
        for (const char* name :
             {"m_pPaintBasicWidget", "m_pPaintInLineWidget", "m_pPaintSelfWidget",
              "m_pPaintRowColSequeWidget", "m_pPaintPublicBrightWidget", "m_pPaintPublicWidget"}) {
            QVERIFY(mask(tool)->isVisible());
            tool.slotUpdatePaintEventStatus(QLatin1String(name));
        }
        QVERIFY(!mask(tool)->isVisible());
        QCOMPARE(log().messages(QStringLiteral("PaintTextChartTool is done")).size(), 1);
    }

    void cyclesComplete_data()
    {
        QTest::addColumn<bool>("ofText");
        QTest::addColumn<bool>("logoOn");
        QTest::newRow("picture logo") << false << true;
        QTest::newRow("text logo") << true << true;
        QTest::newRow("no logo") << false << false;
    }

    /// The visible logo reports, the other one does not.
    void cyclesComplete()
    {
        QFETCH(bool, ofText);
        QFETCH(bool, logoOn);
        VTestChartTools tool;
        TestChartToolsData record = smallChart();
        record.logoData.showLogo = logoOn;
        record.logoData.pictureLogo = !ofText;
        record.logoData.textLogo = ofText;
        tool.setTestChartToolsData(record);
        show(tool);
        log().clear();
        tool.slotGetHeightWidth();
        waitForCycle(tool);
        QVERIFY(!log().messages(QStringLiteral("PaintTextChartTool is done")).isEmpty());
        QCOMPARE(log().messages(QStringLiteral("PaintPicLogoWidget is done")).isEmpty(), ofText || !logoOn);
        QCOMPARE(log().messages(QStringLiteral("PaintTextLogoWidget is done")).isEmpty(), !ofText || !logoOn);
    }

    void changesOfTheTexts_data()
    {
        QTest::addColumn<QByteArray>("caption");
        QTest::newRow("custom text") << QByteArray("Display custom text");
        QTest::newRow("information line") << QByteArray("Show Resolution");
    }

    /// A change masks and locks the panels, marks the chart as changed, and is seen in the preview.
    void changesOfTheTexts()
    {
        QFETCH(QByteArray, caption);
        VTestChartTools tool;
        tool.setShowForAdd(true);
        tool.setTestChartToolsData(smallChart());
        show(tool);
        tool.updateShowSaveBtnStatus(false);
        QPushButton* confirm = nullptr;
        for (QPushButton* button : tool.findChildren<QPushButton*>("ADDButton"))
            confirm = button->isVisible() ? button : confirm;
        QVERIFY(confirm && !confirm->isEnabled());
        const QImage before = preview(tool);

        auto* const toggle = captioned<QCheckBox>(tool, caption);
        const LockSpy lock(toggle);
        toggle->click();
        QVERIFY(confirm->isEnabled());
        QVERIFY(mask(tool)->isVisible());
        QTRY_VERIFY(lock.wasLocked());
        QTRY_VERIFY(toggle->isEnabled());
        waitForCycle(tool);
        VD_COMPARE_IMAGES(preview(tool), composition(tool));
        QVERIFY(preview(tool) != before);
    }

    void emptyTextAfterALock_data()
    {
        QTest::addColumn<bool>("ofLogo");
        QTest::newRow("custom text") << false;
        QTest::newRow("logo text") << true;
    }

    /// The first key that clears an entry starts a cycle, and with it a lock. The edit goes on after it, and
    /// when it ends the entry is not left empty.
    void emptyTextAfterALock()
    {
        QFETCH(bool, ofLogo);
        VTestChartTools tool;
        TestChartToolsData record = smallChart();
        record.logoData.pictureLogo = !ofLogo;
        record.logoData.textLogo = ofLogo;
        tool.setTestChartToolsData(record);
        show(tool);
        auto* const entry = captioned<QLineEdit>(tool, ofLogo ? "Text Logo" : "Text Input");
        entry->setFocus();
        QVERIFY(entry->hasFocus());
        entry->selectAll();
        const LockSpy lock(entry);
        QTest::keyClick(entry, Qt::Key_Delete);
        QTRY_VERIFY(lock.wasLocked());
        waitForCycle(tool);
        QTRY_VERIFY(entry->isEnabled() && entry->hasFocus());
        QCOMPARE(entry->text(), QString());

        QTest::keyClick(entry, Qt::Key_Tab);
        QVERIFY(!entry->hasFocus());
        QCOMPARE(entry->text().toStdString(), ofLogo ? LogoChartData().logoText : SelfChartData().selfText);
        QVERIFY(tool.getTestChartToolsData() == record);
        waitForCycle(tool);
    }

    void savedPictureIsTheComposition_data()
    {
        QTest::addColumn<QSize>("chart");
        QTest::addColumn<bool>("ofText");
        QTest::newRow("picture logo") << QSize(320, 180) << false;
        QTest::newRow("text logo") << QSize(320, 180) << true;
        QTest::newRow("1920 x 1080") << QSize(1920, 1080) << false;
    }

    void savedPictureIsTheComposition()
    {
        QFETCH(QSize, chart);
        QFETCH(bool, ofText);
        TestChartToolsData record = smallChart(chart.width(), chart.height());
        record.publicData.brightness = 70;
        record.logoData.pictureLogo = !ofText;
        record.logoData.textLogo = ofText;
        record.logoData.picturePath = logoPath();
        record.logoData.opacity = 50;
        VTestChartTools tool;
        tool.setSavePath(m_folder.path(), QStringLiteral("preview"));
        tool.setTestImageNum(7);
        tool.setTestChartToolsData(record);
        tool.setShowForAdd(true);
        show(tool);
        QSignalSpy done(&tool, &VTestChartTools::sigTestToolEditDone);
        QPushButton* confirm = nullptr;
        for (QPushButton* button : tool.findChildren<QPushButton*>("ADDButton"))
            confirm = button->isVisible() ? button : confirm;
        QVERIFY(confirm);
        QTest::mouseClick(confirm, Qt::LeftButton);
        QVERIFY(done.wait(20000));
        QVERIFY(done.at(0).at(0).value<TestChartToolsData>() == record);
        QCOMPARE(done.at(0).at(2).value<EditType>(), AddConfirm);

        const QString file = done.at(0).at(1).toString();
        QVERIFY(file.startsWith(m_folder.path()) && file.endsWith(QLatin1String("/TestImage7.png")));
        const QImage saved(file);
        QCOMPARE(saved.size(), chart);
        VD_COMPARE_IMAGES(saved, composition(tool));
        VD_COMPARE_IMAGES(saved, preview(tool));
    }

    void textLogoHasTheRecordsValues()
    {
        TestChartToolsData record = smallChart();
        record.logoData.pictureLogo = false;
        record.logoData.textLogo = true;
        record.logoData.logoText = "RT";
        record.logoData.textSize = 33;
        record.logoData.textColor = {200, 10, 20, 255};
        record.logoData.opacity = 50;
        VTestChartTools tool;
        tool.setTestChartToolsData(record);
        PaintTextLogoWidget expected;
        expected.resize(320, 180);
        expected.setText(QStringLiteral("RT"));
        expected.setTextSize(33);
        expected.setTextColor(QColor(200, 10, 20));
        expected.setOpacity(50);
        VD_COMPARE_IMAGES(layerImage(*tool.findChild<PaintTextLogoWidget*>()), layerImage(expected));
        QVERIFY(!tool.findChild<PaintTextLogoWidget*>()->isHidden());
        QVERIFY(tool.findChild<PaintPicLogoWidget*>()->isHidden());
    }

    void builtInLogoIsShownAtOnce()
    {
        VTestChartTools tool;
        tool.slotGetHeightWidth();
        const auto* layer = tool.findChild<PaintPicLogoWidget*>();
        QVERIFY(layer->showsDefaultPicLogo());
        QVERIFY(!layerImage(*layer).isNull());
        QVERIFY(!layer->isHidden());
        VD_COMPARE_IMAGES(preview(tool), composition(tool));
    }
};

VD_TEST_MAIN(TestWholeChart)
#include "tst_wholechart.moc"
