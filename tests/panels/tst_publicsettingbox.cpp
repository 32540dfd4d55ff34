#include "language.h"
#include "paintpublicbrightwidget.h"
#include "paintpublicwidget.h"
#include "publicsettingbox.h"
#include "testcase.h"
#include "testcharttoolsdata.h"

#include <spineditbox.h>

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <QWindow>

using namespace vardeno::testcharttools;

namespace {

const QSize borderLayerSize(240, 220);

/// The panel's numeric entries, in the order of its rows.
enum Entry
{
    Brightness,
    Width,
    Height,
    Row,
    Col,
    BorderWidth
};

/// The picture of a colour button: the colour inside a transparent margin of one pixel.
QImage borderSwatch(const QColor& color)
{
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(1, 1, 14, 14, color);
    return image;
}

/// The picture of a colour button whose group is switched off.
QImage disabledBorderSwatch()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(0x33, 0x33, 0x37));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0x63, 0x64, 0x74));
    painter.drawRect(QRect(1, 1, 38, 18));
    painter.drawImage(0, 0, QImage(QStringLiteral(":/resources/images/disable.png")));
    return image;
}

/// The panel in a window, with the painters that it drives, and everything that is heard of it in order.
class PublicDesk : public QObject
{
public:
    PublicDesk()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(panel);
        window.move(40, 30);
        border.resize(borderLayerSize);
        veil.resize(borderLayerSize);
        panel->setPaintPublicWidget(&border);
        panel->setPaintPublicBrightWidget(&veil);
        connect(panel, &PublicSettingBox::publicSignal, this, [this] { hear("public"); });
        connect(panel, &PublicSettingBox::resolutionSignal, this, [this] { hear("resolution"); });
        connect(panel, &PublicSettingBox::editingFinished, this, [this] { hear("finished"); });
        connect(panel, &PublicSettingBox::rowSignal, this, [this](int row) { hear("row", row); });
        connect(panel, &PublicSettingBox::colSignal, this, [this](int col) { hear("col", col); });
        connect(panel, &PublicSettingBox::colorBtnSignal, this,
                [this](QPushButton* button) { heard.append(button->objectName()); });
    }

    bool show()
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    SpinEditBox* entry(int which) const { return panel->findChildren<SpinEditBox*>().value(which); }
    QSlider* slider() const { return panel->findChild<QSlider*>(); }
    QCheckBox* borderSwitch() const { return panel->findChild<QCheckBox*>(); }
    QPushButton* reset() const { return panel->findChild<QPushButton*>(QStringLiteral("BrightResetBtn")); }
    QPushButton* color() const
    {
        return panel->findChild<QPushButton*>(QStringLiteral("outLineColorButton"));
    }
    QImage colorIcon() const { return color()->icon().pixmap(color()->iconSize()).toImage(); }

    /// The label that shows `text`, whole or elided.
    QLabel* caption(const QString& text) const
    {
        for (auto* label : panel->findChildren<QLabel*>()) {
            if (label->text() == text || label->toolTip() == text)
                return label;
        }
        return nullptr;
    }

    QRect placeOf(const QWidget* widget) const { return {widget->mapTo(panel, QPoint()), widget->size()}; }

    void click(const QWidget* widget) { clickAt(widget, widget->rect().center()); }
    void clickSwitch() { clickAt(borderSwitch(), QPoint(6, borderSwitch()->height() / 2)); }

    /// Replaces what an entry shows and presses Enter.
    void type(int which, const char* text)
    {
        click(entry(which));
        QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        for (const char* character = text; *character; ++character)
            QTest::keyClick(window.windowHandle(), *character);
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    }

    /// The three steps of dragging the slider's handle. `part` is the place between its ends, 0 to 1.
    void press(double part) { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, onSlider(part)); }
    void moveTo(double part) { QTest::mouseMove(window.windowHandle(), onSlider(part)); }
    void release(double part)
    {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, onSlider(part));
    }

    int veilAlpha() const
    {
        const QImage image = layerImage(veil);
        return image.isNull() ? -1 : image.pixelColor(100, 100).alpha();
    }

    QStringList takeHeard() { return std::exchange(heard, {}); }

    QStringList heard; // the window goes first, and losing the focus ends an edit
    PaintPublicWidget border;
    PaintPublicBrightWidget veil;
    QWidget window;
    PublicSettingBox* panel = new PublicSettingBox;

private:
    void clickAt(const QWidget* widget, const QPoint& position)
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, position));
    }

    QPoint onSlider(double part) const
    {
        const int margin = 7; // about half of the handle
        const QRect ends = slider()->rect().adjusted(margin, 0, -margin, 0);
        const QPoint place(ends.left() + int(part * (ends.width() - 1)), ends.center().y());
        return slider()->mapTo(&window, place);
    }

    void hear(const char* what) { heard.append(QLatin1String(what)); }
    void hear(const char* what, int value)
    {
        heard.append(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(value));
    }
};

