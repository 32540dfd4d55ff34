#include "charttool.h"

#include <propertybox.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMetaMethod>
#include <QMetaType>
#include <QPainter>
#include <QPointer>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTemporaryDir>

#include <memory>

using namespace charttool;

namespace {

/// What a host does to a tool while it is busy.
using Moment = std::function<bool(VTestChartTools& tool)>;

RgbaColor randomColor(QRandomGenerator& random)
{
    return {random.bounded(256), random.bounded(256), random.bounded(256), random.bounded(256)};
}

std::map<int, QColor> randomColors(QRandomGenerator& random)
{
    std::map<int, QColor> colors;
    const int count = random.bounded(8);
    for (int row = 0; row < count; ++row)
        colors[row] = toQColor(randomColor(random));
    return colors;
}

InLineChartData randomInLineData(QRandomGenerator& random)
{
    InLineChartData data;
    data.showCircle = random.bounded(2) == 1;
    data.circleSize = random.bounded(1, 16385);
    data.circleWidth = random.bounded(1, 101);
    data.circleColor = randomColor(random);
    data.showDiagonal = random.bounded(2) == 1;
    data.diagonalWidth = random.bounded(1, 101);
    data.diagonalColor = randomColor(random);
    data.showSerialNumber = random.bounded(2) == 1;
    data.serialSize = random.bounded(1, 101);
    data.serialColor = randomColor(random);
    const int mode = random.bounded(3);
    data.letterMode = mode == 0;
    data.numMode = mode == 1;
    data.combinationMode = mode == 2;
    data.serialPosition = random.bounded(3);
    data.serialSort = random.bounded(4);
    return data;
}

LogoChartData randomLogoData(QRandomGenerator& random)
{
    LogoChartData data;
    data.showLogo = random.bounded(2) == 1;
    data.pictureLogo = random.bounded(2) == 1;
    data.textLogo = !data.pictureLogo;
    data.logoText = "logo " + std::to_string(random.bounded(1000));
    data.textSize = random.bounded(101);
    data.textColor = randomColor(random);
    data.scale = random.bounded(201);
    data.picturePath = random.bounded(2) == 1
                           ? sourcePath("vdpatterndesign/resources/images/suggest.png").toStdString()
                           : "";
    data.displayPosition = random.bounded(5);
    data.offsetX = random.bounded(16385);
    data.offsetY = random.bounded(16385);
    data.opacity = random.bounded(101);
    return data;
}

SelfChartData randomSelfData(QRandomGenerator& random)
{
    SelfChartData data;
    data.showSelfText = random.bounded(2) == 1;
    data.selfText = "text " + std::to_string(random.bounded(1000));
    data.selfTextSize = random.bounded(1, 201);
    data.selfTextColor = randomColor(random);
    data.showResolution = random.bounded(2) == 1;
    data.resolutionTextSize = random.bounded(1, 201);
    data.resolutionTextColor = randomColor(random);
    return data;
}

/// Any record whose values the panels can show.
TestChartToolsData randomRecord(quint32 seed)
{
    QRandomGenerator random(seed);
    const auto flag = [&random] { return random.bounded(2) == 1; };
    TestChartToolsData record;
    record.basicData.colorStripeColors = randomColors(random);
    record.basicData.gradientColors = randomColors(random);
    record.basicData.oddColor = randomColor(random);
    record.basicData.evenColor = randomColor(random);
    record.basicData.chessChecked = flag();
    record.basicData.colorBarChecked = !record.basicData.chessChecked;
    record.basicData.gradientChecked = flag();
    record.publicData.brightness = random.bounded(101);
    record.publicData.resolutionWidth = random.bounded(16, 4321);
    record.publicData.resolutionHeight = random.bounded(16, 1200);
    record.publicData.boxRow = random.bounded(1, 101);
    record.publicData.boxCol = random.bounded(1, 101);
    record.publicData.showOutBorder = flag();
    record.publicData.outBorderWidth = random.bounded(1, 101);
    record.publicData.outBorderColor = randomColor(random);
    record.inLineData = randomInLineData(random);
    record.logoData = randomLogoData(random);
    record.selfData = randomSelfData(random);
    return record;
}

TestChartToolsData stripesRecord()
{
    TestChartToolsData record = smallRecord();
    record.basicData.chessChecked = false;
    record.basicData.colorBarChecked = true;
    record.basicData.colorStripeColors = {{0, Qt::blue}, {1, Qt::darkGreen}, {2, Qt::gray}};
    return record;
}

std::map<int, QColor> defaultStripes()
{
    return {{0, Qt::yellow}, {1, Qt::green}, {2, Qt::cyan}, {3, Qt::magenta}, {4, Qt::red}};
}

QRect outerMargins(const QLayout* layout)
{
    const QMargins margins = layout->contentsMargins();
    return {margins.left(), margins.top(), margins.right(), margins.bottom()};
}

} // namespace

Q_DECLARE_METATYPE(Moment)

