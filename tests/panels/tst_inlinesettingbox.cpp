#include "findink.h"
#include "inlinesettingbox.h"
#include "language.h"
#include "layerprotocol.h"
#include "paintinlinewidget.h"
#include "testcase.h"
#include "testcharttoolsdata.h"

#include <combobox.h>
#include <spineditbox.h>

#include <QFocusEvent>
#include <QFrame>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

using namespace vardeno::testcharttools;

using Change = std::function<void(PaintInLineWidget& layer)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(vardeno::testcharttools::InLineChartData)

namespace {

const QSize chart(320, 180);
const QColor green(0x00, 0xff, 0x00);

/// The layer as a fresh painter draws it after `change`.
QImage drawnAfter(const Change& change)
{
    PaintInLineWidget layer;
    change(layer);
    return pictureAt(chart, layer);
}

/// The colour that a colour button shows.
QColor shownColor(const QPushButton* button)
{
    const QImage image = button->icon().pixmap(button->iconSize()).toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

QImage disabledSwatch()
{
    QPixmap pixmap(40, 20);
    pixmap.fill(QColor(0x33, 0x33, 0x37));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::transparent);
    painter.setPen(QColor(0x63, 0x64, 0x74));
    painter.drawRect(1, 1, 38, 18);
    painter.drawPixmap(0, 0, QPixmap(QStringLiteral(":/resources/images/disable.png")));
    painter.end();
    return pixmap.toImage();
}

QString swatchDifference(const QPushButton* button, const QImage& expected)
{
    if (button->iconSize() != expected.size())
        return QStringLiteral("icon of another size");
    return imageDifference(button->icon().pixmap(button->iconSize()).toImage(), expected);
}

/// Types a number over the one that the entry shows, and presses Enter.
void type(SpinEditBox* entry, const char* text)
{
    entry->setFocus();
    entry->selectAll();
    QTest::keyClicks(entry, QString::fromLatin1(text));
    QTest::keyClick(entry, Qt::Key_Return);
}

void click(QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton);
}

} // namespace

/// The panel in a shown window, with its painter and its controls from top to bottom.
struct ShownPanel
{
    explicit ShownPanel(bool withPainter = true)
    {
        layer.resize(chart);
        layer.grab();
        if (withPainter)
            panel.setPaintWidget(&layer);
        window.setFocusPolicy(Qt::StrongFocus);
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&panel);
        window.show();
        window.activateWindow();
    }

    QList<SpinEditBox*> entries() const { return panel.findChildren<SpinEditBox*>(); }
    SpinEditBox* radius() const { return entries().at(0); }
    SpinEditBox* circleWidth() const { return entries().at(1); }
    SpinEditBox* diagonalWidth() const { return entries().at(2); }
    SpinEditBox* serialSize() const { return entries().at(3); }

    QList<QPushButton*> switches() const
    {
        QList<QPushButton*> buttons;
        for (QPushButton* button : panel.findChildren<QPushButton*>()) {
            if (button->isCheckable())
                buttons << button;
        }
        return buttons;
    }
    QPushButton* circleSwitch() const { return switches().at(0); }
    QPushButton* diagonalSwitch() const { return switches().at(1); }
    QPushButton* serialSwitch() const { return switches().at(2); }

    QPushButton* color(const char* name) const { return panel.findChild<QPushButton*>(QLatin1String(name)); }
    QPushButton* circleColor() const { return color("circleColorButton"); }
    QPushButton* diagonalColor() const { return color("diagonalColorButton"); }
    QPushButton* serialColor() const { return color("sequeColorBtn"); }

    QList<QRadioButton*> modes() const { return panel.findChildren<QRadioButton*>(); }
    ComboBox* position() const { return panel.findChildren<ComboBox*>().at(0); }
    ComboBox* sort() const { return panel.findChildren<ComboBox*>().at(1); }

    QList<QWidget*> circleControls() const { return {radius(), circleWidth(), circleColor()}; }
    QList<QWidget*> diagonalControls() const { return {diagonalWidth(), diagonalColor()}; }
    QList<QWidget*> serialControls() const { return {serialSize(), serialColor()}; }
    QList<QWidget*> otherControls() const
    {
        return {circleSwitch(), diagonalSwitch(), serialSwitch(), modes().at(0),
                modes().at(1),  modes().at(2),    position(),     sort()};
    }

    QWidget window;
    InLineSettingBox panel;
    PaintInLineWidget layer;
    QSignalSpy changes{&panel, &InLineSettingBox::inlineSignal};
};

namespace {

int enabledCount(const QList<QWidget*>& controls)
{
    return int(
        std::count_if(controls.begin(), controls.end(), [](QWidget* each) { return each->isEnabled(); }));
}

/// A text at least `least` and at most `most` pixels wide.
QString textOfWidth(const QFontMetrics& metrics, int least, int most)
{
    for (int wide = 0; wide < 24; ++wide) {
        for (int narrow = 0; narrow < 30; ++narrow) {
            QString text = QString(wide, QLatin1Char('m')) + QString(narrow, QLatin1Char('i'));
            const int bounds = metrics.boundingRect(text).width();
            const int advance = metrics.horizontalAdvance(text);
            if (qMin(bounds, advance) >= least && qMax(bounds, advance) <= most)
                return text;
        }
    }
    return {};
}

/// The caption label left of the control, in its row.
QLabel* captionOf(const ShownPanel& shown, QWidget* control)
{
    QLabel* nearest = nullptr;
    for (QLabel* label : shown.panel.findChildren<QLabel*>()) {
        const bool sameRow = qAbs(label->geometry().center().y() - control->geometry().center().y()) <= 3;
        if (sameRow && label->x() < control->x() && (!nearest || label->x() > nearest->x()))
            nearest = label;
    }
    return nearest;
}

} // namespace

class TestInLineSettingBox : public TestCase
{
    Q_OBJECT

private:
    using Edit = std::function<void(InLineChartData&)>;

    /// A row of `records`: what is pushed, and how what is shown then differs from it.
    static void row(const char* name, const Edit& push, const Edit& show)
    {
        InLineChartData pushed;
        push(pushed);
        InLineChartData expected = pushed;
        show(expected);
        QTest::newRow(name) << pushed << expected;
    }