/// What a border painter shows that was told this.
QImage borderImage(int width, const QColor& color, bool visible = true)
{
    PaintPublicWidget layer;
    layer.resize(borderLayerSize);
    layer.setOutLineWidth(width);
    layer.setOutLineColor(color);
    layer.setOutLineVisible(visible);
    layer.grab();
    return layerImage(layer);
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

const QStringList silence;
const QStringList publicOnce{QStringLiteral("public")};

PublicChartData otherData()
{
    PublicChartData data;
    data.brightness = 40;
    data.resolutionWidth = 800;
    data.resolutionHeight = 600;
    data.boxRow = 5;
    data.boxCol = 7;
    data.showOutBorder = false;
    data.outBorderWidth = 11;
    data.outBorderColor = {10, 20, 30, 255};
    return data;
}

} // namespace

Q_DECLARE_METATYPE(PublicChartData)

class TestPublicSettingBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void frame()
    {
        PublicDesk d;
        QCOMPARE(d.panel->minimumWidth(), 410);
        QCOMPARE(d.panel->maximumWidth(), 410);
        const auto* const inner = d.panel->findChild<QWidget*>(QStringLiteral("publicWidget"));
        QVERIFY(inner);
        QCOMPARE(inner->styleSheet(),
                 QStringLiteral("QWidget#publicWidget{border-left : 1px solid #535465; border-right : 1px "
                                "solid #535465; border-bottom : 1px solid #535465}"));
        QVERIFY(inner->isAncestorOf(d.slider()));
    }

    void entries_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("value");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("suffix");
        const QSize usual(70, 24);
        QTest::newRow("brightness") << int(Brightness) << 0.0 << 100.0 << 100.0 << usual << "";
        QTest::newRow("width") << int(Width) << 16.0 << 4320.0 << 1920.0 << usual << "";
        QTest::newRow("height") << int(Height) << 16.0 << 4320.0 << 1080.0 << usual << "";
        QTest::newRow("rows") << int(Row) << 1.0 << 100.0 << 9.0 << usual << "";
        QTest::newRow("columns") << int(Col) << 1.0 << 100.0 << 16.0 << usual << "";
        QTest::newRow("border width") << int(BorderWidth) << 1.0 << 100.0 << 6.0 << QSize(110, 24) << "px";
    }

    void entries()
    {
        QFETCH(int, which);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, value);
        QFETCH(QSize, size);
        QFETCH(QString, suffix);
        PublicDesk d;
        QCOMPARE(d.panel->findChildren<SpinEditBox*>().size(), 6);
        const SpinEditBox* const entry = d.entry(which);
        QCOMPARE(entry->minimum(), minimum);
        QCOMPARE(entry->maximum(), maximum);
        QCOMPARE(entry->value(), value);
        QCOMPARE(entry->minimumSize(), size);
        QCOMPARE(entry->maximumSize(), size);
        QCOMPARE(entry->suffix(), suffix);
        QVERIFY(entry->isEnabled());
    }

    void theEntriesOfTheCabinetGridAreNamed()
    {
        PublicDesk d;
        QCOMPARE(d.panel->findChild<SpinEditBox*>(QStringLiteral("Row")), d.entry(Row));
        QCOMPARE(d.panel->findChild<SpinEditBox*>(QStringLiteral("Col")), d.entry(Col));
    }

    void otherControls()
    {
        PublicDesk d;
        QCOMPARE(d.slider()->orientation(), Qt::Horizontal);
        QCOMPARE(d.slider()->minimum(), 0);
        QCOMPARE(d.slider()->maximum(), 100);
        QCOMPARE(d.slider()->value(), 100);
        QCOMPARE(d.slider()->size(), QSize(146, 24));
        QCOMPARE(d.reset()->size(), QSize(20, 20));
        QVERIFY(d.borderSwitch()->isChecked());
        QCOMPARE(d.borderSwitch()->size(), QSize(28, 14));
        QCOMPARE(d.borderSwitch()->property("switchStyle"), QVariant(QStringLiteral("general")));
        QCOMPARE(d.color()->size(), QSize(16, 16));
        QVERIFY(!d.color()->property("btnProperty").toString().isEmpty());
        VD_COMPARE_IMAGES(d.colorIcon(), borderSwatch(Qt::white));
        QCOMPARE(d.color()->iconSize(), d.color()->size());
    }

    void captions_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"Brightness", "Resolution", "Box RowColNum", "OutBorder", "BorderWidth", "Color"})
            QTest::newRow(text) << text;
    }

    void captions()
    {
        QFETCH(QString, text);
        PublicDesk d;
        const QLabel* const caption = d.caption(text);
        QVERIFY(caption);
        QCOMPARE(caption->minimumSize(), QSize(80, 24));
        QCOMPARE(caption->maximumSize(), QSize(80, 24));
        QCOMPARE(caption->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }

    void rowsFollowTheirCaptions()
    {
        PublicDesk d;
        QVERIFY(d.show());
        const QVector<QVector<QWidget*>> rows{
            {d.caption(QStringLiteral("Brightness")), d.slider(), d.entry(Brightness), d.reset()},
            {d.caption(QStringLiteral("Resolution")), d.entry(Width), d.entry(Height)},
            {d.caption(QStringLiteral("Box RowColNum")), d.entry(Row), d.entry(Col)},
            {d.caption(QStringLiteral("OutBorder")), d.borderSwitch()},
            {d.caption(QStringLiteral("BorderWidth")), d.entry(BorderWidth)},
            {d.caption(QStringLiteral("Color")), d.color()}};
        int below = 0;
        for (const auto& row : rows) {
            const QRect caption = d.placeOf(row.first());
            int after = -1;
            for (const QWidget* control : row) {
                const QRect place = d.placeOf(control);
                QVERIFY(place.left() > after);
                QVERIFY(std::abs(place.center().y() - caption.center().y()) <= 1);
                QVERIFY(d.panel->rect().contains(place));
                after = place.right();
            }
            QVERIFY(caption.top() >= below);
            below = row == rows.at(4) ? caption.top() : caption.bottom(); // the color may share this row
        }
    }

    void startsWithItsDefaults()
    {
        PublicDesk d;
        const PublicChartData data = d.panel->getData();
        PublicChartData expected;
        expected.outBorderWidth = 6;
        QVERIFY(data == expected);
        QCOMPARE(d.panel->resolutionWidth(), 1920);
        QCOMPARE(d.panel->resolutionHeight(), 1080);
        QCOMPARE(d.heard, silence);
    }

    void draggingTheSlider()
    {
        PublicDesk d;
        QVERIFY(d.show());
        d.veil.setBrightness(90);
        d.press(1.0);
        d.moveTo(0.7);
        d.moveTo(0.4);
        QVERIFY(d.slider()->isSliderDown());
        const int value = d.slider()->value();
        QVERIFY(value > 20 && value < 60);
        QCOMPARE(d.entry(Brightness)->value(), double(value));
        QCOMPARE(d.heard, silence);
        QCOMPARE(d.veilAlpha(), 255 - 90 * 255 / 100);

        d.release(0.4);
        QCOMPARE(d.slider()->value(), value);
        QCOMPARE(d.heard, publicOnce);
        QCOMPARE(d.veilAlpha(), 255 - value * 255 / 100);
    }

    void releasingAnUnmovedSliderAppliesItsValue()
    {
        PublicDesk d;
        QVERIFY(d.show());
        d.panel->setBrightnessValue(30);
        d.slider()->setSliderDown(true);
        QCOMPARE(d.heard, silence);
        d.slider()->setSliderDown(false);
        QCOMPARE(d.heard, publicOnce);
        QCOMPARE(d.veilAlpha(), 255 - 76);
    }

    void aStepOfTheSliderIsAppliedAtOnce()
    {
        PublicDesk d;
        QVERIFY(d.show());
        d.slider()->setFocus();
        QTest::keyClick(d.window.windowHandle(), Qt::Key_Left);
        QCOMPARE(d.entry(Brightness)->value(), 99.0);
        QCOMPARE(d.heard, publicOnce);
        QCOMPARE(d.veilAlpha(), 3);
    }

    void typingABrightness_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("alpha");
        QTest::newRow("half") << "50" << 50 << 128;
        QTest::newRow("dark") << "0" << 0 << 255;
        QTest::newRow("nearly dark") << "1" << 1 << 253;
        QTest::newRow("a fraction is cut off") << "50.5" << 50 << 128;
    }

    void typingABrightness()
    {
        QFETCH(QString, typed);
        QFETCH(int, percent);
        QFETCH(int, alpha);
        PublicDesk d;
        QVERIFY(d.show());
        d.type(Brightness, qPrintable(typed));
        QCOMPARE(d.slider()->value(), percent);
        QCOMPARE(d.veilAlpha(), alpha);
        QCOMPARE(d.panel->getData().brightness, percent);
        QVERIFY(!d.heard.isEmpty());
        QCOMPARE(d.heard.count(QStringLiteral("public")), d.heard.size());
        if (!typed.contains(QLatin1Char('.')))
            QCOMPARE(d.heard, publicOnce);
    }

    void nothingIsAppliedWhileTyping()
    {
        PublicDesk d;
        QVERIFY(d.show());
        d.click(d.entry(Brightness));
        QTest::keyClick(d.window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(d.window.windowHandle(), '5');
        QTest::keyClick(d.window.windowHandle(), '0');
        QCOMPARE(d.slider()->value(), 100);
        QCOMPARE(d.heard, silence);
    }

    void typing_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("heard");
        const QString resolution = QStringLiteral("resolution, finished, public");
        QTest::newRow("width") << int(Width) << "800" << 800.0 << resolution;
        QTest::newRow("smallest width") << int(Width) << "16" << 16.0 << resolution;
        QTest::newRow("too small a width") << int(Width) << "15" << 1920.0 << "";
        QTest::newRow("largest width") << int(Width) << "4320" << 4320.0 << resolution;
        QTest::newRow("too large a width") << int(Width) << "4321" << 1920.0 << "";
        QTest::newRow("the same width") << int(Width) << "1920" << 1920.0 << "";
        QTest::newRow("height") << int(Height) << "600" << 600.0 << resolution;
        QTest::newRow("too small a height") << int(Height) << "8" << 1080.0 << "";
        QTest::newRow("rows") << int(Row) << "12" << 12.0 << "row 12, public";
        QTest::newRow("most rows") << int(Row) << "100" << 100.0 << "row 100, public";
        QTest::newRow("too many rows") << int(Row) << "101" << 9.0 << "";
        QTest::newRow("no rows") << int(Row) << "0" << 9.0 << "";
        QTest::newRow("columns") << int(Col) << "3" << 3.0 << "col 3, public";
        QTest::newRow("no columns") << int(Col) << "0" << 16.0 << "";
        QTest::newRow("border width") << int(BorderWidth) << "20" << 20.0 << "public";
        QTest::newRow("no border width") << int(BorderWidth) << "0" << 6.0 << "";
        QTest::newRow("too bright") << int(Brightness) << "101" << 100.0 << "";
        QTest::newRow("no number") << int(Brightness) << "abc" << 100.0 << "";
    }

    void typing()
    {
        QFETCH(int, which);
        QFETCH(QString, typed);
        QFETCH(double, value);
        QFETCH(QString, heard);
        PublicDesk d;
        QVERIFY(d.show());
        d.type(which, qPrintable(typed));
        QCOMPARE(d.entry(which)->value(), value);
        QCOMPARE(d.heard, words(qPrintable(heard)));
    }

    void theBorderPainterFollowsItsWidth()
    {
        PublicDesk d;
        QVERIFY(d.show());
        bool shownFirst = false;
        connect(d.panel, &PublicSettingBox::publicSignal, this, [&] {
            shownFirst = imageDifference(layerImage(d.border), borderImage(20, Qt::white)).isEmpty();
        });
        d.type(BorderWidth, "20");
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(20, Qt::white));
        QVERIFY(shownFirst);
    }

    void aCabinetCountReachesTheBorderPainter_data()
    {
        QTest::addColumn<int>("which");
        QTest::newRow("rows") << int(Row);
        QTest::newRow("columns") << int(Col);
    }

    void aCabinetCountReachesTheBorderPainter()
    {
        QFETCH(int, which);
        PublicDesk d;
        d.border.grab();
        const qint64 picture = d.border.pixmap(Qt::ReturnByValue).cacheKey();
        d.entry(which)->setValue(33);
        const qint64 rendered = d.border.pixmap(Qt::ReturnByValue).cacheKey();
        QVERIFY(rendered != picture);
        which == Row ? d.border.setRows(33) : d.border.setColumns(33);
        QCOMPARE(d.border.pixmap(Qt::ReturnByValue).cacheKey(), rendered);
    }

    void resettingTheBrightness_data()
    {
        QTest::addColumn<int>("percent");
        QTest::newRow("from dark") << 0;
        QTest::newRow("from half") << 50;
        QTest::newRow("from full") << 100;
    }

    void resettingTheBrightness()
    {
        QFETCH(int, percent);
        PublicDesk d;
        QVERIFY(d.show());
        d.veil.setBrightness(20);
        d.panel->setBrightnessValue(percent);
        d.click(d.reset());
        QCOMPARE(d.slider()->value(), 100);
        QCOMPARE(d.entry(Brightness)->value(), 100.0);
        QCOMPARE(d.veilAlpha(), 0);
        QVERIFY(d.heard.contains(QStringLiteral("public")));
        QCOMPARE(d.heard.count(QStringLiteral("public")), d.heard.size());
    }

    void switchingTheBorderOffAndOn_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("a color") << QColor(12, 34, 56);
        QTest::newRow("translucent") << QColor(201, 99, 33, 45);
        QTest::newRow("invisible") << QColor(201, 99, 33, 0);
        QTest::newRow("the grey of the disabled swatch") << disabledBorderSwatch().pixelColor(20, 10);
    }

    void switchingTheBorderOffAndOn()
    {
        QFETCH(QColor, color);
        PublicDesk d;
        QVERIFY(d.show());
        d.panel->setOutLineColor(color);
        d.heard.clear();

        d.clickSwitch();
        QVERIFY(!d.borderSwitch()->isChecked());
        QCOMPARE(d.takeHeard(), publicOnce);
        QCOMPARE(d.color()->iconSize(), QSize(40, 20));
        VD_COMPARE_IMAGES(d.color()->icon().pixmap(40, 20).toImage(), disabledBorderSwatch());
        QVERIFY(!d.entry(BorderWidth)->isEnabled());
        QVERIFY(!d.color()->isEnabled());
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(6, color, false));
        QVERIFY(!d.panel->getData().showOutBorder);
        QVERIFY(d.panel->getData().outBorderColor == toRgbaColor(color));

        d.clickSwitch();
        QCOMPARE(d.takeHeard(), publicOnce);
        QCOMPARE(d.color()->iconSize(), QSize(16, 16));
        VD_COMPARE_IMAGES(d.colorIcon(), borderSwatch(color));
        QVERIFY(d.entry(BorderWidth)->isEnabled());
        QVERIFY(d.color()->isEnabled());
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(6, color));
        QVERIFY(d.panel->getData().outBorderColor == toRgbaColor(color));
    }

    void theDisabledSwatchIsGrey()
    {
        PublicDesk d;
        d.borderSwitch()->click();
        const QImage icon = d.color()->icon().pixmap(40, 20).toImage();
        QCOMPARE(icon.size(), QSize(40, 20));
        QCOMPARE(icon.pixelColor(0, 0), QColor(0x33, 0x33, 0x37));
        QCOMPARE(icon.pixelColor(39, 0), QColor(0x33, 0x33, 0x37));
    }

    void theColorButtonAsks()
    {
        PublicDesk d;
        QVERIFY(d.show());
        QVector<QPushButton*> requested;
        connect(d.panel, &SettingPanel::colorRequested, this,
                [&](QPushButton* button) { requested.append(button); });
        d.click(d.color());
        QCOMPARE(d.heard, words("outLineColorButton"));
        QCOMPARE(requested, QVector<QPushButton*>{d.color()});
    }

    void theColorButtonCanBeSpiedOn()
    {
        PublicDesk d;
        const QSignalSpy asked(d.panel, &PublicSettingBox::colorBtnSignal);
        d.color()->click();
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.at(0).at(0).value<QPushButton*>(), d.color());
    }

    void everyChangeReachesTheShell()
    {
        PublicDesk d;
        QSignalSpy changed(d.panel, &SettingPanel::changed);
        d.entry(Row)->setValue(3);
        QCOMPARE(changed.count(), 1);
    }

    void pickedColors_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("opaque") << QColor(1, 2, 3);
        QTest::newRow("translucent") << QColor(250, 120, 10, 77);
        QTest::newRow("invisible") << QColor(250, 120, 10, 0);
    }

    void pickedColors()
    {
        QFETCH(QColor, color);
        PublicDesk d;
        d.panel->setOutLineColor(color);
        QCOMPARE(d.heard, publicOnce);
        VD_COMPARE_IMAGES(d.colorIcon(), borderSwatch(color));
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(6, color));
        QVERIFY(d.panel->getData().outBorderColor == toRgbaColor(color));
    }

    void aCancelledPickerRestoresTheColor_data() { pickedColors_data(); }

    void aCancelledPickerRestoresTheColor()
    {
        QFETCH(QColor, color);
        PublicDesk d;
        QVERIFY(d.show());
        d.panel->setOutLineColor(color);
        d.click(d.color());
        d.panel->setOutLineColor(Qt::black);
        d.panel->setOutLineColor(Qt::red);
        d.heard.clear();
        d.panel->restoreOutLineColor();
        QCOMPARE(d.heard, publicOnce);
        VD_COMPARE_IMAGES(d.colorIcon(), borderSwatch(color));
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(6, color));
    }

    void roundTrip_data()
    {
        QTest::addColumn<PublicChartData>("data");
        QTest::addColumn<PublicChartData>("shown");
        const auto row = [](const char* name, const PublicChartData& data) {
            QTest::newRow(name) << data << data;
        };
        PublicChartData data;
        row("default", data);
        data = otherData();
        row("everything different, no border", data);
        data.showOutBorder = true;
        row("everything different", data);
        data.outBorderColor = {250, 120, 10, 77};
        row("translucent border", data);
        data.outBorderColor = {250, 120, 10, 0};
        row("invisible border", data);
        data.showOutBorder = false;
        row("no border, of an invisible color", data);
        data.outBorderColor = toRgbaColor(disabledBorderSwatch().pixelColor(20, 10));
        row("no border, of the color of the disabled swatch", data);
        data.outBorderColor = {255, 255, 255, 255};
        row("no border, of the first color", data);

        PublicChartData smallest{0, 16, 16, 1, 1, true, 1, {0, 0, 0, 0}};
        PublicChartData largest{100, 4320, 4320, 100, 100, true, 100, {255, 255, 255, 255}};
        row("smallest values", smallest);
        row("largest values", largest);
        QTest::newRow("below the ranges")
            << PublicChartData{-1, 15, 0, 0, -7, true, 0, {-1, -255, -256, -5}} << smallest;
        QTest::newRow("above the ranges")
            << PublicChartData{101, 4321, 99999, 101, 70000, true, 101, {256, 300, 1 << 20, 257}} << largest;
    }

    void roundTrip()
    {
        QFETCH(PublicChartData, data);
        QFETCH(PublicChartData, shown);
        PublicDesk fresh;
        fresh.panel->setData(data);
        QVERIFY(fresh.panel->getData() == shown);

        PublicDesk used;
        used.panel->setData(otherData());
        used.panel->setData(data);
        QVERIFY(used.panel->getData() == shown);
        QCOMPARE(used.slider()->value(), shown.brightness);
        QCOMPARE(used.panel->resolutionWidth(), shown.resolutionWidth);
        QCOMPARE(used.panel->resolutionHeight(), shown.resolutionHeight);
        QCOMPARE(used.entry(BorderWidth)->isEnabled(), shown.showOutBorder);
        QCOMPARE(used.color()->isEnabled(), shown.showOutBorder);
        QCOMPARE(used.veilAlpha(), 255 - shown.brightness * 255 / 100);
        VD_COMPARE_IMAGES(
            layerImage(used.border),
            borderImage(shown.outBorderWidth, toQColor(shown.outBorderColor), shown.showOutBorder));
        used.borderSwitch()->setChecked(true);
        VD_COMPARE_IMAGES(used.colorIcon(), borderSwatch(toQColor(shown.outBorderColor)));
        VD_COMPARE_IMAGES(layerImage(used.border),
                          borderImage(shown.outBorderWidth, toQColor(shown.outBorderColor)));
    }

    void onlyADifferenceIsAnnounced_data()
    {
        QTest::addColumn<PublicChartData>("data");
        QTest::addColumn<QString>("heard");
        PublicChartData shown = otherData();
        shown.showOutBorder = true;
        QTest::newRow("the same record") << shown << "";
        PublicChartData data = shown;
        data.brightness = 41;
        QTest::newRow("brightness") << data << "public";
        data = shown;
        data.resolutionHeight = 601;
        QTest::newRow("height") << data << "resolution, finished, public";
        data = shown;
        data.resolutionWidth = 801;
        QTest::newRow("width") << data << "resolution, finished, public";
        data = shown;
        data.boxRow = 6;
        QTest::newRow("rows") << data << "row 6, public, row 6, public";
        data = shown;
        data.boxCol = 8;
        QTest::newRow("columns") << data << "col 8, public, col 8, public";
        data = shown;
        data.outBorderWidth = 12;
        QTest::newRow("border width") << data << "public";
        data = shown;
        data.outBorderColor.alpha = 254;
        QTest::newRow("color, alpha only") << data << "public";
        data = {60, 700, 500, 3, 4, true, 9, {9, 9, 9, 9}};
        QTest::newRow("all in their order")
            << data
            << "public, resolution, finished, public, resolution, finished, public, row 3, public, row 3, "
               "public, col 4, public, col 4, public, public, public";
    }

    void onlyADifferenceIsAnnounced()
    {
        QFETCH(PublicChartData, data);
        QFETCH(QString, heard);
        PublicDesk d;
        PublicChartData shown = otherData();
        shown.showOutBorder = true;
        d.panel->setData(shown);
        d.heard.clear();
        d.panel->setData(data);
        QCOMPARE(d.heard, words(qPrintable(heard)));
    }

    void aRecordDimsTheChartWhileTheSliderIsDragged()
    {
        PublicDesk d;
        d.slider()->setSliderDown(true);
        d.panel->setData(otherData());
        QCOMPARE(d.veilAlpha(), 255 - 40 * 255 / 100);
    }

    void aRecordSwitchesTheBorder()
    {
        PublicDesk d;
        PublicChartData data = d.panel->getData();
        for (const bool on : {false, true}) {
            data.showOutBorder = on;
            d.panel->setData(data);
            QVERIFY(!d.heard.isEmpty());
            QCOMPARE(d.heard.count(QStringLiteral("public")), d.heard.size());
            d.heard.clear();
            d.panel->setData(data);
            QCOMPARE(d.heard, silence);
            VD_COMPARE_IMAGES(layerImage(d.border), borderImage(6, Qt::white, on));
        }
    }

    void theHeightIsPushedBeforeTheWidth()
    {
        PublicDesk d;
        QStringList sizes;
        connect(d.panel, &PublicSettingBox::resolutionSignal, this, [&] {
            sizes.append(
                QStringLiteral("%1x%2").arg(d.panel->resolutionWidth()).arg(d.panel->resolutionHeight()));
        });
        d.panel->setData(otherData());
        QCOMPARE(sizes, words("1920x600, 800x600"));
    }

    void theRecordCarriesTheGroup()
    {
        PublicDesk d;
        TestChartToolsData record;
        record.publicData = otherData();
        d.panel->pushFrom(record);
        TestChartToolsData collected;
        d.panel->collectInto(collected);
        QVERIFY(collected == record);
    }

    void theLastBrightnessOfARecordIsKept()
    {
        PublicDesk d;
        d.panel->setData(otherData());
        QCOMPARE(d.entry(Brightness)->property("lastValue").toDouble(), 40.0);
        d.entry(Brightness)->setValue(70);
        QCOMPARE(d.entry(Brightness)->property("lastValue").toDouble(), 40.0);
        d.panel->setBrightnessValue(55);
        QCOMPARE(d.entry(Brightness)->property("lastValue").toDouble(), 55.0);
    }

    void settingTheBrightnessQuietly_data()
    {
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("shown");
        QTest::newRow("half") << 50 << 50;
        QTest::newRow("dark") << 0 << 0;
        QTest::newRow("what is shown already") << 100 << 100;
        QTest::newRow("too bright") << 150 << 100;
        QTest::newRow("too dark") << -3 << 0;
    }

    void settingTheBrightnessQuietly()
    {
        QFETCH(int, percent);
        QFETCH(int, shown);
        PublicDesk d;
        d.veil.setBrightness(20);
        QSignalSpy sliderChanged(d.slider(), &QSlider::valueChanged);
        QSignalSpy entryChanged(d.entry(Brightness), &SpinEditBox::valueChanged);
        d.panel->setBrightnessValue(percent);
        QCOMPARE(d.slider()->value(), shown);
        QCOMPARE(d.entry(Brightness)->value(), double(shown));
        QCOMPARE(d.entry(Brightness)->property("lastValue").toDouble(), double(shown));
        QCOMPARE(d.heard, silence);
        QCOMPARE(sliderChanged.count() + entryChanged.count(), 0);
        QCOMPARE(d.veilAlpha(), 255 - 51);

        d.entry(Brightness)->setValue(33);
        QCOMPARE(d.heard, publicOnce);
    }

    void resolutionsAreNeverBelow16_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("resolution");
        QTest::newRow("below") << 15.9 << 16;
        QTest::newRow("none") << 0.0 << 16;
        QTest::newRow("just") << 16.0 << 16;
        QTest::newRow("cut, not rounded") << 1279.9 << 1279;
    }

    /// The entries do not accept less than 16, so their ranges are widened here.
    void resolutionsAreNeverBelow16()
    {
        QFETCH(double, value);
        QFETCH(int, resolution);
        PublicDesk d;
        for (const Entry which : {Width, Height}) {
            d.entry(which)->setMinimum(0);
            d.entry(which)->setValue(value);
        }
        QCOMPARE(d.panel->resolutionWidth(), resolution);
        QCOMPARE(d.panel->resolutionHeight(), resolution);
        QCOMPARE(d.panel->getData().resolutionWidth, resolution);
        QCOMPARE(d.panel->getData().resolutionHeight, resolution);
    }

    void lock_data()
    {
        QTest::addColumn<bool>("borderOn");
        QTest::newRow("border on") << true;
        QTest::newRow("border off") << false;
    }

    void lock()
    {
        QFETCH(bool, borderOn);
        PublicDesk d;
        d.borderSwitch()->setChecked(borderOn);
        d.heard.clear();
        const QVector<QWidget*> always{d.slider(),      d.entry(Brightness), d.reset(),    d.entry(Width),
                                       d.entry(Height), d.entry(Row),        d.entry(Col), d.borderSwitch()};
        const QVector<QWidget*> withBorder{d.entry(BorderWidth), d.color()};
        for (int round = 0; round < 2; ++round) {
            d.panel->setControlsDisabled(true);
            for (const QWidget* control : always + withBorder)
                QVERIFY2(!control->isEnabled(), control->metaObject()->className());
            d.panel->setControlsDisabled(false);
            for (const QWidget* control : always)
                QVERIFY2(control->isEnabled(), control->metaObject()->className());
            for (const QWidget* control : withBorder)
                QCOMPARE(control->isEnabled(), borderOn);
        }
        QCOMPARE(d.heard, silence);
    }

    void aSwitchedBorderStaysUnderTheLock()
    {
        PublicDesk d;
        d.borderSwitch()->setChecked(false);
        d.panel->setControlsDisabled(true);
        d.panel->setData(PublicChartData());
        QVERIFY(d.borderSwitch()->isChecked());
        QVERIFY(!d.entry(BorderWidth)->isEnabled());
        QVERIFY(!d.color()->isEnabled());
        d.panel->setControlsDisabled(false);
        QVERIFY(d.entry(BorderWidth)->isEnabled());
        QVERIFY(d.color()->isEnabled());
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
        PublicDesk d;
        QVERIFY(d.show());
        QWidget* const before = disable ? static_cast<QWidget*>(d.entry(Row)) : d.panel->parentWidget();
        d.panel->setControlsDisabled(!disable);
        before->setFocus();
        QVERIFY(before->hasFocus());
        d.panel->setControlsDisabled(disable);
        QVERIFY(d.panel->hasFocus());
    }

    void retranslating_data()
    {
        QTest::addColumn<QString>("source");
        for (const char* text :
             {"Brightness", "Resolution", "Box RowColNum", "OutBorder", "BorderWidth", "Color"})
            QTest::newRow(text) << text;
    }

    void retranslating()
    {
        QFETCH(QString, source);
        PublicDesk d;
        QVERIFY(d.show());
        QLabel* const caption = d.caption(source);
        QVERIFY(caption);
        const QString text = source + QStringLiteral(" oder sonst ein Name, der nicht passt");
        QVERIFY(speak({{source, text}}));
        d.panel->retranslate();
        QCOMPARE(caption->toolTip(), text);
        QVERIFY(caption->text().endsWith(QChar(0x2026)));
        QCOMPARE(caption->text(), caption->fontMetrics().elidedText(text, Qt::ElideRight, caption->width()));
        QVERIFY(speak({{source, QStringLiteral("Kurz")}}));
        d.panel->retranslate();
        QCOMPARE(caption->text(), QStringLiteral("Kurz"));
        QCOMPARE(caption->toolTip(), QString());
        QCOMPARE(d.heard, silence);
    }

    void noPainterIsIgnored()
    {
        PublicDesk d;
        d.panel->setPaintPublicWidget(nullptr);
        d.panel->setPaintPublicBrightWidget(nullptr);
        d.panel->setData(otherData());
        d.borderSwitch()->setChecked(true);
        QCOMPARE(d.veilAlpha(), 255 - 102);
        VD_COMPARE_IMAGES(layerImage(d.border), borderImage(11, QColor(10, 20, 30)));
    }

    void otherPaintersTakeOver()
    {
        PublicDesk d;
        PaintPublicWidget border;
        PaintPublicBrightWidget veil;
        border.resize(borderLayerSize);
        veil.resize(borderLayerSize);
        d.panel->setPaintPublicWidget(&border);
        d.panel->setPaintPublicBrightWidget(&veil);
        d.entry(BorderWidth)->setValue(30);
        d.entry(Brightness)->setValue(50);
        VD_COMPARE_IMAGES(layerImage(border), borderImage(30, Qt::white));
        QCOMPARE(layerImage(veil).pixelColor(1, 1).alpha(), 128);
        QVERIFY(layerImage(d.border).isNull());
        QVERIFY(layerImage(d.veil).isNull());
    }

    void worksWithoutPainters_data()
    {
        QTest::addColumn<bool>("hadThem");
        QTest::newRow("never given any") << false;
        QTest::newRow("they have been deleted") << true;
    }

    void worksWithoutPainters()
    {
        QFETCH(bool, hadThem);
        PublicSettingBox panel;
        if (hadThem) {
            PaintPublicWidget border;
            PaintPublicBrightWidget veil;
            panel.setPaintPublicWidget(&border);
            panel.setPaintPublicBrightWidget(&veil);
        }
        panel.setData(otherData());
        panel.setOutLineColor(Qt::red);
        PublicChartData expected = otherData();
        expected.outBorderColor = {255, 0, 0, 255};
        QVERIFY(panel.getData() == expected);
    }
};

VD_TEST_MAIN(TestPublicSettingBox)
#include "tst_publicsettingbox.moc"