class TestVTestChartTools : public TestCase
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        log().allowWarning(QStringLiteral("^This plugin does not support"));
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        TestCase::cleanup();
    }

    void signalsAndSlotsStandInOrder()
    {
        const QMetaObject& meta = VTestChartTools::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(signatures.mid(0, 3),
                 QStringList({"sigSave(TestChartToolsData&)",
                              "sigTestToolEditDone(TestChartToolsData,QString,EditType)", "sigFail()"}));
        QCOMPARE(signatures.mid(3),
                 QStringList({"slotGetHeightWidth()", "slotSaveImage()", "slotCancleButtonClicked()",
                              "slotAddConfirmButtonClicked()", "slotReplaceConfirmButtonClicked()",
                              "slotReplaceApplyButtonClicked()", "slotUpdateRow(int)", "slotUpdateCol(int)",
                              "slotUpdateResolution()", "slotSaveBtnLight()",
                              "slotMainWindowMove(QRect,QPoint)", "slotShowColorDialog(QPushButton*)",
                              "slotColorSelected(QColor)", "slotColorDialogRejected()",
                              "slotDialogAccepted(QColor)", "slotUpdatePaintEventStatus(QString)"}));
    }

    void fixedSizes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QSize>("size");
        QTest::newRow("save bar") << "saveWidget" << QByteArray("QWidget") << QSize(1199, 36);
        QTest::newRow("scroll area") << "ScrollArea" << QByteArray("QScrollArea") << QSize(410, 802);
        QTest::newRow("mask") << "maskWidget" << QByteArray("QWidget") << QSize(410, 802);
        QTest::newRow("save button") << "saveButton" << QByteArray("QPushButton") << QSize(80, 20);
        QTest::newRow("odd colour") << "oddColorPushButton" << QByteArray("QPushButton") << QSize(16, 16);
    }

    void fixedSizes()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, type);
        QFETCH(QSize, size);
        VTestChartTools tool;
        const auto* widget = tool.findChild<QWidget*>(name);
        QVERIFY(widget);
        QVERIFY(widget->inherits(type));
        QCOMPARE(widget->minimumSize(), size);
        QCOMPARE(widget->maximumSize(), size);
    }

    void editButtons_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("cancel") << 1 << "CancleButton"
                                << "Cancel";
        QTest::newRow("add confirm") << 2 << "ADDButton"
                                     << "Confirm";
        QTest::newRow("replace confirm") << 3 << "ADDButton"
                                         << "Confirm";
        QTest::newRow("replace apply") << 4 << "ADDButton"
                                       << "Apply";
    }

    void editButtons()
    {
        QFETCH(int, position);
        QFETCH(QString, name);
        QFETCH(QString, text);
        VTestChartTools tool;
        const auto* bar = qobject_cast<QHBoxLayout*>(User(tool).named<QWidget>("saveWidget")->layout());
        QVERIFY(bar);
        QCOMPARE(bar->count(), 5);
        QLayoutItem* const item = bar->itemAt(position);
        QCOMPARE(item->alignment(), Qt::Alignment(Qt::AlignVCenter));
        const auto* button = qobject_cast<QPushButton*>(item->widget());
        QVERIFY(button);
        QCOMPARE(button->objectName(), name);
        QCOMPARE(button->text(), text);
        QCOMPARE(button->minimumSize(), QSize(65, 28));
        QCOMPARE(button->maximumSize(), QSize(65, 28));
        QVERIFY(button->isEnabled());
    }

    void editButtonsAreReadWholeWhateverTheHostsFont_data()
    {
        QTest::addColumn<int>("points");
        QTest::newRow("small") << 7;
        QTest::newRow("the toolkit's default") << 12;
        QTest::newRow("large") << 20;
    }

    void editButtonsAreReadWholeWhateverTheHostsFont()
    {
        QFETCH(int, points);
        QWidget host;
        host.setFont(QFont(host.font().family(), points));
        VTestChartTools tool(&host);
        const User user(tool);
        const auto shown = [&] {
            QStringList texts;
            for (const QPushButton* button :
                 {user.cancel(), user.addConfirm(), user.replaceConfirm(), user.replaceApply()}) {
                texts.append(button->text());
                QVERIFY2(button->fontMetrics().horizontalAdvance(button->text()) <= button->width(),
                         qPrintable(button->text()));
            }
            QCOMPARE(texts, QStringList({"Cancel", "Confirm", "Confirm", "Apply"}));
        };
        shown();
        host.show();
        shown();
        tool.translateLanguage();
        shown();
    }

    void saveBarStartsWithTheStretch()
    {
        VTestChartTools tool;
        const User user(tool);
        const QLayout* const bar = user.named<QWidget>("saveWidget")->layout();
        QVERIFY(bar->itemAt(0)->spacerItem());
        QVERIFY(bar->itemAt(0)->expandingDirections().testFlag(Qt::Horizontal));
        QCOMPARE(user.saveButton()->parentWidget(), user.named<QWidget>("saveWidget"));
        QCOMPARE(bar->indexOf(user.saveButton()), -1);
    }

    void columns()
    {
        VTestChartTools tool;
        User user(tool);
        QCOMPARE(tool.objectName(), QStringLiteral("globalwidget"));
        QVERIFY(user.show());
        QCOMPARE(tool.size(), QSize(1610, 803));
        QCOMPARE(tool.minimumSize(), tool.maximumSize());
        QCOMPARE(tool.layout()->spacing(), 0);
        QCOMPARE(outerMargins(tool.layout()), QRect(0, 0, 0, 0));

        const QWidget* const view = user.preview()->parentWidget();
        QCOMPARE(view->minimumSize(), QSize(1199, 766));
        QCOMPARE(view->maximumSize(), QSize(1199, 766));
        const QPoint viewPosition = view->mapTo(&tool, QPoint());
        const QPoint barPosition = user.named<QWidget>("saveWidget")->mapTo(&tool, QPoint());
        QCOMPARE(viewPosition.x(), 0);
        QVERIFY(barPosition.y() >= viewPosition.y() + 766);
        QCOMPARE(barPosition.x(), 0);
        const QRect settings(user.named<QWidget>("ScrollArea")->mapTo(&tool, QPoint()), QSize(410, 802));
        QVERIFY(settings.left() >= 1199);
        QVERIFY(tool.rect().contains(settings));
    }

    void settingsColumn()
    {
        VTestChartTools tool;
        const User user(tool);
        const auto* area = user.named<QScrollArea>("ScrollArea");
        QVERIFY(area->widgetResizable());
        QWidget* const content = user.named<QWidget>("scrollWidget");
        QCOMPARE(area->widget(), content);
        QVERIFY(content->testAttribute(Qt::WA_StyledBackground));
        QVERIFY(qobject_cast<QVBoxLayout*>(content->layout()));
        QCOMPARE(content->layout()->spacing(), 0);
        QCOMPARE(outerMargins(content->layout()), QRect(0, 0, 0, 0));
        QVERIFY(content->layout()->itemAt(content->layout()->count() - 1)->spacerItem());

        QCOMPARE(user.mask()->parentWidget(), content);
        QCOMPARE(content->layout()->indexOf(user.mask()), -1);
        QVERIFY(user.mask()->testAttribute(Qt::WA_StyledBackground));
        QVERIFY(user.mask()->isHidden());
    }

    void sections_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("layers") << "basePropertyBox" << 0 << "Layer settings"
                                << QStringList({"basicSetting", "publicSetting"});
        QTest::newRow("content") << "userSettingPropertyBox" << 1 << "Display content personalization"
                                 << QStringList({"inLineSetting", "logoSetting", "selfSetting"});
    }

    void sections()
    {
        QFETCH(QString, name);
        QFETCH(int, position);
        QFETCH(QString, title);
        QFETCH(QStringList, items);
        VTestChartTools tool;
        const User user(tool);
        QCOMPARE(tool.findChildren<PropertyBox*>().size(), 2);
        auto* section = tool.findChild<PropertyBox*>(name);
        QVERIFY(section);
        const QLayout* const column = user.named<QWidget>("scrollWidget")->layout();
        QCOMPARE(column->indexOf(section), position);
        QCOMPARE(column->count(), 3);
        QCOMPARE(section->titleText(), title);
        QStringList names;
        const QWidget* const body = section->findChild<QWidget*>(items.first())->parentWidget();
        for (int i = 0; i < body->layout()->count(); ++i)
            names.append(body->layout()->itemAt(i)->widget()->objectName());
        QCOMPARE(names, items);
        QCOMPARE(section->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred));
    }

    void items_data()
    {
        QTest::addColumn<QString>("sectionName");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QByteArray>("panel");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("height");
        const QString layers = QStringLiteral("basePropertyBox");
        const QString content = QStringLiteral("userSettingPropertyBox");
        QTest::newRow("basic") << layers << "basicSetting" << QByteArray("BasicSettingBox") << 0 << 140;
        QTest::newRow("public") << layers << "publicSetting" << QByteArray("PublicSettingBox") << 1 << 160;
        QTest::newRow("inline") << content << "inLineSetting" << QByteArray("InLineSettingBox") << 0 << 330;
        QTest::newRow("logo") << content << "logoSetting" << QByteArray("LogoSettingBox") << 1 << 245;
        QTest::newRow("custom text") << content << "selfSetting" << QByteArray("SelfSettingBox") << 2 << 160;
    }

    void items()
    {
        QFETCH(QString, sectionName);
        QFETCH(QString, item);
        QFETCH(QByteArray, panel);
        QFETCH(int, position);
        QFETCH(int, height);
        VTestChartTools tool;
        auto* section = tool.findChild<PropertyBox*>(sectionName);
        auto* widget = section->findChild<QWidget*>(item);
        QVERIFY(widget);
        QCOMPARE(widget->minimumHeight(), height);
        QCOMPARE(widget->maximumHeight(), height);
        QCOMPARE(widget->parentWidget()->layout()->indexOf(widget), position);
        QCOMPARE(widget->layout()->count(), 1);
        const QString shown =
            QString::fromLatin1(widget->layout()->itemAt(0)->widget()->metaObject()->className());
        QCOMPARE(shown, QLatin1String("vardeno::testcharttools::") + QLatin1String(panel));
    }

    void panelsScroll()
    {
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        const QWidget* const content = user.settings()->widget();
        const QWidget* const viewport = user.settings()->viewport();
        QCOMPARE(content->size(), QSize(410, 1091));
        QCOMPARE(viewport->size(), QSize(410, 802));
        QCOMPARE(user.settings()->verticalScrollBar()->maximum(), 1091 - 802);
        QVERIFY(!user.settings()->horizontalScrollBar()->isVisible());
        for (const SettingPanel* panel : user.panels()) {
            user.reveal(panel);
            const QRect shown(panel->mapTo(viewport, QPoint()), panel->size());
            QVERIFY2(viewport->rect().contains(shown), panel->metaObject()->className());
        }
    }

    void paintersLieInOneCell()
    {
        VTestChartTools tool;
        const User user(tool);
        const auto* cell = qobject_cast<QGridLayout*>(user.layerView()->layout());
        QVERIFY(cell);
        QCOMPARE(outerMargins(cell), QRect(0, 0, 0, 0));
        QCOMPARE(cell->rowCount(), 1);
        QCOMPARE(cell->columnCount(), 1);

        QStringList bottomToTop;
        for (QObject* child : user.layerView()->children()) {
            auto* layer = qobject_cast<QWidget*>(child);
            if (!layer)
                continue;
            QVERIFY(cell->indexOf(layer) >= 0);
            bottomToTop.append(
                QString::fromLatin1(layer->metaObject()->className()).section(QLatin1String("::"), -1));
        }
        QCOMPARE(bottomToTop, QStringList({"PaintBasicWidget", "PaintRowColSequeWidget", "PaintInLineWidget",
                                           "PaintSelfWidget", "QStackedWidget", "PaintPublicBrightWidget",
                                           "PaintPublicWidget"}));
        QCOMPARE(user.layerView()->findChildren<LayerPainter*>().size(), 8);
    }

    void logoPaintersShareAStack()
    {
        VTestChartTools tool;
        const User user(tool);
        const auto* stack = user.layerView()->findChild<QStackedWidget*>();
        QCOMPARE(stack->count(), 2);
        QCOMPARE(stack->widget(0), user.painter<PaintPicLogoWidget>());
        QCOMPARE(stack->widget(1), user.painter<PaintTextLogoWidget>());
        QCOMPARE(stack->currentIndex(), 0);
    }

    void layerViewIsNeverShown()
    {
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        QVERIFY(!user.layerView()->isVisible());
        for (const auto* layer : user.layerView()->findChildren<LayerPainter*>())
            QVERIFY(!layer->isVisible());
        QCOMPARE(user.layerView()->minimumSize(), QSize(1920, 1080));
        QCOMPARE(user.layerView()->maximumSize(), QSize(1920, 1080));
    }

    void fittedPreview_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QRect>("fitted");
        QTest::newRow("Full HD") << 1920 << 1080 << QRect(0, 46, 1199, 674);
        QTest::newRow("tall") << 1080 << 1920 << QRect(384, 0, 430, 766);
        QTest::newRow("smallest, enlarged") << 16 << 16 << QRect(216, 0, 766, 766);
        QTest::newRow("largest") << 4320 << 4320 << QRect(216, 0, 766, 766);
        QTest::newRow("widest ribbon") << 4320 << 16 << QRect(0, 381, 1199, 4);
        QTest::newRow("tallest ribbon") << 16 << 4320 << QRect(598, 0, 2, 766);
        QTest::newRow("size of the view") << 1199 << 766 << QRect(0, 0, 1199, 766);
    }

    void fittedPreview()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QRect, fitted);
        VTestChartTools tool;
        TestChartToolsData record;
        record.publicData.resolutionWidth = width;
        record.publicData.resolutionHeight = height;
        tool.setTestChartToolsData(record);

        const User user(tool);
        QCOMPARE(user.preview()->geometry(), fitted);
        QVERIFY(user.preview()->hasScaledContents());
        QCOMPARE(user.shownChart().size(), QSize(width, height));
    }

    void typedResolutionRefits()
    {
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        QCOMPARE(user.preview()->geometry(), QRect(0, 46, 1199, 674));

        user.enter(user.entry("Resolution", 0), "1080");
        QVERIFY(user.settle());
        user.enter(user.entry("Resolution", 1), "1920");
        QVERIFY(user.settle());
        QCOMPARE(user.preview()->geometry(), QRect(384, 0, 430, 766));
        QCOMPARE(user.layerView()->size(), QSize(1080, 1920));
        QCOMPARE(user.shownChart().size(), QSize(1080, 1920));
        QCOMPARE(tool.getTestChartToolsData().publicData.resolutionHeight, 1920);
    }

    void resolutionResizesTheLayers()
    {
        VTestChartTools tool;
        const User user(tool);
        tool.setTestChartToolsData(smallRecord());
        // Of the two logo painters the one whose page is shown; its picture is the logo alone.
        QCOMPARE(user.painter<PaintPicLogoWidget>()->size(), QSize(160, 90));
        for (const auto* layer :
             user.layerView()->findChildren<LayerPainter*>(QString(), Qt::FindDirectChildrenOnly)) {
            QCOMPARE(layer->size(), QSize(160, 90));
            QCOMPARE(layerImage(*layer).size(), QSize(160, 90));
        }
        TestChartToolsData text = smallRecord();
        text.logoData.showLogo = true;
        text.logoData.pictureLogo = false;
        text.logoData.textLogo = true;
        tool.setTestChartToolsData(text);
        QCOMPARE(user.painter<PaintTextLogoWidget>()->size(), QSize(160, 90));
        QCOMPARE(layerImage(*user.painter<PaintTextLogoWidget>()).size(), QSize(160, 90));
    }

    void showAndResizeRefit_data()
    {
        QTest::addColumn<bool>("byShowing");
        QTest::newRow("show") << true;
        QTest::newRow("resize") << false;
    }

    void showAndResizeRefit()
    {
        QFETCH(bool, byShowing);
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        if (byShowing)
            tool.hide();
        user.preview()->clear();
        user.preview()->setGeometry(1, 2, 3, 4);

        if (byShowing)
            tool.show();
        else
            tool.setFixedSize(1650, 803);
        QTRY_COMPARE(user.preview()->geometry(), QRect(0, 46, 1199, 674));
        QCOMPARE(user.shownChart().size(), QSize(1920, 1080));
    }

    void previewShowsTheLayers_data()
    {
        QTest::addColumn<QVariant>("record");
        QTest::newRow("default, bare") << QVariant::fromValue(bareRecord());
        QTest::newRow("small") << QVariant::fromValue(smallRecord());
        QTest::newRow("stripes with a black remainder") << QVariant::fromValue(stripesRecord());
        TestChartToolsData dim = smallRecord();
        dim.publicData.brightness = 50;
        dim.publicData.outBorderColor = {10, 20, 30, 255};
        QTest::newRow("dim under a border") << QVariant::fromValue(dim);
        dim.publicData.brightness = 0;
        dim.publicData.showOutBorder = false;
        QTest::newRow("dark") << QVariant::fromValue(dim);
    }

    void previewShowsTheLayers()
    {
        QFETCH(QVariant, record);
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        tool.setTestChartToolsData(record.value<TestChartToolsData>());
        QVERIFY(user.settle());
        VD_COMPARE_IMAGES(user.shownChart(), expectedChart(record.value<TestChartToolsData>()));
    }

    void everyLayerIsInThePreview_data()
    {
        QTest::addColumn<QVariant>("record");
        TestChartToolsData record;
        QTest::newRow("default") << QVariant::fromValue(record);
        record.logoData.pictureLogo = false;
        record.logoData.textLogo = true;
        QTest::newRow("text logo") << QVariant::fromValue(record);
        record.publicData.brightness = 40;
        QTest::newRow("dim") << QVariant::fromValue(record);
    }

    /// The layers' pictures one upon the other, whoever put them together.
    void everyLayerIsInThePreview()
    {
        QFETCH(QVariant, record);
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        tool.setTestChartToolsData(record.value<TestChartToolsData>());
        QVERIFY(user.settle());

        QImage chart(1920, 1080, QImage::Format_RGB32);
        chart.fill(Qt::black);
        QPainter painter(&chart);
        painter.drawImage(0, 0, layerImage(*user.painter<PaintBasicWidget>()));
        painter.drawImage(0, 0, layerImage(*user.painter<PaintRowColSequeWidget>()));
        const QImage below = chart;
        painter.drawImage(0, 0, layerImage(*user.painter<PaintInLineWidget>()));
        QVERIFY(below != chart);
        const QImage inLine = chart;
        painter.drawImage(0, 0, layerImage(*user.painter<PaintSelfWidget>()));
        QVERIFY(inLine != chart);
        const QImage texts = chart;
        if (record.value<TestChartToolsData>().logoData.textLogo) {
            painter.drawImage(0, 0, layerImage(*user.painter<PaintTextLogoWidget>()));
        } else {
            const QImage logo = layerImage(*user.painter<PaintPicLogoWidget>());
            painter.drawImage(960 - logo.width() / 2, 540 - logo.height() / 2, logo);
        }
        QVERIFY(texts != chart);
        painter.drawImage(0, 0, layerImage(*user.painter<PaintPublicBrightWidget>()));
        painter.drawImage(0, 0, layerImage(*user.painter<PaintPublicWidget>()));
        painter.end();
        VD_COMPARE_IMAGES(user.shownChart(), chart);
    }

    void savedChartIsThePreview_data() { everyLayerIsInThePreview_data(); }

    void savedChartIsThePreview()
    {
        QFETCH(QVariant, record);
        VTestChartTools tool;
        User user(tool);
        Host host(tool);
        tool.setSavePath(m_folder.filePath(QStringLiteral("whole")), QString());
        tool.setTestChartToolsData(record.value<TestChartToolsData>());
        QVERIFY(user.show());
        tool.slotAddConfirmButtonClicked();
        QVERIFY(host.hears(2));
        const QImage saved(host.last().path);
        QCOMPARE(saved.size(), QSize(1920, 1080));
        QVERIFY(!saved.hasAlphaChannel());
        VD_COMPARE_IMAGES(saved, user.shownChart());
        QVERIFY(saved != expectedChart(record.value<TestChartToolsData>()));
        QCOMPARE(host.last().record, record.value<TestChartToolsData>());
    }

    void rowsAndColumnsReachTheChessboard()
    {
        VTestChartTools tool;
        User user(tool);
        TestChartToolsData record = smallRecord();
        tool.setTestChartToolsData(record);
        QVERIFY(user.show());
        record.publicData.boxRow = 3;
        record.publicData.boxCol = 5;

        user.enter(user.entry("Box RowColNum", 0), "3");
        QVERIFY(user.settle());
        user.enter(user.entry("Box RowColNum", 1), "5");
        QVERIFY(user.settle());
        VD_COMPARE_IMAGES(user.shownChart(), expectedChart(record));
        QCOMPARE(tool.getTestChartToolsData(), record);
    }

    void gridSlotsTakeSixteenBits()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        tool.slotUpdateRow(65536 + 3);
        tool.slotUpdateCol(65536 + 5);
        TestChartToolsData record = smallRecord();
        record.publicData.boxRow = 3;
        record.publicData.boxCol = 5;
        QImage expected(160, 90, QImage::Format_ARGB32_Premultiplied);
        fillChess(expected, record);
        VD_COMPARE_IMAGES(layerImage(*User(tool).painter<PaintBasicWidget>()), expected);
    }

    void defaultRecordComesBack()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(TestChartToolsData());
        const TestChartToolsData back = tool.getTestChartToolsData();
        const TestChartToolsData expected;
        QVERIFY(back.basicData.colorStripeColors.empty());
        QVERIFY(back.basicData.gradientColors.empty());
        QCOMPARE(back.basicData.oddColor, expected.basicData.oddColor);
        QCOMPARE(back.basicData.evenColor, expected.basicData.evenColor);
        QCOMPARE(back.basicData.chessChecked, true);
        QCOMPARE(back.basicData.colorBarChecked, false);
        QCOMPARE(back.basicData.gradientChecked, false);
        QCOMPARE(back.publicData.brightness, 100);
        QCOMPARE(back.publicData.resolutionWidth, 1920);
        QCOMPARE(back.publicData.resolutionHeight, 1080);
        QCOMPARE(back.publicData.boxRow, 9);
        QCOMPARE(back.publicData.boxCol, 16);
        QCOMPARE(back.publicData.showOutBorder, true);
        QCOMPARE(back.publicData.outBorderWidth, 2);
        QCOMPARE(back.publicData.outBorderColor, expected.publicData.outBorderColor);
        QCOMPARE(back, expected);
        QCOMPARE(User(tool).publicPanel()->getData(), expected.publicData);
    }

    void recordsComeBack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 12; ++seed)
            QTest::newRow(qPrintable(QStringLiteral("random record %1").arg(seed))) << seed;
    }

    void recordsComeBack()
    {
        QFETCH(quint32, seed);
        VTestChartTools tool;
        const TestChartToolsData first = randomRecord(seed);
        tool.setTestChartToolsData(first);
        QCOMPARE(tool.getTestChartToolsData(), first);
        const TestChartToolsData second = randomRecord(seed + 100);
        tool.setTestChartToolsData(second);
        QCOMPARE(tool.getTestChartToolsData(), second);
        BasicChartData shown;
        User(tool).basicPanel()->getData(shown);
        QCOMPARE(shown, second.basicData);
        QCOMPARE(User(tool).publicPanel()->getData(), second.publicData);
    }

    void everyGroupComesBack()
    {
        VTestChartTools tool;
        TestChartToolsData record = smallRecord();
        record.inLineData.circleSize = 77;
        record.logoData.logoText = "logo";
        record.selfData.selfText = "text";
        tool.setTestChartToolsData(record);
        QCOMPARE(tool.getTestChartToolsData(), record);
        const User user(tool);
        InLineChartData inLineData;
        user.inLinePanel()->getData(inLineData);
        QCOMPARE(inLineData, record.inLineData);
        QCOMPARE(user.logoPanel()->getData(), record.logoData);
        QCOMPARE(user.selfPanel()->getData(), record.selfData);
    }

    void listKeysAreRows()
    {
        VTestChartTools tool;
        TestChartToolsData record = smallRecord();
        record.basicData.colorStripeColors = {{3, Qt::red}, {7, Qt::blue}, {9, Qt::green}};
        record.basicData.gradientColors = {{-1, Qt::gray}, {5, Qt::black}};
        tool.setTestChartToolsData(record);
        const BasicChartData back = tool.getTestChartToolsData().basicData;
        QCOMPARE(back.colorStripeColors,
                 (std::map<int, QColor>{{0, Qt::red}, {1, Qt::blue}, {2, Qt::green}}));
        QCOMPARE(back.gradientColors, (std::map<int, QColor>{{0, Qt::gray}, {1, Qt::black}}));
    }

    void listKeysAreRowsAfterADeletion()
    {
        VTestChartTools tool;
        User user(tool);
        tool.setTestChartToolsData(smallRecord());
        QVERIFY(user.show());
        user.click(user.colorBar());
        QVERIFY(user.settle());
        QCOMPARE(tool.getTestChartToolsData().basicData.colorStripeColors, defaultStripes());

        user.stripeList()->setCurrentRow(1);
        user.click(user.basicPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton")));
        QWidget* dialog = nullptr;
        QTRY_VERIFY((dialog = QApplication::activePopupWidget()));
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("confirmBtn")), Qt::LeftButton);
        QVERIFY(user.settle());
        const std::map<int, QColor> remaining = {
            {0, Qt::yellow}, {1, Qt::cyan}, {2, Qt::magenta}, {3, Qt::red}};
        QCOMPARE(tool.getTestChartToolsData().basicData.colorStripeColors, remaining);
    }

    void showForAddKeepsAllButTheStripes()
    {
        VTestChartTools tool;
        TestChartToolsData record = randomRecord(7);
        record.basicData.colorStripeColors = {{0, Qt::black}};
        tool.setShowForAdd(true);
        tool.setTestChartToolsData(record);
        record.basicData.colorStripeColors = defaultStripes();
        QCOMPARE(tool.getTestChartToolsData(), record);

        tool.setTestChartToolsData(record); // the list is refilled, not filled up
        QCOMPARE(tool.getTestChartToolsData(), record);
    }

    void showForAddPaintsTheDefaultStripes()
    {
        VTestChartTools tool;
        TestChartToolsData record = stripesRecord();
        tool.setShowForAdd(true);
        tool.setTestChartToolsData(record);
        record.basicData.colorStripeColors = defaultStripes();
        VD_COMPARE_IMAGES(User(tool).shownChart(), expectedChart(record));
    }

    void hideViewWidget()
    {
        VTestChartTools tool;
        User user(tool);
        QVERIFY(user.show());
        QVERIFY(user.preview()->isVisible());
        tool.hideViewWidget();
        QVERIFY(!user.preview()->isVisible());
        QVERIFY(user.preview()->parentWidget()->isVisible());
    }

    void recordsTravelInQueuedSignals()
    {
        VTestChartTools tool;
        QVERIFY(QMetaType::type("TestChartToolsData") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("EditType") != QMetaType::UnknownType);
        tool.setTestChartToolsData(stripesRecord());
        tool.updateShowSaveBtnStatus(false);
        TestChartToolsData received;
        int type = -1;
        QObject::connect(
            &tool, &VTestChartTools::sigTestToolEditDone, &tool,
            [&](const TestChartToolsData& data, const QString&, EditType edit) {
                received = data;
                type = edit;
            },
            Qt::QueuedConnection);
        tool.slotReplaceConfirmButtonClicked();
        QCOMPARE(type, -1);
        QTRY_COMPARE(type, int(ReplaceConfirmOnlyCancle));
        QCOMPARE(received, stripesRecord());
    }

    void savedRecordsTravelInQueuedSignals()
    {
        VTestChartTools tool;
        tool.setTestChartToolsData(smallRecord());
        tool.setSavePath(m_folder.filePath(QStringLiteral("queued")), QString());
        QSignalSpy spy(&tool, &VTestChartTools::sigSave);
        std::vector<TestChartToolsData> received;
        QObject::connect(
            &tool, &VTestChartTools::sigSave, &tool,
            [&](TestChartToolsData& data) { received.push_back(data); }, Qt::QueuedConnection);
        QObject::connect(&tool, &VTestChartTools::sigTestToolEditDone, &tool, [&] {
            QCOMPARE(spy.count(), 1);
            QVERIFY(received.empty());
            tool.setTestChartToolsData(stripesRecord());
        });
        tool.slotAddConfirmButtonClicked();
        QTRY_COMPARE(received.size(), std::size_t(1));
        QCOMPARE(received.front(), smallRecord()); // as it was when it was sent
        QCOMPARE(spy.first().first().value<TestChartToolsData>(), smallRecord());
    }

    void toolsStandSideBySide()
    {
        QWidget host;
        auto* row = new QHBoxLayout(&host);
        auto* left = new VTestChartTools(&host);
        auto* right = new VTestChartTools(&host);
        row->addWidget(left);
        row->addWidget(right);
        User leftUser(*left);
        const User rightUser(*right);
        TestChartToolsData tall = stripesRecord();
        tall.publicData.resolutionWidth = 90;
        tall.publicData.resolutionHeight = 160;
        right->setTestChartToolsData(tall);
        left->setTestChartToolsData(smallRecord());
        QVERIFY(leftUser.show());
        QVERIFY(User(*right).settle());
        VD_COMPARE_IMAGES(leftUser.shownChart(), expectedChart(smallRecord()));
        VD_COMPARE_IMAGES(rightUser.shownChart(), expectedChart(tall));

        leftUser.basicPanel()->setColor(Qt::blue, QStringLiteral("odd"));
        QVERIFY(leftUser.mask()->isVisible());
        QVERIFY(!rightUser.mask()->isVisible());
        QVERIFY(leftUser.settle());
        QCOMPARE(right->getTestChartToolsData(), tall);
        QCOMPARE(left->getTestChartToolsData().basicData.oddColor, toRgbaColor(Qt::blue));
    }

    void toolsSaveSideBySide()
    {
        VTestChartTools first;
        VTestChartTools second;
        Host firstHost(first);
        Host secondHost(second);
        first.setTestChartToolsData(smallRecord());
        second.setTestChartToolsData(stripesRecord());
        int number = 0;
        for (VTestChartTools* tool : {&first, &second}) {
            tool->setSavePath(m_folder.filePath(QStringLiteral("side by side")), QString());
            tool->setTestImageNum(++number);
            tool->slotAddConfirmButtonClicked();
        }
        QVERIFY(firstHost.hears(2));
        QVERIFY(secondHost.hears(2));
        VD_COMPARE_IMAGES(QImage(firstHost.last().path), expectedChart(smallRecord()));
        VD_COMPARE_IMAGES(QImage(secondHost.last().path), expectedChart(stripesRecord()));
    }

    void neverShownToolSaves()
    {
        VTestChartTools tool;
        Host host(tool);
        tool.setSavePath(m_folder.filePath(QStringLiteral("never shown")), QString());
        tool.setShowForAdd(true);
        User(tool).addConfirm()->click();
        QVERIFY(host.hears(2));
        TestChartToolsData record; // what the panels show before a record is pushed
        const RgbaColor black = toRgbaColor(Qt::black);
        record.publicData.outBorderWidth = 6;
        record.inLineData.serialSize = 15;
        record.inLineData.serialColor = black;
        record.logoData.textColor = black;
        record.selfData.selfTextColor = black;
        record.selfData.resolutionTextColor = black;
        QCOMPARE(host.last().record, record);
        const QImage whole(host.last().path);

        switchLayersOff(User(tool));
        tool.updateShowSaveBtnStatus(true);
        User(tool).addConfirm()->click();
        QVERIFY(host.hears(4));
        VD_COMPARE_IMAGES(QImage(host.last().path), expectedChart(record));

        VTestChartTools shown;
        QVERIFY(User(shown).show());
        VD_COMPARE_IMAGES(User(shown).shownChart(), whole);
    }

    void hostMayDeleteTheToolAtAnyMoment_data()
    {
        QTest::addColumn<Moment>("moment");
        QTest::newRow("while a chart is written") << Moment([](VTestChartTools& tool) {
            tool.slotAddConfirmButtonClicked();
            return true;
        });
        QTest::newRow("a chart is written, its report not yet delivered")
            << Moment([](VTestChartTools& tool) {
                   tool.slotAddConfirmButtonClicked();
                   QThread::msleep(300);
                   return true;
               });
        QTest::newRow("a change has just been made") << Moment([](VTestChartTools& tool) {
            User(tool).basicPanel()->setColor(Qt::blue, QStringLiteral("odd"));
            return User(tool).mask()->isVisible();
        });
        QTest::newRow("the controls are locked") << Moment([](VTestChartTools& tool) {
            User(tool).basicPanel()->setColor(Qt::blue, QStringLiteral("odd"));
            QTest::qWait(30);
            return true;
        });
        for (const char* caption : {"Resolution", "Box RowColNum", "Circle", "Position adjustment"}) {
            QTest::newRow(qPrintable(QStringLiteral("%1 is being typed").arg(QLatin1String(caption))))
                << Moment([caption](VTestChartTools& tool) {
                       User user(tool);
                       TestChartToolsData record = smallRecord();
                       record.inLineData.showCircle = true;
                       record.logoData.showLogo = true;
                       tool.setTestChartToolsData(record);
                       if (!user.settle())
                           return false;
                       SpinEditBox* const entry = user.entry(caption);
                       const double before = entry->value();
                       user.click(entry);
                       QTest::keyClick(tool.windowHandle(), Qt::Key_A, Qt::ControlModifier);
                       for (const char digit : {'3', '7'})
                           QTest::keyClick(tool.windowHandle(), digit);
                       return entry->value() == before && entry->text().startsWith(QLatin1String("37"));
                   });
        }
        QTest::newRow("a removal is pending") << Moment([](VTestChartTools& tool) {
            Host host(tool);
            tool.setCurrentEditNum(QStringLiteral("new.png"));
            tool.slotReplaceApplyButtonClicked();
            return host.hears(2) && QTest::qWaitFor([&] { return !deletionTimers(tool).isEmpty(); });
        });
        QTest::newRow("the confirmation to delete a colour is open") << Moment([](VTestChartTools& tool) {
            User(tool).basicPanel()->findChild<QPushButton*>(QStringLiteral("CancleButton"))->click();
            return QApplication::activePopupWidget() != nullptr;
        });
    }

    void hostMayDeleteTheToolAtAnyMoment()
    {
        QFETCH(Moment, moment);
        const QString root = m_folder.filePath(QString::fromLatin1(QTest::currentDataTag()));
        const QString replaced = root + QLatin1String("/old/old.png");
        QVERIFY(writeFile(replaced, "old"));
        auto tool = std::make_unique<VTestChartTools>();
        tool->setSavePath(root, QString());
        tool->setLastSavePath(replaced);
        tool->setTestChartToolsData(smallRecord());
        QVERIFY(User(*tool).show());

        QVERIFY(moment(*tool));
        Host host(*tool);
        tool.reset();
        QVERIFY(host.messages.empty());
        QTest::qWait(150);
        QVERIFY(QFile::exists(replaced));
        for (const QString& name : QDir(root).entryList({QStringLiteral("2*")}, QDir::Dirs)) {
            const QStringList files = QDir(root + QLatin1Char('/') + name).entryList(QDir::Files);
            QCOMPARE(files.size(), 1);
            VD_COMPARE_IMAGES(QImage(root + QLatin1Char('/') + name + QLatin1Char('/') + files.first()),
                              expectedChart(smallRecord()));
        }
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void hostMayDeleteTheToolLater()
    {
        QPointer<VTestChartTools> tool = new VTestChartTools;
        Host host(*tool);
        host.reaction = [tool](const Host::Message& message) {
            if (message.signal == QLatin1String("sigTestToolEditDone"))
                tool->deleteLater();
        };
        tool->setTestChartToolsData(smallRecord());
        tool->setSavePath(m_folder.filePath(QStringLiteral("later")), QString());
        tool->setCurrentEditNum(QStringLiteral("new.png"));
        tool->slotReplaceConfirmButtonClicked();
        QTRY_VERIFY(!tool);
        QCOMPARE(host.heard(), QStringList({"sigSave", "sigTestToolEditDone"}));
        QVERIFY(QFile::exists(host.last().path));
    }

    void hostsLooksStayOutOfTheChart_data()
    {
        QTest::addColumn<QString>("styleSheet");
        QTest::addColumn<bool>("ofApplication");
        QTest::addColumn<bool>("enabled");
        const QString backgrounds = QStringLiteral("QWidget { background-color: red; }");
        const QString paddings = QStringLiteral("QLabel { padding: 7px; border: 2px solid blue; }");
        QTest::newRow("light palette") << QString() << false << true;
        QTest::newRow("style sheet with backgrounds") << backgrounds << false << true;
        QTest::newRow("style sheet with paddings") << paddings << false << true;
        QTest::newRow("application's style sheet with backgrounds") << backgrounds << true << true;
        QTest::newRow("application's style sheet with paddings") << paddings << true << true;
        QTest::newRow("disabled host") << QString() << false << false;
    }

    void hostsLooksStayOutOfTheChart()
    {
        QFETCH(QString, styleSheet);
        QFETCH(bool, ofApplication);
        QFETCH(bool, enabled);
        QWidget host;
        host.setPalette(QPalette(Qt::white, Qt::white));
        if (ofApplication)
            qApp->setStyleSheet(styleSheet);
        else
            host.setStyleSheet(styleSheet);
        VTestChartTools tool(&host);
        host.setEnabled(enabled);
        tool.setTestChartToolsData(stripesRecord());
        Host ears(tool);
        tool.setSavePath(m_folder.filePath(QString::fromLatin1(QTest::currentDataTag())), QString());
        tool.slotAddConfirmButtonClicked();
        QVERIFY(ears.hears(2));
        VD_COMPARE_IMAGES(QImage(ears.last().path), expectedChart(stripesRecord()));
        VD_COMPARE_IMAGES(User(tool).shownChart(), expectedChart(stripesRecord()));

        tool.translateLanguage();
        tool.setTestChartToolsData(TestChartToolsData());
        const QImage underTheHost = User(tool).shownChart();
        qApp->setStyleSheet(QString());
        VTestChartTools alone;
        alone.translateLanguage();
        alone.setTestChartToolsData(TestChartToolsData());
        VD_COMPARE_IMAGES(underTheHost, User(alone).shownChart());
    }

    void hostsFontStaysOutOfTheChart()
    {
        QWidget host;
        VTestChartTools tool(&host);
        tool.setTestChartToolsData(TestChartToolsData());
        const QImage before = User(tool).shownChart();
        QFont font = host.font();
        font.setPixelSize(31);
        host.setFont(font);
        tool.slotGetHeightWidth();
        VD_COMPARE_IMAGES(User(tool).shownChart(), before);
    }

    void missingPictureIsSilent()
    {
        VTestChartTools tool;
        TestChartToolsData record = smallRecord();
        record.logoData.showLogo = true;
        record.logoData.picturePath = "/no/such/picture.png";
        tool.setTestChartToolsData(record);
        QCOMPARE(tool.getTestChartToolsData(), record);
        VD_COMPARE_IMAGES(User(tool).shownChart(), expectedChart(record));
    }

    void hostMayDeleteTheToolWhileItIsTold_data()
    {
        QTest::addColumn<int>("edit");
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QStringList>("heard");
        const QStringList edited = {"sigTestToolEditDone"};
        QTest::newRow("cancelled") << int(Cancle) << ""
                                   << "sigTestToolEditDone" << edited;
        QTest::newRow("nothing new to save") << int(ReplaceConfirmOnlyCancle) << ""
                                             << "sigTestToolEditDone" << edited;
        QTest::newRow("not written") << int(AddConfirm) << "file"
                                     << "sigFail" << QStringList("sigFail");
        QTest::newRow("written") << int(ReplaceConfirm) << "charts"
                                 << "sigSave" << QStringList("sigSave");
        QTest::newRow("written and done")
            << int(ReplaceConfirm) << "charts"
            << "sigTestToolEditDone" << QStringList({"sigSave", "sigTestToolEditDone"});
    }

    void hostMayDeleteTheToolWhileItIsTold()
    {
        QFETCH(int, edit);
        QFETCH(QString, root);
        QFETCH(QString, signal);
        QFETCH(QStringList, heard);
        QVERIFY(writeFile(m_folder.filePath(QStringLiteral("file")), "not a folder"));
        QPointer<VTestChartTools> tool = new VTestChartTools;
        Host host(*tool);
        host.reaction = [&](const Host::Message& message) {
            if (message.signal == signal)
                delete tool;
        };
        tool->setTestChartToolsData(smallRecord());
        tool->setSavePath(m_folder.filePath(root), QString());
        tool->setCurrentEditNum(QStringLiteral("new.png"));
        tool->updateShowSaveBtnStatus(edit != ReplaceConfirmOnlyCancle);
        if (edit == Cancle)
            tool->slotCancleButtonClicked();
        else if (edit == AddConfirm)
            tool->slotAddConfirmButtonClicked();
        else
            tool->slotReplaceConfirmButtonClicked();
        QTRY_VERIFY(!tool);
        QCOMPARE(host.heard(), heard);
    }
};

VD_TEST_MAIN(TestVTestChartTools)
#include "tst_vtestcharttools.moc"