    static void same(InLineChartData&) {}

    static void recordsWithinTheRanges()
    {
        row("default", same, same);
        row(
            "all different",
            [](InLineChartData& data) {
                data.circleSize = 60;
                data.circleWidth = 3;
                data.circleColor = {1, 2, 3, 255};
                data.diagonalWidth = 4;
                data.diagonalColor = {200, 100, 50, 128};
                data.serialSize = 9;
                data.serialColor = {255, 255, 255, 3};
                data.letterMode = false;
                data.numMode = true;
                data.serialPosition = 2;
                data.serialSort = 3;
            },
            same);
        row(
            "combination",
            [](InLineChartData& data) {
                data.letterMode = false;
                data.combinationMode = true;
                data.serialPosition = 1;
                data.serialSort = 1;
            },
            same);
        row(
            "groups off, with colours of their own",
            [](InLineChartData& data) {
                data.showCircle = false;
                data.circleColor = {255, 0, 0, 255};
                data.circleSize = 100;
                data.showDiagonal = false;
                data.diagonalColor = {0, 0, 255, 40};
                data.diagonalWidth = 7;
                data.showSerialNumber = false;
                data.serialColor = {250, 250, 0, 255};
                data.serialSize = 8;
            },
            same);
    }

    static void recordsOutOfTheRanges()
    {
        row(
            "below the ranges",
            [](InLineChartData& data) {
                data.circleSize = 0;
                data.circleWidth = -1;
                data.diagonalWidth = 0;
                data.serialSize = -100;
                data.serialPosition = -1;
                data.serialSort = -5;
                data.circleColor = {-1, 0, 0, 255};
            },
            [](InLineChartData& data) {
                data.circleSize = data.circleWidth = data.diagonalWidth = data.serialSize = 1;
                data.serialPosition = data.serialSort = 0;
                data.circleColor.red = 0;
            });
        row(
            "beyond the ranges",
            [](InLineChartData& data) {
                data.circleSize = 65537;
                data.circleWidth = 101;
                data.diagonalWidth = 1000000;
                data.serialSize = 101;
                data.serialPosition = 3;
                data.serialSort = 4;
                data.circleColor = {0, 256, 0, 1000};
            },
            [](InLineChartData& data) {
                data.circleSize = 16384;
                data.circleWidth = data.diagonalWidth = data.serialSize = 100;
                data.serialPosition = 2;
                data.serialSort = 3;
                data.circleColor = {0, 255, 0, 255};
            });
    }

    static void recordsOfModes()
    {
        row(
            "no mode, the checked one stays", [](InLineChartData& data) { data.letterMode = false; },
            [](InLineChartData& data) { data.letterMode = true; });
        row(
            "every mode, the last one wins",
            [](InLineChartData& data) { data.numMode = data.combinationMode = true; },
            [](InLineChartData& data) { data.letterMode = data.numMode = false; });
    }

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void frame()
    {
        ShownPanel shown;
        QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
        QCOMPARE(shown.panel.objectName(), QStringLiteral("inlinesettingbox"));
        QCOMPARE(shown.panel.windowTitle(), QStringLiteral("Widget"));
        QVERIFY(shown.panel.testAttribute(Qt::WA_StyledBackground));
        QCOMPARE(
            shown.panel.styleSheet(),
            QStringLiteral("QWidget#inlinesettingbox{border-left : 1px solid #535465; border-right : 1px "
                           "solid #535465;}"));
        QCOMPARE(shown.panel.width(), 410);
        shown.window.resize(900, 600);
        QCOMPARE(shown.panel.width(), 410);
        const QImage image = shown.panel.grab().toImage();
        QCOMPARE(image.pixelColor(0, 200), QColor(0x53, 0x54, 0x65));
        QCOMPARE(image.pixelColor(409, 200), QColor(0x53, 0x54, 0x65));

        auto* line = shown.panel.findChild<QFrame*>(QStringLiteral("inlineLine"));
        QVERIFY(line);
        QCOMPARE(line->size(), QSize(360, 1));
        for (const QWidget* control :
             shown.panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            QVERIFY(control == line || control->geometry().bottom() < line->y());
            QVERIFY(shown.panel.rect().contains(control->geometry()));
        }
    }

