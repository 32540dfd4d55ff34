#include "basicsettingbox.h"
#include "customdialog.h"
#include "imagewidget.h"
#include "language.h"
#include "paintbasicwidget.h"
#include "testcase.h"
#include "testcharttoolsdata.h"

#include <QColorDialog>
#include <QDragEnterEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <memory>

using namespace vardeno::testcharttools;

namespace {

using Colors = QVector<QColor>;

const QSize layerSize(100, 20);
const QColor oddDefault(255, 170, 255);
const QColor evenDefault(85, 170, 255);
const Colors defaults{Qt::yellow, Qt::green, Qt::cyan, Qt::magenta, Qt::red};

Colors colorsOf(const QListWidget* list)
{
    Colors colors;
    for (int row = 0; row < list->count(); ++row)
        colors.append(list->item(row)->background().color());
    return colors;
}

std::map<int, QColor> rows(const Colors& colors)
{
    std::map<int, QColor> map;
    for (int row = 0; row < colors.size(); ++row)
        map[row] = colors.at(row);
    return map;
}

QImage stripes(const Colors& colors)
{
    QImage image(layerSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const int width = colors.isEmpty() ? 0 : layerSize.width() / colors.size();
    for (int i = 0; i < colors.size(); ++i)
        painter.fillRect(i * width, 0, width, layerSize.height(), colors.at(i));
    return image;
}

/// The picture of a colour button: the colour inside a transparent margin of one pixel.
QImage swatch(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(1, 1, size.width() - 2, size.height() - 2, color);
    return image;
}

QImage iconImage(const QPushButton* button)
{
    return button->icon().pixmap(button->iconSize()).toImage();
}

/// What a preview shows when its picture is the one of the given name.
QImage previewOf(const char* pictureName)
{
    ImageWidget widget;
    widget.setFixedSize(80, 45);
    widget.setPixmap(QPixmap(QStringLiteral(":/resources/images/") + QLatin1String(pictureName)));
    return widget.grab().toImage();
}

/// The panel in a window, with the painter that it drives, and what is heard of it.
class Desk : public QObject
{
public:
    Desk()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(panel);
        window.move(40, 30);
        layer.resize(layerSize);
        layer.setRows(1);
        layer.setColumns(2);
        panel->setPaintWidget(&layer);
        connect(panel, &BasicSettingBox::basicSignal, this,
                [this] { heard.append(QStringLiteral("basic")); });
        connect(panel, &BasicSettingBox::oddSignal, this, [this](QPushButton* b) { hear("odd", b); });
        connect(panel, &BasicSettingBox::evenSignal, this, [this](QPushButton* b) { hear("even", b); });
        connect(panel, &BasicSettingBox::addSignal, this, [this](QPushButton* b) { hear("add", b); });
        connect(panel, &BasicSettingBox::changeSignal, this, [this](QPushButton* b) {
            change = b;
            hear("change", b);
        });
    }

    bool show()
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    template <typename Widget = QPushButton>
    Widget* named(const char* name) const
    {
        return panel->findChild<Widget*>(QLatin1String(name));
    }

    QRadioButton* chess() const { return named<QRadioButton>("chessRadioButton"); }
    QRadioButton* bar() const { return named<QRadioButton>("colorStripeRadioButton"); }
    QListWidget* list() const { return named<QListWidget>("_colorStripeListWidget"); }
    QListWidget* gradientList() const { return named<QListWidget>("_gradientListWidget"); }
    QStackedWidget* pages() const { return panel->findChild<QStackedWidget*>(); }

    QPushButton* gradientSwitch() const
    {
        for (auto* button : panel->findChildren<QPushButton*>()) {
            if (button->property("switchStyle") == QStringLiteral("general"))
                return button;
        }
        return nullptr;
    }

    /// The label that shows `text`, whole or elided.
    QLabel* caption(const QString& text) const
    {
        for (auto* label : panel->findChildren<QLabel*>()) {
            if (label->text() == text || label->toolTip() == text)
                return label;
        }
        return nullptr;
    }

    QImage barPreview() const { return named<ImageWidget>("_colorStripeLayout")->grab().toImage(); }

    /// What the layer shows after the next paint.
    QImage picture()
    {
        layer.grab();
        return layerImage(layer);
    }

    void click(const QWidget* widget) { clickAt(widget, widget->rect().center()); }
    void click(const QRadioButton* radio) { clickAt(radio, QPoint(8, radio->height() / 2)); }
    void clickItem(int row) { clickAt(list()->viewport(), itemCenter(row)); }

    void doubleClickItem(int row)
    {
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, itemCenter(row));
    }

    static void turnWheel(QWidget* widget, int angle)
    {
        const QPointF place = widget->rect().center();
        QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), {}, QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    }

    void hoverItem(int row)
    {
        const QPoint place = list()->viewport()->mapTo(&window, itemCenter(row));
        QTest::mouseMove(window.windowHandle(), place);
    }

    /// Chooses the colour bar with these colours, none of them current.
    void useColors(const Colors& colors)
    {
        BasicChartData data;
        data.chessChecked = false;
        data.colorBarChecked = true;
        data.colorStripeColors = rows(colors);
        panel->setData(data);
        heard.clear();
    }

    /// The confirmation that is open, if one is.
    static CustomDialog* confirmation()
    {
        return qobject_cast<CustomDialog*>(QApplication::activePopupWidget());
    }

    /// Deletes the current colour and confirms it.
    bool deleteColor()
    {
        click(named("CancleButton"));
        const QPointer<CustomDialog> dialog = confirmation();
        if (!dialog || !QTest::qWaitForWindowExposed(dialog))
            return false;
        answer(dialog, "confirmBtn");
        return QTest::qWaitFor([&] { return !dialog; });
    }

    static void answer(CustomDialog* dialog, const char* buttonName)
    {
        const auto* button = dialog->findChild<QPushButton*>(QLatin1String(buttonName));
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, button->geometry().center());
    }

    QStringList takeHeard() { return std::exchange(heard, {}); }

    QPushButton* change = nullptr; ///< what the last change was asked with
    QStringList heard;             // the window goes first, and losing the focus ends an edit
    PaintBasicWidget layer;
    QWidget window;
    BasicSettingBox* panel = new BasicSettingBox;

private:
    void clickAt(const QWidget* widget, const QPoint& position)
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, position));
    }

    QPoint itemCenter(int row) const { return list()->visualItemRect(list()->item(row)).center(); }

    void hear(const char* what, const QPushButton* button)
    {
        heard.append(QLatin1String(what) + QLatin1Char(' ') + button->objectName());
    }
};

const QStringList basicOnce{QStringLiteral("basic")};
const QStringList nothing;

/// Operates the next colour dialog, and tells how it found it.
class ColorPicker : public QObject
{
public:
    ColorPicker(const QColor& color, bool accept)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, color, accept] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            m_timer.stop();
            title = dialog->windowTitle();
            initial = dialog->currentColor();
            dialog->setCurrentColor(color);
            accept ? dialog->accept() : dialog->reject();
        });
        m_timer.start(5);
    }

    QString title;
    QColor initial;

private:
    QTimer m_timer;
};

} // namespace

Q_DECLARE_METATYPE(BasicChartData)

class TestBasicSettingBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        // The offscreen platform's own, for every pop-up.
        log().allowWarning(
            QStringLiteral("^This plugin does not support (raise\\(\\)|grabbing the keyboard)"));
    }

    void cleanup()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        TranslateManager1::instance().switchLanguage(QString());
        QLocale::setDefault(QLocale::c());
        TestCase::cleanup();
    }

    void frame()
    {
        Desk d;
        QCOMPARE(d.panel->objectName(), QStringLiteral("basicWidget"));
        QCOMPARE(d.panel->windowTitle(), QStringLiteral("Widget"));
        QCOMPARE(d.panel->styleSheet(),
                 QStringLiteral("QWidget#basicWidget{background: transparent; border-left : 1px solid "
                                "#535465; border-right : 1px solid #535465;}"));
        QVERIFY(d.panel->testAttribute(Qt::WA_StyledBackground));
        QCOMPARE(d.panel->minimumWidth(), 410);
        QCOMPARE(d.panel->maximumWidth(), 410);
        QCOMPARE(d.panel->layout()->contentsMargins(), QMargins(10, 7, 10, 7));
        QCOMPARE(d.pages()->minimumWidth(), 410);
        QCOMPARE(d.pages()->maximumWidth(), 410);
        QCOMPARE(d.pages()->count(), 3);
        QCOMPARE(d.pages()->widget(0)->objectName(), QStringLiteral("checkerboardWidget"));
        QCOMPARE(d.pages()->widget(2)->objectName(), QStringLiteral("colorStripeWidget"));
        QVERIFY(d.pages()->widget(1)->isAncestorOf(d.gradientList()));
        auto* const line = d.named<QFrame>("basicLine");
        QCOMPARE(line->frameShape(), QFrame::HLine);
        QCOMPARE(line->frameShadow(), QFrame::Plain);
    }

    void controls_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("role");
        const auto row = [](const char* name, int width, int height, const char* text = "",
                            const char* role = "") {
            QTest::newRow(name) << name << QSize(width, height) << QString::fromUtf8(text) << role;
        };
        row("_gradientLayout", 80, 45);
        row("_colorStripeLayout", 80, 45);
        row("oddColorPushButton", 16, 16, "", "odd");
        row("evenColorPushButton", 16, 16, "", "even");
        row("_gradientLeftPushButton", 20, 20, "<");
        row("_gradientRightPushButton", 20, 20, ">");
        row("_gradientAddPushButton", 44, 20, "增加");
        row("_gradientRemovePushButton", 44, 20, "删除");
        row("_colorStripeLeftPushButton", 20, 20);
        row("_colorStripeListWidget", 112, 20);
        row("_colorStripeRightPushButton", 20, 20);
        row("ADDButton", 55, 20, "Add", "add");
        row("CancleButton", 55, 20, "Delete");
        row("basicLine", 353, 1);
    }

    void controls()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(QString, text);
        QFETCH(QString, role);
        Desk d;
        const auto found = d.panel->findChildren<QWidget*>(name);
        QCOMPARE(found.size(), 1);
        const QWidget* const control = found.first();
        QCOMPARE(control->minimumSize(), size);
        QCOMPARE(control->maximumSize(), size);
        QCOMPARE(control->property("btnProperty").toString(), role);
        QCOMPARE(control->property("text").toString(), text);
    }

    void switchOfTheGradient()
    {
        Desk d;
        const QPushButton* const button = d.gradientSwitch();
        QVERIFY(button);
        QVERIFY(button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(button->minimumSize(), QSize(28, 14));
        QCOMPARE(button->maximumSize(), QSize(28, 14));
        QVERIFY(d.pages()->widget(2)->isAncestorOf(button));
    }

    void captions_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        QTest::newRow("mode, two spaces behind") << "Mode selection  " << QSize(80, 20);
        QTest::newRow("gradient") << "Gradient" << QSize(70, 20);
        QTest::newRow("color bar") << "Color bar" << QSize(70, 20);
        QTest::newRow("odd") << "Odd" << QSize();
        QTest::newRow("even") << "Even" << QSize();
    }

    void captions()
    {
        QFETCH(QString, text);
        QFETCH(QSize, size);
        Desk d;
        const QLabel* const caption = d.caption(text);
        QVERIFY(caption);
        QCOMPARE(caption->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        if (size.isValid()) {
            QCOMPARE(caption->minimumSize(), size);
            QCOMPARE(caption->maximumSize(), size);
        }
    }

    void startsWithChess()
    {
        Desk d;
        QVERIFY(d.show());
        QCOMPARE(d.chess()->text(), QStringLiteral("Chess"));
        QCOMPARE(d.bar()->text(), QStringLiteral("Color bar"));
        QVERIFY(d.chess()->isChecked());
        QVERIFY(!d.bar()->isChecked());
        QCOMPARE(d.pages()->currentIndex(), 0);
        QCOMPARE(d.list()->count(), 0);
        QCOMPARE(d.gradientList()->count(), 0);
        VD_COMPARE_IMAGES(iconImage(d.named("oddColorPushButton")), swatch(QSize(16, 16), oddDefault));
        VD_COMPARE_IMAGES(iconImage(d.named("evenColorPushButton")), swatch(QSize(16, 16), evenDefault));
        VD_COMPARE_IMAGES(d.barPreview(), previewOf("colorstripe.png"));
        QVERIFY(!d.named<ImageWidget>("_gradientLayout")->isVisible());
        BasicChartData shown;
        d.panel->getData(shown);
        QVERIFY(shown == BasicChartData());
        QCOMPARE(d.heard, nothing);
    }

    void theChessPreviewShowsChess()
    {
        Desk d;
        int chessPreviews = 0;
        for (auto* preview : d.panel->findChildren<ImageWidget*>(QStringLiteral("ImageWidget"))) {
            ++chessPreviews;
            VD_COMPARE_IMAGES(preview->grab().toImage(), previewOf("chess.png"));
        }
        QCOMPARE(chessPreviews, 1);
        QVERIFY(previewOf("chess.png") != previewOf("colorstripe.png"));
        QVERIFY(previewOf("gradient.png") != previewOf("colorstripe.png"));
    }

    void theListTakesNoScrollBarsNorDrags()
    {
        Desk d;
        QCOMPARE(d.list()->viewMode(), QListView::IconMode);
        QCOMPARE(d.list()->flow(), QListView::LeftToRight);
        QVERIFY(!d.list()->dragEnabled());
        QVERIFY(d.list()->hasMouseTracking());
        QCOMPARE(d.list()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(d.gradientList()->viewMode(), QListView::IconMode);
        QCOMPARE(d.gradientList()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(d.gradientList()->maximumWidth(), 200);
    }

    void choosingTheColorBar()
    {
        Desk d;
        QVERIFY(d.show());
        d.click(d.bar());
        QVERIFY(d.bar()->isChecked());
        QVERIFY(!d.chess()->isChecked());
        QCOMPARE(d.pages()->currentIndex(), 2);
        QCOMPARE(d.layer.mode(), 2U);
        QVERIFY(d.heard.contains(QStringLiteral("basic")));
        VD_COMPARE_IMAGES(d.barPreview(), previewOf("colorstripe.png"));
        VD_COMPARE_IMAGES(d.picture(), stripes(defaults));
    }

    void choosingChessAgain()
    {
        Desk d;
        QVERIFY(d.show());
        d.click(d.bar());
        d.heard.clear();
        d.click(d.chess());
        QVERIFY(d.chess()->isChecked());
        QCOMPARE(d.pages()->currentIndex(), 0);
        QCOMPARE(d.layer.mode(), 0U);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(d.picture(), stripes({oddDefault, evenDefault}));
        d.click(d.chess());
        QCOMPARE(d.heard, basicOnce);
    }

    void thePainterIsSetBeforeTheSignal()
    {
        Desk d;
        QVERIFY(d.show());
        QVector<uint> modes;
        connect(d.panel, &BasicSettingBox::basicSignal, this, [&] { modes.append(d.layer.mode()); });
        d.useColors({Qt::red, Qt::blue});
        modes.clear();
        d.click(d.chess());
        d.click(d.bar());
        d.click(d.gradientSwitch());
        QCOMPARE(modes.value(0), 0U);
        QCOMPARE(modes.value(1), 2U);
        QCOMPARE(modes.last(), 1U);
    }

    void theFirstColorBarHasTheDefaultColors()
    {
        Desk d;
        QVERIFY(d.show());
        d.click(d.bar());
        QCOMPARE(colorsOf(d.list()), defaults);
        for (int row = 0; row < 5; ++row) {
            const QListWidgetItem* const item = d.list()->item(row);
            QCOMPARE(item->sizeHint(), QSize(18, 18));
            QCOMPARE(item->background().style(), Qt::SolidPattern);
            QCOMPARE(item->textAlignment(), int(Qt::AlignCenter));
        }
        d.click(d.chess());
        d.click(d.bar());
        QCOMPARE(colorsOf(d.list()), defaults);
    }

    void aColorBarWithColorsKeepsThem()
    {
        Desk d;
        QVERIFY(d.show());
        d.panel->addColor(Qt::blue, QStringLiteral("add"));
        d.click(d.bar());
        QCOMPARE(colorsOf(d.list()), Colors{Qt::blue});
    }

    void emptiedByTheUserItStaysEmpty()
    {
        Desk d;
        QVERIFY(d.show());
        d.click(d.bar());
        d.clickItem(0);
        for (int left = 4; left >= 0; --left) {
            d.heard.clear();
            QVERIFY(d.deleteColor());
            QCOMPARE(d.list()->count(), left);
            QCOMPARE(d.heard, basicOnce);
        }
        VD_COMPARE_IMAGES(d.picture(), stripes({}));
        QVERIFY(d.deleteColor());
        QCOMPARE(d.list()->count(), 0);
        d.click(d.chess());
        d.click(d.bar());
        d.click(d.gradientSwitch());
        d.click(d.gradientSwitch());
        QCOMPARE(d.list()->count(), 0);
        VD_COMPARE_IMAGES(d.picture(), stripes({}));
    }

    void defaultColorsOnDemand_data()
    {
        QTest::addColumn<bool>("isFirst");
        QTest::addColumn<Colors>("colors");
        QTest::newRow("appended") << false << Colors{Qt::blue} + defaults;
        QTest::newRow("instead of what was there") << true << defaults;
    }

    void defaultColorsOnDemand()
    {
        QFETCH(bool, isFirst);
        QFETCH(Colors, colors);
        Desk d;
        d.useColors({Qt::blue});
        d.panel->colorStripeAddDefaultColors(isFirst);
        QCOMPARE(colorsOf(d.list()), colors);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(d.picture(), stripes(colors));
    }

    void switchingTheGradient()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors({Qt::red, Qt::red});
        d.click(d.gradientSwitch());
        QVERIFY(d.gradientSwitch()->isChecked());
        QCOMPARE(d.pages()->currentIndex(), 2);
        QCOMPARE(d.layer.mode(), 1U);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(d.barPreview(), previewOf("gradient.png"));
        VD_COMPARE_IMAGES(d.picture(), stripes({Qt::red}));

        d.heard.clear();
        d.click(d.gradientSwitch());
        QCOMPARE(d.layer.mode(), 2U);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(d.barPreview(), previewOf("colorstripe.png"));
    }

    void switchingTheGradientWhileChessIsChosen()
    {
        Desk d;
        QVERIFY(d.show());
        for (const bool on : {true, false}) {
            d.gradientSwitch()->click(); // the switch stands on the page that is not shown
            QCOMPARE(d.gradientSwitch()->isChecked(), on);
            QCOMPARE(d.takeHeard(), basicOnce);
            QCOMPARE(d.pages()->currentIndex(), 0);
            QCOMPARE(d.layer.mode(), 0U);
            QCOMPARE(d.list()->count(), 0);
            VD_COMPARE_IMAGES(d.barPreview(), previewOf("colorstripe.png"));
        }
    }

    void choosingTheColorBarWithTheGradientOn()
    {
        Desk d;
        QVERIFY(d.show());
        d.gradientSwitch()->click();
        d.click(d.bar());
        QCOMPARE(d.pages()->currentIndex(), 2);
        QCOMPARE(d.layer.mode(), 1U);
        QCOMPARE(colorsOf(d.list()), defaults);
        VD_COMPARE_IMAGES(d.barPreview(), previewOf("gradient.png"));
        d.click(d.chess());
        d.heard.clear();
        d.click(d.bar());
        QCOMPARE(d.layer.mode(), 1U);
        QCOMPARE(d.heard, basicOnce);
    }

    void colorButtonsAsk_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("heard");
        QTest::newRow("odd") << "oddColorPushButton"
                             << "odd oddColorPushButton";
        QTest::newRow("even") << "evenColorPushButton"
                              << "even evenColorPushButton";
        QTest::newRow("add") << "ADDButton"
                             << "add ADDButton";
    }

    void colorButtonsAsk()
    {
        QFETCH(QString, name);
        QFETCH(QString, heard);
        Desk d;
        QVERIFY(d.show());
        if (name == QLatin1String("ADDButton"))
            d.useColors({Qt::red});
        QVector<QPushButton*> requested;
        connect(d.panel, &SettingPanel::colorRequested, this,
                [&](QPushButton* button) { requested.append(button); });
        auto* const button = d.panel->findChild<QPushButton*>(name);
        d.click(button);
        QCOMPARE(d.heard, QStringList{heard});
        QCOMPARE(requested, QVector<QPushButton*>{button});
    }

    void colorSignalsCarryTheirButtonAnywhere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("odd") << "oddColorPushButton" << QByteArray(SIGNAL(oddSignal(QPushButton*)));
        QTest::newRow("even") << "evenColorPushButton" << QByteArray(SIGNAL(evenSignal(QPushButton*)));
        QTest::newRow("add") << "ADDButton" << QByteArray(SIGNAL(addSignal(QPushButton*)));
        QTest::newRow("any") << "ADDButton" << QByteArray(SIGNAL(colorRequested(QPushButton*)));
    }

    void colorSignalsCarryTheirButtonAnywhere()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, signal);
        Desk d;
        auto* const button = d.panel->findChild<QPushButton*>(name);
        const QSignalSpy requests(d.panel, signal.constData());
        button->click();
        QCOMPARE(requests.count(), 1);
        QCOMPARE(requests.first().first().value<QPushButton*>(), button);
    }

    void everyChangeReachesTheShell()
    {
        Desk d;
        QSignalSpy changed(d.panel, &SettingPanel::changed);
        d.panel->addColor(Qt::red, QStringLiteral("add"));
        QCOMPARE(changed.count(), 1);
    }

    void setColor_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<QColor>("color");
        for (const char* which : {"odd", "even"}) {
            QTest::addRow("%s, opaque", which) << which << QColor(1, 2, 3);
            QTest::addRow("%s, translucent", which) << which << QColor(250, 120, 10, 77);
            QTest::addRow("%s, nearly invisible", which) << which << QColor(250, 120, 10, 1);
            QTest::addRow("%s, invisible", which) << which << QColor(250, 120, 10, 0);
        }
    }

    void setColor()
    {
        QFETCH(QString, which);
        QFETCH(QColor, color);
        const bool odd = which == QLatin1String("odd");
        Desk d;
        d.panel->setColor(color, which);
        QCOMPARE(d.heard, basicOnce);
        const QPushButton* const button = d.named(odd ? "oddColorPushButton" : "evenColorPushButton");
        QCOMPARE(button->iconSize(), button->size());
        VD_COMPARE_IMAGES(iconImage(button), swatch(QSize(16, 16), color));
        VD_COMPARE_IMAGES(layerImage(d.layer),
                          stripes({odd ? color : oddDefault, odd ? evenDefault : color}));
        BasicChartData data;
        d.panel->getData(data);
        QVERIFY((odd ? data.oddColor : data.evenColor) == toRgbaColor(color));
        QVERIFY((odd ? data.evenColor : data.oddColor) == toRgbaColor(odd ? evenDefault : oddDefault));
    }

    void anInvalidColorIsBlack()
    {
        Desk d;
        d.panel->setColor(QColor(), QStringLiteral("odd"));
        VD_COMPARE_IMAGES(iconImage(d.named("oddColorPushButton")), swatch(QSize(16, 16), Qt::black));
        VD_COMPARE_IMAGES(layerImage(d.layer), stripes({Qt::black, evenDefault}));
    }

    void anUnknownNameChangesNothing_data()
    {
        QTest::addColumn<QString>("which");
        QTest::newRow("empty") << "";
        QTest::newRow("capital letter") << "Odd";
        QTest::newRow("name of the other operation") << "add";
    }

    void anUnknownNameChangesNothing()
    {
        QFETCH(QString, which);
        Desk d;
        d.panel->setColor(Qt::black, which);
        d.panel->restoreColor(which);
        BasicChartData data;
        d.panel->getData(data);
        QVERIFY(data == BasicChartData());
        QCOMPARE(d.heard, nothing);
        VD_COMPARE_IMAGES(d.picture(), stripes({oddDefault, evenDefault}));
    }

    void aCancelledPickerRestoresTheColor_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<QColor>("before");
        QTest::newRow("odd") << "odd" << QColor(7, 8, 9);
        QTest::newRow("even") << "even" << QColor(7, 8, 9);
        QTest::newRow("odd, translucent") << "odd" << QColor(200, 100, 33, 51);
        QTest::newRow("even, invisible") << "even" << QColor(200, 100, 33, 0);
    }

    void aCancelledPickerRestoresTheColor()
    {
        QFETCH(QString, which);
        QFETCH(QColor, before);
        const bool odd = which == QLatin1String("odd");
        Desk d;
        QVERIFY(d.show());
        d.panel->setColor(before, which);
        auto* const button = d.named(odd ? "oddColorPushButton" : "evenColorPushButton");
        d.click(button);
        d.panel->setColor(Qt::black, which);
        d.panel->setColor(Qt::white, which);
        d.heard.clear();
        d.panel->restoreColor(which);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(iconImage(button), swatch(QSize(16, 16), before));
        VD_COMPARE_IMAGES(layerImage(d.layer),
                          stripes({odd ? before : oddDefault, odd ? evenDefault : before}));
    }

    void restoredWithoutHavingBeenPicked()
    {
        Desk d;
        d.panel->setColor(Qt::red, QStringLiteral("odd"));
        d.panel->restoreColor(QStringLiteral("odd"));
        VD_COMPARE_IMAGES(iconImage(d.named("oddColorPushButton")), swatch(QSize(16, 16), oddDefault));
    }

    void addColor_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("which");
        QTest::addColumn<bool>("added");
        QTest::newRow("opaque") << QColor(1, 2, 3) << "add" << true;
        QTest::newRow("translucent") << QColor(1, 2, 3, 4) << "add" << true;
        QTest::newRow("one that is there already") << QColor(Qt::red) << "add" << true;
        QTest::newRow("invalid") << QColor() << "add" << false;
        QTest::newRow("for another button") << QColor(1, 2, 3) << "odd" << false;
        QTest::newRow("for none") << QColor(1, 2, 3) << "" << false;
    }

    void addColor()
    {
        QFETCH(QColor, color);
        QFETCH(QString, which);
        QFETCH(bool, added);
        Desk d;
        d.useColors({Qt::red});
        d.panel->addColor(color, which);
        const Colors colors = added ? Colors{Qt::red, color} : Colors{Qt::red};
        QCOMPARE(colorsOf(d.list()), colors);
        QCOMPARE(d.heard, added ? basicOnce : nothing);
        VD_COMPARE_IMAGES(d.picture(), stripes(colors));
        if (added) {
            QCOMPARE(d.list()->item(1)->sizeHint(), QSize(18, 18));
            QCOMPARE(d.list()->item(1)->textAlignment(), int(Qt::AlignCenter));
        }
    }

    void anyNumberOfColors()
    {
        Desk d;
        d.useColors({});
        for (int i = 0; i < 50; ++i)
            d.panel->addColor(QColor(i, 255 - i, 0), QStringLiteral("add"));
        QCOMPARE(d.list()->count(), 50);
        QVERIFY(d.list()->size() == QSize(112, 20));
        QCOMPARE(d.picture().pixelColor(99, 10), QColor(49, 206, 0));
    }

    void steppingThroughTheList_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        for (const char* list : {"_colorStripe", "_gradient"}) {
            const QString left = QLatin1String(list) + QLatin1String("LeftPushButton");
            const QString right = QLatin1String(list) + QLatin1String("RightPushButton");
            QTest::addRow("%s: left", list) << left << 5 << 2 << 1;
            QTest::addRow("%s: left to the first", list) << left << 5 << 1 << 0;
            QTest::addRow("%s: left at the first", list) << left << 5 << 0 << 0;
            QTest::addRow("%s: left, none current", list) << left << 5 << -1 << -1;
            QTest::addRow("%s: left, empty", list) << left << 0 << -1 << -1;
            QTest::addRow("%s: right", list) << right << 5 << 2 << 3;
            QTest::addRow("%s: right to the last", list) << right << 5 << 3 << 4;
            QTest::addRow("%s: right at the last", list) << right << 5 << 4 << 4;
            QTest::addRow("%s: right, none current", list) << right << 5 << -1 << 0;
            QTest::addRow("%s: right, empty", list) << right << 0 << -1 << -1;
        }
    }

    void steppingThroughTheList()
    {
        QFETCH(QString, button);
        QFETCH(int, count);
        QFETCH(int, from);
        QFETCH(int, to);
        Desk d;
        BasicChartData data;
        data.colorStripeColors = rows(defaults.mid(0, count));
        data.gradientColors = data.colorStripeColors;
        d.panel->setData(data);
        d.heard.clear();
        QListWidget* const list = button.startsWith(QLatin1String("_grad")) ? d.gradientList() : d.list();
        list->setCurrentRow(from);
        d.panel->findChild<QPushButton*>(button)->click();
        QCOMPARE(list->currentRow(), to);
        QCOMPARE(d.heard, nothing);
        QCOMPARE(colorsOf(list), defaults.mid(0, count));
    }

    void steppingBringsTheColorIntoView()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults + defaults);
        d.clickItem(0);
        for (int row = 1; row < 10; ++row) {
            d.click(d.named("_colorStripeRightPushButton"));
            QCOMPARE(d.list()->currentRow(), row);
            const QRect place = d.list()->visualItemRect(d.list()->currentItem());
            QVERIFY(place.left() >= 0 && place.right() <= d.list()->viewport()->rect().right() + 1);
        }
        for (int row = 8; row >= 0; --row)
            d.click(d.named("_colorStripeLeftPushButton"));
        QCOMPARE(d.list()->currentRow(), 0);
        QVERIFY(d.list()->visualItemRect(d.list()->item(0)).left() >= 0);
    }

    void deletingAsksBesideTheButton()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.clickItem(1);
        auto* const button = d.named("CancleButton");
        d.click(button);
        const QPointer<CustomDialog> dialog = Desk::confirmation();
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QVERIFY(!dialog->parentWidget());
        QCOMPARE(dialog->pos(), button->mapToGlobal(QPoint(button->width(), 0)));
        QCOMPARE(dialog->styleSheet(), QStringLiteral(" "));
        QCOMPARE(dialog->findChild<QLabel*>(QStringLiteral("messageLabel"))->text(),
                 QStringLiteral("DeleteColorBar"));
        QCOMPARE(colorsOf(d.list()), defaults);
        QCOMPARE(d.heard, nothing);

        Desk::answer(dialog, "confirmBtn");
        const Colors left{Qt::yellow, Qt::cyan, Qt::magenta, Qt::red};
        QCOMPARE(colorsOf(d.list()), left);
        QCOMPARE(d.heard, basicOnce);
        VD_COMPARE_IMAGES(d.picture(), stripes(left));
        QTRY_VERIFY(!dialog);
    }

    void theConfirmationStaysOnTheScreen()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        auto* const button = d.named("CancleButton");
        const QRect screen = d.window.screen()->availableGeometry();
        const QPoint corner = button->mapTo(&d.window, button->rect().bottomRight());
        const QPoint frame = d.window.geometry().topLeft() - d.window.pos();
        d.window.move(screen.bottomRight() - corner - frame);
        QTRY_COMPARE(button->mapToGlobal(button->rect().bottomRight()), screen.bottomRight());

        d.clickItem(1);
        d.click(button);
        const QPointer<CustomDialog> dialog = Desk::confirmation();
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QCOMPARE(dialog->geometry().bottomRight(), screen.bottomRight());
        Desk::answer(dialog, "confirmBtn");
        QTRY_VERIFY(!dialog);
        QCOMPARE(d.list()->count(), defaults.size() - 1);
    }

    void withoutConfirmationNothingIsDeleted_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("cancel button") << int(CancelButton);
        QTest::newRow("Escape") << int(Escape);
        QTest::newRow("click elsewhere") << int(ClickElsewhere);
    }

    void withoutConfirmationNothingIsDeleted()
    {
        QFETCH(int, way);
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.clickItem(1);
        d.click(d.named("CancleButton"));
        const QPointer<CustomDialog> dialog = Desk::confirmation();
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        if (way == CancelButton)
            Desk::answer(dialog, "cancelBtn");
        else if (way == Escape)
            QTest::keyPress(dialog->windowHandle(), Qt::Key_Escape);
        else
            d.click(d.list());
        QTRY_VERIFY(!dialog);
        QCOMPARE(colorsOf(d.list()), defaults);
        QCOMPARE(d.heard, nothing);
        VD_COMPARE_IMAGES(d.picture(), stripes(defaults));
    }

    void nothingIsAskedOfAnEmptyList()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors({});
        QVERIFY(d.deleteColor());
        QVERIFY(!d.panel->isQuietWhenEmpty());
        d.panel->setProperty("quietWhenEmpty", true);
        QVERIFY(d.panel->isQuietWhenEmpty());
        d.click(d.named("CancleButton"));
        QVERIFY(!Desk::confirmation());
        d.useColors({Qt::red});
        d.click(d.named("CancleButton"));
        QVERIFY(Desk::confirmation());
    }

    void aColorIsChangedInItsPlace_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("double click") << 0;
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }

    void aColorIsChangedInItsPlace()
    {
        QFETCH(int, way);
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.clickItem(1);
        if (way == 0)
            d.doubleClickItem(1);
        else
            QTest::keyClick(d.window.windowHandle(), Qt::Key(way));
        QCOMPARE(d.takeHeard(), QStringList("change stripeColorButton"));
        QCOMPARE(iconImage(d.change).pixelColor(8, 8), QColor(Qt::green));

        d.panel->setRoleColor(d.change->property("btnProperty").toString(), Qt::black);
        const Colors changed{Qt::yellow, Qt::black, Qt::cyan, Qt::magenta, Qt::red};
        QCOMPARE(colorsOf(d.list()), changed);
        QCOMPARE(d.heard, basicOnce);
        QVERIFY(d.list()->styleSheet().contains(QColor(Qt::black).name()));
        VD_COMPARE_IMAGES(d.picture(), stripes(changed));
    }

    void noColorIsChangedWithoutACurrentOne()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.list()->setFocus();
        d.list()->setCurrentRow(-1);
        QTest::keyClick(d.window.windowHandle(), Qt::Key_Return);
        QCOMPARE(d.heard, nothing);
    }

    /// The picker puts the old colour back by the role that it was opened with.
    void everyChangeHasARoleOfItsOwn()
    {
        Desk d;
        d.useColors(defaults);
        const auto roleOf = [&](int row) {
            Q_EMIT d.list()->itemDoubleClicked(d.list()->item(row));
            return d.change->property("btnProperty").toString();
        };
        const QString first = roleOf(0);
        QCOMPARE(roleOf(0), first);
        const QString third = roleOf(2);
        QVERIFY(third != first);
        QVERIFY(third != QLatin1String("odd") && !third.isEmpty());
        d.takeHeard();
        d.panel->setRoleColor(first, Qt::black);
        QCOMPARE(colorsOf(d.list()), defaults);
        d.panel->setRoleColor(third, QColor());
        d.panel->setRoleColor(third, Qt::cyan); // as it is
        QCOMPARE(d.heard, nothing);
        QCOMPARE(colorsOf(d.list()), defaults);
    }

    void aChangeFollowsItsColor()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.clickItem(0);
        QTest::keyClick(d.window.windowHandle(), Qt::Key_Return);
        const QString role = d.change->property("btnProperty").toString();
        QTest::keyClick(d.window.windowHandle(), Qt::Key_Down, Qt::AltModifier);
        d.panel->setRoleColor(role, Qt::black);
        QCOMPARE(colorsOf(d.list()), (Colors{Qt::green, Qt::black, Qt::cyan, Qt::magenta, Qt::red}));
        d.useColors({Qt::white});
        d.panel->setRoleColor(role, Qt::blue);
        QCOMPARE(colorsOf(d.list()), Colors{Qt::white});
    }

    void colorsAreMovedWithKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("current");
        QTest::addColumn<Colors>("colors");
        const Colors three{Qt::yellow, Qt::green, Qt::cyan};
        QTest::newRow("up") << int(Qt::Key_Up) << 1 << Colors{Qt::green, Qt::yellow, Qt::cyan};
        QTest::newRow("down") << int(Qt::Key_Down) << 1 << Colors{Qt::yellow, Qt::cyan, Qt::green};
        QTest::newRow("up at the start") << int(Qt::Key_Up) << 0 << three;
        QTest::newRow("down at the end") << int(Qt::Key_Down) << 2 << three;
    }

    void colorsAreMovedWithKeys()
    {
        QFETCH(int, key);
        QFETCH(int, current);
        QFETCH(Colors, colors);
        const Colors three{Qt::yellow, Qt::green, Qt::cyan};
        Desk d;
        QVERIFY(d.show());
        d.useColors(three);
        d.clickItem(current);
        QTest::keyClick(d.window.windowHandle(), Qt::Key(key), Qt::AltModifier);
        QCOMPARE(colorsOf(d.list()), colors);
        QCOMPARE(d.heard, colors == three ? nothing : basicOnce);
        QCOMPARE(d.list()->currentRow(), colors.indexOf(three.at(current)));
        VD_COMPARE_IMAGES(d.picture(), stripes(colors));
        for (int row = 0; row < 3; ++row) // they lie in their order
            QVERIFY(row == 0 || d.list()->visualItemRect(d.list()->item(row)).left() >
                                    d.list()->visualItemRect(d.list()->item(row - 1)).left());
    }

    /// The list has room for six.
    void everyColorIsReached_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("keys") << int(Qt::Key_End);
        QTest::newRow("wheel") << 0;
    }

    void everyColorIsReached()
    {
        QFETCH(int, way);
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults + defaults);
        const auto isShown = [&](int row) {
            const QRect place = d.list()->visualItemRect(d.list()->item(row));
            return place.left() >= 0 && place.right() <= d.list()->viewport()->rect().right() + 1;
        };
        QVERIFY(isShown(0) && !isShown(9));
        d.clickItem(0);
        if (way)
            QTest::keyClick(d.window.windowHandle(), Qt::Key(way));
        else
            d.turnWheel(d.list()->viewport(), -1200);
        QVERIFY(isShown(9));
    }

    void deletingWithoutACurrentColorDeletesNone()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.list()->setCurrentRow(-1);
        QVERIFY(d.deleteColor());
        QCOMPARE(colorsOf(d.list()), defaults);
    }

    void deletingFromTheGradientList()
    {
        Desk d;
        BasicChartData data;
        data.gradientColors = rows(defaults);
        data.colorStripeColors = rows({Qt::black});
        d.panel->setData(data);
        d.heard.clear();
        d.gradientList()->setCurrentRow(0);
        for (int left = 4; left >= 0; --left) {
            d.named("_gradientRemovePushButton")->click();
            QCOMPARE(d.gradientList()->count(), left);
            QCOMPARE(d.takeHeard(), basicOnce);
        }
        QVERIFY(!Desk::confirmation());
        QCOMPARE(colorsOf(d.list()), Colors{Qt::black});
    }

    void addingToTheGradientList_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("rejected") << false;
    }

    void addingToTheGradientList()
    {
        QFETCH(bool, accept);
        Desk d;
        ColorPicker picker(QColor(9, 8, 7), accept);
        d.named("_gradientAddPushButton")->click();
        QCOMPARE(picker.title, QStringLiteral("select color"));
        QCOMPARE(picker.initial, QColor(Qt::white));
        QCOMPARE(colorsOf(d.gradientList()), accept ? Colors{QColor(9, 8, 7)} : Colors{});
        QCOMPARE(d.list()->count(), 0);
        QCOMPARE(d.heard, basicOnce);
        QCOMPARE(QLocale().language(), QLocale::Chinese);
        QCOMPARE(QLocale().country(), QLocale::China);
        if (accept)
            QCOMPARE(d.gradientList()->item(0)->sizeHint(), QSize(18, 18));
    }

    void theCurrentColorIsFramed()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors({Qt::red, QColor(0x12, 0xab, 0xfe, 60), Qt::blue});
        d.clickItem(1);
        QCOMPARE(d.list()->currentRow(), 1);
        QCOMPARE(d.list()->styleSheet(),
                 QStringLiteral("QListWidget::item::selected {border: 1px solid #3ABCF0;outline: "
                                "0px;background-color: #12abfe;}"));
        d.click(d.named("_colorStripeRightPushButton"));
        QVERIFY(d.list()->styleSheet().contains(QStringLiteral("background-color: #0000ff;")));
        QCOMPARE(colorsOf(d.list()), (Colors{Qt::red, QColor(0x12, 0xab, 0xfe, 60), Qt::blue}));
    }

    void theGradientListFramesItsOwnWay()
    {
        Desk d;
        BasicChartData data;
        data.gradientColors = rows({Qt::red, QColor(0x12, 0xab, 0xfe)});
        d.panel->setData(data);
        d.gradientList()->setCurrentRow(1);
        QCOMPARE(d.gradientList()->styleSheet(),
                 QStringLiteral("QListWidget::item:selected {border: 1px solid #489BC5;background-color: "
                                "#12abfe;}"));
    }

    void theHoveredColorIsFramed()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors({Qt::red, QColor(0x12, 0xab, 0xfe), Qt::blue});
        d.hoverItem(0);
        d.hoverItem(1);
        QTRY_COMPARE(d.list()->styleSheet(),
                     QStringLiteral("QListWidget::item:hover {background-color: #12abfe;border: 1px solid "
                                    "#75CFF9;}"));
    }

    void dragsIntoTheListAreRefused_data()
    {
        QTest::addColumn<bool>("viewport");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("refused");
        const struct
        {
            const char* name;
            QEvent::Type type;
            bool refused;
        } events[] = {{"enter", QEvent::DragEnter, true},
                      {"move", QEvent::DragMove, true},
                      {"drop", QEvent::Drop, true},
                      {"leave", QEvent::DragLeave, false}};
        for (const auto& event : events) {
            QTest::addRow("%s, list", event.name) << false << int(event.type) << event.refused;
            QTest::addRow("%s, its viewport", event.name) << true << int(event.type) << event.refused;
        }
    }

    void dragsIntoTheListAreRefused()
    {
        QFETCH(bool, viewport);
        QFETCH(int, type);
        QFETCH(bool, refused);
        Desk d;
        d.useColors(defaults);
        QWidget* const target = viewport ? d.list()->viewport() : d.list();
        QEvent event{QEvent::Type(type)};
        QCOMPARE(d.panel->eventFilter(target, &event), refused);
        QVERIFY(!d.panel->eventFilter(d.gradientList(), &event));
        QVERIFY(!d.panel->eventFilter(d.panel, &event));
    }

    void otherEventsReachTheList()
    {
        Desk d;
        for (const QEvent::Type type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::Paint,
                                        QEvent::Wheel, QEvent::KeyPress, QEvent::ToolTip}) {
            QEvent event(type);
            QVERIFY(!d.panel->eventFilter(d.list(), &event));
        }
    }

    /// A list that takes drops shows that it is the panel that refuses them.
    void droppedColorsDoNotArrive()
    {
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.list()->setAcceptDrops(true);
        d.list()->viewport()->setAcceptDrops(true);
        d.list()->setDragDropMode(QAbstractItemView::DragDrop);
        const std::unique_ptr<QMimeData> item(d.list()->model()->mimeData({d.list()->model()->index(0, 0)}));
        QVERIFY(item);
        QWidget* const target = d.list()->viewport();
        const QPoint place(target->rect().center());
        QDragEnterEvent enter(place, Qt::CopyAction, item.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QVERIFY(!enter.isAccepted());
        QDragMoveEvent move(place, Qt::CopyAction, item.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        QVERIFY(!move.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, item.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
        QVERIFY(!drop.isAccepted());
        QCOMPARE(colorsOf(d.list()), defaults);
    }

    void lock_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("locked");
        for (const char* name :
             {"oddColorPushButton", "evenColorPushButton", "_gradientLeftPushButton",
              "_gradientRightPushButton", "_gradientAddPushButton", "_gradientRemovePushButton",
              "_colorStripeLeftPushButton", "_colorStripeRightPushButton", "ADDButton", "CancleButton", ""})
            QTest::addRow("%s", *name ? name : "the switch") << name << true;
        for (const char* name :
             {"chessRadioButton", "colorStripeRadioButton", "_colorStripeListWidget", "_gradientListWidget"})
            QTest::addRow("%s", name) << name << false;
    }

    void lock()
    {
        QFETCH(QString, name);
        QFETCH(bool, locked);
        Desk d;
        QVERIFY(d.show());
        const QWidget* const control =
            name.isEmpty() ? d.gradientSwitch() : d.panel->findChild<QWidget*>(name);
        QVERIFY(control->isEnabled());
        d.panel->setControlsDisabled(true);
        QCOMPARE(control->isEnabled(), !locked);
        d.panel->setControlsDisabled(true);
        d.panel->setControlsDisabled(false);
        QVERIFY(control->isEnabled());
        QCOMPARE(d.heard, nothing);
    }

    void everyButtonIsUnderTheLock()
    {
        Desk d;
        d.panel->setControlsDisabled(true);
        for (const auto* button : d.panel->findChildren<QPushButton*>())
            QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
    }

    void theLockTakesTheFocus_data()
    {
        QTest::addColumn<bool>("disable");
        QTest::newRow("locking") << true;
        QTest::newRow("unlocking") << false;
    }

    void theLockTakesTheFocus()
    {
        QFETCH(bool, disable);
        Desk d;
        QVERIFY(d.show());
        d.useColors(defaults);
        d.panel->setControlsDisabled(!disable);
        d.list()->setFocus();
        QVERIFY(d.list()->hasFocus());
        d.panel->setControlsDisabled(disable);
        QVERIFY(d.panel->hasFocus());
    }

    void retranslating()
    {
        Desk d;
        QVERIFY(speak({{QStringLiteral("Mode selection"), QStringLiteral("Art")},
                       {QStringLiteral("Chess"), QStringLiteral("Schach")},
                       {QStringLiteral("Color bar"), QStringLiteral("Balken")},
                       {QStringLiteral("Odd"), QStringLiteral("Eins")},
                       {QStringLiteral("Even"), QStringLiteral("Zwei")},
                       {QStringLiteral("Gradient"), QStringLiteral("Verlauf")},
                       {QStringLiteral("Add"), QStringLiteral("Neu")},
                       {QStringLiteral("Delete"), QStringLiteral("Weg")},
                       {QStringLiteral("Widget"), QStringLiteral("Tafel")}}));
        QVERIFY(d.caption(QStringLiteral("Odd")));
        d.panel->retranslate();
        QCOMPARE(d.chess()->text(), QStringLiteral("Schach"));
        QCOMPARE(d.bar()->text(), QStringLiteral("Balken"));
        for (const char* text : {"Art  ", "Eins", "Zwei", "Verlauf", "Balken"}) {
            const QLabel* const caption = d.caption(QLatin1String(text));
            QVERIFY2(caption && caption->toolTip().isEmpty(), text);
        }
        QCOMPARE(d.named("ADDButton")->text(), QStringLiteral("Neu"));
        QCOMPARE(d.named("CancleButton")->text(), QStringLiteral("Weg"));
        QCOMPARE(d.panel->windowTitle(), QStringLiteral("Tafel"));
        QCOMPARE(d.named("_gradientAddPushButton")->text(), QStringLiteral("增加"));
        QCOMPARE(d.heard, nothing);
    }

    void longCaptionsAreElided_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("behind");
        QTest::newRow("mode") << "Mode selection"
                              << "  ";
        QTest::newRow("gradient") << "Gradient"
                                  << "";
        QTest::newRow("odd") << "Odd"
                             << "";
        QTest::newRow("even") << "Even"
                              << "";
    }

    void longCaptionsAreElided()
    {
        QFETCH(QString, source);
        QFETCH(QString, behind);
        Desk d;
        QVERIFY(d.show());
        QLabel* const caption = d.caption(source + behind);
        QVERIFY(caption);
        const QString text = source + QStringLiteral(" oder sonst ein Name, der nicht passt");
        QVERIFY(speak({{source, text}}));
        d.panel->retranslate();
        QCOMPARE(caption->toolTip(), text + behind);
        QVERIFY(caption->text().endsWith(QChar(0x2026)));
        QCOMPARE(caption->text(),
                 caption->fontMetrics().elidedText(text + behind, Qt::ElideRight, caption->width()));
        QVERIFY(speak({{source, QStringLiteral("Kurz")}}));
        d.panel->retranslate();
        QCOMPARE(caption->text(), QStringLiteral("Kurz") + behind);
        QCOMPARE(caption->toolTip(), QString());
    }

    void longButtonTextsAreElided()
    {
        Desk d;
        auto* const button = d.named("ADDButton");
        const QString text = QStringLiteral("Noch eine Farbe dazu");
        QVERIFY(speak({{QStringLiteral("Add"), text}}));
        d.panel->retranslate();
        QVERIFY(button->text().endsWith(QChar(0x2026)));
        QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= button->width());
        QCOMPARE(button->toolTip(), text);
    }

    void aStyleSheetWithALargerFontElidesAgain()
    {
        Desk d;
        QVERIFY(d.show());
        const QLabel* const caption = d.caption(QStringLiteral("Gradient"));
        QCOMPARE(caption->text(), QStringLiteral("Gradient"));
        const QString usual = d.panel->styleSheet();
        d.panel->setStyleSheet(usual + QStringLiteral("QLabel { font-size: 30px; }"));
        QVERIFY(caption->text().endsWith(QChar(0x2026)));
        QCOMPARE(caption->toolTip(), QStringLiteral("Gradient"));
        d.panel->setStyleSheet(usual);
        QCOMPARE(caption->text(), QStringLiteral("Gradient"));
        QCOMPARE(caption->toolTip(), QString());
    }

    void roundTrip_data()
    {
        QTest::addColumn<BasicChartData>("data");
        BasicChartData data;
        QTest::newRow("default") << data;
        data.oddColor = {1, 2, 3, 255};
        data.evenColor = {4, 5, 6, 255};
        QTest::newRow("chess colors") << data;
        data.oddColor = {250, 120, 10, 77};
        data.evenColor = {250, 120, 10, 0};
        QTest::newRow("translucent chess colors") << data;
        data.gradientChecked = true;
        QTest::newRow("chess with the gradient on") << data;
        data.chessChecked = false;
        data.colorBarChecked = true;
        QTest::newRow("gradient without colors") << data;
        data.gradientChecked = false;
        QTest::newRow("stripes without colors") << data;
        data.colorStripeColors = rows({Qt::red, QColor(1, 2, 3, 4), QColor(0, 0, 0, 0), Qt::red});
        QTest::newRow("stripes, some translucent") << data;
        data.gradientColors = rows({QColor(9, 8, 7, 6), Qt::blue});
        QTest::newRow("both lists") << data;
        data.colorStripeColors.clear();
        data.gradientChecked = true;
        QTest::newRow("the gradient list only") << data;
    }

    void roundTrip()
    {
        QFETCH(BasicChartData, data);
        Desk fresh;
        fresh.panel->setData(data);
        BasicChartData shown;
        fresh.panel->getData(shown);
        QVERIFY(shown == data);

        Desk used;
        used.useColors(defaults);
        used.panel->setColor(Qt::black, QStringLiteral("odd"));
        used.gradientSwitch()->click();
        used.panel->setData(data);
        used.panel->getData(shown);
        QVERIFY(shown == data);
        QCOMPARE(used.layer.mode(), data.chessChecked ? 0U : data.gradientChecked ? 1U : 2U);
        QCOMPARE(used.pages()->currentIndex(), data.chessChecked ? 0 : 2);
        VD_COMPARE_IMAGES(used.barPreview(),
                          previewOf(data.gradientChecked ? "gradient.png" : "colorstripe.png"));
    }

    void theLayerShowsWhatWasPushed()
    {
        Desk d;
        d.useColors({Qt::red, QColor(1, 2, 3, 100), Qt::blue});
        VD_COMPARE_IMAGES(d.picture(), stripes({Qt::red, QColor(1, 2, 3, 100), Qt::blue}));
        d.useColors({});
        VD_COMPARE_IMAGES(d.picture(), stripes({}));
        BasicChartData chess;
        chess.oddColor = {10, 20, 30, 40};
        d.panel->setData(chess);
        VD_COMPARE_IMAGES(d.picture(), stripes({QColor(10, 20, 30, 40), evenDefault}));
    }

    void aListPushedWithChessShowsOnceTheColorBarIsChosen()
    {
        Desk d;
        QVERIFY(d.show());
        BasicChartData data;
        data.colorStripeColors = rows({Qt::red, Qt::blue});
        d.panel->setData(data);
        VD_COMPARE_IMAGES(d.picture(), stripes({oddDefault, evenDefault}));
        d.click(d.bar());
        VD_COMPARE_IMAGES(d.picture(), stripes({Qt::red, Qt::blue}));
    }

    void rowsAreNumberedFromZero()
    {
        Desk d;
        QVERIFY(d.show());
        BasicChartData data;
        data.chessChecked = false;
        data.colorBarChecked = true;
        data.colorStripeColors = {{-4, Qt::red}, {3, Qt::green}, {70, Qt::blue}};
        d.panel->setData(data);
        d.panel->getData(data);
        QVERIFY(data.colorStripeColors == rows({Qt::red, Qt::green, Qt::blue}));
        d.clickItem(0);
        QVERIFY(d.deleteColor());
        d.panel->addColor(Qt::cyan, QStringLiteral("add"));
        d.panel->getData(data);
        QVERIFY(data.colorStripeColors == rows({Qt::green, Qt::blue, Qt::cyan}));
    }

    void aBrushThatIsNotSolidCountsAsWhite_data()
    {
        QTest::addColumn<QBrush>("brush");
        QTest::newRow("pattern") << QBrush(Qt::red, Qt::Dense4Pattern);
        QTest::newRow("none") << QBrush();
    }

    void aBrushThatIsNotSolidCountsAsWhite()
    {
        QFETCH(QBrush, brush);
        Desk d;
        d.useColors({Qt::red, Qt::blue});
        d.list()->item(0)->setBackground(brush);
        BasicChartData data;
        d.panel->getData(data);
        QVERIFY(data.colorStripeColors == rows({Qt::white, Qt::blue}));
    }

    void onlyADifferenceIsAnnounced_data()
    {
        QTest::addColumn<BasicChartData>("data");
        QTest::addColumn<bool>("announced");
        const BasicChartData shown = shownData();
        QTest::newRow("the same record") << shown << false;
        BasicChartData data = shown;
        data.chessChecked = true;
        data.colorBarChecked = false;
        QTest::newRow("chess") << data << true;
        data = shown;
        data.gradientChecked = true;
        QTest::newRow("gradient") << data << true;
        data = shown;
        data.oddColor.alpha = 41;
        QTest::newRow("odd color, alpha only") << data << true;
        data = shown;
        data.evenColor.blue = 254;
        QTest::newRow("even color") << data << true;
        data = shown;
        data.colorStripeColors[1] = Qt::green;
        QTest::newRow("one stripe") << data << true;
        data = shown;
        data.colorStripeColors.clear();
        QTest::newRow("no stripes") << data << true;
        data = shown;
        data.gradientColors = rows({Qt::green});
        QTest::newRow("the gradient list, which is not drawn") << data << false;
    }

    void onlyADifferenceIsAnnounced()
    {
        QFETCH(BasicChartData, data);
        QFETCH(bool, announced);
        Desk d;
        d.panel->setData(shownData());
        d.heard.clear();
        d.panel->setData(data);
        QCOMPARE(d.heard, announced ? basicOnce : nothing);
    }

    void theRecordCarriesTheGroup()
    {
        Desk d;
        TestChartToolsData record;
        record.basicData = shownData();
        d.panel->pushFrom(record);
        TestChartToolsData collected;
        d.panel->collectInto(collected);
        QVERIFY(collected.basicData == record.basicData);
        QVERIFY(collected == record);
    }

    void noPainterIsIgnored()
    {
        Desk d;
        d.panel->setPaintWidget(nullptr);
        d.useColors({Qt::red, Qt::blue});
        QCOMPARE(d.layer.mode(), 2U);
        VD_COMPARE_IMAGES(d.picture(), stripes({Qt::red, Qt::blue}));
    }

    void anotherPainterTakesOver()
    {
        Desk d;
        PaintBasicWidget other;
        other.resize(layerSize);
        d.panel->setPaintWidget(&other);
        d.useColors({Qt::red, Qt::blue});
        QCOMPARE(other.mode(), 2U);
        VD_COMPARE_IMAGES(layerImage(other), stripes({Qt::red, Qt::blue}));
        QCOMPARE(d.layer.mode(), 0U);
    }

    void worksWithoutAPainter_data()
    {
        QTest::addColumn<bool>("hadOne");
        QTest::newRow("never given one") << false;
        QTest::newRow("it has been deleted") << true;
    }

    void worksWithoutAPainter()
    {
        QFETCH(bool, hadOne);
        BasicSettingBox panel;
        if (hadOne) {
            PaintBasicWidget layer;
            panel.setPaintWidget(&layer);
        }
        QSignalSpy changed(&panel, &BasicSettingBox::basicSignal);
        panel.setData(shownData());
        panel.setColor(Qt::red, QStringLiteral("even"));
        panel.addColor(Qt::red, QStringLiteral("add"));
        QVERIFY(changed.count() > 2);
        BasicChartData data;
        panel.getData(data);
        QCOMPARE(int(data.colorStripeColors.size()), 3);
    }

private:
    enum Way
    {
        CancelButton,
        Escape,
        ClickElsewhere
    };

    static BasicChartData shownData()
    {
        BasicChartData data;
        data.chessChecked = false;
        data.colorBarChecked = true;
        data.oddColor = {200, 100, 50, 40};
        data.evenColor = {1, 2, 255, 255};
        data.colorStripeColors = rows({Qt::red, QColor(3, 2, 1, 9)});
        data.gradientColors = rows({Qt::blue});
        return data;
    }
};

VD_TEST_MAIN(TestBasicSettingBox)
#include "tst_basicsettingbox.moc"