    void entries_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("value");
        QTest::newRow("radius") << 0 << QStringLiteral("Circle") << 16384.0 << 540.0;
        QTest::newRow("circle width") << 1 << QStringLiteral("BorderWidth") << 100.0 << 2.0;
        QTest::newRow("diagonal width") << 2 << QStringLiteral("BorderWidth") << 100.0 << 10.0;
        QTest::newRow("serial size") << 3 << QStringLiteral("Serial Size") << 100.0 << 15.0;
    }

    void entries()
    {
        QFETCH(int, index);
        QFETCH(QString, caption);
        QFETCH(double, maximum);
        QFETCH(double, value);
        const ShownPanel shown;
        QCOMPARE(shown.entries().size(), 4);
        SpinEditBox* entry = shown.entries().at(index);
        QCOMPARE(entry->size(), QSize(110, 24));
        QCOMPARE(entry->minimum(), 1.0);
        QCOMPARE(entry->maximum(), maximum);
        QCOMPARE(entry->value(), value);
        QCOMPARE(entry->suffix(), QStringLiteral("px"));
        QCOMPARE(captionOf(shown, entry)->size(), QSize(80, 24));
        const QLabel* label = captionOf(shown, entry);
        QCOMPARE(label->toolTip().isEmpty() ? label->text() : label->toolTip(), caption);
    }

    void switches_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("caption");
        QTest::newRow("circle") << 0 << QStringLiteral("Show Circle");
        QTest::newRow("diagonal") << 1 << QStringLiteral("Show Diagonal");
        QTest::newRow("serial") << 2 << QStringLiteral("Show Serial Number");
    }

    void switches()
    {
        QFETCH(int, index);
        QFETCH(QString, caption);
        const ShownPanel shown;
        QCOMPARE(shown.switches().size(), 3);
        QPushButton* button = shown.switches().at(index);
        QCOMPARE(button->size(), QSize(28, 14));
        QCOMPARE(button->property("switchStyle").toString(), QStringLiteral("general"));
        QVERIFY(button->isCheckable());
        QVERIFY(button->isChecked());
        const QLabel* label = captionOf(shown, button);
        QCOMPARE(label->size(), QSize(80, 24));
        QCOMPARE(label->toolTip().isEmpty() ? label->text() : label->toolTip(), caption);
    }

    void colorButtons_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QVariant>("role");
        QTest::addColumn<QColor>("color");
        QTest::newRow("circle, whose role follows from its name")
            << QByteArray("circleColorButton") << QVariant() << green;
        QTest::newRow("diagonal") << QByteArray("diagonalColorButton") << QVariant(QStringLiteral("diagonal"))
                                  << green;
        QTest::newRow("serial") << QByteArray("sequeColorBtn") << QVariant(QStringLiteral("seque"))
                                << QColor(Qt::black);
    }

    void colorButtons()
    {
        QFETCH(QByteArray, name);
        QFETCH(QVariant, role);
        QFETCH(QColor, color);
        const ShownPanel shown;
        QPushButton* button = shown.color(name.constData());
        QVERIFY(button);
        QCOMPARE(button->size(), QSize(16, 16));
        QCOMPARE(button->property("btnProperty"), role);
        QCOMPARE(shownColor(button), color);
        QCOMPARE(captionOf(shown, button)->text(), QStringLiteral("Color"));
    }

    void modesAndLists()
    {
        const ShownPanel shown;
        QCOMPARE(shown.modes().size(), 3);
        QStringList texts;
        for (const QRadioButton* mode : shown.modes()) {
            QCOMPARE(mode->size(), QSize(95, 24));
            texts << (mode->toolTip().isEmpty() ? mode->text() : mode->toolTip());
        }
        QCOMPARE(texts, QStringList({QStringLiteral("Letter Mode"), QStringLiteral("Num Mode"),
                                     QStringLiteral("Combination Mode")}));
        QVERIFY(shown.modes().at(0)->isChecked());
        QCOMPARE(captionOf(shown, shown.modes().at(0))->text(), QStringLiteral("Show Model"));

        const QStringList positions{QStringLiteral("Center"), QStringLiteral("Left Up Right Down"),
                                    QStringLiteral("Left Down Right Up")};
        const QStringList sorts{QStringLiteral("From up to down increase Frome left to right increase"),
                                QStringLiteral("from up to down increase frome left to right decrease"),
                                QStringLiteral("from down to up increase frome left to right increase"),
                                QStringLiteral("from down to up increase frome left to right decrease")};
        for (const auto& [combo, items] :
             {std::pair(shown.position(), positions), std::pair(shown.sort(), sorts)}) {
            QCOMPARE(combo->size(), QSize(200, 24));
            QCOMPARE(combo->currentIndex(), 0);
            QCOMPARE(combo->count(), items.size());
            for (int i = 0; i < items.size(); ++i) {
                QCOMPARE(combo->itemText(i), items.at(i));
                QCOMPARE(combo->itemData(i), QVariant(i));
            }
        }
        QCOMPARE(captionOf(shown, shown.sort())->text(), QStringLiteral("Sort by"));
    }

    void groupsStandBelowEachOther()
    {
        const ShownPanel shown;
        const QList<QWidget*> order{
            shown.circleSwitch(),  shown.radius(),       shown.circleWidth(), shown.diagonalSwitch(),
            shown.diagonalWidth(), shown.serialSwitch(), shown.serialSize(),  shown.modes().at(0),
            shown.position(),      shown.sort()};
        for (int i = 1; i < order.size(); ++i)
            QVERIFY(order.at(i - 1)->geometry().bottom() < order.at(i)->y());
    }

    /// The panel does not tell the painter what its controls start with.
    void painterKeepsItsOwnDefaults()
    {
        ShownPanel shown;
        const QImage own = drawnAfter([](PaintInLineWidget&) {});
        shown.panel.initPaintWidget();
        VD_COMPARE_IMAGES(layerImage(shown.layer), own);
        QCOMPARE(shown.radius()->value(), 540.0);
        shown.layer.resize(2000, 2000);
        shown.layer.grab();
        QCOMPARE(int(shown.layer.effectiveDiameter()), 1070);
    }

    void recordTouchesOnlyWhatDiffers()
    {
        ShownPanel shown;
        shown.panel.initPaintWidget();
        shown.changes.clear();
        InLineChartData data;
        shown.panel.getData(data);
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        shown.panel.setData(data);
        QCOMPARE(shown.changes.count(), 0);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);

        data.circleWidth = 3;
        shown.panel.setData(data);
        QCOMPARE(shown.changes.count(), 1);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleLineWidth(3); }));
    }

    void defaultRecordLeavesRadiusAndWidthsToThePainter()
    {
        ShownPanel shown;
        shown.panel.setData(InLineChartData());
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget& layer) {
                              layer.setSerialSize(20);
                              layer.setSerialColor(QColor(0, 0, 100));
                          }));
        shown.layer.resize(2000, 2000);
        shown.layer.grab();
        QCOMPARE(int(shown.layer.effectiveDiameter()), 1070);
    }

    void typedValues_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("signalCount");
        QTest::addColumn<Change>("change");
        const auto row = [](const char* name, int entry, const char* typed, double value, int signalCount,
                            const Change& change) {
            QTest::newRow(name) << entry << QByteArray(typed) << value << signalCount << change;
        };
        row("radius", 0, "50", 50, 1, [](PaintInLineWidget& layer) { layer.setCircleRadius(50); });
        row("radius at its least", 0, "16", 16, 1,
            [](PaintInLineWidget& layer) { layer.setCircleRadius(16); });
        row("radius below its least", 0, "10", 16, 2,
            [](PaintInLineWidget& layer) { layer.setCircleRadius(16); });
        row("radius one below its least", 0, "15", 16, 2,
            [](PaintInLineWidget& layer) { layer.setCircleRadius(16); });
        row("radius beyond its range", 0, "16385", 540, 0, [](PaintInLineWidget&) {});
        row("radius that is shown already", 0, "540", 540, 0, [](PaintInLineWidget&) {});
        row("part of a pixel is cut off", 0, "50.9", 50.9, 1,
            [](PaintInLineWidget& layer) { layer.setCircleRadius(50); });
        row("circle width", 1, "9", 9, 1, [](PaintInLineWidget& layer) { layer.setCircleLineWidth(9); });
        row("diagonal width", 2, "30", 30, 1,
            [](PaintInLineWidget& layer) { layer.setDiagonalLineWidth(30); });
        row("diagonal width beyond its range", 2, "101", 10, 0, [](PaintInLineWidget&) {});
        row("serial size", 3, "4", 4, 1, [](PaintInLineWidget& layer) { layer.setSerialSize(4); });
    }

    void typedValues()
    {
        QFETCH(int, entry);
        QFETCH(QByteArray, typed);
        QFETCH(double, value);
        QFETCH(int, signalCount);
        QFETCH(Change, change);
        ShownPanel shown;
        type(shown.entries().at(entry), typed.constData());
        QCOMPARE(shown.entries().at(entry)->value(), value);
        QCOMPARE(shown.changes.count(), signalCount);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter(change));
    }

    void radiusIsRaisedWhenTheFocusLeaves()
    {
        ShownPanel shown;
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        shown.radius()->setFocus();
        shown.radius()->selectAll();
        QTest::keyClicks(shown.radius(), QStringLiteral("3"));
        QCOMPARE(shown.radius()->value(), 540.0);
        shown.circleWidth()->setFocus();
        QCOMPARE(shown.radius()->value(), 16.0);
    }

    void radiusPutIntoTheTextIsRaised()
    {
        ShownPanel shown;
        shown.radius()->findChild<QLineEdit*>()->setText(QStringLiteral("10"));
        QTest::keyClick(shown.radius(), Qt::Key_Return);
        QCOMPARE(shown.radius()->value(), 16.0);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleRadius(16); }));
    }

    void radiusOfOneKeyOrOneRecordIsLeftAlone()
    {
        ShownPanel shown;
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        InLineChartData data;
        shown.panel.getData(data);
        data.circleSize = 17;
        shown.panel.setData(data);
        shown.radius()->setFocus();
        QTest::keyClick(shown.radius(), Qt::Key_Down);
        QTest::keyClick(shown.radius(), Qt::Key_Down);
        QCOMPARE(shown.radius()->value(), 15.0);
        QTest::keyClick(shown.radius(), Qt::Key_Return);
        shown.circleWidth()->setFocus();
        QCOMPARE(shown.radius()->value(), 15.0);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleRadius(15); }));

        data.circleSize = 5;
        shown.panel.setData(data);
        shown.radius()->setFocus();
        shown.circleWidth()->setFocus();
        QCOMPARE(shown.radius()->value(), 5.0);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleRadius(5); }));
    }

    void groupSwitches_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<Change>("off");
        QTest::newRow("circle") << 0
                                << Change([](PaintInLineWidget& layer) { layer.setCircleVisible(false); });
        QTest::newRow("diagonal") << 1 << Change([](PaintInLineWidget& layer) {
            layer.setDiagonalVisible(false);
        });
        QTest::newRow("serial") << 2
                                << Change([](PaintInLineWidget& layer) { layer.setSerialVisible(false); });
    }

    void groupSwitches()
    {
        QFETCH(int, group);
        QFETCH(Change, off);
        ShownPanel shown;
        const QList<QList<QWidget*>> groups{shown.circleControls(), shown.diagonalControls(),
                                            shown.serialControls()};
        const QList<QPushButton*> colors{shown.circleColor(), shown.diagonalColor(), shown.serialColor()};
        QPushButton* color = colors.at(group);
        const QImage on = color->icon().pixmap(color->iconSize()).toImage();
        QCOMPARE(on.size(), QSize(16, 16));

        click(shown.switches().at(group));
        QCOMPARE(shown.changes.count(), 1);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter(off));
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(enabledCount(groups.at(i)), i == group ? 0 : groups.at(i).size());
            QCOMPARE(swatchDifference(colors.at(i), disabledSwatch()).isEmpty(), i == group);
        }
        QCOMPARE(enabledCount(shown.otherControls()), shown.otherControls().size());

        click(shown.switches().at(group));
        QCOMPARE(shown.changes.count(), 2);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget&) {}));
        QCOMPARE(enabledCount(groups.at(group)), groups.at(group).size());
        QCOMPARE(swatchDifference(color, on), QString());
    }

    void switchesAreOperatedByKey()
    {
        ShownPanel shown;
        QTest::keyClick(shown.circleSwitch(), Qt::Key_Space);
        QVERIFY(!shown.circleSwitch()->isChecked());
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleVisible(false); }));
    }

    void groupKeepsItsColour_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<QString>("role");
        QTest::addColumn<QColor>("color");
        const QColor translucent(10, 250, 30, 77);
        QTest::newRow("circle") << 0 << QStringLiteral("circle") << QColor(Qt::red);
        QTest::newRow("diagonal") << 1 << QStringLiteral("diagonal") << QColor(Qt::red);
        QTest::newRow("serial") << 2 << QStringLiteral("seque") << QColor(Qt::red);
        QTest::newRow("circle, translucent") << 0 << QStringLiteral("circle") << translucent;
        QTest::newRow("diagonal, translucent") << 1 << QStringLiteral("diagonal") << translucent;
        QTest::newRow("serial, translucent") << 2 << QStringLiteral("seque") << translucent;
    }

    void groupKeepsItsColour()
    {
        QFETCH(int, group);
        QFETCH(QString, role);
        QFETCH(QColor, color);
        ShownPanel shown;
        shown.panel.setColor(color, role);
        const QImage coloured = layerImage(shown.layer);
        QPushButton* const button =
            QList<QPushButton*>{shown.circleColor(), shown.diagonalColor(), shown.serialColor()}.at(group);
        const QImage swatch = button->icon().pixmap(button->iconSize()).toImage();
        const auto recorded = [&] {
            InLineChartData data;
            shown.panel.getData(data);
            return toQColor(
                QList<RgbaColor>{data.circleColor, data.diagonalColor, data.serialColor}.at(group));
        };
        QCOMPARE(recorded(), color);
        for (int round = 0; round < 2; ++round) {
            click(shown.switches().at(group));
            QCOMPARE(swatchDifference(button, disabledSwatch()), QString());
            QCOMPARE(recorded(), color);
            click(shown.switches().at(group));
            QCOMPARE(swatchDifference(button, swatch), QString());
            QCOMPARE(recorded(), color);
            VD_COMPARE_IMAGES(layerImage(shown.layer), coloured);
        }
    }

    void keeperReadsTheSwatch_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<Change>("change");
        QTest::newRow("circle, whose painter is not told") << 0 << Change([](PaintInLineWidget&) {});
        QTest::newRow("diagonal") << 1 << Change([](PaintInLineWidget& layer) {
            layer.setDiagonalColor(Qt::magenta);
        });
        QTest::newRow("serial") << 2 << Change([](PaintInLineWidget& layer) {
            layer.setSerialColor(Qt::magenta);
        });
    }

    /// What is kept is the middle of the icon that is shown, whoever gave it to the button.
    void keeperReadsTheSwatch()
    {
        QFETCH(int, group);
        QFETCH(Change, change);
        ShownPanel shown;
        QPushButton* const button =
            QList<QPushButton*>{shown.circleColor(), shown.diagonalColor(), shown.serialColor()}.at(group);
        QPixmap swatch(16, 16);
        swatch.fill(Qt::magenta);
        button->setIcon(QIcon(swatch));
        button->setIconSize(swatch.size());
        click(shown.switches().at(group));
        click(shown.switches().at(group));
        QCOMPARE(shownColor(button), QColor(Qt::magenta));
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter(change));
    }

    /// A role is a dynamic property of its button; the circle's has none, so only its name leads to it.
    void switchingOnHandsThePainterTheColourOfTheRole()
    {
        ShownPanel shown;
        shown.layer.setCircleColor(Qt::red);
        shown.layer.setDiagonalColor(Qt::red);
        shown.layer.setSerialColor(Qt::red);
        for (QPushButton* button : shown.switches()) {
            click(button);
            click(button);
        }
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleColor(Qt::red); }));
    }

    void lettersAreCheckedAtTheFirstSwitchingOn()
    {
        ShownPanel shown;
        click(shown.modes().at(1));
        click(shown.serialSwitch());
        QVERIFY(shown.modes().at(1)->isChecked());
        click(shown.serialSwitch());
        QVERIFY(shown.modes().at(0)->isChecked());
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget&) {}));

        click(shown.modes().at(1));
        click(shown.serialSwitch());
        click(shown.serialSwitch());
        QVERIFY(shown.modes().at(1)->isChecked());
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setSerialMode(1); }));
    }

    void initialisingIsTheFirstSwitchingOn()
    {
        ShownPanel shown(false);
        click(shown.modes().at(2));
        shown.panel.initPaintWidget(); // without a painter
        QVERIFY(shown.modes().at(2)->isChecked());

        shown.panel.setPaintWidget(&shown.layer);
        shown.layer.setSerialMode(1);
        shown.layer.setSerialVisible(false);
        shown.panel.initPaintWidget();
        QVERIFY(shown.modes().at(0)->isChecked());
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget&) {}));

        click(shown.modes().at(2));
        click(shown.serialSwitch());
        click(shown.serialSwitch());
        QVERIFY(shown.modes().at(2)->isChecked());
    }

    void initialisingReports()
    {
        ShownPanel shown(false);
        shown.panel.initPaintWidget();
        QCOMPARE(shown.changes.count(), 0);
        shown.panel.setPaintWidget(&shown.layer);
        QCOMPARE(shown.changes.count(), 0);
        shown.panel.initPaintWidget();
        QCOMPARE(shown.changes.count(), 2);
    }

    void modes_data()
    {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<uint>("mode");
        QTest::addColumn<int>("signalCount");
        // a button that another one unchecks reports too
        QTest::newRow("numbers") << QList<int>{1} << 1U << 2;
        QTest::newRow("combination") << QList<int>{2} << 2U << 2;
        QTest::newRow("letters, checked already") << QList<int>{0} << 0U << 0;
        QTest::newRow("numbers and back") << QList<int>{1, 0} << 0U << 4;
        QTest::newRow("combination, then numbers") << QList<int>{2, 1} << 1U << 4;
    }

    void modes()
    {
        QFETCH(QList<int>, clicks);
        QFETCH(uint, mode);
        QFETCH(int, signalCount);
        ShownPanel shown;
        for (const int button : clicks)
            click(shown.modes().at(button));
        for (uint button = 0; button < 3; ++button)
            QCOMPARE(shown.modes().at(int(button))->isChecked(), button == mode);
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([&](PaintInLineWidget& layer) { layer.setSerialMode(mode); }));
        QCOMPARE(shown.changes.count(), signalCount);
    }

    void lists_data()
    {
        QTest::addColumn<bool>("sort");
        QTest::addColumn<int>("index");
        QTest::newRow("position 1") << false << 1;
        QTest::newRow("position 2") << false << 2;
        QTest::newRow("sort 1") << true << 1;
        QTest::newRow("sort 2") << true << 2;
        QTest::newRow("sort 3") << true << 3;
    }

    void lists()
    {
        QFETCH(bool, sort);
        QFETCH(int, index);
        ShownPanel shown;
        ComboBox* const combo = sort ? shown.sort() : shown.position();
        for (int i = 0; i < index; ++i)
            QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(combo->currentIndex(), index);
        QCOMPARE(shown.changes.count(), index);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([&](PaintInLineWidget& layer) {
                              if (sort)
                                  layer.setSerialSort(uint(index));
                              else
                                  layer.setSerialPosition(uint(index));
                          }));
        QTest::keyClick(combo, Qt::Key_Home);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget&) {}));
    }

    void foreignItems_data()
    {
        QTest::addColumn<bool>("sort");
        QTest::addColumn<QVariant>("data");
        QTest::newRow("position 3") << false << QVariant(3);
        QTest::newRow("position -1") << false << QVariant(-1);
        QTest::newRow("position without data") << false << QVariant();
        QTest::newRow("position with a text") << false << QVariant(QStringLiteral("Center"));
        QTest::newRow("sort 4") << true << QVariant(4);
        QTest::newRow("sort -1") << true << QVariant(-1);
        QTest::newRow("sort without data") << true << QVariant();
        QTest::newRow("sort with a text") << true << QVariant(QStringLiteral("x"));
    }

    void foreignItems()
    {
        QFETCH(bool, sort);
        QFETCH(QVariant, data);
        ShownPanel shown;
        ComboBox* const combo = sort ? shown.sort() : shown.position();
        QTest::keyClick(combo, Qt::Key_Down);
        combo->addItem(QStringLiteral("foreign"), data);
        shown.changes.clear();
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_End);
        QCOMPARE(combo->currentText(), QStringLiteral("foreign"));
        QCOMPARE(shown.changes.count(), 1);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
        combo->setCurrentIndex(-1);
        QCOMPARE(shown.changes.count(), 2);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }

    void setColor_data()
    {
        QTest::addColumn<QString>("role");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<Change>("change");
        QTest::newRow("circle") << QStringLiteral("circle") << QByteArray("circleColorButton")
                                << Change([](PaintInLineWidget& layer) { layer.setCircleColor(Qt::red); });
        QTest::newRow("diagonal") << QStringLiteral("diagonal") << QByteArray("diagonalColorButton")
                                  << Change(
                                         [](PaintInLineWidget& layer) { layer.setDiagonalColor(Qt::red); });
        QTest::newRow("serial") << QStringLiteral("seque") << QByteArray("sequeColorBtn")
                                << Change([](PaintInLineWidget& layer) { layer.setSerialColor(Qt::red); });
    }

    void setColor()
    {
        QFETCH(QString, role);
        QFETCH(QByteArray, button);
        QFETCH(Change, change);
        ShownPanel shown;
        const QSignalSpy base(&shown.panel, &SettingPanel::changed);
        shown.panel.setColor(Qt::red, role);
        QCOMPARE(shown.changes.count(), 1);
        QCOMPARE(base.count(), 1);
        for (const char* name : {"circleColorButton", "diagonalColorButton", "sequeColorBtn"})
            QCOMPARE(shownColor(shown.color(name)) == QColor(Qt::red), button == name);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter(change));
    }

    void unknownRoleDoesNothing()
    {
        ShownPanel shown;
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        for (const char* role : {"", "Circle", "serial", "outline"}) {
            shown.panel.setColor(Qt::red, QLatin1String(role));
            shown.panel.restoreColor(QLatin1String(role));
        }
        QCOMPARE(shown.changes.count(), 0);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }

    void restoreColor_data() { setColor_data(); }

    /// As the shell does it: a click, colours as they are tried, and a rejected dialog.
    void restoreColor()
    {
        QFETCH(QString, role);
        QFETCH(QByteArray, button);
        QFETCH(Change, change);
        ShownPanel shown;
        shown.panel.setColor(Qt::red, role);
        click(shown.color(button.constData()));
        shown.panel.setColor(Qt::blue, role);
        shown.panel.setColor(Qt::yellow, role);
        shown.changes.clear();
        shown.panel.restoreColor(role);
        QCOMPARE(shown.changes.count(), 1);
        QCOMPARE(shownColor(shown.color(button.constData())), QColor(Qt::red));
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter(change));
    }

    void restoreColorBeforeAnyClick_data() { setColor_data(); }

    void restoreColorBeforeAnyClick()
    {
        QFETCH(QString, role);
        QFETCH(QByteArray, button);
        ShownPanel shown;
        const QColor before = shownColor(shown.color(button.constData()));
        shown.panel.restoreColor(role);
        QCOMPARE(shownColor(shown.color(button.constData())), before);
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget&) {}));
    }

    void colorButtonsAsk()
    {
        qRegisterMetaType<QPushButton*>();
        ShownPanel shown;
        QSignalSpy circle(&shown.panel, &InLineSettingBox::inlineCircleSignal);
        QSignalSpy diagonal(&shown.panel, &InLineSettingBox::inlineDialongSignal);
        QSignalSpy serial(&shown.panel, &InLineSettingBox::inlineSequeSignal);
        QSignalSpy any(&shown.panel, &SettingPanel::colorRequested);
        const auto counts = [&] {
            return QList<int>{int(circle.count()), int(diagonal.count()), int(serial.count()),
                              int(any.count())};
        };
        click(shown.circleColor());
        QCOMPARE(counts(), QList<int>({1, 0, 0, 1}));
        QCOMPARE(circle.last().first().value<QPushButton*>(), shown.circleColor());
        click(shown.diagonalColor());
        QCOMPARE(counts(), QList<int>({1, 1, 0, 2}));
        QCOMPARE(diagonal.last().first().value<QPushButton*>(), shown.diagonalColor());
        click(shown.serialColor());
        QCOMPARE(counts(), QList<int>({1, 1, 1, 3}));
        QCOMPARE(serial.last().first().value<QPushButton*>(), shown.serialColor());
        QCOMPARE(any.last().first().value<QPushButton*>(), shown.serialColor());
        QCOMPARE(shown.changes.count(), 0);

        click(shown.circleSwitch());
        click(shown.circleColor());
        QCOMPARE(counts(), QList<int>({1, 1, 1, 3}));
    }

    void nullPainterIsIgnored()
    {
        ShownPanel shown;
        shown.panel.setPaintWidget(nullptr);
        type(shown.radius(), "40");
        VD_COMPARE_IMAGES(layerImage(shown.layer),
                          drawnAfter([](PaintInLineWidget& layer) { layer.setCircleRadius(40); }));
    }

    void worksWithoutPainter_data()
    {
        QTest::addColumn<bool>("destroyed");
        QTest::newRow("never set") << false;
        QTest::newRow("destroyed") << true;
    }

    void worksWithoutPainter()
    {
        QFETCH(bool, destroyed);
        ShownPanel shown(false);
        if (destroyed) {
            auto* painter = new PaintInLineWidget;
            shown.panel.setPaintWidget(painter);
            delete painter;
        }
        shown.panel.initPaintWidget();
        QCOMPARE(shown.changes.count(), 0);
        for (SpinEditBox* entry : shown.entries())
            type(entry, "33");
        QCOMPARE(shown.changes.count(), 4);
        for (QPushButton* button : shown.switches()) {
            click(button);
            click(button);
        }
        QCOMPARE(shown.changes.count(), 10);
        click(shown.modes().at(2));
        QTest::keyClick(shown.position(), Qt::Key_Down);
        QTest::keyClick(shown.sort(), Qt::Key_Down);
        shown.panel.setColor(Qt::red, QStringLiteral("circle"));
        QCOMPARE(shown.changes.count(), 15);
        QCOMPARE(shownColor(shown.circleColor()), QColor(Qt::red));
    }

    void records_data()
    {
        QTest::addColumn<InLineChartData>("pushed");
        QTest::addColumn<InLineChartData>("shown");
        recordsWithinTheRanges();
        recordsOutOfTheRanges();
        recordsOfModes();
    }

    void records()
    {
        QFETCH(InLineChartData, pushed);
        QFETCH(InLineChartData, shown);
        ShownPanel panel;
        panel.panel.setData(pushed);
        InLineChartData read;
        read.circleSize = -7;
        panel.panel.getData(read);
        QVERIFY(read == shown);

        TestChartToolsData record;
        panel.panel.collectInto(record);
        QVERIFY(record.inLineData == shown);
        ShownPanel other;
        other.panel.pushFrom(record);
        other.panel.getData(read);
        QVERIFY(read == shown);

        VD_COMPARE_IMAGES(layerImage(panel.layer), drawnAfter([&](PaintInLineWidget& layer) {
                              const InLineChartData start; // what the controls show, the painter is not told
                              layer.setCircleVisible(shown.showCircle);
                              if (shown.circleSize != start.circleSize)
                                  layer.setCircleRadius(ushort(shown.circleSize));
                              if (shown.circleWidth != start.circleWidth)
                                  layer.setCircleLineWidth(ushort(shown.circleWidth));
                              layer.setCircleColor(toQColor(shown.circleColor));
                              layer.setDiagonalVisible(shown.showDiagonal);
                              if (shown.diagonalWidth != start.diagonalWidth)
                                  layer.setDiagonalLineWidth(ushort(shown.diagonalWidth));
                              layer.setDiagonalColor(toQColor(shown.diagonalColor));
                              layer.setSerialVisible(shown.showSerialNumber);
                              layer.setSerialSize(ushort(shown.serialSize));
                              layer.setSerialColor(toQColor(shown.serialColor));
                              layer.setSerialMode(shown.numMode ? 1 : shown.combinationMode ? 2 : 0);
                              layer.setSerialPosition(uint(shown.serialPosition));
                              layer.setSerialSort(uint(shown.serialSort));
                          }));
    }

    void recordOfASwitchedOffGroup()
    {
        ShownPanel shown;
        InLineChartData data;
        shown.panel.getData(data);
        data.showCircle = data.showDiagonal = data.showSerialNumber = false;
        data.circleColor = data.diagonalColor = data.serialColor = {255, 0, 0, 255};
        shown.panel.setData(data);
        QCOMPARE(enabledCount(shown.circleControls() + shown.diagonalControls() + shown.serialControls()), 0);
        for (const QPushButton* button : {shown.circleColor(), shown.diagonalColor(), shown.serialColor()})
            QCOMPARE(swatchDifference(button, disabledSwatch()), QString());
        shown.changes.clear();
        shown.panel.setData(data); // nothing differs any more
        QCOMPARE(shown.changes.count(), 0);

        for (QPushButton* button : shown.switches())
            click(button);
        for (const QPushButton* button : {shown.circleColor(), shown.diagonalColor(), shown.serialColor()})
            QCOMPARE(shownColor(button), QColor(Qt::red));
        VD_COMPARE_IMAGES(layerImage(shown.layer), drawnAfter([](PaintInLineWidget& layer) {
                              layer.setCircleColor(Qt::red);
                              layer.setDiagonalColor(Qt::red);
                              layer.setSerialColor(Qt::red);
                          }));
    }

    void cabinetGridChangesNothingHere()
    {
        ShownPanel shown;
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        shown.panel.setRows(3);
        shown.panel.setColumns(4);
        QCOMPARE(shown.changes.count(), 0);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }

    void lock_data()
    {
        QTest::addColumn<QList<int>>("off"); // the groups
        QTest::newRow("everything on") << QList<int>{};
        QTest::newRow("circle off") << QList<int>{0};
        QTest::newRow("diagonal off") << QList<int>{1};
        QTest::newRow("serial off") << QList<int>{2};
        QTest::newRow("everything off") << QList<int>{0, 1, 2};
    }

    void lock()
    {
        QFETCH(QList<int>, off);
        ShownPanel shown;
        const QList<QList<QWidget*>> groups{shown.circleControls(), shown.diagonalControls(),
                                            shown.serialControls()};
        for (const int group : off)
            click(shown.switches().at(group));
        shown.changes.clear();
        shown.panel.setControlsDisabled(true);
        QCOMPARE(enabledCount(groups[0] + groups[1] + groups[2] + shown.otherControls()), 0);
        QVERIFY(shown.panel.isEnabled());
        click(shown.circleSwitch());
        QTest::keyClick(shown.radius(), Qt::Key_Up);
        QCOMPARE(shown.changes.count(), 0);

        shown.panel.setControlsDisabled(false);
        QCOMPARE(enabledCount(shown.otherControls()), shown.otherControls().size());
        for (int group = 0; group < 3; ++group)
            QCOMPARE(enabledCount(groups.at(group)), off.contains(group) ? 0 : groups.at(group).size());
        QCOMPARE(shown.changes.count(), 0);
    }

    void recordDoesNotUnlock()
    {
        ShownPanel shown;
        click(shown.circleSwitch());
        shown.panel.setControlsDisabled(true);
        InLineChartData data;
        shown.panel.getData(data);
        data.showCircle = true;
        shown.panel.setData(data);
        QCOMPARE(enabledCount(shown.circleControls() + shown.otherControls()), 0);
        shown.panel.setControlsDisabled(false);
        QCOMPARE(enabledCount(shown.circleControls()), shown.circleControls().size());
    }

    void panelTakesTheFocusAfterTheLock()
    {
        ShownPanel shown;
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        class Reasons : public QObject
        {
        public:
            QList<Qt::FocusReason> seen;

        protected:
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::FocusIn)
                    seen << static_cast<QFocusEvent*>(event)->reason();
                return false;
            }
        } reasons;
        shown.panel.installEventFilter(&reasons);
        shown.radius()->setFocus();
        QVERIFY(shown.radius()->hasFocus());
        shown.panel.setControlsDisabled(true);
        QVERIFY(!shown.radius()->hasFocus());
        shown.panel.setControlsDisabled(false);
        QVERIFY(!shown.radius()->hasFocus());
        QVERIFY(shown.panel.hasFocus());
        QVERIFY(!reasons.seen.isEmpty());
        for (const Qt::FocusReason reason : reasons.seen)
            QCOMPARE(reason, Qt::OtherFocusReason);
    }

    void captions_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("room");
        for (const char* source :
             {"Show Circle", "Circle", "BorderWidth", "Color", "Show Diagonal", "Show Serial Number",
              "Serial Size", "Show Model", "Show Position", "Sort by"})
            QTest::newRow(source) << QString::fromLatin1(source) << 78;
        for (const char* source : {"Letter Mode", "Num Mode", "Combination Mode"})
            QTest::newRow(source) << QString::fromLatin1(source) << 75;
    }

    /// A caption that is too wide for its widget is elided, and its tool tip is the full text.
    void captions()
    {
        QFETCH(QString, source);
        QFETCH(int, room);
        const QString wide = QStringLiteral("WWW WWW WWW WWW WWW");
        ShownPanel shown;
        QList<QWidget*> widgets;
        const auto text = [](const QWidget* widget) { return widget->property("text").toString(); };
        for (QWidget* widget : shown.panel.findChildren<QWidget*>()) {
            const QString full = widget->toolTip().isEmpty() ? text(widget) : widget->toolTip();
            if (full == source)
                widgets << widget;
        }
        QVERIFY(!widgets.isEmpty());

        QVERIFY(speak({{source, wide}}));
        shown.panel.retranslate();
        for (const QWidget* widget : widgets) {
            QCOMPARE(text(widget), widget->fontMetrics().elidedText(wide, Qt::ElideRight, room));
            QVERIFY(text(widget).endsWith(QChar(0x2026)));
            QCOMPARE(widget->toolTip(), wide);
        }
        const QFontMetrics metrics = widgets.first()->fontMetrics();
        const QString justTooWide = textOfWidth(metrics, room + 1, room + 3);
        QVERIFY(!justTooWide.isEmpty());
        QVERIFY(speak({{source, justTooWide}}));
        shown.panel.retranslate();
        for (const QWidget* widget : widgets)
            QCOMPARE(widget->toolTip(), justTooWide);
        const QString justFitting = textOfWidth(metrics, room - 3, room);
        QVERIFY(!justFitting.isEmpty());
        QVERIFY(speak({{source, justFitting}}));
        shown.panel.retranslate();
        for (const QWidget* widget : widgets) {
            QCOMPARE(text(widget), justFitting);
            QCOMPARE(widget->toolTip(), QString());
        }
        QVERIFY(speak({{source, QStringLiteral("i")}}));
        shown.panel.retranslate();
        for (const QWidget* widget : widgets) {
            QCOMPARE(text(widget), QStringLiteral("i"));
            QCOMPARE(widget->toolTip(), QString());
        }
    }

    void listsAreElidedWithToolTip()
    {
        log().allowWarning(
            QStringLiteral("^This plugin does not support raise")); // of the tool tip, offscreen
        ShownPanel shown;
        const auto toolTip = [](ComboBox* combo) {
            QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), combo->mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(combo, &event);
            return QToolTip::text();
        };
        const QString sort = QStringLiteral("From up to down increase Frome left to right increase");
        QVERIFY(shown.sort()->fontMetrics().horizontalAdvance(sort) > 180);
        QCOMPARE(toolTip(shown.position()), QString());
        QCOMPARE(toolTip(shown.sort()), sort);
        QCOMPARE(shown.sort()->width(), 200);
    }

    void wideItemIsTheToolTipOfItsList()
    {
        ShownPanel shown;
        const QString source = QStringLiteral("Left Up Right Down");
        const QFontMetrics metrics = shown.position()->fontMetrics();
        const QString fitting = textOfWidth(metrics, 175, 180);
        const QString wide = textOfWidth(metrics, 181, 184);
        QVERIFY(!fitting.isEmpty() && !wide.isEmpty());

        QVERIFY(speak({{source, wide}}));
        shown.panel.retranslate();
        QCOMPARE(shown.position()->toolTip(), QString());
        shown.position()->setCurrentIndex(1);
        QCOMPARE(shown.position()->toolTip(), wide);
        shown.position()->setCurrentIndex(2);
        QCOMPARE(shown.position()->toolTip(), QString());
        shown.position()->setCurrentIndex(1);
        QVERIFY(speak({{source, fitting}}));
        shown.panel.retranslate();
        QCOMPARE(shown.position()->toolTip(), QString());
        QCOMPARE(shown.sort()->toolTip(),
                 QStringLiteral("From up to down increase Frome left to right increase"));
    }

    void retranslationKeepsTheState()
    {
        ShownPanel shown;
        click(shown.modes().at(1));
        QTest::keyClick(shown.position(), Qt::Key_Down);
        type(shown.radius(), "77");
        shown.changes.clear();
        const qint64 picture = shown.layer.pixmap(Qt::ReturnByValue).cacheKey();
        QVERIFY(speak({{QStringLiteral("Left Up Right Down"), QStringLiteral("Lurd")},
                       {QStringLiteral("Widget"), QStringLiteral("Inline")}}));
        shown.panel.retranslate();
        QCOMPARE(shown.position()->currentText(), QStringLiteral("Lurd"));
        QCOMPARE(shown.position()->currentIndex(), 1);
        QCOMPARE(shown.position()->currentData(), QVariant(1));
        QCOMPARE(shown.panel.windowTitle(), QStringLiteral("Inline"));
        QVERIFY(shown.modes().at(1)->isChecked());
        QCOMPARE(shown.radius()->value(), 77.0);
        QCOMPARE(shown.changes.count(), 0);
        QCOMPARE(shown.layer.pixmap(Qt::ReturnByValue).cacheKey(), picture);
    }
};

VD_TEST_MAIN(TestInLineSettingBox)
#include "tst_inlinesettingbox.moc"
